#include "studies/multiruota.h"

#include <fmt/format.h>
#include <tbb/parallel_for.h>

#include <algorithm>
#include <bit>

#include "config/formato.h"

namespace gorgo::studies {

namespace {

using config::Formato;

// The numbers of a wheel as a set of bits.
struct Insieme {
    uint64_t basso = 0, alto = 0;
    void aggiungi(int n) { (n < 64 ? basso : alto) |= uint64_t{1} << (n & 63); }
    int comuni(const Insieme& o) const { return std::popcount(basso & o.basso) + std::popcount(alto & o.alto); }
};

Insieme DellaRuota(const archives::RecordEstrazione& r, int w) {
    Insieme s;
    for (int k = 1; k <= 5; ++k) {
        const int n = r.Numero(w, k);
        if (n >= 1 && n <= 90) s.aggiungi(n);
    }
    return s;
}

Insieme DiFormazione(const std::vector<int>& f) {
    Insieme s;
    for (int n : f) s.aggiungi(n);
    return s;
}

archives::Messaggio ErroreVolte() { return {std::string(MessaggioVolte), "Errore", archives::Icona::Esclamazione}; }

// The numbers of a wheel in "@@", those of the formation bold in `colore`.
void ColonneNumeri(Riga& r, const archives::RecordEstrazione& e, int w, const Insieme& f, uint32_t colore) {
    for (int k = 1; k <= 5; ++k) {
        const int n = e.Numero(w, k);
        Insieme uno;
        if (n >= 1 && n <= 90) uno.aggiungi(n);
        const bool dentro = n >= 1 && n <= 90 && f.comuni(uno) == 1;
        r.testo(Formato(n, "@@"), dentro ? colore : colori::Nessuno, dentro);
    }
}

// The walk of one formation: each cycle calls `ciclo(i, hits, counts)` with the hits (draw, wheel).
template <typename F>
int Cammina(const archives::StoriaLotto& st, const ParametriMultiruota& p, const std::vector<int>& f, F&& ciclo) {
    // A wheel holds the formation when enough of its five numbers are in this table.
    std::array<uint8_t, 256> inF{};
    for (int n : f) inF[static_cast<size_t>(n)] = 1;
    const auto presenti = [&](const archives::RecordEstrazione& r, int w) {
        const uint8_t* c = r.Ruota[w - 1];
        return inF[c[0]] + inF[c[1]] + inF[c[2]] + inF[c[3]] + inF[c[4]];
    };
    const int richiesti = NumeriRichiesti(p.TipoRicerca);
    const int32_t n = st.NumeroEstrazioni();
    int cicli = 0;
    std::vector<std::pair<int32_t, int>> colpi;
    for (int32_t i = p.Base; i >= 1 && cicli < p.Volte; --i) {
        if (presenti(st[i], p.RuotaRicerca) < richiesti) continue;
        colpi.clear();
        for (int32_t j = i + 1, colpo = 1; j <= n && (p.Estrazioni == 0 || colpo <= p.Estrazioni); ++j, ++colpo) {
            bool colpito = false;
            for (int w = 1; w <= archives::NumeroRuote; ++w)
                if (presenti(st[j], w) >= richiesti) {
                    colpi.emplace_back(j, w);
                    colpito = true;
                }
            if (p.Estrazioni == 0 && colpito) break;
        }
        const bool conta = p.Estrazioni > 0 || !colpi.empty();
        ciclo(i, colpi, conta);
        if (conta) ++cicli;
    }
    return cicli;
}

}  // namespace

int NumeriRichiesti(TipoMultiruota tipo) {
    switch (tipo) {
        case TipoMultiruota::Ambate: return 1;
        case TipoMultiruota::Ambi: return 2;
        case TipoMultiruota::AmbiInTerzina: return 2;
        case TipoMultiruota::Terni: return 3;
    }
    return 1;
}

std::vector<std::vector<int>> Formazioni(const archives::RecordEstrazione& r, int ruota, TipoMultiruota tipo) {
    std::array<int, 5> c{};
    for (int k = 1; k <= 5; ++k) {
        c[static_cast<size_t>(k - 1)] = r.Numero(ruota, k);
        if (c[static_cast<size_t>(k - 1)] < 1 || c[static_cast<size_t>(k - 1)] > 90) return {};
    }
    std::sort(c.begin(), c.end());
    std::vector<std::vector<int>> f;
    if (tipo == TipoMultiruota::Ambate) {
        for (int n : c) f.push_back({n});
    } else if (tipo == TipoMultiruota::Ambi) {
        for (size_t a = 0; a < 5; ++a)
            for (size_t b = a + 1; b < 5; ++b) f.push_back({c[a], c[b]});
    } else {
        for (size_t a = 0; a < 5; ++a)
            for (size_t b = a + 1; b < 5; ++b)
                for (size_t d = b + 1; d < 5; ++d) f.push_back({c[a], c[b], c[d]});
    }
    return f;
}

std::string TestoFormazione(const std::vector<int>& f) {
    std::string t;
    for (size_t k = 0; k < f.size(); ++k) t += (k ? "-" : "") + Formato(f[k], "@@");
    return t;
}

void ClassificaMultiruota(EsitoMultiruota& e, int classifica) {
    const auto& valori = classifica == 0 ? e.sortite : e.cicliRuota;
    std::array<int, 12> somma{};
    for (const auto& v : valori)
        for (int w = 1; w <= archives::NumeroRuote; ++w) somma[static_cast<size_t>(w)] += v[static_cast<size_t>(w)];
    const int massimo = *std::max_element(somma.begin() + 1, somma.end());
    e.ruotaMigliore = fmt::format("Miglior ruota ({} {}) :", massimo, classifica == 0 ? "sortite" : "cicli");
    for (int w = 1; w <= archives::NumeroRuote; ++w)
        if (somma[static_cast<size_t>(w)] == massimo) e.ruotaMigliore += " " + NomeRuota(w);
    e.righe.clear();
    for (size_t f = 0; f < e.formazioni.size(); ++f) {
        Riga r;
        r.testo(TestoFormazione(e.formazioni[f]), colori::Blu, true);
        std::array<int, 11> ordine{};
        for (int w = 1; w <= 11; ++w) ordine[static_cast<size_t>(w - 1)] = w;
        std::stable_sort(ordine.begin(), ordine.end(), [&](int a, int b) {
            return valori[f][static_cast<size_t>(a)] > valori[f][static_cast<size_t>(b)];
        });
        for (size_t k = 0; k < 10; ++k) {
            const int w = ordine[k];
            const int v = valori[f][static_cast<size_t>(w)];
            const double q = e.cicli[f] > 0 ? static_cast<double>(v) / e.cicli[f] : 0.0;
            r.testo(config::AllineaDestra(Formato(q, "#0.0%"), 6) + " " + NomeRuota(w));
        }
        r.valore("cicli", e.cicli[f]);
        for (int w = 1; w <= 11; ++w)
            r.valore(archives::SigleRuota[static_cast<size_t>(w)], valori[f][static_cast<size_t>(w)]);
        e.righe.push_back(std::move(r));
    }
}

EsitoMultiruota RicercaMultiruota(const archives::StoriaLotto& st, const ParametriMultiruota& p) {
    EsitoMultiruota e;
    if (p.Volte < 1) {
        e.errore = ErroreVolte();
        return e;
    }
    if (p.Base < 1 || p.Base > st.NumeroEstrazioni()) return e;
    e.formazioni = Formazioni(st[p.Base], p.RuotaRicerca, p.TipoRicerca);
    const size_t nf = e.formazioni.size();
    e.cicli.assign(nf, 0);
    e.sortite.assign(nf, {});
    e.cicliRuota.assign(nf, {});
    tbb::parallel_for(size_t{0}, nf, [&](size_t f) {
        e.cicli[f] = Cammina(st, p, e.formazioni[f], [&](int32_t, const auto& colpi, bool conta) {
            if (!conta) return;
            std::array<bool, 12> presente{};
            for (const auto& [j, w] : colpi) {
                ++e.sortite[f][static_cast<size_t>(w)];
                presente[static_cast<size_t>(w)] = true;
            }
            for (int w = 1; w <= 11; ++w) e.cicliRuota[f][static_cast<size_t>(w)] += presente[static_cast<size_t>(w)];
        });
    });
    if (nf) ClassificaMultiruota(e, p.Classifica);
    return e;
}

EsitoDettaglio DettaglioFormazione(const archives::StoriaLotto& st, const ParametriMultiruota& p, size_t formazione) {
    EsitoDettaglio e;
    if (p.Volte < 1) {
        e.errore = ErroreVolte();
        return e;
    }
    const auto formazioni = Formazioni(st[p.Base], p.RuotaRicerca, p.TipoRicerca);
    if (formazione >= formazioni.size()) return e;
    const Insieme fs = DiFormazione(formazioni[formazione]);
    int numero = 0;
    const auto aggiungi = [&](Riga r) {
        r.chiave = Formato(++numero, "00000");
        e.righe.push_back(std::move(r));
    };
    Cammina(st, p, formazioni[formazione], [&](int32_t i, const auto& colpi, bool) {
        Riga occ;
        occ.testo(st.DataEstrazione(i));
        ColonneNumeri(occ, st[i], p.RuotaRicerca, fs, colori::Verde);
        occ.testo("--").testo("--");
        occ.valore("indice", i);
        aggiungi(std::move(occ));
        for (const auto& [j, w] : colpi) {
            Riga r;
            r.testo(st.DataEstrazione(j));
            ColonneNumeri(r, st[j], w, fs, colori::Verde);
            r.testo(std::to_string(j - i)).testo(NomeRuota(w));
            r.valore("indice", j).valore("colpo", j - i).valore("ruota", w);
            aggiungi(std::move(r));
        }
        if (colpi.empty()) {
            Riga nd;
            nd.testo("N.D.");
            for (int k = 0; k < 7; ++k) nd.testo("");
            aggiungi(std::move(nd));
        }
    });
    return e;
}

EsitoDettaglio NonSfaldati(const archives::StoriaLotto& st, const ParametriMultiruota& p, int32_t al) {
    EsitoDettaglio e;
    if (p.Volte < 1) {
        e.errore = ErroreVolte();
        return e;
    }
    const int richiesti = NumeriRichiesti(p.TipoRicerca);
    const int32_t fine = p.TipoRicerca == TipoMultiruota::Ambate ? al - 1 : al;
    int numero = 0;
    for (int32_t i = std::max(1, al - p.Estrazioni); i <= fine; ++i) {
        for (const auto& f : Formazioni(st[i], p.RuotaRicerca, p.TipoRicerca)) {
            const Insieme fs = DiFormazione(f);
            int trascorse = 0;
            bool sfaldata = false;
            for (int32_t j = i + 1; j <= al && !sfaldata; ++j) {
                for (int w = 1; w <= archives::NumeroRuote && !sfaldata; ++w)
                    sfaldata = DellaRuota(st[j], w).comuni(fs) >= richiesti;
                if (!sfaldata) ++trascorse;
            }
            if (sfaldata) continue;
            Riga r;
            r.testo(st.DataEstrazione(i));
            ColonneNumeri(r, st[i], p.RuotaRicerca, fs, colori::Rosso);
            r.testo(Formato(trascorse, "@@@")).testo("--");
            r.chiave = Formato(++numero, "00000");
            r.valore("indice", i).valore("trascorse", trascorse);
            e.righe.push_back(std::move(r));
        }
    }
    return e;
}

config::ReportTesto ReportMultiruota(const ParametriMultiruota& p, const EsitoMultiruota& e, bool stampa) {
    config::ReportTesto rep;
    rep.riga(fmt::format("Ricerca {} multiruota {} ricercati/e per {} volte - ",
                         TestiTipoMultiruota[static_cast<size_t>(p.TipoRicerca)], p.Volte, p.Estrazioni));
    rep.riga("Ruota originale di ricerca : " + NomeRuota(p.RuotaRicerca));
    rep.riga(e.ruotaMigliore);
    const int colonne = stampa ? 6 : 10;
    std::string regola = "*--------", testa = "|        ";
    for (int k = 1; k <= colonne; ++k) {
        regola += "*----------";
        testa += "|" + config::AllineaDestra(std::to_string(k) + "' Ruota ", 10);
    }
    regola += "*";
    testa += "|";
    rep.rigaVuota().riga(regola).riga(testa).riga(regola);
    for (const Riga& r : e.righe) {
        std::string t = "|" + config::AllineaSinistra(r.celle[0].testo, 8);
        for (size_t k = 1; k <= static_cast<size_t>(colonne) && k < r.celle.size(); ++k) {
            // The percentage and the wheel's code fit the ten places of a cell.
            const std::string& c = r.celle[k].testo;
            const std::string nome = c.substr(7);
            int w = 1;
            while (w < 11 && NomeRuota(w) != nome) ++w;
            t += "|" + c.substr(0, 6) + " " + std::string(archives::SigleRuota[static_cast<size_t>(w)]) + " ";
        }
        rep.riga(t + "|");
    }
    rep.riga(regola);
    return rep;
}

}  // namespace gorgo::studies
