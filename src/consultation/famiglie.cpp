#include "consultation/famiglie.h"

#include <fmt/format.h>

#include <algorithm>
#include <map>

#include "archives/regole.h"

namespace gorgo::consultation {

const std::array<std::array<int, 4>, 8> TabellaRadicali = [] {
    std::array<std::array<int, 4>, 8> t{};
    for (int c = 1; c <= 8; ++c) t[static_cast<size_t>(c) - 1] = {c, 10 * c, 11 * c, 10 * c + 9};
    return t;
}();

int FiguraDi(int numero) {
    if (numero < 10) return numero;
    const int s = numero / 10 + numero % 10;
    return s > 9 ? s - 9 : s;
}

bool FamigliaConCifra(int codice) {
    return codice == FamDecina || codice == FamCadenza || codice == FamFigura || codice == FamQuindicina;
}

std::vector<int> CifreAmmesse(int codice) {
    const auto da = [](int a, int b) {
        std::vector<int> v;
        for (int i = a; i <= b; ++i) v.push_back(i);
        return v;
    };
    switch (codice) {
        case FamDecina: return da(0, 8);
        case FamCadenza: return da(0, 9);
        case FamFigura: return da(1, 9);
        case FamQuindicina: return da(1, 6);
        default: return {};
    }
}

bool SoloTutteLeRuote(int codice) {
    return (codice >= FamUsciti && codice <= FamPariDispari) || codice == FamUgualiIsotopi ||
           codice == FamSommeUguali || codice == FamDistanzeUguali || codice == FamUltimoRitardo;
}

std::string DescrizioneFamiglia(int codice, const ParametriAnalisi& p) {
    switch (codice) {
        case FamDecina: return "Decina";
        case FamCadenza: return "Cadenza";
        case FamFigura: return "Figura";
        case FamQuindicina: return "Quindicina";
        case FamComplementari: return "Ambi complementari";
        case FamSimmetrici: return "Ambi simmetrici";
        case FamGemelli: return "Gemelli";
        case FamVertibili: return "Ambi vertibili";
        case FamRadicali: return "Ambi radicali";
        case FamNumeriRipetuti: return "Numeri ripetuti";
        case FamAmbiRipetuti: return "Ambi ripetuti";
        case FamUsciti: return "Usciti su 90";
        case FamNonUsciti: return "Non usciti su 90";
        case FamUscitiScorsa: return "Usciti scorsa est.";
        case FamNonUscitiScorsa: return "Non usciti scorsa est.";
        case FamUnoIcsDue: return "1 - X - 2";
        case FamPariDispari: return "Pari - Dispari";
        case FamUgualiIsotopi: return "Numeri uguali isotopi";
        case FamSomma: return fmt::format("Somma {}", p.somma);
        case FamSommeUguali: return "Somme uguali isotope";
        case FamDistanzeUguali: return "Distanze uguali isotope";
        case FamDistanza: return fmt::format("Distanza {}", p.distanza);
        case FamUltimoRitardo: return fmt::format("Ultimo ritardo => a {}", p.ritardo);
        case FamTerzine: return "Terzine simmetriche";
        default: return "Nessuna selezione";
    }
}

namespace {

constexpr size_t K(int cella) { return static_cast<size_t>(cella) - 1; }  // cell 1..55

int Numero(const Griglia& g, int cella) { return g.celle[K(cella)].numero; }

// The row of a cell (0..10) as the integer above cella / 5, less one.
int RigaDi(int cella) { return (cella - 1) / 5; }

std::string Doppia(int n) { return fmt::format("{:>2}", n); }

// Ten to a line, joined by ",".
void ListaDieci(std::vector<std::string>& out, const std::vector<int>& numeri) {
    std::string riga;
    for (size_t i = 0; i < numeri.size(); ++i) {
        if (i % 10 != 0) riga += ',';
        riga += Doppia(numeri[i]);
        if (i % 10 == 9) {
            out.push_back(riga);
            riga.clear();
        }
    }
    if (!riga.empty()) out.push_back(riga);
}

void Singoli(Griglia& g, int codice, int cifra) {
    if (FamigliaConCifra(codice) && cifra < 0) return;
    for (int i = 1; i <= NumeroCelle; ++i) {
        const int v = Numero(g, i);
        if (v == 0) continue;
        bool si = false;
        switch (codice) {
            case FamDecina: si = archives::DecinaDi(v) - 1 == cifra; break;
            case FamCadenza: si = archives::CadenzaDi(v) == cifra; break;
            case FamFigura: si = FiguraDi(v) == cifra; break;
            case FamQuindicina: si = v >= 15 * cifra - 14 && v <= 15 * cifra; break;
            case FamGemelli: si = v % 11 == 0; break;
            default: break;
        }
        if (si) g.celle[K(i)].Dipingi(Marcatura);
    }
}

void Coppie(Griglia& g, int codice) {
    for (int riga = 0; riga < 11; ++riga) {
        std::array<int, 5> v{}, rovescio{};
        std::array<bool, 5> flag{};
        for (int p = 0; p < 5; ++p) {
            v[static_cast<size_t>(p)] = Numero(g, riga * 5 + p + 1);
            const int n = v[static_cast<size_t>(p)];
            rovescio[static_cast<size_t>(p)] = n > 9 ? (n % 10) * 10 + n / 10 : 0;
        }
        for (size_t p = 0; p < 5; ++p)
            for (size_t q = p + 1; q < 5; ++q) {
                if (v[p] == 0 || v[q] == 0) continue;
                bool si = false;
                if (codice == FamComplementari) si = v[p] + v[q] == 90;
                if (codice == FamSimmetrici) si = std::abs(v[p] - v[q]) == 45;
                if (codice == FamVertibili) si = rovescio[p] == v[q];
                if (si) flag[p] = flag[q] = true;
            }
        for (int p = 0; p < 5; ++p)
            if (flag[static_cast<size_t>(p)]) g.celle[K(riga * 5 + p + 1)].Dipingi(Marcatura);
    }
}

void Gruppi(Griglia& g, int codice) {
    std::vector<std::vector<int>> gruppi;
    if (codice == FamRadicali)
        for (const auto& r : TabellaRadicali) gruppi.emplace_back(r.begin(), r.end());
    else
        for (int k = 1; k <= 30; ++k) gruppi.push_back({k, k + 30, k + 60});
    for (int riga = 0; riga < 11; ++riga)
        for (const auto& gruppo : gruppi) {
            std::array<bool, 5> flag{};
            int conta = 0;
            for (int p = 0; p < 5; ++p) {
                const int v = Numero(g, riga * 5 + p + 1);
                if (v != 0 && std::find(gruppo.begin(), gruppo.end(), v) != gruppo.end()) {
                    flag[static_cast<size_t>(p)] = true;
                    ++conta;
                }
            }
            if (conta < 2) continue;
            for (int p = 0; p < 5; ++p)
                if (flag[static_cast<size_t>(p)]) g.celle[K(riga * 5 + p + 1)].Dipingi(Marcatura);
        }
}

// Lines with a hidden key: the most repeated first, then by text, as the sorted list shows them.
void AggiungiOrdinate(std::vector<std::string>& out, std::vector<std::pair<std::string, std::string>> righe) {
    std::sort(righe.begin(), righe.end(),
              [](const auto& a, const auto& b) { return a.first + a.second < b.first + b.second; });
    for (auto& r : righe) out.push_back(std::move(r.second));
}

void NumeriRipetuti(Griglia& g, const ParametriAnalisi& p, const ContestoAnalisi& c) {
    std::array<bool, NumeroCelle + 1> flag{};
    std::vector<std::pair<std::string, std::string>> righe;
    int ripetuti = 0;
    for (int i = 1; i <= NumeroCelle - 1; ++i) {
        const int v = Numero(g, i);
        if (v == 0 || flag[static_cast<size_t>(i)]) continue;
        std::string riga = Doppia(v);
        if (c.tutteLeRuote) riga += " : " + c.nomiRighe[static_cast<size_t>(RigaDi(i))];
        int conta = 1;
        for (int j = i + 1; j <= NumeroCelle; ++j) {
            if (flag[static_cast<size_t>(j)] || Numero(g, j) != v) continue;
            if (p.isotopiRipetuti && (j - i) % 5 != 0) continue;
            flag[static_cast<size_t>(j)] = true;
            if (c.tutteLeRuote) riga += "," + c.nomiRighe[static_cast<size_t>(RigaDi(j))];
            ++conta;
        }
        if (conta < 2) continue;
        righe.emplace_back(fmt::format("{:03}", 100 - conta), riga);
        ++ripetuti;
    }
    AggiungiOrdinate(g.report, std::move(righe));
    if (!g.report.empty()) g.report.emplace_back();
    g.report.push_back(
        fmt::format("--->{}{} <---", ripetuti, p.isotopiRipetuti ? " numeri isotopi ripetuti" : " numeri ripetuti"));
}

void AmbiRipetuti(Griglia& g, const ParametriAnalisi& p, const ContestoAnalisi& c) {
    // Ten ambi a row, each as "@@-@@" of the sorted row; 0 for none.
    std::vector<std::string> ambi(110);
    for (int riga = 0; riga < 11; ++riga) {
        std::array<int, 5> v{};
        for (int q = 0; q < 5; ++q) v[static_cast<size_t>(q)] = Numero(g, riga * 5 + q + 1);
        if (std::find(v.begin(), v.end(), 0) != v.end()) continue;
        std::sort(v.begin(), v.end());
        int k = 0;
        for (size_t a = 0; a < 5; ++a)
            for (size_t b = a + 1; b < 5; ++b, ++k)
                ambi[static_cast<size_t>(riga * 10 + k)] = Doppia(v[a]) + "-" + Doppia(v[b]);
    }
    std::vector<bool> flag(110, false);
    std::vector<std::pair<std::string, std::string>> righe;
    int ripetuti = 0;
    for (int i = 0; i < 110; ++i) {
        const std::string& a = ambi[static_cast<size_t>(i)];
        if (a.empty() || flag[static_cast<size_t>(i)]) continue;
        std::string riga = a;
        if (c.tutteLeRuote) riga += " : " + c.nomiRighe[static_cast<size_t>(i / 10)];
        int conta = 1;
        for (int j = i + 1; j < 110; ++j) {
            if (flag[static_cast<size_t>(j)] || ambi[static_cast<size_t>(j)] != a) continue;
            if (p.isotopiRipetuti && (j - i) % 10 != 0) continue;
            flag[static_cast<size_t>(j)] = true;
            if (c.tutteLeRuote) riga += "," + c.nomiRighe[static_cast<size_t>(j / 10)];
            ++conta;
        }
        if (conta < 2) continue;
        righe.emplace_back(fmt::format("{:03}", 100 - conta), riga);
        ++ripetuti;
    }
    AggiungiOrdinate(g.report, std::move(righe));
    if (ripetuti == 0) {
        g.report.push_back(p.isotopiRipetuti ? "---> nessun ambo isotopo ripetuto" : "---> nessun ambo ripetuto");
        return;
    }
    g.report.emplace_back();
    g.report.push_back(
        fmt::format("--->{}{} <---", ripetuti, p.isotopiRipetuti ? " ambo/i isotopi ripetuti" : " ambo/i ripetuti"));
}

void Usciti(Griglia& g, int codice, const ContestoAnalisi& c) {
    std::array<bool, 91> usciti{};
    for (int i = 1; i <= NumeroCelle; ++i) usciti[static_cast<size_t>(Numero(g, i))] = true;
    usciti[0] = false;
    auto& out = g.report;
    if (codice == FamUscitiScorsa || codice == FamNonUscitiScorsa) {
        std::vector<int> lista;
        for (int n = 1; n <= 90; ++n)
            if (usciti[static_cast<size_t>(n)] && (codice == FamUscitiScorsa) == c.precedente[static_cast<size_t>(n)])
                lista.push_back(n);
        out.push_back(fmt::format(
            "{}{} numeri",
            codice == FamUscitiScorsa ? "Usciti la scorsa estrazione :" : "Non usciti la scorsa estrazione :",
            lista.size()));
        ListaDieci(out, lista);
        out.emplace_back();
    }
    const bool dentro = codice == FamUsciti || codice == FamUscitiScorsa;
    std::vector<int> lista;
    for (int n = 1; n <= 90; ++n)
        if (usciti[static_cast<size_t>(n)] == dentro) lista.push_back(n);
    ListaDieci(out, lista);
    out.push_back(fmt::format("---> {} {} numeri <---", dentro ? "Sono usciti" : "Non sono usciti", lista.size()));
}

void UnoIcsDue(Griglia& g) {
    std::array<int, 3> conta{};
    for (Cella& cella : g.celle) {
        if (cella.numero == 0) continue;
        const int s = (cella.numero - 1) / 30;
        cella.testo = s == 0 ? "1" : (s == 1 ? "X" : "2");
        ++conta[static_cast<size_t>(s)];
    }
    g.report = {fmt::format("Totale segni 1 : {}", conta[0]), fmt::format("Totale segni X : {}", conta[1]),
                fmt::format("Totale segni 2 : {}", conta[2])};
}

void PariDispari(Griglia& g) {
    int pari = 0, dispari = 0;
    for (int i = 1; i <= 50; ++i) {
        Cella& cella = g.celle[K(i)];
        if (cella.numero == 0) continue;
        if (cella.numero % 2 == 0) {
            cella.Dipingi({Rosso, Giallo});
            ++pari;
        } else {
            cella.Dipingi({Blu, Giallo});
            ++dispari;
        }
    }
    g.report = {fmt::format("Sono usciti {} numeri pari (in rosso)", pari),
                fmt::format("Sono usciti {} numeri dispari (in blu)", dispari)};
}

std::string Posto(const Griglia& g, const ContestoAnalisi& c, int cella) {
    return Doppia(Numero(g, cella)) + " " + c.nomiRighe[static_cast<size_t>(RigaDi(cella))];
}

void SommaDistanza(Griglia& g, const ParametriAnalisi& p, const ContestoAnalisi& c, bool somma) {
    const bool isotopi = somma ? p.isotopiSomma : p.isotopiDistanza;
    const int valore = somma ? p.somma : p.distanza;
    g.report.push_back(
        fmt::format("{} {}{}", somma ? "Somma" : "Distanza", valore, isotopi ? " di numeri isotopi" : ""));
    g.report.emplace_back();
    size_t colore = 0;
    for (int i = 1; i <= NumeroCelle - 1; ++i) {
        const int a = Numero(g, i);
        if (a == 0) continue;
        std::string riga;
        for (int j = i + 1; j <= NumeroCelle; ++j) {
            const int b = Numero(g, j);
            if (b == 0) continue;
            int v = somma ? a + b : std::abs(a - b);
            if (somma && p.f90Somma && v > 90) v -= 90;
            if (v != valore || (isotopi && (j - i) % 5 != 0)) continue;
            for (int k : {i, j})
                if (!g.celle[K(k)].colorata) g.celle[K(k)].Dipingi(ColoriGruppi[colore]);
            riga += (riga.empty() ? "" : "   ") + Posto(g, c, i) + ", " + Posto(g, c, j);
        }
        if (riga.empty()) continue;
        g.report.push_back(riga);
        colore = colore == 12 ? 0 : colore + 1;
    }
}

void Uguali(Griglia& g, const ContestoAnalisi& c, bool somma) {
    constexpr std::array<std::pair<int, int>, 10> Coppie{
        {{0, 1}, {0, 2}, {0, 3}, {0, 4}, {1, 2}, {1, 3}, {1, 4}, {2, 3}, {2, 4}, {3, 4}}};
    std::array<std::array<int, 10>, 11> valori{};
    for (int riga = 0; riga < 11; ++riga)
        for (size_t k = 0; k < Coppie.size(); ++k) {
            const int a = Numero(g, riga * 5 + Coppie[k].first + 1), b = Numero(g, riga * 5 + Coppie[k].second + 1);
            if (a == 0 || b == 0) continue;
            valori[static_cast<size_t>(riga)][k] = somma ? archives::Fuori90Somma(a + b) : std::abs(a - b);
        }
    g.report.push_back(somma ? "Somme uguali isotope" : "Distanze uguali isotope");
    g.report.emplace_back();
    size_t colore = 0;
    for (size_t k = 0; k < Coppie.size(); ++k) {
        std::array<bool, 11> usata{};
        for (int r1 = 0; r1 < 11; ++r1) {
            const int v = valori[static_cast<size_t>(r1)][k];
            if (v == 0 || usata[static_cast<size_t>(r1)]) continue;
            std::vector<int> gruppo{r1};
            for (int r2 = r1 + 1; r2 < 11; ++r2)
                if (!usata[static_cast<size_t>(r2)] && valori[static_cast<size_t>(r2)][k] == v) {
                    usata[static_cast<size_t>(r2)] = true;
                    gruppo.push_back(r2);
                }
            if (gruppo.size() < 2) continue;
            std::string riga = fmt::format("{} {:>2} (pos. {}-{}):", somma ? "Somma" : "Distanza", v,
                                           Coppie[k].first + 1, Coppie[k].second + 1);
            for (int r : gruppo) {
                const int ca = r * 5 + Coppie[k].first + 1, cb = r * 5 + Coppie[k].second + 1;
                for (int cella : {ca, cb})
                    if (!g.celle[K(cella)].colorata) g.celle[K(cella)].Dipingi(ColoriGruppi[colore]);
                riga += fmt::format("  {}-{} {}", Doppia(Numero(g, ca)), Doppia(Numero(g, cb)),
                                    c.nomiRighe[static_cast<size_t>(r)]);
            }
            g.report.push_back(riga);
            colore = colore == 12 ? 0 : colore + 1;
        }
    }
}

void UgualiIsotopi(Griglia& g, const ContestoAnalisi& c) {
    g.report = {"Numeri uguali isotopi", ""};
    std::array<bool, NumeroCelle + 1> flag{};
    size_t colore = 0;
    for (int i = 1; i <= 46; ++i) {
        const int v = Numero(g, i);
        if (v == 0 || flag[static_cast<size_t>(i)]) continue;
        std::string riga;
        for (int j = i + 5; j <= 51; j += 5) {
            if (Numero(g, j) != v) continue;
            flag[static_cast<size_t>(j)] = true;
            if (riga.empty()) {
                riga = Doppia(v) + ": " + c.nomiRighe[static_cast<size_t>(RigaDi(i))];
                g.celle[K(i)].Dipingi(ColoriGruppi[colore]);
            }
            riga += "," + c.nomiRighe[static_cast<size_t>(RigaDi(j))];
            g.celle[K(j)].Dipingi(ColoriGruppi[colore]);
        }
        if (riga.empty()) continue;
        g.report.push_back(riga);
        colore = colore == 12 ? 0 : colore + 1;
    }
}

}  // namespace

void ApplicaAnalisi(Griglia& g, const ParametriAnalisi& p, const ContestoAnalisi& c) {
    g.report.clear();
    const int codice = p.famiglia;
    if (codice == NessunaFamiglia) return;
    if (!c.tutteLeRuote && SoloTutteLeRuote(codice)) return;
    switch (codice) {
        case FamDecina:
        case FamCadenza:
        case FamFigura:
        case FamQuindicina:
        case FamGemelli: Singoli(g, codice, p.cifra); return;
        case FamComplementari:
        case FamSimmetrici:
        case FamVertibili: Coppie(g, codice); return;
        case FamRadicali:
        case FamTerzine: Gruppi(g, codice); return;
        case FamUltimoRitardo:
            for (int i = 1; i <= NumeroCelle; ++i)
                if (Numero(g, i) != 0 && c.ritardi[K(i)] >= p.ritardo) g.celle[K(i)].Dipingi(Marcatura);
            return;
        case FamNumeriRipetuti: NumeriRipetuti(g, p, c); break;
        case FamAmbiRipetuti: AmbiRipetuti(g, p, c); break;
        case FamUsciti:
        case FamNonUsciti:
        case FamUscitiScorsa:
        case FamNonUscitiScorsa: Usciti(g, codice, c); break;
        case FamUnoIcsDue: UnoIcsDue(g); break;
        case FamPariDispari: PariDispari(g); break;
        case FamUgualiIsotopi: UgualiIsotopi(g, c); break;
        case FamSomma: SommaDistanza(g, p, c, true); break;
        case FamDistanza: SommaDistanza(g, p, c, false); break;
        case FamSommeUguali: Uguali(g, c, true); break;
        case FamDistanzeUguali: Uguali(g, c, false); break;
        default: return;
    }
    g.mostraAnalisi = true;
}

}  // namespace gorgo::consultation
