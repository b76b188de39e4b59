#include "screens/enucleated/frm_dettaglio_ritardi.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QIntValidator>
#include <QPushButton>
#include <QVBoxLayout>

#include "enucleated/report.h"
#include "screens/common/elaborazioni.h"
#include "screens/common/liste.h"
#include "screens/common/messaggi.h"
#include "screens/common/stampa.h"
#include "screens/common/stile.h"
#include "screens/enucleated/comune.h"
#include "screens/enucleated/frm_ambo_enucleato.h"

namespace gorgo::screens {

using namespace enucleato;
using namespace gorgo::enucleated;

FrmDettaglioRitardi::FrmDettaglioRitardi(FrmAmboEnucleato& padre, QWidget* parent)
    : QWidget(parent, Qt::Window), padre_(padre) {
    setObjectName("frmDettaglioRitardi");
    setWindowTitle(QStringLiteral("Dettaglio della somma di ritardi"));
    auto* v = new QVBoxLayout(this);
    auto* g = new QHBoxLayout;
    g->addWidget(new QLabel(QStringLiteral("Somma ritardi:"), this));
    txtSommaRitardi_ = new QLineEdit(this);
    txtSommaRitardi_->setObjectName("txtSommaRitardi");
    txtSommaRitardi_->setValidator(new QIntValidator(0, 999, txtSommaRitardi_));
    txtSommaRitardi_->setMaximumWidth(60);
    g->addWidget(txtSommaRitardi_);
    g->addWidget(new QLabel(QStringLiteral("su"), this));
    lblRuota_ = new QLabel(this);
    lblRuota_->setObjectName("lblRuota");
    g->addWidget(lblRuota_);
    auto* cmdRicerca = new QPushButton(QStringLiteral("Ricerca dettagli"), this);
    cmdRicerca->setObjectName("cmdRicerca");
    connect(cmdRicerca, &QPushButton::clicked, this, &FrmDettaglioRitardi::Ricerca);
    g->addWidget(cmdRicerca);
    g->addStretch();
    v->addLayout(g);
    auto* liste = new QHBoxLayout;
    ListView2_ = NuovaLista(
        this, "ListView2",
        {QStringLiteral("Coppia"), QStringLiteral("Presenze"), QStringLiteral("Rit. att"), QStringLiteral("Rit. max"),
         QStringLiteral("I.C."), QStringLiteral("% di presenza"), QStringLiteral("Da giocare")});
    ListView2_->setMinimumSize(620, 300);
    ListView1_ = NuovaLista(
        this, "ListView1",
        {QStringLiteral("Ritardo"), QStringLiteral("Presenze"), QStringLiteral("R.att"), QStringLiteral("Rit.max")});
    ListView1_->setMinimumWidth(260);
    liste->addWidget(ListView2_, 2);
    liste->addWidget(ListView1_, 1);
    v->addLayout(liste, 1);
    auto* fondo = new QHBoxLayout;
    fondo->addStretch();
    auto* cmdStampa = new QPushButton(QStringLiteral("Stampa"), this);
    cmdStampa->setObjectName("cmdStampa");
    auto* cmdPrintToFile = new QPushButton(QStringLiteral("Salva su file"), this);
    cmdPrintToFile->setObjectName("cmdPrintToFile");
    connect(cmdStampa, &QPushButton::clicked, this, &FrmDettaglioRitardi::Stampa);
    connect(cmdPrintToFile, &QPushButton::clicked, this, &FrmDettaglioRitardi::FileReport);
    fondo->addWidget(cmdStampa);
    fondo->addWidget(cmdPrintToFile);
    v->addLayout(fondo);
    ApplicaStile(this, padre_.sessione().ini);
}

void FrmDettaglioRitardi::Apri(int ruota, int somma) {
    ruota_ = ruota;
    somma_ = somma;
    txtSommaRitardi_->setText(QString::number(somma));
    lblRuota_->setText(QString::fromStdString(NomeRuota(ruota)));
    ListView1_->clear();
    ListView2_->clear();
    esito_ = {};
    showNormal();
    raise();
    activateWindow();
}

void FrmDettaglioRitardi::Ricerca() {
    if (ruota_ < 1 || txtSommaRitardi_->text().isEmpty()) return;
    somma_ = txtSommaRitardi_->text().toInt();
    const EsitoPeriodo ep = ControllaPeriodo(padre_.storia(), padre_.DataDa(), padre_.DataA());
    if (!ep.valido()) {
        MostraMessaggio(this, ep.errore);
        return;
    }
    CMouse attesa;
    esito_ = DettaglioRitardi(padre_.storia(), ep.periodo, ruota_, somma_, padre_.SoloMatematici());
    RiempiLista(ListView1_, [&] {
        for (const RigaRitardo& r : esito_.ritardi) new RigaLista(ListView1_, Colonne(r.testo));
    });
    RiempiLista(ListView2_, [&] {
        for (const RigaCoppiaRitardi& c : esito_.coppie) {
            QStringList col = Colonne(c.testo);
            col << QString::fromStdString(c.daGiocare);
            new RigaLista(ListView2_, col);
        }
    });
}

void FrmDettaglioRitardi::Stampa() {
    if (esito_.coppie.empty()) return;
    OpzioniStampa o;
    o.punti = 12;
    o.righePerPagina = 0;
    StampaReport(this, ReportDettaglioStampa(esito_, ruota_, somma_).righe(), o);
}

void FrmDettaglioRitardi::FileReport() {
    if (esito_.coppie.empty()) return;
    SalvaReportSuFile(this, padre_.sessione(), RigheTesto(ReportDettaglioFile(esito_)),
                      Q(NomeFileDettaglio(ruota_, somma_)), DomandaFile::Sovrascrivi,
                      QStringLiteral("File di testo (*.txt)"));
}

}  // namespace gorgo::screens
