#pragma once
// The algorithm model of the builder: operations on numbers, cells of the draw, the
// keys and descriptions of algorithms, and the numbers an algorithm yields at a draw.

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "archives/messaggio.h"
#include "archives/storia.h"

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

// ---- keys (ChiaveAlgoritmo) ----

// The tail after "_": the spy, its positions ("11111" for all; empty for sum and
// difference) and the position found in the last case (' ' when not by position).
struct CodaChiave {
    int spia = 0;
    std::string posizioni;  // five characters, or empty
    char posizioneTrovata = ' ';
    // Ambo spy: the second number and the position at which it was found.
    int spia2 = 0;
    char posizioneTrovata2 = ' ';
    bool ambo = false;
};
std::string TestoCoda(const CodaChiave& coda);

// Ambata: cell alone (op '+', k 0), cell op k, or cell1 op cell2 (k 0).
std::string ChiaveAmbata(int cella, Operazione op, int cella2, int k, const CodaChiave& coda);
// Ambi: (cellaB op1 k1) and (cellaA op2 k2); position only is '+', 0 on both.
std::string ChiaveAmbi(int cellaB, Operazione op1, int k1, int cellaA, Operazione op2, int k2, const CodaChiave& coda);
std::string ChiaveTerzina(int c1, int c2, int c3, const CodaChiave& coda);
std::string ChiaveCodice(int cella, int terzina, Operazione op, const CodaChiave& coda);

// The tail of a key, after its first "_": 3 characters (sum or difference spy), 8 (number)
// or 11 (ambo); nothing when the key has no tail or the tail has another shape.
std::optional<CodaChiave> LeggiCoda(std::string_view chiave);

// The shape of a key, told by where its "_" stands: after 9 characters an Ambata, 12 Ambi,
// 6 a terzina (x ambo and x terno alike), 7 a code; nothing without a readable tail.
enum class FormaChiave { Ambata, Ambi, Terzina, Codice };
std::optional<FormaChiave> FormaDellaChiave(std::string_view chiave);

// One one-number rule of a key: cella op (cella2, or the constant when cella2 is 0).
struct TermineChiave {
    int cella = 0;
    Operazione op = Operazione::Piu;
    int cella2 = 0;
    int costante = 0;
};
// The fields of a key, read with the checks of the calculation.
struct ChiaveLetta {
    TipoRicerca tipo = TipoRicerca::Ambate;
    // Ambata: [0]. Ambi: [0] the first rule (cellaB), [1] the second (cellaA).
    // Codice: [0].cella and [0].op, with `terzina`.
    std::array<TermineChiave, 2> termini{};
    std::array<int, 3> celle{};  // Terzina
    int terzina = 0;             // Codice: 1..9999, checked against the table when calculated
    std::optional<CodaChiave> coda;
    archives::Messaggio errore;            // "Calcolo impossibile: ..." on a bad key; the fields are then unset
};
ChiaveLetta LeggiChiave(std::string_view chiave, TipoRicerca tipo);

// ---- descriptions (DescrizioneAlgoritmo) ----
std::string DescrizioneAmbata(int cella, Operazione op, int cella2, int k, bool soloCella);
std::string DescrizioneAmbi(int cellaB, Operazione op1, int k1, int cellaA, Operazione op2, int k2, bool soloPosizione);
std::string DescrizioneTerzina(int c1, int c2, int c3);
std::string DescrizioneCodice(int cella, Operazione op, int terzina, const std::array<int, 3>& numeri);

// ---- TerzineRidotte ----
struct TerzineRidotte {
    // Index 1..count; entry 0 unused.
    std::vector<std::array<int, 3>> terzine{{0, 0, 0}};
    int quante() const { return static_cast<int>(terzine.size()) - 1; }
    bool disponibili() const { return quante() > 0; }
};
struct EsitoTerzine {
    TerzineRidotte terzine;
    bool valido = false;     // false: codes unavailable
    archives::Messaggio messaggio;     // " File terzine non valido!" or "N terzine caricate!\"" or a missing file
    bool fileMancante = false;
};
// Each line: first number in characters 1-2, second in 4-5, third in the last two.
EsitoTerzine CaricaTerzine(const std::string& percorso);
constexpr int NumeroTerzineAttese = 1002;
// The open dialog the screen shows when the file is missing.
inline constexpr std::string_view TitoloApriTerzine = "Apri il file terzine ridotte";
inline constexpr std::string_view FiltroTerzine = "File di testo (*.Txt)|*.Txt";

// ---- month index ----
struct IndiciMensili {
    std::vector<uint8_t> indice;  // by progressive index (entry 0 unused): ordinal within its month
    std::vector<bool> ultimo;     // last draw of its month ("U")
};
// giorniEstrazione: seven characters from Sunday, "Y" for a draw day; none set = Saturday.
IndiciMensili CalcolaIndiciMensili(const archives::StoriaLotto& storia, std::string_view giorniEstrazione);

// ---- calculation of an algorithm at a draw ----
struct NumeriCalcolati {
    std::vector<int> numeri;  // empty on a fault
    archives::Messaggio errore;         // "Calcolo impossibile: ..." on a bad key
};
// The number of an Ambata key, or of the first (primo) or second rule of an Ambi key.
NumeriCalcolati CalcolaTermine(std::string_view chiave, const archives::RecordEstrazione& estrazione, bool primo = true);
// The three numbers of a code (with 45 or 90 and "x": the number itself).
NumeriCalcolati CalcolaCodice(std::string_view chiave, const archives::RecordEstrazione& estrazione,
                              const TerzineRidotte& terzine);
// The values of the three cells of a terzina key, before the rules on equal numbers.
NumeriCalcolati CalcolaTerzina(std::string_view chiave, const archives::RecordEstrazione& estrazione);
// All the numbers of an algorithm, with the rules on equal numbers (Ambi: Vertibile;
// Terzina: Vertibile then +1).
NumeriCalcolati NumeriAlgoritmo(std::string_view chiave, TipoRicerca tipo, const archives::RecordEstrazione& estrazione,
                                const TerzineRidotte* terzine = nullptr);

}  // namespace gorgo::builder
