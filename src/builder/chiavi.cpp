// Keys and descriptions of algorithms, and the numbers a key yields at a draw.

#include <fmt/format.h>

#include "builder/chiavi.h"

namespace gorgo::builder {

namespace {

char Segno(Operazione op) { return static_cast<char>(op); }

std::string Numero2(int n) { return fmt::format("{:02}", n); }

// A field of digits only; -1 otherwise, so that range checks refuse it.
int Campo(std::string_view testo) {
    if (testo.empty()) return -1;
    int v = 0;
    for (char ch : testo) {
        if (ch < '0' || ch > '9') return -1;
        v = v * 10 + (ch - '0');
    }
    return v;
}

archives::Messaggio Guasto(std::string_view testo) { return {std::string(testo), "", archives::Icona::Esclamazione}; }

constexpr std::string_view CapogiocoMancante = "Calcolo impossibile: capogioco mancante.";
constexpr std::string_view PosizioneNonValida = "Calcolo impossibile: posizione non valida.";
constexpr std::string_view Ruota1NonValida = "Calcolo impossibile: ruota 1 non valida.";
constexpr std::string_view OperazioneNonValida = "Calcolo impossibile: operazione non valida.";
constexpr std::string_view Posizione2NonValida = "Calcolo impossibile: posizione 2 non valida.";
constexpr std::string_view Ruota2NonValida = "Calcolo impossibile: ruota 2 non valida.";
constexpr std::string_view CostanteNonValida = "Calcolo impossibile: numero non valido (operazione).";
constexpr std::string_view TerzinaNonValida = "Calcolo impossibile: terzina non valida.";
constexpr std::string_view TerzineAssenti = "Calcolo impossibile: terzine ridotte non disponibili.";

// Where the "_" of each layout stands (from 0), and the shortest key whose terms can be read.
constexpr size_t SeparatoreAmbata = 9, SeparatoreAmbi = 12, SeparatoreTerzina = 6, SeparatoreCodice = 7;
constexpr size_t MinimoAmbata = 9, MinimoTerzina = 10;

// position (1), wheel (2), sign (1): the head of every one-number rule.
archives::Messaggio LeggiTesta(std::string_view t, TermineChiave& termine) {
    const int posizione = Campo(t.substr(0, 1));
    if (posizione < 1 || posizione > 5) return Guasto(PosizioneNonValida);
    const int ruota = Campo(t.substr(1, 2));
    if (ruota < 1 || ruota > archives::NumeroRuote) return Guasto(Ruota1NonValida);
    const auto op = OperazioneDaSegno(t[3]);
    if (!op) return Guasto(OperazioneNonValida);
    termine.cella = Cella(ruota, posizione);
    termine.op = *op;
    return {};
}

archives::Messaggio LeggiAmbata(std::string_view chiave, TermineChiave& termine) {
    if (chiave.size() < MinimoAmbata) return Guasto(CapogiocoMancante);
    if (auto e = LeggiTesta(chiave, termine); !e.vuoto()) return e;
    const int posizione2 = Campo(chiave.substr(4, 1));
    if (posizione2 < 0 || posizione2 > 5) return Guasto(Posizione2NonValida);
    const int ruota2 = Campo(chiave.substr(5, 2));
    if (ruota2 < 0 || ruota2 > archives::NumeroRuote) return Guasto(Ruota2NonValida);
    const int k = Campo(chiave.substr(7, 2));
    if (k < 0 || k > 89) return Guasto(CostanteNonValida);
    termine.cella2 = posizione2 == 0 || ruota2 == 0 ? 0 : Cella(ruota2, posizione2);
    termine.costante = k;
    return {};
}

// One rule of an Ambi key: characters 1-6 (primo) or 7-12.
archives::Messaggio LeggiRegolaAmbi(std::string_view chiave, bool primo, TermineChiave& termine) {
    const size_t inizio = primo ? 0 : 6;
    // The shortest key of the table is 9 long; the second rule needs all its 12 characters.
    if (chiave.size() < MinimoAmbata || chiave.size() < inizio + 6) return Guasto(CapogiocoMancante);
    const std::string_view t = chiave.substr(inizio, 6);
    if (auto e = LeggiTesta(t, termine); !e.vuoto()) return e;
    const int k = Campo(t.substr(4, 2));
    if (k < 0 || k > 89) return Guasto(CostanteNonValida);
    termine.cella2 = 0;
    termine.costante = k;
    return {};
}

archives::Messaggio LeggiCella(std::string_view campo, int& cella) {
    cella = Campo(campo);
    if (cella < 1 || cella > NumeroCelle) return Guasto(PosizioneNonValida);
    return {};
}

archives::Messaggio LeggiTerzina(std::string_view chiave, std::array<int, 3>& celle) {
    if (chiave.size() < MinimoTerzina) return Guasto(CapogiocoMancante);
    for (size_t i = 0; i < 3; ++i)
        if (auto e = LeggiCella(chiave.substr(i * 2, 2), celle[i]); !e.vuoto()) return e;
    return {};
}

archives::Messaggio LeggiCodice(std::string_view chiave, TermineChiave& termine, int& terzina) {
    if (chiave.size() < MinimoTerzina) return Guasto(CapogiocoMancante);
    if (auto e = LeggiCella(chiave.substr(0, 2), termine.cella); !e.vuoto()) return e;
    terzina = Campo(chiave.substr(2, 4));
    if (terzina < 1) return Guasto(TerzinaNonValida);
    const auto op = OperazioneDaSegno(chiave[6]);
    if (!op) return Guasto(OperazioneNonValida);
    termine.op = *op;
    return {};
}

int ValoreCella(const archives::RecordEstrazione& e, int cella) {
    return e.Numero(RuotaDiCella(cella), PosizioneDiCella(cella));
}

int CalcolaRegola(const TermineChiave& t, const archives::RecordEstrazione& e) {
    const int destro = t.cella2 > 0 ? ValoreCella(e, t.cella2) : t.costante;
    return Opera(t.op, ValoreCella(e, t.cella), destro);
}

// An Ambata key has its "_" (or its end) at character 10; an Ambi key has a digit there.
bool LayoutAmbi(std::string_view chiave) { return chiave.size() > SeparatoreAmbata && chiave[SeparatoreAmbata] != '_'; }

NumeriCalcolati Errore(archives::Messaggio m) {
    NumeriCalcolati r;
    r.errore = std::move(m);
    return r;
}

std::optional<CodaChiave> CodaDopo(std::string_view chiave, size_t separatore) {
    if (chiave.size() <= separatore || chiave[separatore] != '_') return std::nullopt;
    return LeggiCoda(chiave.substr(separatore));
}

std::string Forma(int cella, Operazione op, int k) {
    return fmt::format("{} {} {:>2}", NomeCella(cella), Segno(op), k);
}

}  // namespace

// ---- keys ----

std::string TestoCoda(const CodaChiave& coda) {
    std::string t = Numero2(coda.spia) + coda.posizioni + coda.posizioneTrovata;
    if (coda.ambo) t += Numero2(coda.spia2) + coda.posizioneTrovata2;
    return t;
}

std::string ChiaveAmbata(int cella, Operazione op, int cella2, int k, const CodaChiave& coda) {
    std::string t = std::to_string(PosizioneDiCella(cella)) + Numero2(RuotaDiCella(cella)) + Segno(op);
    if (cella2 > 0)
        t += std::to_string(PosizioneDiCella(cella2)) + Numero2(RuotaDiCella(cella2)) + "00";
    else
        t += "000" + Numero2(k);
    return t + "_" + TestoCoda(coda);
}

std::string ChiaveAmbi(int cellaB, Operazione op1, int k1, int cellaA, Operazione op2, int k2, const CodaChiave& coda) {
    auto regola = [](int c, Operazione op, int k) {
        return std::to_string(PosizioneDiCella(c)) + Numero2(RuotaDiCella(c)) + Segno(op) + Numero2(k);
    };
    return regola(cellaB, op1, k1) + regola(cellaA, op2, k2) + "_" + TestoCoda(coda);
}

std::string ChiaveTerzina(int c1, int c2, int c3, const CodaChiave& coda) {
    return Numero2(c1) + Numero2(c2) + Numero2(c3) + "_" + TestoCoda(coda);
}

std::string ChiaveCodice(int cella, int terzina, Operazione op, const CodaChiave& coda) {
    return Numero2(cella) + fmt::format("{:04}", terzina) + Segno(op) + "_" + TestoCoda(coda);
}

std::optional<CodaChiave> LeggiCoda(std::string_view chiave) {
    const size_t sep = chiave.find('_');
    if (sep == std::string_view::npos) return std::nullopt;
    const std::string_view t = chiave.substr(sep + 1);
    if (t.size() != 3 && t.size() != 8 && t.size() != 11) return std::nullopt;
    CodaChiave coda;
    coda.spia = Campo(t.substr(0, 2));
    if (coda.spia < 0) return std::nullopt;
    if (t.size() == 3) {
        coda.posizioneTrovata = t[2];
        return coda;
    }
    coda.posizioni = std::string(t.substr(2, 5));
    for (char ch : coda.posizioni)
        if (ch != '0' && ch != '1') return std::nullopt;
    coda.posizioneTrovata = t[7];
    if (t.size() == 11) {
        coda.ambo = true;
        coda.spia2 = Campo(t.substr(8, 2));
        if (coda.spia2 < 0) return std::nullopt;
        coda.posizioneTrovata2 = t[10];
    }
    return coda;
}

std::optional<FormaChiave> FormaDellaChiave(std::string_view chiave) {
    if (!LeggiCoda(chiave)) return std::nullopt;
    switch (chiave.find('_')) {
        case 9: return FormaChiave::Ambata;
        case 12: return FormaChiave::Ambi;
        case 6: return FormaChiave::Terzina;
        case 7: return FormaChiave::Codice;
        default: return std::nullopt;
    }
}

ChiaveLetta LeggiChiave(std::string_view chiave, TipoRicerca tipo) {
    ChiaveLetta r;
    r.tipo = tipo;
    archives::Messaggio e;
    switch (tipo) {
        case TipoRicerca::Ambate:
            e = LeggiAmbata(chiave, r.termini[0]);
            r.coda = CodaDopo(chiave, SeparatoreAmbata);
            break;
        case TipoRicerca::Ambi:
            e = LeggiRegolaAmbi(chiave, true, r.termini[0]);
            if (e.vuoto()) e = LeggiRegolaAmbi(chiave, false, r.termini[1]);
            r.coda = CodaDopo(chiave, SeparatoreAmbi);
            break;
        case TipoRicerca::TerzineAmbo:
        case TipoRicerca::TerzineTerno:
            e = LeggiTerzina(chiave, r.celle);
            r.coda = CodaDopo(chiave, SeparatoreTerzina);
            break;
        case TipoRicerca::Codici:
            e = LeggiCodice(chiave, r.termini[0], r.terzina);
            r.coda = CodaDopo(chiave, SeparatoreCodice);
            break;
    }
    if (!e.vuoto()) {
        ChiaveLetta vuota;
        vuota.tipo = tipo;
        vuota.errore = std::move(e);
        return vuota;
    }
    return r;
}

// ---- descriptions ----

std::string DescrizioneAmbata(int cella, Operazione op, int cella2, int k, bool soloCella) {
    if (soloCella) return NomeCella(cella);
    if (cella2 > 0) return fmt::format("{} {} {}", NomeCella(cella), Segno(op), NomeCella(cella2));
    return Forma(cella, op, k);
}

std::string DescrizioneAmbi(int cellaB, Operazione op1, int k1, int cellaA, Operazione op2, int k2,
                            bool soloPosizione) {
    if (soloPosizione) return NomeCella(cellaB) + " e " + NomeCella(cellaA);
    return Forma(cellaB, op1, k1) + " e " + Forma(cellaA, op2, k2);
}

std::string DescrizioneTerzina(int c1, int c2, int c3) {
    return NomeCella(c1) + " e " + NomeCella(c2) + " e " + NomeCella(c3);
}

std::string DescrizioneCodice(int cella, Operazione op, int terzina, const std::array<int, 3>& numeri) {
    const char s = Segno(op);
    return fmt::format("{} {}{:>2}, {}{:>2}, {}{:>2} (t.{})", NomeCella(cella), s, numeri[0], s, numeri[1], s,
                       numeri[2], terzina);
}

// ---- calculation ----

NumeriCalcolati CalcolaTermine(std::string_view chiave, const archives::RecordEstrazione& estrazione, bool primo) {
    TermineChiave t;
    archives::Messaggio e = !primo || LayoutAmbi(chiave) ? LeggiRegolaAmbi(chiave, primo, t) : LeggiAmbata(chiave, t);
    if (!e.vuoto()) return Errore(std::move(e));
    return {{CalcolaRegola(t, estrazione)}, {}};
}

NumeriCalcolati CalcolaCodice(std::string_view chiave, const archives::RecordEstrazione& estrazione,
                              const TerzineRidotte& terzine) {
    TermineChiave t;
    int numero = 0;
    if (auto e = LeggiCodice(chiave, t, numero); !e.vuoto()) return Errore(std::move(e));
    if (!terzine.disponibili()) return Errore(Guasto(TerzineAssenti));
    if (numero > terzine.quante()) return Errore(Guasto(TerzinaNonValida));
    const int n = ValoreCella(estrazione, t.cella);
    NumeriCalcolati r;
    for (int x : terzine.terzine[static_cast<size_t>(numero)])
        // With 45 or 90 every product is n itself; the verification plays that number.
        r.numeri.push_back(t.op == Operazione::Per && (n == 45 || n == 90) ? n : Opera(t.op, n, x));
    return r;
}

NumeriCalcolati CalcolaTerzina(std::string_view chiave, const archives::RecordEstrazione& estrazione) {
    std::array<int, 3> celle{};
    if (auto e = LeggiTerzina(chiave, celle); !e.vuoto()) return Errore(std::move(e));
    NumeriCalcolati r;
    for (int c : celle) r.numeri.push_back(ValoreCella(estrazione, c));
    return r;
}

NumeriCalcolati NumeriAlgoritmo(std::string_view chiave, TipoRicerca tipo, const archives::RecordEstrazione& estrazione,
                                const TerzineRidotte* terzine) {
    switch (tipo) {
        case TipoRicerca::Ambate: {
            TermineChiave t;
            if (auto e = LeggiAmbata(chiave, t); !e.vuoto()) return Errore(std::move(e));
            return {{CalcolaRegola(t, estrazione)}, {}};
        }
        case TipoRicerca::Ambi: {
            TermineChiave t1, t2;
            if (auto e = LeggiRegolaAmbi(chiave, true, t1); !e.vuoto()) return Errore(std::move(e));
            if (auto e = LeggiRegolaAmbi(chiave, false, t2); !e.vuoto()) return Errore(std::move(e));
            const int x = CalcolaRegola(t1, estrazione);
            int y = CalcolaRegola(t2, estrazione);
            if (y == x) y = Vertibile(x);
            return {{x, y}, {}};
        }
        case TipoRicerca::TerzineAmbo:
        case TipoRicerca::TerzineTerno: {
            NumeriCalcolati r = CalcolaTerzina(chiave, estrazione);
            if (r.numeri.empty()) return r;
            int &x1 = r.numeri[0], &x2 = r.numeri[1], &x3 = r.numeri[2];
            // The fixed order of replacements: after a first vertibile, +1 keeps the three apart.
            bool sostituito = false;
            if (x2 == x1) {
                x2 = Vertibile(x1);
                sostituito = true;
            }
            if (x3 == x1) x3 = sostituito ? OperaPiu(x3, 1) : Vertibile(x1);
            if (x3 == x2) x3 = sostituito ? OperaPiu(x3, 1) : Vertibile(x2);
            return r;
        }
        case TipoRicerca::Codici:
            if (terzine == nullptr) {
                TermineChiave t;
                int numero = 0;
                if (auto e = LeggiCodice(chiave, t, numero); !e.vuoto()) return Errore(std::move(e));
                return Errore(Guasto(TerzineAssenti));
            }
            return CalcolaCodice(chiave, estrazione, *terzine);
    }
    return Errore(Guasto(CapogiocoMancante));
}

}  // namespace gorgo::builder
