// The printed pages of the draws: the lines of each layout, the page breaks by their counts,
// the month and near-date choices, the checks before the first page.

#include <gtest/gtest.h>

#include <fmt/format.h>

#include "archives/archivio.h"
#include "archives/demo.h"
#include "archives/dieci_e_lotto.h"
#include "archives/regole.h"
#include "maintenance/stampa_estrazioni.h"
#include "support/attesi.h"
#include "support/cartelle.h"

namespace gorgo::maintenance {
namespace {

using config::RigaTesto;
using test::CartellaTemporanea;

// One demo archive for the whole suite: the tests only read it.
class StampaEstrazioni : public ::testing::Test {
protected:
    static void SetUpTestSuite() {
        cartella_ = new CartellaTemporanea;
        test::CreaArchivioDemo(cartella_->percorso());
        archivio_ = new archives::Archivio(archives::Archivio::Apri(cartella_->percorso()));
    }
    static void TearDownTestSuite() {
        delete archivio_;
        delete cartella_;
    }
    static const archives::Archivio& A() { return *archivio_; }
    // The date of draw i, and the index of the draw on a date.
    static std::string D(int32_t i) { return A().DataEstrazione(i); }
    static int32_t I(const archives::Data& d) { return A().CercaIndice(d, false)->IndiceTrovato; }

