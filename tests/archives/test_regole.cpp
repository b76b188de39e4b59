// Date check, sorts and number functions.

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "archives/archivio.h"
#include "archives/ordina.h"
#include "archives/regole.h"
#include "support/archivi_reali.h"
#include "support/cartelle.h"

namespace gorgo::archives {
namespace {

using test::CartellaTemporanea;

class ControlloData : public ::testing::Test {
protected:
    static void SetUpTestSuite() {
        cartella_ = new CartellaTemporanea;
        // Draws to 30/12/1905, SuperEnalotto from 1990 so that index 3966 exists.
        test::CreaArchivioDemo(cartella_->percorso(), ParametriDemo{11, Data{30, 12, 2020}, Data{2, 1, 1990}});
        archivio_ = new Archivio(Archivio::Apri(cartella_->percorso()));
    }
    static void TearDownTestSuite() {
        delete archivio_;
        delete cartella_;
    }
    static CartellaTemporanea* cartella_;
    static Archivio* archivio_;
};
CartellaTemporanea* ControlloData::cartella_ = nullptr;
Archivio* ControlloData::archivio_ = nullptr;

TEST_F(ControlloData, MessaggiNellOrdine) {
    const Archivio& a = *archivio_;
    const std::string ultima = a.DataEstrazione(a.NumeroEstrazioni());
    struct Caso {
        std::string testo;
        std::string messaggio;
    };
    const Caso casi[] = {
        {"1/1/2000", std::string(MessaggioFormatoData)},  // a valid date, but eight characters
        {"01/01/00", std::string(MessaggioFormatoData)},
        {"2000/01/01", std::string(MessaggioFormatoData)},
        {"31/02/2000", std::string(MessaggioFormatoData)},  // the host's parser refuses it first
        {"29/02/1900", std::string(MessaggioFormatoData)},
        {"aa/bb/cccc", std::string(MessaggioFormatoData)},
        {"", std::string(MessaggioFormatoData)},
        {"06/01/1871", MessaggioDataInferiore("07/01/1871")},
        {"01/01/1600", MessaggioDataInferiore("07/01/1871")},
        {"31/12/2020", MessaggioDataSuperiore(ultima)},
        {"01/01/9999", MessaggioDataSuperiore(ultima)},
    };
    for (const Caso& c : casi) {
        for (bool prec : {false, true}) {
            const RisultatoData r = ControllaData(c.testo, a, prec);
            EXPECT_TRUE(r.ErroreData) << c.testo;
            EXPECT_EQ(r.messaggio.testo, c.messaggio) << c.testo;
            EXPECT_EQ(r.messaggio.icona, Icona::Esclamazione);
            const RisultatoData m = ControllaData(c.testo, *a.Storia(), prec);
            EXPECT_EQ(m.messaggio.testo, c.messaggio) << c.testo;
        }
    }
    EXPECT_NE(std::string(MessaggioFormatoData).find("Inserire la data nel formato GG/MM/AAAA !\nSe la data"),
              std::string::npos);
}

TEST_F(ControlloData, LimitiCompresi) {
    const Archivio& a = *archivio_;
    const std::string ultima = a.DataEstrazione(a.NumeroEstrazioni());
    for (bool prec : {false, true}) {
        RisultatoData r = ControllaData("07/01/1871", a, prec);
        EXPECT_FALSE(r.ErroreData);
        EXPECT_EQ(r.IndiceTrovato, 1);
        r = ControllaData(ultima, a, prec);
        EXPECT_FALSE(r.ErroreData);
        EXPECT_EQ(r.IndiceTrovato, a.NumeroEstrazioni());
    }
    // A day without a draw in a year with draws passes and finds another date.
    const RisultatoData r = ControllaData("08/01/1871", a, false);
    EXPECT_FALSE(r.ErroreData);
    EXPECT_EQ(r.IndiceTrovato, 2);
    EXPECT_EQ(r.DataTrovata, "14/01/1871");
    EXPECT_EQ(ControllaData("08/01/1871", a, true).IndiceTrovato, 1);
    // Separators the host also takes.
    EXPECT_EQ(ControllaData("14-01-1871", a, false).IndiceTrovato, 2);
}

// The system's own leap rule, reached only when the host's parser lets a date through.
TEST(RegolaData, SenzaRegolaDeiSecoli) {
    EXPECT_TRUE(DataErrata(29, 2, 2001));
    EXPECT_FALSE(DataErrata(29, 2, 1900));  // multiple of 4: the rule lets it pass
    EXPECT_FALSE(DataErrata(28, 2, 2001));
    EXPECT_TRUE(DataErrata(30, 2, 2000));
    EXPECT_TRUE(DataErrata(32, 1, 2000));
    EXPECT_FALSE(DataErrata(31, 12, 2000));
    EXPECT_TRUE(DataErrata(31, 4, 2000));
    EXPECT_FALSE(DataErrata(30, 11, 2000));
    EXPECT_TRUE(DataErrata(1, 13, 2000));
    EXPECT_FALSE(DataAccettata("29/02/1900"));
    EXPECT_TRUE(DataAccettata("29/02/2000"));
}

TEST_F(ControlloData, SuperEnalotto) {
    const Archivio& a = *archivio_;
    ASSERT_GT(a.NumeroEstrazioniSuper(), PrimoIndiceRicercaSuper);
    const std::string prima3966 = a.DataEstrazione(PrimoIndiceRicercaSuper, ArchivioSuper);
    // Every date before record 3966 lands on it (or on the one before with precedente).
    RisultatoData r = ControllaDataSuper("10/02/1990", a, false);
    EXPECT_FALSE(r.ErroreData);
    EXPECT_EQ(r.IndiceTrovato, PrimoIndiceRicercaSuper);
    EXPECT_EQ(r.DataTrovata, prima3966);
    EXPECT_EQ(ControllaDataSuper("10/02/1990", a, true).IndiceTrovato, PrimoIndiceRicercaSuper - 1);
    // The lower limit is the fixed date, shown in the message.
    EXPECT_FALSE(ControllaDataSuper("04/01/1947", a, false).ErroreData);
    r = ControllaDataSuper("03/01/1947", a, false);
    EXPECT_TRUE(r.ErroreData);
    EXPECT_EQ(r.messaggio.testo, MessaggioDataInferiore("04/01/1947"));
    // Dates after 3966 are found as in the Lotto walk.
    const int32_t n = a.NumeroEstrazioniSuper();
    const std::string ultima = a.DataEstrazione(n, ArchivioSuper);
    EXPECT_EQ(ControllaDataSuper(ultima, a, false).IndiceTrovato, n);
    EXPECT_EQ(ControllaDataSuper("31/12/2020", a, false).messaggio.testo, MessaggioDataSuperiore(ultima));
}

// With fewer than 3966 records the walk covers the whole file.
TEST(ControlloDataSuper, ArchivioCorto) {
    CartellaTemporanea c;
    test::CreaArchivioDemo(c.percorso(), ParametriDemo{2, Data{30, 12, 2012}, Data{3, 1, 2009}});
    const Archivio a = Archivio::Apri(c.percorso());
    ASSERT_LT(a.NumeroEstrazioniSuper(), PrimoIndiceRicercaSuper);
    const RisultatoData r = ControllaDataSuper(a.DataEstrazione(10, ArchivioSuper), a, false);
    EXPECT_FALSE(r.ErroreData);
    EXPECT_EQ(r.IndiceTrovato, 10);
    EXPECT_EQ(ControllaDataSuper("01/01/2000", a, false).IndiceTrovato, 1);
    // Nothing stands before the first stored draw: its date is the limit the message names.
    const std::string primaArchiviata = a.DataEstrazione(1, ArchivioSuper);
    for (const char* data : {"01/01/2000", "04/01/1947"}) {
        const RisultatoData p = ControllaDataSuper(data, a, true);
        EXPECT_TRUE(p.ErroreData) << data;
        EXPECT_EQ(p.messaggio.testo, MessaggioDataInferiore(primaArchiviata)) << data;
    }
    EXPECT_EQ(ControllaDataSuper(primaArchiviata, a, true).IndiceTrovato, 1);
}

TEST(ControlloDataReale, SuperEnalottoReale) {
    GORGO_RICHIEDI_ARCHIVI_REALI(reale);
    const Archivio a = Archivio::Apri(reale);
    const RisultatoData r = ControllaDataSuper("07/04/2026", a, false);
    EXPECT_FALSE(r.ErroreData) << r.messaggio.testo;
    EXPECT_EQ(r.IndiceTrovato, 2823);
    EXPECT_EQ(ControllaDataSuper("02/01/2009", a, false).IndiceTrovato, 1);
}

// The sorts against the standard sort, on the shapes the procedures feed them.
TEST(Ordina, ComeLOrdinamentoStandard) {
    std::mt19937 g(42);
    for (int prova = 0; prova < 300; ++prova) {
        const int n = static_cast<int>(g() % 200);
        std::vector<int32_t> v(static_cast<size_t>(n));
        const int forma = prova % 4;
        for (int i = 0; i < n; ++i)
            v[static_cast<size_t>(i)] = forma == 0   ? static_cast<int32_t>(g() % 1000) - 500
                                        : forma == 1 ? i                               // already ordered
                                        : forma == 2 ? n - i                           // reversed
                                                     : static_cast<int32_t>(g() % 3);  // many equal
        // A sub-range: the rest must not move.
        const long primo = n ? static_cast<long>(g() % static_cast<unsigned>(n)) : 0;
        const long ultimo = n ? primo + static_cast<long>(g() % static_cast<unsigned>(n - primo)) : -1;
        auto atteso = v;
        if (n) std::sort(atteso.begin() + primo, atteso.begin() + ultimo + 1);
        auto lunghi = v;
        OrdinaLunghi(lunghi, primo, ultimo);
        ASSERT_EQ(lunghi, atteso);
        auto varianti = v;
        OrdinaVarianti(std::span<int32_t>(varianti), primo, ultimo);
        ASSERT_EQ(varianti, atteso);
        std::vector<int16_t> corti(v.begin(), v.end()), attesiCorti(atteso.begin(), atteso.end());
        OrdinaInteri(corti, primo, ultimo);
        ASSERT_EQ(corti, attesiCorti);
    }
    std::vector<std::string> t = {"b", "B", "a", "à", "A", "10", "9"};
    OrdinaTuttiTesti(t);
    EXPECT_EQ(t, (std::vector<std::string>{"10", "9", "A", "B", "a", "b", "à"}));  // by code values
    std::vector<int32_t> uno = {5};
    OrdinaLunghi(uno, 0, 0);
    OrdinaLunghi(uno, 3, 1);  // first above last: nothing
    EXPECT_EQ(uno, std::vector<int32_t>{5});
}

TEST(Numeri, CadenzaDecinaFuori90) {
    for (int n = 1; n <= 90; ++n) {
        EXPECT_EQ(CadenzaDi(n), std::stoi(std::string(1, std::to_string(100 + n).back())));
        EXPECT_EQ(DecinaDi(n), (n - 1) / 10 + 1) << n;
    }
    EXPECT_EQ(DecinaDi(10), 1);
    EXPECT_EQ(DecinaDi(11), 2);
    EXPECT_EQ(CadenzaDi(50), 0);
    EXPECT_EQ(CadenzaDi(5), 5);
    for (int a = 1; a <= 90; ++a)
        for (int b = 1; b <= 90; ++b) {
            const int s = Fuori90Somma(a + b), p = Fuori90Prodotto(a * b);
            ASSERT_TRUE(s >= 1 && s <= 90 && (s - a - b) % 90 == 0);
            ASSERT_TRUE(p >= 1 && p <= 90 && (p - a * b) % 90 == 0);
            const int c = Fuori90Catena(a - b - 90);
            ASSERT_TRUE(c >= 1 && c <= 90 && ((c - (a - b)) % 90 + 90) % 90 == 0);
        }
    EXPECT_EQ(Fuori90Somma(180), 90);  // a single take-off, as the sum rule says
    EXPECT_EQ(Fuori90Prodotto(180), 90);
    EXPECT_EQ(Fuori90Catena(0), 90);
    EXPECT_EQ(Fuori90Catena(-90), 90);
    EXPECT_EQ(Fuori90Catena(271), 1);
}

}  // namespace
}  // namespace gorgo::archives
