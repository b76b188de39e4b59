// frmAggiornaInternet, its SuperEnalotto twin and frmScaricaStorico against a server of the
// test's own on 127.0.0.1: the states of lblStatus, the cancel, the sieve's messages, the
// question and the update on a copy of the real archives; the main window's entries.

#include <fmt/format.h>
#include <gtest/gtest.h>
#include <zip.h>
#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include "app/avvio.h"
#include "archives/archivio.h"
#include "config/impostazioni.h"
#include "config/ini.h"
#include "maintenance/aggiornamento.h"
#include "maintenance/server_locale.h"
#include "network/connessione.h"
#include "network/scaricatore.h"
#include "screens/common/messaggi.h"
#include "screens/common/sessione.h"
#include "screens/maintenance/frm_aggiorna_internet.h"
#include "support/archivi_reali.h"
#include "support/cartelle.h"

namespace gorgo::screens {
namespace {

namespace fs = std::filesystem;
using test::CartellaTemporanea;
using test::LeggiFile;
using test::Risposta;

std::string Riempimento(std::size_t n) {
    std::string s(n, '\0');
    for (std::size_t i = 0; i < n; ++i) s[i] = static_cast<char>(0x80 + i % 64);
    return s;
}

std::string Archivi(const fs::path& cartella) {
    std::string s;
    for (const char* nome : {"Estrazioni.ind", "anni.ind", "SuperEnalotto.ind"})
        s += LeggiFile(cartella / "Archivi" / nome) + "|";
    return s;
}

template <typename T>
T* Trova(QObject* w, const char* nome) {
    T* c = w->findChild<T*>(nome);
    EXPECT_NE(c, nullptr) << nome;
    return c;
}

// A copy of the real archives as the running program's, the messages collected, the
// questions answered with `risposta_`.
class AggiornaInternet : public ::testing::Test {
protected:
    void SetUp() override {
        test::SoloLoopback();
        const auto reale = test::CartellaReale();
        if (!reale || !fs::exists(reale->parent_path() / "aggiornamenti" / "AggiornamentoPz.bin"))
            GTEST_SKIP() << "archivi reali assenti";
        aggiornamenti_ = reale->parent_path() / "aggiornamenti";
        buono_ = LeggiFile(aggiornamenti_ / "AggiornamentoPz.bin");
        test::CopiaArchiviReali(*reale, c_.percorso());
        archivio_ = std::make_unique<archives::Archivio>(
            archives::Archivio::Apri(c_.percorso(), archives::ModoApertura::Scrittura));
        prima_ = ImpostaGestoreMessaggi([this](const archives::Messaggio& m, QMessageBox::StandardButtons b) {
            if (b & QMessageBox::Yes) {
                domande_.push_back(m);
                return risposta_;
            }
            messaggi_.push_back(m);
            return QMessageBox::Ok;
        });
        impostato_ = true;
    }
    void TearDown() override {
        if (!impostato_) return;
        ImpostaGestoreMessaggi(prima_);
        archivio_.reset();
    }
    void Url(const std::string& chiave, const std::string& valore) {
        ASSERT_TRUE(config::ScriviImpostazione(ini_, config::sezioni::Options, chiave, valore));
    }
    // The texts lblStatus takes, one for each state the client reports.
    void SeguiStati(FrmAggiornaInternetBase& f) {
        QLabel* l = Trova<QLabel>(&f, "lblStatus");
        QObject::connect(f.scaricatore(), &network::Scaricatore::statoCambiato, &f,
                         [this, l](int, int, const QString&) { stati_.push_back(l->text().toStdString()); });
    }
    // Clicks cmdScarica and waits for the transfer to end.
    void Scarica(QWidget& f, network::Scaricatore* s) {
        QTest::mouseClick(Trova<QPushButton>(&f, "cmdScarica"), Qt::LeftButton);
        EXPECT_TRUE(QTest::qWaitFor([s] { return !s->InCorso(); }, 10000));
        QApplication::processEvents();
    }
    std::vector<std::string> TestiMessaggi() const {
        std::vector<std::string> t;
        for (const archives::Messaggio& m : messaggi_) t.push_back(m.testo);
        return t;
    }

