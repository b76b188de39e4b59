#include "studies/numeri_simpatici.h"

#include <fmt/format.h>

#include <algorithm>

#include "config/formato.h"

namespace gorgo::studies {

namespace {

using config::Formato;

constexpr size_t Ambi = 90 * 91 + 91;
constexpr size_t IndiceAmbo(int a, int b) { return static_cast<size_t>(b) * 91 + static_cast<size_t>(a); }

bool Ammessa(const config::Restrizioni& r, const archives::RecordEstrazione& e) {
    if (!r.Giorno && !r.Mese && !r.Periodo) return true;
    return config::EstrazioneAmmessa(r, e.dataCifre(), e.GiornoSettimana);
}

// The five numbers of a wheel, or false when one is below 1 (the wheel ends there).
bool CinquinaPiena(const archives::RecordEstrazione& e, int w, std::array<int, 5>& n) {
    for (int k = 0; k < 5; ++k) {
        n[static_cast<size_t>(k)] = e.Numero(w, k + 1);
        if (n[static_cast<size_t>(k)] < 1) return false;
    }
    return true;
}

// Rank of a sorted quaterna of 1..90 among the C(90, 4).
struct Binomiali {
    std::array<std::array<uint32_t, 5>, 91> c{};
    Binomiali() {
        for (int n = 0; n <= 90; ++n) {
            c[static_cast<size_t>(n)][0] = 1;
            for (int k = 1; k <= 4; ++k)
                c[static_cast<size_t>(n)][static_cast<size_t>(k)] =
                    n == 0 ? 0
                           : c[static_cast<size_t>(n - 1)][static_cast<size_t>(k - 1)] +
                                 c[static_cast<size_t>(n - 1)][static_cast<size_t>(k)];
        }
    }
    uint32_t Rango(int a, int b, int x, int y) const {
        return c[static_cast<size_t>(a - 1)][1] + c[static_cast<size_t>(b - 1)][2] + c[static_cast<size_t>(x - 1)][3] +
               c[static_cast<size_t>(y - 1)][4];
    }
};
const Binomiali& B() {
    static const Binomiali b;
    return b;
}
constexpr uint32_t Quaterne = 2555190;

}  // namespace

std::string TestoAmbo(int a, int b) { return Formato(a, "00") + "-" + Formato(b, "00"); }
std::string TestoAnalizzati(int ambi) { return std::to_string(ambi) + " ambi analizzati su 4005"; }

archives::Messaggio ControllaSimultanea(const ParametriSimultanea& p, bool conCoppia) {
    if (conCoppia && (p.Coppia[0] < 1 || p.Coppia[1] < 1))
        return {std::string(MessaggioDueNumeri), "", archives::Icona::Esclamazione};
    if (p.Al < p.Dal) return {std::string(MessaggioDateSimultanea), "", archives::Icona::Esclamazione};
    return {};
}

std::pair<int, int> RuotaMigliore(const std::array<int, 12>& f) {
    int migliore = 1;
    for (int w = 2; w <= archives::NumeroRuote; ++w)
        if (f[static_cast<size_t>(w)] >= f[static_cast<size_t>(migliore)]) migliore = w;
    return {migliore, f[static_cast<size_t>(migliore)]};
}

double IndiceConvenienza(int frequenza, int analizzate, int ritardo) {
    if (analizzate == 0) return 0;
    return static_cast<double>(frequenza) / analizzate * ritardo;
}

void ColonneStatistica(Riga& r, const StatisticaAmbo& a, bool ritardoSimultaneo) {
    r.testo(Formato(a.Abbinamenti, "@@@@"))
        .testo(Formato(a.Ritardo, "@@@@"))
        .testo(Formato(a.RitardoMax, "@@@@"))
        .testo(Formato(a.Frequenza, "@@@@"))
        .testo(Formato(a.IC, "#0.0000"))
        .testo(config::AllineaDestra(Formato(a.FrequenzaMigliore, "####0"), 5) + "  " + NomeRuota(a.RuotaMigliore));
    if (ritardoSimultaneo) r.testo(Formato(a.RitardoSimultaneo, "@@@@"));
    r.valore("abbinamenti", a.Abbinamenti).valore("ritardo", a.Ritardo).valore("ritardo_max", a.RitardoMax);
    r.valore("frequenza", a.Frequenza).valore("ic", a.IC).valore("ruota_migliore", a.RuotaMigliore);
    r.valore("frequenza_migliore", a.FrequenzaMigliore);
    if (ritardoSimultaneo) r.valore("ritardo_simultaneo", a.RitardoSimultaneo);
}

std::string TestoRuote(const std::array<bool, 12>& ruote) {
    bool tutte = true;
    for (int w = 1; w <= 10; ++w) tutte = tutte && ruote[static_cast<size_t>(w)];
    if (tutte) return ruote[11] ? " Tutte + NZ" : " Tutte";
    std::string t;
    for (int w = 1; w <= archives::NumeroRuote; ++w)
        if (ruote[static_cast<size_t>(w)]) t += " " + NomeRuota(w);
    return t;
}

EsitoSimultanea RicercaSimultanea(const archives::StoriaLotto& st, const ParametriSimultanea& p) {
    EsitoSimultanea e;
    if (e.errore = ControllaSimultanea(p, true); !e.errore.vuoto()) return e;
    std::vector<int> abb(Ambi), ultimaSim(Ambi), freq(Ambi), ultima(Ambi), rit(Ambi), ritMax(Ambi);
    std::vector<std::array<int, 12>> freqRuota(Ambi);
    const int x = p.Coppia[0], y = p.Coppia[1];
    std::array<int, 5> n{};
    // Pass 1: the cinquine with the ambo, and their companions.
    for (int32_t i = p.Dal; i <= p.Al; ++i) {
        const archives::RecordEstrazione& r = st[i];
        if (!Ammessa(p.restrizioni, r)) continue;
        bool contata = false;
        for (int w = 1; w <= archives::NumeroRuote; ++w) {
            if (!p.RuoteScelte[static_cast<size_t>(w)]) continue;
            if (r.Numero(w, 1) >= 1 && !contata) {
                ++e.EstrazioniAnalizzate;
                contata = true;
            }
            if (!CinquinaPiena(r, w, n)) continue;
            if (std::find(n.begin(), n.end(), x) == n.end() || std::find(n.begin(), n.end(), y) == n.end()) continue;
            ++abb[IndiceAmbo(x, y)];
            std::vector<int> altri;
            for (int v : n)
                if (v != x && v != y) altri.push_back(v);
            std::sort(altri.begin(), altri.end());
            for (size_t u = 0; u < altri.size(); ++u)
                for (size_t v = u + 1; v < altri.size(); ++v) {
                    ++abb[IndiceAmbo(altri[u], altri[v])];
                    ultimaSim[IndiceAmbo(altri[u], altri[v])] = i;
                }
        }
    }
    // Passes 2 and 3: frequencies (admitted draws) and delays (every draw) of those ambi.
    const auto ambiDi = [&](const archives::RecordEstrazione& r, int w, auto&& f) {
        std::array<int, 5> c = {r.Numero(w, 1), r.Numero(w, 2), r.Numero(w, 3), r.Numero(w, 4), r.Numero(w, 5)};
        std::sort(c.begin(), c.end());
        for (int u = 0; u < 5; ++u)
            for (int v = u + 1; v < 5; ++v) {
                const size_t k = IndiceAmbo(c[static_cast<size_t>(u)], c[static_cast<size_t>(v)]);
                if (abb[k] > 0) f(k);
            }
    };
    for (int32_t i = p.Al; i >= p.Dal; --i) {
        if (!Ammessa(p.restrizioni, st[i])) continue;
        for (int w = 1; w <= archives::NumeroRuote; ++w)
            if (p.RuoteScelte[static_cast<size_t>(w)])
                ambiDi(st[i], w, [&](size_t k) {
                    ++freq[k];
                    ++freqRuota[k][static_cast<size_t>(w)];
                });
    }
    std::fill(ultima.begin(), ultima.end(), p.Dal);
    for (int32_t i = p.Dal; i <= p.Al; ++i)
        for (int w = 1; w <= archives::NumeroRuote; ++w)
            if (p.RuoteScelte[static_cast<size_t>(w)])
                ambiDi(st[i], w, [&](size_t k) {
                    rit[k] = i - ultima[k] - 1;
                    ultima[k] = i;
                    ritMax[k] = std::max(ritMax[k], rit[k]);
                });
    for (size_t k = 0; k < Ambi; ++k) {
        rit[k] = p.Al - ultima[k];
        ritMax[k] = std::max(ritMax[k], rit[k]);
    }
    const auto statistica = [&](int a, int b) {
        const size_t k = IndiceAmbo(a, b);
        StatisticaAmbo s{a, b, abb[k], rit[k], ritMax[k], freq[k]};
        s.IC = IndiceConvenienza(s.Frequenza, e.EstrazioniAnalizzate, s.Ritardo);
        std::tie(s.RuotaMigliore, s.FrequenzaMigliore) = RuotaMigliore(freqRuota[k]);
        s.RitardoSimultaneo = p.Al - ultimaSim[k];
        return s;
    };
    for (int a = 1; a <= 89; ++a)
        for (int b = a + 1; b <= 90; ++b) {
            if (abb[IndiceAmbo(a, b)] == 0 || a == x || b == y) continue;
            Riga r;
            r.grassetto = true;
            r.colore = colori::Blu;
            r.testo(TestoAmbo(a, b));
            ColonneStatistica(r, statistica(a, b), true);
            e.righe.push_back(std::move(r));
        }
    Riga c;
    c.grassetto = true;
    c.colore = colori::Rosso;
    c.testo(TestoAmbo(x, y));
    ColonneStatistica(c, statistica(x, y), false);
    e.righeCoppia.push_back(std::move(c));
    e.analizzate = std::to_string(e.EstrazioniAnalizzate) + " estrazioni analizzate";
    return e;
}

EsitoGenerale StatisticaGenerale(const archives::StoriaLotto& st, const ParametriSimultanea& p,
                                 const Avanzamento& avanzamento) {
    EsitoGenerale e;
    if (e.errore = ControllaSimultanea(p, false); !e.errore.vuoto()) return e;
    // One pass: every cinquina of an admitted draw counts its five quaterne (an ambo and a
    // companion ambo make one), with the last draw of each; the frequencies and delays of the
    // ambi do not depend on the searched ambo, so they are counted once for all.
    std::vector<uint16_t> quaterne(Quaterne);
    std::vector<int32_t> ultimaQuaterna(Quaterne);
    std::vector<std::array<uint8_t, 4>> uscite;  // the quaterne that came out, once each
    std::vector<std::array<int, 12>> freqRuota(Ambi);
    std::vector<int> freq(Ambi), ultima(Ambi, p.Dal), rit(Ambi), ritMax(Ambi);
    int analizzate = 0;
    for (int32_t i = p.Dal; i <= p.Al; ++i) {
        const archives::RecordEstrazione& r = st[i];
        const bool ammessa = Ammessa(p.restrizioni, r);
        bool contata = false;
        for (int w = 1; w <= archives::NumeroRuote; ++w) {
            if (!p.RuoteScelte[static_cast<size_t>(w)]) continue;
            std::array<int, 5> c = {r.Numero(w, 1), r.Numero(w, 2), r.Numero(w, 3), r.Numero(w, 4), r.Numero(w, 5)};
            if (ammessa && c[0] >= 1 && !contata) {
                ++analizzate;
                contata = true;
            }
            const bool piena = std::all_of(c.begin(), c.end(), [](int v) { return v >= 1; });
            std::sort(c.begin(), c.end());
            if (ammessa && piena)
                for (int fuori = 0; fuori < 5; ++fuori) {
                    std::array<uint8_t, 4> q{};
                    for (int k = 0, h = 0; k < 5; ++k)
                        if (k != fuori) q[static_cast<size_t>(h++)] = static_cast<uint8_t>(c[static_cast<size_t>(k)]);
                    const uint32_t rq = B().Rango(q[0], q[1], q[2], q[3]);
                    if (quaterne[rq]++ == 0) uscite.push_back(q);
                    ultimaQuaterna[rq] = i;
                }
            for (int u = 0; u < 5; ++u)
                for (int v = u + 1; v < 5; ++v) {
                    if (c[static_cast<size_t>(u)] < 1) continue;
                    const size_t k = IndiceAmbo(c[static_cast<size_t>(u)], c[static_cast<size_t>(v)]);
                    if (ammessa) {
                        ++freq[k];
                        ++freqRuota[k][static_cast<size_t>(w)];
                    }
                    rit[k] = i - ultima[k] - 1;
                    ultima[k] = i;
                    ritMax[k] = std::max(ritMax[k], rit[k]);
                }
        }
    }
    for (size_t k = 0; k < Ambi; ++k) {
        rit[k] = p.Al - ultima[k];
        ritMax[k] = std::max(ritMax[k], rit[k]);
    }
    // Each quaterna is an ambo with its companion in six ways: the greatest count of each ambo,
    // then the companions at that count.
    static constexpr int Divisioni[6][4] = {{0, 1, 2, 3}, {0, 2, 1, 3}, {0, 3, 1, 2},
                                            {1, 2, 0, 3}, {1, 3, 0, 2}, {2, 3, 0, 1}};
    std::vector<uint16_t> massimo(Ambi);
    for (const auto& q : uscite) {
        const uint16_t c = quaterne[B().Rango(q[0], q[1], q[2], q[3])];
        for (const auto& d : Divisioni) {
            uint16_t& m = massimo[IndiceAmbo(q[static_cast<size_t>(d[0])], q[static_cast<size_t>(d[1])])];
            m = std::max(m, c);
        }
    }
    struct Compagno {
        uint32_t ambo, compagno, rango;
    };
    std::vector<Compagno> compagni;
    // The order of the ambi: x then y, as the rows of the literal walk.
    const auto ordine = [](int a, int b) { return static_cast<uint32_t>(a * 91 + b); };
    for (const auto& q : uscite) {
        const uint32_t rq = B().Rango(q[0], q[1], q[2], q[3]);
        for (const auto& d : Divisioni) {
            const int x = q[static_cast<size_t>(d[0])], y = q[static_cast<size_t>(d[1])];
            if (quaterne[rq] != massimo[IndiceAmbo(x, y)]) continue;
            const int a = q[static_cast<size_t>(d[2])], b = q[static_cast<size_t>(d[3])];
            compagni.push_back({ordine(x, y), ordine(a, b), rq});
        }
    }
    std::sort(compagni.begin(), compagni.end(), [](const Compagno& u, const Compagno& v) {
        return u.ambo != v.ambo ? u.ambo < v.ambo : u.compagno < v.compagno;
    });
    // The rows, a block of ambi at a time so that a stop keeps whole ambi in order.
    int fatti = 0, numero = 0;
    size_t k = 0;
    for (int x = 1; x <= 89 && !e.fermato; ++x) {
        if (avanzamento.stop.stop_requested()) {
            e.fermato = true;
            break;
        }
        for (int y = x + 1; y <= 90; ++y) {
            ++fatti;
            bool prima = true;
            for (; k < compagni.size() && compagni[k].ambo == ordine(x, y); ++k) {
                const int a = static_cast<int>(compagni[k].compagno / 91),
                          b = static_cast<int>(compagni[k].compagno % 91);
                const size_t ka = IndiceAmbo(a, b);
                StatisticaAmbo s{a, b, quaterne[compagni[k].rango], rit[ka], ritMax[ka], freq[ka]};
                s.IC = IndiceConvenienza(s.Frequenza, analizzate, s.Ritardo);
                std::tie(s.RuotaMigliore, s.FrequenzaMigliore) = RuotaMigliore(freqRuota[ka]);
                s.RitardoSimultaneo = p.Al - ultimaQuaterna[compagni[k].rango];
                Riga r;
                r.testo(prima ? TestoAmbo(x, y) : "", colori::Rosso, true);
                r.testo(TestoAmbo(a, b), colori::Blu, true);
                ColonneStatistica(r, s, true);
                r.valore("x", x).valore("y", y);
                r.chiave = Formato(++numero, "00000");
                e.righe.push_back(std::move(r));
                prima = false;
            }
        }
        if (avanzamento.progresso) avanzamento.progresso(TestoAnalizzati(fatti), fatti, 4005);
    }
    e.AmbiAnalizzati = fatti;
    e.analizzati = TestoAnalizzati(e.AmbiAnalizzati);
    return e;
}

config::ReportTesto ReportSimultanea(const archives::StoriaLotto& st, const ParametriSimultanea& p,
                                     const EsitoSimultanea& e, bool coppia, bool abbinati) {
    config::ReportTesto rep;
    rep.riga("Ricerca simultanea per il gioco della quaterna ");
    rep.riga("Ambo : " + TestoAmbo(p.Coppia[0], p.Coppia[1]) + "   Dal " + st.DataEstrazione(p.Dal) + " al " +
             st.DataEstrazione(p.Al));
    rep.riga("Sulle ruote : " + TestoRuote(p.RuoteScelte));
    const auto tabella = [&](const std::string& regola, const std::string& testa, const std::vector<Riga>& righe,
                             int primaLarghezza) {
        rep.rigaVuota().riga(regola).riga(testa).riga(regola);
        for (const Riga& r : righe) {
            std::string t = "| " + config::AllineaSinistra(r.celle[0].testo, primaLarghezza - 1) + "|";
            static constexpr int larghezze[6] = {9, 9, 9, 7, 10, 16};
            for (size_t k = 1; k < r.celle.size() && k <= 6; ++k)
                t += config::AllineaDestra(r.celle[k].testo + " ", larghezze[k - 1]) + "|";
            rep.riga(t);
        }
        rep.riga(regola);
    };
    if (coppia)
        tabella("*----------------*---------*---------*---------*-------*----------*----------------*",
                "| Ambo ricercato | Sortite | Ritardo | Rit.Max | Freq. |   I.C.   | Ruota migliore |", e.righeCoppia,
                16);
    if (abbinati)
        tabella("*--------*---------*---------*---------*-------*----------*----------------*",
                "| Ambo   | Abbinam.| Ritardo | Rit.Max | Freq. |   I.C.   | Ruota migliore |", e.righe, 8);
    return rep;
}

config::ReportTesto ReportGenerale(const archives::StoriaLotto& st, const ParametriSimultanea& p,
                                   const EsitoGenerale& e) {
    config::ReportTesto rep;
    rep.riga("Ricerca simultanea per il gioco della quaterna ");
    rep.riga("Tutti gli ambi dal " + st.DataEstrazione(p.Dal) + " al " + st.DataEstrazione(p.Al));
    rep.riga("Sulle ruote : " + TestoRuote(p.RuoteScelte));
    const std::string regola =
        "*----------------*---------------*---------*---------*---------*-------*----------*----------------*"
        "------------*";
    rep.rigaVuota()
        .riga(regola)
        .riga(
            "| Ambo ricercato | Ambi abbinati | Abbinam.| Ritardo | Rit.Max | Freq. |   I.C.   | Ruota migliore | "
            "Rit. simul.|")
        .riga(regola);
    static constexpr int larghezze[9] = {16, 15, 9, 9, 9, 7, 10, 16, 12};
    for (const Riga& r : e.righe) {
        std::string t = "|";
        for (size_t k = 0; k < 9 && k < r.celle.size(); ++k)
            t += k < 2 ? " " + config::AllineaSinistra(r.celle[k].testo, larghezze[k] - 1) + "|"
                       : config::AllineaDestra(r.celle[k].testo + " ", larghezze[k]) + "|";
        rep.riga(t);
    }
    rep.riga(regola);
    return rep;
}

}  // namespace gorgo::studies
