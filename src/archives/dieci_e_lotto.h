#pragma once
// 10eLotto draws, derived from the Lotto draw of the same date.

#include <array>
#include <cstdint>

#include "archives/record.h"

namespace gorgo::archives {

class StoriaLotto;

struct Risultato10eLotto {
    // 0: index below 1, nothing done; -1: no set of 20 can be formed;
    // otherwise how many extra positions it took to reach 20 (0 to 30).
    int32_t esito = 0;
    std::array<int, 20> numeri{};  // ascending
    // With esito -1: true when a first or second extract of wheels 1 to 10 is missing (no
    // 10eLotto draw exists), false when the extra positions ran out before 20 numbers.
    bool manca = false;
};

Risultato10eLotto Estrazione10eLotto(const RecordEstrazione& record);
Risultato10eLotto Estrazione10eLotto(const StoriaLotto& storia, int32_t indice);

}  // namespace gorgo::archives
