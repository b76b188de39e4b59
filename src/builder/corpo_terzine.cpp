// Terzine body: three cells of the draw, scored on the pairs ("Terzine x ambo") or on the
// triples ("Terzine x terno") of the window.

#include <tbb/enumerable_thread_specific.h>
#include <tbb/parallel_for.h>
#include <algorithm>
#include <array>
#include <memory>

#include "builder/corpo_terzine.h"

namespace gorgo::builder::interno {

namespace {

constexpr int kTerne = 55 * 54 * 53 / 6;  // cells i < j < k

struct Punteggi {
    std::vector<int32_t> H = std::vector<int32_t>(kTerne), Q = std::vector<int32_t>(kTerne);
};

// Windows of one thread: pair and triple counts, cleared after each case where they were set.
struct Finestre {
    std::vector<int16_t> coppie = std::vector<int16_t>(91 * 91);
    std::vector<int16_t> terne = std::vector<int16_t>(91 * 91 * 91);
    std::vector<int32_t> segnate;
};

inline size_t IndiceTerna(int a, int b, int c) { return static_cast<size_t>(a + (b + c * 91) * 91); }

void RiempiTerne(const Preparata& r, const Caso& c, Finestre& f) {
    for (int32_t d = c.indice + 1; d <= c.fineFinestra; ++d) {
        const archives::RecordEstrazione& e = (*r.storia)[d];
        for (int w : r.ruoteGioco) {
            std::array<int, 5> n;
            if (!CinquinaPiena(e, w, n, true)) continue;
            for (int i = 0; i < 3; ++i)
                for (int j = i + 1; j < 4; ++j)
                    for (int k = j + 1; k < 5; ++k) {
                        const size_t t = IndiceTerna(n[static_cast<size_t>(i)], n[static_cast<size_t>(j)],
                                                     n[static_cast<size_t>(k)]);
                        if (f.terne[t]++ == 0) f.segnate.push_back(static_cast<int32_t>(t));
                    }
        }
    }
}

void Segna(const Preparata& r, const Caso& c, Finestre& f, Punteggi& s, bool perTerno) {
    std::array<uint8_t, 56> qe{};
    for (int cella = 1; cella <= 55; ++cella) qe[static_cast<size_t>(cella)] = c.numero(cella);
    if (perTerno)
        RiempiTerne(r, c, f);
    else
        RiempiFinestraCoppie(r, c, f.coppie.data(), true);
    const int16_t* coppie = f.coppie.data();
    size_t t = 0;
    for (int i = 1; i <= 53; ++i)
        for (int j = i + 1; j <= 54; ++j)
            for (int k = j + 1; k <= 55; ++k, ++t) {
                std::array<int, 3> n = {qe[static_cast<size_t>(i)], qe[static_cast<size_t>(j)],
                                        qe[static_cast<size_t>(k)]};
                if (n[0] > n[1]) std::swap(n[0], n[1]);
                if (n[1] > n[2]) std::swap(n[1], n[2]);
                if (n[0] > n[1]) std::swap(n[0], n[1]);
                if (perTerno) {
                    const int v = f.terne[IndiceTerna(n[0], n[1], n[2])];
                    if (v > 0) {
                        ++s.H[t];
                        s.Q[t] += v;
                    }
                } else {
                    const int v1 = coppie[n[0] + n[1] * 91], v2 = coppie[n[0] + n[2] * 91],
                              v3 = coppie[n[1] + n[2] * 91];
                    if (v1 > 0 || v2 > 0 || v3 > 0) {
                        ++s.H[t];
                        s.Q[t] += v1 + v2 + v3;
                    }
                }
            }
    if (perTerno) {
        for (int32_t x : f.segnate) f.terne[static_cast<size_t>(x)] = 0;
        f.segnate.clear();
    } else {
        std::fill(f.coppie.begin(), f.coppie.end(), 0);
    }
}

}  // namespace

size_t SelezioneQuindici(const std::vector<Candidato>& ordinata, size_t righe, bool soloPari) {
    const size_t n = std::min<size_t>(righe, 15);
    if (!soloPari || n == 0) return n;
    size_t k = 1;
    while (k < n && StessoTesto(ordinata[k], ordinata[0])) ++k;
    return k;
}

RisultatoValore CorpoTerzine(const Preparata& r, const Spia& spia, const std::vector<Caso>& casi, int& soglia) {
    RisultatoValore out;
    const ParametriRicerca& p = *r.p;
    const bool perTerno = p.tipoRicerca == TipoRicerca::TerzineTerno;
    const int C = static_cast<int>(casi.size());
    if (!perTerno)
        soglia = p.indiceMese != 22 ? 2 : SogliaPerCasi(C);
    else if (p.indiceMese == 22)
        soglia = 1;
    if (casi.empty()) return out;

    tbb::enumerable_thread_specific<std::unique_ptr<Finestre>> finestre([] { return std::make_unique<Finestre>(); });
    tbb::enumerable_thread_specific<std::unique_ptr<Punteggi>> locali([] { return std::make_unique<Punteggi>(); });
    tbb::parallel_for(size_t{0}, casi.size(), [&](size_t k) {
        if (r.fermata()) return;
        Segna(r, casi[k], *finestre.local(), *locali.local(), perTerno);
    });
    Punteggi s;
    for (auto& l : locali)
        for (size_t t = 0; t < s.H.size(); ++t) s.H[t] += l->H[t], s.Q[t] += l->Q[t];

    // Emission: every triple of cells in order whose hits exceed the threshold.
    std::vector<Candidato> lista;
    std::vector<std::array<int, 3>> celle;
    size_t t = 0;
    for (int i = 1; i <= 53; ++i)
        for (int j = i + 1; j <= 54; ++j)
            for (int k = j + 1; k <= 55; ++k, ++t)
                if (s.H[t] > soglia) {
                    lista.push_back({s.H[t], s.Q[t], lista.size()});
                    celle.push_back({i, j, k});
                }
    const size_t righe = lista.size();
    soglia += CrescitaSoglia(static_cast<int>(righe), p.indiceMese);

    const Testa testa = OrdinaTesta(lista, 15);
    const std::vector<size_t>& ordine = testa.indici;
    const std::vector<Candidato>& ordinata = testa.ordinata;
    const size_t scelte = SelezioneQuindici(ordinata, righe, p.modoSpia == ModoSpia::Tutti || r.tuttiIValori);

    const CodaChiave coda = CodaPer(r, spia, casi);
    const std::string testoSpia = TestoSpia(r, spia);
    for (size_t i = 0; i < scelte; ++i) {
        const auto& c = celle[ordine[i]];
        RigaAlgoritmo riga;
        riga.descrizione = DescrizioneTerzina(c[0], c[1], c[2]);
        riga.chiave = ChiaveTerzina(c[0], c[1], c[2], coda);
        riga.sortite = C;
        riga.presenze = lista[ordine[i]].presenze;
        riga.quantita = lista[ordine[i]].quantita;
        riga.testoSpia = testoSpia;
        out.righe.push_back(std::move(riga));
    }
    return out;
}

}  // namespace gorgo::builder::interno
