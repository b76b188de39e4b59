#pragma once
// The inverse wake of precursors: for every number, pair or formation, the numbers that
// most often stood in the draws just before its hits, and those of them drawn lately.
// One engine for the three games, through FonteEstrazioni.

#include <array>
#include <cstdint>
#include <functional>
#include <stop_token>
#include <string>
#include <utility>
#include <vector>

#include "archives/messaggio.h"
#include "config/report_testo.h"
#include "precursors/fonte.h"

namespace gorgo::precursors {

enum class Sorte { Ambate, Ambi };

// Bounds of the boxes (their length in characters holds them on the screen).
inline constexpr int MassimoPrecursori = 9;
inline constexpr int MassimoCasella = 99;
// Fixed least presenze of a row: an ambata needs 2, an ambo 6.
inline constexpr int MinimoPresenzeAmbata = 2;
inline constexpr int MinimoPresenzeAmbo = 6;
// Rows of the first list that enter the verification, rows of the second list.
inline constexpr int Candidati = 20;
inline constexpr int32_t NumeroTerzineIntegrali = 117480;

struct ParametriPrecursori {
    int32_t Inizio = 0;                          // DTPickerDa, progressive index
    int32_t Fine = 0;                            // DTPickerA
    int32_t IndiceVerifica = 0;                  // DTPickerVerifica
    int Precedenti = 6;                          // txtPrecedenti
    int NumPrecursori = 5;                       // txtPrecursori
    int Successivi = 6;                          // txtSuccessivi
    Sorte sorte = Sorte::Ambate;                 // cboSceltaelaborazione
    bool PerPercentuale = true;                  // optOrdinamento(1)
    std::array<bool, 91> Considerato = Tutti();  // chkNumero(1..90); 0 unused
    int PresenzeMinime = 2;                      // txtPresenze
    int MinimoNumeri = 2;                        // txtNumeriInFormazione
    bool TerzineIntegrali = false;               // chkTerzineIntegrali

    static std::array<bool, 91> Tutti() {
        std::array<bool, 91> a{};
        a.fill(true);
        a[0] = false;
        return a;
    }
};

// The validated formations of the panel: the numbers of each, ascending.
using Formazioni = std::vector<std::vector<int>>;

struct Avanzamento {
    std::stop_token stop;
    std::function<void(int valore, int massimo)> progresso;
};

enum class Colore { Nessuno, Verde, Marrone };

// A row of "Lista precursori".
struct RigaPrecursori {
    std::string voce;  // "27", "12 - 34", "7.12.45"
    int presenze = 0;
    std::vector<int> precursori;  // best first
    std::array<std::string, 4> testo;
    int32_t chiave = 0;  // n, a * 100 + b, or the formation's index
};

// A row of "Precursori attualmente presenti".
struct RigaPresenti {
    std::string voce;
    std::array<std::string, 6> testo;
    Colore colore = Colore::Nessuno;  // of "Rit.att"
    int32_t chiave = 0;
};

struct EsitoPrecursori {
    archives::Messaggio errore;   // nothing was run (or nothing to show)
    std::string focus;            // the control to focus after errore
    archives::Messaggio domanda;  // to ask; call again with the answer yes
    archives::Messaggio avviso;   // shown, and the run went on
    bool interrotta = false;      // stopped: nothing to show
    bool formazioni = false;
    int32_t inizio = 0;  // the period's first draw after the Nazionale rule
    std::string descrizioneStatistica, descrizioneVerifica;
    std::array<std::string, 4> titoli;
    std::array<std::string, 6> titoliPresenti;
    std::vector<RigaPrecursori> lista;
    std::vector<RigaPresenti> presenti;
};

EsitoPrecursori AnalisiPrecursori(const ParametriPrecursori& p, const FonteEstrazioni& fonte,
                                  const Avanzamento& avanzamento = {});

// The personalisation of the classic analysis: precursors read only at chosen positions of the
// draws of the walk, and numbers or pairs as precursors. Lotto wheels only.
enum class TipoPrecursori { Numeri, Ambi };
struct ParametriSaruni {
    ParametriPrecursori base;
    bool PosizioneDeterminata = false;                                   // chkPosDet
    std::array<bool, 6> Posizioni{false, true, true, true, true, true};  // chkPosizione(1..5)
    TipoPrecursori Tipo = TipoPrecursori::Numeri;                        // cboSceltaTipoPrecursori
    bool AmbiAdiacenti = false;                                          // chkAmbiAdiacenti
};
EsitoPrecursori AnalisiSaruni(const ParametriSaruni& p, const FonteEstrazioni& fonte,
                              const Avanzamento& avanzamento = {});

// The forecast panel of the personalised screen: for a chosen number (or pair), the companions
// late against their own history of coming out with it, over Inizio..Fine of the wheel.
struct RigaCompagno {
    int numero = 0;
    std::array<std::string, 4> testo;  // "Num", "Rit.sto", "Rit.att", "Rapp. %"
};
struct EsitoPrevisione {
    archives::Messaggio errore;
    std::string focus;
    archives::Messaggio avviso;
    int32_t inizio = 0;
    std::string descrizione;  // "Ambata selezionata" or "Ambo selezionato"
    std::vector<RigaCompagno> righe;
};
// `anni` is txtNum(2), checked here; `inizio` the draw that many years before `fine`. `b` 0
// for an ambata.
EsitoPrevisione PrevisioneSaruni(const FonteEstrazioni& fonte, int32_t inizio, int32_t fine, int anni, int a, int b);

// TabellaAmbi: each pair a < b of 1..90 has a code 1..4005 in ascending order of a, then b;
// 0 for no pair. Its text is the two numbers in two digits joined by "-", as in "07-45".
inline constexpr int NumeroAmbi = 4005;
int CodiceAmbo(int a, int b);
std::pair<int, int> NumeriAmbo(int codice);
std::string TestoAmbo(int codice);

// Formations typed and validated, or all the triples with TerzineIntegrali. `confermato` is
// the answer yes to the question about formations shorter than MinimoNumeri.
EsitoPrecursori AnalisiFormazioni(const ParametriPrecursori& p, const FonteEstrazioni& fonte,
                                  const Formazioni& formazioni, bool confermato = false,
                                  const Avanzamento& avanzamento = {});

// All triples a < b < c of 1..90, ascending.
Formazioni TerzineIntegrali();

// Shared texts.
inline constexpr std::string_view TitoloPrecursori = "La SCIA INVERSA DEI PRECURSORI da un'idea di Sergio Tordelli";
std::string AvvisoNazionale();
// The start of the walk: on the Nazionale not before its first draw, with the warning when moved.
int32_t InizioDellaRuota(const FonteEstrazioni& fonte, int32_t inizio, archives::Messaggio& avviso);
// "Ruota di Bari", "Superenalotto", "10eLotto".
std::string SecondaRigaReport(const FonteEstrazioni& fonte);
// "Precursori_Bari.txt" and the others.
std::string NomeFileReport(const FonteEstrazioni& fonte);
// The file form of the report (cmdPrintToFile).
std::vector<std::string> ReportPrecursori(const EsitoPrecursori& e, const FonteEstrazioni& fonte);
// The printed form (cmdStampa): the forecast list first, then the list of precursors, with
// its own page breaks.
std::vector<config::RigaTesto> StampaPrecursori(const EsitoPrecursori& e, const FonteEstrazioni& fonte);

}  // namespace gorgo::precursors
