#include "studies/punti_incogniti.h"

#include <fmt/format.h>
#include <tbb/parallel_for.h>

#include <algorithm>
#include <charconv>

#include "archives/regole.h"
#include "config/formato.h"

namespace gorgo::studies {

namespace {

using archives::Fuori90Catena;
using config::Formato;

constexpr int Colonne = 11;

// The series freed of repeated values, and the sums to look for (one when they are equal).
struct Giocata {
    std::array<bool, 91> inSerie{};
    int se = 0, si = 0;
    explicit Giocata(const SerieIncognita& s) : se(s[6]), si(s[7]) {
        for (int k = 1; k <= 5; ++k) inSerie[static_cast<size_t>(s[static_cast<size_t>(k)])] = true;
        inSerie[0] = false;
    }
    // k: extracts in the series; s: extracts equal to a sum.
    std::pair<int, int> Conta(const archives::RecordEstrazione& r, int ruota) const {
        int k = 0, s = 0;
        for (int pos = 1; pos <= 5; ++pos) {
            const int n = r.Numero(ruota, pos);
            if (n < 1 || n > 90) continue;
            if (inSerie[static_cast<size_t>(n)]) ++k;
            if (n == se || (se != si && n == si)) ++s;
        }
        return {k, s};
    }
};

// E, A, T of k numbers in the series.
constexpr std::array<std::array<int, 3>, 6> TabellaK = {
    {{0, 0, 0}, {1, 0, 0}, {2, 1, 0}, {3, 3, 1}, {4, 6, 4}, {5, 10, 10}}};

std::string Unite(const int* v, int quanti) {
    std::string t;
    for (int k = 0; k < quanti; ++k) {
        if (k) t += '.';
        t += Formato(v[k], "@@");
    }
    return t;
}

std::string TestoCinquina(const std::array<int, 5>& e) { return Unite(e.data(), 5); }
std::string TestoSerie(const SerieIncognita& s) {
    const int v[5] = {s[1], s[2], s[3], s[4], s[5]};
    return Unite(v, 5);
}

std::string NumeroOVuoto(int v) { return v ? std::to_string(v) : std::string(); }

// The first five columns of a play: date, cinquina, Se, series, I.
void ColonneGiocata(Riga& r, const archives::StoriaLotto& s, int32_t i, const std::array<int, 5>& e,
                    const SerieIncognita& serie) {
    r.testo(s.DataEstrazione(i), colori::BluScuro)
        .testo(TestoCinquina(e))
        .testo(std::to_string(serie[6]), colori::Verde)
        .testo(TestoSerie(serie))
        .testo(std::to_string(serie[7]), colori::Verde);
    r.chiave = Formato(i, "00000");
    r.valore("indice", i);
}

void ColonneVuote(Riga& r, int quante = 5) {
    for (int k = 0; k < quante; ++k) r.testo("");
}

void Completa(Riga& r) {
    while (static_cast<int>(r.celle.size()) < Colonne) r.testo("");
}

// The counters of a colpo (or of a play) under E..As by the kind of play.
void ColonneSorte(Riga& r, int m, const std::array<int, 5>& v) {
    const auto n = [&](int k) { return std::to_string(v[static_cast<size_t>(k)]); };
    if (m == 1) {
        for (int k = 0; k < 5; ++k) r.testo(n(k));
    } else if (m == 2) {
        r.testo("-").testo(n(1)).testo(n(2)).testo("-").testo(n(4));
    } else {
        r.testo("-").testo("-").testo(n(2)).testo("-").testo("-");
    }
    static constexpr const char* nomi[5] = {"E", "A", "T", "Es", "As"};
    for (int k = 0; k < 5; ++k) r.valore(nomi[k], v[static_cast<size_t>(k)]);
}

Riga RigaVuota() {
    Riga r;
    Completa(r);
    return r;
}

// One historic run on one wheel; rows only when not in the summary of all wheels.
void Storica(const archives::StoriaLotto& st, const ParametriVerifica& p, bool riepilogo, EsitoStorica& e) {
    const int32_t n = st.NumeroEstrazioni();
    const int m = p.Sorte;
    const int32_t ultimoInizio = std::min(p.Al, n - 1);
    for (int32_t i = p.Dal; i <= ultimoInizio; ++i) {
        const std::array<int, 5> cinq = Cinquina(st[i], p.Ruota);
        const SerieIncognita serie = CalcolaSerie(cinq);
        if (serie[0] <= 0) continue;
        ++e.Giocate;
        const Giocata g(serie);
        std::array<int, 5> totali{};  // E, A, T, Es, As of the play
        bool vinta = false, inGioco = false;
        int contati = 0;
        // Counts a winning colpo; its row's first six columns when rows are kept.
        const auto rigaVincita = [&](int c) {
            Riga r;
            const bool prima = !vinta;
            if (prima) {
                ++e.Vincenti;
                e.SommaColpi += c;
                vinta = true;
            }
            if (riepilogo) return r;
            if (prima)
                ColonneGiocata(r, st, i, cinq, serie);
            else
                ColonneVuote(r);
            r.testo(std::to_string(c));
            r.valore("colpo", c);
            return r;
        };
        for (int c = 1; c <= p.Colpi; ++c) {
            const int32_t j = i + c;
            if (j > n) {
                inGioco = true;
                break;
            }
            contati = c;
            if (m == 4) {
                bool vintoColpo = false;
                for (int w = 1; w <= archives::NumeroRuote; ++w) {
                    if (g.Conta(st[j], w).second != 2) continue;
                    e.MaxRuota = std::max(e.MaxRuota, ++e.VinciteRuota[static_cast<size_t>(w)]);
                    Riga r = rigaVincita(c);
                    if (!riepilogo) {
                        r.testo(NomeRuota(w)).testo("-").testo("-").testo("-").testo("1");
                        r.valore("ruota", w);
                        e.righe.push_back(std::move(r));
                    }
                    vintoColpo = true;
                }
                if (vintoColpo && p.SoloPrima) break;
                continue;
            }
            const auto [k, s] = g.Conta(st[j], p.Ruota);
            if (k < m && s < m) continue;
            std::array<int, 5> v{};
            if (s >= m) {
                v[3] = s;
                v[4] = s == 2 ? 1 : 0;
            }
            if (k >= m) {
                const auto& t = TabellaK[static_cast<size_t>(k)];
                v[0] = t[0], v[1] = t[1], v[2] = t[2];
            }
            for (int x = 0; x < 5; ++x) totali[static_cast<size_t>(x)] += v[static_cast<size_t>(x)];
            Riga r = rigaVincita(c);
            if (!riepilogo) {
                ColonneSorte(r, m, v);
                e.righe.push_back(std::move(r));
            }
            if (p.SoloPrima) break;
        }
        if (inGioco) ++e.InGioco;
        if (m != 4) {
            e.TotE += totali[0], e.TotA += totali[1], e.TotT += totali[2], e.TotEs += totali[3], e.TotAs += totali[4];
        }
        if (riepilogo) continue;
        if (m != 4 && !p.SoloPrima && vinta) {
            Riga r;
            ColonneVuote(r);
            r.testo("Tot.");
            r.grassetto = true;
            const auto se = [&](bool mostra, int v) { r.testo(mostra && v > 0 ? std::to_string(v) : ""); };
            se(m == 1, totali[0]);
            se(m < 3, totali[1]);
            se(true, totali[2]);
            se(m == 1, totali[3]);
            se(m < 3, totali[4]);
            e.righe.push_back(std::move(r));
            if (!inGioco) e.righe.push_back(RigaVuota());
        }
        if (inGioco) {
            Riga r;
            if (!vinta)
                ColonneGiocata(r, st, i, cinq, serie);
            else
                ColonneVuote(r);
            r.testo(" In ").testo("gioco").testo("-" + std::to_string(p.Colpi - contati));
            r.valore("in_gioco", p.Colpi - contati);
            Completa(r);
            r.grassetto = true;
            r.colore = colori::Rosso;
            e.righe.push_back(std::move(r));
            if (!p.SoloPrima) e.righe.push_back(RigaVuota());
        }
    }
    if (riepilogo) return;
    if (m != 4) {
        Riga linea;
        ColonneVuote(linea, 6);
        for (int k = 0; k < 5; ++k) linea.testo("___");
        e.righe.push_back(std::move(linea));
        Riga tot;
        ColonneVuote(tot);
        tot.testo("Totali");
        ColonneSorte(tot, m, {e.TotE, e.TotA, e.TotT, e.TotEs, e.TotAs});
        e.righe.push_back(std::move(tot));
        return;
    }
    e.righe.push_back(RigaVuota());
    int somma = 0;
    for (int w = 1; w <= archives::NumeroRuote; ++w) somma += e.VinciteRuota[static_cast<size_t>(w)];
    Riga tot;
    ColonneVuote(tot, 6);
    tot.testo("Tot.").testo("").testo("").testo("").testo(std::to_string(somma));
    tot.grassetto = true;
    tot.valore("vincite", somma);
    e.righe.push_back(std::move(tot));
    e.righe.push_back(RigaVuota());
    for (int w = 1; w <= archives::NumeroRuote; ++w) {
        if (e.VinciteRuota[static_cast<size_t>(w)] != e.MaxRuota) continue;
        Riga r;
        ColonneVuote(r, 3);
        r.testo("Ruota migliore").testo("").testo("").testo(NomeRuota(w)).testo("").testo("").testo("");
        r.testo(std::to_string(e.MaxRuota));
        r.valore("ruota", w).valore("vincite", e.MaxRuota);
        e.righe.push_back(std::move(r));
    }
}

archives::Messaggio Errore(std::string_view testo, std::string titolo = {}) {
    return {std::string(testo), std::move(titolo), archives::Icona::Esclamazione};
}

}  // namespace

std::array<int, 5> Cinquina(const archives::RecordEstrazione& r, int ruota) {
    return {r.Numero(ruota, 1), r.Numero(ruota, 2), r.Numero(ruota, 3), r.Numero(ruota, 4), r.Numero(ruota, 5)};
}

int SommaIgnotaPreCalcolo(int primoEstratto) { return Fuori90Catena(90 - primoEstratto); }

SerieIncognita CalcolaSerie(const std::array<int, 5>& e) {
    const auto f = Fuori90Catena;
    if (e[0] == 0) return {};
    const int se = f(e[0] + e[1] + e[2] + e[3] + e[4]);
    const int i = f(90 - e[0]);
    const int b = f(i - se);
    const int d = f(se - b);
    const int p3 = f(e[2] - d);
    const int g = f(p3 - e[3]);
    const int p1 = f(g - e[4]);
    const int p2 = f(e[0] + g);
    const int h = f(g + b);
    const int t2 = f(p1 - e[0] + se);
    const int t3 = f(t2 - e[1] + p2);
    const int t4 = f(t3 - e[2] + p3);
    const int c = f(t4 + t3 + t2 + i + se);
    const int t5 = f(h - c);
    const int p4 = f(e[3] - f(t4 - t5));
    const int p5 = f(e[4] - f(t5 - i));
    const int si = f(p1 + p2 + p3 + p4 + p5);
    if (si != i) return {};
    return {static_cast<int16_t>(g),  static_cast<int16_t>(p1), static_cast<int16_t>(p2), static_cast<int16_t>(p3),
            static_cast<int16_t>(p4), static_cast<int16_t>(p5), static_cast<int16_t>(se), static_cast<int16_t>(si)};
}

EsitoColpi VerificaColpi(const archives::StoriaLotto& st, int32_t indice, int ruota, int colpi) {
    EsitoColpi e;
    if (colpi < 1 || colpi > 999) {
        e.errore = Errore(MessaggioColpi);
        return e;
    }
    if (indice < 1 || indice > st.NumeroEstrazioni()) return e;
    e.serie = CalcolaSerie(Cinquina(st[indice], ruota));
    for (int k = 0; k < 8; ++k)
        if (e.serie[static_cast<size_t>(k)] == 0) return e;
    const Giocata g(e.serie);
    std::array<int, 5> tot{};
    for (int c = 1; c <= colpi && indice + c <= st.NumeroEstrazioni(); ++c) {
        const archives::RecordEstrazione& r = st[indice + c];
        const auto [k, s] = g.Conta(r, ruota);
        if (k == 0 && s == 0) continue;
        Riga riga;
        riga.grassetto = true;
        riga.colore = colori::VerdeScuro;
        riga.testo(std::to_string(c));
        riga.valore("colpo", c);
        for (int pos = 1; pos <= 5; ++pos) {
            const int n = r.Numero(ruota, pos);
            uint32_t colore = colori::Nessuno;
            if (n >= 1 && n <= 90 && g.inSerie[static_cast<size_t>(n)])
                colore = colori::Rosso;
            else if (n >= 1 && (n == g.se || n == g.si))
                colore = colori::Verde;
            riga.testo(Formato(n, "00"), colore, colore != colori::Nessuno);
        }
        const auto& t = TabellaK[static_cast<size_t>(k)];
        const std::array<int, 5> v = {t[0], t[1], t[2], (s == 1 || s == 2) ? s : 0, s == 2 ? 1 : 0};
        static constexpr const char* nomi[5] = {"E", "A", "T", "Es", "As"};
        for (int x = 0; x < 5; ++x) {
            riga.testo(NumeroOVuoto(v[static_cast<size_t>(x)]));
            riga.valore(nomi[x], v[static_cast<size_t>(x)]);
            tot[static_cast<size_t>(x)] += v[static_cast<size_t>(x)];
        }
        e.righe.push_back(std::move(riga));
    }
    if (e.righe.empty()) return e;
    Riga linea;
    for (int k = 0; k < 6; ++k) linea.testo("");
    for (int k = 0; k < 5; ++k) linea.testo("____");
    e.righe.push_back(std::move(linea));
    Riga totali;
    totali.grassetto = true;
    totali.colore = colori::VerdeScuro;
    totali.testo("Totali");
    for (int k = 0; k < 5; ++k) totali.testo("");
    for (int x : tot) totali.testo(Formato(x, "@@@"));
    e.righe.push_back(std::move(totali));
    return e;
}

void ScriviDescrizione(EsitoStorica& e, const ParametriVerifica& p) {
    std::string apertura;
    if (p.Sorte != 4)
        apertura = p.Colpi == 1 ? "Giocate vincenti entro 1 colpo: "
                                : fmt::format("Giocate vincenti entro {} colpi: ", p.Colpi);
    else
        apertura = p.Colpi == 1 ? "Vincenti in 1 colpo: " : fmt::format("Vincenti in {} colpi: ", p.Colpi);
    if (e.Giocate == 0) {
        e.descrizione = apertura + "nessuna giocata.";
        return;
    }
    if (e.Vincenti == 0) {
        e.descrizione = apertura + "0 su " + std::to_string(e.Giocate);
        return;
    }
    const double perc = e.Vincenti * 100.0 / e.Giocate;
    const double media = static_cast<double>(e.SommaColpi) / e.Vincenti;
    e.descrizione = fmt::format("{}{} su {} ({} %) - In gioco: {}", apertura, e.Vincenti, e.Giocate,
                                Formato(perc, "0.0"), e.InGioco);
    if (p.Sorte != 4) {
        e.descrizione += " - Media colpi: " + Formato(media, "#0.0");
    } else {
        e.descrizione += " - M.colpi: " + Formato(media, "#0.0") + " - R.migliore: ";
        for (int w = 1; w <= archives::NumeroRuote; ++w)
            if (e.VinciteRuota[static_cast<size_t>(w)] == e.MaxRuota) e.descrizione += NomeRuota(w) + " ";
    }
    e.tag = Formato(perc, "000.0");
}

double LeggiTag(const std::string& tag) {
    std::string t = tag;
    std::replace(t.begin(), t.end(), ',', '.');
    double v = 0;
    std::from_chars(t.data(), t.data() + t.size(), v);
    return v;
}

EsitoStorica VerificaStorica(const archives::StoriaLotto& s, const ParametriVerifica& p, bool riepilogo,
                             std::string tag) {
    EsitoStorica e;
    e.tag = std::move(tag);
    if (p.Colpi < 1 || p.Colpi > 999) {
        e.errore = Errore(MessaggioColpi);
        return e;
    }
    if (p.Dal > p.Al) {
        e.errore = Errore(MessaggioDate, "Errore");
        return e;
    }
    Storica(s, p, riepilogo, e);
    ScriviDescrizione(e, p);
    return e;
}

EsitoRiepilogo RiepilogoRuote(const archives::StoriaLotto& s, const ParametriVerifica& p, std::string tag) {
    EsitoRiepilogo r;
    std::array<EsitoStorica, 12> ruote;
    ParametriVerifica prova = p;
    prova.Ruota = 1;
    if (EsitoStorica e = VerificaStorica(s, prova, true); !e.errore.vuoto()) {
        r.errore = e.errore;
        return r;
    }
    // Wheels are independent but for the tag, which is settled in wheel order afterwards.
    tbb::parallel_for(1, archives::NumeroRuote + 1, [&](int w) {
        ParametriVerifica q = p;
        q.Ruota = w;
        ruote[static_cast<size_t>(w)] = VerificaStorica(s, q, true, "");
    });
    double massimo = 0;
    bool primo = true;
    for (int w = 1; w <= archives::NumeroRuote; ++w) {
        const EsitoStorica& e = ruote[static_cast<size_t>(w)];
        if (!e.tag.empty()) tag = e.tag;
        const double perc = LeggiTag(tag);
        r.percentuale[static_cast<size_t>(w)] = perc;
        if (primo || perc > massimo) massimo = perc;
        primo = false;
        Riga riga;
        riga.testo(NomeRuota(w), colori::BluScuro, true).testo(e.descrizione);
        riga.valore("ruota", w).valore("percentuale", perc);
        riga.valore("giocate", e.Giocate).valore("vincenti", e.Vincenti);
        riga.valore("in_gioco", e.InGioco).valore("somma_colpi", e.SommaColpi);
        r.righe.push_back(std::move(riga));
    }
    for (int w = 1; w <= archives::NumeroRuote; ++w)
        if (r.percentuale[static_cast<size_t>(w)] == massimo) {
            r.righe[static_cast<size_t>(w - 1)].colore = colori::Rosso;
            r.righe[static_cast<size_t>(w - 1)].celle[0].colore = colori::Rosso;
        }
    r.tag = tag;
    return r;
}

// Opens a page with the heading again once a page holds more than `limite` lines.
static void RigaPaginata(config::ReportTesto& rep, int& righe, int limite, bool stampa, const std::string& regola,
                         const std::string& testa) {
    if (stampa && ++righe > limite) {
        rep.nuovaPagina().riga(regola).riga(testa).riga(regola);
        righe = 4;
    }
}

config::ReportTesto ReportColpi(const archives::StoriaLotto& st, int32_t indice, int ruota, const EsitoColpi& e,
                                bool stampa) {
    config::ReportTesto rep;
    const SerieIncognita& s = e.serie;
    rep.riga(fmt::format("I punti incogniti ruota {} estrazione del {}", NomeRuota(ruota), st.DataEstrazione(indice)));
    const std::array<int, 5> c = Cinquina(st[indice], ruota);
    rep.riga(fmt::format("Cinquina estratta: {} - Somma: {}", TestoCinquina(c), s[6]));
    rep.riga(fmt::format("Serie calcolata  : {} - Somma: {} - Punto di proiezione: {}", TestoSerie(s), s[7], s[0]));
    const std::string regola = "*-------*----*----*----*----*----*-----*-----*-----*-----*-----*";
    const std::string testa = "| Colpo | 1' | 2' | 3' | 4' | 5' |   E |   A |   T |  Es |  As |";
    rep.riga(regola).riga(testa).riga(regola);
    static constexpr int col[11] = {3, 11, 16, 21, 26, 31, 36, 42, 48, 54, 60};
    int righe = 6;
    for (const Riga& r : e.righe) {
        RigaPaginata(rep, righe, 60, stampa, regola, testa);
        config::RigaReport rr(static_cast<int>(regola.size()));
        for (size_t k = 0; k < r.celle.size() && k < 11; ++k)
            rr.metti(col[k], k >= 6 ? Formato(r.celle[k].testo, "@@@") : r.celle[k].testo);
        rep.riga(rr.testo(), r.grassetto);
    }
    rep.riga(regola);
    return rep;
}

config::ReportTesto ReportStorica(const archives::StoriaLotto& st, const ParametriVerifica& p, const EsitoStorica& e,
                                  bool stampa) {
    config::ReportTesto rep;
    rep.riga(fmt::format(" I punti incogniti ruota {} - Verifica storica dal {} al {}", NomeRuota(p.Ruota),
                         st.DataEstrazione(p.Dal), st.DataEstrazione(p.Al)));
    rep.riga(fmt::format(" Sorte minima rilevata : {}{}{} colpi successivi",
                         TestiSorte[static_cast<size_t>(p.Sorte - 1)],
                         p.SoloPrima ? " - Solo la 1' vincita entro i " : " - Tutte le vincite entro i ", p.Colpi));
    const std::string regola =
        "*----------*-------------------*----*-----------------*----*-------*-----*-----*-----*-----*-----*";
    std::string testa =
        "|   Data   | Cinquina estratta | Se | Serie calcolata | Si | Colpo |   E |   A |   T |  Es |  As |";
    if (p.Sorte == 4) testa.replace(68, 5, "Ruota");
    rep.riga(regola).riga(testa).riga(regola);
    static constexpr int col[11] = {2, 14, 34, 39, 57, 63, 69, 75, 81, 87, 93};
    int righe = 5;
    for (const Riga& r : e.righe) {
        RigaPaginata(rep, righe, 75, stampa, regola, testa);
        config::RigaReport rr(static_cast<int>(regola.size()));
        for (size_t k = 0; k < r.celle.size() && k < 11; ++k) {
            const std::string& t = r.celle[k].testo;
            const bool ruota = p.Sorte == 4 && k == 6;
            rr.metti(col[k], k >= 6 && !ruota ? Formato(t, "@@@@") : t);
        }
        rep.riga(rr.testo(), r.grassetto);
    }
    rep.riga(regola);
    return rep;
}

}  // namespace gorgo::studies
