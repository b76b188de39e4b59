#include <gtest/gtest.h>

#include <array>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>

#include <fmt/format.h>

#include "archives/data.h"
#include "config/impostazioni.h"
#include "config/ini.h"
#include "config/restrizioni.h"
#include "support/cartelle.h"

namespace fs = std::filesystem;
using namespace gorgo::config;
using gorgo::archives::Data;

namespace {

using gorgo::test::CartellaTemporanea;

using gorgo::test::LeggiFile;

struct RestrizioniTest : ::testing::Test {
    CartellaTemporanea cartella;
    fs::path file = cartella / "Gorgo.ini";
    FileIni ini{file.string()};

    void Imposta(std::string_view chiave, std::string_view valore) {
        ASSERT_TRUE(ScriviImpostazione(ini, "Restrizioni", chiave, valore));
    }
    void Periodo(std::string_view dal, std::string_view al) {
        Imposta("Periodo", "Y");
        Imposta("Dal", dal);
        Imposta("Al", al);
    }
    bool Ammessa(const Restrizioni& r, int g, int m, int a) {
        const gorgo::archives::Data d{g, m, a};
        return EstrazioneAmmessa(r, d.cifre(), static_cast<char>('0' + d.giornoSettimana()));
    }
};

// A literal reading of the rules, written apart from the code under test.
constexpr int kLunghezze[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};

int GiornoDellAnno(int giorno, int mese) {
    int n = giorno - 1;
    for (int m = 1; m < mese; ++m) n += kLunghezze[m - 1];
    return n;
}

struct Scelta {
    bool giorno, mese, periodo;
    std::string giorni, mesi;
    int dalG, dalM, alG, alM;
};

bool Riferimento(const Scelta& s, int g, int m, int giornoSettimana) {
    if (s.giorno && s.giorni[static_cast<std::size_t>(giornoSettimana - 1)] != 'Y') return false;
    if (s.mese && s.mesi[static_cast<std::size_t>(m - 1)] != 'Y') return false;
    if (s.periodo) {
        const int x = GiornoDellAnno(m == 2 && g == 29 ? 28 : g, m);
        const int a = GiornoDellAnno(s.dalG, s.dalM);
        const int b = GiornoDellAnno(s.alG, s.alM);
        const bool dentro = a <= b ? a <= x && x <= b : x >= a || x <= b;
        if (!dentro) return false;
    }
    return true;
}

}  // namespace

TEST_F(RestrizioniTest, FiltroControRiferimentoSuOgniGiorno) {
    std::mt19937 rng(7011871);
    const auto caso = [&](int n) { return static_cast<int>(rng() % static_cast<unsigned>(n)); };
    const auto lettere = [&](int n) {
        std::string s;
        for (int i = 0; i < n; ++i) s += caso(3) ? 'Y' : 'N';
        return s;
    };
    const auto nomeMese = [&](int m) {
        std::string nome(gorgo::archives::NomeMese(m));
        if (caso(4) == 0)
            for (char& c : nome) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
        return nome;
    };

    for (int giro = 0; giro < 40; ++giro) {
        Scelta s{caso(2) == 0, caso(2) == 0, caso(3) != 0, lettere(7), lettere(12), 0, 1 + caso(12), 0, 1 + caso(12)};
        s.dalG = 1 + caso(kLunghezze[s.dalM - 1]);
        s.alG = 1 + caso(kLunghezze[s.alM - 1]);
        Imposta("Giorno", s.giorno ? "Y" : "N");
        Imposta("Mese", s.mese ? "Y" : "N");
        Imposta("Periodo", s.periodo ? "Y" : "N");
        Imposta("Giorni", s.giorni);
        Imposta("Mesi", s.mesi);
        Imposta("Dal", fmt::format("{:02}{}", s.dalG, nomeMese(s.dalM)));
        Imposta("Al", fmt::format("{:02}{}", s.alG, nomeMese(s.alM)));
        const Restrizioni r = LeggiRestrizioni(ini);

        int diverse = 0;
        for (gorgo::archives::Data d{1, 1, 1999}; d.anno <= 2005; d = gorgo::archives::Data::daGiorni(d.giorni() + 1)) {
            const int gs = d.giornoSettimana();
            const bool atteso = Riferimento(s, d.giorno, d.mese, gs);
            if (EstrazioneAmmessa(r, d.cifre(), static_cast<char>('0' + gs)) != atteso && ++diverse <= 3)
                ADD_FAILURE() << d.testo() << " giro " << giro << " atteso " << atteso;
        }
        EXPECT_EQ(diverse, 0) << "giro " << giro;
    }
}

