#pragma once
// The sorts of the system: ascending quick sort with a random pivot on a table range
// [primo, ultimo] (inclusive indices into the table), and the middle-pivot variant
// used for the builder's mixed rows. Equal elements have no defined order.

#include <cstdint>
#include <random>
#include <span>
#include <string>
#include <utility>

namespace gorgo::archives {

namespace dettaglio {

inline std::minstd_rand& GeneratoreOrdina() {
    thread_local std::minstd_rand g(20260101u);
    return g;
}

template <typename T>
void OrdinaCasuale(std::span<T> t, long primo, long ultimo) {
    while (primo < ultimo) {
        std::uniform_int_distribution<long> scelta(primo, ultimo);
        const long p = scelta(GeneratoreOrdina());
        T perno = std::move(t[p]);
        t[p] = std::move(t[primo]);  // position primo is now the hole
        long i = primo, j = ultimo;
        for (;;) {
            while (j > i && !(t[j] < perno)) --j;
            if (j <= i) break;
            t[i] = std::move(t[j]);
            ++i;
            while (i < j && t[i] < perno) ++i;
            if (i >= j) {
                i = j;
                break;
            }
            t[j] = std::move(t[i]);
        }
        t[i] = std::move(perno);
        // Recurse on the smaller side to bound the stack on hostile input.
        if (i - primo < ultimo - i) {
            OrdinaCasuale(t, primo, i - 1);
            primo = i + 1;
        } else {
            OrdinaCasuale(t, i + 1, ultimo);
            ultimo = i - 1;
        }
    }
}

}  // namespace dettaglio

inline void OrdinaInteri(std::span<int16_t> t, long primo, long ultimo) { dettaglio::OrdinaCasuale(t, primo, ultimo); }
inline void OrdinaLunghi(std::span<int32_t> t, long primo, long ultimo) { dettaglio::OrdinaCasuale(t, primo, ultimo); }
// Text by code values, not by language.
inline void OrdinaTesti(std::span<std::string> t, long primo, long ultimo) {
    dettaglio::OrdinaCasuale(t, primo, ultimo);
}
inline void OrdinaTuttiTesti(std::span<std::string> t) {
    dettaglio::OrdinaCasuale(t, 0, static_cast<long>(t.size()) - 1);
}

// Middle pivot and the classic two-pointer exchange.
template <typename T>
void OrdinaVarianti(std::span<T> t, long primo, long ultimo) {
    if (primo >= ultimo) return;
    const T perno = t[(primo + ultimo) / 2];
    long i = primo, j = ultimo;
    do {
        while (t[i] < perno && i < ultimo) ++i;
        while (perno < t[j] && j > primo) --j;
        if (i <= j) {
            std::swap(t[i], t[j]);
            ++i;
            --j;
        }
    } while (j >= i);
    if (primo < j) OrdinaVarianti(t, primo, j);
    if (i < ultimo) OrdinaVarianti(t, i, ultimo);
}

}  // namespace gorgo::archives
