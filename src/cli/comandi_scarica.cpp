// scarica: the Internet update from Url, and the public archive from UrlStorico.

#include <fmt/format.h>
#include <QCoreApplication>
#include <iostream>
#include <memory>

#include "cli/contesto.h"
#include "config/impostazioni.h"
#include "maintenance/aggiornamento.h"
#include "maintenance/importazione.h"
#include "maintenance/internet.h"
#include "network/scaricatore.h"

namespace gorgo::cli {

namespace {

namespace m = maintenance;

struct ArgomentiScarica {
    bool super = false;
    bool storico = false;
    int secondi = network::Scaricatore::TempoMassimoPredefinito;
};

// Qt Network needs an application object for its event loop; the command line makes one
// only when it goes on the network.
void AssicuraApplicazione() {
    if (QCoreApplication::instance()) return;
    static int argc = 1;
    static char nome[] = "gorgo-cli";
    static char* argv[] = {nome, nullptr};
    static QCoreApplication app(argc, argv);
}

network::RisultatoScaricamento Scarica(const std::string& indirizzo, int secondi, qint64 limite) {
    AssicuraApplicazione();
    network::Scaricatore s;
    s.ImpostaTempoMassimo(secondi * 1000);
    s.ImpostaLimite(limite);
    return s.Scarica(QString::fromStdString(indirizzo));
}

std::string LeggiOpzione(const Contesto& ctx, std::string_view chiave) {
    const config::FileIni ini(ctx.FileImpostazioni().string());
    return config::LeggiImpostazione(ini, config::sezioni::Options, chiave,
                                     config::Predefinito(config::sezioni::Options, chiave));
}

// A refusal: with --json the object on stdout too, so that scripts read what failed.
[[noreturn]] void RifiutaScarica(const Contesto& ctx, nlohmann::json j, const archives::Messaggio& m,
                                 const std::string& dettaglio) {
    std::string testo = m.testo;
    if (!dettaglio.empty() && testo.find(dettaglio) == std::string::npos) testo += "\n" + dettaglio;
    if (ctx.json) {
        j["esito"] = "rifiutato";
        j["messaggio"] = m.testo;
        j["dettaglio"] = dettaglio;
        StampaJson(j);
    }
    throw Rifiuto{archives::Messaggio{testo, m.titolo, m.icona}};
}

void Stampa(const Contesto& ctx, const nlohmann::json& j, const std::string& testo) {
    if (ctx.json)
        StampaJson(j);
    else
        std::cout << testo << "\n";
}

void AggiornaDaInternet(const Contesto& ctx, const ArgomentiScarica& a) {
    const m::Gioco gioco = a.super ? m::Gioco::SuperEnalotto : m::Gioco::Lotto;
    archives::Archivio archivio = ctx.ApriArchivi();
    const std::string indirizzo = m::IndirizzoAggiornamento(LeggiOpzione(ctx, "Url"), gioco);
    const std::filesystem::path copia = m::CopiaLocale(archivio.PercorsoProgramma(), gioco);
    nlohmann::json j{{"indirizzo", indirizzo}, {"gioco", a.super ? "superenalotto" : "lotto"}};

    const network::RisultatoScaricamento r = Scarica(indirizzo, a.secondi, network::Scaricatore::LimitePredefinito);
    j["stato_http"] = r.statoHttp;
    j["byte"] = r.corpo.size();
    // The command line answers the question Yes: asking for the update is the confirmation.
    const m::EsitoInternet e =
        m::AggiornamentoInternet(archivio, r.PerIlNucleo(), gioco, copia, m::RispostaAllineamento::Si);
    if (e.erroreCopia) throw Rifiuto{e.messaggio, ErroreInterno};
    if (e.scaricamento.esito != m::EsitoScaricamento::Pronto)
        RifiutaScarica(
            ctx, j,
            e.messaggio.vuoto() ? archives::Messaggio{e.testoStato, "Errore", archives::Icona::Stop} : e.messaggio,
            e.dettaglio);
    j["copia_locale"] = copia.string();
    j["ultima_file"] = e.controllo.ultimaData;
    if (e.stato == m::StatoInternet::NienteDiNuovo) {
        j["esito"] = "nessun_aggiornamento";
        j["messaggio"] = m::TestoNienteDiNuovo;
        j["aggiunte"] = 0;
        Stampa(ctx, j, std::string(m::TestoNienteDiNuovo));
        return;
    }
    if (e.stato != m::StatoInternet::Aggiornato) RifiutaScarica(ctx, j, e.messaggio, e.dettaglio);
    j["esito"] = "aggiornato";
    j["messaggio"] = e.messaggio.testo;
    j["aggiunte"] = e.aggiornamento.aggiunte;
    j["anni_aggiunti"] = e.aggiornamento.anniAggiunti;
    j["ultima"] = e.aggiornamento.ultimaData;
    j["estrazioni"] = gioco == m::Gioco::Lotto ? archivio.NumeroEstrazioni() : archivio.NumeroEstrazioniSuper();
    Stampa(ctx, j, e.messaggio.testo);
}

void ScaricaStorico(const Contesto& ctx, const ArgomentiScarica& a) {
    const std::string indirizzo = LeggiOpzione(ctx, "UrlStorico");
    nlohmann::json j{{"indirizzo", indirizzo}, {"gioco", "lotto"}};
    if (indirizzo.empty())
        RifiutaScarica(ctx, j,
                       archives::Messaggio{std::string(m::TestoStoricoNonImpostato), std::string(m::TitoloStorico),
                                           archives::Icona::Esclamazione},
                       "gorgo-cli impostazione Options UrlStorico http://...");
    // The public archive may build the Lotto archive from nothing: an empty one is no refusal.
    archives::Archivio archivio = archives::Archivio::Apri(ctx.PercorsoProgramma(), archives::ModoApertura::Lettura);
    if (archives::Messaggio mi = archives::VerificaIntegrita(archivio); !mi.vuoto()) throw Rifiuto{mi};

    const network::RisultatoScaricamento r = Scarica(indirizzo, a.secondi, network::Scaricatore::LimitePredefinito);
    j["stato_http"] = r.statoHttp;
    j["byte"] = r.corpo.size();
    const m::ControlloStorico c = m::ControllaScaricamentoStorico(r.PerIlNucleo());
    j["zip"] = c.zip;
    if (!c.valido) RifiutaScarica(ctx, j, c.messaggio, c.dettaglio);
    const std::string_view dati(r.corpo.constData(), static_cast<size_t>(r.corpo.size()));
    const m::EsitoImportazione e = m::ImportaDati(archivio, dati, m::Gioco::Lotto);
    if (!e.riuscito) RifiutaScarica(ctx, j, e.messaggio, indirizzo);
    j["esito"] = e.aggiunte > 0 ? "aggiornato" : "nessun_aggiornamento";
    j["messaggio"] = e.messaggio.testo;
    j["letti"] = e.estrazioni;
    j["aggiunte"] = e.aggiunte;
    j["anni_aggiunti"] = e.anniAggiunti;
    j["creato"] = e.creato;
    j["ultima"] = e.ultimaArchivio;
    j["estrazioni"] = archivio.NumeroEstrazioni();
    Stampa(ctx, j, e.messaggio.testo);
}

}  // namespace

void AggiungiComandiScarica(CLI::App& app, Contesto& ctx) {
    auto a = std::make_shared<ArgomentiScarica>();
    auto* s = app.add_subcommand(
        "scarica",
        "Aggiorna l'archivio estrazioni via internet (indirizzo Url + AggiornamentoPz.bin), oppure scarica "
        "l'archivio storico pubblico (UrlStorico) e ne importa le estrazioni nuove");
    s->add_flag("--super", a->super, "Aggiorna l'archivio del SuperEnalotto (AggiornamentoSuperEnalotto.bin)");
    s->add_flag("--storico", a->storico,
                "Scarica l'archivio storico del Lotto (zip o testo) dall'indirizzo UrlStorico");
    s->add_option("--tempo-massimo", a->secondi,
                  "Secondi senza risposta dopo i quali lo scaricamento si interrompe (1-3600, predefinito 30)")
        ->type_name("SECONDI");
    s->callback([&ctx, a] {
        if (a->super && a->storico)
            throw Rifiuta("Le opzioni --super e --storico non vanno insieme: l'archivio storico è quello del Lotto.");
        if (a->secondi < 1 || a->secondi > 3600) throw Rifiuta("Il tempo massimo va da 1 a 3600 secondi.");
        if (a->storico)
            ScaricaStorico(ctx, *a);
        else
            AggiornaDaInternet(ctx, *a);
    });
}

const GruppoComandi registrazione{70, AggiungiComandiScarica};

}  // namespace gorgo::cli
