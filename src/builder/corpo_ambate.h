#pragma once
// The search body of the ambate (and of the ambo-spy variant).

#include <array>
#include <cstdint>
#include <vector>

#include "builder/ricerca_interna.h"

namespace gorgo::builder::interno {

// The window after a case: what came out on the play wheels within the colpi.
// By number: how many times it came out (Q) and whether it did (H).
struct FinestraNumeri {
    std::array<int32_t, 91> Q{};
    std::array<int32_t, 91> H{};  // 0 or 1, kept as an int so that scores add it directly
};

void RiempiFinestraNumeri(const Preparata& r, const Caso& c, FinestraNumeri& f);

constexpr int kOp = 3;
constexpr Operazione kOperazioni[kOp] = {Operazione::Piu, Operazione::Meno, Operazione::Per};
// Constants tried with each operation of one cell.
constexpr int kDa[kOp] = {0, 1, 2};
constexpr int kA[kOp] = {45, 44, 45};

// Walks the algorithms of a draw in scoring (and emission) order.
template <typename Uno, typename Due, typename Sola>
void PerOgniAlgoritmo(const Caso& c, bool soloPosizione, Uno uno, Due due, Sola sola) {
    if (soloPosizione) {
        for (int cella = 1; cella <= 55; ++cella) sola(cella, c.numero(cella));
        return;
    }
    for (int cella = 1; cella <= 55; ++cella) {
        const int n = c.numero(cella);
        if (n > 0) uno(cella, n);
    }
    // Cells on different wheels: the first from wheels 1..10, the second on a later wheel.
    for (int w1 = 1; w1 <= 10; ++w1)
        for (int p1 = 1; p1 <= 5; ++p1) {
            const int c1 = (w1 - 1) * 5 + p1, x1 = c.numero(c1);
            if (x1 == 0) continue;
            for (int c2 = w1 * 5 + 1; c2 <= 55; ++c2) {
                const int x2 = c.numero(c2);
                if (x2 > 0) due(c1, c2, x1, x2);
            }
        }
    // Two cells of one wheel: the second is not tested.
    for (int w = 1; w <= 11; ++w)
        for (int p1 = 1; p1 <= 4; ++p1) {
            const int c1 = (w - 1) * 5 + p1, x1 = c.numero(c1);
            if (x1 == 0) continue;
            for (int p2 = p1 + 1; p2 <= 5; ++p2) {
                const int c2 = (w - 1) * 5 + p2;
                due(c1, c2, x1, c.numero(c2));
            }
        }
}

// What a candidate row stands for, to turn into text once selected.
struct FormaAmbata {
    int tipo;  // 0 one cell, 1 two cells, 2 the cell alone
    int op, c1, c2, k;
};
RigaAlgoritmo RigaAmbata(const FormaAmbata& f, const CodaChiave& coda, const std::string& testoSpia, int sortite,
                         int presenze, int quantita);

RisultatoValore CorpoAmbate(const Preparata& r, const Spia& spia, const std::vector<Caso>& casi, bool parallelo);

}  // namespace gorgo::builder::interno
