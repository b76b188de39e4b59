#pragma once
// Search restrictions: which draws a statistical search looks at, by weekday, month and part of
// the year. Stored in section Restrizioni; the builder and the quaterna search apply them.

#include <array>
#include <string>
#include <string_view>

#include "archives/messaggio.h"
#include "config/ini.h"

namespace gorgo::config {

struct Restrizioni {
    // The switches: true when the key is "Y".
    bool Giorno = false;
    bool Mese = false;
    bool Periodo = false;
    bool Numero = false;

    std::array<bool, 8> GiornoAmmesso{};     // 1 = Sunday .. 7 = Saturday
    std::array<bool, 13> MeseAmmesso{};      // 1..12
    std::array<bool, 367> PeriodoAmmesso{};  // day of a non-leap year from 0 = 1 January
    std::array<bool, 91> NumeroAmmesso{};    // 1..90; 0 is a copy of 90
};

Restrizioni LeggiRestrizioni(const FileIni& ini);

// The filter, once per draw: `data` is the record's ddmmyyyy, `giorno` its weekday digit.
// An invalid date is never admitted.
bool EstrazioneAmmessa(const Restrizioni& r, std::string_view data, char giorno);

// The summary of the active restrictions: parts joined by "-" when `trattino`, else by "\n".
std::string TestoRestrizioni(const FileIni& ini, bool senzaNumeri, bool trattino);

// The panel of the main window: lblRestrizioni(0..3) and lblNessuna.
inline constexpr std::array<std::string_view, 4> TestiRestrizioni = {
    "-  Su uno o più numeri", "-  Su uno o più giorni estrazione", "-  Su uno o più mesi",
    "-  Periodo dell'anno definito"};
inline constexpr std::string_view TestoNessuna = "Nessuna";
inline constexpr int PassoRigheTwips = 280;

struct StatoPannelloRestrizioni {
    std::array<bool, 4> visibile{};
    std::array<int, 4> top{};  // twips from the top of the panel, for the labels shown
    bool nessuna = true;       // lblNessuna shows
    int NumeriAttivi = 90;
};

StatoPannelloRestrizioni PannelloRestrizioni(const FileIni& ini);

// The dialog frmOpzioni, "Restrizioni di ricerca".
struct ScelteRestrizioni {
    bool chkGiorni = false;
    bool chkMesi = false;
    bool chkPeriodo = false;
    std::array<bool, 8> chkDay{};    // 1 = Sunday .. 7
    std::array<bool, 13> chkMese{};  // 1..12
    std::array<int, 2> cboGiorno{};  // 1..31: 0 start, 1 end of the period
    std::array<int, 2> cboMese{};    // 1..12
};

// The controls as the stored keys set them at load.
ScelteRestrizioni CaricaScelteRestrizioni(const FileIni& ini);

struct EsitoRestrizioni {
    archives::Messaggio errore;      // when not empty nothing was written
    std::array<int, 2> cboGiorno{};  // the days after the correction to the month's length
};

// cmdOk: corrects the days of short months, then writes the keys; Numero and Numeri empty.
EsitoRestrizioni SalvaRestrizioni(FileIni& ini, const ScelteRestrizioni& scelte);

// The dialog frmEsclusioni, "Opzioni": drawing days and the tips box.
struct ScelteEsclusioni {
    std::array<bool, 8> chkDay{};  // 1 = Sunday .. 7
    bool chkLoadTipsAtStartup = true;
};

ScelteEsclusioni CaricaGiorniEstrazione(const FileIni& ini);
// With no day ticked returns the message and writes nothing.
archives::Messaggio SalvaGiorniEstrazione(FileIni& ini, const ScelteEsclusioni& scelte);

}  // namespace gorgo::config