    test::ServerLocale server_{24, std::chrono::seconds(120)};
    CartellaTemporanea c_;
    // The running program's settings, session and archives, as the main window would hand them.
    config::FileIni ini_{(c_ / "Gorgo.ini").string()};
    Sessione sessione_{ini_, c_.percorso()};
    std::unique_ptr<archives::Archivio> archivio_;
    fs::path aggiornamenti_;
    std::string buono_;
    std::vector<archives::Messaggio> messaggi_, domande_;
    std::vector<std::string> stati_;
    QMessageBox::StandardButton risposta_ = QMessageBox::Yes;
    GestoreMessaggi prima_;
    bool impostato_ = false;
};

TEST_F(AggiornaInternet, StatiDomandaEAggiornamento) {
    server_.Imposta("/agg/AggiornamentoPz.bin", Risposta(200, "OK", buono_));
    Url("Url", server_.Indirizzo("/agg/"));
    FrmAggiornaInternet f(sessione_, *archivio_);
    f.show();
    EXPECT_EQ(f.objectName(), "frmAggiornaInternet");
    EXPECT_EQ(f.windowTitle(), "Aggiormanemto estrazioni lotto da Internet");
    QPushButton* annulla = Trova<QPushButton>(&f, "cmdAnnulla");
    EXPECT_EQ(annulla->toolTip(), "Interrompe la connessione");
    EXPECT_FALSE(annulla->isEnabled());
    EXPECT_EQ(Trova<QPushButton>(&f, "cmdEsci")->toolTip(), "Esci senza modificare nulla");
    EXPECT_EQ(Trova<QPushButton>(&f, "cmdScarica")->text(), "Scarica aggiornamento dal web...");
    EXPECT_EQ(Trova<QPushButton>(&f, "cmdApri")->text(), "Apri file...");
    EXPECT_EQ(Trova<QLabel>(&f, "lblNumero")->text(), "208");
    EXPECT_EQ(Trova<QLabel>(&f, "lblAnno")->text(), "2025");
    EXPECT_EQ(Trova<QLabel>(&f, "lblUltima")->text(), QString::fromUtf8("martedì 30 dicembre 2025"));
    SeguiStati(f);
    QSignalSpy aggiornato(&f, &FrmAggiornaInternetBase::archivioAggiornato);

    QTest::mouseClick(Trova<QPushButton>(&f, "cmdScarica"), Qt::LeftButton);
    EXPECT_TRUE(annulla->isEnabled()) << "fetching";
    EXPECT_TRUE(QTest::qWaitFor([&] { return !messaggi_.empty(); }, 10000));

    EXPECT_EQ(stati_, (std::vector<std::string>{"Ricerca IP...", "IP trovato...", "Connessione...", "Connesso...",
                                                "Scarico il file...", "Finito"}));
    ASSERT_EQ(domande_.size(), 1u);
    EXPECT_EQ(domande_[0].testo,
              "E' disponibile l'aggiornamento estrazioni al 21/08/2026. Confermi allineamento archivio locale ?");
    EXPECT_EQ(domande_[0].titolo, "Aggiornamento estrazioni");
    ASSERT_EQ(messaggi_.size(), 1u);
    EXPECT_EQ(messaggi_[0].testo, "Aggiornamento archivi al 21/08/2026 effettuato");
    EXPECT_EQ(archivio_->NumeroEstrazioni(), 10913);
    EXPECT_EQ(archives::Archivio::Apri(c_.percorso()).NumeroEstrazioni(), 10913);
    EXPECT_EQ(LeggiFile(c_ / "AggiornamentoPz.bin"), buono_) << "the local copy stays";
    EXPECT_EQ(aggiornato.count(), 1);
    EXPECT_FALSE(f.isVisible()) << "the screen closes after the update";

    // A second download has nothing new.
    FrmAggiornaInternet g(sessione_, *archivio_);
    g.show();
    messaggi_.clear();
    const std::string dopo = Archivi(c_.percorso());
    Scarica(g, g.scaricatore());
    EXPECT_EQ(TestiMessaggi(), std::vector<std::string>{"Per il momento non ci sono aggiornamenti utili"});
    EXPECT_EQ(Trova<QLabel>(&g, "lblStatus")->text(), "Fine connessione");
    EXPECT_EQ(Archivi(c_.percorso()), dopo);
    EXPECT_TRUE(g.isVisible());
}

TEST_F(AggiornaInternet, RispostaNoPoiCmdAggiorna) {
    server_.Imposta("/AggiornamentoPz.bin", Risposta(200, "OK", buono_));
    Url("Url", server_.Indirizzo("/"));
    const std::string prima = Archivi(c_.percorso());
    FrmAggiornaInternet f(sessione_, *archivio_);
    f.show();
    QPushButton* aggiorna = Trova<QPushButton>(&f, "cmdAggiorna");
    EXPECT_FALSE(aggiorna->isEnabled());
    risposta_ = QMessageBox::No;
    Scarica(f, f.scaricatore());
    EXPECT_EQ(domande_.size(), 1u);
    EXPECT_TRUE(messaggi_.empty());
    EXPECT_EQ(Archivi(c_.percorso()), prima);
    EXPECT_TRUE(aggiorna->isEnabled());
    EXPECT_EQ(Trova<QLabel>(&f, "lblStatus")->text(), "Fine connessione");

    QTest::mouseClick(aggiorna, Qt::LeftButton);
    EXPECT_EQ(TestiMessaggi(), std::vector<std::string>{"Aggiornamento archivi al 21/08/2026 effettuato"});
    EXPECT_EQ(archivio_->NumeroEstrazioni(), 10913);
    EXPECT_FALSE(f.isVisible());
}

TEST_F(AggiornaInternet, RifiutiDelSetaccioEDellaConnessione) {
    const std::string prima = Archivi(c_.percorso());
    const std::string pagina = "<html><body>Pagina non trovata</body></html>" + std::string(160, ' ');
    const std::string proxy = "Proxy 407" + Riempimento(200);
    const std::string manca = "404 Not Found" + Riempimento(200);
    struct Caso {
        std::string percorso;
        test::RispostaHttp risposta;
        std::string messaggio;  // in a box; empty: none
        std::string stato;      // what lblStatus starts with
        std::string copia;      // the local copy afterwards; empty: none
    };
    // Those that write no local copy first: the copy of a refused page stays until the next one.
    const std::vector<Caso> casi = {
        {"/corto/", Risposta(200, "OK", buono_.substr(0, 151)), "", "Errore di connessione: verificare Url", ""},
        {"/troncato/", test::RispostaTroncata(buono_, 4026), "",
         "Errore di connessione: verificare Url\nScaricamento da " +
             server_.Indirizzo("/troncato/AggiornamentoPz.bin") + " interrotto: ricevuti 4026 byte su 8910",
         ""},
        {"/html/", Risposta(200, "OK", pagina), "File non trovato sul server - Verificare l'indirizzo internet",
         "Finito", pagina},
        {"/manca/", Risposta(404, "Not Found", manca), "File non trovato sul server - Verificare l'indirizzo internet",
         "Finito", manca},
        {"/proxy/", Risposta(407, "Proxy Authentication Required", proxy),
         "Il server proxy richiede l'autenticazione - Aggiornamento impossibile", "Finito", proxy},
    };
    for (const Caso& c : casi) {
        messaggi_.clear();
        server_.Imposta(c.percorso + "AggiornamentoPz.bin", c.risposta);
        Url("Url", server_.Indirizzo(c.percorso));
        FrmAggiornaInternet f(sessione_, *archivio_);
        f.show();
        Scarica(f, f.scaricatore());
        if (c.messaggio.empty())
            EXPECT_TRUE(messaggi_.empty()) << c.percorso;
        else
            EXPECT_EQ(TestiMessaggi(), std::vector<std::string>{c.messaggio}) << c.percorso;
        EXPECT_TRUE(domande_.empty()) << c.percorso;
        const std::string stato = Trova<QLabel>(&f, "lblStatus")->text().toStdString();
        EXPECT_EQ(stato.rfind(c.stato, 0), 0u) << c.percorso << ": " << stato;
        if (c.copia.empty())
            EXPECT_FALSE(fs::exists(c_ / "AggiornamentoPz.bin")) << c.percorso;
        else
            EXPECT_EQ(LeggiFile(c_ / "AggiornamentoPz.bin"), c.copia) << c.percorso;
        EXPECT_FALSE(Trova<QPushButton>(&f, "cmdAnnulla")->isEnabled());
        EXPECT_TRUE(Trova<QPushButton>(&f, "cmdScarica")->isEnabled());
        EXPECT_EQ(Archivi(c_.percorso()), prima) << c.percorso;
    }
    // The page stays on disk as the local copy, and opening it refuses it.
    FrmAggiornaInternet f(sessione_, *archivio_);
    messaggi_.clear();
    QTest::mouseClick(Trova<QPushButton>(&f, "cmdApri"), Qt::LeftButton);
    ASSERT_EQ(messaggi_.size(), 1u);
    EXPECT_EQ(messaggi_[0].testo, (c_ / "AggiornamentoPz.bin").string() + " corrotto o mancante !");
    EXPECT_EQ(Archivi(c_.percorso()), prima);
}

TEST_F(AggiornaInternet, AnnullaDuranteLoScaricamento) {
    server_.Imposta("/AggiornamentoPz.bin", test::RispostaSospesa(buono_, 660));
    Url("Url", server_.Indirizzo("/"));
    const std::string prima = Archivi(c_.percorso());
    FrmAggiornaInternet f(sessione_, *archivio_);
    f.show();
    SeguiStati(f);
    QTest::mouseClick(Trova<QPushButton>(&f, "cmdScarica"), Qt::LeftButton);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !stati_.empty() && stati_.back() == "Scarico il file..."; }, 10000));
    QPushButton* annulla = Trova<QPushButton>(&f, "cmdAnnulla");
    EXPECT_TRUE(annulla->isEnabled());
    EXPECT_FALSE(Trova<QPushButton>(&f, "cmdScarica")->isEnabled());
    QTest::mouseClick(annulla, Qt::LeftButton);
    QTest::qWait(100);
    EXPECT_EQ(Trova<QLabel>(&f, "lblStatus")->text(), "Azione annullata");
    EXPECT_FALSE(annulla->isEnabled());
    EXPECT_TRUE(Trova<QPushButton>(&f, "cmdScarica")->isEnabled());
    EXPECT_FALSE(f.scaricatore()->InCorso());
    EXPECT_TRUE(messaggi_.empty());
    EXPECT_FALSE(fs::exists(c_ / "AggiornamentoPz.bin"));
    EXPECT_EQ(Archivi(c_.percorso()), prima);
}

