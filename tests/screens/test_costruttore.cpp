// frmCostruttore on a copy of the real archives: a search through the computing window,
// a click on the first row, the recap, the forecasts, the list emptied by a change.

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProcess>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>
#include <QTreeWidget>

#include "app/avvio.h"
#include "builder/report.h"
#include "screens/builder/frm_costruttore.h"
#include "screens/common/messaggi.h"
#include "screens/common/stampa.h"
#include "support/archivi_reali.h"
#include "support/cartelle.h"

namespace gorgo::screens {
namespace {

using test::CartellaTemporanea;

template <typename T>
T* Trova(QWidget* w, const QString& nome) {
    T* c = w->findChild<T*>(nome);
    EXPECT_NE(c, nullptr) << nome.toStdString();
    return c;
}

class Costruttore : public ::testing::Test {
protected:
    void SetUp() override {
        auto reale = test::CartellaReale();
        if (!reale) GTEST_SKIP() << "archivi reali assenti";
        test::CopiaArchiviReali(*reale, c_.percorso());
        prima_ = ImpostaGestoreMessaggi([this](const archives::Messaggio& m, QMessageBox::StandardButtons) {
            messaggi_.push_back(m);
            return QMessageBox::Ok;
        });
        principale_ = AvviaProgramma(c_.percorso(), blocco_);
        ASSERT_NE(principale_, nullptr);
        principale_->show();
        QTest::mouseClick(Trova<QPushButton>(principale_.get(), "cmdGorgo"), Qt::LeftButton);
        for (QWidget* w : QApplication::topLevelWidgets())
            if (w->objectName() == "frmCostruttore") f_ = qobject_cast<FrmCostruttore*>(w);
        ASSERT_NE(f_, nullptr);
    }
    void TearDown() override {
        principale_.reset();
        blocco_.reset();
        ImpostaGestoreMessaggi(prima_);
    }
    // Spy 27, search and play on all wheels, every month index, the last ten years.
    void Imposta() {
        Trova<QComboBox>(f_, "cboNumero")->setCurrentIndex(26);
        for (const char* g : {"chkRuota_0", "chkRuotaG_0"}) {
            QCheckBox* c = Trova<QCheckBox>(f_, g);
            if (!c->isChecked()) c->click();
        }
        Trova<QComboBox>(f_, "cboIndice")->setCurrentIndex(22);
        Trova<QDateEdit>(f_, "DTPickerDa")->setDate(QDate(2015, 12, 30));
        Trova<QDateEdit>(f_, "DTPickerA")->setDate(QDate(2025, 12, 30));
    }
    bool Cerca(int attesa = 60000) {
        QSignalSpy fine(f_, &FrmCostruttore::ricercaTerminata);
        QTest::mouseClick(Trova<QPushButton>(f_, "cmdCalcola"), Qt::LeftButton);
        return fine.wait(attesa);
    }

