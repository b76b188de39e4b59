#pragma once
// frmTerzine: the triples with a delay sum today.

#include "screens/enucleated/frm_lista_somma.h"

namespace gorgo::screens {

class FrmTerzine : public FrmListaSomma {
public:
    FrmTerzine(FrmAmboEnucleato& padre, QWidget* parent)
        : FrmListaSomma(padre, parent, enucleated::TipoAnalisi::Terni) {}
};

}  // namespace gorgo::screens
