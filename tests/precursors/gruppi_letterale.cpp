#include "precursors/gruppi_letterale.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <string>

#include "archives/record.h"
#include "config/formato.h"

namespace gorgo::test {

using namespace precursors;

namespace {

struct Lettura {
    bool vuota = true;
    std::array<int, 5> numeri{};
};

Lettura Leggi(const archives::StoriaLotto& s, int ruota, int32_t i) {
    Lettura l;
    if (i < 1 || i > s.NumeroEstrazioni()) return l;
    for (int k = 1; k <= 5; ++k) l.numeri[static_cast<size_t>(k - 1)] = s[i].Numero(ruota, k);
    l.vuota = l.numeri[0] == 0;
    return l;
}

std::string Data(const archives::StoriaLotto& s, int32_t i) {
    return s[std::clamp(i, 1, s.NumeroEstrazioni())].dataTesto();
}

std::string Destra(long long v, int l) { return config::AllineaDestra(std::to_string(v), l); }

// The weighted test of an element against the five extracts of a draw.
bool Presente(const std::vector<int>& elemento, const Lettura& d, int minime) {
    const int w = elemento.size() == 1 ? minime : 1;
    int somma = 0;
    for (int n : elemento)
        for (int x : d.numeri)
            if (x == n) somma += w;
    return somma >= minime;
}

}  // namespace

EsitoGruppi AnalisiGruppiLetterale(const ParametriGruppi& p, const archives::StoriaLotto& s, int ruota,
                                   const std::vector<GruppoFormazioni>& lib) {
    EsitoGruppi e;
    e.inizio = p.Inizio;
    if (ruota == 11 && e.inizio < 7441) {
        e.avviso = {AvvisoNazionale(), "Attenzione", archives::Icona::Esclamazione};
        e.inizio = 7441;
    }
    auto rifiuta = [&](const char* testo, const char* focus) {
        e.errore = {testo, "Errore", archives::Icona::Esclamazione};
        e.focus = focus;
        return e;
    };
    if (p.Precedenti < 1 || p.Precedenti > 99)
        return rifiuta("Inserire il numero di estrazioni precedenti nelle quali cercare i precursori!",
                       "txtPrecedenti");
    if (p.Successivi < 1 || p.Successivi > 99)
        return rifiuta("Inserire il numero di colpi successivi da analizzare!", "txtSuccessivi");
    if (p.PresenzeMinime < 1 || p.PresenzeMinime > 99)
        return rifiuta("E' necessario considerare minimo una presaenza!", "txtPresenzeMinime");
    if (p.Gruppi.empty())
        return rifiuta("E' necessario selezionare almeno una formazione numerica da considerare!", "lstGruppi");
    const bool ambi = p.sorte == Sorte::Ambi;
    const int risultati = std::max(1, std::min(p.Risultati, 10));
    e.titoli = {ambi ? " Ambo " : "Ambata", "Presenze", "Formazione numerica", "Elemento", "Ricorrenze", "% presenze"};
    const int32_t N = s.NumeroEstrazioni();
    const int32_t fine = std::min(p.Fine, N);

    // Counters of every group, by element from 1.
    std::vector<std::vector<int>> ricorrenze(lib.size()), presenze(lib.size());
    std::vector<std::vector<bool>> marca(lib.size());

    auto cerca = [&](int a, int b, int pres) {
        for (int g : p.Gruppi) {
            const size_t n = lib[static_cast<size_t>(g)].Elementi.size();
            ricorrenze[static_cast<size_t>(g)].assign(n + 1, 0);
            presenze[static_cast<size_t>(g)].assign(n + 1, 0);
        }
        for (int32_t i = e.inizio; i <= fine; ++i) {
            const Lettura d = Leggi(s, ruota, i);
            if (d.vuota) continue;
            const bool haA = std::find(d.numeri.begin(), d.numeri.end(), a) != d.numeri.end();
            const bool haB = b == 0 || std::find(d.numeri.begin(), d.numeri.end(), b) != d.numeri.end();
            if (!haA || !haB) continue;
            for (int g : p.Gruppi)
                marca[static_cast<size_t>(g)].assign(lib[static_cast<size_t>(g)].Elementi.size() + 1, false);
            int32_t j = i - 1;
            for (int passi = 0; passi < p.Precedenti && j >= 1; ++passi, --j) {
                const Lettura w = Leggi(s, ruota, j);
                if (w.vuota) continue;
                for (int g : p.Gruppi) {
                    const auto& el = lib[static_cast<size_t>(g)].Elementi;
                    for (size_t k = 1; k <= el.size(); ++k) {
                        if (!Presente(el[k - 1], w, p.PresenzeMinime)) continue;
                        ++presenze[static_cast<size_t>(g)][k];
                        if (!marca[static_cast<size_t>(g)][k]) {
                            ++ricorrenze[static_cast<size_t>(g)][k];
                            marca[static_cast<size_t>(g)][k] = true;
                        }
                    }
                }
            }
        }
        std::vector<std::string> testi;
        for (int g : p.Gruppi) {
            const auto& ric = ricorrenze[static_cast<size_t>(g)];
            const size_t n = lib[static_cast<size_t>(g)].Elementi.size();
            int massimo = 0;
            for (size_t k = 1; k <= n; ++k) massimo = std::max(massimo, ric[k]);
            for (size_t k = 1; k <= n; ++k) {
                const bool tenuto = n < 4006 ? ric[k] >= p.PresenzeMinime : ric[k] >= massimo / 2 && ric[k] >= 1;
                if (tenuto)
                    testi.push_back(
                        fmt::format("{:05}-{:05}-{:06}-{:04}", ric[k], presenze[static_cast<size_t>(g)][k], k, g + 1));
            }
        }
        std::sort(testi.begin(), testi.end());
        for (int q = 0; q < risultati && q < static_cast<int>(testi.size()); ++q) {
            const std::string& t = testi[testi.size() - 1 - static_cast<size_t>(q)];
            RigaGruppi r;
            r.ricorrenze = std::stoi(t.substr(0, 5));
            r.presenzeElemento = std::stoi(t.substr(6, 5));
            r.elemento = std::stoi(t.substr(12, 6)) - 1;
            r.gruppo = std::stoi(t.substr(19, 4)) - 1;
            r.voce = ambi ? Destra(a, 2) + "-" + Destra(b, 2) : Destra(a, 2);
            r.chiave = ambi ? a * 100 + b : a;
            r.presenze = pres;
            const GruppoFormazioni& gr = lib[static_cast<size_t>(r.gruppo)];
            std::string elemento;
            for (int n : gr.Elementi[static_cast<size_t>(r.elemento)]) {
                if (!elemento.empty()) elemento += '.';
                elemento += Destra(n, 2);
            }
            r.testo = {
                r.voce,
                Destra(pres, 4),
                gr.Nome,
                elemento,
                Destra(r.ricorrenze, 5),
                config::AllineaDestra(config::Formato(r.ricorrenze / static_cast<double>(pres) * 100.0, "#00.0"), 5) +
                    " %"};
            e.lista.push_back(r);
        }
    };

    if (!ambi) {
        std::array<int, 91> presAmbata{};
        for (int32_t i = e.inizio; i <= fine; ++i) {
            const Lettura d = Leggi(s, ruota, i);
            if (!d.vuota)
                for (int x : d.numeri) ++presAmbata[static_cast<size_t>(x)];
        }
        for (int n = 1; n <= 90; ++n)
            if (p.Considerato[static_cast<size_t>(n)] && presAmbata[static_cast<size_t>(n)] > 1)
                cerca(n, 0, presAmbata[static_cast<size_t>(n)]);
    } else {
        std::vector<std::array<int, 91>> presAmbo(91);
        for (int32_t i = e.inizio; i <= fine; ++i) {
            const Lettura d = Leggi(s, ruota, i);
            if (d.vuota) continue;
            std::array<int, 5> o = d.numeri;
            std::sort(o.begin(), o.end());
            for (size_t x = 0; x < 5; ++x)
                for (size_t y = x + 1; y < 5; ++y) ++presAmbo[static_cast<size_t>(o[x])][static_cast<size_t>(o[y])];
        }
        for (int a = 1; a <= 89; ++a)
            for (int b = a + 1; b <= 90; ++b)
                if (p.Considerato[static_cast<size_t>(a)] && p.Considerato[static_cast<size_t>(b)] &&
                    presAmbo[static_cast<size_t>(a)][static_cast<size_t>(b)] > 1)
                    cerca(a, b, presAmbo[static_cast<size_t>(a)][static_cast<size_t>(b)]);
    }
    e.descrizioneStatistica = "Rilevazione precursori dal " + Data(s, e.inizio) + " al " + Data(s, p.Fine) + " nei " +
                              std::to_string(p.Precedenti) + " colpi precedenti";
    if (e.lista.empty()) {
        e.errore = {"Nessun risultato da visualizzare!", "Precursori", archives::Icona::Informazione};
        return e;
    }

    const int32_t da = p.IndiceVerifica - (p.Successivi - 1);
    e.descrizioneVerifica =
        "Verifica presenze formazioni numeriche dal " + Data(s, da) + " al " + Data(s, p.IndiceVerifica);
    for (int g : p.Gruppi) {
        const GruppoFormazioni& gr = lib[static_cast<size_t>(g)];
        for (size_t k = 0; k < gr.Elementi.size(); ++k) {
            int conta = 0;
            for (int32_t i = da; i <= p.IndiceVerifica; ++i) {
                const Lettura d = Leggi(s, ruota, i);
                if (!d.vuota && Presente(gr.Elementi[k], d, p.PresenzeMinime)) ++conta;
            }
            if (conta == 0) continue;
            RigaFormazionePresente r;
            r.gruppo = g;
            r.elemento = static_cast<int>(k);
            r.conta = conta;
            std::string elemento, voci;
            for (int n : gr.Elementi[k]) {
                if (!elemento.empty()) elemento += '.';
                elemento += Destra(n, 2);
            }
            std::vector<std::string> viste;
            for (const RigaGruppi& x : e.lista)
                if (x.testo[3] == elemento && x.gruppo == g &&
                    std::find(viste.begin(), viste.end(), x.voce) == viste.end()) {
                    viste.push_back(x.voce);
                    if (!voci.empty()) voci += ", ";
                    voci += x.voce + " (" + std::to_string(x.ricorrenze) + ")";
                }
            r.testo = {Destra(conta, 4), gr.Nome, elemento, voci};
            e.formazioni.push_back(r);
        }
    }
    for (const RigaGruppi& x : e.lista)
        for (const RigaFormazionePresente& y : e.formazioni)
            if (y.gruppo == x.gruppo && y.elemento == x.elemento) e.presenti.push_back(x);
    return e;
}

}  // namespace gorgo::test
