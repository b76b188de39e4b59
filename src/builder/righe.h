#pragma once
// The rows of the builder's result lists and the texts of their columns.

#include <cstdint>
#include <string>

namespace gorgo::builder {

// One row of lstVListaUscite.
struct CasoSpia {
    int32_t indice = 0;       // progressive index of the draw
    int ruota = 0;            // first search wheel with the spy
    int spia = 0, spia2 = 0;  // value (ambo: both numbers)
    int posizione = 0;        // 0 for sum, difference, and "Solo indice mensile"
    // The seven columns as the list shows them.
    std::string data, nomeRuota, testoSpia, testoPosizione, testoIndiceMese, testoIndiceAnnuale, testoIndice;
};

// One row of ListaRisultati.
struct RigaAlgoritmo {
    std::string descrizione;  // column 0
    int sortite = 0;          // C
    int presenze = 0;         // P
    int quantita = 0;         // Q (codes: none)
    bool conQuantita = true;
    std::string testoSpia;  // column 4
    std::string chiave;
    bool selezionata = false;

    std::string testoSortite() const;      // C right-justified to 4
    std::string testoPresenze() const;     // "    P /     Q", codes: P alone right-justified to 5
    std::string testoPercentuale() const;  // P * 100 / C as "00.0" right-justified to 5, then " %"
};

}  // namespace gorgo::builder
