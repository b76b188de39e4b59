#pragma once
// The system's messages in a message box, and the yes/no/cancel questions.

#include <QMessageBox>
#include <QWidget>
#include <functional>

#include "archives/messaggio.h"

namespace gorgo::screens {

// Shows a message with its title and icon ("Gorgo 2" when it has no title).
void MostraMessaggio(QWidget* parent, const archives::Messaggio& m);
// Asks a question; the buttons given, `predefinito` the default one. Returns the button chosen.
QMessageBox::StandardButton Chiedi(QWidget* parent, const archives::Messaggio& domanda,
                                   QMessageBox::StandardButtons pulsanti, QMessageBox::StandardButton predefinito);

// Tests only: when set, every message and question goes to this function instead of a box
// (a message comes with the buttons Ok), and a question takes the button it returns.
using GestoreMessaggi =
    std::function<QMessageBox::StandardButton(const archives::Messaggio&, QMessageBox::StandardButtons)>;
// Installs `gestore` (empty: boxes again) and returns the one it replaces.
GestoreMessaggi ImpostaGestoreMessaggi(GestoreMessaggi gestore);

}  // namespace gorgo::screens
