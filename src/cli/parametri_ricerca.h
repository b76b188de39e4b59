#pragma once
// The parameters of a builder search on the command line, shared by every subcommand that
// works on the builder's results (costruttore, verifica, previsioni).

#include <CLI/CLI.hpp>
#include <string>

#include "builder/contesto.h"
#include "builder/parametri.h"
#include "cli/contesto.h"
#include "config/ini.h"

namespace gorgo::cli {

struct ArgomentiRicerca {
    std::string spia = "numero", modo = "fisso", ambo, posizioni, da, a, indiceMese = "U", tipo = "ambate";
    std::string ruoteRicerca, ruoteGioco, posizioniValide = "12345", operazioni = "+-x", terzine;
    int valore = 1, colpi = 9, ultime = 0, sorte = 2;
    bool tuttiGliAmbi = false, senzaUltime = false, soloPosizione = false;
};

// Adds the options of the builder's screen to a subcommand.
void AggiungiOpzioniRicerca(CLI::App* comando, ArgomentiRicerca& a);

// The parameter record, the wheels defaulting to the settings; refuses what the screen could
// not hold (an unknown wheel, a position outside 1..5, a malformed ambo or month index).
builder::ParametriRicerca ParametriDaArgomenti(const ArgomentiRicerca& a, const config::FileIni& ini);

// The builder's context for a search, with the parameters validated against it (the codes
// without their file included); a refusal is thrown as the search gives it.
builder::ContestoCostruttore PreparaContesto(const archives::Archivio& archivio, const config::FileIni& ini,
                                             const ArgomentiRicerca& a, const builder::ParametriRicerca& p);

}  // namespace gorgo::cli
