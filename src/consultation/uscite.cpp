#include "consultation/uscite.h"

#include <algorithm>

namespace gorgo::consultation {

bool RuotaPresente(const archives::RecordEstrazione& r, int ruota) {
    for (int p = 1; p <= 5; ++p)
        if (r.Numero(ruota, p) == 0) return false;
    return true;
}

TabelleUscite::TabelleUscite(const archives::StoriaLotto& storia) : numeroEstrazioni_(storia.NumeroEstrazioni()) {
    for (int w = 1; w <= archives::NumeroRuote; ++w) {
        auto& presenti = presenti_[static_cast<size_t>(w)];
        presenti.assign(static_cast<size_t>(numeroEstrazioni_) + 1, 0);
        auto& uscite = uscite_[static_cast<size_t>(w)];
        for (int32_t i = 1; i <= numeroEstrazioni_; ++i) {
            const auto& r = storia[i];
            const bool c = RuotaPresente(r, w);
            presenti[static_cast<size_t>(i)] = presenti[static_cast<size_t>(i) - 1] + (c ? 1 : 0);
            if (!c) continue;
            for (int p = 1; p <= 5; ++p) {
                auto& lista = uscite[r.Numero(w, p)];
                // A number drawn twice in one wheel (never in a real draw) counts once.
                if (lista.empty() || lista.back() != i) lista.push_back(i);
            }
        }
    }
}

int32_t TabelleUscite::Ritardo(int ruota, int numero, int32_t base) const {
    if (base < 1) return 0;
    base = std::min(base, numeroEstrazioni_);
    const auto& presenti = presenti_[static_cast<size_t>(ruota)];
    const auto& lista = uscite_[static_cast<size_t>(ruota)][static_cast<size_t>(numero)];
    const auto it = std::upper_bound(lista.begin(), lista.end(), base);
    const int32_t ultima = it == lista.begin() ? 0 : *std::prev(it);
    return presenti[static_cast<size_t>(base)] - presenti[static_cast<size_t>(ultima)];
}

int32_t TabelleUscite::Frequenza(int ruota, int numero, int32_t da, int32_t a) const {
    da = std::max(da, 1);
    a = std::min(a, numeroEstrazioni_);
    if (da > a) return 0;
    const auto& lista = uscite_[static_cast<size_t>(ruota)][static_cast<size_t>(numero)];
    return static_cast<int32_t>(std::upper_bound(lista.begin(), lista.end(), a) -
                                std::lower_bound(lista.begin(), lista.end(), da));
}

}  // namespace gorgo::consultation
