// inserisci: a draw given as text, decoded as a paste on the entry screen, stored as a new
// draw (or as the correction of the draw of that date). The screen's questions are printed
// and answered yes only with --conferma; without it nothing is written.

#include <fmt/format.h>
#include <iostream>

#include "archives/regole.h"
#include "cli/contesto.h"
#include "config/impostazioni.h"
#include "maintenance/inserimento.h"

namespace gorgo::cli {

namespace {

using namespace gorgo::maintenance;

struct ArgomentiInserisci {
    std::string testo, data;
    bool super = false, conferma = false;
};

// The index of the stored draw of that date, or 0.
int32_t IndiceDellaData(const archives::Archivio& a, const archives::Data& d, bool super) {
    if (!super) {
        const auto r = a.CercaIndice(d, false);
        return r && r->IndiceTrovato >= 1 && r->DataTrovata == d.testo() ? r->IndiceTrovato : 0;
    }
    const auto tutti = a.LeggiTuttiSuper();
    for (size_t i = 0; i < tutti.size(); ++i)
        if (tutti[i].data() == d) return static_cast<int32_t>(i) + 1;
    return 0;
}

nlohmann::json Numeri(const Inserimento& ins) {
    nlohmann::json v = nlohmann::json::array();
    for (const std::string& c : ins.Caselle()) v.push_back(ValoreCasella(c));
    return v;
}

void StampaEstrazione(const Inserimento& ins) {
    if (ins.gioco() == GiocoInserimento::SuperEnalotto) {
        std::cout << "Sestina vincente:";
        for (int i = 1; i <= 6; ++i) std::cout << fmt::format(" {:02}", ValoreCasella(ins.Casella(i)));
        std::cout << fmt::format("  Jolly {:02}  SuperStar {:02}\n", ValoreCasella(ins.Casella(7)),
                                 ValoreCasella(ins.Casella(8)));
        return;
    }
    for (int w = 1; w <= archives::NumeroRuote; ++w) {
        std::cout << archives::NomiRuota[static_cast<size_t>(w)];
        for (int p = 1; p <= 5; ++p) std::cout << fmt::format(" {:02}", ValoreCasella(ins.Casella((w - 1) * 5 + p)));
        std::cout << '\n';
    }
}

void Inserisci(const Contesto& ctx, const ArgomentiInserisci& arg) {
    // The checks of presence and integrity first, then the files opened for writing.
    ctx.ApriArchivi();
    archives::Archivio a = archives::Archivio::Apri(ctx.PercorsoProgramma(), archives::ModoApertura::Scrittura);
    const auto gioco = arg.super ? GiocoInserimento::SuperEnalotto : GiocoInserimento::Lotto;
    Inserimento ins(a, gioco);
    const int32_t totale = ins.TotaleEstrazioni();
    if (totale < 1) throw Rifiuta("L'archivio non contiene estrazioni: importarlo prima di inserire.");
    const archives::Data ultima = *archives::Data::daTesto(arg.super ? a.DataEstrazione(totale, archives::ArchivioSuper)
                                                                     : a.DataEstrazione(totale));

    std::vector<std::string> domande;
    auto chiedi = [&](const archives::Messaggio& domanda) {
        if (!arg.conferma)
            throw Rifiuto{{domanda.testo + "\n(nulla è stato scritto: usare --conferma per rispondere sì)",
                           domanda.titolo, archives::Icona::Domanda}};
        domande.push_back(domanda.testo);
    };

    const config::FileIni ini(ctx.FileImpostazioni().string());
    const std::string giorni =
        config::LeggiImpostazione(ini, config::sezioni::Options, "Giorni estrazione",
                                  config::Predefinito(config::sezioni::Options, "Giorni estrazione"));
    if (arg.data.empty()) {
        if (archives::Messaggio m = ins.Nuova(giorni); !m.vuoto()) throw Rifiuto{m};
    } else {
        if (arg.data.size() != 10 || !archives::DataAccettata(arg.data))
            throw Rifiuta(std::string(archives::MessaggioFormatoData));
        const archives::Data d = *archives::Data::daTesto(arg.data);
        if (archives::DataErrata(d.giorno, d.mese, d.anno)) throw Rifiuta(std::string(archives::MessaggioDataErrata));
        if (ultima < d) {
            ins.Nuova(giorni);
            if (archives::Messaggio m = ins.ImpostaDataNuova(d); !m.vuoto()) throw Rifiuto{m};
        } else {
            const int32_t indice = IndiceDellaData(a, d, arg.super);
            if (indice < 1)
                throw Rifiuta(
                    fmt::format("In archivio non c'è un'estrazione del {}: una nuova estrazione deve seguire "
                                "l'ultima memorizzata ({}).",
                                d.testo(), ultima.testo()));
            ins.Mostra(indice);
            ins.Correggi();
            // A correction overwrites a stored draw: the command line asks before it does.
            chiedi({fmt::format("L'estrazione del {} è già in archivio (progressivo {}). Correggi estrazione ?",
                                d.testo(), indice),
                    std::string(TitoloConferma), archives::Icona::Domanda});
        }
    }

    ins.ImpostaTestoIncolla(arg.testo);
    const EsitoDecodifica dec = ins.Inserisci();
    if (!dec.errore.vuoto()) throw Rifiuto{dec.errore};
    if (!dec.eseguita)
        throw Rifiuta(fmt::format("Testo troppo corto: servono almeno {} caratteri.", LunghezzaMinimaIncolla));
    if (dec.numeriLetti == 0) throw Rifiuta("Il testo non contiene numeri.");

    RisposteInserimento risposte;
    EsitoMemorizzazione e;
    for (;;) {
        e = ins.Memorizza(risposte);
        if (e.stato != StatoMemorizzazione::Domanda) break;
        chiedi(e.messaggio);
        if (e.domanda == DomandaInserimento::NumeriMancanti) risposte.numeriMancanti = true;
        if (e.domanda == DomandaInserimento::NumeriUguali) risposte.numeriUguali = true;
    }
    if (e.stato == StatoMemorizzazione::Rifiutata) {
        archives::Messaggio m = e.messaggio;
        if (m.vuoto()) m.testo = "Estrazione non memorizzata.";
        throw Rifiuto{m};
    }

    const std::string data = ins.Giorno() + "/" + ins.Mese() + "/" + ins.Anno();
    if (ctx.json) {
        nlohmann::json j = {{"gioco", arg.super ? "superenalotto" : "lotto"},
                            {"indice", e.indice},
                            {"data", data},
                            {"numero_anno", ins.NumeroAnno()},
                            {"nuova", e.nuova},
                            {"anno_aggiunto", e.annoAggiunto},
                            {"domande", domande},
                            {"numeri", Numeri(ins)}};
        StampaJson(j);
        return;
    }
    for (const std::string& d : domande) std::cout << d << " Sì\n";
    std::cout << fmt::format("Estrazione n.{} del {} {} {} (progressivo {}){}\n", ins.NumeroAnno(),
                             ins.NomeGiornoEstrazione(), data, e.nuova ? "memorizzata" : "corretta", e.indice,
                             e.annoAggiunto ? fmt::format(", primo dell'anno {}", ins.Anno()) : std::string());
    StampaEstrazione(ins);
}

}  // namespace

void AggiungiComandiInserisci(CLI::App& app, Contesto& ctx) {
    auto arg = std::make_shared<ArgomentiInserisci>();
    auto* cmd = app.add_subcommand(
        "inserisci",
        "Inserisce un'estrazione data come testo (i numeri nell'ordine delle ruote, separati da qualsiasi "
        "carattere che non sia una cifra), come se fosse incollata nella finestra di inserimento");
    cmd->add_option("testo", arg->testo,
                    "I numeri dell'estrazione: 55 del Lotto (5 per ruota, da Bari a Nazionale) oppure 8 del "
                    "SuperEnalotto (sestina, Jolly, SuperStar); il testo non deve contenere la data")
        ->required();
    cmd->add_option("--data", arg->data,
                    "Data GG/MM/AAAA: successiva all'ultima per una nuova estrazione (predefinita: la data proposta "
                    "dai giorni di estrazione), oppure la data di un'estrazione in archivio da correggere");
    cmd->add_flag("--super", arg->super, "Archivio del SuperEnalotto");
    cmd->add_flag("--conferma", arg->conferma,
                  "Risponde sì alle domande (numeri mancanti o uguali, correzione); senza, alla prima domanda "
                  "il comando termina senza scrivere nulla");
    cmd->callback([&ctx, arg] { Inserisci(ctx, *arg); });
}

const GruppoComandi registrazione{50, AggiungiComandiInserisci};

}  // namespace gorgo::cli
