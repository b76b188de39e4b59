// The program folder: --cartella, else $GORGO_HOME, else the executable's folder when it
// holds Archivi/, else ~/Gorgo; and the inputs this process gives that rule.

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>

#include "archives/percorso.h"
#include "support/cartelle.h"

namespace gorgo::archives {
namespace {

namespace fs = std::filesystem;

TEST(PercorsoProgramma, QuattroPassiInOrdine) {
    const test::CartellaTemporanea t;
    const fs::path base = fs::canonical(t.percorso());
    for (const char* d : {"opzione", "gorgohome", "exe/Archivi", "vuota", "filearchivi", "casa"})
        fs::create_directories(base / d);
    std::ofstream(base / "filearchivi" / "Archivi") << "";  // a file, not a folder

    const fs::path opzione = base / "opzione", home = base / "gorgohome", exe = base / "exe";
    struct Caso {
        const char* cosa;
        AmbientePercorso ambiente;
        fs::path atteso;
    };
    const Caso casi[] = {
        {"l'opzione prevale su tutto", {opzione, home.string(), exe, base.string()}, opzione},
        {"poi $GORGO_HOME", {std::nullopt, home.string(), exe, base.string()}, home},
        {"un'opzione vuota non conta", {fs::path(), home.string(), exe, base.string()}, home},
        {"la cartella dell'eseguibile con Archivi/", {std::nullopt, std::nullopt, exe, base.string()}, exe},
        {"$GORGO_HOME vuota non conta", {std::nullopt, std::string(), exe, base.string()}, exe},
        {"senza Archivi/ l'eseguibile non conta",
         {std::nullopt, std::nullopt, base / "vuota", base / "casa"},
         base / "casa" / "Gorgo"},
        {"Archivi come file non conta",
         {std::nullopt, std::nullopt, base / "filearchivi", base / "casa"},
         base / "casa" / "Gorgo"},
        {"eseguibile ignoto", {std::nullopt, std::nullopt, fs::path(), base.string()}, base / "Gorgo"},
        // Paths come back in their plain form, with or without the folder existing.
        {"percorso normalizzato", {base / "exe" / ".." / "opzione" / ".", std::nullopt, exe, std::nullopt}, opzione},
        {"cartella non ancora creata", {base / "nuova" / "x", std::nullopt, exe, std::nullopt}, base / "nuova" / "x"},
    };
    for (const Caso& c : casi) EXPECT_EQ(TrovaPercorsoProgramma(c.ambiente), c.atteso) << c.cosa;
    // No $HOME: ./Gorgo from the current folder.
    EXPECT_EQ(TrovaPercorsoProgramma({std::nullopt, std::nullopt, fs::path(), std::nullopt}),
              fs::weakly_canonical(fs::current_path() / "Gorgo"));
}

TEST(PercorsoProgramma, AmbienteDiQuestoProcesso) {
    const char* prima = std::getenv("GORGO_HOME");
    const std::optional<std::string> salvata = prima ? std::optional<std::string>(prima) : std::nullopt;
    ::setenv("GORGO_HOME", "/tmp/gorgo-home-di-prova", 1);
    const AmbientePercorso a = AmbienteCorrente(fs::path("/tmp/x"));
    ::unsetenv("GORGO_HOME");
    const AmbientePercorso b = AmbienteCorrente(std::nullopt);
    if (salvata) ::setenv("GORGO_HOME", salvata->c_str(), 1);

    EXPECT_EQ(a.cartella, fs::path("/tmp/x"));
    EXPECT_EQ(a.gorgoHome, "/tmp/gorgo-home-di-prova");
    EXPECT_FALSE(b.cartella);
    EXPECT_FALSE(b.gorgoHome);
    // The folder of this very test program.
    EXPECT_TRUE(fs::exists(a.cartellaEseguibile / "test_archives")) << a.cartellaEseguibile;
    if (const char* h = std::getenv("HOME")) {
        EXPECT_EQ(a.home, h);
    }
}

}  // namespace
}  // namespace gorgo::archives
