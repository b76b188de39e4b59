#include "automatica_letterale.h"

#include <vector>

#include "ricerca_letterale.h"

namespace gorgo::builder {

namespace {

// The combinations of k wheels of the table, the loops written out by size: for k = 5 the
// first wheel goes to 7, the second to 8 ... the fifth to 11; absent wheels are skipped.
std::vector<std::vector<int>> Combinazioni(const bool ruote[12], int k) {
    std::vector<std::vector<int>> out;
    auto c = [&](int w) { return ruote[w]; };
    if (k == 1)
        for (int a = 1; a <= 11; ++a)
            if (c(a)) out.push_back({a});
    if (k == 2)
        for (int a = 1; a <= 10; ++a)
            if (c(a))
                for (int b = a + 1; b <= 11; ++b)
                    if (c(b)) out.push_back({a, b});
    if (k == 3)
        for (int a = 1; a <= 9; ++a)
            if (c(a))
                for (int b = a + 1; b <= 10; ++b)
                    if (c(b))
                        for (int d = b + 1; d <= 11; ++d)
                            if (c(d)) out.push_back({a, b, d});
    if (k == 4)
        for (int a = 1; a <= 8; ++a)
            if (c(a))
                for (int b = a + 1; b <= 9; ++b)
                    if (c(b))
                        for (int d = b + 1; d <= 10; ++d)
                            if (c(d))
                                for (int e = d + 1; e <= 11; ++e)
                                    if (c(e)) out.push_back({a, b, d, e});
    if (k == 5)
        for (int a = 1; a <= 7; ++a)
            if (c(a))
                for (int b = a + 1; b <= 8; ++b)
                    if (c(b))
                        for (int d = b + 1; d <= 9; ++d)
                            if (c(d))
                                for (int e = d + 1; e <= 10; ++e)
                                    if (c(e))
                                        for (int f = e + 1; f <= 11; ++f)
                                            if (c(f)) out.push_back({a, b, d, e, f});
    return out;
}

std::string Sigle(const std::vector<int>& ruote) {
    static const char* kSigle[] = {"Tu", "BA", "CA", "FI", "GE", "MI", "NA", "PA", "RO", "TO", "VE", "NZ"};
    std::string s;
    for (size_t i = 0; i < ruote.size(); ++i) s += std::string(i ? "-" : "") + kSigle[ruote[i]];
    return s;
}

}  // namespace

EsitoAutomatica RicercaAutomaticaLetterale(const ParametriRicerca& p, const ContestoRicerca& ctx, int r, int g,
                                           const Ricerca& ricerca) {
    EsitoAutomatica esito;
    // The flags of wheels 1..11, then box 0 sets the ten regional ones.
    bool ricercaR[12] = {}, giocoR[12] = {};
    for (int w = 1; w <= 11; ++w) ricercaR[w] = p.ruoteRicerca[w], giocoR[w] = p.ruoteGioco[w];
    if (p.ruoteRicerca[0])
        for (int w = 1; w <= 10; ++w) ricercaR[w] = true;
    if (p.ruoteGioco[0])
        for (int w = 1; w <= 10; ++w) giocoR[w] = true;
    for (const auto& sr : Combinazioni(ricercaR, r))
        for (const auto& sg : Combinazioni(giocoR, g)) {
            ParametriRicerca q = p;
            q.ruoteRicerca.fill(false);
            q.ruoteGioco.fill(false);
            for (int w : sr) q.ruoteRicerca[static_cast<size_t>(w)] = true;
            for (int w : sg) q.ruoteGioco[static_cast<size_t>(w)] = true;
            const EsitoRicerca e = ricerca ? ricerca(q, ctx) : CercaAlgoritmiLetterale(q, ctx);
            ++esito.corse;
            ++esito.fatte;
            if (!e.errore.vuoto()) {
                esito.errore = e.errore;
                return esito;
            }
            if (!e.righe.empty()) esito.righe.push_back({e.righe.front(), sr, sg, Sigle(sr), Sigle(sg)});
        }
    return esito;
}

}  // namespace gorgo::builder
