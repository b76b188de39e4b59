#pragma once
// Every key of Gorgo.ini with its section and default, the window memory of the screens,
// booleans, the search range and the wheel boxes that the screens keep in the settings.

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "archives/messaggio.h"
#include "config/ini.h"

namespace gorgo::config {

namespace sezioni {
inline constexpr std::string_view Settings = "Settings";
inline constexpr std::string_view Options = "Options";
inline constexpr std::string_view Forms = "Forms";
inline constexpr std::string_view Restrizioni = "Restrizioni";
}  // namespace sezioni

// Where the update files are served from: a deployment setting.
inline constexpr std::string_view UrlPredefinita = "http://localhost/gorgo/";

inline constexpr std::string_view TestoVero = "True";
inline constexpr std::string_view TestoFalso = "False";

// Ninety "1": every number admitted.
inline constexpr std::string_view NovantaUno =
    "111111111111111111111111111111111111111111111111111111111111111111111111111111111111111111";
static_assert(NovantaUno.size() == 90);

inline constexpr std::string_view PosizionePredefinita = "1000";

enum class TipoPredefinito {
    Testo,             // the text in the table
    NumeroEstrazioni,  // the length of the Lotto archive
    Centrato,          // computed by the main window from the screen size
};

struct VoceImpostazione {
    std::string_view sezione;
    std::string_view chiave;
    std::string_view predefinito;  // meaningful for TipoPredefinito::Testo
    TipoPredefinito tipo = TipoPredefinito::Testo;
};

std::span<const VoceImpostazione> TabellaImpostazioni();
// Section and key compared case-insensitively, as the file does.
const VoceImpostazione* CercaImpostazione(std::string_view sezione, std::string_view chiave);

// The default of a key of the table; `numeroEstrazioni` serves FineRicerca and `centrato` the
// main window's MainLeft or MainTop. The empty text for a key the table does not hold.
std::string Predefinito(std::string_view sezione, std::string_view chiave, int32_t numeroEstrazioni = 0,
                        int32_t centrato = 0);

// Checks a value before it is written from outside the screens (the command line): the key
// must be in the table and the value of the form its readers expect. An empty message when
// the value can be written.
archives::Messaggio ControllaValoreImpostazione(std::string_view sezione, std::string_view chiave,
                                                std::string_view valore);
// A window position as the host prints it: a single-precision number, with "." or "," before
// the decimals and an optional exponent; nothing when the text is not a number.
std::optional<double> NumeroPosizione(std::string_view testo);
// The longest value the settings give back whole.
inline constexpr std::size_t LunghezzaMassimaValore = 1000;

// The two keys in section Forms where a screen keeps its place, by the screen's name.
struct ChiaviPosizione {
    std::string_view left;
    std::string_view top;
};
std::optional<ChiaviPosizione> PosizioneFinestra(std::string_view schermo);

// True/False, Vero/Falso, Y/N and whole numbers (nonzero is true), case-insensitively.
std::optional<bool> TestoBooleano(std::string_view testo);
bool LeggiBooleano(const FileIni& ini, std::string_view sezione, std::string_view chiave, bool predefinito);

// InizioRicerca and FineRicerca as progressive indices. A text that is no whole number reads
// as the default, and both are held inside 1..numeroEstrazioni so the screen can show a date.
struct IndiciRicerca {
    int32_t IndiceInizio = 1;
    int32_t IndiceFine = 1;
};
IndiciRicerca LeggiIndiciRicerca(const FileIni& ini, int32_t numeroEstrazioni);

// Wheel boxes of a screen: index 0 stands for the ten regional wheels, 1..11 the wheels.
using CaselleRuote = std::array<bool, 12>;

// From the eleven letters: all of wheels 1..10 ticks box 0 alone, otherwise one box a "Y";
// wheel 11 follows its letter. Missing letters and letters other than "Y" read as "N".
CaselleRuote CaricaRuoteConNz(std::string_view lettere);
CaselleRuote CaricaRuoteGioco(std::string_view lettere);
CaselleRuote CaricaRuote(std::string_view lettere);

// The eleven letters of the boxes: box 0 stands for wheels 1..10.
std::string LettereRuote(const CaselleRuote& caselle);

// After a click on box `indice` of the builder (its new state already in `caselle`): a tick
// on box 0 clears 1..10, a tick on 1..10 clears box 0. Returns the letters to store.
std::string SalvaRuoteConNz(CaselleRuote& caselle, int indice);
std::string SalvaRuoteGioco(CaselleRuote& caselle, int indice);
// One-wheel screens: the clicked box becomes the only one ticked.
std::string SalvaRuote(CaselleRuote& caselle, int indice);

}  // namespace gorgo::config
