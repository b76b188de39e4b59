#pragma once
// frmEsportazione: the Lotto draws from a date to the end written as an update file.

#include <QDialog>

class QLabel;
class QLineEdit;

namespace gorgo::screens {

class FrmEsportazione : public QDialog {
    Q_OBJECT
public:
    explicit FrmEsportazione(QWidget* parent = nullptr);

private:
    void Esporta();

    QLabel *lblNumero_, *lblAnno_, *lblUltima_;
    QLineEdit* txtDataInizio_;
};

}  // namespace gorgo::screens
