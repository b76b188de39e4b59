#pragma once
// Keys (ChiaveAlgoritmo) and descriptions of algorithms, and the numbers a key yields at a
// draw.

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "archives/messaggio.h"
#include "archives/record.h"
#include "builder/modello.h"
#include "builder/terzine.h"

namespace gorgo::builder {

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
    archives::Messaggio errore;  // "Calcolo impossibile: ..." on a bad key; the fields are then unset
};
ChiaveLetta LeggiChiave(std::string_view chiave, TipoRicerca tipo);

// ---- descriptions (DescrizioneAlgoritmo) ----
std::string DescrizioneAmbata(int cella, Operazione op, int cella2, int k, bool soloCella);
std::string DescrizioneAmbi(int cellaB, Operazione op1, int k1, int cellaA, Operazione op2, int k2, bool soloPosizione);
std::string DescrizioneTerzina(int c1, int c2, int c3);
std::string DescrizioneCodice(int cella, Operazione op, int terzina, const std::array<int, 3>& numeri);

// ---- calculation of an algorithm at a draw ----
struct NumeriCalcolati {
    std::vector<int> numeri;     // empty on a fault
    archives::Messaggio errore;  // "Calcolo impossibile: ..." on a bad key
};
// The number of an Ambata key, or of the first (primo) or second rule of an Ambi key.
NumeriCalcolati CalcolaTermine(std::string_view chiave, const archives::RecordEstrazione& estrazione,
                               bool primo = true);
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
