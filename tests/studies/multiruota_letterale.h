#pragma once
// The multi-wheel search and the five-number convergences written as the system describes
// them: formations checked number by number, quaterne and cinquine tallied in a list of
// texts. Oracles of the differential tests and the benchmark's baselines.

#include <string>
#include <vector>

#include "archives/storia.h"
#include "studies/multiruota.h"
#include "studies/somma_cinquine.h"

namespace gorgo::test {

studies::EsitoMultiruota RicercaMultiruotaLetterale(const archives::StoriaLotto& s,
                                                    const studies::ParametriMultiruota& p);

std::vector<std::string> ConvergenzeLetterale(const std::vector<std::string>& righe);

}  // namespace gorgo::test
