// frmCostruttore on a copy of the real archives: a search through the computing window,
// a click on the first row, the recap, the forecasts, the list emptied by a change, the
// printed list, the date columns, the ambo spy's boxes, the file of the reduced triples.

#include <fmt/format.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QPrinter>
#include <QProcess>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>
#include <algorithm>
#include <fstream>

#include "app/avvio.h"
#include "builder/report.h"
#include "config/impostazioni.h"
#include "config/ini.h"
#include "screens/builder/frm_costruttore.h"
#include "screens/common/messaggi.h"
#include "screens/common/scelta_file.h"
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
        // The open dialog answers from the test: the file of sceltaTerzine_, or Cancel.
        sceltaPrima_ = ScegliFileManutenzione;
        ScegliFileManutenzione = [this](QWidget*, ModoSceltaFile modo, const QString& titolo, const QString& filtro,
                                        const QString&) {
            dialoghi_.push_back({modo, titolo, filtro});
            return sceltaTerzine_;
        };
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
        ScegliFileManutenzione = sceltaPrima_;
        ApriDialogoStampa = DialogoStampaPredefinito();
    }
    // The builder opened again, on the settings as they are now.
    void Riapri() {
        QPointer<FrmCostruttore> vecchia = f_;
        f_->close();
        for (int i = 0; i < 100 && vecchia; ++i) QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        ASSERT_TRUE(vecchia.isNull());
        QTest::mouseClick(Trova<QPushButton>(principale_.get(), "cmdGorgo"), Qt::LeftButton);
        f_ = nullptr;
        for (QWidget* w : QApplication::topLevelWidgets())
            if (w->objectName() == "frmCostruttore") f_ = qobject_cast<FrmCostruttore*>(w);
        ASSERT_NE(f_, nullptr);
    }
    std::string FileTerzine() const {
        const config::FileIni ini((c_ / "Gorgo.ini").string());
        return config::LeggiImpostazione(ini, config::sezioni::Options, "FileTerzine", "");
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
    struct Dialogo {
        ModoSceltaFile modo;
        QString titolo, filtro;
    };
    std::vector<Dialogo> dialoghi_;
    QString sceltaTerzine_;
    SceltaFileManutenzione sceltaPrima_;
};

// Lines of triples "NN NN NN"; `zeroAlla` puts a 0 in that line.
std::string Terzine(int quante, int zeroAlla = 0) {
    std::string t;
    for (int i = 1; i <= quante; ++i)
        t += fmt::format("{:02d} {:02d} {:02d}\r\n", i == zeroAlla ? 0 : i % 90 + 1, (i * 7) % 90 + 1,
                         (i * 11) % 89 + 2);
    return t;
}

// The texts of a column, top to bottom.
QStringList Colonna(const QTreeWidget* l, int c) {
    QStringList t;
    for (int i = 0; i < l->topLevelItemCount(); ++i) t << l->topLevelItem(i)->text(c);
    return t;
}

// A click on the head of column c, as the user does it.
void ClicTesta(QTreeWidget* l, int c) {
    QHeaderView* h = l->header();
    QTest::mouseClick(h->viewport(), Qt::LeftButton, {},
                      QPoint(h->sectionViewportPosition(c) + h->sectionSize(c) / 2, h->height() / 2));
}

// "gg/mm/aaaa" as days, to tell time order.
int Giorni(const QString& data) {
    const QDate d = QDate::fromString(data, "dd/MM/yyyy");
    return d.isValid() ? static_cast<int>(d.toJulianDay()) : -1;
}
bool InOrdineDiTempo(const QStringList& date, bool crescente) {
    for (qsizetype i = 1; i < date.size(); ++i) {
        const int a = Giorni(date[i - 1]), b = Giorni(date[i]);
        if (a < 0 || b < 0) continue;
        if (crescente ? a > b : a < b) return false;
    }
    return true;
}

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

