#pragma once
// Manual entry and correction of draws (Lotto and SuperEnalotto): the state of the entry
// screen, its modes, the proposed date and its one-day moves, the checks of the number
// boxes, the decoder of a pasted text, and the store with its questions. The screen shows
// this state and asks the questions; every rule lives here.

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "archives/archivio.h"
#include "archives/data.h"
#include "archives/messaggio.h"
#include "archives/record.h"

namespace gorgo::maintenance {

enum class GiocoInserimento { Lotto, SuperEnalotto };

// Browse (Consulta), New (Nuova), Correction (Correzione).
enum class ModoInserimento { Consulta, Nuova, Correzione };

// The system's texts.
inline constexpr std::string_view CaptionInserimento = "Gorgo 2 - Inserimento/modifica estrazioni lotto";
inline constexpr std::string_view CaptionInserimentoSuper = "Inserimento estrazioni Superenalotto";
inline constexpr std::string_view TestoNumeroFuoriLimiti = "inserisci un numero tra 1 e 90 !";
inline constexpr std::string_view TestoValoriIncongruenti =
    "Valori incongruenti - Non è possibile decodificare  (tutto o in parte) il testo copiato !";
inline constexpr std::string_view TestoMancaUnNumero = "Manca 1 numero. Memorizzi ugualmente ?";
inline constexpr std::string_view TestoMancanoNumeri = "Mancano alcuni numeri. Memorizzi ugualmente ?";
inline constexpr std::string_view TestoUgualiSuRuota = "Ci sono numeri uguali su stessa ruota. Memorizzi ugualmente ? ";
inline constexpr std::string_view TestoUgualiSuper = "Ci sono numeri uguali. Memorizzi ugualmente ? ";
inline constexpr std::string_view TestoErroreGiornoSettimana =
    "Errore durante la memorizzazione del giorno della settimana. Riprovare!";
inline constexpr std::string_view TestoSalvareDati = "Salvare i dati prima di chiudere?";
inline constexpr std::string_view TitoloInputEstrazioni = "Input estrazioni";
inline constexpr std::string_view TitoloConferma = "Conferma";
inline constexpr std::string_view GiorniEstrazionePredefiniti = "NNYNYNY";

constexpr int CaselleLotto = 55;
constexpr int CaselleSuper = 8;
// The boxes of Nazionale open for a new draw from this many draws on, and the store counts
// 55 boxes from this index on. Both limits are the system's and stay as they are.
constexpr int32_t SogliaNazionale = 7440;
// A pasted text shorter than this is not decoded.
constexpr int LunghezzaMinimaIncolla = 10;

// --------------------------------------------------------------- the number boxes

// A key typed in a number box passes when its code is below 32 or a digit.
bool SoloCifre(int codiceTasto);
// The value of a box as the system reads it: the digits at its start (after blanks), 0 for
// none; large values saturate above 90 instead of wrapping.
int ValoreCasella(std::string_view testo);
// The check when a box is left: a value above 90 gives the message (exclamation icon); an
// empty box passes.
archives::Messaggio ControllaCasella(std::string_view testo);
// Tool tip of box `indice` (1..55): p + "' estratto ruota di " + the wheel's name.
std::string SuggerimentoCasella(int indice);
// Wheel (1..11) and position (1..5) of box 1..55.
constexpr int RuotaCasella(int indice) { return (indice - 1) / 5 + 1; }
constexpr int PosizioneCasella(int indice) { return (indice - 1) % 5 + 1; }

// --------------------------------------------------------------- the paste decoder

// The runs of digits of a text, in order, at most `massimo` of them.
std::vector<std::string> NumeriNelTesto(std::string_view testo, int massimo);

struct EsitoDecodifica {
    bool eseguita = false;  // false: the text has fewer than 10 characters, nothing done
    int numeriLetti = 0;    // tokens found (at most as many as the boxes)
    int caselleRiempite = 0;
    int casellaErrata = 0;       // 1-based box left blank by a value out of 1..90; 0 for none
    archives::Messaggio errore;  // TestoValoriIncongruenti under "Errore", stop icon
};

// Fills the boxes in order from the numbers of the text; a box without a number keeps what
// it held. A value outside 1..90 clears its box and stops with the message; the boxes
// before it stay filled.
EsitoDecodifica DecodificaTesto(std::string_view testo, std::span<std::string> caselle);

// --------------------------------------------------------------- the proposed date

// `Giorni estrazione` as seven flags, index 1 = Sunday; no "Y" at all gives Saturday alone.
std::array<bool, 8> GiorniDiEstrazione(std::string_view lettere);
// The first flagged weekday after the last draw's date.
archives::Data DataProposta(const archives::Data& ultimaEstrazione, std::string_view giorniEstrazione);

// --------------------------------------------------------------- the store

enum class DomandaInserimento { Nessuna, NumeriMancanti, NumeriUguali };

// The questions answered Yes so far; the store is called again with each new answer.
struct RisposteInserimento {
    bool numeriMancanti = false;
    bool numeriUguali = false;
};

enum class StatoMemorizzazione {
    Memorizzata,  // written; the screen is back in browse mode on the draw stored
    Domanda,      // `messaggio` is a Yes/No question (No the default): call again on Yes
    Rifiutata,    // nothing written; `messaggio` to show (may be empty when there is nothing)
};

struct EsitoMemorizzazione {
    StatoMemorizzazione stato = StatoMemorizzazione::Rifiutata;
    DomandaInserimento domanda = DomandaInserimento::Nessuna;
    archives::Messaggio messaggio;
    int casella = 0;            // on a refusal caused by a box: that box (1-based), to focus
    int32_t indice = 0;         // the index written
    bool nuova = false;         // appended (true) or corrected
    bool annoAggiunto = false;  // a year record was appended to anni.ind
};

// Which controls are enabled in the current mode.
struct ControlliAttivi {
    bool cmdNuova = false, cmdCorreggi = false, cmdMemorizza = false, cmdInserisci = false, cmdCancella = false,
         Slider1 = false, date = false, testo = false;
};

// The engine of frmInputEstrazioni and frmInputEstrazioniSuperEnalotto. The archive must
// outlive it; it is written only by Memorizza.
class Inserimento {
public:
    Inserimento(archives::Archivio& archivio, GiocoInserimento gioco);

