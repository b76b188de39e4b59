#pragma once
// The replay of one algorithm through the history (VerificaAlgoritmo) and the selection of
// the running algorithms.

#include <array>
#include <cstdint>
#include <stop_token>
#include <string>
#include <string_view>
#include <vector>

#include "archives/messaggio.h"
#include "archives/storia.h"
#include "builder/chiavi.h"
#include "builder/modello.h"
#include "builder/parametri.h"
#include "builder/ricerca.h"

namespace gorgo::builder {

inline constexpr std::string_view AlgoritmoMancante = "Calcolo impossibile: algoritmo mancante.";
inline constexpr std::string_view ColpiMancanti = "Inserire il n. di colpi di gioco !";
inline constexpr std::string_view NessunAlgoritmoSelezionato = "Nessun algoritmo selezionato!";
inline constexpr std::string_view TitoloErrore = "Errore";
inline constexpr std::string_view TestoInCorso = "IN CORSO";
inline constexpr std::string_view TestoNessuno = "Nessuno";

inline constexpr uint32_t ColoreVerdeScuro = 32768;  // lblCapo with a running forecast
inline constexpr uint32_t ColoreRossoScuro = 128;    // lblCapo without one
inline constexpr uint32_t ColoreInCorso = 255;       // columns 7, 8, 10 of a running case, bold

// One row of lvListaPrevisioni: a case without hit, or one hit of a case.
struct RigaVerifica {
    // The 13 columns as the list shows them (6 is a blank; 11 and 12 are the hidden sort keys).
    std::array<std::string, 13> colonne;
    std::string chiave;  // the key column: the description in a hit row, "Nessuno" otherwise

    // The same, raw.
    int32_t indiceSpia = 0;       // column 11
    int32_t indiceEsito = 0;      // column 12: the hit; without hit the last index walked + 1
    int ruota = 0;                // wheel of the spy
    int spia = 0, spia2 = 0;      // 0 with ModoSpia 2
    int posizione = 0;            // 0 for sum, difference and ModoSpia 2
    std::vector<int> previsione;  // the numbers of column 7
    bool vincita = false;         // a hit row
    int ruotaEsito = 0;           // the hit's wheel
    int colpo = 0;                // the hit's colpo; for a running case the colpi left
    bool inCorso = false;         // "IN CORSO": columns 7, 8, 10 red (ColoreInCorso) and bold
};

struct EsitoVerifica {
    archives::Messaggio errore;  // AlgoritmoMancante, a validation failure, or the key's own fault
    int inCorso = 0;
    int casi = 0;
    std::vector<RigaVerifica> righe;  // visible mode only; ascending on column 12
    std::string lblCapo;
    uint32_t coloreCapo = ColoreRossoScuro;
    std::string lblDataPrevisione;
    std::string lblDescrizioneRisultatiOttenuti;
    int32_t ultimo = 0;  // the period's last draw (txtDataFine), as the search gives it

    bool capoInCorso() const { return coloreCapo == ColoreVerdeScuro; }
};

// `spia` is column 4 of the row ("27", "--", an ambo "05-27"). `colpiMax` is ColpiDaGiocare.
// `selezione` is the mode of SelezionaInCorso: the walk may end early.
EsitoVerifica VerificaAlgoritmo(const ParametriRicerca& parametri, const ContestoRicerca& contesto,
                                std::string_view descrizione, std::string_view chiave, std::string_view spia,
                                bool silenziosa, int colpiMax, bool selezione = false);

// ApriAlgoritmo: the visible verification with colpiMax = colpiDaGiocare.
EsitoVerifica ApriAlgoritmo(const ParametriRicerca& parametri, const ContestoRicerca& contesto,
                            const RigaAlgoritmo& riga);

// For each row, the silent verification in the selection mode: `selezionata` is set on the
// rows with a running case within colpiDaGiocare, cleared on the others. Returns inCorso of
// each row. A stop leaves the rows not reached unchecked.
std::vector<int> SelezionaInCorso(const ParametriRicerca& parametri, const ContestoRicerca& contesto,
                                  std::vector<RigaAlgoritmo>& righe, std::stop_token stop = {});

// The description of a key as the search writes it (ListaRisultati, column 0); empty when the
// key cannot be read. Codes need the reduced triples for their numbers.
std::string DescrizioneDaChiave(std::string_view chiave, const ParametriRicerca& parametri,
                                const TerzineRidotte* terzine);

}  // namespace gorgo::builder
