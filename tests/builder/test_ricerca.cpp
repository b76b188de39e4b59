// The search as the screen drives it: refusals, a stop that leaves a partial result, and
// the progress reports.

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <thread>

#include "archives/demo.h"
#include "builder/indice_mensile.h"
#include "builder/ricerca.h"
#include "support/casuali.h"

namespace gorgo::builder {
namespace {

using Demo = test::ContestoDemo;

ParametriRicerca Tutte(TipoRicerca tipo) {
    ParametriRicerca p;
    p.tipoRicerca = tipo;
    p.valoreSpia = 27;
    p.indiceMese = 22;
    p.ruoteRicerca = {true, false, false, false, false, false, false, false, false, false, false, true};
    p.ruoteGioco = p.ruoteRicerca;
    return p;
}

TEST(Ricerca, RifiutoSenzaEsecuzione) {
    Demo d;
    ParametriRicerca p = Tutte(TipoRicerca::Ambate);
    p.colpi = 0;
    std::atomic<int> chiamate{0};
    Avanzamento av;
    av.progresso = [&](const std::string&, int, int) { ++chiamate; };
    const EsitoRicerca e = CercaAlgoritmi(p, d.contesto, av);
    EXPECT_EQ(e.errore.testo, "Inserire il n. di colpi di gioco !");
    EXPECT_EQ(e.focus, "txtColpi");
    EXPECT_TRUE(e.casi.empty());
    EXPECT_EQ(chiamate, 0);
}

// A stop during the heaviest body: the search returns soon, marked partial, with the rows
// gathered so far.
TEST(Ricerca, FermataDurantegliAmbi) {
    Demo d;
    ParametriRicerca p = Tutte(TipoRicerca::Ambi);
    p.dataDa = "30/12/2005";
    std::stop_source fonte;
    Avanzamento av{fonte.get_token(), {}};
    std::chrono::steady_clock::time_point fermata;
    std::thread t([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(300));
        fermata = std::chrono::steady_clock::now();
        fonte.request_stop();
    });
    const EsitoRicerca e = CercaAlgoritmi(p, d.contesto, av);
    const auto fine = std::chrono::steady_clock::now();
    t.join();
    EXPECT_TRUE(e.parziale);
    EXPECT_EQ(e.sortite, "Elaborazione parziale");
    EXPECT_FALSE(e.casi.empty());
    // Generous: the stop is checked every few milliseconds of work.
    EXPECT_LT(std::chrono::duration_cast<std::chrono::milliseconds>(fine - fermata).count(), 2000);
}

TEST(Ricerca, AvanzamentoPerValore) {
    Demo d;
    ParametriRicerca p = Tutte(TipoRicerca::TerzineTerno);
    p.modoSpia = ModoSpia::Tutti;
    p.dataDa = "01/01/2025";
    std::vector<std::string> testi;
    Avanzamento av;
    av.progresso = [&](const std::string& testo, int, int massimo) {
        EXPECT_EQ(massimo, 90);
        testi.push_back(testo);
    };
    const EsitoRicerca e = CercaAlgoritmi(p, d.contesto, av);
    ASSERT_EQ(testi.size(), 90u);
    EXPECT_EQ(testi.front(), "Analisi algoritmi  1...");
    EXPECT_TRUE(e.sortite.empty());  // no count with every value
    EXPECT_FALSE(e.parziale);
}

// The Ambi body tells its emission, "Ordinamento risultati " with the value, over the 55
// first cells, after the analysis of the value; the other bodies do not.
TEST(Ricerca, AvanzamentoOrdinamentoRisultatiNegliAmbi) {
    Demo d;
    ParametriRicerca p = Tutte(TipoRicerca::Ambi);
    p.dataDa = d.storia.DataEstrazione(d.storia.NumeroEstrazioni() - 60);
    std::vector<std::pair<std::string, int>> testi;
    Avanzamento av;
    av.progresso = [&](const std::string& testo, int valore, int massimo) {
        testi.emplace_back(testo, massimo);
        EXPECT_LE(valore, massimo);
    };
    const EsitoRicerca e = CercaAlgoritmi(p, d.contesto, av);
    ASSERT_FALSE(e.righe.empty());
    ASSERT_GE(testi.size(), 2u);
    EXPECT_EQ(testi.front().first, "Analisi algoritmi 27...");
    const auto ordinamento = std::find_if(testi.begin(), testi.end(),
                                          [](const auto& t) { return t.first == "Ordinamento risultati 27..."; });
    ASSERT_NE(ordinamento, testi.end());
    EXPECT_EQ(ordinamento->second, 55);
    EXPECT_EQ(testi.back(), (std::pair<std::string, int>{"Ordinamento risultati 27...", 55}));

    for (TipoRicerca tipo : {TipoRicerca::Ambate, TipoRicerca::TerzineAmbo}) {
        testi.clear();
        CercaAlgoritmi(Tutte(tipo), d.contesto, av);
        for (const auto& t : testi) EXPECT_EQ(t.first.rfind("Analisi algoritmi", 0), 0u) << t.first;
    }
}

}  // namespace
}  // namespace gorgo::builder
