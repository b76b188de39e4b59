// The desk's moves and labels, the families and analyses, the sums and distances table and
// the ten-draw lists of the other games, on small histories built draw by draw.

#include <gtest/gtest.h>

#include <memory>
#include <random>

#include "consultation/consultazione.h"
#include "consultation/dieci_estrazioni.h"
#include "consultation/somme_distanze.h"
#include "support/casuali.h"

namespace gorgo::test {
namespace {

using namespace consultation;

using Numeri = std::array<std::array<int, 5>, 11>;

archives::RecordEstrazione Record(archives::Data d, const Numeri& n) {
    archives::RecordEstrazione r;
    r.impostaData(d);
    r.NumeroAnno = 1;
    for (size_t w = 0; w < 11; ++w)
        for (size_t p = 0; p < 5; ++p) r.Ruota[w][p] = static_cast<uint8_t>(n[w][p]);
    return r;
}

// A plain draw: wheel w holds 5w-4 .. 5w (so Nazionale 51..55).
Numeri Semplice() {
    Numeri n{};
    for (int w = 0; w < 11; ++w)
        for (int p = 0; p < 5; ++p) n[static_cast<size_t>(w)][static_cast<size_t>(p)] = 5 * w + p + 1;
    return n;
}

archives::StoriaCondivisa Storia(std::vector<archives::RecordEstrazione> r) {
    return std::make_shared<const archives::StoriaLotto>(std::move(r));
}

// The same grid one draw long, for the analyses.
Griglia Analizza(const Numeri& n, ParametriAnalisi p, int ruota = 0) {
    Consultazione c(Storia({Record({4, 1, 2025}, n)}));
    c.RuotaCorrente = ruota;
    c.Analisi = p;
    return c.Aggiorna();
}

std::vector<int> Marcate(const Griglia& g) {
    std::vector<int> v;
    for (size_t k = 0; k < g.celle.size(); ++k)
        if (g.celle[k].colorata) v.push_back(static_cast<int>(k) + 1);
    return v;
}

TEST(Consultazione, MossePeriodiEtichette) {
    std::mt19937 gen(5);
    OpzioniStoria o;
    o.primaNazionale = 40;
    auto storia = std::make_shared<const archives::StoriaLotto>(StoriaCasuale(gen, o));
    Consultazione c(storia);
    const int32_t n = c.NumeroEstrazioni();
    EXPECT_EQ(c.IndiceCorrente, n);

    // At draw 5 in the one-wheel view the rows are draws 1 to 10, the current the fifth.
    c.RuotaCorrente = 3;
    c.VaiA(5);
    const Griglia& g = c.Aggiorna();
    for (int r = 0; r < 10; ++r) EXPECT_EQ(g.indiciRighe[static_cast<size_t>(r)], r + 1);
    EXPECT_EQ(g.righeDate[4], (*storia)[5].dataTesto());
    for (int k = 51; k <= 55; ++k) EXPECT_TRUE(g.celle[static_cast<size_t>(k) - 1].testo.empty());

    // Fast moves stop at both ends.
    c.Salto = 30;
    c.IndietroVeloce();
    EXPECT_EQ(c.IndiceCorrente, 1);
    c.Precedente();
    EXPECT_EQ(c.IndiceCorrente, 1);
    c.VaiA(n - 3);
    c.AvantiVeloce();
    EXPECT_EQ(c.IndiceCorrente, n);
    c.Successiva();
    EXPECT_EQ(c.IndiceCorrente, n);

    // "U" on the last draw of each month but the archive's last; 1 on the first.
    c.RuotaCorrente = 0;
    for (int32_t i = 2; i <= n; ++i) {
        if ((*storia)[i].data().mese == (*storia)[i - 1].data().mese) continue;
        c.VaiA(i - 1);
        EXPECT_EQ(c.Aggiorna().indiceMese, "U") << i - 1;
        c.VaiA(i);
        EXPECT_EQ(c.Aggiorna().indiceMese, "1") << i;
    }
    c.VaiA(n);
    EXPECT_NE(c.Aggiorna().indiceMese, "U");

    // Nazionale before its first draw: empty cells, and no delay for them.
    c.VaiA(39);
    c.ImpostaVista(Vista::Ritardi);
    for (int k = 51; k <= 55; ++k) EXPECT_TRUE(c.Aggiorna().celle[static_cast<size_t>(k) - 1].testo.empty());

    // At draw 1 the walk has no draw to read: every delay is 0.
    c.VaiA(1);
    for (int k = 1; k <= 50; ++k) EXPECT_EQ(c.Aggiorna().celle[static_cast<size_t>(k) - 1].testo, "0");

    // Frequencies: 90 draws are five cycles; "Ultime 0" leaves the grid and the label alone.
    c.VaiA(200);
    c.ImpostaVista(Vista::Frequenze);
    c.UltimeEstrazioni = 90;
    EXPECT_EQ(c.Aggiorna().sortitaMedia, "Sortita media: 5,0");
    ASSERT_TRUE(c.CalcolaPeriodo());
    EXPECT_DOUBLE_EQ(c.CalcolaPeriodo()->SortitaMedia, 5.0);
    c.UltimeEstrazioni = 0;
    EXPECT_FALSE(c.CalcolaPeriodo());
    const Griglia& h = c.Aggiorna();
    EXPECT_EQ(h.sortitaMedia, "Sortita media: 5,0");
    EXPECT_EQ(h.celle[0].testo, std::to_string((*storia)[200].Numero(1, 1)));
    // A period that would start before draw 1 fails too.
    c.UltimeEstrazioni = 201;
    EXPECT_FALSE(c.CalcolaPeriodo());

    // Views 1 and 2 clear the finds.
    c.ImpostaVista(Vista::Normale);
    std::array<bool, 91> trova{};
    trova[(*storia)[200].Numero(1, 1)] = true;
    c.ImpostaNumeriDaTrovare(trova);
    c.Aggiorna();
    c.Aggiorna();
    EXPECT_GE(c.ContaNumeri[(*storia)[200].Numero(1, 1)], 2);
    c.ImpostaVista(Vista::Ritardi);
    EXPECT_FALSE(c.TrovaNumeri);
}

TEST(Consultazione, FamiglieSuiNumeri) {
    EXPECT_EQ(CifreAmmesse(FamDecina).back(), 8);
    EXPECT_EQ(CifreAmmesse(FamFigura).front(), 1);
    EXPECT_EQ(FiguraDi(90), 9);
    EXPECT_EQ(FiguraDi(89), 8);
    EXPECT_EQ(FiguraDi(9), 9);
    EXPECT_EQ(FiguraDi(19), 1);

    // Decina 8 is 81..90; a family waiting for its digit marks nothing.
    Numeri n = Semplice();
    n[0] = {80, 81, 90, 10, 11};
    ParametriAnalisi p;
    p.famiglia = FamDecina;
    EXPECT_TRUE(Marcate(Analizza(n, p)).empty());
    p.cifra = 8;
    EXPECT_EQ(Marcate(Analizza(n, p)), (std::vector<int>{2, 3}));
    p.cifra = 0;
    EXPECT_EQ(Marcate(Analizza(n, p)), (std::vector<int>{4, 6, 7, 8, 9, 10}));

    // Vertibili in one direction only: 90 then 9 is a pair, 9 then 90 is not; 12 and 21 both ways.
    n = Semplice();
    n[0] = {90, 9, 1, 2, 3};
    n[1] = {9, 90, 4, 5, 6};
    n[2] = {21, 33, 12, 7, 8};
    p = {};
    p.famiglia = FamVertibili;
    EXPECT_EQ(Marcate(Analizza(n, p)), (std::vector<int>{1, 2, 11, 13}));

    // 45 and 90 are simmetrici; 1 and 89 complementari.
    n = Semplice();
    n[4] = {45, 1, 90, 89, 3};
    p.famiglia = FamSimmetrici;
    EXPECT_EQ(Marcate(Analizza(n, p)), (std::vector<int>{21, 23}));
    p.famiglia = FamComplementari;
    const auto compl_ = Marcate(Analizza(n, p));
    EXPECT_NE(std::find(compl_.begin(), compl_.end(), 22), compl_.end());
    EXPECT_NE(std::find(compl_.begin(), compl_.end(), 24), compl_.end());

    // Radicali: 8 and 88 of group 8; terzine: 7 and 67.
    n = Semplice();
    n[6] = {8, 88, 67, 7, 90};
    p.famiglia = FamRadicali;
    EXPECT_EQ(Marcate(Analizza(n, p)), (std::vector<int>{31, 32}));
    p.famiglia = FamTerzine;
    const auto terz = Marcate(Analizza(n, p));
    EXPECT_NE(std::find(terz.begin(), terz.end(), 33), terz.end());
    EXPECT_NE(std::find(terz.begin(), terz.end(), 34), terz.end());
}

TEST(Consultazione, AnalisiConReport) {
    // A number out three times gives one line and counts once; the most repeated first.
    Numeri n = Semplice();
    n[0][0] = 77;
    n[3][2] = 77;
    n[8][4] = 77;
    n[1][0] = 12;
    ParametriAnalisi p;
    p.famiglia = FamNumeriRipetuti;
    Griglia g = Analizza(n, p);
    ASSERT_EQ(g.report.size(), 4u);
    EXPECT_EQ(g.report[0], "77 : Bari,Genova,Torino");
    EXPECT_EQ(g.report[1], "12 : Cagliari,Firenze");
    EXPECT_EQ(g.report[3], "--->2 numeri ripetuti <---");
    EXPECT_TRUE(g.mostraAnalisi);
    // Isotopi: only the same position; 12 sits in positions 2 and 1.
    p.isotopiRipetuti = true;
    g = Analizza(n, p);
    EXPECT_EQ(g.report.back(), "--->0 numeri isotopi ripetuti <---");

    p = {};
    p.famiglia = FamAmbiRipetuti;
    EXPECT_EQ(Analizza(Semplice(), p).report, (std::vector<std::string>{"---> nessun ambo ripetuto"}));
    n = Semplice();
    n[5] = {2, 1, 60, 61, 62};
    g = Analizza(n, p);
    EXPECT_EQ(g.report.front(), " 1- 2 : Bari,Napoli");

    // 1 - X - 2 replaces the cells until the next refresh.
    p = {};
    p.famiglia = FamUnoIcsDue;
    g = Analizza(Semplice(), p);
    EXPECT_EQ(g.celle[29].testo, "1");
    EXPECT_EQ(g.celle[30].testo, "X");
    EXPECT_EQ(g.report, (std::vector<std::string>{"Totale segni 1 : 30", "Totale segni X : 25", "Totale segni 2 : 0"}));

    // Pari - Dispari leaves the Nazionale alone; needs all wheels.
    p.famiglia = FamPariDispari;
    g = Analizza(Semplice(), p);
    EXPECT_EQ(g.celle[0].sfondo, Blu);
    EXPECT_EQ(g.celle[1].sfondo, Rosso);
    for (int k = 51; k <= 55; ++k) EXPECT_FALSE(g.celle[static_cast<size_t>(k) - 1].colorata);
    EXPECT_EQ(g.report[0], "Sono usciti 25 numeri pari (in rosso)");
    EXPECT_TRUE(Analizza(Semplice(), p, 1).report.empty());

    // Usciti su 90: the first 55 numbers, ten to a line.
    p.famiglia = FamNonUsciti;
    g = Analizza(Semplice(), p);
    EXPECT_EQ(g.report.front(), "56,57,58,59,60,61,62,63,64,65");
    EXPECT_EQ(g.report.back(), "---> Non sono usciti 35 numeri <---");

    // Sums: each cell with a match is a group of the next colour.
    p = {};
    p.famiglia = FamSomma;
    p.somma = 3;
    g = Analizza(Semplice(), p);
    EXPECT_EQ(g.report[0], "Somma 3");
    EXPECT_EQ(g.report[2], " 1 Bari,  2 Bari");
    EXPECT_EQ(g.celle[0].sfondo, ColoriGruppi[0].sfondo);
}

TEST(Consultazione, SommeEDistanze) {
    Numeri n = Semplice();
    n[0] = {1, 90, 45, 3, 4};
    n[10] = {0, 0, 0, 0, 0};
    const TabellaSommeDistanze t = CalcolaSommeDistanze(Record({4, 1, 2025}, n), true, true);
    EXPECT_EQ(t.celle[0][0].somma, 1);  // 1 and 90
    EXPECT_EQ(t.celle[0][0].distanza, 1);
    EXPECT_EQ(t.celle[0][4].somma, 45);  // 90 and 45
    EXPECT_EQ(t.celle[0][4].distanza, 45);
    EXPECT_EQ(t.celle[10][0].TestoSomma(), "-");
    EXPECT_FALSE(t.celle[10][0].colorataSomma);
    const auto r = ReportSommeDistanze(t);
    ASSERT_EQ(r.size(), 16u);
    EXPECT_EQ(r[5], "Bari       | 1  1|46 44| 4  2| 5  3|45 45| 3  3| 4  4|48 42|49 41| 7  1|");
    EXPECT_EQ(NomeFileSommeDistanze(t), "SommeDistanze_04_01_2025");
}

TEST(Consultazione, DieciEstrazioniDegliAltriGiochi) {
    std::vector<archives::RecordSuperEnalotto> super(4);
    for (size_t i = 0; i < super.size(); ++i) {
        super[i].impostaData({static_cast<int>(i) + 1, 2, 2025});
        for (size_t k = 0; k < 6; ++k) super[i].Sestina[k] = static_cast<uint8_t>(i * 3 + k + 1);
    }
    ConsultazioneDieci s(super);
    s.FamigliaScelta = DieciDecinaNaturale;
    s.NumeroFamiglia = 0;
    ElencoDieci e = s.Aggiorna();
    // The window never runs past the last draw nor before the first: four draws fill rows 6 to 9.
    EXPECT_EQ(e.righe[5].indice, 0);
    EXPECT_EQ(e.righe[6].indice, 1);
    EXPECT_EQ(e.righe[6].marcati, (std::vector<bool>{true, true, true, true, true, true}));
    // 10 is not of "Decina naturale" 0.
    EXPECT_EQ(e.righe[7].numeri[5], 9);
    EXPECT_TRUE(e.righe[7].marcati[5]);
    EXPECT_FALSE(e.righe[8].marcati[3]);  // 10
    EXPECT_EQ(e.descrizione, "Decina naturale");

    std::mt19937 gen(8);
    auto storia = std::make_shared<const archives::StoriaLotto>(StoriaCasuale(gen));
    ConsultazioneDieci d(storia);
    d.FamigliaScelta = DieciSortitiPrecedente;
    d.VaiA(3);
    e = d.Aggiorna();
    // The first row has no row before it.
    for (bool m : e.righe[0].marcati) EXPECT_FALSE(m);
    d.FamigliaScelta = DieciNonSortitiPrecedente;
    e = d.Aggiorna();
    for (bool m : e.righe[0].marcati) EXPECT_FALSE(m);
    for (size_t r = 1; r < 10; ++r)
        for (size_t k = 0; k < e.righe[r].numeri.size(); ++k) {
            const auto& prima = e.righe[r - 1].numeri;
            const bool c = std::find(prima.begin(), prima.end(), e.righe[r].numeri[k]) != prima.end();
            EXPECT_EQ(e.righe[r].marcati[k], !prima.empty() && !c);
        }
}

}  // namespace
}  // namespace gorgo::test
