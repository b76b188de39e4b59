#pragma once
// frmStampaEstrazioni and its twins for SuperEnalotto and 10eLotto: a stretch of the
// archive on paper, in a preview or in a PDF file, through the printing service.

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QWidget>

#include "maintenance/stampa_estrazioni.h"
#include "screens/common/sessione.h"
#include "screens/common/stampa.h"

namespace gorgo::screens {

class FrmStampaEstrazioni : public QWidget {
    Q_OBJECT
public:
    enum class Gioco { Lotto, SuperEnalotto, DieciELotto };

    FrmStampaEstrazioni(Sessione& sessione, const archives::Archivio& archivio, QWidget* parent = nullptr)
        : FrmStampaEstrazioni(sessione, archivio, parent, Gioco::Lotto) {}

    maintenance::ParametriStampaEstrazioni Parametri() const;
    // cmdStampa's checks and pages: a refusal is shown here and leaves no pages; the date
    // boxes take the dates of the draws found.
    maintenance::StampaComposta Componi();
    // The pages to the print dialog or the preview; false when refused or cancelled.
    bool Stampa(DestinazioneStampa destinazione);
    // The pages in a PDF file, no dialog; false when refused or not written.
    bool EsportaPdf(const QString& file);
    static OpzioniStampa Opzioni(const maintenance::StampaComposta& s);

protected:
    FrmStampaEstrazioni(Sessione& sessione, const archives::Archivio& archivio, QWidget* parent, Gioco gioco);
    void changeEvent(QEvent* e) override;
    void showEvent(QShowEvent* e) override;

private:
    void CreaControlli();
    void ScegliPdf();

    Sessione& sessione_;
    const archives::Archivio& archivio_;
    Gioco gioco_;
    bool centrata_ = false;
    QDateEdit *DTPickerDa_ = nullptr, *DTPickerA_ = nullptr;
    QLineEdit *txtDataInizio_ = nullptr, *txtDataFine_ = nullptr;
    QComboBox *cboRuota_ = nullptr, *cboMesi_ = nullptr, *cboGiorno_ = nullptr, *cboMesi1_ = nullptr;
    QCheckBox *chkMeseDi_ = nullptr, *chkData_ = nullptr, *chkDettagliata_ = nullptr;
    QListWidget* lstOrdin_ = nullptr;
    QPushButton *cmdStampa_ = nullptr, *cmdAnteprima_ = nullptr, *cmdPdf_ = nullptr, *cmdHelp_ = nullptr,
                *cmdEsci_ = nullptr;
};

class FrmStampaEstrazioniSuperEnalotto : public FrmStampaEstrazioni {
    Q_OBJECT
public:
    FrmStampaEstrazioniSuperEnalotto(Sessione& sessione, const archives::Archivio& archivio, QWidget* parent = nullptr)
        : FrmStampaEstrazioni(sessione, archivio, parent, Gioco::SuperEnalotto) {}
};

class FrmStampaEstrazioni10eLotto : public FrmStampaEstrazioni {
    Q_OBJECT
public:
    FrmStampaEstrazioni10eLotto(Sessione& sessione, const archives::Archivio& archivio, QWidget* parent = nullptr)
        : FrmStampaEstrazioni(sessione, archivio, parent, Gioco::DieciELotto) {}
};

}  // namespace gorgo::screens