TEST_F(RestrizioniTest, DateNonValideMaiAmmesse) {
    const Restrizioni r = LeggiRestrizioni(ini);  // nothing active
    EXPECT_TRUE(EstrazioneAmmessa(r, "29022004", '1'));
    EXPECT_TRUE(EstrazioneAmmessa(r, "07011871", '0')) << "the weekday is not looked at when off";
    for (std::string_view cattiva :
         {"29022001", "31042004", "00012001", "01132001", "0101200", "010120011", "ab012001", "", "01/01/01"})
        EXPECT_FALSE(EstrazioneAmmessa(r, cattiva, '1')) << cattiva;
}

TEST_F(RestrizioniTest, PeriodoACavalloDiCapodanno) {
    Periodo("15dicembre", "15gennaio");
    const Restrizioni r = LeggiRestrizioni(ini);
    EXPECT_TRUE(Ammessa(r, 20, 12, 2010));
    EXPECT_TRUE(Ammessa(r, 10, 1, 2011));
    EXPECT_TRUE(Ammessa(r, 15, 12, 2010));
    EXPECT_TRUE(Ammessa(r, 15, 1, 2011));
    EXPECT_FALSE(Ammessa(r, 20, 6, 2010));
    EXPECT_FALSE(Ammessa(r, 14, 12, 2010));
    EXPECT_FALSE(Ammessa(r, 16, 1, 2011));

    // A period from November to January marks both ends of the table and clears the middle.
    Periodo("01novembre", "31gennaio");
    const Restrizioni n = LeggiRestrizioni(ini);
    for (std::size_t i = 0; i < n.PeriodoAmmesso.size(); ++i)
        EXPECT_EQ(n.PeriodoAmmesso[i], i <= 30 || (i >= 304 && i <= 364)) << i;
}

TEST_F(RestrizioniTest, PeriodoDiUnGiornoEVentinoveFebbraio) {
    Periodo("07marzo", "07marzo");
    Restrizioni r = LeggiRestrizioni(ini);
    EXPECT_EQ(std::count(r.PeriodoAmmesso.begin(), r.PeriodoAmmesso.end(), true), 1);
    EXPECT_TRUE(Ammessa(r, 7, 3, 1999));
    EXPECT_TRUE(Ammessa(r, 7, 3, 2000)) << "the index is of a non-leap year whatever the draw's year";
    EXPECT_FALSE(Ammessa(r, 6, 3, 2000));

    Periodo("28febbraio", "28febbraio");
    r = LeggiRestrizioni(ini);
    EXPECT_TRUE(Ammessa(r, 29, 2, 2004));
    EXPECT_FALSE(Ammessa(r, 1, 3, 2004));
    Periodo("01marzo", "31dicembre");
    r = LeggiRestrizioni(ini);
    EXPECT_FALSE(Ammessa(r, 29, 2, 2004)) << "29 February counts as the 28th, not as 1 March";
    EXPECT_TRUE(Ammessa(r, 1, 3, 2004));

    // Days roll over as a date serial does: the 31st of February is the 3rd of March.
    Periodo("31febbraio", "31FEBBRAIO");
    r = LeggiRestrizioni(ini);
    EXPECT_EQ(std::count(r.PeriodoAmmesso.begin(), r.PeriodoAmmesso.end(), true), 1);
    EXPECT_TRUE(r.PeriodoAmmesso[61]);
}

TEST_F(RestrizioniTest, PeriodoIlleggibileNonAmmetteNulla) {
    for (std::string_view cattivo : {"1gennaio", "01gen", "xxgennaio", "", "01 gennaio", "01gennaio2"}) {
        Periodo(cattivo, "31dicembre");
        const Restrizioni r = LeggiRestrizioni(ini);
        EXPECT_EQ(std::count(r.PeriodoAmmesso.begin(), r.PeriodoAmmesso.end(), true), 0) << cattivo;
        EXPECT_FALSE(Ammessa(r, 10, 5, 2003)) << cattivo;
        Periodo("01gennaio", cattivo);
        EXPECT_FALSE(Ammessa(LeggiRestrizioni(ini), 10, 5, 2003)) << cattivo;
    }
    // The same text is harmless with the switch off, and the table is then true from index 1.
    Imposta("Periodo", "N");
    const Restrizioni r = LeggiRestrizioni(ini);
    EXPECT_TRUE(Ammessa(r, 10, 5, 2003));
    EXPECT_FALSE(r.PeriodoAmmesso[0]);
    EXPECT_EQ(std::count(r.PeriodoAmmesso.begin(), r.PeriodoAmmesso.end(), true), 366);
}

