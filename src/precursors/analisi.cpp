#include "precursors/analisi.h"

#include <fmt/format.h>
#include <tbb/parallel_for.h>

#include <algorithm>
#include <atomic>
#include <cmath>
#include <mutex>
#include <numeric>

#include "archives/record.h"
#include "config/formato.h"
#include "precursors/formazioni.h"

namespace gorgo::precursors {

namespace {

using archives::Icona;
using archives::Messaggio;

constexpr size_t N91 = 91;

std::string Destra(long long v, int larghezza) { return config::AllineaDestra(std::to_string(v), larghezza); }

}  // namespace

int32_t InizioDellaRuota(const FonteEstrazioni& fonte, int32_t inizio, archives::Messaggio& avviso) {
    if (fonte.gioco() != Gioco::Lotto || fonte.ruota() != archives::RuotaNazionale ||
        inizio >= archives::PrimaEstrazioneNazionale)
        return inizio;
    avviso = {AvvisoNazionale(), "Attenzione", Icona::Esclamazione};
    return archives::PrimaEstrazioneNazionale;
}

namespace {

// The Nazionale rule, the three main boxes; empty errore when all pass.
bool ValidaComuni(const ParametriPrecursori& p, const FonteEstrazioni& fonte, EsitoPrecursori& e) {
    e.inizio = InizioDellaRuota(fonte, p.Inizio, e.avviso);
    auto rifiuta = [&](const char* testo, const char* focus) {
        e.errore = {testo, "Errore", Icona::Esclamazione};
        e.focus = focus;
        return false;
    };
    if (p.Precedenti < 1 || p.Precedenti > MassimoCasella)
        return rifiuta("Inserire il numero di estrazioni precedenti nelle quali cercare i precursori!",
                       "txtPrecedenti");
    if (p.NumPrecursori < 1 || p.NumPrecursori > MassimoPrecursori)
        return rifiuta("Inserire il numero di precursori!", "txtPrecursori");
    if (p.Successivi < 1 || p.Successivi > MassimoCasella)
        return rifiuta("Inserire il numero di colpi successivi da analizzare!", "txtSuccessivi");
    return true;
}

// The distinct numbers met walking back Precedenti draws from the hit i, in order of meeting.
// Empty draws take a step and give nothing.
struct Precursori {
    std::vector<uint32_t> inizio;  // per hit, into numeri
    std::vector<uint8_t> numeri;
    std::vector<int32_t> colpi;  // the hit draws, ascending
};

Precursori RaccogliPrecursori(const FonteEstrazioni& f, int32_t da, int32_t a, int precedenti) {
    Precursori r;
    for (int32_t i = std::max(da, 1); i <= a; ++i) {
        if (f.vuota(i)) continue;
        r.colpi.push_back(i);
        r.inizio.push_back(static_cast<uint32_t>(r.numeri.size()));
        std::array<bool, N91> visti{};
        for (int32_t j = i - 1, passi = 0; passi < precedenti && j >= 1; --j, ++passi) {
            if (f.vuota(j)) continue;
            for (uint8_t x : f.numeri(j))
                if (!visti[x]) {
                    visti[x] = true;
                    r.numeri.push_back(x);
                }
        }
    }
    r.inizio.push_back(static_cast<uint32_t>(r.numeri.size()));
    return r;
}

// The first K of the 90 numbers by count descending, the higher number first at equal count.
template <typename Conta>
std::array<int, MassimoPrecursori> Migliori(Conta conta, int k, int& somma) {
    std::array<uint64_t, 90> chiavi;
    for (int q = 1; q <= 90; ++q)
        chiavi[static_cast<size_t>(q - 1)] = (static_cast<uint64_t>(conta(q)) << 8) | static_cast<uint64_t>(q);
    std::partial_sort(chiavi.begin(), chiavi.begin() + k, chiavi.end(), std::greater<>());
    std::array<int, MassimoPrecursori> m{};
    somma = 0;
    for (int s = 0; s < k; ++s) {
        m[static_cast<size_t>(s)] = static_cast<int>(chiavi[static_cast<size_t>(s)] & 0xFF);
        somma += static_cast<int>(chiavi[static_cast<size_t>(s)] >> 8);
    }
    return m;
}

std::string TestoPrecursori(const std::array<int, MassimoPrecursori>& m, int k) {
    std::string t;
    for (int s = 0; s < k; ++s) t += fmt::format("{:>3} -", m[static_cast<size_t>(s)]);
    t.pop_back();
    return t;
}

RigaPrecursori RigaLista(std::string voce, std::string primaColonna, int presenze,
                         const std::array<int, MassimoPrecursori>& m, int k, int somma, int32_t chiave) {
    RigaPrecursori r;
    r.voce = std::move(voce);
    r.presenze = presenze;
    r.precursori.assign(m.begin(), m.begin() + k);
    r.chiave = chiave;
    r.testo[0] = std::move(primaColonna);
    r.testo[1] = Destra(presenze, 4);
    r.testo[2] = TestoPrecursori(m, k);
    r.testo[3] = config::AllineaDestra(config::Formato(static_cast<double>(somma) / presenze / k, "#0.00%"), 7);
    return r;
}

// The list keeps its sort key descending; rows of equal text keep the order they came in.
void OrdinaLista(std::vector<RigaPrecursori>& lista, bool perPercentuale) {
    const size_t col = perPercentuale ? 3 : 1;
    // Sorted by position, then moved once: the rows are heavy and the lists long.
    std::vector<uint32_t> ordine(lista.size());
    std::iota(ordine.begin(), ordine.end(), 0u);
    std::stable_sort(ordine.begin(), ordine.end(),
                     [&](uint32_t a, uint32_t b) { return lista[a].testo[col] > lista[b].testo[col]; });
    std::vector<RigaPrecursori> ordinata;
    ordinata.reserve(lista.size());
    for (uint32_t i : ordine) ordinata.push_back(std::move(lista[i]));
    lista = std::move(ordinata);
}

// The verification span and its description; the numbers read there (0 stands for a blank place).
std::array<bool, N91> Verifica(const ParametriPrecursori& p, const FonteEstrazioni& f, EsitoPrecursori& e,
                               const char* inizioTesto) {
    const int32_t da = p.IndiceVerifica - (p.Successivi - 1);
    e.descrizioneVerifica =
        std::string(inizioTesto) + f.DataEstrazione(da) + " al " + f.DataEstrazione(p.IndiceVerifica);
    std::array<bool, N91> presenti{};
    for (int32_t i = p.IndiceVerifica; i >= da; --i)
        if (i >= 1 && i <= f.NumeroEstrazioni())
            for (uint8_t x : f.numeri(i)) presenti[x] = true;
    return presenti;
}

// Delays from Inizio to the end of the archive, hits told by `colpo`.
struct Ritardi {
    int32_t ultima = 0, storico = 0, uscite = 0;
};
template <typename Colpo>
Ritardi CalcolaRitardi(const FonteEstrazioni& f, int32_t inizio, Colpo colpo) {
    Ritardi r{inizio - 1, 0, 0};
    for (int32_t i = std::max(inizio, 1); i <= f.NumeroEstrazioni(); ++i)
        if (colpo(f.numeri(i))) {
            r.storico = std::max(r.storico, i - r.ultima - 1);
            r.ultima = i;
            ++r.uscite;
        }
    return r;
}

// Rit.sto, Rit.att, Pres. and the sixth column; false when there was no hit since Inizio.
bool ColonneRitardo(RigaPresenti& r, const Ritardi& rit, int32_t inizio, int32_t numero, int successivi, int presenze) {
    if (rit.ultima == inizio - 1) {
        r.testo[2] = " - -";
        r.testo[3] = r.testo[4] = r.testo[5] = " -";
        return false;
    }
    r.testo[2] = Destra(rit.storico, 5);
    r.testo[3] = Destra(numero - rit.ultima, 5);
    r.colore = numero - rit.ultima > successivi ? Colore::Verde : Colore::Marrone;
    r.testo[4] = Destra(presenze, 4);
    return true;
}

bool Interrotta(const Avanzamento& a) { return a.stop.stop_requested(); }
void Progresso(const Avanzamento& a, int v, int m) {
    if (a.progresso) a.progresso(v, m);
}

std::string Descrizione(const FonteEstrazioni& f, int32_t inizio, const ParametriPrecursori& p) {
    return "Rilevazione precursori dal " + f.DataEstrazione(inizio) + " al " + f.DataEstrazione(p.Fine) + " nei " +
           std::to_string(p.Precedenti) + " colpi precedenti";
}

// The classic analysis and its personalisation: precursors are numbers or pairs (by their code
// in TabellaAmbi), read only at the chosen positions of the draws of the walk.
struct Scelta {
    std::vector<bool> posizioni;  // per place of the draw
    bool ambi = false;
    bool adiacenti = false;
};

int NumeroElementi(const Scelta& s) { return s.ambi ? NumeroAmbi : 90; }

// The distinct precursors met walking back Precedenti draws from each hit, in order of meeting.
struct PrecursoriElementi {
    std::vector<int32_t> colpi;
    std::vector<uint32_t> inizio;
    std::vector<uint16_t> elementi;
};

PrecursoriElementi RaccogliElementi(const FonteEstrazioni& f, int32_t da, int32_t a, int precedenti, const Scelta& s) {
    PrecursoriElementi r;
    const int q = f.quanti();
    std::vector<bool> visti(static_cast<size_t>(NumeroElementi(s)) + 1);
    for (int32_t i = std::max(da, 1); i <= a; ++i) {
        if (f.vuota(i)) continue;
        r.colpi.push_back(i);
        r.inizio.push_back(static_cast<uint32_t>(r.elementi.size()));
        std::fill(visti.begin(), visti.end(), false);
        auto metti = [&](int x) {
            if (x <= 0 || visti[static_cast<size_t>(x)]) return;
            visti[static_cast<size_t>(x)] = true;
            r.elementi.push_back(static_cast<uint16_t>(x));
        };
        for (int32_t j = i - 1, passi = 0; passi < precedenti && j >= 1; --j, ++passi) {
            if (f.vuota(j)) continue;
            const auto n = f.numeri(j);
            for (int u = 0; u < q; ++u) {
                if (!s.posizioni[static_cast<size_t>(u)]) continue;
                if (!s.ambi) {
                    // A number 0 has no place among the precursors.
                    metti(n[static_cast<size_t>(u)]);
                    continue;
                }
                for (int v = u + 1; v < q; ++v)
                    if (s.posizioni[static_cast<size_t>(v)] && (!s.adiacenti || v == u + 1))
                        metti(CodiceAmbo(n[static_cast<size_t>(u)], n[static_cast<size_t>(v)]));
            }
        }
    }
    r.inizio.push_back(static_cast<uint32_t>(r.elementi.size()));
    return r;
}

// The first K elements by count descending, the higher element first at equal count.
template <typename Conta>
std::array<int, MassimoPrecursori> MiglioriElementi(Conta conta, int elementi, int k, int& somma) {
    std::vector<uint64_t> chiavi(static_cast<size_t>(elementi));
    for (int x = 1; x <= elementi; ++x)
        chiavi[static_cast<size_t>(x - 1)] = (static_cast<uint64_t>(conta(x)) << 16) | static_cast<uint64_t>(x);
    std::partial_sort(chiavi.begin(), chiavi.begin() + k, chiavi.end(), std::greater<>());
    std::array<int, MassimoPrecursori> m{};
    somma = 0;
    for (int t = 0; t < k; ++t) {
        m[static_cast<size_t>(t)] = static_cast<int>(chiavi[static_cast<size_t>(t)] & 0xFFFF);
        somma += static_cast<int>(chiavi[static_cast<size_t>(t)] >> 16);
    }
    return m;
}

std::string TestoElementi(const std::array<int, MassimoPrecursori>& m, int k, bool ambi) {
    if (ambi) {
        std::string t;
        for (int s = 0; s < k; ++s) t += (s ? ", " : "") + TestoAmbo(m[static_cast<size_t>(s)]);
        return t;
    }
    return TestoPrecursori(m, k);
}

EsitoPrecursori Analisi(const ParametriPrecursori& p, const FonteEstrazioni& f, const Scelta& sc, const Avanzamento& av,
                        EsitoPrecursori e) {
    const bool ambi = p.sorte == Sorte::Ambi;
    const int K = p.NumPrecursori, M = NumeroElementi(sc);
    const size_t M1 = static_cast<size_t>(M) + 1;
    const int q = f.quanti();

    // Collection: one pass over the period; the pairs sought are counted only once known.
    const PrecursoriElementi pr = RaccogliElementi(f, e.inizio, p.Fine, p.Precedenti, sc);
    if (Interrotta(av)) return e.interrotta = true, e;
    std::vector<int32_t> presAmbata(N91), presAmbo(N91 * N91);
    for (int32_t i : pr.colpi) {
        const auto x = f.numeri(i);
        for (uint8_t n : x) ++presAmbata[n];
        for (int a = 0; a < q; ++a)
            for (int b = a + 1; b < q; ++b) {
                ++presAmbo[x[static_cast<size_t>(a)] * N91 + x[static_cast<size_t>(b)]];
                ++presAmbo[x[static_cast<size_t>(b)] * N91 + x[static_cast<size_t>(a)]];
            }
    }
    // Rows: for ambate the numbers, for ambi the pairs a < b; each with its counters.
    std::vector<int32_t> candidato(ambi ? N91 * N91 : N91, -1);
    std::vector<int32_t> chiavi;
    if (!ambi) {
        for (int n = 1; n <= 90; ++n)
            if (p.Considerato[static_cast<size_t>(n)] && presAmbata[static_cast<size_t>(n)] >= MinimoPresenzeAmbata) {
                candidato[static_cast<size_t>(n)] = static_cast<int32_t>(chiavi.size());
                chiavi.push_back(n);
            }
    } else {
        for (int a = 1; a <= 89; ++a)
            for (int b = a + 1; b <= 90; ++b)
                if (p.Considerato[static_cast<size_t>(a)] && p.Considerato[static_cast<size_t>(b)] &&
                    presAmbo[static_cast<size_t>(a) * N91 + static_cast<size_t>(b)] >= MinimoPresenzeAmbo) {
                    candidato[static_cast<size_t>(a) * N91 + static_cast<size_t>(b)] =
                        candidato[static_cast<size_t>(b) * N91 + static_cast<size_t>(a)] =
                            static_cast<int32_t>(chiavi.size());
                    chiavi.push_back(a * 100 + b);
                }
    }
    std::vector<int32_t> conta(chiavi.size() * M1);  // [row][element]
    std::vector<int32_t> righe;
    for (size_t h = 0; h < pr.colpi.size(); ++h) {
        const auto x = f.numeri(pr.colpi[h]);
        righe.clear();
        if (!ambi) {
            for (uint8_t n : x)
                if (candidato[n] >= 0) righe.push_back(candidato[n]);
        } else {
            for (int a = 0; a < q; ++a)
                for (int b = a + 1; b < q; ++b)
                    if (const int32_t c = candidato[x[static_cast<size_t>(a)] * N91 + x[static_cast<size_t>(b)]];
                        c >= 0)
                        righe.push_back(c);
        }
        for (int32_t r : righe) {
            int32_t* c = conta.data() + static_cast<size_t>(r) * M1;
            for (uint32_t k = pr.inizio[h]; k < pr.inizio[h + 1]; ++k) ++c[pr.elementi[k]];
        }
        if (h % 100 == 0) {
            Progresso(av, pr.colpi[h] - e.inizio, p.Fine - e.inizio);
            if (Interrotta(av)) return e.interrotta = true, e;
        }
    }
    e.descrizioneStatistica = Descrizione(f, e.inizio, p);

    std::vector<std::array<int, MassimoPrecursori>> migliori(chiavi.size());
    for (size_t r = 0; r < chiavi.size(); ++r) {
        int somma = 0;
        const int32_t* c = conta.data() + r * M1;
        migliori[r] = MiglioriElementi([c](int x) { return c[x]; }, M, K, somma);
        const int32_t k = chiavi[r];
        RigaPrecursori riga;
        if (!ambi)
            riga = RigaLista(std::to_string(k), Destra(k, 5), presAmbata[static_cast<size_t>(k)], migliori[r], K, somma,
                             k);
        else
            riga = RigaLista(fmt::format("{} - {}", k / 100, k % 100), fmt::format("{:>4} - {:>2}", k / 100, k % 100),
                             presAmbo[static_cast<size_t>(k / 100) * N91 + static_cast<size_t>(k % 100)], migliori[r],
                             K, somma, k);
        if (sc.ambi) riga.testo[2] = TestoElementi(migliori[r], K, true);
        e.lista.push_back(std::move(riga));
    }
    OrdinaLista(e.lista, p.PerPercentuale);

    const std::array<bool, N91> pv = Verifica(p, f, e, "Verifica presenze precursori dal ");
    const int32_t N = f.NumeroEstrazioni();
    auto presente = [&](int x) {
        if (!sc.ambi) return pv[static_cast<size_t>(x)];
        const auto [a, b] = NumeriAmbo(x);
        return pv[static_cast<size_t>(a)] && pv[static_cast<size_t>(b)];
    };

    // The forecast: the candidates some of whose precursors were drawn in the span.
    struct Presente {
        int conta;
        int32_t chiave;
        std::string testo;
        int primo;
        int64_t somma;
    };
    std::vector<Presente> presenti;
    const size_t scelti = std::min<size_t>(e.lista.size(), Candidati);
    for (size_t r = 0; r < scelti; ++r) {
        const int32_t c = e.lista[r].chiave;
        const size_t riga =
            static_cast<size_t>(candidato[ambi ? static_cast<size_t>(c / 100) * N91 + static_cast<size_t>(c % 100)
                                               : static_cast<size_t>(c)]);
        Presente s{0, c, {}, 0, 0};
        for (int k = 0; k < K; ++k) {
            const int x = migliori[riga][static_cast<size_t>(k)];
            if (!presente(x)) continue;
            if (++s.conta == 1) s.primo = x;
            s.somma += conta[riga * M1 + static_cast<size_t>(x)];
            if (sc.ambi)
                s.testo += TestoAmbo(x) + ", ";
            else
                s.testo += ambi ? fmt::format("{:>2}-", x) : fmt::format("{:>2} - ", x);
        }
        if (s.conta > 0) presenti.push_back(std::move(s));
    }
    std::sort(presenti.begin(), presenti.end(), [](const Presente& a, const Presente& b) {
        return a.conta != b.conta ? a.conta > b.conta : a.chiave > b.chiave;
    });
    if (presenti.size() > Candidati) presenti.resize(Candidati);

    for (Presente& s : presenti) {
        RigaPresenti r;
        r.chiave = s.chiave;
        s.testo.resize(s.testo.size() - (sc.ambi ? 2 : ambi ? 1 : 3));
        r.testo[1] = fmt::format("{:>3} ({})", s.conta, s.testo);
        // The figure of a pair with number precursors reads only its first present precursor.
        const bool soloIlPrimo = ambi && !sc.ambi;
        const size_t riga = static_cast<size_t>(
            candidato[ambi ? static_cast<size_t>(s.chiave / 100) * N91 + static_cast<size_t>(s.chiave % 100)
                           : static_cast<size_t>(s.chiave)]);
        const double figura = soloIlPrimo ? static_cast<double>(conta[riga * M1 + static_cast<size_t>(s.primo)])
                                          : static_cast<double>(s.somma);
        const int diviso = soloIlPrimo ? 1 : s.conta;
        if (!ambi) {
            const int n = s.chiave;
            r.voce = std::to_string(n);
            r.testo[0] = Destra(n, 5);
            const Ritardi rit = CalcolaRitardi(
                f, e.inizio, [n](std::span<const uint8_t> x) { return std::find(x.begin(), x.end(), n) != x.end(); });
            const int pres = presAmbata[static_cast<size_t>(n)];
            if (ColonneRitardo(r, rit, e.inizio, N, p.Successivi, pres))
                r.testo[5] = config::AllineaDestra(config::Formato(figura / pres / diviso, "#0.0%"), 6);
        } else {
            const int a = s.chiave / 100, b = s.chiave % 100;
            const int pres = presAmbo[static_cast<size_t>(a) * N91 + static_cast<size_t>(b)];
            r.voce = fmt::format("{} - {}", a, b);
            r.testo[0] = fmt::format("{:>4} - {:>2}", a, b);
            const Ritardi rit = CalcolaRitardi(f, e.inizio, [a, b](std::span<const uint8_t> x) {
                return std::find(x.begin(), x.end(), a) != x.end() && std::find(x.begin(), x.end(), b) != x.end();
            });
            if (ColonneRitardo(r, rit, e.inizio, N, p.Successivi, pres))
                r.testo[5] = config::AllineaDestra(config::Formato(figura / pres / diviso, "#0.0%"), 6);
        }
        e.presenti.push_back(std::move(r));
    }
    return e;
}

}  // namespace

int CodiceAmbo(int a, int b) {
    if (a > b) std::swap(a, b);
    if (a < 1 || b > 90 || a == b) return 0;
    // Pairs in ascending order of a, then b: those of 1..a-1 come first.
    return (a - 1) * 90 - (a - 1) * a / 2 + (b - a);
}

std::pair<int, int> NumeriAmbo(int codice) {
    int a = 1;
    while (a < 90 && CodiceAmbo(a, 90) < codice) ++a;
    return {a, a + codice - CodiceAmbo(a, a + 1) + 1};
}

std::string TestoAmbo(int codice) {
    const auto [a, b] = NumeriAmbo(codice);
    return fmt::format("{:02d}-{:02d}", a, b);
}

std::string AvvisoNazionale() {
    return "Data inizio non valida per la ruota Nazionale\nVerrà adeguata la data al 4/5/2005";
}

EsitoPrecursori AnalisiPrecursori(const ParametriPrecursori& p, const FonteEstrazioni& f, const Avanzamento& av) {
    EsitoPrecursori e;
    const bool ambi = p.sorte == Sorte::Ambi;
    e.titoli = {ambi ? "  Ambo" : "Ambata", "Presenze", "Precursori rilevati", " %"};
    e.titoliPresenti = {ambi ? "Ambo" : "Ambata", "Precursori presenti", "Rit.sto", "Rit.att", "Pres.", "%"};
    if (!ValidaComuni(p, f, e)) return e;
    return Analisi(p, f, {std::vector<bool>(static_cast<size_t>(f.quanti()), true), false, false}, av, std::move(e));
}

EsitoPrecursori AnalisiSaruni(const ParametriSaruni& ps, const FonteEstrazioni& f, const Avanzamento& av) {
    const ParametriPrecursori& p = ps.base;
    EsitoPrecursori e;
    const bool ambi = p.sorte == Sorte::Ambi;
    e.titoli = {ambi ? "  Ambo" : "Ambata", "Presenze", "Precursori rilevati", " %"};
    e.titoliPresenti = {ambi ? "Ambo" : "Ambata", "Precursori presenti", "Rit.sto", "Rit.att", "Pres.", "%"};
    if (!ValidaComuni(p, f, e)) return e;
    Scelta sc;
    sc.ambi = ps.Tipo == TipoPrecursori::Ambi;
    sc.adiacenti = sc.ambi && ps.AmbiAdiacenti;
    std::string testo;
    for (int u = 1; u <= 5; ++u) {
        const bool si = !ps.PosizioneDeterminata || ps.Posizioni[static_cast<size_t>(u)];
        sc.posizioni.push_back(si);
        testo += si ? 'X' : ' ';
    }
    const int servono = sc.ambi ? 2 : 1;
    if (std::count(testo.begin(), testo.end(), 'X') < servono) {
        e.errore = {"Scegliere almeno " + std::to_string(servono) + " posizioni estrattive!", "Errore",
                    Icona::Esclamazione};
        return e;
    }
    if (sc.adiacenti && testo.find("XX") == std::string::npos) {
        e.errore = {"Le posizioni inserite non sono compatibili con gli ambi uniti!", "Errore", Icona::Esclamazione};
        return e;
    }
    return Analisi(p, f, sc, av, std::move(e));
}

EsitoPrevisione PrevisioneSaruni(const FonteEstrazioni& f, int32_t inizio, int32_t fine, int anni, int a, int b) {
    EsitoPrevisione e;
    if (anni < 1) {
        e.errore = {"Inserire il n. di anni desiderato", "Errore", Icona::Esclamazione};
        e.focus = "txtNum_2";
        return e;
    }
    if (a < 1 || a > 90) {
        e.errore = {"Numero errato!", "Errore", Icona::Esclamazione};
        e.focus = "txtNum_0";
        return e;
    }
    if (b < 0 || b > 90) {
        e.errore = {"Numero errato!", "Errore", Icona::Esclamazione};
        e.focus = "txtNum_1";
        return e;
    }
    e.inizio = inizio;
    if (f.gioco() == Gioco::Lotto && f.ruota() == archives::RuotaNazionale &&
        e.inizio < archives::PrimaEstrazioneNazionale) {
        e.avviso = {AvvisoNazionale(), "Attenzione", Icona::Esclamazione};
        e.inizio = archives::PrimaEstrazioneNazionale;
    }
    e.descrizione = b > 0 ? "Ambo selezionato" : "Ambata selezionata";
    std::array<int32_t, N91> ritardo{}, storico{}, presenze{};
    for (int32_t i = std::max(e.inizio, 1); i <= fine; ++i) {
        if (f.vuota(i)) continue;
        const auto x = f.numeri(i);
        const bool colpo =
            std::find(x.begin(), x.end(), a) != x.end() && (b == 0 || std::find(x.begin(), x.end(), b) != x.end());
        if (!colpo) {
            for (int n = 1; n <= 90; ++n) ++ritardo[static_cast<size_t>(n)];
            continue;
        }
        std::array<bool, N91> segnato{};
        for (uint8_t n : x) segnato[n] = true;
        for (int n = 1; n <= 90; ++n) {
            if (n == a || n == b) continue;
            const size_t k = static_cast<size_t>(n);
            if (segnato[k]) {
                storico[k] = std::max(storico[k], ritardo[k]);
                ritardo[k] = 0;
            } else {
                ++ritardo[k];
            }
        }
        for (uint8_t n : x)
            if (n != 0 && n != a && n != b) ++presenze[n];
    }
    // Ranked on the ratio of the present delay to the historical one (the delay alone when that
    // is 0), as a text of four integer digits and two decimals; the higher number first at equal
    // text; the numbers never drawn with the sought one behind the others.
    struct Voce {
        bool visto;
        std::string chiave;
        int n;
    };
    std::vector<Voce> voci;
    for (int n = 1; n <= 90; ++n) {
        if (n == a || n == b) continue;
        const size_t k = static_cast<size_t>(n);
        const double rapporto = storico[k] == 0 ? ritardo[k] : static_cast<double>(ritardo[k]) / storico[k];
        voci.push_back({presenze[k] > 0, config::Formato(rapporto, "0000.00"), n});
    }
    std::stable_sort(voci.begin(), voci.end(), [](const Voce& x, const Voce& y) {
        if (x.visto != y.visto) return x.visto;
        if (x.chiave.size() != y.chiave.size()) return x.chiave.size() > y.chiave.size();
        if (x.chiave != y.chiave) return x.chiave > y.chiave;
        return x.n > y.n;
    });
    for (const Voce& v : voci) {
        const size_t k = static_cast<size_t>(v.n);
        RigaCompagno r;
        r.numero = v.n;
        r.testo[0] = Destra(v.n, 2);
        r.testo[1] = storico[k] == 0 ? "  --" : config::AllineaDestra(config::Formato(storico[k], "###0"), 4);
        r.testo[2] = config::AllineaDestra(config::Formato(ritardo[k], "###0"), 4);
        r.testo[3] = storico[k] == 0 ? "    --"
                                     : config::AllineaDestra(
                                           config::Formato(static_cast<double>(ritardo[k]) / storico[k], "###0.00"), 6);
        e.righe.push_back(std::move(r));
    }
    return e;
}

Formazioni TerzineIntegrali() {
    Formazioni t;
    t.reserve(NumeroTerzineIntegrali);
    for (int a = 1; a <= 88; ++a)
        for (int b = a + 1; b <= 89; ++b)
            for (int c = b + 1; c <= 90; ++c) t.push_back({a, b, c});
    return t;
}

EsitoPrecursori AnalisiFormazioni(const ParametriPrecursori& p, const FonteEstrazioni& f, const Formazioni& date,
                                  bool confermato, const Avanzamento& av) {
    EsitoPrecursori e;
    e.formazioni = true;
    e.titoli = {"Formazione", "Presenze", "Precursori rilevati", " %"};
    e.titoliPresenti = {"Formazione", "Precursori presenti", "Rit.sto", "Rit.att", "Pres.", "I.C."};
    Formazioni terzine;
    if (p.TerzineIntegrali) terzine = TerzineIntegrali();
    const Formazioni& fz = p.TerzineIntegrali ? terzine : date;
    if (fz.empty()) {
        e.errore = {"Nessuna formazione inserita e validata!", "Precursori", Icona::Esclamazione};
        return e;
    }
    if (!ValidaComuni(p, f, e)) return e;
    if (p.PresenzeMinime < 1 || p.PresenzeMinime > MassimoCasella) {
        e.errore = {"Inserire il numero di presenze minime (almeno una)!", "Errore", Icona::Esclamazione};
        e.focus = "txtPresenze";
        return e;
    }
    if (p.MinimoNumeri < 1 || p.MinimoNumeri > 5) {
        e.errore = {"Inserire il minimo di numeri da considerare nella formazione! (max 5)", "Errore",
                    Icona::Esclamazione};
        e.focus = "txtNumeriInFormazione";
        return e;
    }
    if (!confermato) {
        std::array<int32_t, 21> perDimensione{};
        for (const auto& x : fz) ++perDimensione[std::min<size_t>(x.size(), 20)];
        std::string corte;
        for (int s = 1; s < p.MinimoNumeri; ++s)
            if (perDimensione[static_cast<size_t>(s)] > 0) corte += std::string(NomeDimensione(s)) + " ";
        if (!corte.empty()) {
            e.domanda = {"Attenzione! Non verranno considerati\n" + corte + "\n\nConfermi ?", "Conferma",
                         Icona::Domanda};
            e.focus = "txtNumeriInFormazione";
            return e;
        }
    }
    const int K = p.NumPrecursori;
    const size_t F = fz.size();

    // Collection: the precursors of every draw of the period once, then the formations in blocks
    // on all cores; a draw makes present only the formations that hold one of its numbers.
    const Precursori pr = RaccogliPrecursori(f, e.inizio, p.Fine, p.Precedenti);
    // Each block keeps its own counters and leaves only the ranking of its formations.
    std::vector<int32_t> presenze(F);
    std::vector<std::array<int, MassimoPrecursori>> migliori(F);
    std::vector<uint8_t> inLista(F);
    std::vector<int> somme(F);
    constexpr size_t Blocco = 4096;
    const size_t blocchi = (F + Blocco - 1) / Blocco;
    std::atomic<size_t> fatti{0};
    std::mutex mutexProgresso;
    tbb::parallel_for(size_t{0}, blocchi, [&](size_t blocco) {
        if (Interrotta(av)) return;
        const size_t da = blocco * Blocco, a = std::min(F, da + Blocco);
        std::array<std::vector<uint16_t>, N91> indice;
        for (size_t x = da; x < a; ++x)
            for (int n : fz[x])
                if (n >= 1 && n <= 90) indice[static_cast<size_t>(n)].push_back(static_cast<uint16_t>(x - da));
        std::vector<uint8_t> cnt(a - da);
        std::vector<int32_t> conta((a - da) * N91);  // [f][p]
        std::vector<uint16_t> toccate;
        for (size_t h = 0; h < pr.colpi.size(); ++h) {
            for (uint8_t x : f.numeri(pr.colpi[h]))
                for (uint16_t l : indice[x])
                    if (cnt[l]++ == 0) toccate.push_back(l);
            for (uint16_t l : toccate) {
                if (cnt[l] >= p.MinimoNumeri) {
                    ++presenze[da + l];
                    int32_t* c = conta.data() + l * N91;
                    for (uint32_t k = pr.inizio[h]; k < pr.inizio[h + 1]; ++k) ++c[pr.numeri[k]];
                }
                cnt[l] = 0;
            }
            toccate.clear();
        }
        // The list: every formation with enough presenze, ranked as the ambate.
        for (size_t x = da; x < a; ++x) {
            if (presenze[x] < p.PresenzeMinime) continue;
            inLista[x] = 1;
            const int32_t* c = conta.data() + (x - da) * N91;
            migliori[x] = Migliori([c](int q) { return c[q]; }, K, somme[x]);
        }
        const size_t ora = fatti += a - da;
        std::lock_guard<std::mutex> blocca(mutexProgresso);
        Progresso(av, static_cast<int>(ora), static_cast<int>(F));
    });
    if (Interrotta(av)) return e.interrotta = true, e;
    e.descrizioneStatistica = Descrizione(f, e.inizio, p);

    std::vector<uint32_t> riga(F);
    uint32_t righe = 0;
    for (size_t x = 0; x < F; ++x)
        if (inLista[x]) riga[x] = righe++;
    e.lista.resize(righe);
    tbb::parallel_for(size_t{0}, F, [&](size_t x) {
        if (!inLista[x]) return;
        std::string testo, voce;
        for (int n : fz[x]) {
            testo += fmt::format("{:>2}.", n);
            voce += fmt::format("{}.", n);
        }
        testo.pop_back();
        voce.pop_back();
        e.lista[riga[x]] = RigaLista(std::move(voce), std::move(testo), presenze[x], migliori[x], K, somme[x],
                                     static_cast<int32_t>(x));
    });
    if (Interrotta(av)) return e.interrotta = true, e;
    OrdinaLista(e.lista, p.PerPercentuale);
    if (e.lista.empty()) {
        e.errore = {"Nessun risultato da visualizzare!", "Precursori", Icona::Informazione};
        return e;
    }

    const std::array<bool, N91> pv = Verifica(p, f, e, "Verifica presenze precursori dal ");
    // Every formation, listed or not: one not listed keeps its empty slots (number 0).
    std::vector<uint8_t> contaPresenti(F);
    int massimo = 0;
    for (size_t x = 0; x < F; ++x) {
        int c = 0;
        for (int k = 0; k < K; ++k) c += pv[static_cast<size_t>(migliori[x][static_cast<size_t>(k)])];
        contaPresenti[x] = static_cast<uint8_t>(c);
        massimo = std::max(massimo, c);
    }
    std::vector<size_t> presi;
    if (massimo > 0) {
        for (size_t x = 0; x < F; ++x)
            if (contaPresenti[x] == massimo) presi.push_back(x);
        // A thin top rank is widened by the two counts below it, up to six formations.
        for (int meno = 1; meno <= 2; ++meno) {
            if (presi.size() >= 6 || massimo < 4) break;
            for (size_t x = 0; x < F && presi.size() < 6; ++x)
                if (contaPresenti[x] == massimo - meno) presi.push_back(x);
        }
    }
    std::stable_sort(presi.begin(), presi.end(), [&](size_t a, size_t b) {
        return contaPresenti[a] != contaPresenti[b] ? contaPresenti[a] > contaPresenti[b] : a > b;
    });
    if (presi.size() > Candidati) presi.resize(Candidati);
    const int32_t N = f.NumeroEstrazioni();
    for (size_t x : presi) {
        if (presenze[x] < p.PresenzeMinime) continue;
        RigaPresenti r;
        r.chiave = static_cast<int32_t>(x);
        std::string testo;
        for (int k = 0; k < K; ++k) {
            const int q = migliori[x][static_cast<size_t>(k)];
            if (!pv[static_cast<size_t>(q)]) continue;
            if (!testo.empty()) testo += " - ";
            testo += fmt::format("{:>2}", q);
        }
        for (int n : fz[x]) r.voce += fmt::format("{}.", n);
        r.voce.pop_back();
        r.testo[0] = r.voce;
        r.testo[1] = testo;
        const auto& el = fz[x];
        const Ritardi rit = CalcolaRitardi(f, e.inizio, [&](std::span<const uint8_t> estr) {
            int c = 0;
            for (int n : el)
                for (uint8_t y : estr) c += n == y;
            return c >= p.MinimoNumeri;
        });
        if (ColonneRitardo(r, rit, e.inizio, N, p.Successivi, rit.uscite)) {
            // The mean frequency per draw of the period times the present delay; a period of
            // one draw has no mean.
            const int32_t periodo = p.Fine - e.inizio;
            r.testo[5] =
                periodo == 0
                    ? " -"
                    : config::AllineaDestra(
                          config::Formato(static_cast<double>(rit.uscite) / periodo * (N - rit.ultima), "#0.0"), 4);
        }
        e.presenti.push_back(std::move(r));
    }
    return e;
}

std::string SecondaRigaReport(const FonteEstrazioni& f) {
    switch (f.gioco()) {
        case Gioco::SuperEnalotto: return "Superenalotto";
        case Gioco::DieciELotto: return "10eLotto";
        default: break;
    }
    std::string nome(archives::NomiRuota[static_cast<size_t>(f.ruota())]);
    nome.erase(nome.find_last_not_of(' ') + 1);
    return "Ruota di " + nome;
}

std::string NomeFileReport(const FonteEstrazioni& f) {
    switch (f.gioco()) {
        case Gioco::SuperEnalotto: return "Precursori_SuperEnalotto.txt";
        case Gioco::DieciELotto: return "Precursori_10eLotto.txt";
        default: break;
    }
    return "Precursori_" + SecondaRigaReport(f).substr(9) + ".txt";
}

std::vector<std::string> ReportPrecursori(const EsitoPrecursori& e, const FonteEstrazioni& f) {
    std::vector<std::string> r = {"",
                                  "",
                                  std::string(TitoloPrecursori),
                                  SecondaRigaReport(f),
                                  e.descrizioneVerifica,
                                  "",
                                  "",
                                  "",
                                  e.descrizioneStatistica,
                                  ""};
    const std::array<int, 4> col = e.formazioni ? std::array<int, 4>{5, 43, 52, 90} : std::array<int, 4>{5, 15, 24, 72};
    // A line of 100 blanks with the values set in, less the two blanks before the second column.
    auto riga = [&](const std::array<std::string, 4>& t) {
        std::string s(100, ' ');
        for (size_t c = 0; c < 4; ++c) {
            const size_t da = static_cast<size_t>(col[c] - 1);
            if (s.size() < da + t[c].size()) s.resize(da + t[c].size(), ' ');
            s.replace(da, t[c].size(), t[c]);
        }
        s.erase(static_cast<size_t>(col[1] - 3), 2);
        return s;
    };
    r.push_back(riga(e.titoli));
    r.push_back("");
    for (const RigaPrecursori& x : e.lista) r.push_back(riga(x.testo));
    return r;
}

std::vector<config::RigaTesto> StampaPrecursori(const EsitoPrecursori& e, const FonteEstrazioni& f) {
    std::vector<config::RigaTesto> r;
    auto centrata = [&](const std::string& t) { r.push_back({config::Centrato(t), true}); };
    centrata(std::string(TitoloPrecursori));
    centrata(SecondaRigaReport(f));
    centrata(e.descrizioneVerifica);
    r.push_back({});
    // Columns from 1: the heads and the rows of the forecast list, then the list of precursors.
    auto posa = [](int larghezza, const auto& colonne, const auto& testi) {
        config::RigaReport riga(larghezza);
        for (size_t c = 0; c < testi.size(); ++c) riga.metti(colonne[c], testi[c]);
        std::string t = riga.testo();
        t.erase(t.find_last_not_of(' ') + 1);
        return t;
    };
    const std::array<int, 6> teste =
        e.formazioni ? std::array<int, 6>{2, 35, 68, 76, 84, 93} : std::array<int, 6>{2, 11, 47, 57, 67, 76};
    const std::array<int, 6> righe =
        e.formazioni ? std::array<int, 6>{2, 35, 68, 76, 84, 92} : std::array<int, 6>{2, 9, 47, 57, 67, 75};
    const int larghezza = e.formazioni ? 96 : 80;
    r.push_back({posa(larghezza, teste, e.titoliPresenti), true});
    for (const RigaPresenti& x : e.presenti) r.push_back({posa(larghezza, righe, x.testo)});
    r.push_back({});
    centrata(e.descrizioneStatistica);
    r.push_back({});
    const std::array<int, 4> col = e.formazioni ? std::array<int, 4>{5, 43, 52, 90} : std::array<int, 4>{5, 15, 24, 72};
    const std::string testa = posa(100, col, e.titoli);
    r.push_back({testa, true});
    int contatore = 9 + static_cast<int>(e.presenti.size()) + 6;
    for (const RigaPrecursori& x : e.lista) {
        if (++contatore >= 70) {
            r.push_back({testa, true, true});
            contatore = 3;
        }
        r.push_back({posa(100, col, x.testo)});
    }
    return r;
}

}  // namespace gorgo::precursors
