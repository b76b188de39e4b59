#pragma once
// frmCostruttore: the algorithm builder. The controls fill a ParametriRicerca; the search
// runs on a worker thread under the computing window; a click on a row replays that
// algorithm; the selected rows give the forecasts.

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QTreeWidget>
#include <QWidget>
#include <array>
#include <memory>

#include "builder/contesto.h"
#include "builder/copertura.h"
#include "builder/ricerca.h"
#include "builder/verifica.h"
#include "screens/common/sessione.h"

class QGridLayout;
class QGroupBox;
class QVBoxLayout;

namespace gorgo::archives {
class Archivio;
}

namespace gorgo::screens {

class FraConvergenze;
class FraLunghette;
class FrameAbbinamenti;
struct DatiCostruttore;
class Elaborazione;
class FraRicercaAutomatica;
class FrmMultiRuota;

class FrmCostruttore : public QWidget {
    Q_OBJECT
public:
    FrmCostruttore(Sessione& sessione, const archives::Archivio& archivio, QWidget* parent = nullptr);
    ~FrmCostruttore() override;

    // The parameter record as the controls set it.
    builder::ParametriRicerca Parametri() const;
    // Starts the search (cmdCalcola).
    void Calcola();
    bool InElaborazione() const;

signals:
    void ricercaTerminata();

protected:
    void closeEvent(QCloseEvent* e) override;

private:
    // The controls, frame by frame.
    void CreaControlli();
    QGroupBox* CreaFrameSpia();
    QGroupBox* CreaFramePeriodo();
    QGroupBox* CreaFrameRuote();
    QGroupBox* CreaFrameGioco();
    void CreaRisultati(QVBoxLayout* destra);
    QGridLayout* CreaComandi();
    void CollegaSvuotamento();
    void AggiornaPerTipoRicerca();
    void AggiornaPerSpia();
    void SvuotaRisultati();
    void MostraEsito(const builder::EsitoRicerca& e);
    void ClicRuota(int indice, bool gioco);
    void ApriAlgoritmo(QTreeWidgetItem* riga);
    void SelezionaInCorso();
    void Riepilogo();
    void CalcolaPrevisioni();
    void ListaSortite();
    void StampaAlgoritmi();
    void FileAlgoritmi();
    // The results in the order the list shows them now: the reports walk the current list.
    builder::EsitoRicerca EsitoComeLista() const;
    // The reduced triples for the codes: a missing file is asked for; the load's
    // outcome is told once. False when the codes cannot run.
    bool PreparaTerzine();
    void StampaVerifica();
    void FileVerifica();
    QString TestaSpia() const;
    // The frames of convergences, lunghetta and abbinamenti, and what they read of the rows.
    void CreaFrame();
    DatiCostruttore DatiPerFrame() const;
    // Coverage and the automatic search of wheels (frm_costruttore_strumenti.cpp).
    void CreaStrumenti(QGridLayout* comandi);
    void AbilitaStrumenti(bool mostraAmbate, bool mostraAmbo, bool mostraTerzine, bool mostraCodici, bool fissa);
    void Copertura(builder::TipoCopertura tipo);
    void ApriRicercaAutomatica();
    void AvviaRicercaAutomatica();
    void AggiornaRicercaAutomatica();

    Sessione& sessione_;
    std::unique_ptr<builder::ContestoCostruttore> contesto_;
    builder::EsitoRicerca esito_;
    builder::ParametriRicerca parametriEsito_;  // the parameters the shown results belong to
    builder::EsitoVerifica verifica_;           // the replay of the row clicked last
    int rigaAperta_ = -1;                       // its place in esito_.righe
    bool caricamento_ = false;                  // the boxes' own handlers do not save while they are being set
    bool elaborazione_ = false;
    bool terzineAnnunciate_ = false;  // the load of the triples has been told to the user

    std::array<QRadioButton*, 4> optSpia_{};
    std::array<QRadioButton*, 3> optTipo_{};
    QComboBox* cboNumero_ = nullptr;
    std::array<QLineEdit*, 3> txtAmbo_{};
    std::array<QRadioButton*, 2> optTipoAmbi_{};
    std::array<QRadioButton*, 2> optPosizioni_{};
    std::array<QCheckBox*, 6> chkPosizione_{};
    std::array<QRadioButton*, 2> optPeriodo_{};
    QDateEdit* DTPickerDa_ = nullptr;
    QDateEdit* DTPickerA_ = nullptr;
    QComboBox* cboSortite_ = nullptr;
    QComboBox* cboIndice_ = nullptr;
    QCheckBox* chkTuttiGliIndici_ = nullptr;
    std::array<QCheckBox*, 12> chkRuota_{};
    std::array<QCheckBox*, 12> chkRuotaG_{};
    QLineEdit* txtColpi_ = nullptr;
    QCheckBox* chkUltime_ = nullptr;
    QComboBox* cboTipoRicerca_ = nullptr;
    QCheckBox* chkPosizionale_ = nullptr;
    QWidget* fraValidita_ = nullptr;
    std::array<QCheckBox*, 6> chkPosizioneA_{};
    QWidget* fraCodici_ = nullptr;
    QWidget* fraOperazioni_ = nullptr;
    std::array<QRadioButton*, 2> optSorte_{};
    std::array<QCheckBox*, 3> chkOper_{};
    QLineEdit* txtColpiDaGiocare_ = nullptr;
    QCheckBox* chkSeleziona_ = nullptr;
    QCheckBox* chkMigliore_ = nullptr;
    QCheckBox* chkRiepilogo_ = nullptr;
    QLabel* lblDescriviRicerca_ = nullptr;
    QLabel* lblSortite_ = nullptr;
    QLabel* lblPrevisioni_ = nullptr;
    QLabel* lblCapo_ = nullptr;
    QLabel* lblDataPrevisione_ = nullptr;
    QLabel* lblDescrizioneRisultatiOttenuti_ = nullptr;
    QTreeWidget* ListaRisultati_ = nullptr;
    QTreeWidget* lstVListaUscite_ = nullptr;
    QTreeWidget* lvListaPrevisioni_ = nullptr;
    QPushButton* cmdCalcola_ = nullptr;
    std::array<QPushButton*, 3> cmdReport_{};
    QPushButton* cmdAbbinamentiAmbate_ = nullptr;
    FraConvergenze* fraConvergenze_ = nullptr;
    FraLunghette* fraLunghette_ = nullptr;
    FrameAbbinamenti* FrameAbbinamenti_ = nullptr;
    std::array<QPushButton*, 6> cmdCopertura_{};  // per ambata, 2 and 3 ambate, ambo, terzine, codes
    QPushButton* cmdRicercaAutomatica_ = nullptr;
    FraRicercaAutomatica* fraRicercaAutomatica_ = nullptr;
    QPointer<FrmMultiRuota> frmMultiRuota_;
    Elaborazione* automatica_ = nullptr;
};

}  // namespace gorgo::screens
