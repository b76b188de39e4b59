#pragma once
// frmPrecursoriTordelliGruppi: the inverse wake of precursors over the groups of the formation
// file: which elements of the ticked groups precede an ambata or an ambo on one wheel. The run
// goes on a worker thread under the computing window, and can be stopped.

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTreeWidget>
#include <QWidget>
#include <array>
#include <memory>
#include <optional>

#include "precursors/gruppi.h"
#include "screens/common/sessione.h"

class QGroupBox;

namespace gorgo::archives {
class Archivio;
}

namespace gorgo::screens {

class FrmPrecursoriTordelliGruppi : public QWidget {
    Q_OBJECT
public:
    FrmPrecursoriTordelliGruppi(Sessione& sessione, const archives::Archivio& archivio, QWidget* parent = nullptr);
    ~FrmPrecursoriTordelliGruppi() override;

    // cmdCalcola. The results come with the signal analisiTerminata.
    void Calcola();
    // CaricaLibreria: the built-in groups and those of the formation file.
    void CaricaLibreria();
    // Deletes the group of the current row from the formation file, after the question.
    void EliminaGruppo();
    bool InElaborazione() const { return elaborazione_; }
    const precursors::EsitoGruppi& Esito() const { return esito_; }

signals:
    void analisiTerminata();

protected:
    void closeEvent(QCloseEvent* e) override;

private:
    QGroupBox* CreaParametri();
    QGroupBox* CreaNumeri();
    QGroupBox* CreaGruppi();
    void PulisciRisultati();
    void AggiornaNumero(int n);
    void AggiornaSelezionate();
    void MostraElemento();
    std::optional<int32_t> Indice(QDateEdit* data, bool precedente);
    void MostraEsito(const precursors::EsitoGruppi& e, const precursors::FonteEstrazioni& fonte);
    void Stampa();
    void PrintToFile();

    Sessione& sessione_;
    const archives::Archivio& archivio_;
    bool elaborazione_ = false;
    std::shared_ptr<const std::vector<precursors::GruppoFormazioni>> libreria_;
    std::string fileLibreria_;
    bool chiediFile_ = false;  // the menu asked for another file
    precursors::EsitoGruppi esito_;
    std::optional<precursors::FonteEstrazioni> fonteEsito_;
    int successiviEsito_ = 6;
    int gruppoAperto_ = -1, elementoAperto_ = 0;

    std::array<QCheckBox*, 12> chkRuota_{};
    std::array<QCheckBox*, 91> chkNumero_{};
    QDateEdit *DTPickerDa_ = nullptr, *DTPickerA_ = nullptr, *DTPickerVerifica_ = nullptr;
    QLineEdit *txtPrecedenti_ = nullptr, *txtSuccessivi_ = nullptr, *txtPresenzeMinime_ = nullptr,
              *txtElementi_ = nullptr, *txtTag_ = nullptr;
    QComboBox *cboQuanti_ = nullptr, *cboRisultati_ = nullptr, *cboSceltaelaborazione_ = nullptr;
    QLabel *lblSelezionati_ = nullptr, *lblFormazioniSelezionate_ = nullptr, *lblDescrizioneStatistica_ = nullptr,
           *lblDescrizioneVerifica_ = nullptr, *lblNomeFormazione_ = nullptr, *lblnElemento_ = nullptr;
    // 0 "Lista precursori", 1 "Formazioni numeriche attualmente presenti", 2 the groups with tick
    // boxes, 3 "Precursori attualmente presenti".
    std::array<QTreeWidget*, 4> ListView_{};
    QGroupBox *fraTag_ = nullptr, *fraVediFormazioni_ = nullptr;
    QPlainTextEdit* txtFormazioni_ = nullptr;
    QPushButton *cmdCalcola_ = nullptr, *cmdStampa_ = nullptr, *cmdPrintToFile_ = nullptr;
    QProgressBar* ProgressBar1_ = nullptr;
};

}  // namespace gorgo::screens
