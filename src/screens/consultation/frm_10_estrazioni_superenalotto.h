#pragma once
// frm10EstrazioniSuperEnaLotto: ten SuperEnalotto draws with Jolly and SuperStar.

#include "screens/consultation/frm_dieci_estrazioni.h"

namespace gorgo::archives {
class Archivio;
}

namespace gorgo::screens {

class Frm10EstrazioniSuperEnaLotto : public FrmDieciEstrazioni {
    Q_OBJECT
public:
    Frm10EstrazioniSuperEnaLotto(Sessione& sessione, const archives::Archivio& archivio, QWidget* parent = nullptr);
};

}  // namespace gorgo::screens
