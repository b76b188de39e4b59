// Ambi body: two one-number rules on two cells of different wheels, every pair of
// constants, nine pairs of operations. The heaviest search of the builder.
//
// The literal tables (nine pairs of 55 x 46 x 55 x 46 counters) would take some 460 MB.
// Here the first cell A is the outer loop, as in the emission: the tables of one A
// (nine rules x 56 second cells x 45 x 45 constants) are filled over all cases, in
// parallel over (rule, second constant), emitted, and reused for the next A.

#include <tbb/parallel_for.h>
#include <algorithm>
#include <array>
#include <memory>

#include "builder/corpo_ambi.h"

namespace gorgo::builder::interno {

namespace {

constexpr int kRegole = 9;
// Operation on B (first rule) and on A (second rule), in the order of the rules.
constexpr Operazione kOpB[kRegole] = {Operazione::Piu,  Operazione::Piu,  Operazione::Piu,
                                      Operazione::Meno, Operazione::Meno, Operazione::Per,
                                      Operazione::Per,  Operazione::Meno, Operazione::Per};
constexpr Operazione kOpA[kRegole] = {Operazione::Piu,  Operazione::Meno, Operazione::Per,
                                      Operazione::Meno, Operazione::Per,  Operazione::Per,
                                      Operazione::Meno, Operazione::Piu,  Operazione::Piu};
// Each operation tries 45 constants: "+" 0..44, "-" and "x" 1..45.
constexpr int PrimaCostante(Operazione op) { return op == Operazione::Piu ? 0 : 1; }
constexpr int kCostanti = 45;

// Scores of one first cell: [regola][B][j2][j1], j1 and j2 the constants' places (below).
struct TabelleA {
    static constexpr size_t kPerRegola = 56 * kCostanti * kCostanti;
    std::vector<int32_t> Q, H;
    TabelleA() : Q(kRegole * kPerRegola), H(kRegole * kPerRegola) {}
    static size_t Indice(int regola, int b, int j2, int j1) {
        return ((static_cast<size_t>(regola) * 56 + static_cast<size_t>(b)) * kCostanti + static_cast<size_t>(j2)) *
                   kCostanti +
               static_cast<size_t>(j1);
    }
};

// Constants by place: "+" tries 0..44 at places 0..44, "x" 1..45 at 0..44, and "-"
// 1..45 stored backwards (k1 = 45 - j1) so that its results run upward like those of "+".
int CostanteA(Operazione op, int j2) { return j2 + PrimaCostante(op); }

// x = op(xb, k1) for each place j1, as indices into a row of 91.
struct TabellaRisultatiB {
    std::array<std::array<uint8_t, kCostanti>, 91> per{};  // "x"
    TabellaRisultatiB() {
        for (int xb = 0; xb <= 90; ++xb)
            for (int j = 0; j < kCostanti; ++j)
                per[static_cast<size_t>(xb)][static_cast<size_t>(j)] = static_cast<uint8_t>(OperaPer(xb, j + 1));
    }
};
const TabellaRisultatiB& RisultatiPer() {
    static const TabellaRisultatiB t;
    return t;
}

// Adds row[x(j1)] for j1 = 0..44 where x runs upward from `inizio` and wraps past 90.
template <typename T>
inline void SommaSegmento(int32_t* __restrict q, int32_t* __restrict h, const T* __restrict riga, int inizio) {
    int j = 0;
    int x = inizio;
    const int primo = std::min(kCostanti, 91 - x);  // places before the wrap
    for (; j < primo; ++j) {
        const int v = riga[x + j];
        q[j] += v;
        h[j] += v > 0;
    }
    const int base = x - 90;
    for (; j < kCostanti; ++j) {
        const int v = riga[base + j];
        q[j] += v;
        h[j] += v > 0;
    }
}

template <typename T>
inline void SommaPer(int32_t* __restrict q, int32_t* __restrict h, const T* __restrict riga,
                     const uint8_t* __restrict indici) {
    for (int j = 0; j < kCostanti; ++j) {
        const int v = riga[indici[j]];
        q[j] += v;
        h[j] += v > 0;
    }
}

// Per case: the 55 numbers and the pair matrix as full rows (row y holds the pair {x, y}
// at x; at x = y the pair {y, Vertibile(y)}, since equal results turn the second into it).
// A pair comes out at most once a wheel a draw, so with colpi x play wheels below 256 the
// counts fit a byte: half the memory when the cases run to thousands.
template <typename T>
struct CasoAmbi {
    std::array<uint8_t, 56> qe{};
    std::vector<T> righe;  // 91 x 91
};

template <typename T>
CasoAmbi<T> PreparaCaso(const Preparata& r, const Caso& c) {
    CasoAmbi<T> ca;
    for (int cella = 1; cella <= 55; ++cella) ca.qe[static_cast<size_t>(cella)] = c.numero(cella);
    std::vector<int16_t> coppie(91 * 91, 0);
    RiempiFinestraCoppie(r, c, coppie.data(), false);
    ca.righe.assign(91 * 91, 0);
    for (int y = 1; y <= 90; ++y)
        for (int x = 1; x <= 90; ++x) {
            const int a = x == y ? std::min(y, Vertibile(y)) : std::min(x, y);
            const int b = x == y ? std::max(y, Vertibile(y)) : std::max(x, y);
            ca.righe[static_cast<size_t>(y * 91 + x)] = static_cast<T>(coppie[static_cast<size_t>(a + b * 91)]);
        }
    return ca;
}

struct Forma {
    int regola, b, k1, k2;
};

}  // namespace

bool CinquinaPiena(const archives::RecordEstrazione& e, int ruota, std::array<int, 5>& n, bool ordina) {
    for (int p = 0; p < 5; ++p) {
        n[static_cast<size_t>(p)] = e.Ruota[ruota - 1][p];
        if (n[static_cast<size_t>(p)] == 0) return false;
    }
    if (ordina) std::sort(n.begin(), n.end());
    return true;
}

void RiempiFinestraCoppie(const Preparata& r, const Caso& c, int16_t* coppie, bool ordina) {
    for (int32_t d = c.indice + 1; d <= c.fineFinestra; ++d) {
        const archives::RecordEstrazione& e = (*r.storia)[d];
        for (int w : r.ruoteGioco) {
            std::array<int, 5> n;
            if (!CinquinaPiena(e, w, n, ordina)) continue;
            for (int i = 0; i < 4; ++i)
                for (int j = i + 1; j < 5; ++j) {
                    const int a = std::min(n[static_cast<size_t>(i)], n[static_cast<size_t>(j)]);
                    const int b = std::max(n[static_cast<size_t>(i)], n[static_cast<size_t>(j)]);
                    ++coppie[a + b * 91];
                }
        }
    }
}

int SogliaPerCasi(int casi) {
    if (casi <= 5) return 1;
    if (casi <= 15) return 2;
    if (casi <= 50) return 3;
    if (casi <= 100) return 5;
    if (casi <= 120) return 7;
    return 9;
}

int CrescitaSoglia(int righe, int indiceMese) {
    if (righe <= 1000) return 0;
    if (righe <= 10000) return 1;
    return indiceMese == 22 ? 2 : 1;
}

namespace {

template <typename T>
RisultatoValore CorpoAmbiT(const Preparata& r, const Spia& spia, const std::vector<Caso>& casi) {
    RisultatoValore out;
    const ParametriRicerca& p = *r.p;
    const bool soloPosizione = p.soloPosizione || p.tipoSpia == TipoSpia::Ambo;  // "Ambi (posiz. q.e.)"

    std::vector<CasoAmbi<T>> dati(casi.size());
    tbb::parallel_for(size_t{0}, casi.size(), [&](size_t k) { dati[k] = PreparaCaso<T>(r, casi[k]); });

    int soglia = p.indiceMese != 22 ? 2 : SogliaPerCasi(static_cast<int>(casi.size()));
    const CodaChiave coda = CodaPer(r, spia, casi);
    const std::string testoSpia = TestoSpia(r, spia);
    auto tab = std::make_unique<TabelleA>();
    std::vector<Candidato> scelti;  // ListaRisultati of this value
    std::vector<Forma> formeScelte;
    std::vector<int> celleScelte;
    const auto& per = RisultatiPer();

    // Scoring and emission go together, a first cell at a time: the emission's progress,
    // "Ordinamento risultati " with the value, over the 55 first cells.
    const std::string testoAvanzamento = "Ordinamento risultati " + testoSpia + "...";
    for (int a = 1; a <= 55; ++a) {
        if (r.fermata()) break;
        if (r.avanzamento && r.avanzamento->progresso) r.avanzamento->progresso(testoAvanzamento, a - 1, 55);
        const int wa = RuotaDiCella(a);
        const int primoB = wa * 5 + 1;  // later wheels only
        if (primoB > 55) break;
        std::fill(tab->Q.begin(), tab->Q.end(), 0);
        std::fill(tab->H.begin(), tab->H.end(), 0);
        if (soloPosizione) {
            for (const CasoAmbi<T>& ca : dati)
                for (int b = primoB; b <= 55; ++b) {
                    const int xb = ca.qe[static_cast<size_t>(b)];
                    if (xb == 0) continue;
                    const int v = ca.righe[static_cast<size_t>(ca.qe[static_cast<size_t>(a)] * 91 + xb)];
                    const size_t i = TabelleA::Indice(0, b, 0, 0);
                    tab->Q[i] += v;
                    tab->H[i] += v > 0;
                }
        } else {
            tbb::parallel_for(0, kRegole * kCostanti, [&](int compito) {
                if (r.fermata()) return;
                const int regola = compito / kCostanti, j2 = compito % kCostanti;
                const Operazione opA = kOpA[regola], opB = kOpB[regola];
                const int k2 = CostanteA(opA, j2);
                for (const CasoAmbi<T>& ca : dati) {
                    const int y = Opera(opA, ca.qe[static_cast<size_t>(a)], k2);
                    if (y == 0) continue;  // an empty A with "+ 0": no pair can hold 0
                    const T* riga = &ca.righe[static_cast<size_t>(y * 91)];
                    for (int b = primoB; b <= 55; ++b) {
                        const int xb = ca.qe[static_cast<size_t>(b)];
                        if (xb == 0) continue;
                        const size_t i = TabelleA::Indice(regola, b, j2, 0);
                        int32_t* q = &tab->Q[i];
                        int32_t* h = &tab->H[i];
                        if (opB == Operazione::Piu)
                            SommaSegmento(q, h, riga, xb);
                        else if (opB == Operazione::Meno)
                            SommaSegmento(q, h, riga, xb + kCostanti > 90 ? xb + kCostanti - 90 : xb + kCostanti);
                        else
                            SommaPer(q, h, riga, per.per[static_cast<size_t>(xb)].data());
                    }
                }
            });
        }

        // Emission for this first cell: B, then k1, then k2, then the rules, as scored.
        std::vector<Candidato> lista;
        std::vector<Forma> forme;
        auto prova = [&](int regola, int b, int k1, int k2, size_t i) {
            if (tab->Q[i] <= soglia) return;
            lista.push_back({tab->H[i], tab->Q[i], lista.size()});
            forme.push_back({regola, b, k1, k2});
        };
        for (int b = primoB; b <= 55; ++b) {
            if (soloPosizione) {
                prova(0, b, 0, 0, TabelleA::Indice(0, b, 0, 0));
                continue;
            }
            for (int k1 = 0; k1 <= 45; ++k1)
                for (int k2 = 0; k2 <= 45; ++k2)
                    for (int regola = 0; regola < kRegole; ++regola) {
                        const Operazione opB = kOpB[regola], opA = kOpA[regola];
                        const int j1 = opB == Operazione::Piu ? k1 : opB == Operazione::Meno ? kCostanti - k1 : k1 - 1;
                        const int j2 = k2 - PrimaCostante(opA);
                        if (j1 < 0 || j1 >= kCostanti || j2 < 0 || j2 >= kCostanti) continue;
                        prova(regola, b, k1, k2, TabelleA::Indice(regola, b, j2, j1));
                    }
        }
        const int righe = static_cast<int>(lista.size());
        soglia += CrescitaSoglia(righe, p.indiceMese);
        if (righe == 0) continue;
        const size_t quante = p.modoSpia == ModoSpia::Fisso && !r.tuttiIValori ? std::min<size_t>(lista.size(), 15) : 1;
        const std::vector<size_t> ordine = OrdinaTesta(lista, quante).indici;
        for (size_t i = 0; i < quante; ++i) {
            Candidato c = lista[ordine[i]];
            c.ordine = scelti.size();
            scelti.push_back(c);
            formeScelte.push_back(forme[ordine[i]]);
            celleScelte.push_back(a);
        }
    }

    if (!r.fermata() && r.avanzamento && r.avanzamento->progresso) r.avanzamento->progresso(testoAvanzamento, 55, 55);

    // "Tutti i numeri": only the best row of the value stands.
    std::vector<size_t> tenute(scelti.size());
    for (size_t i = 0; i < tenute.size(); ++i) tenute[i] = i;
    if (r.tuttiIValori && !tenute.empty()) {
        const auto migliore = std::min_element(tenute.begin(), tenute.end(),
                                               [&](size_t x, size_t y) { return Prima(scelti[x], scelti[y]); });
        tenute = {*migliore};
    }
    for (size_t i : tenute) {
        const Forma& f = formeScelte[i];
        const int a = celleScelte[i];
        RigaAlgoritmo riga;
        const Operazione opB = soloPosizione ? Operazione::Piu : kOpB[f.regola];
        const Operazione opA = soloPosizione ? Operazione::Piu : kOpA[f.regola];
        riga.descrizione = DescrizioneAmbi(f.b, opB, f.k1, a, opA, f.k2, soloPosizione);
        riga.chiave = ChiaveAmbi(f.b, opB, f.k1, a, opA, f.k2, coda);
        riga.sortite = static_cast<int>(casi.size());
        riga.presenze = scelti[i].presenze;
        riga.quantita = scelti[i].quantita;
        riga.testoSpia = testoSpia;
        out.righe.push_back(std::move(riga));
    }
    return out;
}

}  // namespace

RisultatoValore CorpoAmbi(const Preparata& r, const Spia& spia, const std::vector<Caso>& casi) {
    if (casi.empty()) return {};
    const size_t massimo = static_cast<size_t>(r.p->colpi) * r.ruoteGioco.size();
    return massimo <= 255 ? CorpoAmbiT<uint8_t>(r, spia, casi) : CorpoAmbiT<int16_t>(r, spia, casi);
}

}  // namespace gorgo::builder::interno
