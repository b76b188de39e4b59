#pragma once
// What several commands read the same way: the report file, a wheel, a draw by index or date.

#include <CLI/CLI.hpp>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "archives/regole.h"
#include "archives/storia.h"
#include "cli/contesto.h"
#include "config/report_testo.h"

namespace gorgo::cli {

// --report FILE with --accoda / --sovrascrivi. The file is settled before the run, so that a
// refusal costs nothing, and written when the run is done.
struct OpzioniReport {
    std::string file;
    bool accoda = false, sovrascrivi = false;

    void Aggiungi(CLI::App* comando, const std::string& descrizione);
    // An existing file needs --accoda or --sovrascrivi; the question is the one the screen asks.
    void Controlla(bool domandaInCalce = true) const;
    config::ModoScrittura Modo() const;
    // Writes the report, whatever it holds; a failed write ends the command with ErroreInterno.
    void ScriviSuFile(const config::ReportTesto& report) const;
    // Writes the report when one was asked for and says true; an empty one writes nothing and
    // says so on stderr. Without --json a line tells how many lines were written.
    bool Scrivi(std::span<const std::string> righe, bool json) const;
    bool Scrivi(const config::ReportTesto& report, bool vuoto, bool json) const;
};

// A wheel: its code BA..NZ (also RM), its name or its number 1..11; "tutte" is 0 where allowed.
int LeggiRuota(const std::string& testo, bool tutte = false);
// The wheel of the one-wheel screens: the first box of the setting "Ruota".
int RuotaImpostata(const Contesto& ctx);
// A wheel given, or else the setting.
inline int RuotaOImpostazione(const std::string& testo, const Contesto& ctx) {
    return testo.empty() ? RuotaImpostata(ctx) : LeggiRuota(testo);
}

// A date has separators; a leading minus is a (bad) index.
bool SembraData(const std::string& testo);
// A progressive index between 1 and `massimo`, refused with a clear message otherwise.
int32_t LeggiIndice(const std::string& testo, int32_t massimo, std::string_view archivio);
// The draw a date check found, or its refusal.
int32_t IndiceDaData(const archives::RisultatoData& r);
// A Lotto draw by its progressive index or its date GG/MM/AAAA (the draw of that date).
int32_t IndiceLotto(const archives::StoriaLotto& storia, const std::string& testo);

}  // namespace gorgo::cli
