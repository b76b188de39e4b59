#pragma once
// Text reports: fixed-pitch lines, laid out with blanks, composed once and sent either to
// a text file (here) or to the printer (the screens draw the same lines). Columns are
// character cells counted from 1, as the layouts of the reports give them.

#include <cstddef>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "archives/messaggio.h"

namespace gorgo::config {

inline constexpr std::string_view TitoloReport = "Gorgo 2 - Ideato da Sergio Tordelli";
inline constexpr std::string_view TitoloSalvaRisultati = "Salva risultati su file";
inline constexpr std::string_view FiltroFileTesto = "File di testo (*.Txt)|*.Txt";
inline constexpr std::string_view FiltroFileTestoMinuscolo = "File di testo (*.txt)|*.txt";
inline constexpr std::string_view NullaDaStampare = "Non c'è nulla da stampare!";
inline constexpr std::string_view NullaDaEsportare = "Non c'è nulla da esportare!";

// Page headers are centred on this many columns; the page number stands at ColonnaPagina.
inline constexpr int LarghezzaPagina = 80;
inline constexpr int ColonnaPagina = 65;
// Parameter lines: the label from column 1, ":" at ColonnaDuePunti, in a field this wide.
inline constexpr int LarghezzaParametro = 32;
inline constexpr int ColonnaDuePunti = 31;

struct RigaTesto {
    std::string testo;
    bool grassetto = false;
    bool nuovaPagina = false;  // the printer starts a new page before this line

    bool operator==(const RigaTesto&) const = default;
};

// One row of a table: a text of blanks of the table's width with values placed by column.
// A row built in a text of blanks of the report's width, values written in by position in the
// order they are placed: a value longer than its cell overruns the next cell (and is
// overwritten there by what is placed after it), and the row grows past the width when a value
// ends beyond it. Nothing is cut or wrapped.
class RigaReport {
public:
    explicit RigaReport(int larghezza);

    RigaReport& metti(int colonna, std::string_view testo);            // first character at colonna
    RigaReport& mettiDestra(int colonnaFine, std::string_view testo);  // last character at colonnaFine
    RigaReport& mettiCentrato(int colonnaInizio, int colonnaFine, std::string_view testo);

    std::string testo() const;

private:
    void posa(int inizio, std::u32string_view valore);  // inizio from 0
    std::u32string celle_;
};

// "Spia" + 26 blanks + ": " + value.
std::string RigaParametro(std::string_view etichetta, std::string_view valore);

// Leading blanks (LarghezzaPagina - length) / 2, none for a text longer than the page.
std::string Centrato(std::string_view testo, int larghezza = LarghezzaPagina);

// A boxed table: title line, rule, heading, rule, the rows, rule. The rule is made of "-"
// with "*" at the boundaries ("°" inside merged cells), the heading has "|" there.
struct Tabella {
    std::string titolo;  // empty: no title line
    std::string regola;
    std::string intestazione;

    int larghezza() const;
    RigaReport riga() const { return RigaReport(larghezza()); }
};

class ReportTesto {
public:
    ReportTesto& titolo();  // TitoloReport, then a blank line
    ReportTesto& parametro(std::string_view etichetta, std::string_view valore);
    ReportTesto& riga(std::string testo, bool grassetto = false);
    ReportTesto& riga(const RigaReport& r) { return riga(r.testo()); }
    ReportTesto& rigaVuota() { return riga(std::string()); }
    ReportTesto& aggiungi(std::span<const RigaTesto> altre);
    // The next line starts a page; with no line after it the mark is dropped.
    ReportTesto& nuovaPagina();
    ReportTesto& apriTabella(Tabella tabella);
    ReportTesto& chiudiTabella();  // the rule under the last row

    const std::vector<RigaTesto>& righe() const { return righe_; }
    bool vuoto() const { return righe_.empty(); }
    // The rows of the open table are built on this.
    RigaReport rigaTabella() const { return tabella_.riga(); }

private:
    std::vector<RigaTesto> righe_;
    Tabella tabella_;
    bool tabellaAperta_ = false;
    bool nuovaPagina_ = false;
};

// The block at the top of each printed page: blank; bold on; title 1 centred; blank;
// title 2 centred; "Pag." at column 65 and the number as "@@@@"; blank; bold off.
std::vector<RigaTesto> IntestazionePagina(std::string_view titolo1, std::string_view titolo2, int pagina);

enum class ModoScrittura {
    Nuovo,        // refused if the file exists
    Accoda,       // below what the file holds; created if missing
    Sovrascrivi,  // replaces the file whole, or leaves it as it was
};

// Windows-1252, CRLF after each line, no page headers. An empty report writes nothing and
// creates no file. Returns an empty message on success, else the error to show; a file
// that fails is left as it was (an append is cut back to its old length).
archives::Messaggio ScriviReportSuFile(const std::filesystem::path& percorso, std::span<const RigaTesto> righe,
                                       ModoScrittura modo);
archives::Messaggio ScriviReportSuFile(const std::filesystem::path& percorso, std::span<const std::string> righe,
                                       ModoScrittura modo);
inline archives::Messaggio ScriviReportSuFile(const std::filesystem::path& percorso, const ReportTesto& report,
                                              ModoScrittura modo) {
    return ScriviReportSuFile(percorso, std::span<const RigaTesto>(report.righe()), modo);
}

// The questions when the chosen file exists, under "Conferma". The first one has Yes
// (Accoda), No (Sovrascrivi) and Cancel; the second Yes and No; No is the default.
archives::Messaggio DomandaInCalce(std::string_view nome);
archives::Messaggio DomandaSovrascrivi(std::string_view nome);

}  // namespace gorgo::config
