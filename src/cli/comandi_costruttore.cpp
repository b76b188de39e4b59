// costruttore: the search for algorithms, with every parameter of the builder's screen.

#include <fmt/format.h>
#include <filesystem>
#include <iostream>

#include "builder/contesto.h"
#include "builder/report.h"
#include "builder/ricerca.h"
#include "cli/comandi_convergenze.h"
#include "cli/contesto.h"
#include "cli/costruttore_copertura.h"
#include "cli/opzioni_comuni.h"
#include "cli/parametri_ricerca.h"
#include "config/impostazioni.h"

namespace gorgo::cli {

namespace {

struct ArgomentiCostruttore {
    ArgomentiRicerca ricerca;
    bool seleziona = false;
    ArgomentiConvergenze convergenze;
    OpzioniReport report;
    ArgomentiCopertura copertura;
};

void Costruttore(const Contesto& ctx, const ArgomentiCostruttore& a) {
    const archives::Archivio archivio = ctx.ApriArchivi();
    const config::FileIni ini(ctx.FileImpostazioni().string());
    const builder::ParametriRicerca p = ParametriDaArgomenti(a.ricerca, ini);
    ControllaConvergenze(a.convergenze, a.report.file);
    const builder::ContestoCostruttore cc = PreparaContesto(archivio, ini, a.ricerca, p);
    // The file is settled before the search, so that a refusal costs nothing.
    a.report.Controlla();
    if (!a.copertura.automatica.empty()) return EseguiAutomatica(ctx, a.copertura, p, cc, a.report);
    const builder::EsitoRicerca e = builder::CercaAlgoritmi(p, cc.Contesto(), {}, a.seleziona);
    if (!e.errore.vuoto()) throw Rifiuto{e.errore};
    if (!a.copertura.copertura.empty()) return EseguiCopertura(ctx, a.copertura, p, cc, e, a.report);
    if (a.convergenze.richiesti()) {
        MostraConvergenze(ctx, p, cc, e, a.convergenze);
        return;
    }

    if (!a.report.file.empty()) {
        if (e.righe.empty()) {
            std::cerr << config::NullaDaEsportare << "\n";
            return;
        }
        a.report.ScriviSuFile(builder::ReportAlgoritmi(p, e, *cc.storia));
        if (!ctx.json) {
            std::cout << fmt::format("{} algoritmi scritti in {}\n", e.righe.size(), a.report.file);
            return;
        }
    }

    if (ctx.json) {
        nlohmann::json casi = nlohmann::json::array(), righe = nlohmann::json::array();
        for (const auto& c : e.casi)
            casi.push_back({{"data", c.data},
                            {"ruota", c.nomeRuota.substr(0, c.nomeRuota.find_last_not_of(' ') + 1)},
                            {"spia", c.testoSpia},
                            {"posizione", c.testoPosizione},
                            {"indice_mese", c.testoIndiceMese},
                            {"indice_annuale", c.testoIndiceAnnuale},
                            {"indice", c.indice}});
        for (const auto& r : e.righe)
            righe.push_back({{"descrizione", r.descrizione},
                             {"sortite", r.sortite},
                             {"presenze", r.presenze},
                             {"quantita", r.conQuantita ? nlohmann::json(r.quantita) : nlohmann::json(nullptr)},
                             {"percentuale", r.testoPercentuale()},
                             {"spia", r.testoSpia},
                             {"chiave", r.chiave}});
        StampaJson({{"descrizione", e.sortite}, {"casi", casi}, {"righe", righe}, {"previsione", e.previsioni}});
        return;
    }
    if (!e.sortite.empty()) std::cout << e.sortite << "\n";
    if (!e.previsioni.empty()) std::cout << e.previsioni << "\n";
    std::cout << "\nData        Ruota      Spia Pos. Ind. Ann. Progr.\n";
    for (const auto& c : e.casi)
        std::cout << fmt::format("{}  {} {:>4} {:>4} {:>4} {:>4} {}\n", c.data, c.nomeRuota, c.testoSpia,
                                 c.testoPosizione, c.testoIndiceMese, c.testoIndiceAnnuale, c.testoIndice);
    std::cout << "\n";
    for (const auto& r : e.righe)
        std::cout << fmt::format("{} | {} | {} | {} | {}\n", r.descrizione, r.testoSortite(), r.testoPresenze(),
                                 r.testoPercentuale(), r.testoSpia);
}

// terzine [FILE]: the load of the reduced triples the codes would do, told without a search.
void ControllaTerzine(const Contesto& ctx, std::string file) {
    if (file.empty()) {
        const config::FileIni ini(ctx.FileImpostazioni().string());
        file = config::LeggiImpostazione(ini, config::sezioni::Options, "FileTerzine", "");
        if (file.empty()) file = (ctx.PercorsoProgramma() / "Terzine.txt").string();
    }
    const builder::EsitoTerzine t = builder::CaricaTerzine(file);
    if (t.fileMancante)
        throw Rifiuta("Manca il file delle terzine ridotte " + file +
                          " (predefinito: l'impostazione Options FileTerzine, o Terzine.txt nella cartella del "
                          "programma).",
                      ErroreInterno);
    if (!t.caricato) throw Rifiuto{SpiegaTerzine(t, file, t.messaggio), t.nonValido ? InputRifiutato : ErroreInterno};
    if (ctx.json) {
        StampaJson({{"file", file},
                    {"terzine", t.terzine.quante()},
                    {"attese", builder::NumeroTerzineAttese},
                    {"messaggio", t.messaggio.testo}});
        return;
    }
    if (!t.messaggio.vuoto()) std::cerr << t.messaggio.testo << "\n";
    std::cout << fmt::format("{} terzine in {}{}\n", t.terzine.quante(), file,
                             t.valido && t.terzine.quante() == builder::NumeroTerzineAttese
                                 ? ""
                                 : fmt::format(" (ne sono attese {})", builder::NumeroTerzineAttese));
}

}  // namespace

void AggiungiComandiCostruttore(CLI::App& app, Contesto& ctx) {
    auto a = std::make_shared<ArgomentiCostruttore>();
    auto* c = app.add_subcommand("costruttore",
                                 "Ricerca degli algoritmi (il costruttore): casi della spia e algoritmi migliori");
    AggiungiOpzioniRicerca(c, a->ricerca);
    c->add_flag("--seleziona", a->seleziona, "Righe già selezionate");
    AggiungiOpzioniConvergenze(c, a->convergenze);
    a->report.Aggiungi(c, "Scrive l'elenco degli algoritmi in un file di testo (nome proposto ReportAlgoritmi.Txt)");
    AggiungiOpzioniCopertura(c, a->copertura);
    c->callback([&ctx, a] { Costruttore(ctx, *a); });

    auto file = std::make_shared<std::string>();
    auto* t = app.add_subcommand(
        "terzine", "Controlla il file delle terzine ridotte dei codici (1002 righe \"NN NN NN\"), senza cercare");
    t->add_option("file", *file, "Il file (predefinito: impostazione FileTerzine o Terzine.txt)");
    t->callback([&ctx, file] { ControllaTerzine(ctx, *file); });
}

const GruppoComandi registrazione{30, AggiungiComandiCostruttore};

}  // namespace gorgo::cli
