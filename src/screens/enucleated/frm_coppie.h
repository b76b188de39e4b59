#pragma once
// frmCoppie: the pairs with a delay sum today, and the way to its delay detail.

#include <QLabel>
#include <QPointer>

#include "screens/enucleated/frm_lista_somma.h"

namespace gorgo::screens {

class FrmDettaglioRitardi;

class FrmCoppie : public FrmListaSomma {
    Q_OBJECT
public:
    FrmCoppie(FrmAmboEnucleato& padre, QWidget* parent);
    void Mostra(int ruota, int somma);  // also shows the sum in lblSommaCercata

private:
    void ApriDettaglio();
    QPointer<FrmDettaglioRitardi> dettaglio_;
    QLabel* lblSommaCercata_ = nullptr;
};

}  // namespace gorgo::screens
