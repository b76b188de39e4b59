#pragma once
// Update files: a plain run of archive records (66 bytes for Lotto, 20 for SuperEnalotto)
// carried from one installation to another. The check reads the whole file before anything
// is written; the update appends exactly the draws newer than the archive's last, in one
// write per file, and re-reads the lengths. The export writes the Lotto draws from an index
// to the end as such a file.

#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "archives/archivio.h"
#include "archives/messaggio.h"

namespace gorgo::maintenance {

enum class Gioco { Lotto, SuperEnalotto };

constexpr int LunghezzaRecord(Gioco g) {
    return g == Gioco::Lotto ? archives::LunghezzaRecordEstrazione : archives::LunghezzaRecordSuper;
}

// The first draw that an export holds when no start is given.
constexpr int32_t PrimaEsportata = 7773;
// An update file larger than this is no update file (the whole Lotto history is 0.7 MB).
constexpr std::uintmax_t LunghezzaMassimaFile = 64u << 20;

// The system's texts.
inline constexpr std::string_view TitoloAggiornamento = "Aggiornamento archivi";
inline constexpr std::string_view TitoloEsportazione = "Esportazione archivi";
inline constexpr std::string_view TestoDiscontinuita = "Discontinuità di memorizzazione - Aggiornamento impossibile";
inline constexpr std::string_view TestoNienteDiNuovo = "Per il momento non ci sono aggiornamenti utili";
// ErrFile: the path followed by " corrotto o mancante !", title "Errore", stop icon.
archives::Messaggio ErrFile(std::string_view percorso);
archives::Messaggio MessaggioDiscontinuita();
archives::Messaggio MessaggioNienteDiNuovo();
// "Aggiornamento archivi [Superenalotto ]al <data> effettuato".
archives::Messaggio MessaggioAggiornamentoEffettuato(Gioco gioco, std::string_view ultimaData);
// "Esportazione archivio <file> al <data> effettuata".
archives::Messaggio MessaggioEsportazioneEffettuata(std::string_view nomeFile, std::string_view ultimaData);

enum class StatoAggiornamento {
    Corrotto,       // ErrFile: length, a date, or a record that would break the archive
    Discontinuo,    // the first draw is after the archive's last: a gap
    NienteDiNuovo,  // acceptable, but it ends at or before the archive's last draw
    ArchivioVuoto,  // nothing to continue: an update needs a stored last draw
    Pronto,         // acceptable and brings `nuove` draws
};

struct ControlloAggiornamento {
    StatoAggiornamento stato = StatoAggiornamento::Corrotto;
    // The system's message for every state but Pronto and NienteDiNuovo (which the screens of
    // files show silently, and the Internet update with TestoNienteDiNuovo).
    archives::Messaggio messaggio;
    // Which record is wrong and why, for the command line; the screens show only `messaggio`.
    std::string dettaglio;
    int32_t record = 0;     // records in the file
    std::string primaData;  // of the file's first and last records (when valid dates)
    std::string ultimaData;
    std::string ultimaArchivio;  // the archive's last date at the check
    int32_t primaNuova = 0;      // 0-based position in the file of the first new draw
    int32_t nuove = 0;           // draws that the update appends

