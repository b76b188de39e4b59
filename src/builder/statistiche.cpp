// The statistics of the play wheels: frequency and delays of every number and pair.

#include "builder/statistiche.h"

#include <algorithm>

namespace gorgo::builder {

StatisticheGioco StatisticheRuoteGioco(const archives::StoriaLotto& storia, const std::array<bool, 12>& ruoteGioco,
                                       int32_t primoPeriodo) {
    StatisticheGioco st;
    const int32_t n = storia.NumeroEstrazioni();
    st.numeroEstrazioni = n;
    const size_t coppie = 91 * 91;
    st.frequenza2.assign(coppie, 0);
    st.ritardo2.assign(coppie, 0);
    st.ritardoMax2.assign(coppie, 0);
    st.ultimaUscita2.assign(coppie, 0);
    std::vector<int> ruote;
    for (int w = 1; w <= archives::NumeroRuote; ++w)
        if (ruoteGioco[static_cast<size_t>(w)]) ruote.push_back(w);
    const auto segna = [&](int32_t i, bool periodo, int32_t& freq, int32_t& rmax, int32_t& ultima) {
        if (periodo) ++freq;
        if (ultima == 0)
            rmax = i - PrimaEstrazioneStatistiche;
        else
            rmax = std::max(rmax, i - ultima - 1);
        ultima = i;
    };
    for (int32_t i = PrimaEstrazioneStatistiche; i <= n; ++i) {
        const bool periodo = i >= primoPeriodo;
        if (periodo) ++st.estrazioni;
        const archives::RecordEstrazione& e = storia[i];
        for (int w : ruote) {
            const uint8_t* x = e.Ruota[w - 1];
            for (int p = 0; p < 5; ++p)
                segna(i, periodo, st.frequenza[x[p]], st.ritardoMax[x[p]], st.ultimaUscita[x[p]]);
            for (int p = 0; p < 4; ++p)
                for (int q = p + 1; q < 5; ++q) {
                    const size_t ab = StatisticheGioco::Indice(x[p], x[q]), ba = StatisticheGioco::Indice(x[q], x[p]);
                    segna(i, periodo, st.frequenza2[ab], st.ritardoMax2[ab], st.ultimaUscita2[ab]);
                    if (ba != ab) {
                        st.frequenza2[ba] = st.frequenza2[ab];
                        st.ritardoMax2[ba] = st.ritardoMax2[ab];
                        st.ultimaUscita2[ba] = st.ultimaUscita2[ab];
                    }
                }
        }
    }
    // A number never out is as late as the draws before the period; a pair, as the period.
    for (size_t k = 0; k <= 90; ++k)
        st.ritardo[k] = st.ultimaUscita[k] == 0 ? n - st.estrazioni : n - st.ultimaUscita[k];
    for (size_t k = 0; k < coppie; ++k)
        st.ritardo2[k] = st.ultimaUscita2[k] == 0 ? st.estrazioni : n - st.ultimaUscita2[k];
    return st;
}

}  // namespace gorgo::builder
