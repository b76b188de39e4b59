#pragma once
// frmEsclusioni, "Opzioni": the weekdays on which the game draws and the tips box.

#include <QDialog>
#include <array>

#include "config/restrizioni.h"

class QCheckBox;

namespace gorgo::config {
class FileIni;
}

namespace gorgo::screens {

class FrmEsclusioni : public QDialog {
    Q_OBJECT
public:
    explicit FrmEsclusioni(config::FileIni& ini, QWidget* parent = nullptr);

    config::ScelteEsclusioni Scelte() const;

private:
    void Conferma();

    config::FileIni& ini_;
    std::array<QCheckBox*, 8> chkDay_{};
    QCheckBox* chkLoadTipsAtStartup_;
};

}  // namespace gorgo::screens
