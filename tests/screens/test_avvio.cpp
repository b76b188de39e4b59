// Start-up and the main window: the last draws on a copy of the real archives, the
// missing-archive message, one instance only, window places, the computing window and its stop.

#include <gtest/gtest.h>

#include <fmt/format.h>
#include <unistd.h>
#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <atomic>
#include <fstream>
#include <thread>

#include "app/avvio.h"
#include "archives/demo.h"
#include "screens/common/elaborazioni.h"
#include "screens/common/messaggi.h"
#include "screens/common/twips.h"
#include "support/archivi_reali.h"
#include "support/cartelle.h"

namespace gorgo::screens {
namespace {

using test::CartellaTemporanea;

// Collects the messages that would have been shown.
struct Messaggi {
    std::vector<archives::Messaggio> visti;
    GestoreMessaggi prima;
    Messaggi() {
        prima = ImpostaGestoreMessaggi([this](const archives::Messaggio& m, QMessageBox::StandardButtons) {
            visti.push_back(m);
            return QMessageBox::Ok;
        });
    }
    ~Messaggi() { ImpostaGestoreMessaggi(prima); }
};

template <typename T>
T* Trova(QWidget* w, const char* nome) {
    T* c = w->findChild<T*>(nome);
    EXPECT_NE(c, nullptr) << nome;
    return c;
}

TEST(Avvio, UltimeEstrazioniDegliArchiviReali) {
    GORGO_RICHIEDI_ARCHIVI_REALI(reale);
    CartellaTemporanea c;
    test::CopiaArchiviReali(reale, c.percorso());
    Messaggi m;
    std::unique_ptr<QLockFile> blocco;
    auto principale = AvviaProgramma(c.percorso(), blocco);
    ASSERT_NE(principale, nullptr);
    EXPECT_TRUE(m.visti.empty());
    EXPECT_EQ(principale->windowTitle(), QString::fromUtf8(FrmMain::CaptionPrincipale));
    EXPECT_EQ(Trova<QLabel>(principale.get(), "lblUltimaEstrazione_0")->text(), "n.208 del 30/12/2025");
    EXPECT_EQ(Trova<QLabel>(principale.get(), "lblUltimaEstrazione_1")->text(), "n.55 del 07/04/2026");
    EXPECT_FALSE(Trova<QLabel>(principale.get(), "lblNessuna")->isHidden());
    for (const char* nome : {"lblRestrizioni_0", "lblRestrizioni_1", "lblRestrizioni_2", "lblRestrizioni_3"})
        EXPECT_TRUE(Trova<QLabel>(principale.get(), nome)->isHidden()) << nome;
    // Every procedure of the panel opens its window.
    for (const char* nome :
         {"cmdGorgo", "cmdPrecursori", "cmdAmboEnucleato", "cmdNuovaProcedura", "Command1", "cmdProcedura"})
        EXPECT_TRUE(Trova<QPushButton>(principale.get(), nome)->isEnabled()) << nome;
    EXPECT_EQ(Trova<QPushButton>(principale.get(), "cmdCambiaImpostazioniRestrizione")->toolTip(),
              "Permette di impostare i parametri di esclusione per le ricerche statistiche");
    principale.reset();
}

TEST(Avvio, ArchiviMancantiFinisconoIlProgramma) {
    CartellaTemporanea c;
    std::filesystem::create_directories(c / "Archivi");
    { std::ofstream(c / "Archivi/SuperEnalotto.ind", std::ios::binary) << std::string(20, '\0'); }
    Messaggi m;
    std::unique_ptr<QLockFile> blocco;
    EXPECT_EQ(AvviaProgramma(c.percorso(), blocco), nullptr);
    ASSERT_EQ(m.visti.size(), 1u);
    EXPECT_EQ(m.visti[0].testo,
              "Archivi Estrazioni.ind  Anni.ind  mancanti! " + (c / "Archivi/SuperEnalotto.ind").string());
    EXPECT_EQ(m.visti[0].titolo, "Errore");
    EXPECT_EQ(m.visti[0].icona, archives::Icona::Stop);
}

TEST(Avvio, UnaSolaIstanza) {
    CartellaTemporanea c;
    test::CreaArchivioDemo(c.percorso(),
                           archives::ParametriDemo{5, archives::Data{30, 12, 1900}, archives::Data{2, 1, 1890}});
    Messaggi m;
    std::unique_ptr<QLockFile> primo, secondo;
    auto principale = AvviaProgramma(c.percorso(), primo);
    ASSERT_NE(principale, nullptr);
    EXPECT_EQ(AvviaProgramma(c.percorso(), secondo), nullptr);
    ASSERT_EQ(m.visti.size(), 1u);
    EXPECT_EQ(m.visti[0].testo, MessaggioIstanzaUnica);
    principale.reset();
    primo.reset();

    // The lock of a run that crashed (its process is gone) does not block the next start.
    {
        std::ofstream f(c / "Gorgo.lock");
        f << "999999\nGorgo 2\n" << QSysInfo::machineHostName().toStdString() << "\n";
    }
    std::unique_ptr<QLockFile> terzo;
    EXPECT_NE(AvviaProgramma(c.percorso(), terzo), nullptr);
    EXPECT_EQ(m.visti.size(), 1u);
}

// A lock that cannot be created is not another instance: the message names the folder and
// the cause. (As root a folder without write permission stays writable, hence the other ways.)
TEST(Avvio, BloccoNonCreabileNonEUnAltraIstanza) {
    CartellaTemporanea c;
    const QString occupato = QString::fromStdString((c / "occupato.lock").string());
    auto primo = BloccaFile(occupato);
    ASSERT_NE(primo, nullptr);
    { std::ofstream(c / "file") << "x"; }
    std::filesystem::create_directories(c / "cartella" / "Gorgo.lock");
    std::filesystem::create_directories(c / "sola-lettura");
    std::filesystem::permissions(c / "sola-lettura", std::filesystem::perms::owner_write,
                                 std::filesystem::perm_options::remove);
    struct Caso {
        std::filesystem::path file;
        std::string attesa;
    };
    const std::vector<Caso> casi = {
        {c / "occupato.lock", MessaggioIstanzaUnica},
        {c / "file" / "Gorgo.lock", "Impossibile creare il file di blocco in " + (c / "file").string() +
                                        ": la cartella non esiste o non è una cartella."},
        {c / "cartella" / "Gorgo.lock", "Impossibile creare il file di blocco in " + (c / "cartella").string() + ": " +
                                            (c / "cartella" / "Gorgo.lock").string() + " esiste già e non è un file."},
        {c / "sola-lettura" / "Gorgo.lock", ::geteuid() == 0 ? std::string()
                                                             : "Impossibile creare il file di blocco in " +
                                                                   (c / "sola-lettura").string() +
                                                                   ": cartella in sola lettura o non accessibile."},
    };
    for (const Caso& k : casi) {
        if (k.attesa.empty()) continue;
        archives::Messaggio m;
        EXPECT_EQ(BloccaFile(QString::fromStdString(k.file.string()), &m), nullptr) << k.file;
        EXPECT_EQ(m.testo, k.attesa);
    }
    std::filesystem::permissions(c / "sola-lettura", std::filesystem::perms::owner_write,
                                 std::filesystem::perm_options::add);

    // The start-up shows it and ends.
    test::CreaArchivioDemo(c / "cartella",
                           archives::ParametriDemo{5, archives::Data{30, 12, 1900}, archives::Data{2, 1, 1890}});
    Messaggi m;
    std::unique_ptr<QLockFile> blocco;
    EXPECT_EQ(AvviaProgramma(c / "cartella", blocco), nullptr);
    ASSERT_EQ(m.visti.size(), 1u);
    EXPECT_EQ(m.visti[0].testo, casi[2].attesa);
    EXPECT_EQ(m.visti[0].icona, archives::Icona::Stop);
}

// "Cambia..." opens the restrictions; their confirm shows in the panel at once.
TEST(Avvio, RestrizioniCambiateSiVedonoSubito) {
    CartellaTemporanea c;
    test::CreaArchivioDemo(c.percorso(),
                           archives::ParametriDemo{5, archives::Data{30, 12, 1900}, archives::Data{2, 1, 1890}});
    Messaggi m;
    std::unique_ptr<QLockFile> blocco;
    auto principale = AvviaProgramma(c.percorso(), blocco);
    ASSERT_NE(principale, nullptr);
    principale->show();
    bool aperto = false;
    QTimer::singleShot(0, [&] {
        QWidget* dialogo = QApplication::activeModalWidget();
        ASSERT_NE(dialogo, nullptr);
        aperto = dialogo->objectName() == "frmOpzioni";
        Trova<QCheckBox>(dialogo, "chkMesi")->setChecked(true);
        Trova<QCheckBox>(dialogo, "chkMese_8")->setChecked(false);
        QTest::mouseClick(Trova<QPushButton>(dialogo, "cmdOk"), Qt::LeftButton);
    });
    QTest::mouseClick(Trova<QPushButton>(principale.get(), "cmdCambiaImpostazioniRestrizione"), Qt::LeftButton);
    EXPECT_TRUE(aperto);
    EXPECT_TRUE(Trova<QLabel>(principale.get(), "lblNessuna")->isHidden());
    EXPECT_FALSE(Trova<QLabel>(principale.get(), "lblRestrizioni_2")->isHidden());
    EXPECT_NE(test::LeggiFile(c / "Gorgo.ini").find("Mesi=YYYYYYYNYYYY"), std::string::npos);
    principale.reset();
}

// A write cut short (the year index behind the draws, half a record at the end) is repaired
// before the archives are opened, and the user is told.
TEST(Avvio, ArchiviRiparatiAllApertura) {
    CartellaTemporanea c;
    test::CreaArchivioDemo(c.percorso(),
                           archives::ParametriDemo{5, archives::Data{30, 12, 1900}, archives::Data{2, 1, 1890}});
    const std::string anni = test::LeggiFile(c / "Archivi/anni.ind");
    std::filesystem::resize_file(c / "Archivi/anni.ind", anni.size() - 12);
    { std::ofstream(c / "Archivi/Estrazioni.ind", std::ios::app | std::ios::binary) << "mezzo record"; }
    Messaggi m;
    std::unique_ptr<QLockFile> blocco;
    auto principale = AvviaProgramma(c.percorso(), blocco);
    ASSERT_NE(principale, nullptr);
    ASSERT_EQ(m.visti.size(), 1u);
    EXPECT_EQ(m.visti[0].icona, archives::Icona::Informazione);
    EXPECT_EQ(test::LeggiFile(c / "Archivi/anni.ind"), anni);
    EXPECT_TRUE(archives::VerificaIntegrita(*principale->programma().archivio).vuoto());
    principale.reset();
}

// The main window's place: saved in twips (single-precision, "." or ","), centred on the first
// start, and centred when the saved place is off every screen or not a number.
TEST(Avvio, PosizioneDellaFinestraPrincipale) {
    struct Caso {
        const char* forms;              // the Forms section, or nullptr for no Gorgo.ini at all
        long long left = -1, top = -1;  // twips, -1 for the centre
    };
    const Caso casi[] = {
        {nullptr},
        {"[Forms]\n"},
        {"[Forms]\nMainLeft=3000\n"},
        {"[Forms]\nMainLeft=99999999\nMainTop=-5000000\n"},
        {"[Forms]\nMainLeft=12abc\nMainTop=3000\n"},
        {"[Forms]\nMainLeft=3000\nMainTop=1500\n", 3000, 1500},
        {"[Forms]\nMainLeft=3000.4\nMainTop=1499,6\n", 3000, 1500},
        {"[Forms]\nMainLeft=3.0E+03\nMainTop= 1500 \n", 3000, 1500},
    };
    for (const Caso& k : casi) {
        SCOPED_TRACE(k.forms ? k.forms : "(nessun Gorgo.ini)");
        CartellaTemporanea c;
        test::CreaArchivioDemo(c.percorso(),
                               archives::ParametriDemo{5, archives::Data{30, 12, 1900}, archives::Data{2, 1, 1890}});
        if (k.forms) std::ofstream(c / "Gorgo.ini") << k.forms;
        Messaggi m;
        std::unique_ptr<QLockFile> blocco;
        auto principale = AvviaProgramma(c.percorso(), blocco);
        ASSERT_NE(principale, nullptr);
        const QScreen* s = principale->screen();
        const QRect a = s->availableGeometry();
        // A window wider or taller than the screen keeps its corner on it.
        const QPoint atteso =
            k.left < 0 ? QPoint(std::max(a.x(), a.x() + (a.width() - principale->frameGeometry().width()) / 2),
                                std::max(a.y(), a.y() + (a.height() - principale->frameGeometry().height()) / 2))
                       : QPoint(PixelDaTwips(k.left, s), PixelDaTwips(k.top, s));
        EXPECT_EQ(principale->pos(), atteso);
        principale->show();
        EXPECT_TRUE(a.contains(principale->frameGeometry().topLeft())) << principale->x() << "," << principale->y();
        // Closing writes a moved place back in twips.
        principale->move(principale->pos() + QPoint(10, 10));
        principale->close();
        const std::string ini = test::LeggiFile(c / "Gorgo.ini");
        EXPECT_NE(ini.find(fmt::format("MainLeft={}\n", TwipsDaPixel(principale->x(), s))), std::string::npos) << ini;
        principale.reset();
    }
}

// A long job on the worker thread: the computing window shows, refuses to close, the main
// window refuses to close, and a click on cmdStop ends the job soon.
TEST(Elaborazioni, StopDiUnLavoroInCorso) {
    CartellaTemporanea c;
    test::CreaArchivioDemo(c.percorso(),
                           archives::ParametriDemo{5, archives::Data{30, 12, 1900}, archives::Data{2, 1, 1890}});
    Messaggi m;
    std::unique_ptr<QLockFile> blocco;
    auto principale = AvviaProgramma(c.percorso(), blocco);
    ASSERT_NE(principale, nullptr);
    principale->show();
    Sessione& sessione = principale->programma().sessione;

    std::atomic<bool> partito{false};
    bool finito = false, fermato = false;
    Elaborazione* e = Elaborazione::Avvia(
        principale.get(), sessione, "Analisi algoritmi...",
        [&](std::stop_token stop, const Progresso& progresso) {
            partito = true;
            for (int i = 0; !stop.stop_requested(); ++i) {
                progresso("Analisi algoritmi 27...", i % 90, 90);
                std::this_thread::sleep_for(std::chrono::milliseconds(5));
            }
        },
        [&](bool f) {
            finito = true;
            fermato = f;
        });
    ASSERT_TRUE(QTest::qWaitFor([&] { return partito.load(); }, 2000));
    FrmElaborazioni* finestra = e->finestra();
    ASSERT_NE(finestra, nullptr);
    EXPECT_TRUE(sessione.ElaborazioneInCorso);
    EXPECT_NE(QApplication::overrideCursor(), nullptr);
    finestra->close();
    EXPECT_TRUE(finestra->isVisible());
    principale->close();
    EXPECT_TRUE(principale->isVisible());

    QPushButton* stop = Trova<QPushButton>(finestra, "cmdStop");
    EXPECT_EQ(stop->toolTip(), "Annulla la ricerca in corso");
    QElapsedTimer t;
    t.start();
    QTest::mouseClick(stop, Qt::LeftButton);
    ASSERT_TRUE(QTest::qWaitFor([&] { return finito; }, 2000));
    EXPECT_LT(t.elapsed(), 1000);
    EXPECT_TRUE(fermato);
    EXPECT_FALSE(sessione.ElaborazioneInCorso);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    principale->close();
    EXPECT_FALSE(principale->isVisible());
    principale.reset();
}

}  // namespace
}  // namespace gorgo::screens
