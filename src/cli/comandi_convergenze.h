#pragma once
// The convergences and the lunghetta of `costruttore` (on the rows its search found), and the
// command `abbinamenti` (the capogioco panel).

#include <CLI/CLI.hpp>
#include <optional>
#include <string>

#include "builder/contesto.h"
#include "builder/ricerca.h"
#include "cli/contesto.h"

namespace gorgo::cli {

struct ArgomentiConvergenze {
    bool convergenze = false;
    std::optional<int> lunghetta;
    bool ruotaMigliore = false;
    std::string colpiDaGiocare = "9";

    bool richiesti() const { return convergenze || lunghetta.has_value(); }
};

void AggiungiOpzioniConvergenze(CLI::App* comando, ArgomentiConvergenze& a);

// Refuses what the screen could not hold, before the search runs.
void ControllaConvergenze(const ArgomentiConvergenze& a, const std::string& report);

// After the search: the convergences of the checked rows, or the lunghetta, as the frames show them.
void MostraConvergenze(const Contesto& ctx, builder::ParametriRicerca p, const builder::ContestoCostruttore& cc,
                       const builder::EsitoRicerca& esito, const ArgomentiConvergenze& a);

}  // namespace gorgo::cli
