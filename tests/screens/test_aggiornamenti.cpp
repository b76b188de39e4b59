// frmAggiornamenti, frmAggiornamentiSuper and frmEsportazione on a copy of the real archives:
// the file dialogs answered by the test, the messages collected instead of shown.

#include <gtest/gtest.h>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <fstream>

#include "archives/archivio.h"
#include "config/ini.h"
#include "screens/common/messaggi.h"
#include "screens/common/scelta_file.h"
#include "screens/common/sessione.h"
#include "screens/maintenance/frm_aggiornamenti.h"
#include "screens/maintenance/frm_esportazione.h"
#include "support/archivi_reali.h"
#include "support/cartelle.h"

namespace gorgo::screens {
namespace {

namespace fs = std::filesystem;
using test::CartellaTemporanea;
using test::LeggiFile;

template <typename T>
T* Trova(QWidget* w, const char* nome) {
    T* c = w->findChild<T*>(QString::fromLatin1(nome));
    EXPECT_NE(c, nullptr) << nome;
    return c;
}

void Scrivi(const fs::path& p, const std::string& s) {
    std::ofstream f(p, std::ios::binary | std::ios::trunc);
    f << s;
}

class Aggiornamenti : public ::testing::Test {
protected:
    void SetUp() override {
        auto reale = test::CartellaReale();
        if (!reale) GTEST_SKIP() << "archivi reali assenti";
        aggiornamenti_ = reale->parent_path() / "aggiornamenti";
        if (!fs::exists(aggiornamenti_ / "AggiornamentoPz.bin")) GTEST_SKIP() << "AggiornamentoPz.bin assente";
        test::CopiaArchiviReali(*reale, cartella_);
        archivio_ = std::make_unique<archives::Archivio>(
            archives::Archivio::Apri(cartella_, archives::ModoApertura::Scrittura));
        gestorePrima_ = ImpostaGestoreMessaggi([this](const archives::Messaggio& m, QMessageBox::StandardButtons) {
            messaggi_.push_back(m);
            return QMessageBox::Ok;
        });
        sceltaPrima_ = ScegliFileManutenzione;
        ScegliFileManutenzione = [this](QWidget*, ModoSceltaFile modo, const QString& titolo, const QString& filtro,
                                        const QString&) {
            dialoghi_.push_back({modo, titolo, filtro});
            return risposta_;
        };
        pronto_ = true;
    }
    void TearDown() override {
        if (!pronto_) return;
        ScegliFileManutenzione = sceltaPrima_;
        ImpostaGestoreMessaggi(gestorePrima_);
        archivio_.reset();
        for (QWidget* w : QApplication::topLevelWidgets())
            if (w->objectName() == "frmAiuto") w->close();
    }
    void Rispondi(const fs::path& p) { risposta_ = QString::fromStdString(p.string()); }
    static void Cancella() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }
    std::string File(const char* nome) const { return (aggiornamenti_ / nome).string(); }

