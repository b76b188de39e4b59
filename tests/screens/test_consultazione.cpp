// The consultation windows on a copy of the real archives, driven by their controls: the
// moves (buttons and keys), the views, a family and an analysis, the sums and distances
// table with its chart, the prints, and the ten-draw lists of SuperEnalotto and 10eLotto.

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QChartView>
#include <QLabel>
#include <QListWidget>
#include <QLockFile>
#include <QPrinter>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <filesystem>

#include "app/avvio.h"
#include "app/frm_main.h"
#include "screens/common/messaggi.h"
#include "screens/common/stampa.h"
#include "screens/consultation/frm_consulta_estrazioni.h"
#include "screens/programma_reale.h"
#include "support/archivi_reali.h"
#include "support/cartelle.h"

namespace gorgo::screens {
namespace {

QString Testo(QWidget* f, const QString& nome) { return Trova<QLabel>(f, nome)->text(); }
QColor Sfondo(QWidget* f, const QString& nome) { return Trova<QLabel>(f, nome)->palette().color(QPalette::Window); }

class Consultazione : public ProgrammaReale {
protected:
    QWidget* Apri(const char* voce, const char* finestra) {
        Trova<QAction>(principale_.get(), voce)->trigger();
        QWidget* f = Finestra(finestra);
        EXPECT_NE(f, nullptr) << finestra;
        return f;
    }
};

TEST_F(Consultazione, MosseVisteFamiglieEAnalisi) {
    QWidget* f = Apri("mnuEstrazioniConsulta", "frmConsultaEstrazioni");
    ASSERT_NE(f, nullptr);
    auto* desk = qobject_cast<FrmConsultaEstrazioni*>(f);
    EXPECT_EQ(Testo(f, "lblTotaleEstrazioni"), "10779");
    EXPECT_EQ(Testo(f, "txtEstratto_1"), "15");  // Bari, 30/12/2025
    EXPECT_EQ(Trova<QLabel>(f, "txtEstratto_1")->toolTip(), "1' estratto ruota di Bari");
    Cattura(f, "consulta");

    // Buttons and keys move; the fast moves stop at the last draw.
    QTest::mouseClick(Trova<QPushButton>(f, "cmdPrecedente"), Qt::LeftButton);
    EXPECT_EQ(Testo(f, "lblTotaleEstrazioni"), "10778");
    QTest::keyClick(f, Qt::Key_Left);
    QTest::keyClick(f, Qt::Key_PageUp);
    EXPECT_EQ(Testo(f, "lblTotaleEstrazioni"), "10767");
    for (int i = 0; i < 3; ++i) QTest::mouseClick(Trova<QPushButton>(f, "cmdFastSucc"), Qt::LeftButton);
    EXPECT_EQ(Testo(f, "lblTotaleEstrazioni"), "10779");
    EXPECT_EQ(Testo(f, "lblindiceMese"), "17");

    // The delays view: the cells show the cursor's delays, the families are off.
    Trova<QRadioButton>(f, "optTipoVis_1")->click();
    EXPECT_EQ(Testo(f, "lblVisualizzazione"), "Ritardi alla sortita");
    EXPECT_EQ(Testo(f, "txtEstratto_1"), QString::fromStdString(desk->cursore().griglia().celle[0].testo));
    EXPECT_EQ(Testo(f, "txtEstratto_1"), "53");
    EXPECT_FALSE(Trova<QPushButton>(f, "cmdCadenze")->isEnabled());
    Trova<QRadioButton>(f, "optTipoVis_2")->click();
    EXPECT_TRUE(Testo(f, "lblSorMedia").startsWith("Sortita media: "));
    Trova<QRadioButton>(f, "optTipoVis_0")->click();

    // A family waits for its digit: cadenza 5 marks 15 and 65 of Bari.
    ASSERT_EQ(static_cast<int>(desk->cursore().TipoVisualizzazione), 0);
    ASSERT_TRUE(Trova<QPushButton>(f, "cmdCadenze")->isEnabled());
    ASSERT_TRUE(Trova<QPushButton>(f, "cmdCadenze")->isVisible());
    QTest::mouseClick(Trova<QPushButton>(f, "cmdCadenze"), Qt::LeftButton);
    EXPECT_EQ(Testo(f, "lblDescrFamiglia"), "Cadenza");
    EXPECT_TRUE(Trova<QPushButton>(f, "cmdNumero_9")->isEnabled());
    QTest::mouseClick(Trova<QPushButton>(f, "cmdNumero_5"), Qt::LeftButton);
    EXPECT_EQ(Sfondo(f, "txtEstratto_1"), QColor(255, 0, 0));
    EXPECT_EQ(Sfondo(f, "txtEstratto_3"), QColor(0xC0, 0xFF, 0xFF));
    QTest::mouseClick(Trova<QPushButton>(f, "cmdFigure"), Qt::LeftButton);
    EXPECT_FALSE(Trova<QPushButton>(f, "cmdNumero_0")->isEnabled());

    // An analysis writes its report in frmAnalisi; leaving all wheels closes it.
    QTest::mouseClick(Trova<QPushButton>(f, "cmdNumeriRipetuti"), Qt::LeftButton);
    QWidget* a = Finestra("frmAnalisi");
    ASSERT_NE(a, nullptr);
    auto* lista = Trova<QListWidget>(a, "lstAnalisi");
    EXPECT_EQ(lista->item(lista->count() - 1)->text(), "--->9 numeri ripetuti <---");
    const auto pdf = StampaSuPdf("analisi.pdf");
    QTest::mouseClick(Trova<QPushButton>(a, "cmdStampa"), Qt::LeftButton);
    EXPECT_GT(std::filesystem::file_size(pdf), 500u);
    // An analysis of all wheels only: leaving them closes the report.
    QTest::mouseClick(Trova<QPushButton>(f, "cmdUsciti"), Qt::LeftButton);
    EXPECT_EQ(lista->item(lista->count() - 1)->text(), "---> Sono usciti 43 numeri <---");
    QTest::mouseClick(Trova<QPushButton>(f, "cmdRuota_1"), Qt::LeftButton);
    EXPECT_EQ(Finestra("frmAnalisi"), nullptr);
    EXPECT_FALSE(Trova<QPushButton>(f, "cmdUsciti")->isEnabled());
    EXPECT_TRUE(Trova<QLabel>(f, "lblData_9")->isVisible());
    EXPECT_EQ(Testo(f, "lblData_9"), "30/12/2025");
    Cattura(f, "consulta-bari");

    // The grid on paper.
    const auto griglia = StampaSuPdf("griglia.pdf");
    QTest::mouseClick(Trova<QPushButton>(f, "cmdStampa"), Qt::LeftButton);
    EXPECT_GT(std::filesystem::file_size(griglia), 500u);
    if (const QByteArray d = qgetenv("GORGO_CATTURE"); !d.isEmpty())
        std::filesystem::copy_file(griglia, std::filesystem::path(d.toStdString()) / "griglia.pdf",
                                   std::filesystem::copy_options::overwrite_existing);
    EXPECT_EQ(desk->RigheStampa().front().testo, "Bari Estrazioni");

    // The compact layout and back.
    QTest::mouseClick(Trova<QPushButton>(f, "cmdResize"), Qt::LeftButton);
    EXPECT_TRUE(Trova<QWidget>(f, "fraComandiSmall")->isVisible());
    QTest::mouseClick(Trova<QPushButton>(f, "cmdPrec"), Qt::LeftButton);
    EXPECT_EQ(Testo(f, "lblTotaleEstrazioni"), "10778");

    // Each click of the menu opens one more desk.
    Trova<QAction>(principale_.get(), "mnuEstrazioniConsulta")->trigger();
    int aperte = 0;
    for (QWidget* w : QApplication::topLevelWidgets())
        if (w->objectName() == "frmConsultaEstrazioni" && w->isVisible()) ++aperte;
    EXPECT_EQ(aperte, 2);
    EXPECT_TRUE(messaggi_.empty());
}

TEST_F(Consultazione, SommeDistanzeEGrafico) {
    QWidget* f = Apri("mnuEstrazioniConsulta", "frmConsultaEstrazioni");
    ASSERT_NE(f, nullptr);
    QTest::mouseClick(Trova<QPushButton>(f, "cmdSommeDistanze"), Qt::LeftButton);
    QWidget* s = Finestra("frmSommeDistanze");
    ASSERT_NE(s, nullptr);
    // Bari 15 65 34 86 47: 1-2 gives 80 and 40.
    EXPECT_EQ(Testo(s, "lblSomma_1_0"), "80");
    EXPECT_EQ(Testo(s, "lblDistanza_1_0"), "40");
    Cattura(s, "somme-distanze");
    QTest::mouseClick(Trova<QPushButton>(s, "lblEtichetta_0"), Qt::LeftButton);
    QWidget* g = Finestra("frmGraficoSomme");
    ASSERT_NE(g, nullptr);
    EXPECT_EQ(Testo(g, "lblDescrizione"), "30/12/2025 - Ambo 1-2");
    auto* vista = Trova<QChartView>(g, "grafico");
    EXPECT_EQ(vista->chart()->series().size(), 1);  // one bar series with two sets
    QTest::mouseClick(Trova<QPushButton>(g, "cmdTipoGrafico"), Qt::LeftButton);
    EXPECT_EQ(Trova<QPushButton>(g, "cmdTipoGrafico")->text(), "Grafico a barre");
    EXPECT_EQ(vista->chart()->series().size(), 2);  // "Somme" and "Distanze" as lines
    Cattura(g, "grafico");
    const auto pdf = StampaSuPdf("grafico.pdf");
    QTest::mouseClick(Trova<QPushButton>(g, "cmdStampa"), Qt::LeftButton);
    EXPECT_GT(std::filesystem::file_size(pdf), 500u);

    // A move rewrites the table and closes the chart.
    QTest::mouseClick(Trova<QPushButton>(f, "cmdPrecedente"), Qt::LeftButton);
    QCoreApplication::processEvents();
    EXPECT_EQ(Finestra("frmGraficoSomme"), nullptr);
    EXPECT_NE(Testo(s, "lblSomma_1_0"), "80");
}

TEST_F(Consultazione, SuperEnalottoE10eLotto) {
    QWidget* s = Apri("mnuEstrazioniConsultaSuper", "frm10EstrazioniSuperEnaLotto");
    ASSERT_NE(s, nullptr);
    EXPECT_FALSE(Testo(s, "txtNumeroEstrazione_9").isEmpty());
    EXPECT_EQ(s->findChild<QPushButton*>("cmdAnalisi_2"), nullptr);
    QTest::mouseClick(Trova<QPushButton>(s, "cmdAnalisi_0"), Qt::LeftButton);
    EXPECT_EQ(Testo(s, "lblDescrFamiglia"), "Numeri pari");
    // The same menu brings the open window forward.
    Trova<QAction>(principale_.get(), "mnuEstrazioniConsultaSuper")->trigger();
    int aperte = 0;
    for (QWidget* w : QApplication::topLevelWidgets())
        if (w->objectName() == "frm10EstrazioniSuperEnaLotto" && w->isVisible()) ++aperte;
    EXPECT_EQ(aperte, 1);
    Cattura(s, "superenalotto");

    QWidget* d = Apri("mnuEstrazioniConsulta10elotto", "frm10Estrazioni10eLotto");
    ASSERT_NE(d, nullptr);
    EXPECT_EQ(Testo(d, "txtNumeroEstrazione_9"), "10779");
    EXPECT_FALSE(Testo(d, "txtNumero_9_19").isEmpty());
    QTest::mouseClick(Trova<QPushButton>(d, "cmdFormazione_2"), Qt::LeftButton);
    EXPECT_EQ(Testo(d, "lblDescrFamiglia"), "Decina naturale");
    QTest::mouseClick(Trova<QPushButton>(d, "cmdNumero_0"), Qt::LeftButton);
    // The lowest number of the last draw, marked when it is below 10.
    const bool sottoDieci = Testo(d, "txtNumero_9_0").toInt() < 10;
    EXPECT_EQ(Sfondo(d, "txtNumero_9_0") == QColor(255, 0, 0), sottoDieci);
    QTest::mouseClick(Trova<QPushButton>(d, "cmdSuccessiva"), Qt::LeftButton);
    QTest::mouseClick(Trova<QPushButton>(d, "cmdPrecedente"), Qt::LeftButton);
    EXPECT_EQ(Testo(d, "txtNumeroEstrazione_9"), "10778");
    Cattura(d, "10elotto");
    EXPECT_TRUE(messaggi_.empty());
}

}  // namespace
}  // namespace gorgo::screens
