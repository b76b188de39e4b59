#include "screens/config/frm_opzioni.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>
#include <cmath>
#include <string>

#include "config/impostazioni.h"
#include "config/ini.h"
#include "screens/common/aiuto.h"
#include "screens/common/caselle.h"
#include "screens/common/messaggi.h"
#include "screens/common/stile.h"
#include "screens/common/twips.h"

namespace gorgo::screens {

namespace {

constexpr std::string_view Schermo = "frmOpzioni";

}  // namespace

FrmOpzioni::FrmOpzioni(config::FileIni& ini, QWidget* parent) : QDialog(parent), ini_(ini) {
    setObjectName(QString::fromLatin1(Schermo.data(), static_cast<qsizetype>(Schermo.size())));
    setWindowTitle(QStringLiteral("Restrizioni di ricerca"));
    setModal(true);

    auto* principale = new QVBoxLayout(this);

    chkGiorni_ = new QCheckBox(QStringLiteral("Considera solo estrazioni\navvenute nei seguenti giorni:"), this);
    chkGiorni_->setObjectName("chkGiorni");
    chkGiorni_->setToolTip(
        QStringLiteral("Inserisce un periodo di indagine limitato ai giorni della settimana indicati"));
    principale->addWidget(chkGiorni_);
    principale->addLayout(CreaCaselle<QCheckBox>(this, new QGridLayout, {.perRiga = 4}, QStringLiteral("chkDay"), 1,
                                                 NomiGiorniCaselle(), std::span(chkDay_).subspan(1)));

    chkMesi_ = new QCheckBox(QStringLiteral("Considera solo estrazioni\navvenute nei seguenti mesi:"), this);
    chkMesi_->setObjectName("chkMesi");
    chkMesi_->setToolTip(QStringLiteral("Inserisce un periodo di indagine limitato ai mesi indicati"));
    principale->addWidget(chkMesi_);
    principale->addLayout(CreaCaselle<QCheckBox>(this, new QGridLayout, {.perRiga = 4}, QStringLiteral("chkMese"), 1,
                                                 NomiMesiCaselle(), std::span(chkMese_).subspan(1)));

    chkPeriodo_ = new QCheckBox(QStringLiteral("Considera solo estrazioni avvenute nel seguente periodo:"), this);
    chkPeriodo_->setObjectName("chkPeriodo");
    chkPeriodo_->setToolTip(QStringLiteral("Inserisce un periodo di indagine limitato tra le date indicate"));
    principale->addWidget(chkPeriodo_);
    auto* periodo = new QHBoxLayout;
    const QString etichette[2] = {QStringLiteral("Tra il"), QStringLiteral("e il")};
    const char* nomiEtichette[2] = {"lblTraIl", "lblEIl"};
    for (std::size_t i = 0; i < 2; ++i) {
        auto* l = new QLabel(etichette[i], this);
        l->setObjectName(nomiEtichette[i]);
        periodo->addWidget(l);
        cboGiorno_[i] = new QComboBox(this);
        cboGiorno_[i]->setObjectName(QStringLiteral("cboGiorno_%1").arg(i));
        for (int g = 1; g <= 31; ++g) cboGiorno_[i]->addItem(QString::number(g));
        periodo->addWidget(cboGiorno_[i]);
        cboMese_[i] = new QComboBox(this);
        cboMese_[i]->setObjectName(QStringLiteral("cboMese_%1").arg(i));
        cboMese_[i]->addItems(NomiMesiCaselle());
        periodo->addWidget(cboMese_[i]);
    }
    periodo->addStretch();
    principale->addLayout(periodo);

    auto* pulsanti = new QHBoxLayout;
    auto* cmdOk = new QPushButton(QStringLiteral("Ok"), this);
    cmdOk->setObjectName("cmdOk");
    auto* cmdAnnulla = new QPushButton(QStringLiteral("Annulla"), this);
    cmdAnnulla->setObjectName("cmdAnnulla");
    auto* cmdHelp = new QPushButton(QStringLiteral("Aiuto"), this);
    cmdHelp->setObjectName("cmdHelp");
    pulsanti->addStretch();
    pulsanti->addWidget(cmdOk);
    pulsanti->addWidget(cmdAnnulla);
    pulsanti->addWidget(cmdHelp);
    principale->addLayout(pulsanti);

    connect(chkGiorni_, &QCheckBox::toggled, this, &FrmOpzioni::AggiornaGruppi);
    connect(chkMesi_, &QCheckBox::toggled, this, &FrmOpzioni::AggiornaGruppi);
    connect(chkPeriodo_, &QCheckBox::toggled, this, &FrmOpzioni::AggiornaGruppi);
    connect(cmdOk, &QPushButton::clicked, this, &FrmOpzioni::Conferma);
    connect(cmdAnnulla, &QPushButton::clicked, this, &FrmOpzioni::reject);
    connect(cmdHelp, &QPushButton::clicked, this, [this] { HelpContext(this, ini_, AiutoOpzioni); });

    Carica(config::CaricaScelteRestrizioni(ini_));
    ApplicaStile(this, ini_);

    RipristinaPosizione(this, ini_, "OpzioniLeft", "OpzioniTop");
}

config::ScelteRestrizioni FrmOpzioni::Scelte() const {
    config::ScelteRestrizioni s;
    s.chkGiorni = chkGiorni_->isChecked();
    s.chkMesi = chkMesi_->isChecked();
    s.chkPeriodo = chkPeriodo_->isChecked();
    for (std::size_t g = 1; g <= 7; ++g) s.chkDay[g] = chkDay_[g]->isChecked();
    for (std::size_t m = 1; m <= 12; ++m) s.chkMese[m] = chkMese_[m]->isChecked();
    for (std::size_t i = 0; i < 2; ++i) {
        s.cboGiorno[i] = cboGiorno_[i]->currentIndex() + 1;
        s.cboMese[i] = cboMese_[i]->currentIndex() + 1;
    }
    return s;
}

void FrmOpzioni::Carica(const config::ScelteRestrizioni& s) {
    chkGiorni_->setChecked(s.chkGiorni);
    chkMesi_->setChecked(s.chkMesi);
    chkPeriodo_->setChecked(s.chkPeriodo);
    for (std::size_t g = 1; g <= 7; ++g) chkDay_[g]->setChecked(s.chkDay[g]);
    for (std::size_t m = 1; m <= 12; ++m) chkMese_[m]->setChecked(s.chkMese[m]);
    for (std::size_t i = 0; i < 2; ++i) {
        cboGiorno_[i]->setCurrentIndex(s.cboGiorno[i] - 1);
        cboMese_[i]->setCurrentIndex(s.cboMese[i] - 1);
    }
    AggiornaGruppi();
}

void FrmOpzioni::AggiornaGruppi() {
    for (std::size_t g = 1; g <= 7; ++g) chkDay_[g]->setEnabled(chkGiorni_->isChecked());
    for (std::size_t m = 1; m <= 12; ++m) chkMese_[m]->setEnabled(chkMesi_->isChecked());
    for (std::size_t i = 0; i < 2; ++i) {
        cboGiorno_[i]->setEnabled(chkPeriodo_->isChecked());
        cboMese_[i]->setEnabled(chkPeriodo_->isChecked());
    }
}

void FrmOpzioni::Conferma() {
    const auto esito = config::SalvaRestrizioni(ini_, Scelte());
    for (std::size_t i = 0; i < 2; ++i)
        if (esito.cboGiorno[i] >= 1 && esito.cboGiorno[i] <= 31) cboGiorno_[i]->setCurrentIndex(esito.cboGiorno[i] - 1);
    if (!esito.errore.vuoto()) {
        MostraMessaggio(this, esito.errore);
        return;
    }
    emit restrizioniCambiate();
    accept();
}

void FrmOpzioni::done(int risultato) {
    SalvaPosizione(this, ini_, "OpzioniLeft", "OpzioniTop");
    QDialog::done(risultato);
}

}  // namespace gorgo::screens
