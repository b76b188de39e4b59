// Hand-checked cases of the literal search on tiny histories built in memory.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <set>
#include <string>
#include <vector>

#include "archives/storia.h"
#include "builder/indice_mensile.h"
#include "builder/modello.h"
#include "builder/parametri.h"
#include "ricerca_letterale.h"

namespace gorgo::builder {
namespace {

using Cinquina = std::array<uint8_t, 5>;

// A history of n draws on consecutive Saturdays from 04/01/2020, every wheel empty.
struct StoriaProva {
    std::vector<archives::RecordEstrazione> record;

    explicit StoriaProva(int n) : record(static_cast<size_t>(n)) {
        const int32_t primo = archives::Data{4, 1, 2020}.giorni();
        for (int i = 0; i < n; ++i) {
            record[static_cast<size_t>(i)].impostaData(archives::Data::daGiorni(primo + 7 * i));
            record[static_cast<size_t>(i)].NumeroAnno = static_cast<uint8_t>(i + 1);
        }
    }
    // Draw 1..n, wheel 1..11.
    void Ruota(int estrazione, int ruota, Cinquina numeri) {
        for (int p = 0; p < 5; ++p)
            record[static_cast<size_t>(estrazione - 1)].Ruota[ruota - 1][p] = numeri[static_cast<size_t>(p)];
    }
    std::string DataDi(int estrazione) const { return record[static_cast<size_t>(estrazione - 1)].dataTesto(); }
};

// The history and what a search reads besides its parameters.
struct Ambiente {
    archives::StoriaLotto storia;
    IndiciMensili indici;
    ContestoRicerca contesto;

