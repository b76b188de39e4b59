#include "consultation/consultazione_letterale.h"

#include <algorithm>
#include <limits>

namespace gorgo::test {

using namespace consultation;

namespace {

bool Vuota(const archives::RecordEstrazione& r, int w) {
    for (int p = 1; p <= 5; ++p)
        if (r.Numero(w, p) == 0) return true;
    return false;
}

// From the base draw backward, counting the draws where the wheel has numbers; a number's
// delay is the count when it is first met; the rest take the final count.
std::array<int32_t, 91> Ritardi(const archives::StoriaLotto& s, int w, int32_t base) {
    std::array<int32_t, 91> ritardo{};
    std::array<bool, 91> trovato{};
    int32_t conta = 0, trovati = 0, passi = 0;
    for (int32_t i = base; i >= 1; --i) {
        const auto& r = s[i];
        ++passi;
        if (!Vuota(r, w)) {
            for (int p = 1; p <= 5; ++p) {
                const int n = r.Numero(w, p);
                if (!trovato[static_cast<size_t>(n)]) {
                    trovato[static_cast<size_t>(n)] = true;
                    ritardo[static_cast<size_t>(n)] = conta;
                    ++trovati;
                }
            }
            ++conta;
        }
        if (passi >= 100 && passi % 10 == 0 && trovati == 90) break;
    }
    for (int n = 1; n <= 90; ++n)
        if (!trovato[static_cast<size_t>(n)]) ritardo[static_cast<size_t>(n)] = conta;
    return ritardo;
}

int32_t Frequenza(const archives::StoriaLotto& s, int w, int n, int32_t da, int32_t a) {
    int32_t conta = 0;
    for (int32_t i = da; i <= a; ++i) {
        if (i < 1 || i > s.NumeroEstrazioni()) continue;
        const auto& r = s[i];
        if (Vuota(r, w)) continue;
        for (int p = 1; p <= 5; ++p)
            if (r.Numero(w, p) == n) ++conta;
    }
    return conta;
}

// The first draw on or after a date, by walking the records.
int32_t PrimaDal(const archives::StoriaLotto& s, const archives::Data& d) {
    for (int32_t i = 1; i <= s.NumeroEstrazioni(); ++i)
        if (!(s[i].data() < d)) return i;
    return 0;
}

}  // namespace

GrigliaLetterale VistaLetterale(const archives::StoriaLotto& s, const Consultazione& c) {
    GrigliaLetterale g;
    std::array<int, 55> numeri{};
    std::array<int, 11> ruotaRiga{};
    std::array<int32_t, 11> drawRiga{};
    const bool tutte = c.RuotaCorrente == 0;
    const int righe = tutte ? 11 : 10;
    const int32_t ultima = c.IndiceCorrente < 10 ? std::min<int32_t>(10, s.NumeroEstrazioni()) : c.IndiceCorrente;
    for (int r = 0; r < righe; ++r) {
        ruotaRiga[static_cast<size_t>(r)] = tutte ? r + 1 : c.RuotaCorrente;
        drawRiga[static_cast<size_t>(r)] = tutte ? c.IndiceCorrente : ultima - 9 + r;
        const int32_t d = drawRiga[static_cast<size_t>(r)];
        if (d < 1) continue;
        std::array<int, 5> v{};
        for (int p = 0; p < 5; ++p) v[static_cast<size_t>(p)] = s[d].Numero(ruotaRiga[static_cast<size_t>(r)], p + 1);
        if (c.Ordinate) std::sort(v.begin(), v.end());
        for (int p = 0; p < 5; ++p) numeri[static_cast<size_t>(r * 5 + p)] = v[static_cast<size_t>(p)];
    }
    std::array<int32_t, 55> valori{};
    if (c.TipoVisualizzazione == Vista::Ritardi) {
        for (int r = 0; r < righe; ++r) {
            const auto rit = Ritardi(s, ruotaRiga[static_cast<size_t>(r)], drawRiga[static_cast<size_t>(r)] - 1);
            for (int p = 0; p < 5; ++p)
                valori[static_cast<size_t>(r * 5 + p)] =
                    rit[static_cast<size_t>(numeri[static_cast<size_t>(r * 5 + p)])];
        }
    } else if (c.TipoVisualizzazione == Vista::Frequenze) {
        const int32_t fine = c.NonConsiderareAttuale ? c.IndiceCorrente - 1 : c.IndiceCorrente;
        int32_t inizio = 0;
        const archives::Data data = s[c.IndiceCorrente].data();
        bool ok = true;
        switch (c.Periodo) {
            case TipoPeriodo::Ultime:
                ok = c.UltimeEstrazioni > 0;
                inizio = fine - c.UltimeEstrazioni + 1;
                break;
            case TipoPeriodo::Cicli:
                ok = c.Cicli > 0;
                inizio = fine - 18 * c.Cicli + 1;
                break;
            case TipoPeriodo::UltimoAnno:
                inizio = PrimaDal(s, {std::min(data.giorno, archives::GiorniNelMese(data.mese, data.anno - 1)),
                                      data.mese, data.anno - 1});
                break;
            case TipoPeriodo::InizioAnno:
                if (fine >= 1) inizio = PrimaDal(s, {1, 1, s[fine].data().anno});
                break;
        }
        if (!ok || inizio < 1 || fine < 1) {
            g.periodoValido = false;
            std::fill(valori.begin(), valori.end(), -1);
        } else {
            for (int r = 0; r < righe; ++r) {
                int32_t da = inizio, a = fine;
                if (!tutte) {
                    const int32_t d = drawRiga[static_cast<size_t>(r)];
                    da = d - (fine - inizio) - 1;
                    a = c.NonConsiderareAttuale ? d - 1 : d;
                }
                for (int p = 0; p < 5; ++p)
                    valori[static_cast<size_t>(r * 5 + p)] =
                        Frequenza(s, ruotaRiga[static_cast<size_t>(r)], numeri[static_cast<size_t>(r * 5 + p)], da, a);
            }
        }
    }
    const bool calcolata = c.TipoVisualizzazione != Vista::Normale && g.periodoValido;
    int32_t massimo = std::numeric_limits<int32_t>::min(), minimo = std::numeric_limits<int32_t>::max();
    for (size_t k = 0; k < 55; ++k)
        if (numeri[k] != 0) {
            massimo = std::max(massimo, valori[k]);
            minimo = std::min(minimo, valori[k]);
        }
    for (size_t k = 0; k < 55; ++k) {
        g.sfondi[k] = SfondoNormale;
        if (numeri[k] == 0) continue;
        g.testi[k] = std::to_string(calcolata ? valori[k] : numeri[k]);
        if (!calcolata) continue;
        if (valori[k] == massimo)
            g.sfondi[k] = Rosso;
        else if (valori[k] == minimo)
            g.sfondi[k] = Blu;
    }
    return g;
}

}  // namespace gorgo::test
