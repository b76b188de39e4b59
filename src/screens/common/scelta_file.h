#pragma once
// The open and save dialogs of the maintenance screens, replaceable: tests answer them
// without a window.

#include <QString>
#include <QWidget>
#include <functional>

namespace gorgo::screens {

enum class ModoSceltaFile { Apri, Salva };

// Gets the title, the filter in the host's form ("descrizione|*.bin|..."), the folder to start
// in; gives the chosen path, or an empty text on Cancel.
using SceltaFileManutenzione = std::function<QString(QWidget* parent, ModoSceltaFile modo, const QString& titolo,
                                                     const QString& filtro, const QString& cartella)>;
extern SceltaFileManutenzione ScegliFileManutenzione;
SceltaFileManutenzione SceltaFileManutenzionePredefinita();

}  // namespace gorgo::screens
