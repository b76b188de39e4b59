// Coverage and the automatic search of wheels against their literal transcriptions, on
// random archives and on the real one, and the cases that make the group search subtle.

#include <gtest/gtest.h>

#include <fmt/format.h>
#include <random>

#include "archives/archivio.h"
#include "automatica_letterale.h"
#include "builder/automatica.h"
#include "builder/copertura.h"
#include "builder/indice_mensile.h"
#include "copertura_letterale.h"
#include "support/archivi_reali.h"
#include "support/casuali.h"

namespace gorgo::builder {
namespace {

void Confronta(const EsitoCopertura& x, const EsitoCopertura& y, const std::string& dove) {
    ASSERT_EQ(x.errore.testo, y.errore.testo) << dove;
    ASSERT_EQ(x.gruppo, y.gruppo) << dove;
    ASSERT_EQ(x.coperti, y.coperti) << dove;
    ASSERT_EQ(x.totale, y.totale) << dove;
    ASSERT_EQ(x.attesaMedia, y.attesaMedia) << dove;
    ASSERT_EQ(x.righe.size(), y.righe.size()) << dove;
    for (size_t i = 0; i < x.righe.size(); ++i) {
        ASSERT_EQ(std::tie(x.righe[i].data, x.righe[i].testoRiga, x.righe[i].colpo),
                  std::tie(y.righe[i].data, y.righe[i].testoRiga, y.righe[i].colpo))
            << dove << " riga " << i;
        for (size_t g = 0; g < 3; ++g) {
            const ColonneCopertura &a = x.righe[i].gruppi[g], &b = y.righe[i].gruppi[g];
            ASSERT_EQ(std::tie(a.algoritmo, a.descrizione, a.previsione, a.colpo),
                      std::tie(b.algoritmo, b.descrizione, b.previsione, b.colpo))
                << dove << " riga " << i << " gruppo " << g;
        }
    }
    ASSERT_EQ(x.riepilogo.size(), y.riepilogo.size()) << dove;
    for (size_t i = 0; i < x.riepilogo.size(); ++i)
        ASSERT_EQ(std::tie(x.riepilogo[i].descrizione, x.riepilogo[i].testoSortite, x.riepilogo[i].testoPercentuale,
                           x.riepilogo[i].previsione),
                  std::tie(y.riepilogo[i].descrizione, y.riepilogo[i].testoSortite, y.riepilogo[i].testoPercentuale,
                           y.riepilogo[i].previsione))
            << dove << " riepilogo " << i;
}

TipoCopertura CoperturaPer(TipoRicerca t, std::mt19937& g) {
    switch (t) {
        case TipoRicerca::Ambi: return TipoCopertura::Ambo;
        case TipoRicerca::TerzineAmbo:
        case TipoRicerca::TerzineTerno: return TipoCopertura::Terzine;
        case TipoRicerca::Codici: return TipoCopertura::Codici;
        default: return static_cast<TipoCopertura>(g() % 3);
    }
}

class CoperturaDifferenziale : public ::testing::TestWithParam<TipoRicerca> {};

// The rows a search gives, a random few of them checked (few enough for the literal walk of
// every quintuple), then both coverages.
TEST_P(CoperturaDifferenziale, ArchiviCasuali) {
    const TipoRicerca tipo = GetParam();
    std::mt19937 g(700 + static_cast<unsigned>(tipo));
    const bool pesante = tipo == TipoRicerca::Ambi || tipo == TipoRicerca::Codici;
    const test::MisurePeriodo misure =
        pesante ? test::MisurePeriodo{20, {5, 40}, {0, 1}, false} : test::MisurePeriodo{20, {5, 200}, {3, 30}, false};
    int conRighe = 0;
    for (int archivio = 0; archivio < 2; ++archivio) {
        const archives::StoriaLotto s = test::StoriaCasuale(g);
        const IndiciMensili im = CalcolaIndiciMensili(s, "NNYNYNY");
        const TerzineRidotte t = test::TerzineCasuali(g, 150);
        for (int prova = 0; prova < (pesante ? 4 : 12); ++prova) {
            const ContestoRicerca ctx = test::ContestoCasuale(g, s, im, &t);
            ParametriRicerca p = test::ParametriCasuali(g, s, tipo, misure);
            if (p.modoSpia == ModoSpia::Tutti) p.modoSpia = ModoSpia::Fisso;
            p.tuttiGliAmbi = false;
            EsitoRicerca e = CercaAlgoritmi(p, ctx);
            if (!e.errore.vuoto()) continue;
            const size_t quante = 8 + g() % 18;
            for (size_t i = 0; i < e.righe.size(); ++i) e.righe[i].selezionata = i < quante && g() % 5 != 0;
            const TipoCopertura tc = CoperturaPer(tipo, g);
            const std::string dove = fmt::format("archivio {} prova {} copertura {} casi {} righe {}", archivio, prova,
                                                 static_cast<int>(tc), e.casi.size(), e.righe.size());
            conRighe += !e.righe.empty();
            const EsitoCopertura veloce = CalcolaCopertura(p, ctx, e.casi, e.righe, tc);
            Confronta(veloce, CalcolaCoperturaLetterale(p, ctx, e.casi, e.righe, tc), dove);
            if (HasFatalFailure()) return;
        }
    }
    EXPECT_GT(conRighe, 0);
}

INSTANTIATE_TEST_SUITE_P(Tipi, CoperturaDifferenziale,
                         ::testing::Values(TipoRicerca::Ambate, TipoRicerca::Ambi, TipoRicerca::TerzineAmbo,
                                           TipoRicerca::TerzineTerno, TipoRicerca::Codici),
                         test::NomeTipoRicerca);

// A matrix by hand: `coperture[a]` lists the cases column a hits (in colpo a % 9 + 1).
MatriceCopertura Matrice(int casi, const std::vector<std::vector<int>>& coperture) {
    MatriceCopertura m;
    m.casi = casi;
    m.algoritmi = static_cast<int>(coperture.size());
    m.colpi.assign(static_cast<size_t>(casi) * coperture.size(), 0);
    m.numeri.assign(m.colpi.size(), {});
    for (size_t a = 0; a < coperture.size(); ++a) {
        for (int k = 0; k < casi; ++k)
            m.numeri[static_cast<size_t>(k) * coperture.size() + a] = {static_cast<int>(a % 90) + 1};
        for (int k : coperture[a])
            m.colpi[static_cast<size_t>(k) * coperture.size() + a] = static_cast<uint16_t>(a % 9 + 1);
    }
    return m;
}

std::vector<int> Da(int a, int b) {
    std::vector<int> v;
    for (int i = a; i < b; ++i) v.push_back(i);
    return v;
}

TEST(GruppoCopertura, IlPrimoInOrdineNonIlMigliore) {
    // One algorithm covers all: the group is it alone, wherever it stands.
    auto g = CercaGruppo(Matrice(10, {Da(0, 5), Da(0, 9), Da(0, 10), Da(0, 10)}));
    EXPECT_EQ(g.membri, std::vector<int>{2});
    // Columns 0+3 cover all, and so do 1+2 (which overlap less): the lowest pair wins.
    g = CercaGruppo(Matrice(10, {Da(0, 6), Da(0, 5), Da(5, 10), Da(4, 10)}));
    EXPECT_EQ(g.membri, (std::vector<int>{0, 2}));
    EXPECT_EQ(g.coperti, 10);
}

TEST(GruppoCopertura, CentoVentiColonneEUnCasoScoperto) {
    // 120 columns, 70 cases: column 5 hits all but cases 68 and 69, column 110 hits case 69
    // only, no one hits case 68. The group is sought among the first 100: no full cover, so
    // every quintuple is walked and the lowest of the best wins; the second pass gives
    // case 69 to column 110.
    std::vector<std::vector<int>> c(120);
    c[5] = Da(0, 68);
    c[110] = {69};
    const MatriceCopertura m = Matrice(70, c);
    const GruppoCopertura g = CercaGruppo(m);
    EXPECT_EQ(g.membri, (std::vector<int>{0, 1, 2, 3, 5}));
    EXPECT_EQ(g.coperti, 68);
    std::vector<CasoSpia> casi(70);
    std::vector<RigaAlgoritmo> alg(120);
    for (size_t a = 0; a < alg.size(); ++a) alg[a].descrizione = fmt::format("alg {}", a);
    const EsitoCopertura e = CompletaCopertura(m, casi, alg, TipoCopertura::Ambata, g.membri);
    EXPECT_EQ(e.righe[68].gruppi[0].descrizione, "--");
    EXPECT_EQ(e.righe[68].gruppi[0].colpo, "-");
    EXPECT_EQ(e.righe[69].gruppi[0].descrizione, "alg 110");
    ASSERT_EQ(e.riepilogo.size(), 2u);
    EXPECT_EQ(e.riepilogo[0].testoSortite, "  68");
    EXPECT_EQ(e.riepilogo[0].testoPercentuale, " 97,1 %");
    EXPECT_EQ(e.riepilogo[1].descrizione, "alg 110");
    EXPECT_EQ(e.totale, "Copertura: 68 casi su 70  ( 97,1 %)");
}

// The bitset search against the five nested walks, on random matrices of every density,
// across one and several words of cases.
TEST(GruppoCopertura, MatriciCasuali) {
    std::mt19937 g(55);
    for (int prova = 0; prova < 300; ++prova) {
        const int casi = 1 + static_cast<int>(g() % (prova % 3 == 0 ? 200 : 60));
        const int algoritmi = 1 + static_cast<int>(g() % 22);
        const unsigned densita = 5 + g() % 60;
        std::vector<std::vector<int>> c(static_cast<size_t>(algoritmi));
        for (auto& col : c)
            for (int k = 0; k < casi; ++k)
                if (g() % 100 < densita) col.push_back(k);
        const MatriceCopertura m = Matrice(casi, c);
        const GruppoCopertura x = CercaGruppo(m), y = CercaGruppoLetterale(m);
        ASSERT_EQ(x.membri, y.membri) << "prova " << prova;
        ASSERT_EQ(x.coperti, y.coperti) << "prova " << prova;
    }
}

TEST(GruppoCopertura, NessunaRigaScelta) {
    const EsitoCopertura e = CalcolaCopertura({}, {}, {}, {}, TipoCopertura::Ambata);
    EXPECT_EQ(e.errore.testo, "Nessun algoritmno selezionato!");
}

// ---- automatic search ----

void Confronta(const EsitoAutomatica& x, const EsitoAutomatica& y, const std::string& dove) {
    ASSERT_EQ(x.errore.testo, y.errore.testo) << dove;
    ASSERT_EQ(x.righe.size(), y.righe.size()) << dove;
    for (size_t i = 0; i < x.righe.size(); ++i) {
        const RigaAutomatica &a = x.righe[i], &b = y.righe[i];
        ASSERT_EQ(std::tie(a.riga.descrizione, a.riga.chiave, a.riga.sortite, a.riga.presenze, a.riga.quantita,
                           a.riga.testoSpia, a.testoRicerca, a.testoGioco),
                  std::tie(b.riga.descrizione, b.riga.chiave, b.riga.sortite, b.riga.presenze, b.riga.quantita,
                           b.riga.testoSpia, b.testoRicerca, b.testoGioco))
            << dove << " riga " << i;
    }
}

class AutomaticaDifferenziale : public ::testing::TestWithParam<TipoRicerca> {};

// Few wheels to choose among, so that the literal searches stay short; the ambate of one
// spy value take the shared path, the rest whole searches.
TEST_P(AutomaticaDifferenziale, ArchiviCasuali) {
    const TipoRicerca tipo = GetParam();
    std::mt19937 g(900 + static_cast<unsigned>(tipo));
    const bool ambate = tipo == TipoRicerca::Ambate;
    const test::MisurePeriodo misure = ambate ? test::MisurePeriodo{20, {5, 90}, {3, 15}, false}
                                       : tipo == TipoRicerca::Codici
                                           ? test::MisurePeriodo{20, {5, 25}, {0, 1}, false}
                                           : test::MisurePeriodo{20, {60, 200}, {0, 1}, false};
    const archives::StoriaLotto s = test::StoriaCasuale(g);
    const IndiciMensili im = CalcolaIndiciMensili(s, "NNYNYNY");
    const TerzineRidotte t = test::TerzineCasuali(g, 40);
    size_t righe = 0;
    for (int prova = 0; prova < (ambate ? 6 : 3); ++prova) {
        const ContestoRicerca ctx = test::ContestoCasuale(g, s, im, &t);
        ParametriRicerca p = test::ParametriCasuali(g, s, tipo, misure);
        if (!ambate || prova % 4 != 3) p.modoSpia = p.modoSpia == ModoSpia::Tutti ? ModoSpia::Fisso : p.modoSpia;
        p.tuttiGliAmbi = false;
        if (p.modoSpia == ModoSpia::SoloIndiceMensile)
            p.ruoteRicerca = {true, false, false, false, false, false, false, false, false, false, false, true};
        const int quante = ambate ? 3 + prova % 2 : 3;
        std::array<bool, 12> ric{}, gio{};
        for (int i = 0; i < quante; ++i) ric[1 + g() % 11] = true, gio[1 + g() % 11] = true;
        if (p.modoSpia != ModoSpia::SoloIndiceMensile) p.ruoteRicerca = ric;
        p.ruoteGioco = gio;
        const int r = 1 + static_cast<int>(g() % 2), gg = 1 + static_cast<int>(g() % 3);
        const std::string dove = fmt::format("prova {} r {} g {} modo {}", prova, r, gg, static_cast<int>(p.modoSpia));
        const EsitoAutomatica veloce = RicercaAutomatica(p, ctx, r, gg);
        righe += veloce.righe.size();
        Confronta(veloce, RicercaAutomaticaLetterale(p, ctx, r, gg), dove);
        if (HasFatalFailure()) return;
    }
    EXPECT_GT(righe, 0u);
}

INSTANTIATE_TEST_SUITE_P(Tipi, AutomaticaDifferenziale,
                         ::testing::Values(TipoRicerca::Ambate, TipoRicerca::TerzineAmbo, TipoRicerca::Codici),
                         test::NomeTipoRicerca);

ContestoRicerca ContestoReale(const archives::StoriaLotto& s, const IndiciMensili& im) {
    ContestoRicerca ctx{&s, {}, &im, nullptr};
    ctx.restrizioni.GiornoAmmesso.fill(true);
    ctx.restrizioni.MeseAmmesso.fill(true);
    ctx.restrizioni.PeriodoAmmesso.fill(true);
    return ctx;
}

TEST(AutomaticaReale, OrdineDelleCorseEArresto) {
    GORGO_RICHIEDI_ARCHIVI_REALI(reale);
    const archives::Archivio a = archives::Archivio::Apri(reale);
    const auto s = a.Storia();
    const IndiciMensili im = CalcolaIndiciMensili(*s, "NNYNYNY");
    const ContestoRicerca ctx = ContestoReale(*s, im);
    ParametriRicerca p;
    p.valoreSpia = 27;
    p.dataDa = "30/12/2015";
    p.dataA = "30/12/2025";
    p.indiceMese = 22;
    p.ruoteRicerca = {false, true, false, false, false, false, true, false, false, false, false, false};
    p.ruoteGioco = p.ruoteRicerca;
    const EsitoAutomatica e = RicercaAutomatica(p, ctx, 1, 1);
    ASSERT_EQ(e.righe.size(), 4u);
    const char* attese[][2] = {{"BA", "BA"}, {"BA", "NA"}, {"NA", "BA"}, {"NA", "NA"}};
    for (size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(e.righe[i].testoRicerca, attese[i][0]);
        EXPECT_EQ(e.righe[i].testoGioco, attese[i][1]);
    }
    Confronta(e, RicercaAutomaticaLetterale(p, ctx, 1, 1), "Bari e Napoli");

    // Every wheel, two search wheels and two play wheels, against whole searches.
    p.ruoteRicerca = {true, false, false, false, false, false, false, false, false, false, false, true};
    p.ruoteGioco = {false, true, false, true, false, false, true, false, false, true, false, false};
    p.dataDa = "30/12/2022";
    const Ricerca intera = [](const ParametriRicerca& q, const ContestoRicerca& c) { return CercaAlgoritmi(q, c); };
    Confronta(RicercaAutomatica(p, ctx, 2, 2), RicercaAutomaticaLetterale(p, ctx, 2, 2, intera), "2 su 2");

    // A stop after some rows: those rows stand, in order, and no more.
    std::stop_source stop;
    AvanzamentoAutomatica av;
    av.stop = stop.get_token();
    int viste = 0;
    av.riga = [&](const RigaAutomatica&) {
        if (++viste == 3) stop.request_stop();
    };
    const EsitoAutomatica fermata = RicercaAutomatica(p, ctx, 2, 2, av);
    EXPECT_TRUE(fermata.fermata);
    ASSERT_GE(fermata.righe.size(), 3u);
    EXPECT_LT(fermata.righe.size(), static_cast<size_t>(fermata.corse));
    EXPECT_EQ(fermata.righe[2].testoGioco, RicercaAutomatica(p, ctx, 2, 2).righe[2].testoGioco);
}

TEST(AutomaticaReale, TroppePocheRuote) {
    const EsitoAutomatica e = RicercaAutomatica({}, {}, 2, 1);  // Bari alone: no pair of search wheels
    EXPECT_EQ(e.corse, 0);
    EXPECT_TRUE(e.righe.empty());
    EXPECT_EQ(CombinazioniRuote(
                  RuoteScelte({true, false, false, false, false, false, false, false, false, false, false, true}), 5)
                  .size(),
              462u);
}

TEST(CoperturaReale, DueAnniSpia27) {
    GORGO_RICHIEDI_ARCHIVI_REALI(reale);
    const archives::Archivio a = archives::Archivio::Apri(reale);
    const auto s = a.Storia();
    const IndiciMensili im = CalcolaIndiciMensili(*s, "NNYNYNY");
    const ContestoRicerca ctx = ContestoReale(*s, im);
    ParametriRicerca p;
    p.valoreSpia = 27;
    p.dataDa = "30/12/2023";
    p.dataA = "30/12/2025";
    p.indiceMese = 22;
    p.ruoteRicerca = {true, false, false, false, false, false, false, false, false, false, false, true};
    p.ruoteGioco = {false, true, false, false, false, false, true, false, false, false, false, false};
    EsitoRicerca e = CercaAlgoritmi(p, ctx, {}, true);
    ASSERT_GT(e.righe.size(), 20u);
    e.righe.resize(24);
    for (TipoCopertura t : {TipoCopertura::Ambata, TipoCopertura::DueAmbate, TipoCopertura::TreAmbate})
        Confronta(CalcolaCopertura(p, ctx, e.casi, e.righe, t), CalcolaCoperturaLetterale(p, ctx, e.casi, e.righe, t),
                  fmt::format("copertura {}", static_cast<int>(t)));
}

}  // namespace
}  // namespace gorgo::builder
