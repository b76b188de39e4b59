#include "archives/storia.h"

#include <algorithm>

namespace gorgo::archives {

StoriaLotto::StoriaLotto(std::vector<RecordEstrazione> record) : record_(std::move(record)) {
    giorni_.reserve(record_.size());
    for (const auto& r : record_) giorni_.push_back(r.data().giorni());
}

std::string StoriaLotto::DataEstrazione(int32_t indice) const {
    if (record_.empty()) return {};
    indice = std::clamp<int32_t>(indice, 1, NumeroEstrazioni());
    return (*this)[indice].dataTesto();
}

std::optional<RisultatoRicerca> StoriaLotto::CercaIndice(const Data& data, bool precedente) const {
    const int32_t g = data.giorni();
    const auto it = std::lower_bound(giorni_.begin(), giorni_.end(), g);
    if (it == giorni_.end()) return std::nullopt;
    int32_t indice = static_cast<int32_t>(it - giorni_.begin()) + 1;
    if (*it != g && precedente) --indice;
    if (indice < 1) return RisultatoRicerca{0, {}};
    return RisultatoRicerca{indice, (*this)[indice].dataTesto()};
}

}  // namespace gorgo::archives
