#include "screens/consultation/frm_10_estrazioni_10elotto.h"

#include "archives/archivio.h"

namespace gorgo::screens {

Frm10Estrazioni10eLotto::Frm10Estrazioni10eLotto(Sessione& sessione, const archives::Archivio& archivio,
                                                 QWidget* parent)
    : FrmDieciEstrazioni(sessione, std::make_unique<consultation::ConsultazioneDieci>(archivio.Storia()),
                         "frm10Estrazioni10eLotto", QStringLiteral("Gorgo - Consultazione estrazioni 10eLotto"),
                         parent) {}

}  // namespace gorgo::screens
