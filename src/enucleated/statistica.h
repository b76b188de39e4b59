#pragma once
// The general statistics of the delay sums of a wheel over a period (pairs or triples),
// the tables they leave for the lists of pairs and triples with a given sum, and the detail
// of a sum into the pairs of delays that made it.
//
// The pair and triple tables keep, for each unordered pair or triple, the count of draws at
// which its delay was last 0, its largest delay and its hits: a delay is the count of table
// draws now less that mark, computed when it is read, so a draw touches only its own ten items.

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "enucleated/periodo.h"

namespace gorgo::enucleated {

inline constexpr int RiscaldamentoAmbi = 150;
inline constexpr int RiscaldamentoTerni = 300;
inline constexpr int SommaMassimaRighe = 350;  // rows cover sums 0..350
inline constexpr int SommaMassimaAmbi = 350;   // the delay table of the sums of pairs
inline constexpr int SommaMassimaTerni = 450;  // and of triples
inline constexpr int QuantePredefinite = 15;

struct ParametriStatistica {
    int ruota = 1;
    TipoAnalisi tipo = TipoAnalisi::Ambi;
    bool soloMatematici = false;
    bool perPresenze = false;  // optQuante 0: every sum with at least `presenze`
    int presenze = 1;
    int quante = QuantePredefinite;  // optQuante 1: the most frequent sums, ties at the limit whole
};

struct RigaStatistica {
    // "Ruota", "Somma rit.", "Frequenza", "Ritardo", "Ritardo max (il)", "Freq. media", hidden "P"
    // and the wheel.
    std::array<std::string, 8> testo;
    int ruota = 0, somma = 0, frequenza = 0, ritardo = 0, ritardoMax = 0;
    std::string dataRitardoMax;  // empty when none was stored
};

struct EsitoStatistica {
    archives::Messaggio errore;  // a refused date: nothing ran
    bool interrotta = false;     // stopped: tables and rows of the previous run stand
    Periodo periodo;
    std::string lblRuota;
    std::vector<RigaStatistica> righe;
};

// One row of frmCoppie or frmTerzine.
struct RigaCoppia {
    std::array<std::string, 6>
        testo;  // "Ambo"/"Terzina", "Rit. interno", "Rit. attuale", "Rit. max", "Frequenza", " I.C."
    std::vector<int> numeri, ritardi;
    int ritardoAttuale = 0, ritardoMax = 0, frequenza = 0;
    double ic = 0;
};

struct ListaCoppie {
    std::string descrizione;        // lblDescrizione
    std::string totale;             // lblTotCoppie
    std::vector<RigaCoppia> righe;  // by I.C. descending, ties in the order of the walk
};

class StatisticheEnucleato {
public:
    StatisticheEnucleato();
    ~StatisticheEnucleato();
    StatisticheEnucleato(StatisticheEnucleato&&) noexcept;
    StatisticheEnucleato& operator=(StatisticheEnucleato&&) noexcept;

    // StatisticaCoppie or StatisticaTerzine by p.tipo, over the period of the two pickers.
    EsitoStatistica Calcola(const archives::StoriaLotto& storia, std::string_view da, std::string_view a,
                            const ParametriStatistica& p, const Avanzamento& avanzamento = {});
    EsitoStatistica Calcola(const archives::StoriaLotto& storia, const Periodo& periodo, const ParametriStatistica& p,
                            const Avanzamento& avanzamento = {});

    // Erases the tables and the rows.
    void PulisciStatistiche();

    bool valide() const;
    int ruota() const;
    TipoAnalisi tipo() const;
    const Periodo& periodo() const;
    const std::vector<RigaStatistica>& righe() const;

    // The tables as the last run left them (0 where never run).
    int EstrazioniValide() const;
    int RitardoNumero(int n) const;
    int RitardoAmbo(int a, int b) const;
    int RitardoMaxAmbo(int a, int b) const;
    int FrequenzaAmbo(int a, int b) const;
    int RitardoTerno(int a, int b, int c) const;
    int RitardoMaxTerno(int a, int b, int c) const;
    int FrequenzaTerno(int a, int b, int c) const;

    // The pairs (or triples, by the run's kind) whose delays at the end of the period add up
    // to `somma` on `ruota`; empty when the tables are of another wheel or none.
    ListaCoppie Coppie(int ruota, int somma, bool soloMatematici) const;
    ListaCoppie Terzine(int ruota, int somma, bool soloMatematici) const;

private:
    struct Stato;
    std::unique_ptr<Stato> s_;
};

// frmDettaglioRitardi: the pairs of delays that made the sum, with the ambo to play now.
struct RigaRitardo {                   // ListView1
    std::array<std::string, 4> testo;  // "Ritardo", "Presenze", "R.att", "Rit.max"
    int ritardo = 0, presenze = 0, ritardoAttuale = 0, ritardoMax = 0;
};
struct RigaCoppiaRitardi {             // ListView2
    std::array<std::string, 6> testo;  // "Coppia", "Presenze", "Rit. att", "Rit. max", "I.C.", "% di presenza"
    int d1 = 0, d2 = 0, presenze = 0, ritardoAttuale = 0, ritardoMax = 0;
    double ic = 0, percentuale = 0;
    std::string daGiocare;  // the pairs showing these delays now, "12-34, 5-60"
};
struct EsitoDettaglio {
    archives::Messaggio errore;
    Periodo periodo;
    std::vector<RigaRitardo> ritardi;       // by delay value
    std::vector<RigaCoppiaRitardi> coppie;  // by presences, most first
    int presenzeTotali = 0;
};
EsitoDettaglio DettaglioRitardi(const archives::StoriaLotto& storia, const Periodo& periodo, int ruota, int somma,
                                bool soloMatematici);

}  // namespace gorgo::enucleated