TEST_F(AggiornaInternet, ErroreDiConnessioneNelloStato) {
    // A port where nobody listens: state 11 appends to the label, then the end of the fetch.
    uint16_t porta = 0;
    {
        test::ServerLocale chiuso(0, std::chrono::seconds(1));
        porta = chiuso.porta();
    }
    Url("Url", fmt::format("http://127.0.0.1:{}/", porta));
    FrmAggiornaInternet f(sessione_, *archivio_);
    f.show();
    SeguiStati(f);
    Scarica(f, f.scaricatore());
    ASSERT_FALSE(stati_.empty());
    // Appended to whatever state the label showed when the refusal came.
    const std::string errore = "...Errore di connessione 1 : connessione rifiutata dal server";
    EXPECT_EQ(stati_.back().substr(stati_.back().size() - std::min(stati_.back().size(), errore.size())), errore)
        << stati_.back();
    const QString stato = Trova<QLabel>(&f, "lblStatus")->text();
    EXPECT_TRUE(stato.startsWith("Errore di connessione: verificare Url\n")) << stato.toStdString();
    EXPECT_NE(stato.indexOf("connessione rifiutata"), -1);
    EXPECT_TRUE(messaggi_.empty());
}

TEST_F(AggiornaInternet, IlGemelloSuperEnalotto) {
    const std::string prima = Archivi(c_.percorso());
    server_.Imposta("/AggiornamentoSuperEnalotto.bin", Risposta(200, "OK", "Proxy 407 " + Riempimento(190)));
    Url("Url", server_.Indirizzo("/"));
    FrmAggiornaSuperInternet f(sessione_, *archivio_);
    f.show();
    EXPECT_EQ(f.objectName(), "frmAggiornaSuperInternet");
    EXPECT_EQ(Trova<QLabel>(&f, "lblNumero")->text(), "55");
    EXPECT_EQ(Trova<QLabel>(&f, "lblUltima")->text(), QString::fromUtf8("martedì 7 aprile 2026"));
    Scarica(f, f.scaricatore());
    // No rule for "407" in this twin: 200 bytes are 10 records, and their dates are not dates.
    ASSERT_EQ(messaggi_.size(), 1u);
    EXPECT_EQ(messaggi_[0].testo, (c_ / "AggiornamentoSuperEnalotto.bin").string() + " corrotto o mancante !");
    EXPECT_EQ(server_.percorsi().back(), "/AggiornamentoSuperEnalotto.bin");
    EXPECT_EQ(Archivi(c_.percorso()), prima);
}

