// Builder benchmarks S1..S6 on the real archive, period 30/12/2015 - 30/12/2025, spy 27,
// search and play wheels "Tutte", colpi 9, month index "Tutti", restrictions off; each
// beside the literal single-threaded search on the same input (or on a named shorter period).

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <random>
#include <string>

#include "archives/archivio.h"
#include "builder/indice_mensile.h"
#include "builder/ricerca.h"
#include "builder/ricerca_letterale.h"

namespace {

using namespace gorgo;
using namespace gorgo::builder;

struct Ambiente {
    gorgo::archives::StoriaCondivisa storia;
    IndiciMensili indici;
    TerzineRidotte terzine;
    ContestoRicerca contesto;

    Ambiente() {
        const char* s = std::getenv("GORGO_SHARED");
        storia = gorgo::archives::Archivio::Apri(std::filesystem::path(s ? s : "../shared") / "dati").Storia();
        indici = CalcolaIndiciMensili(*storia, "NNYNYNY");
        // 1002 triples, fixed, as a file of reduced triples would give them.
        std::mt19937 g(1002);
        for (int i = 0; i < 1002; ++i)
            terzine.terzine.push_back(
                {1 + static_cast<int>(g() % 90), 1 + static_cast<int>(g() % 90), 1 + static_cast<int>(g() % 90)});
        contesto = ContestoRicerca{storia.get(), {}, &indici, &terzine};
        contesto.restrizioni.GiornoAmmesso.fill(true);
        contesto.restrizioni.MeseAmmesso.fill(true);
        contesto.restrizioni.PeriodoAmmesso.fill(true);
    }
};

const Ambiente& A() {
    static const Ambiente a;
    return a;
}

ParametriRicerca Base(const char* da = "30/12/2015") {
    ParametriRicerca p;
    p.valoreSpia = 27;
    p.dataDa = da;
    p.dataA = "30/12/2025";
    p.indiceMese = 22;
    p.colpi = 9;
    p.ruoteRicerca = {true, false, false, false, false, false, false, false, false, false, false, false};
    p.ruoteGioco = p.ruoteRicerca;
    return p;
}

ParametriRicerca S1(const char* da = "30/12/2015") { return Base(da); }
ParametriRicerca S2(const char* da = "30/12/2015") {
    auto p = Base(da);
    p.modoSpia = ModoSpia::Tutti;
    return p;
}
ParametriRicerca S3(const char* da = "30/12/2015") {
    auto p = Base(da);
    p.tipoRicerca = TipoRicerca::Ambi;
    return p;
}
ParametriRicerca S4Ambo(const char* da = "30/12/2015") {
    auto p = Base(da);
    p.tipoRicerca = TipoRicerca::TerzineAmbo;
    return p;
}
ParametriRicerca S4Terno(const char* da = "30/12/2015") {
    auto p = Base(da);
    p.tipoRicerca = TipoRicerca::TerzineTerno;
    return p;
}
ParametriRicerca S5(const char* da = "30/12/2015") {
    auto p = Base(da);
    p.tipoRicerca = TipoRicerca::Codici;
    p.sorte = 2;
    return p;
}
ParametriRicerca S6(const char* da = "30/12/2020") {
    auto p = Base(da);
    p.tipoSpia = TipoSpia::Ambo;
    p.tuttiGliAmbi = true;
    return p;
}

// Ambi evaluations: one rule with its constants and cells scored on one case.
double ValutazioniAmbi(const ParametriRicerca& p, const EsitoRicerca& e) {
    double n = 0;
    for (const CasoSpia& c : e.casi) {
        const gorgo::archives::RecordEstrazione& r = (*A().storia)[c.indice];
        for (int a = 1; a <= 55; ++a)
            for (int b = RuotaDiCella(a) * 5 + 1; b <= 55; ++b)
                if (r.Ruota[(b - 1) / 5][(b - 1) % 5] != 0) n += p.soloPosizione ? 1 : 9 * 45 * 45;
    }
    return n;
}

using Crea = ParametriRicerca (*)(const char*);

void Veloce(benchmark::State& state, Crea crea, const char* da) {
    const ParametriRicerca p = crea(da);
    EsitoRicerca e;
    for (auto _ : state) e = CercaAlgoritmi(p, A().contesto);
    state.counters["casi"] = static_cast<double>(e.casi.size());
    state.counters["righe"] = static_cast<double>(e.righe.size());
    if (p.tipoRicerca == TipoRicerca::Ambi)
        state.counters["valutazioni/s"] = benchmark::Counter(
            ValutazioniAmbi(p, e) * static_cast<double>(state.iterations()), benchmark::Counter::kIsRate);
}

void Letterale(benchmark::State& state, Crea crea, const char* da) {
    const ParametriRicerca p = crea(da);
    EsitoRicerca e;
    for (auto _ : state) e = CercaAlgoritmiLetterale(p, A().contesto);
    state.counters["casi"] = static_cast<double>(e.casi.size());
}

// iter 0: no literal run beside it (it would take too long on the full period).
void Scenario(const char* nome, Crea crea, const char* da, int iter, bool letterale) {
    benchmark::RegisterBenchmark((std::string("Veloce/") + nome).c_str(), Veloce, crea, da)
        ->Unit(benchmark::kMillisecond)
        ->Iterations(iter)
        ->UseRealTime();
    if (letterale)
        benchmark::RegisterBenchmark((std::string("Letterale/") + nome).c_str(), Letterale, crea, da)
            ->Unit(benchmark::kMillisecond)
            ->Iterations(1)
            ->UseRealTime();
}

const bool registrati = [] {
    Scenario("S1", S1, "30/12/2015", 20, true);
    Scenario("S2", S2, "30/12/2015", 3, true);
    Scenario("S3", S3, "30/12/2015", 1, false);
    Scenario("S3_un_anno", S3, "30/12/2024", 1, true);
    Scenario("S4_ambo", S4Ambo, "30/12/2015", 5, true);
    Scenario("S4_terno", S4Terno, "30/12/2015", 5, true);
    Scenario("S5", S5, "30/12/2015", 3, false);
    Scenario("S5_un_anno", S5, "30/12/2024", 3, true);
    Scenario("S6", S6, "30/12/2020", 3, false);
    Scenario("S6_un_anno", S6, "30/12/2024", 3, true);
    return true;
}();

}  // namespace
