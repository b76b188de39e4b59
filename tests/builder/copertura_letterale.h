#pragma once
// A literal, single-threaded transcription of the coverage: the matrix walked window by
// window, and the group sought by five nested walks, each group tested case by case.

#include <span>

#include "builder/copertura.h"

namespace gorgo::builder {

MatriceCopertura CalcolaMatriceLetterale(const ParametriRicerca& p, const ContestoRicerca& ctx,
                                         std::span<const CasoSpia> casi, std::span<const RigaAlgoritmo> algoritmi,
                                         TipoCopertura tipo);
GruppoCopertura CercaGruppoLetterale(const MatriceCopertura& m);

EsitoCopertura CalcolaCoperturaLetterale(const ParametriRicerca& p, const ContestoRicerca& ctx,
                                         std::span<const CasoSpia> casi, std::span<const RigaAlgoritmo> righe,
                                         TipoCopertura tipo);

}  // namespace gorgo::builder
