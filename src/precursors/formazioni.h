#pragma once
// Numeric formations typed or pasted by the player: the parser and validator of the panel.

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "archives/messaggio.h"
#include "precursors/analisi.h"

namespace gorgo::precursors {

// "Ambate", "Ambi" ... "Ventine" for sizes 1..20.
std::string_view NomeDimensione(int dimensione);

inline constexpr int MassimoNumeriFormazione = 20;
inline constexpr int MassimoFormazioni = 32767;

struct EsitoValidazione {
    archives::Messaggio errore;      // the run stopped: formazioni stays empty
    archives::Messaggio riepilogo;   // "Sono stati processati: " ..., when valid
    std::vector<std::string> righe;  // lstFormazioni: canonical texts "7.12.45", in order
    Formazioni formazioni;           // the numbers of each, ascending
    int scartate = 0, doppie = 0;
};

// Reads the panel's text row by row; `verificaDoppie` is chkVerifica.
EsitoValidazione ValidaFormazioni(std::string_view testo, bool verificaDoppie);

// The formation library: the three built-in groups, then the groups of the formation file.
struct GruppoFormazioni {
    std::string Nome;
    std::vector<std::vector<int>> Elementi;
    std::string campione;  // the first element, numbers right-aligned in 2 joined by "."
    int dimensione = 0;    // the size of the last element read
    // The row of "Lista formazioni numeriche": name, "N.", elements, size.
    std::array<std::string, 4> testo(int indice) const;
};
struct EsitoLibreria {
    archives::Messaggio errore;  // the load stopped there; the groups before it stay
    std::vector<GruppoFormazioni> gruppi;
};
// "Tabellone Ferrani", "Ambi integrali", "Terzine integrali".
std::vector<GruppoFormazioni> GruppiPredefiniti();
// The file's text after the built-in groups; elements before any header go to the last group.
EsitoLibreria CaricaLibreria(std::string_view testoFile);

}  // namespace gorgo::precursors

namespace gorgo::precursors {

// Saving and deleting a named group in the formation file's text. A group of the same name
// is replaced where it stands (after the question), a new one goes at the end; the rest of
// the file is kept line by line.
struct EsitoFileGruppi {
    archives::Messaggio errore;
    archives::Messaggio domanda;  // to ask; call again with the answer yes
    archives::Messaggio esito;    // the message at the end
    std::string testo;            // the new file, when neither errore nor domanda
};
EsitoFileGruppi SalvaGruppo(std::string_view testoFile, std::string_view nome, const Formazioni& elementi,
                            bool confermato = false);
EsitoFileGruppi EliminaGruppo(std::string_view testoFile, std::string_view nome, bool confermato = false);

}  // namespace gorgo::precursors
