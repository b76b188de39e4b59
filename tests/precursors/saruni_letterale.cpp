#include "precursors/saruni_letterale.h"

#include <fmt/format.h>

#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include "config/formato.h"

namespace gorgo::test {

using namespace precursors;

namespace {

struct Tabella {
    std::vector<std::vector<int>> codice = std::vector<std::vector<int>>(91, std::vector<int>(91));
    std::vector<std::string> testo = std::vector<std::string>(4006);
    Tabella() {
        int c = 0;
        for (int a = 1; a <= 89; ++a)
            for (int b = a + 1; b <= 90; ++b) {
                ++c;
                codice[static_cast<size_t>(a)][static_cast<size_t>(b)] = c;
                codice[static_cast<size_t>(b)][static_cast<size_t>(a)] = c;
                testo[static_cast<size_t>(c)] = fmt::format("{:02d}-{:02d}", a, b);
            }
    }
};

std::string Destra(long long v, int l) { return config::AllineaDestra(std::to_string(v), l); }

}  // namespace

EsitoPrecursori AnalisiSaruniLetterale(const ParametriSaruni& ps, const archives::StoriaLotto& s, int ruota) {
    static const Tabella T;
    const ParametriPrecursori& p = ps.base;
    EsitoPrecursori e;
    const bool ambi = p.sorte == Sorte::Ambi;
    e.titoli = {ambi ? "  Ambo" : "Ambata", "Presenze", "Precursori rilevati", " %"};
    e.titoliPresenti = {ambi ? "Ambo" : "Ambata", "Precursori presenti", "Rit.sto", "Rit.att", "Pres.", "%"};
    e.inizio = p.Inizio;
    if (ruota == 11 && e.inizio < 7441) {
        e.avviso = {AvvisoNazionale(), "Attenzione", archives::Icona::Esclamazione};
        e.inizio = 7441;
    }
    auto errore = [&](std::string t, const char* focus = "") {
        e.errore = {std::move(t), "Errore", archives::Icona::Esclamazione};
        e.focus = focus;
        return e;
    };
    if (p.Precedenti < 1 || p.Precedenti > 99)
        return errore("Inserire il numero di estrazioni precedenti nelle quali cercare i precursori!", "txtPrecedenti");
    if (p.NumPrecursori < 1 || p.NumPrecursori > 9) return errore("Inserire il numero di precursori!", "txtPrecursori");
    if (p.Successivi < 1 || p.Successivi > 99)
        return errore("Inserire il numero di colpi successivi da analizzare!", "txtSuccessivi");
    const bool coppie = ps.Tipo == TipoPrecursori::Ambi;
    const bool adiacenti = coppie && ps.AmbiAdiacenti;
    std::string posizioni;
    int scelte = 0;
    for (int u = 1; u <= 5; ++u) {
        const bool si = !ps.PosizioneDeterminata || ps.Posizioni[static_cast<size_t>(u)];
        posizioni += si ? "X" : " ";
        scelte += si;
    }
    if (scelte < (coppie ? 2 : 1))
        return errore("Scegliere almeno " + std::to_string(coppie ? 2 : 1) + " posizioni estrattive!");
    if (adiacenti && posizioni.find("XX") == std::string::npos)
        return errore("Le posizioni inserite non sono compatibili con gli ambi uniti!");

    const int K = p.NumPrecursori, M = coppie ? 4005 : 90;
    const int32_t N = s.NumeroEstrazioni();
    auto num = [&](int32_t i, int pos) { return static_cast<int>(s[i].Numero(ruota, pos)); };
    std::vector<int> presAmbata(91);
    std::vector<std::vector<int>> presAmbo(91, std::vector<int>(91));
    std::vector<std::vector<int>> contaAmbata(static_cast<size_t>(M) + 1, std::vector<int>(91));  // [p][n]
    std::map<std::tuple<int, int, int>, int> contaAmbo;                                           // (p, a, b)
    for (int32_t i = e.inizio; i <= p.Fine; ++i) {
        if (num(i, 1) == 0) continue;
        std::vector<int> E;
        for (int k = 1; k <= 5; ++k) E.push_back(num(i, k));
        for (int x : E) ++presAmbata[static_cast<size_t>(x)];
        for (size_t a = 0; a < 5; ++a)
            for (size_t b = a + 1; b < 5; ++b) {
                ++presAmbo[static_cast<size_t>(E[a])][static_cast<size_t>(E[b])];
                ++presAmbo[static_cast<size_t>(E[b])][static_cast<size_t>(E[a])];
            }
        std::vector<bool> visti(static_cast<size_t>(M) + 1);
        auto conta = [&](int x) {
            if (x == 0 || visti[static_cast<size_t>(x)]) return;
            for (int n : E) ++contaAmbata[static_cast<size_t>(x)][static_cast<size_t>(n)];
            for (size_t a = 0; a < 5; ++a)
                for (size_t b = a + 1; b < 5; ++b) {
                    ++contaAmbo[{x, E[a], E[b]}];
                    ++contaAmbo[{x, E[b], E[a]}];
                }
            visti[static_cast<size_t>(x)] = true;
        };
        int32_t j = i - 1;
        for (int passi = 0; passi < p.Precedenti && j >= 1; ++passi, --j) {
            if (num(j, 1) == 0) continue;
            for (int u = 1; u <= 5; ++u) {
                if (posizioni[static_cast<size_t>(u - 1)] != 'X') continue;
                if (!coppie) {
                    conta(num(j, u));
                    continue;
                }
                for (int v = u + 1; v <= 5; ++v) {
                    if (posizioni[static_cast<size_t>(v - 1)] != 'X') continue;
                    if (adiacenti && posizioni.substr(static_cast<size_t>(u - 1), 2) != "XX") continue;
                    if (adiacenti && v != u + 1) continue;
                    conta(T.codice[static_cast<size_t>(num(j, u))][static_cast<size_t>(num(j, v))]);
                }
            }
        }
    }
    e.descrizioneStatistica = "Rilevazione precursori dal " + s.DataEstrazione(e.inizio) + " al " +
                              s.DataEstrazione(p.Fine) + " nei " + std::to_string(p.Precedenti) + " colpi precedenti";
    auto conteggio = [&](int x, int a, int b) {
        if (!ambi) return contaAmbata[static_cast<size_t>(x)][static_cast<size_t>(a)];
        const auto it = contaAmbo.find({x, a, b});
        return it == contaAmbo.end() ? 0 : it->second;
    };
    auto classifica = [&](int a, int b) {
        std::vector<std::string> t;
        for (int x = 1; x <= M; ++x)
            t.push_back(coppie ? fmt::format("{:05d} {:04d}", conteggio(x, a, b), x)
                               : fmt::format("{:05d} {:02d}", conteggio(x, a, b), x));
        std::sort(t.begin(), t.end());
        std::vector<int> m;
        for (int k = 0; k < K; ++k) m.push_back(std::stoi(t[t.size() - 1 - static_cast<size_t>(k)].substr(6)));
        return m;
    };
    std::map<int, std::vector<int>> migliori;
    auto riga = [&](int a, int b, int presenze) {
        const std::vector<int> m = classifica(a, b);
        RigaPrecursori r;
        r.chiave = ambi ? a * 100 + b : a;
        migliori[r.chiave] = m;
        r.voce = ambi ? std::to_string(a) + " - " + std::to_string(b) : std::to_string(a);
        r.testo[0] = ambi ? Destra(a, 4) + " - " + Destra(b, 2) : Destra(a, 5);
        r.presenze = presenze;
        r.precursori = m;
        r.testo[1] = Destra(presenze, 4);
        int somma = 0;
        std::string t;
        for (int x : m) {
            somma += conteggio(x, a, b);
            t += coppie ? (t.empty() ? "" : ", ") + T.testo[static_cast<size_t>(x)] : Destra(x, 3) + " -";
        }
        r.testo[2] = coppie ? t : t.substr(0, t.size() - 1);
        r.testo[3] = config::AllineaDestra(config::Formato(static_cast<double>(somma) / presenze / K, "#0.00%"), 7);
        e.lista.push_back(r);
    };
    if (!ambi) {
        for (int n = 1; n <= 90; ++n)
            if (p.Considerato[static_cast<size_t>(n)] && presAmbata[static_cast<size_t>(n)] > 1)
                riga(n, 0, presAmbata[static_cast<size_t>(n)]);
    } else {
        for (int a = 1; a <= 89; ++a)
            for (int b = a + 1; b <= 90; ++b)
                if (p.Considerato[static_cast<size_t>(a)] && p.Considerato[static_cast<size_t>(b)] &&
                    presAmbo[static_cast<size_t>(a)][static_cast<size_t>(b)] > 5)
                    riga(a, b, presAmbo[static_cast<size_t>(a)][static_cast<size_t>(b)]);
    }
    const size_t col = p.PerPercentuale ? 3 : 1;
    std::stable_sort(e.lista.begin(), e.lista.end(),
                     [col](const auto& x, const auto& y) { return x.testo[col] > y.testo[col]; });

    const int32_t da = p.IndiceVerifica - (p.Successivi - 1);
    e.descrizioneVerifica =
        "Verifica presenze precursori dal " + s.DataEstrazione(da) + " al " + s.DataEstrazione(p.IndiceVerifica);
    std::vector<bool> pv(91);
    for (int32_t i = p.IndiceVerifica; i >= da; --i)
        if (i >= 1 && i <= N)
            for (int k = 1; k <= 5; ++k) pv[static_cast<size_t>(num(i, k))] = true;
    auto presente = [&](int x) {
        if (!coppie) return static_cast<bool>(pv[static_cast<size_t>(x)]);
        const std::string& t = T.testo[static_cast<size_t>(x)];
        return pv[static_cast<size_t>(std::stoi(t.substr(0, 2)))] && pv[static_cast<size_t>(std::stoi(t.substr(3)))];
    };
    std::vector<std::string> ordine;
    std::map<int, std::pair<int, std::string>> presenti;
    for (size_t r = 0; r < e.lista.size() && r < 20; ++r) {
        const int c = e.lista[r].chiave;
        int quanti = 0;
        std::string t;
        for (int x : migliori[c])
            if (presente(x)) {
                ++quanti;
                t += coppie ? T.testo[static_cast<size_t>(x)] + ", " : ambi ? Destra(x, 2) + "-" : Destra(x, 2) + " - ";
            }
        if (quanti == 0) continue;
        presenti[c] = {quanti, t};
        ordine.push_back(ambi ? fmt::format("{:03d} {:>2} - {:>2}", quanti, c / 100, c % 100)
                              : fmt::format("{:03d} {:>2}", quanti, c));
    }
    std::sort(ordine.begin(), ordine.end());
    for (size_t r = 0; r < ordine.size() && r < 20; ++r) {
        const std::string& o = ordine[ordine.size() - 1 - r];
        const int a = ambi ? std::stoi(o.substr(4, 2)) : std::stoi(o.substr(4)),
                  b = ambi ? std::stoi(o.substr(9, 2)) : 0;
        const int c = ambi ? a * 100 + b : a;
        auto [quanti, lista] = presenti[c];
        lista = lista.substr(0, lista.size() - (coppie ? 2 : ambi ? 1 : 3));
        RigaPresenti x;
        x.chiave = c;
        x.voce = ambi ? std::to_string(a) + " - " + std::to_string(b) : std::to_string(a);
        x.testo[0] = ambi ? Destra(a, 4) + " - " + Destra(b, 2) : Destra(a, 5);
        x.testo[1] = Destra(quanti, 3) + " (" + lista + ")";
        int32_t ultima = e.inizio - 1, storico = 0;
        for (int32_t i = e.inizio; i <= N; ++i) {
            bool ha = false, hb = !ambi;
            for (int k = 1; k <= 5; ++k) {
                ha = ha || num(i, k) == a;
                hb = hb || num(i, k) == b;
            }
            if (ha && hb) {
                storico = std::max(storico, i - ultima - 1);
                ultima = i;
            }
        }
        const int presenze =
            ambi ? presAmbo[static_cast<size_t>(a)][static_cast<size_t>(b)] : presAmbata[static_cast<size_t>(a)];
        if (ultima == e.inizio - 1) {
            x.testo[2] = " - -";
            x.testo[3] = x.testo[4] = x.testo[5] = " -";
        } else {
            x.testo[2] = Destra(storico, 5);
            x.testo[3] = Destra(N - ultima, 5);
            x.colore = N - ultima > p.Successivi ? Colore::Verde : Colore::Marrone;
            x.testo[4] = Destra(presenze, 4);
            // The list split as the system splits it: at ", " for pairs, else at " - ".
            std::vector<std::string> parti;
            const std::string sep = coppie ? ", " : " - ";
            for (size_t inizio = 0;;) {
                const size_t f = lista.find(sep, inizio);
                parti.push_back(lista.substr(inizio, f - inizio));
                if (f == std::string::npos) break;
                inizio = f + sep.size();
            }
            int somma = 0;
            for (const std::string& t : parti) {
                const int el = coppie ? T.codice[static_cast<size_t>(std::stoi(t.substr(0, 2)))]
                                                [static_cast<size_t>(std::stoi(t.substr(3)))]
                                      : std::stoi(t.substr(0, t.find('-')));
                somma += conteggio(el, a, b);
            }
            x.testo[5] = config::AllineaDestra(
                config::Formato(static_cast<double>(somma) / presenze / static_cast<double>(parti.size()), "#0.0%"), 6);
        }
        e.presenti.push_back(x);
    }
    return e;
}

}  // namespace gorgo::test
