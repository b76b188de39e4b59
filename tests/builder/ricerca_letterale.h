#pragma once
// A literal, single-threaded transcription of the search for algorithms: slow and plain,
// the oracle that the fast engine is compared with.

#include <string>
#include <vector>

#include "builder/parametri.h"
#include "builder/ricerca.h"

namespace gorgo::builder {

EsitoRicerca CercaAlgoritmiLetterale(const ParametriRicerca& parametri, const ContestoRicerca& contesto,
                                     bool seleziona = false);

namespace letterale {

// Stable sort, descending on the "Presenze/quantità" text: equal texts keep their order.
void OrdinaDecrescente(std::vector<RigaAlgoritmo>& righe);

// The Ambate selection from the "Presenze/quantità" texts of a sorted ListaCandidati, as
// indices of the rows taken: with all values the rows tying with row 1 (at most 60);
// otherwise the first 30, then rows 31..60 while they tie with row 15.
std::vector<size_t> SelezioneAmbate(const std::vector<std::string>& testi, bool tuttiIValori);

// SogliaPresenze by the count of cases, and its growth by the rows of a list.
int SogliaPerSortite(int sortite);
int CrescitaSoglia(int righe, int indiceMese);

}  // namespace letterale

}  // namespace gorgo::builder
