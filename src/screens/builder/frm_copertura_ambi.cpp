#include "screens/builder/frm_copertura_ambi.h"

namespace gorgo::screens {

FrmCoperturaAmbi::FrmCoperturaAmbi(Sessione& sessione, QWidget* parent, const builder::EsitoCopertura& esito,
                                   config::ReportTesto stampa, config::ReportTesto file)
    : FinestraCopertura(sessione, parent, "frmCoperturaAmbi", esito,
                        {QStringLiteral("Data spia"), QStringLiteral("Descrizione algoritmo"), QStringLiteral("Prev."),
                         QStringLiteral("Colpo")},
                        std::move(stampa), std::move(file)) {}

}  // namespace gorgo::screens