    explicit Ambiente(const StoriaProva& s) : storia(s.record) {
        indici = CalcolaIndiciMensili(storia, "  Y Y Y");
        contesto.storia = &storia;
        contesto.indiciMensili = &indici;
    }
};

ParametriRicerca Parametri(const StoriaProva& s, int da, int a) {
    ParametriRicerca p;
    p.valoreSpia = 27;
    p.indiceMese = 22;
    p.dataDa = s.DataDi(da);
    p.dataA = s.DataDi(a);
    return p;
}

TEST(LetteraleRicerca, SpiaSuDueRuoteContaUnaVoltaSullaPiuBassa) {
    StoriaProva s(5);
    s.Ruota(3, 2, {27, 1, 2, 3, 4});  // Cagliari
    s.Ruota(3, 8, {5, 6, 27, 7, 8});  // Roma
    Ambiente amb(s);
    ParametriRicerca p = Parametri(s, 1, 5);
    p.ruoteRicerca = {true, false, false, false, false, false, false, false, false, false, false, false};

    const EsitoRicerca e = CercaAlgoritmiLetterale(p, amb.contesto);
    ASSERT_TRUE(e.errore.vuoto()) << e.errore.testo;
    ASSERT_EQ(e.casi.size(), 1u);
    EXPECT_EQ(e.casi[0].indice, 3);
    EXPECT_EQ(e.casi[0].ruota, 2);
    EXPECT_EQ(e.casi[0].nomeRuota, "Cagliari  ");
    EXPECT_EQ(e.casi[0].testoSpia, "27");
    EXPECT_EQ(e.casi[0].testoPosizione, "1");
    EXPECT_EQ(e.casi[0].testoIndice, "    3");
    EXPECT_EQ(e.casi[0].testoIndiceAnnuale, "  3");
    EXPECT_EQ(e.sortite, "Sortite del numero 27 sulle ruote di ricerca nel periodo considerato: 1");
}

// Cases at draws 2 and 4, the period ending at 4 while the archive has a draw 5 with 27 on Bari:
// the window of the case at 4 is empty, so "1' su Bari" scores once in two cases.
TEST(LetteraleRicerca, CasoNellUltimaEstrazioneHaFinestraVuota) {
    StoriaProva s(5);
    s.Ruota(1, 1, {40, 41, 42, 43, 44});
    s.Ruota(2, 1, {27, 20, 21, 22, 23});
    s.Ruota(3, 1, {10, 11, 12, 13, 14});
    s.Ruota(4, 1, {27, 30, 31, 32, 33});
    s.Ruota(5, 1, {27, 50, 51, 52, 53});
    Ambiente amb(s);
    ParametriRicerca p = Parametri(s, 1, 4);
    p.soloPosizione = true;

    const EsitoRicerca e = CercaAlgoritmiLetterale(p, amb.contesto, true);
    ASSERT_TRUE(e.errore.vuoto()) << e.errore.testo;
    ASSERT_EQ(e.casi.size(), 2u);
    EXPECT_EQ(e.casi[0].indice, 4);
    EXPECT_EQ(e.casi[1].indice, 2);
    ASSERT_EQ(e.righe.size(), 1u);
    const RigaAlgoritmo& r = e.righe[0];
    EXPECT_EQ(r.descrizione, NomeCella(1));
    EXPECT_EQ(r.sortite, 2);
    EXPECT_EQ(r.testoPresenze(), "    1 /     1");
    EXPECT_EQ(r.testoSpia, "27");
    EXPECT_EQ(r.chiave, "101+00000_27111111");
    EXPECT_TRUE(r.selezionata);
    EXPECT_EQ(e.ultimo, 4);
    // The newest case is one draw from the archive's end: 8 of the 9 colpi are still to come.
    EXPECT_EQ(e.previsioni, "Previsione in corso : 8 colpi al termine");
    EXPECT_EQ(e.colorePrevisioni, 128u);
}

TEST(LetteraleRicerca, UltimeSortiteConMenoUscitePercorreFinoAllaPrima) {
    StoriaProva s(6);
    for (int i : {1, 3, 5}) s.Ruota(i, 1, {27, 1, 2, 3, 4});
    Ambiente amb(s);
    ParametriRicerca p = Parametri(s, 4, 6);  // DataDa does not count with "Ultime"
    p.perData = 1;
    p.sortiteDaCercare = 10;
    p.colpi = 1;  // the newest case is one draw from the end: its colpo has been played

    EsitoRicerca e = CercaAlgoritmiLetterale(p, amb.contesto);
    ASSERT_TRUE(e.errore.vuoto()) << e.errore.testo;
    ASSERT_EQ(e.casi.size(), 3u);
    EXPECT_EQ(e.casi[0].indice, 5);
    EXPECT_EQ(e.casi[2].indice, 1);
    EXPECT_EQ(e.sortite, "Sortite del numero 27 sulle ruote di ricerca nel periodo considerato: 3");
    EXPECT_EQ(e.previsioni, "Nessuna previsione in corso");

    p.sortiteDaCercare = 2;
    e = CercaAlgoritmiLetterale(p, amb.contesto);
    ASSERT_EQ(e.casi.size(), 2u);
    EXPECT_EQ(e.casi[1].indice, 3);
}

TEST(LetteraleRicerca, DifferenzaTuttiINumeriVaDa1A89SommaDa1A90) {
    StoriaProva s(3);
    s.Ruota(2, 1, {1, 2, 45, 45, 89});  // 45 - 45 gives 90; 1 - 2 gives 89; 45 + 45 gives 90
    Ambiente amb(s);
    ParametriRicerca p = Parametri(s, 1, 3);
    p.modoSpia = ModoSpia::Tutti;
    p.soloPosizione = true;

    p.tipoSpia = TipoSpia::Differenza;
    EsitoRicerca e = CercaAlgoritmiLetterale(p, amb.contesto);
    ASSERT_TRUE(e.errore.vuoto()) << e.errore.testo;
    std::set<int> valori;
    for (const auto& c : e.casi) valori.insert(c.spia);
    EXPECT_EQ(valori.count(89), 1u);
    EXPECT_EQ(valori.count(90), 0u);
    EXPECT_TRUE(e.sortite.empty());  // no description with all values
    for (const auto& c : e.casi) EXPECT_EQ(c.testoPosizione, "-");

    p.tipoSpia = TipoSpia::Somma;
    e = CercaAlgoritmiLetterale(p, amb.contesto);
    valori.clear();
    for (const auto& c : e.casi) valori.insert(c.spia);
    EXPECT_EQ(valori.count(90), 1u);
}

// One case at draw 2; in its window Bari gives the pair 10-14 twice. Position only, the pair
// (1' su Cagliari, 2' su Bari) holds 14 and 10: one hit, quantity 2, over the threshold of 1.
TEST(LetteraleRicerca, AmbiSoloPosizioneContaLeCoppieDellaFinestra) {
    StoriaProva s(4);
    s.Ruota(2, 1, {27, 10, 11, 12, 13});
    s.Ruota(2, 2, {14, 15, 16, 17, 18});
    s.Ruota(3, 1, {10, 14, 50, 51, 52});
    s.Ruota(4, 1, {60, 14, 10, 61, 62});
    Ambiente amb(s);
    ParametriRicerca p = Parametri(s, 1, 4);
    p.tipoRicerca = TipoRicerca::Ambi;
    p.soloPosizione = true;
    p.ruoteRicerca = {false, true, false, false, false, false, false, false, false, false, false, false};
    p.ruoteGioco = p.ruoteRicerca;

    const EsitoRicerca e = CercaAlgoritmiLetterale(p, amb.contesto);
    ASSERT_TRUE(e.errore.vuoto()) << e.errore.testo;
    ASSERT_EQ(e.casi.size(), 1u);
    ASSERT_EQ(e.righe.size(), 1u);
    const RigaAlgoritmo& r = e.righe[0];
    EXPECT_EQ(r.descrizione, NomeCella(6) + " e " + NomeCella(2));
    EXPECT_EQ(r.testoPresenze(), "    1 /     2");
    EXPECT_EQ(r.chiave, "102+00201+00_27111111");
    EXPECT_FALSE(r.selezionata);
}

// The "Presenze/quantità" texts of rows with the given presences, in that (sorted) order.
std::vector<std::string> Testi(const std::vector<int>& presenze) {
    std::vector<std::string> testi;
    for (const int p : presenze) {
        RigaAlgoritmo r;
        r.presenze = p;
        r.quantita = p;
        testi.push_back(r.testoPresenze());
    }
    return testi;
}

TEST(LetteraleSelezione, AmbateOltre30SoloSePareggianoLaRiga15) {
    // Rows 1..14 above, rows 15..35 tie, rows 36..40 below: 35 rows.
    std::vector<int> p;
    for (int i = 1; i <= 14; ++i) p.push_back(100 - i);
    for (int i = 15; i <= 35; ++i) p.push_back(50);
    for (int i = 36; i <= 40; ++i) p.push_back(40 - i);
    auto scelte = letterale::SelezioneAmbate(Testi(p), false);
    ASSERT_EQ(scelte.size(), 35u);
    EXPECT_EQ(scelte.back(), 34u);

    // Row 30 differs from row 15: exactly 30, although rows 31.. tie with row 30.
    for (int i = 30; i <= 40; ++i) p[static_cast<size_t>(i - 1)] = 45;
    scelte = letterale::SelezioneAmbate(Testi(p), false);
    EXPECT_EQ(scelte.size(), 30u);

    // Fewer than 30 candidates: all of them.
    EXPECT_EQ(letterale::SelezioneAmbate(Testi({5, 4, 3}), false).size(), 3u);
    EXPECT_TRUE(letterale::SelezioneAmbate({}, false).empty());
}

TEST(LetteraleSelezione, AmbateTuttiIValoriSoloIlPrimoLivelloAlPiu60) {
    std::vector<int> p(29, 7);
    p.push_back(6);
    EXPECT_EQ(letterale::SelezioneAmbate(Testi(p), true).size(), 29u);
    EXPECT_EQ(letterale::SelezioneAmbate(Testi(std::vector<int>(70, 3)), true).size(), 60u);
}

// Rows with the given presences, keyed by their place from 1.
std::vector<RigaAlgoritmo> Righe(const std::vector<int>& presenze) {
    std::vector<RigaAlgoritmo> righe;
    for (size_t i = 0; i < presenze.size(); ++i) {
        RigaAlgoritmo r;
        r.presenze = presenze[i];
        r.quantita = presenze[i];
        r.chiave = std::to_string(i + 1);
        righe.push_back(r);
    }
    return righe;
}

TEST(LetteraleSelezione, OrdinamentoStabileSulTestoDellePresenze) {
    auto righe = Righe({1, 3, 3, 2});
    righe[2].quantita = 10;  // "    3 /    10" sorts above "    3 /     3"
    letterale::OrdinaDecrescente(righe);
    std::vector<std::string> chiavi;
    for (const auto& r : righe) chiavi.push_back(r.chiave);
    EXPECT_EQ(chiavi, (std::vector<std::string>{"3", "2", "4", "1"}));

    auto pari = Righe({2, 2, 2});
    letterale::OrdinaDecrescente(pari);
    EXPECT_EQ(pari[0].chiave, "1");
    EXPECT_EQ(pari[2].chiave, "3");
}

TEST(LetteraleSoglia, TabelleDellaSogliaPresenze) {
    EXPECT_EQ(letterale::SogliaPerSortite(0), 1);
    EXPECT_EQ(letterale::SogliaPerSortite(5), 1);
    EXPECT_EQ(letterale::SogliaPerSortite(6), 2);
    EXPECT_EQ(letterale::SogliaPerSortite(50), 3);
    EXPECT_EQ(letterale::SogliaPerSortite(51), 5);
    EXPECT_EQ(letterale::SogliaPerSortite(120), 7);
    EXPECT_EQ(letterale::SogliaPerSortite(121), 9);
    EXPECT_EQ(letterale::CrescitaSoglia(1000, 22), 0);
    EXPECT_EQ(letterale::CrescitaSoglia(1001, 22), 1);
    EXPECT_EQ(letterale::CrescitaSoglia(10001, 22), 2);
    EXPECT_EQ(letterale::CrescitaSoglia(10001, 5), 1);
}

}  // namespace
}  // namespace gorgo::builder
