#include "screens/builder/frm_copertura.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "builder/report_copertura.h"
#include "screens/common/liste.h"
#include "screens/common/stampa.h"
#include "screens/common/stile.h"

namespace gorgo::screens {

namespace {

QFont FontFisso() {
    QFont f(QStringLiteral("Monospace"));
    f.setStyleHint(QFont::TypeWriter);
    return f;
}

QString Q(const std::string& s) { return QString::fromStdString(s); }

}  // namespace

FinestraCopertura::FinestraCopertura(Sessione& sessione, QWidget* parent, const char* nome,
                                     const builder::EsitoCopertura& e, const QStringList& teste,
                                     config::ReportTesto stampa, config::ReportTesto file)
    : QWidget(parent, Qt::Window), sessione_(sessione), stampa_(std::move(stampa)), file_(std::move(file)) {
    setObjectName(nome);
    setWindowTitle(Q(e.titolo));
    setAttribute(Qt::WA_DeleteOnClose);
    auto* l = new QVBoxLayout(this);

    lvListaFinale_ = new QTreeWidget(this);
    lvListaFinale_->setObjectName("lvListaFinale");
    lvListaFinale_->setRootIsDecorated(false);
    lvListaFinale_->setFont(FontFisso());
    // Column 0 the date, then the groups of columns, then the hidden row number (column 10).
    QStringList intestazione = teste;
    while (intestazione.size() < 10) intestazione << QString();
    intestazione << QStringLiteral("N.");
    lvListaFinale_->setHeaderLabels(intestazione);
    for (const builder::RigaCopertura& r : e.righe) {
        QStringList c{Q(r.data)};
        for (int g = 0; g < e.gruppiColonne; ++g) {
            const builder::ColonneCopertura& x = r.gruppi[static_cast<size_t>(g)];
            c << Q(x.descrizione) << Q(x.previsione) << Q(x.colpo);
        }
        while (c.size() < 10) c << QString();
        c << Q(r.testoRiga);
        auto* item = new RigaLista(lvListaFinale_, c);
        item->setData(0, Qt::UserRole, Q(r.chiave));
    }
    for (int c = teste.size(); c < 11; ++c) lvListaFinale_->setColumnHidden(c, true);
    lvListaFinale_->setSortingEnabled(true);
    OrdinaColonnaSecondo(lvListaFinale_, 0, 10);  // the date by the row number
    lvListaFinale_->sortByColumn(10, Qt::AscendingOrder);
    for (int c = 0; c < teste.size(); ++c) lvListaFinale_->resizeColumnToContents(c);
    l->addWidget(lvListaFinale_, 3);

    lvRiepilogoCoperture_ = new QTreeWidget(this);
    lvRiepilogoCoperture_->setObjectName("lvRiepilogoCoperture");
    lvRiepilogoCoperture_->setRootIsDecorated(false);
    lvRiepilogoCoperture_->setFont(FontFisso());
    lvRiepilogoCoperture_->setHeaderLabels({QStringLiteral("Descrizione algoritmo"), QStringLiteral("Pres."),
                                            QStringLiteral("%"), QStringLiteral("Previs.")});
    for (const builder::RiepilogoCopertura& x : e.riepilogo)
        new QTreeWidgetItem(lvRiepilogoCoperture_,
                            {Q(x.descrizione), Q(x.testoSortite), Q(x.testoPercentuale), Q(x.previsione)});
    for (int c = 0; c < 4; ++c) lvRiepilogoCoperture_->resizeColumnToContents(c);
    l->addWidget(lvRiepilogoCoperture_, 1);

    auto* etichette = new QHBoxLayout;
    lblTotaleCopertura_ = new QLabel(Q(e.totale), this);
    lblTotaleCopertura_->setObjectName("lblTotaleCopertura");
    lblAttesaMedia_ = new QLabel(Q(e.attesaMedia), this);
    lblAttesaMedia_->setObjectName("lblAttesaMedia");
    etichette->addWidget(lblTotaleCopertura_);
    etichette->addStretch();
    etichette->addWidget(lblAttesaMedia_);
    l->addLayout(etichette);

    auto* pulsanti = new QHBoxLayout;
    auto pulsante = [this](const char* n, const QString& t) {
        auto* b = new QPushButton(t, this);
        b->setObjectName(n);
        return b;
    };
    QPushButton* stampaB = pulsante("cmdStampa", QStringLiteral("Stampa"));
    QPushButton* fileB = pulsante("cmdPrintToFile", QStringLiteral("Su file"));
    QPushButton* esci = pulsante("cmdEsci", QStringLiteral("Esci"));
    pulsanti->addWidget(stampaB);
    pulsanti->addWidget(fileB);
    pulsanti->addStretch();
    pulsanti->addWidget(esci);
    l->addLayout(pulsanti);
    const bool vuota = e.righe.empty();
    stampaB->setEnabled(!vuota);
    fileB->setEnabled(!vuota);
    connect(esci, &QPushButton::clicked, this, &QWidget::close);
    connect(stampaB, &QPushButton::clicked, this, [this] {
        OpzioniStampa o;
        o.titolo1 = QStringLiteral("Gorgo 2 - Ideato da Sergio Tordelli");
        o.titolo2 = windowTitle();
        StampaReport(this, stampa_.righe(), o);
    });
    connect(fileB, &QPushButton::clicked, this, [this] {
        SalvaReportSuFile(this, sessione_, file_.righe(),
                          QString::fromUtf8(builder::NomeReportCopertura.data(),
                                            static_cast<qsizetype>(builder::NomeReportCopertura.size())),
                          DomandaFile::InCalce);
    });
    resize(900, 600);
    ApplicaStile(this, sessione_.ini);
}

FrmCopertura::FrmCopertura(Sessione& sessione, QWidget* parent, const builder::EsitoCopertura& e,
                           config::ReportTesto stampa, config::ReportTesto file)
    : FinestraCopertura(
          sessione, parent, "frmCopertura", e,
          [&] {
              QStringList t{QStringLiteral("Data spia")};
              for (int g = 0; g < e.gruppiColonne; ++g)
                  t << QStringLiteral("Descrizione algor.") << QStringLiteral("Pr.") << QStringLiteral("C.");
              return t;
          }(),
          std::move(stampa), std::move(file)) {}

}  // namespace gorgo::screens
