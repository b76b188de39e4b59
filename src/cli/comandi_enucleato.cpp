// enucleato, statistica-somme, ambi-matematici: the enucleated pair, its statistics and the
// group of the 90 mathematical pairs.

#include <fmt/format.h>
#include <cctype>
#include <filesystem>
#include <iostream>

#include "archives/regole.h"
#include "cli/contesto.h"
#include "cli/opzioni_comuni.h"
#include "cli/parametri_ricerca.h"
#include "config/impostazioni.h"
#include "enucleated/enucleato.h"
#include "enucleated/gruppo.h"
#include "enucleated/report.h"
#include "enucleated/statistica.h"

namespace gorgo::cli {

namespace {

using namespace gorgo::enucleated;

// The pickers' defaults: InizioRicerca and FineRicerca.
std::pair<std::string, std::string> PeriodoPredefinito(const Contesto& ctx, const archives::StoriaLotto& s) {
    const config::FileIni ini(ctx.FileImpostazioni().string());
    const config::IndiciRicerca r = config::LeggiIndiciRicerca(ini, s.NumeroEstrazioni());
    return {s.DataEstrazione(r.IndiceInizio), s.DataEstrazione(r.IndiceFine)};
}

Periodo PeriodoDa(const Contesto& ctx, const archives::StoriaLotto& s, std::string da, std::string a) {
    const auto [d, f] = PeriodoPredefinito(ctx, s);
    if (da.empty()) da = d;
    if (a.empty()) a = f;
    const EsitoPeriodo e = ControllaPeriodo(s, da, a);
    if (!e.valido()) throw Rifiuto{e.errore};
    return e.periodo;
}

int Numero(const std::string& testo, const char* opzione, size_t cifre) {
    const std::optional<int> n = LeggiCasella(testo, cifre);
    if (!n)
        throw Rifiuta(fmt::format("{}: indicare un numero intero da 0 in su (al massimo {} cifre).", opzione, cifre));
    return *n;
}

template <size_t N>
nlohmann::json Testi(const std::array<std::string, N>& t) {
    return nlohmann::json(std::vector<std::string>(t.begin(), t.end()));
}

// ---- enucleato

struct ArgomentiEnucleato {
    std::string data, da, a;
    std::vector<std::string> ruote;
    bool terni = false, matematici = false;
    OpzioniReport report;
};

void Enucleato(const Contesto& ctx, const ArgomentiEnucleato& x) {
    const archives::Archivio archivio = ctx.ApriArchivi();
    const archives::StoriaCondivisa storia = archivio.Storia();
    const archives::StoriaLotto& s = *storia;
    std::vector<int> ruote;
    for (const std::string& r : x.ruote) ruote.push_back(LeggiRuota(r, false));
    if (ruote.empty()) ruote.push_back(RuotaImpostata(ctx));
    // The shown draw: the one on or before the date.
    const archives::RisultatoData mostrata = archives::ControllaData(x.data, s, true);
    if (mostrata.ErroreData) throw Rifiuto{mostrata.messaggio};
    const MatriceEnucleato m = MostraEstrazioneEnucleato(s, mostrata.IndiceTrovato, x.matematici);
    const std::string da = x.da.empty() ? PeriodoPredefinito(ctx, s).first : x.da;
    const std::string a = x.a.empty() ? mostrata.DataTrovata : x.a;
    x.report.Controlla();

    ListaEnucleato lista;
    lista.ImpostaTipo(x.terni ? TipoAnalisi::Terni : TipoAnalisi::Ambi);
    std::array<bool, 12> scelte{};
    Periodo periodo;
    for (int w : ruote) {
        std::array<bool, 12> una{};
        una[static_cast<size_t>(w)] = scelte[static_cast<size_t>(w)] = true;
        const EsitoPeriodo e = RicercaEnucleato(s, m, da, a, una, lista);
        if (!e.valido()) throw Rifiuto{e.errore};
        periodo = e.periodo;
    }
    if (x.report.Scrivi(ReportEnucleatoFile(lista, m.data, scelte), ctx.json) && !ctx.json) return;

    const std::string descrizione = fmt::format("Ambo enucleato - Verifica estrazione del {}", m.data);
    if (ctx.json) {
        nlohmann::json matrice = nlohmann::json::array(), righe = nlohmann::json::array();
        for (int w = 1; w <= archives::NumeroRuote; ++w) {
            nlohmann::json numeri = nlohmann::json::array(), evidenziati = nlohmann::json::array();
            for (int p = 1; p <= 5; ++p) {
                numeri.push_back(m.Testo(w, p));
                evidenziati.push_back(m.evidenziato[static_cast<size_t>(w)][static_cast<size_t>(p - 1)]);
            }
            matrice.push_back({{"ruota", SiglaRuota(w)}, {"numeri", numeri}, {"evidenziati", evidenziati}});
        }
        for (const RigaEnucleato& r : lista.righe())
            righe.push_back({{"testo", {r.descrizione, r.prog, r.data, r.somma, r.nota}},
                             {"ruota", r.numeroRuota},
                             {"separatore", r.separatore()},
                             {"chiave", r.chiave},
                             {"numeri", r.numeri},
                             {"ritardi", r.ritardi},
                             {"somma", r.separatore() ? nlohmann::json(nullptr) : nlohmann::json(r.sommaRitardi)}});
        StampaJson({{"descrizione", descrizione},
                    {"estrazione", {{"data", m.data}, {"indice", m.indice}, {"ruote", matrice}}},
                    {"periodo", {{"dal", periodo.dataDa}, {"al", periodo.dataA}}},
                    {"righe", righe}});
        return;
    }
    std::cout << descrizione << "\n\n";
    for (int w = 1; w <= archives::NumeroRuote; ++w) {
        std::cout << SiglaRuota(w) << " ";
        for (int p = 1; p <= 5; ++p) {
            const bool ev = m.evidenziato[static_cast<size_t>(w)][static_cast<size_t>(p - 1)];
            std::cout << (ev ? " [" : "  ") << m.Testo(w, p) << (ev ? "]" : " ");
        }
        std::cout << "\n";
    }
    std::cout << fmt::format("\nPeriodo di verifica: dal {} al {}\n", periodo.dataDa, periodo.dataA);
    std::cout << fmt::format("{:<18} Prog. {:<10} Somma rit. Note\n", lista.TitoloDescrizione(), "Data");
    for (const RigaEnucleato& r : lista.righe()) {
        if (r.separatore()) {
            std::cout << "\n";
            continue;
        }
        std::cout << fmt::format("{:<18} {:>5} {:<10} {:>10} {}\n", r.descrizione, r.prog, r.data, r.somma, r.nota);
    }
}

// ---- statistica-somme

struct ArgomentiStatistica {
    std::string ruota, da, a, presenze, quante, somma, dettaglio;
    bool terni = false, matematici = false;
    OpzioniReport report;
};

void StatisticaSomme(const Contesto& ctx, const ArgomentiStatistica& x) {
    const archives::Archivio archivio = ctx.ApriArchivi();
    const archives::StoriaCondivisa storia = archivio.Storia();
    const archives::StoriaLotto& s = *storia;
    ParametriStatistica p;
    p.ruota = x.ruota.empty() ? RuotaImpostata(ctx) : LeggiRuota(x.ruota, false);
    p.tipo = x.terni ? TipoAnalisi::Terni : TipoAnalisi::Ambi;
    p.soloMatematici = x.matematici;
    if (!x.presenze.empty()) {
        p.perPresenze = true;
        p.presenze = Numero(x.presenze, "--presenze", 5);
    }
    if (!x.quante.empty()) p.quante = Numero(x.quante, "--quante", 3);
    std::optional<int> somma, dettaglio;
    if (!x.somma.empty()) somma = Numero(x.somma, "--somma", 3);
    if (!x.dettaglio.empty()) dettaglio = Numero(x.dettaglio, "--dettaglio", 3);
    if (dettaglio && x.terni)
        throw Rifiuta("--dettaglio: il dettaglio della somma di ritardi è delle coppie; togliere --terni.");
    const Periodo periodo = PeriodoDa(ctx, s, x.da, x.a);
    x.report.Controlla();

    if (dettaglio) {
        const EsitoDettaglio d = DettaglioRitardi(s, periodo, p.ruota, *dettaglio, p.soloMatematici);
        if (x.report.Scrivi(ReportDettaglioFile(d), ctx.json) && !ctx.json) return;
        const std::string descrizione = fmt::format("Somma ritardi: {} su {}", *dettaglio, NomeRuota(p.ruota));
        if (ctx.json) {
            nlohmann::json coppie = nlohmann::json::array(), ritardi = nlohmann::json::array();
            for (const RigaCoppiaRitardi& c : d.coppie)
                coppie.push_back({{"testo", Testi(c.testo)},
                                  {"ritardi", {c.d1, c.d2}},
                                  {"presenze", c.presenze},
                                  {"ritardo_attuale", c.ritardoAttuale},
                                  {"ritardo_max", c.ritardoMax},
                                  {"da_giocare", c.daGiocare}});
            for (const RigaRitardo& r : d.ritardi)
                ritardi.push_back({{"testo", Testi(r.testo)},
                                   {"ritardo", r.ritardo},
                                   {"presenze", r.presenze},
                                   {"ritardo_attuale", r.ritardoAttuale},
                                   {"ritardo_max", r.ritardoMax}});
            StampaJson({{"descrizione", descrizione}, {"righe", coppie}, {"ritardi", ritardi}});
            return;
        }
        std::cout << descrizione << fmt::format(" (dal {} al {})\n\n", periodo.dataDa, periodo.dataA);
        std::cout << "Coppia      Presenze Rit. att Rit. max  I.C. % di presenza  Da giocare\n";
        for (const RigaCoppiaRitardi& c : d.coppie)
            std::cout << fmt::format("{:<11} {:>8} {:>8} {:>8} {:>5} {:>13}  {}\n", c.testo[0], c.testo[1], c.testo[2],
                                     c.testo[3], c.testo[4], c.testo[5], c.daGiocare);
        std::cout << "\nRitardo Presenze R.att Rit.max\n";
        for (const RigaRitardo& r : d.ritardi)
            std::cout << fmt::format("{:>7} {:>8} {:>5} {:>7}\n", r.testo[0], r.testo[1], r.testo[2], r.testo[3]);
        return;
    }

    StatisticheEnucleato st;
    const EsitoStatistica e = st.Calcola(s, periodo, p);
    if (somma) {
        const ListaCoppie l =
            x.terni ? st.Terzine(p.ruota, *somma, p.soloMatematici) : st.Coppie(p.ruota, *somma, p.soloMatematici);
        if (x.report.Scrivi(ReportCoppieFile(l, p.tipo), ctx.json) && !ctx.json) return;
        if (ctx.json) {
            nlohmann::json righe = nlohmann::json::array();
            for (const RigaCoppia& r : l.righe)
                righe.push_back({{"testo", Testi(r.testo)},
                                 {"numeri", r.numeri},
                                 {"ritardi", r.ritardi},
                                 {"ritardo_attuale", r.ritardoAttuale},
                                 {"ritardo_max", r.ritardoMax},
                                 {"frequenza", r.frequenza},
                                 {"ic", r.testo[5]}});
            StampaJson({{"descrizione", l.descrizione}, {"riepilogo", {l.totale}}, {"righe", righe}});
            return;
        }
        std::cout << l.descrizione << "\n" << l.totale << "\n\n";
        std::cout << fmt::format("{:<14} {:<22} Rit. attuale Rit. max Frequenza  I.C.\n", x.terni ? "Terzina" : "Ambo",
                                 "Rit. interno");
        for (const RigaCoppia& r : l.righe)
            std::cout << fmt::format("{:<14} {:<22} {:>12} {:>8} {:>9} {:>6}\n", r.testo[0], r.testo[1], r.testo[2],
                                     r.testo[3], r.testo[4], r.testo[5]);
        return;
    }
    if (x.report.Scrivi(ReportStatisticaFile(e.righe, p.ruota, periodo), ctx.json) && !ctx.json) return;
    const std::string descrizione =
        fmt::format("Ambo enucleato - Statistica generale ({}), ruota {}, dal {} al {}", x.terni ? "Terzine" : "Coppie",
                    e.lblRuota, periodo.dataDa, periodo.dataA);
    if (ctx.json) {
        nlohmann::json righe = nlohmann::json::array();
        for (const RigaStatistica& r : e.righe)
            righe.push_back({{"testo", {r.testo[0], r.testo[1], r.testo[2], r.testo[3], r.testo[4], r.testo[5]}},
                             {"somma", r.somma},
                             {"frequenza", r.frequenza},
                             {"ritardo", r.ritardo},
                             {"ritardo_max", r.ritardoMax},
                             {"data_ritardo_max", r.dataRitardoMax},
                             {"chiave", r.testo[6]}});
        StampaJson({{"descrizione", descrizione}, {"righe", righe}});
        return;
    }
    std::cout << descrizione << "\n\n";
    std::cout << "Ruota      Somma rit. Frequenza Ritardo Ritardo max (il)         Freq. media\n";
    for (const RigaStatistica& r : e.righe)
        std::cout << fmt::format("{:<10} {:>10} {:>9} {:>7} {:<24} {:>11}\n", r.testo[0], r.testo[1], r.testo[2],
                                 r.testo[3], r.testo[4], r.testo[5]);
}

// ---- ambi-matematici

struct ArgomentiGruppo {
    std::string ruota, da, a;
    OpzioniReport report;
};

void AmbiMatematiciGruppo(const Contesto& ctx, const ArgomentiGruppo& x) {
    const archives::Archivio archivio = ctx.ApriArchivi();
    const archives::StoriaCondivisa storia = archivio.Storia();
    const archives::StoriaLotto& s = *storia;
    const int ruota = x.ruota.empty() ? RuotaImpostata(ctx) : LeggiRuota(x.ruota, true);
    const Periodo periodo = PeriodoDa(ctx, s, x.da, x.a);
    x.report.Controlla();
    const EsitoGruppo e = StatisticaGruppo(s, periodo, ruota == 0, ruota);
    if (x.report.Scrivi(ReportGruppo(e), ctx.json) && !ctx.json) return;
    if (ctx.json) {
        nlohmann::json righe = nlohmann::json::array();
        for (const RigaGruppo& r : e.righe)
            righe.push_back({{"ritardo", r.ritardo},
                             {"frequenza", r.frequenza},
                             {"ritardo_attuale", r.ritardoAttuale},
                             {"ritardo_max", r.ritardoMax},
                             {"ic", r.testo[4]},
                             {"testo", Testi(r.testo)}});
        StampaJson(
            {{"descrizione", fmt::format("Ambi matematici - Periodo : dal {} al {}", periodo.dataDa, periodo.dataA)},
             {"riepilogo", e.riepilogo},
             {"righe", righe}});
        return;
    }
    std::cout << fmt::format("Ambi matematici - Periodo : dal {} al {}\n\n", periodo.dataDa, periodo.dataA);
    for (const std::string& r : e.riepilogo) std::cout << r << "\n";
    std::cout << "\nComportamento dei ritardi del gruppo\nRitardo Frequenza Ritardo att. Ritardo max  I.C.\n";
    for (const RigaGruppo& r : e.righe)
        std::cout << fmt::format("{:>7} {:>9} {:>12} {:>11} {:>5}\n", r.testo[0], r.testo[1], r.testo[2], r.testo[3],
                                 r.testo[4]);
}

}  // namespace

void AggiungiComandiEnucleato(CLI::App& app, Contesto& ctx) {
    auto e = std::make_shared<ArgomentiEnucleato>();
    auto* c = app.add_subcommand("enucleato",
                                 "Ambo enucleato: somme dei ritardi degli ambi (o terni) di un'estrazione, ruota per "
                                 "ruota, con le note di minimo e massimo");
    c->add_option("data", e->data, "L'estrazione mostrata, GG/MM/AAAA (quella del giorno o la precedente)")->required();
    c->add_option("--da", e->da, "Inizio del periodo di verifica (predefinito: impostazione InizioRicerca)");
    c->add_option("--a", e->a, "Data da cui si contano i ritardi (predefinito: quella dell'estrazione mostrata)");
    c->add_option("--ruota", e->ruote,
                  "Ruota di ricerca BA,CA,...,NZ; ripetuta, aggiunge alla lista una ruota dopo l'altra "
                  "(predefinito: impostazione Ruota)");
    c->add_flag("--terni", e->terni, "Analisi terni invece di analisi ambi");
    c->add_flag("--matematici", e->matematici, "Evidenzia i numeri degli ambi matematici dell'estrazione");
    e->report.Aggiungi(c, "Scrive il report in un file di testo (nome proposto Ambo_Enucleato_GGMMAAAA.txt)");
    c->callback([&ctx, e] { Enucleato(ctx, *e); });

    auto st = std::make_shared<ArgomentiStatistica>();
    auto* s = app.add_subcommand("statistica-somme",
                                 "Ambo enucleato - Statistica generale delle somme di ritardi di una ruota; con "
                                 "--somma le coppie (o terzine) di quella somma, con --dettaglio il dettaglio");
    s->add_option("--ruota", st->ruota, "BA,CA,...,NZ (predefinito: impostazione Ruota)");
    s->add_option("--da", st->da, "Inizio del periodo GG/MM/AAAA (predefinito: impostazione InizioRicerca)");
    s->add_option("--a", st->a, "Fine del periodo GG/MM/AAAA (predefinito: impostazione FineRicerca)");
    s->add_flag("--terni", st->terni, "Terzine invece di coppie");
    s->add_flag("--matematici", st->matematici, "Verifica solo ambi matematici");
    auto* pres = s->add_option("--presenze", st->presenze, "Tutte le somme con almeno N presenze")->type_name("N");
    s->add_option("--quante", st->quante, "Solamente le N somme più frequenti (predefinito 15)")
        ->type_name("N")
        ->excludes(pres);
    s->add_option("--somma", st->somma, "Le coppie (o terzine) con questa somma di ritardi a fine periodo")
        ->type_name("S");
    s->add_option("--dettaglio", st->dettaglio, "Dettaglio della somma di ritardi S (coppie)")->type_name("S");
    st->report.Aggiungi(s,
                        "Scrive il report in un file di testo (nome proposto Ambo_Enucleato_StatGenerale_<ruota>.txt)");
    s->callback([&ctx, st] { StatisticaSomme(ctx, *st); });

    auto g = std::make_shared<ArgomentiGruppo>();
    auto* m = app.add_subcommand("ambi-matematici",
                                 "Ambo enucleato - Statistica gruppo ambi matematici: comportamento dei ritardi");
    m->add_option("--ruota", g->ruota, "BA,CA,...,NZ oppure tutte (predefinito: impostazione Ruota)");
    m->add_option("--da", g->da, "Inizio del periodo GG/MM/AAAA (predefinito: impostazione InizioRicerca)");
    m->add_option("--a", g->a, "Fine del periodo GG/MM/AAAA (predefinito: impostazione FineRicerca)");
    g->report.Aggiungi(
        m, "Scrive il report in un file di testo (nome proposto Ambo_Enucleato_StatAmbiMatematici_<ruota>.txt)");
    m->callback([&ctx, g] { AmbiMatematiciGruppo(ctx, *g); });
}

const GruppoComandi registrazione{90, AggiungiComandiEnucleato};

}  // namespace gorgo::cli
