#include "enucleated/ambi_matematici.h"

namespace gorgo::enucleated {

namespace {

std::array<AmboMatematico, NumeroAmbiMatematici> Costruisci() {
    std::array<AmboMatematico, NumeroAmbiMatematici> t{};
    int n = 0;
    for (int a = 1; a <= 9; ++a) t[n++] = {a, 19 - a};
    for (int decina = 1; decina <= 7; ++decina)
        for (int a = decina * 10; a <= decina * 10 + 9; ++a) t[n++] = {a, decina * 20 + 19 - a};
    for (int a = 9; a >= 1; --a) t[n++] = {a, 89 - a};
    t[n++] = {19, 90};
    t[n++] = {89, 90};
    return t;
}

struct Tavola {
    std::array<std::array<bool, 91>, 91> e{};
    Tavola() {
        for (const AmboMatematico& m : AmbiMatematici()) e[m.a][m.b] = e[m.b][m.a] = true;
    }
};

}  // namespace

const std::array<AmboMatematico, NumeroAmbiMatematici>& AmbiMatematici() {
    static const auto t = Costruisci();
    return t;
}

bool EMatematico(int x, int y) {
    static const Tavola t;
    if (x < 1 || x > 90 || y < 1 || y > 90) return false;
    return t.e[x][y];
}

}  // namespace gorgo::enucleated
