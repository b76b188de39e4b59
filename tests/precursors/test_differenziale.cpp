// The engine against the literal procedures: random small archives of the three games and
// random parameters, then the real archive. Same rows, same texts, same order.

#include <gtest/gtest.h>

#include <fmt/format.h>
#include <iostream>
#include <numeric>
#include <random>

#include "archives/archivio.h"
#include "precursors/analisi.h"
#include "precursors/precursori_letterale.h"
#include "precursors/saruni_letterale.h"
#include "support/archivi_reali.h"
#include "support/casuali.h"

namespace gorgo::precursors {
namespace {

void Confronta(const EsitoPrecursori& v, const EsitoPrecursori& l, const std::string& dove) {
    ASSERT_EQ(v.errore.testo, l.errore.testo) << dove;
    ASSERT_EQ(v.focus, l.focus) << dove;
    ASSERT_EQ(v.domanda.testo, l.domanda.testo) << dove;
    ASSERT_EQ(v.avviso.testo, l.avviso.testo) << dove;
    ASSERT_EQ(v.inizio, l.inizio) << dove;
    ASSERT_EQ(v.descrizioneStatistica, l.descrizioneStatistica) << dove;
    ASSERT_EQ(v.descrizioneVerifica, l.descrizioneVerifica) << dove;
    ASSERT_EQ(v.titoli, l.titoli) << dove;
    ASSERT_EQ(v.titoliPresenti, l.titoliPresenti) << dove;
    ASSERT_EQ(v.lista.size(), l.lista.size()) << dove;
    for (size_t i = 0; i < v.lista.size(); ++i)
        ASSERT_EQ(
            std::tie(v.lista[i].voce, v.lista[i].presenze, v.lista[i].precursori, v.lista[i].testo, v.lista[i].chiave),
            std::tie(l.lista[i].voce, l.lista[i].presenze, l.lista[i].precursori, l.lista[i].testo, l.lista[i].chiave))
            << dove << " riga " << i;
    ASSERT_EQ(v.presenti.size(), l.presenti.size()) << dove;
    for (size_t i = 0; i < v.presenti.size(); ++i)
        ASSERT_EQ(std::tie(v.presenti[i].voce, v.presenti[i].testo, v.presenti[i].colore, v.presenti[i].chiave),
                  std::tie(l.presenti[i].voce, l.presenti[i].testo, l.presenti[i].colore, l.presenti[i].chiave))
            << dove << " presente " << i;
}

std::string Descrivi(const ParametriPrecursori& p) {
    return fmt::format("da {} a {} verifica {} prec {} num {} succ {} ambi {} perc {} minime {} minimo {}", p.Inizio,
                       p.Fine, p.IndiceVerifica, p.Precedenti, p.NumPrecursori, p.Successivi, p.sorte == Sorte::Ambi,
                       p.PerPercentuale, p.PresenzeMinime, p.MinimoNumeri);
}

ParametriPrecursori Casuali(std::mt19937& g, int32_t n, int periodoMassimo) {
    auto tra = [&](int a, int b) { return std::uniform_int_distribution<int>(a, b)(g); };
    ParametriPrecursori p;
    p.Fine = tra(1, n);
    p.Inizio = std::max(1, p.Fine - tra(0, periodoMassimo));
    p.IndiceVerifica = tra(1, 5) == 1 ? tra(1, n) : std::min(n, p.Fine + tra(0, 12));
    p.Precedenti = tra(1, 5) == 1 ? tra(0, 100) : tra(1, 12);
    p.NumPrecursori = tra(1, 12) == 1 ? tra(0, 10) : tra(1, 9);
    p.Successivi = tra(1, 12) == 1 ? tra(0, 100) : tra(1, 10);
    p.sorte = tra(0, 1) ? Sorte::Ambi : Sorte::Ambate;
    p.PerPercentuale = tra(0, 3) != 0;
    if (tra(0, 2) == 0)
        for (int x = 1; x <= 90; ++x) p.Considerato[static_cast<size_t>(x)] = tra(0, 4) != 0;
    p.PresenzeMinime = tra(1, 10) == 1 ? tra(0, 100) : tra(1, 4);
    p.MinimoNumeri = tra(1, 10) == 1 ? tra(0, 6) : tra(1, 3);
    return p;
}

// SuperEnalotto records from a narrow range of numbers, now and then with a zero.
std::vector<archives::RecordSuperEnalotto> SuperCasuale(std::mt19937& g, int quante) {
    std::vector<archives::RecordSuperEnalotto> r(static_cast<size_t>(quante));
    archives::Data d{3, 1, 2000};
    for (auto& x : r) {
        x.impostaData(d);
        d = archives::Data::daGiorni(d.giorni() + 3);
        std::vector<int> numeri(30);
        std::iota(numeri.begin(), numeri.end(), 1);
        std::shuffle(numeri.begin(), numeri.end(), g);
        for (int k = 0; k < 6; ++k) x.Sestina[k] = static_cast<uint8_t>(numeri[static_cast<size_t>(k)]);
        if (g() % 25 == 0) x.Sestina[g() % 6] = 0;
        x.Jolly = static_cast<uint8_t>(g() % 2 ? numeri[6] : 0);
    }
    return r;
}

Formazioni FormazioniCasuali(std::mt19937& g, int quante) {
    Formazioni f;
    for (int i = 0; i < quante; ++i) {
        std::vector<int> numeri(25);
        std::iota(numeri.begin(), numeri.end(), 1);
        std::shuffle(numeri.begin(), numeri.end(), g);
        numeri.resize(1 + g() % 5);
        std::sort(numeri.begin(), numeri.end());
        f.push_back(numeri);
    }
    return f;
}

TEST(DifferenzialePrecursori, LottoSuperEDieciELottoCasuali) {
    // How many runs reached each stage, so that the cases keep reaching the forecast.
    int liste = 0, previsioni = 0, formazioni = 0, previsioniFormazioni = 0;
    for (uint32_t seme = 1; seme <= 24; ++seme) {
        std::mt19937 g(seme);
        const archives::StoriaLotto storia = test::StoriaCasuale(g, {.anni = 2, .ultimoAnno = 2010});
        const auto super = SuperCasuale(g, 300);
        for (int caso = 0; caso < 6; ++caso) {
            const Gioco gioco = caso < 4 ? Gioco::Lotto : caso == 4 ? Gioco::SuperEnalotto : Gioco::DieciELotto;
            const int ruota = static_cast<int>(1 + g() % 11);
            const FonteEstrazioni fonte = gioco == Gioco::Lotto           ? FonteEstrazioni::Lotto(storia, ruota)
                                          : gioco == Gioco::SuperEnalotto ? FonteEstrazioni::SuperEnalotto(super)
                                                                          : FonteEstrazioni::DieciELotto(storia);
            const test::FonteLetterale lett{gioco, &storia, super, ruota};
            const ParametriPrecursori p = Casuali(g, fonte.NumeroEstrazioni(), gioco == Gioco::DieciELotto ? 40 : 250);
            const std::string dove =
                fmt::format("seme {} gioco {} ruota {} {}", seme, static_cast<int>(gioco), ruota, Descrivi(p));
            const EsitoPrecursori e = AnalisiPrecursori(p, fonte);
            Confronta(e, test::AnalisiPrecursoriLetterale(p, lett), dove);
            if (HasFatalFailure()) return;
            liste += !e.lista.empty();
            previsioni += !e.presenti.empty();
            // Formations: typed ones of one to five numbers, asked again after the question.
            const Formazioni fz = FormazioniCasuali(g, 60);
            for (bool conferma : {false, true}) {
                const EsitoPrecursori f = AnalisiFormazioni(p, fonte, fz, conferma);
                Confronta(f, test::AnalisiFormazioniLetterale(p, lett, fz, conferma), dove + " formazioni");
                if (HasFatalFailure()) return;
                formazioni += !f.lista.empty();
                previsioniFormazioni += !f.presenti.empty();
            }
        }
    }
    EXPECT_GT(liste, 40);
    EXPECT_GT(previsioni, 30);
    EXPECT_GT(formazioni, 40);
    EXPECT_GT(previsioniFormazioni, 30);
    std::cout << liste << " liste, " << previsioni << " previsioni, " << formazioni << " liste di formazioni, "
              << previsioniFormazioni << " previsioni di formazioni\n";
}

TEST(DifferenzialePrecursori, TerzineIntegraliSuUnPeriodoBreve) {
    std::mt19937 g(77);
    const archives::StoriaLotto storia = test::StoriaCasuale(g, {.anni = 1, .ultimoAnno = 2010});
    for (int ruota : {1, 2}) {
        ParametriPrecursori p;
        p.TerzineIntegrali = true;
        p.Fine = storia.NumeroEstrazioni() - 6;
        p.Inizio = p.Fine - 12;
        p.IndiceVerifica = storia.NumeroEstrazioni();
        p.NumPrecursori = 9;
        p.MinimoNumeri = 2;
        p.PresenzeMinime = 1;
        Confronta(AnalisiFormazioni(p, FonteEstrazioni::Lotto(storia, ruota), {}),
                  test::AnalisiFormazioniLetterale(p, {Gioco::Lotto, &storia, {}, ruota}, {}, false),
                  fmt::format("ruota {}", ruota));
    }
}

TEST(DifferenzialePrecursori, ArchivioReale) {
    GORGO_RICHIEDI_ARCHIVI_REALI(cartella);
    const archives::Archivio archivio = archives::Archivio::Apri(cartella);
    const auto storia = archivio.Storia();
    const auto super = archivio.LeggiTuttiSuper();
    const int32_t n = storia->NumeroEstrazioni();
    std::mt19937 g(2025);
    for (int caso = 0; caso < 6; ++caso) {
        ParametriPrecursori p;
        // Bari and the Nazionale near its first draw (empty draws in the walk, the warning).
        const int ruota = caso % 2 == 0 ? 1 : 11;
        p.Fine = caso % 2 == 0 ? n - 6 : archives::PrimaEstrazioneNazionale + 300;
        p.Inizio = caso % 2 == 0 ? p.Fine - 1500 : archives::PrimaEstrazioneNazionale - 200;
        p.IndiceVerifica = caso % 2 == 0 ? n : p.Fine + 6;
        p.sorte = caso % 3 == 1 ? Sorte::Ambi : Sorte::Ambate;
        p.NumPrecursori = caso < 3 ? 5 : 9;
        const FonteEstrazioni fonte = FonteEstrazioni::Lotto(*storia, ruota);
        Confronta(AnalisiPrecursori(p, fonte),
                  test::AnalisiPrecursoriLetterale(p, {Gioco::Lotto, storia.get(), {}, ruota}),
                  fmt::format("reale {} {}", ruota, Descrivi(p)));
        if (HasFatalFailure()) return;
    }
    // SuperEnalotto, whole archive, and 10eLotto on a short period of ambi.
    ParametriPrecursori p;
    p.Inizio = 1;
    p.Fine = static_cast<int32_t>(super.size()) - 6;
    p.IndiceVerifica = static_cast<int32_t>(super.size());
    Confronta(AnalisiPrecursori(p, FonteEstrazioni::SuperEnalotto(super)),
              test::AnalisiPrecursoriLetterale(p, {Gioco::SuperEnalotto, nullptr, super, 1}), "superenalotto");
    p.sorte = Sorte::Ambi;
    p.Fine = n - 6;
    p.Inizio = n - 150;
    p.IndiceVerifica = n;
    Confronta(AnalisiPrecursori(p, FonteEstrazioni::DieciELotto(*storia)),
              test::AnalisiPrecursoriLetterale(p, {Gioco::DieciELotto, storia.get(), {}, 1}), "10elotto");
}

}  // namespace
}  // namespace gorgo::precursors

