// punti-incogniti, quaterna, multiruota, somma-cinquine: the four number-study utilities.

#include <fmt/format.h>

#include <charconv>
#include <cmath>
#include <filesystem>
#include <iostream>
#include <map>

#include "archives/regole.h"
#include "cli/contesto.h"
#include "cli/opzioni_comuni.h"
#include "cli/parametri_ricerca.h"
#include "config/impostazioni.h"
#include "config/ini.h"
#include "config/report_testo.h"
#include "config/restrizioni.h"
#include "studies/multiruota.h"
#include "studies/numeri_simpatici.h"
#include "studies/punti_incogniti.h"
#include "studies/somma_cinquine.h"

namespace gorgo::cli {

namespace {

using namespace gorgo::studies;

nlohmann::json RigheJson(const std::vector<Riga>& righe) {
    nlohmann::json a = nlohmann::json::array();
    for (const Riga& r : righe) {
        nlohmann::json o{{"testo", r.testi()}};
        for (const auto& [nome, v] : r.valori)
            o[std::string(nome)] = std::floor(v) == v && std::abs(v) < 1e15 ? nlohmann::json(static_cast<long long>(v))
                                                                            : nlohmann::json(v);
        a.push_back(std::move(o));
    }
    return a;
}

void StampaRighe(const std::vector<Riga>& righe) {
    for (const Riga& r : righe) {
        std::string t;
        for (size_t k = 0; k < r.celle.size(); ++k) t += (k ? " | " : "") + r.celle[k].testo;
        t.erase(t.find_last_not_of(" |") + 1);
        std::cout << t << "\n";
    }
}

std::string Unite(const int16_t* v, int n) {
    std::string t;
    for (int k = 0; k < n; ++k) t += (k ? "." : "") + fmt::format("{:>2}", v[k]);
    return t;
}

// ---- punti-incogniti

struct ArgomentiPunti {
    std::string indice, ruota, da, a, sorte = "ambi", colpi = "10";
    bool storica = false, tutte = false, riepilogo = false;
    OpzioniReport report;
};

void PuntiIncogniti(const Contesto& ctx, const ArgomentiPunti& a) {
    const archives::Archivio archivio = ctx.ApriArchivi();
    const auto storia = archivio.Storia();
    const archives::StoriaLotto& s = *storia;
    ParametriVerifica p;
    p.Ruota = RuotaOImpostazione(a.ruota, ctx);
    p.Al = IndiceLotto(s, a.a.empty() ? a.indice : a.a);
    const int32_t mostrata = a.a.empty() ? p.Al : IndiceLotto(s, a.indice);
    p.Dal = a.da.empty() ? std::min(PrimaEstrazioneVerifica, s.NumeroEstrazioni()) : IndiceLotto(s, a.da);
    static const std::map<std::string, int> sorti = {{"ambate", 1}, {"ambi", 2}, {"terni", 3}, {"somme", 4}};
    p.Sorte = sorti.at(a.sorte);
    p.Colpi = LeggiCasella(a.colpi, 3).value_or(0);
    p.SoloPrima = !a.tutte;
    a.report.Controlla();

    const EsitoColpi colpi = VerificaColpi(s, mostrata, p.Ruota, p.Colpi);
    if (!colpi.errore.vuoto()) throw Rifiuto{colpi.errore};
    EsitoStorica storica;
    EsitoRiepilogo riepilogo;
    if (a.storica || a.riepilogo) {
        storica = VerificaStorica(s, p);
        if (!storica.errore.vuoto()) throw Rifiuto{storica.errore};
        // The summary starts from the label's tag as the historic check of the shown wheel left it,
        // or from none when that check was not asked for.
        if (a.riepilogo) riepilogo = RiepilogoRuote(s, p, a.storica ? storica.tag : "");
    }
    if (a.report.Scrivi(a.storica ? ReportStorica(s, p, storica) : ReportColpi(s, mostrata, p.Ruota, colpi),
                        a.storica ? storica.righe.empty() : colpi.righe.empty(), ctx.json) &&
        !ctx.json)
        return;

    const SerieIncognita& se = colpi.serie;
    const std::array<int, 5> c = Cinquina(s[mostrata], p.Ruota);
    if (ctx.json) {
        nlohmann::json j{{"indice", mostrata},
                         {"data", s.DataEstrazione(mostrata)},
                         {"ruota", NomeRuota(p.Ruota)},
                         {"cinquina", c},
                         {"somma_ignota_calcolo", c[0] ? SommaIgnotaPreCalcolo(c[0]) : 0},
                         {"serie",
                          {{"punto_proiezione", se[0]},
                           {"punti", {se[1], se[2], se[3], se[4], se[5]}},
                           {"somma_estratti", se[6]},
                           {"somma_ignota", se[7]}}}};
        if (a.riepilogo) {
            j["righe"] = RigheJson(riepilogo.righe);
            j["righe_colpi"] = RigheJson(colpi.righe);
        } else if (a.storica) {
            j["righe"] = RigheJson(storica.righe);
            j["righe_colpi"] = RigheJson(colpi.righe);
        } else {
            j["righe"] = RigheJson(colpi.righe);
        }
        if (a.storica || a.riepilogo) {
            j["giocate"] = storica.Giocate;
            j["vincenti"] = storica.Vincenti;
            j["in_gioco"] = storica.InGioco;
            j["somma_colpi"] = storica.SommaColpi;
            j["descrizione"] = storica.descrizione;
        }
        StampaJson(j);
        return;
    }
    std::cout << fmt::format("I punti incogniti ruota {} estrazione del {} (n. {})\n", NomeRuota(p.Ruota),
                             s.DataEstrazione(mostrata), mostrata);
    std::cout << fmt::format("Cinquina estratta  : {:>2}.{:>2}.{:>2}.{:>2}.{:>2} - Somma estratti: {}\n", c[0], c[1],
                             c[2], c[3], c[4], se[6]);
    if (se[0] == 0) {
        std::cout << "Ruota non estratta: nessuna serie.\n";
    } else {
        std::cout << fmt::format("Serie calcolata    : {} - Somma ignota: {} - Punto di proiezione: {}\n",
                                 Unite(se.data() + 1, 5), se[7], se[0]);
    }
    if (!colpi.righe.empty()) {
        std::cout << "\nColpo | 1' | 2' | 3' | 4' | 5' | E | A | T | Es | As\n";
        StampaRighe(colpi.righe);
    }
    if (a.storica) {
        std::cout << fmt::format("\nVerifica storica dal {} al {} - {}\n", s.DataEstrazione(p.Dal),
                                 s.DataEstrazione(p.Al), TestiSorte[static_cast<size_t>(p.Sorte - 1)]);
        std::cout << fmt::format(
            "Data | Cinquina estratta | Se | Serie calcolata | Si | Colpo | {} | A | T | Es | As\n",
            p.Sorte == 4 ? "Ruota" : "E");
        StampaRighe(storica.righe);
        std::cout << storica.descrizione << "\n";
    }
    if (a.riepilogo) {
        std::cout << "\nRiepilogo storico di tutte le ruote\n";
        for (const Riga& r : riepilogo.righe)
            std::cout << fmt::format("{:<10} {}{}\n", r.celle[0].testo, r.celle[1].testo,
                                     r.colore == colori::Rosso ? "  <--" : "");
    }
}

// ---- quaterna

struct ArgomentiQuaterna {
    std::string ambo, ruote = "tutte", da, a;
    bool generale = false;
    OpzioniReport report;
};

std::array<bool, 12> RuoteScelte(const std::string& testo) {
    std::array<bool, 12> r{};
    std::string t;
    for (char c : testo) t += static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    size_t inizio = 0;
    while (inizio <= t.size()) {
        const size_t fine = std::min(t.find(',', inizio), t.size());
        const std::string sigla = t.substr(inizio, fine - inizio);
        if (sigla == "TUTTE") {
            for (int w = 1; w <= 10; ++w) r[static_cast<size_t>(w)] = true;
        } else if (sigla == "TUTTE+NZ") {
            for (int w = 1; w <= 11; ++w) r[static_cast<size_t>(w)] = true;
        } else {
            r[static_cast<size_t>(LeggiRuota(sigla))] = true;
        }
        inizio = fine + 1;
    }
    return r;
}

void Quaterna(const Contesto& ctx, const ArgomentiQuaterna& a) {
    const archives::Archivio archivio = ctx.ApriArchivi();
    const auto storia = archivio.Storia();
    const archives::StoriaLotto& s = *storia;
    const config::FileIni ini(ctx.FileImpostazioni().string());
    ParametriSimultanea p;
    if (!a.generale) {
        const size_t t = a.ambo.find('-');
        const auto x = LeggiCasella(a.ambo.substr(0, t), 2);
        const auto y = t == std::string::npos ? std::nullopt : LeggiCasella(a.ambo.substr(t + 1), 2);
        if (x && y && *x >= 1 && *x <= 90 && *y >= 1 && *y <= 90 && *x != *y)
            p.Coppia = {std::min(*x, *y), std::max(*x, *y)};
        else if (!a.ambo.empty())
            throw Rifiuta("--ambo: indicare due numeri diversi da 1 a 90, come 12-34.");
    }
    p.RuoteScelte = RuoteScelte(a.ruote);
    p.Dal = a.da.empty() ? 1 : IndiceLotto(s, a.da);
    p.Al = a.a.empty() ? s.NumeroEstrazioni() : IndiceLotto(s, a.a);
    p.restrizioni = config::LeggiRestrizioni(ini);
    a.report.Controlla();
    const std::string restrizioni = config::TestoRestrizioni(ini, false, true);
    if (a.generale) {
        const EsitoGenerale e = StatisticaGenerale(s, p);
        if (!e.errore.vuoto()) throw Rifiuto{e.errore};
        if (a.report.Scrivi(ReportGenerale(s, p, e), e.righe.empty(), ctx.json) && !ctx.json) return;
        if (ctx.json) {
            StampaJson(
                {{"righe", RigheJson(e.righe)}, {"ambi_analizzati", e.AmbiAnalizzati}, {"descrizione", e.analizzati}});
            return;
        }
        std::cout << "Ambo ricercato | Ambi abbinati | Abbinam. | Ritardo | Rit.Max | Freq. | I.C. | Ruota migliore | "
                     "Rit. simul.\n";
        StampaRighe(e.righe);
        std::cout << e.analizzati << "\n";
        return;
    }
    const EsitoSimultanea e = RicercaSimultanea(s, p);
    if (!e.errore.vuoto()) throw Rifiuto{e.errore};
    if (a.report.Scrivi(ReportSimultanea(s, p, e, true, true), false, ctx.json) && !ctx.json) return;
    if (ctx.json) {
        StampaJson({{"righe", RigheJson(e.righe)},
                    {"ambo", RigheJson(e.righeCoppia)},
                    {"estrazioni_analizzate", e.EstrazioniAnalizzate},
                    {"descrizione", e.analizzate},
                    {"restrizioni", restrizioni}});
        return;
    }
    std::cout << "Ambo ricercato | Sortite | Ritardo | Rit.Max | Freq. | I.C. | Ruota migliore\n";
    StampaRighe(e.righeCoppia);
    std::cout << "\nAmbo | Abbinam. | Ritardo | Rit.Max | Freq. | I.C. | Ruota migliore | Rit. simul.\n";
    StampaRighe(e.righe);
    std::cout << e.analizzate << "\n";
    if (!restrizioni.empty()) std::cout << restrizioni << "\n";
}

// ---- multiruota

struct ArgomentiMultiruota {
    std::string indice, ruota, tipo = "ambate", volte = "18", estrazioni = "10", nonSfaldati;
    bool perCicli = false;
    int dettaglio = 0;
    OpzioniReport report;
};

void Multiruota(const Contesto& ctx, const ArgomentiMultiruota& a) {
    const archives::Archivio archivio = ctx.ApriArchivi();
    const auto storia = archivio.Storia();
    const archives::StoriaLotto& s = *storia;
    ParametriMultiruota p;
    p.Base = IndiceLotto(s, a.indice);
    p.RuotaRicerca = RuotaOImpostazione(a.ruota, ctx);
    static const std::map<std::string, TipoMultiruota> tipi = {{"ambate", TipoMultiruota::Ambate},
                                                               {"ambi", TipoMultiruota::Ambi},
                                                               {"ambi-terzina", TipoMultiruota::AmbiInTerzina},
                                                               {"terni", TipoMultiruota::Terni}};
    p.TipoRicerca = tipi.at(a.tipo);
    p.Volte = LeggiCasella(a.volte, 4).value_or(0);
    const auto estrazioni = LeggiCasella(a.estrazioni, 4);
    if (!estrazioni)
        throw Rifiuta(
            "--estrazioni: indicare un numero di estrazioni successive (0 = fino alla prima estrazione utile).");
    p.Estrazioni = *estrazioni;
    p.Classifica = a.perCicli ? 1 : 0;
    a.report.Controlla();
    const auto formazioni = Formazioni(s[p.Base], p.RuotaRicerca, p.TipoRicerca);
    if (formazioni.empty()) {
        if (p.Volte < 1) throw Rifiuta(std::string(MessaggioVolte));
        std::cout << "-\n";
        return;
    }
    if (!a.nonSfaldati.empty() || a.dettaglio > 0) {
        EsitoDettaglio d;
        if (a.dettaglio > 0) {
            if (a.dettaglio > static_cast<int>(formazioni.size()))
                throw Rifiuta(fmt::format("--dettaglio: le formazioni sono {}.", formazioni.size()));
            d = DettaglioFormazione(s, p, static_cast<size_t>(a.dettaglio - 1));
        } else {
            d = NonSfaldati(s, p, IndiceLotto(s, a.nonSfaldati));
        }
        if (!d.errore.vuoto()) throw Rifiuto{d.errore};
        if (ctx.json) {
            StampaJson({{"righe", RigheJson(d.righe)}});
            return;
        }
        std::cout << "Data | 1' | 2' | 3' | 4' | 5' | Colpo | Ruota\n";
        StampaRighe(d.righe);
        return;
    }
    const EsitoMultiruota e = RicercaMultiruota(s, p);
    if (!e.errore.vuoto()) throw Rifiuto{e.errore};
    if (a.report.Scrivi(ReportMultiruota(p, e, false), e.righe.empty(), ctx.json) && !ctx.json) return;
    if (ctx.json) {
        StampaJson({{"righe", RigheJson(e.righe)}, {"descrizione", e.ruotaMigliore}});
        return;
    }
    std::cout << fmt::format("Ricerca per {} - {} volte entro le {} estrazioni successive - ruota {} - {}\n",
                             TestiTipoMultiruota[static_cast<size_t>(p.TipoRicerca)], p.Volte, p.Estrazioni,
                             NomeRuota(p.RuotaRicerca), s.DataEstrazione(p.Base));
    StampaRighe(e.righe);
    std::cout << e.ruotaMigliore << "\n";
}

// ---- somma-cinquine

struct ArgomentiSomma {
    std::string indice, costante, ruota, cinquina;
    bool tutte = false, senzaConvergenze = false;
    OpzioniReport report, reportCinquine;
};

void SommaCinquine(const Contesto& ctx, const ArgomentiSomma& a) {
    const archives::Archivio archivio = ctx.ApriArchivi();
    const auto storia = archivio.Storia();
    const archives::StoriaLotto& s = *storia;
    const int32_t indice = IndiceLotto(s, a.indice);
    a.report.Controlla();
    a.reportCinquine.Controlla();
    EsitoCinquine c;
    std::string coda;
    if (!a.ruota.empty() || !a.cinquina.empty()) {
        std::array<int, 5> n{};
        int ruota = 0;
        if (!a.cinquina.empty()) {
            size_t inizio = 0;
            for (size_t k = 0; k < 5; ++k) {
                const size_t fine = std::min(a.cinquina.find_first_of(",.- ", inizio), a.cinquina.size());
                n[k] = inizio <= a.cinquina.size()
                           ? LeggiCasella(a.cinquina.substr(inizio, fine - inizio), 2).value_or(0)
                           : 0;
                inizio = fine + 1;
            }
        } else {
            ruota = LeggiRuota(a.ruota);
            n = Cinquina(s[indice], ruota);
        }
        c = CinquineSpostate(n);
        coda = ruota ? CodaTitolo(0, ruota) : " (+1 <--> +90)";
    } else {
        int somma = 0;
        if (!a.tutte && !a.costante.empty()) {
            const auto v = LeggiCasella(a.costante, 2);
            if (!v) throw Rifiuto{{std::string(MessaggioSommaErrata), "Errore", archives::Icona::Esclamazione}};
            somma = *v;
        }
        c = CinquineSomma(s[indice], somma);
        coda = CodaTitolo(somma, 0);
    }
    if (!c.errore.vuoto()) throw Rifiuto{c.errore};
    const std::vector<std::string> conv =
        a.senzaConvergenze || c.righe.empty() ? std::vector<std::string>{} : Convergenze(c.righe);
    const std::string data = s.DataEstrazione(indice);
    const bool scritto =
        a.reportCinquine.Scrivi(ReportUtility("Cinquine ", data, coda, c.righe), c.righe.empty(), ctx.json);
    if ((a.report.Scrivi(ReportUtility("Convergenze su cinquine ", data, coda, conv), conv.empty(), ctx.json) ||
         scritto) &&
        !ctx.json)
        return;
    if (ctx.json) {
        nlohmann::json righe = nlohmann::json::array();
        for (const std::string& r : c.righe) righe.push_back({{"testo", {r}}});
        StampaJson({{"righe", righe}, {"convergenze", conv}, {"data", data}});
        return;
    }
    for (const std::string& r : c.righe) std::cout << r << "\n";
    if (!conv.empty()) {
        std::cout << "\nConvergenze\n";
        for (const std::string& r : conv) std::cout << r << "\n";
    }
}

}  // namespace

void AggiungiComandiStudi(CLI::App& app, Contesto& ctx) {
    const char* indiceOData = "Estrazione: numero progressivo oppure data GG/MM/AAAA";
    {
        auto a = std::make_shared<ArgomentiPunti>();
        auto* c = app.add_subcommand("punti-incogniti",
                                     "I punti incogniti: la serie di una ruota, la verifica nei colpi successivi, "
                                     "la verifica storica e il riepilogo di tutte le ruote");
        c->add_option("indice_o_data", a->indice, indiceOData)->required();
        c->add_option("--ruota", a->ruota, "La ruota: BA,CA,...,NZ (predefinito: impostazione Ruota)");
        c->add_option("--colpi", a->colpi, "Colpi da analizzare, al massimo tre cifre (predefinito 10)")
            ->type_name("NUMERO");
        c->add_flag("--storica", a->storica, "Verifica storica dal --da all'estrazione indicata");
        c->add_option("--da", a->da, "Verifica storica dal (predefinito: l'estrazione n. 3914)");
        c->add_option("--a", a->a, "Ultima estrazione di partenza (predefinito: l'estrazione indicata)");
        c->add_option("--sorte", a->sorte,
                      "Sorte minima: ambate, ambi (predefinito), terni, somme (ambi somme a tutte)")
            ->check(CLI::IsMember({"ambate", "ambi", "terni", "somme"}));
        c->add_flag("--tutte-le-vincite", a->tutte, "Verifica tutte le vincite ottenute (invece della 1')");
        c->add_flag("--riepilogo", a->riepilogo, "Riepilogo storico di tutte le ruote");
        a->report.Aggiungi(c, "Scrive la tabella (verifica storica con --storica) in un file di testo");
        c->callback([&ctx, a] { PuntiIncogniti(ctx, *a); });
    }
    {
        auto a = std::make_shared<ArgomentiQuaterna>();
        auto* c = app.add_subcommand("quaterna",
                                     "Ricerca simultanea per il gioco della quaterna: gli ambi abbinati a un ambo, "
                                     "o la statistica generale dei 4005 ambi");
        c->add_option("--ambo", a->ambo, "L'ambo, come 12-34");
        c->add_flag("--statistica-generale", a->generale, "Statistica generale dei 4005 ambi");
        c->add_option("--ruote", a->ruote, "tutte (predefinito), tutte+nz o sigle BA,CA,...,NZ");
        c->add_option("--da", a->da, "Dal GG/MM/AAAA (predefinito: la prima estrazione)");
        c->add_option("--a", a->a, "Al GG/MM/AAAA (predefinito: l'ultima estrazione)");
        a->report.Aggiungi(c, "Scrive le liste in un file di testo");
        c->callback([&ctx, a] { Quaterna(ctx, *a); });
    }
    {
        auto a = std::make_shared<ArgomentiMultiruota>();
        auto* c = app.add_subcommand("multiruota", "Ambate, ambi e terni multiruota di una cinquina");
        c->add_option("indice_o_data", a->indice, indiceOData)->required();
        c->add_option("--ruota", a->ruota, "Ruota originale di ricerca (predefinito: impostazione Ruota)");
        c->add_option("--tipo", a->tipo, "ambate (predefinito), ambi, ambi-terzina, terni")
            ->check(CLI::IsMember({"ambate", "ambi", "ambi-terzina", "terni"}));
        c->add_option("--volte", a->volte, "Occorrenze ricercate (predefinito 18)")->type_name("NUMERO");
        c->add_option("--estrazioni", a->estrazioni,
                      "Estrazioni successive (predefinito 10; 0 = fino alla prima estrazione utile)")
            ->type_name("NUMERO");
        c->add_flag("--per-cicli", a->perCicli, "Classifica in base alle presenze nei cicli richiesti");
        c->add_option("--dettaglio", a->dettaglio, "I cicli della formazione n. N (da 1)");
        c->add_option("--non-sfaldati", a->nonSfaldati, "Formazioni non sfaldate al GG/MM/AAAA");
        a->report.Aggiungi(c, "Scrive la classifica in un file di testo");
        c->callback([&ctx, a] { Multiruota(ctx, *a); });
    }
    {
        auto a = std::make_shared<ArgomentiSomma>();
        auto* c = app.add_subcommand(
            "somma-cinquine", "Utility somma cinquine: cinquine spostate di una costante fuori 90 e convergenze");
        c->add_option("indice_o_data", a->indice, indiceOData)->required();
        c->add_option("--costante", a->costante, "La somma, da 1 a 90 (0 = tutte)")->type_name("NUMERO");
        c->add_flag("--tutte", a->tutte, "Tutte le costanti da 1 a 90 (predefinito)");
        c->add_option("--ruota", a->ruota, "Le 90 cinquine spostate di una sola ruota");
        c->add_option("--cinquina", a->cinquina, "Le 90 cinquine spostate di una cinquina data, come 1,2,3,4,5");
        c->add_flag("--senza-convergenze", a->senzaConvergenze, "Solo le cinquine");
        c->add_option("--report", a->report.file, "Scrive le convergenze in un file di testo (Convergenze_Utility)");
        c->add_option("--report-cinquine", a->reportCinquine.file,
                      "Scrive le cinquine in un file di testo (Cinquine_Utility)");
        c->add_flag("--accoda", a->report.accoda, "Se il file del report esiste, aggiunge in calce");
        c->add_flag("--sovrascrivi", a->report.sovrascrivi, "Se il file del report esiste, lo sostituisce");
        c->callback([&ctx, a] {
            a->reportCinquine.accoda = a->report.accoda;
            a->reportCinquine.sovrascrivi = a->report.sovrascrivi;
            SommaCinquine(ctx, *a);
        });
    }
}

const GruppoComandi registrazione{110, AggiungiComandiStudi};

}  // namespace gorgo::cli
