// The real gorgo-cli binary: outputs, exit codes, and that a refusal changes nothing.

#include <gtest/gtest.h>

#include <fcntl.h>
#include <fmt/format.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>
#include <array>
#include <cstdio>
#include <cstdlib>

#include <chrono>
#include <fstream>
#include <iostream>
#include <map>
#include <nlohmann/json.hpp>

#include "archives/archivio.h"
#include "maintenance/aggiornamento.h"
#include "support/archivi_reali.h"
#include "support/attesi.h"
#include "support/cartelle.h"
#include "support/cli.h"

namespace gorgo {
namespace {

namespace fs = std::filesystem;
using nlohmann::json;
using test::CartellaTemporanea;
using test::LeggiFile;

using test::Esegui;
using test::Esito;

// Every byte of a program folder, to prove a refusal wrote nothing.
std::string Istantanea(const fs::path& cartella) {
    std::string s;
    if (!fs::exists(cartella)) return s;
    for (const auto& f : fs::recursive_directory_iterator(cartella))
        if (f.is_regular_file()) s += f.path().string() + "\n" + LeggiFile(f.path()) + "\n";
    return s;
}

// A refused command: exit code 2, its message on stderr, nothing on stdout.
struct Rifiuto {
    std::vector<std::string> argomenti;
    std::string messaggio;
};

// Every refusal as stated, and the program folder left byte for byte as it was.
template <typename Esecutore>
void AttesiRifiuti(const fs::path& cartella, std::initializer_list<Rifiuto> casi, Esecutore esegui) {
    const std::string prima = Istantanea(cartella);
    for (const Rifiuto& r : casi) {
        std::string comando;
        for (const auto& a : r.argomenti) comando.append(a.substr(0, 40)).append(" ");
        const Esito e = esegui(r.argomenti);
        EXPECT_EQ(e.codice, 2) << comando << e.err;
        EXPECT_NE(e.err.find(r.messaggio), std::string::npos) << comando << ": " << e.err;
        EXPECT_TRUE(e.out.empty()) << e.out;
    }
    EXPECT_EQ(Istantanea(cartella), prima);
}

class Cli : public ::testing::Test {
protected:
    void SetUp() override {
        cartella_ = c_.percorso() / "gorgo";
        const Esito e = Esegui({"demo", cartella_.string()});
        ASSERT_EQ(e.codice, 0) << e.err;
    }
    Esito Su(std::vector<std::string> argomenti) {
        argomenti.insert(argomenti.begin(), {"--cartella", cartella_.string()});
        return Esegui(argomenti);
    }
    CartellaTemporanea c_;
    fs::path cartella_;
};

TEST_F(Cli, InfoEstrazioneDataDieciSuper) {
    const archives::Archivio a = archives::Archivio::Apri(cartella_);
    json info = json::parse(Su({"--json", "info"}).out);
    EXPECT_TRUE(info["demo"].get<bool>());
    EXPECT_EQ(info["lotto"]["estrazioni"], a.NumeroEstrazioni());
    EXPECT_EQ(info["lotto"]["ultima"],
              fmt::format("n.{} del 30/12/2025", a.LeggiEstrazione(a.NumeroEstrazioni()).NumeroAnno));
    EXPECT_EQ(info["superenalotto"]["estrazioni"], a.NumeroEstrazioniSuper());
    EXPECT_EQ(info["restrizioni"], json::array({"Nessuna"}));
    EXPECT_NE(Su({"info"}).out.find("ARCHIVIO DIMOSTRATIVO"), std::string::npos);

    const json e = json::parse(Su({"--json", "estrazione", "7441"}).out);
    const archives::RecordEstrazione r = a.LeggiEstrazione(7441);
    EXPECT_EQ(e["data"], r.dataTesto());
    EXPECT_EQ(e["giorno"], r.giornoSettimana());
    ASSERT_EQ(e["ruote"].size(), 11u);
    for (int w = 1; w <= 11; ++w)
        for (int p = 1; p <= 5; ++p)
            EXPECT_EQ(e["ruote"][static_cast<size_t>(w - 1)][static_cast<size_t>(p - 1)], r.Numero(w, p));
    // The same draw by its date.
    EXPECT_EQ(json::parse(Su({"--json", "estrazione", r.dataTesto()}).out)["indice"], 7441);

    const json d = json::parse(Su({"--json", "data", "31/12/1999", "--precedente"}).out);
    EXPECT_EQ(d["data"], "29/12/1999");
    // No 10eLotto draw before the first draw of every wheel from Bari to Venezia.
    const Esito dieci = Su({"--json", "dieci", "1"});
    EXPECT_EQ(dieci.codice, 2);
    EXPECT_TRUE(dieci.out.empty());
    EXPECT_EQ(dieci.err.rfind("Estrazione del 10eLotto inesistente per l'estrazione n. 1 del ", 0), 0u) << dieci.err;
    EXPECT_EQ(json::parse(Su({"--json", "dieci", "10000"}).out)["numeri"].size(), 20u);
    const json s = json::parse(Su({"--json", "super", "1"}).out);
    EXPECT_EQ(s["data"], a.DataEstrazione(1, archives::ArchivioSuper));
    EXPECT_EQ(s["numeri"].size(), 6u);
}

TEST_F(Cli, InputRifiutatoNonScriveNulla) {
    const std::string lungo(1200, 'x');
    AttesiRifiuti(
        cartella_,
        {
            {{"data", "1/1/2000"}, "Inserire la data nel formato GG/MM/AAAA !"},
            {{"data", "31/02/2000"}, "Inserire la data nel formato GG/MM/AAAA !"},
            {{"data", "01/01/1850"}, "La data non può essere inferiore alla data inizio gestione archivi (07/01/1871)"},
            {{"data", "31/12/2025"},
             "La data non può essere superiore alla data ultima estrazione inserita (30/12/2025)"},
            {{"data", "01/01/1900", "--super"}, "La data non può essere inferiore"},
            {{"estrazione", "0"}, "fuori dall'archivio"},
            {{"estrazione", "99999"}, "fuori dall'archivio"},
            {{"estrazione", "12x"}, "non è un indice valido"},
            {{"super", "-3"}, "fuori dall'archivio del SuperEnalotto"},
            {{"impostazione", "Options", "Url", lungo}, "troppo lungo (1200 caratteri)"},
            {{"impostazione", "Settings", "RuoteConNz", "YYYY"}, "Servono 11 lettere"},
            {{"impostazione", "Options", "Url", "abc"}, "Url non valida"},
            {{"impostazione", "Restrizioni", "Dal", "31febbraio"}, "Serve il giorno"},
            {{"impostazione", "Settings", "Inesistente", "1"}, "non è un'impostazione del programma"},
            {{"demo", cartella_.string()}, "contiene già un archivio"},
            {{"estrazione"}, "Manca il parametro obbligatorio"},
            {{"info", "--boh"}, "Parametro non previsto"},
        },
        [&](const std::vector<std::string>& a) { return Su(a); });
}

TEST_F(Cli, ArchiviDanneggiatiRifiutati) {
    const fs::path archivi = cartella_ / "Archivi";
    auto prova = [&](const std::string& attesa) {
        AttesiRifiuti(cartella_, {{{"info"}, attesa}, {{"estrazione", "1"}, attesa}, {{"data", "07/01/1871"}, attesa}},
                      [&](const std::vector<std::string>& a) { return Su(a); });
    };
    // Damage no interruption leaves: refused, and no repair is offered.
    const std::string anni = LeggiFile(archivi / "anni.ind");
    {
        std::ofstream f(archivi / "anni.ind", std::ios::binary | std::ios::trunc);
        f << "1999" << anni.substr(4);
    }
    prova("non corrisponde alle estrazioni: manca o è errato l'anno");
    EXPECT_EQ(Su({"info"}).err.find("Per ripararlo"), std::string::npos);
    fs::resize_file(archivi / "Estrazioni.ind", 0);
    prova("mancanti!");
    fs::remove_all(archivi);
    prova("Archivi Estrazioni.ind  Anni.ind  SuperEnalotto.ind  mancanti!");
    EXPECT_FALSE(fs::exists(archivi));
}

TEST_F(Cli, ImpostazioniScritteELette) {
    const fs::path ini = cartella_ / "Gorgo.ini";
    {
        std::ofstream f(ini);
        f << "; commento dell'utente\n[Settings]\nriga senza uguale\nColoreForm=255\n[Altro]\nx=1\n";
    }
    EXPECT_EQ(Su({"impostazione", "settings", "coloreform"}).out, "255\n");
    EXPECT_EQ(Su({"impostazione", "Settings", "ColoreListe"}).out, "9033978\n");
    const archives::Archivio a = archives::Archivio::Apri(cartella_);
    EXPECT_EQ(Su({"impostazione", "Settings", "FineRicerca"}).out, std::to_string(a.NumeroEstrazioni()) + "\n");
    ASSERT_EQ(Su({"impostazione", "Restrizioni", "Periodo", "Y"}).codice, 0);
    ASSERT_EQ(Su({"impostazione", "Restrizioni", "Dal", "15dicembre"}).codice, 0);
    ASSERT_EQ(Su({"impostazione", "Restrizioni", "Al", "15gennaio"}).codice, 0);
    const std::string testo = LeggiFile(ini);
    EXPECT_NE(testo.find("; commento dell'utente\n[Settings]\nriga senza uguale\nColoreForm=255\n"), std::string::npos);
    EXPECT_NE(testo.find("[Altro]\nx=1\n"), std::string::npos);
    EXPECT_EQ(Su({"restrizioni"}).out, "     Solo estrazioni avvenute tra il 15 dicembre e il 15 gennaio\n");
    const json info = json::parse(Su({"--json", "info"}).out);
    EXPECT_EQ(info["restrizioni"], json::array({"-  Periodo dell'anno definito"}));
}

TEST_F(Cli, Costruttore) {
    const json e = json::parse(Su({"--json", "costruttore", "--valore", "27", "--ruote-ricerca", "tutte",
                                   "--ruote-gioco", "tutte", "--indice-mese", "tutti", "--da", "01/01/2024"})
                                   .out);
    ASSERT_FALSE(e["casi"].empty());
    ASSERT_FALSE(e["righe"].empty());
    EXPECT_EQ(e["descrizione"].get<std::string>().rfind("Sortite del numero 27 sulle ruote di ricerca", 0), 0u);
    const json& riga = e["righe"][0];
    EXPECT_EQ(riga["sortite"], e["casi"].size());
    EXPECT_EQ(riga["spia"], "27");
    EXPECT_EQ(riga["chiave"].get<std::string>().size(), 18u);
    // Wheel names come without the list's padding.
    EXPECT_EQ(e["casi"][0]["ruota"].get<std::string>().find(' '), std::string::npos);

    const std::string prima = Istantanea(cartella_);
    Esito r = Su({"costruttore", "--colpi", "0"});
    EXPECT_EQ(r.codice, 2);
    EXPECT_EQ(r.err, "Inserire il n. di colpi di gioco !\n");
    r = Su({"costruttore", "--tipo", "codici", "--terzine", (c_.percorso() / "manca.txt").string()});
    EXPECT_EQ(r.codice, 2);
    EXPECT_NE(r.err.find("manca.txt"), std::string::npos) << r.err;
    r = Su({"costruttore", "--ruote-ricerca", "XX"});
    EXPECT_EQ(r.codice, 2);
    EXPECT_NE(r.err.find("ruota \"XX\" sconosciuta"), std::string::npos) << r.err;
    EXPECT_EQ(Istantanea(cartella_), prima);

    // The file form of the list: header block, then one line a row; an existing file is
    // touched only when the question has an answer.
    const std::string report = (c_.percorso() / "ReportAlgoritmi.Txt").string();
    const std::vector<std::string> ricerca = {"costruttore", "--valore",      "27",    "--ruote-ricerca",
                                              "tutte",       "--indice-mese", "tutti", "--da",
                                              "01/01/2024",  "--report",      report};
    ASSERT_EQ(Su(ricerca).codice, 0);
    const std::string testo = LeggiFile(report);
    EXPECT_TRUE(test::ConfrontaConAtteso(testo, "cli/attesi/report_algoritmi.txt"));  // Windows-1252, CRLF
    size_t algoritmi = 0;
    for (size_t p = testo.find("Algoritmo: "); p != std::string::npos; p = testo.find("Algoritmo: ", p + 1))
        ++algoritmi;
    EXPECT_EQ(algoritmi, e["righe"].size());
    r = Su(ricerca);
    EXPECT_EQ(r.codice, 2);
    EXPECT_NE(r.err.find("Le informazioni vanno aggiunte in calce ?"), std::string::npos);
    EXPECT_EQ(LeggiFile(report), testo);
    auto accoda = ricerca;
    accoda.push_back("--accoda");
    ASSERT_EQ(Su(accoda).codice, 0);
    EXPECT_EQ(LeggiFile(report), testo + testo);
}

// The reduced triples of the codes: a missing file named with the way to give it, a bad one
// with its line, a count other than 1002 told and used; the check of a file on its own; the
// demo folder saying how to get one.
TEST_F(Cli, TerzineRidotte) {
    auto scrivi = [&](const char* nome, int quante, int zeroAlla = 0) {
        std::string t;
        for (int i = 1; i <= quante; ++i)
            t += fmt::format("{:02d} {:02d} {:02d}\n", i == zeroAlla ? 0 : i % 90 + 1, (i * 7) % 90 + 1,
                             (i * 11) % 89 + 2);
        std::ofstream(c_.percorso() / nome, std::ios::binary) << t;
        return (c_.percorso() / nome).string();
    };
    const std::vector<std::string> codici = {"costruttore", "--tipo",          "codici", "--valore",
                                             "27",          "--ruote-ricerca", "tutte",  "--da",
                                             "01/09/2025",  "--indice-mese",   "tutti"};
    const std::string prima = Istantanea(cartella_);
    Esito r = Su(codici);
    EXPECT_EQ(r.codice, 2);
    EXPECT_EQ(r.err, "Codici non disponibili: manca il file delle terzine ridotte " +
                         (cartella_ / "Terzine.txt").string() +
                         ". Indicarlo con --terzine FILE oppure con l'impostazione Options FileTerzine.\n");
    EXPECT_TRUE(r.out.empty());

    const std::string guasto = scrivi("guaste.txt", 1002, 40);
    std::vector<std::string> a = codici;
    a.insert(a.end(), {"--terzine", guasto});
    r = Su(a);
    EXPECT_EQ(r.codice, 2);
    EXPECT_EQ(r.err,
              "File terzine non valido! " + guasto + ", riga 40: ogni riga dà tre numeri da 1 a 90 (\"NN NN NN\").\n");

    const std::string corto = scrivi("corte.txt", 300);
    a = codici;
    a.insert(a.end(), {"--terzine", corto});
    r = Su(a);
    EXPECT_EQ(r.codice, 0) << r.err;
    EXPECT_EQ(r.err, "300 terzine caricate!\"\n");
    EXPECT_NE(r.out.find("(t."), std::string::npos) << r.out;
    EXPECT_EQ(Istantanea(cartella_), prima);

    // The check alone.
    r = Su({"terzine", scrivi("buone.txt", 1002)});
    EXPECT_EQ(r.codice, 0) << r.err;
    EXPECT_EQ(r.out, "1002 terzine in " + (c_.percorso() / "buone.txt").string() + "\n");
    EXPECT_TRUE(r.err.empty()) << r.err;
    r = Su({"terzine", corto});
    EXPECT_EQ(r.codice, 0);
    EXPECT_EQ(r.out, "300 terzine in " + corto + " (ne sono attese 1002)\n");
    EXPECT_EQ(r.err, "300 terzine caricate!\"\n");
    EXPECT_EQ(json::parse(Su({"--json", "terzine", corto}).out)["terzine"], 300);
    r = Su({"terzine", guasto});
    EXPECT_EQ(r.codice, 2);
    EXPECT_NE(r.err.find("riga 40"), std::string::npos) << r.err;
    r = Su({"terzine"});
    EXPECT_EQ(r.codice, 1);
    EXPECT_EQ(r.err, "Manca il file delle terzine ridotte " + (cartella_ / "Terzine.txt").string() +
                         " (predefinito: l'impostazione Options FileTerzine, o Terzine.txt nella cartella del "
                         "programma).\n");
    EXPECT_EQ(Istantanea(cartella_), prima);

    // The demo folder tells a new user how to have the codes.
    const std::string leggimi = LeggiFile(cartella_ / "LEGGIMI-DEMO.txt");
    for (const char* parola : {"Terzine.txt", "FileTerzine", "1002 righe", "\"01 30 60\"", "gorgo-cli terzine"})
        EXPECT_NE(leggimi.find(parola), std::string::npos) << parola;
}

TEST(CliReale, ArchivioReale) {
    GORGO_RICHIEDI_ARCHIVI_REALI(reale);
    const json info = json::parse(Esegui({"--cartella", reale.string(), "--json", "info"}).out);
    EXPECT_EQ(info["lotto"]["ultima"], "n.208 del 30/12/2025");
    EXPECT_EQ(info["lotto"]["estrazioni"], 10779);
    EXPECT_EQ(info["superenalotto"]["estrazioni"], 2823);
    EXPECT_FALSE(info["demo"].get<bool>());
    const Esito e = Esegui({"--cartella", reale.string(), "estrazione", "30/12/2025"});
    EXPECT_EQ(e.codice, 0);
    EXPECT_NE(e.out.find("Bari       15 65 34 86 47"), std::string::npos) << e.out;
    const json d = json::parse(Esegui({"--cartella", reale.string(), "--json", "data", "25/12/2025"}).out);
    EXPECT_EQ(d["data"], "27/12/2025");
}

TEST_F(Cli, VerificaEPrevisioni) {
    const std::vector<std::string> ricerca = {"--valore",      "27",        "--ruote-ricerca", "tutte",
                                              "--ruote-gioco", "tutte",     "--indice-mese",   "tutti",
                                              "--da",          "01/01/2024"};
    auto con = [&](std::vector<std::string> a) {
        a.insert(a.end(), ricerca.begin(), ricerca.end());
        return Su(a);
    };
    const json c = json::parse(con({"--json", "costruttore"}).out);
    ASSERT_GE(c["righe"].size(), 2u);
    const std::string chiave = c["righe"][0]["chiave"], chiave2 = c["righe"][1]["chiave"];
    const std::string descrizione = c["righe"][0]["descrizione"];

    const Esito ev = con({"--json", "verifica", "--chiave", chiave});
    ASSERT_EQ(ev.codice, 0) << ev.err;
    const json v = json::parse(ev.out);
    EXPECT_EQ(v["descrizione"], descrizione);
    ASSERT_FALSE(v["righe"].empty());
    int precedente = 0;
    for (const json& r : v["righe"]) {
        EXPECT_GE(r["indice_esito"].get<int>(), precedente);  // ascending on the hidden key
        precedente = r["indice_esito"];
        const std::string esito = r["data_sortita"];
        EXPECT_EQ(r["algoritmo"], esito.size() == 10 ? descrizione : std::string("Nessuno"));
        EXPECT_EQ(r["spia"], "27");
    }
    EXPECT_EQ(v["riepilogo"]["rilevati"], v["righe"].size());
    EXPECT_EQ(v["riepilogo"]["righe"][0].get<std::string>().rfind(" Casi rilevati   : ", 0), 0u);
    EXPECT_EQ(v["riepilogo"]["testa"][0], "Gorgo 2");
    // The case of the last draw is the newest; the risultati line tells whether one runs.
    EXPECT_EQ(v["risultati"].get<std::string>().rfind(descrizione + " : risultati ottenuti", 0), 0u);

    const Esito testo = con({"verifica", "--chiave", chiave});
    ASSERT_EQ(testo.codice, 0) << testo.err;
    EXPECT_NE(testo.out.find(" Casi rilevati   : "), std::string::npos);
    EXPECT_NE(testo.out.find("Condizione di gioco:"), std::string::npos);

    const Esito ep = con({"--json", "previsioni", "--chiave", chiave, "--chiave", chiave2});
    ASSERT_EQ(ep.codice, 0) << ep.err;
    const json p = json::parse(ep.out);
    EXPECT_EQ(p["titolo"], "Calcolo previsioni degli algoritmi selezionati: Ambate");
    ASSERT_EQ(p["righe"].size(), 2u);
    EXPECT_EQ(p["righe"][0]["descrizione"], descrizione);
    EXPECT_EQ(p["righe"][0]["previsione"], v["previsione"]);
    EXPECT_NE(p["righe"][0]["ic"].get<std::string>().find(','), std::string::npos);
    EXPECT_NE(con({"previsioni", "--chiave", chiave}).out.find("Calcolo previsioni degli algoritmi selezionati: "),
              std::string::npos);

    // Refusals: the key's own fault, the period's, a missing key; nothing written, nothing printed.
    AttesiRifiuti(
        cartella_,
        {
            {{"verifica", "--chiave", "123"}, "Calcolo impossibile: algoritmo mancante."},
            {{"verifica", "--chiave", chiave, "--tipo", "terzine-ambo"}, "contraddice --tipo terzine-ambo"},
            {{"verifica", "--chiave", chiave, "--colpi", "0"}, "Inserire il n. di colpi di gioco !"},
            {{"previsioni", "--chiave", chiave, "--chiave", "1"}, "Calcolo impossibile: algoritmo mancante."},
            {{"previsioni", "--chiave", "010001+_27111111", "--terzine", (c_.percorso() / "manca.txt").string()},
             "manca.txt"},
            {{"verifica"}, "Manca il parametro obbligatorio"},
        },
        con);
}

// The writers from the command line, on a copy of the real archives.
class CliManutenzione : public ::testing::Test {
protected:
    void SetUp() override {
        GORGO_RICHIEDI_ARCHIVI_REALI(reale);
        aggiornamenti_ = reale.parent_path() / "aggiornamenti";
        if (!fs::exists(aggiornamenti_ / "AggiornamentoPz.bin")) GTEST_SKIP() << "file di aggiornamento assenti";
        cartella_ = c_.percorso() / "gorgo";
        test::CopiaArchiviReali(reale, cartella_);
    }
    Esito Su(std::vector<std::string> argomenti, const fs::path& cartella = {}) {
        argomenti.insert(argomenti.begin(), {"--cartella", (cartella.empty() ? cartella_ : cartella).string()});
        return Esegui(argomenti);
    }
    std::string File(const char* nome) const { return (aggiornamenti_ / nome).string(); }
    void Scrivi(const fs::path& p, const std::string& s) const {
        std::ofstream f(p, std::ios::binary | std::ios::trunc);
        f << s;
    }
    CartellaTemporanea c_;
    fs::path cartella_, aggiornamenti_;
};

TEST_F(CliManutenzione, AggiornaEsportaEsportaTesto) {
    const Esito a = Su({"--json", "aggiorna", File("AggiornamentoPz.bin")});
    ASSERT_EQ(a.codice, 0) << a.err;
    const json j = json::parse(a.out);
    EXPECT_EQ(j["messaggio"], "Aggiornamento archivi al 21/08/2026 effettuato");
    EXPECT_EQ(j["aggiunte"], 134);
    EXPECT_EQ(j["anni_aggiunti"], 1);
    EXPECT_EQ(j["estrazioni"], 10913);
    EXPECT_EQ(j["ultima"], "n.134 del 21/08/2026");
    const Esito di_nuovo = Su({"aggiorna", File("AggiornamentoPz.bin")});
    EXPECT_EQ(di_nuovo.codice, 0);
    EXPECT_EQ(di_nuovo.out.rfind("Per il momento non ci sono aggiornamenti utili\n", 0), 0u) << di_nuovo.out;

    const fs::path esportato = c_ / "esportato.bin";
    const Esito e = Su({"esporta", esportato.string(), "--da", "30/12/2025"});
    ASSERT_EQ(e.codice, 0) << e.err;
    EXPECT_NE(e.out.find("Esportazione archivio " + esportato.string() + " al 21/08/2026 effettuata"),
              std::string::npos);
    EXPECT_EQ(LeggiFile(esportato), LeggiFile(File("AggiornamentoPz.bin")));
    const json tutto = json::parse(Su({"--json", "esporta", esportato.string()}).out);
    EXPECT_EQ(tutto["esportate"], 10913 - 7772);
    EXPECT_EQ(fs::file_size(esportato), (10913u - 7772u) * 66u);

    const fs::path testo = c_ / "storico.txt";
    const json t = json::parse(Su({"--json", "esporta-testo", testo.string()}).out);
    EXPECT_EQ(t["esportate"], 10913);
    const std::string scritto = LeggiFile(testo);
    EXPECT_EQ(scritto.substr(scritto.find("2025/12/30\t")), LeggiFile(File("storico-2026.txt")));
}

TEST_F(CliManutenzione, RifiutiSenzaScrivereNulla) {
    const std::string agg = LeggiFile(File("AggiornamentoPz.bin"));
    Scrivi(c_ / "65.bin", agg.substr(0, 65));
    Scrivi(c_ / "67.bin", agg.substr(0, 67));
    Scrivi(c_ / "lacuna.bin", agg.substr(66));
    Scrivi(c_ / "rotto.txt", "2026/01/02\tBA\t1\t2\t3\t4\t5\n2026/01/02\tCA\t1\t2\t3\t4\n");
    AttesiRifiuti(
        cartella_,
        {
            {{"aggiorna", (c_ / "65.bin").string()}, (c_ / "65.bin").string() + " corrotto o mancante !"},
            {{"aggiorna", (c_ / "67.bin").string()}, (c_ / "67.bin").string() + " corrotto o mancante !"},
            {{"aggiorna", (c_ / "manca.bin").string()}, "manca.bin corrotto o mancante !"},
            {{"aggiorna", (c_ / "lacuna.bin").string()}, "Discontinuità di memorizzazione - Aggiornamento impossibile"},
            {{"aggiorna", File("AggiornamentoPz.bin"), "--super"}, "corrotto o mancante !"},
            {{"importa", (c_ / "lacuna.bin").string()}, "Riga 1: formato non riconosciuto"},
            {{"importa", (c_ / "rotto.txt").string()}, "Riga 2: formato non riconosciuto"},
            {{"esporta", (c_ / "x.bin").string(), "--da", "32/01/2020"}, "Inserire la data nel formato GG/MM/AAAA !"},
            {{"esporta", (cartella_ / "Archivi" / "Estrazioni.ind").string()}, "è un archivio del programma"},
            {{"esporta-testo", (cartella_ / "Archivi" / "anni.ind").string()}, "è un archivio del programma"},
            {{"aggiorna"}, "Manca il parametro obbligatorio"},
        },
        [&](const std::vector<std::string>& a) { return Su(a); });
    EXPECT_FALSE(fs::exists(c_ / "x.bin"));
}

TEST_F(CliManutenzione, ImportaInUnaCartellaVuotaEDaZip) {
    const fs::path nuova = c_ / "nuova" / "gorgo";
    // A faulty file creates nothing.
    Scrivi(c_ / "rotto.txt", "2026/01/02\tBA\t1\t2\t3\t4\t5\n2026/01/02\tBA\t1\t2\t3\t4\t5\n");
    const Esito r = Su({"importa", (c_ / "rotto.txt").string()}, nuova);
    EXPECT_EQ(r.codice, 2);
    EXPECT_NE(r.err.find("Riga 2: la ruota di Bari del 02/01/2026 compare già alla riga 1."), std::string::npos)
        << r.err;
    EXPECT_FALSE(fs::exists(c_ / "nuova"));

    const Esito e = Su({"--json", "importa", File("storico-2026.txt")}, nuova);
    ASSERT_EQ(e.codice, 0) << e.err;
    const json j = json::parse(e.out);
    EXPECT_TRUE(j["creato"].get<bool>());
    EXPECT_EQ(j["aggiunte"], 135);
    EXPECT_EQ(j["ultima"], "n.134 del 21/08/2026");
    EXPECT_TRUE(fs::exists(nuova / "Archivi" / "Estrazioni.ind"));
    const fs::path testo = c_ / "riscritto.txt";
    ASSERT_EQ(Su({"esporta-testo", testo.string()}, nuova).codice, 0);
    EXPECT_EQ(LeggiFile(testo), LeggiFile(File("storico-2026.txt")));

    // The same as a zip into the 2025 archive: the records of the update file.
    const fs::path zip = c_ / "storico.zip";
    Scrivi(zip, test::CreaZip(c_.percorso(), {{"storico.txt", LeggiFile(File("storico-2026.txt"))}}));
    const Esito ez = Su({"importa", zip.string()});
    ASSERT_EQ(ez.codice, 0) << ez.err;
    EXPECT_EQ(ez.out.rfind("Importazione archivio del Lotto al 21/08/2026 effettuata: 134 estrazioni aggiunte.", 0), 0u)
        << ez.out;
    const std::string estrazioni = LeggiFile(cartella_ / "Archivi" / "Estrazioni.ind");
    EXPECT_EQ(estrazioni.substr(10779 * 66), LeggiFile(File("AggiornamentoPz.bin")).substr(66));
}

TEST_F(CliManutenzione, ImportaSuperEnalotto) {
    const std::string super = LeggiFile(cartella_ / "Archivi" / "SuperEnalotto.ind");
    fs::resize_file(cartella_ / "Archivi" / "SuperEnalotto.ind", super.size() - 2 * 20);
    // The last three draws, newest first, semicolons, with a heading.
    std::string lista = "Data;N1;N2;N3;N4;N5;N6;Jolly;SuperStar\n";
    for (size_t k = 1; k <= 3; ++k) {
        const auto* r = reinterpret_cast<const archives::RecordSuperEnalotto*>(super.data() + super.size() - k * 20);
        lista += r->dataTesto();
        for (int n : r->Sestina) lista.append(";").append(std::to_string(n));
        lista.append(";")
            .append(std::to_string(r->Jolly))
            .append(";")
            .append(std::to_string(r->SuperStar))
            .append("\n");
    }
    Scrivi(c_ / "super.csv", lista);
    const Esito e = Su({"--json", "importa", "--super", (c_ / "super.csv").string()});
    ASSERT_EQ(e.codice, 0) << e.err;
    EXPECT_EQ(json::parse(e.out)["aggiunte"], 2);
    EXPECT_EQ(LeggiFile(cartella_ / "Archivi" / "SuperEnalotto.ind"), super);
}

TEST_F(CliManutenzione, UnArchivioInterrottoSiRiparaAllaLetturaEPrimaDiScrivere) {
    // The draws of the update written, anni.ind not: the next command repairs, says so, goes on.
    const fs::path estrazioni = cartella_ / "Archivi" / "Estrazioni.ind";
    const std::string agg = LeggiFile(File("AggiornamentoPz.bin"));
    auto interrompi = [&](size_t da, size_t quante) {
        std::ofstream f(estrazioni, std::ios::binary | std::ios::app);
        f << agg.substr(da * 66, quante * 66) << "mezzo";
    };
    interrompi(1, 10);
    const Esito info = Su({"--json", "info"});
    ASSERT_EQ(info.codice, 0) << info.err;
    EXPECT_NE(info.err.find("Archivio riparato dopo un'interruzione"), std::string::npos) << info.err;
    EXPECT_NE(info.err.find("aggiunto 1 anno ad anni.ind"), std::string::npos) << info.err;
    EXPECT_EQ(fs::file_size(estrazioni), (10779u + 10u) * 66u);
    const Esito pulito = Su({"info"});
    EXPECT_EQ(pulito.codice, 0);
    EXPECT_TRUE(pulito.err.empty()) << pulito.err;

    interrompi(11, 3);
    const Esito e = Su({"aggiorna", File("AggiornamentoPz.bin")});
    ASSERT_EQ(e.codice, 0) << e.err;
    EXPECT_NE(e.err.find("Archivio riparato"), std::string::npos) << e.err;
    EXPECT_NE(e.out.find("Estrazioni aggiunte: 121;"), std::string::npos) << e.out;
    EXPECT_EQ(LeggiFile(estrazioni).substr(10779 * 66), agg.substr(66));

    const Esito r = Su({"ripara"});
    EXPECT_EQ(r.codice, 0) << r.err;
    EXPECT_EQ(r.out, "Archivio integro: nessuna riparazione necessaria.\n");
    interrompi(0, 0);
    const Esito r2 = Su({"ripara"});
    EXPECT_EQ(r2.codice, 0) << r2.err;
    EXPECT_EQ(r2.out.rfind("Archivio riparato dopo un'interruzione: tolta un'estrazione incompleta", 0), 0u) << r2.out;
}

// A folder the readers cannot write: nothing is written, and the message says how to repair.
TEST_F(CliManutenzione, UnArchivioInterrottoInSolaLetturaDiceComeRipararlo) {
    // Root writes through any permission bit: as root the command runs as nobody, on a copy
    // of the binary it can reach.
    std::string cli = std::getenv("GORGO_CLI") ? std::getenv("GORGO_CLI") : "gorgo-cli", prefisso;
    if (::geteuid() == 0) {
        if (!fs::exists("/usr/bin/setpriv")) GTEST_SKIP() << "da root serve setpriv per una cartella in sola lettura";
        prefisso = "/usr/bin/setpriv --reuid=65534 --regid=65534 --clear-groups ";
        fs::copy_file(cli, c_ / "gorgo-cli");
        cli = (c_ / "gorgo-cli").string();
        for (const auto& f : fs::recursive_directory_iterator(c_.percorso()))
            fs::permissions(f.path(),
                            fs::perms::others_read | (f.is_directory() ? fs::perms::others_exec : fs::perms::none),
                            fs::perm_options::add);
        fs::permissions(c_.percorso(), fs::perms::others_read | fs::perms::others_exec, fs::perm_options::add);
        fs::permissions(cli, fs::perms::others_exec, fs::perm_options::add);
    }
    {
        std::ofstream f(cartella_ / "Archivi" / "Estrazioni.ind", std::ios::binary | std::ios::app);
        f << "mezzo";
    }
    const std::string prima = Istantanea(cartella_);
    fs::permissions(cartella_ / "Archivi", fs::perms::owner_write, fs::perm_options::remove);
    std::string err;
    FILE* p = ::popen((prefisso + cli + " --cartella " + cartella_.string() + " info 2>&1 >/dev/null").c_str(), "r");
    ASSERT_NE(p, nullptr);
    std::array<char, 4096> buf{};
    for (size_t n; (n = std::fread(buf.data(), 1, buf.size(), p)) > 0;) err.append(buf.data(), n);
    const int stato = ::pclose(p);
    fs::permissions(cartella_ / "Archivi", fs::perms::owner_write, fs::perm_options::add);
    EXPECT_EQ(WIFEXITED(stato) ? WEXITSTATUS(stato) : -1, 2) << err;
    EXPECT_NE(err.find("non è un multiplo di 66"), std::string::npos) << err;
    EXPECT_NE(
        err.find("Per ripararlo: gorgo-cli --cartella " + cartella_.string() + " ripara, oppure aprire il programma."),
        std::string::npos)
        << err;
    EXPECT_EQ(Istantanea(cartella_), prima);
}

// SIGKILL at many moments of an update: whatever the moment, the next command of every kind
// works, no draw of the archive is lost, and finishing the update gives the archive of an
// uninterrupted one.
TEST_F(CliManutenzione, UnAggiornamentoUccisoInQualunqueMomento) {
    GORGO_RICHIEDI_ARCHIVI_REALI(reale);
    const char* cli = std::getenv("GORGO_CLI");
    ASSERT_NE(cli, nullptr);
    const std::string originale = LeggiFile(cartella_ / "Archivi" / "Estrazioni.ind");
    const std::string estrazione = Su({"estrazione", "10779"}).out;
    ASSERT_FALSE(estrazione.empty());
    // The kills are spread over the length of an uninterrupted run on this machine.
    const auto inizio = std::chrono::steady_clock::now();
    ASSERT_EQ(Su({"aggiorna", File("AggiornamentoPz.bin")}).codice, 0);
    const auto durata =
        std::chrono::duration_cast<std::chrono::microseconds>(std::chrono::steady_clock::now() - inizio).count();
    std::map<std::string, std::string> atteso;
    for (const char* nome : {"Estrazioni.ind", "anni.ind", "SuperEnalotto.ind"})
        atteso[nome] = LeggiFile(cartella_ / "Archivi" / nome);

    constexpr int Uccisioni = 32;
    int uccisi = 0, fuoriPasso = 0;
    for (int k = 0; k < Uccisioni; ++k) {
        SCOPED_TRACE(fmt::format("uccisione {}", k));
        const fs::path cartella = c_ / fmt::format("k{}", k);
        test::CopiaArchiviReali(reale, cartella);
        const std::string argomenti[] = {cli, "--cartella", cartella.string(), "aggiorna", File("AggiornamentoPz.bin")};
        std::vector<char*> argv;
        for (const auto& a : argomenti) argv.push_back(const_cast<char*>(a.c_str()));
        argv.push_back(nullptr);
        posix_spawn_file_actions_t azioni;
        posix_spawn_file_actions_init(&azioni);
        posix_spawn_file_actions_addopen(&azioni, 1, "/dev/null", O_WRONLY, 0);
        posix_spawn_file_actions_addopen(&azioni, 2, "/dev/null", O_WRONLY, 0);
        pid_t pid = 0;
        ASSERT_EQ(posix_spawn(&pid, cli, &azioni, nullptr, argv.data(), environ), 0);
        posix_spawn_file_actions_destroy(&azioni);
        ::usleep(static_cast<useconds_t>(200 + durata * k / Uccisioni));
        ::kill(pid, SIGKILL);
        int stato = 0;
        ::waitpid(pid, &stato, 0);
        if (WIFSIGNALED(stato)) ++uccisi;
        if (maintenance::RiparaCartellaArchivi(cartella / "Archivi", true).riparato()) ++fuoriPasso;

        // Each kind of command in turn is the first to meet the interrupted archive.
        auto su = [&](std::vector<std::string> a) {
            a.insert(a.begin(), {"--cartella", cartella.string()});
            return Esegui(a);
        };
        for (int j = 0; j < 5; ++j) {
            switch ((k + j) % 5) {
                case 0: {
                    const Esito e = su({"info"});
                    EXPECT_EQ(e.codice, 0) << e.err;
                    break;
                }
                case 1: {
                    const Esito e = su({"estrazione", "10779"});
                    EXPECT_EQ(e.codice, 0) << e.err;
                    EXPECT_EQ(e.out, estrazione);
                    break;
                }
                case 2: {
                    const Esito e = su({"data", "30/12/2025"});
                    EXPECT_EQ(e.codice, 0) << e.err;
                    break;
                }
                case 3: {
                    const std::string ora = LeggiFile(cartella / "Archivi" / "Estrazioni.ind");
                    EXPECT_EQ(ora.substr(0, originale.size()), originale);
                    break;
                }
                case 4: {
                    const Esito e = su({"aggiorna", File("AggiornamentoPz.bin")});
                    EXPECT_EQ(e.codice, 0) << e.err;
                    for (const auto& [nome, contenuto] : atteso)
                        EXPECT_EQ(LeggiFile(cartella / "Archivi" / nome), contenuto) << nome;
                    break;
                }
            }
        }
        if (HasFailure()) break;
        fs::remove_all(cartella);
    }
    // The delays must reach into the run, or the test proves nothing.
    EXPECT_GT(uccisi, 0);
    std::cout << uccisi << " uccisioni, " << fuoriPasso << " con gli archivi da riparare\n";
}

// inserisci: a draw as text; the screen's questions need --conferma, without it nothing is
// written; a stored date corrects that draw and leaves the year index alone.
TEST_F(Cli, Inserisci) {
    std::string testo;
    for (int i = 1; i <= 55; ++i) testo += std::to_string(i) + (i % 5 == 0 ? " / " : " ");
    const archives::Archivio prima = archives::Archivio::Apri(cartella_);
    const int32_t n = prima.NumeroEstrazioni();
    const int32_t anni = prima.NumeroAnni();

    Esito e = Su({"--json", "inserisci", testo});
    ASSERT_EQ(e.codice, 0) << e.err;
    json j = json::parse(e.out);
    EXPECT_EQ(j["indice"], n + 1);
    EXPECT_EQ(j["data"], "01/01/2026");  // the day proposed after Tuesday 30/12/2025
    EXPECT_EQ(j["numero_anno"], 1);
    EXPECT_TRUE(j["nuova"].get<bool>());
    EXPECT_TRUE(j["anno_aggiunto"].get<bool>());
    EXPECT_TRUE(j["domande"].empty());
    EXPECT_EQ(j["numeri"][54], 55);
    {
        const archives::Archivio a = archives::Archivio::Apri(cartella_);
        EXPECT_EQ(a.NumeroAnni(), anni + 1);
        EXPECT_EQ(a.LeggiEstrazione(n + 1).Numero(11, 5), 55);
    }

    // Refusals and unanswered questions write nothing.
    std::string uguali = testo;
    uguali.replace(uguali.find(" 7 "), 3, " 6 ");
    AttesiRifiuti(
        cartella_,
        {
            {{"inserisci", uguali}, "Ci sono numeri uguali su stessa ruota. Memorizzi ugualmente ?"},
            {{"inserisci", "1 2 3 4 5 6 7 8 9 10"}, "Mancano alcuni numeri. Memorizzi ugualmente ?"},
            {{"inserisci", testo, "--data", "30/12/2025"}, "L'estrazione del 30/12/2025 è già in archivio"},
            {{"inserisci", testo, "--data", "31/12/2025"}, "In archivio non c'è un'estrazione del 31/12/2025"},
            {{"inserisci", testo, "--data", "1/2/2026"}, "Inserire la data nel formato GG/MM/AAAA !"},
            {{"inserisci", testo, "--data", "30/02/2026"}, "Inserire la data nel formato GG/MM/AAAA !"},
            {{"inserisci", "12 34 56 91 22 33 44 55", "--conferma"},
             "Valori incongruenti - Non è possibile decodificare"},
            {{"inserisci", "1 2 3", "--conferma"}, "Testo troppo corto"},
            {{"inserisci", "nessun numero qui", "--conferma"}, "Il testo non contiene numeri."},
            {{"inserisci", "1 2 3 4 5 6 7 8", "--super", "--data", "01/01/2020"}, "In archivio non c'è"},
        },
        [&](const std::vector<std::string>& a) { return Su(a); });

    // Yes to the question: stored, and the question said on the way.
    e = Su({"inserisci", uguali, "--conferma"});
    ASSERT_EQ(e.codice, 0) << e.err;
    EXPECT_NE(e.out.find("Ci sono numeri uguali su stessa ruota. Memorizzi ugualmente ?  Sì"), std::string::npos)
        << e.out;
    EXPECT_NE(
        e.out.find("Estrazione n.2 del sabato 03/01/2026 memorizzata (progressivo " + std::to_string(n + 2) + ")"),
        std::string::npos)
        << e.out;

    // The correction of a stored draw: the year index does not move.
    const std::string indiceAnni = LeggiFile(cartella_ / "Archivi/anni.ind");
    e = Su({"--json", "inserisci", "90 89 88 87 86", "--data", "01/01/2026", "--conferma"});
    ASSERT_EQ(e.codice, 0) << e.err;
    j = json::parse(e.out);
    EXPECT_FALSE(j["nuova"].get<bool>());
    EXPECT_EQ(j["indice"], n + 1);
    EXPECT_EQ(j["domande"].size(), 1u);
    EXPECT_EQ(LeggiFile(cartella_ / "Archivi/anni.ind"), indiceAnni);
    {
        const archives::Archivio a = archives::Archivio::Apri(cartella_);
        EXPECT_EQ(a.NumeroEstrazioni(), n + 2);
        EXPECT_EQ(a.LeggiEstrazione(n + 1).Numero(1, 1), 90);
        EXPECT_EQ(a.LeggiEstrazione(n + 1).Numero(2, 1), 6);  // the later boxes keep the stored numbers
    }

    // SuperEnalotto, on a date of its own choosing.
    const int32_t s = prima.NumeroEstrazioniSuper();
    e = Su({"--json", "inserisci", "3 14 15 22 65 35 jolly 8 superstar 9", "--super", "--data", "02/01/2026"});
    ASSERT_EQ(e.codice, 0) << e.err;
    j = json::parse(e.out);
    EXPECT_EQ(j["gioco"], "superenalotto");
    EXPECT_EQ(j["indice"], s + 1);
    EXPECT_EQ(j["numeri"], json::array({3, 14, 15, 22, 65, 35, 8, 9}));
    EXPECT_EQ(Su({"info"}).codice, 0);
}

}  // namespace
}  // namespace gorgo
