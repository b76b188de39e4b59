// The help windows: sections of HelpUtility.txt in frmHelp, HTML topics in frmAiuto.

#include <gtest/gtest.h>
#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>
#include <QTextBrowser>
#include <QTimer>

#include <fstream>
#include <string>
#include <vector>

#include "config/cp1252.h"
#include "config/ini.h"
#include "screens/common/aiuto.h"
#include "screens/common/sessione.h"
#include "screens/common/stampa.h"
#include "support/cartelle.h"

namespace {

namespace fs = std::filesystem;
namespace gs = gorgo::screens;

QString Q(const fs::path& p) { return QString::fromStdString(p.string()); }

QWidget* Finestra(const char* nome) {
    for (QWidget* w : QApplication::topLevelWidgets())
        if (w->objectName() == QLatin1String(nome) && w->isVisible()) return w;
    return nullptr;
}

void ChiudiTutte() {
    for (QWidget* w : QApplication::topLevelWidgets())
        if (w->objectName() == QLatin1String("frmHelp") || w->objectName() == QLatin1String("frmAiuto")) w->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QStringList VociLista(QWidget* frmHelp) {
    QStringList voci;
    auto* lista = frmHelp->findChild<QListWidget*>("lstHelp");
    for (int i = 0; lista && i < lista->count(); ++i) voci << lista->item(i)->text();
    return voci;
}

// The section as a reader of the file sees it, written out independently of the code.
QStringList SezioneDelFile(const fs::path& file, const std::string& titolo) {
    std::ifstream f(file);
    std::string riga;
    QStringList righe;
    bool dentro = false;
    while (std::getline(f, riga)) {
        if (!riga.empty() && riga.back() == '\r') riga.pop_back();
        if (dentro && riga.rfind('[', 0) == 0) break;
        if (dentro) righe << QString::fromStdString(riga);
        if (riga == titolo) dentro = true;
    }
    return righe;
}

// Presses a button and gives back the modal window it opens, closed at once: its name and,
// for a message box, its text. Any other window is closed too, so that no test hangs on it.
struct Aperta {
    QString nome, testo;
};

Aperta FinestraDopoClick(QWidget* pulsante) {
    Aperta aperta;
    QTimer chiudi;
    chiudi.setInterval(10);
    QObject::connect(&chiudi, &QTimer::timeout, [&] {
        auto* dialogo = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!dialogo) return;
        aperta.nome = dialogo->objectName();
        if (auto* box = qobject_cast<QMessageBox*>(dialogo)) aperta.testo = box->text();
        dialogo->reject();
        chiudi.stop();
    });
    chiudi.start();
    QTest::mouseClick(pulsante, Qt::LeftButton);
    return aperta;
}

void Scrivi(const fs::path& file, const std::string& byte) {
    std::ofstream f(file, std::ios::binary);
    f << byte;
}

class Aiuto : public ::testing::Test {
protected:
    void SetUp() override { ChiudiTutte(); }
    void TearDown() override {
        ChiudiTutte();
        gs::ScegliFileReport = gs::SceltaFileReportPredefinita();
        gs::ChiediReport = gs::DomandaReportPredefinita();
    }

