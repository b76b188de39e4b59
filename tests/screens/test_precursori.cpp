// The precursor windows on a copy of the real archives: opened from the main panel through
// the chooser, a run through the computing window giving the engine's rows, the file report,
// the print, and the panel's entries for the other games.

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QFile>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPrinter>
#include <QProcess>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>
#include <QTreeWidget>
#include <fstream>

#include "app/avvio.h"
#include "app/frm_main.h"
#include "app/programma.h"
#include "archives/regole.h"
#include "precursors/analisi.h"
#include "precursors/gruppi.h"
#include "screens/common/messaggi.h"
#include "screens/common/stampa.h"
#include "screens/precursors/frm_precursori_tordelli.h"
#include "screens/precursors/frm_precursori_tordelli_gruppi.h"
#include "screens/programma_reale.h"
#include "support/archivi_reali.h"
#include "support/cartelle.h"

namespace gorgo::screens {
namespace {

class Precursori : public ProgrammaReale {
protected:
    QMessageBox::StandardButton Risposta() const override { return QMessageBox::Yes; }
    bool Calcola(FrmPrecursoriTordelli* f) {
        QSignalSpy fine(f, &FrmPrecursoriTordelli::analisiTerminata);
        QTest::mouseClick(Trova<QPushButton>(f, "cmdCalcola"), Qt::LeftButton);
        return fine.wait(60000);
    }
};

TEST_F(Precursori, ClassiciDalPannelloComeIlMotore) {
    QTest::mouseClick(Trova<QPushButton>(principale_.get(), "cmdPrecursori"), Qt::LeftButton);
    QWidget* scelta = Finestra("frmSceltaPrecursori");
    ASSERT_NE(scelta, nullptr);
    QTest::mouseClick(Trova<QPushButton>(scelta, "cmdClassici_0"), Qt::LeftButton);
    auto* f = qobject_cast<FrmPrecursoriTordelli*>(Finestra("frmPrecursoriTordelli"));
    ASSERT_NE(f, nullptr);
    // A second click brings the same window forward.
    QTest::mouseClick(Trova<QPushButton>(scelta, "cmdClassici_0"), Qt::LeftButton);
    int aperte = 0;
    for (QWidget* w : QApplication::topLevelWidgets()) aperte += w->objectName() == "frmPrecursoriTordelli";
    EXPECT_EQ(aperte, 1);

    Trova<QDateEdit>(f, "DTPickerDa")->setDate(QDate(2010, 12, 30));
    Trova<QComboBox>(f, "cboSceltaelaborazione")->setCurrentIndex(1);
    ASSERT_TRUE(Calcola(f));
    EXPECT_TRUE(messaggi_.empty()) << messaggi_.front().testo;

    const Programma& pr = principale_->programma();
    const auto storia = pr.archivio->Storia();
    precursors::ParametriPrecursori p;
    p.Inizio = archives::ControllaData("30/12/2010", *storia, false).IndiceTrovato;
    p.Fine = storia->NumeroEstrazioni() - 6;
    p.IndiceVerifica = storia->NumeroEstrazioni();
    p.sorte = precursors::Sorte::Ambi;
    const precursors::EsitoPrecursori e =
        precursors::AnalisiPrecursori(p, precursors::FonteEstrazioni::Lotto(*storia, 1));
    QTreeWidget* l0 = Trova<QTreeWidget>(f, "ListView_0");
    QTreeWidget* l1 = Trova<QTreeWidget>(f, "ListView_1");
    ASSERT_EQ(l0->topLevelItemCount(), static_cast<int>(e.lista.size()));
    ASSERT_EQ(l1->topLevelItemCount(), static_cast<int>(e.presenti.size()));
    ASSERT_FALSE(e.presenti.empty());
    for (int i = 0; i < l0->topLevelItemCount(); ++i)
        for (int c = 0; c < 4; ++c)
            ASSERT_EQ(l0->topLevelItem(i)->text(c).toStdString(),
                      e.lista[static_cast<size_t>(i)].testo[static_cast<size_t>(c)]);
    EXPECT_EQ(l0->headerItem()->text(0), QStringLiteral("  Ambo"));
    EXPECT_EQ(l1->topLevelItem(0)->text(1).toStdString(), e.presenti[0].testo[1]);

    // The file report and the print.
    const QString file = QString::fromStdString((c_ / "Precursori_Bari.txt").string());
    ScegliFileReport = [&](QWidget*, const QString&, const QString& proposto, const QString&) {
        EXPECT_TRUE(proposto.endsWith("Precursori_Bari.txt")) << proposto.toStdString();
        return file;
    };
    QTest::mouseClick(Trova<QPushButton>(f, "cmdPrintToFile"), Qt::LeftButton);
    QFile letto(file);
    ASSERT_TRUE(letto.open(QIODevice::ReadOnly));
    const QString testo = QString::fromLatin1(letto.readAll());
    EXPECT_TRUE(testo.contains("La SCIA INVERSA DEI PRECURSORI da un'idea di Sergio Tordelli\r\nRuota di Bari\r\n"));
    EXPECT_TRUE(testo.contains(QString::fromStdString(e.lista[0].testo[2])));
    const auto pdf = StampaSuPdf("precursori.pdf");
    QTest::mouseClick(Trova<QPushButton>(f, "cmdStampa"), Qt::LeftButton);
    const QString stampato = TestoPdf(pdf).simplified();
    EXPECT_TRUE(stampato.contains("Ambo Precursori presenti Rit.sto Rit.att Pres. %"));
    EXPECT_TRUE(stampato.contains(QString::fromStdString(e.presenti[0].testo[1]).simplified()));
    Cattura(f, "precursori");
}

TEST_F(Precursori, SaruniConAmbiPrecursoriEPrevisione) {
    QTest::mouseClick(Trova<QPushButton>(principale_.get(), "cmdPrecursori"), Qt::LeftButton);
    QWidget* scelta = Finestra("frmSceltaPrecursori");
    ASSERT_NE(scelta, nullptr);
    QTest::mouseClick(Trova<QPushButton>(scelta, "cmdClassiciSaruni"), Qt::LeftButton);
    auto* f = qobject_cast<FrmPrecursoriTordelli*>(Finestra("frmPrecursoriSaruni"));
    ASSERT_NE(f, nullptr);
    Trova<QRadioButton>(f, "optPeriodo_1")->setChecked(true);
    Trova<QLineEdit>(f, "txtAnni")->setText("10");
    Trova<QComboBox>(f, "cboSceltaTipoPrecursori")->setCurrentIndex(1);
    Trova<QCheckBox>(f, "chkPosDet")->setChecked(true);
    Trova<QCheckBox>(f, "chkPosizione_1")->setChecked(true);
    Trova<QCheckBox>(f, "chkPosizione_3")->setChecked(true);
    Trova<QCheckBox>(f, "chkAmbiAdiacenti")->setChecked(true);
    ASSERT_TRUE(Calcola(f));
    ASSERT_EQ(messaggi_.size(), 1u);
    EXPECT_EQ(messaggi_[0].testo, "Le posizioni inserite non sono compatibili con gli ambi uniti!");
    Trova<QCheckBox>(f, "chkPosizione_2")->setChecked(true);
    ASSERT_TRUE(Calcola(f));
    ASSERT_EQ(messaggi_.size(), 1u);
    EXPECT_EQ(Trova<QDateEdit>(f, "DTPickerDa")->date().year(), Trova<QDateEdit>(f, "DTPickerA")->date().year() - 10);
    QTreeWidget* l0 = Trova<QTreeWidget>(f, "ListView_0");
    ASSERT_GT(l0->topLevelItemCount(), 0);
    EXPECT_TRUE(l0->topLevelItem(0)->text(2).contains(", ")) << l0->topLevelItem(0)->text(2).toStdString();
    const precursors::EsitoPrecursori& e = f->Esito();
    for (int i = 0; i < l0->topLevelItemCount(); ++i)
        ASSERT_EQ(l0->topLevelItem(i)->text(2).toStdString(), e.lista[static_cast<size_t>(i)].testo[2]);
    // A row of the forecast opens the panel with its number.
    QTreeWidget* l1 = Trova<QTreeWidget>(f, "ListView_1");
    ASSERT_GT(l1->topLevelItemCount(), 0);
    emit l1->itemClicked(l1->topLevelItem(0), 0);
    EXPECT_EQ(Trova<QLineEdit>(f, "txtNum_0")->text(), l1->topLevelItem(0)->text(0).trimmed());
    QTest::mouseClick(Trova<QPushButton>(f, "cmdPrevisione"), Qt::LeftButton);
    EXPECT_EQ(Trova<QTreeWidget>(f, "lstPrevisioni")->topLevelItemCount(), 89);
    Cattura(f, "saruni");
}

TEST_F(Precursori, AltriGiochiDalPannello) {
    QTest::mouseClick(Trova<QPushButton>(principale_.get(), "Command1"), Qt::LeftButton);
    auto* s = qobject_cast<FrmPrecursoriTordelli*>(Finestra("frmPrecursoriTordelliSuper"));
    ASSERT_NE(s, nullptr);
    EXPECT_EQ(s->findChild<QCheckBox*>("chkRuota_1"), nullptr);
    ASSERT_TRUE(Calcola(s));
    EXPECT_GT(Trova<QTreeWidget>(s, "ListView_0")->topLevelItemCount(), 80);
    QTest::mouseClick(Trova<QPushButton>(principale_.get(), "cmdNuovaProcedura"), Qt::LeftButton);
    auto* d = qobject_cast<FrmPrecursoriTordelli*>(Finestra("frmPrecursoriTordelli10eLotto"));
    ASSERT_NE(d, nullptr);
    // Formations typed in the panel, one shorter than the minimum: asked, answered yes.
    Trova<QCheckBox>(d, "chkInserimentoManuale")->setChecked(true);
    d->findChild<QPlainTextEdit*>("txtGruppi")->setPlainText("1 2 3\n4 5\n7");
    QTest::mouseClick(Trova<QPushButton>(d, "cmdInserisci"), Qt::LeftButton);
    ASSERT_EQ(messaggi_.size(), 1u);
    EXPECT_EQ(messaggi_[0].titolo, "Validazione formazioni");
    ASSERT_TRUE(Calcola(d));
    ASSERT_EQ(messaggi_.size(), 2u);
    EXPECT_EQ(messaggi_[1].testo, "Attenzione! Non verranno considerati\nAmbate \n\nConfermi ?");
    QTest::qWait(50);
    QSignalSpy fine(d, &FrmPrecursoriTordelli::analisiTerminata);
    if (d->InElaborazione()) {
        ASSERT_TRUE(fine.wait(60000));
    }
    EXPECT_EQ(Trova<QTreeWidget>(d, "ListView_0")->topLevelItemCount(), 2);
    EXPECT_EQ(Trova<QTreeWidget>(d, "ListView_0")->headerItem()->text(0), QStringLiteral("Formazione"));
}

TEST_F(Precursori, FormazioniNumericheDallaSceltaComeIlMotore) {
    {
        std::ofstream f(c_ / "Formazioni.txt", std::ios::binary);
        f << "[Cadenze]\r\n10.20.30.40.50.60.70.80.90\r\n1.11.21.31.41.51.61.71.81\r\n";
    }
    QTest::mouseClick(Trova<QPushButton>(principale_.get(), "cmdPrecursori"), Qt::LeftButton);
    QWidget* scelta = Finestra("frmSceltaPrecursori");
    ASSERT_NE(scelta, nullptr);
    QTest::mouseClick(Trova<QPushButton>(scelta, "cmdFormazioniNumeriche"), Qt::LeftButton);
    auto* f = qobject_cast<FrmPrecursoriTordelliGruppi*>(Finestra("frmPrecursoriTordelliGruppi"));
    ASSERT_NE(f, nullptr);
    QTreeWidget* gruppi = Trova<QTreeWidget>(f, "ListView_2");
    ASSERT_EQ(gruppi->topLevelItemCount(), 4);
    EXPECT_EQ(gruppi->topLevelItem(3)->text(0), QStringLiteral("Cadenze"));
    EXPECT_EQ(gruppi->topLevelItem(3)->text(3), QStringLiteral("  9"));
    // Groups of one number ticked by size, then Cadenze by hand.
    Trova<QLineEdit>(f, "txtElementi")->setText("1");
    QTest::mouseClick(Trova<QPushButton>(f, "cmdAggiorna"), Qt::LeftButton);
    gruppi->topLevelItem(3)->setCheckState(0, Qt::Checked);
    EXPECT_EQ(Trova<QLabel>(f, "lblFormazioniSelezionate")->text(), QStringLiteral("Formazioni selezionate: 2"));
    Trova<QComboBox>(f, "cboRisultati")->setCurrentIndex(2);
    QSignalSpy fine(f, &FrmPrecursoriTordelliGruppi::analisiTerminata);
    QTest::mouseClick(Trova<QPushButton>(f, "cmdCalcola"), Qt::LeftButton);
    ASSERT_TRUE(fine.wait(60000));
    EXPECT_TRUE(messaggi_.empty()) << messaggi_.front().testo;

    const auto storia = principale_->programma().archivio->Storia();
    precursors::ParametriGruppi p;
    p.Inizio = archives::ControllaData(Trova<QDateEdit>(f, "DTPickerDa")->date().toString("dd/MM/yyyy").toStdString(),
                                       *storia, false)
                   .IndiceTrovato;
    p.Fine = storia->NumeroEstrazioni() - 6;
    p.IndiceVerifica = storia->NumeroEstrazioni();
    p.Risultati = 3;
    p.Gruppi = {0, 3};
    const precursors::EsitoLibreria lib =
        precursors::CaricaLibreria("[Cadenze]\r\n10.20.30.40.50.60.70.80.90\r\n1.11.21.31.41.51.61.71.81\r\n");
    const precursors::EsitoGruppi e =
        precursors::AnalisiGruppi(p, precursors::FonteEstrazioni::Lotto(*storia, 1), lib.gruppi);
    QTreeWidget* l0 = Trova<QTreeWidget>(f, "ListView_0");
    ASSERT_EQ(l0->topLevelItemCount(), static_cast<int>(e.lista.size()));
    ASSERT_EQ(e.lista.size(), 270u);
    for (int i = 0; i < l0->topLevelItemCount(); ++i)
        for (int c = 0; c < 6; ++c)
            ASSERT_EQ(l0->topLevelItem(i)->text(c).toStdString(),
                      e.lista[static_cast<size_t>(i)].testo[static_cast<size_t>(c)]);
    EXPECT_EQ(Trova<QTreeWidget>(f, "ListView_1")->topLevelItemCount(), static_cast<int>(e.formazioni.size()));
    EXPECT_EQ(Trova<QTreeWidget>(f, "ListView_3")->topLevelItemCount(), static_cast<int>(e.presenti.size()));

    // The file report.
    const QString file = QString::fromStdString((c_ / "SciaInversa_Bari.txt").string());
    ScegliFileReport = [&](QWidget*, const QString&, const QString& proposto, const QString&) {
        EXPECT_TRUE(proposto.endsWith("SciaInversa_Bari.txt")) << proposto.toStdString();
        return file;
    };
    QTest::mouseClick(Trova<QPushButton>(f, "cmdPrintToFile"), Qt::LeftButton);
    QFile letto(file);
    ASSERT_TRUE(letto.open(QIODevice::ReadOnly));
    EXPECT_TRUE(QString::fromLatin1(letto.readAll()).contains("Ricerca di formazioni numeriche\r\nRuota di Bari"));
    Cattura(f, "formazioni_numeriche");

    // The file's group deleted from the menu, after the question.
    gruppi->setCurrentItem(gruppi->topLevelItem(3));
    f->EliminaGruppo();
    EXPECT_EQ(gruppi->topLevelItemCount(), 3);
    EXPECT_EQ(test::LeggiFile(c_ / "Formazioni.txt"), "");
    ASSERT_GE(messaggi_.size(), 2u);
    EXPECT_EQ(messaggi_[messaggi_.size() - 2].testo, "Eliminare la formazione numerica Cadenze dal file ?");

    // A heavy run stopped from the computing window shows nothing.
    gruppi->topLevelItem(1)->setCheckState(0, Qt::Checked);
    gruppi->topLevelItem(2)->setCheckState(0, Qt::Checked);
    Trova<QComboBox>(f, "cboSceltaelaborazione")->setCurrentIndex(1);
    QTest::mouseClick(Trova<QPushButton>(f, "cmdCalcola"), Qt::LeftButton);
    if (f->InElaborazione()) {
        QWidget* elaborazioni = Finestra("frmElaborazioni");
        if (elaborazioni) QTest::mouseClick(Trova<QPushButton>(elaborazioni, "cmdStop"), Qt::LeftButton);
        ASSERT_TRUE(fine.wait(60000));
        if (elaborazioni) {
            EXPECT_EQ(l0->topLevelItemCount(), 0);
        }
    }
}

}  // namespace
}  // namespace gorgo::screens
