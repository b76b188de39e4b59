#include "config/impostazioni.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <string>

#include <fmt/format.h>

#include "archives/data.h"
#include "config/cp1252.h"

namespace gorgo::config {

namespace {

constexpr VoceImpostazione V(std::string_view sezione, std::string_view chiave, std::string_view predefinito,
                             TipoPredefinito tipo = TipoPredefinito::Testo) {
    return {sezione, chiave, predefinito, tipo};
}

constexpr std::string_view S = sezioni::Settings;
constexpr std::string_view O = sezioni::Options;
constexpr std::string_view F = sezioni::Forms;
constexpr std::string_view R = sezioni::Restrizioni;
constexpr std::string_view P = PosizionePredefinita;

// clang-format off
constexpr VoceImpostazione kTabella[] = {
    V(F, "MainLeft", "", TipoPredefinito::Centrato),
    V(F, "MainTop", "", TipoPredefinito::Centrato),
    V(F, "OpzioniLeft", P), V(F, "OpzioniTop", P),
    V(F, "GorgoLeft", P), V(F, "GorgoTop", P),
    V(F, "ConsultaLeft", P), V(F, "ConsultaTop", P),
    V(F, "AnalisiLeft", P), V(F, "AnalisiTop", P),
    V(F, "AmboEnucleatoLeft", P), V(F, "AmboEnucleatoTop", P),
    V(F, "AmbateAmbiTerniLeft", P), V(F, "AmbateAmbiTerniTop", P),
    V(F, "GraficoSommeDistanzeLeft", P), V(F, "GraficoSommeDistanzeTop", P),
    V(F, "SommeDistanzeLeft", P), V(F, "SommeDistanzeTop", P),
    V(F, "UtilityLeft", P), V(F, "UtilityTop", P),
    V(F, "SimpaticiLeft", P), V(F, "SimpaticiTop", P),
    V(F, "PuntiIncognitiLeft", P), V(F, "PuntiIncognitiTop", P),
    V(F, "PrecursoriLeft", P), V(F, "PrecursoriTop", P),
    V(F, "PrecursoriSuperLeft", P), V(F, "PrecursoriSuperTop", P),
    V(F, "Precursori10Left", P), V(F, "Precursori10Top", P),
    V(F, "Consulta10eLotto10Left", P), V(F, "Consulta10eLotto10Top", P),

    V(S, "ColoreForm", "12566463"),
    V(S, "ColoreEtichette", "15724527"),
    V(S, "ColoreListe", "9033978"),
    V(S, "Minimizza", TestoFalso),
    V(S, "InizioRicerca", "1"),
    V(S, "FineRicerca", "", TipoPredefinito::NumeroEstrazioni),
    V(S, "RuoteConNz", "YNNNNNNNNNN"),
    V(S, "RuoteConNzGioco", "YNNNNNNNNNN"),
    V(S, "Ruota", "YNNNNNNNNNN"),
    V(S, "Ruote", "YYYYYYYYYYN"),
    V(S, "AnalisiSommeDistanze", "1"),

    V(O, "Giorni estrazione", "NNYNYNY"),
    V(O, "Show Tips at Startup", "1"),
    V(O, "Url", UrlPredefinita),
    // The public archive moves from time to time: the user sets where it is.
    V(O, "UrlStorico", ""),
    V(O, "Riepilogo", TestoFalso),
    V(O, "FileFormazioni", ""),
    V(O, "FileTerzine", ""),

    V(R, "Giorno", "N"),
    V(R, "Mese", "N"),
    V(R, "Periodo", "N"),
    V(R, "Numero", "N"),
    V(R, "Giorni", "YYYYYYY"),
    V(R, "Mesi", "YYYYYYYYYYYY"),
    V(R, "Dal", "01gennaio"),
    V(R, "Al", "31dicembre"),
    V(R, "Numeri", NovantaUno),
    V(R, "NumeriTordelli", NovantaUno),
};
// clang-format on

struct Finestra {
    std::string_view schermo;
    ChiaviPosizione chiavi;
};

constexpr Finestra kFinestre[] = {
    {"frmMain", {"MainLeft", "MainTop"}},
    {"frmOpzioni", {"OpzioniLeft", "OpzioniTop"}},
    {"frmCostruttore", {"GorgoLeft", "GorgoTop"}},
    {"frmConsultaEstrazioni", {"ConsultaLeft", "ConsultaTop"}},
    {"frmAnalisi", {"AnalisiLeft", "AnalisiTop"}},
    {"frmAmboEnucleato", {"AmboEnucleatoLeft", "AmboEnucleatoTop"}},
    {"frmAmbateAmbiTerniMulti", {"AmbateAmbiTerniLeft", "AmbateAmbiTerniTop"}},
    {"frmGraficoSomme", {"GraficoSommeDistanzeLeft", "GraficoSommeDistanzeTop"}},
    {"frmSommeDistanze", {"SommeDistanzeLeft", "SommeDistanzeTop"}},
    {"frmUtility", {"UtilityLeft", "UtilityTop"}},
    {"frmNumeriSimpatici", {"SimpaticiLeft", "SimpaticiTop"}},
    {"frmPuntiIncogniti", {"PuntiIncognitiLeft", "PuntiIncognitiTop"}},
    // The three Lotto precursor screens share one place.
    {"frmPrecursoriTordelli", {"PrecursoriLeft", "PrecursoriTop"}},
    {"frmPrecursoriTordelliGruppi", {"PrecursoriLeft", "PrecursoriTop"}},
    {"frmPrecursoriSaruni", {"PrecursoriLeft", "PrecursoriTop"}},
    {"frmPrecursoriTordelliSuper", {"PrecursoriSuperLeft", "PrecursoriSuperTop"}},
    {"frmPrecursoriTordelli10eLotto", {"Precursori10Left", "Precursori10Top"}},
    {"frm10EstrazioniSuperEnaLotto", {"Consulta10eLotto10Left", "Consulta10eLotto10Top"}},
    {"frm10Estrazioni10eLotto", {"Consulta10eLotto10Left", "Consulta10eLotto10Top"}},
};

std::optional<int64_t> Intero(std::string_view t) {
    while (!t.empty() && t.front() == ' ') t.remove_prefix(1);
    while (!t.empty() && t.back() == ' ') t.remove_suffix(1);
    if (!t.empty() && t.front() == '+') t.remove_prefix(1);
    int64_t n = 0;
    const auto [fine, errore] = std::from_chars(t.data(), t.data() + t.size(), n);
    if (t.empty() || errore != std::errc{} || fine != t.data() + t.size()) return std::nullopt;
    return n;
}

int32_t IndiceDa(const FileIni& ini, std::string_view chiave, int32_t predefinito, int32_t numeroEstrazioni) {
    const auto n = Intero(LeggiImpostazione(ini, sezioni::Settings, chiave, fmt::format("{}", predefinito)));
    int64_t indice = n.value_or(predefinito);
    if (numeroEstrazioni >= 1) indice = std::clamp<int64_t>(indice, 1, numeroEstrazioni);
    return static_cast<int32_t>(indice);
}

}  // namespace

std::span<const VoceImpostazione> TabellaImpostazioni() { return kTabella; }

const VoceImpostazione* CercaImpostazione(std::string_view sezione, std::string_view chiave) {
    for (const VoceImpostazione& v : kTabella)
        if (UgualiSenzaMaiuscole(v.sezione, sezione) && UgualiSenzaMaiuscole(v.chiave, chiave)) return &v;
    return nullptr;
}

std::string Predefinito(std::string_view sezione, std::string_view chiave, int32_t numeroEstrazioni, int32_t centrato) {
    const VoceImpostazione* v = CercaImpostazione(sezione, chiave);
    if (!v) return {};
    switch (v->tipo) {
        case TipoPredefinito::NumeroEstrazioni: return fmt::format("{}", numeroEstrazioni);
        case TipoPredefinito::Centrato: return fmt::format("{}", centrato);
        case TipoPredefinito::Testo: break;
    }
    return std::string(v->predefinito);
}

std::optional<ChiaviPosizione> PosizioneFinestra(std::string_view schermo) {
    for (const Finestra& f : kFinestre)
        if (f.schermo == schermo) return f.chiavi;
    return std::nullopt;
}

std::optional<bool> TestoBooleano(std::string_view testo) {
    while (!testo.empty() && testo.front() == ' ') testo.remove_prefix(1);
    while (!testo.empty() && testo.back() == ' ') testo.remove_suffix(1);
    for (std::string_view vero : {"True", "Vero", "Y"})
        if (UgualiSenzaMaiuscole(testo, vero)) return true;
    for (std::string_view falso : {"False", "Falso", "N"})
        if (UgualiSenzaMaiuscole(testo, falso)) return false;
    if (const auto n = Intero(testo)) return *n != 0;
    return std::nullopt;
}

bool LeggiBooleano(const FileIni& ini, std::string_view sezione, std::string_view chiave, bool predefinito) {
    const std::string testo = LeggiImpostazione(ini, sezione, chiave, predefinito ? TestoVero : TestoFalso);
    return TestoBooleano(testo).value_or(predefinito);
}

IndiciRicerca LeggiIndiciRicerca(const FileIni& ini, int32_t numeroEstrazioni) {
    return {IndiceDa(ini, "InizioRicerca", 1, numeroEstrazioni),
            IndiceDa(ini, "FineRicerca", numeroEstrazioni, numeroEstrazioni)};
}

CaselleRuote CaricaRuoteConNz(std::string_view lettere) {
    CaselleRuote c{};
    const auto y = [&](std::size_t ruota) { return ruota <= lettere.size() && lettere[ruota - 1] == 'Y'; };
    bool tutte = true;
    for (std::size_t r = 1; r <= 10; ++r) tutte = tutte && y(r);
    c[0] = tutte;
    for (std::size_t r = 1; r <= 10; ++r) c[r] = !tutte && y(r);
    c[11] = y(11);
    return c;
}

CaselleRuote CaricaRuoteGioco(std::string_view lettere) { return CaricaRuoteConNz(lettere); }
CaselleRuote CaricaRuote(std::string_view lettere) { return CaricaRuoteConNz(lettere); }

std::string LettereRuote(const CaselleRuote& caselle) {
    std::string s(11, 'N');
    for (std::size_t r = 1; r <= 11; ++r)
        if (caselle[r] || (caselle[0] && r <= 10)) s[r - 1] = 'Y';
    return s;
}

std::string SalvaRuoteConNz(CaselleRuote& caselle, int indice) {
    if (indice == 0 && caselle[0]) std::fill(caselle.begin() + 1, caselle.begin() + 11, false);
    if (indice >= 1 && indice <= 10 && caselle[static_cast<std::size_t>(indice)]) caselle[0] = false;
    return LettereRuote(caselle);
}

std::string SalvaRuoteGioco(CaselleRuote& caselle, int indice) { return SalvaRuoteConNz(caselle, indice); }

std::string SalvaRuote(CaselleRuote& caselle, int indice) {
    if (indice >= 0 && indice <= 11) {
        caselle.fill(false);
        caselle[static_cast<std::size_t>(indice)] = true;
    }
    return LettereRuote(caselle);
}

}  // namespace gorgo::config

