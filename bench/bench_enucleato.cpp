// Enucleated pair benchmarks E1..E3 on the real archive, wheel Bari: the pair and triple
// statistics from 01/01/1946 to the last draw, the group of the mathematical pairs on all
// wheels over the whole archive; each beside the literal twin on the same input.

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>

#include "archives/archivio.h"
#include "enucleated/enucleato_letterale.h"
#include "enucleated/gruppo.h"
#include "enucleated/statistica.h"

namespace {

using namespace gorgo;
using namespace gorgo::enucleated;

const archives::StoriaLotto& S() {
    static const archives::StoriaCondivisa s = [] {
        const char* c = std::getenv("GORGO_SHARED");
        return archives::Archivio::Apri(std::filesystem::path(c ? c : "../shared") / "dati").Storia();
    }();
    return *s;
}

Periodo Dal1946() { return ControllaPeriodo(S(), "01/01/1946", S().DataEstrazione(S().NumeroEstrazioni())).periodo; }

ParametriStatistica Bari(TipoAnalisi tipo) {
    ParametriStatistica p;
    p.ruota = 1;
    p.tipo = tipo;
    return p;
}

void Statistica(benchmark::State& state, TipoAnalisi tipo) {
    const Periodo p = Dal1946();
    StatisticheEnucleato st;
    for (auto _ : state) benchmark::DoNotOptimize(st.Calcola(S(), p, Bari(tipo)).righe.size());
}

void StatisticaLetterale(benchmark::State& state, TipoAnalisi tipo) {
    const Periodo p = Dal1946();
    for (auto _ : state) benchmark::DoNotOptimize(test::StatisticaLetterale(S(), p, Bari(tipo)).righe.size());
}

Periodo Tutto() {
    return {1, S().NumeroEstrazioni(), S().DataEstrazione(1), S().DataEstrazione(S().NumeroEstrazioni())};
}

void Gruppo(benchmark::State& state) {
    const Periodo p = Tutto();
    for (auto _ : state) benchmark::DoNotOptimize(StatisticaGruppo(S(), p, true, 0).righe.size());
}

// The literal walk has no "all wheels" of its own: the eleven wheels one after the other.
void GruppoLetterale(benchmark::State& state) {
    const Periodo p = Tutto();
    for (auto _ : state)
        for (int w = 1; w <= 11; ++w) benchmark::DoNotOptimize(test::GruppoLetterale(S(), p, w).righe.size());
}

const bool registrati = [] {
    benchmark::RegisterBenchmark("Veloce/E1_coppie", Statistica, TipoAnalisi::Ambi)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("Letterale/E1_coppie", StatisticaLetterale, TipoAnalisi::Ambi)
        ->Unit(benchmark::kMillisecond)
        ->Iterations(1);
    benchmark::RegisterBenchmark("Veloce/E2_terzine", Statistica, TipoAnalisi::Terni)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("Letterale/E2_terzine", StatisticaLetterale, TipoAnalisi::Terni)
        ->Unit(benchmark::kMillisecond)
        ->Iterations(1);
    benchmark::RegisterBenchmark("Veloce/E3_gruppo", Gruppo)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("Letterale/E3_gruppo", GruppoLetterale)->Unit(benchmark::kMillisecond);
    return true;
}();

}  // namespace
