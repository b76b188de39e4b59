// The automatic search of wheels. Runs are independent and go in parallel; rows come out in
// the order of the runs. For the ambate of one spy value the runs of a set of search wheels
// share their cases, and each algorithm keeps, per play wheel, the set of cases it hit and
// its quantity: a run's scores are then unions and sums over its play wheels.

#include "builder/automatica.h"

#include <bit>
#include <fmt/format.h>
#include <tbb/enumerable_thread_specific.h>
#include <tbb/parallel_for.h>
#include <algorithm>
#include <atomic>
#include <memory>
#include <mutex>

#include "builder/corpo_ambate.h"
#include "builder/parametri.h"
#include "builder/ricerca_interna.h"

namespace gorgo::builder {

using namespace interno;

std::vector<std::vector<int>> CombinazioniRuote(const std::array<bool, 12>& ruote, int k) {
    std::vector<int> scelte;
    for (int w = 1; w <= archives::NumeroRuote; ++w)
        if (ruote[static_cast<size_t>(w)]) scelte.push_back(w);
    std::vector<std::vector<int>> out;
    if (k < 1 || k > static_cast<int>(scelte.size())) return out;
    std::vector<int> idx(static_cast<size_t>(k));
    for (int i = 0; i < k; ++i) idx[static_cast<size_t>(i)] = i;
    const int n = static_cast<int>(scelte.size());
    while (true) {
        std::vector<int> c;
        for (int i : idx) c.push_back(scelte[static_cast<size_t>(i)]);
        out.push_back(std::move(c));
        int i = k - 1;
        while (i >= 0 && idx[static_cast<size_t>(i)] == n - k + i) --i;
        if (i < 0) break;
        ++idx[static_cast<size_t>(i)];
        for (int j = i + 1; j < k; ++j) idx[static_cast<size_t>(j)] = idx[static_cast<size_t>(j - 1)] + 1;
    }
    return out;
}

ParametriRicerca ParametriCorsa(const ParametriRicerca& p, const std::vector<int>& ricerca,
                                const std::vector<int>& gioco) {
    ParametriRicerca q = p;
    q.ruoteRicerca.fill(false);
    q.ruoteGioco.fill(false);
    for (int w : ricerca) q.ruoteRicerca[static_cast<size_t>(w)] = true;
    for (int w : gioco) q.ruoteGioco[static_cast<size_t>(w)] = true;
    return q;
}

std::string TestoRuote(const std::vector<int>& ruote) {
    std::string s;
    for (size_t i = 0; i < ruote.size(); ++i) {
        if (i) s += '-';
        s += archives::SigleRuota[static_cast<size_t>(ruote[i])];
    }
    return s;
}

namespace {

// Rows that complete out of order leave in order: the longest finished prefix goes out.
class Uscita {
public:
    Uscita(size_t corse, const AvanzamentoAutomatica& av) : risultati_(corse), fatto_(corse, 0), av_(av) {}

