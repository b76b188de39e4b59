// gorgo-cli enucleato, statistica-somme and ambi-matematici as a user runs them on the real
// archive: the JSON shape, the report file, and refusals that write nothing.

#include <gtest/gtest.h>

#include <filesystem>
#include <nlohmann/json.hpp>

#include "support/archivi_reali.h"
#include "support/cartelle.h"
#include "support/cli.h"

namespace gorgo {
namespace {

using nlohmann::json;

TEST(ComandiEnucleato, JsonSulArchivioReale) {
    GORGO_RICHIEDI_ARCHIVI_REALI(cartella);
    const std::string c = cartella.string();
    test::Esito e = test::Esegui(
        {"--cartella", c, "--json", "ambi-matematici", "--ruota", "tutte", "--da", "01/01/1946", "--a", "30/12/2025"});
    ASSERT_EQ(e.codice, 0) << e.err;
    json j = json::parse(e.out);
    ASSERT_EQ(j["riepilogo"].size(), 12u);
    EXPECT_EQ(j["riepilogo"][0].get<std::string>().substr(0, 16), "BA  -->  Freq.: ");
    ASSERT_FALSE(j["righe"].empty());
    for (const char* k : {"ritardo", "frequenza", "ritardo_attuale", "ritardo_max", "ic", "testo"})
        EXPECT_TRUE(j["righe"][0].contains(k)) << k;
    EXPECT_EQ(j["righe"][0]["testo"].size(), 5u);

    e = test::Esegui(
        {"--cartella", c, "--json", "enucleato", "22/11/2025", "--ruota", "BA", "--ruota", "TO", "--terni"});
    ASSERT_EQ(e.codice, 0) << e.err;
    j = json::parse(e.out);
    ASSERT_EQ(j["righe"].size(), 22u);
    EXPECT_TRUE(j["righe"][0]["separatore"].get<bool>());
    EXPECT_EQ(j["righe"][1]["testo"][0], "BA   82- 8-24");
    EXPECT_EQ(j["righe"][1]["testo"].size(), 5u);

    e = test::Esegui(
        {"--cartella", c, "--json", "statistica-somme", "--ruota", "BA", "--da", "01/01/1946", "--quante", "15"});
    ASSERT_EQ(e.codice, 0) << e.err;
    j = json::parse(e.out);
    EXPECT_GE(j["righe"].size(), 15u);
    const int somma = j["righe"][0]["somma"];
    e = test::Esegui({"--cartella", c, "--json", "statistica-somme", "--ruota", "BA", "--da", "01/01/1946", "--somma",
                      std::to_string(somma)});
    ASSERT_EQ(e.codice, 0) << e.err;
    j = json::parse(e.out);
    EXPECT_EQ(j["riepilogo"][0], std::to_string(j["righe"].size()) + " coppie in lista");
}

TEST(ComandiEnucleato, ReportERifiuti) {
    GORGO_RICHIEDI_ARCHIVI_REALI(cartella);
    const std::string c = cartella.string();
    test::CartellaTemporanea t;
    const std::string file = (t / "stat.txt").string();
    for (const std::vector<std::string>& sbagliato :
         {std::vector<std::string>{"statistica-somme", "--ruota", "XY", "--report", file},
          {"statistica-somme", "--quante", "tre", "--report", file},
          {"statistica-somme", "--da", "31/02/2000", "--report", file},
          {"statistica-somme", "--terni", "--dettaglio", "10", "--report", file},
          {"ambi-matematici", "--ruota", "BA", "--a", "1/1/2000", "--report", file},
          {"enucleato", "99/99/9999", "--report", file}}) {
        std::vector<std::string> a{"--cartella", c};
        a.insert(a.end(), sbagliato.begin(), sbagliato.end());
        const test::Esito e = test::Esegui(a);
        EXPECT_EQ(e.codice, 2) << sbagliato[1] << e.out;
        EXPECT_FALSE(e.err.empty());
        EXPECT_FALSE(std::filesystem::exists(file));
    }
    test::Esito e =
        test::Esegui({"--cartella", c, "statistica-somme", "--ruota", "NA", "--da", "01/01/2000", "--report", file});
    ASSERT_EQ(e.codice, 0) << e.err;
    const std::string testo = test::LeggiFile(file);
    EXPECT_EQ(testo.substr(0, 38), "Ambo enucleato - Statistica generale\r\n");
    EXPECT_NE(testo.find("Ruota : Napoli\r\n"), std::string::npos);
    // An existing file needs an answer.
    e = test::Esegui({"--cartella", c, "statistica-somme", "--ruota", "NA", "--report", file});
    EXPECT_EQ(e.codice, 2);
    EXPECT_EQ(test::LeggiFile(file), testo);
}

}  // namespace
}  // namespace gorgo
