// Coverage: the matrix of first hits, the group search over bitsets of cases, and the
// attribution of the cases to the group and then to the others.

#include "builder/copertura.h"

#include <bit>
#include <fmt/format.h>
#include <tbb/parallel_for.h>
#include <algorithm>
#include <atomic>
#include <mutex>

#include "builder/chiavi.h"
#include "builder/parametri.h"
#include "config/formato.h"

namespace gorgo::builder {

namespace {

TipoRicerca TipoAlgoritmi(TipoCopertura tipo, const ParametriRicerca& p) {
    switch (tipo) {
        case TipoCopertura::Ambo: return TipoRicerca::Ambi;
        case TipoCopertura::Terzine:
            return p.tipoRicerca == TipoRicerca::TerzineAmbo ? p.tipoRicerca : TipoRicerca::TerzineTerno;
        case TipoCopertura::Codici: return TipoRicerca::Codici;
        default: return TipoRicerca::Ambate;
    }
}

// How many numbers of one wheel make a hit, and whether the count must be exact.
int Soglia(TipoCopertura tipo, const ParametriRicerca& p) {
    switch (tipo) {
        case TipoCopertura::Ambo: return 2;
        case TipoCopertura::Terzine: return p.tipoRicerca == TipoRicerca::TerzineAmbo ? 2 : 3;
        case TipoCopertura::Codici: return p.sorte;
        default: return 1;
    }
}

std::string TestoNumeri(const std::vector<int>& numeri) {
    std::string s;
    for (size_t i = 0; i < numeri.size(); ++i) {
        if (i) s += '-';
        s += fmt::format("{:>2}", numeri[i]);
    }
    return s;
}

std::string Percento(int parte, int tutto) {
    return config::AllineaDestra(config::Formato(parte * 100.0 / tutto, "0.0"), 5);
}

// ---- the group search: each algorithm is the set of cases it covers, W words of 64 cases ----

struct Coperture {
    int casi = 0, algoritmi = 0;
    size_t parole = 0;
    std::vector<uint64_t> bit;  // algoritmi * parole
    std::vector<int> conta;     // popcount of each row

