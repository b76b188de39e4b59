#pragma once
// The sums and distances of the ten pairs of positions on every wheel of one draw, with the
// equal values of a row or a column in the colours of the groups, and its report.

#include <array>
#include <string>
#include <vector>

#include "archives/record.h"
#include "consultation/griglia.h"

namespace gorgo::consultation {

// The pairs of positions of the columns: 1-2, 1-3 ... 4-5.
extern const std::array<std::pair<int, int>, 10> CoppiePosizioni;
std::string EtichettaCoppia(int colonna);  // "1-2"

struct CellaSommaDistanza {
    int somma = 0;     // 0 for a wheel without numbers
    int distanza = 0;  // ciclometric, 1..45
    CoppiaColori coloreSomma{SfondoNormale, TestoNormale};
    CoppiaColori coloreDistanza{SfondoNormale, TestoNormale};
    bool colorataSomma = false, colorataDistanza = false;
    std::string TestoSomma() const;  // "-" when the wheel has no numbers
    std::string TestoDistanza() const;
};

// Sum reduced by 90 once; ciclometric distance.
int SommaFuori90(int a, int b);
int DistanzaCiclometrica(int a, int b);

struct TabellaSommeDistanze {
    std::string data;
    std::array<std::array<CellaSommaDistanza, 10>, 11> celle{};  // [wheel - 1][pair]
};

// righe / colonne: chkRighe and chkColonne, the comparisons in force.
TabellaSommeDistanze CalcolaSommeDistanze(const archives::RecordEstrazione& r, bool righe, bool colonne);

// The file form: the table under its two rules.
std::vector<std::string> ReportSommeDistanze(const TabellaSommeDistanze& t);
std::string TitoloReportSommeDistanze(const TabellaSommeDistanze& t);
std::string NomeFileSommeDistanze(const TabellaSommeDistanze& t);

// The values of one column (a pair, over the wheels) or one row (a wheel, over the pairs)
// for the chart: labels, sums, distances; wheels without numbers are left out.
struct SerieGrafico {
    std::string descrizione;
    std::vector<std::string> etichette;
    std::vector<int> somme, distanze;
};
SerieGrafico SerieColonna(const TabellaSommeDistanze& t, int colonna);
SerieGrafico SerieRiga(const TabellaSommeDistanze& t, int ruota);

}  // namespace gorgo::consultation
