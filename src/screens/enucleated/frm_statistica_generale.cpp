#include "screens/enucleated/frm_statistica_generale.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QIntValidator>
#include <QPushButton>
#include <QVBoxLayout>

#include "enucleated/report.h"
#include "screens/common/liste.h"
#include "screens/common/stampa.h"
#include "screens/common/stile.h"
#include "screens/enucleated/comune.h"
#include "screens/enucleated/frm_ambo_enucleato.h"
#include "screens/enucleated/frm_coppie.h"
#include "screens/enucleated/frm_terzine.h"

namespace gorgo::screens {

using namespace enucleato;
using namespace gorgo::enucleated;

FrmStatisticaGenerale::FrmStatisticaGenerale(FrmAmboEnucleato& padre) : QWidget(&padre, Qt::Window), padre_(padre) {
    setObjectName("frmStatisticaGenerale");
    setWindowTitle(QStringLiteral("Ambo enucleato - Statistica generale"));
    setAttribute(Qt::WA_DeleteOnClose);
    auto* v = new QVBoxLayout(this);
    auto* g = new QGridLayout;
    cboTipoRicerca_ = new QComboBox(this);
    cboTipoRicerca_->setObjectName("cboTipoRicerca");
    cboTipoRicerca_->addItems({QStringLiteral("Coppie"), QStringLiteral("Terzine")});
    g->addWidget(cboTipoRicerca_, 0, 0);
    optQuante_[0] = new QRadioButton(QStringLiteral("Tutte le somme con almeno"), this);
    optQuante_[1] = new QRadioButton(QStringLiteral("Solamente le"), this);
    txtPresenze_ = new QLineEdit(QStringLiteral("1"), this);
    txtQuante_ = new QLineEdit(QStringLiteral("15"), this);
    txtPresenze_->setObjectName("txtPresenze");
    txtQuante_->setObjectName("txtQuante");
    for (QLineEdit* t : {txtPresenze_, txtQuante_}) {
        t->setValidator(new QIntValidator(0, 99999, t));
        t->setMaximumWidth(50);
    }
    for (int k = 0; k < 2; ++k)
        optQuante_[static_cast<size_t>(k)]->setObjectName(QStringLiteral("optQuante_%1").arg(k));
    optQuante_[1]->setChecked(true);
    g->addWidget(optQuante_[0], 0, 1);
    g->addWidget(txtPresenze_, 0, 2);
    g->addWidget(new QLabel(QStringLiteral("presenze"), this), 0, 3);
    g->addWidget(optQuante_[1], 1, 1);
    g->addWidget(txtQuante_, 1, 2);
    g->addWidget(new QLabel(QStringLiteral("somme più frequenti"), this), 1, 3);
    auto* cmdStatistica = new QPushButton(QStringLiteral("Verifica"), this);
    cmdStatistica->setObjectName("cmdStatistica");
    connect(cmdStatistica, &QPushButton::clicked, this, [this] { Verifica(cboTipoRicerca_->currentIndex()); });
    g->addWidget(cmdStatistica, 0, 4, 2, 1);
    v->addLayout(g);
    lblRuota_ = new QLabel(this);
    lblRuota_->setObjectName("lblRuota");
    v->addWidget(lblRuota_);
    ListView2_ = NuovaLista(
        this, "ListView2",
        {QStringLiteral("Ruota"), QStringLiteral("Somma rit."), QStringLiteral("Frequenza"), QStringLiteral("Ritardo"),
         QStringLiteral("Ritardo max (il)"), QStringLiteral("Freq. media"), QStringLiteral("P"), QStringLiteral("R")});
    ListView2_->setColumnHidden(6, true);
    ListView2_->setColumnHidden(7, true);
    ListView2_->setColumnWidth(4, 190);
    ListView2_->setMinimumSize(640, 320);
    connect(ListView2_, &QTreeWidget::itemDoubleClicked, this, &FrmStatisticaGenerale::ApriLista);
    v->addWidget(ListView2_, 1);
    auto* fondo = new QHBoxLayout;
    auto* cmdStampa = new QPushButton(QStringLiteral("Stampa"), this);
    cmdStampa->setObjectName("cmdStampa");
    auto* cmdPrintToFile = new QPushButton(QStringLiteral("Salva su file"), this);
    cmdPrintToFile->setObjectName("cmdPrintToFile");
    connect(cmdStampa, &QPushButton::clicked, this, &FrmStatisticaGenerale::Stampa);
    connect(cmdPrintToFile, &QPushButton::clicked, this, &FrmStatisticaGenerale::FileReport);
    fondo->addStretch();
    fondo->addWidget(cmdStampa);
    fondo->addWidget(cmdPrintToFile);
    v->addLayout(fondo);
    connect(&padre_, &FrmAmboEnucleato::statisticheCancellate, this, &FrmStatisticaGenerale::Svuota);
    ApplicaStile(this, padre_.sessione().ini);
}

void FrmStatisticaGenerale::Svuota() {
    ListView2_->clear();
    righe_.clear();
    if (coppie_) coppie_->Svuota();
    if (terzine_) terzine_->Svuota();
}

void FrmStatisticaGenerale::Verifica(int tipo) {
    cboTipoRicerca_->setCurrentIndex(tipo);
    ListView2_->clear();
    righe_.clear();
    const int ruota = std::max(1, padre_.RuotaScelta());
    lblRuota_->setText(QString::fromStdString(NomeRuota(ruota)));
    padre_.Statistica(tipo, optQuante_[0]->isChecked(), txtPresenze_->text().toInt(), txtQuante_->text().toInt(),
                      [this, ruota](const EsitoStatistica* e) {
                          if (!e) return;
                          righe_ = e->righe;
                          periodo_ = e->periodo;
                          ruota_ = ruota;
                          RiempiLista(ListView2_, [&] {
                              for (const RigaStatistica& r : righe_) new RigaLista(ListView2_, Colonne(r.testo));
                          });
                      });
}

void FrmStatisticaGenerale::ApriLista(QTreeWidgetItem* riga) {
    if (!riga || riga->text(7).trimmed().isEmpty()) return;
    const int ruota = riga->text(7).toInt();
    const int somma = riga->text(1).trimmed().toInt();
    // The kind of the tables the rows come from.
    if (padre_.statistiche().tipo() == TipoAnalisi::Terni) {
        if (!terzine_) terzine_ = new FrmTerzine(padre_, this);
        terzine_->Mostra(ruota, somma);
    } else {
        if (!coppie_) coppie_ = new FrmCoppie(padre_, this);
        coppie_->Mostra(ruota, somma);
    }
}

void FrmStatisticaGenerale::Stampa() {
    if (righe_.empty()) return;
    OpzioniStampa o;
    o.punti = 12;
    o.righePerPagina = 0;
    StampaReport(this, ReportStatisticaStampa(righe_, ruota_, periodo_).righe(), o);
}

void FrmStatisticaGenerale::FileReport() {
    if (righe_.empty()) return;
    SalvaReportSuFile(this, padre_.sessione(), RigheTesto(ReportStatisticaFile(righe_, ruota_, periodo_)),
                      Q(NomeFileStatistica(ruota_)), DomandaFile::Sovrascrivi, QStringLiteral("File di testo (*.txt)"));
}

}  // namespace gorgo::screens