    struct Dialogo {
        ModoSceltaFile modo;
        QString titolo, filtro;
    };
    CartellaTemporanea c_;
    fs::path cartella_ = c_ / "gorgo", aggiornamenti_;
    // The running program's settings, session and archives, as the main window would hand them.
    config::FileIni ini_{(cartella_ / "Gorgo.ini").string()};
    Sessione sessione_{ini_, cartella_};
    std::unique_ptr<archives::Archivio> archivio_;
    GestoreMessaggi gestorePrima_;
    SceltaFileManutenzione sceltaPrima_;
    QString risposta_;
    bool pronto_ = false;
    std::vector<archives::Messaggio> messaggi_;
    std::vector<Dialogo> dialoghi_;
};

TEST_F(Aggiornamenti, FileCorrottoLacunaNienteDiNuovoEPoiLAggiornamento) {
    QPointer<FrmAggiornamenti> f = new FrmAggiornamenti(sessione_, *archivio_);
    f->show();
    EXPECT_EQ(f->objectName(), "frmAggiornamenti");
    EXPECT_EQ(f->windowTitle(), "Aggiormanemto estrazioni da file");
    EXPECT_EQ(Trova<QLabel>(f, "lblNumero")->text(), "208");
    EXPECT_EQ(Trova<QLabel>(f, "lblAnno")->text(), "2025");
    EXPECT_EQ(Trova<QLabel>(f, "lblUltima")->text(), "30/12/2025");
    QPushButton* cmdApri = Trova<QPushButton>(f, "cmdApri");
    QPushButton* cmdAggiorna = Trova<QPushButton>(f, "cmdAggiorna");
    QLabel* lblFile = Trova<QLabel>(f, "lblFile");
    EXPECT_FALSE(cmdAggiorna->isEnabled());
    EXPECT_EQ(Trova<QPushButton>(f, "cmdEsci")->toolTip(), "Esci senza modificare nulla");
    EXPECT_EQ(cmdAggiorna->toolTip(), "Aggiorna l'archivio estrazioni con i dati del file selezionato");
    const std::string estrazioni = LeggiFile(cartella_ / "Archivi/Estrazioni.ind");

    // Cancel: nothing.
    risposta_.clear();
    QTest::mouseClick(cmdApri, Qt::LeftButton);
    ASSERT_EQ(dialoghi_.size(), 1u);
    EXPECT_EQ(dialoghi_[0].modo, ModoSceltaFile::Apri);
    EXPECT_EQ(dialoghi_[0].titolo, "Apri");
    EXPECT_EQ(dialoghi_[0].filtro,
              "File aggiornamento Gorgo (*.bin)|*.bin|File aggiornamento Gorgo (*.alb)|*.alb|"
              "Tutti i file (*.*)|*.*");
    EXPECT_TRUE(messaggi_.empty());

    // 67 bytes.
    const std::string agg = LeggiFile(File("AggiornamentoPz.bin"));
    Scrivi(c_ / "67.bin", agg.substr(0, 67));
    Rispondi(c_ / "67.bin");
    QTest::mouseClick(cmdApri, Qt::LeftButton);
    ASSERT_EQ(messaggi_.size(), 1u);
    EXPECT_EQ(messaggi_[0].testo, (c_ / "67.bin").string() + " corrotto o mancante !");
    EXPECT_EQ(messaggi_[0].titolo, "Errore");
    EXPECT_FALSE(cmdAggiorna->isEnabled());

    // A gap: the label is cleared, the message of discontinuity.
    Scrivi(c_ / "lacuna.bin", agg.substr(66));
    Rispondi(c_ / "lacuna.bin");
    QTest::mouseClick(cmdApri, Qt::LeftButton);
    ASSERT_EQ(messaggi_.size(), 2u);
    EXPECT_EQ(messaggi_[1].testo, "Discontinuità di memorizzazione - Aggiornamento impossibile");
    EXPECT_EQ(messaggi_[1].titolo, "Aggiornamento archivi");
    EXPECT_EQ(messaggi_[1].icona, archives::Icona::Stop);
    EXPECT_TRUE(lblFile->text().isEmpty());
    EXPECT_FALSE(cmdAggiorna->isEnabled());

    // Ending at the last stored draw: silent, the date shown, the update not offered.
    Scrivi(c_ / "uno.bin", agg.substr(0, 66));
    Rispondi(c_ / "uno.bin");
    QTest::mouseClick(cmdApri, Qt::LeftButton);
    EXPECT_EQ(messaggi_.size(), 2u);
    EXPECT_EQ(lblFile->text(), "30/12/2025");
    EXPECT_FALSE(cmdAggiorna->isEnabled());
    EXPECT_EQ(LeggiFile(cartella_ / "Archivi/Estrazioni.ind"), estrazioni);

    // The real file: offered, applied, the screen closes.
    Rispondi(File("AggiornamentoPz.bin"));
    QTest::mouseClick(cmdApri, Qt::LeftButton);
    EXPECT_EQ(lblFile->text(), "21/08/2026");
    ASSERT_TRUE(cmdAggiorna->isEnabled());
    int segnali = 0;
    QObject::connect(f, &FrmAggiornamenti::archivioAggiornato, [&segnali] { ++segnali; });
    QTest::mouseClick(cmdAggiorna, Qt::LeftButton);
    ASSERT_EQ(messaggi_.size(), 3u);
    EXPECT_EQ(messaggi_[2].testo, "Aggiornamento archivi al 21/08/2026 effettuato");
    EXPECT_EQ(messaggi_[2].titolo, "Aggiornamento archivi");
    EXPECT_EQ(messaggi_[2].icona, archives::Icona::Informazione);
    EXPECT_EQ(segnali, 1);
    EXPECT_EQ(archivio_->NumeroEstrazioni(), 10913);
    EXPECT_EQ(archivio_->DataEstrazione(10913), "21/08/2026");
    EXPECT_TRUE(archives::VerificaIntegrita(*archivio_).vuoto());
    if (f) {
        EXPECT_EQ(Trova<QLabel>(f, "lblAggiunte")->text(), "Estrazioni aggiunte: 134");
        EXPECT_EQ(Trova<QLabel>(f, "lblNumero")->text(), "134");
        EXPECT_FALSE(f->isVisible());
    }
    Cancella();
    EXPECT_TRUE(f.isNull());
}

TEST_F(Aggiornamenti, IlPulsanteAggiornaSpentoNonFaNulla) {
    QPointer<FrmAggiornamenti> f = new FrmAggiornamenti(sessione_, *archivio_);
    QPushButton* cmdAggiorna = Trova<QPushButton>(f, "cmdAggiorna");
    QMetaObject::invokeMethod(cmdAggiorna, "click");  // disabled: no effect
    EXPECT_TRUE(messaggi_.empty());
    EXPECT_EQ(archivio_->NumeroEstrazioni(), 10779);
    // A good file, then a bad one: the good one is forgotten.
    Rispondi(File("AggiornamentoPz.bin"));
    QTest::mouseClick(Trova<QPushButton>(f, "cmdApri"), Qt::LeftButton);
    EXPECT_TRUE(cmdAggiorna->isEnabled());
    Rispondi(c_ / "manca.bin");
    QTest::mouseClick(Trova<QPushButton>(f, "cmdApri"), Qt::LeftButton);
    EXPECT_FALSE(cmdAggiorna->isEnabled());
    ASSERT_EQ(messaggi_.size(), 1u);
    EXPECT_EQ(messaggi_[0].testo, (c_ / "manca.bin").string() + " corrotto o mancante !");
    EXPECT_EQ(archivio_->NumeroEstrazioni(), 10779);
    delete f;
}

TEST_F(Aggiornamenti, SuperEnalottoConIlSuoFiltroIlSuoMessaggioEIlSuoAiuto) {
    const std::string super = LeggiFile(cartella_ / "Archivi/SuperEnalotto.ind");
    archivio_.reset();
    fs::resize_file(cartella_ / "Archivi/SuperEnalotto.ind", super.size() - 3 * 20);
    archivio_ =
        std::make_unique<archives::Archivio>(archives::Archivio::Apri(cartella_, archives::ModoApertura::Scrittura));
    Scrivi(c_ / "super.bin", super.substr(super.size() - 10 * 20));

    QPointer<FrmAggiornamentiSuper> f = new FrmAggiornamentiSuper(sessione_, *archivio_);
    f->show();
    EXPECT_EQ(f->objectName(), "frmAggiornamentiSuper");
    const archives::RecordSuperEnalotto ultima = archivio_->LeggiRecordSuper(archivio_->NumeroEstrazioniSuper());
    EXPECT_EQ(Trova<QLabel>(f, "lblUltima")->text().toStdString(), ultima.dataTesto());
    EXPECT_EQ(Trova<QLabel>(f, "lblNumero")->text().toInt(), ultima.NumeroAnno);

    Rispondi(c_ / "super.bin");
    QTest::mouseClick(Trova<QPushButton>(f, "cmdApri"), Qt::LeftButton);
    ASSERT_EQ(dialoghi_.size(), 1u);
    EXPECT_EQ(dialoghi_[0].filtro, "File aggiornamento Gorgo (*.bin)|*.bin|Tutti i file (*.*)|*.*");
    EXPECT_EQ(Trova<QLabel>(f, "lblFile")->text(), "07/04/2026");
    QTest::mouseClick(Trova<QPushButton>(f, "cmdAggiorna"), Qt::LeftButton);
    ASSERT_EQ(messaggi_.size(), 1u);
    EXPECT_EQ(messaggi_[0].testo, "Aggiornamento archivi Superenalotto al 07/04/2026 effettuato");
    EXPECT_EQ(LeggiFile(cartella_ / "Archivi/SuperEnalotto.ind"), super);
    Cancella();
    EXPECT_TRUE(f.isNull());

    // The help button opens its topic.
    QPointer<FrmAggiornamentiSuper> g = new FrmAggiornamentiSuper(sessione_, *archivio_);
    QTest::mouseClick(Trova<QPushButton>(g, "cmdHelp"), Qt::LeftButton);
    bool aiuto = false;
    for (QWidget* w : QApplication::topLevelWidgets())
        if (w->objectName() == "frmAiuto" && w->isVisible()) aiuto = true;
    EXPECT_TRUE(aiuto);
    // The Lotto screen has no help button, as the system gives none.
    FrmAggiornamenti lotto(sessione_, *archivio_);
    EXPECT_EQ(lotto.findChild<QPushButton*>("cmdHelp"), nullptr);
    delete g;
}

TEST_F(Aggiornamenti, EsportazioneDalProgressivo7773ODaUnaData) {
    QPointer<FrmEsportazione> f = new FrmEsportazione(sessione_, *archivio_);
    f->show();
    EXPECT_EQ(f->windowTitle(), "Esportazione archivio lotto");
    EXPECT_EQ(Trova<QLabel>(f, "lblNumero")->text(), "208");
    EXPECT_EQ(Trova<QLabel>(f, "lblAnno")->text(), "2025");
    EXPECT_EQ(Trova<QLabel>(f, "lblUltima")->text(), "30/12/2025");
    EXPECT_EQ(Trova<QPushButton>(f, "cmdEsporta")->toolTip(), "Salva il file delle estrazioni");
    QLineEdit* txtDataInizio = Trova<QLineEdit>(f, "txtDataInizio");
    EXPECT_EQ(txtDataInizio->text().toStdString(), archivio_->DataEstrazione(7773));
    const std::string estrazioni = LeggiFile(cartella_ / "Archivi/Estrazioni.ind");

    // Cancel; a date that is no date.
    risposta_.clear();
    QTest::mouseClick(Trova<QPushButton>(f, "cmdEsporta"), Qt::LeftButton);
    ASSERT_EQ(dialoghi_.size(), 1u);
    EXPECT_EQ(dialoghi_[0].modo, ModoSceltaFile::Salva);
    EXPECT_EQ(dialoghi_[0].titolo, "Salva");
    EXPECT_EQ(dialoghi_[0].filtro, "File aggiornamento Gorgo (*.bin)|*.bin|File aggiornamento Gorgo (*.alb)|*.alb");
    EXPECT_TRUE(messaggi_.empty());
    txtDataInizio->setText("31/02/2020");
    QTest::mouseClick(Trova<QPushButton>(f, "cmdEsporta"), Qt::LeftButton);
    ASSERT_EQ(messaggi_.size(), 1u);
    EXPECT_EQ(dialoghi_.size(), 1u);

    // From 29/12/2025, to a name without extension: .bin is added.
    txtDataInizio->setText("29/12/2025");
    Rispondi(c_ / "esportato");
    QTest::mouseClick(Trova<QPushButton>(f, "cmdEsporta"), Qt::LeftButton);
    ASSERT_EQ(messaggi_.size(), 2u);
    const fs::path file = c_ / "esportato.bin";
    EXPECT_EQ(messaggi_[1].testo, "Esportazione archivio " + file.string() + " al 30/12/2025 effettuata");
    EXPECT_EQ(messaggi_[1].titolo, "Esportazione archivi");
    EXPECT_EQ(LeggiFile(file), estrazioni.substr(10777 * 66));
    Cancella();
    EXPECT_TRUE(f.isNull());

    // The default start.
    QPointer<FrmEsportazione> g = new FrmEsportazione(sessione_, *archivio_);
    Rispondi(c_ / "tutto.alb");
    QTest::mouseClick(Trova<QPushButton>(g, "cmdEsporta"), Qt::LeftButton);
    EXPECT_EQ(LeggiFile(c_ / "tutto.alb"), estrazioni.substr(7772 * 66));
    EXPECT_EQ(LeggiFile(cartella_ / "Archivi/Estrazioni.ind"), estrazioni);
    Cancella();
}

}  // namespace
}  // namespace gorgo::screens
