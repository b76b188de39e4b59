// The entry screen and the print screens, opened from the main window's menus: modes by
// their controls, a paste, a store with its question answered through the message hook,
// the close question; a printed page of each layout as PDF (and PNG, for a look).

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProcess>
#include <QPushButton>
#include <QSlider>
#include <QTest>
#include <functional>

#include "app/avvio.h"
#include "archives/archivio.h"
#include "archives/demo.h"
#include "screens/common/messaggi.h"
#include "screens/maintenance/frm_input_estrazioni.h"
#include "screens/maintenance/frm_stampa_estrazioni.h"
#include "support/archivi_reali.h"
#include "support/cartelle.h"

namespace gorgo::screens {
namespace {

namespace fs = std::filesystem;
using test::CartellaTemporanea;

// Collects the messages and answers the questions with `risposta`.
struct Messaggi {
    std::vector<archives::Messaggio> visti;
    std::function<QMessageBox::StandardButton(const archives::Messaggio&)> risposta;
    GestoreMessaggi prima;
    Messaggi() {
        prima = ImpostaGestoreMessaggi([this](const archives::Messaggio& m, QMessageBox::StandardButtons pulsanti) {
            visti.push_back(m);
            if (pulsanti == QMessageBox::Ok) return QMessageBox::Ok;
            return risposta ? risposta(m) : QMessageBox::No;
        });
    }
    ~Messaggi() { ImpostaGestoreMessaggi(prima); }
};

template <typename T>
T* Trova(QWidget* w, const QString& nome) {
    T* c = w->findChild<T*>(nome);
    EXPECT_NE(c, nullptr) << nome.toStdString();
    return c;
}

QLineEdit* Casella(QWidget* f, int i) { return Trova<QLineEdit>(f, QStringLiteral("txtEstratto_%1").arg(i)); }

std::string Testo55() {
    std::string t;
    for (int i = 1; i <= 55; ++i) t += std::to_string(i) + (i % 5 == 0 ? "\n" : " - ");
    return t;
}

// The main window on a demo program folder, and the window that a menu entry opens.
class InserimentoSchermo : public ::testing::Test {
protected:
    void SetUp() override {
        test::CreaArchivioDemo(c_.percorso());
        principale_ = AvviaProgramma(c_.percorso(), blocco_);
        ASSERT_NE(principale_, nullptr);
        principale_->show();
    }
    void TearDown() override {
        principale_.reset();
        blocco_.reset();
    }
    // The archives of the running program.
    archives::Archivio& Archivio() { return *principale_->programma().archivio; }
    QWidget* Apri(const char* voce, const char* finestra) {
        QAction* a = principale_->findChild<QAction*>(voce);
        EXPECT_NE(a, nullptr) << voce;
        if (!a) return nullptr;
        EXPECT_TRUE(a->isEnabled()) << voce;
        a->trigger();
        QWidget* f = nullptr;
        for (QWidget* w : QApplication::topLevelWidgets())
            if (w->objectName() == finestra && w->isVisible()) f = w;
        EXPECT_NE(f, nullptr) << finestra;
        return f;
    }
    int Aperte(const char* finestra) {
        int n = 0;
        for (QWidget* w : QApplication::topLevelWidgets()) n += w->objectName() == finestra && w->isVisible();
        return n;
    }
    void Clic(QWidget* f, const char* pulsante) { QTest::mouseClick(Trova<QPushButton>(f, pulsante), Qt::LeftButton); }

