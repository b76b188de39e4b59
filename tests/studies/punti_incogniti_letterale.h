#pragma once
// The historic check of the unknown points written as the system describes it, one play after
// another with no shortcut: the oracle of the differential tests and the benchmark's baseline.

#include <string>
#include <vector>

#include "archives/storia.h"
#include "studies/punti_incogniti.h"

namespace gorgo::test {

struct StoricaLetterale {
    std::vector<std::vector<std::string>> righe;  // the cell texts
    int Giocate = 0, Vincenti = 0, InGioco = 0, SommaColpi = 0;
    std::string descrizione, tag;
};
StoricaLetterale VerificaStoricaLetterale(const archives::StoriaLotto& s, const studies::ParametriVerifica& p,
                                          bool riepilogo, std::string tag);

struct RiepilogoLetterale {
    std::vector<std::string> descrizioni;
    std::vector<bool> rosso;
    std::string tag;
};
// One wheel after the other, the label's tag carried from each run to the next.
RiepilogoLetterale RiepilogoRuoteLetterale(const archives::StoriaLotto& s, const studies::ParametriVerifica& p,
                                           std::string tag);

}  // namespace gorgo::test
