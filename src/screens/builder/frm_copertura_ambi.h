#pragma once
// frmCoperturaAmbi: the detail of a coverage per ambo, of the codes or of the terzine.

#include "screens/builder/frm_copertura.h"

namespace gorgo::screens {

class FrmCoperturaAmbi : public FinestraCopertura {
    Q_OBJECT
public:
    FrmCoperturaAmbi(Sessione& sessione, QWidget* parent, const builder::EsitoCopertura& esito,
                     config::ReportTesto stampa, config::ReportTesto file);
};

}  // namespace gorgo::screens
