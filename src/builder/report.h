#pragma once
// The builder's text reports: the header block of the search, and the list of algorithms
// in its two forms, the boxed table of the printer and the labelled lines of the file.

#include <string>

#include "builder/previsioni.h"
#include "builder/ricerca.h"
#include "builder/riepilogo.h"
#include "builder/verifica.h"
#include "config/report_testo.h"

namespace gorgo::builder {

inline constexpr std::string_view NomeReportAlgoritmi = "ReportAlgoritmi";
inline constexpr std::string_view TitoloStampaAlgoritmi = "Algoritmi rintracciati";

// "Numero", "Somma", "Differ." or "Ambo": the head of the spy column.
std::string_view TestaColonnaSpia(TipoSpia tipo);
// The kind of search as the list of kinds names it.
std::string_view NomeTipoRicerca(TipoRicerca tipo, TipoSpia spia);

// Title, blank line, the parameter lines of the search, blank line.
config::ReportTesto IntestazioneCostruttore(const ParametriRicerca& p, const archives::StoriaLotto& storia);

// The printed list (cmdStampaRisultati(0)), under the page title "Algoritmi rintracciati":
// the header, then the boxed table of ListaRisultati, rows in the order of esito.righe.
config::ReportTesto StampaAlgoritmiRighe(const ParametriRicerca& p, const EsitoRicerca& esito,
                                         const archives::StoriaLotto& storia);
// The file form: the header, then one line a row: "Algoritmo: ..., Sort.: ..., Pres./quantità: ...".
config::ReportTesto ReportAlgoritmi(const ParametriRicerca& p, const EsitoRicerca& esito,
                                    const archives::StoriaLotto& storia);

// ---- verification, recap, forecasts, list of cases ----

inline constexpr std::string_view NomeReportVerifica = "RisultatiAlgoritmo";
inline constexpr std::string_view NomeReportRiepilogo = "ReportGorgo";
inline constexpr std::string_view NomeReportPrevisioni = "Calcolo_previsioni";
inline constexpr std::string_view TitoloStampaVerifica = "Algoritmo";  // the second title is the description
inline constexpr std::string_view TitoloRiepilogo = "Riepilogo della tecnica selezionata";
inline constexpr std::string_view TitoloListaSortite = "Dettaglio delle sortite";

// The printed verification: the header, then the boxed table of lvListaPrevisioni.
config::ReportTesto StampaVerificaRighe(const ParametriRicerca& p, const EsitoVerifica& verifica,
                                        std::string_view descrizione, const archives::StoriaLotto& storia);
// The file form: the header, the description, then one line a row: "Data spia: ..., R.: ...".
config::ReportTesto ReportVerifica(const ParametriRicerca& p, const EsitoVerifica& verifica,
                                   std::string_view descrizione, const archives::StoriaLotto& storia);

// The lines of lstReport, head then figures, for the printer and the file alike.
config::ReportTesto ReportRiepilogo(const EsitoRiepilogo& riepilogo);

// The forecasts of frmAlgoritmiCalcolati: the header, then the table under the window's title.
// The printed form heads the last cell "| I.C.  |", the file form "|  I.C. |".
config::ReportTesto StampaPrevisioniRighe(const ParametriRicerca& p, const EsitoPrevisioni& previsioni,
                                          const archives::StoriaLotto& storia);
config::ReportTesto ReportPrevisioni(const ParametriRicerca& p, const EsitoPrevisioni& previsioni,
                                     const archives::StoriaLotto& storia);

// frmListaSortite: its description line " Dettaglio delle N sortite", and its seven columns,
// those of lstVListaUscite in order.
std::string DescrizioneListaSortite(size_t quante);
std::array<std::string, 7> ColonneListaSortite(const CasoSpia& caso);

}  // namespace gorgo::builder
