#pragma once
// Where every number came out on every wheel, so that the delay and the frequency of a
// number at any draw are two binary searches instead of a walk back through the archive.

#include <array>
#include <cstdint>
#include <vector>

#include "archives/storia.h"

namespace gorgo::consultation {

// A wheel with a 0 among its five extracts has no numbers in that draw: the draw neither
// counts for the delays nor gives hits.
bool RuotaPresente(const archives::RecordEstrazione& r, int ruota);

class TabelleUscite {
public:
    TabelleUscite() = default;
    explicit TabelleUscite(const archives::StoriaLotto& storia);

    // Delay of `numero` on `ruota` counted from `base` backward: the draws with the wheel
    // present from `base` down to the last hit, that one excluded; with no hit, all of them
    // down to draw 1. A base below 1 gives 0.
    int32_t Ritardo(int ruota, int numero, int32_t base) const;
    // Hits of `numero` on `ruota` in the draws da..a (clamped to the archive).
    int32_t Frequenza(int ruota, int numero, int32_t da, int32_t a) const;

private:
    int32_t numeroEstrazioni_ = 0;
    // presenti_[w][i]: draws 1..i with wheel w present (entry 0 is 0).
    std::array<std::vector<int32_t>, 12> presenti_;
    // uscite_[w][n]: the draws where n came out on w, ascending.
    std::array<std::array<std::vector<int32_t>, 91>, 12> uscite_;
};

}  // namespace gorgo::consultation
