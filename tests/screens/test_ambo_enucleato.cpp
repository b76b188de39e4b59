// frmAmboEnucleato and its satellites on a copy of the real archives: the matrix and the list
// of the sums, the statistics through the computing window, the pairs of a sum and their
// delay detail, the group of the mathematical pairs, a printed page.

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPrinter>
#include <QProcess>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>
#include <cstdlib>

#include "app/avvio.h"
#include "screens/common/messaggi.h"
#include "screens/common/stampa.h"
#include "support/archivi_reali.h"
#include "support/cartelle.h"

namespace gorgo::screens {
namespace {

template <typename T>
T* Trova(QWidget* w, const QString& nome) {
    T* c = w->findChild<T*>(nome);
    EXPECT_NE(c, nullptr) << nome.toStdString();
    return c;
}

QWidget* Finestra(const QString& nome) {
    for (QWidget* w : QApplication::topLevelWidgets())
        if (w->objectName() == nome && w->isVisible()) return w;
    return nullptr;
}

// Screenshots for a look by eye when GORGO_CATTURE names a folder.
void Cattura(QWidget* w, const char* nome) {
    if (const char* c = std::getenv("GORGO_CATTURE")) w->grab().save(QString("%1/%2.png").arg(c, nome));
}

bool Attendi(const std::function<bool()>& condizione, int ms = 20000) {
    for (int t = 0; t < ms && !condizione(); t += 20) QTest::qWait(20);
    return condizione();
}

TEST(AmboEnucleato, DallaListaAlDettaglio) {
    auto reale = test::CartellaReale();
    if (!reale) GTEST_SKIP() << "archivi reali assenti";
    test::CartellaTemporanea c;
    test::CopiaArchiviReali(*reale, c.percorso());
    std::vector<archives::Messaggio> messaggi;
    const GestoreMessaggi prima = ImpostaGestoreMessaggi([&](const archives::Messaggio& m, auto) {
        messaggi.push_back(m);
        return QMessageBox::Ok;
    });
    std::unique_ptr<QLockFile> blocco;
    std::unique_ptr<FrmMain> principale = AvviaProgramma(c.percorso(), blocco);
    ASSERT_NE(principale, nullptr);
    principale->show();
    QPushButton* apri = Trova<QPushButton>(principale.get(), "cmdAmboEnucleato");
    ASSERT_TRUE(apri->isEnabled());
    QTest::mouseClick(apri, Qt::LeftButton);
    QWidget* f = Finestra("frmAmboEnucleato");
    ASSERT_NE(f, nullptr);
    EXPECT_EQ(f->windowTitle(), "   Ambo enucleato - Ideato da Sergio Tordelli");
    QTest::mouseClick(apri, Qt::LeftButton);  // brought forward, not opened twice
    int aperte = 0;
    for (QWidget* w : QApplication::topLevelWidgets()) aperte += w->objectName() == "frmAmboEnucleato";
    EXPECT_EQ(aperte, 1);

    // The last draw: its first label, and one step back and forth keeps DTPickerA in step.
    EXPECT_EQ(Trova<QLabel>(f, "lblNumero_1")->text(), "15");
    QTest::mouseClick(Trova<QPushButton>(f, "cmdPrecedente"), Qt::LeftButton);
    EXPECT_EQ(Trova<QDateEdit>(f, "DTPickerA")->date(), Trova<QDateEdit>(f, "DTPickerEstrazione")->date());
    QTest::mouseClick(Trova<QPushButton>(f, "cmdSuccessiva"), Qt::LeftButton);
    EXPECT_EQ(Trova<QDateEdit>(f, "DTPickerA")->date(), QDate(2025, 12, 30));
    Trova<QCheckBox>(f, "chkMatematici")->click();

    QTest::mouseClick(Trova<QPushButton>(f, "cmdCalcola"), Qt::LeftButton);
    QTreeWidget* lista = Trova<QTreeWidget>(f, "ListView1");
    ASSERT_EQ(lista->topLevelItemCount(), 11);
    EXPECT_EQ(lista->topLevelItem(1)->text(0), "BA   15-65");
    Trova<QCheckBox>(f, "chkRuota_9")->click();
    QTest::mouseClick(Trova<QPushButton>(f, "cmdCalcola"), Qt::LeftButton);
    EXPECT_EQ(lista->topLevelItemCount(), 22);
    Cattura(f, "frmAmboEnucleato");

    // The statistics of the pairs of Torino.
    Trova<QDateEdit>(f, "DTPickerDa")->setDate(QDate(1946, 1, 1));
    QTest::mouseClick(Trova<QPushButton>(f, "cmdStatistica_0"), Qt::LeftButton);
    QWidget* st = Finestra("frmStatisticaGenerale");
    ASSERT_NE(st, nullptr);
    QTreeWidget* righe = Trova<QTreeWidget>(st, "ListView2");
    ASSERT_TRUE(Attendi([&] { return righe->topLevelItemCount() >= 15; }));
    EXPECT_EQ(righe->topLevelItem(0)->text(0), "Torino");
    EXPECT_EQ(righe->topLevelItem(0)->text(5), "");  // no mean with the mathematical pairs only
    Cattura(st, "frmStatisticaGenerale");

    // A double click opens the pairs of that sum; "Dettagli..." their delays.
    QTreeWidgetItem* primaRiga = righe->topLevelItem(0);
    emit righe->itemDoubleClicked(primaRiga, 0);
    QWidget* coppie = Finestra("frmCoppie");
    ASSERT_NE(coppie, nullptr);
    const QString somma = primaRiga->text(1).trimmed();
    EXPECT_TRUE(Trova<QLabel>(coppie, "lblDescrizione")->text().startsWith("Coppie su TO con rit." + somma + " al "));
    EXPECT_TRUE(Trova<QLabel>(coppie, "lblTotCoppie")->text().endsWith(" coppie in lista"));
    EXPECT_EQ(Trova<QLabel>(coppie, "lblSommaCercata")->text(), somma);
    Cattura(coppie, "frmCoppie");
    QTest::mouseClick(Trova<QPushButton>(coppie, "Command1"), Qt::LeftButton);
    QWidget* det = Finestra("frmDettaglioRitardi");
    ASSERT_NE(det, nullptr);
    EXPECT_EQ(Trova<QLabel>(det, "lblRuota")->text(), "Torino");
    QTest::mouseClick(Trova<QPushButton>(det, "cmdRicerca"), Qt::LeftButton);
    QTreeWidget* ritardi = Trova<QTreeWidget>(det, "ListView2");
    ASSERT_GT(ritardi->topLevelItemCount(), 1);
    // By presences, most first, as the engine gives them: no column sorts them meanwhile.
    for (int i = 1; i < ritardi->topLevelItemCount(); ++i)
        EXPECT_GE(ritardi->topLevelItem(i - 1)->text(1).trimmed().toInt(),
                  ritardi->topLevelItem(i)->text(1).trimmed().toInt());
    Cattura(det, "frmDettaglioRitardi");

    // Moving the draw erases the tables: the lists that read them are emptied.
    QTest::mouseClick(Trova<QPushButton>(f, "cmdPrecedente"), Qt::LeftButton);
    EXPECT_EQ(righe->topLevelItemCount(), 0);
    EXPECT_EQ(Trova<QTreeWidget>(coppie, "ListView1")->topLevelItemCount(), 0);

    // The group of the mathematical pairs on all wheels.
    QTest::mouseClick(Trova<QPushButton>(f, "Command1"), Qt::LeftButton);
    QWidget* g = Finestra("frmStatisticaAmbiMatematici");
    ASSERT_NE(g, nullptr);
    QTest::mouseClick(Trova<QPushButton>(g, "cmdStatistica_1"), Qt::LeftButton);
    ASSERT_TRUE(Attendi([&] { return !Trova<QPlainTextEdit>(g, "txtResult")->toPlainText().isEmpty(); }));
    const QString riepilogo = Trova<QPlainTextEdit>(g, "txtResult")->toPlainText();
    EXPECT_TRUE(riepilogo.startsWith("BA  -->  Freq.: "));
    EXPECT_TRUE(riepilogo.contains("\n TUTTE -->  Freq.: "));
    EXPECT_GT(Trova<QTreeWidget>(g, "ListView1")->topLevelItemCount(), 0);
    Cattura(g, "frmStatisticaAmbiMatematici");

    // The list printed: the boxed table of the sums.
    const QString pdf = QString::fromStdString((c / "enucleato.pdf").string());
    ApriDialogoStampa = [&](QWidget*, QPrinter& stampante) {
        stampante.setOutputFormat(QPrinter::PdfFormat);
        stampante.setOutputFileName(pdf);
        return true;
    };
    QTest::mouseClick(Trova<QPushButton>(f, "cmdStampa"), Qt::LeftButton);
    ApriDialogoStampa = DialogoStampaPredefinito();
    if (const char* cat = std::getenv("GORGO_CATTURE")) QFile::copy(pdf, QString("%1/enucleato.pdf").arg(cat));
    QProcess p;
    p.start("pdftotext", {"-layout", pdf, "-"});
    ASSERT_TRUE(p.waitForFinished(20000));
    const QString testo = QString::fromUtf8(p.readAllStandardOutput()).simplified();
    EXPECT_TRUE(testo.contains("| Descr. ambo | Prog. | Data | Somma rit. | Note |"));
    EXPECT_TRUE(testo.contains("BA 15-65"));
    EXPECT_TRUE(messaggi.empty());
    principale.reset();
    blocco.reset();
    ImpostaGestoreMessaggi(prima);
}

}  // namespace
}  // namespace gorgo::screens
