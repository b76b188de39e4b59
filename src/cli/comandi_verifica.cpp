// verifica and previsioni: the replay of one algorithm with its recap, and the forecasts of a
// set of algorithms, each named by its key under the parameters of its search.

#include <fmt/format.h>
#include <algorithm>
#include <iostream>
#include <optional>

#include "builder/chiavi.h"
#include "builder/previsioni.h"
#include "builder/report.h"
#include "builder/riepilogo.h"
#include "builder/verifica.h"
#include "cli/contesto.h"
#include "cli/parametri_ricerca.h"

namespace gorgo::cli {

namespace {

struct ArgomentiVerifica {
    ArgomentiRicerca ricerca;
    std::vector<std::string> chiavi;
    int colpiDaGiocare = 9;
};

std::string Tronca(std::string_view t) {
    const auto a = t.find_first_not_of(' ');
    if (a == std::string_view::npos) return {};
    return std::string(t.substr(a, t.find_last_not_of(' ') - a + 1));
}

// Column 4 of the row the key would stand on: the spy value of the parameters.
std::string SpiaDellaRiga(const builder::ParametriRicerca& p) {
    using builder::TipoSpia;
    if (p.tipoSpia != TipoSpia::Ambo && p.modoSpia == builder::ModoSpia::SoloIndiceMensile) return "--";
    if (p.tipoSpia == TipoSpia::Ambo)
        return fmt::format("{}-{}", std::min(p.amboSpia[0], p.amboSpia[1]), std::max(p.amboSpia[0], p.amboSpia[1]));
    return fmt::format("{:>2}", p.valoreSpia);
}

// The fault of a key as the replay would tell it, before anything runs.
void ControllaChiave(const std::string& chiave, const builder::ParametriRicerca& p,
                     const builder::ContestoCostruttore& cc) {
    const archives::StoriaLotto& s = *cc.storia;
    if (s.vuota()) return;
    const builder::NumeriCalcolati n =
        builder::NumeriAlgoritmo(chiave, p.tipoRicerca, s[s.NumeroEstrazioni()], cc.Contesto().terzine);
    if (!n.errore.vuoto()) throw Rifiuto{n.errore};
}

constexpr std::string_view NomiTipi[] = {"ambate", "ambi", "terzine-ambo", "terzine-terno", "codici"};

[[noreturn]] void Contraddizione(const std::string& chiave, std::string_view cosa, std::string_view opzione) {
    throw Rifiuta(fmt::format("La chiave \"{}\" indica {}: contraddice {}.", chiave, cosa, opzione));
}

std::string TestoPosizioni(const std::string& posizioni) {
    std::string t;
    for (size_t i = 0; i < posizioni.size(); ++i)
        if (posizioni[i] == '1') t += static_cast<char>('1' + i);
    return t;
}

// The key carries the kind (by its shape), the spy and its positions: they are read from it, as
// the screen reads them from the row. An option given with it that says otherwise is refused;
// so is a second key of another search.
void ApplicaChiave(const std::string& chiave, const ArgomentiRicerca& a, builder::ParametriRicerca& p,
                   std::optional<builder::ParametriRicerca>& prima) {
    using builder::TipoRicerca;
    using builder::TipoSpia;
    const std::optional<builder::FormaChiave> forma = builder::FormaDellaChiave(chiave);
    const std::optional<builder::CodaChiave> coda = builder::LeggiCoda(chiave);
    if (!forma || !coda)
        throw Rifiuto{{std::string(builder::AlgoritmoMancante), "Errore", archives::Icona::Esclamazione}};

    TipoRicerca tipo = TipoRicerca::Ambate;
    switch (*forma) {
        case builder::FormaChiave::Ambata: tipo = TipoRicerca::Ambate; break;
        case builder::FormaChiave::Ambi: tipo = TipoRicerca::Ambi; break;
        case builder::FormaChiave::Codice: tipo = TipoRicerca::Codici; break;
        case builder::FormaChiave::Terzina:
            // Both kinds of terzine share the shape: only the user can say which.
            if (a.tipo.empty())
                throw Rifiuta(
                    fmt::format("La chiave \"{}\" è di una terzina: indicare --tipo terzine-ambo oppure "
                                "--tipo terzine-terno.",
                                chiave));
            tipo = a.tipo == "terzine-terno" ? TipoRicerca::TerzineTerno : TipoRicerca::TerzineAmbo;
            break;
    }
    const std::string_view nomeTipo = NomiTipi[static_cast<int>(tipo)];
    if (!a.tipo.empty() && a.tipo != nomeTipo)
        Contraddizione(chiave, fmt::format("un algoritmo di tipo {}", nomeTipo), "--tipo " + a.tipo);
    p.tipoRicerca = tipo;

    const bool ambo = coda->ambo, sommaODifferenza = !ambo && coda->posizioni.empty();
    if (ambo) {
        if (!a.spia.empty() && a.spia != "ambo") Contraddizione(chiave, "un ambo spia", "--spia " + a.spia);
        p.tipoSpia = TipoSpia::Ambo;
        const std::array<int, 2> dallaChiave{coda->spia, coda->spia2};
        if (!a.ambo.empty() && std::minmax(p.amboSpia[0], p.amboSpia[1]) != std::minmax(coda->spia, coda->spia2))
            Contraddizione(chiave, fmt::format("l'ambo spia {}-{}", coda->spia, coda->spia2), "--ambo " + a.ambo);
        p.amboSpia = dallaChiave;
    } else if (sommaODifferenza) {
        if (a.spia != "somma" && a.spia != "differenza") {
            if (a.spia.empty())
                throw Rifiuta(
                    fmt::format("La chiave \"{}\" è di una spia somma o differenza: indicare --spia somma "
                                "oppure --spia differenza.",
                                chiave));
            Contraddizione(chiave, "una spia somma o differenza", "--spia " + a.spia);
        }
    } else if (!a.spia.empty() && a.spia != "numero") {
        Contraddizione(chiave, "un numero spia", "--spia " + a.spia);
    }
    if (!ambo) {
        if (!a.valore.empty() && p.modoSpia != builder::ModoSpia::SoloIndiceMensile && p.valoreSpia != coda->spia)
            Contraddizione(chiave, fmt::format("la spia {}", coda->spia), "--valore " + a.valore);
        p.valoreSpia = coda->spia;
    }
    if (!coda->posizioni.empty()) {
        std::array<bool, 6> posizioni{};
        for (size_t i = 0; i < 5; ++i) posizioni[i + 1] = coda->posizioni[i] == '1';
        if (!a.posizioni.empty() && p.posizioniSpia != posizioni)
            Contraddizione(chiave, "le posizioni " + TestoPosizioni(coda->posizioni), "--posizioni " + a.posizioni);
        // "11111" is every position, the default choice.
        p.posizioneDeterminata = coda->posizioni != "11111";
        p.posizioniSpia = posizioni;
    }
    if (prima && (prima->tipoRicerca != p.tipoRicerca || prima->tipoSpia != p.tipoSpia ||
                  prima->valoreSpia != p.valoreSpia || prima->amboSpia != p.amboSpia ||
                  prima->posizioneDeterminata != p.posizioneDeterminata || prima->posizioniSpia != p.posizioniSpia))
        throw Rifiuta(
            fmt::format("La chiave \"{}\" è di un'altra ricerca: le chiavi di un calcolo devono avere lo stesso "
                        "tipo, la stessa spia e le stesse posizioni.",
                        chiave));
    if (!prima) prima = p;
}

struct Preparati {
    archives::Archivio archivio;
    builder::ParametriRicerca p;
    builder::ContestoCostruttore cc;
};

Preparati Prepara(const Contesto& ctx, const ArgomentiVerifica& a) {
    archives::Archivio archivio = ctx.ApriArchivi();
    const config::FileIni ini(ctx.FileImpostazioni().string());
    builder::ParametriRicerca p = ParametriDaArgomenti(a.ricerca, ini);
    std::optional<builder::ParametriRicerca> prima;
    for (const std::string& k : a.chiavi) ApplicaChiave(k, a.ricerca, p, prima);
    p.colpiDaGiocare = a.colpiDaGiocare;
    // The period and the spy are refused as the search refuses them.
    builder::ContestoCostruttore cc = PreparaContesto(archivio, ini, a.ricerca, p);
    for (const std::string& k : a.chiavi) ControllaChiave(k, p, cc);
    return {std::move(archivio), p, std::move(cc)};
}

void Verifica(const Contesto& ctx, const ArgomentiVerifica& a) {
    const Preparati x = Prepara(ctx, a);
    const std::string& chiave = a.chiavi.front();
    const builder::ContestoRicerca contesto = x.cc.Contesto();
    const std::string descrizione = builder::DescrizioneDaChiave(chiave, x.p, contesto.terzine);
    const builder::EsitoVerifica v =
        builder::VerificaAlgoritmo(x.p, contesto, descrizione, chiave, SpiaDellaRiga(x.p), false, x.p.colpiDaGiocare);
    if (!v.errore.vuoto()) throw Rifiuto{v.errore};
    const builder::EsitoRiepilogo r = builder::RiepilogoTecnica(x.p, contesto, v, descrizione, chiave);
    if (!r.errore.vuoto()) throw Rifiuto{r.errore};

    if (ctx.json) {
        nlohmann::json righe = nlohmann::json::array();
        for (const builder::RigaVerifica& g : v.righe) {
            const auto& c = g.colonne;
            righe.push_back({{"data_spia", c[0]},
                             {"ruota", Tronca(c[1])},
                             {"spia", c[2]},
                             {"posizione", c[3]},
                             {"indice_mese", c[4]},
                             {"indice_annuale", c[5]},
                             {"previsione", c[7]},
                             {"data_sortita", c[8]},
                             {"ruota_sortita", Tronca(c[9])},
                             {"colpo", c[10]},
                             {"indice_spia", g.indiceSpia},
                             {"indice_esito", g.indiceEsito},
                             {"in_corso", g.inCorso},
                             {"algoritmo", g.chiave}});
        }
        const builder::FigureRiepilogo& f = r.figure;
        StampaJson({{"descrizione", descrizione},
                    {"chiave", chiave},
                    {"risultati", v.lblDescrizioneRisultatiOttenuti},
                    {"in_corso", v.inCorso},
                    {"righe", righe},
                    {"previsione", v.lblCapo},
                    {"previsione_in_corso", v.capoInCorso()},
                    {"data_previsione", v.lblDataPrevisione},
                    {"riepilogo",
                     {{"rilevati", f.rilevati},
                      {"favorevoli", f.favorevoli},
                      {"negativi", f.negativi},
                      {"in_gioco", f.inGioco},
                      {"sfaldati", f.sfaldati},
                      {"somma_colpi", f.sommaColpi},
                      {"testa", r.testa},
                      {"righe", r.righe}}}});
        return;
    }
    std::cout << v.lblDescrizioneRisultatiOttenuti << "\n\n";
    for (const builder::RigaVerifica& g : v.righe) {
        const auto& c = g.colonne;
        std::cout << fmt::format("{} {} {:>5} {:>3} {} {} {} {:<10} {:<10} {:>3}{}\n", c[0], c[1], c[2], c[3], c[4],
                                 c[5], c[7], c[8], c[9], c[10], g.inCorso ? "  <--" : "");
    }
    std::cout << "\n";
    for (const std::string& t : r.testa) std::cout << t << "\n";
    std::cout << "\n";
    for (const std::string& t : r.righe) std::cout << t << "\n";
    std::cout << "\n";
    if (v.capoInCorso())
        std::cout << fmt::format("Previsione in corso: {} (calcolata al {})\n", Tronca(v.lblCapo), v.lblDataPrevisione);
    else
        std::cout << fmt::format("Nessuna previsione in corso; ultima previsione: {}\n", Tronca(v.lblCapo));
}

void Previsioni(const Contesto& ctx, const ArgomentiVerifica& a) {
    const Preparati x = Prepara(ctx, a);
    const builder::ContestoRicerca contesto = x.cc.Contesto();
    std::vector<builder::RigaAlgoritmo> righe;
    for (const std::string& k : a.chiavi) {
        builder::RigaAlgoritmo r;
        r.chiave = k;
        r.descrizione = builder::DescrizioneDaChiave(k, x.p, contesto.terzine);
        r.testoSpia = SpiaDellaRiga(x.p);
        r.selezionata = true;
        righe.push_back(std::move(r));
    }
    const builder::EsitoPrevisioni e = builder::CalcolaPrevisioni(x.p, contesto, righe);
    if (!e.errore.vuoto()) throw Rifiuto{e.errore};
    if (ctx.json) {
        nlohmann::json j = nlohmann::json::array();
        for (const builder::RigaPrevisione& r : e.righe)
            j.push_back({{"descrizione", r.descrizione},
                         {"previsione", r.previsione},
                         {"ritardo", Tronca(r.ritardo)},
                         {"ritardo_max", Tronca(r.ritardoMax)},
                         {"frequenza", Tronca(r.frequenza)},
                         {"ic", r.conIndice ? nlohmann::json(r.indiceConvenienza) : nlohmann::json(nullptr)}});
        StampaJson({{"titolo", e.titolo}, {"righe", j}});
        return;
    }
    std::cout << e.titolo << "\n\n";
    std::cout << fmt::format("{:<40} {:<10} {:>5} {:>5} {:>5} {:>6}\n", "Descrizione algoritmo", "Previsione", "Rit.",
                             "R.Max", "Freq.", "I.C.");
    for (const builder::RigaPrevisione& r : e.righe)
        std::cout << fmt::format("{:<40} {:<10} {:>5} {:>5} {:>5} {:>6}\n", r.descrizione, r.previsione, r.ritardo,
                                 r.ritardoMax, r.frequenza, r.indiceConvenienza);
}

}  // namespace

void AggiungiComandiVerifica(CLI::App& app, Contesto& ctx) {
    auto v = std::make_shared<ArgomentiVerifica>();
    auto* c = app.add_subcommand("verifica",
                                 "Verifica di un algoritmo: casi della spia, esiti, riepilogo e previsione in corso");
    c->add_option("--chiave", v->chiavi, "Chiave dell'algoritmo (come la dà costruttore --json)")
        ->required()
        ->expected(1);
    c->add_option("--colpi-da-giocare", v->colpiDaGiocare,
                  "Previsione in corso con al massimo questi colpi al termine (predefinito 9)");
    AggiungiOpzioniRicerca(c, v->ricerca);
    c->footer(
        "Il tipo di ricerca, la spia e le sue posizioni si leggono dalla chiave; --tipo serve per le "
        "terzine (x ambo o x terno), --spia per somma e differenza.");
    c->callback([&ctx, v] { Verifica(ctx, *v); });

    auto p = std::make_shared<ArgomentiVerifica>();
    auto* d = app.add_subcommand("previsioni",
                                 "Calcolo previsioni degli algoritmi: ritardo, ritardo massimo, "
                                 "frequenza e indice di convenienza");
    d->add_option("--chiave", p->chiavi, "Chiave di un algoritmo; ripetere per più algoritmi")->required();
    d->add_option("--colpi-da-giocare", p->colpiDaGiocare, "Come per verifica (predefinito 9)");
    AggiungiOpzioniRicerca(d, p->ricerca);
    d->callback([&ctx, p] { Previsioni(ctx, *p); });
}

const GruppoComandi registrazione{40, AggiungiComandiVerifica};

}  // namespace gorgo::cli
