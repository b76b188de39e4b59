#pragma once
// Coverage (CalcolaCopertura): of the checked algorithms, the smallest group, up to five,
// that covers the most cases of the spy, and case by case who hit, with what, in which colpo.

#include <array>
#include <cstdint>
#include <span>
#include <stop_token>
#include <string>
#include <string_view>
#include <vector>

#include "archives/messaggio.h"
#include "builder/ricerca.h"

namespace gorgo::builder {

// The buttons: per ambata with one, two or three groups of columns, per ambo, terzine, codes.
enum class TipoCopertura : int { Ambata = 0, DueAmbate = 1, TreAmbate = 2, Ambo = 3, Terzine = 4, Codici = 5 };

inline constexpr std::string_view NessunAlgoritmnoSelezionato = "Nessun algoritmno selezionato!";
inline constexpr std::string_view AnalisiCoperture = "Analisi coperture...";
// Only the first algorithms enter the search of the group.
inline constexpr int MassimoAlgoritmiGruppo = 100;
inline constexpr int MassimoGruppo = 5;

// Rows: the cases; columns: the algorithms. An entry is the colpo of the first hit of that
// algorithm after that case, 0 for none.
struct MatriceCopertura {
    int casi = 0, algoritmi = 0;
    std::vector<uint16_t> colpi;  // casi * algoritmi, case-major
    // The numbers of each algorithm at each case (for the forecast column), case-major.
    std::vector<std::vector<int>> numeri;

    uint16_t colpo(int caso, int algoritmo) const {
        return colpi[static_cast<size_t>(caso) * static_cast<size_t>(algoritmi) + static_cast<size_t>(algoritmo)];
    }
};

// `casi` are the rows of lstVListaUscite (newest first), `algoritmi` the checked rows in order.
MatriceCopertura CalcolaMatrice(const ParametriRicerca& p, const ContestoRicerca& ctx, std::span<const CasoSpia> casi,
                                std::span<const RigaAlgoritmo> algoritmi, TipoCopertura tipo);

// The group: the first full cover of size 1 to 4 in index order, else the best quintuple
// (the lowest in index order among the best). Searched among the first `MassimoAlgoritmiGruppo`
// columns. `fermato` is set when the stop came during the search.
struct GruppoCopertura {
    std::vector<int> membri;  // column indices, ascending
    int coperti = 0;
    bool fermato = false;
};
GruppoCopertura CercaGruppo(const MatriceCopertura& m, std::stop_token stop = {});

// One group of columns of a row of lvListaFinale.
struct ColonneCopertura {
    int algoritmo = -1;  // column index, -1 for "--" or blank
    std::string descrizione, previsione, colpo;
};
// One row of lvListaFinale: the case and up to three groups of columns.
struct RigaCopertura {
    std::string data;
    std::array<ColonneCopertura, 3> gruppi;
    int caso = 0;            // index into the cases, 0 the newest
    std::string testoRiga;   // the case's row number, from 1, right-justified to 5
    std::string chiave;      // the first group's algorithm key
    int colpo = 0;           // the first group's colpo, 0 for none
    bool dalGruppo = false;  // taken by a member of the group (not by the second pass)
};
// One row of lvRiepilogoCoperture.
struct RiepilogoCopertura {
    int algoritmo = 0;
    std::string descrizione;
    int sortite = 0;
    std::string testoSortite;      // right-justified to 4
    std::string testoPercentuale;  // "0.0" right-justified to 5, then " %"
    std::string previsione;        // the forecast at the newest case
};

struct EsitoCopertura {
    archives::Messaggio errore;  // nothing checked
    TipoCopertura tipo = TipoCopertura::Ambata;
    std::string titolo;       // of the detail screen
    bool fermata = false;     // stopped during the group search: no result
    std::vector<int> gruppo;  // column indices into the checked rows
    int coperti = 0, casi = 0;
    std::vector<RigaCopertura> righe;
    std::vector<RiepilogoCopertura> riepilogo;
    std::string totale;       // lblTotaleCopertura
    std::string attesaMedia;  // lblAttesaMedia
    int gruppiColonne = 1;    // 1, 2 or 3 groups of columns
};

std::string TitoloCopertura(TipoCopertura tipo);

// The whole click: matrix, group, attribution, second pass, extra columns, recap, totals.
// `righe` are all the rows of ListaRisultati; the checked ones are used.
EsitoCopertura CalcolaCopertura(const ParametriRicerca& p, const ContestoRicerca& ctx, std::span<const CasoSpia> casi,
                                std::span<const RigaAlgoritmo> righe, TipoCopertura tipo, std::stop_token stop = {});

// The steps after the group, shared with the literal search of the tests.
EsitoCopertura CompletaCopertura(const MatriceCopertura& m, std::span<const CasoSpia> casi,
                                 std::span<const RigaAlgoritmo> algoritmi, TipoCopertura tipo,
                                 const std::vector<int>& gruppo);

}  // namespace gorgo::builder
