#include "cli/costruttore_copertura.h"

#include <fmt/format.h>
#include <algorithm>
#include <iostream>

#include "builder/automatica.h"
#include "builder/copertura.h"
#include "builder/report.h"
#include "builder/report_copertura.h"
#include "config/report_testo.h"

namespace gorgo::cli {

namespace {

builder::TipoCopertura TipoDaTesto(const std::string& t) {
    static const std::pair<const char*, builder::TipoCopertura> kTipi[] = {
        {"ambata", builder::TipoCopertura::Ambata},      {"2-ambate", builder::TipoCopertura::DueAmbate},
        {"3-ambate", builder::TipoCopertura::TreAmbate}, {"ambo", builder::TipoCopertura::Ambo},
        {"terzine", builder::TipoCopertura::Terzine},    {"codici", builder::TipoCopertura::Codici}};
    for (const auto& [nome, tipo] : kTipi)
        if (t == nome) return tipo;
    throw Rifiuta("--copertura: ambata, 2-ambate, 3-ambate, ambo, terzine oppure codici.");
}

// The button each kind of search shows.
bool CoperturaDelTipo(builder::TipoCopertura c, builder::TipoRicerca t) {
    using builder::TipoCopertura;
    using builder::TipoRicerca;
    switch (t) {
        case TipoRicerca::Ambate: return static_cast<int>(c) <= static_cast<int>(TipoCopertura::TreAmbate);
        case TipoRicerca::Ambi: return c == TipoCopertura::Ambo;
        case TipoRicerca::TerzineAmbo:
        case TipoRicerca::TerzineTerno: return c == TipoCopertura::Terzine;
        case TipoRicerca::Codici: return c == TipoCopertura::Codici;
    }
    return false;
}

}  // namespace

void AggiungiOpzioniCopertura(CLI::App* c, ArgomentiCopertura& a) {
    c->add_option("--copertura", a.copertura,
                  "Copertura delle righe scelte: ambata, 2-ambate, 3-ambate (Ambate), ambo (Ambi), terzine, codici");
    c->add_option("--righe", a.righe, "Con --copertura: le prime N righe della lista selezionate")
        ->check(CLI::PositiveNumber);
    c->add_option("--chiave", a.chiavi, "Con --copertura: le righe selezionate, per chiave (anche più volte)");
    c->add_option("--automatica", a.automatica,
                  "Ricerca automatica ruote di ricerca/gioco: R:G ruote in simultanea (R 1 o 2, G da 1 a 5)");
}

void EseguiCopertura(const Contesto& ctx, const ArgomentiCopertura& a, const builder::ParametriRicerca& p,
                     const builder::ContestoCostruttore& cc, builder::EsitoRicerca e, const OpzioniReport& u) {
    const builder::TipoCopertura tipo = TipoDaTesto(a.copertura);
    if (!CoperturaDelTipo(tipo, p.tipoRicerca))
        throw Rifiuta(fmt::format("--copertura {} non vale per il tipo di ricerca {}.", a.copertura,
                                  builder::NomeTipoRicerca(p.tipoRicerca, p.tipoSpia)));
    const bool tutti =
        p.modoSpia == builder::ModoSpia::Tutti || (p.tipoSpia == builder::TipoSpia::Ambo && p.tuttiGliAmbi);
    if (tutti) throw Rifiuta("La copertura si calcola solo con una spia fissa.");
    if (a.righe > 0)
        for (size_t i = 0; i < e.righe.size(); ++i) e.righe[i].selezionata = static_cast<int>(i) < a.righe;
    if (!a.chiavi.empty()) {
        for (auto& r : e.righe) r.selezionata = std::count(a.chiavi.begin(), a.chiavi.end(), r.chiave) > 0;
        for (const std::string& k : a.chiavi)
            if (std::none_of(e.righe.begin(), e.righe.end(), [&](const auto& r) { return r.chiave == k; }))
                throw Rifiuta(fmt::format("--chiave {}: nessuna riga della ricerca ha questa chiave.", k));
    }
    const builder::EsitoCopertura c = builder::CalcolaCopertura(p, cc.Contesto(), e.casi, e.righe, tipo);
    if (!c.errore.vuoto()) throw Rifiuto{c.errore};
    if (!u.file.empty()) {
        u.ScriviSuFile(builder::ReportCopertura(p, c, *cc.storia));
        if (!ctx.json) {
            std::cout << fmt::format("{} righe di copertura scritte in {}\n", c.righe.size(), u.file);
            return;
        }
    }
    auto testi = [&](const builder::RigaCopertura& r) {
        std::vector<std::string> t{r.data};
        for (int g = 0; g < c.gruppiColonne; ++g) {
            const auto& x = r.gruppi[static_cast<size_t>(g)];
            t.insert(t.end(), {x.descrizione, x.previsione, x.colpo});
        }
        return t;
    };
    if (ctx.json) {
        nlohmann::json righe = nlohmann::json::array(), riepilogo = nlohmann::json::array(), gruppo;
        gruppo = nlohmann::json::array();
        std::vector<const builder::RigaAlgoritmo*> scelte;
        for (const auto& r : e.righe)
            if (r.selezionata) scelte.push_back(&r);
        for (int g : c.gruppo)
            gruppo.push_back({{"colonna", g},
                              {"descrizione", scelte[static_cast<size_t>(g)]->descrizione},
                              {"chiave", scelte[static_cast<size_t>(g)]->chiave}});
        for (const auto& r : c.righe)
            righe.push_back({{"testo", testi(r)},
                             {"caso", r.caso + 1},
                             {"colpo", r.colpo},
                             {"chiave", r.chiave},
                             {"dal_gruppo", r.dalGruppo}});
        for (const auto& x : c.riepilogo)
            riepilogo.push_back({{"testo", {x.descrizione, x.testoSortite, x.testoPercentuale}},
                                 {"presenze", x.sortite},
                                 {"previsione", x.previsione}});
        StampaJson({{"titolo", c.titolo},
                    {"gruppo", gruppo},
                    {"coperti", c.coperti},
                    {"casi", c.casi},
                    {"totale", c.totale},
                    {"attesa_media", c.attesaMedia},
                    {"righe", righe},
                    {"riepilogo", riepilogo}});
        return;
    }
    std::cout << c.titolo << "\n\n";
    for (const auto& r : c.righe) {
        const auto t = testi(r);
        std::string s = t[0];
        for (size_t i = 1; i < t.size(); i += 3) s += fmt::format(" | {} | {} | {}", t[i], t[i + 1], t[i + 2]);
        std::cout << s << "\n";
    }
    std::cout << "\n";
    for (const auto& x : c.riepilogo)
        std::cout << fmt::format("{} | {} | {} | {}\n", x.descrizione, x.testoSortite, x.testoPercentuale,
                                 x.previsione);
    std::cout << "\n" << c.totale << "\n";
    if (!c.attesaMedia.empty()) std::cout << "Attesa media: " << c.attesaMedia << "\n";
}

void EseguiAutomatica(const Contesto& ctx, const ArgomentiCopertura& a, const builder::ParametriRicerca& p,
                      const builder::ContestoCostruttore& cc, const OpzioniReport& u) {
    int r = 0, g = 0;
    char due = 0, resto = 0;
    if (std::sscanf(a.automatica.c_str(), "%d%c%d%c", &r, &due, &g, &resto) != 3 || due != ':' || r < 1 || r > 2 ||
        g < 1 || g > 5)
        throw Rifiuta("--automatica: R:G, con R ruote di ricerca in simultanea (1 o 2) e G di gioco (da 1 a 5).");
    const builder::EsitoAutomatica e = builder::RicercaAutomatica(p, cc.Contesto(), r, g);
    if (!e.errore.vuoto()) throw Rifiuto{e.errore};
    if (!u.file.empty()) {
        if (e.righe.empty()) {
            std::cerr << config::NullaDaEsportare << "\n";
            return;
        }
        u.ScriviSuFile(builder::ReportAutomatica(p, e, *cc.storia));
        if (!ctx.json) {
            std::cout << fmt::format("{} algoritmi scritti in {}\n", e.righe.size(), u.file);
            return;
        }
    }
    auto testi = [](const builder::RigaAutomatica& x) {
        return std::vector<std::string>{x.riga.descrizione,
                                        x.riga.testoSortite(),
                                        x.riga.testoPresenze(),
                                        x.riga.testoPercentuale(),
                                        x.riga.testoSpia,
                                        x.testoRicerca,
                                        x.testoGioco};
    };
    if (ctx.json) {
        nlohmann::json righe = nlohmann::json::array();
        for (const auto& x : e.righe)
            righe.push_back(
                {{"testo", testi(x)},
                 {"sortite", x.riga.sortite},
                 {"presenze", x.riga.presenze},
                 {"quantita", x.riga.conQuantita ? nlohmann::json(x.riga.quantita) : nlohmann::json(nullptr)},
                 {"chiave", x.riga.chiave},
                 {"ruote_ricerca", x.ruoteRicerca},
                 {"ruote_gioco", x.ruoteGioco}});
        StampaJson({{"corse", e.corse}, {"totale", e.righe.size()}, {"righe", righe}});
        return;
    }
    std::cout << builder::TitoloMultiRuota << "\n\n";
    for (const auto& x : e.righe) {
        const auto t = testi(x);
        std::cout << fmt::format("{} | {} | {} | {} | {} | {} | {}\n", t[0], t[1], t[2], t[3], t[4], t[5], t[6]);
    }
    std::cout << fmt::format("\nAlgoritmi: {} su {} combinazioni di ruote\n", e.righe.size(), e.corse);
}

}  // namespace gorgo::cli
