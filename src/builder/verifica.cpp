// The replay of one algorithm through the history and the selection of the running ones.

#include "builder/verifica.h"

#include <fmt/format.h>
#include <tbb/parallel_for.h>
#include <algorithm>
#include <cstdlib>

#include "builder/chiavi.h"
#include "builder/verifica_interna.h"

namespace gorgo::builder {

namespace interno {

// Leading blanks, a sign, digits: the number a text starts with, 0 when none.
int Valore(std::string_view t) {
    size_t i = 0;
    while (i < t.size() && t[i] == ' ') ++i;
    bool meno = false;
    if (i < t.size() && (t[i] == '-' || t[i] == '+')) meno = t[i++] == '-';
    long v = 0;
    while (i < t.size() && t[i] >= '0' && t[i] <= '9' && v < 100000) v = v * 10 + (t[i++] - '0');
    return static_cast<int>(meno ? -v : v);
}

std::string Tronca(std::string_view t) {
    const auto a = t.find_first_not_of(' ');
    if (a == std::string_view::npos) return {};
    return std::string(t.substr(a, t.find_last_not_of(' ') - a + 1));
}

archives::Messaggio Avviso(std::string_view testo, std::string_view titolo) {
    return {std::string(testo), std::string(titolo), archives::Icona::Esclamazione};
}

Preparazione Prepara(const ParametriRicerca& p, const ContestoRicerca& ctx) {
    Preparazione r;
    r.p = &p;
    r.ctx = &ctx;
    r.s = ctx.storia;
    r.v = ValidaRicerca(p, *ctx.storia);
    if (!r.v.errore.vuoto()) return r;
    r.soloIndice = p.tipoSpia != TipoSpia::Ambo && p.modoSpia == ModoSpia::SoloIndiceMensile;
    switch (p.tipoRicerca) {
        case TipoRicerca::Ambate: r.soglia = 1; break;
        case TipoRicerca::Ambi:
        case TipoRicerca::TerzineAmbo: r.soglia = 2; break;
        case TipoRicerca::TerzineTerno: r.soglia = 3; break;
        case TipoRicerca::Codici: r.soglia = p.sorte; break;
    }
    for (int w = 1; w <= archives::NumeroRuote; ++w) {
        if (r.v.ruoteRicerca[static_cast<size_t>(w)]) r.ruoteRicerca.push_back(w);
        if (r.v.ruoteGioco[static_cast<size_t>(w)]) r.ruoteGioco.push_back(w);
    }
    const archives::StoriaLotto& s = *ctx.storia;
    const config::Restrizioni& re = ctx.restrizioni;
    const bool giorni = re.Giorno || re.Mese || re.Periodo;
    const IndiciMensili* im = ctx.indiciMensili;
    r.ammessa.assign(static_cast<size_t>(s.NumeroEstrazioni()) + 1, 0);
    for (int32_t i = 1; i <= s.NumeroEstrazioni(); ++i) {
        const auto k = static_cast<size_t>(i);
        bool mese = p.indiceMese == 22;
        if (!mese && im != nullptr) mese = p.indiceMese == 0 ? bool(im->ultimo[k]) : im->indice[k] == p.indiceMese;
        r.ammessa[k] = mese && (!giorni || config::EstrazioneAmmessa(re, s[i].dataCifre(), s[i].GiornoSettimana));
    }
    return r;
}

}  // namespace interno

using namespace interno;

namespace {

// Where the "_" of each layout stands (from 0): the spy positions follow the spy's two digits.
size_t Separatore(TipoRicerca tipo) {
    switch (tipo) {
        case TipoRicerca::Ambate: return 9;
        case TipoRicerca::Ambi: return 12;
        case TipoRicerca::TerzineAmbo:
        case TipoRicerca::TerzineTerno: return 6;
        case TipoRicerca::Codici: return 7;
    }
    return 9;
}

struct Spia {
    int a = 0, b = 0;
};

// Column 4 of a row: the value, or for an ambo the two values around the "-".
Spia LeggiSpia(std::string_view testo, TipoSpia tipo) {
    if (tipo != TipoSpia::Ambo) return {Valore(testo), 0};
    const auto meno = testo.find('-');
    if (meno == std::string_view::npos) return {Valore(testo), 0};
    return {Valore(testo.substr(0, meno)), Valore(testo.substr(meno + 1))};
}

// The spy condition on one wheel; where it stood, when by position.
bool SpiaPresente(const Preparazione& r, const uint8_t* x, const std::array<bool, 6>& posizioni, Spia spia, int& pos,
                  int& pos2) {
    if (r.soloIndice) return true;
    switch (r.p->tipoSpia) {
        case TipoSpia::Numero:
            for (int i = 0; i < 5; ++i)
                if (x[i] == spia.a && posizioni[static_cast<size_t>(i + 1)]) {
                    pos = i + 1;
                    return true;
                }
            return false;
        case TipoSpia::Somma:
        case TipoSpia::Differenza: {
            const bool somma = r.p->tipoSpia == TipoSpia::Somma;
            for (int i = 0; i < 4; ++i)
                for (int j = i + 1; j < 5; ++j)
                    if ((somma ? OperaPiu(x[i], x[j]) : OperaMeno(x[i], x[j])) == spia.a) return true;
            return false;
        }
        case TipoSpia::Ambo: {
            int quante = 0, a = 0, b = 0;
            for (int i = 0; i < 5; ++i) {
                if (!posizioni[static_cast<size_t>(i + 1)]) continue;
                if (x[i] == spia.a && !a) a = i + 1;
                if (x[i] == spia.b && !b) b = i + 1;
                if (x[i] == spia.a || x[i] == spia.b) ++quante;
            }
            if (quante != 2 || !a || !b) return false;
            pos = a;
            pos2 = b;
            return true;
        }
    }
    return false;
}

// Whether the forecast (as flags by number) comes out on a wheel of a draw.
bool Colpisce(const Preparazione& r, const uint8_t* x, const std::array<bool, 91>& previsti) {
    if (r.p->tipoRicerca == TipoRicerca::Ambate) {
        for (int i = 0; i < 5; ++i) {
            if (x[i] == 0) return false;
            if (x[i] <= 90 && previsti[x[i]] && r.p->posizioniValide[static_cast<size_t>(i + 1)]) return true;
        }
        return false;
    }
    int quanti = 0;
    for (int i = 0; i < 5; ++i) {
        if (x[i] == 0) return false;
        quanti += x[i] <= 90 && previsti[x[i]];
    }
    return quanti >= r.soglia;
}

std::string TestoPrevisione(const std::vector<int>& numeri) {
    std::string t;
    for (size_t i = 0; i < numeri.size(); ++i) t += (i ? "-" : "") + fmt::format("{:>2}", numeri[i]);
    return t;
}

}  // namespace

namespace interno {

EsitoVerifica Verifica(const Preparazione& r, std::string_view descrizione, std::string_view chiave,
                       std::string_view testoSpia, bool silenziosa, int colpiMax, bool selezione) {
    EsitoVerifica e;
    const ParametriRicerca& p = *r.p;
    const TipoRicerca tipo = p.tipoRicerca;
    if (chiave.size() < 9 || (tipo == TipoRicerca::Codici && chiave.size() != 16)) {
        e.errore = Avviso(AlgoritmoMancante);
        return e;
    }
    if (!r.v.errore.vuoto()) {
        e.errore = r.v.errore;
        return e;
    }
    const archives::StoriaLotto& s = *r.s;
    const int32_t n = s.NumeroEstrazioni();
    e.ultimo = r.v.ultimoPeriodo;

    // A numeric spy reads its positions from the key; every other spy takes all five.
    std::array<bool, 6> posizioni{false, true, true, true, true, true};
    if (p.tipoSpia == TipoSpia::Numero) {
        const size_t inizio = Separatore(tipo) + 3;
        if (chiave.size() < inizio + 5) return e;
        for (size_t k = 0; k < 5; ++k) posizioni[k + 1] = chiave[inizio + k] == '1';
    }
    // A bad key is told once, before the walk: its faults do not depend on the draw.
    if (NumeriCalcolati prova = NumeriAlgoritmo(chiave, tipo, s[n], r.ctx->terzine); !prova.errore.vuoto()) {
        e.errore = prova.errore;
        return e;
    }

    const Spia spia = LeggiSpia(testoSpia, p.tipoSpia);
    const IndiciMensili* im = r.ctx->indiciMensili;
    std::vector<RigaVerifica> righe;
    for (int32_t i = r.v.ultimo; i >= r.v.primo; --i) {
        if (!r.ammessa[static_cast<size_t>(i)]) continue;
        if (p.perData == 1 && e.casi >= p.sortiteDaCercare) break;
        const archives::RecordEstrazione& caso = s[i];
        int ruota = 0, pos = 0, pos2 = 0;
        for (int w : r.ruoteRicerca)
            if (SpiaPresente(r, caso.Ruota[w - 1], posizioni, spia, pos, pos2)) {
                ruota = w;
                break;
            }
        if (ruota == 0) continue;
        ++e.casi;
        const NumeriCalcolati previsione = NumeriAlgoritmo(chiave, tipo, caso, r.ctx->terzine);
        std::array<bool, 91> previsti{};
        for (int x : previsione.numeri)
            if (x >= 0 && x <= 90) previsti[static_cast<size_t>(x)] = true;

        // The spy columns and the forecast, shared by the rows of this case.
        RigaVerifica base;
        if (!silenziosa) {
            base.indiceSpia = i;
            base.ruota = ruota;
            base.spia = r.soloIndice ? 0 : spia.a;
            base.spia2 = r.soloIndice || p.tipoSpia != TipoSpia::Ambo ? 0 : spia.b;
            base.posizione = pos;
            base.previsione = previsione.numeri;
            auto& c = base.colonne;
            c[0] = s.DataEstrazione(i);
            c[1] = std::string(archives::NomiRuota[static_cast<size_t>(ruota)]);
            if (r.soloIndice) {
                c[2] = "--";
                c[3] = "--";
            } else if (p.tipoSpia == TipoSpia::Ambo) {
                c[2] = fmt::format("{}-{}", spia.a, spia.b);
                c[3] = fmt::format("{}-{}", pos, pos2);
            } else {
                c[2] = fmt::format("{:>2}", spia.a);
                c[3] = p.tipoSpia == TipoSpia::Numero ? fmt::format("{}", pos) : std::string("-");
            }
            const auto k = static_cast<size_t>(i);
            if (im != nullptr) c[4] = im->ultimo[k] ? std::string(" U") : fmt::format("{:>2}", im->indice[k]);
            c[5] = fmt::format("{:>3}", caso.NumeroAnno);
            c[6] = " ";
            c[7] = TestoPrevisione(previsione.numeri);
            c[11] = fmt::format("{:>5}", i);
        }

        // The window runs to the archive's end, and lists every hit in it.
        bool vinto = false;
        int scorsi = 0;
        const int32_t fine = std::min<int32_t>(i + p.colpi, n);
        for (int32_t j = i + 1; j <= fine; ++j) {
            ++scorsi;
            for (int w : r.ruoteGioco) {
                if (!Colpisce(r, s[j].Ruota[w - 1], previsti)) continue;
                vinto = true;
                if (silenziosa) continue;
                RigaVerifica v = base;
                v.vincita = true;
                v.indiceEsito = j;
                v.ruotaEsito = w;
                v.colpo = j - i;
                v.colonne[8] = s.DataEstrazione(j);
                v.colonne[9] = std::string(archives::NomiRuota[static_cast<size_t>(w)]);
                v.colonne[10] = fmt::format("{:>2}", v.colpo);
                v.colonne[12] = fmt::format("{:>5}", j);
                v.chiave = std::string(descrizione);
                righe.push_back(std::move(v));
            }
        }
        if (vinto) continue;

        const bool aperto = scorsi < p.colpi;
        if (!silenziosa) {
            RigaVerifica v = std::move(base);
            v.indiceEsito = fine + 1;
            v.inCorso = aperto;
            v.colpo = aperto ? p.colpi - scorsi : 0;
            v.colonne[8] = aperto ? std::string(TestoInCorso) : std::string("--");
            v.colonne[9] = "--";
            v.colonne[10] = aperto ? fmt::format("{}-", v.colpo) : std::string("--");
            v.colonne[12] = fmt::format("{:>5}", v.indiceEsito);
            v.chiave = std::string(TestoNessuno);
            righe.push_back(std::move(v));
        }
        if (aperto) {
            if (std::abs(p.colpi - scorsi) <= colpiMax) ++e.inCorso;
            if (selezione && r.v.ultimo - i >= colpiMax) break;
        } else if (selezione) {
            break;  // older cases are all closed
        }
    }
    if (silenziosa) return e;

    // Ascending on column 12; rows of one index keep the order of the walk, newest case first.
    std::stable_sort(righe.begin(), righe.end(),
                     [](const RigaVerifica& a, const RigaVerifica& b) { return a.indiceEsito < b.indiceEsito; });
    e.righe = std::move(righe);
    if (!e.righe.empty()) {
        bool inCorso = false;
        for (auto it = e.righe.rbegin(); it != e.righe.rend(); ++it)
            if (it->colonne[8] == TestoInCorso) {
                e.lblCapo = it->colonne[7];
                e.coloreCapo = ColoreVerdeScuro;
                e.lblDataPrevisione = it->colonne[0];
                inCorso = true;
            }
        if (!inCorso) {
            e.lblCapo = e.righe.back().colonne[7];
            e.coloreCapo = ColoreRossoScuro;
        }
    }
    e.lblDescrizioneRisultatiOttenuti =
        std::string(descrizione) + (e.inCorso > 0 ? " : risultati ottenuti (pr. in corso)" : " : risultati ottenuti");
    return e;
}

}  // namespace interno

EsitoVerifica VerificaAlgoritmo(const ParametriRicerca& parametri, const ContestoRicerca& contesto,
                                std::string_view descrizione, std::string_view chiave, std::string_view spia,
                                bool silenziosa, int colpiMax, bool selezione) {
    // The key is looked at before anything else, the period next.
    if (chiave.size() < 9 || (parametri.tipoRicerca == TipoRicerca::Codici && chiave.size() != 16)) {
        EsitoVerifica e;
        e.errore = Avviso(AlgoritmoMancante);
        return e;
    }
    return Verifica(Prepara(parametri, contesto), descrizione, chiave, spia, silenziosa, colpiMax, selezione);
}

EsitoVerifica ApriAlgoritmo(const ParametriRicerca& parametri, const ContestoRicerca& contesto,
                            const RigaAlgoritmo& riga) {
    return VerificaAlgoritmo(parametri, contesto, riga.descrizione, riga.chiave, riga.testoSpia, false,
                             parametri.colpiDaGiocare);
}

std::vector<int> SelezionaInCorso(const ParametriRicerca& parametri, const ContestoRicerca& contesto,
                                  std::vector<RigaAlgoritmo>& righe, std::stop_token stop) {
    std::vector<int> inCorso(righe.size(), 0);
    for (RigaAlgoritmo& r : righe) r.selezionata = false;
    if (righe.empty()) return inCorso;
    const Preparazione prep = Prepara(parametri, contesto);
    // Each row is a replay of its own.
    tbb::parallel_for(size_t{0}, righe.size(), [&](size_t k) {
        if (stop.stop_requested()) return;
        const EsitoVerifica e = Verifica(prep, righe[k].descrizione, righe[k].chiave, righe[k].testoSpia, true,
                                         parametri.colpiDaGiocare, true);
        inCorso[k] = e.inCorso;
    });
    for (size_t k = 0; k < righe.size(); ++k) righe[k].selezionata = inCorso[k] > 0;
    return inCorso;
}

std::string DescrizioneDaChiave(std::string_view chiave, const ParametriRicerca& p, const TerzineRidotte* terzine) {
    const ChiaveLetta c = LeggiChiave(chiave, p.tipoRicerca);
    if (!c.errore.vuoto()) return {};
    const TermineChiave& t = c.termini[0];
    const bool solo = p.soloPosizione || p.tipoSpia == TipoSpia::Ambo;
    switch (p.tipoRicerca) {
        case TipoRicerca::Ambate:
            return DescrizioneAmbata(t.cella, t.op, t.cella2, t.costante,
                                     p.soloPosizione && t.cella2 == 0 && t.op == Operazione::Piu && t.costante == 0);
        case TipoRicerca::Ambi: {
            const TermineChiave& u = c.termini[1];
            const bool nude = t.op == Operazione::Piu && u.op == Operazione::Piu && t.costante == 0 && u.costante == 0;
            return DescrizioneAmbi(t.cella, t.op, t.costante, u.cella, u.op, u.costante, solo && nude);
        }
        case TipoRicerca::TerzineAmbo:
        case TipoRicerca::TerzineTerno: return DescrizioneTerzina(c.celle[0], c.celle[1], c.celle[2]);
        case TipoRicerca::Codici:
            if (terzine == nullptr || c.terzina > terzine->quante()) return {};
            return DescrizioneCodice(t.cella, t.op, c.terzina, terzine->terzine[static_cast<size_t>(c.terzina)]);
    }
    return {};
}

}  // namespace gorgo::builder