// The print button prints the boxed table under "Algoritmi rintracciati", not the
// file's lines: the page goes through the print path into a PDF.
TEST_F(Costruttore, ListaStampataInTabella) {
    Imposta();
    ASSERT_TRUE(Cerca());
    const QString pdf = QString::fromStdString((c_ / "lista.pdf").string());
    int stampe = 0;
    ApriDialogoStampa = [&](QWidget*, QPrinter& stampante) {
        ++stampe;
        stampante.setOutputFormat(QPrinter::PdfFormat);
        stampante.setOutputFileName(pdf);
        return true;
    };
    QTest::mouseClick(Trova<QPushButton>(f_, "cmdStampaRisultati_0"), Qt::LeftButton);
    ASSERT_EQ(stampe, 1);
    EXPECT_TRUE(messaggi_.empty());
    QProcess p;
    p.start("pdftotext", {"-layout", pdf, "-"});
    ASSERT_TRUE(p.waitForFinished(20000));
    const QString testo = QString::fromUtf8(p.readAllStandardOutput());
    const QString semplice = testo.simplified();
    EXPECT_TRUE(semplice.contains("Algoritmi rintracciati"));
    EXPECT_TRUE(
        semplice.contains("*------------------------------------*---------*-------------------*------------*----*"));
    EXPECT_TRUE(semplice.contains("| Descrizione algoritmo | Sortite | Presenze/quantità | % presenza | Num. |"));
    EXPECT_FALSE(semplice.contains("Algoritmo: ")) << "the file form was printed";

    // Line by line the engine's print form, rows in the order of the list.
    const Programma& programma = principale_->programma();
    const builder::EsitoRicerca e = builder::CercaAlgoritmi(
        f_->Parametri(),
        builder::PreparaCostruttore(programma.archivio->Storia(), programma.ini, c_.percorso()).Contesto());
    const config::ReportTesto r = builder::StampaAlgoritmiRighe(f_->Parametri(), e, *programma.archivio->Storia());
    for (const config::RigaTesto& riga : r.righe())
        EXPECT_TRUE(semplice.contains(QString::fromStdString(riga.testo).simplified())) << riga.testo;
    QTreeWidget* lista = Trova<QTreeWidget>(f_, "ListaRisultati");
    EXPECT_TRUE(semplice.contains(lista->topLevelItem(0)->text(0).simplified()));
}

// A click on a date head sorts in time, by the progressive index, not by the day of the month;
// a second click turns the order round.
TEST_F(Costruttore, DateInOrdineDiTempo) {
    Imposta();
    ASSERT_TRUE(Cerca());
    QTreeWidget* casi = Trova<QTreeWidget>(f_, "lstVListaUscite");
    ASSERT_GT(casi->topLevelItemCount(), 100);
    ClicTesta(casi, 0);
    const bool crescente = casi->header()->sortIndicatorOrder() == Qt::AscendingOrder;
    EXPECT_TRUE(InOrdineDiTempo(Colonna(casi, 0), crescente)) << Colonna(casi, 0).mid(0, 5).join(" ").toStdString();
    ClicTesta(casi, 0);
    EXPECT_NE(casi->header()->sortIndicatorOrder() == Qt::AscendingOrder, crescente);
    EXPECT_TRUE(InOrdineDiTempo(Colonna(casi, 0), !crescente));

    // The replay of the first algorithm: the spy's date and the hit's date sort by the hidden
    // column 12, the index of the hit, so the hits' dates run in time.
    QTreeWidget* lista = Trova<QTreeWidget>(f_, "ListaRisultati");
    emit lista->itemClicked(lista->topLevelItem(0), 0);
    QTreeWidget* verifica = Trova<QTreeWidget>(f_, "lvListaPrevisioni");
    ASSERT_GT(verifica->topLevelItemCount(), 100);
    for (int c : {0, 8}) {
        for (int volta = 0; volta < 2; ++volta) {
            ClicTesta(verifica, c);
            const bool su = verifica->header()->sortIndicatorOrder() == Qt::AscendingOrder;
            EXPECT_TRUE(InOrdineDiTempo(Colonna(verifica, 8), su)) << c;
            QStringList chiavi = Colonna(verifica, 12), attese = chiavi;
            std::sort(attese.begin(), attese.end());
            if (!su) std::reverse(attese.begin(), attese.end());
            EXPECT_EQ(chiavi, attese) << c;
        }
    }

    // The list of the cases in its own window.
    QTest::mouseClick(Trova<QPushButton>(f_, "cmdListSortite"), Qt::LeftButton);
    QTreeWidget* sortite = nullptr;
    for (QWidget* w : QApplication::topLevelWidgets())
        if (w->objectName() == "frmListaSortite") sortite = w->findChild<QTreeWidget*>("lstVListaUscite");
    ASSERT_NE(sortite, nullptr);
    sortite->window()->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(sortite->window()));
    ClicTesta(sortite, 0);
    EXPECT_TRUE(InOrdineDiTempo(Colonna(sortite, 0), sortite->header()->sortIndicatorOrder() == Qt::AscendingOrder));
}

