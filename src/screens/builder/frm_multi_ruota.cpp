#include "screens/builder/frm_multi_ruota.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QVBoxLayout>

#include "builder/report_copertura.h"
#include "screens/common/liste.h"
#include "screens/common/stampa.h"
#include "screens/common/stile.h"

namespace gorgo::screens {

namespace {
QString Q(const std::string& s) { return QString::fromStdString(s); }
}  // namespace

FrmMultiRuota::FrmMultiRuota(Sessione& sessione, QWidget* parent, const QString& testaSpia)
    : QWidget(parent, Qt::Window), sessione_(sessione) {
    setObjectName("frmMultiRuota");
    setWindowTitle(
        QString::fromUtf8(builder::TitoloMultiRuota.data(), static_cast<qsizetype>(builder::TitoloMultiRuota.size())));
    auto* l = new QVBoxLayout(this);
    ListViewMultiruote_ = new QTreeWidget(this);
    ListViewMultiruote_->setObjectName("ListViewMultiruote");
    ListViewMultiruote_->setRootIsDecorated(false);
    QFont f(QStringLiteral("Monospace"));
    f.setStyleHint(QFont::TypeWriter);
    ListViewMultiruote_->setFont(f);
    ListViewMultiruote_->setHeaderLabels({QStringLiteral("Descrizione algoritmo"), QStringLiteral("Sortite"),
                                          QString::fromUtf8("Presenze/quantità"), QStringLiteral("% presenza"),
                                          testaSpia, QStringLiteral(" ric."), QStringLiteral(" ruote gioco")});
    // Rows stay in the order of the runs until a click on a head sorts them; a second click
    // on the same head reverses.
    QHeaderView* testa = ListViewMultiruote_->header();
    testa->setSectionsClickable(true);
    testa->setSortIndicatorShown(true);
    testa->setSortIndicator(-1, Qt::AscendingOrder);
    connect(testa, &QHeaderView::sectionClicked, this, [this](int colonna) {
        QHeaderView* h = ListViewMultiruote_->header();
        const Qt::SortOrder verso =
            h->sortIndicatorSection() == colonna && ordineCrescente_ ? Qt::DescendingOrder : Qt::AscendingOrder;
        ordineCrescente_ = verso == Qt::AscendingOrder;
        h->setSortIndicator(colonna, verso);
        ListViewMultiruote_->sortItems(colonna, verso);
    });
    l->addWidget(ListViewMultiruote_);
    auto* piede = new QHBoxLayout;
    lblTotaleAlgoritmi_ = new QLabel(this);
    lblTotaleAlgoritmi_->setObjectName("lblTotaleAlgoritmi");
    prgAvanzamento_ = new QProgressBar(this);
    prgAvanzamento_->setObjectName("prgAvanzamento");
    cmdStampa_ = new QPushButton(QStringLiteral("Stampa"), this);
    cmdStampa_->setObjectName("cmdStampa");
    cmdPrintToFile_ = new QPushButton(QStringLiteral("Su file"), this);
    cmdPrintToFile_->setObjectName("cmdPrintToFile");
    auto* esci = new QPushButton(QStringLiteral("Esci"), this);
    esci->setObjectName("cmdEsci");
    piede->addWidget(lblTotaleAlgoritmi_);
    piede->addWidget(prgAvanzamento_, 1);
    piede->addWidget(cmdStampa_);
    piede->addWidget(cmdPrintToFile_);
    piede->addWidget(esci);
    l->addLayout(piede);
    connect(esci, &QPushButton::clicked, this, &QWidget::close);
    connect(cmdStampa_, &QPushButton::clicked, this, [this] {
        if (righe_.righe.empty() || !storia_) return;
        OpzioniStampa o;
        o.punti = 8;
        o.titolo1 = QStringLiteral("Gorgo 2 - Ideato da Sergio Tordelli");
        o.titolo2 = windowTitle();
        StampaReport(this, builder::StampaAutomaticaRighe(parametri_, righe_, *storia_).righe(), o);
    });
    connect(cmdPrintToFile_, &QPushButton::clicked, this, [this] {
        if (righe_.righe.empty() || !storia_) return;
        SalvaReportSuFile(this, sessione_, builder::ReportAutomatica(parametri_, righe_, *storia_).righe(),
                          QString::fromUtf8(builder::NomeReportAutomatica.data(),
                                            static_cast<qsizetype>(builder::NomeReportAutomatica.size())),
                          DomandaFile::InCalce);
    });
    resize(900, 500);
    ApplicaStile(this, sessione_.ini);
}

void FrmMultiRuota::Inizia(const builder::ParametriRicerca& p, const archives::StoriaLotto* storia) {
    parametri_ = p;
    storia_ = storia;
    righe_ = {};
    ListViewMultiruote_->clear();
    lblTotaleAlgoritmi_->setText(QStringLiteral("0"));
    prgAvanzamento_->setValue(0);
    cmdStampa_->setEnabled(false);
    cmdPrintToFile_->setEnabled(false);
}

void FrmMultiRuota::AggiungiRiga(const builder::RigaAutomatica& r) {
    righe_.righe.push_back(r);
    new QTreeWidgetItem(ListViewMultiruote_,
                        {Q(r.riga.descrizione), Q(r.riga.testoSortite()), Q(r.riga.testoPresenze()),
                         Q(r.riga.testoPercentuale()), Q(r.riga.testoSpia), Q(r.testoRicerca), Q(r.testoGioco)});
    lblTotaleAlgoritmi_->setText(QString::number(Righe()));
}

void FrmMultiRuota::Avanzamento(int fatte, int corse) {
    prgAvanzamento_->setMaximum(std::max(corse, 1));
    prgAvanzamento_->setValue(fatte);
}

void FrmMultiRuota::Termina(bool) {
    for (int c = 0; c < ListViewMultiruote_->columnCount(); ++c) ListViewMultiruote_->resizeColumnToContents(c);
    cmdStampa_->setEnabled(!righe_.righe.empty());
    cmdPrintToFile_->setEnabled(!righe_.righe.empty());
}

}  // namespace gorgo::screens
