#pragma once
// The simultaneous search for the quaterna: the companion ambi of a chosen ambo, and the
// strongest companions of all 4005 ambi.

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "archives/messaggio.h"
#include "archives/storia.h"
#include "config/report_testo.h"
#include "config/restrizioni.h"
#include "studies/righe.h"

namespace gorgo::studies {

struct ParametriSimultanea {
    std::array<int, 2> Coppia{};  // sorted; 0 where not chosen
    int32_t Dal = 0, Al = 0;
    std::array<bool, 12> RuoteScelte{};  // 1..11
    config::Restrizioni restrizioni;     // all switches off: every draw admitted
};

inline constexpr std::string_view MessaggioDueNumeri = "E' necessario selezionare due numeri !";
inline constexpr std::string_view MessaggioDateSimultanea = "Data finale minore della data iniziale !";

// The values behind the columns of a companion (or of the chosen ambo).
struct StatisticaAmbo {
    int a = 0, b = 0;
    int Abbinamenti = 0, Ritardo = 0, RitardoMax = 0, Frequenza = 0;
    double IC = 0;
    int RuotaMigliore = 0, FrequenzaMigliore = 0;
    int RitardoSimultaneo = 0;
    bool operator==(const StatisticaAmbo&) const = default;
};

struct EsitoSimultanea {
    archives::Messaggio errore;
    std::vector<Riga> righeCoppia;  // ListView1: Ambo ricercato, Sortite, Ritardo, Rit.Max, Freq., I.C., Ruota migliore
    std::vector<Riga> righe;  // ListView2: Ambo, Abbinam., Ritardo, Rit.Max, Freq., I.C., Ruota migliore, Rit. simul.
    int EstrazioniAnalizzate = 0;
    std::string analizzate;  // "n estrazioni analizzate"
};
EsitoSimultanea RicercaSimultanea(const archives::StoriaLotto& s, const ParametriSimultanea& p);

struct EsitoGenerale {
    archives::Messaggio errore;
    // Ambo ricercato, Ambi abbinati, Abbinam., Ritardo, Rit.Max, Freq., I.C., Ruota migliore, Rit. simul.
    std::vector<Riga> righe;
    int AmbiAnalizzati = 0;
    std::string analizzati;  // "n ambi analizzati su 4005"
    bool fermato = false;
};
// One pass over the span for all ambi, on all cores; stopped, the rows of the ambi done so far.
EsitoGenerale StatisticaGenerale(const archives::StoriaLotto& s, const ParametriSimultanea& p,
                                 const Avanzamento& avanzamento = {});

// Shared by the engine and its literal check: the checks, and the row of one ambo.
archives::Messaggio ControllaSimultanea(const ParametriSimultanea& p, bool conCoppia);
// The wheel of the greatest count, ties to the higher wheel (all eleven take part).
std::pair<int, int> RuotaMigliore(const std::array<int, 12>& frequenzaRuota);
double IndiceConvenienza(int frequenza, int analizzate, int ritardo);
void ColonneStatistica(Riga& r, const StatisticaAmbo& a, bool ritardoSimultaneo);
std::string TestoAmbo(int a, int b);
std::string TestoAnalizzati(int ambi);

config::ReportTesto ReportSimultanea(const archives::StoriaLotto& s, const ParametriSimultanea& p,
                                     const EsitoSimultanea& e, bool coppia, bool abbinati);
config::ReportTesto ReportGenerale(const archives::StoriaLotto& s, const ParametriSimultanea& p,
                                   const EsitoGenerale& e);
// "Sulle ruote": " Tutte", " Tutte + NZ" or the wheels' names.
std::string TestoRuote(const std::array<bool, 12>& ruote);

}  // namespace gorgo::studies
