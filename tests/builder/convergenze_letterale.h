#pragma once
// Literal, single-threaded transcriptions of the convergences, the lunghetta and the walk of
// the abbinamenti: the oracles of the engines.

#include <array>
#include <string>
#include <vector>

#include "builder/ricerca.h"

namespace gorgo::builder::letterale {

struct Convergenze {
    std::string messaggio;                          // the text of the box shown at the end
    std::vector<std::array<std::string, 2>> lista;  // lvConvergenze
};
Convergenze CalcolaConvergenze(const ParametriRicerca& p, const ContestoRicerca& ctx,
                               const std::vector<RigaAlgoritmo>& righe);

struct Lunghetta {
    std::string errore;
    std::vector<std::array<std::string, 2>> lista;  // ListViewAlgoLunghetta
    std::string txtLunghetta, txtRuotaMigliore;
};
Lunghetta ElaboraLunghetta(const ParametriRicerca& p, const ContestoRicerca& ctx,
                           const std::vector<RigaAlgoritmo>& righe, int lunghezza, bool ruotaMigliore);

struct Abbinamenti {
    std::string errore;
    std::vector<std::string> lista;  // lstNumeriAbbinati
};
// `data` is txtDataAbbinamenti's draw, `capogioco` lblCapoAbbinamenti (0: empty).
Abbinamenti CalcolaAbbinamenti(const ParametriRicerca& p, const ContestoRicerca& ctx, const std::string& chiave,
                               int data, int capogioco, int quanti);

}  // namespace gorgo::builder::letterale