// A zip holding one file.
std::string Zip(const std::string& nome, const std::string& contenuto, const fs::path& cartella) {
    const fs::path file = cartella / "prova.zip";
    int errore = 0;
    zip_t* z = zip_open(file.c_str(), ZIP_CREATE | ZIP_TRUNCATE, &errore);
    if (!z) return {};
    zip_file_add(z, nome.c_str(), zip_source_buffer(z, contenuto.data(), contenuto.size(), 0), ZIP_FL_ENC_UTF_8);
    zip_close(z);
    return LeggiFile(file);
}

TEST_F(AggiornaInternet, ScaricaStorico) {
    CartellaTemporanea t;
    const std::string zip = Zip("storico-2026.txt", LeggiFile(aggiornamenti_ / "storico-2026.txt"), t.percorso());
    server_.Imposta("/pagina.zip", Risposta(200, "OK", "<html><body>Spostato</body></html>"));
    server_.Imposta("/storico.zip", Risposta(200, "OK", zip));
    const std::string prima = Archivi(c_.percorso());

    FrmScaricaStorico f(sessione_, *archivio_);
    f.show();
    EXPECT_EQ(f.objectName(), "frmScaricaStorico");
    QLineEdit* url = Trova<QLineEdit>(&f, "txtUrlStorico");
    EXPECT_TRUE(url->text().isEmpty());
    QTest::mouseClick(Trova<QPushButton>(&f, "cmdScarica"), Qt::LeftButton);
    EXPECT_EQ(TestiMessaggi(),
              std::vector<std::string>{"L'indirizzo dell'archivio storico (UrlStorico) non è impostato"});

    messaggi_.clear();
    url->setText(QString::fromStdString(server_.Indirizzo("/pagina.zip")));
    QTest::mouseClick(Trova<QPushButton>(&f, "cmdScarica"), Qt::LeftButton);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !messaggi_.empty(); }, 10000));
    ASSERT_EQ(messaggi_.size(), 1u);
    EXPECT_NE(messaggi_[0].testo.find("non è un archivio zip"), std::string::npos) << messaggi_[0].testo;
    EXPECT_NE(messaggi_[0].testo.find(server_.Indirizzo("/pagina.zip")), std::string::npos);
    EXPECT_EQ(Archivi(c_.percorso()), prima);

    messaggi_.clear();
    QSignalSpy aggiornato(&f, &FrmScaricaStorico::archivioAggiornato);
    url->setText(QString::fromStdString(server_.Indirizzo("/storico.zip")));
    QTest::mouseClick(Trova<QPushButton>(&f, "cmdScarica"), Qt::LeftButton);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !messaggi_.empty(); }, 10000));
    ASSERT_EQ(domande_.size(), 1u);
    EXPECT_NE(domande_[0].testo.find("134 estrazioni nuove, fino al 21/08/2026"), std::string::npos)
        << domande_[0].testo;
    EXPECT_EQ(archivio_->NumeroEstrazioni(), 10913);
    EXPECT_EQ(aggiornato.count(), 1);
    // The address is kept for the next time.
    EXPECT_EQ(ini_.Leggi("Options", "UrlStorico", ""), server_.Indirizzo("/storico.zip"));
}

