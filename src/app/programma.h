#pragma once
// What the running program owns for its whole life: the settings file, the open archives,
// whether they are the demo ones, and the session its windows share. The start-up makes it,
// the main window keeps it.

#include <filesystem>
#include <memory>

#include "archives/archivio.h"
#include "config/ini.h"
#include "screens/common/sessione.h"

namespace gorgo::screens {

struct Programma {
    explicit Programma(const std::filesystem::path& percorsoProgramma)
        : ini((percorsoProgramma / "Gorgo.ini").string()), sessione(ini, percorsoProgramma) {}
    Programma(const Programma&) = delete;
    Programma& operator=(const Programma&) = delete;

    config::FileIni ini;
    std::unique_ptr<archives::Archivio> archivio;
    bool demo = false;
    // Refers to `ini`: declared after it.
    Sessione sessione;
};

}  // namespace gorgo::screens
