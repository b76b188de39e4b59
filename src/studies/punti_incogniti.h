#pragma once
// The unknown points: the series derived from a wheel's cinquina, its check on the draws
// that follow, the historic check over a span and the summary of all eleven wheels.

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "archives/messaggio.h"
#include "archives/storia.h"
#include "config/report_testo.h"
#include "studies/righe.h"

namespace gorgo::studies {

// [0] PuntoProiezione, [1..5] Punti, [6] SommaEstratti, [7] SommaIgnota; all zero: no series.
using SerieIncognita = std::array<int16_t, 8>;

SerieIncognita CalcolaSerie(const std::array<int, 5>& estratti);
// The five extracts of a wheel in drawn order.
std::array<int, 5> Cinquina(const archives::RecordEstrazione& r, int ruota);
// "Somma ignota" before the chain: f(90 - E1).
int SommaIgnotaPreCalcolo(int primoEstratto);

inline constexpr std::array<std::string_view, 4> TestiSorte = {"Ambate", "Ambi", "Terni", "Ambi somme a tutte!"};
inline constexpr int PrimaEstrazioneVerifica = 3914;  // DTPickerDa on opening

struct ParametriVerifica {
    int Ruota = 1;
    int32_t Dal = PrimaEstrazioneVerifica;
    int32_t Al = 0;
    int Sorte = 2;
    int Colpi = 10;
    bool SoloPrima = true;
};

inline constexpr std::string_view MessaggioColpi = "Inserisci il n. di colpi in cui verificare i risultati!";
inline constexpr std::string_view MessaggioDate = "Data inizio ricerca maggiore della data fine ricerca!";

// ListViewNumeri: the forecast of draw `indice` on the draws after it.
struct EsitoColpi {
    archives::Messaggio errore;  // focus to txtNumeroVolte
    SerieIncognita serie{};
    std::vector<Riga> righe;  // Colpo, 1'..5', E, A, T, Es, As
};
EsitoColpi VerificaColpi(const archives::StoriaLotto& s, int32_t indice, int ruota, int colpi);

struct EsitoStorica {
    archives::Messaggio errore;
    std::vector<Riga> righe;  // Data, Cinquina estratta, Se, Serie calcolata, Si, Colpo, E|Ruota, A, T, Es, As
    int Giocate = 0, Vincenti = 0, InGioco = 0, SommaColpi = 0;
    int TotE = 0, TotA = 0, TotT = 0, TotEs = 0, TotAs = 0;
    std::array<int, 12> VinciteRuota{};
    int MaxRuota = 0;
    std::string descrizione;  // lblDescrizione
    std::string tag;          // lblDescrizione's tag: the percentage as "000.0", or as it was
};
// `riepilogo`: RiepilogoInCorso, no rows; `tag` is the label's tag before the run.
EsitoStorica VerificaStorica(const archives::StoriaLotto& s, const ParametriVerifica& p, bool riepilogo = false,
                             std::string tag = {});

struct EsitoRiepilogo {
    archives::Messaggio errore;
    std::vector<Riga> righe;  // the wheel (bold dark blue), the summary line; red at the greatest percentage
    std::array<double, 12> percentuale{};
    std::string tag;  // the label's tag after the run
};
// All wheels with the parameters less Ruota, in parallel; the tag carries over from wheel to
// wheel exactly as the run one wheel after another leaves it.
EsitoRiepilogo RiepilogoRuote(const archives::StoriaLotto& s, const ParametriVerifica& p, std::string tag = {});

// The summary line and its tag from the counters (shared with the literal check of the tests).
void ScriviDescrizione(EsitoStorica& e, const ParametriVerifica& p);
// The percentage a tag holds ("012,5" or "012.5"), 0 for none.
double LeggiTag(const std::string& tag);

// The two tables; on paper (`stampa`) a page holds 60 lines of the first and 75 of the second,
// and each new page starts with the table's heading.
config::ReportTesto ReportColpi(const archives::StoriaLotto& s, int32_t indice, int ruota, const EsitoColpi& e,
                                bool stampa = false);
config::ReportTesto ReportStorica(const archives::StoriaLotto& s, const ParametriVerifica& p, const EsitoStorica& e,
                                  bool stampa = false);

}  // namespace gorgo::studies
