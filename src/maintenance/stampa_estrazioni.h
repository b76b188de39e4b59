#pragma once
// The printed pages of the draws: Lotto in three layouts (list of one wheel in two columns,
// blocks of all wheels three by three, table of one wheel on the ruler of the 90 numbers),
// SuperEnalotto and 10eLotto in a list each. The pages come composed, each with its header
// and page number, so that the printer only draws lines and the tests can read them.

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "archives/archivio.h"
#include "archives/messaggio.h"
#include "archives/record.h"
#include "archives/superenalotto.h"
#include "config/report_testo.h"

namespace gorgo::maintenance {

enum class LayoutStampa { Lista, Blocchi, Tabella, ListaSuper, Lista10eLotto };

// The system's texts.
inline constexpr std::string_view CaptionStampaEstrazioni = "Gorgo 2 - Stampa estrazioni";
inline constexpr std::string_view TestoDataFinaleMinore = "Data finale minore della data iniziale !";
inline constexpr std::string_view TestoRuotaSingola = "E' necessario selezionare una ruota singola!";
inline constexpr std::string_view RigaDecine =
    "0000000001 1111111112 2222222223 3333333334 4444444445 5555555556 6666666667 7777777778 8888888889";
inline constexpr std::string_view RigaUnita =
    "1234567890 1234567890 1234567890 1234567890 1234567890 1234567890 1234567890 1234567890 1234567890";
inline constexpr std::string_view IntestazioneSuper = "|    DATA    |      N U M E R I       | JOLLY | SUPERSTAR |";

// Counts of the pages.
constexpr int RigheColonnaLista = 50;  // the list: two columns of 50, 100 draws a page
constexpr int EstrazioniPaginaLista = 2 * RigheColonnaLista;
constexpr int BlocchiPerRiga = 3;  // the blocks: three side by side, four rows a page
constexpr int RigheBlocchiPagina = 4;
constexpr int EstrazioniPaginaTabella = 50;  // one line a draw
constexpr int EstrazioniPaginaSuper = 50;
constexpr int EstrazioniPagina10eLotto = 50;
// The table layout's mark of a drawn number on its ruler place.
constexpr char SegnoTabella = 'X';

// The controls of the screens; the twins have no wheel and no table.
struct ParametriStampaEstrazioni {
    std::string dataInizio, dataFine;  // txtDataInizio, txtDataFine
    int ruota = 0;                     // cboRuota: 0 "Tutte     ", 1..11
    bool soloMese = false;             // chkMeseDi
    int mese = 1;                      // cboMesi, 1..12
    bool dataVicina = false;           // chkData
    int giorno = 1, meseVicino = 1;    // cboGiorno, cboMesi1
    bool dettagliata = false;          // chkDettagliata
};

struct StampaComposta {
    archives::Messaggio errore;  // the first failure: nothing to print
    // The dates of the draws found for the two ends: the boxes take them (also when the
    // procedure stops at a later check).
    std::string dataInizio, dataFine;
    LayoutStampa layout = LayoutStampa::Lista;
    std::string font = "Courier New";
    int punti = 10;
    std::string titolo1, titolo2;
    // Every page with its own header; the first line of each page after the first is
    // marked nuovaPagina.
    std::vector<config::RigaTesto> righe;
    int pagine = 0;
    int estrazioni = 0;  // draws printed
};

StampaComposta ComponiStampaLotto(const archives::Archivio& archivio, const ParametriStampaEstrazioni& parametri);
StampaComposta ComponiStampaSuper(const archives::Archivio& archivio, const ParametriStampaEstrazioni& parametri);
StampaComposta ComponiStampa10eLotto(const archives::Archivio& archivio, const ParametriStampaEstrazioni& parametri);

// The lines of one draw.
// "dd/mm/yyyy  nn nn nn nn nn": the date, two blanks, the wheel's five numbers.
std::string RigaLista(const archives::RecordEstrazione& r, int ruota);
// The 90 places of the ruler in nine groups of ten, the drawn ones marked; two blanks, the
// numbers ("#0", right-aligned in two), two blanks, the day of the date ("@@").
std::string RigaTabella(const archives::RecordEstrazione& r, int ruota);
// The row under IntestazioneSuper: date, six numbers, Jolly, SuperStar, each in its cell;
// what the draw does not hold stays blank.
std::string RigaSuper(const archives::EstrazioneSuper& e);
// "dd/mm/yyyy  " and the twenty numbers.
std::string Riga10eLotto(std::string_view data, const std::array<int, 20>& numeri);

}  // namespace gorgo::maintenance
