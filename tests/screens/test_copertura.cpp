// frmCostruttore's coverage and automatic search on a copy of the real archives: the
// coverage window opened from the checked rows, and frmMultiRuota filled run by run.

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QLabel>
#include <QPrinter>
#include <QProcess>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>
#include <QTreeWidget>

#include "app/avvio.h"
#include "screens/builder/frm_costruttore.h"
#include "screens/builder/frm_multi_ruota.h"
#include "screens/common/messaggi.h"
#include "screens/common/stampa.h"
#include "screens/programma_reale.h"
#include "support/archivi_reali.h"
#include "support/cartelle.h"

namespace gorgo::screens {
namespace {

class Strumenti : public ProgrammaReale {
protected:
    void SetUp() override {
        ProgrammaReale::SetUp();
        if (IsSkipped() || HasFatalFailure()) return;
        QTest::mouseClick(Trova<QPushButton>(principale_.get(), "cmdGorgo"), Qt::LeftButton);
        f_ = qobject_cast<FrmCostruttore*>(Finestra("frmCostruttore"));
        ASSERT_NE(f_, nullptr);
        Trova<QComboBox>(f_, "cboNumero")->setCurrentIndex(26);
        Trova<QComboBox>(f_, "cboIndice")->setCurrentIndex(22);
        Trova<QDateEdit>(f_, "DTPickerDa")->setDate(QDate(2015, 12, 30));
        Trova<QDateEdit>(f_, "DTPickerA")->setDate(QDate(2025, 12, 30));
    }
    void Ruote(const char* prefisso, std::initializer_list<int> accese) {
        for (int i = 0; i <= 11; ++i) {
            QCheckBox* c = Trova<QCheckBox>(f_, QStringLiteral("%1_%2").arg(prefisso).arg(i));
            const bool on = std::find(accese.begin(), accese.end(), i) != accese.end();
            if (c->isChecked() != on) c->click();
        }
    }

    FrmCostruttore* f_ = nullptr;
};

TEST_F(Strumenti, CoperturaPerDueAmbate) {
    Ruote("chkRuota", {0});
    Ruote("chkRuotaG", {1});
    QSignalSpy fine(f_, &FrmCostruttore::ricercaTerminata);
    QTest::mouseClick(Trova<QPushButton>(f_, "cmdCalcola"), Qt::LeftButton);
    ASSERT_TRUE(fine.wait(60000));
    QPushButton* due = Trova<QPushButton>(f_, "cmdCoperturaTotale_1");
    ASSERT_TRUE(due->isVisible() && due->isEnabled());
    EXPECT_FALSE(Trova<QPushButton>(f_, "cmdCoperturaTotaleAmbo")->isVisible());
    // No row checked: the system's own message.
    QTest::mouseClick(due, Qt::LeftButton);
    QTRY_COMPARE_WITH_TIMEOUT(messaggi_.size(), size_t{1}, 20000);
    EXPECT_EQ(messaggi_[0].testo, "Nessun algoritmno selezionato!");
    Trova<QCheckBox>(f_, "chkSeleziona")->click();
    QTest::mouseClick(due, Qt::LeftButton);
    QTRY_VERIFY_WITH_TIMEOUT(Finestra("frmCopertura") != nullptr, 30000);
    QWidget* w = Finestra("frmCopertura");
    EXPECT_EQ(w->windowTitle(), "Dettaglio copertura per doppia ambata");
    auto* lista = Trova<QTreeWidget>(w, "lvListaFinale");
    EXPECT_EQ(lista->topLevelItemCount(), 762);
    EXPECT_FALSE(lista->isColumnHidden(4));
    EXPECT_TRUE(lista->isColumnHidden(7));
    EXPECT_TRUE(Trova<QLabel>(w, "lblTotaleCopertura")->text().startsWith("Copertura: "));
    EXPECT_GT(Trova<QTreeWidget>(w, "lvRiepilogoCoperture")->topLevelItemCount(), 0);
    w->resize(1100, 700);
    Cattura(w, "copertura");

    // The printed form goes through the print path into a PDF: the boxed table, two groups.
    const auto pdf = StampaSuPdf("copertura.pdf");
    QTest::mouseClick(Trova<QPushButton>(w, "cmdStampa"), Qt::LeftButton);
    const QString testo = TestoPdf(pdf).simplified();
    EXPECT_TRUE(testo.contains("Dettaglio copertura per doppia ambata"));
    EXPECT_TRUE(testo.contains("| Data spia | Descrizione algor. | Pr.| C.| Descrizione algor. | Pr.| C.|"));
    EXPECT_TRUE(testo.contains("Riepilogo presenze degli algoritmi"));
}

TEST_F(Strumenti, RicercaAutomaticaBariNapoli) {
    Ruote("chkRuota", {1, 6});
    Ruote("chkRuotaG", {1, 6});
    QTest::mouseClick(Trova<QPushButton>(f_, "cmdRicercaAutomatica"), Qt::LeftButton);
    QWidget* frame = Trova<QWidget>(f_, "fraRicercaAutomatica");
    ASSERT_TRUE(frame->isVisible());
    EXPECT_FALSE(Trova<QRadioButton>(frame, "optGioco_3")->isEnabled());
    QTest::mouseClick(Trova<QPushButton>(frame, "cmdAvviaRicercaAutomatica"), Qt::LeftButton);
    QTRY_VERIFY_WITH_TIMEOUT(Trova<QPushButton>(frame, "cmdAvviaRicercaAutomatica")->isEnabled(), 60000);
    auto* m = qobject_cast<FrmMultiRuota*>(Finestra("frmMultiRuota"));
    ASSERT_NE(m, nullptr);
    auto* lista = Trova<QTreeWidget>(m, "ListViewMultiruote");
    ASSERT_EQ(lista->topLevelItemCount(), 4);
    const char* attese[][2] = {{"BA", "BA"}, {"BA", "NA"}, {"NA", "BA"}, {"NA", "NA"}};
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(lista->topLevelItem(i)->text(5), QString(attese[i][0]));
        EXPECT_EQ(lista->topLevelItem(i)->text(6), QString(attese[i][1]));
    }
    EXPECT_EQ(Trova<QLabel>(m, "lblTotaleAlgoritmi")->text(), "4");
    // The user's wheels stand as they were.
    EXPECT_TRUE(Trova<QCheckBox>(f_, "chkRuota_6")->isChecked());
    EXPECT_FALSE(Trova<QCheckBox>(f_, "chkRuota_2")->isChecked());
    Cattura(m, "multiruota");
    Cattura(f_, "costruttore");
}

}  // namespace
}  // namespace gorgo::screens
