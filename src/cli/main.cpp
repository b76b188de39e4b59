// gorgo-cli: every engine of the workbench as an Italian subcommand.

#include <iostream>

#include "cli/contesto.h"

namespace {

using gorgo::cli::CodiceUscita;

// CLI11 speaks English; the users of this program read Italian.
std::string TraduciErrore(const CLI::ParseError& e) {
    const std::string nome = e.get_name();
    const std::string testo = e.what();
    if (nome == "RequiredError") return "Manca un parametro obbligatorio: " + testo;
    if (nome == "ExtrasError") return "Parametri non previsti: " + testo;
    if (nome == "ConversionError" || nome == "ValidationError") return "Valore non valido: " + testo;
    if (nome == "ArgumentMismatch") return "Numero di valori errato: " + testo;
    if (nome == "RequiresError" || nome == "ExcludesError") return "Combinazione di opzioni non ammessa: " + testo;
    return "Comando non valido: " + testo;
}

}  // namespace

int main(int argc, char** argv) {
    gorgo::cli::Contesto ctx;
    CLI::App app{"gorgo-cli: il banco di lavoro per Lotto, 10eLotto e SuperEnalotto da riga di comando.\n"
                 "Workbench for the Italian number games, from the command line.",
                 "gorgo-cli"};
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

    gorgo::cli::AggiungiComandiArchivi(app, ctx);
    gorgo::cli::AggiungiComandiImpostazioni(app, ctx);

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
    } catch (const gorgo::ErroreArchivio& e) {
        std::cerr << e.what() << "\n";
        return CodiceUscita::ErroreInterno;
    } catch (const std::exception& e) {
        std::cerr << "Errore imprevisto: " << e.what() << "\n";
        return CodiceUscita::ErroreInterno;
    }
    return CodiceUscita::Successo;
}