namespace gorgo::precursors {
namespace {

TEST(DifferenzialePrecursori, SaruniPosizioniEAmbiPrecursori) {
    int conRighe = 0;
    for (uint32_t seme = 1; seme <= 30; ++seme) {
        std::mt19937 g(seme);
        const archives::StoriaLotto storia = test::StoriaCasuale(g, {.anni = 2, .ultimoAnno = 2010});
        const int ruota = static_cast<int>(1 + g() % 11);
        const FonteEstrazioni fonte = FonteEstrazioni::Lotto(storia, ruota);
        ParametriSaruni p;
        p.base = Casuali(g, fonte.NumeroEstrazioni(), 200);
        p.PosizioneDeterminata = g() % 3 != 0;
        for (int u = 1; u <= 5; ++u) p.Posizioni[static_cast<size_t>(u)] = g() % 2 == 0;
        p.Tipo = g() % 2 ? TipoPrecursori::Ambi : TipoPrecursori::Numeri;
        p.AmbiAdiacenti = g() % 2 == 0;
        const std::string dove =
            fmt::format("seme {} ruota {} {} posdet {} tipo {} adiacenti {}", seme, ruota, Descrivi(p.base),
                        p.PosizioneDeterminata, static_cast<int>(p.Tipo), p.AmbiAdiacenti);
        const EsitoPrecursori e = AnalisiSaruni(p, fonte);
        Confronta(e, test::AnalisiSaruniLetterale(p, storia, ruota), dove);
        if (HasFatalFailure()) return;
        conRighe += !e.presenti.empty();
        // All positions and numbers as precursors: the classic analysis.
        p.PosizioneDeterminata = false;
        p.Tipo = TipoPrecursori::Numeri;
        Confronta(AnalisiSaruni(p, fonte), AnalisiPrecursori(p.base, fonte), dove + " classica");
        if (HasFatalFailure()) return;
    }
    EXPECT_GT(conRighe, 8);
}

TEST(Saruni, PosizioniRifiutate) {
    std::mt19937 g(5);
    const archives::StoriaLotto storia = test::StoriaCasuale(g, {.anni = 1, .ultimoAnno = 2010});
    const FonteEstrazioni fonte = FonteEstrazioni::Lotto(storia, 1);
    ParametriSaruni p;
    p.base.Inizio = 1;
    p.base.Fine = p.base.IndiceVerifica = storia.NumeroEstrazioni();
    p.PosizioneDeterminata = true;
    p.Posizioni = {false, true, false, true, false, false};
    p.Tipo = TipoPrecursori::Ambi;
    p.AmbiAdiacenti = true;
    EXPECT_EQ(AnalisiSaruni(p, fonte).errore.testo, "Le posizioni inserite non sono compatibili con gli ambi uniti!");
    p.Posizioni = {false, false, true, true, false, false};
    EXPECT_TRUE(AnalisiSaruni(p, fonte).errore.vuoto());
    p.Posizioni = {false, false, false, true, false, false};
    EXPECT_EQ(AnalisiSaruni(p, fonte).errore.testo, "Scegliere almeno 2 posizioni estrattive!");
    EXPECT_EQ(CodiceAmbo(1, 2), 1);
    EXPECT_EQ(CodiceAmbo(90, 89), NumeroAmbi);
    EXPECT_EQ(TestoAmbo(CodiceAmbo(7, 45)), "07-45");
    for (int c = 1; c <= NumeroAmbi; ++c) ASSERT_EQ(CodiceAmbo(NumeriAmbo(c).first, NumeriAmbo(c).second), c);
}

}  // namespace
}  // namespace gorgo::precursors
