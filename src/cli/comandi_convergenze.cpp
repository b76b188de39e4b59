// Convergences and lunghetta after a search, and the abbinamenti of a capogioco.

#include "cli/comandi_convergenze.h"
#include "cli/opzioni_comuni.h"

#include <fmt/format.h>
#include <filesystem>
#include <iostream>

#include "archives/regole.h"
#include "builder/capogioco.h"
#include "builder/convergenze.h"
#include "builder/report.h"
#include "cli/parametri_ricerca.h"
#include "config/report_testo.h"

namespace gorgo::cli {

namespace {

std::string Tronca(std::string_view t) {
    const auto a = t.find_first_not_of(' ');
    if (a == std::string_view::npos) return {};
    return std::string(t.substr(a, t.find_last_not_of(' ') - a + 1));
}

std::string NomeRuota(int w) { return w > 0 ? Tronca(archives::NomiRuota[static_cast<size_t>(w)]) : std::string(); }

nlohmann::json RigheJson(const std::vector<builder::RigaConvergenza>& righe) {
    nlohmann::json j = nlohmann::json::array();
    for (const builder::RigaConvergenza& r : righe)
        j.push_back({{"testo", {r.descrizione, r.previsione}},
                     {"descrizione", r.descrizione},
                     {"previsione", r.previsione},
                     {"numeri", r.numeri},
                     {"riga", r.riga}});
    return j;
}

void StampaRighe(const std::vector<builder::RigaConvergenza>& righe) {
    for (const builder::RigaConvergenza& r : righe)
        std::cout << fmt::format("{:<40} {}\n", r.descrizione, r.previsione);
}

void Convergenze(const Contesto& ctx, const builder::ParametriRicerca& p, const builder::ContestoCostruttore& cc,
                 const builder::EsitoRicerca& esito) {
    const builder::EsitoConvergenze e = builder::CalcolaConvergenze(p, cc.Contesto(), esito.righe);
    if (!e.frame)
        throw Rifiuto{{e.messaggio.testo + " (--seleziona seleziona tutte le righe della ricerca)", e.messaggio.titolo,
                       e.messaggio.icona}};
    if (ctx.json) {
        const auto voci = [](const std::vector<builder::Convergenza>& v) {
            nlohmann::json j = nlohmann::json::array();
            for (const builder::Convergenza& c : v) j.push_back({{"numeri", c.numeri}, {"volte", c.volte}});
            return j;
        };
        StampaJson({{"righe", RigheJson(e.righe)},
                    {"messaggio", e.messaggio.testo},
                    {"convergenze", e.rilevate},
                    {"numeri", voci(e.numeri)},
                    {"ambi", voci(e.ambi)},
                    {"terzine", voci(e.terzine)}});
        return;
    }
    std::cout << "Previsioni\n";
    StampaRighe(e.righe);
    std::cout << "\n" << e.messaggio.testo << "\n";
}

void Lunghetta(const Contesto& ctx, const builder::ParametriRicerca& p, const builder::ContestoCostruttore& cc,
               const builder::EsitoRicerca& esito, const ArgomentiConvergenze& a) {
    const builder::EsitoLunghetta e =
        builder::ElaboraLunghetta(p, cc.Contesto(), esito.righe, {*a.lunghetta, a.ruotaMigliore});
    if (!e.errore.vuoto()) throw Rifiuto{e.errore};
    if (ctx.json) {
        nlohmann::json somme = nlohmann::json::object();
        if (a.ruotaMigliore)
            for (int w = 1; w <= archives::NumeroRuote; ++w)
                if (e.somme[static_cast<size_t>(w)] > 0 || w == e.ruotaMigliore)
                    somme[NomeRuota(w)] = e.somme[static_cast<size_t>(w)];
        StampaJson({{"righe", RigheJson(e.righe)},
                    {"lunghetta", e.numeri},
                    {"testo", e.txtLunghetta},
                    {"ruota_migliore", a.ruotaMigliore ? nlohmann::json(e.txtRuotaMigliore) : nlohmann::json(nullptr)},
                    {"ruota_pari", e.ruotaPari > 0 ? nlohmann::json(NomeRuota(e.ruotaPari)) : nlohmann::json(nullptr)},
                    {"somme", somme}});
        return;
    }
    StampaRighe(e.righe);
    std::cout << fmt::format("\nLunghetta: {}\n", e.txtLunghetta);
    if (a.ruotaMigliore) std::cout << fmt::format("Ruota migliore: {}\n", e.txtRuotaMigliore);
}

// ---- abbinamenti ----

struct ArgomentiAbbinamenti {
    ArgomentiRicerca ricerca;
    std::string chiave, data, quanti = "12";
    bool sincronizza = false;
    int sposta = 0;
    OpzioniReport report;
};

void Abbinamenti(const Contesto& ctx, const ArgomentiAbbinamenti& a) {
    const std::optional<int> quanti = LeggiCasella(a.quanti, 2);
    if (!quanti || *quanti < 1 || *quanti > 15) throw Rifiuta("--quanti: il numero degli abbinati va da 1 a 15.");
    const archives::Archivio archivio = ctx.ApriArchivi();
    const config::FileIni ini(ctx.FileImpostazioni().string());
    const builder::ParametriRicerca p = ParametriDaArgomenti(a.ricerca, ini);
    const builder::ContestoCostruttore cc =
        builder::PreparaCostruttore(archivio.Storia(), ini, archivio.PercorsoProgramma());
    const archives::StoriaLotto& s = *cc.storia;
    // txtDataAbbinamenti starts at DataA.
    const std::string data = !a.data.empty() ? a.data : !p.dataA.empty() ? p.dataA : builder::DataAPredefinita(s);
    const archives::RisultatoData d = archives::ControllaData(data, s, true);
    if (d.ErroreData) throw Rifiuto{d.messaggio};
    a.report.Controlla();

    // The panel: the draw by its month test, then the moves asked, each followed by the recompute.
    builder::Capogioco c = builder::RicalcolaCapogioco(s, cc.indici, p.indiceMese, a.chiave, d.IndiceTrovato);
    int32_t indice = c.indice > 0 ? c.indice : d.IndiceTrovato;
    for (int k = 0; k < std::abs(a.sposta); ++k) {
        indice = a.sposta > 0 ? builder::EstrazioneSuccessiva(s, cc.indici, p.indiceMese, a.sincronizza, indice)
                              : builder::EstrazionePrecedente(indice);
        c = builder::RicalcolaCapogioco(s, cc.indici, p.indiceMese, a.chiave, indice);
        if (c.indice > 0) indice = c.indice;
    }
    if (!c.errore.vuoto()) throw Rifiuto{c.errore};
    const builder::EsitoAbbinamenti e =
        builder::CalcolaAbbinamenti(p, cc.Contesto(), a.chiave, indice, c.numero, *quanti);
    if (!e.errore.vuoto()) throw Rifiuto{e.errore};
    const std::string descrizione = builder::DescrizioneDaChiave(a.chiave, p, nullptr);
    const std::string dataCapo = c.indice > 0 ? c.data : s.DataEstrazione(indice);

    if (!a.report.file.empty()) {
        if (e.righe.empty()) {
            std::cerr << config::NullaDaEsportare << "\n";
            return;
        }
        a.report.ScriviSuFile(builder::ReportAbbinamenti(p, s, descrizione, dataCapo, c.numero, e));
        if (!ctx.json) {
            std::cout << fmt::format("{} numeri abbinati scritti in {}\n", e.righe.size(), a.report.file);
            return;
        }
    }
    if (ctx.json) {
        nlohmann::json righe = nlohmann::json::array();
        for (const builder::RigaAbbinamento& r : e.righe)
            righe.push_back({{"testo", {r.testo}},
                             {"numero", r.numero},
                             {"conteggio", r.conteggio},
                             {"percentuale", e.vincite > 0 ? r.conteggio * 100.0 / e.vincite : 0.0}});
        StampaJson({{"descrizione", descrizione},
                    {"chiave", a.chiave},
                    {"data", c.indice > 0 ? nlohmann::json(c.data) : nlohmann::json(nullptr)},
                    {"indice", c.indice},
                    {"capogioco", c.numero > 0 ? nlohmann::json(c.numero) : nlohmann::json(nullptr)},
                    {"casi", e.casi},
                    {"vincite", e.vincite},
                    {"righe", righe}});
        return;
    }
    std::cout << fmt::format("Abbinamenti con l'algoritmo capogioco: {}\n", descrizione);
    if (c.indice > 0)
        std::cout << fmt::format("Capogioco al {} : {}\n", c.data, c.numero > 0 ? std::to_string(c.numero) : "");
    else
        std::cout << "Nessuna estrazione con l'indice mensile scelto: capogioco non calcolato.\n";
    std::cout << fmt::format("Casi esaminati: {}\n\n", e.casi);
    for (const builder::RigaAbbinamento& r : e.righe) std::cout << r.testo << "\n";
}

void AggiungiComandiAbbinamenti(CLI::App& app, Contesto& ctx) {
    auto a = std::make_shared<ArgomentiAbbinamenti>();
    auto* c = app.add_subcommand(
        "abbinamenti", "Capogioco di un algoritmo Ambate e numeri abbinati dopo gli ultimi dieci casi della spia");
    c->add_option("--chiave", a->chiave, "Chiave dell'algoritmo capogioco (come la dà costruttore --json)")->required();
    c->add_option("--data", a->data, "Estrazione del capogioco GG/MM/AAAA (predefinito: la fine del periodo)");
    c->add_option("--quanti", a->quanti, "Quanti numeri abbinati elencare, da 1 a 15 (predefinito 12)");
    c->add_flag("--sincronizza", a->sincronizza,
                "Sincronizza l'estrazione con l'indice mensile impostato (negli spostamenti in avanti)");
    c->add_option("--sposta", a->sposta,
                  "Sposta l'estrazione di N estrazioni (negativo: indietro), come i pulsanti del pannello");
    AggiungiOpzioniRicerca(c, a->ricerca);
    a->report.Aggiungi(
        c, "Scrive capogioco e abbinamenti in un file di testo (nome proposto ReportAbbinamentiNumerici.Txt)");
    c->footer(
        "La spia e le sue posizioni si leggono dalla chiave; --spia somma|differenza|ambo serve per le chiavi "
        "di quelle spie. --indice-mese usa la regola del pannello: U, da 1 a 16, 17 (tutte le estrazioni); "
        "da 18 in su e tutti non trovano estrazioni.");
    c->callback([&ctx, a] { Abbinamenti(ctx, *a); });
}

}  // namespace

void AggiungiOpzioniConvergenze(CLI::App* c, ArgomentiConvergenze& a) {
    c->add_flag("--convergenze", a.convergenze,
                "Convergenze delle previsioni in corso degli algoritmi selezionati (--seleziona li seleziona tutti)");
    c->add_option("--lunghetta", a.lunghetta, "Elabora una lunghetta di N numeri (da 1 a 30) dalle righe trovate");
    c->add_flag("--ruota-migliore", a.ruotaMigliore, "Con --lunghetta: solo ruota migliore");
    c->add_option("--colpi-da-giocare", a.colpiDaGiocare,
                  "Previsione in corso con al massimo questi colpi al termine (predefinito 9)");
}

void ControllaConvergenze(const ArgomentiConvergenze& a, const std::string& report) {
    if (!a.richiesti()) {
        if (a.ruotaMigliore) throw Rifiuta("--ruota-migliore si usa con --lunghetta.");
        return;
    }
    if (a.convergenze && a.lunghetta) throw Rifiuta("Indicare --convergenze oppure --lunghetta, non entrambe.");
    if (a.lunghetta && (*a.lunghetta < 1 || *a.lunghetta > builder::MassimoNumeriLunghetta))
        throw Rifiuta(fmt::format("--lunghetta: da 1 a {} numeri.", builder::MassimoNumeriLunghetta));
    if (!LeggiCasella(a.colpiDaGiocare, 3)) throw Rifiuta("--colpi-da-giocare: al massimo tre cifre.");
    if (!report.empty())
        throw Rifiuta("--report scrive l'elenco degli algoritmi: non si usa con --convergenze o --lunghetta.");
}

void MostraConvergenze(const Contesto& ctx, builder::ParametriRicerca p, const builder::ContestoCostruttore& cc,
                       const builder::EsitoRicerca& esito, const ArgomentiConvergenze& a) {
    p.colpiDaGiocare = *LeggiCasella(a.colpiDaGiocare, 3);
    if (a.convergenze)
        Convergenze(ctx, p, cc, esito);
    else
        Lunghetta(ctx, p, cc, esito, a);
}

const GruppoComandi registrazione{35, AggiungiComandiAbbinamenti};

}  // namespace gorgo::cli
