#pragma once
// Import of the public text archives that players download, and the Lotto archive written
// back in that layout.
//
// Lotto: one wheel a line, "YYYY/MM/DD<TAB>code<TAB>n1<TAB>..<TAB>n5", codes BA CA FI GE MI
// NA PA RM TO VE RN (RM Roma, RN Nazionale; RO and NZ are read too), rows in ascending order
// of date. SuperEnalotto: one draw a line, date, six numbers, Jolly, SuperStar (the last two
// may be missing or empty), separated by tabs or semicolons, newest or oldest first, an
// optional heading line and an optional contest number before the date. Dates as
// YYYY/MM/DD, YYYY-MM-DD or DD/MM/YYYY.
//
// Into an empty archive the whole file is built; into an existing one the draws after its
// last are appended, with the continuity rule of the update files (the file's first draw may
// not be after the archive's last). NumeroAnno, weekday and anni.ind follow the invariants.
// Nothing is written unless the whole file is valid.

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "archives/archivio.h"
#include "archives/messaggio.h"
#include "maintenance/aggiornamento.h"

namespace gorgo::maintenance {

inline constexpr std::string_view TitoloImportazione = "Importazione archivio";

struct EsitoImportazione {
    bool riuscito = false;
    archives::Messaggio messaggio;  // the end message, or the refusal (a faulty line names its number)
    std::string dettaglio;          // more on a refusal of continuity, for the command line
    int riga = 0;                   // 1-based line of the fault, 0 when none
    int32_t estrazioni = 0;         // draws read from the file
    int32_t aggiunte = 0;           // draws appended (0 when only checked)
    int32_t anniAggiunti = 0;
    bool creato = false;                // the archive was empty and has been built
    std::string primaData, ultimaData;  // of the file (dd/mm/yyyy)
    std::string ultimaArchivio;         // the archive's last date afterwards (or at the check)
};

// The draws of a text, checked and numbered, ready to append; no archive is touched.
struct TestoLetto {
    EsitoImportazione esito;                           // riuscito false: the refusal
    std::vector<archives::RecordEstrazione> lotto;     // in ascending date order
    std::vector<archives::RecordSuperEnalotto> super;  // in ascending date order
};

// Reads a whole text in either game's layout. NumeroAnno starts from 1 at each year, so it is
// right for an empty archive; the append renumbers from the archive's last draw.
TestoLetto LeggiTesto(std::string_view testo, Gioco gioco);

// Checks a text against the archive without writing: the esito of ImportaTesto (aggiunte is
// what would be appended).
EsitoImportazione ControllaTesto(const archives::Archivio& archivio, std::string_view testo, Gioco gioco);
// Imports a text. Writes draws and years in one write per file, flushed, then reopens
// `archivio` in write mode. Throws ErroreArchivio on an input/output failure, after taking
// back what it had written.
EsitoImportazione ImportaTesto(archives::Archivio& archivio, std::string_view testo, Gioco gioco);

// The text file inside a zip held in memory: the single .txt, or the first .txt, or the
// first file when none ends in .txt. Nothing, with `errore` set (Italian), when it is no zip
// or holds no file.
std::optional<std::string> EstraiTestoZip(std::string_view zip, std::string* errore = nullptr);
// True when the bytes begin as a zip does ("PK\3\4", or the empty zip's "PK\5\6").
bool SembraZip(std::string_view dati);

// A zip only: its text imported; refused with the zip's own message when it is no zip.
EsitoImportazione ImportaZip(archives::Archivio& archivio, std::string_view zip, Gioco gioco);

// Text or zip, told by their first bytes: what a downloaded public archive or a file picked
// by the user goes through.
EsitoImportazione ControllaDati(const archives::Archivio& archivio, std::string_view dati, Gioco gioco);
EsitoImportazione ImportaDati(archives::Archivio& archivio, std::string_view dati, Gioco gioco);
// The same on a file on disk (a file that cannot be read is refused, naming it).
EsitoImportazione ImportaFile(archives::Archivio& archivio, const std::filesystem::path& file, Gioco gioco);

// The whole Lotto archive in the public layout: ascending dates, wheels in the order BA CA FI
// GE MI NA PA RM TO VE RN, a wheel with no number left out, numbers without leading zeros,
// tabs, "\n" after every line. A stored 0 among numbers of a wheel is written as 0.
std::string EsportaTesto(const archives::Archivio& archivio);
// Writes it to a file (through a temporary file and a rename). Throws ErroreArchivio, also
// when `file` is one of the archive's own files.
void EsportaTesto(const archives::Archivio& archivio, const std::filesystem::path& file);

// Wheel (1..11) of a public code, 0 when none.
int RuotaDaCodice(std::string_view codice);
// The public code of a wheel 1..11 (RM for Roma, RN for Nazionale).
std::string_view CodicePubblico(int ruota);

}  // namespace gorgo::maintenance
