#pragma once
// frmCapoAbbinamentiCostruttore: the numbers to play, gathered from the capogioco panel and
// the lunghetta, and their file "NumeriGorgo".

#include <QWidget>

#include "builder/capogioco.h"
#include "screens/common/sessione.h"

namespace gorgo::screens {

class FrmCapoAbbinamentiCostruttore : public QWidget {
    Q_OBJECT
public:
    FrmCapoAbbinamentiCostruttore(Sessione& sessione, QWidget* parent, builder::NumeriDaGiocare numeri);

private:
    Sessione& sessione_;
    builder::NumeriDaGiocare numeri_;
};

}  // namespace gorgo::screens