    gorgo::test::CartellaTemporanea cartella_;
    gorgo::config::FileIni ini_;
    gs::Sessione sessione_{ini_, cartella_.percorso()};
};

const std::vector<std::string> SezioniSpedite = {gs::SezioneAmboEnucleato, gs::SezioneUtility,
                                                 gs::SezioneNumeriSimpatici, gs::SezioneAmbateAmbiTerniMulti,
                                                 gs::SezionePuntiIncogniti};

TEST_F(Aiuto, OgniSezioneSpeditaSiApreConLeSueRighe) {
    const fs::path spedito = gs::CartellaDati() / "HelpUtility.txt";
    ASSERT_TRUE(fs::exists(spedito));
    for (const auto& titolo : SezioniSpedite) {
        SCOPED_TRACE(titolo);
        gs::MostraAiuto(nullptr, sessione_, QString::fromStdString(titolo));
        QWidget* frm = Finestra("frmHelp");
        ASSERT_NE(frm, nullptr);
        QString atteso = QString::fromStdString(titolo);
        atteso.remove('[').remove(']');
        EXPECT_EQ(frm->windowTitle(), atteso + ' ');
        const QStringList voci = VociLista(frm);
        EXPECT_EQ(voci, SezioneDelFile(spedito, titolo));
        EXPECT_GE(voci.size(), 10);
        EXPECT_LE(voci.size(), 25);
        for (const QString& v : voci) EXPECT_FALSE(v.trimmed().isEmpty());
        // The text is decoded: accented letters, no replacement characters.
        EXPECT_FALSE(voci.join('\n').contains(QChar(0xFFFD)));
    }
    // One window, reused by every call.
    int finestre = 0;
    for (QWidget* w : QApplication::topLevelWidgets()) finestre += w->objectName() == "frmHelp" && w->isVisible();
    EXPECT_EQ(finestre, 1);
}

TEST_F(Aiuto, UnTitoloCheNonCeNonMostraNulla) {
    gs::MostraAiuto(nullptr, sessione_, QStringLiteral("[Sezione inesistente]"));
    EXPECT_EQ(Finestra("frmHelp"), nullptr);
    gs::MostraAiuto(nullptr, sessione_, QString());
    EXPECT_EQ(Finestra("frmHelp"), nullptr);
}

TEST_F(Aiuto, IlFileDelProgrammaVincePrimaDiQuelloSpedito) {
    Scrivi(cartella_ / "HelpUtility.txt",
           "Riga prima di ogni sezione\r\n"
           "[Prima]\r\n"
           "uno\r\n"
           "\r\n"
           "  due, con spazi\r\n"
           "[Seconda]\r\n"
           "tre\r\n"
           "[Ultima]\r\n"
           "quattro\r\n"
           "cinque [tra parentesi]\r\n"
           "sei\r\n");
    gs::MostraAiuto(nullptr, sessione_, QStringLiteral("[Prima]"));
    QWidget* frm = Finestra("frmHelp");
    ASSERT_NE(frm, nullptr);
    EXPECT_EQ(frm->windowTitle(), "Prima ");
    EXPECT_EQ(VociLista(frm), (QStringList{"uno", "", "  due, con spazi"}));

    // The last section goes to the end of the file, whole.
    gs::MostraAiuto(nullptr, sessione_, QStringLiteral("[Ultima]"));
    EXPECT_EQ(VociLista(frm), (QStringList{"quattro", "cinque [tra parentesi]", "sei"}));

    // A section of the shipped file is not looked for once the program folder has its own.
    gs::MostraAiuto(nullptr, sessione_, QString::fromStdString(gs::SezioneUtility));
    EXPECT_EQ(frm->windowTitle(), "Ultima ");
}

TEST_F(Aiuto, UnFileInWindows1252SiLeggeComeTale) {
    Scrivi(cartella_ / "HelpUtility.txt", gorgo::config::Utf8InCp1252("[Città]\nperché è così: 90°\n"));
    gs::MostraAiuto(nullptr, sessione_, QStringLiteral("[Città]"));
    QWidget* frm = Finestra("frmHelp");
    ASSERT_NE(frm, nullptr);
    EXPECT_EQ(frm->windowTitle(), QStringLiteral("Città "));
    EXPECT_EQ(VociLista(frm), QStringList{QStringLiteral("perché è così: 90°")});

    EXPECT_EQ(gs::DecodificaTestoAiuto(QByteArray("\xC3\xA0")), QStringLiteral("à"));
    EXPECT_EQ(gs::DecodificaTestoAiuto(QByteArray("\xE0")), QStringLiteral("à"));
    EXPECT_EQ(gs::DecodificaTestoAiuto(QByteArray("\x80")), QStringLiteral("€"));
}

TEST_F(Aiuto, ConLaListaVuotaNonCeNullaDaStampare) {
    Scrivi(cartella_ / "HelpUtility.txt", "[Vuota]\n[Altra]\nriga\n");
    gs::MostraAiuto(nullptr, sessione_, QStringLiteral("[Vuota]"));
    QWidget* frm = Finestra("frmHelp");
    ASSERT_NE(frm, nullptr);
    EXPECT_TRUE(VociLista(frm).isEmpty());
    int dialoghi = 0;
    gs::ScegliFileReport = [&](QWidget*, const QString&, const QString&, const QString&) {
        ++dialoghi;
        return QString();
    };
    for (const char* nome : {"cmdStampaRisultati", "cmdPrintToFile"}) {
        auto* pulsante = frm->findChild<QPushButton*>(nome);
        ASSERT_NE(pulsante, nullptr) << nome;
        EXPECT_EQ(FinestraDopoClick(pulsante).testo, QStringLiteral("Non c'è nulla da stampare!")) << nome;
    }
    EXPECT_EQ(dialoghi, 0);
}

TEST_F(Aiuto, StampaApreIlDialogoDiStampa) {
    gs::MostraAiuto(nullptr, sessione_, QString::fromStdString(gs::SezioneUtility));
    QWidget* frm = Finestra("frmHelp");
    ASSERT_NE(frm, nullptr);
    const Aperta aperta = FinestraDopoClick(frm->findChild<QPushButton*>("cmdStampaRisultati"));
    EXPECT_EQ(aperta.nome, "frmStampa");
    EXPECT_TRUE(aperta.testo.isEmpty());
}

TEST_F(Aiuto, SuFileScriveHelpTxt) {
    gs::MostraAiuto(nullptr, sessione_, QString::fromStdString(gs::SezionePuntiIncogniti));
    QWidget* frm = Finestra("frmHelp");
    ASSERT_NE(frm, nullptr);
    const fs::path file = cartella_ / "Help.txt";
    QString proposto;
    gs::ScegliFileReport = [&](QWidget*, const QString&, const QString& p, const QString&) {
        proposto = p;
        return Q(file);
    };
    std::string domanda;
    gs::ChiediReport = [&](QWidget*, const gorgo::archives::Messaggio& m, QMessageBox::StandardButtons,
                           QMessageBox::StandardButton) {
        domanda = m.testo;
        return QMessageBox::Yes;
    };
    auto* cmdPrintToFile = frm->findChild<QPushButton*>("cmdPrintToFile");
    ASSERT_NE(cmdPrintToFile, nullptr);
    QTest::mouseClick(cmdPrintToFile, Qt::LeftButton);
    EXPECT_EQ(proposto, Q(cartella_ / "Help.txt"));
    EXPECT_TRUE(domanda.empty());
    const std::string atteso = [&] {
        std::string s;
        for (const QString& v : VociLista(frm)) s += v.toStdString() + "\r\n";
        return gorgo::config::Utf8InCp1252(s);
    }();
    EXPECT_EQ(gorgo::test::LeggiFile(file), atteso);

    // Again on the same file: the overwrite question.
    QTest::mouseClick(cmdPrintToFile, Qt::LeftButton);
    EXPECT_EQ(domanda, "Il file " + file.string() + " è già esistente. Sovrascrivi ?");
    EXPECT_EQ(gorgo::test::LeggiFile(file), atteso);
}

TEST_F(Aiuto, Command1ChiudeELaListaSegueLaFinestra) {
    gs::MostraAiuto(nullptr, sessione_, QString::fromStdString(gs::SezioneAmboEnucleato));
    QWidget* frm = Finestra("frmHelp");
    ASSERT_NE(frm, nullptr);
    auto* lista = frm->findChild<QListWidget*>("lstHelp");
    ASSERT_NE(lista, nullptr);
    frm->resize(500, 400);
    QApplication::processEvents();
    const QSize prima = lista->size();
    frm->resize(800, 650);
    QApplication::processEvents();
    EXPECT_EQ(lista->width() - prima.width(), 300);
    EXPECT_EQ(lista->height() - prima.height(), 250);

    QTest::mouseClick(frm->findChild<QPushButton*>("Command1"), Qt::LeftButton);
    EXPECT_EQ(Finestra("frmHelp"), nullptr);
}

const std::vector<int> Contesti = {
    gs::AiutoInserimento,           gs::AiutoConsultazione, gs::AiutoSommeDistanze,    gs::AiutoAggiornamentiSuper,
    gs::AiutoAggiornaSuperInternet, gs::AiutoEsportazione,  gs::AiutoStampaEstrazioni, gs::AiutoOpzioni};

TEST_F(Aiuto, HelpContextApreLArgomentoDiOgniNumero) {
    for (int n : Contesti) {
        SCOPED_TRACE(n);
        gs::HelpContext(nullptr, ini_, n);
        QWidget* frm = Finestra("frmAiuto");
        ASSERT_NE(frm, nullptr);
        auto* testo = frm->findChild<QTextBrowser*>("txtAiuto");
        ASSERT_NE(testo, nullptr);
        EXPECT_TRUE(testo->source().toLocalFile().endsWith(QString::number(n) + ".html"));
        EXPECT_FALSE(testo->documentTitle().isEmpty());
        EXPECT_EQ(frm->windowTitle(), "Aiuto - " + testo->documentTitle());
        EXPECT_GT(testo->toPlainText().size(), 400);
        EXPECT_FALSE(testo->toPlainText().contains(QChar(0xFFFD)));
    }
}

TEST_F(Aiuto, UnNumeroSenzaArgomentoNonMostraNulla) {
    gs::HelpContext(nullptr, ini_, 4242);
    EXPECT_EQ(Finestra("frmAiuto"), nullptr);
    gs::HelpContext(nullptr, ini_, 0);
    EXPECT_EQ(Finestra("frmAiuto"), nullptr);
}

TEST_F(Aiuto, LIndiceRimandaATuttiGliArgomenti) {
    const fs::path cartella = gs::CartellaDati() / "help";
    QFile indice(Q(cartella / "indice.html"));
    ASSERT_TRUE(indice.open(QIODevice::ReadOnly));
    const QString html = QString::fromUtf8(indice.readAll());
    for (int n : Contesti) EXPECT_TRUE(html.contains(QString("href=\"%1.html\"").arg(n))) << n;

    // Every link of every page reaches a page that ships; nothing is fetched from outside.
    static const QRegularExpression collegamento("(?:href|src)=\"([^\"]*)\"");
    for (const auto& voce : fs::directory_iterator(cartella)) {
        QFile f(Q(voce.path()));
        ASSERT_TRUE(f.open(QIODevice::ReadOnly));
        const QString pagina = QString::fromUtf8(f.readAll());
        EXPECT_FALSE(pagina.contains("src=")) << voce.path();
        for (auto m = collegamento.globalMatch(pagina); m.hasNext();) {
            const QString destinazione = m.next().captured(1);
            EXPECT_TRUE(fs::exists(cartella / destinazione.toStdString()))
                << voce.path() << " -> " << destinazione.toStdString();
        }
    }

    // The index button of the window goes back to it.
    gs::HelpContext(nullptr, ini_, gs::AiutoOpzioni);
    QWidget* frm = Finestra("frmAiuto");
    ASSERT_NE(frm, nullptr);
    QTest::mouseClick(frm->findChild<QPushButton*>("cmdIndice"), Qt::LeftButton);
    EXPECT_TRUE(frm->findChild<QTextBrowser*>("txtAiuto")->source().toLocalFile().endsWith("indice.html"));
}

}  // namespace
