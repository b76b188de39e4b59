#pragma once
// Shared pieces of the search bodies: the prepared search, the cases of a spy value,
// the windows after a case, and the ordering of candidate rows.

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "builder/chiavi.h"
#include "builder/ricerca.h"

namespace gorgo::builder::interno {

// One spy value: a number, sum or difference, or an ambo (valore < valore2).
struct Spia {
    int valore = 0;
    int valore2 = 0;
};

struct Caso {
    int32_t indice = 0;
    int ruota = 0;
    int posizione = 0;         // position of the spy (first number of an ambo); 0 when not by position
    int posizione2 = 0;        // ambo: position of the second number
    int32_t fineFinestra = 0;  // last draw of the window; below indice + 1 when empty
    const archives::RecordEstrazione* estrazione = nullptr;
    uint8_t numero(int cella) const { return estrazione->Ruota[(cella - 1) / 5][(cella - 1) % 5]; }
};

// Everything a search computes once before walking the spy values.
struct Preparata {
    const ParametriRicerca* p = nullptr;
    const ContestoRicerca* contesto = nullptr;
    const archives::StoriaLotto* storia = nullptr;
    RicercaValidata v;
    std::vector<uint8_t> ammessa;  // by index: GiornoValido and the month test
    std::vector<int> ruoteRicerca, ruoteGioco;
    bool tuttiIValori = false;   // every value of the spy (or every ambo)
    std::string testoPosizioni;  // key field: "11111", chosen ones, or empty
    const Avanzamento* avanzamento = nullptr;

    bool fermata() const { return avanzamento && avanzamento->stop.stop_requested(); }
};

// The preparation of a validated search: wheels, day and month filter of every draw.
Preparata Prepara(const ParametriRicerca& p, const ContestoRicerca& ctx, const Avanzamento& av, RicercaValidata v);
// The spy values a search walks, from the lowest.
std::vector<Spia> ValoriSpia(const Preparata& r);

// The cases of one spy value, newest first, as the walk finds them.
std::vector<Caso> TrovaCasi(const Preparata& r, const Spia& spia);

// The key tail of a spy value: the spy, its positions and where it stood in the last case.
CodaChiave CodaPer(const Preparata& r, const Spia& spia, const std::vector<Caso>& casi);
// Column 4 of the rows: the value right-justified to 2, "a-b" for an ambo, "--" in
// "Solo indice mensile".
std::string TestoSpia(const Preparata& r, const Spia& spia);

// A candidate row before it becomes text: its score and its place in the emission order,
// which settles ties (the list is a stable sort on the "Presenze/quantità" text).
struct Candidato {
    int presenze = 0;
    int quantita = 0;
    uint64_t ordine = 0;
};
// Descending "Presenze/quantità" text, then emission order: the order the lists keep.
inline bool Prima(const Candidato& a, const Candidato& b) {
    if (a.presenze != b.presenze) return a.presenze > b.presenze;
    if (a.quantita != b.quantita) return a.quantita > b.quantita;
    return a.ordine < b.ordine;
}
inline bool StessoTesto(const Candidato& a, const Candidato& b) {
    return a.presenze == b.presenze && a.quantita == b.quantita;
}

// The first `quante` places of a list in its kept order: the indices into the list, and
// the candidates themselves. Only the head is ever selected, so only the head is sorted.
struct Testa {
    std::vector<size_t> indici;
    std::vector<Candidato> ordinata;
};
Testa OrdinaTesta(const std::vector<Candidato>& lista, size_t quante);

// The selection rule of the Ambate body on a list already in order.
size_t SelezioneAmbate(const std::vector<Candidato>& lista, bool tuttiIValori);

// Whether a position counts for the spy (all of them for sum and difference).
bool PosizioneSpia(const Preparata& r, int posizione);

// What a body gives for one spy value: the rows it selects. Each body declares its entry
// point in its own header.
struct RisultatoValore {
    std::vector<RigaAlgoritmo> righe;
};

}  // namespace gorgo::builder::interno

namespace gorgo::builder::interno {

// The five numbers of a wheel in a draw, when all five are there (a zero skips the wheel
// in the pair and triple windows); sorted ascending on request.
bool CinquinaPiena(const archives::RecordEstrazione& e, int ruota, std::array<int, 5>& n, bool ordina);

// The pair window of the Ambi and Terzine bodies: Q of every pair {a, b}, index a + b * 91
// with a below b, from the wheels whose five numbers are all present.
void RiempiFinestraCoppie(const Preparata& r, const Caso& c, int16_t* coppie /* 91 * 91 */, bool ordina);

// SogliaPresenze at the start of the emission, by the count of cases, with "Tutti" as index.
int SogliaPerCasi(int casi);
// Growth of the threshold after a list of R rows.
int CrescitaSoglia(int righe, int indiceMese);

}  // namespace gorgo::builder::interno

namespace gorgo::builder::interno {

// The selection of the Terzine and Codici bodies: of the first min(R, 15) rows, all, or
// those that tie with row 1.
size_t SelezioneQuindici(const std::vector<Candidato>& ordinata, size_t righe, bool soloPari);

}  // namespace gorgo::builder::interno
