// The Internet update and the download of the public archive: the sieve and its messages, the
// HTTP client against a server of the test's own on 127.0.0.1, and gorgo-cli scarica on copies
// of the real archives (a refused download leaves them as they were, byte for byte).

#include <gtest/gtest.h>

#include <fmt/format.h>
#include <sys/wait.h>
#include <QCoreApplication>
#include <algorithm>
#include <array>
#include <cstdio>
#include <fstream>
#include <nlohmann/json.hpp>

#include "archives/archivio.h"
#include "config/impostazioni.h"
#include "maintenance/internet.h"
#include "maintenance/server_locale.h"
#include "network/scaricatore.h"
#include "support/archivi_reali.h"
#include "support/cartelle.h"
#include "support/cli.h"

namespace gorgo::maintenance {
namespace {

namespace fs = std::filesystem;
using test::CartellaTemporanea;
using test::LeggiFile;
using test::Risposta;
using test::ServerLocale;

std::span<const uint8_t> Byte(const std::string& s) { return {reinterpret_cast<const uint8_t*>(s.data()), s.size()}; }

// A body of `n` bytes of binary filler that holds none of the trigger words.
std::string Riempimento(std::size_t n) {
    std::string s(n, '\0');
    for (std::size_t i = 0; i < n; ++i) s[i] = static_cast<char>(0x80 + i % 64);
    return s;
}

// The update files beside the real archives.
std::optional<fs::path> Aggiornamenti() {
    const auto reale = test::CartellaReale();
    if (!reale) return std::nullopt;
    const fs::path a = reale->parent_path() / "aggiornamenti";
    if (!fs::exists(a / "AggiornamentoPz.bin") || !fs::exists(a / "storico-2026.txt")) return std::nullopt;
    return a;
}

// gorgo-cli as a child process; it talks to the test's server from there.
using test::Esegui;
using test::Esito;

std::string Archivi(const fs::path& cartella) {
    std::string s;
    for (const char* nome : {"Estrazioni.ind", "anni.ind", "SuperEnalotto.ind"})
        s += LeggiFile(cartella / "Archivi" / nome) + "|";
    return s;
}

// Every test of the suite shares one fixture: the application object that Qt Network needs
// (the test program has none of its own), only loopback traffic, and a server of its own.
class Internet : public ::testing::Test {
protected:
    static void SetUpTestSuite() {
        test::SoloLoopback();
        if (!QCoreApplication::instance()) {
            static int argc = 1;
            static char nome[] = "test_maintenance";
            static char* argv[] = {nome, nullptr};
            static QCoreApplication app(argc, argv);
        }
    }
    // A copy of the real archives for the command line; false when the test cannot run.
    bool PreparaCartella() {
        if (!std::getenv("GORGO_CLI")) return false;
        const auto reale = test::CartellaReale();
        agg_ = Aggiornamenti();
        if (!reale || !agg_) return false;
        cartella_ = c_ / "gorgo";
        test::CopiaArchiviReali(*reale, cartella_);
        return true;
    }
    void Url(const std::string& chiave, const std::string& valore) {
        const Esito e = Su({"impostazione", "Options", chiave, valore});
        ASSERT_EQ(e.codice, 0) << e.err;
    }
    Esito Su(std::vector<std::string> argomenti) {
        argomenti.insert(argomenti.begin(), {"--cartella", cartella_.string()});
        return Esegui(argomenti);
    }

