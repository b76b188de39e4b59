#include "config/report_testo.h"

#include <fmt/format.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <random>
#include <system_error>

#include "config/cp1252.h"
#include "config/formato.h"

#if __has_include(<unistd.h>)
#include <unistd.h>
#define GORGO_HA_FSYNC 1
#endif

namespace gorgo::config {

namespace fs = std::filesystem;

// ---------------------------------------------------------------- rows

RigaReport::RigaReport(int larghezza) : celle_(static_cast<std::size_t>(std::max(larghezza, 0)), U' ') {}

void RigaReport::posa(int inizio, std::u32string_view valore) {
    const auto da = static_cast<std::size_t>(std::max(inizio, 0));
    if (celle_.size() < da + valore.size()) celle_.resize(da + valore.size(), U' ');
    std::copy(valore.begin(), valore.end(), celle_.begin() + static_cast<std::ptrdiff_t>(da));
}

RigaReport& RigaReport::metti(int colonna, std::string_view testo) {
    posa(colonna - 1, Utf8InCodici(testo));
    return *this;
}

RigaReport& RigaReport::mettiDestra(int colonnaFine, std::string_view testo) {
    const auto valore = Utf8InCodici(testo);
    posa(colonnaFine - static_cast<int>(valore.size()), valore);
    return *this;
}

RigaReport& RigaReport::mettiCentrato(int colonnaInizio, int colonnaFine, std::string_view testo) {
    const auto valore = Utf8InCodici(testo);
    const int spazio = colonnaFine - colonnaInizio + 1 - static_cast<int>(valore.size());
    posa(colonnaInizio - 1 + std::max(spazio, 0) / 2, valore);
    return *this;
}

std::string RigaReport::testo() const { return CodiciInUtf8(celle_); }

std::string RigaParametro(std::string_view etichetta, std::string_view valore) {
    RigaReport r(LarghezzaParametro);
    r.metti(1, etichetta).metti(ColonnaDuePunti, ":");
    return r.testo() + std::string(valore);
}

std::string Centrato(std::string_view testo, int larghezza) {
    const int margine = (larghezza - static_cast<int>(NumeroCaratteri(testo))) / 2;
    return std::string(static_cast<std::size_t>(std::max(margine, 0)), ' ') + std::string(testo);
}

int Tabella::larghezza() const {
    return static_cast<int>(std::max(NumeroCaratteri(regola), NumeroCaratteri(intestazione)));
}

// ---------------------------------------------------------------- report

ReportTesto& ReportTesto::titolo() {
    riga(std::string(TitoloReport));
    return rigaVuota();
}

ReportTesto& ReportTesto::parametro(std::string_view etichetta, std::string_view valore) {
    return riga(RigaParametro(etichetta, valore));
}

ReportTesto& ReportTesto::riga(std::string testo, bool grassetto) {
    righe_.push_back({std::move(testo), grassetto, nuovaPagina_});
    nuovaPagina_ = false;
    return *this;
}

ReportTesto& ReportTesto::aggiungi(std::span<const RigaTesto> altre) {
    for (const auto& r : altre) {
        righe_.push_back(r);
        righe_.back().nuovaPagina = r.nuovaPagina || nuovaPagina_;
        nuovaPagina_ = false;
    }
    return *this;
}

ReportTesto& ReportTesto::nuovaPagina() {
    nuovaPagina_ = true;
    return *this;
}

ReportTesto& ReportTesto::apriTabella(Tabella tabella) {
    tabella_ = std::move(tabella);
    tabellaAperta_ = true;
    if (!tabella_.titolo.empty()) riga(tabella_.titolo);
    riga(tabella_.regola);
    riga(tabella_.intestazione);
    return riga(tabella_.regola);
}

ReportTesto& ReportTesto::chiudiTabella() {
    if (tabellaAperta_) riga(tabella_.regola);
    tabellaAperta_ = false;
    return *this;
}

std::vector<RigaTesto> IntestazionePagina(std::string_view titolo1, std::string_view titolo2, int pagina) {
    RigaReport numero(ColonnaPagina - 1);
    numero.metti(ColonnaPagina, "Pag." + Formato(pagina, "@@@@"));
    return {
        {"", false}, {Centrato(titolo1), true}, {"", true}, {Centrato(titolo2), true}, {numero.testo(), true},
        {"", true},
    };
}

// ---------------------------------------------------------------- file

namespace {

std::string Motivo(std::error_code ec) {
    if (ec == std::errc::no_such_file_or_directory || ec == std::errc::not_a_directory) return "la cartella non esiste";
    if (ec == std::errc::permission_denied || ec == std::errc::operation_not_permitted ||
        ec == std::errc::read_only_file_system)
        return "accesso negato";
    if (ec == std::errc::no_space_on_device) return "spazio su disco esaurito";
    if (ec == std::errc::is_a_directory) return "il nome è quello di una cartella";
    if (ec == std::errc::filename_too_long) return "il nome è troppo lungo";
    return fmt::format("errore di sistema n. {}", ec.value());
}

archives::Messaggio ErroreScrittura(const fs::path& percorso, std::error_code ec) {
    return {fmt::format("Impossibile scrivere il file {}: {}.", percorso.string(), Motivo(ec)), "Errore",
            archives::Icona::Stop};
}

std::error_code UltimoErrore() { return {errno ? errno : EIO, std::generic_category()}; }

template <typename Righe, typename Testo>
std::string Contenuto(const Righe& righe, Testo testo) {
    std::string dati;
    for (const auto& r : righe) {
        dati += Utf8InCp1252(testo(r));
        dati += "\r\n";
    }
    return dati;
}

// Writes, flushes and syncs; the file stays open for the caller to close.
std::error_code ScriviTutto(std::FILE* f, std::string_view dati) {
    errno = 0;
    if (std::fwrite(dati.data(), 1, dati.size(), f) != dati.size()) return UltimoErrore();
    if (std::fflush(f) != 0) return UltimoErrore();
#ifdef GORGO_HA_FSYNC
    if (::fsync(::fileno(f)) != 0) return UltimoErrore();
#endif
    return {};
}

std::error_code Chiudi(std::FILE* f, std::error_code ec) {
    errno = 0;
    if (std::fclose(f) != 0 && !ec) return UltimoErrore();
    return ec;
}

// A file of its own beside the target, so that a rename puts it in place whole.
class FileTemporaneo {
public:
    explicit FileTemporaneo(const fs::path& destinazione) {
        std::random_device caso;
        for (int tentativo = 0; tentativo < 16; ++tentativo) {
            auto nome = fmt::format(".{}.{:08x}.tmp", destinazione.filename().string(), caso());
            auto p = destinazione.parent_path() / nome;
            errno = 0;
            // "x": never take over a file that is already there.
            if (std::FILE* f = std::fopen(p.string().c_str(), "wbx")) {
                file_ = f;
                percorso_ = std::move(p);
                return;
            }
            if (errno != EEXIST) break;
        }
        errore_ = UltimoErrore();
    }
    ~FileTemporaneo() {
        if (file_) std::fclose(file_);
        if (!percorso_.empty()) {
            std::error_code ignora;
            fs::remove(percorso_, ignora);
        }
    }
    FileTemporaneo(const FileTemporaneo&) = delete;
    FileTemporaneo& operator=(const FileTemporaneo&) = delete;

