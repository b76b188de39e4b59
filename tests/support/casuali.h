#pragma once
// Random inputs of the differential tests: short Lotto histories with holes, wheels,
// reduced triples, search parameters and contexts. One mt19937 drives everything, so a
// test is reproducible from its seed.

#include <gtest/gtest.h>

#include <array>
#include <random>
#include <vector>

#include "archives/record.h"
#include "archives/storia.h"
#include "builder/modello.h"
#include "builder/parametri.h"
#include "builder/ricerca.h"

namespace gorgo::test {

// The shape of a random history. Dates, weekdays and the year ordinal follow the demo
// calendar (three draws a week until mid-2023, four after), over whole calendar years,
// so NumeroAnno starts at 1.
struct OpzioniStoria {
    int anni = 3;
    int ultimoAnno = 2008;
    // Wheels drawn (1..11); the others stay all zero, as the early wheels of the archive.
    std::array<bool, 12> ruote{false, true, true, true, true, true, true, true, true, true, true, true};
    // The Nazionale stays empty before this progressive index (1: drawn from the start).
    int32_t primaNazionale = 1;
    // Wheels drawing from 1..numeriStretti only: spies, hits and repeated pairs become frequent.
    std::array<bool, 12> strette{false, true, false, false, true, false, false, true, false, false, true, false};
    int numeriStretti = 20;
    // One wheel in `ruotaVuota` left undrawn, one draw in `numeroZero` with one number
    // missing (a zero inside a wheel ends its reading); 0 for never.
    int ruotaVuota = 40;
    int numeroZero = 30;
};

std::vector<archives::RecordEstrazione> EstrazioniCasuali(std::mt19937& g, const OpzioniStoria& o = {});
archives::StoriaLotto StoriaCasuale(std::mt19937& g, const OpzioniStoria& o = {});

// Search or play wheels as the screen gives them: the ten regional ones (with or without
// the Nazionale) one time in three, else a random non-empty set.
std::array<bool, 12> RuoteCasuali(std::mt19937& g);

// Triples of numbers 1..90, as the loader accepts them; two numbers in three come from
// 1..20, so that with the narrow wheels the codes hit often, while the others reach the
// wrap-around of every operation.
builder::TerzineRidotte TerzineCasuali(std::mt19937& g, int quante);

// How far back a random search may look, in draws before its end: its cost is the
// caller's to bound.
struct MisurePeriodo {
    struct Intervallo {
        int minimo, massimo;  // from minimo to massimo - 1
    };
    int fine = 20;                   // the end among the last `fine` draws
    Intervallo unValore{5, 305};     // with a single spy value
    Intervallo tuttiIValori{5, 65};  // with every value (or every pair) at once
    bool perDataTutti = false;       // "last n cases" also with every value
};

// Parameters of every kind for this history, every field drawn (those a procedure does
// not read do no harm).
builder::ParametriRicerca ParametriCasuali(std::mt19937& g, const archives::StoriaLotto& s, builder::TipoRicerca tipo,
                                           const MisurePeriodo& misure = {});

// A context with everything admitted but, now and then, one or two weekdays.
builder::ContestoRicerca ContestoCasuale(std::mt19937& g, const archives::StoriaLotto& s,
                                         const builder::IndiciMensili& im, const builder::TerzineRidotte* t);

// The demo history to 30/12/2025 (seed 3) with its month indices, random reduced triples
// and a context that admits every draw: the usual ground of the engines' unit tests.
struct ContestoDemo {
    archives::StoriaLotto storia;
    builder::IndiciMensili indici;
    builder::TerzineRidotte terzine;
    builder::ContestoRicerca contesto;
    ContestoDemo();
    ContestoDemo(const ContestoDemo&) = delete;
    ContestoDemo& operator=(const ContestoDemo&) = delete;
};

// Names of the kinds in the test list, for tests parametrised by kind.
std::string NomeTipoRicerca(const ::testing::TestParamInfo<builder::TipoRicerca>& info);

}  // namespace gorgo::test
