#pragma once
// The forecasts of the selected algorithms (frmAlgoritmiCalcolati).

#include <string>
#include <vector>

#include "builder/verifica.h"

namespace gorgo::builder {

// One row of lvConvergenze.
struct RigaPrevisione {
    std::string descrizione;                     // column 0
    std::string previsione;                      // column 1: lblCapo
    std::string ritardo, ritardoMax, frequenza;  // columns 2..4, or "N.D."
    std::string indiceConvenienza;               // column 5; empty for "Terzine x terno"
    bool conIndice = true;                       // false: there is no column 5
};

struct EsitoPrevisioni {
    archives::Messaggio errore;  // NessunAlgoritmoSelezionato under TitoloErrore
    std::string titolo;          // "Calcolo previsioni degli algoritmi selezionati: " + the kind
    std::vector<RigaPrevisione> righe;
    bool aperta = false;  // frmAlgoritmiCalcolati opened (at least one checked row)
};

// The title of frmAlgoritmiCalcolati for the parameters.
std::string TitoloPrevisioni(const ParametriRicerca& parametri);

// Over the checked rows of `righe`; nothing at all when `righe` is empty.
EsitoPrevisioni CalcolaPrevisioni(const ParametriRicerca& parametri, const ContestoRicerca& contesto,
                                  const std::vector<RigaAlgoritmo>& righe);

}  // namespace gorgo::builder
