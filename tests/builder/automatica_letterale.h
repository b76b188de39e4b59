#pragma once
// A literal transcription of the automatic search of wheels: the combinations written out
// by size, one whole search after another, row 1 of each kept.

#include <functional>

#include "builder/automatica.h"

namespace gorgo::builder {

using Ricerca = std::function<EsitoRicerca(const ParametriRicerca&, const ContestoRicerca&)>;

// `ricerca` runs one search; by default the literal one.
EsitoAutomatica RicercaAutomaticaLetterale(const ParametriRicerca& p, const ContestoRicerca& ctx, int r, int g,
                                           const Ricerca& ricerca = {});

}  // namespace gorgo::builder