    void Consegna(size_t corsa, std::optional<RigaAutomatica> riga) {
        std::lock_guard lock(mutex_);
        risultati_[corsa] = std::move(riga);
        fatto_[corsa] = 1;
        ++fatte_;
        while (prossima_ < fatto_.size() && fatto_[prossima_]) {
            if (risultati_[prossima_]) {
                righe_.push_back(*risultati_[prossima_]);
                if (av_.riga) av_.riga(righe_.back());
            }
            ++prossima_;
        }
        if (av_.progresso) av_.progresso(static_cast<int>(prossima_), static_cast<int>(fatto_.size()));
    }
    std::vector<RigaAutomatica> Righe() { return std::move(righe_); }
    int Fatte() const { return static_cast<int>(prossima_); }

private:
    std::vector<std::optional<RigaAutomatica>> risultati_;
    std::vector<char> fatto_;
    size_t prossima_ = 0;
    int fatte_ = 0;
    std::vector<RigaAutomatica> righe_;
    std::mutex mutex_;
    const AvanzamentoAutomatica& av_;
};

RigaAutomatica Riga(RigaAlgoritmo riga, const std::vector<int>& ricerca, const std::vector<int>& gioco) {
    return {std::move(riga), ricerca, gioco, TestoRuote(ricerca), TestoRuote(gioco)};
}

// ---- every run, whole ----

void CorseIntere(const ParametriRicerca& p, const ContestoRicerca& ctx, const std::vector<std::vector<int>>& ricerca,
                 const std::vector<std::vector<int>>& gioco, const AvanzamentoAutomatica& av, Uscita& uscita) {
    const size_t corse = ricerca.size() * gioco.size();
    tbb::parallel_for(size_t{0}, corse, size_t{1}, [&](size_t k) {
        if (av.stop.stop_requested()) return;
        const auto& r = ricerca[k / gioco.size()];
        const auto& g = gioco[k % gioco.size()];
        const ParametriRicerca q = ParametriCorsa(p, r, g);
        const Avanzamento interno{av.stop, {}};
        EsitoRicerca e = CercaAlgoritmi(q, ctx, interno);
        if (e.parziale || av.stop.stop_requested()) return;  // a stopped run shows nothing
        std::optional<RigaAutomatica> riga;
        if (!e.righe.empty()) riga = Riga(std::move(e.righe.front()), r, g);
        uscita.Consegna(k, std::move(riga));
    });
}

// ---- the ambate of one spy value: the runs of one set of search wheels together ----

constexpr size_t kUno = 0, kDue = kOp * 56 * 46, kSola = kDue + kOp * 56 * 56, kPosti = kSola + 56;
size_t PostoUno(int op, int c, int k) { return kUno + (static_cast<size_t>(op) * 56 + c) * 46 + k; }
size_t PostoDue(int op, int c1, int c2) { return kDue + (static_cast<size_t>(op) * 56 + c1) * 56 + c2; }

struct Punteggi {
    int presenze = -1, quantita = 0, algoritmo = -1;
    bool prima(int p, int q, int a) const {
        if (p != presenze) return p > presenze;
        if (q != quantita) return q > quantita;
        return a < algoritmo;
    }
};

void CorseAmbate(const ParametriRicerca& p, const ContestoRicerca& ctx, const std::vector<std::vector<int>>& ricerca,
                 const std::vector<std::vector<int>>& gioco, const std::vector<int>& ruoteGioco,
                 const AvanzamentoAutomatica& av, Uscita& uscita) {
    const int U = static_cast<int>(ruoteGioco.size());
    std::array<int, 12> colonna{};  // play wheel -> its place among ruoteGioco
    for (int j = 0; j < U; ++j) colonna[static_cast<size_t>(ruoteGioco[static_cast<size_t>(j)])] = j;
    const bool soloPosizione = p.soloPosizione;
    const Avanzamento nessuno{av.stop, {}};

    // Sets of search wheels in parallel too: with few cases each one alone leaves cores idle.
    tbb::parallel_for(size_t{0}, ricerca.size(), size_t{1}, [&](size_t s) {
        if (av.stop.stop_requested()) return;
        const ParametriRicerca q = ParametriCorsa(p, ricerca[s], ruoteGioco);
        const Preparata r = Prepara(q, ctx, nessuno, ValidaRicerca(q, *ctx.storia));
        const Spia spia = ValoriSpia(r).front();
        const std::vector<Caso> casi = TrovaCasi(r, spia);
        const size_t base = s * gioco.size();
        if (casi.empty()) {
            for (size_t g = 0; g < gioco.size(); ++g) uscita.Consegna(base + g, std::nullopt);
            return;
        }

        // The algorithms that can be emitted: those of the oldest case, in emission order.
        std::vector<int32_t> posto(kPosti, -1);
        std::vector<FormaAmbata> forme;
        auto nuovo = [&](size_t i, FormaAmbata f) {
            posto[i] = static_cast<int32_t>(forme.size());
            forme.push_back(f);
        };
        PerOgniAlgoritmo(
            casi.back(), soloPosizione,
            [&](int cella, int) {
                for (int op = 0; op < kOp; ++op)
                    for (int k = kDa[op]; k <= kA[op]; ++k) nuovo(PostoUno(op, cella, k), {0, op, cella, 0, k});
            },
            [&](int c1, int c2, int, int) {
                for (int op = 0; op < kOp; ++op) nuovo(PostoDue(op, c1, c2), {1, op, c1, c2, 0});
            },
            [&](int cella, int n) {
                if (n > 0) nuovo(kSola + static_cast<size_t>(cella), {2, 0, cella, 0, 0});
            });
        const size_t A = forme.size();
        const size_t P = (casi.size() + 63) / 64;
        const size_t righe = A * static_cast<size_t>(U);
        std::vector<uint64_t> colpiti(righe * P, 0);  // [algorithm][play wheel][word]
        tbb::enumerable_thread_specific<std::vector<int32_t>> quantitaLocali(
            [&] { return std::vector<int32_t>(righe, 0); });

        // Blocks of 64 cases: each block writes its own word of every set.
        tbb::parallel_for(size_t{0}, P, [&](size_t blocco) {
            if (av.stop.stop_requested()) return;
            std::vector<int32_t>& quantita = quantitaLocali.local();
            std::array<std::array<uint8_t, 12>, 91> uscite;  // by number, by play wheel
            std::array<uint16_t, 91> ruote;                  // by number, the play wheels it came out on
            const auto& valide = p.posizioniValide;
            for (size_t k = blocco * 64; k < std::min(casi.size(), blocco * 64 + 64); ++k) {
                const Caso& c = casi[k];
                for (auto& u : uscite) u.fill(0);
                ruote.fill(0);
                for (int32_t d = c.indice + 1; d <= c.fineFinestra; ++d) {
                    const archives::RecordEstrazione& e = (*ctx.storia)[d];
                    for (int j = 0; j < U; ++j) {
                        const int w = ruoteGioco[static_cast<size_t>(j)];
                        for (int pos = 1; pos <= 5; ++pos) {
                            if (!valide[static_cast<size_t>(pos)]) continue;
                            const int n = e.Ruota[w - 1][pos - 1];
                            if (n == 0) break;
                            ++uscite[static_cast<size_t>(n)][static_cast<size_t>(j)];
                            ruote[static_cast<size_t>(n)] |= static_cast<uint16_t>(1u << j);
                        }
                    }
                }
                const uint64_t bit = uint64_t{1} << (k % 64);
                auto segna = [&](size_t i, int risultato) {
                    const int32_t a = posto[i];
                    if (a < 0) return;
                    unsigned m = ruote[static_cast<size_t>(risultato)];
                    const size_t riga = static_cast<size_t>(a) * static_cast<size_t>(U);
                    while (m) {
                        const int j = __builtin_ctz(m);
                        m &= m - 1;
                        colpiti[(riga + static_cast<size_t>(j)) * P + blocco] |= bit;
                        quantita[riga + static_cast<size_t>(j)] +=
                            uscite[static_cast<size_t>(risultato)][static_cast<size_t>(j)];
                    }
                };
                PerOgniAlgoritmo(
                    c, soloPosizione,
                    [&](int cella, int n) {
                        for (int op = 0; op < kOp; ++op) {
                            const uint8_t* ris =
                                TabellaOperazioni[static_cast<size_t>(op)][static_cast<size_t>(n)].data();
                            for (int k2 = kDa[op]; k2 <= kA[op]; ++k2) segna(PostoUno(op, cella, k2), ris[k2]);
                        }
                    },
                    [&](int c1, int c2, int x1, int x2) {
                        for (int op = 0; op < kOp; ++op) segna(PostoDue(op, c1, c2), OperaIndice(op, x1, x2));
                    },
                    [&](int cella, int n) {
                        if (n > 0) segna(kSola + static_cast<size_t>(cella), n);
                    });
            }
        });
        if (av.stop.stop_requested()) return;
        std::vector<int32_t> quantita(righe, 0);
        for (const auto& l : quantitaLocali)
            for (size_t i = 0; i < righe; ++i) quantita[i] += l[i];
        // The cases each algorithm hit on a play wheel: a bound for the union.
        std::vector<int32_t> conta(righe, 0);
        for (size_t i = 0; i < righe; ++i)
            for (size_t w = 0; w < P; ++w) conta[i] += std::popcount(colpiti[i * P + w]);

        const CodaChiave coda = CodaPer(r, spia, casi);
        const std::string testoSpia = TestoSpia(r, spia);
        tbb::parallel_for(size_t{0}, gioco.size(), [&](size_t g) {
            if (av.stop.stop_requested()) return;
            std::vector<size_t> js;
            for (int w : gioco[g]) js.push_back(static_cast<size_t>(colonna[static_cast<size_t>(w)]));
            Punteggi migliore;
            std::vector<uint64_t> unione(P);
            for (size_t a = 0; a < A; ++a) {
                const size_t riga = a * static_cast<size_t>(U);
                int32_t qa = 0, limite = 0;
                for (size_t j : js) qa += quantita[riga + j], limite += conta[riga + j];
                if (qa <= 0) continue;  // no quantity, no row
                limite = std::min<int32_t>(limite, static_cast<int32_t>(casi.size()));
                if (!migliore.prima(limite, qa, static_cast<int>(a))) continue;
                const uint64_t* primo = &colpiti[(riga + js[0]) * P];
                std::copy_n(primo, P, unione.data());
                for (size_t x = 1; x < js.size(); ++x) {
                    const uint64_t* altro = &colpiti[(riga + js[x]) * P];
                    for (size_t w = 0; w < P; ++w) unione[w] |= altro[w];
                }
                int pa = 0;
                for (size_t w = 0; w < P; ++w) pa += std::popcount(unione[w]);
                if (migliore.prima(pa, qa, static_cast<int>(a))) migliore = {pa, qa, static_cast<int>(a)};
            }
            std::optional<RigaAutomatica> out;
            if (migliore.algoritmo >= 0)
                out = Riga(RigaAmbata(forme[static_cast<size_t>(migliore.algoritmo)], coda, testoSpia,
                                      static_cast<int>(casi.size()), migliore.presenze, migliore.quantita),
                           ricerca[s], gioco[g]);
            uscita.Consegna(base + g, std::move(out));
        });
    });
}

}  // namespace

EsitoAutomatica RicercaAutomatica(const ParametriRicerca& p, const ContestoRicerca& ctx, int simultaneeRicerca,
                                  int simultaneeGioco, const AvanzamentoAutomatica& av) {
    EsitoAutomatica esito;
    if (p.modoSpia == ModoSpia::SoloIndiceMensile && ContaRuoteScelte(p.ruoteRicerca) < archives::NumeroRuote) {
        esito.errore = {std::string(SoloIndiceTutteLeRuote), "Errore", archives::Icona::Esclamazione};
        return esito;
    }
    const auto ricerca = CombinazioniRuote(RuoteScelte(p.ruoteRicerca), simultaneeRicerca);
    const auto gioco = CombinazioniRuote(RuoteScelte(p.ruoteGioco), simultaneeGioco);
    esito.corse = static_cast<int>(ricerca.size() * gioco.size());
    if (esito.corse == 0) return esito;
    // Validation does not depend on the wheels of a run beyond their presence.
    const ParametriRicerca prima = ParametriCorsa(p, ricerca.front(), gioco.front());
    if (RicercaValidata v = ValidaRicerca(prima, *ctx.storia); !v.errore.vuoto()) {
        esito.errore = v.errore;
        esito.focus = v.focus;
        return esito;
    }
    Uscita uscita(static_cast<size_t>(esito.corse), av);
    const bool unValore = p.modoSpia == ModoSpia::SoloIndiceMensile ||
                          (p.tipoSpia == TipoSpia::Ambo ? !p.tuttiGliAmbi : p.modoSpia == ModoSpia::Fisso);
    if (p.tipoRicerca == TipoRicerca::Ambate && unValore) {
        std::vector<int> ruoteGioco;
        const auto g = RuoteScelte(p.ruoteGioco);
        for (int w = 1; w <= archives::NumeroRuote; ++w)
            if (g[static_cast<size_t>(w)]) ruoteGioco.push_back(w);
        CorseAmbate(p, ctx, ricerca, gioco, ruoteGioco, av, uscita);
    } else {
        CorseIntere(p, ctx, ricerca, gioco, av, uscita);
    }
    esito.fatte = uscita.Fatte();
    esito.fermata = esito.fatte < esito.corse;
    esito.righe = uscita.Righe();
    return esito;
}

}  // namespace gorgo::builder
