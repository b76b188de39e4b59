// The search for algorithms written out step by step, one body per kind, with the literal
// tables. Single-threaded and slow on purpose: a reader checks it line by line.
//
// Order contract shared with the fast engine: every sorted list is a stable descending
// sort on the "Presenze/quantità" text, so rows of equal text keep their emission order.

#include "ricerca_letterale.h"

#include <algorithm>
#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <fmt/format.h>

#include "archives/record.h"
#include "builder/chiavi.h"
#include "builder/indice_mensile.h"
#include "builder/terzine.h"
#include "config/restrizioni.h"

namespace gorgo::builder {

namespace letterale {

void OrdinaDecrescente(std::vector<RigaAlgoritmo>& righe) {
    std::stable_sort(righe.begin(), righe.end(), [](const RigaAlgoritmo& a, const RigaAlgoritmo& b) {
        return a.testoPresenze() > b.testoPresenze();
    });
}

std::vector<size_t> SelezioneAmbate(const std::vector<std::string>& testi, bool tuttiIValori) {
    std::vector<size_t> scelte;
    if (testi.empty()) return scelte;
    const size_t quante = testi.size();
    if (tuttiIValori) {
        for (size_t r = 0; r < quante && r < 60; ++r) {
            if (testi[r] != testi[0]) break;
            scelte.push_back(r);
        }
        return scelte;
    }
    for (size_t r = 0; r < quante && r < 30; ++r) scelte.push_back(r);
    // Rows 31..60 are compared with row 15, as the rule stands.
    for (size_t r = 30; r < quante && r < 60; ++r) {
        if (testi[r] != testi[14]) break;
        scelte.push_back(r);
    }
    return scelte;
}

int SogliaPerSortite(int sortite) {
    if (sortite <= 5) return 1;
    if (sortite <= 15) return 2;
    if (sortite <= 50) return 3;
    if (sortite <= 100) return 5;
    if (sortite <= 120) return 7;
    // The table ends at 10000 cases; beyond it (every draw of the archive with "Solo indice
    // mensile" and "Tutti") the last band goes on.
    return 9;
}

int CrescitaSoglia(int righe, int indiceMese) {
    if (righe <= 1000) return 0;
    if (righe <= 10000) return 1;
    if (righe <= 10000000) return indiceMese == 22 ? 2 : 1;
    return 0;
}

}  // namespace letterale

namespace {

using letterale::CrescitaSoglia;
using letterale::OrdinaDecrescente;
using letterale::SogliaPerSortite;

constexpr std::array<Operazione, 3> LeOperazioni = {Operazione::Piu, Operazione::Meno, Operazione::Per};

int Applica(Operazione op, int a, int b) {
    switch (op) {
        case Operazione::Piu: return OperaPiu(a, b);
        case Operazione::Meno: return OperaMeno(a, b);
        case Operazione::Per: return OperaPer(a, b);
    }
    return 0;
}

// The nine pairs of rules of the Ambi body: rule on B with k1, rule on A with k2.
struct RegolaAmbi {
    Operazione suB, suA;
    int k1Da, k1A, k2Da, k2A;
};
constexpr std::array<RegolaAmbi, 9> RegoleAmbi = {{
    {Operazione::Piu, Operazione::Piu, 0, 44, 0, 44},
    {Operazione::Piu, Operazione::Meno, 0, 44, 1, 45},
    {Operazione::Piu, Operazione::Per, 0, 44, 1, 45},
    {Operazione::Meno, Operazione::Meno, 1, 45, 1, 45},
    {Operazione::Meno, Operazione::Per, 1, 45, 1, 45},
    {Operazione::Per, Operazione::Per, 1, 45, 1, 45},
    {Operazione::Per, Operazione::Meno, 1, 45, 1, 45},
    {Operazione::Meno, Operazione::Piu, 1, 45, 0, 44},
    {Operazione::Per, Operazione::Piu, 1, 45, 0, 44},
}};

constexpr int IndiceCoppia(int basso, int alto) { return basso + alto * 91; }
constexpr int IndiceTerna(int basso, int medio, int alto) { return basso + (medio + alto * 91) * 91; }

// A spy value: the number, sum or difference in a; an ambo in a and b.
struct ValoreSpia {
    int a = 0;
    int b = 0;
};

// Where the spy stood on its wheel: 0 when not by position.
struct Ritrovamento {
    int posizione = 0;
    int posizione2 = 0;
};

// Window tables of one case over numbers, pairs and triples.
struct FinestraNumeri {
    std::array<int32_t, 91> Q{};
    std::array<bool, 91> H{};
};
struct FinestraCoppie {
    std::vector<int32_t> Q = std::vector<int32_t>(91 * 91, 0);
    std::vector<bool> H = std::vector<bool>(91 * 91, false);
};
struct FinestraTerne {
    std::vector<int32_t> Q = std::vector<int32_t>(91 * 91 * 91, 0);
    std::vector<bool> H = std::vector<bool>(91 * 91 * 91, false);
};

using Quadro = std::array<int, NumeroCelle + 1>;  // the 55 numbers of a case, index 1..55

// The terms of one algorithm, by body: Ambata (cella op cella2, or op k), Ambi (cella op k and
// cella2 op2 k2), Terzina (cella, cella2, cella3), Codice (cella op terzina).
struct Algoritmo {
    int cella = 0, cella2 = 0, cella3 = 0;
    Operazione op = Operazione::Piu, op2 = Operazione::Piu;
    int k = 0, k2 = 0;
    int terzina = 0;
};

// A row of ListaCandidati: its "Presenze/quantità" text, by which the list is kept, and its
// algorithm; the other columns are written only for the rows that are moved on.
struct Candidato {
    std::string testo;
    int presenze = 0, quantita = 0;
    Algoritmo algoritmo;
};

class Ricerca {
public:
    Ricerca(const ParametriRicerca& p, const ContestoRicerca& contesto, bool seleziona)
        : p_(p), ctx_(contesto), storia_(*contesto.storia), seleziona_(seleziona) {}