    CartellaTemporanea c_;
    std::unique_ptr<QLockFile> blocco_;
    std::unique_ptr<FrmMain> principale_;
};

TEST_F(InserimentoSchermo, ModiDellaFinestra) {
    Messaggi m;
    QWidget* f = Apri("mnuEstrazioniInserisci", "frmInputEstrazioni");
    ASSERT_NE(f, nullptr);
    EXPECT_EQ(f->windowTitle(), "Gorgo 2 - Inserimento/modifica estrazioni lotto");
    // A second click brings the same window forward.
    Apri("mnuEstrazioniInserisci", "frmInputEstrazioni");
    EXPECT_EQ(Aperte("frmInputEstrazioni"), 1);

    const int32_t n = Archivio().NumeroEstrazioni();
    auto attivo = [&](const char* nome) { return Trova<QWidget>(f, nome)->isEnabled(); };
    // Browse.
    EXPECT_TRUE(attivo("cmdNuova"));
    EXPECT_TRUE(attivo("cmdCorreggi"));
    EXPECT_FALSE(attivo("cmdMemorizza"));
    EXPECT_FALSE(attivo("cmdInserisci"));
    EXPECT_FALSE(attivo("cmdCancella"));
    EXPECT_TRUE(attivo("Slider1"));
    EXPECT_TRUE(Casella(f, 1)->isReadOnly());
    EXPECT_EQ(Trova<QLabel>(f, "lblTotaleEstrazioni")->text(), QString::number(n));
    EXPECT_EQ(Trova<QSlider>(f, "Slider1")->value(), n);
    EXPECT_EQ(Trova<QLineEdit>(f, "txtAnno")->text(), "2025");
    EXPECT_EQ(Trova<QLabel>(f, "lblGiornoEstraz")->text(), QString::fromUtf8("martedì"));
    EXPECT_EQ(Casella(f, 1)->toolTip(), "1' estratto ruota di Bari      ");
    Clic(f, "cmdPrecedente");
    EXPECT_EQ(Trova<QSlider>(f, "Slider1")->value(), n - 1);
    Trova<QSlider>(f, "Slider1")->setValue(1);
    EXPECT_EQ(Trova<QLineEdit>(f, "txtAnno")->text(), "1871");
    EXPECT_EQ(Casella(f, 6)->text(), "0");  // Cagliari was not drawn yet

    // New.
    Clic(f, "cmdNuova");
    EXPECT_FALSE(attivo("cmdNuova"));
    EXPECT_FALSE(attivo("cmdCorreggi"));
    EXPECT_TRUE(attivo("cmdMemorizza"));
    EXPECT_TRUE(attivo("cmdInserisci"));
    EXPECT_TRUE(attivo("cmdCancella"));
    EXPECT_FALSE(attivo("Slider1"));
    EXPECT_FALSE(Casella(f, 1)->isReadOnly());
    EXPECT_FALSE(Casella(f, 55)->isReadOnly());
    EXPECT_EQ(Casella(f, 1)->text(), "");
    EXPECT_TRUE(Trova<QLineEdit>(f, "txtGiorno")->isReadOnly());
    EXPECT_EQ(Casella(f, 1)->palette().color(QPalette::Base), QColor(Qt::white));
    EXPECT_EQ(Trova<QLineEdit>(f, "txtGiorno")->text() + "/" + Trova<QLineEdit>(f, "txtMese")->text() + "/" +
                  Trova<QLineEdit>(f, "txtAnno")->text(),
              "01/01/2026");
    EXPECT_EQ(Trova<QLabel>(f, "lblNumeroAnnoEstraz")->text(), "1");
    EXPECT_EQ(Trova<QLabel>(f, "lblAnnoEstrazione")->text(), "2026 / ");
    Clic(f, "cmdPrecedente");
    EXPECT_EQ(Trova<QLineEdit>(f, "txtAnno")->text(), "2025");
    EXPECT_EQ(Trova<QLabel>(f, "lblGiornoEstraz")->text(), QString::fromUtf8("mercoledì"));
    EXPECT_NE(Trova<QLabel>(f, "lblNumeroAnnoEstraz")->text(), "1");

    // Typing takes digits only; leaving a box above 90 shows the message.
    f->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(f));
    Casella(f, 2)->setFocus();
    QTest::keyClicks(Casella(f, 2), "a9b5");
    EXPECT_EQ(Casella(f, 2)->text(), "95");
    Casella(f, 3)->setFocus();
    QApplication::processEvents();
    ASSERT_FALSE(m.visti.empty());
    EXPECT_EQ(m.visti.back().testo, "inserisci un numero tra 1 e 90 !");
    EXPECT_EQ(m.visti.back().icona, archives::Icona::Esclamazione);
    EXPECT_TRUE(Casella(f, 2)->hasFocus());
    EXPECT_EQ(Casella(f, 2)->selectedText(), "95");

