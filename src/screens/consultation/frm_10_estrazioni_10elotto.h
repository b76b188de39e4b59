#pragma once
// frm10Estrazioni10eLotto: ten 10eLotto draws, twenty numbers a row, derived from the Lotto.

#include "screens/consultation/frm_dieci_estrazioni.h"

namespace gorgo::archives {
class Archivio;
}

namespace gorgo::screens {

class Frm10Estrazioni10eLotto : public FrmDieciEstrazioni {
    Q_OBJECT
public:
    Frm10Estrazioni10eLotto(Sessione& sessione, const archives::Archivio& archivio, QWidget* parent = nullptr);
};

}  // namespace gorgo::screens
