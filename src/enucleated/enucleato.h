#pragma once
// The delay sums of the pairs or triples of one draw, wheel by wheel, in a list that grows
// from run to run and carries the notes of the lowest and highest sums.

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "config/report_testo.h"
#include "enucleated/periodo.h"

namespace gorgo::enucleated {

// The shown draw: 11 wheels of 5 labels, with the numbers of the mathematical pairs marked.
struct MatriceEnucleato {
    int32_t indice = 0;
    std::string data;
    std::array<std::array<int, 5>, 12> numeri{};  // [ruota 1..11][posizione 0..4]; 0 for none
    std::array<std::array<bool, 5>, 12> evidenziato{};

    // "--" for an empty place, else the number right-aligned in 2.
    std::string Testo(int ruota, int posizione) const;
};

// The matrix of draw `indice` (1..NumeroEstrazioni).
MatriceEnucleato MostraEstrazioneEnucleato(const archives::StoriaLotto& storia, int32_t indice, bool soloMatematici);

// The places of the ten items of a wheel, in the order of the list.
extern const std::array<std::array<int, 2>, 10> PosizioniAmbi;
extern const std::array<std::array<int, 3>, 10> PosizioniTerni;

inline constexpr std::string_view NotaMinRuota = "<-- Min ruota";
inline constexpr std::string_view NotaMaxRuota = "<-- Max ruota";
inline constexpr std::string_view NotaMinAssoluto = "<-- Min assoluto";
inline constexpr std::string_view NotaMaxAssoluto = "<-- Max assoluto";

struct RigaEnucleato {
    // The seven columns: description, "Prog.", "Data", "Somma rit.", hidden "P" and "R", "Note".
    std::string descrizione, prog, data, somma, chiave, ruota;
    std::string nota = " ";
    int numeroRuota = 0;  // 0: a separating row
    int sommaRitardi = 0;
    std::vector<int> numeri, ritardi;

    bool separatore() const { return numeroRuota == 0; }
};

class ListaEnucleato {
public:
    TipoAnalisi tipo() const { return tipo_; }
    // A choice in cboTipoRicerca empties the list.
    void ImpostaTipo(TipoAnalisi t) {
        tipo_ = t;
        righe_.clear();
    }
    void Pulisci() { righe_.clear(); }
    const std::vector<RigaEnucleato>& righe() const { return righe_; }
    bool vuota() const { return righe_.empty(); }

    // The title of column 1.
    std::string_view TitoloDescrizione() const;

    // Adds the groups of the chosen wheels for a draw whose numbers are `matrice`'s, delays
    // counted backward from draw `indiceA`, then writes the notes over the whole list.
    void Aggiungi(const archives::StoriaLotto& storia, const MatriceEnucleato& matrice, int32_t indiceA,
                  std::string_view dataA, const std::array<bool, 12>& ruote);

private:
    TipoAnalisi tipo_ = TipoAnalisi::Ambi;
    std::vector<RigaEnucleato> righe_;
};

// cmdCalcola: the period is checked first; a refused date leaves the list as it was.
EsitoPeriodo RicercaEnucleato(const archives::StoriaLotto& storia, const MatriceEnucleato& matrice, std::string_view da,
                              std::string_view a, const std::array<bool, 12>& ruote, ListaEnucleato& lista);

// The delay of `numero` on `ruota` just before draw `indice`: draws in which the wheel was
// drawn, back to the number's last appearance or the wheel's first draw.
int RitardoPrima(const archives::StoriaLotto& storia, int ruota, int32_t indice, int numero);

// The reports of the list; nothing for an empty list. `ruote` are the chosen wheels.
std::vector<std::string> ReportEnucleatoFile(const ListaEnucleato& lista, std::string_view dataEstrazione,
                                             const std::array<bool, 12>& ruote);
config::ReportTesto ReportEnucleatoStampa(const ListaEnucleato& lista, std::string_view dataEstrazione,
                                          const std::array<bool, 12>& ruote, std::string_view dataDa,
                                          std::string_view dataA);
// The file name proposed: "Ambo_Enucleato_" + the date without "/" + ".txt".
std::string NomeFileEnucleato(std::string_view dataEstrazione);

}  // namespace gorgo::enucleated
