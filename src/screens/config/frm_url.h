#pragma once
// frmUrl, "Url": the address of the update server (setting Url).

#include <QDialog>

class QLineEdit;

namespace gorgo::screens {

class FrmUrl : public QDialog {
    Q_OBJECT
public:
    explicit FrmUrl(QWidget* parent = nullptr);

private:
    void Aggiorna();

    QLineEdit* txtUrl_;
};

}  // namespace gorgo::screens
