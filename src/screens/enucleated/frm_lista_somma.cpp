#include "screens/enucleated/frm_lista_somma.h"

#include <QHBoxLayout>
#include <QPushButton>

#include "enucleated/report.h"
#include "screens/common/liste.h"
#include "screens/common/stampa.h"
#include "screens/common/stile.h"
#include "screens/enucleated/comune.h"
#include "screens/enucleated/frm_ambo_enucleato.h"

namespace gorgo::screens {

using namespace enucleato;
using namespace gorgo::enucleated;

FrmListaSomma::FrmListaSomma(FrmAmboEnucleato& padre, QWidget* parent, TipoAnalisi tipo)
    : QWidget(parent, Qt::Window), padre_(padre), tipo_(tipo) {
    const bool ambi = tipo == TipoAnalisi::Ambi;
    setObjectName(ambi ? "frmCoppie" : "frmTerzine");
    setWindowTitle(ambi ? QStringLiteral("Coppie") : QStringLiteral("Terzine"));
    auto* v = new QVBoxLayout(this);
    lblDescrizione_ = new QLabel(this);
    lblDescrizione_->setObjectName("lblDescrizione");
    v->addWidget(lblDescrizione_);
    ListView1_ = NuovaLista(this, "ListView1",
                            {ambi ? QStringLiteral("Ambo") : QStringLiteral("Terzina"), QStringLiteral("Rit. interno"),
                             QStringLiteral("Rit. attuale"), QStringLiteral("Rit. max"), QStringLiteral("Frequenza"),
                             QStringLiteral(" I.C.")});
    ListView1_->setColumnWidth(0, ambi ? 90 : 130);
    ListView1_->setColumnWidth(1, ambi ? 130 : 170);
    ListView1_->setMinimumSize(620, 300);
    v->addWidget(ListView1_, 1);
    lblTotCoppie_ = new QLabel(this);
    lblTotCoppie_->setObjectName("lblTotCoppie");
    v->addWidget(lblTotCoppie_);
    comandi_ = new QHBoxLayout;
    comandi_->addStretch();
    auto* cmdStampa = new QPushButton(QStringLiteral("Stampa"), this);
    cmdStampa->setObjectName("cmdStampa");
    auto* cmdPrintToFile = new QPushButton(QStringLiteral("Salva su file"), this);
    cmdPrintToFile->setObjectName("cmdPrintToFile");
    auto* cmdOk = new QPushButton(ambi ? QStringLiteral("Chiudi") : QStringLiteral("Ok"), this);
    cmdOk->setObjectName("cmdOk");
    connect(cmdStampa, &QPushButton::clicked, this, &FrmListaSomma::Stampa);
    connect(cmdPrintToFile, &QPushButton::clicked, this, &FrmListaSomma::FileReport);
    connect(cmdOk, &QPushButton::clicked, this, &QWidget::hide);
    comandi_->addWidget(cmdStampa);
    comandi_->addWidget(cmdPrintToFile);
    comandi_->addWidget(cmdOk);
    v->addLayout(comandi_);
    ApplicaStile(this, padre_.sessione().ini);
}

void FrmListaSomma::Mostra(int ruota, int somma) {
    ruota_ = ruota;
    somma_ = somma;
    const StatisticheEnucleato& st = padre_.statistiche();
    lista_ = tipo_ == TipoAnalisi::Ambi ? st.Coppie(ruota, somma, padre_.SoloMatematici())
                                        : st.Terzine(ruota, somma, padre_.SoloMatematici());
    lblDescrizione_->setText(QString::fromStdString(lista_.descrizione));
    lblTotCoppie_->setText(QString::fromStdString(lista_.totale));
    // Rows come by I.C., highest first; a click on a head sorts by that column.
    RiempiLista(ListView1_, [&] {
        for (const RigaCoppia& r : lista_.righe) new RigaLista(ListView1_, Colonne(r.testo));
    });
    showNormal();
    raise();
    activateWindow();
}

void FrmListaSomma::Svuota() {
    lista_ = {};
    ListView1_->clear();
    lblTotCoppie_->clear();
}

void FrmListaSomma::Stampa() {
    if (lista_.righe.empty()) return;
    OpzioniStampa o;
    o.punti = 12;
    o.righePerPagina = 0;
    StampaReport(this, ReportCoppieStampa(lista_, tipo_).righe(), o);
}

void FrmListaSomma::FileReport() {
    if (lista_.righe.empty()) return;
    SalvaReportSuFile(this, padre_.sessione(), RigheTesto(ReportCoppieFile(lista_, tipo_)), Q(NomeFileCoppie),
                      DomandaFile::Sovrascrivi, QStringLiteral("File di testo (*.txt)"));
}

}  // namespace gorgo::screens
