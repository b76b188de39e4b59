#include "screens/maintenance/frm_esportazione.h"

#include <QFileInfo>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "archives/regole.h"
#include "config/ini.h"
#include "maintenance/aggiornamento.h"
#include "screens/common/aiuto.h"
#include "screens/common/messaggi.h"
#include "screens/common/scelta_file.h"
#include "screens/common/stile.h"
#include "screens/maintenance/riquadro_ultima.h"

namespace gorgo::screens {

namespace {}  // namespace

FrmEsportazione::FrmEsportazione(Sessione& sessione, const archives::Archivio& archivio, QWidget* parent)
    : QDialog(parent), sessione_(sessione), archivio_(archivio) {
    setObjectName("frmEsportazione");
    setWindowTitle(QStringLiteral("Esportazione archivio lotto"));
    setAttribute(Qt::WA_DeleteOnClose);

    auto* principale = new QVBoxLayout(this);
    const RiquadroUltima ultima = CreaRiquadroUltima(this, "fraEsporta", QStringLiteral("Esporta aggiornamento al :"),
                                                     QStringLiteral("Data di esportazione degli archivi"));
    lblNumero_ = ultima.lblNumero;
    lblAnno_ = ultima.lblAnno;
    lblUltima_ = ultima.lblUltima;
    principale->addWidget(ultima.riquadro);

    // The first draw to export: by default the system's fixed start.
    auto* da = new QHBoxLayout;
    da->addWidget(new QLabel(QStringLiteral("Esporta dalla data :"), this));
    txtDataInizio_ = new QLineEdit(this);
    txtDataInizio_->setObjectName("txtDataInizio");
    txtDataInizio_->setMaxLength(10);
    txtDataInizio_->setToolTip(QStringLiteral("Prima estrazione del file (GG/MM/AAAA); vuoto: dall'estrazione n. %1")
                                   .arg(maintenance::PrimaEsportata));
    da->addWidget(txtDataInizio_);
    da->addStretch();
    principale->addLayout(da);

    auto* pulsanti = new QHBoxLayout;
    auto* cmdEsporta = new QPushButton(QStringLiteral("Esporta"), this);
    cmdEsporta->setObjectName("cmdEsporta");
    cmdEsporta->setToolTip(QStringLiteral("Salva il file delle estrazioni"));
    auto* cmdHelp = new QPushButton(QStringLiteral("Aiuto"), this);
    cmdHelp->setObjectName("cmdHelp");
    auto* cmdEsci = new QPushButton(QStringLiteral("Esci"), this);
    cmdEsci->setObjectName("cmdEsci");
    pulsanti->addWidget(cmdEsporta);
    pulsanti->addStretch();
    pulsanti->addWidget(cmdHelp);
    pulsanti->addWidget(cmdEsci);
    principale->addLayout(pulsanti);

    connect(cmdEsporta, &QPushButton::clicked, this, &FrmEsportazione::Esporta);
    connect(cmdHelp, &QPushButton::clicked, this, [this] { HelpContext(this, sessione_.ini, AiutoEsportazione); });
    connect(cmdEsci, &QPushButton::clicked, this, &FrmEsportazione::close);

    if (const archives::Archivio& a = archivio_; a.NumeroEstrazioni() > 0) {
        const archives::RecordEstrazione r = a.LeggiEstrazione(a.NumeroEstrazioni());
        lblNumero_->setText(QString::number(r.NumeroAnno));
        lblAnno_->setText(QString::fromStdString(r.dataTesto().substr(6)));
        lblUltima_->setText(QString::fromStdString(r.dataTesto()));
        if (a.NumeroEstrazioni() >= maintenance::PrimaEsportata)
            txtDataInizio_->setText(QString::fromStdString(a.DataEstrazione(maintenance::PrimaEsportata)));
    }
    ApplicaStile(this, sessione_.ini);
}

void FrmEsportazione::Esporta() {
    const archives::Archivio& a = archivio_;
    int32_t primo = maintenance::PrimaEsportata;
    const QString da = txtDataInizio_->text().trimmed();
    if (!da.isEmpty()) {
        const archives::RisultatoData r = archives::ControllaData(da.toStdString(), a, false);
        if (r.ErroreData) {
            MostraMessaggio(this, r.messaggio);
            return;
        }
        primo = r.IndiceTrovato;
    }
    QString scelto = ScegliFileManutenzione
                         ? ScegliFileManutenzione(this, ModoSceltaFile::Salva, QStringLiteral("Salva"),
                                                  QStringLiteral("File aggiornamento Gorgo (*.bin)|*.bin|"
                                                                 "File aggiornamento Gorgo (*.alb)|*.alb"),
                                                  QString::fromStdString(sessione_.PercorsoProgramma.string()))
                         : QString();
    if (scelto.isEmpty()) return;
    if (QFileInfo(scelto).suffix().isEmpty()) scelto += QStringLiteral(".bin");
    try {
        const auto e = maintenance::EsportaAggiornamento(a, scelto.toStdString(), primo);
        MostraMessaggio(this, e.messaggio);
        if (!e.riuscito) return;
    } catch (const archives::ErroreArchivio& errore) {
        MostraMessaggio(this, archives::Messaggio{errore.what(), "Errore", archives::Icona::Stop});
        return;
    }
    close();
}

}  // namespace gorgo::screens
