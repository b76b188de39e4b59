// The settings dialogs (restrictions, drawing days, address, colours) and ApplicaStile, driven
// through their controls by objectName on a temporary program folder.

#include <gtest/gtest.h>
#include <QCheckBox>
#include <QComboBox>
#include <QDesktopServices>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>
#include <QUrl>
#include <QVBoxLayout>
#include <cmath>
#include <fstream>
#include <string>
#include <vector>

#include "archives/archivio.h"
#include "config/impostazioni.h"
#include "config/ini.h"
#include "config/restrizioni.h"
#include "screens/common/browser.h"
#include "screens/common/messaggi.h"
#include "screens/common/sessione.h"
#include "screens/common/stile.h"
#include "screens/config/frm_colori.h"
#include "screens/config/frm_esclusioni.h"
#include "screens/config/frm_opzioni.h"
#include "screens/config/frm_url.h"
#include "support/cartelle.h"

namespace gorgo::screens {
namespace {

using test::CartellaTemporanea;
using test::LeggiFile;

// A program folder of its own, its settings, and the messages collected instead of shown.
class Dialoghi : public ::testing::Test {
protected:
    void SetUp() override {
        gestorePrima_ = ImpostaGestoreMessaggi([this](const archives::Messaggio& m, QMessageBox::StandardButtons) {
            messaggi_.push_back(m.testo);
            return QMessageBox::Ok;
        });
    }
    void TearDown() override { ImpostaGestoreMessaggi(gestorePrima_); }

    std::filesystem::path FileIni() const { return cartella_ / "Gorgo.ini"; }
    void ScriviIni(const std::string& testo) const { std::ofstream(FileIni(), std::ios::binary) << testo; }
    std::string Chiave(std::string_view sezione, std::string_view chiave) const {
        return ini_.Leggi(sezione, chiave, "<assente>");
    }

    template <class T>
    static T* Controllo(QWidget* finestra, const char* nome) {
        T* w = finestra->findChild<T*>(QString::fromLatin1(nome));
        EXPECT_NE(w, nullptr) << nome;
        return w;
    }
    static void Clic(QWidget* finestra, const char* nome) {
        if (auto* w = Controllo<QWidget>(finestra, nome)) QTest::mouseClick(w, Qt::LeftButton);
    }
    static void Mostra(QWidget* finestra) {
        finestra->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(finestra));
    }

