#pragma once
// Small pieces the consultation windows share: named controls, the colours of a cell, the
// lines of a grid for the printer.

#include <QLabel>
#include <QPushButton>
#include <QString>
#include <QWidget>

#include "consultation/griglia.h"

namespace gorgo::screens::consultazione {

QPushButton* Pulsante(QWidget* parent, const QString& nome, const QString& testo, const QString& suggerimento = {});
QLabel* Etichetta(QWidget* parent, const QString& nome, const QString& testo = {});
// A label that shows a cell: its text, background and text colour, centred on a fixed width.
QLabel* CasellaNumero(QWidget* parent, const QString& nome, int larghezza = 36);
void MostraCasella(QLabel* l, const QString& testo, consultation::Colore sfondo, consultation::Colore colore);
QColor Qcolore(consultation::Colore c);

}  // namespace gorgo::screens::consultazione
