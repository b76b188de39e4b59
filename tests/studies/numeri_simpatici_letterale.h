#pragma once
// "Statistica generale dei 4005 ambi" as the system describes it: for each ambo the tables
// emptied and three passes over the span. The oracle of the differential tests and the
// benchmark's baseline.

#include <vector>

#include "archives/storia.h"
#include "studies/numeri_simpatici.h"

namespace gorgo::test {

// `ultimoAmbo`: stop after this many ambi (4005 for all), as Esc would.
studies::EsitoGenerale StatisticaGeneraleLetterale(const archives::StoriaLotto& s,
                                                   const studies::ParametriSimultanea& p, int ultimoAmbo = 4005);

}  // namespace gorgo::test
