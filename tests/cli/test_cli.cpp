// The real gorgo-cli binary: outputs, exit codes, and that a refusal changes nothing.

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <fmt/format.h>
#include <fstream>
#include <nlohmann/json.hpp>

#include "archives/archivio.h"
#include "support/archivi_reali.h"
#include "support/cartelle.h"

namespace gorgo {
namespace {

namespace fs = std::filesystem;
using nlohmann::json;
using test::CartellaTemporanea;
using test::LeggiFile;

struct Esito {
    int codice = -1;
    std::string out, err;
};

std::string Quota(const std::string& s) {
    std::string q(1, '\'');
    for (char c : s) {
        if (c == '\'')
            q.append("'\\''");
        else
            q.push_back(c);
    }
    q.push_back('\'');
    return q;
}

Esito Esegui(const std::vector<std::string>& argomenti) {
    const char* cli = std::getenv("GORGO_CLI");
    EXPECT_NE(cli, nullptr) << "GORGO_CLI non impostata";
    CartellaTemporanea tmp;
    std::string comando = Quota(cli ? cli : "gorgo-cli");
    for (const auto& a : argomenti) comando.append(" ").append(Quota(a));
    comando.append(" 2>").append(Quota((tmp / "err").string()));
    Esito e;
    FILE* p = ::popen(comando.c_str(), "r");
    std::array<char, 4096> buf{};
    size_t n;
    while ((n = std::fread(buf.data(), 1, buf.size(), p)) > 0) e.out.append(buf.data(), n);
    const int stato = ::pclose(p);
    e.codice = WIFEXITED(stato) ? WEXITSTATUS(stato) : -1;
    e.err = LeggiFile(tmp / "err");
    return e;
}

// Every byte of a program folder, to prove a refusal wrote nothing.
std::string Istantanea(const fs::path& cartella) {
    std::string s;
    if (!fs::exists(cartella)) return s;
    for (const auto& f : fs::recursive_directory_iterator(cartella))
        if (f.is_regular_file()) s += f.path().string() + "\n" + LeggiFile(f.path()) + "\n";
    return s;
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
    const Archivio a = Archivio::Apri(cartella_);
    json info = json::parse(Su({"--json", "info"}).out);
    EXPECT_TRUE(info["demo"].get<bool>());
    EXPECT_EQ(info["lotto"]["estrazioni"], a.NumeroEstrazioni());
    EXPECT_EQ(info["lotto"]["ultima"],
              fmt::format("n.{} del 30/12/2025", a.LeggiEstrazione(a.NumeroEstrazioni()).NumeroAnno));
    EXPECT_EQ(info["superenalotto"]["estrazioni"], a.NumeroEstrazioniSuper());
    EXPECT_EQ(info["restrizioni"], json::array({"Nessuna"}));
    EXPECT_NE(Su({"info"}).out.find("ARCHIVIO DIMOSTRATIVO"), std::string::npos);

    const json e = json::parse(Su({"--json", "estrazione", "7441"}).out);
    const RecordEstrazione r = a.LeggiEstrazione(7441);
    EXPECT_EQ(e["data"], r.dataTesto());
    EXPECT_EQ(e["giorno"], r.giornoSettimana());
    ASSERT_EQ(e["ruote"].size(), 11u);
    for (int w = 1; w <= 11; ++w)
        for (int p = 1; p <= 5; ++p) EXPECT_EQ(e["ruote"][static_cast<size_t>(w - 1)][static_cast<size_t>(p - 1)], r.Numero(w, p));
    // The same draw by its date.
    EXPECT_EQ(json::parse(Su({"--json", "estrazione", r.dataTesto()}).out)["indice"], 7441);

    const json d = json::parse(Su({"--json", "data", "31/12/1999", "--precedente"}).out);
    EXPECT_EQ(d["data"], "29/12/1999");
    const json dieci = json::parse(Su({"--json", "dieci", "1"}).out);
    EXPECT_EQ(dieci["esito"], -1);
    EXPECT_EQ(json::parse(Su({"--json", "dieci", "10000"}).out)["numeri"].size(), 20u);
    const json s = json::parse(Su({"--json", "super", "1"}).out);
    EXPECT_EQ(s["data"], a.DataEstrazione(1, ArchivioSuper));
    EXPECT_EQ(s["numeri"].size(), 6u);
}

TEST_F(Cli, InputRifiutatoNonScriveNulla) {
    const std::string prima = Istantanea(cartella_);
    struct Caso {
        std::vector<std::string> argomenti;
        std::string messaggio;
    };
    const std::string lungo(1200, 'x');
    const Caso casi[] = {
        {{"data", "1/1/2000"}, "Inserire la data nel formato GG/MM/AAAA !"},
        {{"data", "31/02/2000"}, "Inserire la data nel formato GG/MM/AAAA !"},
        {{"data", "01/01/1850"}, "La data non può essere inferiore alla data inizio gestione archivi (07/01/1871)"},
        {{"data", "31/12/2025"}, "La data non può essere superiore alla data ultima estrazione inserita (30/12/2025)"},
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
    };
    for (const Caso& c : casi) {
        const Esito e = Su(c.argomenti);
        EXPECT_EQ(e.codice, 2) << c.argomenti[0] << " " << e.err;
        EXPECT_NE(e.err.find(c.messaggio), std::string::npos) << c.argomenti[0] << ": " << e.err;
        EXPECT_TRUE(e.out.empty()) << e.out;
    }
    EXPECT_EQ(Istantanea(cartella_), prima);
}

TEST_F(Cli, ArchiviDanneggiatiRifiutati) {
    const fs::path archivi = cartella_ / "Archivi";
    auto prova = [&](const char* attesa) {
        const std::string prima = Istantanea(cartella_);
        for (const char* comando : {"info", "estrazione", "data"}) {
            std::vector<std::string> a = {comando};
            if (std::string(comando) == "estrazione") a.push_back("1");
            if (std::string(comando) == "data") a.push_back("07/01/1871");
            const Esito e = Su(a);
            EXPECT_EQ(e.codice, 2) << comando;
            EXPECT_NE(e.err.find(attesa), std::string::npos) << e.err;
        }
        EXPECT_EQ(Istantanea(cartella_), prima);
    };
    const auto lunghezza = fs::file_size(archivi / "Estrazioni.ind");
    fs::resize_file(archivi / "Estrazioni.ind", lunghezza - 10);
    prova("non è un multiplo di 66");
    fs::resize_file(archivi / "Estrazioni.ind", lunghezza);
    fs::resize_file(archivi / "anni.ind", fs::file_size(archivi / "anni.ind") - 12);
    prova("non corrisponde alle estrazioni");
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
    const Archivio a = Archivio::Apri(cartella_);
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
    const json e = json::parse(Su({"--json", "costruttore", "--valore", "27", "--ruote-ricerca", "tutte", "--ruote-gioco",
                                   "tutte", "--indice-mese", "tutti", "--da", "01/01/2024"})
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
    const std::vector<std::string> ricerca = {"costruttore", "--valore", "27", "--ruote-ricerca", "tutte",
                                              "--indice-mese", "tutti", "--da", "01/01/2024", "--report", report};
    ASSERT_EQ(Su(ricerca).codice, 0);
    const std::string testo = LeggiFile(report);
    EXPECT_EQ(testo.rfind("Gorgo 2 - Ideato da Sergio Tordelli\r\n\r\nIntervallo di ricerca         : dal ", 0), 0u);
    EXPECT_NE(testo.find("\r\nSpia                          : Numero spia 27 in qualsiasi posizione\r\n"),
              std::string::npos);
    const size_t righe = e["righe"].size();
    size_t algoritmi = 0;
    for (size_t p = testo.find("Algoritmo: "); p != std::string::npos; p = testo.find("Algoritmo: ", p + 1)) ++algoritmi;
    EXPECT_EQ(algoritmi, righe);
    EXPECT_NE(testo.find("Pres./quantit\xE0: "), std::string::npos);  // Windows-1252 on disk
    r = Su(ricerca);
    EXPECT_EQ(r.codice, 2);
    EXPECT_NE(r.err.find("Le informazioni vanno aggiunte in calce ?"), std::string::npos);
    EXPECT_EQ(LeggiFile(report), testo);
    auto accoda = ricerca;
    accoda.push_back("--accoda");
    ASSERT_EQ(Su(accoda).codice, 0);
    EXPECT_EQ(LeggiFile(report), testo + testo);
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
    const std::vector<std::string> ricerca = {"--valore", "27", "--ruote-ricerca", "tutte", "--ruote-gioco", "tutte",
                                              "--indice-mese", "tutti", "--da", "01/01/2024"};
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
    const std::string prima = Istantanea(cartella_);
    struct Caso {
        std::vector<std::string> argomenti;
        std::string messaggio;
    };
    const Caso casi[] = {
        {{"verifica", "--chiave", "123"}, "Calcolo impossibile: algoritmo mancante."},
        {{"verifica", "--chiave", chiave, "--tipo", "terzine-ambo"}, "Calcolo impossibile: "},
        {{"verifica", "--chiave", chiave, "--colpi", "0"}, "Inserire il n. di colpi di gioco !"},
        {{"previsioni", "--chiave", chiave, "--chiave", "1"}, "Calcolo impossibile: algoritmo mancante."},
        {{"previsioni", "--chiave", chiave, "--tipo", "codici", "--terzine", (c_.percorso() / "manca.txt").string()},
         "manca.txt"},
        {{"verifica"}, "Manca il parametro obbligatorio"},
    };
    for (const Caso& k : casi) {
        const Esito e = con(k.argomenti);
        EXPECT_EQ(e.codice, 2) << k.argomenti[0] << " " << e.err;
        EXPECT_NE(e.err.find(k.messaggio), std::string::npos) << e.err;
        EXPECT_TRUE(e.out.empty()) << e.out;
    }
    EXPECT_EQ(Istantanea(cartella_), prima);
}

}  // namespace
}  // namespace gorgo