    GiocoInserimento gioco() const { return gioco_; }
    ModoInserimento modo() const { return modo_; }
    int NumeroCaselle() const { return static_cast<int>(caselle_.size()); }
    int32_t IndiceCorrente() const { return indiceCorrente_; }
    int32_t TotaleEstrazioni() const;
    int UltimoAnno() const { return ultimoAnno_; }
    ControlliAttivi Controlli() const;

    // Boxes from 1.
    const std::string& Casella(int i) const { return caselle_[static_cast<size_t>(i - 1)]; }
    bool CasellaAperta(int i) const { return aperte_[static_cast<size_t>(i - 1)]; }
    void ImpostaCasella(int i, std::string testo) { caselle_[static_cast<size_t>(i - 1)] = std::move(testo); }
    std::span<const std::string> Caselle() const { return caselle_; }

    // The date boxes and the labels.
    const std::string& Giorno() const { return giorno_; }
    const std::string& Mese() const { return mese_; }
    const std::string& Anno() const { return anno_; }
    void ImpostaGiorno(std::string t) { giorno_ = std::move(t); }
    void ImpostaMese(std::string t) { mese_ = std::move(t); }
    void ImpostaAnno(std::string t) { anno_ = std::move(t); }
    // The date of the boxes when they make one.
    std::optional<archives::Data> DataCaselle() const;
    // lblGiornoEstraz: the weekday name of the date in the boxes; empty when month or year
    // is empty or the boxes make no date.
    std::string NomeGiornoEstrazione() const;
    int NumeroAnno() const { return numeroAnno_; }  // lblNumeroAnnoEstraz
    std::string TestoAnnoEstrazione() const;        // lblAnnoEstrazione: year + " / "
    int GiornoNuovo() const { return giornoNuovo_; }

    // The paste box.
    const std::string& TestoIncolla() const { return testo_; }
    void ImpostaTestoIncolla(std::string t) { testo_ = std::move(t); }

    // Browse: shows a draw (1..TotaleEstrazioni); out of range does nothing.
    void Mostra(int32_t indice);
    // cmdNuova. Refuses (nothing changes) when the archive holds no draw.
    archives::Messaggio Nuova(std::string_view giorniEstrazione);
    // A new draw's date set directly (the command line): it must follow the last draw.
    archives::Messaggio ImpostaDataNuova(const archives::Data& data);
    // cmdCorreggi, on the draw shown.
    void Correggi();
    // cmdPrecedente / cmdSuccessiva: by mode, a draw or a day, within the limits.
    void Precedente();
    void Successiva();
    // cmdInserisci: the decoder on the paste box.
    EsitoDecodifica Inserisci();
    // cmdCancella: empties the boxes and the paste box.
    void Cancella();
    // cmdMemorizza with the answers given so far.
    EsitoMemorizzazione Memorizza(const RisposteInserimento& risposte = {});

    // Closing in New or Correction mode with a box filled asks TestoSalvareDati.
    bool ChiedeSalvataggio() const;
    static archives::Messaggio DomandaSalvataggio();

private:
    struct Vicini {
        std::optional<archives::Data> precedente, successiva;
    };
    int32_t Totale() const;
    archives::Data DataRecord(int32_t indice) const;
    int NumeroAnnoRecord(int32_t indice) const;
    Vicini DateVicine(int32_t indice) const;
    void MettiData(const archives::Data& d);
    void AggiornaNumeroAnnoNuova();
    void Apri(bool aperte, int fino);
    int CaselleInGioco() const;
    EsitoMemorizzazione Rifiuto(archives::Messaggio m, int casella = 0) const;

    archives::Archivio& archivio_;
    GiocoInserimento gioco_;
    ModoInserimento modo_ = ModoInserimento::Consulta;
    int32_t indiceCorrente_ = 0;
    int ultimoAnno_ = 0;
    std::vector<std::string> caselle_;
    std::vector<bool> aperte_;
    std::string giorno_, mese_, anno_;
    int numeroAnno_ = 0;
    int annoEtichetta_ = 0;
    int giornoNuovo_ = 0;
    std::string testo_;
};

}  // namespace gorgo::maintenance