    EsitoRicerca Esegui();

private:
    // ---- Step 1 and the filters ----
    void Prepara();
    bool MeseValido(int32_t i) const;
    std::vector<ValoreSpia> ValoriSpia() const;

    // ---- Step 3: the walk of one spy value ----
    std::optional<Ritrovamento> SpiaSullaRuota(const archives::RecordEstrazione& e, int ruota, ValoreSpia s) const;
    void Cammina(ValoreSpia s, const std::function<void(int32_t caso)>& segna);
    CasoSpia Caso(int32_t i, int ruota, ValoreSpia s, Ritrovamento dove) const;
    int32_t FineFinestra(int32_t caso) const { return std::min<int32_t>(caso + p_.colpi, fine_); }
    void Finestra(int32_t caso, FinestraNumeri& f) const;
    void Finestra(int32_t caso, FinestraCoppie& f) const;
    void Finestra(int32_t caso, FinestraTerne& f) const;

    // ---- the five bodies ----
    void Ambate(ValoreSpia s);
    void Ambi(ValoreSpia s);
    void Terzine(ValoreSpia s);
    void Codici(ValoreSpia s);

    // Adds a row to ListaCandidati, and writes out the row of a candidate.
    void Aggiungi(int presenze, int quantita, const Algoritmo& a);
    RigaAlgoritmo Riga(const Candidato& c) const;
    // ListaCandidati kept in descending order: a stable sort, so equal texts keep their order.
    void OrdinaCandidati();
    std::string TestoSpia(ValoreSpia s) const;
    // Moves the best row of ListaRisultati to the third list and empties it.
    void MigliorePerValore();

    const ParametriRicerca& p_;
    const ContestoRicerca& ctx_;
    const archives::StoriaLotto& storia_;
    const bool seleziona_;

    RicercaValidata v_;
    TipoSpia tipoSpia_ = TipoSpia::Numero;
    ModoSpia modo_ = ModoSpia::Fisso;
    bool soloPosizione_ = false;
    int32_t primo_ = 1, ultimo_ = 0;  // spy draws
    int32_t fine_ = 0;                // windows end here: the period's last draw
    std::array<bool, 6> posizioniSpia_{};
    std::string testoPosizioni_;
    std::vector<bool> giornoValido_;

    EsitoRicerca esito_;
    std::vector<RigaAlgoritmo> listaRisultati_;
    std::vector<RigaAlgoritmo> terzaLista_;
    std::vector<Candidato> listaCandidati_;
    int sogliaPresenze_ = 0;  // survives spy values: "Terzine x terno" with an index other than 22

