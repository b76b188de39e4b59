#pragma once
// The search for algorithms (CercaAlgoritmi): cases of the spy in the period, every
// algorithm of the chosen kind scored on each case, the best rows selected.

#include <cstdint>
#include <functional>
#include <stop_token>
#include <string>
#include <vector>

#include "archives/messaggio.h"
#include "archives/storia.h"
#include "builder/indice_mensile.h"
#include "builder/modello.h"
#include "builder/parametri.h"
#include "builder/righe.h"
#include "builder/terzine.h"
#include "config/restrizioni.h"

namespace gorgo::builder {

// What a search reads besides its parameters, prepared once when the screen opens.
struct ContestoRicerca {
    const archives::StoriaLotto* storia = nullptr;
    config::Restrizioni restrizioni;  // GiornoValido comes from the day restrictions
    const IndiciMensili* indiciMensili = nullptr;
    const TerzineRidotte* terzine = nullptr;  // null or empty: codes unavailable
};

struct Avanzamento {
    std::stop_token stop;
    // Text of the progress box, value and maximum of its bar. May be called from any thread
    // of the search, never concurrently.
    std::function<void(const std::string& testo, int valore, int massimo)> progresso;
};

struct EsitoRicerca {
    archives::Messaggio errore;  // validation failure: nothing was run
    std::string focus;
    std::string descrizione;           // the description of the search (without the count)
    std::vector<CasoSpia> casi;        // newest first
    std::vector<RigaAlgoritmo> righe;  // sorted on "Presenze/quantità" descending
    std::string sortite;               // lblSortite
    std::string previsioni;            // lblPrevisioni
    uint32_t colorePrevisioni = 0;     // 0, or 128 (dark red) while a forecast runs
    bool parziale = false;             // stopped
    int32_t ultimo = 0;                // the period's last draw (txtDataFine)
};

// The fast engine: all cores, exactly the rows of the literal algorithm.
EsitoRicerca CercaAlgoritmi(const ParametriRicerca& parametri, const ContestoRicerca& contesto,
                            const Avanzamento& avanzamento = {}, bool seleziona = false);

}  // namespace gorgo::builder
