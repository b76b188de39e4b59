// Archive benchmarks on the real history: A2 (whole history into memory) and the date
// lookups. Run through bench/run.sh, which points GORGO_SHARED at the archives.

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <random>

#include "archives/archivio.h"
#include "archives/regole.h"

namespace {

namespace fs = std::filesystem;

fs::path Cartella() {
    const char* s = std::getenv("GORGO_SHARED");
    return fs::path(s ? s : "../shared") / "dati";
}

// A2: open the files and load the whole Lotto history.
void CaricaStoria(benchmark::State& state) {
    for (auto _ : state) {
        const gorgo::archives::Archivio a = gorgo::archives::Archivio::Apri(Cartella());
        auto storia = a.Storia();
        benchmark::DoNotOptimize(storia->NumeroEstrazioni());
    }
}
BENCHMARK(CaricaStoria)->Unit(benchmark::kMicrosecond);

std::vector<gorgo::archives::Data> DateCasuali(int n) {
    std::mt19937 g(1);
    const int32_t da = gorgo::archives::Data{7, 1, 1871}.giorni(), a = gorgo::archives::Data{30, 12, 2025}.giorni();
    std::vector<gorgo::archives::Data> v;
    for (int i = 0; i < n; ++i)
        v.push_back(
            gorgo::archives::Data::daGiorni(da + static_cast<int32_t>(g() % static_cast<unsigned>(a - da + 1))));
    return v;
}

// The file walk through the year index: one year of records read per lookup.
void CercaIndiceSuFile(benchmark::State& state) {
    const gorgo::archives::Archivio a = gorgo::archives::Archivio::Apri(Cartella());
    const auto date = DateCasuali(1024);
    size_t i = 0;
    for (auto _ : state) benchmark::DoNotOptimize(a.CercaIndice(date[i++ & 1023], false));
}
BENCHMARK(CercaIndiceSuFile)->Unit(benchmark::kMicrosecond);

void CercaIndiceInMemoria(benchmark::State& state) {
    const gorgo::archives::Archivio a = gorgo::archives::Archivio::Apri(Cartella());
    const auto storia = a.Storia();
    const auto date = DateCasuali(1024);
    size_t i = 0;
    for (auto _ : state) benchmark::DoNotOptimize(storia->CercaIndice(date[i++ & 1023], false));
}
BENCHMARK(CercaIndiceInMemoria);

void ControlloIntegrita(benchmark::State& state) {
    const gorgo::archives::Archivio a = gorgo::archives::Archivio::Apri(Cartella());
    for (auto _ : state) benchmark::DoNotOptimize(gorgo::archives::VerificaIntegrita(a));
}
BENCHMARK(ControlloIntegrita)->Unit(benchmark::kMicrosecond);

}  // namespace