    static CartellaTemporanea* cartella_;
    static archives::Archivio* archivio_;
};
CartellaTemporanea* StampaEstrazioni::cartella_ = nullptr;
archives::Archivio* StampaEstrazioni::archivio_ = nullptr;

ParametriStampaEstrazioni Parametri(std::string da, std::string a, int ruota = 1) {
    ParametriStampaEstrazioni p;
    p.dataInizio = std::move(da);
    p.dataFine = std::move(a);
    p.ruota = ruota;
    return p;
}

// Pages as lists of lines, split at the marks.
std::vector<std::vector<std::string>> Pagine(const StampaComposta& s) {
    std::vector<std::vector<std::string>> pagine;
    for (const RigaTesto& r : s.righe) {
        if (pagine.empty() || r.nuovaPagina) pagine.emplace_back();
        pagine.back().push_back(r.testo);
    }
    return pagine;
}

constexpr size_t Testata = 6;  // lines of the page header

TEST_F(StampaEstrazioni, ListaDiUnaSolaEstrazione) {
    const int32_t i = I({4, 1, 2025});
    const StampaComposta s = ComponiStampaLotto(A(), Parametri(D(i), D(i), 1));
    ASSERT_TRUE(s.errore.vuoto()) << s.errore.testo;
    EXPECT_EQ(s.layout, LayoutStampa::Lista);
    EXPECT_EQ(s.font, "Courier New");
    EXPECT_EQ(s.punti, 10);
    EXPECT_EQ(s.pagine, 1);
    EXPECT_EQ(s.estrazioni, 1);
    EXPECT_EQ(s.titolo1, "Gorgo - Stampa estrazioni dal " + D(i) + " al " + D(i));
    EXPECT_EQ(s.titolo2, "Ruota : Bari      ");
    EXPECT_TRUE(s.righe[1].grassetto);
    EXPECT_TRUE(test::ConfrontaConAtteso(test::TestoRighe(s.righe), "maintenance/attesi/lista_una.txt"));
}

TEST_F(StampaEstrazioni, ListaCentoEstrazioniUnaPaginaCentounoDue) {
    // A hundred draws fill one page in two columns; the 101st opens the second page.
    const int32_t da = I({2, 1, 2020});
    const StampaComposta cento = ComponiStampaLotto(A(), Parametri(D(da), D(da + 99), 6));
    ASSERT_TRUE(cento.errore.vuoto());
    EXPECT_EQ(cento.pagine, 1);
    const StampaComposta s = ComponiStampaLotto(A(), Parametri(D(da), D(da + 100), 6));
    EXPECT_EQ(s.pagine, 2);
    EXPECT_TRUE(test::ConfrontaConAtteso(test::TestoRighe(s.righe), "maintenance/attesi/lista_centouno.txt"));
    // The hundred alone: the same first page but for the end date in the title.
    const auto pagine = Pagine(s), sole = Pagine(cento);
    ASSERT_EQ(sole.size(), 1u);
    EXPECT_EQ(std::vector(sole[0].begin() + Testata, sole[0].end()),
              std::vector(pagine[0].begin() + Testata, pagine[0].end()));
}

TEST_F(StampaEstrazioni, BlocchiTrePerRigaQuattroRighePerPagina) {
    const int32_t da = I({2, 1, 2020});
    const StampaComposta s = ComponiStampaLotto(A(), Parametri(D(da), D(da + 12), 0));
    ASSERT_TRUE(s.errore.vuoto());
    EXPECT_EQ(s.layout, LayoutStampa::Blocchi);
    EXPECT_EQ(s.titolo2, "Ruota : Tutte     ");
    EXPECT_EQ(s.estrazioni, 13);
    ASSERT_EQ(s.pagine, 2);
    EXPECT_TRUE(s.righe[Testata].grassetto);
    // Four rows of twelve lines a page, a blank line between rows; the 13th draw alone on the second.
    EXPECT_TRUE(test::ConfrontaConAtteso(test::TestoRighe(s.righe), "maintenance/attesi/blocchi.txt"));
}

TEST_F(StampaEstrazioni, TabellaRigheERighello) {
    archives::RecordEstrazione r;
    r.impostaData({7, 3, 2024});
    const uint8_t numeri[5] = {55, 1, 90, 10, 11};
    for (int p = 0; p < 5; ++p) r.Ruota[2][p] = numeri[p];
    const std::string riga = RigaTabella(r, 3);
    EXPECT_EQ(riga.substr(0, 98),
              "X........X X......... .......... .......... .......... ....X..... .......... .......... .........X");
    EXPECT_EQ(riga.substr(98), "  55  1 90 10 11   7");
    // Every mark stands under its number on the two rulers.
    for (size_t k = 0; k < 98; ++k) {
        if (riga[k] != 'X') continue;
        const int n = (RigaDecine[k] - '0') * 10 + (RigaUnita[k] - '0');
        EXPECT_TRUE(n == 55 || n == 1 || n == 90 || n == 10 || n == 11) << n;
    }

    const int32_t da = I({2, 1, 2020});
    ParametriStampaEstrazioni p = Parametri(D(da), D(da + 50), 5);
    p.dettagliata = true;
    const StampaComposta s = ComponiStampaLotto(A(), p);
    ASSERT_TRUE(s.errore.vuoto());
    EXPECT_EQ(s.layout, LayoutStampa::Tabella);
    EXPECT_EQ(s.punti, 9);
    ASSERT_EQ(s.pagine, 2);
    EXPECT_TRUE(s.righe[Testata].grassetto);
    // Fifty draws under the rulers, then the rulers again on the next page and the 51st.
    EXPECT_TRUE(test::ConfrontaConAtteso(test::TestoRighe(s.righe), "maintenance/attesi/tabella.txt"));
}

TEST_F(StampaEstrazioni, MeseEDateVicine) {
    // Only March, in a range of January: nothing but the header.
    ParametriStampaEstrazioni p = Parametri("02/01/2020", "31/01/2020", 1);
    p.soloMese = true;
    p.mese = 3;
    StampaComposta s = ComponiStampaLotto(A(), p);
    ASSERT_TRUE(s.errore.vuoto());
    EXPECT_EQ(s.estrazioni, 0);
    EXPECT_EQ(s.pagine, 1);
    EXPECT_EQ(s.righe.size(), Testata);
    EXPECT_EQ(s.titolo2, "Ruota : Bari       - Solo mese di marzo");

    // Only March over five years: every March draw, none else.
    p = Parametri("01/01/2015", "31/12/2019", 1);
    p.soloMese = true;
    p.mese = 3;
    s = ComponiStampaLotto(A(), p);
    int marzo = 0;
    for (int32_t i = I({1, 1, 2015}); i < I({1, 1, 2020}); ++i) marzo += A().LeggiEstrazione(i).data().mese == 3;
    EXPECT_EQ(s.estrazioni, marzo);

    // 29 February: in leap years the draw on or after it, else the first after 28 February.
    p = Parametri("01/01/2015", "30/12/2025", 2);
    p.dataVicina = true;
    p.giorno = 29;
    p.meseVicino = 2;
    s = ComponiStampaLotto(A(), p);
    ASSERT_TRUE(s.errore.vuoto()) << s.errore.testo;
    EXPECT_EQ(s.titolo2, "Ruota : Cagliari   - Solo date vicine al 29 febbraio");
    EXPECT_EQ(s.estrazioni, 11);
    std::vector<std::string> date;
    for (size_t k = Testata; k < s.righe.size(); ++k) date.push_back(s.righe[k].testo.substr(5, 10));
    ASSERT_EQ(date.size(), 11u);
    for (int anno = 2015; anno <= 2025; ++anno) {
        const archives::Data soglia =
            archives::AnnoBisestile(anno) ? archives::Data{29, 2, anno} : archives::Data{1, 3, anno};
        const int32_t atteso = I(soglia);
        EXPECT_EQ(date[static_cast<size_t>(anno - 2015)], D(atteso)) << anno;
    }
    // Both choices: the near draw of each year, kept only when it falls in the month.
    p.soloMese = true;
    p.mese = 3;
    s = ComponiStampaLotto(A(), p);
    int atteso = 0;
    for (int anno = 2015; anno <= 2025; ++anno) {
        const archives::Data soglia =
            archives::AnnoBisestile(anno) ? archives::Data{29, 2, anno} : archives::Data{1, 3, anno};
        atteso += A().LeggiEstrazione(I(soglia)).data().mese == 3;
    }
    EXPECT_EQ(s.estrazioni, atteso);
    EXPECT_EQ(s.titolo2, "Ruota : Cagliari   - Solo mese di marzo - Solo date vicine al 29 febbraio");
}

TEST_F(StampaEstrazioni, ControlliPrimaDellaPrimaPagina) {
    struct Caso {
        ParametriStampaEstrazioni p;
        std::string messaggio;
    };
    ParametriStampaEstrazioni dettagliata = Parametri("01/01/2020", "31/12/2020", 0);
    dettagliata.dettagliata = true;
    ParametriStampaEstrazioni aprile = Parametri("01/01/2020", "31/12/2020", 1);
    aprile.dataVicina = true;
    aprile.giorno = 31;
    aprile.meseVicino = 4;
    ParametriStampaEstrazioni trenta = aprile;
    trenta.giorno = 30;
    trenta.meseVicino = 2;
    const Caso casi[] = {
        {Parametri("31/12/2020", "01/01/2020"), "Data finale minore della data iniziale !"},
        {dettagliata, "E' necessario selezionare una ruota singola!"},
        {aprile, "Data errata !"},
        {trenta, "Data errata !"},
        {Parametri("1/1/2020", "31/12/2020"), "Inserire la data nel formato GG/MM/AAAA !"},
        {Parametri("01/01/2020", "01/01/2026"),
         "La data non può essere superiore alla data ultima estrazione inserita (30/12/2025)"},
        {Parametri("01/01/1850", "01/01/2020"),
         "La data non può essere inferiore alla data inizio gestione archivi (07/01/1871)"},
    };
    for (const Caso& c : casi) {
        const StampaComposta s = ComponiStampaLotto(A(), c.p);
        EXPECT_EQ(s.errore.testo.substr(0, c.messaggio.size()), c.messaggio);
        EXPECT_TRUE(s.righe.empty());
        EXPECT_EQ(s.pagine, 0);
    }
    // Dates that are no draw dates move to the draws found: start forward, end backward.
    const StampaComposta s = ComponiStampaLotto(A(), Parametri("01/01/2020", "01/01/2021"));
    ASSERT_TRUE(s.errore.vuoto());
    EXPECT_EQ(s.dataInizio, D(I({1, 1, 2020})));
    EXPECT_EQ(s.dataFine, D(I({1, 1, 2021}) - 1));
    EXPECT_EQ(s.titolo1, "Gorgo - Stampa estrazioni dal " + s.dataInizio + " al " + s.dataFine);
    // A range between two draws finds the later start and the earlier end.
    const int32_t i = I({2, 1, 2020});
    const StampaComposta vuota = ComponiStampaLotto(
        A(), Parametri(archives::Data::daGiorni(A().LeggiEstrazione(i).data().giorni() + 1).testo(),
                       archives::Data::daGiorni(A().LeggiEstrazione(i + 1).data().giorni() - 1).testo()));
    EXPECT_EQ(vuota.errore.testo, "Data finale minore della data iniziale !");
}

TEST_F(StampaEstrazioni, SuperEnalotto) {
    archives::EstrazioneSuper e;
    e.esito = archives::SuperConJollySuperStar;
    e.data = "07/03/2024";
    e.numeri = {1, 2, 3, 44, 55, 90, 7, 8};
    EXPECT_EQ(RigaSuper(e), "| 07/03/2024 |   01 02 03 44 55 90    |  07   |    08     |");
    EXPECT_EQ(RigaSuper(e).size(), IntestazioneSuper.size());
    e.esito = archives::SuperSoloSei;
    EXPECT_EQ(RigaSuper(e), "| 07/03/2024 |   01 02 03 44 55 90    |       |           |");
    e.esito = archives::SuperConSuperStar;
    EXPECT_EQ(RigaSuper(e), "| 07/03/2024 |   01 02 03 44 55 90    |       |    08     |");
    e.esito = archives::SuperIncompleta;
    e.numeri = {1, 2, 0, 0, 0, 0, 0, 0};
    EXPECT_EQ(RigaSuper(e), "| 07/03/2024 |   01 02                |       |           |");

    const int32_t n = A().NumeroEstrazioniSuper();
    const std::string da = A().DataEstrazione(n - 50, archives::ArchivioSuper),
                      a = A().DataEstrazione(n, archives::ArchivioSuper);
    const StampaComposta s = ComponiStampaSuper(A(), Parametri(da, a, 0));
    ASSERT_TRUE(s.errore.vuoto()) << s.errore.testo;
    EXPECT_EQ(s.layout, LayoutStampa::ListaSuper);
    EXPECT_EQ(s.estrazioni, 51);
    ASSERT_EQ(s.pagine, 2);
    EXPECT_EQ(s.titolo1, "Gorgo - Stampa estrazioni Superenalotto dal " + da + " al " + a);
    EXPECT_TRUE(test::ConfrontaConAtteso(test::TestoRighe(s.righe), "maintenance/attesi/superenalotto.txt"));

    // The choices print under the title; the dates are checked against this archive.
    ParametriStampaEstrazioni p = Parametri(da, a, 0);
    p.soloMese = true;
    p.mese = A().LeggiRecordSuper(n).data().mese;
    const StampaComposta m = ComponiStampaSuper(A(), p);
    EXPECT_EQ(m.titolo2, "Solo mese di " + std::string(archives::NomeMese(p.mese)));
    EXPECT_EQ(Pagine(m)[0][2], config::Centrato(m.titolo2));
    EXPECT_EQ(ComponiStampaSuper(A(), Parametri("01/01/1900", a)).errore.testo,
              "La data non può essere inferiore alla data inizio gestione archivi (04/01/1947)");
}

TEST_F(StampaEstrazioni, DieciELotto) {
    // Before every wheel was drawn no 10eLotto draw follows: nothing but the header.
    StampaComposta s = ComponiStampa10eLotto(A(), Parametri("07/01/1871", "31/12/1872", 0));
    ASSERT_TRUE(s.errore.vuoto());
    EXPECT_EQ(s.estrazioni, 0);
    EXPECT_EQ(s.righe.size(), Testata);
    EXPECT_EQ(s.titolo1, "Gorgo - Stampa estrazioni 10eLotto dal 07/01/1871 al " + s.dataFine);
    EXPECT_EQ(s.titolo2, "");

    const int32_t da = I({2, 1, 2024});
    s = ComponiStampa10eLotto(A(), Parametri(D(da), D(da + 59), 0));
    EXPECT_EQ(s.layout, LayoutStampa::Lista10eLotto);
    EXPECT_EQ(s.estrazioni, 60);
    ASSERT_EQ(s.pagine, 2);
    EXPECT_TRUE(test::ConfrontaConAtteso(test::TestoRighe(s.righe), "maintenance/attesi/dieci_e_lotto.txt"));

    ParametriStampaEstrazioni p = Parametri(D(da), D(da + 59), 0);
    p.dataVicina = true;
    p.giorno = 1;
    p.meseVicino = 1;
    s = ComponiStampa10eLotto(A(), p);
    EXPECT_EQ(s.titolo2, " - Solo date vicine al 1 gennaio");
    EXPECT_EQ(s.estrazioni, 1);
}

}  // namespace
}  // namespace gorgo::maintenance
