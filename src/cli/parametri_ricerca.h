#pragma once
// The parameters of a builder search on the command line, shared by every subcommand that
// works on the builder's results (costruttore, verifica, previsioni).

#include <CLI/CLI.hpp>
#include <optional>
#include <string>

#include "builder/contesto.h"
#include "builder/parametri.h"
#include "cli/contesto.h"
#include "config/ini.h"

namespace gorgo::cli {

// What the user typed; an option left out is empty (or unset), so that the screen's default
// applies and a key can tell what it carries without contradicting a choice.
struct ArgomentiRicerca {
    std::string spia, modo = "fisso", ambo, posizioni, da, a, indiceMese = "U", tipo;
    std::optional<std::string> ruoteRicerca, ruoteGioco;
    std::string posizioniValide = "12345", operazioni = "+-x", terzine;
    // Numbers as text, read with the rules of their boxes (digits only, so many characters).
    std::string valore, colpi = "9", ultime;
    int sorte = 2;
    bool tuttiGliAmbi = false, senzaUltime = false, soloPosizione = false;
};

// Adds the options of the builder's screen to a subcommand.
void AggiungiOpzioniRicerca(CLI::App* comando, ArgomentiRicerca& a);

// The parameter record, the wheels defaulting to the settings; refuses what the screen could
// not hold (an unknown wheel, a position outside 1..5, a malformed ambo or month index, a number
// its box would not take) with the message the search gives for that control.
builder::ParametriRicerca ParametriDaArgomenti(const ArgomentiRicerca& a, const config::FileIni& ini);

// A number typed into a box of digits only, at most `cifre` long: nothing when it is not one.
std::optional<int> LeggiCasella(const std::string& testo, size_t cifre);

// The refusal of the codes without their triples, `messaggio` being the search's: a missing
// file is told how to give it, a file that failed where.
archives::Messaggio SpiegaTerzine(const builder::EsitoTerzine& t, const std::string& file,
                                  archives::Messaggio messaggio);

// The builder's context for a search, with the parameters validated against it (the codes
// without their file included, then the play wheels); a refusal is thrown as the search gives it.
builder::ContestoCostruttore PreparaContesto(const archives::Archivio& archivio, const config::FileIni& ini,
                                             const ArgomentiRicerca& a, const builder::ParametriRicerca& p);

}  // namespace gorgo::cli
