#include "screens/consultation/frm_10_estrazioni_superenalotto.h"

#include "archives/archivio.h"

namespace gorgo::screens {

Frm10EstrazioniSuperEnaLotto::Frm10EstrazioniSuperEnaLotto(Sessione& sessione, const archives::Archivio& archivio,
                                                           QWidget* parent)
    : FrmDieciEstrazioni(sessione, std::make_unique<consultation::ConsultazioneDieci>(archivio.LeggiTuttiSuper()),
                         "frm10EstrazioniSuperEnaLotto",
                         QStringLiteral("Gorgo - Consultazione estrazioni SuperEnalotto"), parent) {}

}  // namespace gorgo::screens
