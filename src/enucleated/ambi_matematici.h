#pragma once
// The 90 mathematical pairs: the group the enucleated pair studies on its own, and the
// restriction of its highlighting and statistics.

#include <array>

namespace gorgo::enucleated {

struct AmboMatematico {
    int a = 0, b = 0;  // a below b
};

inline constexpr int NumeroAmbiMatematici = 90;

// The pairs in their fixed order: sums 19, 39 ... 159, then 89 from a = 9 down, then
// (19, 90) and (89, 90).
const std::array<AmboMatematico, NumeroAmbiMatematici>& AmbiMatematici();

// Whether {x, y} (either order) is one of the 90; numbers outside 1..90 never are.
bool EMatematico(int x, int y);

}  // namespace gorgo::enucleated
