#include "archives/dieci_e_lotto.h"

#include "archives/storia.h"

namespace gorgo::archives {

Risultato10eLotto Estrazione10eLotto(const RecordEstrazione& record) {
    Risultato10eLotto e;
    bool presente[91] = {};
    int quanti = 0;
    auto segna = [&](int n) {
        if (!presente[n]) {
            presente[n] = true;
            ++quanti;
        }
    };
    // First two positions of wheels 1 to 10; Nazionale plays no part.
    for (int ruota = 1; ruota <= 10; ++ruota)
        for (int pos = 1; pos <= 2; ++pos) {
            const int n = record.Numero(ruota, pos);
            if (n == 0 || n > 90) {
                e.esito = -1;
                e.manca = true;
                return e;
            }
            segna(n);
        }
    // Then position 3 of wheels 1..10, position 4, position 5, until 20 distinct numbers.
    int c = 0;
    for (;;) {
        ++c;
        if (c > 30) {
            e.esito = -1;
            return e;
        }
        if (quanti >= 20) break;
        const int n = record.Numero((c - 1) % 10 + 1, 3 + (c - 1) / 10);
        if (n >= 1 && n <= 90) segna(n);
    }
    size_t k = 0;
    for (int n = 1; n <= 90 && k < 20; ++n)
        if (presente[n]) e.numeri[k++] = n;
    e.esito = c - 1;
    return e;
}

Risultato10eLotto Estrazione10eLotto(const StoriaLotto& storia, int32_t indice) {
    if (indice < 1) return {};
    return Estrazione10eLotto(storia[indice]);
}

}  // namespace gorgo::archives
