// restrizioni, impostazione.

#include <fmt/format.h>
#include <iostream>

#include "cli/contesto.h"
#include "cli/restrizioni_info.h"
#include "config/impostazioni.h"
#include "config/restrizioni.h"

namespace gorgo::cli {

namespace {

// The settings are read where they are; nothing creates the file but a write.
config::FileIni Impostazioni(const Contesto& ctx) { return config::FileIni(ctx.FileImpostazioni().string()); }

void Restrizioni(const Contesto& ctx) {
    const config::FileIni ini = Impostazioni(ctx);
    const std::string testo = config::TestoRestrizioni(ini, false, false);
    if (ctx.json) {
        StampaJson({{"testo", testo}, {"pannello", RigheRestrizioni(ctx.FileImpostazioni())}});
        return;
    }
    std::cout << testo << "\n";
}

struct ArgomentiImpostazione {
    std::string sezione, chiave;
    std::optional<std::string> valore;
};

void Impostazione(const Contesto& ctx, const ArgomentiImpostazione& a) {
    config::FileIni ini = Impostazioni(ctx);
    const config::VoceImpostazione* voce = config::CercaImpostazione(a.sezione, a.chiave);
    if (!voce) throw Rifiuto{config::ControllaValoreImpostazione(a.sezione, a.chiave, "")};
    if (a.valore) {
        if (archives::Messaggio m = config::ControllaValoreImpostazione(voce->sezione, voce->chiave, *a.valore);
            !m.vuoto())
            throw Rifiuto{m};
        if (!config::ScriviImpostazione(ini, voce->sezione, voce->chiave, *a.valore))
            throw Rifiuta(fmt::format("Impossibile scrivere il file {}", ini.FileName()), ErroreInterno);
    }
    // FineRicerca defaults to the archive's length: read it only when it is needed.
    int32_t numero = 0;
    if (voce->tipo == config::TipoPredefinito::NumeroEstrazioni)
        numero = archives::Archivio::Apri(ctx.PercorsoProgramma()).NumeroEstrazioni();
    const std::string predefinito = config::Predefinito(voce->sezione, voce->chiave, numero);
    const std::string valore = config::LeggiImpostazione(ini, voce->sezione, voce->chiave, predefinito);
    if (ctx.json) {
        StampaJson(
            {{"sezione", voce->sezione}, {"chiave", voce->chiave}, {"valore", valore}, {"predefinito", predefinito}});
        return;
    }
    std::cout << valore << "\n";
}

}  // namespace

std::vector<std::string> RigheRestrizioni(const std::filesystem::path& fileIni) {
    const config::StatoPannelloRestrizioni p = config::PannelloRestrizioni(config::FileIni(fileIni.string()));
    std::vector<std::string> righe;
    if (p.nessuna) righe.emplace_back(config::TestoNessuna);
    for (size_t i = 0; i < config::TestiRestrizioni.size(); ++i)
        if (p.visibile[i]) righe.emplace_back(config::TestiRestrizioni[i]);
    return righe;
}

void AggiungiComandiImpostazioni(CLI::App& app, Contesto& ctx) {
    auto* restr = app.add_subcommand("restrizioni", "Le restrizioni di ricerca in vigore (testo riassuntivo)");
    restr->callback([&ctx] { Restrizioni(ctx); });

    auto a = std::make_shared<ArgomentiImpostazione>();
    auto* imp = app.add_subcommand(
        "impostazione", "Legge (con il valore predefinito del programma) o scrive un'impostazione di Gorgo.ini");
    imp->add_option("sezione", a->sezione, "Settings, Options, Forms o Restrizioni")->required();
    imp->add_option("chiave", a->chiave, "Nome della chiave (maiuscole e minuscole indifferenti)")->required();
    imp->add_option("valore", a->valore, "Nuovo valore da scrivere");
    imp->callback([&ctx, a] { Impostazione(ctx, *a); });
}

const GruppoComandi registrazione{20, AggiungiComandiImpostazioni};

}  // namespace gorgo::cli
