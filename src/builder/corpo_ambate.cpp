// Ambate body: one cell with a constant, two cells, or the cell alone; the ambo-spy
// variant shares it.

#include <tbb/enumerable_thread_specific.h>
#include <tbb/parallel_for.h>
#include <algorithm>
#include <memory>

#include "builder/corpo_ambate.h"

namespace gorgo::builder::interno {

void RiempiFinestraNumeri(const Preparata& r, const Caso& c, FinestraNumeri& f) {
    f.Q.fill(0);
    f.H.fill(0);
    const auto& valide = r.p->posizioniValide;
    for (int32_t d = c.indice + 1; d <= c.fineFinestra; ++d) {
        const archives::RecordEstrazione& e = (*r.storia)[d];
        for (int w : r.ruoteGioco) {
            for (int pos = 1; pos <= 5; ++pos) {
                if (!valide[static_cast<size_t>(pos)]) continue;
                const int n = e.Ruota[w - 1][pos - 1];
                if (n == 0) break;
                f.H[static_cast<size_t>(n)] = 1;
                ++f.Q[static_cast<size_t>(n)];
            }
        }
    }
}

RigaAlgoritmo RigaAmbata(const FormaAmbata& f, const CodaChiave& coda, const std::string& testoSpia, int sortite,
                         int presenze, int quantita) {
    RigaAlgoritmo riga;
    const Operazione op = kOperazioni[f.op];
    riga.descrizione = DescrizioneAmbata(f.c1, op, f.c2, f.k, f.tipo == 2);
    riga.chiave = ChiaveAmbata(f.c1, op, f.c2, f.k, coda);
    riga.sortite = sortite;
    riga.presenze = presenze;
    riga.quantita = quantita;
    riga.testoSpia = testoSpia;
    return riga;
}

namespace {

// Hits and quantity of every ambata algorithm of one spy value.
struct Tabelle {
    // One cell: [op][cella][k].
    std::array<int32_t, kOp * 56 * 46> unoH{}, unoQ{};
    // Two cells, on different wheels or on one: [op][cella1][cella2].
    std::array<int32_t, kOp * 56 * 56> dueH{}, dueQ{};
    // The cell alone.
    std::array<int32_t, 56> solaH{}, solaQ{};

    static size_t Uno(int op, int c, int k) { return (static_cast<size_t>(op) * 56 + c) * 46 + k; }
    static size_t Due(int op, int c1, int c2) { return (static_cast<size_t>(op) * 56 + c1) * 56 + c2; }

    void Somma(const Tabelle& o) {
        for (size_t i = 0; i < unoH.size(); ++i) unoH[i] += o.unoH[i], unoQ[i] += o.unoQ[i];
        for (size_t i = 0; i < dueH.size(); ++i) dueH[i] += o.dueH[i], dueQ[i] += o.dueQ[i];
        for (size_t i = 0; i < solaH.size(); ++i) solaH[i] += o.solaH[i], solaQ[i] += o.solaQ[i];
    }
};

void Segna(Tabelle& t, const Caso& c, bool soloPosizione, const FinestraNumeri& f) {
    PerOgniAlgoritmo(
        c, soloPosizione,
        [&](int cella, int n) {
            for (int op = 0; op < kOp; ++op) {
                const uint8_t* risultati = TabellaOperazioni[static_cast<size_t>(op)][static_cast<size_t>(n)].data();
                int32_t* q = &t.unoQ[Tabelle::Uno(op, cella, 0)];
                int32_t* h = &t.unoH[Tabelle::Uno(op, cella, 0)];
                for (int k = kDa[op]; k <= kA[op]; ++k) {
                    const size_t r = risultati[k];
                    q[k] += f.Q[r];
                    h[k] += f.H[r];
                }
            }
        },
        [&](int c1, int c2, int x1, int x2) {
            for (int op = 0; op < kOp; ++op) {
                const size_t r = static_cast<size_t>(OperaIndice(op, x1, x2));
                const size_t i = Tabelle::Due(op, c1, c2);
                t.dueQ[i] += f.Q[r];
                t.dueH[i] += f.H[r];
            }
        },
        [&](int cella, int n) {
            t.solaQ[static_cast<size_t>(cella)] += f.Q[static_cast<size_t>(n)];
            if (n > 0) t.solaH[static_cast<size_t>(cella)] += f.H[static_cast<size_t>(n)];
        });
}

}  // namespace

RisultatoValore CorpoAmbate(const Preparata& r, const Spia& spia, const std::vector<Caso>& casi, bool parallelo) {
    RisultatoValore out;
    if (casi.empty()) return out;
    const bool soloPosizione = r.p->soloPosizione;
    auto t = std::make_unique<Tabelle>();
    if (parallelo && casi.size() > 16) {
        tbb::enumerable_thread_specific<std::unique_ptr<Tabelle>> locali([] { return std::make_unique<Tabelle>(); });
        tbb::parallel_for(size_t{0}, casi.size(), [&](size_t k) {
            if (r.fermata()) return;
            FinestraNumeri f;
            RiempiFinestraNumeri(r, casi[k], f);
            Segna(*locali.local(), casi[k], soloPosizione, f);
        });
        for (auto& l : locali) t->Somma(*l);
    } else {
        FinestraNumeri f;
        for (const Caso& c : casi) {
            if (r.fermata()) break;
            RiempiFinestraNumeri(r, c, f);
            Segna(*t, c, soloPosizione, f);
        }
    }

    // Emission: in scoring order, on the cells of the oldest case, rows with a quantity.
    std::vector<Candidato> lista;
    std::vector<FormaAmbata> forme;
    auto aggiungi = [&](int32_t h, int32_t q, FormaAmbata f) {
        if (q <= 0) return;
        lista.push_back({h, q, lista.size()});
        forme.push_back(f);
    };
    PerOgniAlgoritmo(
        casi.back(), soloPosizione,
        [&](int cella, int) {
            for (int op = 0; op < kOp; ++op)
                for (int k = kDa[op]; k <= kA[op]; ++k) {
                    const size_t i = Tabelle::Uno(op, cella, k);
                    aggiungi(t->unoH[i], t->unoQ[i], {0, op, cella, 0, k});
                }
        },
        [&](int c1, int c2, int, int) {
            for (int op = 0; op < kOp; ++op) {
                const size_t i = Tabelle::Due(op, c1, c2);
                aggiungi(t->dueH[i], t->dueQ[i], {1, op, c1, c2, 0});
            }
        },
        [&](int cella, int n) {
            if (n > 0)
                aggiungi(t->solaH[static_cast<size_t>(cella)], t->solaQ[static_cast<size_t>(cella)],
                         {2, 0, cella, 0, 0});
        });

    // Only the top of the ordered list can be selected: order just that much.
    const Testa testa = OrdinaTesta(lista, 61);
    const std::vector<size_t>& ordine = testa.indici;
    const size_t scelte = SelezioneAmbate(testa.ordinata, r.tuttiIValori);

    const CodaChiave coda = CodaPer(r, spia, casi);
    const std::string testoSpia = TestoSpia(r, spia);
    for (size_t i = 0; i < scelte; ++i) {
        out.righe.push_back(RigaAmbata(forme[ordine[i]], coda, testoSpia, static_cast<int>(casi.size()),
                                       lista[ordine[i]].presenze, lista[ordine[i]].quantita));
    }
    return out;
}

}  // namespace gorgo::builder::interno
