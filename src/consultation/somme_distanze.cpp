#include "consultation/somme_distanze.h"

#include <fmt/format.h>

#include <algorithm>

#include "config/formato.h"

namespace gorgo::consultation {

const std::array<std::pair<int, int>, 10> CoppiePosizioni{
    {{1, 2}, {1, 3}, {1, 4}, {1, 5}, {2, 3}, {2, 4}, {2, 5}, {3, 4}, {3, 5}, {4, 5}}};

std::string EtichettaCoppia(int colonna) {
    const auto& c = CoppiePosizioni[static_cast<size_t>(colonna)];
    return fmt::format("{}-{}", c.first, c.second);
}

int SommaFuori90(int a, int b) { return a + b > 90 ? a + b - 90 : a + b; }

int DistanzaCiclometrica(int a, int b) {
    const int d = std::abs(a - b);
    return d > 45 ? 90 - d : d;
}

std::string CellaSommaDistanza::TestoSomma() const { return somma < 1 ? "-" : std::to_string(somma); }
std::string CellaSommaDistanza::TestoDistanza() const { return somma < 1 ? "-" : std::to_string(distanza); }

namespace {

// Equal values within one line of cells (a row or a column) take the next group colour.
template <class Prendi, class Dipingi>
void Uguali(std::vector<CellaSommaDistanza*> linea, size_t& colore, Prendi valore, Dipingi dipingi) {
    std::vector<bool> fatto(linea.size(), false);
    for (size_t i = 0; i < linea.size(); ++i) {
        if (fatto[i] || linea[i]->somma < 1) continue;
        bool gruppo = false;
        for (size_t j = i + 1; j < linea.size(); ++j) {
            if (fatto[j] || linea[j]->somma < 1 || valore(*linea[j]) != valore(*linea[i])) continue;
            fatto[j] = true;
            gruppo = true;
            dipingi(*linea[j], ColoriGruppi[colore]);
        }
        if (!gruppo) continue;
        dipingi(*linea[i], ColoriGruppi[colore]);
        colore = colore == 12 ? 0 : colore + 1;
    }
}

}  // namespace

TabellaSommeDistanze CalcolaSommeDistanze(const archives::RecordEstrazione& r, bool righe, bool colonne) {
    TabellaSommeDistanze t;
    t.data = r.dataTesto();
    for (int w = 1; w <= archives::NumeroRuote; ++w)
        for (size_t k = 0; k < 10; ++k) {
            const int a = r.Numero(w, CoppiePosizioni[k].first), b = r.Numero(w, CoppiePosizioni[k].second);
            auto& c = t.celle[static_cast<size_t>(w) - 1][k];
            if (a == 0 || b == 0) continue;
            c.somma = SommaFuori90(a, b);
            c.distanza = DistanzaCiclometrica(a, b);
        }
    const auto somma = [](const CellaSommaDistanza& c) { return c.somma; };
    const auto distanza = [](const CellaSommaDistanza& c) { return c.distanza; };
    const auto dipingiSomma = [](CellaSommaDistanza& c, CoppiaColori k) {
        c.coloreSomma = k;
        c.colorataSomma = true;
    };
    const auto dipingiDistanza = [](CellaSommaDistanza& c, CoppiaColori k) {
        c.coloreDistanza = k;
        c.colorataDistanza = true;
    };
    size_t colore = 0;
    if (righe)
        for (auto& riga : t.celle) {
            std::vector<CellaSommaDistanza*> linea;
            for (auto& c : riga) linea.push_back(&c);
            Uguali(linea, colore, somma, dipingiSomma);
            Uguali(linea, colore, distanza, dipingiDistanza);
        }
    if (colonne)
        for (size_t k = 0; k < 10; ++k) {
            std::vector<CellaSommaDistanza*> linea;
            for (auto& riga : t.celle) linea.push_back(&riga[k]);
            Uguali(linea, colore, somma, dipingiSomma);
            Uguali(linea, colore, distanza, dipingiDistanza);
        }
    return t;
}

std::vector<std::string> ReportSommeDistanze(const TabellaSommeDistanze& t) {
    const std::string regola = "*----------*-----*-----*-----*-----*-----*-----*-----*-----*-----*-----*";
    std::vector<std::string> out{regola, "|          | 1-2 | 1-3 | 1-4 | 1-5 | 2-3 | 2-4 | 2-5 | 3-4 | 3-5 | 4-5 |",
                                 regola, "           |So Di|So Di|So Di|So Di|So Di|So Di|So Di|So Di|So Di|So Di|",
                                 "           *-----*-----*-----*-----*-----*-----*-----*-----*-----*-----*"};
    for (int w = 1; w <= archives::NumeroRuote; ++w) {
        std::string riga = config::AllineaSinistra(archives::NomiRuota[static_cast<size_t>(w)], 11);
        for (const auto& c : t.celle[static_cast<size_t>(w) - 1])
            riga += fmt::format("|{} {}", config::AllineaDestra(c.TestoSomma(), 2),
                                config::AllineaDestra(c.TestoDistanza(), 2));
        out.push_back(riga + "|");
    }
    return out;
}

std::string TitoloReportSommeDistanze(const TabellaSommeDistanze& t) {
    return "Gorgo - Somme e distanze - " + t.data + " - Tutte le ruote";
}

std::string NomeFileSommeDistanze(const TabellaSommeDistanze& t) {
    std::string d = t.data;
    std::replace(d.begin(), d.end(), '/', '_');
    return "SommeDistanze_" + d;
}

SerieGrafico SerieColonna(const TabellaSommeDistanze& t, int colonna) {
    SerieGrafico s;
    s.descrizione = t.data + " - Ambo " + EtichettaCoppia(colonna);
    for (int w = 1; w <= archives::NumeroRuote; ++w) {
        const auto& c = t.celle[static_cast<size_t>(w) - 1][static_cast<size_t>(colonna)];
        if (c.somma < 1) continue;
        s.etichette.emplace_back(archives::SigleRuota[static_cast<size_t>(w)]);
        s.somme.push_back(c.somma);
        s.distanze.push_back(c.distanza);
    }
    return s;
}

SerieGrafico SerieRiga(const TabellaSommeDistanze& t, int ruota) {
    SerieGrafico s;
    s.descrizione = NomeRuota(ruota) + " - " + t.data;
    for (size_t k = 0; k < 10; ++k) {
        const auto& c = t.celle[static_cast<size_t>(ruota) - 1][k];
        if (c.somma < 1) continue;
        s.etichette.push_back(EtichettaCoppia(static_cast<int>(k)));
        s.somme.push_back(c.somma);
        s.distanze.push_back(c.distanza);
    }
    return s;
}

}  // namespace gorgo::consultation
