#pragma once
// frmConsultaEstrazioni: the reading desk. The controls set the state of the consultation
// cursor; every move ends in one refresh that shows the grid the cursor gives, runs the
// family in force, rewrites the sums and distances table and the tallies of the finds.

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QTreeWidget>
#include <QWidget>
#include <array>
#include <map>
#include <memory>

#include "config/report_testo.h"
#include "consultation/consultazione.h"
#include "screens/common/sessione.h"

class QAction;
class QVBoxLayout;

namespace gorgo::archives {
class Archivio;
}

namespace gorgo::screens {

class FrmAnalisi;
class FrmSommeDistanze;

class FrmConsultaEstrazioni : public QWidget {
    Q_OBJECT
public:
    FrmConsultaEstrazioni(Sessione& sessione, const archives::Archivio& archivio, QWidget* parent = nullptr);
    ~FrmConsultaEstrazioni() override;

    consultation::Consultazione& cursore() { return *cursore_; }
    // AggiornaConsultazione: the one refresh every move ends in.
    void AggiornaConsultazione();
    FrmAnalisi* analisi() const;
    FrmSommeDistanze* sommeDistanze() const;
    void ApriSommeDistanze();
    bool Compatta() const { return compatta_; }
    // The grid as printed: heading and rows, marked cells between brackets.
    std::vector<config::RigaTesto> RigheStampa() const;

protected:
    void closeEvent(QCloseEvent* e) override;
    void keyPressEvent(QKeyEvent* e) override;
    void showEvent(QShowEvent* e) override;

private:
    void CreaControlli();
    QWidget* CreaGriglia();
    QWidget* CreaMovimenti();
    QWidget* CreaVisualizzazione();
    QWidget* CreaFamiglie();
    QWidget* CreaTrovaNumeri();
    QWidget* CreaTrovaSomme(bool somme);
    void CreaMenu(QVBoxLayout* v);

    void Muovi(void (consultation::Consultazione::*mossa)());
    void ScegliRuota(int ruota);
    void ScegliVista(int vista);
    void CambiaPeriodo();
    void ScegliFamiglia(int codice);
    void ScegliCifra(int cifra);
    void Annulla();
    void ConfermaData(QDateEdit* picker);
    void AbilitaPerVistaERuota();
    void Ridimensiona();
    void Stampa();
    void MostraTotali();
    bool LeggiValore(QLineEdit* t, int minimo, int massimo, const char* messaggio, int& valore);

    Sessione& sessione_;
    std::unique_ptr<consultation::Consultazione> cursore_;
    bool InAggiornamento = false;
    bool compatta_ = false;

    std::array<QLabel*, consultation::NumeroCelle> txtEstratto_{};
    std::array<QLabel*, 11> lblNomeRuota_{};
    std::array<QLabel*, 10> lblData_{};
    QLabel *lblindiceMese_ = nullptr, *lblNumeroAnnoEstraz_ = nullptr, *lblAnnoEstrazione_ = nullptr,
           *lblGiornoEstraz_ = nullptr, *lblTotaleEstrazioni_ = nullptr, *lblSorMedia_ = nullptr,
           *lblVisualizzazione_ = nullptr, *lblDescrFamiglia_ = nullptr, *lblNFamiglia_ = nullptr;
    QSlider* Slider1_ = nullptr;
    QComboBox* cboSalto_ = nullptr;
    QDateEdit *DTPicker1_ = nullptr, *DTPicker2_ = nullptr;
    std::array<QRadioButton*, 3> optTipoVis_{};
    std::array<QRadioButton*, 4> optPeriodo_{};
    QLineEdit *txtNumeroEstrazioni_ = nullptr, *txtCicli_ = nullptr;
    QCheckBox *chkConsideraAttuale_ = nullptr, *chkOrdin_ = nullptr;
    std::array<QPushButton*, 12> cmdRuota_{};
    std::map<int, QPushButton*> famiglie_;
    std::array<QPushButton*, 10> cmdNumero_{};
    QLineEdit *txtSomma_ = nullptr, *txtDistanza_ = nullptr, *txtRitardo_ = nullptr;
    QCheckBox *chkIsotopi_ = nullptr, *chkF90_ = nullptr, *chlIsotopiDistanza_ = nullptr,
              *chkNumeriAmbiIsotopi_ = nullptr;
    QWidget *fraFamiglie_ = nullptr, *fraPeriodo_ = nullptr, *fraComandi_ = nullptr, *fraComandiSmall_ = nullptr,
            *fraDestra_ = nullptr;
    QGroupBox *fraTrovaNumeri_ = nullptr, *fraTrovaSomme_ = nullptr, *fraTrovaDistanze_ = nullptr;
    QGroupBox *fraRiepilogoNumeri_ = nullptr, *fraRiepilogoSomme_ = nullptr, *fraRiepilogoDistanze_ = nullptr;
    std::array<QCheckBox*, 91> chkNumero_{};
    QTreeWidget* ListViewNumeri_ = nullptr;
    std::array<QLineEdit*, 6> txtSommaTot_{}, txtDistanzaTot_{};
    std::array<QLabel*, 6> lblTotaleSomma_{}, lblTotaleDistanza_{}, txtRiepilogoSomma_{}, txtRiepilogoDistanza_{};
    QCheckBox* chkTrovaF90_ = nullptr;
    QAction* mnuVisualizzaRiepilogo_ = nullptr;

    QPointer<FrmAnalisi> analisi_;
    QPointer<FrmSommeDistanze> sommeDistanze_;
};

}  // namespace gorgo::screens
