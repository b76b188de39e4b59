#pragma once
// The precursor procedures as the system describes them, statement by statement, single
// threaded, with the ranking texts sorted as texts: the oracle of the differential tests.

#include <span>

#include "archives/record.h"
#include "archives/storia.h"
#include "precursors/analisi.h"

namespace gorgo::test {

// What the literal procedures read: the Lotto history (one wheel, or the 10eLotto derived
// from it) or the SuperEnalotto records, each through the archive's own reading function.
struct FonteLetterale {
    precursors::Gioco gioco = precursors::Gioco::Lotto;
    const archives::StoriaLotto* storia = nullptr;
    std::span<const archives::RecordSuperEnalotto> super;
    int ruota = 1;
};

precursors::EsitoPrecursori AnalisiPrecursoriLetterale(const precursors::ParametriPrecursori& p,
                                                       const FonteLetterale& fonte);
precursors::EsitoPrecursori AnalisiFormazioniLetterale(const precursors::ParametriPrecursori& p,
                                                       const FonteLetterale& fonte,
                                                       const precursors::Formazioni& formazioni, bool confermato);

}  // namespace gorgo::test