    // The close question: Cancel stays.
    m.risposta = [](const archives::Messaggio&) { return QMessageBox::Cancel; };
    f->close();
    EXPECT_TRUE(f->isVisible());
    EXPECT_EQ(m.visti.back().testo, "Salvare i dati prima di chiudere?");
    EXPECT_EQ(m.visti.back().titolo, "Input estrazioni");
    // No closes without writing.
    const uint64_t lunghezza = Archivio().LunghezzaEstrazioni();
    m.risposta = [](const archives::Messaggio&) { return QMessageBox::No; };
    f->close();
    QApplication::processEvents();
    EXPECT_EQ(Aperte("frmInputEstrazioni"), 0);
    EXPECT_EQ(Archivio().LunghezzaEstrazioni(), lunghezza);
}

TEST_F(InserimentoSchermo, IncollaEMemorizzaConDomanda) {
    Messaggi m;
    QWidget* f = Apri("mnuEstrazioniInserisci", "frmInputEstrazioni");
    ASSERT_NE(f, nullptr);
    const int32_t n = Archivio().NumeroEstrazioni();
    Clic(f, "cmdNuova");

    // A paste that stops on a value out of range.
    Trova<QPlainTextEdit>(f, "Text1")->setPlainText("12 34 56 0 78 90 11 22");
    Clic(f, "cmdInserisci");
    ASSERT_EQ(m.visti.size(), 1u);
    EXPECT_EQ(m.visti[0].testo,
              "Valori incongruenti - Non è possibile decodificare  (tutto o in parte) il testo copiato !");
    EXPECT_EQ(m.visti[0].titolo, "Errore");
    EXPECT_EQ(Casella(f, 3)->text(), "56");
    EXPECT_EQ(Casella(f, 4)->text(), "");
    Clic(f, "cmdCancella");
    EXPECT_EQ(Casella(f, 1)->text(), "");
    EXPECT_EQ(Trova<QPlainTextEdit>(f, "Text1")->toPlainText(), "");

    // A whole draw pasted, one number then blanked by hand.
    Trova<QPlainTextEdit>(f, "Text1")->setPlainText(QString::fromStdString(Testo55()));
    Clic(f, "cmdInserisci");
    EXPECT_EQ(Casella(f, 55)->text(), "55");
    Casella(f, 20)->setText("");

    // The question answered No: nothing written, still composing.
    bool segnale = false;
    QObject::connect(static_cast<FrmInputEstrazioni*>(f), &FrmInputEstrazioni::estrazioneMemorizzata,
                     [&] { segnale = true; });
    m.risposta = [](const archives::Messaggio&) { return QMessageBox::No; };
    Clic(f, "cmdMemorizza");
    EXPECT_EQ(m.visti.back().testo, "Manca 1 numero. Memorizzi ugualmente ?");
    EXPECT_EQ(m.visti.back().titolo, "Conferma");
    EXPECT_EQ(Archivio().NumeroEstrazioni(), n);
    EXPECT_TRUE(Trova<QWidget>(f, "cmdMemorizza")->isEnabled());
    EXPECT_FALSE(segnale);

    // Yes: stored, back to browse, the main panel shows the new last draw.
    m.risposta = [](const archives::Messaggio&) { return QMessageBox::Yes; };
    Clic(f, "cmdMemorizza");
    EXPECT_TRUE(segnale);
    ASSERT_EQ(Archivio().NumeroEstrazioni(), n + 1);
    const archives::RecordEstrazione r = Archivio().LeggiEstrazione(n + 1);
    EXPECT_EQ(r.dataTesto(), "01/01/2026");
    EXPECT_EQ(r.Numero(4, 5), 0);
    EXPECT_EQ(r.Numero(11, 5), 55);
    EXPECT_EQ(Archivio().LeggiAnno(Archivio().NumeroAnni()).anno(), 2026);
    EXPECT_TRUE(archives::VerificaIntegrita(Archivio()).vuoto());
    EXPECT_TRUE(Trova<QWidget>(f, "cmdNuova")->isEnabled());
    EXPECT_TRUE(Casella(f, 1)->isReadOnly());
    EXPECT_EQ(Trova<QLabel>(f, "lblTotaleEstrazioni")->text(), QString::number(n + 1));
    EXPECT_EQ(Trova<QSlider>(f, "Slider1")->maximum(), n + 1);
    EXPECT_EQ(Trova<QLabel>(principale_.get(), "lblUltimaEstrazione_0")->text(), "n.1 del 01/01/2026");

    // Correction: the date boxes open, the store writes in place.
    Clic(f, "cmdCorreggi");
    EXPECT_FALSE(Trova<QLineEdit>(f, "txtGiorno")->isReadOnly());
    EXPECT_FALSE(Trova<QWidget>(f, "cmdInserisci")->isEnabled());
    Casella(f, 20)->setText("77");
    Clic(f, "cmdMemorizza");
    EXPECT_EQ(Archivio().NumeroEstrazioni(), n + 1);
    EXPECT_EQ(Archivio().LeggiEstrazione(n + 1).Numero(4, 5), 77);
    // Closing in browse asks nothing.
    const size_t visti = m.visti.size();
    f->close();
    EXPECT_EQ(m.visti.size(), visti);
}

TEST_F(InserimentoSchermo, SuperEnalottoMemorizzaDopoLaChiusura) {
    Messaggi m;
    QWidget* f = Apri("mnuEstrazioniInserisciSuper", "frmInputEstrazioniSuperEnalotto");
    ASSERT_NE(f, nullptr);
    EXPECT_EQ(f->windowTitle(), "Inserimento estrazioni Superenalotto");
    EXPECT_EQ(f->findChild<QLineEdit*>("txtEstratto_9"), nullptr);
    const int32_t n = Archivio().NumeroEstrazioniSuper();
    Clic(f, "cmdNuova");
    Trova<QPlainTextEdit>(f, "Text1")->setPlainText("3 14 15 92");
    // Straight to the store: the paste is decoded first, and stops on 92.
    Clic(f, "cmdMemorizza");
    EXPECT_EQ(m.visti.back().testo,
              "Valori incongruenti - Non è possibile decodificare  (tutto o in parte) il testo copiato !");
    EXPECT_EQ(Archivio().NumeroEstrazioniSuper(), n);
    Trova<QPlainTextEdit>(f, "Text1")->setPlainText("3 14 15 22 65 35 - 8, 9");
    Clic(f, "cmdInserisci");
    // Yes to "save before closing" stores and closes.
    m.risposta = [](const archives::Messaggio&) { return QMessageBox::Yes; };
    f->close();
    QApplication::processEvents();
    EXPECT_EQ(Aperte("frmInputEstrazioniSuperEnalotto"), 0);
    ASSERT_EQ(Archivio().NumeroEstrazioniSuper(), n + 1);
    const archives::RecordSuperEnalotto r = Archivio().LeggiRecordSuper(n + 1);
    EXPECT_EQ(r.Sestina[5], 35);
    EXPECT_EQ(r.Jolly, 8);
    EXPECT_EQ(r.SuperStar, 9);
}

// ---------------------------------------------------------------- printing

std::string Esegui(const QString& programma, const QStringList& argomenti) {
    QProcess p;
    p.start(programma, argomenti);
    if (!p.waitForFinished(60000) || p.exitCode() != 0) return {};
    return p.readAllStandardOutput().toStdString();
}

// The first page as PNG beside the PDF, and where $GORGO_STAMPE_PNG says, for a look.
bool Png(const QString& pdf, const QString& nome) {
    const QString base = QFileInfo(pdf).absolutePath() + u'/' + nome;
    QProcess p;
    p.start(QStringLiteral("pdftoppm"), {"-png", "-r", "90", "-f", "1", "-l", "1", "-singlefile", pdf, base});
    if (!p.waitForFinished(60000) || p.exitCode() != 0) return false;
    const QString png = base + QStringLiteral(".png");
    if (QFileInfo(png).size() == 0) return false;
    const QString cartella = qEnvironmentVariable("GORGO_STAMPE_PNG");
    if (!cartella.isEmpty()) {
        QDir().mkpath(cartella);
        QFile::remove(cartella + u'/' + nome + QStringLiteral(".png"));
        QFile::copy(png, cartella + u'/' + nome + QStringLiteral(".png"));
    }
    return true;
}

TEST_F(InserimentoSchermo, StampaDiOgniLayoutInPdf) {
    Messaggi m;
    auto* lotto = static_cast<FrmStampaEstrazioni*>(Apri("mnuEstrazioniStampa", "frmStampaEstrazioni"));
    ASSERT_NE(lotto, nullptr);
    EXPECT_EQ(lotto->windowTitle(), "Gorgo 2 - Stampa estrazioni");
    Apri("mnuEstrazioniStampa", "frmStampaEstrazioni");
    EXPECT_EQ(Aperte("frmStampaEstrazioni"), 1);
    // The default stretch is the saved search range: the whole archive.
    EXPECT_EQ(Trova<QLineEdit>(lotto, "txtDataInizio")->text(), "07/01/1871");
    EXPECT_EQ(Trova<QLineEdit>(lotto, "txtDataFine")->text(), "30/12/2025");

    Trova<QLineEdit>(lotto, "txtDataInizio")->setText("01/10/2025");
    Trova<QLineEdit>(lotto, "txtDataFine")->setText("30/12/2025");
    Trova<QCheckBox>(lotto, "chkDettagliata")->setChecked(true);
    const QString cartella = QString::fromStdString(c_.percorso().string());
    // The table needs one wheel.
    EXPECT_FALSE(lotto->EsportaPdf(cartella + "/x.pdf"));
    ASSERT_EQ(m.visti.size(), 1u);
    EXPECT_EQ(m.visti[0].testo, "E' necessario selezionare una ruota singola!");
    EXPECT_FALSE(QFileInfo::exists(cartella + "/x.pdf"));
    // A start that is no draw date moves to the next draw.
    EXPECT_EQ(Trova<QLineEdit>(lotto, "txtDataInizio")->text().toStdString(),
              Archivio().DataEstrazione(Archivio().CercaIndice({1, 10, 2025}, false)->IndiceTrovato));

    struct Caso {
        const char* nome;
        int ruota;
        bool dettagliata;
        std::string atteso;
    };
    const Caso casi[] = {
        {"lista", 1, false, "Ruota : Bari"},
        {"blocchi", 0, false, "Nazionale"},
        {"tabella", 8, true, "Estrazioni della ruota di Roma"},
    };
    for (const Caso& c : casi) {
        Trova<QComboBox>(lotto, "cboRuota")->setCurrentIndex(c.ruota);
        Trova<QCheckBox>(lotto, "chkDettagliata")->setChecked(c.dettagliata);
        const QString pdf = cartella + "/" + c.nome + ".pdf";
        ASSERT_TRUE(lotto->EsportaPdf(pdf)) << c.nome;
        const std::string testo = Esegui("pdftotext", {"-layout", pdf, "-"});
        EXPECT_NE(testo.find("Gorgo - Stampa estrazioni dal"), std::string::npos) << c.nome << testo;
        EXPECT_NE(testo.find(c.atteso), std::string::npos) << c.nome;
        EXPECT_NE(testo.find("Pag.   1"), std::string::npos) << c.nome;
        EXPECT_TRUE(Png(pdf, c.nome)) << c.nome;
    }
    // The table's rulers and marks come out as laid out.
    const std::string tabella = Esegui("pdftotext", {"-layout", cartella + "/tabella.pdf", "-"});
    EXPECT_NE(tabella.find("0000000001 1111111112 2222222223"), std::string::npos);
    EXPECT_NE(tabella.find("1234567890 1234567890 1234567890"), std::string::npos);

    auto* super =
        static_cast<FrmStampaEstrazioni*>(Apri("mnuEstrazioniStampaSuper", "frmStampaEstrazioniSuperEnalotto"));
    ASSERT_NE(super, nullptr);
    EXPECT_EQ(super->findChild<QComboBox*>("cboRuota"), nullptr);
    Trova<QLineEdit>(super, "txtDataInizio")->setText("01/01/2025");
    ASSERT_TRUE(super->EsportaPdf(cartella + "/super.pdf"));
    const std::string testoSuper = Esegui("pdftotext", {"-layout", cartella + "/super.pdf", "-"});
    EXPECT_NE(testoSuper.find("N U M E R I"), std::string::npos);
    EXPECT_NE(testoSuper.find("Gorgo - Stampa estrazioni Superenalotto dal"), std::string::npos);
    EXPECT_TRUE(Png(cartella + "/super.pdf", "super"));

    auto* dieci = static_cast<FrmStampaEstrazioni*>(Apri("mnuEstrazioniStampa10elotto", "frmStampaEstrazioni10eLotto"));
    ASSERT_NE(dieci, nullptr);
    Trova<QLineEdit>(dieci, "txtDataInizio")->setText("01/12/2025");
    Trova<QLineEdit>(dieci, "txtDataFine")->setText("30/12/2025");
    ASSERT_TRUE(dieci->EsportaPdf(cartella + "/dieci.pdf"));
    const std::string testoDieci = Esegui("pdftotext", {"-layout", cartella + "/dieci.pdf", "-"});
    EXPECT_NE(testoDieci.find("Gorgo - Stampa estrazioni 10eLotto dal"), std::string::npos);
    EXPECT_TRUE(Png(cartella + "/dieci.pdf", "dieci"));
    EXPECT_EQ(m.visti.size(), 1u);
}

}  // namespace
}  // namespace gorgo::screens