namespace gorgo::config {

std::optional<double> NumeroPosizione(std::string_view t) {
    while (!t.empty() && t.front() == ' ') t.remove_prefix(1);
    while (!t.empty() && t.back() == ' ') t.remove_suffix(1);
    if (!t.empty() && t.front() == '+') t.remove_prefix(1);
    // from_chars ignores the locale, which a Qt program sets from the environment; a comma
    // is read as the decimal point of an Italian system.
    std::string s(t);
    std::replace(s.begin(), s.end(), ',', '.');
    double d = 0;
    const auto [fine, errore] = std::from_chars(s.data(), s.data() + s.size(), d);
    if (s.empty() || errore != std::errc{} || fine != s.data() + s.size() || !std::isfinite(d)) return std::nullopt;
    return d;
}

namespace {

bool SoloLettere(std::string_view v, std::string_view ammesse, std::size_t lunghezza) {
    return v.size() == lunghezza && v.find_first_not_of(ammesse) == std::string_view::npos;
}

bool GiornoMese(std::string_view v) {
    if (v.size() < 3 || v[0] < '0' || v[0] > '3' || v[1] < '0' || v[1] > '9') return false;
    const int giorno = (v[0] - '0') * 10 + (v[1] - '0');
    const int mese = archives::NumeroMese(v.substr(2));
    return mese != 0 && giorno >= 1 && giorno <= archives::GiorniNelMese(mese, 2001);
}

}  // namespace

archives::Messaggio ControllaValoreImpostazione(std::string_view sezione, std::string_view chiave,
                                                std::string_view valore) {
    auto errore = [&](std::string_view atteso) {
        return archives::Messaggio{
            fmt::format("Valore non valido per {} nella sezione {}: \"{}\". {}", chiave, sezione, valore, atteso),
            "Errore", archives::Icona::Esclamazione};
    };
    const VoceImpostazione* v = CercaImpostazione(sezione, chiave);
    if (!v)
        return {
            fmt::format("La chiave \"{}\" della sezione \"{}\" non è un'impostazione del programma.", chiave, sezione),
            "Errore", archives::Icona::Esclamazione};
    if (const std::size_t n = NumeroCaratteri(valore); n > LunghezzaMassimaValore)
        return {fmt::format("Il valore di {} è troppo lungo ({} caratteri): il massimo è {}.", chiave, n,
                            LunghezzaMassimaValore),
                "Errore", archives::Icona::Esclamazione};
    for (unsigned char c : valore)
        if (c < 32) return errore("Il valore non può contenere caratteri di controllo.");

    const std::string_view k = v->chiave;
    const auto intero = Intero(valore);
    if (v->sezione == sezioni::Forms) {
        const auto n = NumeroPosizione(valore);
        return n && *n > -10000000 && *n < 10000000 ? archives::Messaggio{}
                                                    : errore("Serve un numero (twip), anche con i decimali.");
    }
    if (k.starts_with("Colore"))
        return intero && *intero >= 0 && *intero <= 0xFFFFFF ? archives::Messaggio{}
                                                             : errore("Serve un colore da 0 a 16777215.");
    if (k == "InizioRicerca" || k == "FineRicerca" || k == "AnalisiSommeDistanze")
        return intero && *intero >= 1 && *intero <= std::numeric_limits<int32_t>::max()
                   ? archives::Messaggio{}
                   : errore("Serve un numero intero positivo.");
    if (k == "RuoteConNz" || k == "RuoteConNzGioco" || k == "Ruota" || k == "Ruote")
        return SoloLettere(valore, "YN", 11) ? archives::Messaggio{}
                                             : errore("Servono 11 lettere Y o N, una per ruota.");
    if (k == "Giorni estrazione" || k == "Giorni")
        return SoloLettere(valore, "YN", 7) ? archives::Messaggio{}
                                            : errore("Servono 7 lettere Y o N, una per giorno dalla domenica.");
    if (k == "Mesi")
        return SoloLettere(valore, "YN", 12) ? archives::Messaggio{}
                                             : errore("Servono 12 lettere Y o N, una per mese.");
    if (k == "Giorno" || k == "Mese" || k == "Periodo" || k == "Numero")
        return valore == "Y" || valore == "N" || (k == "Numero" && valore.empty()) ? archives::Messaggio{}
                                                                                   : errore("Serve Y oppure N.");
    if (k == "Numeri" || k == "NumeriTordelli")
        return valore.empty() || SoloLettere(valore, "01", 90) ? archives::Messaggio{}
                                                               : errore("Servono 90 cifre 0 o 1, una per numero.");
    if (k == "Dal" || k == "Al")
        return GiornoMese(valore) ? archives::Messaggio{}
                                  : errore("Serve il giorno in due cifre seguito dal mese, come 01gennaio.");
    if (k == "Show Tips at Startup")
        return valore == "0" || valore == "1" ? archives::Messaggio{} : errore("Serve 1 oppure 0.");
    if (k == "Minimizza" || k == "Riepilogo")
        return TestoBooleano(valore) ? archives::Messaggio{} : errore("Serve True oppure False.");
    if (k == "UrlStorico") {
        // Empty puts the key back as it came: no address known.
        const bool http = valore.starts_with("http://") || valore.starts_with("https://");
        return valore.empty() || (http && valore.find(' ') == std::string_view::npos)
                   ? archives::Messaggio{}
                   : errore("Serve un indirizzo che inizi con http:// oppure https://.");
    }
    if (k == "Url") {
        // As the address dialog: "http://" in front when missing, then at least 12 characters.
        const std::string url = valore.starts_with("http") ? std::string(valore) : "http://" + std::string(valore);
        return url.size() >= 12 ? archives::Messaggio{}
                                : archives::Messaggio{"Url non valida", "", archives::Icona::Nessuna};
    }
    return {};
}

}  // namespace gorgo::config
