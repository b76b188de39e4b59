#pragma once
// The personalised classic procedure (positions, pair precursors) as the system describes it,
// single threaded, with TabellaAmbi built by its loop and the ranking texts sorted as texts.

#include "archives/storia.h"
#include "precursors/analisi.h"

namespace gorgo::test {

precursors::EsitoPrecursori AnalisiSaruniLetterale(const precursors::ParametriSaruni& p,
                                                   const archives::StoriaLotto& storia, int ruota);

}  // namespace gorgo::test
