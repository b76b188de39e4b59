#pragma once
// The file and printed forms of the statistics, of the lists of pairs and triples and of
// the delay detail.

#include <string>
#include <vector>

#include "config/report_testo.h"
#include "enucleated/statistica.h"

namespace gorgo::enucleated {

std::vector<std::string> ReportStatisticaFile(const std::vector<RigaStatistica>& righe, int ruota,
                                              const Periodo& periodo);
config::ReportTesto ReportStatisticaStampa(const std::vector<RigaStatistica>& righe, int ruota, const Periodo& periodo);
std::string NomeFileStatistica(int ruota);  // "Ambo_Enucleato_StatGenerale_" + wheel + ".txt"

inline constexpr std::string_view NomeFileCoppie = "Analisi_AmboEnucleato";
std::vector<std::string> ReportCoppieFile(const ListaCoppie& lista, TipoAnalisi tipo);
config::ReportTesto ReportCoppieStampa(const ListaCoppie& lista, TipoAnalisi tipo);

std::vector<std::string> ReportDettaglioFile(const EsitoDettaglio& d);
config::ReportTesto ReportDettaglioStampa(const EsitoDettaglio& d, int ruota, int somma);
std::string NomeFileDettaglio(int ruota, int somma);  // "Dettaglio somma ritardi S su W.txt"

}  // namespace gorgo::enucleated
