#pragma once
// Numeric formations typed or pasted by the player: the parser and validator of the panel.

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

}  // namespace gorgo::precursors
