// info, estrazione, data, dieci, super, demo, cartella.

#include <fmt/format.h>
#include <charconv>
#include <iostream>

#include "archives/demo.h"
#include "archives/dieci_e_lotto.h"
#include "archives/regole.h"
#include "archives/superenalotto.h"
#include "cli/contesto.h"
#include "cli/opzioni_comuni.h"
#include "cli/restrizioni_info.h"

namespace gorgo::cli {

namespace {

// The main panel's "Ultima estrazione memorizzata :" text.
std::string TestoUltima(int numeroAnno, const std::string& data) {
    return fmt::format("n.{} del {}", numeroAnno, data);
}

std::string NumeroODash(int n) { return n == 0 ? "--" : fmt::format("{:02}", n); }

void Info(const Contesto& ctx) {
    const archives::Archivio a = ctx.ApriArchivi();
    const archives::RecordEstrazione ultima = a.LeggiEstrazione(a.NumeroEstrazioni());
    const archives::RecordSuperEnalotto ultimaSuper = a.LeggiRecordSuper(a.NumeroEstrazioniSuper());
    const std::string lotto = TestoUltima(ultima.NumeroAnno, ultima.dataTesto());
    const std::string super = TestoUltima(ultimaSuper.NumeroAnno, ultimaSuper.dataTesto());
    const bool demo = archives::CartellaDemo(a.PercorsoProgramma());
    const auto restrizioni = RigheRestrizioni(ctx.FileImpostazioni());
    if (ctx.json) {
        StampaJson({{"cartella", a.PercorsoProgramma().string()},
                    {"demo", demo},
                    {"lotto", {{"estrazioni", a.NumeroEstrazioni()}, {"ultima", lotto}}},
                    {"superenalotto", {{"estrazioni", a.NumeroEstrazioniSuper()}, {"ultima", super}}},
                    {"restrizioni", restrizioni}});
        return;
    }
    if (demo) std::cout << "*** ARCHIVIO DIMOSTRATIVO: estrazioni sintetiche, non reali ***\n";
    std::cout << "Cartella del programma: " << a.PercorsoProgramma().string() << "\n\n"
              << "Lotto / 10eLotto\n"
              << "  Ultima estrazione memorizzata : " << lotto << "\n"
              << "  Estrazioni in archivio        : " << a.NumeroEstrazioni() << " (dal " << a.DataEstrazione(1)
              << ")\n\n"
              << "SuperEnalotto\n"
              << "  Ultima estrazione memorizzata : " << super << "\n"
              << "  Estrazioni in archivio        : " << a.NumeroEstrazioniSuper() << " (dal "
              << a.DataEstrazione(1, archives::ArchivioSuper) << ")\n\n"
              << "Restrizioni attive in ricerche statistiche:\n";
    for (const auto& r : restrizioni) std::cout << "  " << r << "\n";
}

void MostraEstrazione(const Contesto& ctx, const std::string& argomento) {
    const archives::Archivio a = ctx.ApriArchivi();
    const int32_t indice = SembraData(argomento) ? IndiceDaData(archives::ControllaData(argomento, a, false))
                                                 : LeggiIndice(argomento, a.NumeroEstrazioni(), "del Lotto");
    const archives::RecordEstrazione r = a.LeggiEstrazione(indice);
    if (ctx.json) {
        nlohmann::json ruote = nlohmann::json::array();
        for (int w = 1; w <= archives::NumeroRuote; ++w) {
            nlohmann::json cinquina = nlohmann::json::array();
            for (int p = 1; p <= 5; ++p) cinquina.push_back(r.Numero(w, p));
            ruote.push_back(cinquina);
        }
        StampaJson({{"indice", indice},
                    {"data", r.dataTesto()},
                    {"numero_anno", r.NumeroAnno},
                    {"giorno", r.giornoSettimana()},
                    {"ruote", ruote}});
        return;
    }
    std::cout << fmt::format("Estrazione n.{} del {} {} (progressivo assoluto dal 1871: {})\n", r.NumeroAnno,
                             archives::NomeGiorno(r.giornoSettimana()), r.dataTesto(), indice);
    for (int w = 1; w <= archives::NumeroRuote; ++w) {
        std::cout << archives::NomiRuota[static_cast<size_t>(w)];
        for (int p = 1; p <= 5; ++p) std::cout << ' ' << NumeroODash(r.Numero(w, p));
        std::cout << '\n';
    }
}

void CercaData(const Contesto& ctx, const std::string& testo, bool precedente, bool super) {
    const archives::Archivio a = ctx.ApriArchivi();
    const archives::RisultatoData r =
        super ? archives::ControllaDataSuper(testo, a, precedente) : archives::ControllaData(testo, a, precedente);
    if (r.ErroreData) throw Rifiuto{r.messaggio};
    if (ctx.json) {
        StampaJson({{"indice", r.IndiceTrovato}, {"data", r.DataTrovata}});
        return;
    }
    std::cout << fmt::format("Estrazione n. {} del {}\n", r.IndiceTrovato, r.DataTrovata);
}

void Dieci(const Contesto& ctx, const std::string& argomento) {
    const archives::Archivio a = ctx.ApriArchivi();
    const int32_t indice = SembraData(argomento) ? IndiceDaData(archives::ControllaData(argomento, a, false))
                                                 : LeggiIndice(argomento, a.NumeroEstrazioni(), "del Lotto");
    const archives::RecordEstrazione rec = a.LeggiEstrazione(indice);
    const archives::Risultato10eLotto r = archives::Estrazione10eLotto(rec);
    // Before the first draw of a wheel there is no 10eLotto draw: nothing to show.
    if (r.manca)
        throw Rifiuta(
            fmt::format("Estrazione del 10eLotto inesistente per l'estrazione n. {} del {}: mancano i primi "
                        "due estratti di una ruota da Bari a Venezia.",
                        indice, rec.dataTesto()));
    if (ctx.json) {
        nlohmann::json numeri = nlohmann::json::array();
        if (r.esito >= 0)
            for (int n : r.numeri) numeri.push_back(n);
        StampaJson({{"indice", indice}, {"data", rec.dataTesto()}, {"esito", r.esito}, {"numeri", numeri}});
        return;
    }
    if (r.esito < 0) {
        std::cout << "Estrazione da 20 numeri impossibile : " << indice << "\n";
        return;
    }
    std::cout << fmt::format("10eLotto del {} (estrazione n. {}), posizioni aggiunte: {}\n", rec.dataTesto(), indice,
                             r.esito);
    for (size_t i = 0; i < r.numeri.size(); ++i)
        std::cout << fmt::format("{:02}", r.numeri[i]) << (i % 10 == 9 ? '\n' : ' ');
}

void Super(const Contesto& ctx, const std::string& argomento) {
    const archives::Archivio a = ctx.ApriArchivi();
    const int32_t indice = SembraData(argomento)
                               ? IndiceDaData(archives::ControllaDataSuper(argomento, a, false))
                               : LeggiIndice(argomento, a.NumeroEstrazioniSuper(), "del SuperEnalotto");
    const archives::EstrazioneSuper e = archives::LeggiEstrazioneSuper(a, indice);
    if (ctx.json) {
        nlohmann::json sei = nlohmann::json::array();
        for (int i = 0; i < 6; ++i) sei.push_back(e.numeri[static_cast<size_t>(i)]);
        StampaJson({{"indice", indice},
                    {"esito", e.esito},
                    {"data", e.data},
                    {"numero_anno", std::stoi(e.numeroAnno)},
                    {"numeri", sei},
                    {"jolly", e.numeri[6]},
                    {"superstar", e.numeri[7]}});
        return;
    }
    std::cout << fmt::format("SuperEnalotto n.{} del {} (progressivo {}):", e.numeroAnno, e.data, indice);
    for (int i = 0; i < 6; ++i) std::cout << ' ' << NumeroODash(e.numeri[static_cast<size_t>(i)]);
    if (e.esito == archives::SuperConJolly || e.esito == archives::SuperConJollySuperStar)
        std::cout << "  Jolly " << fmt::format("{:02}", e.numeri[6]);
    if (e.esito == archives::SuperConSuperStar || e.esito == archives::SuperConJollySuperStar)
        std::cout << "  SuperStar " << fmt::format("{:02}", e.numeri[7]);
    if (e.esito == archives::SuperIncompleta) std::cout << "  (estrazione incompleta)";
    std::cout << '\n';
}

void Demo(const Contesto& ctx, const std::string& cartella) {
    if (archives::Messaggio m = archives::CreaCartellaDemo(cartella); !m.vuoto()) throw Rifiuto{m};
    const archives::Archivio a = archives::Archivio::Apri(cartella);
    if (ctx.json) {
        StampaJson({{"cartella", a.PercorsoProgramma().string()},
                    {"estrazioni", a.NumeroEstrazioni()},
                    {"superenalotto", a.NumeroEstrazioniSuper()}});
        return;
    }
    std::cout << fmt::format(
        "Archivio dimostrativo creato in {}: {} estrazioni del Lotto dal {} al {}, "
        "{} estrazioni del SuperEnalotto.\n",
        a.PercorsoProgramma().string(), a.NumeroEstrazioni(), a.DataEstrazione(1),
        a.DataEstrazione(a.NumeroEstrazioni()), a.NumeroEstrazioniSuper());
}

}  // namespace

void AggiungiComandiArchivi(CLI::App& app, Contesto& ctx) {
    struct Argomenti {
        std::string indiceOData, data, cartella;
        bool precedente = false, super = false;
    };
    auto a = std::make_shared<Argomenti>();
    const char* indiceOData = "Progressivo (da 1) oppure data GG/MM/AAAA";

    app.add_subcommand("info", "Ultime estrazioni memorizzate, numero di estrazioni, restrizioni attive")
        ->callback([&ctx] { Info(ctx); });

    auto* estrazione = app.add_subcommand("estrazione", "Un'estrazione del Lotto, tutte le ruote");
    estrazione->add_option("indice_o_data", a->indiceOData, indiceOData)->required();
    estrazione->callback([&ctx, a] { MostraEstrazione(ctx, a->indiceOData); });

    auto* data = app.add_subcommand("data", "Controlla una data e trova l'estrazione corrispondente");
    data->add_option("data", a->data, "Data GG/MM/AAAA")->required();
    data->add_flag("--precedente", a->precedente,
                   "Se la data non è di un'estrazione, cerca quella precedente (altrimenti la successiva)");
    data->add_flag("--super", a->super, "Cerca nell'archivio del SuperEnalotto");
    data->callback([&ctx, a] { CercaData(ctx, a->data, a->precedente, a->super); });

    auto* dieci = app.add_subcommand("dieci", "L'estrazione del 10eLotto derivata da un'estrazione del Lotto");
    dieci->add_option("indice_o_data", a->indiceOData, indiceOData)->required();
    dieci->callback([&ctx, a] { Dieci(ctx, a->indiceOData); });

    auto* sup = app.add_subcommand("super", "Un'estrazione del SuperEnalotto");
    sup->add_option("indice_o_data", a->indiceOData, indiceOData)->required();
    sup->callback([&ctx, a] { Super(ctx, a->indiceOData); });

    auto* demo = app.add_subcommand("demo", "Crea una cartella del programma con un archivio dimostrativo (sintetico)");
    demo->add_option("cartella", a->cartella, "Cartella da creare")->required();
    demo->callback([&ctx, a] { Demo(ctx, a->cartella); });

    app.add_subcommand("cartella", "Mostra la cartella del programma in uso")->callback([&ctx] {
        std::cout << ctx.PercorsoProgramma().string() << "\n";
    });
}

const GruppoComandi registrazione{10, AggiungiComandiArchivi};

}  // namespace gorgo::cli
