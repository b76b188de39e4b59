#pragma once
// The statistics of the play wheels: frequency, delay and maximum delay of every number
// and every pair, as the forecasts read them.

#include <array>
#include <cstdint>
#include <vector>

#include "archives/storia.h"

namespace gorgo::builder {

inline constexpr int32_t PrimaEstrazioneStatistiche = 3914;

struct StatisticheGioco {
    int32_t estrazioni = 0;
    int32_t numeroEstrazioni = 0;
    std::array<int32_t, 91> frequenza{}, ritardo{}, ritardoMax{}, ultimaUscita{};
    // 91 x 91, symmetric: [a * 91 + b].
    std::vector<int32_t> frequenza2, ritardo2, ritardoMax2, ultimaUscita2;

    static constexpr size_t Indice(int a, int b) { return static_cast<size_t>(a) * 91 + static_cast<size_t>(b); }
    int32_t Frequenza2(int a, int b) const { return frequenza2[Indice(a, b)]; }
    int32_t Ritardo2(int a, int b) const { return ritardo2[Indice(a, b)]; }
    int32_t RitardoMax2(int a, int b) const { return ritardoMax2[Indice(a, b)]; }
    int32_t UltimaUscita2(int a, int b) const { return ultimaUscita2[Indice(a, b)]; }
};

// From PrimaEstrazioneStatistiche to the archive's end; `ruoteGioco` flags wheels 1..11
// (index 0 unused); `primoPeriodo` the first draw of the period.
StatisticheGioco StatisticheRuoteGioco(const archives::StoriaLotto& storia, const std::array<bool, 12>& ruoteGioco,
                                       int32_t primoPeriodo);

}  // namespace gorgo::builder
