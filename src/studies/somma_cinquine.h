#pragma once
// The five-number sum utility: cinquine shifted by a constant fuori 90, and the formations
// that occur in more than one shifted line.

#include <array>
#include <string>
#include <vector>

#include "archives/messaggio.h"
#include "archives/record.h"
#include "config/report_testo.h"

namespace gorgo::studies {

inline constexpr std::string_view MessaggioNumeriErrati = "Uno o più numeri errati !";
inline constexpr std::string_view MessaggioSommaErrata = "Numero errato!";
inline constexpr std::string_view NessunaConvergenza = "Nessuna convergenza rilevata";

// v + s, less 90 above 90.
int Sposta(int v, int s);

struct EsitoCinquine {
    archives::Messaggio errore;
    std::vector<std::string> righe;  // lstOutput: "00 00 00 00 00"
};
// cmdCinquina: the 90 shifts of one cinquina.
EsitoCinquine CinquineSpostate(const std::array<int, 5>& cinquina);
// cmdSomma: every wheel of the draw shifted by `somma`, or by 1..90 when it is below 1.
EsitoCinquine CinquineSomma(const archives::RecordEstrazione& r, int somma);

// cmdConvergenze: lstConvergenze.
std::vector<std::string> Convergenze(const std::vector<std::string>& righe);

// Report titles: "(somma 1 <-->90)", "(somma 5)" or " ruota di Bari (+1 <--> +90)".
std::string CodaTitolo(int somma, int ruota);
config::ReportTesto ReportUtility(std::string_view titolo, std::string_view data, std::string_view coda,
                                  const std::vector<std::string>& righe);

}  // namespace gorgo::studies
