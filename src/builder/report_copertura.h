#pragma once
// Reports of the coverage (per ambata, two and three ambate, ambi, codes, terzine) with its
// recap, and of the automatic search of wheels: the boxed tables of the printer and the
// labelled lines of the file.

#include <string_view>

#include "builder/automatica.h"
#include "builder/copertura.h"
#include "config/report_testo.h"

namespace gorgo::builder {

inline constexpr std::string_view NomeReportCopertura = "CoperturaAlgoritmi";
inline constexpr std::string_view NomeReportAutomatica = "RicercaAutomaticaRuote";
inline constexpr std::string_view TitoloRiepilogoCopertura = "Riepilogo presenze degli algoritmi";

config::ReportTesto StampaCoperturaRighe(const ParametriRicerca& p, const EsitoCopertura& e,
                                         const archives::StoriaLotto& storia);
config::ReportTesto ReportCopertura(const ParametriRicerca& p, const EsitoCopertura& e,
                                    const archives::StoriaLotto& storia);

config::ReportTesto StampaAutomaticaRighe(const ParametriRicerca& p, const EsitoAutomatica& e,
                                          const archives::StoriaLotto& storia);
config::ReportTesto ReportAutomatica(const ParametriRicerca& p, const EsitoAutomatica& e,
                                     const archives::StoriaLotto& storia);

}  // namespace gorgo::builder
