#pragma once
// The grid of the consultation as data: 55 cells with their texts and colours, the labels
// around them and the report of an analysis. The screen and the command line only show it.

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace gorgo::consultation {

// Colours as the settings keep them: 24 bits, red in the low byte.
using Colore = uint32_t;
inline constexpr Colore Nero = 0x000000;
inline constexpr Colore Bianco = 0xFFFFFF;
inline constexpr Colore Giallo = 0x00FFFF;
inline constexpr Colore Rosso = 0x0000FF;
inline constexpr Colore Blu = 0xFF0000;
inline constexpr Colore SfondoNormale = 0xFFFFC0;
inline constexpr Colore TestoNormale = 0x800000;
inline constexpr Colore SfondoAttesaCifra = 0xC0E0FF;

struct CoppiaColori {
    Colore sfondo;
    Colore testo;
};
// The colours of successive groups of equal values; after the last one they start again.
extern const std::array<CoppiaColori, 13> ColoriGruppi;
// The plain mark of a family: red with yellow text.
inline constexpr CoppiaColori Marcatura{Rosso, Giallo};

// "#rrggbb" of a colour kept with red in the low byte.
std::string Esadecimale(Colore c);
// The wheel's name without the blanks of the fixed-width table ("Bari").
std::string NomeRuota(int ruota);

inline constexpr int NumeroCelle = 55;

struct Cella {
    int numero = 0;  // the number drawn (or shown sorted); 0 for an empty cell
    std::string testo;
    Colore sfondo = SfondoNormale;
    Colore colore = TestoNormale;
    std::string suggerimento;
    bool colorata = false;  // already painted by an analysis

    void Dipingi(CoppiaColori c) {
        sfondo = c.sfondo;
        colore = c.testo;
        colorata = true;
    }
};

struct Griglia {
    std::array<Cella, NumeroCelle> celle;  // cell k (1..55) at index k - 1
    int32_t indice = 0;
    std::string data;                         // dd/mm/yyyy of the current draw
    std::string indiceMese;                   // "U" or the place in the month
    std::string numeroAnno;                   // the draw's number in its year
    std::string anno;                         // "2025 / "
    std::string giorno;                       // the day's name
    std::string totale;                       // the progressive index
    std::array<std::string, 10> righeDate{};  // one-wheel view: the date of each row
    std::array<int32_t, 10> indiciRighe{};    // one-wheel view: the draw of each row (0: none)
    std::string sortitaMedia;                 // "Sortita media: 5,0", kept while a period fails
    std::vector<std::string> report;          // lines of frmAnalisi
    bool mostraAnalisi = false;               // the analysis wrote a report
    std::string messaggio;                    // an error of the analysis, shown and then the refresh goes on
};

}  // namespace gorgo::consultation
