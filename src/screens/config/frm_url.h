#pragma once
// frmUrl, "Url": the address of the update server (setting Url).

#include <QDialog>

class QLineEdit;

namespace gorgo::config {
class FileIni;
}

namespace gorgo::screens {

class FrmUrl : public QDialog {
    Q_OBJECT
public:
    explicit FrmUrl(config::FileIni& ini, QWidget* parent = nullptr);

private:
    void Aggiorna();

    config::FileIni& ini_;
    QLineEdit* txtUrl_;
};

}  // namespace gorgo::screens
