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

RisultatoValore CorpoAmbate(const Preparata& r, const Spia& spia, const std::vector<Caso>& casi, bool parallelo);

}  // namespace gorgo::builder::interno
