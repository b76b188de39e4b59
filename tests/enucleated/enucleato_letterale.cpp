#include "enucleato_letterale.h"

#include <fmt/format.h>
#include <algorithm>

#include "archives/ordina.h"
#include "archives/record.h"
#include "config/formato.h"
#include "enucleated/ambi_matematici.h"

namespace gorgo::test {

using namespace gorgo::enucleated;

namespace {

// The delay of one number, read back draw by draw as the list does for each item.
int RitardoLetterale(const archives::StoriaLotto& storia, int w, int32_t I, int x) {
    int ritardo = 0;
    for (int32_t j = I - 1; j >= 1 && j >= archives::PrimaEstrazioneRuota[static_cast<size_t>(w)]; --j) {
        const archives::RecordEstrazione& r = storia[j];
        bool trovato = false;
        for (int p = 1; p <= 5; ++p) {
            if (r.Numero(w, p) < 1) continue;
            if (r.Numero(w, p) == x) {
                trovato = true;
                break;
            }
        }
        if (trovato) return ritardo;
        if (r.Numero(w, 5) > 0) ritardo += 1;
    }
    return ritardo;
}

int Val(const std::string& s) {
    try {
        return std::stoi(s);
    } catch (...) {
        return 0;
    }
}

}  // namespace

void RicercaEnucleatoLetterale(const archives::StoriaLotto& storia, const MatriceEnucleato& matrice, int32_t I,
                               const std::string& dataA, const std::array<bool, 12>& ruote, TipoAnalisi tipo,
                               std::vector<RigaEnucleato>& righe) {
    int MinimoRuota[12], MassimoRuota[12];
    for (int w = 1; w <= 11; ++w) {
        MinimoRuota[w] = 1000;
        MassimoRuota[w] = 0;
    }
    int chiave = 0;
    for (int w = 1; w <= 11; ++w) {
        if (!ruote[static_cast<size_t>(w)]) continue;
        chiave += 1;
        RigaEnucleato sep;
        sep.descrizione = " ";
        sep.prog = " ";
        sep.data = " ";
        sep.ruota = " ";
        sep.somma = "     ";
        sep.chiave = fmt::format("{:>7}", chiave);
        righe.push_back(sep);
        for (int k = 0; k < 10; ++k) {
            std::vector<int> posizioni;
            if (tipo == TipoAnalisi::Ambi)
                posizioni.assign(PosizioniAmbi[static_cast<size_t>(k)].begin(),
                                 PosizioniAmbi[static_cast<size_t>(k)].end());
            else
                posizioni.assign(PosizioniTerni[static_cast<size_t>(k)].begin(),
                                 PosizioniTerni[static_cast<size_t>(k)].end());
            RigaEnucleato r;
            std::string testo = std::string(archives::SigleRuota[static_cast<size_t>(w)]) + "   ";
            for (size_t i = 0; i < posizioni.size(); ++i) {
                // The number as the label shows it: "--" reads 0.
                const std::string etichetta = matrice.Testo(w, posizioni[i]);
                const int x = etichetta == "--" ? 0 : Val(etichetta);
                testo += (i ? "-" : "") + etichetta;
                r.numeri.push_back(x);
            }
            r.descrizione = testo;
            r.prog = fmt::format("{:>2}", k + 1);
            r.data = dataA;
            int SommaRitardi = 0;
            for (int x : r.numeri) {
                const int d = RitardoLetterale(storia, w, I, x);
                r.ritardi.push_back(d);
                SommaRitardi += d;
            }
            if (SommaRitardi <= MinimoRuota[w]) MinimoRuota[w] = SommaRitardi;
            if (SommaRitardi >= MassimoRuota[w]) MassimoRuota[w] = SommaRitardi;
            r.somma = fmt::format("{:>5}", SommaRitardi);
            r.chiave = fmt::format("{:>7}", chiave);
            r.ruota = fmt::format("{:02}", w);
            r.nota = " ";
            r.sommaRitardi = SommaRitardi;
            r.numeroRuota = w;
            righe.push_back(r);
        }
    }
    for (const RigaEnucleato& r : righe) {
        const int w = Val(r.ruota);
        if (w == 0) continue;
        const int s = Val(r.somma);
        if (s <= MinimoRuota[w]) MinimoRuota[w] = s;
        if (s >= MassimoRuota[w]) MassimoRuota[w] = s;
    }
    int MinimoAssoluto = 1000, MassimoAssoluto = 0;
    for (int w = 1; w <= 11; ++w) {
        if (MinimoRuota[w] < MinimoAssoluto) MinimoAssoluto = MinimoRuota[w];
        if (MassimoRuota[w] > MassimoAssoluto) MassimoAssoluto = MassimoRuota[w];
    }
    for (RigaEnucleato& r : righe) {
        const int w = Val(r.ruota);
        if (w == 0) continue;
        const int s = Val(r.somma);
        if (s == MinimoRuota[w]) r.nota = "<-- Min ruota";
        if (s == MassimoRuota[w]) r.nota = "<-- Max ruota";
    }
    for (RigaEnucleato& r : righe) {
        if (Val(r.ruota) == 0) continue;
        const int s = Val(r.somma);
        if (s == MinimoAssoluto)
            r.nota = "<-- Min assoluto";
        else if (s == MassimoAssoluto)
            r.nota = "<-- Max assoluto";
    }
}

namespace {

size_t A(int a, int b) { return static_cast<size_t>(a * 91 + b); }
size_t T(int a, int b, int c) { return static_cast<size_t>((a * 91 + b) * 91 + c); }

bool InTabella(int a, int b) {
    for (const AmboMatematico& m : AmbiMatematici())
        if (m.a == a && m.b == b) return true;
    return false;
}

}  // namespace

EsitoStatisticaLetterale StatisticaLetterale(const archives::StoriaLotto& storia, const Periodo& periodo,
                                             const ParametriStatistica& p) {
    EsitoStatisticaLetterale esito;
    esito.tabelle = std::make_unique<TabelleLetterali>();
    TabelleLetterali& t = *esito.tabelle;
    t.dataA = periodo.dataA;
    const int w = p.ruota;
    t.ruota = w;
    const bool terni = p.tipo == TipoAnalisi::Terni;
    const int R = terni ? 300 : 150;
    const int massimaSomma = terni ? 450 : 350;
    t.RitardoAmbo.assign(91 * 91, 0);
    t.RitardoMaxAmbo.assign(91 * 91, 0);
    t.FrequenzaAmbo.assign(91 * 91, 0);
    if (terni) {
        t.RitardoTerno.assign(91 * 91 * 91, 0);
        t.RitardoMaxTerno.assign(91 * 91 * 91, 0);
        t.FrequenzaTerno.assign(91 * 91 * 91, 0);
    }
    std::vector<int> FrequenzaSomma(static_cast<size_t>(massimaSomma) + 1), RitardoSomma(FrequenzaSomma.size()),
        RitardoMaxSomma(FrequenzaSomma.size());
    std::vector<std::string> DataRitardoMax(FrequenzaSomma.size());
    int FrequenzaMassima = 0;
    const int32_t prima = archives::PrimaEstrazioneRuota[static_cast<size_t>(w)];

    int contati = 0;
    if (prima + R < periodo.inizio) {
        for (int32_t j = periodo.inizio - R; j <= periodo.inizio - 1; ++j) {
            for (int x = 1; x <= 90; ++x) t.RitardoNumero[static_cast<size_t>(x)] += 1;
            for (int q = 1; q <= 5; ++q) t.RitardoNumero[storia[j].Numero(w, q)] = 0;
        }
        contati = R;
    }
    for (int32_t j = periodo.inizio; j <= periodo.fine; ++j) {
        const archives::RecordEstrazione& rec = storia[j];
        if (!(j > prima) || rec.Numero(w, 1) == 0) continue;
        t.EstrazioniValide += 1;
        std::array<int32_t, 5> e{};
        for (int q = 0; q < 5; ++q) e[static_cast<size_t>(q)] = rec.Numero(w, q + 1);
        if (p.soloMatematici) archives::OrdinaLunghi(e, 0, 4);
        const bool riscaldamento = contati < R;
        contati += 1;
        std::vector<bool> contata(FrequenzaSomma.size(), false);
        auto conta = [&](int s) {
            if (s > massimaSomma) return;
            const auto i = static_cast<size_t>(s);
            FrequenzaSomma[i] += 1;
            if (FrequenzaSomma[i] > FrequenzaMassima) FrequenzaMassima = FrequenzaSomma[i];
            if (!(RitardoSomma[i] < RitardoMaxSomma[i])) {
                RitardoMaxSomma[i] = RitardoSomma[i];
                DataRitardoMax[i] = storia.DataEstrazione(j);
            }
            contata[i] = true;
        };
        if (!terni) {
            for (int i = 0; i < 4; ++i)
                for (int k = i + 1; k < 5; ++k) {
                    const int a = e[static_cast<size_t>(i)], b = e[static_cast<size_t>(k)];
                    if (a == 0 || b == 0) continue;
                    if (!riscaldamento) {
                        if (p.soloMatematici && !InTabella(a, b)) continue;
                        conta(t.RitardoNumero[static_cast<size_t>(a)] + t.RitardoNumero[static_cast<size_t>(b)]);
                    }
                    if (t.RitardoAmbo[A(a, b)] > t.RitardoMaxAmbo[A(a, b)]) {
                        t.RitardoMaxAmbo[A(a, b)] = t.RitardoAmbo[A(a, b)];
                        t.RitardoMaxAmbo[A(b, a)] = t.RitardoAmbo[A(a, b)];
                    }
                    t.FrequenzaAmbo[A(a, b)] += 1;
                    t.FrequenzaAmbo[A(b, a)] += 1;
                }
            for (int a = 1; a <= 90; ++a)
                for (int b = 1; b <= 90; ++b)
                    if (a != b) t.RitardoAmbo[A(a, b)] += 1;
            for (int i = 0; i < 4; ++i)
                for (int k = i + 1; k < 5; ++k) {
                    const int a = e[static_cast<size_t>(i)], b = e[static_cast<size_t>(k)];
                    if (a == 0 || b == 0) continue;
                    t.RitardoAmbo[A(a, b)] = 0;
                    t.RitardoAmbo[A(b, a)] = 0;
                }
        } else {
            for (int i = 0; i < 3; ++i)
                for (int k = i + 1; k < 4; ++k)
                    for (int m = k + 1; m < 5; ++m) {
                        const int a = e[static_cast<size_t>(i)], b = e[static_cast<size_t>(k)],
                                  c = e[static_cast<size_t>(m)];
                        if (a == 0 || b == 0 || c == 0) continue;
                        if (!riscaldamento) {
                            if (p.soloMatematici && !EMatematico(a, b) && !EMatematico(a, c) && !EMatematico(b, c))
                                continue;
                            conta(t.RitardoNumero[static_cast<size_t>(a)] + t.RitardoNumero[static_cast<size_t>(b)] +
                                  t.RitardoNumero[static_cast<size_t>(c)]);
                        }
                        const int r = t.RitardoTerno[T(a, b, c)];
                        const int ordini[6][3] = {{a, b, c}, {a, c, b}, {b, a, c}, {b, c, a}, {c, a, b}, {c, b, a}};
                        if (r > t.RitardoMaxTerno[T(a, b, c)])
                            for (const auto& o : ordini) t.RitardoMaxTerno[T(o[0], o[1], o[2])] = r;
                        for (const auto& o : ordini) t.FrequenzaTerno[T(o[0], o[1], o[2])] += 1;
                    }
            for (int a = 1; a <= 90; ++a)
                for (int b = 1; b <= 90; ++b) {
                    if (a == b) continue;
                    int* riga = &t.RitardoTerno[T(a, b, 0)];
                    for (int c = 1; c <= 90; ++c)
                        if (c != a && c != b) riga[c] += 1;
                }
            for (int i = 0; i < 3; ++i)
                for (int k = i + 1; k < 4; ++k)
                    for (int m = k + 1; m < 5; ++m) {
                        const int a = e[static_cast<size_t>(i)], b = e[static_cast<size_t>(k)],
                                  c = e[static_cast<size_t>(m)];
                        if (a == 0 || b == 0 || c == 0) continue;
                        const int ordini[6][3] = {{a, b, c}, {a, c, b}, {b, a, c}, {b, c, a}, {c, a, b}, {c, b, a}};
                        for (const auto& o : ordini) t.RitardoTerno[T(o[0], o[1], o[2])] = 0;
                    }
        }
        if (!riscaldamento) {
            for (size_t s = 0; s < RitardoSomma.size(); ++s) RitardoSomma[s] += 1;
            for (size_t s = 0; s < RitardoSomma.size(); ++s)
                if (contata[s]) RitardoSomma[s] = 0;
        }
        for (int x = 1; x <= 90; ++x) t.RitardoNumero[static_cast<size_t>(x)] += 1;
        for (int q = 0; q < 5; ++q) t.RitardoNumero[static_cast<size_t>(e[static_cast<size_t>(q)])] = 0;
    }

    std::vector<int> somme;
    if (p.perPresenze) {
        for (int s = 0; s <= 350; ++s)
            if (FrequenzaSomma[static_cast<size_t>(s)] >= p.presenze) somme.push_back(s);
    } else {
        int trovate = 0;
        for (int f = FrequenzaMassima; f >= 1; --f) {
            for (int s = 0; s <= 350; ++s)
                if (FrequenzaSomma[static_cast<size_t>(s)] == f) {
                    somme.push_back(s);
                    trovate += 1;
                }
            if (trovate >= p.quante) break;
        }
    }
    const int L = terni ? 6 : 5;
    std::string nome(archives::NomiRuota[static_cast<size_t>(w)]);
    while (!nome.empty() && nome.back() == ' ') nome.pop_back();
    int P = 0;
    for (int s : somme) {
        const auto i = static_cast<size_t>(s);
        RigaStatistica r;
        r.ruota = w;
        r.somma = s;
        r.frequenza = FrequenzaSomma[i];
        r.ritardo = RitardoSomma[i];
        r.ritardoMax = RitardoMaxSomma[i];
        r.dataRitardoMax = DataRitardoMax[i];
        std::string max = fmt::format("{:>{}}", RitardoMaxSomma[i], L);
        if (!DataRitardoMax[i].empty()) max += "   il " + DataRitardoMax[i];
        std::string media;
        if (!(FrequenzaSomma[i] < 1) && !p.soloMatematici)
            media = config::Formato(static_cast<double>(t.EstrazioniValide) / FrequenzaSomma[i], "##0.0");
        while (static_cast<int>(media.size()) < L && !media.empty()) media = " " + media;
        P += 1;
        r.testo = {nome,
                   fmt::format("{:>4}", s),
                   fmt::format("{:>{}}", FrequenzaSomma[i], L),
                   fmt::format("{:>{}}", RitardoSomma[i], L),
                   max,
                   media,
                   fmt::format("{:06}", P),
                   fmt::format("{:02}", w)};
        esito.righe.push_back(r);
    }
    return esito;
}

namespace {

ListaCoppie Ordina(ListaCoppie l) {
    std::stable_sort(l.righe.begin(), l.righe.end(),
                     [](const RigaCoppia& x, const RigaCoppia& y) { return x.ic > y.ic; });
    return l;
}

}  // namespace

ListaCoppie CoppieLetterali(const TabelleLetterali& t, int somma, bool soloMatematici) {
    ListaCoppie l;
    l.descrizione = "Coppie su " + std::string(archives::SigleRuota[static_cast<size_t>(t.ruota)]) + " con rit." +
                    std::to_string(somma) + " al " + t.dataA;
    auto prova = [&](int a, int b) {
        const int da = t.RitardoNumero[static_cast<size_t>(a)], db = t.RitardoNumero[static_cast<size_t>(b)];
        if (da + db != somma) return;
        RigaCoppia r;
        r.numeri = {a, b};
        r.ritardi = {da, db};
        r.ritardoAttuale = t.ambo(t.RitardoAmbo, a, b);
        r.ritardoMax = t.ambo(t.RitardoMaxAmbo, a, b);
        r.frequenza = t.ambo(t.FrequenzaAmbo, a, b);
        r.ic = t.EstrazioniValide ? static_cast<double>(r.frequenza) / t.EstrazioniValide * r.ritardoAttuale : 0;
        r.testo = {fmt::format("{:>2} - {:>2}", a, b),     fmt::format("{:>4} ({:>3}+{:>3})", somma, da, db),
                   fmt::format("{:>5}", r.ritardoAttuale), fmt::format("{:>5}", r.ritardoMax),
                   fmt::format("{:>5}", r.frequenza),      config::Formato(r.ic, "#0.000")};
        l.righe.push_back(r);
    };
    if (soloMatematici) {
        for (const AmboMatematico& m : AmbiMatematici()) prova(m.a, m.b);
    } else {
        for (int a = 1; a <= 90; ++a)
            for (int b = a + 1; b <= 90; ++b) prova(a, b);
    }
    l = Ordina(std::move(l));
    l.totale = std::to_string(l.righe.size()) + " coppie in lista";
    return l;
}

ListaCoppie TerzineLetterali(const TabelleLetterali& t, int somma, bool soloMatematici) {
    ListaCoppie l;
    l.descrizione = "Terzine su " + std::string(archives::SigleRuota[static_cast<size_t>(t.ruota)]) + " con rit." +
                    std::to_string(somma) + " al " + t.dataA;
    for (int a = 1; a <= 90; ++a)
        for (int b = a + 1; b <= 90; ++b)
            for (int c = b + 1; c <= 90; ++c) {
                const int da = t.RitardoNumero[static_cast<size_t>(a)], db = t.RitardoNumero[static_cast<size_t>(b)],
                          dc = t.RitardoNumero[static_cast<size_t>(c)];
                if (da + db + dc != somma) continue;
                if (soloMatematici && !EMatematico(a, b) && !EMatematico(a, c) && !EMatematico(b, c)) continue;
                RigaCoppia r;
                r.numeri = {a, b, c};
                r.ritardi = {da, db, dc};
                r.ritardoAttuale = t.terno(t.RitardoTerno, a, b, c);
                r.ritardoMax = t.terno(t.RitardoMaxTerno, a, b, c);
                r.frequenza = t.terno(t.FrequenzaTerno, a, b, c);
                r.ic =
                    t.EstrazioniValide ? static_cast<double>(r.frequenza) / t.EstrazioniValide * r.ritardoAttuale : 0;
                r.testo = {fmt::format("{:>2} - {:>2} - {:>2}", a, b, c),
                           fmt::format("{:>4} ({:>3}+{:>3}+{:>3})", somma, da, db, dc),
                           fmt::format("{:>5}", r.ritardoAttuale),
                           fmt::format("{:>5}", r.ritardoMax),
                           fmt::format("{:>5}", r.frequenza),
                           config::Formato(r.ic, "#0.000")};
                l.righe.push_back(r);
            }
    l = Ordina(std::move(l));
    l.totale = std::to_string(l.righe.size()) + " terzine in lista";
    return l;
}

EsitoGruppo GruppoLetterale(const archives::StoriaLotto& storia, const Periodo& periodo, int w) {
    EsitoGruppo esito;
    esito.periodo = periodo;
    const int32_t inizio = std::max(periodo.inizio, archives::PrimaEstrazioneRuota[static_cast<size_t>(w)]);
    const size_t n = static_cast<size_t>(storia.NumeroEstrazioni()) + 2;
    std::vector<int> FrequenzaRitardo(n), UltimaVolta(n), RitardoMaxValore(n);
    int RitardoGruppo = 0, RitardoStoricoGruppo = 0, UscitePeriodo = 0, Estrazioni = 0;
    for (int32_t j = inizio; j <= periodo.fine; ++j) {
        const archives::RecordEstrazione& rec = storia[j];
        if (rec.Numero(w, 1) == 0) continue;
        Estrazioni += 1;
        std::array<int32_t, 5> e{};
        for (int q = 0; q < 5; ++q) e[static_cast<size_t>(q)] = rec.Numero(w, q + 1);
        archives::OrdinaLunghi(e, 0, 4);
        bool uscito = false;
        for (int i = 0; i < 4; ++i)
            for (int k = i + 1; k < 5; ++k) {
                if (!InTabella(e[static_cast<size_t>(i)], e[static_cast<size_t>(k)])) continue;
                UscitePeriodo += 1;
                if (!uscito) {
                    uscito = true;
                    if (RitardoStoricoGruppo < RitardoGruppo) RitardoStoricoGruppo = RitardoGruppo;
                    const auto g = static_cast<size_t>(RitardoGruppo);
                    FrequenzaRitardo[g] += 1;
                    if (Estrazioni - UltimaVolta[g] > RitardoMaxValore[g])
                        RitardoMaxValore[g] = Estrazioni - UltimaVolta[g];
                    UltimaVolta[g] = Estrazioni;
                }
            }
        if (uscito)
            RitardoGruppo = 0;
        else
            RitardoGruppo += 1;
    }
    std::string ic = " n.d.";
    if (UscitePeriodo > 0) {
        ic = config::Formato(RitardoGruppo / (static_cast<double>(Estrazioni) / UscitePeriodo), "##0.00");
        while (ic.size() < 5) ic = " " + ic;
    }
    esito.riepilogo.push_back(std::string(archives::SigleRuota[static_cast<size_t>(w)]) + " " + " -->  Freq.: " +
                              std::to_string(UscitePeriodo) + " - Rit.: " + std::to_string(RitardoGruppo) +
                              " - Rit.stor.: " + std::to_string(RitardoStoricoGruppo) + " - I.C.:" + ic);
    for (int g = 0; g <= RitardoStoricoGruppo; ++g) {
        const auto i = static_cast<size_t>(g);
        if (!(FrequenzaRitardo[i] > 0)) continue;
        RigaGruppo r;
        r.ritardo = g;
        r.frequenza = FrequenzaRitardo[i];
        r.ritardoAttuale = Estrazioni - UltimaVolta[i];
        r.ritardoMax = RitardoMaxValore[i];
        r.ic = r.ritardoAttuale / (static_cast<double>(Estrazioni) / r.frequenza);
        r.testo = {fmt::format("{:>5}", g), fmt::format("{:>4}", r.frequenza), fmt::format("{:>4}", r.ritardoAttuale),
                   fmt::format("{:>4}", r.ritardoMax), config::Formato(r.ic, "##0.00")};
        esito.righe.push_back(r);
    }
    std::stable_sort(esito.righe.begin(), esito.righe.end(),
                     [](const RigaGruppo& x, const RigaGruppo& y) { return x.ic > y.ic; });
    return esito;
}

}  // namespace gorgo::test