    std::error_code errore() const { return errore_; }
    const fs::path& percorso() const { return percorso_; }

    std::error_code scrivi(std::string_view dati) {
        const auto ec = Chiudi(file_, ScriviTutto(file_, dati));
        file_ = nullptr;
        return ec;
    }

private:
    std::FILE* file_ = nullptr;
    fs::path percorso_;
    std::error_code errore_;
};

archives::Messaggio GiaEsistente(const fs::path& percorso) {
    return {fmt::format("Il file {} è già esistente.", percorso.string()), "Errore", archives::Icona::Esclamazione};
}

archives::Messaggio ScriviNuovo(const fs::path& percorso, std::string_view dati, bool sovrascrivi) {
    FileTemporaneo temp(percorso);
    if (temp.errore()) return ErroreScrittura(percorso, temp.errore());
    if (auto ec = temp.scrivi(dati)) return ErroreScrittura(percorso, ec);

    std::error_code ec;
    if (sovrascrivi) {
        // The new file keeps the permissions of the one it replaces.
        const auto stato = fs::status(percorso, ec);
        if (!ec && fs::is_regular_file(stato)) fs::permissions(temp.percorso(), stato.permissions(), ec);
        ec.clear();
        fs::rename(temp.percorso(), percorso, ec);
        return ec ? ErroreScrittura(percorso, ec) : archives::Messaggio{};
    }
    // A hard link does not replace a file that appeared meanwhile; where the file system
    // has no links, a check and a rename do.
    fs::create_hard_link(temp.percorso(), percorso, ec);
    if (ec == std::errc::file_exists) return GiaEsistente(percorso);
    if (ec) {
        if (fs::exists(percorso)) return GiaEsistente(percorso);
        ec.clear();
        fs::rename(temp.percorso(), percorso, ec);
        if (ec) return ErroreScrittura(percorso, ec);
    }
    return {};
}

archives::Messaggio Accoda(const fs::path& percorso, std::string_view dati) {
    std::error_code ec;
    const auto lunghezza = fs::file_size(percorso, ec);
    if (ec) return ErroreScrittura(percorso, ec);
    errno = 0;
    std::FILE* f = std::fopen(percorso.string().c_str(), "ab");
    if (!f) return ErroreScrittura(percorso, UltimoErrore());
    ec = Chiudi(f, ScriviTutto(f, dati));
    if (ec) {
        // Back to what the file held, so no half report stays at its end.
        std::error_code ignora;
        fs::resize_file(percorso, lunghezza, ignora);
        return ErroreScrittura(percorso, ec);
    }
    return {};
}

archives::Messaggio Scrivi(const fs::path& percorso, std::string_view dati, ModoScrittura modo) {
    if (dati.empty()) return {};
    std::error_code ec;
    const bool esiste = fs::exists(percorso, ec);
    switch (modo) {
        case ModoScrittura::Nuovo:
            if (esiste) return GiaEsistente(percorso);
            return ScriviNuovo(percorso, dati, false);
        case ModoScrittura::Sovrascrivi: {
            // Through a link to the file it names, not over the link itself.
            auto vero = fs::is_symlink(percorso, ec) ? fs::canonical(percorso, ec) : percorso;
            return ScriviNuovo(ec ? percorso : vero, dati, true);
        }
        case ModoScrittura::Accoda: return esiste ? Accoda(percorso, dati) : ScriviNuovo(percorso, dati, false);
    }
    return {};
}

}  // namespace

archives::Messaggio ScriviReportSuFile(const fs::path& percorso, std::span<const RigaTesto> righe, ModoScrittura modo) {
    return Scrivi(percorso, Contenuto(righe, [](const RigaTesto& r) -> const std::string& { return r.testo; }), modo);
}

archives::Messaggio ScriviReportSuFile(const fs::path& percorso, std::span<const std::string> righe,
                                       ModoScrittura modo) {
    return Scrivi(percorso, Contenuto(righe, [](const std::string& r) -> const std::string& { return r; }), modo);
}

archives::Messaggio DomandaInCalce(std::string_view nome) {
    return {fmt::format("Il file {} è già esistente. Le informazioni vanno aggiunte in calce ?", nome), "Conferma",
            archives::Icona::Domanda};
}

archives::Messaggio DomandaSovrascrivi(std::string_view nome) {
    return {fmt::format("Il file {} è già esistente. Sovrascrivi ?", nome), "Conferma", archives::Icona::Domanda};
}

}  // namespace gorgo::config
