#include "screens/config/frm_url.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <string>

#include "config/impostazioni.h"
#include "config/ini.h"
#include "screens/common/messaggi.h"
#include "screens/common/stile.h"

namespace gorgo::screens {

FrmUrl::FrmUrl(config::FileIni& ini, QWidget* parent) : QDialog(parent), ini_(ini) {
    setObjectName("frmUrl");
    setWindowTitle(QStringLiteral("Url"));
    setModal(true);

    auto* principale = new QVBoxLayout(this);
    txtUrl_ = new QLineEdit(this);
    txtUrl_->setObjectName("txtUrl");
    txtUrl_->setMinimumWidth(360);
    principale->addWidget(txtUrl_);
    auto* pulsanti = new QHBoxLayout;
    auto* cmdAggiorna = new QPushButton(QStringLiteral("Aggiorna l'url"), this);
    cmdAggiorna->setObjectName("cmdAggiorna");
    auto* cmdEsci = new QPushButton(QStringLiteral("Esci"), this);
    cmdEsci->setObjectName("cmdEsci");
    pulsanti->addStretch();
    pulsanti->addWidget(cmdAggiorna);
    pulsanti->addWidget(cmdEsci);
    principale->addLayout(pulsanti);

    connect(cmdAggiorna, &QPushButton::clicked, this, &FrmUrl::Aggiorna);
    connect(cmdEsci, &QPushButton::clicked, this, &FrmUrl::reject);

    txtUrl_->setText(QString::fromStdString(config::LeggiImpostazione(
        ini_, config::sezioni::Options, "Url", config::Predefinito(config::sezioni::Options, "Url"))));
    ApplicaStile(this, ini_);
}

void FrmUrl::Aggiorna() {
    if (!txtUrl_->text().startsWith(QLatin1String("http")))
        txtUrl_->setText(QStringLiteral("http://") + txtUrl_->text());
    const std::string url = txtUrl_->text().toStdString();
    // The core holds the rule (12 characters or more) and refuses control characters.
    const archives::Messaggio errore = config::ControllaValoreImpostazione(config::sezioni::Options, "Url", url);
    if (!errore.vuoto()) {
        MostraMessaggio(this, errore);
        return;
    }
    config::ScriviImpostazione(ini_, config::sezioni::Options, "Url", url);
    accept();
}

}  // namespace gorgo::screens
