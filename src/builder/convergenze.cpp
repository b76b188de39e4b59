// Convergences of the running forecasts and the lunghetta.

#include "builder/convergenze.h"

#include <fmt/format.h>
#include <tbb/parallel_for.h>
#include <algorithm>
#include <map>
#include <optional>

#include "builder/verifica_interna.h"

namespace gorgo::builder {

using interno::Avviso;
using interno::Prepara;
using interno::Preparazione;
using interno::Valore;
using interno::Verifica;

namespace {

std::vector<int> Dividi(std::string_view t) {
    std::vector<int> x;
    if (interno::Tronca(t).empty()) return x;
    for (size_t inizio = 0;;) {
        const size_t meno = t.find('-', inizio);
        x.push_back(Valore(t.substr(inizio, meno == std::string_view::npos ? t.npos : meno - inizio)));
        if (meno == std::string_view::npos) break;
        inizio = meno + 1;
    }
    return x;
}

// The forecast a row shows once clicked (lblCapo), and whether it runs within colpiMax;
// nothing when the row's key fails.
struct PrevisioneRiga {
    bool valida = false;
    int inCorso = 0;
    std::string capo;
};

// The rows are replays of their own: all of them at once, in their order.
std::vector<PrevisioneRiga> Previsioni(const Preparazione& prep, const std::vector<RigaAlgoritmo>& righe,
                                       const std::vector<size_t>& quali, bool soloInCorso) {
    std::vector<PrevisioneRiga> out(quali.size());
    tbb::parallel_for(size_t{0}, quali.size(), [&](size_t k) {
        const RigaAlgoritmo& r = righe[quali[k]];
        const int colpiMax = prep.p->colpiDaGiocare;
        if (soloInCorso) {
            const EsitoVerifica s = Verifica(prep, r.descrizione, r.chiave, r.testoSpia, true, colpiMax, true);
            if (!s.errore.vuoto()) return;
            out[k].inCorso = s.inCorso;
            if (s.inCorso <= 0) {
                out[k].valida = true;
                return;
            }
        }
        const EsitoVerifica v = Verifica(prep, r.descrizione, r.chiave, r.testoSpia, false, colpiMax, false);
        if (!v.errore.vuoto()) return;
        out[k].valida = true;
        if (!soloInCorso) out[k].inCorso = v.inCorso;
        out[k].capo = v.lblCapo;
    });
    return out;
}

std::string Elenco(const std::vector<Convergenza>& voci) {
    std::string t;
    for (const Convergenza& c : voci) {
        if (!t.empty()) t += " e ";
        for (size_t i = 0; i < c.numeri.size(); ++i) {
            if (i) t += '-';
            t += fmt::format("{:>2}", c.numeri[i]);
        }
    }
    return t;
}

std::string Blocco(std::string_view prefisso, const std::vector<Convergenza>& voci) {
    const std::string elenco = Elenco(voci);
    return fmt::format("{}{}{}{} volte", prefisso, elenco, elenco.size() < 13 ? " previsto " : " previsti ",
                       voci.front().volte);
}

}  // namespace

EsitoConvergenze CalcolaConvergenze(const ParametriRicerca& p, const ContestoRicerca& contesto,
                                    const std::vector<RigaAlgoritmo>& righe) {
    EsitoConvergenze e;
    std::vector<size_t> scelte;
    for (size_t k = 0; k < righe.size(); ++k)
        if (righe[k].selezionata) scelte.push_back(k);
    if (scelte.empty()) {
        e.messaggio = Avviso(NessunAlgoritmoConvergenze);
        return e;
    }
    e.frame = true;
    const Preparazione prep = Prepara(p, contesto);
    const std::vector<PrevisioneRiga> prev = Previsioni(prep, righe, scelte, true);
    for (size_t k = 0; k < scelte.size(); ++k)
        if (prev[k].valida && prev[k].inCorso > 0)
            e.righe.push_back({righe[scelte[k]].descrizione, prev[k].capo, Dividi(prev[k].capo), scelte[k]});
    if (e.righe.empty()) {
        e.messaggio = {std::string(NessunAlgoritmoInCorso), "", archives::Icona::Informazione};
        return e;
    }

    // Counters by sorted numbers; a pair or triple with a repeated number is no formation.
    std::vector<int> numero(91, 0), ambo(91 * 91, 0), terzina(91 * 91 * 91, 0);
    int maxN = 0, maxA = 0, maxT = 0;
    const auto valido = [](int n) { return n >= 1 && n <= 90; };
    const auto contaAmbo = [&](int a, int b) {
        if (a < b) maxA = std::max(maxA, ++ambo[static_cast<size_t>(a * 91 + b)]);
    };
    for (const RigaConvergenza& r : e.righe) {
        std::vector<int> x = r.numeri;
        if (!std::all_of(x.begin(), x.end(), valido)) continue;
        std::sort(x.begin(), x.end());
        if (x.size() == 1) {
            maxN = std::max(maxN, ++numero[static_cast<size_t>(x[0])]);
        } else if (x.size() == 2) {
            contaAmbo(x[0], x[1]);
        } else if (x.size() == 3) {
            if (x[0] < x[1] && x[1] < x[2])
                maxT = std::max(maxT, ++terzina[static_cast<size_t>((x[0] * 91 + x[1]) * 91 + x[2])]);
            contaAmbo(x[0], x[1]);
            contaAmbo(x[0], x[2]);
            contaAmbo(x[1], x[2]);
        }
    }
    if (maxN < 2 && maxA < 2 && maxT < 2) {
        e.messaggio = {std::string(NessunaConvergenza), "", archives::Icona::Informazione};
        return e;
    }
    if (maxN >= 2) {
        for (int a = 1; a <= 90; ++a)
            if (numero[static_cast<size_t>(a)] == maxN) e.numeri.push_back({{a}, maxN});
        e.blocchi.push_back(Blocco("N. ", e.numeri));
    }
    const int tipo = static_cast<int>(p.tipoRicerca);
    if (maxA > 1 && tipo >= 1 && tipo <= 4) {
        for (int a = 1; a <= 89; ++a)
            for (int b = a + 1; b <= 90; ++b)
                if (ambo[static_cast<size_t>(a * 91 + b)] == maxA) e.ambi.push_back({{a, b}, maxA});
        e.blocchi.push_back(Blocco("Ambo/i ", e.ambi));
    }
    if (maxT >= 2) {
        for (int a = 1; a <= 88; ++a)
            for (int b = a + 1; b <= 89; ++b)
                for (int c = b + 1; c <= 90; ++c)
                    if (terzina[static_cast<size_t>((a * 91 + b) * 91 + c)] == maxT)
                        e.terzine.push_back({{a, b, c}, maxT});
        e.blocchi.push_back(Blocco("Terzina/e ", e.terzine));
    }
    std::string testo;
    for (const std::string& b : e.blocchi) testo += (testo.empty() ? "" : "\n") + b;
    e.messaggio = {testo, "", archives::Icona::Informazione};
    e.rilevate = true;
    return e;
}

std::vector<int> TabellaRecente(const archives::StoriaLotto& s, const std::array<bool, 12>& ruoteGioco, int numeroRuote,
                                int32_t ultimo, bool perRuota) {
    std::vector<int> recente(perRuota ? 12 * 91 : 91, RecenteNonVisto);
    // Fewer draws back the more wheels are played.
    const int indietro = perRuota ? 5 : numeroRuote <= 1 ? 5 : numeroRuote == 2 ? 4 : numeroRuote <= 5 ? 3 : 2;
    for (int k = 0; k <= indietro && ultimo - k >= 1; ++k) {
        const archives::RecordEstrazione& r = s[ultimo - k];
        for (int w = 1; w <= archives::NumeroRuote; ++w) {
            if (!ruoteGioco[static_cast<size_t>(w)]) continue;
            for (int i = 0; i < 5; ++i) {
                const int n = r.Ruota[w - 1][i];
                if (n < 1 || n > 90) continue;
                int& x = recente[static_cast<size_t>(perRuota ? w * 91 + n : n)];
                if (x == RecenteNonVisto) x = k;
            }
        }
    }
    return recente;
}

EsitoLunghetta ElaboraLunghetta(const ParametriRicerca& p, const ContestoRicerca& contesto,
                                const std::vector<RigaAlgoritmo>& righe, const ParametriLunghetta& l) {
    EsitoLunghetta e;
    if (righe.empty()) {
        e.errore = Avviso(RicercaNecessaria, TitoloErrore);
        return e;
    }
    const Preparazione prep = Prepara(p, contesto);
    if (!prep.v.errore.vuoto()) return e;
    const archives::StoriaLotto& s = *contesto.storia;
    const int32_t ultimo = prep.v.ultimoPeriodo;
    const std::vector<int> recente =
        TabellaRecente(s, prep.v.ruoteGioco, ContaRuoteScelte(p.ruoteGioco), ultimo, l.ruotaMigliore);

    std::array<bool, 91> scelto{};
    int quanti = 0;
    // Marks the numbers of a row up to the length asked; the row goes into the list.
    const auto prendi = [&](size_t k, const std::string& capo) {
        RigaConvergenza r{righe[k].descrizione, capo, Dividi(capo), k};
        for (int n : r.numeri)
            if (quanti < l.numeri && n >= 1 && n <= 90 && !scelto[static_cast<size_t>(n)]) {
                scelto[static_cast<size_t>(n)] = true;
                ++quanti;
            }
        e.righe.push_back(std::move(r));
    };
    // Checked rows first, then the others, each in the order of the list.
    std::array<std::vector<size_t>, 2> giri;
    for (size_t k = 0; k < righe.size(); ++k) giri[righe[k].selezionata ? 0 : 1].push_back(k);

    for (const std::vector<size_t>& giro : giri) {
        if (quanti >= l.numeri) break;
        const std::vector<PrevisioneRiga> prev = Previsioni(prep, righe, giro, false);
        if (l.ruotaMigliore) {
            for (size_t k = 0; k < giro.size() && quanti < l.numeri; ++k)
                if (prev[k].valida && !Dividi(prev[k].capo).empty()) prendi(giro[k], prev[k].capo);
            continue;
        }
        // Ranked by how long their numbers have been away; at most 100 rows count.
        std::map<std::string, size_t> chiavi;
        int massimo = 0;
        for (size_t k = 0; k < giro.size(); ++k) {
            if (!prev[k].valida) continue;
            int somma = 0;
            for (int n : Dividi(prev[k].capo))
                if (n >= 1 && n <= 90) somma += recente[static_cast<size_t>(n)];
            if (somma <= 0) continue;
            if (chiavi.size() == 100) break;
            chiavi.emplace(fmt::format("{:04}{:06}", somma, giro[k]), k);
            massimo = std::max(massimo, somma);
        }
        for (int somma = massimo; somma >= 1 && quanti < l.numeri; --somma)
            for (const auto& [chiave, k] : chiavi) {
                if (quanti >= l.numeri) break;
                if (std::stoi(chiave.substr(0, 4)) == somma) prendi(giro[k], prev[k].capo);
            }
    }

    for (int n = 1; n <= 90; ++n)
        if (scelto[static_cast<size_t>(n)]) e.numeri.push_back(n);
    for (int n : e.numeri) e.txtLunghetta += (e.txtLunghetta.empty() ? "" : " - ") + std::to_string(n);

    if (l.ruotaMigliore) {
        int migliore = -1;
        for (int w = 1; w <= archives::NumeroRuote; ++w) {
            if (!prep.v.ruoteGioco[static_cast<size_t>(w)]) continue;
            int somma = 0;
            for (int n : e.numeri) somma += recente[static_cast<size_t>(w * 91 + n)];
            e.somme[static_cast<size_t>(w)] = somma;
            if (somma > migliore) {
                migliore = somma;
                e.ruotaMigliore = w;
                e.ruotaPari = 0;
            } else if (somma == migliore && e.ruotaPari == 0) {
                e.ruotaPari = w;
            }
        }
        if (e.ruotaMigliore > 0)
            e.txtRuotaMigliore = interno::Tronca(archives::NomiRuota[static_cast<size_t>(e.ruotaMigliore)]);
    }
    return e;
}

}  // namespace gorgo::builder
