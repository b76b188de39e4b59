#pragma once
// The capogioco panel (FrameAbbinamenti): the number the chosen Ambata algorithm gives at a
// chosen draw, the moves between draws with the panel's own month test, and the numbers that
// came out with it after the last cases of the spy (the abbinamenti).

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "builder/verifica.h"
#include "config/report_testo.h"

namespace gorgo::builder {

inline constexpr std::string_view AbbinamentiSenzaCapogioco =
    "Impossibile calcolare gli abbinamenti: capogioco mancante.";
inline constexpr std::string_view CapogiocoMancante = "Calcolo impossibile: capogioco mancante.";
inline constexpr std::string_view AbbinatiImpossibili = "Impossibile calcolare i numeri abbinati.";
inline constexpr int PrimaEstrazioneAbbinamenti = 100;
inline constexpr int CasiAbbinamenti = 10;
inline constexpr int QuantiAbbinatiPredefiniti = 12;  // cboNumAbbinati, 1 to 15
inline constexpr int32_t PrimaEstrazionePannello = 19;

// The month test of this panel, by the index of cboIndice: 0 the last draw of its month,
// 1 to 16 that month index, 17 every draw, 18 to 22 none.
bool PassaIndicePannello(int indiceMese, const IndiciMensili& indici, int32_t i);

struct Capogioco {
    int32_t indice = 0;  // the draw found; 0 when none (below draw 19)
    std::string data;    // its date, for txtDataAbbinamenti
    int numero = 0;      // lblCapoAbbinamenti; 0 without an algorithm or on a fault
    archives::Messaggio errore;
};

// From the draw `indice` back to the first that passes the month test (not below 19), and the
// Ambata key's number there. An empty key gives the draw alone.
Capogioco RicalcolaCapogioco(const archives::StoriaLotto& storia, const IndiciMensili& indici, int indiceMese,
                             std::string_view chiave, int32_t indice);

// cmdPrecedente and cmdSuccessiva: the draw the move leads to, before the recompute.
int32_t EstrazionePrecedente(int32_t indice);
int32_t EstrazioneSuccessiva(const archives::StoriaLotto& storia, const IndiciMensili& indici, int indiceMese,
                             bool sincronizza, int32_t indice);

// One row of lstNumeriAbbinati.
struct RigaAbbinamento {
    int numero = 0;
    int conteggio = 0;
    std::string testo;  // " 45.5%  n.   27"
};

struct EsitoAbbinamenti {
    archives::Messaggio errore;
    std::string focus;   // "txtColpi" on the first refusal
    int32_t ultimo = 0;  // the draw of txtDataAbbinamenti, written into txtDataFine
    int casi = 0, vincite = 0, massimo = 0;
    std::vector<int> conteggi;  // by number, 0..90
    std::vector<RigaAbbinamento> righe;
};

// cmdNumAbbinati: `indice` is txtDataAbbinamenti's draw, `capogioco` the number on screen
// (0 when none), `quanti` cboNumAbbinati.
EsitoAbbinamenti CalcolaAbbinamenti(const ParametriRicerca& parametri, const ContestoRicerca& contesto,
                                    std::string_view chiave, int32_t indice, int capogioco, int quanti);

// The file of cmdPrintTofileAbbinamenti ("ReportAbbinamentiNumerici"): the header of the search,
// the algorithm, the capogioco at its draw, the rows of the list.
inline constexpr std::string_view NomeReportAbbinamenti = "ReportAbbinamentiNumerici";
config::ReportTesto ReportAbbinamenti(const ParametriRicerca& parametri, const archives::StoriaLotto& storia,
                                      std::string_view descrizione, const std::string& data, int capogioco,
                                      const EsitoAbbinamenti& esito);

// frmCapoAbbinamentiCostruttore: the numbers to play, and its file "NumeriGorgo".
inline constexpr std::string_view TitoloCapoAbbinamenti = "Gorgo 2 by Ardesia - Capogioco e abbinamenti";
inline constexpr std::string_view NomeReportNumeriGorgo = "NumeriGorgo";
struct NumeriDaGiocare {
    std::string ruote;                 // txtRuote: the play wheels
    std::string data;                  // the draw of the capogioco
    std::string capogioco;             // txtCapoGioco
    std::string abbinamentiAlgoritmi;  // txtAbbinamentiAlgoritmi: the lunghetta without the capogioco
    std::string abbinamentiCapogioco;  // txtAbbinamentiCapogioco: the abbinamenti listed
    std::string multiSegnalazione;     // lblMultiSegnalazione: numbers both lists give
    std::vector<std::string> righe;    // the file's four lines
};
NumeriDaGiocare ComponiNumeriDaGiocare(const std::array<bool, 12>& ruoteGioco, const std::string& data, int capogioco,
                                       const std::vector<int>& lunghetta, const EsitoAbbinamenti& abbinamenti);

}  // namespace gorgo::builder
