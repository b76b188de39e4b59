#include "screens/enucleated/frm_statistica_ambi_matematici.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "config/report_testo.h"
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

FrmStatisticaAmbiMatematici::FrmStatisticaAmbiMatematici(FrmAmboEnucleato& padre)
    : QWidget(&padre, Qt::Window), padre_(padre) {
    setObjectName("frmStatisticaAmbiMatematici");
    setWindowTitle(QStringLiteral("Ambo enucleato - Statistica gruppo ambi matematici"));
    setAttribute(Qt::WA_DeleteOnClose);
    auto* v = new QVBoxLayout(this);
    auto* alto = new QHBoxLayout;
    const QString testi[2] = {QStringLiteral("Verifica ruota singola"), QStringLiteral("Verifica tutte le ruote")};
    for (int k = 0; k < 2; ++k) {
        auto* b = new QPushButton(testi[k], this);
        b->setObjectName(QStringLiteral("cmdStatistica_%1").arg(k));
        connect(b, &QPushButton::clicked, this, [this, k] { StatisticaGruppo(k); });
        alto->addWidget(b);
    }
    lblRuota_ = new QLabel(this);
    lblRuota_->setObjectName("lblRuota");
    alto->addWidget(lblRuota_);
    alto->addStretch();
    v->addLayout(alto);
    txtResult_ = new QPlainTextEdit(this);
    txtResult_->setObjectName("txtResult");
    txtResult_->setReadOnly(true);
    QFont f(QStringLiteral("Courier New"));
    f.setStyleHint(QFont::Monospace);
    txtResult_->setFont(f);
    txtResult_->setMaximumHeight(200);
    v->addWidget(txtResult_);
    v->addWidget(new QLabel(QStringLiteral("Comportamento dei ritardi del gruppo"), this));
    ListView1_ = NuovaLista(this, "ListView1",
                            {QStringLiteral("Ritardo"), QStringLiteral("Frequenza"), QStringLiteral("Ritardo att."),
                             QStringLiteral("Ritardo max"), QStringLiteral(" I.C.")});
    ListView1_->setMinimumSize(520, 260);
    v->addWidget(ListView1_, 1);
    auto* fondo = new QHBoxLayout;
    fondo->addStretch();
    auto* cmdStampa = new QPushButton(QStringLiteral("Stampa"), this);
    cmdStampa->setObjectName("cmdStampa");
    auto* cmdPrintToFile = new QPushButton(QStringLiteral("Salva su file"), this);
    cmdPrintToFile->setObjectName("cmdPrintToFile");
    connect(cmdStampa, &QPushButton::clicked, this, &FrmStatisticaAmbiMatematici::Stampa);
    connect(cmdPrintToFile, &QPushButton::clicked, this, &FrmStatisticaAmbiMatematici::FileReport);
    fondo->addWidget(cmdStampa);
    fondo->addWidget(cmdPrintToFile);
    v->addLayout(fondo);
    ApplicaStile(this, padre_.sessione().ini);
}

void FrmStatisticaAmbiMatematici::StatisticaGruppo(int indice) {
    if (elaborazione_) return;
    txtResult_->clear();
    ListView1_->clear();
    const EsitoPeriodo ep = ControllaPeriodo(padre_.storia(), padre_.DataDa(), padre_.DataA());
    if (!ep.valido()) {
        MostraMessaggio(this, ep.errore);
        return;
    }
    tutte_ = indice == 1;
    ruota_ = std::max(1, padre_.RuotaScelta());
    lblRuota_->setText(tutte_ ? QStringLiteral("Tutte") : QString::fromStdString(NomeRuota(ruota_)));
    // On the computing window's worker, with its stop; a stopped run shows nothing.
    auto esito = std::make_shared<EsitoGruppo>();
    const Periodo periodo = ep.periodo;
    const bool tutte = tutte_;
    const int ruota = ruota_;
    const archives::StoriaCondivisa storia = padre_.storiaCondivisa();
    elaborazione_ = true;
    esito_ = {};
    Elaborazione::Avvia(
        this, padre_.sessione(), QStringLiteral("Statistica gruppo ambi matematici..."),
        [storia, periodo, tutte, ruota, esito](std::stop_token stop, const Progresso& progresso) {
            *esito = enucleated::StatisticaGruppo(*storia, periodo, tutte, ruota, Avanzamento{stop, progresso});
        },
        [this, esito](bool fermato) {
            elaborazione_ = false;
            if (fermato || esito->interrotta) return;
            esito_ = *esito;
            QStringList righe;
            for (const std::string& r : esito_.riepilogo) righe << QString::fromStdString(r);
            txtResult_->setPlainText(righe.join('\n'));
            RiempiLista(ListView1_, [&] {
                for (const RigaGruppo& r : esito_.righe) new RigaLista(ListView1_, Colonne(r.testo));
            });
            emit statisticaTerminata();
        });
}

void FrmStatisticaAmbiMatematici::closeEvent(QCloseEvent* e) {
    if (elaborazione_)
        e->ignore();
    else
        e->accept();
}

void FrmStatisticaAmbiMatematici::Stampa() {
    if (esito_.riepilogo.empty()) return;
    OpzioniStampa o;
    o.punti = 12;
    o.righePerPagina = 0;
    StampaReport(this, RigheTesto(ReportGruppo(esito_)), o);
}

void FrmStatisticaAmbiMatematici::FileReport() {
    if (esito_.riepilogo.empty()) return;
    SalvaReportSuFile(this, padre_.sessione(), RigheTesto(ReportGruppo(esito_)), Q(NomeFileGruppo(tutte_, ruota_)),
                      DomandaFile::Sovrascrivi, QStringLiteral("File di testo (*.txt)"));
}

}  // namespace gorgo::screens
