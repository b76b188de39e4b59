#pragma once
// frmEsportazione: the Lotto draws from a date to the end written as an update file.

#include <QDialog>

#include "screens/common/sessione.h"

class QLabel;
class QLineEdit;

namespace gorgo::archives {
class Archivio;
}

namespace gorgo::screens {

class FrmEsportazione : public QDialog {
    Q_OBJECT
public:
    FrmEsportazione(Sessione& sessione, const archives::Archivio& archivio, QWidget* parent = nullptr);

private:
    void Esporta();

    Sessione& sessione_;
    const archives::Archivio& archivio_;
    QLabel *lblNumero_, *lblAnno_, *lblUltima_;
    QLineEdit* txtDataInizio_;
};

}  // namespace gorgo::screens
