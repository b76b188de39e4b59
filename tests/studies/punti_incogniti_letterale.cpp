#include "studies/punti_incogniti_letterale.h"

#include <fmt/format.h>

#include "archives/record.h"
#include "config/formato.h"
#include "studies/righe.h"

namespace gorgo::test {

namespace {

int f(int n) {
    while (n > 90) n -= 90;
    while (n < 1) n += 90;
    return n;
}

std::string DueCifre(int n) { return n < 10 ? " " + std::to_string(n) : std::to_string(n); }

std::string Punti(const int* v) {
    return DueCifre(v[0]) + "." + DueCifre(v[1]) + "." + DueCifre(v[2]) + "." + DueCifre(v[3]) + "." + DueCifre(v[4]);
}

}  // namespace

StoricaLetterale VerificaStoricaLetterale(const archives::StoriaLotto& st, const studies::ParametriVerifica& p,
                                          bool riepilogo, std::string tag) {
    StoricaLetterale e;
    e.tag = std::move(tag);
    const int n = st.NumeroEstrazioni();
    const int m = p.Sorte;
    int TotE = 0, TotA = 0, TotT = 0, TotEs = 0, TotAs = 0, MaxRuota = 0;
    int VinciteRuota[12] = {};
    const auto riga = [&](std::vector<std::string> celle) {
        while (celle.size() < 11) celle.push_back("");
        if (!riepilogo) e.righe.push_back(std::move(celle));
    };
    for (int i = p.Dal; i <= p.Al; ++i) {
        if (i == n) break;
        int E[5];
        for (int k = 0; k < 5; ++k) E[k] = st[i].Numero(p.Ruota, k + 1);
        const studies::SerieIncognita serie = studies::CalcolaSerie({E[0], E[1], E[2], E[3], E[4]});
        if (!(serie[0] > 0)) continue;
        e.Giocate++;
        const int Se = serie[6], I = serie[7];
        int P[5] = {serie[1], serie[2], serie[3], serie[4], serie[5]};
        // The series freed of repeated values.
        std::vector<int> unici;
        for (int v : P) {
            bool gia = false;
            for (int u : unici) gia = gia || u == v;
            if (!gia) unici.push_back(v);
        }
        const auto testa = [&]() -> std::vector<std::string> {
            return {st.DataEstrazione(i), Punti(E), std::to_string(Se), Punti(P), std::to_string(I)};
        };
        int pE = 0, pA = 0, pT = 0, pEs = 0, pAs = 0;
        bool vinta = false, inGioco = false;
        int fatti = 0;
        for (int c = 1; c <= p.Colpi; ++c) {
            const int j = i + c;
            if (j > n) {
                inGioco = true;
                break;
            }
            fatti = c;
            if (m == 4) {
                bool vintoQui = false;
                for (int w = 1; w <= 11; ++w) {
                    int s = 0;
                    for (int k = 1; k <= 5; ++k) {
                        const int x = st[j].Numero(w, k);
                        if (x == Se)
                            s++;
                        else if (Se != I && x == I)
                            s++;
                    }
                    if (s != 2) continue;
                    VinciteRuota[w]++;
                    if (VinciteRuota[w] > MaxRuota) MaxRuota = VinciteRuota[w];
                    std::vector<std::string> r;
                    if (!vinta) {
                        e.Vincenti++;
                        e.SommaColpi += c;
                        vinta = true;
                        r = testa();
                    } else {
                        r = {"", "", "", "", ""};
                    }
                    r.push_back(std::to_string(c));
                    r.push_back(studies::NomeRuota(w));
                    r.insert(r.end(), {"-", "-", "-", "1"});
                    riga(r);
                    vintoQui = true;
                }
                if (vintoQui && p.SoloPrima) break;
                continue;
            }
            int k = 0, s = 0;
            for (int pos = 1; pos <= 5; ++pos) {
                const int x = st[j].Numero(p.Ruota, pos);
                for (int u : unici)
                    if (x == u) k++;
                if (x != 0 && x == Se) s++;
                if (x != 0 && Se != I && x == I) s++;
            }
            if (!(k >= m || s >= m)) continue;
            int vE = 0, vA = 0, vT = 0, vEs = 0, vAs = 0;
            if (s >= m) {
                vEs = s;
                if (s == 2) vAs = 1;
            }
            if (k >= m) {
                vE = k;
                vA = k * (k - 1) / 2;
                vT = k * (k - 1) * (k - 2) / 6;
            }
            pE += vE, pA += vA, pT += vT, pEs += vEs, pAs += vAs;
            std::vector<std::string> r;
            if (!vinta) {
                e.Vincenti++;
                e.SommaColpi += c;
                vinta = true;
                r = testa();
            } else {
                r = {"", "", "", "", ""};
            }
            r.push_back(std::to_string(c));
            const auto t = [](int v) { return std::to_string(v); };
            if (m == 1) r.insert(r.end(), {t(vE), t(vA), t(vT), t(vEs), t(vAs)});
            if (m == 2) r.insert(r.end(), {"-", t(vA), t(vT), "-", t(vAs)});
            if (m == 3) r.insert(r.end(), {"-", "-", t(vT), "-", "-"});
            riga(r);
            if (p.SoloPrima) break;
        }
        if (inGioco) e.InGioco++;
        TotE += pE, TotA += pA, TotT += pT, TotEs += pEs, TotAs += pAs;
        if (m != 4 && !p.SoloPrima && vinta) {
            const auto t = [](bool si, int v) { return si && v > 0 ? std::to_string(v) : std::string(); };
            riga({"", "", "", "", "", "Tot.", t(m == 1, pE), t(m < 3, pA), t(true, pT), t(m == 1, pEs), t(m < 3, pAs)});
            if (!inGioco) riga({});
        }
        if (inGioco) {
            std::vector<std::string> r = vinta ? std::vector<std::string>{"", "", "", "", ""} : testa();
            r.push_back(" In ");
            r.push_back("gioco");
            r.push_back("-" + std::to_string(p.Colpi - fatti));
            riga(r);
            if (!p.SoloPrima) riga({});
        }
    }
    if (m != 4) {
        riga({"", "", "", "", "", "", "___", "___", "___", "___", "___"});
        const auto t = [](int v) { return std::to_string(v); };
        if (m == 1) riga({"", "", "", "", "", "Totali", t(TotE), t(TotA), t(TotT), t(TotEs), t(TotAs)});
        if (m == 2) riga({"", "", "", "", "", "Totali", "-", t(TotA), t(TotT), "-", t(TotAs)});
        if (m == 3) riga({"", "", "", "", "", "Totali", "-", "-", t(TotT), "-", "-"});
    } else {
        riga({});
        int somma = 0;
        for (int w = 1; w <= 11; ++w) somma += VinciteRuota[w];
        riga({"", "", "", "", "", "", "Tot.", "", "", "", std::to_string(somma)});
        riga({});
        for (int w = 1; w <= 11; ++w)
            if (VinciteRuota[w] == MaxRuota)
                riga({"", "", "", "Ruota migliore", "", "", studies::NomeRuota(w), "", "", "",
                      std::to_string(MaxRuota)});
    }
    // The summary line, as the label shows it.
    studies::EsitoStorica d;
    d.Giocate = e.Giocate, d.Vincenti = e.Vincenti, d.InGioco = e.InGioco, d.SommaColpi = e.SommaColpi;
    for (int w = 1; w <= 11; ++w) d.VinciteRuota[static_cast<size_t>(w)] = VinciteRuota[w];
    d.MaxRuota = MaxRuota;
    d.tag = e.tag;
    studies::ScriviDescrizione(d, p);
    e.descrizione = d.descrizione;
    e.tag = d.tag;
    return e;
}

RiepilogoLetterale RiepilogoRuoteLetterale(const archives::StoriaLotto& s, const studies::ParametriVerifica& p,
                                           std::string tag) {
    RiepilogoLetterale r;
    double massimo = -1;
    std::vector<double> perc;
    for (int w = 1; w <= 11; ++w) {
        studies::ParametriVerifica q = p;
        q.Ruota = w;
        const StoricaLetterale e = VerificaStoricaLetterale(s, q, true, tag);
        tag = e.tag;
        r.descrizioni.push_back(e.descrizione);
        perc.push_back(studies::LeggiTag(tag));
        if (perc.back() > massimo) massimo = perc.back();
    }
    for (double v : perc) r.rosso.push_back(v == massimo);
    r.tag = tag;
    return r;
}

}  // namespace gorgo::test
