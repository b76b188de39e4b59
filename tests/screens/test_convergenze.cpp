// The builder's frames on a copy of the real archives: convergences of the checked rows, the
// lunghetta, and the capogioco panel following the row clicked.

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QFileInfo>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTreeWidget>

#include "app/avvio.h"
#include "builder/convergenze.h"
#include "screens/builder/frm_costruttore.h"
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

void Spunta(QWidget* f, const char* nome, bool on) {
    QCheckBox* c = Trova<QCheckBox>(f, nome);
    if (c->isChecked() != on) c->click();
}

// Saves a picture of the window when GORGO_CATTURE names a folder: a look at the layout.
void Cattura(QWidget* w, const char* nome) {
    if (const char* cartella = std::getenv("GORGO_CATTURE"))
        w->grab().save(QString::fromLocal8Bit(cartella) + "/" + nome + ".png");
}

TEST(FrameCostruttore, ConvergenzeLunghettaECapogioco) {
    auto reale = test::CartellaReale();
    if (!reale) GTEST_SKIP() << "archivi reali assenti";
    test::CartellaTemporanea c;
    test::CopiaArchiviReali(*reale, c.percorso());
    std::vector<archives::Messaggio> messaggi;
    const GestoreMessaggi prima =
        ImpostaGestoreMessaggi([&](const archives::Messaggio& m, QMessageBox::StandardButtons) {
            messaggi.push_back(m);
            return QMessageBox::Ok;
        });
    std::unique_ptr<QLockFile> blocco;
    std::unique_ptr<FrmMain> principale = AvviaProgramma(c.percorso(), blocco);
    ASSERT_NE(principale, nullptr);
    principale->show();
    QTest::mouseClick(Trova<QPushButton>(principale.get(), "cmdGorgo"), Qt::LeftButton);
    FrmCostruttore* f = nullptr;
    for (QWidget* w : QApplication::topLevelWidgets())
        if (w->objectName() == "frmCostruttore") f = qobject_cast<FrmCostruttore*>(w);
    ASSERT_NE(f, nullptr);

    // Spy 27 on every wheel, played on Milano, every month index, the last ten years.
    Trova<QComboBox>(f, "cboNumero")->setCurrentIndex(26);
    Spunta(f, "chkRuota_0", true);
    Spunta(f, "chkRuotaG_0", false);
    for (int w = 1; w <= 11; ++w) Spunta(f, QString("chkRuotaG_%1").arg(w).toLatin1().constData(), w == 5);
    ASSERT_EQ(f->Parametri().ruoteGioco, (std::array<bool, 12>{false, false, false, false, false, true}));
    Trova<QComboBox>(f, "cboIndice")->setCurrentIndex(22);
    Trova<QDateEdit>(f, "DTPickerDa")->setDate(QDate(2015, 12, 30));
    Trova<QDateEdit>(f, "DTPickerA")->setDate(QDate(2025, 12, 30));
    QSignalSpy fine(f, &FrmCostruttore::ricercaTerminata);
    QTest::mouseClick(Trova<QPushButton>(f, "cmdCalcola"), Qt::LeftButton);
    ASSERT_TRUE(fine.wait(60000));
    QTreeWidget* lista = Trova<QTreeWidget>(f, "ListaRisultati");
    ASSERT_GT(lista->topLevelItemCount(), 0);

    // Nothing checked, then everything.
    messaggi.clear();
    QTest::mouseClick(Trova<QPushButton>(f, "cmdConvergenze"), Qt::LeftButton);
    ASSERT_EQ(messaggi.size(), 1u);
    EXPECT_EQ(messaggi[0].testo, builder::NessunAlgoritmoConvergenze);
    QGroupBox* fraConvergenze = Trova<QGroupBox>(f, "fraConvergenze");
    EXPECT_FALSE(fraConvergenze->isVisible());
    Trova<QCheckBox>(f, "chkSeleziona")->click();
    QTest::mouseClick(Trova<QPushButton>(f, "cmdConvergenze"), Qt::LeftButton);
    ASSERT_EQ(messaggi.size(), 2u);
    EXPECT_EQ(messaggi[1].testo.rfind("N. ", 0), 0u) << messaggi[1].testo;
    EXPECT_TRUE(fraConvergenze->isVisible());
    EXPECT_GT(Trova<QTreeWidget>(fraConvergenze, "lvConvergenze")->topLevelItemCount(), 1);
    Cattura(fraConvergenze, "fraConvergenze");

    // The lunghetta of four numbers, then six on the best wheel.
    QTest::mouseClick(Trova<QPushButton>(f, "cmdLunghette"), Qt::LeftButton);
    QGroupBox* fraLunghette = Trova<QGroupBox>(f, "fraLunghette");
    ASSERT_TRUE(fraLunghette->isVisible());
    QTest::mouseClick(Trova<QPushButton>(fraLunghette, "cmdVai"), Qt::LeftButton);
    EXPECT_EQ(Trova<QLineEdit>(fraLunghette, "txtLunghetta")->text().split(" - ").size(), 4);
    Spunta(fraLunghette, "chkRuotaMigliore", true);
    EXPECT_TRUE(Trova<QLineEdit>(fraLunghette, "txtLunghetta")->text().isEmpty());
    EXPECT_EQ(Trova<QLabel>(f, "lblDescrizioneRisultatiOttenuti")->text(), "Risultati ottenuti");
    QTest::mouseClick(Trova<QPushButton>(fraLunghette, "cmdVai"), Qt::LeftButton);
    EXPECT_EQ(Trova<QLineEdit>(fraLunghette, "txtRuotaMigliore")->text(), "Milano");
    Cattura(fraLunghette, "fraLunghette");

    // The capogioco panel takes the row clicked; with "Tutti" it finds no draw.
    QTreeWidgetItem* riga = lista->topLevelItem(0);
    lista->setCurrentItem(riga);
    emit lista->itemClicked(riga, 0);
    QTest::mouseClick(Trova<QPushButton>(f, "cmdAbbinamentiAmbate"), Qt::LeftButton);
    QGroupBox* pannello = Trova<QGroupBox>(f, "FrameAbbinamenti");
    ASSERT_TRUE(pannello->isVisible());
    EXPECT_EQ(Trova<QLineEdit>(pannello, "txtAlgoritmoCapogioco")->text(), riga->text(0));
    EXPECT_EQ(Trova<QLabel>(pannello, "lblTag")->text(), "18");
    EXPECT_TRUE(Trova<QLabel>(pannello, "lblCapoAbbinamenti")->text().isEmpty());
    QTest::mouseClick(Trova<QPushButton>(pannello, "cmdNumAbbinati"), Qt::LeftButton);
    EXPECT_EQ(Trova<QListWidget>(pannello, "lstNumeriAbbinati")->count(), 0);
    Cattura(pannello, "FrameAbbinamenti");

    // A change of the search lets the algorithm go.
    Trova<QComboBox>(f, "cboIndice")->setCurrentIndex(17);
    EXPECT_TRUE(Trova<QLineEdit>(pannello, "txtAlgoritmoCapogioco")->text().isEmpty());
    Cattura(f, "frmCostruttore");

    // Index 17 passes every draw in this panel: the capogioco of the last draw and twelve numbers.
    QSignalSpy ancora(f, &FrmCostruttore::ricercaTerminata);
    QTest::mouseClick(Trova<QPushButton>(f, "cmdCalcola"), Qt::LeftButton);
    ASSERT_TRUE(ancora.wait(60000));
    riga = lista->topLevelItem(0);
    emit lista->itemClicked(riga, 0);
    EXPECT_EQ(Trova<QLineEdit>(pannello, "txtDataAbbinamenti")->text(), "30/12/2025");
    EXPECT_FALSE(Trova<QLabel>(pannello, "lblCapoAbbinamenti")->text().isEmpty());
    QTest::mouseClick(Trova<QPushButton>(pannello, "cmdNumAbbinati"), Qt::LeftButton);
    QListWidget* abbinati = Trova<QListWidget>(pannello, "lstNumeriAbbinati");
    ASSERT_EQ(abbinati->count(), 12);
    EXPECT_EQ(abbinati->item(0)->text().mid(5, 6), "%  n. ");
    Cattura(pannello, "FrameAbbinamentiPieno");
    QTest::mouseClick(Trova<QPushButton>(pannello, "cmdPrecedente"), Qt::LeftButton);
    EXPECT_EQ(Trova<QLineEdit>(pannello, "txtDataAbbinamenti")->text(), "29/12/2025");

    // The report file and the numbers to play, answered without dialogs.
    const SceltaFileReport sceltaPrima = ScegliFileReport;
    QString proposto;
    ScegliFileReport = [&](QWidget*, const QString&, const QString& nome, const QString&) {
        proposto = QFileInfo(nome).completeBaseName();
        return QString::fromStdString((c / (proposto.toStdString() + ".Txt")).string());
    };
    QTest::mouseClick(Trova<QPushButton>(pannello, "cmdPrintTofileAbbinamenti"), Qt::LeftButton);
    EXPECT_EQ(proposto, "ReportAbbinamentiNumerici");
    EXPECT_NE(test::LeggiFile(c / "ReportAbbinamentiNumerici.Txt").find("Capogioco al 30/12/2025 : "),
              std::string::npos);
    QTest::mouseClick(Trova<QPushButton>(pannello, "cmdNumeriDaGiocare"), Qt::LeftButton);
    QWidget* numeri = nullptr;
    for (QWidget* w : QApplication::topLevelWidgets())
        if (w->objectName() == "frmCapoAbbinamentiCostruttore") numeri = w;
    ASSERT_NE(numeri, nullptr);
    EXPECT_EQ(Trova<QLineEdit>(numeri, "txtRuote")->text(), "Milano  dopo il 30/12/2025");
    EXPECT_FALSE(Trova<QLineEdit>(numeri, "txtAbbinamentiCapogioco")->text().isEmpty());
    Cattura(numeri, "frmCapoAbbinamentiCostruttore");
    QTest::mouseClick(Trova<QPushButton>(numeri, "cmdPrintToFile"), Qt::LeftButton);
    EXPECT_EQ(proposto, "NumeriGorgo");
    EXPECT_EQ(test::LeggiFile(c / "NumeriGorgo.Txt").rfind("Numeri da giocare su : Milano  dopo il 30/12/2025", 0), 0u);
    ScegliFileReport = sceltaPrima;
    principale.reset();
    ImpostaGestoreMessaggi(prima);
}

}  // namespace
}  // namespace gorgo::screens
