#pragma once
// The enucleated pair as written, with no shortcut: each delay of the list walked back on
// its own, the pair and triple tables as full ordered tables incremented draw by draw, the
// group's pairs sought one by one in the table of the 90. The oracle of the differential
// tests and the baseline of the benchmarks.

#include <array>
#include <memory>
#include <string>
#include <vector>

#include "archives/storia.h"
#include "enucleated/enucleato.h"
#include "enucleated/gruppo.h"
#include "enucleated/statistica.h"

namespace gorgo::test {

// RicercaEnucleato on `righe`, the list as it stands (rows are added, notes written).
void RicercaEnucleatoLetterale(const archives::StoriaLotto& storia, const enucleated::MatriceEnucleato& matrice,
                               int32_t indiceA, const std::string& dataA, const std::array<bool, 12>& ruote,
                               enucleated::TipoAnalisi tipo, std::vector<enucleated::RigaEnucleato>& righe);

// The shared tables of StatisticaCoppie and StatisticaTerzine, ordered, 0..90 on each side.
struct TabelleLetterali {
    int EstrazioniValide = 0;
    std::array<int, 91> RitardoNumero{};
    std::vector<int> RitardoAmbo, RitardoMaxAmbo, FrequenzaAmbo;     // 91 x 91
    std::vector<int> RitardoTerno, RitardoMaxTerno, FrequenzaTerno;  // 91 x 91 x 91
    std::string dataA;
    int ruota = 0;

    int ambo(const std::vector<int>& t, int a, int b) const { return t[static_cast<size_t>(a * 91 + b)]; }
    int terno(const std::vector<int>& t, int a, int b, int c) const {
        return t[static_cast<size_t>((a * 91 + b) * 91 + c)];
    }
};

struct EsitoStatisticaLetterale {
    std::vector<enucleated::RigaStatistica> righe;
    std::unique_ptr<TabelleLetterali> tabelle;
};

EsitoStatisticaLetterale StatisticaLetterale(const archives::StoriaLotto& storia, const enucleated::Periodo& periodo,
                                             const enucleated::ParametriStatistica& p);

// The lists of frmCoppie and frmTerzine read from the literal tables.
enucleated::ListaCoppie CoppieLetterali(const TabelleLetterali& t, int somma, bool soloMatematici);
enucleated::ListaCoppie TerzineLetterali(const TabelleLetterali& t, int somma, bool soloMatematici);

// StatisticaGruppo of one wheel.
enucleated::EsitoGruppo GruppoLetterale(const archives::StoriaLotto& storia, const enucleated::Periodo& periodo,
                                        int ruota);

}  // namespace gorgo::test
