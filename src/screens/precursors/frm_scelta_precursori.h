#pragma once
// frmSceltaPrecursori: the small chooser of the precursor procedures. Each window opens once
// and comes forward when asked again.

#include <QPointer>
#include <QWidget>
#include <array>

#include "screens/common/sessione.h"

namespace gorgo::archives {
class Archivio;
}

namespace gorgo::screens {

class FrmSceltaPrecursori : public QWidget {
    Q_OBJECT
public:
    FrmSceltaPrecursori(Sessione& sessione, const archives::Archivio& archivio, QWidget* parent = nullptr);

    // cmdClassici(indice): 0 Lotto, 1 10eLotto, 2 SuperEnalotto; 3 cmdClassiciSaruni; 4
    // cmdFormazioniNumeriche. Gives the window.
    QWidget* ApriClassici(int indice);

private:
    Sessione& sessione_;
    const archives::Archivio& archivio_;
    std::array<QPointer<QWidget>, 5> aperte_;
};

}  // namespace gorgo::screens