// The host's connection state as a test sets it, with the calls it received.
struct ConnessioneFinta : network::StatoConnessione {
    bool connesso = true, riesce = true;
    std::vector<bool> richieste;
    bool Connesso() override { return connesso; }
    bool ImpostaInLinea(bool inLinea) override {
        richieste.push_back(inLinea);
        return riesce;
    }
};

// Before the download: a host not connected is switched on-line; if that fails, the system's
// message and no transfer.
TEST_F(AggiornaInternet, ModalitaOffLine) {
    struct Caso {
        bool connesso, riesce;
        std::vector<bool> richieste;
        bool scarica;
    };
    const Caso casi[] = {
        {true, false, {}, true},
        {false, true, {true}, true},
        {false, false, {true}, false},
    };
    Url("Url", server_.Indirizzo("/manca/"));
    for (const Caso& k : casi) {
        SCOPED_TRACE(fmt::format("connesso {}, in linea {}", k.connesso, k.riesce));
        auto finta = std::make_unique<ConnessioneFinta>();
        ConnessioneFinta* stato = finta.get();
        stato->connesso = k.connesso;
        stato->riesce = k.riesce;
        auto prima = network::ImpostaConnessione(std::move(finta));
        messaggi_.clear();
        stati_.clear();
        {
            FrmAggiornaInternet f(sessione_, *archivio_);
            f.show();
            SeguiStati(f);
            Scarica(f, f.scaricatore());
            EXPECT_EQ(stato->richieste, k.richieste);
            EXPECT_EQ(!stati_.empty(), k.scarica);
            const std::vector<std::string> testi = TestiMessaggi();
            if (k.scarica) {
                EXPECT_EQ(std::count(testi.begin(), testi.end(), network::MessaggioOffLine), 0);
            } else {
                EXPECT_EQ(TestiMessaggi(), std::vector<std::string>{"Errore richiamando la modalità off-line"});
                EXPECT_TRUE(Trova<QPushButton>(&f, "cmdScarica")->isEnabled());
            }
        }
        network::ImpostaConnessione(std::move(prima));
    }

    // The menu entry of the web page goes on-line first too.
    auto finta = std::make_unique<ConnessioneFinta>();
    finta->connesso = finta->riesce = false;
    auto prima = network::ImpostaConnessione(std::move(finta));
    archivio_.reset();
    messaggi_.clear();
    {
        std::unique_ptr<QLockFile> blocco;
        auto principale = AvviaProgramma(c_.percorso(), blocco);
        ASSERT_NE(principale, nullptr);
        QAction* web = Trova<QAction>(principale.get(), "mnuStrumentiWeb");
        ASSERT_NE(web, nullptr);
        web->trigger();
        EXPECT_EQ(TestiMessaggi(), std::vector<std::string>{"Errore richiamando la modalità off-line"});
    }
    network::ImpostaConnessione(std::move(prima));
}

