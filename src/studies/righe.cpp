#include "studies/righe.h"

#include "archives/record.h"

namespace gorgo::studies {

std::string NomeRuota(int ruota) {
    std::string n(archives::NomiRuota[static_cast<size_t>(ruota)]);
    n.erase(n.find_last_not_of(' ') + 1);
    return n;
}

}  // namespace gorgo::studies
