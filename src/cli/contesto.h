#pragma once
// What every subcommand shares: the program folder, the archives opened for reading,
// the output form, the exit codes.

#include <CLI/CLI.hpp>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>

#include "archives/archivio.h"
#include "archives/messaggio.h"

namespace gorgo::cli {

enum CodiceUscita : int { Successo = 0, ErroreInterno = 1, InputRifiutato = 2 };

// A refusal: the message goes to stderr and the program ends with InputRifiutato.
struct Rifiuto {
    archives::Messaggio messaggio;
    int codice = InputRifiutato;
};
inline Rifiuto Rifiuta(std::string testo, int codice = InputRifiutato) {
    return Rifiuto{archives::Messaggio{std::move(testo), "Errore", archives::Icona::Esclamazione}, codice};
}

struct Contesto {
    std::string cartella;  // --cartella
    bool json = false;

    std::filesystem::path PercorsoProgramma() const;
    // Opens the archives for reading; refuses with the system's message when one is missing,
    // and with a clear one when the files are damaged or out of step.
    archives::Archivio ApriArchivi() const;
    std::filesystem::path FileImpostazioni() const { return PercorsoProgramma() / "Gorgo.ini"; }
};

// Prints a JSON value on one line.
void StampaJson(const nlohmann::json& j);

// Each group of subcommands registers itself with one object in its own file, giving its place
// in the list of the help, so that a new group touches no other file:
//   const GruppoComandi registrazione{70, AggiungiComandiScarica};
using AggiungiComandi = void (*)(CLI::App& app, Contesto& ctx);
struct GruppoComandi {
    GruppoComandi(int ordine, AggiungiComandi aggiungi);
};
// Adds every registered group to the application, in the order of their places.
void AggiungiTuttiIComandi(CLI::App& app, Contesto& ctx);

}  // namespace gorgo::cli
