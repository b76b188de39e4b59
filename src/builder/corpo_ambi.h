#pragma once
// The search body of the ambi.

#include <vector>

#include "builder/ricerca_interna.h"

namespace gorgo::builder::interno {

RisultatoValore CorpoAmbi(const Preparata& r, const Spia& spia, const std::vector<Caso>& casi);

}  // namespace gorgo::builder::interno
