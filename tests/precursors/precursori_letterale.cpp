#include "precursors/precursori_letterale.h"

#include <fmt/format.h>

#include <algorithm>
#include <vector>

#include "archives/dieci_e_lotto.h"
#include "archives/superenalotto.h"
#include "config/formato.h"
#include "precursors/formazioni.h"

namespace gorgo::test {

using namespace precursors;

namespace {

struct Lettura {
    bool vuota = true;
    std::vector<int> numeri;
};

int Quanti(const FonteLetterale& f) { return f.gioco == Gioco::Lotto ? 5 : f.gioco == Gioco::SuperEnalotto ? 6 : 20; }

int32_t Numero(const FonteLetterale& f) {
    return f.gioco == Gioco::SuperEnalotto ? static_cast<int32_t>(f.super.size()) : f.storia->NumeroEstrazioni();
}

Lettura Leggi(const FonteLetterale& f, int32_t i) {
    Lettura l;
    l.numeri.assign(static_cast<size_t>(Quanti(f)), 0);
    if (i < 1 || i > Numero(f)) return l;
    if (f.gioco == Gioco::Lotto) {
        for (int k = 1; k <= 5; ++k) l.numeri[static_cast<size_t>(k - 1)] = (*f.storia)[i].Numero(f.ruota, k);
        l.vuota = l.numeri[0] == 0;
    } else if (f.gioco == Gioco::SuperEnalotto) {
        const archives::EstrazioneSuper e = archives::LeggiEstrazioneSuper(f.super[static_cast<size_t>(i - 1)]);
        for (size_t k = 0; k < 6; ++k) l.numeri[k] = e.numeri[k];
        l.vuota = e.esito < 1;
    } else {
        const archives::Risultato10eLotto e = archives::Estrazione10eLotto(*f.storia, i);
        l.vuota = e.esito < 0;
        if (!l.vuota)
            for (size_t k = 0; k < 20; ++k) l.numeri[k] = e.numeri[k];
    }
    return l;
}

std::string Data(const FonteLetterale& f, int32_t i) {
    i = std::clamp(i, 1, Numero(f));
    if (f.gioco == Gioco::SuperEnalotto) return f.super[static_cast<size_t>(i - 1)].dataTesto();
    return (*f.storia)[i].dataTesto();
}

std::string Destra(long long v, int l) { return config::AllineaDestra(std::to_string(v), l); }

// Ranking text "ccccc pp", sorted ascending and read from the end.
std::vector<int> Classifica(const std::vector<int>& conta, int k) {
    std::vector<std::string> t;
    for (int p = 1; p <= 90; ++p) t.push_back(fmt::format("{:05d} {:02d}", conta[static_cast<size_t>(p)], p));
    std::sort(t.begin(), t.end());
    std::vector<int> m;
    for (int s = 0; s < k; ++s) m.push_back(std::stoi(t[t.size() - 1 - static_cast<size_t>(s)].substr(6)));
    return m;
}

bool Comuni(const ParametriPrecursori& p, const FonteLetterale& f, EsitoPrecursori& e) {
    e.inizio = p.Inizio;
    if (f.gioco == Gioco::Lotto && f.ruota == 11 && e.inizio < 7441) {
        e.avviso = {AvvisoNazionale(), "Attenzione", archives::Icona::Esclamazione};
        e.inizio = 7441;
    }
    if (p.Precedenti < 1 || p.Precedenti > 99) {
        e.errore.testo = "Inserire il numero di estrazioni precedenti nelle quali cercare i precursori!";
        e.focus = "txtPrecedenti";
    } else if (p.NumPrecursori < 1 || p.NumPrecursori > 9) {
        e.errore.testo = "Inserire il numero di precursori!";
        e.focus = "txtPrecursori";
    } else if (p.Successivi < 1 || p.Successivi > 99) {
        e.errore.testo = "Inserire il numero di colpi successivi da analizzare!";
        e.focus = "txtSuccessivi";
    }
    if (!e.errore.vuoto()) {
        e.errore.titolo = "Errore";
        e.errore.icona = archives::Icona::Esclamazione;
    }
    return e.errore.vuoto();
}

RigaPrecursori Riga(std::string voce, std::string prima, int presenze, const std::vector<int>& m,
                    const std::vector<int>& conta, int32_t chiave) {
    RigaPrecursori r;
    r.voce = std::move(voce);
    r.presenze = presenze;
    r.precursori = m;
    r.chiave = chiave;
    r.testo[0] = std::move(prima);
    r.testo[1] = Destra(presenze, 4);
    int T = 0;
    std::string testo;
    for (int x : m) {
        T += conta[static_cast<size_t>(x)];
        testo += config::AllineaDestra(std::to_string(x), 3) + " -";
    }
    r.testo[2] = testo.substr(0, testo.size() - 1);
    const double K = static_cast<double>(m.size());
    r.testo[3] = config::AllineaDestra(config::Formato(static_cast<double>(T) / presenze / K, "#0.00%"), 7);
    return r;
}

void Ordina(std::vector<RigaPrecursori>& l, bool perc) {
    const size_t c = perc ? 3 : 1;
    std::stable_sort(l.begin(), l.end(), [c](const auto& a, const auto& b) { return a.testo[c] > b.testo[c]; });
}

std::vector<bool> Verifica(const ParametriPrecursori& p, const FonteLetterale& f, EsitoPrecursori& e) {
    const int32_t da = p.IndiceVerifica - (p.Successivi - 1);
    e.descrizioneVerifica = "Verifica presenze precursori dal " + Data(f, da) + " al " + Data(f, p.IndiceVerifica);
    std::vector<bool> pv(91);
    for (int32_t i = p.IndiceVerifica; i >= da; --i) {
        if (i < 1 || i > Numero(f)) continue;
        for (int x : Leggi(f, i).numeri) pv[static_cast<size_t>(x)] = true;
    }
    return pv;
}

// The gap rule from Inizio to the end of the archive: true when there was a hit.
bool Ritardo(RigaPresenti& r, const ParametriPrecursori& p, const FonteLetterale& f, int32_t inizio,
             const std::function<bool(const std::vector<int>&)>& colpo, int& uscite, int32_t& ultima) {
    ultima = inizio - 1;
    int32_t storico = 0;
    uscite = 0;
    for (int32_t i = inizio; i <= Numero(f); ++i)
        if (colpo(Leggi(f, i).numeri)) {
            if (i - ultima - 1 > storico) storico = i - ultima - 1;
            ultima = i;
            ++uscite;
        }
    if (ultima == inizio - 1) {
        r.testo[2] = " - -";
        r.testo[3] = r.testo[4] = r.testo[5] = " -";
        return false;
    }
    r.testo[2] = Destra(storico, 5);
    r.testo[3] = Destra(Numero(f) - ultima, 5);
    r.colore = Numero(f) - ultima > p.Successivi ? Colore::Verde : Colore::Marrone;
    return true;
}

bool Contiene(const std::vector<int>& v, int n) { return std::find(v.begin(), v.end(), n) != v.end(); }

}  // namespace

EsitoPrecursori AnalisiPrecursoriLetterale(const ParametriPrecursori& p, const FonteLetterale& f) {
    EsitoPrecursori e;
    const bool ambi = p.sorte == Sorte::Ambi;
    e.titoli = {ambi ? "  Ambo" : "Ambata", "Presenze", "Precursori rilevati", " %"};
    e.titoliPresenti = {ambi ? "Ambo" : "Ambata", "Precursori presenti", "Rit.sto", "Rit.att", "Pres.", "%"};
    if (!Comuni(p, f, e)) return e;
    const int K = p.NumPrecursori, Q = Quanti(f);
    std::vector<int> presAmbata(91);
    std::vector<std::vector<int>> presAmbo(91, std::vector<int>(91));
    std::vector<std::vector<int>> contaAmbata(91, std::vector<int>(91));  // [n][p]
    std::vector<int> contaAmbo(91 * 91 * 91);                             // [(a*91+b)*91+p]
    for (int32_t i = e.inizio; i <= p.Fine; ++i) {
        const Lettura colpo = Leggi(f, i);
        if (colpo.vuota) continue;
        const std::vector<int>& E = colpo.numeri;
        for (int x : E) ++presAmbata[static_cast<size_t>(x)];
        for (int a = 0; a < Q; ++a)
            for (int b = a + 1; b < Q; ++b) {
                ++presAmbo[static_cast<size_t>(E[static_cast<size_t>(a)])]
                          [static_cast<size_t>(E[static_cast<size_t>(b)])];
                ++presAmbo[static_cast<size_t>(E[static_cast<size_t>(b)])]
                          [static_cast<size_t>(E[static_cast<size_t>(a)])];
            }
        std::vector<bool> visti(91);
        int32_t j = i - 1;
        for (int passi = 0; passi < p.Precedenti && j >= 1; ++passi, --j) {
            const Lettura l = Leggi(f, j);
            if (l.vuota) continue;
            for (int x : l.numeri) {
                if (visti[static_cast<size_t>(x)]) continue;
                for (int n : E) ++contaAmbata[static_cast<size_t>(n)][static_cast<size_t>(x)];
                for (int a = 0; a < Q; ++a)
                    for (int b = a + 1; b < Q; ++b) {
                        const size_t ea = static_cast<size_t>(E[static_cast<size_t>(a)]),
                                     eb = static_cast<size_t>(E[static_cast<size_t>(b)]);
                        ++contaAmbo[(ea * 91 + eb) * 91 + static_cast<size_t>(x)];
                        ++contaAmbo[(eb * 91 + ea) * 91 + static_cast<size_t>(x)];
                    }
                visti[static_cast<size_t>(x)] = true;
            }
        }
    }
    e.descrizioneStatistica = "Rilevazione precursori dal " + Data(f, e.inizio) + " al " + Data(f, p.Fine) + " nei " +
                              std::to_string(p.Precedenti) + " colpi precedenti";
    std::vector<std::vector<int>> migliori(91 * 91);
    auto conteggiAmbo = [&](int a, int b) {
        std::vector<int> c(91);
        for (int x = 0; x <= 90; ++x)
            c[static_cast<size_t>(x)] =
                contaAmbo[(static_cast<size_t>(a) * 91 + static_cast<size_t>(b)) * 91 + static_cast<size_t>(x)];
        return c;
    };
    if (!ambi) {
        for (int n = 1; n <= 90; ++n)
            if (p.Considerato[static_cast<size_t>(n)] && presAmbata[static_cast<size_t>(n)] > 1) {
                migliori[static_cast<size_t>(n)] = Classifica(contaAmbata[static_cast<size_t>(n)], K);
                e.lista.push_back(Riga(std::to_string(n), Destra(n, 5), presAmbata[static_cast<size_t>(n)],
                                       migliori[static_cast<size_t>(n)], contaAmbata[static_cast<size_t>(n)], n));
            }
    } else {
        for (int a = 1; a <= 89; ++a)
            for (int b = a + 1; b <= 90; ++b)
                if (p.Considerato[static_cast<size_t>(a)] && p.Considerato[static_cast<size_t>(b)] &&
                    presAmbo[static_cast<size_t>(a)][static_cast<size_t>(b)] > 5) {
                    const std::vector<int> c = conteggiAmbo(a, b);
                    migliori[static_cast<size_t>(a * 91 + b)] = Classifica(c, K);
                    e.lista.push_back(Riga(std::to_string(a) + " - " + std::to_string(b),
                                           config::AllineaDestra(std::to_string(a), 4) + " - " +
                                               config::AllineaDestra(std::to_string(b), 2),
                                           presAmbo[static_cast<size_t>(a)][static_cast<size_t>(b)],
                                           migliori[static_cast<size_t>(a * 91 + b)], c, a * 100 + b));
                }
    }
    Ordina(e.lista, p.PerPercentuale);
    std::vector<bool> scelte(91 * 91);
    for (size_t r = 0; r < e.lista.size() && r < 20; ++r) {
        const int c = e.lista[r].chiave;
        scelte[static_cast<size_t>(ambi ? (c / 100) * 91 + c % 100 : c)] = true;
    }
    const std::vector<bool> pv = Verifica(p, f, e);
    std::vector<std::string> ordine;
    std::vector<int> contaPresenti(91 * 91);
    std::vector<std::string> testoPresenti(91 * 91);
    if (!ambi) {
        for (int n = 1; n <= 90; ++n) {
            if (!scelte[static_cast<size_t>(n)]) continue;
            for (int k = 0; k < K; ++k) {
                const int x = migliori[static_cast<size_t>(n)][static_cast<size_t>(k)];
                if (pv[static_cast<size_t>(x)]) {
                    ++contaPresenti[static_cast<size_t>(n)];
                    testoPresenti[static_cast<size_t>(n)] += config::AllineaDestra(std::to_string(x), 2) + " - ";
                }
            }
            if (contaPresenti[static_cast<size_t>(n)] >= 1)
                ordine.push_back(fmt::format("{:03d} {:>2}", contaPresenti[static_cast<size_t>(n)], n));
        }
    } else {
        for (int a = 1; a <= 89; ++a)
            for (int b = a + 1; b <= 90; ++b) {
                const size_t ab = static_cast<size_t>(a * 91 + b);
                if (!scelte[ab]) continue;
                for (int k = 0; k < K; ++k) {
                    const int x = migliori[ab][static_cast<size_t>(k)];
                    if (pv[static_cast<size_t>(x)]) {
                        ++contaPresenti[ab];
                        testoPresenti[ab] += config::AllineaDestra(std::to_string(x), 2) + "-";
                    }
                }
                if (contaPresenti[ab] >= 1)
                    ordine.push_back(fmt::format("{:03d} {:>2} - {:>2}", contaPresenti[ab], a, b));
            }
    }
    std::sort(ordine.begin(), ordine.end());
    for (size_t r = 0; r < ordine.size() && r < 20; ++r) {
        const std::string& t = ordine[ordine.size() - 1 - r];
        RigaPresenti riga;
        int uscite = 0;
        int32_t ultima = 0;
        if (!ambi) {
            const int n = std::stoi(t.substr(4));
            riga.chiave = n;
            riga.voce = std::to_string(n);
            riga.testo[0] = Destra(n, 5);
            std::string lista = testoPresenti[static_cast<size_t>(n)];
            lista = lista.substr(0, lista.size() - 3);
            riga.testo[1] = Destra(contaPresenti[static_cast<size_t>(n)], 3) + " (" + lista + ")";
            if (Ritardo(
                    riga, p, f, e.inizio, [n](const std::vector<int>& v) { return Contiene(v, n); }, uscite, ultima)) {
                riga.testo[4] = Destra(presAmbata[static_cast<size_t>(n)], 4);
                int somma = 0, quanti = 0;
                for (size_t da = 0; da < lista.size(); da += 5) {
                    somma += contaAmbata[static_cast<size_t>(n)][static_cast<size_t>(std::stoi(lista.substr(da, 2)))];
                    ++quanti;
                }
                riga.testo[5] = config::AllineaDestra(
                    config::Formato(static_cast<double>(somma) / presAmbata[static_cast<size_t>(n)] / quanti, "#0.0%"),
                    6);
            }
        } else {
            const int a = std::stoi(t.substr(4, 2)), b = std::stoi(t.substr(9, 2));
            const size_t ab = static_cast<size_t>(a * 91 + b);
            riga.chiave = a * 100 + b;
            riga.voce = std::to_string(a) + " - " + std::to_string(b);
            riga.testo[0] =
                config::AllineaDestra(std::to_string(a), 4) + " - " + config::AllineaDestra(std::to_string(b), 2);
            std::string lista = testoPresenti[ab];
            lista.pop_back();
            riga.testo[1] = Destra(contaPresenti[ab], 3) + " (" + lista + ")";
            if (Ritardo(
                    riga, p, f, e.inizio,
                    [a, b](const std::vector<int>& v) { return Contiene(v, a) && Contiene(v, b); }, uscite, ultima)) {
                riga.testo[4] = Destra(presAmbo[static_cast<size_t>(a)][static_cast<size_t>(b)], 4);
                // Split at " - ": one element, whose value stops at its first "-".
                const int primo = std::stoi(lista.substr(0, lista.find('-')));
                riga.testo[5] = config::AllineaDestra(
                    config::Formato(static_cast<double>(conteggiAmbo(a, b)[static_cast<size_t>(primo)]) /
                                        presAmbo[static_cast<size_t>(a)][static_cast<size_t>(b)] / 1,
                                    "#0.0%"),
                    6);
            }
        }
        e.presenti.push_back(std::move(riga));
    }
    return e;
}

EsitoPrecursori AnalisiFormazioniLetterale(const ParametriPrecursori& p, const FonteLetterale& f,
                                           const Formazioni& date, bool confermato) {
    EsitoPrecursori e;
    e.formazioni = true;
    e.titoli = {"Formazione", "Presenze", "Precursori rilevati", " %"};
    e.titoliPresenti = {"Formazione", "Precursori presenti", "Rit.sto", "Rit.att", "Pres.", "I.C."};
    Formazioni fz = date;
    if (p.TerzineIntegrali) {
        fz.clear();
        for (int a = 1; a <= 88; ++a)
            for (int b = a + 1; b <= 89; ++b)
                for (int c = b + 1; c <= 90; ++c) fz.push_back({a, b, c});
    }
    if (fz.empty()) {
        e.errore = {"Nessuna formazione inserita e validata!", "Precursori", archives::Icona::Esclamazione};
        return e;
    }
    if (!Comuni(p, f, e)) return e;
    if (p.PresenzeMinime < 1 || p.PresenzeMinime > 99) {
        e.errore = {"Inserire il numero di presenze minime (almeno una)!", "Errore", archives::Icona::Esclamazione};
        e.focus = "txtPresenze";
        return e;
    }
    if (p.MinimoNumeri < 1 || p.MinimoNumeri > 5) {
        e.errore = {"Inserire il minimo di numeri da considerare nella formazione! (max 5)", "Errore",
                    archives::Icona::Esclamazione};
        e.focus = "txtNumeriInFormazione";
        return e;
    }
    std::vector<int> perDimensione(21);
    for (const auto& x : fz) ++perDimensione[x.size()];
    bool corte = false;
    std::string testo = "Attenzione! Non verranno considerati\n";
    for (int s = 1; s < p.MinimoNumeri; ++s)
        if (perDimensione[static_cast<size_t>(s)] > 0) {
            corte = true;
            testo += std::string(NomeDimensione(s)) + " ";
        }
    if (corte && !confermato) {
        e.domanda = {testo + "\n\nConfermi ?", "Conferma", archives::Icona::Domanda};
        e.focus = "txtNumeriInFormazione";
        return e;
    }
    const int K = p.NumPrecursori;
    const size_t F = fz.size();
    std::vector<int> presenze(F);
    std::vector<std::vector<int>> conta(F, std::vector<int>(91));
    std::vector<std::vector<int>> migliori(F, std::vector<int>(static_cast<size_t>(K), 0));
    std::vector<bool> segnata(F);
    for (int32_t i = e.inizio; i <= p.Fine; ++i) {
        const Lettura colpo = Leggi(f, i);
        if (colpo.vuota) continue;
        for (size_t x = 0; x < F; ++x) {
            int c = 0;
            for (int n : fz[x])
                for (int y : colpo.numeri) c += n == y;
            segnata[x] = c >= p.MinimoNumeri;
            if (segnata[x]) ++presenze[x];
        }
        std::vector<bool> visti(91);
        int32_t j = i - 1;
        for (int passi = 0; passi < p.Precedenti && j >= 1; ++passi, --j) {
            const Lettura l = Leggi(f, j);
            if (l.vuota) continue;
            for (int y : l.numeri) {
                if (visti[static_cast<size_t>(y)]) continue;
                for (size_t x = 0; x < F; ++x)
                    if (segnata[x]) ++conta[x][static_cast<size_t>(y)];
                visti[static_cast<size_t>(y)] = true;
            }
        }
    }
    e.descrizioneStatistica = "Rilevazione precursori dal " + Data(f, e.inizio) + " al " + Data(f, p.Fine) + " nei " +
                              std::to_string(p.Precedenti) + " colpi precedenti";
    for (size_t x = 0; x < F; ++x) {
        if (presenze[x] < p.PresenzeMinime) continue;
        migliori[x] = Classifica(conta[x], K);
        std::string prima, voce;
        for (int n : fz[x]) {
            prima += (prima.empty() ? "" : ".") + config::AllineaDestra(std::to_string(n), 2);
            voce += (voce.empty() ? "" : ".") + std::to_string(n);
        }
        e.lista.push_back(Riga(voce, prima, presenze[x], migliori[x], conta[x], static_cast<int32_t>(x)));
    }
    Ordina(e.lista, p.PerPercentuale);
    if (e.lista.empty()) {
        e.errore = {"Nessun risultato da visualizzare!", "Precursori", archives::Icona::Informazione};
        return e;
    }
    const std::vector<bool> pv = Verifica(p, f, e);
    std::vector<int> contaPresenti(F);
    std::vector<std::string> testoPresenti(F);
    int massimo = 0;
    for (size_t x = 0; x < F; ++x)
        for (int k = 0; k < K; ++k) {
            const int y = migliori[x][static_cast<size_t>(k)];
            if (!pv[static_cast<size_t>(y)]) continue;
            ++contaPresenti[x];
            massimo = std::max(massimo, contaPresenti[x]);
            if (!testoPresenti[x].empty()) testoPresenti[x] += " - ";
            testoPresenti[x] += config::AllineaDestra(std::to_string(y), 2);
        }
    std::vector<size_t> presi;
    if (massimo > 0) {
        for (size_t x = 0; x < F; ++x)
            if (contaPresenti[x] == massimo) presi.push_back(x);
        const size_t primaDi1 = presi.size();
        if (presi.size() < 6 && massimo >= 4)
            for (size_t x = 0; x < F; ++x)
                if (contaPresenti[x] == massimo - 1) {
                    presi.push_back(x);
                    if (presi.size() - primaDi1 + primaDi1 >= 6) break;
                }
        const size_t primaDi2 = presi.size();
        if (presi.size() < 6 && massimo >= 4)
            for (size_t x = 0; x < F; ++x)
                if (contaPresenti[x] == massimo - 2) {
                    presi.push_back(x);
                    if (primaDi2 + (presi.size() - primaDi2) >= 6) break;
                }
    }
    std::vector<std::string> ordine;
    for (size_t x : presi) ordine.push_back(fmt::format("{:03d} {:06d}", contaPresenti[x], x));
    std::sort(ordine.begin(), ordine.end());
    const int32_t N = Numero(f);
    for (size_t r = 0; r < ordine.size() && r < 20; ++r) {
        const size_t x = static_cast<size_t>(std::stoi(ordine[ordine.size() - 1 - r].substr(4)));
        if (presenze[x] < p.PresenzeMinime) continue;
        RigaPresenti riga;
        riga.chiave = static_cast<int32_t>(x);
        for (int n : fz[x]) riga.voce += (riga.voce.empty() ? "" : ".") + std::to_string(n);
        riga.testo[0] = riga.voce;
        riga.testo[1] = testoPresenti[x];
        int uscite = 0;
        int32_t ultima = 0;
        const auto& el = fz[x];
        if (Ritardo(
                riga, p, f, e.inizio,
                [&](const std::vector<int>& v) {
                    int c = 0;
                    for (int n : el)
                        for (int y : v) c += n == y;
                    return c >= p.MinimoNumeri;
                },
                uscite, ultima)) {
            riga.testo[4] = Destra(uscite, 4);
            riga.testo[5] =
                p.Fine == e.inizio
                    ? " -"
                    : config::AllineaDestra(
                          config::Formato(static_cast<double>(uscite) / (p.Fine - e.inizio) * (N - ultima), "#0.0"), 4);
        }
        e.presenti.push_back(std::move(riga));
    }
    return e;
}

}  // namespace gorgo::test
