#pragma once
// Read-only in-memory copy of the whole Lotto history, loaded once and shared by the
// engines. Indices are the archive's progressive indices, from 1.

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "archives/record.h"

namespace gorgo::archives {

struct RisultatoRicerca {
    int32_t IndiceTrovato = 0;
    std::string DataTrovata;
};

// One step of the date walk over records in date order: the index found at record `indice`
// (dated `dataRecord`), or -1 to go on. A draw date gives that draw; a later record gives
// itself, or the one before it with `precedente`.
inline int32_t PassoRicerca(const Data& dataRecord, const Data& cercata, int32_t indice, bool precedente) {
    if (dataRecord == cercata) return indice;
    if (cercata < dataRecord) return precedente ? indice - 1 : indice;
    return -1;
}

class StoriaLotto {
public:
    StoriaLotto() = default;
    explicit StoriaLotto(std::vector<RecordEstrazione> record);

    int32_t NumeroEstrazioni() const { return static_cast<int32_t>(record_.size()); }
    bool vuota() const { return record_.empty(); }
    // indice 1..NumeroEstrazioni(); no range check, as on the file.
    const RecordEstrazione& operator[](int32_t indice) const { return record_[indice - 1]; }
    std::span<const RecordEstrazione> record() const { return record_; }
    // Day number (days since 1970) of each draw, for date arithmetic without parsing.
    int32_t giorni(int32_t indice) const { return giorni_[indice - 1]; }

    // Clamped to 1..NumeroEstrazioni(), as the archive's own function.
    std::string DataEstrazione(int32_t indice) const;
    // Same results as the file walk on an archive in date order, by binary search.
    std::optional<RisultatoRicerca> CercaIndice(const Data& data, bool precedente) const;

private:
    std::vector<RecordEstrazione> record_;
    std::vector<int32_t> giorni_;
};

using StoriaCondivisa = std::shared_ptr<const StoriaLotto>;

}  // namespace gorgo::archives
