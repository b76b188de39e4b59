// gorgo-cli consulta and somme-distanze on the real archive, as a user runs them.

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "support/archivi_reali.h"
#include "support/cli.h"

namespace gorgo::test {
namespace {

TEST(CliConsultazione, GrigliaJsonERifiuti) {
    GORGO_RICHIEDI_ARCHIVI_REALI(cartella);
    const std::string c = cartella.string();
    Esito e = Esegui({"--cartella", c, "consulta", "30/12/2025", "--vista", "ritardi", "--json"});
    ASSERT_EQ(e.codice, 0) << e.err;
    const auto j = nlohmann::json::parse(e.out);
    EXPECT_EQ(j["data"], "30/12/2025");
    EXPECT_EQ(j["indice_mese"], "17");
    ASSERT_EQ(j["celle"].size(), 55u);
    EXPECT_EQ(j["celle"][0]["sfondo"].get<std::string>().size(), 7u);
    EXPECT_TRUE(j["report"].empty());

    e = Esegui({"--cartella", c, "consulta", "10779", "--famiglia", "ripetuti", "--json"});
    ASSERT_EQ(e.codice, 0) << e.err;
    const auto r = nlohmann::json::parse(e.out)["report"];
    ASSERT_FALSE(r.empty());
    EXPECT_NE(r.back().get<std::string>().find("numeri ripetuti"), std::string::npos);

    e = Esegui({"--cartella", c, "consulta", "10779", "--somma", "181"});
    EXPECT_EQ(e.codice, 2);
    EXPECT_NE(e.err.find("inserisci un valore tra 2 e 180 !"), std::string::npos);
    e = Esegui({"--cartella", c, "consulta", "10779", "--famiglia", "decina:9"});
    EXPECT_EQ(e.codice, 2);
    e = Esegui({"--cartella", c, "consulta", "10779", "--ruota", "BA", "--famiglia", "usciti"});
    EXPECT_EQ(e.codice, 2);

    e = Esegui({"--cartella", c, "somme-distanze", "10779"});
    ASSERT_EQ(e.codice, 0) << e.err;
    EXPECT_NE(e.out.find("|          | 1-2 | 1-3 |"), std::string::npos);
    e = Esegui({"--cartella", c, "consulta", "10779", "--gioco", "10elotto", "--json"});
    ASSERT_EQ(e.codice, 0) << e.err;
    EXPECT_EQ(nlohmann::json::parse(e.out)["righe"][9]["numeri"].size(), 20u);
}

}  // namespace
}  // namespace gorgo::test