    // State of the spy value being walked.
    ValoreSpia spia_;
    int sortite_ = 0;  // C
    Quadro quadro_{};  // the last case copied
    CodaChiave coda_;
};

// ---------------------------------------------------------------- Step 1

void Ricerca::Prepara() {
    tipoSpia_ = p_.tipoSpia;
    modo_ = p_.modoSpia;
    soloPosizione_ = p_.soloPosizione;
    if (tipoSpia_ == TipoSpia::Ambo) {
        // The ambo spy replaces optTipo with its own frame: "Tutti gli ambi" is the all-values mode.
        modo_ = p_.tuttiGliAmbi ? ModoSpia::Tutti : ModoSpia::Fisso;
        // Its second list of kinds has "Ambi (posiz. q.e.)" at index 1: the position-only Ambi.
        if (p_.tipoRicerca == TipoRicerca::Ambi) soloPosizione_ = true;
    }
    // "Solo indice mensile" sets the spy kind to number on the screen; the search does not
    // force it: the rules written for ModoSpia 2 come first wherever they are stated.

    // The spy-positions text: "11111" with all positions; none for sum and difference.
    const bool tutte = !p_.posizioneDeterminata || modo_ == ModoSpia::SoloIndiceMensile;
    for (int pos = 1; pos <= 5; ++pos) posizioniSpia_[pos] = tutte || p_.posizioniSpia[pos];
    testoPosizioni_.clear();
    if (tipoSpia_ == TipoSpia::Numero || tipoSpia_ == TipoSpia::Ambo)
        for (int pos = 1; pos <= 5; ++pos) testoPosizioni_ += posizioniSpia_[pos] ? '1' : '0';

    // With "Ultime n" the period's first draw is 1; spy draws end at the (lowered) last draw,
    // windows at DataA's draw, so that with ControllaUltime off no window is cut.
    primo_ = p_.perData == 1 ? 1 : v_.primo;
    ultimo_ = v_.ultimo;
    fine_ = v_.ultimoPeriodo;

    // GiornoValido, once per draw.
    const auto& r = ctx_.restrizioni;
    const bool attive = r.Giorno || r.Mese || r.Periodo;
    giornoValido_.assign(static_cast<size_t>(storia_.NumeroEstrazioni()) + 1, true);
    if (attive)
        for (int32_t i = 1; i <= storia_.NumeroEstrazioni(); ++i)
            giornoValido_[static_cast<size_t>(i)] =
                config::EstrazioneAmmessa(r, storia_[i].dataCifre(), storia_[i].GiornoSettimana);
}

bool Ricerca::MeseValido(int32_t i) const {
    if (p_.indiceMese == 22) return true;
    const IndiciMensili* m = ctx_.indiciMensili;
    if (m == nullptr) return false;  // no month table: only "Tutti" can pass
    const auto k = static_cast<size_t>(i);
    if (p_.indiceMese == 0) return m->ultimo[k];
    return m->indice[k] == p_.indiceMese;
}

std::vector<ValoreSpia> Ricerca::ValoriSpia() const {
    std::vector<ValoreSpia> valori;
    if (tipoSpia_ == TipoSpia::Ambo) {
        if (modo_ == ModoSpia::Tutti) {
            for (int a = 1; a <= 89; ++a)
                for (int b = a + 1; b <= 90; ++b) valori.push_back({a, b});
        } else {
            valori.push_back({v_.amboSpia[0], v_.amboSpia[1]});
        }
    } else if (modo_ == ModoSpia::Tutti) {
        const int fino = tipoSpia_ == TipoSpia::Differenza ? 89 : 90;
        for (int a = 1; a <= fino; ++a) valori.push_back({a, 0});
    } else if (modo_ == ModoSpia::SoloIndiceMensile) {
        valori.push_back({1, 0});
    } else {
        valori.push_back({p_.valoreSpia, 0});
    }
    return valori;
}

// ---------------------------------------------------------------- Step 3, the walk

std::optional<Ritrovamento> Ricerca::SpiaSullaRuota(const archives::RecordEstrazione& e, int ruota,
                                                    ValoreSpia s) const {
    // "Solo indice mensile": the condition holds on every search wheel, the first one found.
    if (modo_ == ModoSpia::SoloIndiceMensile) return Ritrovamento{};
    switch (tipoSpia_) {
        case TipoSpia::Numero:
            for (int pos = 1; pos <= 5; ++pos)
                if (e.Numero(ruota, pos) == s.a && posizioniSpia_[pos]) return Ritrovamento{pos, 0};
            return std::nullopt;
        case TipoSpia::Somma:
        case TipoSpia::Differenza:
            for (int i = 1; i <= 4; ++i)
                for (int j = i + 1; j <= 5; ++j) {
                    const int ni = e.Numero(ruota, i), nj = e.Numero(ruota, j);
                    const int r = tipoSpia_ == TipoSpia::Somma ? OperaPiu(ni, nj) : OperaMeno(ni, nj);
                    if (r == s.a) return Ritrovamento{};
                }
            return std::nullopt;
        case TipoSpia::Ambo: {
            // Both numbers at chosen positions, and exactly two chosen positions matching.
            int quante = 0, posA = 0, posB = 0;
            for (int pos = 1; pos <= 5; ++pos) {
                if (!posizioniSpia_[pos]) continue;
                const int n = e.Numero(ruota, pos);
                if (n == s.a && posA == 0) posA = pos;
                if (n == s.b && posB == 0) posB = pos;
                if (n == s.a || n == s.b) ++quante;
            }
            if (quante == 2 && posA > 0 && posB > 0) return Ritrovamento{posA, posB};
            return std::nullopt;
        }
    }
    return std::nullopt;
}

CasoSpia Ricerca::Caso(int32_t i, int ruota, ValoreSpia s, Ritrovamento dove) const {
    CasoSpia c;
    c.indice = i;
    c.ruota = ruota;
    c.spia = s.a;
    c.spia2 = s.b;
    c.posizione = dove.posizione;
    c.data = storia_.DataEstrazione(i);
    c.nomeRuota = std::string(archives::NomiRuota[static_cast<size_t>(ruota)]);
    c.testoSpia = TestoSpia(s);
    if (modo_ == ModoSpia::SoloIndiceMensile)
        c.testoPosizione = "--";
    else if (tipoSpia_ == TipoSpia::Somma || tipoSpia_ == TipoSpia::Differenza)
        c.testoPosizione = "-";
    else if (tipoSpia_ == TipoSpia::Ambo)
        c.testoPosizione = fmt::format("{}-{}", dove.posizione, dove.posizione2);
    else
        c.testoPosizione = std::to_string(dove.posizione);
    const IndiciMensili* m = ctx_.indiciMensili;
    if (m != nullptr) {
        const auto k = static_cast<size_t>(i);
        c.testoIndiceMese = m->ultimo[k] ? std::string(" U") : fmt::format("{:>2}", m->indice[k]);
    }
    c.testoIndiceAnnuale = fmt::format("{:>3}", storia_[i].NumeroAnno);
    c.testoIndice = fmt::format("{:>5}", i);
    return c;
}

void Ricerca::Cammina(ValoreSpia s, const std::function<void(int32_t caso)>& segna) {
    spia_ = s;
    sortite_ = 0;
    for (int32_t i = ultimo_; i >= primo_; --i) {
        if (!giornoValido_[static_cast<size_t>(i)] || !MeseValido(i)) continue;
        if (p_.perData == 1 && sortite_ >= p_.sortiteDaCercare) break;
        const archives::RecordEstrazione& e = storia_[i];
        int ruota = 0;
        Ritrovamento dove;
        for (int w = 1; w <= archives::NumeroRuote; ++w) {
            if (!v_.ruoteRicerca[static_cast<size_t>(w)]) continue;
            if (const auto r = SpiaSullaRuota(e, w, s)) {
                ruota = w;
                dove = *r;
                break;
            }
        }
        if (ruota == 0) continue;
        esito_.casi.push_back(Caso(i, ruota, s, dove));
        ++sortite_;
        for (int c = 1; c <= NumeroCelle; ++c)
            quadro_[static_cast<size_t>(c)] = e.Numero(RuotaDiCella(c), PosizioneDiCella(c));

        // The key's tail tells the spy as it stood in the last case examined.
        coda_ = CodaChiave{};
        coda_.spia = s.a;
        coda_.posizioni = testoPosizioni_;
        if (modo_ != ModoSpia::SoloIndiceMensile && dove.posizione > 0)
            coda_.posizioneTrovata = static_cast<char>('0' + dove.posizione);
        if (tipoSpia_ == TipoSpia::Ambo) {
            coda_.ambo = true;
            coda_.spia2 = s.b;
            coda_.posizioneTrovata2 = static_cast<char>('0' + dove.posizione2);
        }
        segna(i);
    }
}

// Ambate window: a hit counts at a valid position only. The rule reads "if the position is
// valid and the number is 0, stop that wheel; otherwise mark": taken as "at a valid position,
// 0 stops the wheel, any other number is marked"; invalid positions are skipped.
void Ricerca::Finestra(int32_t caso, FinestraNumeri& f) const {
    f.Q.fill(0);
    f.H.fill(false);
    for (int32_t e = caso + 1; e <= FineFinestra(caso); ++e)
        for (int w = 1; w <= archives::NumeroRuote; ++w) {
            if (!v_.ruoteGioco[static_cast<size_t>(w)]) continue;
            for (int pos = 1; pos <= 5; ++pos) {
                if (!p_.posizioniValide[static_cast<size_t>(pos)]) continue;
                const int n = storia_[e].Numero(w, pos);
                if (n == 0) break;
                f.H[static_cast<size_t>(n)] = true;
                ++f.Q[static_cast<size_t>(n)];
            }
        }
}

// Ambi and "Terzine x ambo" window: a wheel with all five numbers marks its ten pairs.
void Ricerca::Finestra(int32_t caso, FinestraCoppie& f) const {
    std::fill(f.Q.begin(), f.Q.end(), 0);
    std::fill(f.H.begin(), f.H.end(), false);
    for (int32_t e = caso + 1; e <= FineFinestra(caso); ++e)
        for (int w = 1; w <= archives::NumeroRuote; ++w) {
            if (!v_.ruoteGioco[static_cast<size_t>(w)]) continue;
            std::array<int, 5> n{};
            for (int pos = 1; pos <= 5; ++pos) n[static_cast<size_t>(pos - 1)] = storia_[e].Numero(w, pos);
            if (std::find(n.begin(), n.end(), 0) != n.end()) continue;
            std::sort(n.begin(), n.end());
            for (size_t i = 0; i < 4; ++i)
                for (size_t j = i + 1; j < 5; ++j) {
                    const auto k = static_cast<size_t>(IndiceCoppia(n[i], n[j]));
                    f.H[k] = true;
                    ++f.Q[k];
                }
        }
}

// "Terzine x terno" window: a wheel with all five numbers, sorted, marks its ten triples.
void Ricerca::Finestra(int32_t caso, FinestraTerne& f) const {
    std::fill(f.Q.begin(), f.Q.end(), 0);
    std::fill(f.H.begin(), f.H.end(), false);
    for (int32_t e = caso + 1; e <= FineFinestra(caso); ++e)
        for (int w = 1; w <= archives::NumeroRuote; ++w) {
            if (!v_.ruoteGioco[static_cast<size_t>(w)]) continue;
            std::array<int, 5> n{};
            for (int pos = 1; pos <= 5; ++pos) n[static_cast<size_t>(pos - 1)] = storia_[e].Numero(w, pos);
            if (std::find(n.begin(), n.end(), 0) != n.end()) continue;
            std::sort(n.begin(), n.end());
            for (size_t i = 0; i < 3; ++i)
                for (size_t j = i + 1; j < 4; ++j)
                    for (size_t k = j + 1; k < 5; ++k) {
                        const auto t = static_cast<size_t>(IndiceTerna(n[i], n[j], n[k]));
                        f.H[t] = true;
                        ++f.Q[t];
                    }
        }
}

// ---------------------------------------------------------------- rows

std::string Ricerca::TestoSpia(ValoreSpia s) const {
    if (modo_ == ModoSpia::SoloIndiceMensile) return "--";
    if (tipoSpia_ == TipoSpia::Ambo) return fmt::format("{}-{}", s.a, s.b);
    return fmt::format("{:>2}", s.a);
}

void Ricerca::Aggiungi(int presenze, int quantita, const Algoritmo& a) {
    RigaAlgoritmo r;
    r.presenze = presenze;
    r.quantita = quantita;
    r.conQuantita = p_.tipoRicerca != TipoRicerca::Codici;
    listaCandidati_.push_back({r.testoPresenze(), presenze, quantita, a});
}

void Ricerca::OrdinaCandidati() {
    std::stable_sort(listaCandidati_.begin(), listaCandidati_.end(),
                     [](const Candidato& a, const Candidato& b) { return a.testo > b.testo; });
}

RigaAlgoritmo Ricerca::Riga(const Candidato& c) const {
    const Algoritmo& a = c.algoritmo;
    RigaAlgoritmo r;
    switch (p_.tipoRicerca) {
        case TipoRicerca::Ambi:
            r.descrizione = DescrizioneAmbi(a.cella, a.op, a.k, a.cella2, a.op2, a.k2, soloPosizione_);
            r.chiave = ChiaveAmbi(a.cella, a.op, a.k, a.cella2, a.op2, a.k2, coda_);
            break;
        case TipoRicerca::TerzineAmbo:
        case TipoRicerca::TerzineTerno:
            r.descrizione = DescrizioneTerzina(a.cella, a.cella2, a.cella3);
            r.chiave = ChiaveTerzina(a.cella, a.cella2, a.cella3, coda_);
            break;
        case TipoRicerca::Codici:
            r.descrizione =
                DescrizioneCodice(a.cella, a.op, a.terzina, ctx_.terzine->terzine[static_cast<size_t>(a.terzina)]);
            r.chiave = ChiaveCodice(a.cella, a.terzina, a.op, coda_);
            break;
        case TipoRicerca::Ambate:
            r.descrizione = DescrizioneAmbata(a.cella, a.op, a.cella2, a.k, soloPosizione_);
            r.chiave = ChiaveAmbata(a.cella, a.op, a.cella2, a.k, coda_);
            break;
    }
    r.sortite = sortite_;
    r.presenze = c.presenze;
    r.conQuantita = p_.tipoRicerca != TipoRicerca::Codici;
    r.quantita = r.conQuantita ? c.quantita : 0;
    r.testoSpia = TestoSpia(spia_);
    r.selezionata = seleziona_;
    return r;
}

void Ricerca::MigliorePerValore() {
    OrdinaDecrescente(listaRisultati_);
    if (!listaRisultati_.empty()) terzaLista_.push_back(listaRisultati_.front());
    listaRisultati_.clear();
}

// ---------------------------------------------------------------- Ambate body

// Score tables, hits (colpi) and quantity (quant), index [operation][...].
struct TabelleAmbate {
    int32_t unaColpi[3][46][6][12] = {}, unaQuant[3][46][6][12] = {};              // k, position, wheel
    int32_t dueColpi[3][6][12][6][12] = {}, dueQuant[3][6][12][6][12] = {};        // two wheels
    int32_t stessaColpi[3][6][12][6][12] = {}, stessaQuant[3][6][12][6][12] = {};  // one wheel
    int32_t soloColpi[6][12] = {}, soloQuant[6][12] = {};                          // cell alone
};

// Constants tried with one cell: "+" 0..45, "-" 1..44, "x" 2..45.
constexpr std::array<int, 3> KDaAmbata = {0, 1, 2};
constexpr std::array<int, 3> KAAmbata = {45, 44, 45};

void Ricerca::Ambate(ValoreSpia s) {
    auto t = std::make_unique<TabelleAmbate>();
    FinestraNumeri f;
    auto segna = [&f](int32_t& colpi, int32_t& quant, int r) {
        quant += f.Q[static_cast<size_t>(r)];
        if (f.H[static_cast<size_t>(r)]) ++colpi;
    };

    Cammina(s, [&](int32_t caso) {
        Finestra(caso, f);
        const Quadro& q = quadro_;
        if (soloPosizione_) {
            for (int w = 1; w <= 11; ++w)
                for (int p = 1; p <= 5; ++p) {
                    const int n = q[Cella(w, p)];
                    t->soloQuant[p][w] += f.Q[static_cast<size_t>(n)];
                    if (n > 0 && f.H[static_cast<size_t>(n)]) ++t->soloColpi[p][w];
                }
            return;
        }
        for (int w = 1; w <= 11; ++w)
            for (int p = 1; p <= 5; ++p) {
                const int n = q[Cella(w, p)];
                if (n == 0) continue;
                for (int o = 0; o < 3; ++o)
                    for (int k = KDaAmbata[o]; k <= KAAmbata[o]; ++k)
                        segna(t->unaColpi[o][k][p][w], t->unaQuant[o][k][p][w], Applica(LeOperazioni[o], n, k));
            }
        for (int w1 = 1; w1 <= 10; ++w1)
            for (int p1 = 1; p1 <= 5; ++p1) {
                const int x1 = q[Cella(w1, p1)];
                if (x1 == 0) continue;
                for (int w2 = w1 + 1; w2 <= 11; ++w2)
                    for (int p2 = 1; p2 <= 5; ++p2) {
                        const int x2 = q[Cella(w2, p2)];
                        if (x2 == 0) continue;
                        for (int o = 0; o < 3; ++o)
                            segna(t->dueColpi[o][p1][w1][p2][w2], t->dueQuant[o][p1][w1][p2][w2],
                                  Applica(LeOperazioni[o], x1, x2));
                    }
            }
        for (int w = 1; w <= 11; ++w)
            for (int p1 = 1; p1 <= 4; ++p1) {
                const int x1 = q[Cella(w, p1)];
                if (x1 == 0) continue;
                for (int p2 = p1 + 1; p2 <= 5; ++p2) {
                    const int x2 = q[Cella(w, p2)];  // not tested, as it stands
                    for (int o = 0; o < 3; ++o)
                        segna(t->stessaColpi[o][p1][w][p2][w], t->stessaQuant[o][p1][w][p2][w],
                              Applica(LeOperazioni[o], x1, x2));
                }
            }
    });

    // Emission in the order of scoring, only for cells above 0 in the last case copied (the
    // oldest); pairs pass on the same tests as in scoring (two wheels: both above 0; one
    // wheel: the first above 0).
    const Quadro& q = quadro_;
    auto emetti = [&](int32_t colpi, int32_t quant, int c1, Operazione op, int c2, int k) {
        if (quant > 0) Aggiungi(colpi, quant, Algoritmo{.cella = c1, .cella2 = c2, .op = op, .k = k});
    };
    if (soloPosizione_) {
        for (int w = 1; w <= 11; ++w)
            for (int p = 1; p <= 5; ++p)
                if (q[Cella(w, p)] > 0)
                    emetti(t->soloColpi[p][w], t->soloQuant[p][w], Cella(w, p), Operazione::Piu, 0, 0);
    } else {
        for (int w = 1; w <= 11; ++w)
            for (int p = 1; p <= 5; ++p) {
                if (q[Cella(w, p)] == 0) continue;
                for (int o = 0; o < 3; ++o)
                    for (int k = KDaAmbata[o]; k <= KAAmbata[o]; ++k)
                        emetti(t->unaColpi[o][k][p][w], t->unaQuant[o][k][p][w], Cella(w, p), LeOperazioni[o], 0, k);
            }
        for (int w1 = 1; w1 <= 10; ++w1)
            for (int p1 = 1; p1 <= 5; ++p1) {
                if (q[Cella(w1, p1)] == 0) continue;
                for (int w2 = w1 + 1; w2 <= 11; ++w2)
                    for (int p2 = 1; p2 <= 5; ++p2) {
                        if (q[Cella(w2, p2)] == 0) continue;
                        for (int o = 0; o < 3; ++o)
                            emetti(t->dueColpi[o][p1][w1][p2][w2], t->dueQuant[o][p1][w1][p2][w2], Cella(w1, p1),
                                   LeOperazioni[o], Cella(w2, p2), 0);
                    }
            }
        for (int w = 1; w <= 11; ++w)
            for (int p1 = 1; p1 <= 4; ++p1) {
                if (q[Cella(w, p1)] == 0) continue;
                for (int p2 = p1 + 1; p2 <= 5; ++p2)
                    for (int o = 0; o < 3; ++o)
                        emetti(t->stessaColpi[o][p1][w][p2][w], t->stessaQuant[o][p1][w][p2][w], Cella(w, p1),
                               LeOperazioni[o], Cella(w, p2), 0);
            }
    }

    OrdinaCandidati();
    std::vector<std::string> testi;
    for (const Candidato& c : listaCandidati_) testi.push_back(c.testo);
    for (const size_t r : letterale::SelezioneAmbate(testi, modo_ == ModoSpia::Tutti))
        listaRisultati_.push_back(Riga(listaCandidati_[r]));
}

// ---------------------------------------------------------------- Ambi body

// One case of the Ambi body: its numbers and its pair window, kept so that the score tables
// can be filled one first cell at a time (the emission walks first cells outermost).
struct CasoAmbi {
    Quadro quadro{};
    FinestraCoppie finestra;
};

void Ricerca::Ambi(ValoreSpia s) {
    std::vector<CasoAmbi> casi;
    Cammina(s, [&](int32_t caso) {
        CasoAmbi c;
        c.quadro = quadro_;
        Finestra(caso, c.finestra);
        casi.push_back(std::move(c));
    });

    sogliaPresenze_ = p_.indiceMese != 22 ? 2 : SogliaPerSortite(sortite_);

    // Score tables of one first cell A: [rule][B][k1][k2], and [B] for position only.
    constexpr size_t Regole = 9, Celle = NumeroCelle + 1, K = 46;
    auto at = [](size_t r, size_t b, size_t k1, size_t k2) { return ((r * Celle + b) * K + k1) * K + k2; };
    std::vector<int32_t> colpi(Regole * Celle * K * K), quant(Regole * Celle * K * K);
    std::vector<int32_t> soloColpi(Celle), soloQuant(Celle);

    for (int a = 1; a <= NumeroCelle; ++a) {
        const int w1 = RuotaDiCella(a);
        std::fill(colpi.begin(), colpi.end(), 0);
        std::fill(quant.begin(), quant.end(), 0);
        std::fill(soloColpi.begin(), soloColpi.end(), 0);
        std::fill(soloQuant.begin(), soloQuant.end(), 0);

        for (const CasoAmbi& c : casi) {
            const int nA = c.quadro[static_cast<size_t>(a)];  // an empty A is not excluded
            auto segna = [&](int32_t& h, int32_t& qt, int x, int y) {
                if (x == y) y = Vertibile(x);
                const auto k = static_cast<size_t>(IndiceCoppia(std::min(x, y), std::max(x, y)));
                if (c.finestra.H[k]) ++h;
                qt += c.finestra.Q[k];
            };
            for (int b = a; b <= NumeroCelle; ++b) {
                if (RuotaDiCella(b) == w1) continue;
                const int nB = c.quadro[static_cast<size_t>(b)];
                if (nB == 0) continue;
                const auto B = static_cast<size_t>(b);
                if (soloPosizione_) {
                    segna(soloColpi[B], soloQuant[B], nB, nA);
                    continue;
                }
                // Each (rule, k1, k2) has its own counters: the order of scoring is free here,
                // the emission below keeps the stated one.
                for (size_t r = 0; r < Regole; ++r) {
                    const RegolaAmbi& g = RegoleAmbi[r];
                    for (int k1 = g.k1Da; k1 <= g.k1A; ++k1) {
                        const int x = Applica(g.suB, nB, k1);
                        for (int k2 = g.k2Da; k2 <= g.k2A; ++k2) {
                            const size_t i = at(r, B, static_cast<size_t>(k1), static_cast<size_t>(k2));
                            segna(colpi[i], quant[i], x, Applica(g.suA, nA, k2));
                        }
                    }
                }
            }
        }

        // Emission of A: the test is on the quantity.
        listaCandidati_.clear();
        for (int b = a; b <= NumeroCelle; ++b) {
            if (RuotaDiCella(b) == w1) continue;
            const auto B = static_cast<size_t>(b);
            if (soloPosizione_) {
                if (soloQuant[B] > sogliaPresenze_)
                    Aggiungi(soloColpi[B], soloQuant[B], Algoritmo{.cella = b, .cella2 = a});
                continue;
            }
            for (int k1 = 0; k1 <= 45; ++k1)
                for (int k2 = 0; k2 <= 45; ++k2)
                    for (size_t r = 0; r < Regole; ++r) {
                        const RegolaAmbi& g = RegoleAmbi[r];
                        if (k1 < g.k1Da || k1 > g.k1A || k2 < g.k2Da || k2 > g.k2A) continue;
                        const size_t i = at(r, B, static_cast<size_t>(k1), static_cast<size_t>(k2));
                        if (quant[i] > sogliaPresenze_)
                            Aggiungi(colpi[i], quant[i],
                                     Algoritmo{.cella = b, .cella2 = a, .op = g.suB, .op2 = g.suA, .k = k1, .k2 = k2});
                    }
        }
        OrdinaCandidati();
        const int R = static_cast<int>(listaCandidati_.size());
        sogliaPresenze_ += CrescitaSoglia(R, p_.indiceMese);
        if (R >= 1) {
            const int quante = modo_ == ModoSpia::Fisso ? std::min(R, 15) : 1;
            for (int r = 0; r < quante; ++r) listaRisultati_.push_back(Riga(listaCandidati_[static_cast<size_t>(r)]));
        }
    }
    if (modo_ == ModoSpia::Tutti) MigliorePerValore();
}

// ---------------------------------------------------------------- Terzine body

void Ricerca::Terzine(ValoreSpia s) {
    const bool xTerno = p_.tipoRicerca == TipoRicerca::TerzineTerno;
    constexpr size_t Celle = NumeroCelle + 1;
    auto at = [](int i, int j, int k) {
        return (static_cast<size_t>(i) * Celle + static_cast<size_t>(j)) * Celle + static_cast<size_t>(k);
    };
    std::vector<int32_t> colpi(Celle * Celle * Celle, 0), quant(Celle * Celle * Celle, 0);
    auto coppie = std::make_unique<FinestraCoppie>();
    auto terne = std::make_unique<FinestraTerne>();

    Cammina(s, [&](int32_t caso) {
        if (xTerno)
            Finestra(caso, *terne);
        else
            Finestra(caso, *coppie);
        for (int i = 1; i <= 53; ++i)
            for (int j = i + 1; j <= 54; ++j)
                for (int k = j + 1; k <= 55; ++k) {
                    // No rules on equal numbers here: they belong to the verification.
                    std::array<int, 3> n = {quadro_[static_cast<size_t>(i)], quadro_[static_cast<size_t>(j)],
                                            quadro_[static_cast<size_t>(k)]};
                    std::sort(n.begin(), n.end());
                    const size_t t = at(i, j, k);
                    if (xTerno) {
                        const auto x = static_cast<size_t>(IndiceTerna(n[0], n[1], n[2]));
                        if (terne->H[x]) {
                            ++colpi[t];
                            quant[t] += terne->Q[x];
                        }
                    } else {
                        const auto c01 = static_cast<size_t>(IndiceCoppia(n[0], n[1]));
                        const auto c02 = static_cast<size_t>(IndiceCoppia(n[0], n[2]));
                        const auto c12 = static_cast<size_t>(IndiceCoppia(n[1], n[2]));
                        if (coppie->H[c01] || coppie->H[c02] || coppie->H[c12]) {
                            ++colpi[t];
                            quant[t] += coppie->Q[c01] + coppie->Q[c02] + coppie->Q[c12];
                        }
                    }
                }
    });

    // "Terzine x terno" with an index other than 22 never sets the threshold: it starts at 0
    // for the search and keeps its growth from one spy value to the next.
    if (!xTerno)
        sogliaPresenze_ = p_.indiceMese != 22 ? 2 : SogliaPerSortite(sortite_);
    else if (p_.indiceMese == 22)
        sogliaPresenze_ = 1;

    // Emission: the test is on the hits.
    listaCandidati_.clear();
    for (int i = 1; i <= 53; ++i)
        for (int j = i + 1; j <= 54; ++j)
            for (int k = j + 1; k <= 55; ++k) {
                const size_t t = at(i, j, k);
                if (colpi[t] > sogliaPresenze_)
                    Aggiungi(colpi[t], quant[t], Algoritmo{.cella = i, .cella2 = j, .cella3 = k});
            }
    OrdinaCandidati();
    const int R = static_cast<int>(listaCandidati_.size());
    sogliaPresenze_ += CrescitaSoglia(R, p_.indiceMese);

    const int guardate = std::min(R, 15);
    for (int r = 0; r < guardate; ++r) {
        const Candidato& c = listaCandidati_[static_cast<size_t>(r)];
        if (modo_ == ModoSpia::Tutti && c.testo != listaCandidati_[0].testo) continue;
        listaRisultati_.push_back(Riga(c));
    }
}

// ---------------------------------------------------------------- Codici body

void Ricerca::Codici(ValoreSpia s) {
    const TerzineRidotte vuote;
    const TerzineRidotte& terzine = ctx_.terzine != nullptr ? *ctx_.terzine : vuote;
    const int T = terzine.quante();
    const size_t Celle = NumeroCelle + 1, Terz = static_cast<size_t>(T) + 1;
    auto at = [&](int o, int c, int t) {
        return (static_cast<size_t>(o) * Celle + static_cast<size_t>(c)) * Terz + static_cast<size_t>(t);
    };
    // The score tables of the chosen Sorte, [operation][cell][terzina].
    std::vector<int32_t> punti(3 * Celle * Terz, 0);

    Cammina(s, [&](int32_t caso) {
        for (int c = 1; c <= NumeroCelle; ++c) {
            const int n = quadro_[static_cast<size_t>(c)];  // cells with 0 included
            for (int t = 1; t <= T; ++t)
                for (int o = 0; o < 3; ++o) {
                    if (!p_.operazioni[static_cast<size_t>(o)]) continue;
                    const Operazione op = LeOperazioni[static_cast<size_t>(o)];
                    std::array<int, 3> r{};
                    for (size_t i = 0; i < 3; ++i)
                        r[i] = op == Operazione::Per && (n == 45 || n == 90)
                                   ? n
                                   : Applica(op, n, terzine.terzine[static_cast<size_t>(t)][i]);
                    bool segnato = false;
                    for (int32_t e = caso + 1; e <= FineFinestra(caso) && !segnato; ++e)
                        for (int w = 1; w <= archives::NumeroRuote && !segnato; ++w) {
                            if (!v_.ruoteGioco[static_cast<size_t>(w)]) continue;
                            int uguali = 0;
                            for (int pos = 1; pos <= 5; ++pos) {
                                const int x = storia_[e].Numero(w, pos);
                                if (x == r[0] || x == r[1] || x == r[2]) ++uguali;
                            }
                            if ((p_.sorte == 2 && uguali >= 2) || (p_.sorte == 3 && uguali == 3)) {
                                ++punti[at(o, c, t)];
                                segnato = true;  // a case scores once
                            }
                        }
                }
        }
    });

    sogliaPresenze_ = p_.indiceMese != 22 ? 2 : SogliaPerSortite(sortite_);

    listaCandidati_.clear();
    for (int c = 1; c <= NumeroCelle; ++c)
        for (int t = 1; t <= T; ++t)
            for (int o = 0; o < 3; ++o) {
                const int32_t v = punti[at(o, c, t)];
                if (v <= sogliaPresenze_) continue;
                Aggiungi(v, 0, Algoritmo{.cella = c, .op = LeOperazioni[static_cast<size_t>(o)], .terzina = t});
            }
    OrdinaCandidati();
    const int R = static_cast<int>(listaCandidati_.size());
    // The growth of the threshold would be overwritten at the next value: not applied.

    const int guardate = std::min(R, 15);
    for (int r = 0; r < guardate; ++r) {
        const Candidato& c = listaCandidati_[static_cast<size_t>(r)];
        if (modo_ != ModoSpia::Fisso && c.testo != listaCandidati_[0].testo) continue;
        listaRisultati_.push_back(Riga(c));
    }
    if (modo_ == ModoSpia::Tutti) MigliorePerValore();
}

// ---------------------------------------------------------------- the flow

EsitoRicerca Ricerca::Esegui() {
    // Step 1.
    v_ = ValidaRicerca(p_, storia_);
    if (!v_.errore.vuoto()) {
        esito_.errore = v_.errore;
        esito_.focus = v_.focus;
        return esito_;
    }
    Prepara();
    esito_.descrizione = v_.descrizione;

    // Step 2 and 3.
    const bool ambi = p_.tipoRicerca == TipoRicerca::Ambi;
    const bool terzine = p_.tipoRicerca == TipoRicerca::TerzineAmbo || p_.tipoRicerca == TipoRicerca::TerzineTerno;
    const bool codici = p_.tipoRicerca == TipoRicerca::Codici;
    sogliaPresenze_ = 0;
    for (const ValoreSpia s : ValoriSpia()) {
        listaCandidati_.clear();
        if (ambi)
            Ambi(s);
        else if (terzine)
            Terzine(s);
        else if (codici)
            Codici(s);
        else
            Ambate(s);
        // "With a fixed spy": one spy value, that is every mode but "Tutti".
        if (modo_ != ModoSpia::Tutti) esito_.sortite = v_.descrizione + std::to_string(sortite_);
    }

    // Step 4.
    esito_.ultimo = v_.ultimoPeriodo;
    if (!esito_.casi.empty()) {
        // The first row of the list of cases, in the order they were added.
        const int32_t d = storia_.NumeroEstrazioni() - esito_.casi.front().indice;
        if (d >= p_.colpi) {
            esito_.previsioni = "Nessuna previsione in corso";
            esito_.colorePrevisioni = 0;
        } else {
            esito_.previsioni = "Previsione in corso : " + std::to_string(p_.colpi - d) + " colpi al termine";
            esito_.colorePrevisioni = 128;
        }
    }

    // Step 5: the check rule, and the sort on column 2 descending.
    const bool terza = modo_ == ModoSpia::Tutti && (ambi || codici);
    esito_.righe = terza ? std::move(terzaLista_) : std::move(listaRisultati_);
    for (auto& r : esito_.righe) r.selezionata = seleziona_;
    OrdinaDecrescente(esito_.righe);
    return esito_;
}

}  // namespace

EsitoRicerca CercaAlgoritmiLetterale(const ParametriRicerca& parametri, const ContestoRicerca& contesto,
                                     bool seleziona) {
    Ricerca ricerca(parametri, contesto, seleziona);
    return ricerca.Esegui();
}

}  // namespace gorgo::builder
