#include "config/restrizioni.h"

#include <algorithm>
#include <optional>
#include <vector>

#include <fmt/format.h>

#include "archives/data.h"
#include "config/impostazioni.h"

namespace gorgo::config {

namespace {

constexpr std::string_view R = sezioni::Restrizioni;
// The summary and the panel leave out a weekday restriction equal to the usual drawing days.
constexpr std::string_view GiorniAbituali = "NNYYYNY";
constexpr std::string_view DodiciY = "YYYYYYYYYYYY";

// Day of a non-leap year, from 0, at which each month starts.
constexpr std::array<int, 13> kPrimoDelMese = {0, 0, 31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334};

std::string Leggi(const FileIni& ini, std::string_view chiave) {
    return LeggiImpostazione(ini, R, chiave, Predefinito(R, chiave));
}

bool Lettera(std::string_view s, std::size_t indice, char attesa) {
    return indice >= 1 && indice <= s.size() && s[indice - 1] == attesa;
}

// Byte offset after the first n characters of a UTF-8 text.
std::size_t DopoCaratteri(std::string_view s, std::size_t n) {
    std::size_t contati = 0;
    for (std::size_t i = 0; i < s.size(); ++i) {
        if ((static_cast<unsigned char>(s[i]) & 0xC0) == 0x80) continue;
        if (contati == n) return i;
        ++contati;
    }
    return s.size();
}

std::string_view Sinistra(std::string_view s, std::size_t n) { return s.substr(0, DopoCaratteri(s, n)); }
std::string_view DalCarattere(std::string_view s, std::size_t n) { return s.substr(DopoCaratteri(s, n - 1)); }

std::optional<int> GiornoDi(std::string_view dueCaratteri) {
    std::string_view t = dueCaratteri;
    while (!t.empty() && t.front() == ' ') t.remove_prefix(1);
    bool negativo = false;
    if (!t.empty() && (t.front() == '-' || t.front() == '+')) {
        negativo = t.front() == '-';
        t.remove_prefix(1);
    }
    if (t.empty() || !std::all_of(t.begin(), t.end(), [](char c) { return c >= '0' && c <= '9'; })) return std::nullopt;
    int n = 0;
    for (char c : t) n = n * 10 + (c - '0');
    return negativo ? -n : n;
}

// "01gennaio": the day in the first two characters, the month's name from the third.
struct GiornoMese {
    int giorno;
    int mese;
};

std::optional<GiornoMese> LeggiEstremo(std::string_view testo) {
    const int mese = archives::NumeroMese(DalCarattere(testo, 3));
    if (mese == 0) return std::nullopt;
    const auto giorno = GiornoDi(Sinistra(testo, 2));
    if (!giorno) return std::nullopt;
    return GiornoMese{*giorno, mese};
}

void SegnaPeriodo(Restrizioni& r, std::string_view dal, std::string_view al) {
    const auto inizio = LeggiEstremo(dal);
    const auto fine = LeggiEstremo(al);
    if (!inizio || !fine) return;
    // Days roll over as a date serial does: "31febbraio" is the 3rd of March.
    const int32_t primo = archives::Data::componi(2001, inizio->mese, inizio->giorno).giorni();
    int32_t ultimo = archives::Data::componi(2001, fine->mese, fine->giorno).giorni();
    if (ultimo < primo) ultimo += 365;
    const int32_t capodanno = archives::Data{1, 1, 2001}.giorni();
    for (int32_t g = primo; g <= ultimo; ++g) {
        const archives::Data d = archives::Data::daGiorni(g);
        const int32_t indice = archives::Data::componi(2001, d.mese, d.giorno).giorni() - capodanno;
        r.PeriodoAmmesso[static_cast<std::size_t>(indice)] = true;
    }
}

std::string Lettere(std::span<const bool> caselle) {
    std::string s;
    for (bool c : caselle) s += c ? 'Y' : 'N';
    return s;
}

archives::Messaggio ErroreScrittura(const FileIni& ini) {
    return {fmt::format("Impossibile salvare le impostazioni nel file {}", ini.FileName()), "Errore",
            archives::Icona::Stop};
}

}  // namespace

Restrizioni LeggiRestrizioni(const FileIni& ini) {
    Restrizioni r;
    r.Giorno = Leggi(ini, "Giorno") == "Y";
    r.Mese = Leggi(ini, "Mese") == "Y";
    r.Periodo = Leggi(ini, "Periodo") == "Y";
    r.Numero = Leggi(ini, "Numero") == "Y";

    const std::string giorni = Leggi(ini, "Giorni");
    for (std::size_t g = 1; g <= 7; ++g) r.GiornoAmmesso[g] = !r.Giorno || Lettera(giorni, g, 'Y');
    const std::string mesi = Leggi(ini, "Mesi");
    for (std::size_t m = 1; m <= 12; ++m) r.MeseAmmesso[m] = !r.Mese || Lettera(mesi, m, 'Y');
    const std::string numeri = Leggi(ini, "Numeri");
    for (std::size_t n = 1; n <= 90; ++n) r.NumeroAmmesso[n] = !r.Numero || !Lettera(numeri, n, '0');
    r.NumeroAmmesso[0] = r.NumeroAmmesso[90];

    if (r.Periodo)
        SegnaPeriodo(r, Leggi(ini, "Dal"), Leggi(ini, "Al"));
    else
        std::fill(r.PeriodoAmmesso.begin() + 1, r.PeriodoAmmesso.end(), true);
    return r;
}

bool EstrazioneAmmessa(const Restrizioni& r, std::string_view data, char giorno) {
    const auto d = archives::Data::daCifre(data);
    if (!d || !d->valida()) return false;
    if (!r.Giorno && !r.Mese && !r.Periodo) return true;
    if (r.Giorno) {
        const int g = giorno - '0';
        if (g < 1 || g > 7 || !r.GiornoAmmesso[static_cast<std::size_t>(g)]) return false;
    }
    if (r.Mese && !r.MeseAmmesso[static_cast<std::size_t>(d->mese)]) return false;
    if (r.Periodo) {
        // The table is of a non-leap year: 29 February counts as the 28th.
        const int gg = d->mese == 2 && d->giorno == 29 ? 28 : d->giorno;
        if (!r.PeriodoAmmesso[static_cast<std::size_t>(kPrimoDelMese[static_cast<std::size_t>(d->mese)] + gg - 1)])
            return false;
    }
    return true;
}

std::string TestoRestrizioni(const FileIni& ini, bool senzaNumeri, bool trattino) {
    std::vector<std::string> parti;
    if (!senzaNumeri && Leggi(ini, "Numero") == "Y" && Leggi(ini, "Numeri") != NovantaUno)
        parti.emplace_back("     Sono stati esclusi alcuni mumeri dalle ricerche");

    const std::string giorni = LeggiImpostazione(ini, R, "Giorni", GiorniAbituali);
    if (Leggi(ini, "Giorno") == "Y" && giorni != GiorniAbituali) {
        std::string s = "     Solo estrazioni avvenute nei giorni di: ";
        for (std::size_t g = 1; g <= 7; ++g)
            if (Lettera(giorni, g, 'Y'))
                s += fmt::format(" {}", Sinistra(archives::NomeGiorno(static_cast<int>(g)), 3));
        parti.push_back(std::move(s));
    }
    const std::string mesi = Leggi(ini, "Mesi");
    if (Leggi(ini, "Mese") == "Y" && mesi != DodiciY) {
        std::string s = "     Solo estrazioni avvenute nei mesi di  : ";
        for (std::size_t m = 1; m <= 12; ++m)
            if (Lettera(mesi, m, 'Y')) s += fmt::format(" {}", Sinistra(archives::NomeMese(static_cast<int>(m)), 3));
        parti.push_back(std::move(s));
    }
    if (Leggi(ini, "Periodo") == "Y") {
        const std::string dal = Leggi(ini, "Dal");
        const std::string al = Leggi(ini, "Al");
        parti.push_back(fmt::format("     Solo estrazioni avvenute tra il {} {} e il {} {}", Sinistra(dal, 2),
                                    DalCarattere(dal, 3), Sinistra(al, 2), DalCarattere(al, 3)));
    }
    if (parti.empty()) parti.emplace_back("     Non sono state applicate restrizioni nella ricerca");
    std::string testo = parti.front();
    for (std::size_t i = 1; i < parti.size(); ++i) (testo += trattino ? "-" : "\n") += parti[i];
    return testo;
}

StatoPannelloRestrizioni PannelloRestrizioni(const FileIni& ini) {
    StatoPannelloRestrizioni p;
    const std::string numeri = Leggi(ini, "Numeri");
    if (Leggi(ini, "Numero") == "Y" && numeri != NovantaUno) {
        p.visibile[0] = true;
        p.NumeriAttivi = static_cast<int>(std::count(numeri.begin(), numeri.end(), '1'));
    }
    p.visibile[1] = Leggi(ini, "Giorno") == "Y" && Leggi(ini, "Giorni") != GiorniAbituali;
    p.visibile[2] = Leggi(ini, "Mese") == "Y" && Leggi(ini, "Mesi") != DodiciY;
    p.visibile[3] = Leggi(ini, "Periodo") == "Y";
    int riga = 0;
    for (std::size_t i = 0; i < p.visibile.size(); ++i)
        if (p.visibile[i]) p.top[i] = PassoRigheTwips * riga++;
    p.nessuna = riga == 0;
    return p;
}

ScelteRestrizioni CaricaScelteRestrizioni(const FileIni& ini) {
    ScelteRestrizioni s;
    s.chkGiorni = Leggi(ini, "Giorno") == "Y";
    s.chkMesi = Leggi(ini, "Mese") == "Y";
    s.chkPeriodo = Leggi(ini, "Periodo") == "Y";
    const std::string giorni = Leggi(ini, "Giorni");
    for (std::size_t g = 1; g <= 7; ++g) s.chkDay[g] = Lettera(giorni, g, 'Y');
    const std::string mesi = Leggi(ini, "Mesi");
    for (std::size_t m = 1; m <= 12; ++m) s.chkMese[m] = Lettera(mesi, m, 'Y');
    // An end the combos cannot show falls back to the whole year.
    const std::array<GiornoMese, 2> ripiego = {GiornoMese{1, 1}, GiornoMese{31, 12}};
    const std::array<std::string, 2> estremi = {Leggi(ini, "Dal"), Leggi(ini, "Al")};
    for (std::size_t i = 0; i < 2; ++i) {
        auto e = LeggiEstremo(estremi[i]);
        if (!e || e->giorno < 1 || e->giorno > 31) e = ripiego[i];
        s.cboGiorno[i] = e->giorno;
        s.cboMese[i] = e->mese;
    }
    return s;
}

EsitoRestrizioni SalvaRestrizioni(FileIni& ini, const ScelteRestrizioni& scelte) {
    EsitoRestrizioni esito;
    for (std::size_t i = 0; i < 2; ++i) {
        const int g = scelte.cboGiorno[i];
        const int m = scelte.cboMese[i];
        if (g < 1 || g > 31 || m < 1 || m > 12) {
            esito.errore = {"Il periodo indicato non è valido", "Errore", archives::Icona::Esclamazione};
            return esito;
        }
        const bool trenta = m == 4 || m == 6 || m == 9 || m == 11;
        esito.cboGiorno[i] = trenta ? std::min(g, 30) : m == 2 ? std::min(g, 28) : g;
    }
    const std::string dal = fmt::format("{:02}{}", esito.cboGiorno[0], archives::NomeMese(scelte.cboMese[0]));
    const std::string al = fmt::format("{:02}{}", esito.cboGiorno[1], archives::NomeMese(scelte.cboMese[1]));
    const std::string giorni = Lettere(std::span(scelte.chkDay).subspan(1));
    const std::string mesi = Lettere(std::span(scelte.chkMese).subspan(1));
    const auto yn = [](bool b) { return b ? std::string_view("Y") : std::string_view("N"); };
    // The dialog has no control for the numbers: it clears them.
    const CoppiaChiaveValore valori[] = {{"Numero", ""},
                                         {"Giorno", yn(scelte.chkGiorni)},
                                         {"Mese", yn(scelte.chkMesi)},
                                         {"Periodo", yn(scelte.chkPeriodo)},
                                         {"Numeri", ""},
                                         {"Giorni", giorni},
                                         {"Mesi", mesi},
                                         {"Dal", dal},
                                         {"Al", al}};
    if (!ini.Scrivi(R, valori)) esito.errore = ErroreScrittura(ini);
    return esito;
}

ScelteEsclusioni CaricaGiorniEstrazione(const FileIni& ini) {
    ScelteEsclusioni s;
    const std::string giorni = LeggiImpostazione(ini, sezioni::Options, "Giorni estrazione",
                                                 Predefinito(sezioni::Options, "Giorni estrazione"));
    for (std::size_t g = 1; g <= 7; ++g) s.chkDay[g] = Lettera(giorni, g, 'Y');
    const std::string tips = LeggiImpostazione(ini, sezioni::Options, "Show Tips at Startup",
                                               Predefinito(sezioni::Options, "Show Tips at Startup"));
    s.chkLoadTipsAtStartup = TestoBooleano(tips).value_or(true);
    return s;
}

archives::Messaggio SalvaGiorniEstrazione(FileIni& ini, const ScelteEsclusioni& scelte) {
    if (std::none_of(scelte.chkDay.begin() + 1, scelte.chkDay.end(), [](bool b) { return b; }))
        return {"E' necessario selezionare almeno un giorno estrazione!", "", archives::Icona::Nessuna};
    const std::string giorni = Lettere(std::span(scelte.chkDay).subspan(1));
    const CoppiaChiaveValore valori[] = {{"Giorni estrazione", giorni},
                                         {"Show Tips at Startup", scelte.chkLoadTipsAtStartup ? "1" : "0"}};
    if (!ini.Scrivi(sezioni::Options, valori)) return ErroreScrittura(ini);
    return {};
}

}  // namespace gorgo::config
