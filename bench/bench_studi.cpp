// Number-study utilities U1..U4 on the real archive, each beside its literal single-threaded
// twin on the same input (U2's twin on the last year only: on the whole span it takes minutes).

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>

#include "archives/archivio.h"
#include "studies/multiruota.h"
#include "studies/multiruota_letterale.h"
#include "studies/numeri_simpatici.h"
#include "studies/numeri_simpatici_letterale.h"
#include "studies/punti_incogniti.h"
#include "studies/punti_incogniti_letterale.h"
#include "studies/somma_cinquine.h"

namespace {

using namespace gorgo;
using namespace gorgo::studies;

const archives::StoriaLotto& S() {
    static const archives::StoriaCondivisa s = [] {
        const char* c = std::getenv("GORGO_SHARED");
        return archives::Archivio::Apri(std::filesystem::path(c ? c : "../shared") / "dati").Storia();
    }();
    return *s;
}

int32_t Indice(int g, int m, int a) { return S().CercaIndice({g, m, a}, false)->IndiceTrovato; }

ParametriVerifica U1() {
    ParametriVerifica p;
    p.Dal = Indice(1, 1, 1946);
    p.Al = S().NumeroEstrazioni();
    p.Sorte = 2;
    p.Colpi = 10;
    p.SoloPrima = false;
    return p;
}

ParametriSimultanea U2(int g = 1, int m = 1, int a = 1946) {
    ParametriSimultanea p;
    p.Dal = Indice(g, m, a);
    p.Al = S().NumeroEstrazioni();
    for (int w = 1; w <= 11; ++w) p.RuoteScelte[static_cast<size_t>(w)] = true;
    return p;
}

ParametriMultiruota U3() {
    ParametriMultiruota p;
    p.Base = S().NumeroEstrazioni();
    p.RuotaRicerca = 1;
    p.TipoRicerca = TipoMultiruota::Terni;
    p.Volte = 18;
    p.Estrazioni = 10;
    return p;
}

void U1Veloce(benchmark::State& st) {
    const auto p = U1();
    for (auto _ : st) benchmark::DoNotOptimize(RiepilogoRuote(S(), p));
}
void U1Letterale(benchmark::State& st) {
    const auto p = U1();
    for (auto _ : st) benchmark::DoNotOptimize(gorgo::test::RiepilogoRuoteLetterale(S(), p, ""));
}
void U2Veloce(benchmark::State& st) {
    const auto p = U2();
    EsitoGenerale e;
    for (auto _ : st) e = StatisticaGenerale(S(), p);
    st.counters["righe"] = static_cast<double>(e.righe.size());
}
void U2UnAnno(benchmark::State& st) {
    const auto p = U2(30, 12, 2024);
    for (auto _ : st) benchmark::DoNotOptimize(StatisticaGenerale(S(), p));
}
void U2LetteraleUnAnno(benchmark::State& st) {
    const auto p = U2(30, 12, 2024);
    for (auto _ : st) benchmark::DoNotOptimize(gorgo::test::StatisticaGeneraleLetterale(S(), p));
}
void U3Veloce(benchmark::State& st) {
    const auto p = U3();
    for (auto _ : st) benchmark::DoNotOptimize(RicercaMultiruota(S(), p));
}
void U3Letterale(benchmark::State& st) {
    const auto p = U3();
    for (auto _ : st) benchmark::DoNotOptimize(gorgo::test::RicercaMultiruotaLetterale(S(), p));
}
void U4Veloce(benchmark::State& st) {
    const auto& r = S()[S().NumeroEstrazioni()];
    for (auto _ : st) benchmark::DoNotOptimize(Convergenze(CinquineSomma(r, 0).righe));
}
void U4Letterale(benchmark::State& st) {
    const auto& r = S()[S().NumeroEstrazioni()];
    for (auto _ : st) benchmark::DoNotOptimize(gorgo::test::ConvergenzeLetterale(CinquineSomma(r, 0).righe));
}

BENCHMARK(U1Veloce)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(U1Letterale)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(U2Veloce)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(3);
BENCHMARK(U2UnAnno)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(U2LetteraleUnAnno)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(1);
BENCHMARK(U3Veloce)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(U3Letterale)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(U4Veloce)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(U4Letterale)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