    bool pronto() const { return stato == StatoAggiornamento::Pronto; }
};

// Every check of a file against the archive, reading nothing but `dati` and the archive.
// Beyond the length and the dates of the first and last record, a file is refused as
// corrupt when its dates are not valid and strictly ascending, or when a draw it would append
// has a weekday that is not its date's, a number above 90, a spare byte set (SuperEnalotto),
// or a NumeroAnno out of step (1 exactly at the first draw of a year, else the previous
// plus 1): such a file would put the archive out of step with its invariants.
// `percorso` only names the file in the messages.
ControlloAggiornamento ControllaAggiornamento(const archives::Archivio& archivio, std::string_view dati, Gioco gioco,
                                              std::string_view percorso);

struct EsitoAggiornamento {
    bool riuscito = false;
    ControlloAggiornamento controllo;  // the check made just before writing
    archives::Messaggio messaggio;     // the end message, or the refusal
    int32_t aggiunte = 0;              // draws appended
    int32_t anniAggiunti = 0;          // records appended to anni.ind
    std::string ultimaData;            // the archive's last date afterwards
    int ultimoNumeroAnno = 0;          // NumeroAnno of the last draw afterwards
};

// Checks `dati` again and, when it brings something new, appends the new draws (and for
// Lotto the year records of those with NumeroAnno 1) in one write per file, flushed, then
// reopens `archivio` in write mode so that its counts follow the files. On any refusal
// nothing is written. A file with nothing new is no refusal: riuscito with 0 aggiunte and
// the message TestoNienteDiNuovo. Throws ErroreArchivio on an input/output failure, after
// taking back what it had written.
EsitoAggiornamento ApplicaAggiornamento(archives::Archivio& archivio, std::string_view dati, Gioco gioco,
                                        std::string_view percorso);

// The bytes of a file chosen by the user; nothing when it cannot be read or is larger than
// LunghezzaMassimaFile (both reported through ErrFile).
std::optional<std::string> LeggiFileAggiornamento(const std::filesystem::path& percorso);

// Convenience for a file on disk: read, then check or apply.
ControlloAggiornamento ControllaFileAggiornamento(const archives::Archivio& archivio,
                                                  const std::filesystem::path& percorso, Gioco gioco);
EsitoAggiornamento ApplicaFileAggiornamento(archives::Archivio& archivio, const std::filesystem::path& percorso,
                                            Gioco gioco);

struct EsitoEsportazione {
    bool riuscito = false;
    archives::Messaggio messaggio;  // the end message, or why nothing was written
    int32_t esportate = 0;
    std::string primaData;  // empty when nothing was written
    std::string ultimaData;
};

// True when `file` is one of the archive's own files: no export may replace them.
bool FileDellArchivio(const archives::Archivio& archivio, const std::filesystem::path& file);
// "Il file <file> è un archivio del programma: scegliere un altro nome.", title "Errore".
archives::Messaggio MessaggioFileDellArchivio(std::string_view file);

// Writes Lotto draws primoIndice..NumeroEstrazioni as raw records to `file`, replacing it
// (through a temporary file and a rename). An archive shorter than primoIndice gives an
// empty file and still the end message, with an empty date. primoIndice below 1 counts as 1.
// Refused (riuscito false, nothing written) when `file` is a file of the archive.
EsitoEsportazione EsportaAggiornamento(const archives::Archivio& archivio, const std::filesystem::path& file,
                                       int32_t primoIndice = PrimaEsportata);

// The writers' common step. Appends whole draws at the end of Estrazioni.ind in one write,
// and for each draw with NumeroAnno 1 its year to anni.ind in one more; each write is
// flushed and the lengths re-read; on a failure both files are put back as they were and
// ErroreArchivio is thrown. `archivio` is reopened in write mode afterwards. The caller has
// checked the draws. Returns the year records appended.
int32_t AccodaEstrazioni(archives::Archivio& archivio, std::span<const archives::RecordEstrazione> nuove);
void AccodaEstrazioniSuper(archives::Archivio& archivio, std::span<const archives::RecordSuperEnalotto> nuove);

// Replaces `file` with `contenuto` through a temporary file in the same folder and a rename,
// so that a failed write leaves the old file. Throws ErroreArchivio.
void ScriviFileSostituendo(const std::filesystem::path& file, std::string_view contenuto);

// What the crash repair did; all zero when the archive was whole.
struct EsitoRiparazione {
    uint64_t byteTroncatiEstrazioni = 0;  // a partial trailing draw
    uint64_t byteTroncatiAnni = 0;        // a partial trailing year, or years past the draws
    uint64_t byteTroncatiSuper = 0;
    int32_t anniAggiunti = 0;  // years restored from the draws
    bool riparato() const { return byteTroncatiEstrazioni || byteTroncatiAnni || byteTroncatiSuper || anniAggiunti; }
    // An Italian line saying what was repaired; empty when nothing was.
    std::string descrizione;
};

// Brings the files of Archivi/ back in step after a crash: truncates a partial trailing
// record of each file, drops year records that point past the last draw, and appends the
// year records of the draws after the last indexed year (at each change of year, the index
// of that year's first draw). Works on the paths only, so it can run before the archive is
// opened; creates nothing but the new anni.ind, which replaces the old one through a rename.
// With soloVerifica it writes nothing and says what it would repair. Throws ErroreArchivio on
// an input/output failure.
EsitoRiparazione RiparaCartellaArchivi(const std::filesystem::path& cartellaArchivi, bool soloVerifica = false);
// The same on an open archive, which is reopened in write mode when anything changed.
EsitoRiparazione RiparaArchivio(archives::Archivio& archivio);

}  // namespace gorgo::maintenance
