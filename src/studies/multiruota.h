#pragma once
// Multi-wheel ambate, ambi and terni: the formations of a cinquina, their past occurrences on
// its wheel and the wheels on which they came again soon after; the formations of the recent
// draws that have not yet come out on any wheel.

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "archives/messaggio.h"
#include "archives/storia.h"
#include "config/report_testo.h"
#include "studies/righe.h"

namespace gorgo::studies {

enum class TipoMultiruota { Ambate = 0, Ambi = 1, AmbiInTerzina = 2, Terni = 3 };
inline constexpr std::array<std::string_view, 4> TestiTipoMultiruota = {"Ambate", "Ambi", "Ambi in terzina", "Terni"};

struct ParametriMultiruota {
    int RuotaRicerca = 1;
    int32_t Base = 0;
    TipoMultiruota TipoRicerca = TipoMultiruota::Ambate;
    int Volte = 18;
    int Estrazioni = 10;  // 0: up to the first useful draw
    int Classifica = 0;   // 0 by hits, 1 by cycles
};

inline constexpr std::string_view MessaggioVolte = "Inserire il numero di occorrenze desiderato!";

// The formations of a wheel's cinquina (sorted numbers, in increasing order), none when the
// wheel has a number outside 1..90.
std::vector<std::vector<int>> Formazioni(const archives::RecordEstrazione& r, int ruota, TipoMultiruota tipo);
// Numbers of a formation a wheel must hold for it to be out.
int NumeriRichiesti(TipoMultiruota tipo);
std::string TestoFormazione(const std::vector<int>& f);

struct EsitoMultiruota {
    archives::Messaggio errore;  // focus to txtVolte
    std::vector<std::vector<int>> formazioni;
    std::vector<int> cicli;                       // by formation
    std::vector<std::array<int, 12>> sortite;     // by formation and wheel
    std::vector<std::array<int, 12>> cicliRuota;  // cycles with a hit, by formation and wheel
    std::vector<Riga> righe;                      // ListView1
    std::string ruotaMigliore;                    // lblRuotaMigliore
};
EsitoMultiruota RicercaMultiruota(const archives::StoriaLotto& s, const ParametriMultiruota& p);

// The ranking of the rows and the best wheel from the counts (shared with the literal check).
void ClassificaMultiruota(EsitoMultiruota& e, int classifica);

// ListViewNumeri: the cycles of one formation (its index among the formations).
struct EsitoDettaglio {
    archives::Messaggio errore;
    std::vector<Riga> righe;  // Data, 1'..5', Colpo, Ruota
};
EsitoDettaglio DettaglioFormazione(const archives::StoriaLotto& s, const ParametriMultiruota& p, size_t formazione);
// "Non sfaldati al -->": up to draw `al`.
EsitoDettaglio NonSfaldati(const archives::StoriaLotto& s, const ParametriMultiruota& p, int32_t al);

config::ReportTesto ReportMultiruota(const ParametriMultiruota& p, const EsitoMultiruota& e, bool stampa);

}  // namespace gorgo::studies
