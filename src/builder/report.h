#pragma once
// The builder's text reports: the header block of the search and the file form of the
// list of algorithms.

#include <string>

#include "builder/ricerca.h"
#include "config/report_testo.h"

namespace gorgo::builder {

inline constexpr std::string_view NomeReportAlgoritmi = "ReportAlgoritmi";

// "Numero", "Somma", "Differ." or "Ambo": the head of the spy column.
std::string_view TestaColonnaSpia(TipoSpia tipo);
// The kind of search as the list of kinds names it.
std::string_view NomeTipoRicerca(TipoRicerca tipo, TipoSpia spia);

// Title, blank line, the parameter lines of the search, blank line.
config::ReportTesto IntestazioneCostruttore(const ParametriRicerca& p, const StoriaLotto& storia);

// The header, then one line a row: "Algoritmo: ..., Sort.: ..., Pres./quantità: ...".
config::ReportTesto ReportAlgoritmi(const ParametriRicerca& p, const EsitoRicerca& esito, const StoriaLotto& storia);

}  // namespace gorgo::builder
