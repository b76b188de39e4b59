// Builder benchmarks B1-B3 on the real archive: coverage per ambata over S1's cases, and the
// automatic search of wheels with r = 1, g = 1 and r = 2, g = 5 over all eleven wheels; each
// beside its literal transcription (on a named smaller input where the literal one would
// take too long).

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <random>
#include <set>

#include "archives/archivio.h"
#include "builder/automatica.h"
#include "builder/automatica_letterale.h"
#include "builder/copertura.h"
#include "builder/copertura_letterale.h"
#include "builder/indice_mensile.h"
#include "builder/ricerca.h"

namespace {

using namespace gorgo;
using namespace gorgo::builder;

struct Ambiente {
    archives::StoriaCondivisa storia;
    IndiciMensili indici;
    ContestoRicerca contesto;
    ParametriRicerca s1;
    EsitoRicerca ricerca;
    std::vector<RigaAlgoritmo> cento;  // 100 ambate algorithms for spy 27
    MatriceCopertura matrice;          // over S1's cases, one case that no one hits

    Ambiente() {
        const char* s = std::getenv("GORGO_SHARED");
        storia = archives::Archivio::Apri(std::filesystem::path(s ? s : "../shared") / "dati").Storia();
        indici = CalcolaIndiciMensili(*storia, "NNYNYNY");
        contesto = ContestoRicerca{storia.get(), {}, &indici, nullptr};
        contesto.restrizioni.GiornoAmmesso.fill(true);
        contesto.restrizioni.MeseAmmesso.fill(true);
        contesto.restrizioni.PeriodoAmmesso.fill(true);
        s1.valoreSpia = 27;
        s1.dataDa = "30/12/2015";
        s1.dataA = "30/12/2025";
        s1.indiceMese = 22;
        s1.ruoteRicerca = {true, false, false, false, false, false, false, false, false, false, false, false};
        s1.ruoteGioco = s1.ruoteRicerca;
        ricerca = CercaAlgoritmi(s1, contesto);
        // S1's rows, then the best rows of the same spy played on one wheel at a time.
        std::set<std::string> viste;
        auto prendi = [&](const EsitoRicerca& e) {
            for (const RigaAlgoritmo& r : e.righe)
                if (cento.size() < 100 && viste.insert(r.chiave.substr(0, 9)).second) cento.push_back(r);
        };
        prendi(ricerca);
        for (int w = 1; w <= 11 && cento.size() < 100; ++w) {
            ParametriRicerca p = s1;
            p.ruoteGioco.fill(false);
            p.ruoteGioco[static_cast<size_t>(w)] = true;
            prendi(CercaAlgoritmi(p, contesto));
        }
        for (RigaAlgoritmo& r : cento) r.selezionata = true;
        matrice = CalcolaMatrice(s1, contesto, ricerca.casi, cento, TipoCopertura::Ambata);
        for (int a = 0; a < matrice.algoritmi; ++a) matrice.colpi[static_cast<size_t>(a)] = 0;  // the newest case
    }
};

const Ambiente& A() {
    static const Ambiente a;
    return a;
}

MatriceCopertura Prime(const MatriceCopertura& m, int quante) {
    MatriceCopertura r;
    r.casi = m.casi;
    r.algoritmi = quante;
    for (int k = 0; k < m.casi; ++k)
        for (int a = 0; a < quante; ++a) {
            r.colpi.push_back(m.colpo(k, a));
            r.numeri.push_back(m.numeri[static_cast<size_t>(k * m.algoritmi + a)]);
        }
    return r;
}

// A matrix where five columns never reach what all of them cover together: every case is
// hit by a few columns, so the walk cannot end early on the ceiling.
MatriceCopertura Sparsa() {
    MatriceCopertura m = A().matrice;
    std::mt19937 g(762);
    for (auto& x : m.colpi) x = g() % 100 < 6 ? static_cast<uint16_t>(1 + g() % 9) : 0;
    for (int a = 0; a < m.algoritmi; ++a) m.colpi[static_cast<size_t>(a)] = 0;
    return m;
}

void B1_Copertura(benchmark::State& state, int algoritmi, bool letterale, bool sparsa) {
    const MatriceCopertura m = Prime(sparsa ? Sparsa() : A().matrice, algoritmi);
    GruppoCopertura g;
    for (auto _ : state) {
        g = letterale ? CercaGruppoLetterale(m) : CercaGruppo(m);
        benchmark::DoNotOptimize(CompletaCopertura(m, A().ricerca.casi, A().cento, TipoCopertura::Ambata, g.membri));
    }
    state.counters["casi"] = m.casi;
    state.counters["coperti"] = g.coperti;
}
BENCHMARK_CAPTURE(B1_Copertura, cento, 100, false, false)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(B1_Copertura, quaranta, 40, false, false)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(B1_Copertura, quaranta_letterale, 40, true, false)->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK_CAPTURE(B1_Copertura, cento_sparsa, 100, false, true)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(B1_Copertura, quaranta_sparsa, 40, false, true)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(B1_Copertura, quaranta_sparsa_letterale, 40, true, true)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1);

void B1_Matrice(benchmark::State& state) {
    for (auto _ : state)
        benchmark::DoNotOptimize(
            CalcolaMatrice(A().s1, A().contesto, A().ricerca.casi, A().cento, TipoCopertura::Ambata));
}
BENCHMARK(B1_Matrice)->Unit(benchmark::kMillisecond);

ParametriRicerca Tutte() {
    ParametriRicerca p = A().s1;
    p.ruoteRicerca = {true, false, false, false, false, false, false, false, false, false, false, true};
    p.ruoteGioco = p.ruoteRicerca;
    return p;
}

void B2_B3_Automatica(benchmark::State& state, int r, int g, int letterale) {
    const ParametriRicerca p = Tutte();
    EsitoAutomatica e;
    const Ricerca intera = [](const ParametriRicerca& q, const ContestoRicerca& c) { return CercaAlgoritmi(q, c); };
    for (auto _ : state)
        e = letterale == 0   ? RicercaAutomatica(p, A().contesto, r, g)
            : letterale == 1 ? RicercaAutomaticaLetterale(p, A().contesto, r, g)
                             : RicercaAutomaticaLetterale(p, A().contesto, r, g, intera);
    state.counters["corse"] = e.corse;
    state.counters["righe"] = static_cast<double>(e.righe.size());
}
BENCHMARK_CAPTURE(B2_B3_Automatica, B2, 1, 1, 0)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(B2_B3_Automatica, B2_letterale, 1, 1, 1)->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK_CAPTURE(B2_B3_Automatica, B3, 2, 5, 0)->Unit(benchmark::kMillisecond)->Iterations(1);
// The literal loop of 25,410 literal searches would take over five minutes: the loop of
// whole fast searches stands in for it.
BENCHMARK_CAPTURE(B2_B3_Automatica, B3_ricerche_intere, 2, 5, 2)->Unit(benchmark::kMillisecond)->Iterations(1);

}  // namespace
