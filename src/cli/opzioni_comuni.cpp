#include "cli/opzioni_comuni.h"

#include <fmt/format.h>

#include <cctype>
#include <charconv>
#include <filesystem>
#include <iostream>

#include "archives/record.h"
#include "archives/regole.h"
#include "config/impostazioni.h"
#include "config/ini.h"

namespace gorgo::cli {

void OpzioniReport::Aggiungi(CLI::App* comando, const std::string& descrizione) {
    comando->add_option("--report", file, descrizione);
    comando->add_flag("--accoda", accoda, "Se il file del report esiste, aggiunge in calce");
    comando->add_flag("--sovrascrivi", sovrascrivi, "Se il file del report esiste, lo sostituisce");
}

void OpzioniReport::Controlla(bool domandaInCalce) const {
    if (file.empty() || !std::filesystem::exists(file) || accoda || sovrascrivi) return;
    const archives::Messaggio d = domandaInCalce ? config::DomandaInCalce(file) : config::DomandaSovrascrivi(file);
    throw Rifiuto{{d.testo + " (rispondere con --accoda oppure --sovrascrivi)", "Conferma", archives::Icona::Domanda}};
}

config::ModoScrittura OpzioniReport::Modo() const {
    return accoda        ? config::ModoScrittura::Accoda
           : sovrascrivi ? config::ModoScrittura::Sovrascrivi
                         : config::ModoScrittura::Nuovo;
}

void OpzioniReport::ScriviSuFile(const config::ReportTesto& report) const {
    if (archives::Messaggio m = config::ScriviReportSuFile(file, report, Modo()); !m.vuoto())
        throw Rifiuto{m, ErroreInterno};
}

bool OpzioniReport::Scrivi(std::span<const std::string> righe, bool json) const {
    if (file.empty()) return false;
    if (righe.empty()) {
        std::cerr << config::NullaDaEsportare << "\n";
        return true;
    }
    if (archives::Messaggio m = config::ScriviReportSuFile(file, righe, Modo()); !m.vuoto())
        throw Rifiuto{m, ErroreInterno};
    if (!json) std::cout << fmt::format("{} righe scritte in {}\n", righe.size(), file);
    return true;
}

bool OpzioniReport::Scrivi(const config::ReportTesto& report, bool vuoto, bool json) const {
    if (file.empty()) return false;
    if (vuoto) {
        std::cerr << config::NullaDaEsportare << "\n";
        return true;
    }
    ScriviSuFile(report);
    if (!json) std::cout << fmt::format("{} righe scritte in {}\n", report.righe().size(), file);
    return true;
}

int LeggiRuota(const std::string& testo, bool tutte) {
    auto maiuscolo = [](std::string s) {
        for (char& c : s) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
        return s;
    };
    const std::string t = maiuscolo(testo);
    if (tutte && t == "TUTTE") return 0;
    for (int w = 1; w <= archives::NumeroRuote; ++w) {
        std::string nome = maiuscolo(std::string(archives::NomiRuota[static_cast<size_t>(w)]));
        nome.erase(nome.find_last_not_of(' ') + 1);  // the names are stored padded
        if (t == archives::SigleRuota[static_cast<size_t>(w)] || t == nome || t == std::to_string(w) ||
            (w == 8 && t == "RM"))
            return w;
    }
    throw Rifiuta(
        fmt::format("--ruota: ruota \"{}\" sconosciuta. Indicare una sigla fra BA,CA,FI,GE,MI,NA,PA,RO,TO,"
                    "VE,NZ{}.",
                    testo, tutte ? " oppure tutte" : ""));
}

int RuotaImpostata(const Contesto& ctx) {
    const config::FileIni ini(ctx.FileImpostazioni().string());
    const auto caselle =
        config::CaricaRuote(config::LeggiImpostazione(ini, config::sezioni::Settings, "Ruota", "YNNNNNNNNNN"));
    for (int w = 1; w <= archives::NumeroRuote; ++w)
        if (caselle[static_cast<size_t>(w)]) return w;
    return 1;
}

bool SembraData(const std::string& testo) { return testo.find_first_of("/-.", 1) != std::string::npos; }

int32_t LeggiIndice(const std::string& testo, int32_t massimo, std::string_view archivio) {
    int32_t indice = 0;
    const auto [p, ec] = std::from_chars(testo.data(), testo.data() + testo.size(), indice);
    if (ec != std::errc{} || p != testo.data() + testo.size())
        throw Rifiuta(fmt::format(
            "\"{}\" non è un indice valido: indicare un numero progressivo oppure una data GG/MM/AAAA.", testo));
    if (indice < 1 || indice > massimo)
        throw Rifiuta(fmt::format("L'indice {} è fuori dall'archivio {}: le estrazioni memorizzate vanno da 1 a {}.",
                                  indice, archivio, massimo));
    return indice;
}

int32_t IndiceDaData(const archives::RisultatoData& r) {
    if (r.ErroreData) throw Rifiuto{r.messaggio};
    return r.IndiceTrovato;
}

int32_t IndiceLotto(const archives::StoriaLotto& storia, const std::string& testo) {
    if (!SembraData(testo)) return LeggiIndice(testo, storia.NumeroEstrazioni(), "del Lotto");
    return IndiceDaData(archives::ControllaData(testo, storia, false));
}

}  // namespace gorgo::cli
