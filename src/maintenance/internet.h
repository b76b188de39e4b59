#pragma once
// The Internet update without the network: the remote names, the address, the local copy,
// the texts of the client's states, and the check of a downloaded body (the sieve of its
// first 150 bytes and its size). The HTTP client lives outside the core and hands over
// what it received as plain data.

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <system_error>

#include "archives/messaggio.h"
#include "maintenance/aggiornamento.h"

namespace gorgo::maintenance {

// "AggiornamentoPz.bin" or "AggiornamentoSuperEnalotto.bin".
std::string_view NomeRemoto(Gioco gioco);
// The setting Url followed directly by the file name: Url must end with "/".
std::string IndirizzoAggiornamento(std::string_view url, Gioco gioco);
// The program folder and the remote name: where the body is kept until the next download.
std::filesystem::path CopiaLocale(const std::filesystem::path& percorsoProgramma, Gioco gioco);

namespace testi {
inline constexpr std::string_view ErroreConnessione = "Errore di connessione: verificare Url";
inline constexpr std::string_view FineConnessione = "Fine connessione";
inline constexpr std::string_view AzioneAnnullata = "Azione annullata";
inline constexpr std::string_view ErroreAperturaStato = "Errore di apertura file !";
inline constexpr std::string_view ErroreApertura =
    "Errore di apertura file. Se il file è stato scaricato da internet, provare a scaricarlo di nuovo";
inline constexpr std::string_view NonTrovatoSulServer = "File non trovato sul server - Verificare l'indirizzo internet";
inline constexpr std::string_view ProxyAutenticazione =
    "Il server proxy richiede l'autenticazione - Aggiornamento impossibile";
inline constexpr std::string_view NonTrovatoIndirizzo =
    "File non trovato - Controllare l'indirizzo internet nel menù opzioni";
inline constexpr std::string_view TitoloDomanda = "Aggiornamento estrazioni";
}  // namespace testi

// The question before the update: "E' disponibile l'aggiornamento estrazioni [Superenalotto ]al
// <data>. Confermi allineamento archivio locale ?", title "Aggiornamento estrazioni".
archives::Messaggio DomandaAllineamento(Gioco gioco, std::string_view ultimaData);

// The states the HTTP client reports, numbered as the system's client numbers them.
namespace stati {
inline constexpr int RicercaIP = 1;
inline constexpr int IPTrovato = 2;
inline constexpr int Connessione = 3;
inline constexpr int Connesso = 4;
inline constexpr int Scaricamento = 7;
inline constexpr int Errore = 11;
inline constexpr int Finito = 12;
}  // namespace stati

// The text lblStatus takes for a state; nothing for the states that leave it alone and for
// the error state, whose text depends on the label (below).
std::optional<std::string> TestoStato(int stato);
// State 11: the label's text so far, then the client's response code and text.
std::string TestoStatoErrore(std::string_view testoFinora, int codice, std::string_view testoRisposta);

// The smallest body worth looking at: a shorter one is a failed connection.
inline constexpr std::size_t MinimoByteCorpo = 152;
// How much of the body the sieve reads.
inline constexpr std::size_t ByteSetaccio = 150;

enum class EsitoSetaccio {
    Nessuno,              // no trigger word: the size and the dates decide
    PaginaNonTrovata,     // "html", "HTML" or "404"
    ProxyAutenticazione,  // "407" (Lotto only)
    IndirizzoErrato,      // "Need", "NEED" or "need"
};

// The sieve of the first 150 bytes, each byte one character, case as written. It looks at
// binary data too: a genuine file whose first records hold "404" or "407" is refused.
EsitoSetaccio Setaccio(std::span<const uint8_t> corpo, Gioco gioco);
// The message of a sieve's result, under "Aggiornamento archivi" with the stop icon.
archives::Messaggio MessaggioSetaccio(EsitoSetaccio esito);

// What the HTTP client received, as plain data.
struct Scaricamento {
    std::span<const uint8_t> corpo;
    std::string indirizzo;   // the address asked for
    int statoHttp = 0;       // 0: no answer from the server
    std::string testoHttp;   // the server's reason phrase
    bool completo = false;   // the whole body arrived (no error of the connection)
    bool annullato = false;  // cancelled by the user
    std::string erroreRete;  // when not complete: what failed, in Italian
};

enum class EsitoScaricamento {
    Pronto,  // the local copy goes on to the date checks and the update
    Annullato,
    ErroreConnessione,  // nothing usable arrived: too short, cut short, no server
    PaginaNonTrovata,
    ProxyAutenticazione,
    IndirizzoErrato,
    ErroreHttp,    // the server refused with a status and no trigger word
    FileCorrotto,  // the size is no multiple of the record
};

struct ValutazioneScaricamento {
    EsitoScaricamento esito = EsitoScaricamento::ErroreConnessione;
    // Delete the local copy and write the whole body to it (before the messages, as the
    // system does: a refused page stays on disk until the next download).
    bool scriviCopiaLocale = false;
    // The new text of lblStatus; empty leaves it alone.
    std::string stato;
    // What to show in a message box; empty: nothing.
    archives::Messaggio messaggio;
    // What failed, for the command line and the label's tool tip; empty when nothing did.
    std::string dettaglio;
};

// The steps after the fetch: the size, the local copy, the sieve, the status of the answer,
// the multiple of the record. Only a complete answer with status 2xx can be Pronto, so the
// archive is never touched by a cut-short body or an error page.
ValutazioneScaricamento ValutaScaricamento(const Scaricamento& s, Gioco gioco,
                                           const std::filesystem::path& copiaLocale);

// Deletes the local copy and writes the body in its place (through a temporary file and a
// rename, so a half-written copy never stands). A false error code on success.
std::error_code ScriviCopiaLocale(const std::filesystem::path& copiaLocale, std::span<const uint8_t> corpo);
// "Impossibile scrivere il file <path> (errore n. <n>)": the local copy could not be written.
archives::Messaggio MessaggioCopiaLocale(const std::filesystem::path& copiaLocale, std::error_code errore);

// The public archive downloaded from the setting UrlStorico, before the import: the answer
// must be whole with status 2xx, and a zip that opens or a text (not a page, not binary).
struct ControlloStorico {
    bool valido = false;
    bool zip = false;
    // The refusal, its text naming what failed: the address, the HTTP status, not a zip.
    archives::Messaggio messaggio;
    std::string dettaglio;  // the second part of the text alone
};
ControlloStorico ControllaScaricamentoStorico(const Scaricamento& s);
inline constexpr std::string_view TitoloStorico = "Archivio storico";
inline constexpr std::string_view TestoStoricoNonImpostato =
    "L'indirizzo dell'archivio storico (UrlStorico) non è impostato";

// ---- the sequence after the fetch, shared by the screens and the command line ----

// The answer to DomandaAllineamento: not asked yet, Yes, No.
enum class RispostaAllineamento { DaChiedere, Si, No };

enum class StatoInternet {
    Rifiutato,      // stopped before the archive: `testoStato`, `messaggio` and `dettaglio` say why
    NienteDiNuovo,  // the copy ends at or before the archive's last draw: `messaggio`
    Domanda,        // `messaggio` is DomandaAllineamento (Yes/No): call again with the answer
    NonConfermato,  // answered No: nothing written
    Aggiornato,     // `aggiornamento` holds what was appended; `messaggio` its end message
};

struct EsitoInternet {
    StatoInternet stato = StatoInternet::Rifiutato;
    // The check of the download; esito Pronto when the body went on to the dates.
    ValutazioneScaricamento scaricamento;
    // The local copy could not be written (nothing else was done): MessaggioCopiaLocale.
    std::error_code erroreCopia;
    ControlloAggiornamento controllo;  // the date checks of the copy
    EsitoAggiornamento aggiornamento;  // with Aggiornato, or a refusal of the update itself
    // The new text of lblStatus, empty to leave it; what to show; what failed, in detail.
    std::string testoStato;
    archives::Messaggio messaggio;
    std::string dettaglio;
};

// The Internet update after the fetch, in the system's order: a body too short is a failed
// connection; otherwise the local copy is replaced by the body, then the sieve, the status of
// the answer and the record size decide; the copy goes on to the date checks (discontinuity,
// nothing new), the question, and on Yes the update. Throws ErroreArchivio on an
// input/output failure of the archive.
EsitoInternet AggiornamentoInternet(archives::Archivio& archivio, const Scaricamento& s, Gioco gioco,
                                    const std::filesystem::path& copiaLocale,
                                    RispostaAllineamento risposta = RispostaAllineamento::DaChiedere);
// The same from the date checks on, for the bytes of the local copy (cmdApri).
EsitoInternet AggiornamentoDaCopiaLocale(archives::Archivio& archivio, std::string_view dati, Gioco gioco,
                                         const std::filesystem::path& copiaLocale,
                                         RispostaAllineamento risposta = RispostaAllineamento::DaChiedere);

// An error while fetching on the SuperEnalotto screen: its number and text, the step
// reached, the local copy and its size.
std::string MessaggioErroreSuper(int numero, std::string_view testo, int passaggio,
                                 const std::filesystem::path& copiaLocale, std::uintmax_t dimensione);

}  // namespace gorgo::maintenance
