#pragma once
// A literal, single-threaded transcription of the verification of one algorithm, of the
// figures of the recap and of the statistics of the play wheels: the oracle of the engine.

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "builder/riepilogo.h"
#include "builder/statistiche.h"
#include "builder/verifica.h"

namespace gorgo::builder::letterale {

// lvListaPrevisioni as the list holds it: texts only, the key column last (index 13).
using RigaLista = std::array<std::string, 14>;

struct Verifica {
    archives::Messaggio errore;
    int inCorso = 0;
    std::vector<RigaLista> lista;
    std::vector<bool> rossa;  // columns 7, 8, 10 red and bold
    std::string lblCapo;
    uint32_t coloreCapo = 0;
    std::string lblDataPrevisione;
};

Verifica VerificaAlgoritmo(const ParametriRicerca& p, const ContestoRicerca& contesto, const std::string& descrizione,
                           const std::string& chiave, const std::string& spia, bool silenziosa, int colpiMax,
                           bool selezione);

// The recap's figures read from the texts of the list; `fine` is txtDataFine's index.
FigureRiepilogo Figure(const std::vector<RigaLista>& lista, int32_t fine, int colpi);

// StatisticheRuoteGioco counted draw by draw with plain tables.
StatisticheGioco Statistiche(const archives::StoriaLotto& storia, const std::array<bool, 12>& ruoteGioco,
                             int32_t primo);

}  // namespace gorgo::builder::letterale
