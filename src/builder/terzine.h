#pragma once
// The reduced triples (TerzineRidotte) of the codes, loaded from their text file.

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "archives/messaggio.h"

namespace gorgo::builder {

struct TerzineRidotte {
    // Index 1..count; entry 0 unused.
    std::vector<std::array<int, 3>> terzine{{0, 0, 0}};
    int quante() const { return static_cast<int>(terzine.size()) - 1; }
    bool disponibili() const { return quante() > 0; }
};
struct EsitoTerzine {
    TerzineRidotte terzine;
    bool valido = false;  // false: codes unavailable
    // What the load tells: " File terzine non valido!", "N terzine caricate!\"" for a count
    // other than 1002 (the load stands), or an error reading the file; nothing for a
    // missing file, which the screen asks for and the command line names.
    archives::Messaggio messaggio;
    bool fileMancante = false;
    bool nonValido = false;  // a number that is not 1..90 (the system's zero) or a line without three
    int rigaNonValida = 0;   // the line, counted from 1
    bool caricato = false;   // read to its end: the load stands, whatever the count
};
// Each line: first number in characters 1-2, second in 4-5, third in the last two.
EsitoTerzine CaricaTerzine(const std::string& percorso);
constexpr int NumeroTerzineAttese = 1002;
// The open dialog the screen shows when the file is missing.
inline constexpr std::string_view TitoloApriTerzine = "Apri il file terzine ridotte";
inline constexpr std::string_view FiltroTerzine = "File di testo (*.Txt)|*.Txt";

}  // namespace gorgo::builder
