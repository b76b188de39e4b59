#pragma once
// What the running program holds for its whole life: the program folder, the settings
// file, the open archives, the running flag, the window that was activated last.

#include <QPointer>
#include <QWidget>
#include <filesystem>
#include <memory>

#include "archives/archivio.h"
#include "config/ini.h"

namespace gorgo::screens {

struct AmbienteApp {
    std::filesystem::path PercorsoProgramma;
    config::FileIni ini;
    std::unique_ptr<archives::Archivio> archivio;
    bool demo = false;
    // True while a long search runs: the main window and the computing window refuse to close.
    bool ElaborazioneInCorso = false;
    QPointer<QWidget> FormCorrente;
};

// The one instance, set up at start-up (and by the tests).
AmbienteApp& Ambiente();

// Where the files that ship with the program are: data/ beside the executable, else the
// source tree's data/ (running from a build folder).
std::filesystem::path CartellaDati();

}  // namespace gorgo::screens