    const uint64_t* riga(int a) const { return bit.data() + static_cast<size_t>(a) * parole; }
};

Coperture FaiCoperture(const MatriceCopertura& m, int algoritmi) {
    Coperture c;
    c.casi = m.casi;
    c.algoritmi = algoritmi;
    c.parole = (static_cast<size_t>(m.casi) + 63) / 64;
    c.bit.assign(c.parole * static_cast<size_t>(algoritmi), 0);
    c.conta.assign(static_cast<size_t>(algoritmi), 0);
    for (int a = 0; a < algoritmi; ++a) {
        uint64_t* r = c.bit.data() + static_cast<size_t>(a) * c.parole;
        for (int k = 0; k < m.casi; ++k)
            if (m.colpo(k, a) > 0) r[k / 64] |= uint64_t{1} << (k % 64);
        for (size_t w = 0; w < c.parole; ++w) c.conta[static_cast<size_t>(a)] += std::popcount(r[w]);
    }
    return c;
}

template <size_t W>
int Unisci(const uint64_t* a, const uint64_t* b, uint64_t* out, size_t parole) {
    const size_t n = W ? W : parole;
    int k = 0;
    for (size_t i = 0; i < n; ++i) {
        out[i] = a[i] | b[i];
        k += std::popcount(out[i]);
    }
    return k;
}
template <size_t W>
int ContaUnione(const uint64_t* a, const uint64_t* b, size_t parole) {
    const size_t n = W ? W : parole;
    int k = 0;
    for (size_t i = 0; i < n; ++i) k += std::popcount(a[i] | b[i]);
    return k;
}

// The first group of `dimensione` (2..4) columns, in index order, covering every case.
template <size_t W>
bool PrimaCoperturaPiena(const Coperture& c, int dimensione, std::vector<int>& gruppo, std::stop_token stop,
                         bool& fermato) {
    const int n = c.algoritmi;
    if (n < dimensione) return false;
    const size_t P = c.parole;
    std::atomic<int> migliore{n};  // lowest first index with a full cover
    std::mutex mx;
    std::vector<int> trovato;
    std::atomic<bool> ferma{false};
    tbb::parallel_for(0, n - dimensione + 1, [&](int i1) {
        if (i1 > migliore.load() || ferma.load()) return;
        if (stop.stop_requested()) {
            ferma = true;
            return;
        }
        std::vector<uint64_t> acc(P * 4);
        std::copy_n(c.riga(i1), P, acc.data());
        int idx[5] = {i1, 0, 0, 0, 0};
        // Depth-first walk in index order; level l holds the union of the first l + 1 members.
        auto cerca = [&](auto&& self, int livello, int da, int contati) -> bool {
            if (livello > 4) return false;  // never reached: a group has at most five members
            const uint64_t* prima = acc.data() + static_cast<size_t>(livello - 1) * P;
            const int resto = dimensione - livello;  // members still to choose, this one included
            for (int j = da; j <= n - resto; ++j) {
                if (resto == 1) {
                    if (contati + c.conta[static_cast<size_t>(j)] < c.casi) continue;
                    if (ContaUnione<W>(prima, c.riga(j), P) == c.casi) {
                        idx[livello] = j;
                        return true;
                    }
                } else {
                    const int k = Unisci<W>(prima, c.riga(j), acc.data() + static_cast<size_t>(livello) * P, P);
                    idx[livello] = j;
                    if (self(self, livello + 1, j + 1, k)) return true;
                }
            }
            return false;
        };
        if (!cerca(cerca, 1, i1 + 1, c.conta[static_cast<size_t>(i1)])) return;
        std::lock_guard lock(mx);
        if (i1 < migliore.load()) {
            migliore = i1;
            trovato.assign(idx, idx + dimensione);
        }
    });
    if (ferma) {
        fermato = true;
        return false;
    }
    if (trovato.empty()) return false;
    gruppo = trovato;
    return true;
}

// The quintuples: the best count, the lowest group in index order among the best; the walk
// ends at the first group that covers every case.
template <size_t W>
void MiglioriCinque(const Coperture& c, GruppoCopertura& g, std::stop_token stop) {
    const int n = c.algoritmi;
    if (n < 5) return;
    const size_t P = c.parole;
    struct Migliore {
        int conta = 0;
        std::array<int, 5> idx{};
        bool valido = false;
    };
    std::vector<Migliore> perPrimo(static_cast<size_t>(n));
    // No group covers more than all the columns together: a group that reaches it can no
    // longer be beaten, and the walk ends there as it does at a full cover.
    int tetto = 0;
    {
        std::vector<uint64_t> tutte(P, 0);
        for (int a = 0; a < n; ++a)
            for (size_t w = 0; w < P; ++w) tutte[w] |= c.riga(a)[w];
        for (uint64_t x : tutte) tetto += std::popcount(x);
    }
    // The most cases one column covers from index i on: bounds for the members still to come.
    std::vector<int> dopo(static_cast<size_t>(n) + 1, 0);
    for (int a = n - 1; a >= 0; --a)
        dopo[static_cast<size_t>(a)] = std::max(dopo[static_cast<size_t>(a) + 1], c.conta[static_cast<size_t>(a)]);
    auto resto = [&](int da) { return dopo[static_cast<size_t>(da)]; };
    std::atomic<int> pieno{n};  // lowest first index whose best reached the ceiling
    std::atomic<bool> ferma{false};
    tbb::parallel_for(0, n - 4, [&](int i1) {
        if (i1 > pieno.load() || ferma.load()) return;
        if (stop.stop_requested()) {
            ferma = true;
            return;
        }
        Migliore& m = perPrimo[static_cast<size_t>(i1)];
        std::vector<uint64_t> a2(P), a3(P), a4(P);
        const uint64_t* r1 = c.riga(i1);
        // Only a strictly better count replaces the best, which starts at none; a branch
        // whose bound cannot beat it is skipped.
        for (int i2 = i1 + 1; i2 < n - 3; ++i2) {
            const int k2 = Unisci<W>(r1, c.riga(i2), a2.data(), P);
            if (k2 + 3 * resto(i2 + 1) <= m.conta) continue;
            for (int i3 = i2 + 1; i3 < n - 2; ++i3) {
                if (k2 + c.conta[static_cast<size_t>(i3)] + 2 * resto(i3 + 1) <= m.conta) continue;
                const int k3 = Unisci<W>(a2.data(), c.riga(i3), a3.data(), P);
                if (k3 + 2 * resto(i3 + 1) <= m.conta) continue;
                for (int i4 = i3 + 1; i4 < n - 1; ++i4) {
                    if (k3 + c.conta[static_cast<size_t>(i4)] + resto(i4 + 1) <= m.conta) continue;
                    const int k4 = Unisci<W>(a3.data(), c.riga(i4), a4.data(), P);
                    if (k4 + resto(i4 + 1) <= m.conta) continue;
                    for (int i5 = i4 + 1; i5 < n; ++i5) {
                        if (k4 + c.conta[static_cast<size_t>(i5)] <= m.conta) continue;
                        const int k = ContaUnione<W>(a4.data(), c.riga(i5), P);
                        if (k > m.conta) {
                            m = {k, {i1, i2, i3, i4, i5}, true};
                            if (k == tetto) {
                                int atteso = pieno.load();
                                while (i1 < atteso && !pieno.compare_exchange_weak(atteso, i1)) {}
                                return;
                            }
                        }
                    }
                }
            }
        }
    });
    if (ferma) {
        g.fermato = true;
        return;
    }
    const Migliore* best = nullptr;
    for (int i1 = 0; i1 <= std::min(pieno.load(), n - 5); ++i1) {
        const Migliore& m = perPrimo[static_cast<size_t>(i1)];
        if (m.valido && (!best || m.conta > best->conta)) best = &m;
    }
    if (!best) return;
    g.membri.assign(best->idx.begin(), best->idx.end());
    g.coperti = best->conta;
}

template <size_t W>
GruppoCopertura Cerca(const Coperture& c, std::stop_token stop) {
    GruppoCopertura g;
    for (int a = 0; a < c.algoritmi; ++a)
        if (c.conta[static_cast<size_t>(a)] == c.casi) {
            g.membri = {a};
            g.coperti = c.casi;
            return g;
        }
    for (int d = 2; d <= 4; ++d) {
        if (PrimaCoperturaPiena<W>(c, d, g.membri, stop, g.fermato)) {
            g.coperti = c.casi;
            return g;
        }
        if (g.fermato) return g;
    }
    MiglioriCinque<W>(c, g, stop);
    return g;
}

}  // namespace

MatriceCopertura CalcolaMatrice(const ParametriRicerca& p, const ContestoRicerca& ctx, std::span<const CasoSpia> casi,
                                std::span<const RigaAlgoritmo> algoritmi, TipoCopertura tipo) {
    const archives::StoriaLotto& s = *ctx.storia;
    MatriceCopertura m;
    m.casi = static_cast<int>(casi.size());
    m.algoritmi = static_cast<int>(algoritmi.size());
    m.colpi.assign(casi.size() * algoritmi.size(), 0);
    m.numeri.assign(casi.size() * algoritmi.size(), {});
    const std::array<bool, 12> gioco = RuoteScelte(p.ruoteGioco);
    const TipoRicerca tipoAlg = TipoAlgoritmi(tipo, p);
    const int soglia = Soglia(tipo, p);
    const bool esatta = tipo == TipoCopertura::Ambo;
    const int32_t ultima = s.NumeroEstrazioni();
    tbb::parallel_for(size_t{0}, casi.size(), [&](size_t k) {
        const int32_t i = casi[k].indice;
        for (size_t a = 0; a < algoritmi.size(); ++a) {
            const size_t e = k * algoritmi.size() + a;
            m.numeri[e] = NumeriAlgoritmo(algoritmi[a].chiave, tipoAlg, s[i], ctx.terzine).numeri;
            const std::vector<int>& x = m.numeri[e];
            if (x.empty()) continue;
            bool preso = false;
            for (int32_t d = i + 1; d <= std::min(i + p.colpi, ultima) && !preso; ++d) {
                const archives::RecordEstrazione& r = s[d];
                for (int w = 1; w <= archives::NumeroRuote && !preso; ++w) {
                    if (!gioco[static_cast<size_t>(w)]) continue;
                    int uguali = 0;
                    for (int pos = 0; pos < 5; ++pos)
                        if (std::find(x.begin(), x.end(), r.Ruota[w - 1][pos]) != x.end()) ++uguali;
                    if (esatta ? uguali == soglia : uguali >= soglia) {
                        m.colpi[e] = static_cast<uint16_t>(d - i);
                        preso = true;
                    }
                }
            }
        }
    });
    return m;
}

GruppoCopertura CercaGruppo(const MatriceCopertura& m, std::stop_token stop) {
    if (m.casi == 0 || m.algoritmi == 0) return {};
    const Coperture c = FaiCoperture(m, std::min(m.algoritmi, MassimoAlgoritmiGruppo));
    switch (c.parole) {
        case 1: return Cerca<1>(c, stop);
        case 2: return Cerca<2>(c, stop);
        case 3: return Cerca<3>(c, stop);
        case 4: return Cerca<4>(c, stop);
        case 6: return Cerca<6>(c, stop);
        case 8: return Cerca<8>(c, stop);
        case 12: return Cerca<12>(c, stop);
        case 16: return Cerca<16>(c, stop);
        default: return Cerca<0>(c, stop);
    }
}

std::string TitoloCopertura(TipoCopertura tipo) {
    switch (tipo) {
        case TipoCopertura::Ambata: return "Dettaglio copertura per ambata";
        case TipoCopertura::DueAmbate: return "Dettaglio copertura per doppia ambata";
        case TipoCopertura::TreAmbate: return "Dettaglio copertura per tripla ambata";
        case TipoCopertura::Ambo: return " Copertura per ambo";
        case TipoCopertura::Codici: return " Copertura codici Tordelli";
        case TipoCopertura::Terzine: return " Copertura terzine per ambo";
    }
    return {};
}

EsitoCopertura CompletaCopertura(const MatriceCopertura& m, std::span<const CasoSpia> casi,
                                 std::span<const RigaAlgoritmo> algoritmi, TipoCopertura tipo,
                                 const std::vector<int>& gruppo) {
    EsitoCopertura e;
    e.tipo = tipo;
    e.titolo = TitoloCopertura(tipo);
    e.gruppo = gruppo;
    e.casi = m.casi;
    e.gruppiColonne = tipo == TipoCopertura::DueAmbate ? 2 : tipo == TipoCopertura::TreAmbate ? 3 : 1;
    if (m.casi == 0) return e;
    std::vector<int> sortite(static_cast<size_t>(m.algoritmi), 0);
    auto numeri = [&](int k, int a) -> const std::vector<int>& {
        return m.numeri[static_cast<size_t>(k) * static_cast<size_t>(m.algoritmi) + static_cast<size_t>(a)];
    };
    auto metti = [&](RigaCopertura& r, int g, int a) {
        ColonneCopertura& c = r.gruppi[static_cast<size_t>(g)];
        c.algoritmo = a;
        c.descrizione = algoritmi[static_cast<size_t>(a)].descrizione;
        c.previsione = TestoNumeri(numeri(r.caso, a));
        c.colpo = fmt::format("{:>2}", m.colpo(r.caso, a));
        if (g == 0) {
            r.chiave = algoritmi[static_cast<size_t>(a)].chiave;
            r.colpo = m.colpo(r.caso, a);
            ++sortite[static_cast<size_t>(a)];
        }
    };
    for (int k = 0; k < m.casi; ++k) {
        RigaCopertura r;
        r.caso = k;
        r.data = casi[static_cast<size_t>(k)].data;
        r.testoRiga = fmt::format("{:>5}", k + 1);
        for (int a : gruppo)
            if (m.colpo(k, a) > 0) {
                metti(r, 0, a);
                r.dalGruppo = true;
                ++e.coperti;
                break;
            }
        if (!r.dalGruppo) r.gruppi[0] = {-1, "--", "--", "-"};
        e.righe.push_back(std::move(r));
    }
    // The cases the group left: the first other algorithm that hits takes them.
    if (e.coperti < m.casi)
        for (RigaCopertura& r : e.righe) {
            if (r.dalGruppo) continue;
            for (int a = 0; a < m.algoritmi; ++a)
                if (std::find(gruppo.begin(), gruppo.end(), a) == gruppo.end() && m.colpo(r.caso, a) > 0) {
                    metti(r, 0, a);
                    break;
                }
        }
    // Two and three ambate: the next algorithms of another description that hit the case.
    for (int g = 1; g < e.gruppiColonne; ++g)
        for (RigaCopertura& r : e.righe)
            for (int a = 0; a < m.algoritmi; ++a) {
                if (m.colpo(r.caso, a) == 0) continue;
                const std::string& d = algoritmi[static_cast<size_t>(a)].descrizione;
                bool nuova = true;
                for (int h = 0; h < g; ++h) nuova = nuova && r.gruppi[static_cast<size_t>(h)].descrizione != d;
                if (nuova) {
                    metti(r, g, a);
                    break;
                }
            }
    for (int a = 0; a < m.algoritmi; ++a) {
        const int n = sortite[static_cast<size_t>(a)];
        if (n == 0) continue;
        RiepilogoCopertura x;
        x.algoritmo = a;
        x.descrizione = algoritmi[static_cast<size_t>(a)].descrizione;
        x.sortite = n;
        x.testoSortite = fmt::format("{:>4}", n);
        x.testoPercentuale = Percento(n, m.casi) + " %";
        x.previsione = TestoNumeri(numeri(0, a));
        e.riepilogo.push_back(std::move(x));
    }
    e.totale = fmt::format("Copertura: {} casi su {}  ({} %)", e.coperti, m.casi, Percento(e.coperti, m.casi));
    int somma = 0, presi = 0;
    for (const RigaCopertura& r : e.righe)
        if (r.colpo > 0) somma += r.colpo, ++presi;
    if (presi > 0) e.attesaMedia = config::Formato(static_cast<double>(somma) / presi, "0.0") + " colpi";
    return e;
}

EsitoCopertura CalcolaCopertura(const ParametriRicerca& p, const ContestoRicerca& ctx, std::span<const CasoSpia> casi,
                                std::span<const RigaAlgoritmo> righe, TipoCopertura tipo, std::stop_token stop) {
    std::vector<RigaAlgoritmo> scelte;
    for (const RigaAlgoritmo& r : righe)
        if (r.selezionata) scelte.push_back(r);
    if (scelte.empty()) {
        EsitoCopertura e;
        e.tipo = tipo;
        e.errore = {std::string(NessunAlgoritmnoSelezionato), "Errore", archives::Icona::Esclamazione};
        return e;
    }
    const MatriceCopertura m = CalcolaMatrice(p, ctx, casi, scelte, tipo);
    const GruppoCopertura g = CercaGruppo(m, stop);
    if (g.fermato) {
        EsitoCopertura e;
        e.tipo = tipo;
        e.titolo = TitoloCopertura(tipo);
        e.fermata = true;
        return e;
    }
    return CompletaCopertura(m, casi, scelte, tipo, g.membri);
}

}  // namespace gorgo::builder
