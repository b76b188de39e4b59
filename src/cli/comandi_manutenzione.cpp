// aggiorna, esporta, importa, esporta-testo: the writers of the archives and their exports.

#include <fmt/format.h>
#include <iostream>

#include "archives/regole.h"
#include "cli/contesto.h"
#include "maintenance/aggiornamento.h"
#include "maintenance/importazione.h"

namespace gorgo::cli {

namespace {

namespace fs = std::filesystem;
using maintenance::Gioco;

Rifiuto RifiutoCon(const archives::Messaggio& m, const std::string& dettaglio) {
    Rifiuto r{m};
    if (!dettaglio.empty()) r.messaggio.testo += "\n(" + dettaglio + ")";
    return r;
}

// The archive open for writing, brought back in step if a run was interrupted, and whole.
struct ArchivioScrittura {
    archives::Archivio archivio;
    std::string riparazione;
};

ArchivioScrittura ApriPerScrivere(const Contesto& ctx) {
    const fs::path cartella = ctx.PercorsoProgramma();
    if (!fs::is_directory(cartella / "Archivi"))
        throw Rifiuta(fmt::format("La cartella {} non contiene gli archivi (Archivi/).", cartella.string()));
    ArchivioScrittura a{archives::Archivio::Apri(cartella, archives::ModoApertura::Scrittura), {}};
    a.riparazione = maintenance::RiparaArchivio(a.archivio).descrizione;
    if (archives::Messaggio m = archives::VerificaIntegrita(a.archivio); !m.vuoto()) throw Rifiuto{m};
    return a;
}

void StampaRiparazione(const std::string& riparazione) {
    if (!riparazione.empty()) std::cerr << riparazione << "\n";
}

std::string Ultima(const archives::Archivio& a, Gioco gioco) {
    if (gioco == Gioco::Lotto) {
        if (a.NumeroEstrazioni() < 1) return {};
        const archives::RecordEstrazione r = a.LeggiEstrazione(a.NumeroEstrazioni());
        return fmt::format("n.{} del {}", r.NumeroAnno, r.dataTesto());
    }
    if (a.NumeroEstrazioniSuper() < 1) return {};
    const archives::RecordSuperEnalotto r = a.LeggiRecordSuper(a.NumeroEstrazioniSuper());
    return fmt::format("n.{} del {}", r.NumeroAnno, r.dataTesto());
}

int32_t Conteggio(const archives::Archivio& a, Gioco gioco) {
    return gioco == Gioco::Lotto ? a.NumeroEstrazioni() : a.NumeroEstrazioniSuper();
}

void Aggiorna(const Contesto& ctx, const std::string& file, bool super) {
    const Gioco gioco = super ? Gioco::SuperEnalotto : Gioco::Lotto;
    ArchivioScrittura a = ApriPerScrivere(ctx);
    StampaRiparazione(a.riparazione);
    const auto e = maintenance::ApplicaFileAggiornamento(a.archivio, file, gioco);
    if (!e.riuscito) throw RifiutoCon(e.messaggio, e.controllo.dettaglio);
    if (ctx.json) {
        StampaJson({{"messaggio", e.messaggio.testo},
                    {"aggiunte", e.aggiunte},
                    {"anni_aggiunti", e.anniAggiunti},
                    {"estrazioni", Conteggio(a.archivio, gioco)},
                    {"ultima", Ultima(a.archivio, gioco)},
                    {"file_dal", e.controllo.primaData},
                    {"file_al", e.controllo.ultimaData}});
        return;
    }
    std::cout << e.messaggio.testo << "\n"
              << fmt::format("Estrazioni aggiunte: {}; estrazioni in archivio: {}; ultima estrazione memorizzata: {}\n",
                             e.aggiunte, Conteggio(a.archivio, gioco), Ultima(a.archivio, gioco));
}

void Esporta(const Contesto& ctx, const std::string& file, const std::string& da) {
    ArchivioScrittura a = ApriPerScrivere(ctx);
    StampaRiparazione(a.riparazione);
    if (a.archivio.NumeroEstrazioni() < 1) throw Rifiuta("L'archivio delle estrazioni del Lotto è vuoto.");
    int32_t primo = maintenance::PrimaEsportata;
    if (!da.empty()) {
        const archives::RisultatoData r = archives::ControllaData(da, a.archivio, false);
        if (r.ErroreData) throw Rifiuto{r.messaggio};
        primo = r.IndiceTrovato;
    }
    const auto e = maintenance::EsportaAggiornamento(a.archivio, file, primo);
    if (!e.riuscito) throw Rifiuto{e.messaggio};
    if (ctx.json) {
        StampaJson({{"messaggio", e.messaggio.testo},
                    {"esportate", e.esportate},
                    {"dal", e.primaData},
                    {"al", e.ultimaData},
                    {"file", file}});
        return;
    }
    std::cout << e.messaggio.testo << "\n";
    if (e.esportate > 0)
        std::cout << fmt::format("Estrazioni esportate: {} (dal {} al {}, progressivi da {} a {})\n", e.esportate,
                                 e.primaData, e.ultimaData, std::max(1, primo), a.archivio.NumeroEstrazioni());
    else
        std::cout << "Nessuna estrazione esportata: l'archivio non arriva al progressivo indicato.\n";
}

void Importa(const Contesto& ctx, const std::string& file, bool super) {
    const Gioco gioco = super ? Gioco::SuperEnalotto : Gioco::Lotto;
    const fs::path cartella = ctx.PercorsoProgramma();
    const auto dati = maintenance::LeggiFileAggiornamento(file);
    if (!dati) throw Rifiuto{maintenance::ErrFile(file)};

    // The check runs on what is there (absent files read as empty), so a refusal creates
    // nothing; only an accepted file makes the folders and the files.
    {
        const archives::Archivio lettura = archives::Archivio::Apri(cartella, archives::ModoApertura::Lettura);
        const auto c = maintenance::ControllaDati(lettura, *dati, gioco);
        if (!c.riuscito) throw RifiutoCon(c.messaggio, c.dettaglio);
    }
    std::error_code ec;
    fs::create_directories(cartella / "Archivi", ec);
    if (ec)
        throw Rifiuta(
            fmt::format("Impossibile creare la cartella {} : {}", (cartella / "Archivi").string(), ec.message()));
    ArchivioScrittura a = ApriPerScrivere(ctx);
    StampaRiparazione(a.riparazione);
    const auto e = maintenance::ImportaDati(a.archivio, *dati, gioco);
    if (!e.riuscito) throw RifiutoCon(e.messaggio, e.dettaglio);
    if (ctx.json) {
        StampaJson({{"messaggio", e.messaggio.testo},
                    {"creato", e.creato},
                    {"lette", e.estrazioni},
                    {"aggiunte", e.aggiunte},
                    {"anni_aggiunti", e.anniAggiunti},
                    {"estrazioni", Conteggio(a.archivio, gioco)},
                    {"ultima", Ultima(a.archivio, gioco)},
                    {"file_dal", e.primaData},
                    {"file_al", e.ultimaData}});
        return;
    }
    std::cout << e.messaggio.testo << "\n"
              << fmt::format(
                     "Estrazioni lette: {} (dal {} al {}); aggiunte: {}; estrazioni in archivio: {}; "
                     "ultima estrazione memorizzata: {}\n",
                     e.estrazioni, e.primaData, e.ultimaData, e.aggiunte, Conteggio(a.archivio, gioco),
                     Ultima(a.archivio, gioco));
    // The workbench opens only on all three archives: say what is still missing.
    if (a.archivio.NumeroEstrazioniSuper() == 0)
        std::cout << "Per aprire il programma serve anche l'archivio del SuperEnalotto: importarlo con "
                     "gorgo-cli importa FILE --super\n";
    else if (a.archivio.NumeroEstrazioni() == 0)
        std::cout
            << "Per aprire il programma serve anche l'archivio del Lotto: importarlo con gorgo-cli importa FILE\n";
}

void EsportaTesto(const Contesto& ctx, const std::string& file) {
    ArchivioScrittura a = ApriPerScrivere(ctx);
    StampaRiparazione(a.riparazione);
    const archives::Archivio& ar = a.archivio;
    if (ar.NumeroEstrazioni() < 1) throw Rifiuta("L'archivio delle estrazioni del Lotto è vuoto.");
    if (maintenance::FileDellArchivio(ar, file)) throw Rifiuto{maintenance::MessaggioFileDellArchivio(file)};
    maintenance::EsportaTesto(ar, file);
    const std::string testo =
        fmt::format("Archivio del Lotto esportato in {}: {} estrazioni dal {} al {}.", file, ar.NumeroEstrazioni(),
                    ar.DataEstrazione(1), ar.DataEstrazione(ar.NumeroEstrazioni()));
    if (ctx.json) {
        StampaJson({{"messaggio", testo},
                    {"esportate", ar.NumeroEstrazioni()},
                    {"dal", ar.DataEstrazione(1)},
                    {"al", ar.DataEstrazione(ar.NumeroEstrazioni())},
                    {"file", file}});
        return;
    }
    std::cout << testo << "\n";
}

}  // namespace

// The repair every writer makes first, on its own: for a folder the readers could not repair.
void Ripara(const Contesto& ctx) {
    const ArchivioScrittura a = ApriPerScrivere(ctx);
    const std::string testo =
        a.riparazione.empty() ? "Archivio integro: nessuna riparazione necessaria." : a.riparazione;
    if (ctx.json)
        StampaJson({{"riparato", !a.riparazione.empty()}, {"messaggio", testo}});
    else
        std::cout << testo << "\n";
}

void AggiungiComandiManutenzione(CLI::App& app, Contesto& ctx) {
    struct Argomenti {
        std::string file, da;
        bool super = false;
    };
    auto a = std::make_shared<Argomenti>();

    auto* aggiorna = app.add_subcommand(
        "aggiorna", "Aggiorna l'archivio con un file di aggiornamento (record dell'archivio, estensione bin o alb)");
    aggiorna->add_option("file", a->file, "File di aggiornamento")->required();
    aggiorna->add_flag("--super", a->super, "File di aggiornamento del SuperEnalotto (record da 20 byte)");
    aggiorna->callback([&ctx, a] { Aggiorna(ctx, a->file, a->super); });

    auto* esporta = app.add_subcommand(
        "esporta", "Esporta le estrazioni del Lotto in un file di aggiornamento (dal progressivo 7773, o da una data)");
    esporta->add_option("file", a->file, "File da scrivere (sostituito se esiste)")->required();
    esporta->add_option("--da", a->da, "Prima data da esportare, GG/MM/AAAA");
    esporta->callback([&ctx, a] { Esporta(ctx, a->file, a->da); });

    auto* importa = app.add_subcommand(
        "importa",
        "Importa un archivio pubblico in formato testo (o uno zip che lo contiene): crea l'archivio se "
        "manca, altrimenti aggiunge le estrazioni successive all'ultima memorizzata");
    importa->add_option("file", a->file, "File di testo o zip")->required();
    importa->add_flag("--super", a->super,
                      "Elenco del SuperEnalotto (data, sei numeri, Jolly, SuperStar; tabulazioni o punti e virgola)");
    importa->callback([&ctx, a] { Importa(ctx, a->file, a->super); });

    auto* testo = app.add_subcommand("esporta-testo", "Scrive l'archivio del Lotto nel formato di testo pubblico");
    testo->add_option("file", a->file, "File da scrivere (sostituito se esiste)")->required();
    testo->callback([&ctx, a] { EsportaTesto(ctx, a->file); });

    auto* ripara = app.add_subcommand(
        "ripara", "Ripara gli archivi dopo un'interruzione (estrazione incompleta in coda, indice degli anni)");
    ripara->callback([&ctx] { Ripara(ctx); });
}

const GruppoComandi registrazione{60, AggiungiComandiManutenzione};

}  // namespace gorgo::cli
