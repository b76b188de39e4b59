// The verification written out step by step, on texts where the list holds texts. Slow and
// plain on purpose: a reader checks it line by line against the rules.
//
// Readings shared with the engine (and with the search where they meet):
// - the spy of a row is column 4 of ListaRisultati: a number, or for an ambo the two numbers
//   around the "-" (the column is not zero-padded, so "first and last two characters" would
//   misread 5-7);
// - spy draws run from the period's last draw (lowered by Colpi without ControllaUltime) down
//   to its first (1 with "Ultime n"); windows run to the archive's end;
// - the early end of a selection measures from that same last draw;
// - the list keeps rows of equal column 12 in the order they were added: newest case first;
// - a bad key is refused before the walk, with its own message.

#include "verifica_letterale.h"

#include <algorithm>
#include <cstdlib>

#include <fmt/format.h>

#include "archives/record.h"
#include "config/restrizioni.h"

namespace gorgo::builder::letterale {

namespace {

int Val(const std::string& t) {
    size_t i = 0;
    while (i < t.size() && t[i] == ' ') ++i;
    int segno = 1;
    if (i < t.size() && t[i] == '-') {
        segno = -1;
        ++i;
    }
    int v = 0;
    while (i < t.size() && t[i] >= '0' && t[i] <= '9') v = v * 10 + (t[i++] - '0');
    return segno * v;
}

// Adds a row to a list kept ascending on the text of column 12: after the rows of equal text.
void AggiungiOrdinata(std::vector<RigaLista>& lista, std::vector<bool>& rossa, RigaLista riga, bool rosso) {
    size_t dove = lista.size();
    while (dove > 0 && lista[dove - 1][12] > riga[12]) --dove;
    lista.insert(lista.begin() + static_cast<long>(dove), std::move(riga));
    rossa.insert(rossa.begin() + static_cast<long>(dove), rosso);
}

}  // namespace

Verifica VerificaAlgoritmo(const ParametriRicerca& p, const ContestoRicerca& ctx, const std::string& descrizione,
                           const std::string& chiave, const std::string& spia, bool silenziosa, int colpiMax,
                           bool selezione) {
    Verifica esito;
    const archives::StoriaLotto& s = *ctx.storia;
    const TipoRicerca tipo = p.tipoRicerca;

    // 1. The key.
    if (chiave.empty() || chiave.size() < 9 || (tipo == TipoRicerca::Codici && chiave.size() != 16)) {
        esito.errore.testo = "Calcolo impossibile: algoritmo mancante.";
        return esito;
    }

    // 2. Colpi and the period, as the search reads them.
    const RicercaValidata v = ValidaRicerca(p, s);
    if (!v.errore.vuoto()) {
        esito.errore = v.errore;
        return esito;
    }
    const int colpi = p.colpi;
    const int32_t primo = p.perData == 1 ? 1 : v.primo;
    const int32_t ultimo = v.ultimo;
    const int32_t numeroEstrazioni = s.NumeroEstrazioni();

    // 3. Spy positions: from the key for a number (the five characters after "_" and the spy),
    // all five otherwise. Valid positions: chkPosizioneA for Ambate, all for the rest.
    bool posizioniSpia[6] = {false, true, true, true, true, true};
    if (p.tipoSpia == TipoSpia::Numero) {
        size_t trattino = 0;
        switch (tipo) {
            case TipoRicerca::Ambate: trattino = 10; break;  // counted from 1
            case TipoRicerca::Ambi: trattino = 13; break;
            case TipoRicerca::TerzineAmbo:
            case TipoRicerca::TerzineTerno: trattino = 7; break;
            case TipoRicerca::Codici: trattino = 8; break;
        }
        const size_t da = trattino + 3;            // first position character, from 1
        if (chiave.size() < da + 4) return esito;  // too short: no message
        for (int k = 1; k <= 5; ++k) posizioniSpia[k] = chiave.substr(da - 1 + static_cast<size_t>(k - 1), 1) == "1";
    }
    bool posizioniValide[6] = {false, true, true, true, true, true};
    if (tipo == TipoRicerca::Ambate)
        for (int k = 1; k <= 5; ++k) posizioniValide[k] = p.posizioniValide[static_cast<size_t>(k)];

    {
        const NumeriCalcolati prova = NumeriAlgoritmo(chiave, tipo, s[numeroEstrazioni], ctx.terzine);
        if (!prova.errore.vuoto()) {
            esito.errore = prova.errore;
            return esito;
        }
    }

    // The spy of the row.
    const bool ambo = p.tipoSpia == TipoSpia::Ambo;
    const bool soloIndice = !ambo && p.modoSpia == ModoSpia::SoloIndiceMensile;
    int spiaA = 0, spiaB = 0;
    if (ambo) {
        const size_t meno = spia.find('-');
        spiaA = Val(spia.substr(0, meno));
        spiaB = meno == std::string::npos ? 0 : Val(spia.substr(meno + 1));
    } else {
        spiaA = Val(spia);
    }

    // 4. (the list starts empty)
    int casi = 0;
    // 5. The walk, newest first.
    for (int32_t i = ultimo; i >= primo; --i) {
        const archives::RecordEstrazione& e = s[i];
        const auto& r = ctx.restrizioni;
        bool giornoValido = true;
        if (r.Giorno || r.Mese || r.Periodo)
            giornoValido = config::EstrazioneAmmessa(r, e.dataCifre(), e.GiornoSettimana);
        if (!giornoValido) continue;
        bool meseValido;
        if (p.indiceMese == 22)
            meseValido = true;
        else if (ctx.indiciMensili == nullptr)
            meseValido = false;
        else if (p.indiceMese == 0)
            meseValido = ctx.indiciMensili->ultimo[static_cast<size_t>(i)];
        else
            meseValido = ctx.indiciMensili->indice[static_cast<size_t>(i)] == p.indiceMese;
        if (!meseValido) continue;
        if (p.perData == 1 && casi >= p.sortiteDaCercare) break;

        int ruotaSpia = 0, posizione = 0, posizione2 = 0;
        for (int w = 1; w <= 11 && ruotaSpia == 0; ++w) {
            if (!v.ruoteRicerca[static_cast<size_t>(w)]) continue;
            if (soloIndice) {
                ruotaSpia = w;
                break;
            }
            switch (p.tipoSpia) {
                case TipoSpia::Numero:
                    for (int pos = 1; pos <= 5; ++pos)
                        if (e.Numero(w, pos) == spiaA && posizioniSpia[pos]) {
                            ruotaSpia = w;
                            posizione = pos;
                            break;
                        }
                    break;
                case TipoSpia::Somma:
                case TipoSpia::Differenza:
                    for (int a = 1; a <= 4 && ruotaSpia == 0; ++a)
                        for (int b = a + 1; b <= 5; ++b) {
                            const int risultato = p.tipoSpia == TipoSpia::Somma
                                                      ? OperaPiu(e.Numero(w, a), e.Numero(w, b))
                                                      : OperaMeno(e.Numero(w, a), e.Numero(w, b));
                            if (risultato == spiaA) {
                                ruotaSpia = w;
                                break;
                            }
                        }
                    break;
                case TipoSpia::Ambo: {
                    int trovate = 0, pa = 0, pb = 0;
                    for (int pos = 1; pos <= 5; ++pos) {
                        if (!posizioniSpia[pos]) continue;
                        if (e.Numero(w, pos) == spiaA) {
                            ++trovate;
                            if (pa == 0) pa = pos;
                        } else if (e.Numero(w, pos) == spiaB) {
                            ++trovate;
                            if (pb == 0) pb = pos;
                        }
                    }
                    if (trovate == 2 && pa > 0 && pb > 0) {
                        ruotaSpia = w;
                        posizione = pa;
                        posizione2 = pb;
                    }
                    break;
                }
            }
        }
        if (ruotaSpia == 0) continue;

        // 6.
        ++casi;
        const std::vector<int> previsione = NumeriAlgoritmo(chiave, tipo, e, ctx.terzine).numeri;

        RigaLista spiaRiga;
        spiaRiga[0] = s.DataEstrazione(i);
        spiaRiga[1] = std::string(archives::NomiRuota[static_cast<size_t>(ruotaSpia)]);
        if (soloIndice) {
            spiaRiga[2] = "--";
            spiaRiga[3] = "--";
        } else if (ambo) {
            spiaRiga[2] = std::to_string(spiaA) + "-" + std::to_string(spiaB);
            spiaRiga[3] = std::to_string(posizione) + "-" + std::to_string(posizione2);
        } else if (p.tipoSpia == TipoSpia::Numero) {
            spiaRiga[2] = fmt::format("{:>2}", spiaA);
            spiaRiga[3] = std::to_string(posizione);
        } else {
            spiaRiga[2] = fmt::format("{:>2}", spiaA);
            spiaRiga[3] = "-";
        }
        if (ctx.indiciMensili) {
            if (ctx.indiciMensili->ultimo[static_cast<size_t>(i)])
                spiaRiga[4] = " U";
            else
                spiaRiga[4] = fmt::format("{:>2}", ctx.indiciMensili->indice[static_cast<size_t>(i)]);
        }
        spiaRiga[5] = fmt::format("{:>3}", e.NumeroAnno);
        spiaRiga[6] = " ";
        std::string testoPrevisione;
        for (size_t k = 0; k < previsione.size(); ++k) {
            if (k > 0) testoPrevisione += "-";
            testoPrevisione += fmt::format("{:>2}", previsione[k]);
        }
        spiaRiga[7] = testoPrevisione;
        spiaRiga[11] = fmt::format("{:>5}", i);

        // 7. The window.
        bool vincita = false;
        int scorsi = 0;
        int32_t j = i + 1;
        for (; j <= i + colpi; ++j) {
            if (j > numeroEstrazioni) break;
            ++scorsi;
            const archives::RecordEstrazione& f = s[j];
            for (int w = 1; w <= 11; ++w) {
                if (!v.ruoteGioco[static_cast<size_t>(w)]) continue;
                bool colpito = false;
                if (tipo == TipoRicerca::Ambate) {
                    for (int pos = 1; pos <= 5; ++pos) {
                        const int numero = f.Numero(w, pos);
                        if (numero == 0) break;
                        if (numero == previsione[0] && posizioniValide[pos]) colpito = true;
                    }
                } else {
                    bool zero = false;
                    for (int pos = 1; pos <= 5; ++pos) zero = zero || f.Numero(w, pos) == 0;
                    if (zero) continue;
                    int uguali = 0;
                    for (int pos = 1; pos <= 5; ++pos) {
                        const int numero = f.Numero(w, pos);
                        if (std::find(previsione.begin(), previsione.end(), numero) != previsione.end()) ++uguali;
                    }
                    int serve = 2;
                    if (tipo == TipoRicerca::TerzineTerno) serve = 3;
                    if (tipo == TipoRicerca::Codici) serve = p.sorte;
                    colpito = uguali >= serve;
                }
                if (!colpito) continue;
                vincita = true;
                if (!silenziosa) {
                    RigaLista riga = spiaRiga;
                    riga[8] = s.DataEstrazione(j);
                    riga[9] = std::string(archives::NomiRuota[static_cast<size_t>(w)]);
                    riga[10] = fmt::format("{:>2}", j - i);
                    riga[12] = fmt::format("{:>5}", j);
                    riga[13] = descrizione;
                    AggiungiOrdinata(esito.lista, esito.rossa, riga, false);
                }
            }
        }
        // 8.
        if (vincita) continue;
        // 9.
        RigaLista riga = spiaRiga;
        bool rossa = false;
        if (scorsi < colpi) {
            riga[8] = "IN CORSO";
            riga[10] = std::to_string(colpi - scorsi) + "-";
            rossa = true;
            if (std::abs(colpi - scorsi) <= colpiMax) ++esito.inCorso;
        } else {
            riga[8] = "--";
            riga[10] = "--";
        }
        // 10.
        riga[9] = "--";
        riga[12] = fmt::format("{:>5}", j);  // the loop's variable: the last index walked + 1
        riga[13] = "Nessuno";
        if (!silenziosa) AggiungiOrdinata(esito.lista, esito.rossa, riga, rossa);
        if (selezione) {
            if (scorsi < colpi) {
                if (ultimo - i >= colpiMax) break;
            } else {
                break;
            }
        }
    }

    if (silenziosa) return esito;
    esito.lblDataPrevisione.clear();
    if (!esito.lista.empty()) {
        bool trovata = false;
        for (size_t k = esito.lista.size(); k-- > 0;)
            if (esito.lista[k][8] == "IN CORSO") {
                esito.lblCapo = esito.lista[k][7];
                esito.coloreCapo = 32768;
                esito.lblDataPrevisione = esito.lista[k][0];
                trovata = true;
            }
        if (!trovata) {
            esito.lblCapo = esito.lista.back()[7];
            esito.coloreCapo = 128;
        }
    }
    return esito;
}

FigureRiepilogo Figure(const std::vector<RigaLista>& lista, int32_t fine, int colpi) {
    FigureRiepilogo f;
    auto data = [](const std::string& t) { return t.size() == 10 && t[2] == '/' && t[5] == '/'; };
    f.rilevati = static_cast<int>(lista.size());
    for (const RigaLista& r : lista)
        if (data(r[8])) {
            ++f.favorevoli;
            f.sommaColpi += Val(r[10]);
        }
    for (size_t k = lista.size(); k-- > 0;) {
        if (!(fine - Val(lista[k][11]) < colpi)) break;
        ++f.inGioco;
        if (data(lista[k][8])) ++f.sfaldati;
    }
    const int d = f.rilevati - f.inGioco - f.favorevoli;
    if (d < 0) f.sfaldati = std::abs(d);
    f.negativi = d < 0 ? 0 : d;
    return f;
}

StatisticheGioco Statistiche(const archives::StoriaLotto& s, const std::array<bool, 12>& ruoteGioco, int32_t primo) {
    StatisticheGioco st;
    st.frequenza2.assign(91 * 91, 0);
    st.ritardo2.assign(91 * 91, 0);
    st.ritardoMax2.assign(91 * 91, 0);
    st.ultimaUscita2.assign(91 * 91, 0);
    const int32_t numeroEstrazioni = s.NumeroEstrazioni();
    st.numeroEstrazioni = numeroEstrazioni;
    auto cella = [](int a, int b) { return static_cast<size_t>(a * 91 + b); };
    for (int32_t i = 3914; i <= numeroEstrazioni; ++i) {
        if (i >= primo) ++st.estrazioni;
        for (int w = 1; w <= 11; ++w) {
            if (!ruoteGioco[static_cast<size_t>(w)]) continue;
            for (int pos = 1; pos <= 5; ++pos) {
                const int n = s[i].Numero(w, pos);
                const auto k = static_cast<size_t>(n);
                if (i >= primo) st.frequenza[k] += 1;
                if (st.ultimaUscita[k] == 0) {
                    st.ritardoMax[k] = i - 3914;
                } else {
                    const int32_t d = i - st.ultimaUscita[k] - 1;
                    if (st.ritardoMax[k] < d) st.ritardoMax[k] = d;
                }
                st.ultimaUscita[k] = i;
            }
            for (int pp = 1; pp <= 4; ++pp)
                for (int q = pp + 1; q <= 5; ++q) {
                    const int a = s[i].Numero(w, pp), b = s[i].Numero(w, q);
                    for (size_t k : {cella(a, b), cella(b, a)}) {
                        if (a == b && k == cella(b, a)) continue;  // one cell: once
                        if (i >= primo) st.frequenza2[k] += 1;
                        if (st.ultimaUscita2[k] == 0) {
                            st.ritardoMax2[k] = i - 3914;
                        } else {
                            const int32_t d = i - st.ultimaUscita2[k] - 1;
                            if (st.ritardoMax2[k] < d) st.ritardoMax2[k] = d;
                        }
                        st.ultimaUscita2[k] = i;
                    }
                }
        }
    }
    for (int n = 0; n <= 90; ++n) {
        const auto k = static_cast<size_t>(n);
        if (st.ultimaUscita[k] == 0)
            st.ritardo[k] = numeroEstrazioni - st.estrazioni;
        else
            st.ritardo[k] = numeroEstrazioni - st.ultimaUscita[k];
    }
    for (size_t k = 0; k < 91 * 91; ++k) {
        if (st.ultimaUscita2[k] == 0)
            st.ritardo2[k] = st.estrazioni;
        else
            st.ritardo2[k] = numeroEstrazioni - st.ultimaUscita2[k];
    }
    return st;
}

}  // namespace gorgo::builder::letterale
