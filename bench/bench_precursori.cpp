// Precursor benchmarks P1-P3 on the real archive: wheel Bari from 30/12/2010 to the last
// draw minus 6, defaults otherwise; the SuperEnalotto over its whole archive. Each beside
// the literal single-threaded procedures on the same input.

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>

#include "archives/archivio.h"
#include "archives/regole.h"
#include "precursors/analisi.h"
#include "precursors/precursori_letterale.h"

namespace {

using namespace gorgo;
using namespace gorgo::precursors;

struct Ambiente {
    archives::StoriaCondivisa storia;
    std::vector<archives::RecordSuperEnalotto> super;
    FonteEstrazioni bari, superenalotto;
    ParametriPrecursori lotto, tutto;

    Ambiente() {
        const char* s = std::getenv("GORGO_SHARED");
        const auto a = archives::Archivio::Apri(std::filesystem::path(s ? s : "../shared") / "dati");
        storia = a.Storia();
        super = a.LeggiTuttiSuper();
        bari = FonteEstrazioni::Lotto(*storia, 1);
        superenalotto = FonteEstrazioni::SuperEnalotto(super);
        const int32_t n = storia->NumeroEstrazioni();
        lotto.Inizio = archives::ControllaData("30/12/2010", *storia, false).IndiceTrovato;
        lotto.Fine = n - 6;
        lotto.IndiceVerifica = n;
        const int32_t ns = static_cast<int32_t>(super.size());
        tutto.Inizio = 1;
        tutto.Fine = ns - 6;
        tutto.IndiceVerifica = ns;
    }
};

const Ambiente& A() {
    static const Ambiente a;
    return a;
}

ParametriPrecursori Ambi(ParametriPrecursori p) {
    p.sorte = Sorte::Ambi;
    return p;
}

ParametriPrecursori Terzine(ParametriPrecursori p) {
    p.TerzineIntegrali = true;
    p.MinimoNumeri = 2;
    p.PresenzeMinime = 2;
    return p;
}

void P1_AmbateEAmbi(benchmark::State& st) {
    for (auto _ : st) {
        benchmark::DoNotOptimize(AnalisiPrecursori(A().lotto, A().bari));
        benchmark::DoNotOptimize(AnalisiPrecursori(Ambi(A().lotto), A().bari));
    }
}
void P1_AmbateEAmbi_Letterale(benchmark::State& st) {
    const gorgo::test::FonteLetterale f{Gioco::Lotto, A().storia.get(), {}, 1};
    for (auto _ : st) {
        benchmark::DoNotOptimize(gorgo::test::AnalisiPrecursoriLetterale(A().lotto, f));
        benchmark::DoNotOptimize(gorgo::test::AnalisiPrecursoriLetterale(Ambi(A().lotto), f));
    }
}
void P2_TerzineIntegrali(benchmark::State& st) {
    for (auto _ : st) benchmark::DoNotOptimize(AnalisiFormazioni(Terzine(A().lotto), A().bari, {}));
}
void P2_TerzineIntegrali_Letterale(benchmark::State& st) {
    const gorgo::test::FonteLetterale f{Gioco::Lotto, A().storia.get(), {}, 1};
    for (auto _ : st)
        benchmark::DoNotOptimize(gorgo::test::AnalisiFormazioniLetterale(Terzine(A().lotto), f, {}, false));
}
void P3_SuperEnalotto(benchmark::State& st) {
    for (auto _ : st) benchmark::DoNotOptimize(AnalisiPrecursori(A().tutto, A().superenalotto));
}
void P3_SuperEnalotto_Letterale(benchmark::State& st) {
    const gorgo::test::FonteLetterale f{Gioco::SuperEnalotto, nullptr, A().super, 1};
    for (auto _ : st) benchmark::DoNotOptimize(gorgo::test::AnalisiPrecursoriLetterale(A().tutto, f));
}
// Unpacking the sources, done once when a screen opens or its wheel changes.
void Fonti(benchmark::State& st) {
    for (auto _ : st) {
        benchmark::DoNotOptimize(FonteEstrazioni::Lotto(*A().storia, 1));
        benchmark::DoNotOptimize(FonteEstrazioni::SuperEnalotto(A().super));
    }
}

}  // namespace

BENCHMARK(P1_AmbateEAmbi)->Unit(benchmark::kMillisecond);
BENCHMARK(P1_AmbateEAmbi_Letterale)->Unit(benchmark::kMillisecond);
BENCHMARK(P2_TerzineIntegrali)->Unit(benchmark::kMillisecond);
BENCHMARK(P2_TerzineIntegrali_Letterale)->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK(P3_SuperEnalotto)->Unit(benchmark::kMillisecond);
BENCHMARK(P3_SuperEnalotto_Letterale)->Unit(benchmark::kMillisecond);
BENCHMARK(Fonti)->Unit(benchmark::kMillisecond);
