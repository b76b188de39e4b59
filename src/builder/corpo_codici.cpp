// Codici body: one cell with a reduced triple under an operation; a case scores when,
// within the colpi, two (Sorte 2) or all three (Sorte 3) of the results come out on one
// play wheel in one draw.
//
// The walk over the window per (cell, triple, operation) is replaced by the window's
// pairs and triples: with the five numbers of a wheel distinct, "at least two of the
// results on the wheel" is "some pair of distinct results drawn together", and "all three"
// is "the triple of three distinct results drawn together". The results depend on the
// cell's number only, so each number of the draw is worked out once.

#include <tbb/enumerable_thread_specific.h>
#include <tbb/parallel_for.h>
#include <algorithm>
#include <array>
#include <memory>

#include "builder/corpo_codici.h"

namespace gorgo::builder::interno {

namespace {

constexpr Operazione kOperazioni[3] = {Operazione::Piu, Operazione::Meno, Operazione::Per};

struct Finestre {
    std::vector<uint8_t> coppie = std::vector<uint8_t>(91 * 91);
    std::vector<uint8_t> terne = std::vector<uint8_t>(91 * 91 * 91);
    std::vector<int32_t> segnateCoppie, segnateTerne;
};

// Scores by [op][cella][terzina], terzine 1..count.
struct Punteggi {
    size_t terzine;
    std::vector<int32_t> v;
    explicit Punteggi(size_t n) : terzine(n), v(3 * 56 * (n + 1)) {}
    int32_t& at(int op, int cella, int t) {
        return v[(static_cast<size_t>(op) * 56 + static_cast<size_t>(cella)) * (terzine + 1) + static_cast<size_t>(t)];
    }
};

void RiempiFinestra(const Preparata& r, const Caso& c, Finestre& f, int sorte) {
    for (int32_t d = c.indice + 1; d <= c.fineFinestra; ++d) {
        const archives::RecordEstrazione& e = (*r.storia)[d];
        for (int w : r.ruoteGioco) {
            // Zeros never equal a result, so only the numbers drawn take part.
            std::array<int, 5> n{};
            int m = 0;
            for (int p = 0; p < 5; ++p)
                if (e.Ruota[w - 1][p] != 0) n[static_cast<size_t>(m++)] = e.Ruota[w - 1][p];
            for (int i = 1; i < m; ++i)  // at most five: insertion
                for (int j = i; j > 0 && n[static_cast<size_t>(j - 1)] > n[static_cast<size_t>(j)]; --j)
                    std::swap(n[static_cast<size_t>(j - 1)], n[static_cast<size_t>(j)]);
            for (int i = 0; i < m; ++i)
                for (int j = i + 1; j < m; ++j) {
                    const int a = n[static_cast<size_t>(i)], b = n[static_cast<size_t>(j)];
                    if (sorte == 2) {
                        const size_t x = static_cast<size_t>(a + b * 91);
                        if (!f.coppie[x]) f.coppie[x] = 1, f.segnateCoppie.push_back(static_cast<int32_t>(x));
                    } else {
                        for (int k = j + 1; k < m; ++k) {
                            const size_t x = static_cast<size_t>(a + (b + n[static_cast<size_t>(k)] * 91) * 91);
                            if (!f.terne[x]) f.terne[x] = 1, f.segnateTerne.push_back(static_cast<int32_t>(x));
                        }
                    }
                }
        }
    }
}

void Pulisci(Finestre& f) {
    for (int32_t x : f.segnateCoppie) f.coppie[static_cast<size_t>(x)] = 0;
    for (int32_t x : f.segnateTerne) f.terne[static_cast<size_t>(x)] = 0;
    f.segnateCoppie.clear();
    f.segnateTerne.clear();
}

bool Vince(const Finestre& f, int sorte, int r1, int r2, int r3) {
    std::array<int, 3> r = {r1, r2, r3};
    std::sort(r.begin(), r.end());
    if (sorte == 2) {
        auto coppia = [&](int a, int b) { return a != b && f.coppie[static_cast<size_t>(a + b * 91)]; };
        return coppia(r[0], r[1]) || coppia(r[0], r[2]) || coppia(r[1], r[2]);
    }
    return r[0] != r[1] && r[1] != r[2] && f.terne[static_cast<size_t>(r[0] + (r[1] + r[2] * 91) * 91)];
}

}  // namespace

RisultatoValore CorpoCodici(const Preparata& r, const Spia& spia, const std::vector<Caso>& casi) {
    RisultatoValore out;
    const ParametriRicerca& p = *r.p;
    const TerzineRidotte* terzine = r.contesto->terzine;
    if (casi.empty() || !terzine || !terzine->disponibili()) return out;
    const int quante = terzine->quante();
    const int sorte = p.sorte;

    tbb::enumerable_thread_specific<std::unique_ptr<Finestre>> finestre([] { return std::make_unique<Finestre>(); });
    tbb::enumerable_thread_specific<std::unique_ptr<Punteggi>> locali(
        [&] { return std::make_unique<Punteggi>(static_cast<size_t>(quante)); });
    tbb::parallel_for(size_t{0}, casi.size(), [&](size_t k) {
        if (r.fermata()) return;
        const Caso& c = casi[k];
        Finestre& f = *finestre.local();
        Punteggi& s = *locali.local();
        RiempiFinestra(r, c, f, sorte);
        // Hits by number of the cell, worked out once for each number in the draw.
        const size_t largo = static_cast<size_t>(3 * (quante + 1));
        std::array<int, 91> posto{};  // 1 + place of the number's hits in `esiti`, 0 if not yet
        std::vector<uint8_t> esiti;
        for (int cella = 1; cella <= 55; ++cella) {
            const int n = c.numero(cella);
            if (posto[static_cast<size_t>(n)] == 0) {
                posto[static_cast<size_t>(n)] = static_cast<int>(esiti.size() / largo) + 1;
                esiti.resize(esiti.size() + largo, 0);
                uint8_t* e = &esiti[esiti.size() - largo];
                for (int op = 0; op < 3; ++op) {
                    if (!p.operazioni[static_cast<size_t>(op)]) continue;
                    for (int t = 1; t <= quante; ++t) {
                        const auto& tr = terzine->terzine[static_cast<size_t>(t)];
                        // "x" on 45 or 90 gives the number itself three times.
                        const bool fisso = op == 2 && (n == 45 || n == 90);
                        const int r1 = fisso ? n : OperaIndice(op, n, tr[0]);
                        const int r2 = fisso ? n : OperaIndice(op, n, tr[1]);
                        const int r3 = fisso ? n : OperaIndice(op, n, tr[2]);
                        e[static_cast<size_t>(op * (quante + 1) + t)] = Vince(f, sorte, r1, r2, r3);
                    }
                }
            }
            const uint8_t* e = &esiti[static_cast<size_t>(posto[static_cast<size_t>(n)] - 1) * largo];
            for (int op = 0; op < 3; ++op)
                for (int t = 1; t <= quante; ++t) s.at(op, cella, t) += e[static_cast<size_t>(op * (quante + 1) + t)];
        }
        Pulisci(f);
    });
    Punteggi totale(static_cast<size_t>(quante));
    for (auto& l : locali)
        for (size_t i = 0; i < totale.v.size(); ++i) totale.v[i] += l->v[i];

    // Emission: cell, then triple, then "+", "-", "x"; the score alone is the text.
    const int soglia = p.indiceMese != 22 ? 2 : SogliaPerCasi(static_cast<int>(casi.size()));
    std::vector<Candidato> lista;
    struct Forma {
        int cella, t, op;
    };
    std::vector<Forma> forme;
    for (int cella = 1; cella <= 55; ++cella)
        for (int t = 1; t <= quante; ++t)
            for (int op = 0; op < 3; ++op) {
                const int v = totale.at(op, cella, t);
                if (v <= soglia) continue;
                lista.push_back({v, 0, lista.size()});
                forme.push_back({cella, t, op});
            }
    const size_t righe = lista.size();
    const Testa testa = OrdinaTesta(lista, 15);
    const std::vector<size_t>& ordine = testa.indici;
    const std::vector<Candidato>& ordinata = testa.ordinata;
    size_t scelte = SelezioneQuindici(ordinata, righe, p.modoSpia != ModoSpia::Fisso || r.tuttiIValori);
    if (r.tuttiIValori) scelte = std::min<size_t>(scelte, 1);  // the best row of the value

    const CodaChiave coda = CodaPer(r, spia, casi);
    const std::string testoSpia = TestoSpia(r, spia);
    for (size_t i = 0; i < scelte; ++i) {
        const Forma& f = forme[ordine[i]];
        RigaAlgoritmo riga;
        const Operazione op = kOperazioni[f.op];
        riga.descrizione = DescrizioneCodice(f.cella, op, f.t, terzine->terzine[static_cast<size_t>(f.t)]);
        riga.chiave = ChiaveCodice(f.cella, f.t, op, coda);
        riga.sortite = static_cast<int>(casi.size());
        riga.presenze = lista[ordine[i]].presenze;
        riga.conQuantita = false;
        riga.testoSpia = testoSpia;
        out.righe.push_back(std::move(riga));
    }
    return out;
}

}  // namespace gorgo::builder::interno
