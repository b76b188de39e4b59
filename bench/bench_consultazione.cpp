// Consultation benchmarks C1-C2 on the real archive: one refresh in the delays view at the
// last draw, and the walk of the whole archive in the frequencies view ("Ultimo anno"), all
// wheels; each beside the literal walk and count of the tests on the same input.

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>

#include "archives/archivio.h"
#include "consultation/consultazione.h"
#include "consultation/consultazione_letterale.h"

namespace {

using namespace gorgo;
using namespace gorgo::consultation;

archives::StoriaCondivisa Storia() {
    static const archives::StoriaCondivisa s = [] {
        const char* c = std::getenv("GORGO_SHARED");
        return archives::Archivio::Apri(std::filesystem::path(c ? c : "../shared") / "dati").Storia();
    }();
    return s;
}

// Opening the desk: month indices and the hit tables of every number on every wheel.
void C0_ApriConsultazione(benchmark::State& state) {
    for (auto _ : state) {
        Consultazione c(Storia());
        benchmark::DoNotOptimize(c.IndiceCorrente);
    }
}
BENCHMARK(C0_ApriConsultazione)->Unit(benchmark::kMillisecond);

void C1_RitardiUltimaEstrazione(benchmark::State& state) {
    Consultazione c(Storia());
    c.ImpostaVista(Vista::Ritardi);
    for (auto _ : state) benchmark::DoNotOptimize(c.Aggiorna().celle[0].testo.data());
}
BENCHMARK(C1_RitardiUltimaEstrazione)->Unit(benchmark::kMicrosecond);

void C1_RitardiUltimaEstrazioneLetterale(benchmark::State& state) {
    Consultazione c(Storia());
    c.ImpostaVista(Vista::Ritardi);
    for (auto _ : state) benchmark::DoNotOptimize(test::VistaLetterale(*Storia(), c).testi[0].data());
}
BENCHMARK(C1_RitardiUltimaEstrazioneLetterale)->Unit(benchmark::kMicrosecond);

void C2_PercorsoFrequenzeUltimoAnno(benchmark::State& state) {
    Consultazione c(Storia());
    c.ImpostaVista(Vista::Frequenze);
    c.Periodo = TipoPeriodo::UltimoAnno;
    for (auto _ : state) {
        c.VaiA(1);
        for (int32_t i = 1; i <= c.NumeroEstrazioni(); ++i) {
            benchmark::DoNotOptimize(c.Aggiorna().celle[0].testo.data());
            c.Successiva();
        }
    }
}
BENCHMARK(C2_PercorsoFrequenzeUltimoAnno)->Unit(benchmark::kMillisecond);

void C2_PercorsoFrequenzeUltimoAnnoLetterale(benchmark::State& state) {
    Consultazione c(Storia());
    c.ImpostaVista(Vista::Frequenze);
    c.Periodo = TipoPeriodo::UltimoAnno;
    for (auto _ : state)
        for (int32_t i = 1; i <= c.NumeroEstrazioni(); ++i) {
            c.VaiA(i);
            benchmark::DoNotOptimize(test::VistaLetterale(*Storia(), c).testi[0].data());
        }
}
BENCHMARK(C2_PercorsoFrequenzeUltimoAnnoLetterale)->Unit(benchmark::kMillisecond)->Iterations(1);

}  // namespace