TEST_F(RestrizioniTest, GiornoDallaCifraENumeri) {
    Imposta("Giorno", "Y");
    Imposta("Giorni", "YY");  // short: the missing days are not admitted
    const Restrizioni r = LeggiRestrizioni(ini);
    // 01/01/2001 was a Monday: only the digit decides.
    EXPECT_TRUE(EstrazioneAmmessa(r, "01012001", '1'));
    EXPECT_TRUE(EstrazioneAmmessa(r, "01012001", '2'));
    for (char cattivo : {'3', '0', '8', 'x'}) EXPECT_FALSE(EstrazioneAmmessa(r, "01012001", cattivo)) << cattivo;

    // Numbers build their table, index 0 copying 90, and play no part in the filter.
    std::string numeri(90, '1');
    numeri[89] = numeri[4] = '0';
    Imposta("Numero", "Y");
    Imposta("Numeri", numeri);
    const Restrizioni n = LeggiRestrizioni(ini);
    EXPECT_EQ(std::count(n.NumeroAmmesso.begin(), n.NumeroAmmesso.end(), false), 3);
    EXPECT_FALSE(n.NumeroAmmesso[0]);
    EXPECT_FALSE(n.NumeroAmmesso[5]);
    EXPECT_TRUE(EstrazioneAmmessa(n, "01012001", '1'));
}

TEST_F(RestrizioniTest, TestoRiepilogativo) {
    EXPECT_EQ(TestoRestrizioni(ini, false, false), "     Non sono state applicate restrizioni nella ricerca");

    std::string numeri(90, '1');
    numeri[16] = '0';
    Imposta("Numero", "Y");
    Imposta("Numeri", numeri);
    Imposta("Giorno", "Y");
    Imposta("Giorni", "YNNNNNY");
    Imposta("Mese", "Y");
    Imposta("Mesi", "YNNNNNNNNNNY");
    Periodo("15dicembre", "15gennaio");
    EXPECT_EQ(TestoRestrizioni(ini, false, false),
              "     Sono stati esclusi alcuni mumeri dalle ricerche\n"
              "     Solo estrazioni avvenute nei giorni di:  dom sab\n"
              "     Solo estrazioni avvenute nei mesi di  :  gen dic\n"
              "     Solo estrazioni avvenute tra il 15 dicembre e il 15 gennaio");
    EXPECT_EQ(TestoRestrizioni(ini, true, true),
              "     Solo estrazioni avvenute nei giorni di:  dom sab-"
              "     Solo estrazioni avvenute nei mesi di  :  gen dic-"
              "     Solo estrazioni avvenute tra il 15 dicembre e il 15 gennaio");

    Imposta("Giorni", "NYYYYYN");
    Imposta("Mesi", "YYYYYYYYYYYY");
    Imposta("Periodo", "N");
    Imposta("Numero", "N");
    EXPECT_EQ(TestoRestrizioni(ini, false, true), "     Solo estrazioni avvenute nei giorni di:  lun mar mer gio ven");

    // Here an absent Giorni means the usual drawing days, so nothing shows.
    Imposta("Giorni", "NNYYYNY");
    EXPECT_EQ(TestoRestrizioni(ini, false, false), "     Non sono state applicate restrizioni nella ricerca");
}

TEST_F(RestrizioniTest, PannelloDellaFinestraPrincipale) {
    StatoPannelloRestrizioni p = PannelloRestrizioni(ini);
    EXPECT_TRUE(p.nessuna);
    EXPECT_EQ(p.visibile, (std::array<bool, 4>{}));
    EXPECT_EQ(p.NumeriAttivi, 90);

    std::string numeri(90, '1');
    numeri[0] = numeri[1] = '0';
    Imposta("Numero", "Y");
    Imposta("Numeri", numeri);
    Periodo("01gennaio", "31marzo");
    p = PannelloRestrizioni(ini);
    EXPECT_FALSE(p.nessuna);
    EXPECT_EQ(p.visibile, (std::array<bool, 4>{true, false, false, true}));
    EXPECT_EQ(p.top[0], 0);
    EXPECT_EQ(p.top[3], 280);
    EXPECT_EQ(p.NumeriAttivi, 88);
    EXPECT_EQ(TestiRestrizioni[3], "-  Periodo dell'anno definito");

    // The panel takes an absent Giorni as every day, unlike the summary text.
    Imposta("Giorno", "Y");
    p = PannelloRestrizioni(ini);
    EXPECT_EQ(p.visibile, (std::array<bool, 4>{true, true, false, true}));
    EXPECT_EQ(p.top[1], 280);
    EXPECT_EQ(p.top[3], 560);
    EXPECT_EQ(TestoRestrizioni(ini, true, true), "     Solo estrazioni avvenute tra il 01 gennaio e il 31 marzo");
}