TEST_F(AggiornaInternet, PulsantiEVociDelMenu) {
    archivio_.reset();
    std::unique_ptr<QLockFile> blocco;
    auto principale = AvviaProgramma(c_.percorso(), blocco);
    ASSERT_NE(principale, nullptr);
    principale->show();

    QPushButton* scarica0 = Trova<QPushButton>(principale.get(), "cmdScarica_0");
    QPushButton* scarica1 = Trova<QPushButton>(principale.get(), "cmdScarica_1");
    EXPECT_TRUE(scarica0->isEnabled());
    EXPECT_TRUE(scarica1->isEnabled());
    EXPECT_EQ(scarica0->toolTip(), "Aggiorna l'archivio estrazioni via internet");
    const auto aperte = [&](const char* nome) {
        int n = 0;
        for (QWidget* w : principale->findChildren<QWidget*>(nome))
            if (w->isVisible()) ++n;
        return n;
    };
    QTest::mouseClick(scarica0, Qt::LeftButton);
    QTest::mouseClick(scarica0, Qt::LeftButton);
    EXPECT_EQ(aperte("frmAggiornaInternet"), 1) << "one instance, brought forward";
    QAction* voce = Trova<QAction>(principale.get(), "mnuEstrazioniAggiornaInt");
    ASSERT_NE(voce, nullptr);
    EXPECT_TRUE(voce->isEnabled());
    voce->trigger();
    EXPECT_EQ(aperte("frmAggiornaInternet"), 1);

    QAction* voceSuper = Trova<QAction>(principale.get(), "mnuEstrazioniAggiornaIntSuper");
    ASSERT_NE(voceSuper, nullptr);
    EXPECT_TRUE(voceSuper->isEnabled());
    voceSuper->trigger();
    QTest::mouseClick(scarica1, Qt::LeftButton);
    EXPECT_EQ(aperte("frmAggiornaSuperInternet"), 1);

    QAction* storico = Trova<QAction>(principale.get(), "mnuEstrazioniScaricaStorico");
    ASSERT_NE(storico, nullptr);
    EXPECT_EQ(storico->text(), "Scarica archivio storico da Internet...");
    EXPECT_TRUE(storico->isEnabled());
    storico->trigger();
    storico->trigger();
    EXPECT_EQ(aperte("frmScaricaStorico"), 1);

    // Closed, the window goes; the next click opens a new one.
    principale->findChild<QWidget*>("frmAggiornaInternet")->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(principale->findChild<QWidget*>("frmAggiornaInternet"), nullptr);
    QTest::mouseClick(scarica0, Qt::LeftButton);
    EXPECT_EQ(aperte("frmAggiornaInternet"), 1);

    EXPECT_TRUE(messaggi_.empty());
    principale->close();
    principale.reset();
}

