#pragma once
// frmAggiornamenti and its SuperEnalotto twin frmAggiornamentiSuper: pick an update file,
// check it against the archive, append what is new.

#include <QDialog>
#include <string>

#include "maintenance/aggiornamento.h"

class QLabel;
class QPushButton;

namespace gorgo::screens {

class FrmAggiornamenti : public QDialog {
    Q_OBJECT
public:
    explicit FrmAggiornamenti(QWidget* parent = nullptr);

signals:
    // After draws were appended, for windows that show the last draw.
    void archivioAggiornato();

protected:
    FrmAggiornamenti(maintenance::Gioco gioco, QWidget* parent);

private:
    void MostraUltima();
    void Apri();
    void Aggiorna();
    void Chiudi();

    maintenance::Gioco gioco_;
    QLabel *lblNumero_, *lblAnno_, *lblUltima_, *lblFile_, *lblAggiunte_;
    QPushButton* cmdAggiorna_;
    // The chosen file, held from the choice until the update or the next choice.
    std::string percorso_, dati_;
};

class FrmAggiornamentiSuper : public FrmAggiornamenti {
    Q_OBJECT
public:
    explicit FrmAggiornamentiSuper(QWidget* parent = nullptr);
};

}  // namespace gorgo::screens
