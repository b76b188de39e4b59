#pragma once
// frmPrecursoriTordelli: the inverse wake of precursors on one Lotto wheel; the same window,
// with another source of draws, serves the SuperEnalotto and the 10eLotto (their thin
// subclasses below). The controls fill a ParametriPrecursori; the run goes on a worker
// thread under the computing window.

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTreeWidget>
#include <QWidget>
#include <array>
#include <functional>
#include <optional>

#include "precursors/analisi.h"
#include "screens/common/sessione.h"

class QGroupBox;
class QVBoxLayout;

namespace gorgo::archives {
class Archivio;
}

namespace gorgo::screens {

class FrmPrecursoriTordelli : public QWidget {
    Q_OBJECT
public:
    FrmPrecursoriTordelli(Sessione& sessione, const archives::Archivio& archivio, QWidget* parent = nullptr);
    ~FrmPrecursoriTordelli() override;

    // cmdCalcola. The results come with the signal analisiTerminata.
    void Calcola();
    bool InElaborazione() const { return elaborazione_; }
    const precursors::EsitoPrecursori& Esito() const { return esito_; }

signals:
    void analisiTerminata();

protected:
    FrmPrecursoriTordelli(Sessione& sessione, const archives::Archivio& archivio, precursors::Gioco gioco,
                          const char* nome, const QString& caption, const char* chiaveLeft, const char* chiaveTop,
                          QWidget* parent);
    void closeEvent(QCloseEvent* e) override;

    // Hooks of the personalised screen: the period before the dates are read (false stops the
    // run), and the procedure to run instead of the classic one (empty: the classic one).
    using Procedura =
        std::function<precursors::EsitoPrecursori(const precursors::FonteEstrazioni&, const precursors::Avanzamento&)>;
    virtual bool PreparaPeriodo() { return true; }
    virtual Procedura ProceduraPersonale(const precursors::ParametriPrecursori&) { return {}; }
    // The left column of controls, and the frame of formations (hidden where there are none).
    QVBoxLayout* sinistra_ = nullptr;
    QGroupBox* fraFormazioni_ = nullptr;
    precursors::FonteEstrazioni Fonte() const;
    std::optional<int32_t> Indice(QDateEdit* data, bool precedente);
    void PulisciRisultati();
    Sessione& sessione_;
    const archives::Archivio& archivio_;
    QDateEdit *DTPickerDa_ = nullptr, *DTPickerA_ = nullptr, *DTPickerVerifica_ = nullptr;
    std::array<QTreeWidget*, 2> ListView_{};

private:
    void CreaControlli();
    QGroupBox* CreaParametri();
    QGroupBox* CreaNumeri();
    QGroupBox* CreaFormazioni();
    void Avvia(const precursors::ParametriPrecursori& p, bool formazioni, bool confermato);
    void AggiornaNumero(int n);
    void ClicRuota(int ruota);
    void Valida();
    void SalvaFormazioni();
    void Stampa();
    void PrintToFile();
    void MostraEsito(const precursors::EsitoPrecursori& e, const precursors::FonteEstrazioni& fonte);
    int32_t NumeroEstrazioni() const;
    std::string DataEstrazione(int32_t indice) const;

    precursors::Gioco gioco_;
    const char* chiaveLeft_;
    const char* chiaveTop_;
    bool elaborazione_ = false;
    precursors::EsitoPrecursori esito_;
    std::optional<precursors::FonteEstrazioni> fonteEsito_;
    precursors::Formazioni formazioni_;
    std::vector<std::string> righeFormazioni_;

    std::array<QCheckBox*, 12> chkRuota_{};
    std::array<QCheckBox*, 91> chkNumero_{};
    QLineEdit *txtPrecedenti_ = nullptr, *txtPrecursori_ = nullptr, *txtSuccessivi_ = nullptr;
    QLineEdit *txtPresenze_ = nullptr, *txtNumeriInFormazione_ = nullptr;
    QComboBox* cboSceltaelaborazione_ = nullptr;
    std::array<QRadioButton*, 2> optOrdinamento_{};
    QCheckBox *chkInserimentoManuale_ = nullptr, *chkTerzineIntegrali_ = nullptr, *chkVerifica_ = nullptr;
    QGroupBox *FrameGruppi_ = nullptr, *frameMinimi_ = nullptr;
    QPlainTextEdit* txtGruppi_ = nullptr;
    QLabel *lblSelezionati_ = nullptr, *lblDescrizioneStatistica_ = nullptr, *lblDescrizioneVerifica_ = nullptr;
    QPushButton *cmdCalcola_ = nullptr, *cmdStampa_ = nullptr, *cmdPrintToFile_ = nullptr;
    QProgressBar* ProgressBar1_ = nullptr;
};

class FrmPrecursoriTordelliSuper : public FrmPrecursoriTordelli {
    Q_OBJECT
public:
    FrmPrecursoriTordelliSuper(Sessione& sessione, const archives::Archivio& archivio, QWidget* parent = nullptr);
};

class FrmPrecursoriTordelli10eLotto : public FrmPrecursoriTordelli {
    Q_OBJECT
public:
    FrmPrecursoriTordelli10eLotto(Sessione& sessione, const archives::Archivio& archivio, QWidget* parent = nullptr);
};

}  // namespace gorgo::screens
