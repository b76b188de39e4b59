#pragma once
// The automatic search of wheels: the whole search again for every combination of r search
// wheels and g play wheels among the chosen ones, keeping the best row of each run.

#include <array>
#include <functional>
#include <stop_token>
#include <string>
#include <string_view>
#include <vector>

#include "archives/messaggio.h"
#include "builder/ricerca.h"

namespace gorgo::builder {

inline constexpr std::string_view SoloIndiceTutteLeRuote =
    "La ricerca con il solo indice mensile può essere fatta solamente su tutte le ruote!";
inline constexpr std::string_view TitoloMultiRuota = " Ricerca abbinamento Ruote di ricerca e gioco";

// One row of ListViewMultiruote: the best row of one run and its wheels.
struct RigaAutomatica {
    RigaAlgoritmo riga;
    std::vector<int> ruoteRicerca, ruoteGioco;
    std::string testoRicerca, testoGioco;  // column 5 and 6: wheel initials joined by "-"
};

struct EsitoAutomatica {
    archives::Messaggio errore;  // the first run's validation, or the month-index refusal
    std::string focus;
    std::vector<RigaAutomatica> righe;  // in the order of the runs
    int corse = 0, fatte = 0;           // runs in all, runs done
    bool fermata = false;
};

// Every combination of k wheels among those flagged (1..11), in ascending order, first
// wheel outer.
std::vector<std::vector<int>> CombinazioniRuote(const std::array<bool, 12>& ruote, int k);

struct AvanzamentoAutomatica {
    std::stop_token stop;
    // A new row, in the order of the runs; never called concurrently.
    std::function<void(const RigaAutomatica& riga)> riga;
    // Runs done of all; never called concurrently.
    std::function<void(int fatte, int corse)> progresso;
};

// `ruoteRicerca` and `ruoteGioco` of the parameters are the wheels among which combinations
// are taken; the parameters themselves are left as they were.
EsitoAutomatica RicercaAutomatica(const ParametriRicerca& p, const ContestoRicerca& ctx, int simultaneeRicerca,
                                  int simultaneeGioco, const AvanzamentoAutomatica& avanzamento = {});

// The parameters of one run: the given wheels alone.
ParametriRicerca ParametriCorsa(const ParametriRicerca& p, const std::vector<int>& ricerca,
                                const std::vector<int>& gioco);
// Columns 5 and 6: "BA-NA".
std::string TestoRuote(const std::vector<int>& ruote);

}  // namespace gorgo::builder
