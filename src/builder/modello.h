#pragma once
// The algorithm model of the builder: operations on numbers, cells of the draw and the
// kinds of search and spy.

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace gorgo::builder {

// The three operations, each giving 1..90. Not the Fuori90 rules of the archive.
constexpr int OperaPiu(int a, int b) { return a + b > 90 ? a + b - 90 : a + b; }
constexpr int OperaMeno(int a, int b) {
    const int r = a - b < 0 ? a - b + 90 : a - b;
    return r == 0 ? 90 : r;
}
constexpr int OperaPer(int a, int b) {
    const int r = (a * b) % 90;
    return r == 0 ? 90 : r;
}

enum class Operazione : char { Piu = '+', Meno = '-', Per = 'x' };
int Opera(Operazione op, int a, int b);

// The results of "+", "-" and "x" (index 0, 1, 2) for every a and b in 0..90, for the
// search loops that try them by the million.
extern const std::array<std::array<std::array<uint8_t, 91>, 91>, 3> TabellaOperazioni;
inline int OperaIndice(int op, int a, int b) {
    return TabellaOperazioni[static_cast<size_t>(op)][static_cast<size_t>(a)][static_cast<size_t>(b)];
}
// The operation of a sign of a key: '+', '-', 'x'; nothing for any other character.
std::optional<Operazione> OperazioneDaSegno(char segno);

// Vertibile(n): digits swapped (12 -> 21, 1 -> 10, 10 -> 1, 90 -> 9); doubles 11..88 give
// 19..89 and those give the doubles back. Index 1..90; entry 0 unused.
extern const std::array<int16_t, 91> TabellaVertibili;
inline int Vertibile(int n) { return TabellaVertibili[static_cast<size_t>(n)]; }

// Cells of the QuadroEstrazionale: c = (ruota - 1) * 5 + posizione, 1..55.
constexpr int NumeroCelle = 55;
constexpr int Cella(int ruota, int posizione) { return (ruota - 1) * 5 + posizione; }
constexpr int RuotaDiCella(int c) { return (c - 1) / 5 + 1; }
constexpr int PosizioneDiCella(int c) { return (c - 1) % 5 + 1; }
// "3' su Firenze   ": position, "' su ", the wheel's padded name.
const std::string& NomeCella(int c);

enum class TipoRicerca : int { Ambate = 0, Ambi = 1, TerzineAmbo = 2, TerzineTerno = 3, Codici = 4 };
enum class TipoSpia : int { Numero = 0, Somma = 1, Differenza = 2, Ambo = 3 };
enum class ModoSpia : int { Fisso = 0, Tutti = 1, SoloIndiceMensile = 2 };

}  // namespace gorgo::builder
