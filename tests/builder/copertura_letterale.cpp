#include "copertura_letterale.h"

#include <fmt/format.h>
#include <vector>

#include "config/formato.h"

#include "builder/chiavi.h"

namespace gorgo::builder {

MatriceCopertura CalcolaMatriceLetterale(const ParametriRicerca& p, const ContestoRicerca& ctx,
                                         std::span<const CasoSpia> casi, std::span<const RigaAlgoritmo> algoritmi,
                                         TipoCopertura tipo) {
    const archives::StoriaLotto& s = *ctx.storia;
    TipoRicerca tipoAlg = TipoRicerca::Ambate;
    int soglia = 1;
    if (tipo == TipoCopertura::Ambo) tipoAlg = TipoRicerca::Ambi, soglia = 2;
    if (tipo == TipoCopertura::Terzine) {
        tipoAlg = p.tipoRicerca == TipoRicerca::TerzineAmbo ? TipoRicerca::TerzineAmbo : TipoRicerca::TerzineTerno;
        soglia = tipoAlg == TipoRicerca::TerzineAmbo ? 2 : 3;
    }
    if (tipo == TipoCopertura::Codici) tipoAlg = TipoRicerca::Codici, soglia = p.sorte;
    // The wheel boxes: the flags one by one, then box 0 sets the ten regional wheels.
    bool gioco[12] = {};
    for (int w = 1; w <= 11; ++w) gioco[w] = p.ruoteGioco[static_cast<size_t>(w)];
    if (p.ruoteGioco[0])
        for (int w = 1; w <= 10; ++w) gioco[w] = true;

    MatriceCopertura m;
    m.casi = static_cast<int>(casi.size());
    m.algoritmi = static_cast<int>(algoritmi.size());
    m.colpi.assign(casi.size() * algoritmi.size(), 0);
    m.numeri.assign(casi.size() * algoritmi.size(), {});
    for (size_t k = 0; k < casi.size(); ++k) {
        const int32_t caso = casi[k].indice;
        for (size_t a = 0; a < algoritmi.size(); ++a) {
            const size_t e = k * algoritmi.size() + a;
            m.numeri[e] = NumeriAlgoritmo(algoritmi[a].chiave, tipoAlg, s[caso], ctx.terzine).numeri;
            if (m.numeri[e].empty()) continue;
            int colpo = 0;
            bool trovato = false;
            for (int32_t i = caso + 1; i <= caso + p.colpi; ++i) {
                if (i > s.NumeroEstrazioni()) break;
                ++colpo;
                for (int w = 1; w <= 11; ++w) {
                    if (!gioco[w]) continue;
                    int uguali = 0;
                    for (int pos = 1; pos <= 5; ++pos)
                        for (int x : m.numeri[e])
                            if (s[i].Ruota[w - 1][pos - 1] == x) {
                                ++uguali;
                                break;
                            }
                    if (tipo == TipoCopertura::Ambo ? uguali == soglia : uguali >= soglia) {
                        trovato = true;
                        break;
                    }
                }
                if (trovato) break;
            }
            if (trovato) m.colpi[e] = static_cast<uint16_t>(colpo);
        }
    }
    return m;
}

GruppoCopertura CercaGruppoLetterale(const MatriceCopertura& m) {
    GruppoCopertura g;
    const int C = m.casi;
    const int A = m.algoritmi < 100 ? m.algoritmi : 100;
    if (C == 0 || A == 0) return g;
    auto copre = [&](int k, std::initializer_list<int> gruppo) {
        for (int a : gruppo)
            if (m.colpo(k, a) > 0) return true;
        return false;
    };
    auto tutti = [&](std::initializer_list<int> gruppo) {
        for (int k = 0; k < C; ++k)
            if (!copre(k, gruppo)) return false;
        return true;
    };
    for (int i = 0; i < A; ++i)
        if (tutti({i})) {
            g.membri = {i};
            g.coperti = C;
            return g;
        }
    for (int i = 0; i < A; ++i)
        for (int j = i + 1; j < A; ++j)
            if (tutti({i, j})) {
                g.membri = {i, j};
                g.coperti = C;
                return g;
            }
    for (int i = 0; i < A; ++i)
        for (int j = i + 1; j < A; ++j)
            for (int k = j + 1; k < A; ++k)
                if (tutti({i, j, k})) {
                    g.membri = {i, j, k};
                    g.coperti = C;
                    return g;
                }
    for (int i = 0; i < A; ++i)
        for (int j = i + 1; j < A; ++j)
            for (int k = j + 1; k < A; ++k)
                for (int l = k + 1; l < A; ++l)
                    if (tutti({i, j, k, l})) {
                        g.membri = {i, j, k, l};
                        g.coperti = C;
                        return g;
                    }
    int migliore = 0;
    for (int i = 0; i < A; ++i)
        for (int j = i + 1; j < A; ++j)
            for (int k = j + 1; k < A; ++k)
                for (int l = k + 1; l < A; ++l)
                    for (int n = l + 1; n < A; ++n) {
                        int coperti = 0;
                        for (int c = 0; c < C; ++c)
                            if (copre(c, {i, j, k, l, n})) ++coperti;
                        if (coperti > migliore) {
                            migliore = coperti;
                            g.membri = {i, j, k, l, n};
                            g.coperti = coperti;
                            if (coperti == C) return g;
                        }
                    }
    return g;
}

namespace {

std::string Numeri(const std::vector<int>& x) {
    std::string s;
    for (size_t i = 0; i < x.size(); ++i) {
        if (i > 0) s += "-";
        s += fmt::format("{:>2}", x[i]);
    }
    return s;
}

std::string Cento(int parte, int tutto) {
    return config::AllineaDestra(config::Formato(parte * 100.0 / tutto, "0.0"), 5);
}

// Steps 5 to 11 as written: attribution to the group, the rows without a member, the second
// pass, the further columns of two and three ambate, the recap, the totals.
EsitoCopertura Attribuisci(const MatriceCopertura& m, std::span<const CasoSpia> casi,
                           std::span<const RigaAlgoritmo> alg, TipoCopertura tipo, const std::vector<int>& gruppo) {
    EsitoCopertura e;
    e.tipo = tipo;
    e.titolo = TitoloCopertura(tipo);
    e.gruppo = gruppo;
    e.casi = m.casi;
    e.gruppiColonne = tipo == TipoCopertura::DueAmbate ? 2 : tipo == TipoCopertura::TreAmbate ? 3 : 1;
    if (m.casi == 0) return e;
    std::vector<int> sortite(static_cast<size_t>(m.algoritmi), 0);
    auto numeri = [&](int k, int a) { return m.numeri[static_cast<size_t>(k * m.algoritmi + a)]; };
    for (int k = 0; k < m.casi; ++k) {
        RigaCopertura r;
        r.caso = k;
        r.data = casi[static_cast<size_t>(k)].data;
        r.testoRiga = fmt::format("{:>5}", k + 1);
        bool preso = false;
        for (size_t g = 0; g < gruppo.size() && !preso; ++g) {
            const int a = gruppo[g];
            if (m.colpo(k, a) > 0) {
                r.gruppi[0] = {a, alg[static_cast<size_t>(a)].descrizione, Numeri(numeri(k, a)),
                               fmt::format("{:>2}", m.colpo(k, a))};
                r.colpo = m.colpo(k, a);
                sortite[static_cast<size_t>(a)]++;
                e.coperti++;
                preso = true;
            }
        }
        if (!preso) r.gruppi[0] = {-1, "--", "--", "-"};
        e.righe.push_back(r);
    }
    if (e.coperti < m.casi)
        for (RigaCopertura& r : e.righe) {
            if (r.gruppi[0].descrizione != "--") continue;
            for (int a = 0; a < m.algoritmi; ++a) {
                bool nelGruppo = false;
                for (int g : gruppo) nelGruppo = nelGruppo || g == a;
                if (nelGruppo || m.colpo(r.caso, a) == 0) continue;
                r.gruppi[0] = {a, alg[static_cast<size_t>(a)].descrizione, Numeri(numeri(r.caso, a)),
                               fmt::format("{:>2}", m.colpo(r.caso, a))};
                r.colpo = m.colpo(r.caso, a);
                sortite[static_cast<size_t>(a)]++;
                break;
            }
        }
    for (int g = 1; g < e.gruppiColonne; ++g)
        for (RigaCopertura& r : e.righe)
            for (int a = 0; a < m.algoritmi; ++a) {
                bool usata = false;
                for (int h = 0; h < g; ++h)
                    usata = usata ||
                            r.gruppi[static_cast<size_t>(h)].descrizione == alg[static_cast<size_t>(a)].descrizione;
                if (usata || m.colpo(r.caso, a) == 0) continue;
                r.gruppi[static_cast<size_t>(g)] = {a, alg[static_cast<size_t>(a)].descrizione,
                                                    Numeri(numeri(r.caso, a)),
                                                    fmt::format("{:>2}", m.colpo(r.caso, a))};
                break;
            }
    for (int a = 0; a < m.algoritmi; ++a)
        if (sortite[static_cast<size_t>(a)] > 0) {
            RiepilogoCopertura x;
            x.algoritmo = a;
            x.descrizione = alg[static_cast<size_t>(a)].descrizione;
            x.sortite = sortite[static_cast<size_t>(a)];
            x.testoSortite = fmt::format("{:>4}", x.sortite);
            x.testoPercentuale = Cento(x.sortite, m.casi) + " %";
            x.previsione = Numeri(numeri(0, a));
            e.riepilogo.push_back(x);
        }
    e.totale = "Copertura: " + std::to_string(e.coperti) + " casi su " + std::to_string(m.casi) + "  (" +
               Cento(e.coperti, m.casi) + " %)";
    int somma = 0, quanti = 0;
    for (const RigaCopertura& r : e.righe)
        if (r.colpo > 0) somma += r.colpo, quanti++;
    if (quanti > 0) e.attesaMedia = config::Formato(static_cast<double>(somma) / quanti, "0.0") + " colpi";
    return e;
}

}  // namespace

EsitoCopertura CalcolaCoperturaLetterale(const ParametriRicerca& p, const ContestoRicerca& ctx,
                                         std::span<const CasoSpia> casi, std::span<const RigaAlgoritmo> righe,
                                         TipoCopertura tipo) {
    std::vector<RigaAlgoritmo> scelte;
    for (const RigaAlgoritmo& r : righe)
        if (r.selezionata) scelte.push_back(r);
    if (scelte.empty()) {
        EsitoCopertura e;
        e.errore = {std::string(NessunAlgoritmnoSelezionato), "Errore", archives::Icona::Esclamazione};
        return e;
    }
    const MatriceCopertura m = CalcolaMatriceLetterale(p, ctx, casi, scelte, tipo);
    return Attribuisci(m, casi, scelte, tipo, CercaGruppoLetterale(m).membri);
}

}  // namespace gorgo::builder
