// The four study windows on a copy of the real archives, opened from the main panel and the
// Utility menu: a run of each, the summary of all wheels and the 4005 ambi on the computing
// window, a printed page. GORGO_CATTURE=DIR keeps a picture of each window there.

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QDateEdit>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPrinter>
#include <QProcess>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTreeWidget>

#include "app/avvio.h"
#include "screens/common/messaggi.h"
#include "screens/common/stampa.h"
#include "screens/programma_reale.h"
#include "screens/studies/frm_numeri_simpatici.h"
#include "screens/studies/frm_punti_incogniti.h"
#include "support/archivi_reali.h"
#include "support/cartelle.h"

namespace gorgo::screens {
namespace {

class Studi : public ProgrammaReale {
protected:
    void Menu(const char* nome) {
        QAction* a = principale_->findChild<QAction*>(nome);
        ASSERT_NE(a, nullptr) << nome;
        ASSERT_TRUE(a->isEnabled()) << nome;
        a->trigger();
    }
};

TEST_F(Studi, PuntiIncognitiDalPannello) {
    QTest::mouseClick(Trova<QPushButton>(principale_.get(), "cmdProcedura"), Qt::LeftButton);
    auto* f = qobject_cast<FrmPuntiIncogniti*>(Finestra("frmPuntiIncogniti"));
    ASSERT_NE(f, nullptr);
    f->resize(1100, 860);
    // Opened again, the same window comes forward.
    QTest::mouseClick(Trova<QPushButton>(principale_.get(), "cmdProcedura"), Qt::LeftButton);
    EXPECT_EQ(Finestra("frmPuntiIncogniti"), f);
    Trova<QCheckBox>(f, "chkRuota_6")->click();
    Trova<QDateEdit>(f, "DTPickerA")->setDate(QDate(2025, 8, 14));
    QTest::mouseClick(Trova<QPushButton>(f, "cmdOkData"), Qt::LeftButton);
    EXPECT_EQ(Trova<QLabel>(f, "lblProiezione")->text(), "74");
    EXPECT_EQ(Trova<QTreeWidget>(f, "ListViewNumeri")->topLevelItemCount(), 4);  // colpi 2 and 5, rule, totals
    Trova<QDateEdit>(f, "DTPickerDa")->setDate(QDate(2025, 1, 1));
    Trova<QLineEdit>(f, "txtNumeroVolte")->setText("10");
    QTest::mouseClick(Trova<QPushButton>(f, "cmdCalcola"), Qt::LeftButton);
    EXPECT_TRUE(Trova<QLabel>(f, "lblDescrizione")->text().startsWith("Giocate vincenti entro 10 colpi: "));
    EXPECT_GT(Trova<QTreeWidget>(f, "ListViewStorico")->topLevelItemCount(), 2);
    Cattura(f, f->objectName());
    // The printed table of the historic check, as a PDF.
    const auto pdf = StampaSuPdf("storica.pdf");
    QTest::mouseClick(Trova<QPushButton>(f, "cmdStampaRisultati_1"), Qt::LeftButton);
    const QString testo = TestoPdf(pdf);
    EXPECT_TRUE(testo.contains("I punti incogniti ruota Napoli - Verifica storica dal")) << testo.toStdString();
    // The summary of all wheels on the computing window.
    QSignalSpy fine(f, &FrmPuntiIncogniti::riepilogoTerminato);
    QTest::mouseClick(Trova<QPushButton>(f, "cmdCalcolaTutte"), Qt::LeftButton);
    ASSERT_TRUE(fine.wait(60000));
    EXPECT_EQ(Trova<QTreeWidget>(f, "ListViewRiepilogo")->topLevelItemCount(), 11);
    EXPECT_TRUE(messaggi_.empty());
}

TEST_F(Studi, QuaternaMultiruotaEUtilityDalMenu) {
    Menu("mnuRicercaQuaterna");
    auto* q = qobject_cast<FrmNumeriSimpatici*>(Finestra("frmNumeriSimpatici"));
    ASSERT_NE(q, nullptr);
    q->resize(1200, 700);
    QTest::mouseClick(Trova<QPushButton>(q, "cmdCalcola"), Qt::LeftButton);
    ASSERT_EQ(messaggi_.size(), 1u);
    EXPECT_EQ(messaggi_[0].testo, "E' necessario selezionare due numeri !");
    q->Seleziona(12);
    q->Seleziona(34);
    q->Seleziona(56);  // a third number is not taken
    EXPECT_EQ(Trova<QLabel>(q, "lblContatore")->text(), "2");
    QTest::mouseClick(Trova<QPushButton>(q, "cmdCalcola"), Qt::LeftButton);
    EXPECT_EQ(Trova<QTreeWidget>(q, "ListView1")->topLevelItem(0)->text(0), "12-34");
    EXPECT_GT(Trova<QTreeWidget>(q, "ListView2")->topLevelItemCount(), 0);
    QSignalSpy fine(q, &FrmNumeriSimpatici::statisticaTerminata);
    QTest::mouseClick(Trova<QPushButton>(q, "cmdTutti"), Qt::LeftButton);
    ASSERT_TRUE(fine.wait(60000));
    EXPECT_GT(Trova<QTreeWidget>(q, "ListViewTutti")->topLevelItemCount(), 4005);
    EXPECT_EQ(Trova<QLabel>(q, "lblAnalizzate")->text(), "4005 ambi analizzati su 4005");
    Cattura(q, q->objectName());

    Menu("mnuAmbateAmbiTerniMulti");
    QWidget* m = Finestra("frmAmbateAmbiTerniMulti");
    ASSERT_NE(m, nullptr);
    m->resize(1200, 700);
    QTest::mouseClick(Trova<QPushButton>(m, "cmdCalcola"), Qt::LeftButton);
    QTreeWidget* l1 = Trova<QTreeWidget>(m, "ListView1");
    ASSERT_EQ(l1->topLevelItemCount(), 5);
    EXPECT_TRUE(Trova<QLabel>(m, "lblRuotaMigliore")->text().startsWith("Miglior ruota ("));
    QTest::mouseClick(l1->viewport(), Qt::LeftButton, {}, l1->visualItemRect(l1->topLevelItem(0)).center());
    EXPECT_GT(Trova<QTreeWidget>(m, "ListViewNumeri")->topLevelItemCount(), 0);
    Cattura(m, m->objectName());

    Menu("mnuUtilitySommaCinquine");
    QWidget* u = Finestra("frmUtility");
    ASSERT_NE(u, nullptr);
    u->resize(1000, 600);
    QTest::mouseClick(Trova<QPushButton>(u, "cmdSomma"), Qt::LeftButton);
    EXPECT_EQ(Trova<QListWidget>(u, "lstOutput")->count(), 990);
    QTest::mouseClick(Trova<QPushButton>(u, "cmdConvergenze"), Qt::LeftButton);
    EXPECT_GT(Trova<QListWidget>(u, "lstConvergenze")->count(), 0);
    Trova<QLineEdit>(u, "txtSomma")->setText("95");
    QTest::mouseClick(Trova<QPushButton>(u, "cmdSomma"), Qt::LeftButton);
    EXPECT_EQ(messaggi_.back().testo, "Numero errato!");
    Cattura(u, u->objectName());
}

}  // namespace
}  // namespace gorgo::screens
