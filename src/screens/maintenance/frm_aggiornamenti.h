#pragma once
// frmAggiornamenti and its SuperEnalotto twin frmAggiornamentiSuper: pick an update file,
// check it against the archive, append what is new.

#include <QDialog>
#include <string>

#include "maintenance/aggiornamento.h"
#include "screens/common/sessione.h"

class QLabel;
class QPushButton;

namespace gorgo::archives {
class Archivio;
}

namespace gorgo::screens {

class FrmAggiornamenti : public QDialog {
    Q_OBJECT
public:
    FrmAggiornamenti(Sessione& sessione, archives::Archivio& archivio, QWidget* parent = nullptr);

signals:
    // After draws were appended, for windows that show the last draw.
    void archivioAggiornato();

protected:
    FrmAggiornamenti(Sessione& sessione, archives::Archivio& archivio, maintenance::Gioco gioco, QWidget* parent);

private:
    void MostraUltima();
    void Apri();
    void Aggiorna();
    void Chiudi();

    Sessione& sessione_;
    archives::Archivio& archivio_;
    maintenance::Gioco gioco_;
    QLabel *lblNumero_, *lblAnno_, *lblUltima_, *lblFile_, *lblAggiunte_;
    QPushButton* cmdAggiorna_;
    // The chosen file, held from the choice until the update or the next choice.
    std::string percorso_, dati_;
};

class FrmAggiornamentiSuper : public FrmAggiornamenti {
    Q_OBJECT
public:
    FrmAggiornamentiSuper(Sessione& sessione, archives::Archivio& archivio, QWidget* parent = nullptr);
};

}  // namespace gorgo::screens
