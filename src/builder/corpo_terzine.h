#pragma once
// The search body of the terzine ("Terzine x ambo" and "Terzine x terno").

#include <vector>

#include "builder/ricerca_interna.h"

namespace gorgo::builder::interno {

// Terzine keep a threshold that, for "Terzine x terno" outside "Tutti", carries from one
// spy value to the next.
RisultatoValore CorpoTerzine(const Preparata& r, const Spia& spia, const std::vector<Caso>& casi, int& soglia);

}  // namespace gorgo::builder::interno
