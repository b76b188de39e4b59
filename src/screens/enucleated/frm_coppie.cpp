#include "screens/enucleated/frm_coppie.h"

#include <QLabel>
#include <QPushButton>

#include "screens/enucleated/frm_ambo_enucleato.h"
#include "screens/enucleated/frm_dettaglio_ritardi.h"

namespace gorgo::screens {

FrmCoppie::FrmCoppie(FrmAmboEnucleato& padre, QWidget* parent)
    : FrmListaSomma(padre, parent, enucleated::TipoAnalisi::Ambi) {
    auto* Command1 = new QPushButton(QStringLiteral("Dettagli..."), this);
    Command1->setObjectName("Command1");
    connect(Command1, &QPushButton::clicked, this, &FrmCoppie::ApriDettaglio);
    comandi()->insertWidget(0, Command1);
    lblSommaCercata_ = new QLabel(this);
    lblSommaCercata_->setObjectName("lblSommaCercata");
    comandi()->insertWidget(0, lblSommaCercata_);
}

void FrmCoppie::Mostra(int ruota, int somma) {
    lblSommaCercata_->setText(QString::number(somma));
    FrmListaSomma::Mostra(ruota, somma);
}

void FrmCoppie::ApriDettaglio() {
    if (ruota_ < 1) return;
    if (!dettaglio_) dettaglio_ = new FrmDettaglioRitardi(padre_, this);
    dettaglio_->Apri(ruota_, somma_);
}

}  // namespace gorgo::screens
