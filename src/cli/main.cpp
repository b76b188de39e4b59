// gorgo-cli: every engine of the workbench as an Italian subcommand.

#include <iostream>

#include "cli/contesto.h"

namespace {

using gorgo::cli::CodiceUscita;

// CLI11 speaks English; the users of this program read Italian.
std::string TraduciErrore(const CLI::ParseError& e) {
    const std::string testo = e.what();
    const auto dopo = [&](std::string_view segno) {
        const auto p = testo.find(segno);
        return p == std::string::npos ? testo : testo.substr(p + segno.size());
    };
    if (dynamic_cast<const CLI::RequiredError*>(&e)) {
        if (testo.find("subcommand") != std::string::npos) return "Indicare un comando.";
        const auto p = testo.find(" is required");
        return "Manca il parametro obbligatorio " + (p == std::string::npos ? testo : testo.substr(0, p)) + ".";
    }
    if (dynamic_cast<const CLI::ExtrasError*>(&e)) return "Parametro non previsto: " + dopo(": ");
    if (dynamic_cast<const CLI::ConversionError*>(&e) || dynamic_cast<const CLI::ValidationError*>(&e))
        return "Valore non valido: " + dopo(": ");
    if (dynamic_cast<const CLI::ArgumentMismatch*>(&e)) return "Numero di valori errato: " + testo;
    return "Comando non valido: " + testo;
}

}  // namespace

int main(int argc, char** argv) {
    gorgo::cli::Contesto ctx;
    CLI::App app{
        "gorgo-cli: il banco di lavoro per Lotto, 10eLotto e SuperEnalotto da riga di comando.\n"
        "Workbench for the Italian number games, from the command line.",
        "gorgo-cli"};
    app.option_defaults()->group("Opzioni");
    app.set_help_flag("-h,--help", "Mostra questo aiuto ed esce");
    app.set_help_all_flag("--aiuto-completo", "Mostra l'aiuto di tutti i comandi ed esce");
    app.get_formatter()->label("Usage", "Uso");
    app.get_formatter()->label("OPTIONS", "OPZIONI");
    app.get_formatter()->label("SUBCOMMAND", "COMANDO");
    app.get_formatter()->label("SUBCOMMANDS", "COMANDI");
    app.get_formatter()->label("Options", "Opzioni");
    app.get_formatter()->label("Subcommands", "Comandi");
    app.get_formatter()->label("Positionals", "Argomenti");
    app.get_formatter()->label("REQUIRED", "OBBLIGATORIO");
    app.get_formatter()->label("TEXT", "TESTO");
    app.get_formatter()->label("INT", "NUMERO");
    app.require_subcommand(1);
    app.fallthrough();
    app.add_option("--cartella", ctx.cartella,
                   "Cartella del programma (contiene Gorgo.ini e Archivi/); predefinita: $GORGO_HOME, "
                   "la cartella dell'eseguibile se contiene Archivi/, altrimenti ~/Gorgo");
    app.add_flag("--json", ctx.json, "Risultati in formato JSON");

    gorgo::cli::AggiungiTuttiIComandi(app, ctx);
    for (CLI::App* sub : app.get_subcommands({})) {
        sub->group("Comandi");
        sub->get_help_ptr()->group("Opzioni");
        if (CLI::Option* tutto = sub->get_option_no_throw("--aiuto-completo")) tutto->group("Opzioni");
    }

    try {
        app.parse(argc, argv);
    } catch (const CLI::CallForHelp& e) {
        return app.exit(e);
    } catch (const CLI::CallForAllHelp& e) {
        return app.exit(e);
    } catch (const CLI::ParseError& e) {
        std::cerr << TraduciErrore(e) << "\n(usare --help per l'elenco dei comandi)\n";
        return CodiceUscita::InputRifiutato;
    } catch (const gorgo::cli::Rifiuto& r) {
        std::cerr << r.messaggio.testo << "\n";
        return r.codice;
    } catch (const gorgo::archives::ErroreArchivio& e) {
        std::cerr << e.what() << "\n";
        return CodiceUscita::ErroreInterno;
    } catch (const std::exception& e) {
        std::cerr << "Errore imprevisto: " << e.what() << "\n";
        return CodiceUscita::ErroreInterno;
    }
    return CodiceUscita::Successo;
}