TEST_F(AggiornaInternet, IlPannelloPrincipaleMostraLUltimaDopoLAggiornamento) {
    server_.Imposta("/AggiornamentoPz.bin", Risposta(200, "OK", buono_));
    Url("Url", server_.Indirizzo("/"));
    archivio_.reset();
    std::unique_ptr<QLockFile> blocco;
    auto principale = AvviaProgramma(c_.percorso(), blocco);
    ASSERT_NE(principale, nullptr);
    principale->show();
    QLabel* ultima = Trova<QLabel>(principale.get(), "lblUltimaEstrazione_0");
    EXPECT_EQ(ultima->text(), "n.208 del 30/12/2025");
    QTest::mouseClick(Trova<QPushButton>(principale.get(), "cmdScarica_0"), Qt::LeftButton);
    auto* f = principale->findChild<FrmAggiornaInternetBase*>("frmAggiornaInternet");
    ASSERT_NE(f, nullptr);
    QTest::mouseClick(Trova<QPushButton>(f, "cmdScarica"), Qt::LeftButton);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !messaggi_.empty(); }, 10000));
    const archives::RecordEstrazione r = principale->programma().archivio->LeggiEstrazione(10913);
    EXPECT_EQ(ultima->text().toStdString(), fmt::format("n.{} del 21/08/2026", r.NumeroAnno));
    principale->close();
    principale.reset();
}

}  // namespace
}  // namespace gorgo::screens