    CartellaTemporanea cartella_;
    config::FileIni ini_{FileIni().string()};
    Sessione sessione_{ini_, cartella_.percorso()};
    std::vector<std::string> messaggi_;

private:
    GestoreMessaggi gestorePrima_;
};

using DialoghiOpzioni = Dialoghi;
using DialoghiEsclusioni = Dialoghi;
using DialoghiUrl = Dialoghi;
using DialoghiColori = Dialoghi;
using DialoghiStile = Dialoghi;
using DialoghiBrowser = Dialoghi;

// ---- frmOpzioni -----------------------------------------------------------------------

TEST_F(DialoghiOpzioni, SiCaricaDalleChiavi) {
    ScriviIni(
        "[Restrizioni]\nGiorno=Y\nGiorni=NYNYNYN\nMese=N\nMesi=YNYNYNYNYNYN\nPeriodo=Y\n"
        "Dal=15dicembre\nAl=15gennaio\n");
    FrmOpzioni f(ini_);
    EXPECT_EQ(f.windowTitle(), "Restrizioni di ricerca");
    EXPECT_TRUE(Controllo<QCheckBox>(&f, "chkGiorni")->isChecked());
    EXPECT_FALSE(Controllo<QCheckBox>(&f, "chkMesi")->isChecked());
    EXPECT_FALSE(Controllo<QCheckBox>(&f, "chkDay_1")->isChecked());
    EXPECT_TRUE(Controllo<QCheckBox>(&f, "chkDay_2")->isChecked());
    EXPECT_EQ(Controllo<QCheckBox>(&f, "chkDay_2")->text(), QStringLiteral("Lunedì"));
    EXPECT_EQ(Controllo<QCheckBox>(&f, "chkMese_12")->text(), "Dicembre");
    EXPECT_TRUE(Controllo<QCheckBox>(&f, "chkMese_3")->isChecked());
    EXPECT_FALSE(Controllo<QCheckBox>(&f, "chkMese_2")->isChecked());
    // Each switch drives its group.
    EXPECT_TRUE(Controllo<QCheckBox>(&f, "chkDay_7")->isEnabled());
    EXPECT_FALSE(Controllo<QCheckBox>(&f, "chkMese_1")->isEnabled());
    EXPECT_TRUE(Controllo<QComboBox>(&f, "cboMese_1")->isEnabled());
    EXPECT_EQ(Controllo<QComboBox>(&f, "cboGiorno_0")->currentText(), "15");
    EXPECT_EQ(Controllo<QComboBox>(&f, "cboMese_0")->currentText(), "Dicembre");
    EXPECT_EQ(Controllo<QComboBox>(&f, "cboMese_1")->currentText(), "Gennaio");
    EXPECT_EQ(Controllo<QPushButton>(&f, "cmdOk")->toolTip(), "Conferma");

    Controllo<QCheckBox>(&f, "chkMesi")->setChecked(true);
    EXPECT_TRUE(Controllo<QCheckBox>(&f, "chkMese_1")->isEnabled());
    Controllo<QCheckBox>(&f, "chkPeriodo")->setChecked(false);
    EXPECT_FALSE(Controllo<QComboBox>(&f, "cboGiorno_0")->isEnabled());
    EXPECT_FALSE(Controllo<QComboBox>(&f, "cboMese_1")->isEnabled());
}

TEST_F(DialoghiOpzioni, OkScriveLeChiaviEIlPannello) {
    FrmOpzioni f(ini_);
    QSignalSpy cambiate(&f, &FrmOpzioni::restrizioniCambiate);
    Mostra(&f);
    Clic(&f, "chkGiorni");
    Clic(&f, "chkDay_1");  // the default ticks all seven
    Clic(&f, "chkMesi");
    Clic(&f, "chkMese_8");
    Clic(&f, "chkPeriodo");
    Controllo<QComboBox>(&f, "cboGiorno_0")->setCurrentText("1");
    Controllo<QComboBox>(&f, "cboMese_0")->setCurrentText("Marzo");
    Controllo<QComboBox>(&f, "cboGiorno_1")->setCurrentText("31");
    Controllo<QComboBox>(&f, "cboMese_1")->setCurrentText("Ottobre");
    Clic(&f, "cmdOk");

    EXPECT_TRUE(messaggi_.empty());
    EXPECT_EQ(f.result(), QDialog::Accepted);
    EXPECT_FALSE(f.isVisible());
    EXPECT_EQ(cambiate.count(), 1);
    const auto R = config::sezioni::Restrizioni;
    EXPECT_EQ(Chiave(R, "Giorno"), "Y");
    EXPECT_EQ(Chiave(R, "Giorni"), "NYYYYYY");
    EXPECT_EQ(Chiave(R, "Mese"), "Y");
    EXPECT_EQ(Chiave(R, "Mesi"), "YYYYYYYNYYYY");
    EXPECT_EQ(Chiave(R, "Periodo"), "Y");
    EXPECT_EQ(Chiave(R, "Dal"), "01marzo");
    EXPECT_EQ(Chiave(R, "Al"), "31ottobre");
    EXPECT_EQ(Chiave(R, "Numero"), "");
    EXPECT_EQ(Chiave(R, "Numeri"), "");

    const auto p = config::PannelloRestrizioni(ini_);
    EXPECT_FALSE(p.nessuna);
    EXPECT_FALSE(p.visibile[0]);
    EXPECT_TRUE(p.visibile[1] && p.visibile[2] && p.visibile[3]);
    EXPECT_EQ(p.top[1], 0);
    EXPECT_EQ(p.top[2], 280);
    EXPECT_EQ(p.top[3], 560);
}

TEST_F(DialoghiOpzioni, GiorniOltreIlMeseSiCorreggono) {
    FrmOpzioni f(ini_);
    Mostra(&f);
    Clic(&f, "chkPeriodo");
    Controllo<QComboBox>(&f, "cboGiorno_0")->setCurrentText("31");
    Controllo<QComboBox>(&f, "cboMese_0")->setCurrentText("Aprile");
    Controllo<QComboBox>(&f, "cboGiorno_1")->setCurrentText("31");
    Controllo<QComboBox>(&f, "cboMese_1")->setCurrentText("Febbraio");
    Clic(&f, "cmdOk");
    EXPECT_EQ(Chiave(config::sezioni::Restrizioni, "Dal"), "30aprile");
    EXPECT_EQ(Chiave(config::sezioni::Restrizioni, "Al"), "28febbraio");
    EXPECT_EQ(Controllo<QComboBox>(&f, "cboGiorno_0")->currentText(), "30");
    EXPECT_EQ(Controllo<QComboBox>(&f, "cboGiorno_1")->currentText(), "28");
}

TEST_F(DialoghiOpzioni, AnnullaNonScriveNulla) {
    ScriviIni("; mio\n[Restrizioni]\nGiorno=N\nGiorni=YYYYYYY\n[Options]\nUrl=http://esempio.it/\n");
    const std::string prima = LeggiFile(FileIni());
    FrmOpzioni f(ini_);
    QSignalSpy cambiate(&f, &FrmOpzioni::restrizioniCambiate);
    Mostra(&f);
    Clic(&f, "chkGiorni");
    Clic(&f, "chkDay_4");
    Clic(&f, "cmdAnnulla");
    EXPECT_EQ(f.result(), QDialog::Rejected);
    EXPECT_FALSE(f.isVisible());
    EXPECT_EQ(cambiate.count(), 0);
    EXPECT_EQ(LeggiFile(FileIni()), prima);
}

TEST_F(DialoghiOpzioni, RicordaIlPostoInTwip) {
    ScriviIni("[Forms]\nOpzioniLeft=1500\nOpzioniTop=3000\n");
    FrmOpzioni f(ini_);
    const double px = f.screen()->logicalDotsPerInchX() / 1440.0, py = f.screen()->logicalDotsPerInchY() / 1440.0;
    EXPECT_EQ(f.pos(), QPoint(static_cast<int>(std::lround(1500 * px)), static_cast<int>(std::lround(3000 * py))));
    f.move(300, 150);
    Clic(&f, "cmdAnnulla");
    EXPECT_EQ(Chiave(config::sezioni::Forms, "OpzioniLeft"), std::to_string(std::lround(300 / px)));
    EXPECT_EQ(Chiave(config::sezioni::Forms, "OpzioniTop"), std::to_string(std::lround(150 / py)));
    EXPECT_EQ(Chiave(config::sezioni::Restrizioni, "Giorno"), "<assente>");
}

// ---- frmEsclusioni --------------------------------------------------------------------

TEST_F(DialoghiEsclusioni, SenzaGiorniRestaAperto) {
    FrmEsclusioni f(ini_);
    EXPECT_EQ(f.windowTitle(), "Opzioni");
    Mostra(&f);
    // The default drawing days are Tuesday, Thursday and Saturday.
    for (const char* giorno : {"chkDay_3", "chkDay_5", "chkDay_7"}) {
        EXPECT_TRUE(Controllo<QCheckBox>(&f, giorno)->isChecked()) << giorno;
        Clic(&f, giorno);
    }
    Clic(&f, "cmdOk");
    EXPECT_EQ(messaggi_, std::vector<std::string>{"E' necessario selezionare almeno un giorno estrazione!"});
    EXPECT_TRUE(f.isVisible());
    EXPECT_FALSE(std::filesystem::exists(FileIni()));

    Clic(&f, "chkDay_1");
    Clic(&f, "chkLoadTipsAtStartup");
    Clic(&f, "cmdOk");
    EXPECT_FALSE(f.isVisible());
    EXPECT_EQ(f.result(), QDialog::Accepted);
    EXPECT_EQ(Chiave(config::sezioni::Options, "Giorni estrazione"), "YNNNNNN");
    EXPECT_EQ(Chiave(config::sezioni::Options, "Show Tips at Startup"), "0");
}

TEST_F(DialoghiEsclusioni, AnnullaChiude) {
    FrmEsclusioni f(ini_);
    Mostra(&f);
    Clic(&f, "chkDay_2");
    Clic(&f, "cmdAnnulla");
    EXPECT_FALSE(f.isVisible());
    EXPECT_FALSE(std::filesystem::exists(FileIni()));
}

// ---- frmUrl ---------------------------------------------------------------------------

TEST_F(DialoghiUrl, TreLettereNonBastano) {
    ScriviIni("[Options]\nUrl=http://vecchio.it/\n");
    const std::string prima = LeggiFile(FileIni());
    FrmUrl f(ini_);
    EXPECT_EQ(f.windowTitle(), "Url");
    Mostra(&f);
    auto* txt = Controllo<QLineEdit>(&f, "txtUrl");
    EXPECT_EQ(txt->text(), "http://vecchio.it/");
    txt->clear();
    QTest::keyClicks(txt, "abc");
    Clic(&f, "cmdAggiorna");
    EXPECT_EQ(messaggi_, std::vector<std::string>{"Url non valida"});
    EXPECT_EQ(txt->text(), "http://abc");
    EXPECT_TRUE(f.isVisible());
    EXPECT_EQ(LeggiFile(FileIni()), prima);

    txt->clear();
    QTest::keyClicks(txt, "www.esempio.it/agg/");
    Clic(&f, "cmdAggiorna");
    EXPECT_FALSE(f.isVisible());
    EXPECT_EQ(Chiave(config::sezioni::Options, "Url"), "http://www.esempio.it/agg/");
}

TEST_F(DialoghiUrl, DodiciCaratteriBastano) {
    FrmUrl f(ini_);
    Mostra(&f);
    auto* txt = Controllo<QLineEdit>(&f, "txtUrl");
    txt->setText("https://x.i");  // 11 characters, and it already starts with "http"
    Clic(&f, "cmdAggiorna");
    EXPECT_EQ(messaggi_.size(), 1u);
    txt->setText("https://x.it");
    Clic(&f, "cmdAggiorna");
    EXPECT_EQ(Chiave(config::sezioni::Options, "Url"), "https://x.it");
    EXPECT_EQ(f.result(), QDialog::Accepted);
}

// ---- frmColori ------------------------------------------------------------------------

TEST_F(DialoghiColori, DefaultPoiEsciNonCambiaNulla) {
    ScriviIni("[Settings]\nColoreForm=255\nColoreEtichette=65280\nColoreListe=16711680\n");
    const std::string prima = LeggiFile(FileIni());
    FrmColori f(sessione_, nullptr);
    EXPECT_EQ(f.windowTitle(), "Colori");
    EXPECT_EQ(f.Colore(0), QColor(255, 0, 0));
    EXPECT_EQ(f.Colore(1), QColor(0, 255, 0));
    EXPECT_EQ(f.Colore(2), QColor(0, 0, 255));
    EXPECT_EQ(Controllo<QPushButton>(&f, "cmdColore_1")->toolTip(), "Un click per cambiare il colore");
    Mostra(&f);
    Clic(&f, "cmdDefault");
    EXPECT_EQ(f.Colore(0), QColor(0xBF, 0xBF, 0xBF));
    EXPECT_EQ(f.Colore(1), QColor(0xEF, 0xEF, 0xEF));
    EXPECT_EQ(f.Colore(2), QColor(0xFA, 0xD8, 0x89));
    EXPECT_TRUE(Controllo<QPushButton>(&f, "cmdColore_2")->styleSheet().contains("#fad889"));
    Clic(&f, "cmdEsci");
    EXPECT_FALSE(f.isVisible());
    EXPECT_EQ(LeggiFile(FileIni()), prima);
}

TEST_F(DialoghiColori, OkScriveERicoloraLeFinestre) {
    QWidget aperta;
    aperta.setObjectName("frmProva");
    auto* lista = new QLineEdit(&aperta);
    Mostra(&aperta);

    FrmColori f(sessione_, nullptr);
    QSignalSpy cambiati(&f, &FrmColori::coloriCambiati);
    QColor proposto;
    f.sceltaColore = [&](QWidget*, const QColor& iniziale) {
        proposto = iniziale;
        return QColor(0x12, 0x34, 0x56);
    };
    Mostra(&f);
    Clic(&f, "cmdColore_2");
    EXPECT_EQ(proposto, QColor(0xFA, 0xD8, 0x89));
    EXPECT_EQ(f.Colore(2), QColor(0x12, 0x34, 0x56));
    f.sceltaColore = [](QWidget*, const QColor&) { return QColor(); };  // cancelled
    Clic(&f, "cmdColore_0");
    EXPECT_EQ(f.Colore(0), QColor(0xBF, 0xBF, 0xBF));
    EXPECT_FALSE(std::filesystem::exists(FileIni()));

    Clic(&f, "cmdOk");
    EXPECT_FALSE(f.isVisible());
    EXPECT_EQ(cambiati.count(), 1);
    EXPECT_EQ(Chiave(config::sezioni::Settings, "ColoreForm"), "12566463");
    EXPECT_EQ(Chiave(config::sezioni::Settings, "ColoreEtichette"), "15724527");
    EXPECT_EQ(Chiave(config::sezioni::Settings, "ColoreListe"), std::to_string(0x563412));
    EXPECT_EQ(lista->palette().color(QPalette::Base), QColor(0x12, 0x34, 0x56));
}

TEST_F(DialoghiColori, DoppioClicDiagnostico) {
    test::CreaArchivioDemo(cartella_.percorso());
    const archives::Archivio archivio = archives::Archivio::Apri(cartella_.percorso());
    const int32_t n = archivio.NumeroEstrazioni();
    const std::string data = archivio.DataEstrazione(n);
    {
        FrmColori f(sessione_, &archivio);
        Mostra(&f);
        QTest::mouseDClick(Controllo<QLabel>(&f, "lblColore_1"), Qt::LeftButton);
        QTest::mouseDClick(Controllo<QLabel>(&f, "lblColore_2"), Qt::LeftButton);
        QTest::mouseDClick(Controllo<QLabel>(&f, "lblColore_0"), Qt::LeftButton);
    }
    EXPECT_EQ(messaggi_, (std::vector<std::string>{data + " - " + std::to_string(n),
                                                   "Path applicazione = " + cartella_.percorso().string()}));
}

// ---- ApplicaStile ---------------------------------------------------------------------

struct FinestraDiProva {
    QDialog finestra;
    QLabel* etichetta = new QLabel("Etichetta", &finestra);
    QCheckBox* casella = new QCheckBox("Casella", &finestra);
    QLineEdit* testo = new QLineEdit(&finestra);
    QListWidget* lista = new QListWidget(&finestra);
    QComboBox* combo = new QComboBox(&finestra);
    QGroupBox* cornice = new QGroupBox("Cornice", &finestra);
    QLabel* interna = new QLabel("Interna", cornice);
    QCheckBox* ruota0 = new QCheckBox(&finestra);
    QCheckBox* ruota11 = new QCheckBox(&finestra);
    QPushButton* ok = new QPushButton("Ok", &finestra);
    QPushButton* esci = new QPushButton("Esci", &finestra);

