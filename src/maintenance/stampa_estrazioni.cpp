#include "maintenance/stampa_estrazioni.h"

#include <fmt/format.h>
#include <algorithm>
#include <optional>

#include "archives/dieci_e_lotto.h"
#include "archives/regole.h"
#include "config/formato.h"

namespace gorgo::maintenance {

namespace {

using config::RigaReport;
using config::RigaTesto;

archives::Messaggio Avviso(std::string_view testo) { return {std::string(testo), "", archives::Icona::Esclamazione}; }

// A placed line without the blanks that fill it to the page's width.
std::string Testo(const RigaReport& r) {
    std::string t = r.testo();
    t.erase(t.find_last_not_of(' ') + 1);
    return t;
}

std::string DueCifre(int n) { return fmt::format("{:02}", n); }

std::string Cinquina(const archives::RecordEstrazione& r, int ruota) {
    std::string s;
    for (int p = 1; p <= 5; ++p) {
        if (p > 1) s += ' ';
        s += DueCifre(r.Numero(ruota, p));
    }
    return s;
}

// A text centred in a cell of `larghezza` characters (the extra blank goes right).
std::string Cella(std::string_view testo, int larghezza) {
    const int libero = std::max(0, larghezza - static_cast<int>(testo.size()));
    return std::string(static_cast<size_t>(libero / 2), ' ') + std::string(testo) +
           std::string(static_cast<size_t>(libero - libero / 2), ' ');
}

// The draws chosen by the month and near-date choices, from candidates in date order.
struct Candidato {
    int32_t indice;
    archives::Data data;
};

std::vector<Candidato> Filtra(std::vector<Candidato> tutti, const ParametriStampaEstrazioni& p) {
    if (p.dataVicina) {
        // For each year the first draw on or after the chosen day; a 29 February in a year
        // without it is passed by the first draw of March.
        std::vector<Candidato> scelti;
        int annoPreso = -1;
        for (const Candidato& c : tutti) {
            if (c.data.anno == annoPreso) continue;
            if (std::pair(c.data.mese, c.data.giorno) < std::pair(p.meseVicino, p.giorno)) continue;
            scelti.push_back(c);
            annoPreso = c.data.anno;
        }
        tutti = std::move(scelti);
    }
    if (p.soloMese) std::erase_if(tutti, [&](const Candidato& c) { return c.data.mese != p.mese; });
    return tutti;
}

std::string TestoDataVicina(const ParametriStampaEstrazioni& p) {
    return fmt::format("{} {}", p.giorno, archives::NomeMese(p.meseVicino));
}

// The choices as the twins print them: "Solo mese di " and " - Solo date vicine al ".
std::string ScelteGemelli(const ParametriStampaEstrazioni& p) {
    std::string s;
    if (p.soloMese) s += "Solo mese di " + std::string(archives::NomeMese(p.mese));
    if (p.dataVicina) s += " - Solo date vicine al " + TestoDataVicina(p);
    return s;
}

// Steps 1 to 3 of the print button: the two dates, their order, the chosen day.
struct Intervallo {
    int32_t inizio = 0, fine = 0;
};

template <typename Controlla>
std::optional<Intervallo> ControllaIntervallo(const ParametriStampaEstrazioni& p, StampaComposta& s,
                                              Controlla controlla) {
    const archives::RisultatoData da = controlla(p.dataInizio, false);
    if (da.ErroreData) {
        s.errore = da.messaggio;
        return std::nullopt;
    }
    s.dataInizio = da.DataTrovata;
    const archives::RisultatoData a = controlla(p.dataFine, true);
    if (a.ErroreData) {
        s.errore = a.messaggio;
        return std::nullopt;
    }
    s.dataFine = a.DataTrovata;
    if (a.IndiceTrovato < da.IndiceTrovato) {
        s.errore = Avviso(TestoDataFinaleMinore);
        return std::nullopt;
    }
    if (p.soloMese && (p.mese < 1 || p.mese > 12)) {
        s.errore = Avviso(archives::MessaggioDataErrata);
        return std::nullopt;
    }
    // Any day that some year has passes: a leap year under the system's own rule.
    if (p.dataVicina && (p.giorno < 1 || p.meseVicino < 1 || archives::DataErrata(p.giorno, p.meseVicino, 2000))) {
        s.errore = Avviso(archives::MessaggioDataErrata);
        return std::nullopt;
    }
    return Intervallo{std::max(da.IndiceTrovato, 1), a.IndiceTrovato};
}

void Testata(StampaComposta& s, int pagina) {
    auto righe = config::IntestazionePagina(s.titolo1, s.titolo2, pagina);
    if (pagina > 1) righe.front().nuovaPagina = true;
    s.righe.insert(s.righe.end(), righe.begin(), righe.end());
    s.pagine = pagina;
}

// Pages of one line a draw: the header, then `perPagina` lines at column 6.
void PagineSemplici(StampaComposta& s, const std::vector<std::string>& righe, int perPagina) {
    const int n = static_cast<int>(righe.size());
    int pagina = 0;
    do {
        ++pagina;
        Testata(s, pagina);
        for (int i = (pagina - 1) * perPagina; i < std::min(n, pagina * perPagina); ++i)
            s.righe.push_back({Testo(RigaReport(80).metti(6, righe[static_cast<size_t>(i)]))});
    } while (pagina * perPagina < n);
}

void ComponiLista(StampaComposta& s, const std::vector<archives::RecordEstrazione>& draws, int ruota) {
    const int n = static_cast<int>(draws.size());
    int pagina = 0;
    do {
        ++pagina;
        Testata(s, pagina);
        const int base = (pagina - 1) * EstrazioniPaginaLista;
        // The last table is printed the same way with the rest blank: its blank rows are left out.
        const int righe = std::min(RigheColonnaLista, std::max(0, n - base));
        for (int i = 0; i < righe; ++i) {
            RigaReport r(80);
            r.metti(6, RigaLista(draws[static_cast<size_t>(base + i)], ruota));
            if (base + i + RigheColonnaLista < n)
                r.metti(47, RigaLista(draws[static_cast<size_t>(base + i + RigheColonnaLista)], ruota));
            s.righe.push_back({Testo(r)});
        }
    } while (pagina * EstrazioniPaginaLista < n);
}

void ComponiBlocchi(StampaComposta& s, const std::vector<archives::RecordEstrazione>& draws) {
    const int n = static_cast<int>(draws.size());
    constexpr int perPagina = BlocchiPerRiga * RigheBlocchiPagina;
    int pagina = 0;
    do {
        ++pagina;
        Testata(s, pagina);
        const int base = (pagina - 1) * perPagina;
        for (int fila = 0; fila < RigheBlocchiPagina; ++fila) {
            const int primo = base + fila * BlocchiPerRiga;
            if (primo >= n) break;
            if (fila > 0) s.righe.push_back({""});
            const int quanti = std::min(BlocchiPerRiga, n - primo);
            RigaReport titolo(80);
            for (int k = 0; k < quanti; ++k)
                titolo.metti(12 + 25 * k, draws[static_cast<size_t>(primo + k)].dataTesto());
            s.righe.push_back({Testo(titolo), true});
            for (int w = 1; w <= archives::NumeroRuote; ++w) {
                RigaReport r(80);
                for (int k = 0; k < quanti; ++k)
                    r.metti(5 + 25 * k, std::string(archives::NomiRuota[static_cast<size_t>(w)]) +
                                            Cinquina(draws[static_cast<size_t>(primo + k)], w));
                s.righe.push_back({Testo(r)});
            }
        }
    } while (pagina * perPagina < n);
}

void ComponiTabella(StampaComposta& s, const std::vector<archives::RecordEstrazione>& draws, int ruota) {
    const int n = static_cast<int>(draws.size());
    int pagina = 0;
    do {
        ++pagina;
        Testata(s, pagina);
        if (pagina == 1) {
            s.righe.push_back(
                {"Estrazioni della ruota di " + std::string(archives::NomiRuota[static_cast<size_t>(ruota)]), true});
            s.righe.push_back({""});
        }
        s.righe.push_back({std::string(RigaDecine)});
        s.righe.push_back({std::string(RigaUnita)});
        for (int i = (pagina - 1) * EstrazioniPaginaTabella; i < std::min(n, pagina * EstrazioniPaginaTabella); ++i)
            s.righe.push_back({RigaTabella(draws[static_cast<size_t>(i)], ruota)});
    } while (pagina * EstrazioniPaginaTabella < n);
}

}  // namespace

// --------------------------------------------------------------- lines

std::string RigaLista(const archives::RecordEstrazione& r, int ruota) {
    return r.dataTesto() + "  " + Cinquina(r, ruota);
}

std::string RigaTabella(const archives::RecordEstrazione& r, int ruota) {
    std::string riga;
    for (int gruppo = 0; gruppo < 9; ++gruppo) {
        if (gruppo > 0) riga += ' ';
        std::string dieci(10, '.');
        for (int p = 1; p <= 5; ++p) {
            const int numero = r.Numero(ruota, p);
            if (numero >= gruppo * 10 + 1 && numero <= gruppo * 10 + 10)
                dieci[static_cast<size_t>(numero - gruppo * 10 - 1)] = SegnoTabella;
        }
        riga += dieci;
    }
    riga += ' ';
    for (int p = 1; p <= 5; ++p) riga += ' ' + config::AllineaDestra(config::Formato(r.Numero(ruota, p), "#0"), 2);
    riga += "  " + config::Formato(std::to_string(r.data().giorno), "@@");
    return riga;
}

std::string RigaSuper(const archives::EstrazioneSuper& e) {
    // After a zero among the six the reading stopped: those places stay blank.
    std::string sei;
    for (int i = 0; i < 6; ++i) {
        const int n = e.numeri[static_cast<size_t>(i)];
        if (i > 0) sei += ' ';
        sei += n > 0 ? DueCifre(n) : std::string("  ");
    }
    const bool jolly = e.esito == archives::SuperConJolly || e.esito == archives::SuperConJollySuperStar;
    const bool star = e.esito == archives::SuperConSuperStar || e.esito == archives::SuperConJollySuperStar;
    std::string riga = "|";
    riga.append(Cella(e.data, 12)).append("|").append(Cella(sei, 24)).append("|");
    riga.append(Cella(jolly ? DueCifre(e.numeri[6]) : std::string(), 7)).append("|");
    riga.append(Cella(star ? DueCifre(e.numeri[7]) : std::string(), 11)).append("|");
    return riga;
}

std::string Riga10eLotto(std::string_view data, const std::array<int, 20>& numeri) {
    std::string s(data);
    s += ' ';
    for (int n : numeri) s += ' ' + DueCifre(n);
    return s;
}

// --------------------------------------------------------------- pages

StampaComposta ComponiStampaLotto(const archives::Archivio& archivio, const ParametriStampaEstrazioni& p) {
    StampaComposta s;
    const auto intervallo = ControllaIntervallo(
        p, s, [&](const std::string& t, bool precedente) { return archives::ControllaData(t, archivio, precedente); });
    if (!intervallo) return s;
    if (p.ruota < 0 || p.ruota > archives::NumeroRuote) {
        s.errore = Avviso(TestoRuotaSingola);
        return s;
    }
    if (p.dettagliata) {
        if (p.ruota == 0) {
            s.errore = Avviso(TestoRuotaSingola);
            return s;
        }
        s.layout = LayoutStampa::Tabella;
        // The ruler and the dots must stay in step: a fixed-pitch face at the table's size.
        s.punti = 9;
    } else {
        s.layout = p.ruota == 0 ? LayoutStampa::Blocchi : LayoutStampa::Lista;
    }
    s.titolo1 = "Gorgo - Stampa estrazioni dal " + s.dataInizio + " al " + s.dataFine;
    s.titolo2 = "Ruota : " + std::string(archives::NomiRuota[static_cast<size_t>(p.ruota)]);
    if (p.soloMese) s.titolo2 += " - Solo mese di " + std::string(archives::NomeMese(p.mese));
    if (p.dataVicina) s.titolo2 += " - Solo date vicine al " + TestoDataVicina(p);

    const auto letti = archivio.LeggiEstrazioni(intervallo->inizio, intervallo->fine);
    std::vector<Candidato> candidati;
    candidati.reserve(letti.size());
    for (size_t i = 0; i < letti.size(); ++i)
        candidati.push_back({intervallo->inizio + static_cast<int32_t>(i), letti[i].data()});
    std::vector<archives::RecordEstrazione> scelti;
    for (const Candidato& c : Filtra(std::move(candidati), p))
        scelti.push_back(letti[static_cast<size_t>(c.indice - intervallo->inizio)]);
    s.estrazioni = static_cast<int>(scelti.size());

    switch (s.layout) {
        case LayoutStampa::Lista: ComponiLista(s, scelti, p.ruota); break;
        case LayoutStampa::Blocchi: ComponiBlocchi(s, scelti); break;
        default: ComponiTabella(s, scelti, p.ruota); break;
    }
    return s;
}

StampaComposta ComponiStampaSuper(const archives::Archivio& archivio, const ParametriStampaEstrazioni& p) {
    StampaComposta s;
    s.layout = LayoutStampa::ListaSuper;
    const auto intervallo = ControllaIntervallo(p, s, [&](const std::string& t, bool precedente) {
        return archives::ControllaDataSuper(t, archivio, precedente);
    });
    if (!intervallo) return s;
    s.titolo1 = "Gorgo - Stampa estrazioni Superenalotto dal " + s.dataInizio + " al " + s.dataFine;
    s.titolo2 = ScelteGemelli(p);

    const auto tutti = archivio.LeggiTuttiSuper();
    std::vector<Candidato> candidati;
    for (int32_t i = intervallo->inizio; i <= intervallo->fine; ++i)
        candidati.push_back({i, tutti[static_cast<size_t>(i - 1)].data()});
    std::vector<std::string> righe;
    for (const Candidato& c : Filtra(std::move(candidati), p))
        righe.push_back(RigaSuper(archives::LeggiEstrazioneSuper(tutti[static_cast<size_t>(c.indice - 1)])));
    s.estrazioni = static_cast<int>(righe.size());

    // The page heading of its own: title, choices, page number as "@@@", the boxed heading.
    const std::string regola(IntestazioneSuper.size(), '=');
    const int n = static_cast<int>(righe.size());
    int pagina = 0;
    do {
        ++pagina;
        std::vector<RigaTesto> testa = {{"", false, pagina > 1}, {config::Centrato(s.titolo1), true}};
        if (!s.titolo2.empty()) testa.push_back({config::Centrato(s.titolo2), true});
        testa.push_back(
            {Testo(RigaReport(80).metti(config::ColonnaPagina, "Pag." + config::Formato(pagina, "@@@"))), true});
        testa.push_back({Testo(RigaReport(80).metti(6, regola))});
        testa.push_back({Testo(RigaReport(80).metti(6, IntestazioneSuper)), true});
        testa.push_back({Testo(RigaReport(80).metti(6, regola))});
        s.righe.insert(s.righe.end(), testa.begin(), testa.end());
        s.pagine = pagina;
        for (int i = (pagina - 1) * EstrazioniPaginaSuper; i < std::min(n, pagina * EstrazioniPaginaSuper); ++i)
            s.righe.push_back({Testo(RigaReport(80).metti(6, righe[static_cast<size_t>(i)]))});
    } while (pagina * EstrazioniPaginaSuper < n);
    return s;
}

StampaComposta ComponiStampa10eLotto(const archives::Archivio& archivio, const ParametriStampaEstrazioni& p) {
    StampaComposta s;
    s.layout = LayoutStampa::Lista10eLotto;
    const auto intervallo = ControllaIntervallo(
        p, s, [&](const std::string& t, bool precedente) { return archives::ControllaData(t, archivio, precedente); });
    if (!intervallo) return s;
    s.titolo1 = "Gorgo - Stampa estrazioni 10eLotto dal " + s.dataInizio + " al " + s.dataFine;
    s.titolo2 = ScelteGemelli(p);

    // Only the draws from which a 10eLotto draw follows are candidates.
    const auto letti = archivio.LeggiEstrazioni(intervallo->inizio, intervallo->fine);
    std::vector<Candidato> candidati;
    std::vector<archives::Risultato10eLotto> dieci(letti.size());
    for (size_t i = 0; i < letti.size(); ++i) {
        dieci[i] = archives::Estrazione10eLotto(letti[i]);
        if (dieci[i].esito >= 0) candidati.push_back({intervallo->inizio + static_cast<int32_t>(i), letti[i].data()});
    }
    std::vector<std::string> righe;
    for (const Candidato& c : Filtra(std::move(candidati), p)) {
        const auto k = static_cast<size_t>(c.indice - intervallo->inizio);
        righe.push_back(Riga10eLotto(letti[k].dataTesto(), dieci[k].numeri));
    }
    s.estrazioni = static_cast<int>(righe.size());
    PagineSemplici(s, righe, EstrazioniPagina10eLotto);
    return s;
}

}  // namespace gorgo::maintenance
