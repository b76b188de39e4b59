#pragma once
// The three archive files below the program folder, open for a whole session.
// Reads go straight to the files (pread); writers append or correct whole records and
// re-read the lengths, so the counts always follow the files.

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "archives/file_record.h"
#include "archives/messaggio.h"
#include "archives/record.h"
#include "archives/storia.h"

namespace gorgo::archives {

enum class ModoApertura {
    Lettura,    // nothing is ever written; absent files count as empty
    Scrittura,  // absent files are created empty, as at the program's start
};

// Selector of DataEstrazione for the SuperEnalotto archive.
constexpr int ArchivioSuper = 21;

class Archivio {
public:
    // Opens Archivi/ below the program folder. Throws ErroreArchivio only when an
    // existing file cannot be opened.
    static Archivio Apri(const std::filesystem::path& percorsoProgramma, ModoApertura modo = ModoApertura::Lettura);
    Archivio(Archivio&&) noexcept;
    Archivio& operator=(Archivio&&) noexcept;
    ~Archivio();

    const std::filesystem::path& PercorsoProgramma() const { return percorso_; }
    std::filesystem::path CartellaArchivi() const { return percorso_ / "Archivi"; }

    int32_t NumeroEstrazioni() const { return numeroEstrazioni_; }
    int32_t NumeroEstrazioniSuper() const { return numeroEstrazioniSuper_; }
    int32_t NumeroAnni() const { return numeroAnni_; }

    RecordEstrazione LeggiEstrazione(int32_t indice) const;
    // Reads draws primo..ultimo (inclusive) in one read.
    std::vector<RecordEstrazione> LeggiEstrazioni(int32_t primo, int32_t ultimo) const;
    RecordAnno LeggiAnno(int32_t n) const;
    std::vector<RecordAnno> LeggiAnni() const;
    RecordSuperEnalotto LeggiRecordSuper(int32_t indice) const;
    std::vector<RecordSuperEnalotto> LeggiTuttiSuper() const;

    // Index clamped to 1..count of the chosen archive (ArchivioSuper for SuperEnalotto).
    std::string DataEstrazione(int32_t indice, int archivio = 1) const;
    // Date to index through anni.ind, reading no more than the year of the date and the
    // first draw after it. Nothing when the walk runs out.
    std::optional<RisultatoRicerca> CercaIndice(const Data& data, bool precedente) const;

    // The whole history in memory, loaded at the first call and kept until a write.
    StoriaCondivisa Storia() const;

    // Appends at NumeroEstrazioni + 1; a record with NumeroAnno 1 also appends its year
    // to anni.ind. Throws ErroreArchivio, leaving both files as they were.
    void AggiungiEstrazione(const RecordEstrazione& record);
    // Overwrites a stored draw; anni.ind is not touched.
    void CorreggiEstrazione(int32_t indice, const RecordEstrazione& record);
    void AggiungiEstrazioneSuper(const RecordSuperEnalotto& record);
    void CorreggiEstrazioneSuper(int32_t indice, const RecordSuperEnalotto& record);

    // Draw records read so far, to show what a lookup costs.
    uint64_t RecordLetti() const { return recordLetti_; }

    // Exact lengths in bytes, for the integrity check.
    uint64_t LunghezzaEstrazioni() const;
    uint64_t LunghezzaAnni() const;
    uint64_t LunghezzaSuper() const;

private:
    Archivio() = default;
    void RileggiLunghezze();

    std::filesystem::path percorso_;
    std::unique_ptr<FileRecord> estrazioni_, anni_, super_;
    int32_t numeroEstrazioni_ = 0, numeroEstrazioniSuper_ = 0, numeroAnni_ = 0;
    mutable StoriaCondivisa storia_;
    mutable uint64_t recordLetti_ = 0;
};

// The start-up check of presence: the system's message when any file is empty, else empty.
Messaggio ControllaPresenzaArchivi(const Archivio& archivio);

// Checks that the files are whole and in step (lengths, year index, date order).
// Returns the first problem found as an Italian message, or an empty message.
Messaggio VerificaIntegrita(const Archivio& archivio);

}  // namespace gorgo::archives
