// The flow of the search: preparation, spy values, cases, the body by kind, the result.

#include "builder/ricerca.h"

#include <fmt/format.h>
#include <tbb/parallel_for.h>
#include <algorithm>
#include <mutex>

#include "builder/corpo_ambate.h"
#include "builder/corpo_ambi.h"
#include "builder/corpo_codici.h"
#include "builder/corpo_terzine.h"
#include "builder/ricerca_interna.h"

namespace gorgo::builder {

namespace interno {

namespace {

// The spy condition on one wheel's five numbers; the positions found, when by position.
bool CondizioneSpia(const Preparata& r, const Spia& spia, const uint8_t* x, int& pos, int& pos2) {
    const ParametriRicerca& p = *r.p;
    if (p.modoSpia == ModoSpia::SoloIndiceMensile) return true;
    switch (p.tipoSpia) {
        case TipoSpia::Numero:
            for (int i = 0; i < 5; ++i)
                if (x[i] == spia.valore && PosizioneSpia(r, i + 1)) {
                    pos = i + 1;
                    return true;
                }
            return false;
        case TipoSpia::Somma:
            for (int i = 0; i < 4; ++i)
                for (int j = i + 1; j < 5; ++j)
                    if (OperaPiu(x[i], x[j]) == spia.valore) return true;
            return false;
        case TipoSpia::Differenza:
            for (int i = 0; i < 4; ++i)
                for (int j = i + 1; j < 5; ++j)
                    if (OperaMeno(x[i], x[j]) == spia.valore) return true;
            return false;
        case TipoSpia::Ambo: {
            int a = 0, b = 0;
            for (int i = 0; i < 5; ++i) {
                if (!PosizioneSpia(r, i + 1)) continue;
                if (x[i] == spia.valore && !a) a = i + 1;
                if (x[i] == spia.valore2 && !b) b = i + 1;
            }
            if (!a || !b) return false;
            pos = a;
            pos2 = b;
            return true;
        }
    }
    return false;
}

}  // namespace

bool PosizioneSpia(const Preparata& r, int posizione) {
    return r.testoPosizioni.empty() || r.testoPosizioni[static_cast<size_t>(posizione - 1)] == '1';
}

std::vector<Caso> TrovaCasi(const Preparata& r, const Spia& spia) {
    const ParametriRicerca& p = *r.p;
    const archives::StoriaLotto& s = *r.storia;
    std::vector<Caso> casi;
    for (int32_t i = r.v.ultimo; i >= r.v.primo; --i) {
        if (!r.ammessa[static_cast<size_t>(i)]) continue;
        if (p.perData == 1 && static_cast<int>(casi.size()) >= p.sortiteDaCercare) break;
        const archives::RecordEstrazione& e = s[i];
        for (int w : r.ruoteRicerca) {
            int pos = 0, pos2 = 0;
            if (!CondizioneSpia(r, spia, e.Ruota[w - 1], pos, pos2)) continue;
            Caso c;
            c.indice = i;
            c.ruota = w;
            c.posizione = pos;
            c.posizione2 = pos2;
            c.fineFinestra = std::min(r.v.ultimoPeriodo, i + p.colpi);
            c.estrazione = &e;
            casi.push_back(c);
            break;
        }
    }
    return casi;
}

CodaChiave CodaPer(const Preparata& r, const Spia& spia, const std::vector<Caso>& casi) {
    CodaChiave coda;
    coda.spia = spia.valore;
    coda.posizioni = r.testoPosizioni;
    const Caso* ultimo = casi.empty() ? nullptr : &casi.back();
    auto carattere = [](int pos) { return pos > 0 ? static_cast<char>('0' + pos) : ' '; };
    coda.posizioneTrovata = ultimo ? carattere(ultimo->posizione) : ' ';
    if (r.p->tipoSpia == TipoSpia::Ambo) {
        coda.ambo = true;
        coda.spia2 = spia.valore2;
        coda.posizioneTrovata2 = ultimo ? carattere(ultimo->posizione2) : ' ';
    }
    return coda;
}

std::string TestoSpia(const Preparata& r, const Spia& spia) {
    if (r.p->modoSpia == ModoSpia::SoloIndiceMensile) return "--";
    if (r.p->tipoSpia == TipoSpia::Ambo) return fmt::format("{}-{}", spia.valore, spia.valore2);
    return fmt::format("{:>2}", spia.valore);
}

Testa OrdinaTesta(const std::vector<Candidato>& lista, size_t quante) {
    Testa t;
    quante = std::min(quante, lista.size());
    t.indici.resize(lista.size());
    for (size_t i = 0; i < lista.size(); ++i) t.indici[i] = i;
    std::partial_sort(t.indici.begin(), t.indici.begin() + static_cast<long>(quante), t.indici.end(),
                      [&](size_t a, size_t b) { return Prima(lista[a], lista[b]); });
    t.indici.resize(quante);
    for (size_t i : t.indici) t.ordinata.push_back(lista[i]);
    return t;
}

size_t SelezioneAmbate(const std::vector<Candidato>& lista, bool tuttiIValori) {
    if (lista.empty()) return 0;
    if (tuttiIValori) {
        size_t n = 1;
        while (n < lista.size() && n < 60 && StessoTesto(lista[n], lista[0])) ++n;
        return n;
    }
    size_t n = std::min<size_t>(30, lista.size());
    // Rows 31 to 60 enter while they tie with row 15.
    while (n < lista.size() && n < 60 && StessoTesto(lista[n], lista[14])) ++n;
    return n;
}

}  // namespace interno

using namespace interno;

namespace {

CasoSpia TestiCaso(const Preparata& r, const Spia& spia, const Caso& c) {
    const archives::StoriaLotto& s = *r.storia;
    const ParametriRicerca& p = *r.p;
    CasoSpia cs;
    cs.indice = c.indice;
    cs.ruota = c.ruota;
    cs.spia = spia.valore;
    cs.spia2 = spia.valore2;
    cs.posizione = c.posizione;
    cs.data = s.DataEstrazione(c.indice);
    cs.nomeRuota = std::string(archives::NomiRuota[static_cast<size_t>(c.ruota)]);
    cs.testoSpia = TestoSpia(r, spia);
    if (p.modoSpia == ModoSpia::SoloIndiceMensile)
        cs.testoPosizione = std::string(2, '-');
    else if (p.tipoSpia == TipoSpia::Somma || p.tipoSpia == TipoSpia::Differenza)
        cs.testoPosizione = std::string(1, '-');
    else if (p.tipoSpia == TipoSpia::Ambo)
        cs.testoPosizione = fmt::format("{}-{}", c.posizione, c.posizione2);
    else
        cs.testoPosizione = fmt::format("{}", c.posizione);
    const IndiciMensili& im = *r.contesto->indiciMensili;
    cs.testoIndiceMese = im.ultimo[static_cast<size_t>(c.indice)]
                             ? std::string(" U")
                             : fmt::format("{:>2}", im.indice[static_cast<size_t>(c.indice)]);
    cs.testoIndiceAnnuale = fmt::format("{:>3}", s[c.indice].NumeroAnno);
    cs.testoIndice = fmt::format("{:>5}", c.indice);
    return cs;
}

}  // namespace

namespace interno {

std::vector<Spia> ValoriSpia(const Preparata& r) {
    const ParametriRicerca& p = *r.p;
    std::vector<Spia> v;
    if (p.modoSpia == ModoSpia::SoloIndiceMensile) return {Spia{1, 0}};
    if (p.tipoSpia == TipoSpia::Ambo) {
        if (!p.tuttiGliAmbi) return {Spia{r.v.amboSpia[0], r.v.amboSpia[1]}};
        for (int a = 1; a <= 89; ++a)
            for (int b = a + 1; b <= 90; ++b) v.push_back({a, b});
        return v;
    }
    if (p.modoSpia == ModoSpia::Fisso) return {Spia{p.valoreSpia, 0}};
    const int massimo = p.tipoSpia == TipoSpia::Differenza ? 89 : 90;
    for (int n = 1; n <= massimo; ++n) v.push_back({n, 0});
    return v;
}

Preparata Prepara(const ParametriRicerca& p, const ContestoRicerca& ctx, const Avanzamento& av, RicercaValidata v) {
    Preparata r;
    r.p = &p;
    r.contesto = &ctx;
    r.storia = ctx.storia;
    r.v = std::move(v);
    r.avanzamento = &av;
    r.testoPosizioni = r.v.testoPosizioni;
    r.tuttiIValori = p.modoSpia != ModoSpia::SoloIndiceMensile &&
                     (p.tipoSpia == TipoSpia::Ambo ? p.tuttiGliAmbi : p.modoSpia == ModoSpia::Tutti);
    for (int w = 1; w <= archives::NumeroRuote; ++w) {
        if (r.v.ruoteRicerca[static_cast<size_t>(w)]) r.ruoteRicerca.push_back(w);
        if (r.v.ruoteGioco[static_cast<size_t>(w)]) r.ruoteGioco.push_back(w);
    }
    const archives::StoriaLotto& s = *ctx.storia;
    const config::Restrizioni& re = ctx.restrizioni;
    const bool restrizioniGiorno = re.Giorno || re.Mese || re.Periodo;
    const IndiciMensili& im = *ctx.indiciMensili;
    r.ammessa.assign(static_cast<size_t>(s.NumeroEstrazioni()) + 1, 0);
    for (int32_t i = 1; i <= s.NumeroEstrazioni(); ++i) {
        const archives::RecordEstrazione& e = s[i];
        const bool giorno = !restrizioniGiorno || config::EstrazioneAmmessa(re, e.dataCifre(), e.GiornoSettimana);
        const size_t k = static_cast<size_t>(i);
        const bool mese = p.indiceMese == 22 || (p.indiceMese == 0 ? bool(im.ultimo[k]) : im.indice[k] == p.indiceMese);
        r.ammessa[k] = giorno && mese;
    }
    return r;
}

}  // namespace interno

EsitoRicerca CercaAlgoritmi(const ParametriRicerca& p, const ContestoRicerca& ctx, const Avanzamento& av,
                            bool seleziona) {
    EsitoRicerca esito;
    RicercaValidata v = ValidaRicerca(p, *ctx.storia);
    if (!v.errore.vuoto()) {
        esito.errore = v.errore;
        esito.focus = v.focus;
        return esito;
    }
    esito.descrizione = v.descrizione;
    esito.ultimo = v.ultimoPeriodo;
    const Preparata r = Prepara(p, ctx, av, std::move(v));
    const std::vector<Spia> valori = ValoriSpia(r);

    // Each spy value is a search of its own; results come back in value order.
    std::vector<std::vector<Caso>> casi(valori.size());
    std::vector<RisultatoValore> risultati(valori.size());
    std::mutex mutexAvanzamento;
    int fatti = 0;
    auto avanza = [&](const Spia& spia, bool ambate) {
        if (!av.progresso) return;
        std::lock_guard lock(mutexAvanzamento);
        const std::string testo =
            ambate ? std::string("Analisi algoritmi...") : fmt::format("Analisi algoritmi {}...", TestoSpia(r, spia));
        av.progresso(testo, fatti++, static_cast<int>(valori.size()));
    };
    const TipoRicerca tipo = p.tipoRicerca;
    if (tipo == TipoRicerca::Ambi) {
        for (size_t k = 0; k < valori.size() && !r.fermata(); ++k) {
            avanza(valori[k], false);
            casi[k] = TrovaCasi(r, valori[k]);
            risultati[k] = CorpoAmbi(r, valori[k], casi[k]);
        }
    } else if (tipo == TipoRicerca::TerzineAmbo || tipo == TipoRicerca::TerzineTerno) {
        int soglia = 0;
        for (size_t k = 0; k < valori.size() && !r.fermata(); ++k) {
            avanza(valori[k], false);
            casi[k] = TrovaCasi(r, valori[k]);
            risultati[k] = CorpoTerzine(r, valori[k], casi[k], soglia);
        }
    } else if (tipo == TipoRicerca::Codici) {
        for (size_t k = 0; k < valori.size() && !r.fermata(); ++k) {
            avanza(valori[k], false);
            casi[k] = TrovaCasi(r, valori[k]);
            risultati[k] = CorpoCodici(r, valori[k], casi[k]);
        }
    } else {
        const bool perValore = valori.size() > 1;
        auto esegui = [&](size_t k) {
            if (r.fermata()) return;
            avanza(valori[k], true);
            casi[k] = TrovaCasi(r, valori[k]);
            risultati[k] = CorpoAmbate(r, valori[k], casi[k], !perValore);
        };
        if (perValore)
            tbb::parallel_for(size_t{0}, valori.size(), esegui);
        else
            esegui(0);
    }

    for (size_t k = 0; k < valori.size(); ++k) {
        for (const Caso& c : casi[k]) esito.casi.push_back(TestiCaso(r, valori[k], c));
        for (RigaAlgoritmo& riga : risultati[k].righe) esito.righe.push_back(std::move(riga));
    }
    if (!r.tuttiIValori) esito.sortite = fmt::format("{}{}", esito.descrizione, casi[0].size());
    esito.parziale = r.fermata();
    // A stop leaves what was gathered; only the Ambate body keeps its count.
    if (esito.parziale && tipo != TipoRicerca::Ambate) esito.sortite = "Elaborazione parziale";

    for (RigaAlgoritmo& riga : esito.righe) riga.selezionata = seleziona;
    std::stable_sort(esito.righe.begin(), esito.righe.end(), [](const RigaAlgoritmo& a, const RigaAlgoritmo& b) {
        return a.testoPresenze() > b.testoPresenze();
    });
    if (!esito.casi.empty()) {
        const int32_t d = ctx.storia->NumeroEstrazioni() - esito.casi.front().indice;
        if (d >= p.colpi) {
            esito.previsioni = "Nessuna previsione in corso";
            esito.colorePrevisioni = 0;
        } else {
            esito.previsioni = fmt::format("Previsione in corso : {} colpi al termine", p.colpi - d);
            esito.colorePrevisioni = 128;
        }
    }
    return esito;
}

}  // namespace gorgo::builder
