// Convergences and lunghetta on the rows of S1 played on Milano (period 30/12/2015 -
// 30/12/2025, spy 27 on every wheel, month index "Tutti", every row checked), beside their
// literal twins; and the abbinamenti of the first row at the archive's last draw.

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>

#include "archives/archivio.h"
#include "builder/capogioco.h"
#include "builder/convergenze.h"
#include "builder/convergenze_letterale.h"
#include "builder/indice_mensile.h"

namespace {

using namespace gorgo;
using namespace gorgo::builder;

struct Righe {
    archives::StoriaCondivisa storia;
    IndiciMensili indici;
    ContestoRicerca contesto;
    ParametriRicerca p;
    std::vector<RigaAlgoritmo> righe;

    Righe() {
        const char* s = std::getenv("GORGO_SHARED");
        storia = archives::Archivio::Apri(std::filesystem::path(s ? s : "../shared") / "dati").Storia();
        indici = CalcolaIndiciMensili(*storia, "NNYNYNY");
        contesto = ContestoRicerca{storia.get(), {}, &indici, nullptr};
        contesto.restrizioni.GiornoAmmesso.fill(true);
        contesto.restrizioni.MeseAmmesso.fill(true);
        contesto.restrizioni.PeriodoAmmesso.fill(true);
        p.valoreSpia = 27;
        p.dataDa = "30/12/2015";
        p.dataA = "30/12/2025";
        p.indiceMese = 22;
        p.ruoteRicerca[0] = true;
        p.ruoteGioco = {false, false, false, false, false, true};
        righe = CercaAlgoritmi(p, contesto, {}, true).righe;
    }
};

const Righe& R() {
    static const Righe r;
    return r;
}

void Convergenze(benchmark::State& state) {
    EsitoConvergenze e;
    for (auto _ : state) e = CalcolaConvergenze(R().p, R().contesto, R().righe);
    state.counters["righe"] = static_cast<double>(R().righe.size());
    state.counters["in_corso"] = static_cast<double>(e.righe.size());
}
void ConvergenzeLetterale(benchmark::State& state) {
    for (auto _ : state) benchmark::DoNotOptimize(letterale::CalcolaConvergenze(R().p, R().contesto, R().righe));
}
void Lunghetta(benchmark::State& state) {
    EsitoLunghetta e;
    for (auto _ : state) e = ElaboraLunghetta(R().p, R().contesto, R().righe, {10, false});
    state.counters["numeri"] = static_cast<double>(e.numeri.size());
}
void LunghettaLetterale(benchmark::State& state) {
    for (auto _ : state)
        benchmark::DoNotOptimize(letterale::ElaboraLunghetta(R().p, R().contesto, R().righe, 10, false));
}
void Abbinamenti(benchmark::State& state) {
    ParametriRicerca p = R().p;
    p.indiceMese = 17;
    const int32_t n = R().storia->NumeroEstrazioni();
    for (auto _ : state)
        benchmark::DoNotOptimize(CalcolaAbbinamenti(p, R().contesto, R().righe.front().chiave, n, 0, 12));
}

BENCHMARK(Convergenze)->Name("Veloce/B4_convergenze")->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(ConvergenzeLetterale)
    ->Name("Letterale/B4_convergenze")
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1)
    ->UseRealTime();
BENCHMARK(Lunghetta)->Name("Veloce/B5_lunghetta")->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(LunghettaLetterale)
    ->Name("Letterale/B5_lunghetta")
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1)
    ->UseRealTime();
BENCHMARK(Abbinamenti)->Name("Veloce/B6_abbinamenti")->Unit(benchmark::kMicrosecond)->UseRealTime();

}  // namespace