    explicit FinestraDiProva(const char* nome) {
        finestra.setObjectName(nome);
        ruota0->setObjectName("chkRuota_0");
        ruota11->setObjectName("chkRuota_11");
        ok->setObjectName("cmdOk");
        esci->setObjectName("cmdEsci");
        esci->setDefault(true);
        auto* l = new QVBoxLayout(&finestra);
        for (QWidget* w : std::initializer_list<QWidget*>{etichetta, casella, testo, lista, combo, cornice, ruota0,
                                                          ruota11, ok, esci})
            l->addWidget(w);
    }
};

const QColor Rosso(255, 0, 0), Verde(0, 255, 0), Blu(0, 0, 255);

TEST_F(DialoghiStile, ColoriPerTipoDiControllo) {
    ScriviIni("[Settings]\nColoreForm=255\nColoreEtichette=65280\nColoreListe=16711680\n");
    FinestraDiProva p("frmProva");
    ApplicaStile(&p.finestra, ini_);
    EXPECT_EQ(p.finestra.palette().color(QPalette::Window), Rosso);
    EXPECT_EQ(p.etichetta->palette().color(QPalette::Window), Verde);
    EXPECT_TRUE(p.etichetta->autoFillBackground());
    EXPECT_EQ(p.interna->palette().color(QPalette::Window), Verde);
    EXPECT_EQ(p.casella->palette().color(QPalette::Window), Rosso);
    EXPECT_TRUE(p.casella->autoFillBackground());
    EXPECT_EQ(p.cornice->palette().color(QPalette::Window), Rosso);
    EXPECT_EQ(p.testo->palette().color(QPalette::Base), Blu);
    EXPECT_EQ(p.lista->palette().color(QPalette::Base), Blu);
    EXPECT_EQ(p.lista->viewport()->palette().color(QPalette::Base), Blu);
    EXPECT_EQ(p.combo->palette().color(QPalette::Button), Blu);

    EXPECT_TRUE(p.ok->isDefault());
    EXPECT_FALSE(p.esci->isDefault());
    EXPECT_EQ(p.ruota0->toolTip(), "Tutte le ruote (esclusa Nazionale)");
    EXPECT_EQ(p.ruota11->toolTip(), "Ruota Nazionale");
    EXPECT_EQ(p.esci->toolTip(), "Esci senza modificare nulla");
    EXPECT_EQ(p.ok->toolTip(), "Conferma");
}

TEST_F(DialoghiStile, PredefinitiEDueVolteSenzaAccumulo) {
    ScriviIni("[Settings]\nColoreForm=rosso\n");
    FinestraDiProva p("frmProva");
    ApplicaStile(&p.finestra, ini_);
    EXPECT_EQ(p.finestra.palette().color(QPalette::Window), QColor(0xBF, 0xBF, 0xBF));
    EXPECT_EQ(p.etichetta->palette().color(QPalette::Window), QColor(0xEF, 0xEF, 0xEF));
    EXPECT_EQ(p.testo->palette().color(QPalette::Base), QColor(0xFA, 0xD8, 0x89));
    const auto figli = p.finestra.findChildren<QObject*>().size();

    ScriviIni("[Settings]\nColoreEtichette=255\n");
    ApplicaStile(&p.finestra, ini_);
    EXPECT_EQ(p.finestra.findChildren<QObject*>().size(), figli);
    EXPECT_EQ(p.etichetta->palette().color(QPalette::Window), Rosso);
    EXPECT_EQ(p.etichetta->styleSheet(), "");
    EXPECT_TRUE(p.ok->isDefault());
}

TEST_F(DialoghiStile, EtichetteProprieRestanoComeSono) {
    ScriviIni("[Settings]\nColoreForm=255\nColoreEtichette=65280\nColoreListe=16711680\n");
    FinestraDiProva p("frmConsultaEstrazioni");
    ApplicaStile(&p.finestra, ini_);
    EXPECT_FALSE(p.etichetta->autoFillBackground());
    EXPECT_NE(p.etichetta->palette().color(QPalette::Window), Verde);
    EXPECT_NE(p.interna->palette().color(QPalette::Window), Verde);
    EXPECT_EQ(p.testo->palette().color(QPalette::Base), Blu);
    EXPECT_EQ(p.casella->palette().color(QPalette::Window), Rosso);
}

TEST_F(DialoghiStile, ColoriConIlRossoNelByteBasso) {
    EXPECT_EQ(ColoreDaImpostazione(9033978), QColor(0xFA, 0xD8, 0x89));
    EXPECT_EQ(ColoreDaImpostazione(255), Rosso);
    EXPECT_EQ(ImpostazioneDaColore(QColor(0x12, 0x34, 0x56)), 0x563412);
    EXPECT_EQ(ImpostazioneDaColore(ColoreDaImpostazione(12566463)), 12566463);
}

// ---- ApriBrowser, Email ---------------------------------------------------------------

class Indirizzi : public QObject {
    Q_OBJECT
public:
    std::vector<QString> aperti;
public slots:
    void apri(const QUrl& url) { aperti.push_back(url.toString()); }
};

TEST_F(DialoghiBrowser, PrefissiDavanti) {
    Indirizzi indirizzi;
    QDesktopServices::setUrlHandler("http", &indirizzi, "apri");
    QDesktopServices::setUrlHandler("https", &indirizzi, "apri");
    QDesktopServices::setUrlHandler("mailto", &indirizzi, "apri");
    EXPECT_TRUE(ApriBrowser("www.esempio.it/pagina"));
    EXPECT_TRUE(ApriBrowser("https://esempio.it"));
    EXPECT_TRUE(Email("giocatore@esempio.it"));
    for (const char* schema : {"http", "https", "mailto"}) QDesktopServices::unsetUrlHandler(schema);
    EXPECT_EQ(indirizzi.aperti, (std::vector<QString>{"http://www.esempio.it/pagina", "https://esempio.it",
                                                      "mailto:giocatore@esempio.it"}));
}

}  // namespace
}  // namespace gorgo::screens

#include "test_dialoghi.moc"
