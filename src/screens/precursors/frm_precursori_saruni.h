#pragma once
// frmPrecursoriSaruni: the classic window with the period in years, the positions of the
// precursors, pairs as precursors, and the forecast panel of a chosen number or pair.

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QTreeWidget>
#include <array>

#include "screens/precursors/frm_precursori_tordelli.h"

namespace gorgo::screens {

class FrmPrecursoriSaruni : public FrmPrecursoriTordelli {
    Q_OBJECT
public:
    FrmPrecursoriSaruni(Sessione& sessione, const archives::Archivio& archivio, QWidget* parent = nullptr);
    // cmdPrevisione.
    void Previsione();

protected:
    bool PreparaPeriodo() override;
    Procedura ProceduraPersonale(const precursors::ParametriPrecursori& p) override;

private:
    std::array<QRadioButton*, 2> optPeriodo_{};
    QLineEdit* txtAnni_ = nullptr;
    QComboBox* cboSceltaTipoPrecursori_ = nullptr;
    QCheckBox *chkPosDet_ = nullptr, *chkAmbiAdiacenti_ = nullptr;
    std::array<QCheckBox*, 6> chkPosizione_{};
    std::array<QLineEdit*, 3> txtNum_{};
    QLabel* lblDescrizioneNumeri_ = nullptr;
    QTreeWidget* lstPrevisioni_ = nullptr;
};

}  // namespace gorgo::screens
