#pragma once
// Convergences of the running forecasts of the selected algorithms (lvConvergenze and its
// information box), and the lunghetta that condenses the rows into n numbers to play.

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "builder/verifica.h"

namespace gorgo::builder {

inline constexpr std::string_view NessunAlgoritmoConvergenze = "Nessun  algoritmo selezionato!";
inline constexpr std::string_view NessunAlgoritmoInCorso = "Nessun algoritmo con previsione in corso!";
inline constexpr std::string_view NessunaConvergenza = "Nessuna convergenza rilevata!";
inline constexpr std::string_view RicercaNecessaria = "Prima è necessario effettuare la ricerca!";
inline constexpr std::string_view RisultatiOttenuti = "Risultati ottenuti";

// One row of lvConvergenze (and of ListViewAlgoLunghetta): description and forecast.
struct RigaConvergenza {
    std::string descrizione;  // column 0
    std::string previsione;   // column 1: lblCapo after the row's verification
    std::vector<int> numeri;  // the forecast split at "-"
    size_t riga = 0;          // the row's place in the list of algorithms
};

// A number, ambo or terzina forecast `volte` times.
struct Convergenza {
    std::vector<int> numeri;  // ascending
    int volte = 0;
};

struct EsitoConvergenze {
    // The box shown at the end: one of the three refusals, or the convergences themselves
    // (information icon), in which case `rilevate` is true.
    archives::Messaggio messaggio;
    bool rilevate = false;
    bool frame = false;  // fraConvergenze shown (some row was checked)
    std::vector<RigaConvergenza> righe;
    std::vector<std::string> blocchi;  // the lines of the box, joined by line breaks in the message
    // The items of each block, those with the block's count; empty when the block is not given.
    std::vector<Convergenza> numeri, ambi, terzine;
};

// Over the checked rows of `righe`, in their order.
EsitoConvergenze CalcolaConvergenze(const ParametriRicerca& parametri, const ContestoRicerca& contesto,
                                    const std::vector<RigaAlgoritmo>& righe);

struct ParametriLunghetta {
    int numeri = 4;              // cboNumeriLunga (default index 3 of 1, 2, 3 ...)
    bool ruotaMigliore = false;  // chkRuotaMigliore "Solo ruota migliore"
};
inline constexpr int MassimoNumeriLunghetta = 30;  // the last item of cboNumeriLunga

// How lately each number came out on the play wheels, from the period's last draw back:
// 0 in that draw, k k draws before, 50 not seen. Shared: [n]; by wheel: [w * 91 + n].
inline constexpr int RecenteNonVisto = 50;
std::vector<int> TabellaRecente(const archives::StoriaLotto& storia, const std::array<bool, 12>& ruoteGioco,
                                int numeroRuote, int32_t ultimo, bool perRuota);

struct EsitoLunghetta {
    archives::Messaggio errore;          // RicercaNecessaria under "Errore"
    std::vector<RigaConvergenza> righe;  // ListViewAlgoLunghetta
    std::vector<int> numeri;             // the chosen numbers, ascending
    std::string txtLunghetta;            // joined by " - "
    // Solo ruota migliore: the wheel, its sums by wheel, and a later wheel of the same sum.
    int ruotaMigliore = 0, ruotaPari = 0;
    std::array<int, 12> somme{};
    std::string txtRuotaMigliore;
};

// `righe` in the order of ListaRisultati, with their checks.
EsitoLunghetta ElaboraLunghetta(const ParametriRicerca& parametri, const ContestoRicerca& contesto,
                                const std::vector<RigaAlgoritmo>& righe, const ParametriLunghetta& lunghetta);

}  // namespace gorgo::builder
