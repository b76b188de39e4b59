#pragma once
// The 90 mathematical pairs as one group: how often the group came back after each delay.

#include <array>
#include <string>
#include <vector>

#include "config/report_testo.h"
#include "enucleated/periodo.h"

namespace gorgo::enucleated {

struct RigaGruppo {
    std::array<std::string, 5> testo;  // "Ritardo", "Frequenza", "Ritardo att.", "Ritardo max", " I.C."
    int ritardo = 0, frequenza = 0, ritardoAttuale = 0, ritardoMax = 0;
    double ic = 0;
};

struct EsitoGruppo {
    archives::Messaggio errore;
    Periodo periodo;
    std::vector<std::string> riepilogo;  // txtResult, one line a wheel (and " TUTTE" for all)
    std::vector<RigaGruppo> righe;       // by I.C. descending, ties by delay
    bool interrotta = false;             // stopped: nothing to show
};

// The I.C. of a summary line when the group never came out: there is no mean gap.
inline constexpr std::string_view ICNonDefinito = " n.d.";

// tutte false (cmdStatistica 0): wheel `ruota` alone; true (index 1): the 11 wheels each in
// turn from a fresh start, then all together.
EsitoGruppo StatisticaGruppo(const archives::StoriaLotto& storia, const Periodo& periodo, bool tutte, int ruota,
                             const Avanzamento& avanzamento = {});
EsitoGruppo StatisticaGruppo(const archives::StoriaLotto& storia, std::string_view da, std::string_view a, bool tutte,
                             int ruota);

std::vector<std::string> ReportGruppo(const EsitoGruppo& e);  // the file and the printed page
std::string NomeFileGruppo(bool tutte, int ruota);

}  // namespace gorgo::enucleated
