#include "screens/consultation/frm_somme_distanze.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "config/impostazioni.h"
#include "config/ini.h"
#include "screens/common/messaggi.h"
#include "screens/common/stampa.h"
#include "screens/common/stile.h"
#include "screens/common/twips.h"
#include "screens/consultation/controlli.h"
#include "screens/consultation/frm_grafico_somme.h"

namespace gorgo::screens {

using namespace consultazione;

namespace {
// AnalisiSommeDistanze: 0 none, 1 rows, 2 columns, 3 both.
constexpr int BitRighe = 1, BitColonne = 2;
}  // namespace

FrmSommeDistanze::FrmSommeDistanze(Sessione& sessione, QWidget* parent)
    : QWidget(parent, Qt::Window), sessione_(sessione) {
    setObjectName("frmSommeDistanze");
    setWindowTitle(QStringLiteral("  Somme e distanze"));
    auto* v = new QVBoxLayout(this);
    auto* g = new QGridLayout;
    g->setSpacing(2);
    for (int k = 0; k < 10; ++k) {
        auto* e = Pulsante(this, QStringLiteral("lblEtichetta_%1").arg(k),
                           QString::fromStdString(consultation::EtichettaCoppia(k)),
                           QStringLiteral("Un click per visualizzare il grafico"));
        e->setFlat(true);
        connect(e, &QPushButton::clicked, this, [this, k] { ApriGraficoColonna(k); });
        g->addWidget(e, 0, 1 + 2 * k, 1, 2);
        g->addWidget(Etichetta(this, QStringLiteral("lblSo_%1").arg(k), QStringLiteral("So")), 1, 1 + 2 * k,
                     Qt::AlignCenter);
        g->addWidget(Etichetta(this, QStringLiteral("lblDi_%1").arg(k), QStringLiteral("Di")), 1, 2 + 2 * k,
                     Qt::AlignCenter);
    }
    for (int w = 1; w <= archives::NumeroRuote; ++w) {
        auto* r =
            Pulsante(this, QStringLiteral("lblRuota_%1").arg(w), QString::fromStdString(consultation::NomeRuota(w)),
                     QStringLiteral("Un click per visualizzare il grafico"));
        r->setFlat(true);
        connect(r, &QPushButton::clicked, this, [this, w] { ApriGraficoRiga(w); });
        g->addWidget(r, 1 + w, 0);
        for (int k = 0; k < 10; ++k) {
            somme_[static_cast<size_t>(w) - 1][static_cast<size_t>(k)] =
                CasellaNumero(this, QStringLiteral("lblSomma_%1_%2").arg(w).arg(k), 30);
            distanze_[static_cast<size_t>(w) - 1][static_cast<size_t>(k)] =
                CasellaNumero(this, QStringLiteral("lblDistanza_%1_%2").arg(w).arg(k), 30);
            g->addWidget(somme_[static_cast<size_t>(w) - 1][static_cast<size_t>(k)], 1 + w, 1 + 2 * k);
            g->addWidget(distanze_[static_cast<size_t>(w) - 1][static_cast<size_t>(k)], 1 + w, 2 + 2 * k);
        }
    }
    v->addLayout(g);
    auto* h = new QHBoxLayout;
    h->addWidget(Etichetta(this, "lblVerifica", QStringLiteral("Verifica valori uguali in ---->")));
    chkRighe_ = new QCheckBox(QStringLiteral("Righe"), this);
    chkRighe_->setObjectName("chkRighe");
    chkRighe_->setToolTip(QStringLiteral("Evidenzia valori uguali nelle righe"));
    chkColonne_ = new QCheckBox(QStringLiteral("Colonne"), this);
    chkColonne_->setObjectName("chkColonne");
    chkColonne_->setToolTip(QStringLiteral("Evidenzia valori uguali nelle colonne"));
    h->addWidget(chkRighe_);
    h->addWidget(chkColonne_);
    h->addStretch();
    auto* stampa = Pulsante(this, "cmdStampa", QStringLiteral("Stampa"));
    auto* file = Pulsante(this, "cmdFile", QStringLiteral("Salva su file"));
    h->addWidget(stampa);
    h->addWidget(file);
    v->addLayout(h);
    connect(stampa, &QPushButton::clicked, this, &FrmSommeDistanze::Stampa);
    connect(file, &QPushButton::clicked, this, &FrmSommeDistanze::SalvaSuFile);

    const int analisi = std::atoi(
        config::LeggiImpostazione(sessione_.ini, config::sezioni::Settings, "AnalisiSommeDistanze", "1").c_str());
    chkRighe_->setChecked(analisi & BitRighe);
    chkColonne_->setChecked(analisi & BitColonne);
    connect(chkRighe_, &QCheckBox::toggled, this, &FrmSommeDistanze::Ridisegna);
    connect(chkColonne_, &QCheckBox::toggled, this, &FrmSommeDistanze::Ridisegna);
    ApplicaStile(this, sessione_.ini);
    RipristinaPosizione(this, sessione_.ini, "SommeDistanzeLeft", "SommeDistanzeTop");
}

void FrmSommeDistanze::Aggiorna(const archives::RecordEstrazione& estrazione) {
    estrazione_ = estrazione;
    if (grafico_) grafico_->close();
    Ridisegna();
}

void FrmSommeDistanze::Ridisegna() {
    tabella_ = consultation::CalcolaSommeDistanze(estrazione_, chkRighe_->isChecked(), chkColonne_->isChecked());
    for (size_t w = 0; w < 11; ++w)
        for (size_t k = 0; k < 10; ++k) {
            const auto& c = tabella_.celle[w][k];
            MostraCasella(somme_[w][k], QString::fromStdString(c.TestoSomma()), c.coloreSomma.sfondo,
                          c.coloreSomma.testo);
            MostraCasella(distanze_[w][k], QString::fromStdString(c.TestoDistanza()), c.coloreDistanza.sfondo,
                          c.coloreDistanza.testo);
        }
}

void FrmSommeDistanze::ApriGrafico(consultation::SerieGrafico serie) {
    if (grafico_) grafico_->close();
    grafico_ = new FrmGraficoSomme(sessione_, std::move(serie), this);
    grafico_->show();
}

FrmGraficoSomme* FrmSommeDistanze::grafico() const { return grafico_.data(); }

void FrmSommeDistanze::ApriGraficoColonna(int colonna) { ApriGrafico(consultation::SerieColonna(tabella_, colonna)); }
void FrmSommeDistanze::ApriGraficoRiga(int ruota) { ApriGrafico(consultation::SerieRiga(tabella_, ruota)); }

std::vector<config::RigaTesto> FrmSommeDistanze::Righe() const {
    std::vector<config::RigaTesto> r;
    for (auto& l : consultation::ReportSommeDistanze(tabella_)) r.push_back({std::move(l)});
    return r;
}

void FrmSommeDistanze::Stampa() {
    OpzioniStampa o;
    o.punti = 12;
    o.titolo1 = QString::fromStdString(consultation::TitoloReportSommeDistanze(tabella_));
    StampaReport(this, Righe(), o);
}

void FrmSommeDistanze::SalvaSuFile() {
    SalvaReportSuFile(this, sessione_, Righe(), QString::fromStdString(consultation::NomeFileSommeDistanze(tabella_)),
                      DomandaFile::Sovrascrivi);
}

void FrmSommeDistanze::closeEvent(QCloseEvent* e) {
    SalvaPosizione(this, sessione_.ini, "SommeDistanzeLeft", "SommeDistanzeTop");
    const int analisi = (chkRighe_->isChecked() ? BitRighe : 0) | (chkColonne_->isChecked() ? BitColonne : 0);
    config::ScriviImpostazione(sessione_.ini, config::sezioni::Settings, "AnalisiSommeDistanze",
                               std::to_string(analisi));
    if (grafico_) grafico_->close();
    e->accept();
}

}  // namespace gorgo::screens
