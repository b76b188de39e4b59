// The builder's commands read what a key carries and take only what the screen's boxes take.

#include <gtest/gtest.h>

#include <algorithm>
#include <nlohmann/json.hpp>

#include "support/archivi_reali.h"
#include "support/cartelle.h"
#include "support/cli.h"

namespace gorgo {
namespace {

using nlohmann::json;
using test::Esegui;
using test::Esito;

struct Caso {
    std::vector<std::string> argomenti;
    std::string messaggio;
};

// A command, then the given groups of arguments in order.
std::vector<std::string> Con(const std::string& comando, std::initializer_list<std::vector<std::string>> gruppi) {
    std::vector<std::string> a{comando};
    for (const auto& g : gruppi) a.insert(a.end(), g.begin(), g.end());
    return a;
}
std::vector<std::string> Con(const std::string& comando, const std::vector<std::string>& argomenti) {
    return Con(comando, {argomenti});
}
std::vector<std::string> Con(const std::string& comando, const std::vector<std::string>& prima,
                             const std::vector<std::string>& argomenti) {
    return Con(comando, {prima, argomenti});
}

class ChiaviELimiti : public ::testing::Test {
protected:
    void SetUp() override {
        cartella_ = c_.percorso() / "gorgo";
        ASSERT_EQ(Esegui({"demo", cartella_.string()}).codice, 0);
    }
    Esito Su(std::vector<std::string> argomenti) const {
        argomenti.insert(argomenti.begin(), {"--cartella", cartella_.string()});
        return Esegui(argomenti);
    }
    // The key of the best row of a search.
    std::string PrimaChiave(std::vector<std::string> argomenti) const {
        argomenti.insert(argomenti.begin(), {"--json", "costruttore"});
        const Esito e = Su(argomenti);
        EXPECT_EQ(e.codice, 0) << e.err;
        const json j = json::parse(e.out);
        EXPECT_FALSE(j["righe"].empty());
        return j["righe"].empty() ? std::string() : j["righe"][0]["chiave"].get<std::string>();
    }
    // A refusal: the message alone on stderr, exit 2, nothing printed.
    void Rifiutato(const std::vector<std::string>& argomenti, const std::string& messaggio) const {
        const Esito e = Su(argomenti);
        EXPECT_EQ(e.codice, 2) << argomenti[0] << " " << argomenti[1];
        EXPECT_EQ(e.err, messaggio + "\n") << argomenti[0] << " " << argomenti[1];
        EXPECT_TRUE(e.out.empty());
    }
    test::CartellaTemporanea c_;
    std::filesystem::path cartella_;
};

TEST_F(ChiaviELimiti, IValoriCheIlControlloNonContieneSonoRifiutati) {
    const std::vector<Caso> casi = {
        {{"--ultime", "0"}, "Inserire il n. di sortite da ricercare!"},
        {{"--ultime", "-1"}, "Inserire il n. di sortite da ricercare!"},
        {{"--ultime", "91"}, "Inserire il n. di sortite da ricercare!"},
        {{"--colpi", "0"}, "Inserire il n. di colpi di gioco !"},
        {{"--colpi", "-3"}, "Inserire il n. di colpi di gioco !"},
        {{"--colpi", "1000"}, "Inserire il n. di colpi di gioco !"},
        {{"--valore", "0"}, "Inserire il numero spia !"},
        {{"--valore", "91"}, "Inserire il numero spia !"},
        {{"--spia", "somma", "--valore", "x"}, "Inserire la somma spia !"},
        {{"--spia", "ambo", "--ambo", "123-4"}, "--ambo: indicare i due numeri come 12-34."},
        {{"--ruote-ricerca", ""}, "Scegliere almeno una ruota di ricerca !"},
        {{"--ruote-gioco", ""}, "Scegliere almeno una ruota di gioco !"},
        // The search wheels are checked first, as the search does.
        {{"--ruote-ricerca", "", "--ruote-gioco", ""}, "Scegliere almeno una ruota di ricerca !"},
        {{"--spia", "ambo", "--ambo", "12-34", "--tipo", "terzine-ambo"},
         "Con l'ambo spia il tipo di ricerca è ambate oppure ambi."},
        {{"--spia", "ambo", "--ambo", "12-34", "--tipo", "codici"},
         "Con l'ambo spia il tipo di ricerca è ambate oppure ambi."},
    };
    for (const Caso& c : casi) {
        Rifiutato(Con("costruttore", c.argomenti), c.messaggio);
        // previsioni reads the spy from its key: the spy's own options contradict it first.
        if (c.argomenti[0] != "--valore" && c.argomenti[0] != "--spia")
            Rifiutato(Con("previsioni", {"--chiave", "101x00010_01111115"}, c.argomenti), c.messaggio);
    }
}

TEST_F(ChiaviELimiti, UnaChiaveMalformataOContraddettaERifiutata) {
    const std::string ambata = "204x00010_27111115";
    const std::vector<Caso> casi = {
        {{"--chiave", "204x00010"}, "Calcolo impossibile: algoritmo mancante."},
        {{"--chiave", "204x00010_2711"}, "Calcolo impossibile: algoritmo mancante."},
        {{"--chiave", "204x0001_27111115"}, "Calcolo impossibile: algoritmo mancante."},
        {{"--chiave", "214x00010_27111115"}, "Calcolo impossibile: ruota 1 non valida."},
        {{"--chiave", ambata, "--valore", "5"},
         "La chiave \"" + ambata + "\" indica la spia 27: contraddice --valore 5."},
        {{"--chiave", ambata, "--tipo", "ambi"},
         "La chiave \"" + ambata + "\" indica un algoritmo di tipo ambate: contraddice --tipo ambi."},
        {{"--chiave", ambata, "--spia", "somma"},
         "La chiave \"" + ambata + "\" indica un numero spia: contraddice --spia somma."},
        {{"--chiave", ambata, "--posizioni", "13"},
         "La chiave \"" + ambata + "\" indica le posizioni 12345: contraddice --posizioni 13."},
        {{"--chiave", "010203_27111115"},
         "La chiave \"010203_27111115\" è di una terzina: indicare --tipo terzine-ambo oppure --tipo "
         "terzine-terno."},
        {{"--chiave", "101x00010_50 ", "--chiave", ambata},
         "La chiave \"101x00010_50 \" è di una spia somma o differenza: indicare --spia somma oppure --spia "
         "differenza."},
        {{"--chiave", ambata, "--chiave", "101x00010_28111115"},
         "La chiave \"101x00010_28111115\" è di un'altra ricerca: le chiavi di un calcolo devono avere lo stesso "
         "tipo, la stessa spia e le stesse posizioni."},
    };
    for (const Caso& c : casi) {
        // verifica replays one key.
        if (std::count(c.argomenti.begin(), c.argomenti.end(), std::string("--chiave")) == 1)
            Rifiutato(Con("verifica", c.argomenti), c.messaggio);
        Rifiutato(Con("previsioni", c.argomenti), c.messaggio);
    }
}

// The kind, the spy and its positions travel in the key: the replay without options is the
// replay with the options of the search that made the key. Spies other than the defaults.
TEST(ChiaviReali, LaSpiaEIlTipoViaggianoNellaChiave) {
    GORGO_RICHIEDI_ARCHIVI_REALI(reale);
    const std::vector<std::string> ruote = {"--ruote-ricerca", "tutte", "--ruote-gioco", "tutte"};
    struct Ricerca {
        std::vector<std::string> opzioni;  // of the search
        std::vector<std::string> minime;   // what the key cannot carry
    };
    const std::vector<Ricerca> ricerche = {
        {{"--valore", "27"}, {}},
        {{"--valore", "63", "--posizioni", "24", "--tipo", "ambi"}, {}},
        {{"--spia", "somma", "--valore", "50", "--tipo", "terzine-terno"},
         {"--tipo", "terzine-terno", "--spia", "somma"}},
        {{"--spia", "ambo", "--ambo", "34-12", "--posizioni", "123"}, {}},
    };
    for (const Ricerca& r : ricerche) {
        std::vector<std::string> costruttore = {"--cartella", reale.string(), "--json", "costruttore"};
        costruttore.insert(costruttore.end(), ruote.begin(), ruote.end());
        costruttore.insert(costruttore.end(), r.opzioni.begin(), r.opzioni.end());
        const Esito c = Esegui(costruttore);
        ASSERT_EQ(c.codice, 0) << c.err;
        const json righe = json::parse(c.out)["righe"];
        ASSERT_FALSE(righe.empty()) << r.opzioni[1];
        const std::string chiave = righe[0]["chiave"];

        for (const char* comando : {"verifica", "previsioni"}) {
            std::vector<std::string> base = {"--cartella", reale.string(), "--json", comando, "--chiave", chiave};
            base.insert(base.end(), ruote.begin(), ruote.end());
            std::vector<std::string> completa = base, minima = base;
            completa.insert(completa.end(), r.opzioni.begin(), r.opzioni.end());
            minima.insert(minima.end(), r.minime.begin(), r.minime.end());
            const Esito conOpzioni = Esegui(completa), senza = Esegui(minima);
            ASSERT_EQ(conOpzioni.codice, 0) << conOpzioni.err;
            ASSERT_EQ(senza.codice, 0) << senza.err;
            EXPECT_EQ(senza.out, conOpzioni.out) << comando << " " << chiave;
        }
        // Every replayed case stands on the search's spy.
        std::vector<std::string> v = {"--cartella", reale.string(), "--json", "verifica", "--chiave", chiave};
        v.insert(v.end(), ruote.begin(), ruote.end());
        v.insert(v.end(), r.minime.begin(), r.minime.end());
        const json casi = json::parse(Esegui(v).out)["righe"];
        ASSERT_FALSE(casi.empty());
        const auto senzaSpazi = [](std::string t) {
            std::erase(t, ' ');
            return t;
        };
        const std::string spia = senzaSpazi(righe[0]["spia"]);
        for (const json& caso : casi) EXPECT_EQ(senzaSpazi(caso["spia"]), spia) << chiave;
    }
}

}  // namespace
}  // namespace gorgo
