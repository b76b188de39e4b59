#pragma once
// The window after a case: what came out on the play wheels within the colpi.

#include <array>
#include <cstdint>

#include "builder/ricerca_interna.h"

namespace gorgo::builder::interno {

// By number: how many times it came out (Q) and whether it did (H).
struct FinestraNumeri {
    std::array<int32_t, 91> Q{};
    std::array<int32_t, 91> H{};  // 0 or 1, kept as an int so that scores add it directly
};

void RiempiFinestraNumeri(const Preparata& r, const Caso& c, FinestraNumeri& f);

}  // namespace gorgo::builder::interno
