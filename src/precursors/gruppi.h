#pragma once
// The inverse wake one level up: for every number or pair, the elements of the chosen
// formation groups that most often stood in the draws just before its hits, and the
// elements drawn lately.

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "archives/messaggio.h"
#include "config/report_testo.h"
#include "precursors/analisi.h"
#include "precursors/fonte.h"
#include "precursors/formazioni.h"

namespace gorgo::precursors {

inline constexpr int MassimoRisultati = 10;
// Groups with more elements keep, per sought item, the elements with at least half of the
// group's best count instead of PresenzeMinime.
inline constexpr size_t SogliaGruppoGrande = 4006;

struct ParametriGruppi {
    int32_t Inizio = 0;           // DTPickerDa
    int32_t Fine = 0;             // DTPickerA
    int32_t IndiceVerifica = 0;   // DTPickerVerifica
    int Precedenti = 6;           // txtPrecedenti
    int Successivi = 6;           // txtSuccessivi
    int PresenzeMinime = 2;       // txtPresenzeMinime
    int Risultati = 1;            // cboRisultati, 1..10
    Sorte sorte = Sorte::Ambate;  // cboSceltaelaborazione
    std::array<bool, 91> Considerato = ParametriPrecursori::Tutti();
    std::vector<int> Gruppi;  // the ticked groups, indices into the library from 0, ascending
};

// A row of "Lista precursori" (and of "Precursori attualmente presenti").
struct RigaGruppi {
    std::string voce;  // "27" or "12-34"
    int32_t chiave = 0;
    int presenze = 0;  // of the sought item
    int gruppo = 0;    // index into the library from 0
    int elemento = 0;  // index into the group from 0
    int ricorrenze = 0, presenzeElemento = 0;
    // "Ambata", "Presenze", "Formazione numerica", "Elemento", "Ricorrenze", "% presenze"
    std::array<std::string, 6> testo;
};

// A row of "Formazioni numeriche attualmente presenti".
struct RigaFormazionePresente {
    int gruppo = 0, elemento = 0;
    int conta = 0;  // draws of the verification span holding it
    // "Presenze", "Formazione numerica", "Elemento", the sought items "27 (5), 12-34 (4)"
    std::array<std::string, 4> testo;
};

struct EsitoGruppi {
    archives::Messaggio errore;
    std::string focus;
    archives::Messaggio avviso;  // the Nazionale warning; the run went on
    bool interrotta = false;     // stopped: nothing to show
    int32_t inizio = 0;
    std::string descrizioneStatistica, descrizioneVerifica;
    std::array<std::string, 6> titoli;
    std::vector<RigaGruppi> lista;                   // ListView 0
    std::vector<RigaFormazionePresente> formazioni;  // ListView 1
    std::vector<RigaGruppi> presenti;                // ListView 2
};

// The element's numbers right-aligned in 2 joined by ".", as " 7.12.45".
std::string TestoElemento(const std::vector<int>& elemento);

EsitoGruppi AnalisiGruppi(const ParametriGruppi& p, const FonteEstrazioni& fonte,
                          const std::vector<GruppoFormazioni>& libreria, const Avanzamento& avanzamento = {});

// "SciaInversa_Bari.txt".
std::string NomeFileReportGruppi(const FonteEstrazioni& fonte);
// The file form and the printed form of the report.
std::vector<std::string> ReportGruppi(const EsitoGruppi& e, const FonteEstrazioni& fonte, int successivi);

}  // namespace gorgo::precursors
