// costruttore --convergenze and --lunghetta, and abbinamenti, run as a user runs them on the
// real archive: the texts, the JSON rows, the refusals and the report file.

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "support/archivi_reali.h"
#include "support/cartelle.h"
#include "support/cli.h"

namespace gorgo {
namespace {

using nlohmann::json;
using test::Esegui;
using test::Esito;

// Spy 27 on every wheel, played on Milano: some algorithms still run at the archive's end.
std::vector<std::string> Ricerca(const std::filesystem::path& reale, std::vector<std::string> prima,
                                 const std::string& gioco = "MI", const std::string& indice = "tutti") {
    std::vector<std::string> a = {"--cartella", reale.string()};
    a.insert(a.end(), prima.begin(), prima.end());
    a.insert(a.end(), {"--valore", "27", "--ruote-ricerca", "tutte", "--ruote-gioco", gioco, "--indice-mese", indice});
    return a;
}

TEST(CliConvergenze, ConvergenzeELunghettaSullArchivioReale) {
    GORGO_RICHIEDI_ARCHIVI_REALI(reale);
    Esito e = Esegui(Ricerca(reale, {"--json", "costruttore", "--seleziona", "--convergenze"}));
    ASSERT_EQ(e.codice, 0) << e.err;
    const json c = json::parse(e.out);
    ASSERT_FALSE(c["righe"].empty());
    for (const json& r : c["righe"]) {
        ASSERT_EQ(r["testo"].size(), 2u);
        EXPECT_EQ(r["testo"][1], r["previsione"]);
    }
    EXPECT_TRUE(c["convergenze"].get<bool>());
    EXPECT_EQ(c["messaggio"].get<std::string>().rfind("N. ", 0), 0u) << c["messaggio"];

    // Nothing checked: the screen's message, refused.
    e = Esegui(Ricerca(reale, {"costruttore", "--convergenze"}));
    EXPECT_EQ(e.codice, 2);
    EXPECT_NE(e.err.find("Nessun  algoritmo selezionato!"), std::string::npos) << e.err;

    e = Esegui(Ricerca(reale, {"--json", "costruttore", "--lunghetta", "10"}));
    ASSERT_EQ(e.codice, 0) << e.err;
    const json l = json::parse(e.out);
    ASSERT_EQ(l["lunghetta"].size(), 10u);
    std::string testo;
    for (const json& n : l["lunghetta"]) testo += (testo.empty() ? "" : " - ") + std::to_string(n.get<int>());
    EXPECT_EQ(l["testo"], testo);
    e = Esegui(Ricerca(reale, {"costruttore", "--lunghetta", "4", "--ruota-migliore"}, "MI,NA"));
    ASSERT_EQ(e.codice, 0) << e.err;
    EXPECT_NE(e.out.find("Ruota migliore: "), std::string::npos) << e.out;

    for (const std::vector<std::string>& cattivi : {std::vector<std::string>{"--lunghetta", "31"},
                                                    {"--lunghetta", "0"},
                                                    {"--ruota-migliore"},
                                                    {"--convergenze", "--lunghetta", "5"},
                                                    {"--convergenze", "--report", "x.txt"}}) {
        std::vector<std::string> a = {"costruttore"};
        a.insert(a.end(), cattivi.begin(), cattivi.end());
        EXPECT_EQ(Esegui(Ricerca(reale, a)).codice, 2) << cattivi[0];
    }
}

TEST(CliConvergenze, AbbinamentiEReport) {
    GORGO_RICHIEDI_ARCHIVI_REALI(reale);
    const json c = json::parse(Esegui(Ricerca(reale, {"--json", "costruttore"})).out);
    ASSERT_FALSE(c["righe"].empty());
    const std::string chiave = c["righe"][0]["chiave"];
    Esito e = Esegui(Ricerca(reale, {"--json", "abbinamenti", "--chiave", chiave, "--quanti", "5"}, "MI", "17"));
    ASSERT_EQ(e.codice, 0) << e.err;
    const json a = json::parse(e.out);
    EXPECT_EQ(a["data"], "30/12/2025");
    EXPECT_EQ(a["casi"], 10);
    ASSERT_EQ(a["righe"].size(), 5u);
    for (const json& r : a["righe"]) {
        EXPECT_NE(r["numero"], a["capogioco"]);
        EXPECT_EQ(r["testo"][0].get<std::string>().substr(5, 6), "%  n. ");
    }

    // "Tutti" finds no draw in this panel: no capogioco, an empty list.
    e = Esegui(Ricerca(reale, {"--json", "abbinamenti", "--chiave", chiave}));
    ASSERT_EQ(e.codice, 0) << e.err;
    EXPECT_TRUE(json::parse(e.out)["righe"].empty());
    EXPECT_TRUE(json::parse(e.out)["capogioco"].is_null());

    const test::CartellaTemporanea t;
    const std::string file = (t / "ReportAbbinamentiNumerici.Txt").string();
    const auto report = [&](std::vector<std::string> piu) {
        std::vector<std::string> x = {"abbinamenti", "--chiave", chiave, "--report", file};
        x.insert(x.end(), piu.begin(), piu.end());
        return Esegui(Ricerca(reale, x, "MI", "17"));
    };
    ASSERT_EQ(report({}).codice, 0);
    const std::string scritto = test::LeggiFile(file);
    EXPECT_NE(scritto.find("Capogioco al 30/12/2025 : "), std::string::npos);
    EXPECT_EQ(report({}).codice, 2);  // exists: append or overwrite must be said
    EXPECT_EQ(test::LeggiFile(file), scritto);
    ASSERT_EQ(report({"--accoda"}).codice, 0);
    EXPECT_EQ(test::LeggiFile(file), scritto + scritto);

    for (const std::vector<std::string>& cattivi : {std::vector<std::string>{"--quanti", "16"},
                                                    {"--quanti", "0"},
                                                    {"--data", "31/13/2020"},
                                                    {"--spia", "somma"},
                                                    {"--colpi", "0"}}) {
        std::vector<std::string> x = {"abbinamenti", "--chiave", chiave};
        x.insert(x.end(), cattivi.begin(), cattivi.end());
        EXPECT_EQ(Esegui(Ricerca(reale, x)).codice, 2) << cattivi[0];
    }
}

}  // namespace
}  // namespace gorgo
