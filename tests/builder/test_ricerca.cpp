// The search as the screen drives it: refusals, a stop that leaves a partial result, and
// the progress reports.

#include <gtest/gtest.h>

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

}  // namespace
}  // namespace gorgo::builder
