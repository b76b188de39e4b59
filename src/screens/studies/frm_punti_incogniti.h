#pragma once
// frmPuntiIncogniti, "I punti incogniti": the series of a wheel's cinquina, its check on the
// following draws, the historic check and the summary of all wheels.

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTreeWidget>
#include <QWidget>
#include <array>

#include "archives/archivio.h"
#include "screens/common/sessione.h"
#include "studies/punti_incogniti.h"

namespace gorgo::screens {

class FrmPuntiIncogniti : public QWidget {
    Q_OBJECT
public:
    FrmPuntiIncogniti(Sessione& sessione, const archives::Archivio& archivio, QWidget* parent = nullptr);

    void MostraEstrazione(int32_t indice);
    void Calcola();       // cmdCalcola
    void CalcolaTutte();  // cmdCalcolaTutte
    int32_t IndiceCorrente() const { return indice_; }

signals:
    void riepilogoTerminato();

protected:
    void closeEvent(QCloseEvent* e) override;

private:
    void CreaControlli();
    void ScegliRuota(int w);
    void OkData();
    bool Parametri(studies::ParametriVerifica& p);
    void Report(int indice, bool stampa);

    Sessione& sessione_;
    const archives::Archivio& archivio_;
    archives::StoriaCondivisa storia_;
    int ruota_ = 1;
    int32_t indice_ = 1;
    bool RiepilogoInCorso_ = false;
    std::string tag_;
    studies::EsitoColpi colpi_;
    studies::EsitoStorica storica_;
    studies::ParametriVerifica parametriStorica_;
    std::array<QCheckBox*, 12> chkRuota_{};
    std::array<QLabel*, 6> lblEstrazione_{}, lblRisultato_{};
    QLabel *lblSommaEstrazione_, *lblSommaIgnotaPreCalcolo_, *lblSommaIgnota_, *lblProiezione_, *lblDescrizione_;
    QDateEdit *DTPickerA_, *DTPickerDa_;
    QComboBox* cboSorte_;
    QLineEdit* txtNumeroVolte_;
    std::array<QRadioButton*, 2> optVerificaTutte_{};
    QTreeWidget *ListViewNumeri_, *ListViewStorico_, *ListViewRiepilogo_;
    QProgressBar* ProgressBar1_;
};

}  // namespace gorgo::screens
