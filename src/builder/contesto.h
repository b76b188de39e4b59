#pragma once
// What the builder's screen reads once when it opens: the history, the month indices by
// the draw days of the settings, the restrictions, the file of reduced triples.

#include <filesystem>
#include <optional>
#include <string>

#include "builder/indice_mensile.h"
#include "builder/ricerca.h"
#include "builder/terzine.h"
#include "config/ini.h"

namespace gorgo::builder {

struct ContestoCostruttore {
    archives::StoriaCondivisa storia;
    IndiciMensili indici;
    config::Restrizioni restrizioni;
    EsitoTerzine terzine;     // terzine.valido false: codes unavailable
    std::string fileTerzine;  // the file tried

    ContestoRicerca Contesto() const {
        return ContestoRicerca{storia.get(), restrizioni, &indici, terzine.valido ? &terzine.terzine : nullptr};
    }
};

// `fileTerzine`, when given, wins over the setting FileTerzine, which wins over Terzine.txt
// in the program folder.
ContestoCostruttore PreparaCostruttore(archives::StoriaCondivisa storia, const config::FileIni& ini,
                                       const std::filesystem::path& percorsoProgramma,
                                       std::optional<std::string> fileTerzine = std::nullopt);

}  // namespace gorgo::builder
