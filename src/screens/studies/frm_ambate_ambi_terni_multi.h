#pragma once
// frmAmbateAmbiTerniMulti, "Ambate - Ambi - Terni Multiruota": the formations of a cinquina
// and the wheels on which they came again after their past occurrences.

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTreeWidget>
#include <QWidget>
#include <array>

#include "archives/archivio.h"
#include "screens/common/sessione.h"
#include "studies/multiruota.h"

namespace gorgo::screens {

class FrmAmbateAmbiTerniMulti : public QWidget {
    Q_OBJECT
public:
    FrmAmbateAmbiTerniMulti(Sessione& sessione, const archives::Archivio& archivio, QWidget* parent = nullptr);

    void Calcola();                   // cmdCalcola
    void Dettaglio(int formazione);   // a click on a row of ListView1
    void NonSfaldate();               // cmdNonSfaldate
    void MostraBase(int32_t indice);  // moves Base and rebuilds the formations

protected:
    void closeEvent(QCloseEvent* e) override;

private:
    void CreaControlli();
    studies::ParametriMultiruota Parametri() const;
    void Report(bool stampa);

    Sessione& sessione_;
    const archives::Archivio& archivio_;
    archives::StoriaCondivisa storia_;
    int ruota_ = 1;
    int32_t base_ = 1;
    studies::ParametriMultiruota parametri_;
    studies::EsitoMultiruota esito_;
    std::array<QCheckBox*, 12> chkRuota_{};
    QDateEdit *DTPickerA_, *DTPickerAl_;
    QComboBox* cboTipoRicerca_;
    QLineEdit *txtVolte_, *txtEstrazioni_;
    std::array<QRadioButton*, 2> optCalcolo_{};
    QLabel *lblNumero_, *lblFormazione_, *lblRuotaMigliore_;
    QTreeWidget *ListView1_, *ListViewNumeri_;
};

}  // namespace gorgo::screens