    ServerLocale server_{24, std::chrono::seconds(120)};
    CartellaTemporanea c_;
    fs::path cartella_;
    std::optional<fs::path> agg_;
};

#define RICHIEDI_CARTELLA()                                    \
    if (!test::CartellaReale()) GORGO_ARCHIVI_REALI_ASSENTI(); \
    if (!PreparaCartella()) GTEST_SKIP() << "gorgo-cli (GORGO_CLI) o file di aggiornamento assenti"

// ---- The sieve and the steps after the fetch -------------------------------------------

TEST_F(Internet, NomiIndirizziECopiaLocale) {
    EXPECT_EQ(NomeRemoto(Gioco::Lotto), "AggiornamentoPz.bin");
    EXPECT_EQ(NomeRemoto(Gioco::SuperEnalotto), "AggiornamentoSuperEnalotto.bin");
    EXPECT_EQ(IndirizzoAggiornamento("http://esempio.it/agg/", Gioco::Lotto),
              "http://esempio.it/agg/AggiornamentoPz.bin");
    // Without the final "/" the name joins the host's name and fails at the server.
    EXPECT_EQ(IndirizzoAggiornamento("http://esempio.it", Gioco::SuperEnalotto),
              "http://esempio.itAggiornamentoSuperEnalotto.bin");
    EXPECT_EQ(CopiaLocale("/opt/gorgo", Gioco::Lotto), fs::path("/opt/gorgo/AggiornamentoPz.bin"));
    EXPECT_EQ(CopiaLocale("/opt/gorgo", Gioco::SuperEnalotto), fs::path("/opt/gorgo/AggiornamentoSuperEnalotto.bin"));
}

TEST_F(Internet, TestiDegliStati) {
    EXPECT_EQ(TestoStato(1), "Ricerca IP...");
    EXPECT_EQ(TestoStato(2), "IP trovato...");
    EXPECT_EQ(TestoStato(3), "Connessione...");
    EXPECT_EQ(TestoStato(4), "Connesso...");
    EXPECT_EQ(TestoStato(7), "Scarico il file...");
    EXPECT_EQ(TestoStato(12), "Finito");
    for (int s : {0, 5, 6, 8, 9, 10, 11, 13}) EXPECT_FALSE(TestoStato(s)) << s;
    EXPECT_EQ(TestoStatoErrore("Connessione...", 1, "connessione rifiutata dal server"),
              "Connessione...Errore di connessione 1 : connessione rifiutata dal server");
    EXPECT_EQ(DomandaAllineamento(Gioco::Lotto, "21/08/2026").testo,
              "E' disponibile l'aggiornamento estrazioni al 21/08/2026. Confermi allineamento archivio locale ?");
    EXPECT_EQ(DomandaAllineamento(Gioco::SuperEnalotto, "07/04/2026").testo,
              "E' disponibile l'aggiornamento estrazioni Superenalotto al 07/04/2026. Confermi allineamento archivio "
              "locale ?");
    EXPECT_EQ(DomandaAllineamento(Gioco::Lotto, "").titolo, "Aggiornamento estrazioni");
}

TEST_F(Internet, SetaccioDeiPrimi150Byte) {
    const std::string pagina = "<!DOCTYPE html><html><body>Pagina</body></html>" + std::string(200, ' ');
    EXPECT_EQ(Setaccio(Byte(pagina), Gioco::Lotto), EsitoSetaccio::PaginaNonTrovata);
    EXPECT_EQ(Setaccio(Byte("<HTML>" + Riempimento(200)), Gioco::SuperEnalotto), EsitoSetaccio::PaginaNonTrovata);
    // "404" and "407" in binary data count, with NUL bytes before them.
    std::string b = Riempimento(300);
    b[3] = '\0';
    b.replace(100, 3, "404");
    EXPECT_EQ(Setaccio(Byte(b), Gioco::Lotto), EsitoSetaccio::PaginaNonTrovata);
    b = Riempimento(300);
    b[3] = '\0';
    b.replace(147, 3, "407");
    EXPECT_EQ(Setaccio(Byte(b), Gioco::Lotto), EsitoSetaccio::ProxyAutenticazione);
    // The SuperEnalotto twin has no rule for 407.
    EXPECT_EQ(Setaccio(Byte(b), Gioco::SuperEnalotto), EsitoSetaccio::Nessuno);
    // Past the 150th byte nothing is read.
    b = Riempimento(300);
    b.replace(148, 3, "407");
    EXPECT_EQ(Setaccio(Byte(b), Gioco::Lotto), EsitoSetaccio::Nessuno);
    // The first rule decides: a proxy's HTML page is a page.
    EXPECT_EQ(Setaccio(Byte("407 Proxy <html>" + Riempimento(200)), Gioco::Lotto), EsitoSetaccio::PaginaNonTrovata);
    for (const char* need : {"Need", "NEED", "need"})
        EXPECT_EQ(Setaccio(Byte(std::string(need) + Riempimento(200)), Gioco::Lotto), EsitoSetaccio::IndirizzoErrato);
    // Case as written: "Html" and "nEED" pass.
    EXPECT_EQ(Setaccio(Byte("Html nEED" + Riempimento(200)), Gioco::Lotto), EsitoSetaccio::Nessuno);
    EXPECT_EQ(Setaccio(Byte(Riempimento(660)), Gioco::Lotto), EsitoSetaccio::Nessuno);

    EXPECT_EQ(MessaggioSetaccio(EsitoSetaccio::PaginaNonTrovata).testo,
              "File non trovato sul server - Verificare l'indirizzo internet");
    EXPECT_EQ(MessaggioSetaccio(EsitoSetaccio::ProxyAutenticazione).testo,
              "Il server proxy richiede l'autenticazione - Aggiornamento impossibile");
    EXPECT_EQ(MessaggioSetaccio(EsitoSetaccio::IndirizzoErrato).testo,
              "File non trovato - Controllare l'indirizzo internet nel menù opzioni");
    EXPECT_EQ(MessaggioSetaccio(EsitoSetaccio::PaginaNonTrovata).titolo, "Aggiornamento archivi");
    EXPECT_EQ(MessaggioSetaccio(EsitoSetaccio::PaginaNonTrovata).icona, archives::Icona::Stop);
    EXPECT_TRUE(MessaggioSetaccio(EsitoSetaccio::Nessuno).vuoto());
}

TEST_F(Internet, UnFileVeroPassaIlSetaccioMaUnaDataDel14Aprile2005No) {
    if (!test::CartellaReale()) GORGO_ARCHIVI_REALI_ASSENTI();
    const auto agg = Aggiornamenti();
    if (!agg) GTEST_SKIP() << "file di aggiornamento assenti";
    const std::string vero = LeggiFile(*agg / "AggiornamentoPz.bin");
    EXPECT_EQ(Setaccio(Byte(vero), Gioco::Lotto), EsitoSetaccio::Nessuno);
    // The quirk stays: the digits of 14/04/2005 in the first record read as "404".
    std::string strano = vero;
    strano.replace(3, 8, "14042005");
    EXPECT_EQ(Setaccio(Byte(strano), Gioco::Lotto), EsitoSetaccio::PaginaNonTrovata);
}

Scaricamento Completo(const std::string& corpo, int stato = 200, std::string testo = "OK") {
    Scaricamento s;
    s.corpo = Byte(corpo);
    s.indirizzo = "http://127.0.0.1:9/AggiornamentoPz.bin";
    s.statoHttp = stato;
    s.testoHttp = std::move(testo);
    s.completo = true;
    return s;
}

TEST_F(Internet, ValutazioneDelloScaricamento) {
    const fs::path copia = "/tmp/gorgo/AggiornamentoPz.bin";
    // 151 bytes or fewer, whatever they say: a connection error, nothing written.
    for (const std::string& corto : {Riempimento(151), "<html>" + Riempimento(145), std::string()}) {
        const auto v = ValutaScaricamento(Completo(corto), Gioco::Lotto, copia);
        EXPECT_EQ(v.esito, EsitoScaricamento::ErroreConnessione);
        EXPECT_EQ(v.stato, "Errore di connessione: verificare Url");
        EXPECT_FALSE(v.scriviCopiaLocale);
        EXPECT_TRUE(v.messaggio.vuoto());
        EXPECT_NE(v.dettaglio.find("127.0.0.1:9/AggiornamentoPz.bin"), std::string::npos) << v.dettaglio;
    }
    // 152 bytes are looked at: no multiple of 66, so ErrFile on the local copy.
    auto v = ValutaScaricamento(Completo(Riempimento(152)), Gioco::Lotto, copia);
    EXPECT_EQ(v.esito, EsitoScaricamento::FileCorrotto);
    EXPECT_TRUE(v.scriviCopiaLocale);
    EXPECT_EQ(v.messaggio.testo, "/tmp/gorgo/AggiornamentoPz.bin corrotto o mancante !");
    EXPECT_EQ(v.messaggio.titolo, "Errore");
    v = ValutaScaricamento(Completo(Riempimento(198)), Gioco::Lotto, copia);
    EXPECT_EQ(v.esito, EsitoScaricamento::Pronto);
    EXPECT_TRUE(v.scriviCopiaLocale);
    EXPECT_TRUE(v.messaggio.vuoto());
    EXPECT_TRUE(v.stato.empty());
    // 20-byte records for SuperEnalotto.
    EXPECT_EQ(ValutaScaricamento(Completo(Riempimento(160)), Gioco::SuperEnalotto, copia).esito,
              EsitoScaricamento::Pronto);
    EXPECT_EQ(ValutaScaricamento(Completo(Riempimento(198)), Gioco::SuperEnalotto, copia).esito,
              EsitoScaricamento::FileCorrotto);

    // A page of 200 bytes: the message, with the local copy written first.
    const std::string pagina = "<html><body>Not here</body></html>" + std::string(166, ' ');
    v = ValutaScaricamento(Completo(pagina), Gioco::Lotto, copia);
    EXPECT_EQ(v.esito, EsitoScaricamento::PaginaNonTrovata);
    EXPECT_TRUE(v.scriviCopiaLocale);
    EXPECT_EQ(v.messaggio.testo, "File non trovato sul server - Verificare l'indirizzo internet");

    // A body cut short is never used, even when it has the right size.
    Scaricamento troncato = Completo(Riempimento(660));
    troncato.completo = false;
    troncato.erroreRete =
        "Scaricamento da http://127.0.0.1:9/AggiornamentoPz.bin interrotto: ricevuti 660 byte su 8910";
    v = ValutaScaricamento(troncato, Gioco::Lotto, copia);
    EXPECT_EQ(v.esito, EsitoScaricamento::ErroreConnessione);
    EXPECT_FALSE(v.scriviCopiaLocale);
    EXPECT_EQ(v.dettaglio, troncato.erroreRete);

    Scaricamento annullato = Completo(Riempimento(660));
    annullato.annullato = true;
    v = ValutaScaricamento(annullato, Gioco::Lotto, copia);
    EXPECT_EQ(v.esito, EsitoScaricamento::Annullato);
    EXPECT_EQ(v.stato, "Azione annullata");
    EXPECT_FALSE(v.scriviCopiaLocale);

    // An error status: its page goes to the sieve; without a trigger word it is refused all the same.
    v = ValutaScaricamento(Completo("404 Not Found" + Riempimento(200), 404, "Not Found"), Gioco::Lotto, copia);
    EXPECT_EQ(v.esito, EsitoScaricamento::PaginaNonTrovata);
    EXPECT_NE(v.dettaglio.find("HTTP 404 Not Found"), std::string::npos);
    v = ValutaScaricamento(
        Completo("Proxy Authentication Required (407)" + Riempimento(200), 407, "Proxy Authentication Required"),
        Gioco::Lotto, copia);
    EXPECT_EQ(v.esito, EsitoScaricamento::ProxyAutenticazione);
    EXPECT_EQ(v.messaggio.testo, "Il server proxy richiede l'autenticazione - Aggiornamento impossibile");
    v = ValutaScaricamento(Completo(Riempimento(660), 500, "Internal Server Error"), Gioco::Lotto, copia);
    EXPECT_EQ(v.esito, EsitoScaricamento::ErroreHttp);
    EXPECT_EQ(v.stato, "Errore di connessione: verificare Url");
    EXPECT_EQ(v.dettaglio,
              "http://127.0.0.1:9/AggiornamentoPz.bin: il server ha risposto HTTP 500 Internal Server Error");
    v = ValutaScaricamento(Completo("x", 404, "Not Found"), Gioco::SuperEnalotto, copia);
    EXPECT_EQ(v.esito, EsitoScaricamento::ErroreConnessione);
    EXPECT_NE(v.dettaglio.find("HTTP 404 Not Found"), std::string::npos);
}

TEST_F(Internet, CopiaLocaleSostituitaPerIntero) {
    CartellaTemporanea c;
    const fs::path copia = c / "AggiornamentoPz.bin";
    std::ofstream(copia, std::ios::binary) << std::string(5000, 'v');
    EXPECT_FALSE(ScriviCopiaLocale(copia, Byte("nuovo")));
    EXPECT_EQ(LeggiFile(copia), "nuovo");
    EXPECT_FALSE(fs::exists(c / "AggiornamentoPz.bin.parziale"));
    const std::error_code e = ScriviCopiaLocale(c / "manca" / "AggiornamentoPz.bin", Byte("x"));
    EXPECT_TRUE(e);
    EXPECT_NE(MessaggioCopiaLocale(c / "manca" / "AggiornamentoPz.bin", e).testo.find("Impossibile scrivere il file"),
              std::string::npos);
    EXPECT_EQ(MessaggioErroreSuper(13, "Impossibile scrivere il file", 7, "/g/AggiornamentoSuperEnalotto.bin", 4000),
              "Errore n. 13 Impossibile scrivere il file dopo il passaggio n. 7 in routine agg. superenalotto da "
              "internet!\nNome file: /g/AggiornamentoSuperEnalotto.bin\nDimensioni file: 4000");
}

// The engine of both faces: the question comes back as a result; No writes nothing, Yes
// appends; a refused page replaces the local copy all the same.
TEST_F(Internet, LaDomandaTornaComeRisultatoEPoiLaRisposta) {
    const auto reale = test::CartellaReale();
    agg_ = Aggiornamenti();
    if (!reale || !agg_) GTEST_SKIP() << "archivi reali assenti";
    cartella_ = c_ / "motore";
    test::CopiaArchiviReali(*reale, cartella_);
    const fs::path copia = CopiaLocale(cartella_, Gioco::Lotto);
    const std::string buono = LeggiFile(*agg_ / "AggiornamentoPz.bin");
    const std::string prima = Archivi(cartella_);
    archives::Archivio a = archives::Archivio::Apri(cartella_, archives::ModoApertura::Scrittura);

    const std::string pagina = "<html>404</html>" + Riempimento(200);
    EsitoInternet e = AggiornamentoInternet(a, Completo(pagina), Gioco::Lotto, copia, RispostaAllineamento::Si);
    EXPECT_EQ(e.stato, StatoInternet::Rifiutato);
    EXPECT_EQ(e.messaggio.testo, testi::NonTrovatoSulServer);
    EXPECT_EQ(LeggiFile(copia), pagina);
    e = AggiornamentoInternet(a, Completo(Riempimento(100)), Gioco::Lotto, copia);
    EXPECT_EQ(e.testoStato, testi::ErroreConnessione);
    EXPECT_EQ(LeggiFile(copia), pagina);

    e = AggiornamentoInternet(a, Completo(buono), Gioco::Lotto, copia);
    ASSERT_EQ(e.stato, StatoInternet::Domanda) << e.messaggio.testo;
    EXPECT_EQ(e.messaggio.testo, DomandaAllineamento(Gioco::Lotto, "21/08/2026").testo);
    EXPECT_EQ(e.testoStato, testi::FineConnessione);
    EXPECT_EQ(LeggiFile(copia), buono);
    EXPECT_EQ(AggiornamentoInternet(a, Completo(buono), Gioco::Lotto, copia, RispostaAllineamento::No).stato,
              StatoInternet::NonConfermato);
    EXPECT_EQ(Archivi(cartella_), prima);

    e = AggiornamentoDaCopiaLocale(a, buono, Gioco::Lotto, copia, RispostaAllineamento::Si);
    ASSERT_EQ(e.stato, StatoInternet::Aggiornato) << e.messaggio.testo;
    EXPECT_EQ(e.aggiornamento.aggiunte, 134);
    EXPECT_EQ(e.messaggio.testo, "Aggiornamento archivi al 21/08/2026 effettuato");
    EXPECT_EQ(a.NumeroEstrazioni(), 10913);
    e = AggiornamentoInternet(a, Completo(buono), Gioco::Lotto, copia);
    EXPECT_EQ(e.stato, StatoInternet::NienteDiNuovo);
    EXPECT_EQ(e.messaggio.testo, TestoNienteDiNuovo);
}

TEST_F(Internet, ControlloDellArchivioStoricoScaricato) {
    CartellaTemporanea c;
    const std::string testo = "2026/01/02\tBA\t1\t2\t3\t4\t5\n";
    const std::string zip = test::CreaZip(c.percorso(), {{"storico-2026.txt", testo}});
    auto k = ControllaScaricamentoStorico(Completo(zip));
    EXPECT_TRUE(k.valido) << k.messaggio.testo;
    EXPECT_TRUE(k.zip);
    k = ControllaScaricamentoStorico(Completo(testo));
    EXPECT_TRUE(k.valido);
    EXPECT_FALSE(k.zip);

    k = ControllaScaricamentoStorico(Completo("<!DOCTYPE html><html>Il file si è spostato</html>"));
    EXPECT_FALSE(k.valido);
    EXPECT_EQ(
        k.messaggio.testo.rfind("Il file scaricato non è un archivio zip né un file di testo delle estrazioni", 0), 0u);
    EXPECT_NE(k.messaggio.testo.find("127.0.0.1:9/AggiornamentoPz.bin: il server ha inviato una pagina HTML"),
              std::string::npos);
    k = ControllaScaricamentoStorico(Completo(std::string("\x01\x02\0\x03", 4)));
    EXPECT_FALSE(k.valido);
    EXPECT_NE(k.dettaglio.find("contenuto binario"), std::string::npos);
    k = ControllaScaricamentoStorico(Completo("PK\x03\x04 rotto" + Riempimento(100)));
    EXPECT_FALSE(k.valido);
    EXPECT_TRUE(k.zip);
    EXPECT_EQ(k.messaggio.testo.rfind("Il file scaricato non è un archivio zip valido", 0), 0u);

    k = ControllaScaricamentoStorico(Completo("Not Found", 404, "Not Found"));
    EXPECT_FALSE(k.valido);
    EXPECT_NE(
        k.messaggio.testo.find("http://127.0.0.1:9/AggiornamentoPz.bin: il server ha risposto HTTP 404 Not Found"),
        std::string::npos);
    EXPECT_EQ(k.messaggio.titolo, "Archivio storico");
    Scaricamento cut = Completo(zip);
    cut.completo = false;
    cut.erroreRete = "Scaricamento da x interrotto: ricevuti 10 byte su 20";
    k = ControllaScaricamentoStorico(cut);
    EXPECT_FALSE(k.valido);
    EXPECT_NE(k.messaggio.testo.find("interrotto"), std::string::npos);
    EXPECT_FALSE(ControllaScaricamentoStorico(Completo("")).valido);
}

TEST_F(Internet, ImpostazioneUrlStorico) {
    using config::ControllaValoreImpostazione;
    EXPECT_EQ(config::Predefinito("Options", "UrlStorico"), "");
    EXPECT_TRUE(ControllaValoreImpostazione("Options", "UrlStorico", "https://esempio.it/storico.zip").vuoto());
    EXPECT_TRUE(ControllaValoreImpostazione("options", "urlstorico", "http://127.0.0.1:8080/s.txt").vuoto());
    EXPECT_TRUE(ControllaValoreImpostazione("Options", "UrlStorico", "").vuoto());
    for (const char* no : {"ftp://esempio.it/s.zip", "esempio.it/s.zip", "http:/x", "http://a b"})
        EXPECT_NE(ControllaValoreImpostazione("Options", "UrlStorico", no).testo.find("http:// oppure https://"),
                  std::string::npos)
            << no;
}

// ---- The HTTP client on 127.0.0.1 -------------------------------------------------------

TEST_F(Internet, ScaricatoreFileInteroStatiInOrdine) {
    const std::string corpo = Riempimento(8910);
    server_.Imposta("/AggiornamentoPz.bin", Risposta(200, "OK", corpo));
    network::Scaricatore s;
    std::vector<int> stati;
    QObject::connect(&s, &network::Scaricatore::statoCambiato,
                     [&](int stato, int, const QString&) { stati.push_back(stato); });
    const network::RisultatoScaricamento r =
        s.Scarica(QString::fromStdString(server_.Indirizzo("/AggiornamentoPz.bin")));
    EXPECT_TRUE(r.riuscito()) << r.errore.toStdString();
    EXPECT_TRUE(r.completo);
    EXPECT_EQ(r.statoHttp, 200);
    EXPECT_EQ(r.corpo.toStdString(), corpo);
    EXPECT_TRUE(r.errore.isEmpty());
    EXPECT_EQ(stati, (std::vector<int>{1, 2, 3, 4, 7, 12}));
    EXPECT_FALSE(s.InCorso());
}

TEST_F(Internet, ScaricatoreStatus404CorpoEMotivo) {
    server_.Imposta("/x/AggiornamentoPz.bin", Risposta(404, "Not Found", "<html>404 Not Found</html>"));
    network::Scaricatore s;
    const network::RisultatoScaricamento r =
        s.Scarica(QString::fromStdString(server_.Indirizzo("/x/AggiornamentoPz.bin")));
    EXPECT_TRUE(r.completo);
    EXPECT_FALSE(r.riuscito());
    EXPECT_EQ(r.statoHttp, 404);
    EXPECT_EQ(r.corpo.toStdString(), "<html>404 Not Found</html>");
    EXPECT_EQ(r.errore.toStdString(),
              server_.Indirizzo("/x/AggiornamentoPz.bin") + ": il server ha risposto HTTP 404 Not Found");
}

TEST_F(Internet, ScaricatoreStatus407DaUnServerNonProxy) {
    const std::string corpo = "Proxy Authentication Required 407" + Riempimento(200);
    server_.Imposta("/AggiornamentoPz.bin", Risposta(407, "Proxy Authentication Required", corpo,
                                                     "Proxy-Authenticate: Basic realm=\"prova\"\r\n"));
    network::Scaricatore s;
    const network::RisultatoScaricamento r =
        s.Scarica(QString::fromStdString(server_.Indirizzo("/AggiornamentoPz.bin")));
    EXPECT_TRUE(r.completo);
    EXPECT_EQ(r.statoHttp, 407);
    EXPECT_EQ(r.corpo.toStdString(), corpo);
}

TEST_F(Internet, ScaricatoreCorpoTroncato) {
    const std::string corpo = Riempimento(8910);
    server_.Imposta("/AggiornamentoPz.bin", test::RispostaTroncata(corpo, 4026));
    network::Scaricatore s;
    std::vector<int> stati;
    QObject::connect(&s, &network::Scaricatore::statoCambiato,
                     [&](int stato, int, const QString&) { stati.push_back(stato); });
    const network::RisultatoScaricamento r =
        s.Scarica(QString::fromStdString(server_.Indirizzo("/AggiornamentoPz.bin")));
    EXPECT_FALSE(r.completo);
    EXPECT_FALSE(r.riuscito());
    EXPECT_EQ(r.errore.toStdString(), fmt::format("Scaricamento da {} interrotto: ricevuti 4026 byte su 8910",
                                                  server_.Indirizzo("/AggiornamentoPz.bin")));
    ASSERT_FALSE(stati.empty());
    EXPECT_EQ(stati.back(), maintenance::stati::Errore);
}

TEST_F(Internet, ScaricatoreServerAssente) {
    // A port that was just free: nothing listens there.
    uint16_t porta = 0;
    {
        ServerLocale chiuso(0, std::chrono::seconds(1));
        porta = chiuso.porta();
    }
    network::Scaricatore s;
    int codice = -1;
    QString testo;
    QObject::connect(&s, &network::Scaricatore::statoCambiato, [&](int stato, int c, const QString& t) {
        if (stato == maintenance::stati::Errore) codice = c, testo = t;
    });
    const QString indirizzo = QStringLiteral("http://127.0.0.1:%1/AggiornamentoPz.bin").arg(porta);
    const network::RisultatoScaricamento r = s.Scarica(indirizzo);
    EXPECT_FALSE(r.completo);
    EXPECT_EQ(r.statoHttp, 0);
    EXPECT_EQ(r.errore,
              QStringLiteral("Scaricamento da %1 non riuscito: connessione rifiutata dal server").arg(indirizzo));
    EXPECT_EQ(codice, 1);
    EXPECT_EQ(testo, "connessione rifiutata dal server");
}

TEST_F(Internet, ScaricatoreTempoMassimo) {
    server_.Imposta("/lento", test::RispostaSospesa(Riempimento(8910), 100));
    network::Scaricatore s;
    s.ImpostaTempoMassimo(400);
    const network::RisultatoScaricamento r = s.Scarica(QString::fromStdString(server_.Indirizzo("/lento")));
    EXPECT_FALSE(r.completo);
    EXPECT_TRUE(r.scaduto);
    EXPECT_FALSE(r.annullato);
    EXPECT_NE(r.errore.indexOf("tempo scaduto"), -1) << r.errore.toStdString();
}

TEST_F(Internet, ScaricatoreAnnullaDuranteLoScaricamento) {
    server_.Imposta("/lento", test::RispostaSospesa(Riempimento(8910), 100));
    network::Scaricatore s;
    QObject::connect(&s, &network::Scaricatore::statoCambiato, [&](int stato, int, const QString&) {
        if (stato == maintenance::stati::Scaricamento) s.Annulla();
    });
    const network::RisultatoScaricamento r = s.Scarica(QString::fromStdString(server_.Indirizzo("/lento")));
    EXPECT_TRUE(r.annullato);
    EXPECT_FALSE(r.completo);
    EXPECT_TRUE(r.corpo.isEmpty());
    EXPECT_EQ(ValutaScaricamento(r.PerIlNucleo(), Gioco::Lotto, "/tmp/x").esito, EsitoScaricamento::Annullato);
    // Nothing to cancel afterwards.
    s.Annulla();
    EXPECT_FALSE(s.InCorso());
}

TEST_F(Internet, ScaricatoreSegueIReindirizzamentiEHaUnLimite) {
    const std::string corpo = Riempimento(660);
    server_.Imposta("/nuovo/AggiornamentoPz.bin", Risposta(200, "OK", corpo));
    server_.Imposta("/AggiornamentoPz.bin",
                    Risposta(301, "Moved Permanently", "",
                             "Location: " + server_.Indirizzo("/nuovo/AggiornamentoPz.bin") + "\r\n"));
    network::Scaricatore s;
    network::RisultatoScaricamento r = s.Scarica(QString::fromStdString(server_.Indirizzo("/AggiornamentoPz.bin")));
    EXPECT_TRUE(r.riuscito()) << r.errore.toStdString();
    EXPECT_EQ(r.corpo.toStdString(), corpo);
    EXPECT_EQ(r.indirizzoFinale.toStdString(), server_.Indirizzo("/nuovo/AggiornamentoPz.bin"));

    s.ImpostaLimite(500);
    r = s.Scarica(QString::fromStdString(server_.Indirizzo("/nuovo/AggiornamentoPz.bin")));
    EXPECT_FALSE(r.completo);
    EXPECT_NE(r.errore.indexOf("supera"), -1) << r.errore.toStdString();
}

TEST_F(Internet, ScaricaRifiutiLascianoLArchivioComEraPoiIlFileBuonoAggiorna) {
    RICHIEDI_CARTELLA();
    const std::string buono = LeggiFile(*agg_ / "AggiornamentoPz.bin");
    ASSERT_EQ(buono.size(), 8910u);
    const std::string prima = Archivi(cartella_);
    const std::string pagina =
        "<!DOCTYPE html>\n<html><head><title>Pagina</title></head><body>Il file non c'è</body></html>" +
        std::string(200, ' ');
    struct Caso {
        std::string percorso;
        test::RispostaHttp risposta;
        std::string messaggio;
        std::string dettaglio;
    };
    const std::vector<Caso> casi = {
        {"/troncato/", test::RispostaTroncata(buono, 4026), "Errore di connessione: verificare Url",
         "interrotto: ricevuti 4026 byte su 8910"},
        {"/html/", Risposta(200, "OK", pagina), "File non trovato sul server - Verificare l'indirizzo internet", ""},
        {"/manca/", Risposta(404, "Not Found", "<html><body>404 Not Found</body></html>" + std::string(150, ' ')),
         "File non trovato sul server - Verificare l'indirizzo internet", "HTTP 404 Not Found"},
        {"/proxy/",
         Risposta(407, "Proxy Authentication Required", "Proxy Authentication Required (407)" + Riempimento(200),
                  "Proxy-Authenticate: Basic realm=\"prova\"\r\n"),
         "Il server proxy richiede l'autenticazione - Aggiornamento impossibile", "HTTP 407"},
        {"/corto/", Risposta(200, "OK", buono.substr(0, 151)), "Errore di connessione: verificare Url",
         "ricevuti 151 byte"},
        {"/dispari/", Risposta(200, "OK", buono.substr(0, 67 * 3)), "AggiornamentoPz.bin corrotto o mancante !", ""},
    };
    for (const Caso& c : casi) {
        server_.Imposta(c.percorso + "AggiornamentoPz.bin", c.risposta);
        Url("Url", server_.Indirizzo(c.percorso));
        fs::remove(cartella_ / "AggiornamentoPz.bin");
        const Esito e = Su({"scarica"});
        EXPECT_EQ(e.codice, 2) << c.percorso << "\n" << e.out << e.err;
        EXPECT_NE(e.err.find(c.messaggio), std::string::npos) << c.percorso << ": " << e.err;
        EXPECT_NE(e.err.find(c.dettaglio), std::string::npos) << c.percorso << ": " << e.err;
        EXPECT_EQ(Archivi(cartella_), prima) << c.percorso;
        // Any whole body long enough replaces the local copy before the sieve, as on the screen;
        // one cut short or too short leaves none.
        const bool copia = c.percorso != "/troncato/" && c.percorso != "/corto/";
        EXPECT_EQ(fs::exists(cartella_ / "AggiornamentoPz.bin"), copia) << c.percorso;
        if (copia) {
            EXPECT_EQ(LeggiFile(cartella_ / "AggiornamentoPz.bin"),
                      c.risposta.dati.substr(c.risposta.dati.find("\r\n\r\n") + 4))
                << c.percorso;
        }
    }
    // The same refusal as JSON for scripts.
    Url("Url", server_.Indirizzo("/manca/"));
    const Esito j = Su({"--json", "scarica"});
    EXPECT_EQ(j.codice, 2);
    const auto js = nlohmann::json::parse(j.out);
    EXPECT_EQ(js["esito"], "rifiutato");
    EXPECT_EQ(js["stato_http"], 404);
    EXPECT_EQ(js["indirizzo"], server_.Indirizzo("/manca/AggiornamentoPz.bin"));
    EXPECT_EQ(Archivi(cartella_), prima);

    server_.Imposta("/buono/AggiornamentoPz.bin", Risposta(200, "OK", buono));
    Url("Url", server_.Indirizzo("/buono/"));
    const Esito ok = Su({"--json", "scarica"});
    ASSERT_EQ(ok.codice, 0) << ok.err;
    const auto r = nlohmann::json::parse(ok.out);
    EXPECT_EQ(r["esito"], "aggiornato");
    EXPECT_EQ(r["messaggio"], "Aggiornamento archivi al 21/08/2026 effettuato");
    EXPECT_EQ(r["estrazioni"], 10913);
    EXPECT_EQ(r["aggiunte"], 134);
    EXPECT_EQ(LeggiFile(cartella_ / "AggiornamentoPz.bin"), buono);
    const archives::Archivio a = archives::Archivio::Apri(cartella_);
    EXPECT_EQ(a.NumeroEstrazioni(), 10913);
    EXPECT_EQ(a.DataEstrazione(10913), "21/08/2026");
    EXPECT_TRUE(archives::VerificaIntegrita(a).vuoto()) << archives::VerificaIntegrita(a).testo;

    // Again: nothing new, and nothing changes.
    const std::string dopo = Archivi(cartella_);
    const Esito ancora = Su({"scarica"});
    EXPECT_EQ(ancora.codice, 0) << ancora.err;
    EXPECT_EQ(ancora.out, "Per il momento non ci sono aggiornamenti utili\n");
    EXPECT_EQ(Archivi(cartella_), dopo);
}

TEST_F(Internet, ScaricaSuperEnalottoEIlSuo407) {
    RICHIEDI_CARTELLA();
    const std::string prima = Archivi(cartella_);
    // The twin's sieve has no rule for "407": the status of the answer refuses it.
    server_.Imposta(
        "/AggiornamentoSuperEnalotto.bin",
        Risposta(407, "Proxy Authentication Required", "Proxy Authentication Required 407" + Riempimento(200)));
    Url("Url", server_.Indirizzo("/"));
    const Esito e = Su({"scarica", "--super"});
    EXPECT_EQ(e.codice, 2);
    EXPECT_NE(e.err.find("Errore di connessione: verificare Url"), std::string::npos) << e.err;
    EXPECT_NE(e.err.find("HTTP 407 Proxy Authentication Required"), std::string::npos) << e.err;
    EXPECT_EQ(server_.percorsi().back(), "/AggiornamentoSuperEnalotto.bin");
    EXPECT_EQ(Archivi(cartella_), prima);
    EXPECT_EQ(Su({"scarica", "--super", "--storico"}).codice, 2);
}

TEST_F(Internet, ScaricaStoricoZipETesto) {
    RICHIEDI_CARTELLA();
    const std::string testo = LeggiFile(*agg_ / "storico-2026.txt");
    const std::string zip = test::CreaZip(c_.percorso(), {{"storico-2026.txt", testo}});
    const std::string prima = Archivi(cartella_);

    // Not set yet.
    Esito e = Su({"scarica", "--storico"});
    EXPECT_EQ(e.codice, 2);
    EXPECT_NE(e.err.find("UrlStorico"), std::string::npos) << e.err;
    EXPECT_EQ(Su({"impostazione", "Options", "UrlStorico", "ftp://esempio.it/x.zip"}).codice, 2);

    // A page where the zip was: what failed, with the address.
    server_.Imposta("/spostato.zip", Risposta(200, "OK", "<html><body>Il file si è spostato</body></html>"));
    Url("UrlStorico", server_.Indirizzo("/spostato.zip"));
    e = Su({"scarica", "--storico"});
    EXPECT_EQ(e.codice, 2);
    EXPECT_NE(e.err.find("non è un archivio zip"), std::string::npos) << e.err;
    EXPECT_NE(e.err.find(server_.Indirizzo("/spostato.zip")), std::string::npos) << e.err;
    EXPECT_EQ(Archivi(cartella_), prima);

    server_.Imposta("/rotto.zip", Risposta(200, "OK", zip.substr(0, zip.size() / 2)));
    Url("UrlStorico", server_.Indirizzo("/rotto.zip"));
    e = Su({"scarica", "--storico"});
    EXPECT_EQ(e.codice, 2);
    EXPECT_NE(e.err.find("non è un archivio zip valido"), std::string::npos) << e.err;

    Url("UrlStorico", server_.Indirizzo("/assente.zip"));
    e = Su({"--json", "scarica", "--storico"});
    EXPECT_EQ(e.codice, 2);
    EXPECT_NE(e.err.find("HTTP 404 Not Found"), std::string::npos) << e.err;
    EXPECT_EQ(nlohmann::json::parse(e.out)["stato_http"], 404);
    EXPECT_EQ(Archivi(cartella_), prima);

    server_.Imposta("/storico.zip", Risposta(200, "OK", zip));
    Url("UrlStorico", server_.Indirizzo("/storico.zip"));
    e = Su({"--json", "scarica", "--storico"});
    ASSERT_EQ(e.codice, 0) << e.err;
    const auto j = nlohmann::json::parse(e.out);
    EXPECT_EQ(j["zip"], true);
    EXPECT_EQ(j["aggiunte"], 134);
    EXPECT_EQ(j["estrazioni"], 10913);
    EXPECT_EQ(j["esito"], "aggiornato");
    const std::string dallStorico = Archivi(cartella_);

    // The same draws as the update file gives, byte for byte.
    const std::string aggiornamento = LeggiFile(*agg_ / "AggiornamentoPz.bin");
    CartellaTemporanea altra;
    test::CopiaArchiviReali(*test::CartellaReale(), altra.percorso());
    {
        archives::Archivio a = archives::Archivio::Apri(altra.percorso(), archives::ModoApertura::Scrittura);
        const auto esito = ApplicaAggiornamento(a, aggiornamento, Gioco::Lotto, "AggiornamentoPz.bin");
        ASSERT_TRUE(esito.riuscito);
    }
    EXPECT_EQ(Archivi(altra.percorso()), dallStorico);

    // The plain text too; it brings nothing new now.
    server_.Imposta("/storico.txt", Risposta(200, "OK", testo));
    Url("UrlStorico", server_.Indirizzo("/storico.txt"));
    e = Su({"--json", "scarica", "--storico"});
    ASSERT_EQ(e.codice, 0) << e.err;
    EXPECT_EQ(nlohmann::json::parse(e.out)["aggiunte"], 0);
    EXPECT_EQ(Archivi(cartella_), dallStorico);
}

}  // namespace
}  // namespace gorgo::maintenance
