#include "screens/maintenance/riquadro_ultima.h"

#include <QGridLayout>

namespace gorgo::screens {

QLabel* EtichettaValore(QWidget* parent, const char* nome) {
    auto* l = new QLabel(parent);
    l->setObjectName(nome);
    l->setFrameShape(QFrame::Panel);
    l->setFrameShadow(QFrame::Sunken);
    l->setMinimumWidth(90);
    return l;
}

RiquadroUltima CreaRiquadroUltima(QWidget* parent, const char* nome, const QString& titolo, const QString& testoData) {
    RiquadroUltima r;
    r.riquadro = new QGroupBox(titolo, parent);
    r.riquadro->setObjectName(nome);
    auto* griglia = new QGridLayout(r.riquadro);
    r.lblNumero = EtichettaValore(parent, "lblNumero");
    r.lblAnno = EtichettaValore(parent, "lblAnno");
    r.lblUltima = EtichettaValore(parent, "lblUltima");
    griglia->addWidget(new QLabel(QStringLiteral("Numero estrazione"), parent), 0, 0);
    griglia->addWidget(r.lblNumero, 0, 1);
    griglia->addWidget(new QLabel(QStringLiteral("Anno estrazione"), parent), 1, 0);
    griglia->addWidget(r.lblAnno, 1, 1);
    griglia->addWidget(new QLabel(testoData, parent), 2, 0);
    griglia->addWidget(r.lblUltima, 2, 1);
    return r;
}

}  // namespace gorgo::screens