    CartellaTemporanea c_;
    std::unique_ptr<QLockFile> blocco_;
    std::unique_ptr<FrmMain> principale_;
    FrmCostruttore* f_ = nullptr;
    std::vector<archives::Messaggio> messaggi_;
    GestoreMessaggi prima_;
};

TEST_F(Costruttore, RicercaEPrimaRiga) {
    Imposta();
    ASSERT_TRUE(Cerca());
    EXPECT_TRUE(messaggi_.empty());
    EXPECT_EQ(Trova<QLabel>(f_, "lblSortite")->text(),
              "Sortite del numero 27 sulle ruote di ricerca nel periodo considerato: 762");
    EXPECT_EQ(Trova<QTreeWidget>(f_, "lstVListaUscite")->topLevelItemCount(), 762);
    QTreeWidget* lista = Trova<QTreeWidget>(f_, "ListaRisultati");
    ASSERT_EQ(lista->topLevelItemCount(), 30);
    QLabel* previsioni = Trova<QLabel>(f_, "lblPrevisioni");
    EXPECT_EQ(previsioni->text(), "Previsione in corso : 6 colpi al termine");
    EXPECT_EQ(previsioni->palette().color(QPalette::WindowText), QColor(128, 0, 0));

    // The first row replayed.
    QTreeWidgetItem* prima = lista->topLevelItem(0);
    emit lista->itemClicked(prima, 0);
    QTreeWidget* verifica = Trova<QTreeWidget>(f_, "lvListaPrevisioni");
    ASSERT_GT(verifica->topLevelItemCount(), 0);
    QLabel* capo = Trova<QLabel>(f_, "lblCapo");
    EXPECT_FALSE(capo->text().isEmpty());
    const QColor colore = capo->palette().color(QPalette::WindowText);
    const bool inCorso = colore == QColor(0, 128, 0);
    EXPECT_TRUE(inCorso || colore == QColor(128, 0, 0));
    // A running forecast is green and dated, and the description says so.
    const QString descrizione = Trova<QLabel>(f_, "lblDescrizioneRisultatiOttenuti")->text();
    EXPECT_TRUE(descrizione.startsWith(prima->text(0)));
    EXPECT_EQ(descrizione.endsWith(" : risultati ottenuti (pr. in corso)"), inCorso) << descrizione.toStdString();
    EXPECT_EQ(Trova<QLabel>(f_, "lblDataPrevisione")->text().isEmpty(), !inCorso);

    // The recap.
    QPushButton* riepilogo = Trova<QPushButton>(f_, "cmdReport_0");
    ASSERT_TRUE(riepilogo->isEnabled());
    QTest::mouseClick(riepilogo, Qt::LeftButton);
    QListWidget* report = nullptr;
    for (QWidget* w : QApplication::topLevelWidgets())
        if (w->objectName() == "frmReportGorgo") report = w->findChild<QListWidget*>("lstReport");
    ASSERT_NE(report, nullptr);
    bool rilevati = false;
    for (int i = 0; i < report->count(); ++i) rilevati |= report->item(i)->text().startsWith(" Casi rilevati   : ");
    EXPECT_TRUE(rilevati);

    // Forecasts of the checked rows.
    prima->setCheckState(0, Qt::Checked);
    QTest::mouseClick(Trova<QPushButton>(f_, "cmdCalcoloPrevisioni"), Qt::LeftButton);
    QTreeWidget* convergenze = nullptr;
    for (QWidget* w : QApplication::topLevelWidgets())
        if (w->objectName() == "frmAlgoritmiCalcolati") convergenze = w->findChild<QTreeWidget*>("lvConvergenze");
    ASSERT_NE(convergenze, nullptr);
    ASSERT_EQ(convergenze->topLevelItemCount(), 1);
    EXPECT_EQ(convergenze->topLevelItem(0)->text(1), capo->text());

    // Any change of a search control empties the lists.
    Trova<QComboBox>(f_, "cboNumero")->setCurrentIndex(10);
    EXPECT_EQ(lista->topLevelItemCount(), 0);
    EXPECT_EQ(verifica->topLevelItemCount(), 0);
    EXPECT_TRUE(Trova<QLabel>(f_, "lblSortite")->text().isEmpty());
}

TEST_F(Costruttore, RifiutiConIlControlloGiusto) {
    Imposta();
    Trova<QLineEdit>(f_, "txtColpi")->setText("0");
    EXPECT_FALSE(Cerca(300));  // refused on the spot: no search starts
    ASSERT_EQ(messaggi_.size(), 1u);
    EXPECT_EQ(messaggi_[0].testo, "Inserire il n. di colpi di gioco !");
    EXPECT_EQ(Trova<QTreeWidget>(f_, "ListaRisultati")->topLevelItemCount(), 0);
}

TEST_F(Costruttore, ControlliPerTipoDiRicerca) {
    QComboBox* tipo = Trova<QComboBox>(f_, "cboTipoRicerca");
    tipo->setCurrentIndex(4);  // codes
    EXPECT_FALSE(Trova<QWidget>(f_, "fraCodici")->isHidden());
    EXPECT_TRUE(Trova<QWidget>(f_, "fraValidita")->isHidden());
    tipo->setCurrentIndex(2);  // terzine: cells alone, forced
    QCheckBox* posizionale = Trova<QCheckBox>(f_, "chkPosizionale");
    EXPECT_TRUE(posizionale->isChecked());
    EXPECT_FALSE(posizionale->isEnabled());
    // The ambo spy limits the kinds to the second list.
    Trova<QRadioButton>(f_, "optSpia_3")->setChecked(true);
    EXPECT_EQ(tipo->count(), 2);
    EXPECT_EQ(tipo->itemText(1), "Ambi (posiz. q.e.)");
    EXPECT_FALSE(Trova<QWidget>(f_, "fraTipologiaAmbi")->isHidden());
    // Wheels of the builder are kept in the settings at each click.
    Trova<QRadioButton>(f_, "optSpia_0")->setChecked(true);
    QCheckBox* bari = Trova<QCheckBox>(f_, "chkRuotaG_1");
    if (Trova<QCheckBox>(f_, "chkRuotaG_0")->isChecked()) Trova<QCheckBox>(f_, "chkRuotaG_0")->click();
    if (bari->isChecked()) bari->click();
    Trova<QCheckBox>(f_, "chkRuotaG_3")->click();
    EXPECT_NE(test::LeggiFile(c_ / "Gorgo.ini").find("RuoteConNzGioco=NNYNNNNNNNN"), std::string::npos)
        << test::LeggiFile(c_ / "Gorgo.ini");
}

// The printed list and the file form hold the same lines.
TEST_F(Costruttore, ListaStampataComeIlFile) {
    Imposta();
    ASSERT_TRUE(Cerca());
    const Programma& programma = principale_->programma();
    const builder::EsitoRicerca e = builder::CercaAlgoritmi(
        f_->Parametri(),
        builder::PreparaCostruttore(programma.archivio->Storia(), programma.ini, c_.percorso()).Contesto());
    const config::ReportTesto r = builder::ReportAlgoritmi(f_->Parametri(), e, *programma.archivio->Storia());
    const QString pdf = QString::fromStdString((c_ / "lista.pdf").string());
    OpzioniStampa o;
    o.titolo1 = QStringLiteral("Gorgo 2 - Ideato da Sergio Tordelli");
    o.titolo2 = QStringLiteral("Algoritmi rintracciati");
    ASSERT_TRUE(StampaReportPdf(pdf, r.righe(), o));
    QProcess p;
    p.start("pdftotext", {"-layout", pdf, "-"});
    ASSERT_TRUE(p.waitForFinished(20000));
    const QString testo = QString::fromUtf8(p.readAllStandardOutput()).simplified();
    for (const config::RigaTesto& riga : r.righe())
        EXPECT_TRUE(testo.contains(QString::fromStdString(riga.testo).simplified())) << riga.testo;
}

}  // namespace
}  // namespace gorgo::screens
