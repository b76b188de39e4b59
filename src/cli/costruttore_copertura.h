#pragma once
// gorgo-cli costruttore --copertura and --automatica: the coverage of the checked rows and
// the automatic search of wheels, as the builder's windows show them.

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

#include "builder/contesto.h"
#include "builder/ricerca.h"
#include "cli/contesto.h"
#include "cli/opzioni_comuni.h"

namespace gorgo::cli {

struct ArgomentiCopertura {
    std::string copertura;  // ambata, 2-ambate, 3-ambate, ambo, terzine, codici
    int righe = 0;          // the first N rows checked
    std::vector<std::string> chiavi;
    std::string automatica;  // "R:G"
};

void AggiungiOpzioniCopertura(CLI::App* comando, ArgomentiCopertura& a);

// The coverage after a search `e` (rows checked by --righe, --chiave or --seleziona).
void EseguiCopertura(const Contesto& ctx, const ArgomentiCopertura& a, const builder::ParametriRicerca& p,
                     const builder::ContestoCostruttore& cc, builder::EsitoRicerca e, const OpzioniReport& report);
// The automatic search, in place of the search.
void EseguiAutomatica(const Contesto& ctx, const ArgomentiCopertura& a, const builder::ParametriRicerca& p,
                      const builder::ContestoCostruttore& cc, const OpzioniReport& report);

}  // namespace gorgo::cli
