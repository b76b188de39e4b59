#pragma once
// The parameter record of a search with the screen's defaults, and its validation.

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "archives/messaggio.h"
#include "archives/storia.h"
#include "builder/modello.h"
#include "builder/terzine.h"

namespace gorgo::builder {

struct ParametriRicerca {
    TipoSpia tipoSpia = TipoSpia::Numero;  // optSpia
    ModoSpia modoSpia = ModoSpia::Fisso;   // optTipo
    int valoreSpia = 1;                    // cboNumero
    std::array<int, 2> amboSpia{0, 0};     // txtAmbo(1), txtAmbo(2); 0 = empty box
    bool tuttiGliAmbi = false;             // optTipoAmbi
    // optPosizioni / optPosizioniAmbi with chkPosizione(1..5).
    bool posizioneDeterminata = false;
    std::array<bool, 6> posizioniSpia{false, true, true, true, true, true};
    int perData = 0;            // optPeriodo: 0 dates, 1 last n hits
    std::string dataDa, dataA;  // "GG/MM/AAAA"; empty = the screen's defaults
    int sortiteDaCercare = 10;  // cboSortite
    int indiceMese = 0;         // cboIndice: 0 "Ultima", 1..21, 22 "Tutti"
    // Box 0 stands for the ten regional wheels; the settings default ticks Bari alone.
    std::array<bool, 12> ruoteRicerca{false, true,  false, false, false, false,
                                      false, false, false, false, false, false};
    std::array<bool, 12> ruoteGioco{false, true, false, false, false, false, false, false, false, false, false, false};
    int colpi = 9;                // txtColpi
    bool controllaUltime = true;  // chkUltime
    TipoRicerca tipoRicerca = TipoRicerca::Ambate;
    bool soloPosizione = false;                                                // chkPosizionale
    std::array<bool, 6> posizioniValide{false, true, true, true, true, true};  // chkPosizioneA(1..5)
    int sorte = 2;                                                             // optSorte: 2 ambi, 3 terni
    std::array<bool, 3> operazioni{true, true, true};                          // chkOper: "+", "-", "x"
    int colpiDaGiocare = 9;
};

// The screen's default period: DataA the last draw; DataDa ten years before, or 04/01/1947
// when that is later.
std::string DataDaPredefinita(const archives::StoriaLotto& storia);
std::string DataAPredefinita(const archives::StoriaLotto& storia);

// The wheel boxes (index 0 the ten regional wheels) as flags of wheels 1..11: the flags one by
// one, then box 0 sets 1..10. The count is 10 or 11 with box 0, else the flags set.
std::array<bool, 12> RuoteScelte(const std::array<bool, 12>& caselle);
int ContaRuoteScelte(const std::array<bool, 12>& caselle);

// The description of the search for one spy value (ambo: valore and valore2), without the
// count: "Sortite del numero 27 sulle ruote di ricerca nel periodo considerato: ", or with
// "Solo indice mensile" (not for an ambo spy) "Occorrenze dell'indice mensile U : " and the like.
std::string DescrizioneSpia(TipoSpia tipo, ModoSpia modo, int indiceMese, int valore, int valore2 = 0);

// What validation makes of the parameters: the failure to show, or the ready values.
struct RicercaValidata {
    archives::Messaggio errore;           // empty when valid
    std::string focus;                    // control to focus on a failure ("txtColpi", "cboNumero", ...)
    int32_t primo = 1, ultimo = 0;        // the period as progressive indices (ultimo lowered without ControllaUltime)
    int32_t ultimoPeriodo = 0;            // DataA's draw, before the lowering
    std::array<bool, 12> ruoteRicerca{};  // effective flags of wheels 1..11 (index 0 unused)
    std::array<bool, 12> ruoteGioco{};
    int numeroRuoteRicerca = 0;
    std::array<int, 2> amboSpia{0, 0};  // ascending after the swap
    std::string testoPosizioni;         // "11111", or the chosen ones
    std::string descrizione;            // "Sortite del numero 27 sulle ruote ... : " (count follows);
                                        // empty with all values, where the search writes none
};
// `terzine` is the file of reduced triples as loaded (`fileTerzine` names it): the codes are
// refused without it, before any other step. Callers that judge no file (the replay of a
// key, the reports) pass nothing.
RicercaValidata ValidaRicerca(const ParametriRicerca& p, const archives::StoriaLotto& storia,
                              const EsitoTerzine* terzine = nullptr, std::string_view fileTerzine = {});

}  // namespace gorgo::builder
