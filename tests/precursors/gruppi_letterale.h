#pragma once
// The search of the formation groups as the system describes it, statement by statement,
// single threaded, with the ranking texts sorted as texts: the oracle of the differential test.

#include <vector>

#include "archives/storia.h"
#include "precursors/gruppi.h"

namespace gorgo::test {

precursors::EsitoGruppi AnalisiGruppiLetterale(const precursors::ParametriGruppi& p,
                                               const archives::StoriaLotto& storia, int ruota,
                                               const std::vector<precursors::GruppoFormazioni>& libreria);

}  // namespace gorgo::test