TEST_F(RestrizioniTest, DialogoCorreggeIGiorniEScriveLeChiavi) {
    Imposta("Numero", "Y");
    Imposta("Numeri", std::string(90, '0'));
    ScelteRestrizioni s;
    s.chkGiorni = false;
    s.chkMesi = true;
    s.chkPeriodo = true;
    s.chkDay = {false, true, false, true, false, true, false, true};
    s.chkMese = {false, true, true, false, false, false, false, false, false, false, false, false, true};
    s.cboGiorno = {31, 31};
    s.cboMese = {2, 4};
    const EsitoRestrizioni esito = SalvaRestrizioni(ini, s);
    EXPECT_TRUE(esito.errore.vuoto()) << esito.errore.testo;
    EXPECT_EQ(esito.cboGiorno, (std::array<int, 2>{28, 30}));

    EXPECT_EQ(LeggiFile(file),
              "[Restrizioni]\nNumero=\nNumeri=\nGiorno=N\nMese=Y\nPeriodo=Y\n"
              "Giorni=YNYNYNY\nMesi=YYNNNNNNNNNY\nDal=28febbraio\nAl=30aprile\n")
        << "letters of a switched-off group are kept";
    const Restrizioni r = LeggiRestrizioni(ini);
    EXPECT_EQ(std::count(r.PeriodoAmmesso.begin(), r.PeriodoAmmesso.end(), true), 119 - 58 + 1);
    EXPECT_TRUE(Ammessa(r, 29, 2, 2008));
    EXPECT_FALSE(Ammessa(r, 1, 4, 2008)) << "April is not a month ticked";

    // Loading the dialog again shows what was stored.
    const ScelteRestrizioni ricaricate = CaricaScelteRestrizioni(ini);
    EXPECT_EQ(ricaricate.chkDay, s.chkDay);
    EXPECT_EQ(ricaricate.chkMese, s.chkMese);
    EXPECT_EQ(ricaricate.cboGiorno, esito.cboGiorno);
    EXPECT_EQ(ricaricate.cboMese, s.cboMese);

    // A day or month the combos cannot hold is refused with nothing written.
    const std::string prima = LeggiFile(file);
    s.cboMese[1] = 13;
    EXPECT_FALSE(SalvaRestrizioni(ini, s).errore.vuoto());
    s.cboMese[1] = 12;
    s.cboGiorno[0] = 0;
    EXPECT_FALSE(SalvaRestrizioni(ini, s).errore.vuoto());
    EXPECT_EQ(LeggiFile(file), prima);
}

TEST_F(RestrizioniTest, DialogoDeiGiorniDiEstrazione) {
    ScelteEsclusioni s = CaricaGiorniEstrazione(ini);
    EXPECT_EQ(s.chkDay, (std::array<bool, 8>{false, false, false, true, false, true, false, true}));
    EXPECT_TRUE(s.chkLoadTipsAtStartup);

    s.chkDay.fill(false);
    const gorgo::archives::Messaggio m = SalvaGiorniEstrazione(ini, s);
    EXPECT_EQ(m.testo, "E' necessario selezionare almeno un giorno estrazione!");
    EXPECT_FALSE(fs::exists(file)) << "nothing is written";

    s.chkDay[2] = s.chkDay[7] = true;
    s.chkLoadTipsAtStartup = false;
    EXPECT_TRUE(SalvaGiorniEstrazione(ini, s).vuoto());
    EXPECT_EQ(LeggiFile(file), "[Options]\nGiorni estrazione=NYNNNNY\nShow Tips at Startup=0\n");
    const ScelteEsclusioni ricaricate = CaricaGiorniEstrazione(ini);
    EXPECT_EQ(ricaricate.chkDay, s.chkDay);
    EXPECT_FALSE(ricaricate.chkLoadTipsAtStartup);
}
