#pragma once
// The box "last draw stored" that the update and export windows share: number, year, date.

#include <QGroupBox>
#include <QLabel>

namespace gorgo::screens {

// A sunken value label, with its objectName.
QLabel* EtichettaValore(QWidget* parent, const char* nome);

struct RiquadroUltima {
    QGroupBox* riquadro;
    QLabel *lblNumero, *lblAnno, *lblUltima;
};
// `titolo` heads the box, `testoData` labels the date row.
RiquadroUltima CreaRiquadroUltima(QWidget* parent, const char* nome, const QString& titolo, const QString& testoData);

}  // namespace gorgo::screens
