#include "screens/config/frm_esclusioni.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "screens/archives/ambiente.h"
#include "screens/config/messaggi.h"
#include "screens/config/stile.h"

namespace gorgo::schermi {

namespace {

const QString NomiGiorni[] = {QStringLiteral("Domenica"),  QStringLiteral("Lunedì"),  QStringLiteral("Martedì"),
                              QStringLiteral("Mercoledì"), QStringLiteral("Giovedì"), QStringLiteral("Venerdì"),
                              QStringLiteral("Sabato")};

}  // namespace

FrmEsclusioni::FrmEsclusioni(QWidget* parent) : QDialog(parent) {
    setObjectName("frmEsclusioni");
    setWindowTitle(QStringLiteral("Opzioni"));
    setModal(true);

    auto* principale = new QVBoxLayout(this);
    auto* giorni = new QGridLayout;
    for (int g = 1; g <= 7; ++g) {
        auto* c = new QCheckBox(NomiGiorni[g - 1], this);
        c->setObjectName(QStringLiteral("chkDay_%1").arg(g));
        giorni->addWidget(c, (g - 1) / 4, (g - 1) % 4);
        chkDay_[static_cast<std::size_t>(g)] = c;
    }
    principale->addLayout(giorni);
    chkLoadTipsAtStartup_ = new QCheckBox(QStringLiteral("&Mostra i suggerimenti all'avvio"), this);
    chkLoadTipsAtStartup_->setObjectName("chkLoadTipsAtStartup");
    principale->addWidget(chkLoadTipsAtStartup_);

    auto* pulsanti = new QHBoxLayout;
    auto* cmdOk = new QPushButton(QStringLiteral("Ok"), this);
    cmdOk->setObjectName("cmdOk");
    auto* cmdAnnulla = new QPushButton(QStringLiteral("Annulla"), this);
    cmdAnnulla->setObjectName("cmdAnnulla");
    pulsanti->addStretch();
    pulsanti->addWidget(cmdOk);
    pulsanti->addWidget(cmdAnnulla);
    principale->addLayout(pulsanti);

    connect(cmdOk, &QPushButton::clicked, this, &FrmEsclusioni::Conferma);
    connect(cmdAnnulla, &QPushButton::clicked, this, &FrmEsclusioni::reject);

    const auto s = config::CaricaGiorniEstrazione(Ambiente().ini);
    for (std::size_t g = 1; g <= 7; ++g) chkDay_[g]->setChecked(s.chkDay[g]);
    chkLoadTipsAtStartup_->setChecked(s.chkLoadTipsAtStartup);
    ApplicaStile(this, Ambiente().ini);
}

config::ScelteEsclusioni FrmEsclusioni::Scelte() const {
    config::ScelteEsclusioni s;
    for (std::size_t g = 1; g <= 7; ++g) s.chkDay[g] = chkDay_[g]->isChecked();
    s.chkLoadTipsAtStartup = chkLoadTipsAtStartup_->isChecked();
    return s;
}

void FrmEsclusioni::Conferma() {
    const Messaggio errore = config::SalvaGiorniEstrazione(Ambiente().ini, Scelte());
    if (!errore.vuoto()) {
        MostraMessaggio(this, errore);
        return;
    }
    accept();
}

}  // namespace gorgo::schermi
