#include "screens/config/frm_esclusioni.h"

#include "screens/common/caselle.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "config/ini.h"
#include "screens/common/messaggi.h"
#include "screens/common/stile.h"

namespace gorgo::screens {

namespace {}  // namespace

FrmEsclusioni::FrmEsclusioni(config::FileIni& ini, QWidget* parent) : QDialog(parent), ini_(ini) {
    setObjectName("frmEsclusioni");
    setWindowTitle(QStringLiteral("Opzioni"));
    setModal(true);

    auto* principale = new QVBoxLayout(this);
    principale->addLayout(CreaCaselle<QCheckBox>(this, new QGridLayout, {.perRiga = 4}, QStringLiteral("chkDay"), 1,
                                                 NomiGiorniCaselle(), std::span(chkDay_).subspan(1)));
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

    const auto s = config::CaricaGiorniEstrazione(ini_);
    for (std::size_t g = 1; g <= 7; ++g) chkDay_[g]->setChecked(s.chkDay[g]);
    chkLoadTipsAtStartup_->setChecked(s.chkLoadTipsAtStartup);
    ApplicaStile(this, ini_);
}

config::ScelteEsclusioni FrmEsclusioni::Scelte() const {
    config::ScelteEsclusioni s;
    for (std::size_t g = 1; g <= 7; ++g) s.chkDay[g] = chkDay_[g]->isChecked();
    s.chkLoadTipsAtStartup = chkLoadTipsAtStartup_->isChecked();
    return s;
}

void FrmEsclusioni::Conferma() {
    const archives::Messaggio errore = config::SalvaGiorniEstrazione(ini_, Scelte());
    if (!errore.vuoto()) {
        MostraMessaggio(this, errore);
        return;
    }
    accept();
}

}  // namespace gorgo::screens
