#pragma once
// Number families and analyses on the grid of the consultation: the marks in the cells and
// the report lines of the analyses.

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "consultation/griglia.h"

namespace gorgo::consultation {

// The codes of the choices, as the buttons give them.
enum CodiceFamiglia : int {
    NessunaFamiglia = 0,
    FamDecina = 1,
    FamCadenza = 2,
    FamFigura = 3,
    FamQuindicina = 4,
    FamComplementari = 5,
    FamSimmetrici = 6,
    FamGemelli = 7,
    FamVertibili = 8,
    FamRadicali = 9,
    FamNumeriRipetuti = 10,
    FamAmbiRipetuti = 11,
    FamUsciti = 12,
    FamNonUsciti = 13,
    FamUscitiScorsa = 14,
    FamNonUscitiScorsa = 15,
    FamUnoIcsDue = 16,
    FamPariDispari = 17,
    FamUgualiIsotopi = 50,
    FamSomma = 51,
    FamSommeUguali = 52,
    FamDistanzeUguali = 53,
    FamDistanza = 54,
    FamUltimoRitardo = 105,
    FamTerzine = 110,
};

struct ParametriAnalisi {
    int famiglia = NessunaFamiglia;
    int cifra = -1;                // NumeroFamiglia; -1 while the family waits for its digit
    bool isotopiRipetuti = false;  // chkNumeriAmbiIsotopi, codes 10 and 11
    int somma = 0;                 // txtSomma, code 51
    bool isotopiSomma = false;     // chkIsotopi
    bool f90Somma = false;         // chkF90
    int distanza = 0;              // txtDistanza, code 54
    bool isotopiDistanza = false;  // chlIsotopiDistanza
    int ritardo = 0;               // txtRitardo, code 105
};

// What an analysis needs beside the grid.
struct ContestoAnalisi {
    bool tutteLeRuote = true;
    std::array<std::string, 11> nomiRighe{};     // the wheel of each row, or the date of each row
    std::array<bool, 91> precedente{};           // numbers of the previous draw (codes 14, 15)
    std::array<int32_t, NumeroCelle> ritardi{};  // delay of each cell's number (code 105)
};

// TabellaRadicali: group c (1..8) is c, 10c, 11c, 10c + 9.
extern const std::array<std::array<int, 4>, 8> TabellaRadicali;

// Figura: a number below 10 is itself, else the sum of its digits less 9 when above 9.
int FiguraDi(int numero);

// The families that need a digit, and which digits each knows.
bool FamigliaConCifra(int codice);
std::vector<int> CifreAmmesse(int codice);
// The words of lblDescrFamiglia for a choice ("Nessuna selezione" for none).
std::string DescrizioneFamiglia(int codice, const ParametriAnalisi& p);
// Codes 12 to 17, 50, 52, 53 and 105 need all wheels.
bool SoloTutteLeRuote(int codice);

// Runs the choice on the grid. Families that wait for a digit mark nothing.
void ApplicaAnalisi(Griglia& g, const ParametriAnalisi& p, const ContestoAnalisi& c);

}  // namespace gorgo::consultation