// Step 6 of the validation swaps an ambo spy typed larger first, and the boxes show the swap.
TEST_F(Costruttore, AmboSpiaScambiatoNelleCaselle) {
    Imposta();
    Trova<QRadioButton>(f_, "optSpia_3")->setChecked(true);
    QLineEdit* primo = Trova<QLineEdit>(f_, "txtAmbo_1");
    QLineEdit* secondo = Trova<QLineEdit>(f_, "txtAmbo_2");
    primo->setText("34");
    secondo->setText("12");
    ASSERT_TRUE(Cerca());
    EXPECT_TRUE(messaggi_.empty());
    EXPECT_EQ(primo->text(), "12");
    EXPECT_EQ(secondo->text(), "34");
    EXPECT_TRUE(Trova<QLabel>(f_, "lblSortite")->text().startsWith("Sortite dell'ambo 12-34 "));
    // The results stand: the swap is no change of the user's.
    EXPECT_GT(Trova<QTreeWidget>(f_, "lstVListaUscite")->topLevelItemCount(), 0);
}

// The Ambi body's emission shows in the computing window as "Ordinamento risultati ...".
TEST_F(Costruttore, FinestraDiElaborazioneOrdinamentoRisultati) {
    Imposta();
    Trova<QDateEdit>(f_, "DTPickerDa")->setDate(QDate(2024, 12, 30));
    Trova<QComboBox>(f_, "cboTipoRicerca")->setCurrentIndex(1);  // Ambi
    QStringList visti;
    QTimer sguardo;
    QObject::connect(&sguardo, &QTimer::timeout, [&] {
        for (QWidget* w : QApplication::topLevelWidgets())
            if (w->objectName() == "frmElaborazioni")
                for (QLabel* l : w->findChildren<QLabel*>())
                    if (!l->text().isEmpty() && !visti.contains(l->text())) visti << l->text();
    });
    sguardo.start(2);
    ASSERT_TRUE(Cerca(120000));
    sguardo.stop();
    EXPECT_TRUE(visti.contains("Ordinamento risultati 27...")) << visti.join(" | ").toStdString();
}

// The codes and the file of the reduced triples.
TEST_F(Costruttore, TerzineMancantiChiesteEMemorizzate) {
    // No Terzine.txt in the folder: choosing the codes asks for the file.
    const auto file = c_ / "MieTerzine.txt";
    std::ofstream(file, std::ios::binary) << Terzine(1000);
    sceltaTerzine_ = QString::fromStdString(file.string());
    Trova<QComboBox>(f_, "cboTipoRicerca")->setCurrentIndex(4);
    ASSERT_EQ(dialoghi_.size(), 1u);
    EXPECT_EQ(dialoghi_[0].modo, ModoSceltaFile::Apri);
    EXPECT_EQ(dialoghi_[0].titolo, "Apri il file terzine ridotte");
    EXPECT_EQ(dialoghi_[0].filtro, "File di testo (*.Txt)|*.Txt");
    // A count other than 1002 is told, and the load stands and is kept in the settings.
    ASSERT_EQ(messaggi_.size(), 1u);
    EXPECT_EQ(messaggi_[0].testo, "1000 terzine caricate!\"");
    EXPECT_EQ(FileTerzine(), file.string());
    EXPECT_EQ(Trova<QComboBox>(f_, "cboTipoRicerca")->currentIndex(), 4);
    // The codes run on them.
    Imposta();
    Trova<QDateEdit>(f_, "DTPickerDa")->setDate(QDate(2025, 6, 30));
    messaggi_.clear();
    ASSERT_TRUE(Cerca(120000));
    EXPECT_TRUE(messaggi_.empty()) << messaggi_[0].testo;
    EXPECT_GT(Trova<QTreeWidget>(f_, "ListaRisultati")->topLevelItemCount(), 0);
    EXPECT_EQ(dialoghi_.size(), 1u);

    // Opened again, the builder reads the file of the setting and asks nothing.
    Riapri();
    dialoghi_.clear();
    messaggi_.clear();
    Trova<QComboBox>(f_, "cboTipoRicerca")->setCurrentIndex(4);
    EXPECT_TRUE(dialoghi_.empty());
    ASSERT_EQ(messaggi_.size(), 1u);
    EXPECT_EQ(messaggi_[0].testo, "1000 terzine caricate!\"");
}

