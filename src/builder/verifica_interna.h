#pragma once
// Shared pieces of the replay: the preparation made once for a set of parameters and the
// replay of one key on it, used by the verification, the selection and the forecasts.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "builder/verifica.h"

namespace gorgo::builder::interno {

// Everything the replays with one set of parameters share, made once for a whole selection.
struct Preparazione {
    const ParametriRicerca* p = nullptr;
    const ContestoRicerca* ctx = nullptr;
    const archives::StoriaLotto* s = nullptr;
    RicercaValidata v;
    std::vector<uint8_t> ammessa;  // by index: GiornoValido and the month test
    std::vector<int> ruoteRicerca, ruoteGioco;
    bool soloIndice = false;
    int soglia = 1;  // numbers of one wheel that make a hit (pairs and triples)
};

Preparazione Prepara(const ParametriRicerca& p, const ContestoRicerca& ctx);

// The replay of one key; `silenziosa` keeps no rows, `selezione` may end the walk early.
EsitoVerifica Verifica(const Preparazione& r, std::string_view descrizione, std::string_view chiave,
                       std::string_view testoSpia, bool silenziosa, int colpiMax, bool selezione);

// Leading blanks, a sign, digits: the number a text starts with, 0 when none.
int Valore(std::string_view t);
std::string Tronca(std::string_view t);
archives::Messaggio Avviso(std::string_view testo, std::string_view titolo = {});

}  // namespace gorgo::builder::interno