TEST_F(Costruttore, TerzineNonValideTornanoATerzinePerTerno) {
    const auto file = c_ / "Guaste.txt";
    std::ofstream(file, std::ios::binary) << Terzine(1002, 7);
    sceltaTerzine_ = QString::fromStdString(file.string());
    QComboBox* tipo = Trova<QComboBox>(f_, "cboTipoRicerca");
    tipo->setCurrentIndex(4);
    ASSERT_EQ(messaggi_.size(), 1u);
    EXPECT_EQ(messaggi_[0].testo, " File terzine non valido!");
    EXPECT_EQ(tipo->currentIndex(), 3);
    EXPECT_EQ(tipo->currentText(), "Terzine x terno");
    EXPECT_EQ(FileTerzine(), "");

    // A setting that names a bad file is cleared as well.
    config::FileIni ini((c_ / "Gorgo.ini").string());
    ASSERT_TRUE(config::ScriviImpostazione(ini, config::sezioni::Options, "FileTerzine", file.string()));
    Riapri();
    messaggi_.clear();
    dialoghi_.clear();
    Trova<QComboBox>(f_, "cboTipoRicerca")->setCurrentIndex(4);
    EXPECT_TRUE(dialoghi_.empty());
    ASSERT_EQ(messaggi_.size(), 1u);
    EXPECT_EQ(messaggi_[0].testo, " File terzine non valido!");
    EXPECT_EQ(FileTerzine(), "");
    EXPECT_EQ(Trova<QComboBox>(f_, "cboTipoRicerca")->currentIndex(), 3);
}

TEST_F(Costruttore, TerzineAnnullateEPoiNelProgramma) {
    // Cancel: nothing is told until the search, which names the missing file.
    QComboBox* tipo = Trova<QComboBox>(f_, "cboTipoRicerca");
    tipo->setCurrentIndex(4);
    EXPECT_EQ(dialoghi_.size(), 1u);
    EXPECT_TRUE(messaggi_.empty());
    EXPECT_FALSE(Cerca(300));
    EXPECT_EQ(dialoghi_.size(), 2u);  // asked again at the search
    ASSERT_EQ(messaggi_.size(), 1u);
    EXPECT_EQ(messaggi_[0].testo,
              "Codici non disponibili: manca il file delle terzine ridotte " + (c_ / "Terzine.txt").string());
    for (const auto& m : messaggi_) EXPECT_EQ(m.testo.find("non trovato"), std::string::npos);

    // Terzine.txt of 1002 lines in the program folder: no question, no message.
    std::ofstream(c_ / "Terzine.txt", std::ios::binary) << Terzine(1002);
    Riapri();
    dialoghi_.clear();
    messaggi_.clear();
    Trova<QComboBox>(f_, "cboTipoRicerca")->setCurrentIndex(4);
    EXPECT_TRUE(dialoghi_.empty());
    EXPECT_TRUE(messaggi_.empty());
    EXPECT_EQ(FileTerzine(), "");
}

}  // namespace
}  // namespace gorgo::screens
