#include "maintenance/internet.h"

#include <cctype>

#include <fmt/format.h>
#include <algorithm>
#include <cerrno>
#include <fstream>
#include <initializer_list>
#include <system_error>

#include "maintenance/importazione.h"

namespace gorgo::maintenance {

namespace fs = std::filesystem;

std::string_view NomeRemoto(Gioco gioco) {
    return gioco == Gioco::Lotto ? "AggiornamentoPz.bin" : "AggiornamentoSuperEnalotto.bin";
}

std::string IndirizzoAggiornamento(std::string_view url, Gioco gioco) {
    // Joined as it stands: a setting without the final "/" fails at the server, as it always has.
    return std::string(url) + std::string(NomeRemoto(gioco));
}

fs::path CopiaLocale(const fs::path& percorsoProgramma, Gioco gioco) {
    return percorsoProgramma / std::string(NomeRemoto(gioco));
}

std::optional<std::string> TestoStato(int stato) {
    switch (stato) {
        case stati::RicercaIP: return "Ricerca IP...";
        case stati::IPTrovato: return "IP trovato...";
        case stati::Connessione: return "Connessione...";
        case stati::Connesso: return "Connesso...";
        case stati::Scaricamento: return "Scarico il file...";
        case stati::Finito: return "Finito";
        default: return std::nullopt;
    }
}

std::string TestoStatoErrore(std::string_view testoFinora, int codice, std::string_view testoRisposta) {
    return fmt::format("{}Errore di connessione {} : {}", testoFinora, codice, testoRisposta);
}

archives::Messaggio DomandaAllineamento(Gioco gioco, std::string_view ultimaData) {
    const std::string_view gara = gioco == Gioco::Lotto ? "" : "Superenalotto ";
    return {fmt::format("E' disponibile l'aggiornamento estrazioni {}al {}. Confermi allineamento archivio locale ?",
                        gara, ultimaData),
            std::string(testi::TitoloDomanda), archives::Icona::Domanda};
}

EsitoSetaccio Setaccio(std::span<const uint8_t> corpo, Gioco gioco) {
    // Each byte one character: a NUL in binary data must not end the text.
    const std::string testa(reinterpret_cast<const char*>(corpo.data()), std::min(corpo.size(), ByteSetaccio));
    const auto trova = [&](std::initializer_list<std::string_view> parole) {
        for (std::string_view p : parole)
            if (testa.find(p) != std::string::npos) return true;
        return false;
    };
    if (trova({"html", "HTML", "404"})) return EsitoSetaccio::PaginaNonTrovata;
    if (gioco == Gioco::Lotto && trova({"407"})) return EsitoSetaccio::ProxyAutenticazione;
    if (trova({"Need", "NEED", "need"})) return EsitoSetaccio::IndirizzoErrato;
    return EsitoSetaccio::Nessuno;
}

archives::Messaggio MessaggioSetaccio(EsitoSetaccio esito) {
    std::string_view testo;
    switch (esito) {
        case EsitoSetaccio::PaginaNonTrovata: testo = testi::NonTrovatoSulServer; break;
        case EsitoSetaccio::ProxyAutenticazione: testo = testi::ProxyAutenticazione; break;
        case EsitoSetaccio::IndirizzoErrato: testo = testi::NonTrovatoIndirizzo; break;
        case EsitoSetaccio::Nessuno: return {};
    }
    return {std::string(testo), std::string(TitoloAggiornamento), archives::Icona::Stop};
}

namespace {

bool Stato2xx(int stato) { return stato >= 200 && stato < 300; }

std::string TestoHttp(const Scaricamento& s) {
    return s.testoHttp.empty() ? fmt::format("HTTP {}", s.statoHttp)
                               : fmt::format("HTTP {} {}", s.statoHttp, s.testoHttp);
}

}  // namespace

ValutazioneScaricamento ValutaScaricamento(const Scaricamento& s, Gioco gioco, const fs::path& copiaLocale) {
    ValutazioneScaricamento v;
    const auto connessione = [&](std::string dettaglio) {
        v.esito = EsitoScaricamento::ErroreConnessione;
        v.stato = testi::ErroreConnessione;
        v.dettaglio = std::move(dettaglio);
        return v;
    };
    if (s.annullato) {
        v.esito = EsitoScaricamento::Annullato;
        v.stato = testi::AzioneAnnullata;
        return v;
    }
    // A body cut short may still be long enough and even a multiple of the record: it is
    // never used, so the archive only ever takes a whole answer.
    if (!s.completo)
        return connessione(s.erroreRete.empty() ? fmt::format("Scaricamento da {} non riuscito", s.indirizzo)
                                                : s.erroreRete);
    if (s.corpo.size() < MinimoByteCorpo) {
        if (!Stato2xx(s.statoHttp))
            return connessione(fmt::format("{}: il server ha risposto {}", s.indirizzo, TestoHttp(s)));
        return connessione(fmt::format("{}: ricevuti {} byte, troppo pochi per un file di aggiornamento", s.indirizzo,
                                       s.corpo.size()));
    }
    v.scriviCopiaLocale = true;
    if (const EsitoSetaccio e = Setaccio(s.corpo, gioco); e != EsitoSetaccio::Nessuno) {
        v.esito = e == EsitoSetaccio::PaginaNonTrovata      ? EsitoScaricamento::PaginaNonTrovata
                  : e == EsitoSetaccio::ProxyAutenticazione ? EsitoScaricamento::ProxyAutenticazione
                                                            : EsitoScaricamento::IndirizzoErrato;
        v.messaggio = MessaggioSetaccio(e);
        if (!Stato2xx(s.statoHttp))
            v.dettaglio = fmt::format("{}: il server ha risposto {}", s.indirizzo, TestoHttp(s));
        return v;
    }
    // An error page without any trigger word is no update file either.
    if (!Stato2xx(s.statoHttp)) {
        v.esito = EsitoScaricamento::ErroreHttp;
        v.stato = testi::ErroreConnessione;
        v.dettaglio = fmt::format("{}: il server ha risposto {}", s.indirizzo, TestoHttp(s));
        return v;
    }
    const auto record = static_cast<std::size_t>(LunghezzaRecord(gioco));
    if (s.corpo.size() % record != 0) {
        v.esito = EsitoScaricamento::FileCorrotto;
        v.messaggio = ErrFile(copiaLocale.string());
        v.dettaglio = fmt::format("{}: {} byte, non multiplo di {}", s.indirizzo, s.corpo.size(), record);
        return v;
    }
    v.esito = EsitoScaricamento::Pronto;
    return v;
}

std::error_code ScriviCopiaLocale(const fs::path& copiaLocale, std::span<const uint8_t> corpo) {
    std::error_code ec;
    fs::path temporaneo = copiaLocale;
    temporaneo += ".parziale";
    {
        errno = 0;
        std::ofstream f(temporaneo, std::ios::binary | std::ios::trunc);
        if (f) f.write(reinterpret_cast<const char*>(corpo.data()), static_cast<std::streamsize>(corpo.size()));
        if (f) f.flush();
        if (!f) {
            const std::error_code errore =
                errno ? std::error_code(errno, std::generic_category()) : std::make_error_code(std::errc::io_error);
            f.close();
            fs::remove(temporaneo, ec);
            return errore;
        }
    }
    fs::remove(copiaLocale, ec);
    fs::rename(temporaneo, copiaLocale, ec);
    if (ec) {
        std::error_code ignorato;
        fs::remove(temporaneo, ignorato);
    }
    return ec;
}

archives::Messaggio MessaggioCopiaLocale(const fs::path& copiaLocale, std::error_code errore) {
    return {fmt::format("Impossibile scrivere il file {} (errore n. {})", copiaLocale.string(), errore.value()),
            "Errore", archives::Icona::Stop};
}

namespace {

// A page or other markup where the public archive should be.
bool SembraPagina(std::string_view dati) {
    std::string testa(dati.substr(0, 1024));
    for (char& c : testa) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    const size_t p = testa.find_first_not_of(" \t\r\n\xEF\xBB\xBF");
    return (p != std::string::npos && testa[p] == '<') || testa.find("<html") != std::string::npos ||
           testa.find("<!doctype") != std::string::npos;
}

}  // namespace

ControlloStorico ControllaScaricamentoStorico(const Scaricamento& s) {
    ControlloStorico c;
    const auto rifiuta = [&](std::string_view titolo, std::string dettaglio) {
        c.dettaglio = std::move(dettaglio);
        c.messaggio = {fmt::format("{}\n{}", titolo, c.dettaglio), std::string(TitoloStorico), archives::Icona::Stop};
        return c;
    };
    if (s.annullato) return rifiuta("Scaricamento annullato", s.indirizzo);
    if (!s.completo)
        return rifiuta("Scaricamento dell'archivio storico non riuscito",
                       s.erroreRete.empty() ? s.indirizzo : s.erroreRete);
    if (!Stato2xx(s.statoHttp))
        return rifiuta("Scaricamento dell'archivio storico non riuscito",
                       fmt::format("{}: il server ha risposto {}", s.indirizzo, TestoHttp(s)));
    const std::string_view dati(reinterpret_cast<const char*>(s.corpo.data()), s.corpo.size());
    if (dati.empty())
        return rifiuta("Scaricamento dell'archivio storico non riuscito",
                       fmt::format("{}: il server ha inviato un file vuoto", s.indirizzo));
    c.zip = SembraZip(dati);
    if (c.zip) {
        std::string errore;
        if (!EstraiTestoZip(dati, &errore))
            return rifiuta("Il file scaricato non è un archivio zip valido",
                           fmt::format("{}: {}", s.indirizzo, errore));
    } else if (SembraPagina(dati)) {
        return rifiuta("Il file scaricato non è un archivio zip né un file di testo delle estrazioni",
                       fmt::format("{}: il server ha inviato una pagina HTML ({} byte)", s.indirizzo, dati.size()));
    } else if (dati.find('\0') != std::string_view::npos) {
        return rifiuta("Il file scaricato non è un archivio zip né un file di testo delle estrazioni",
                       fmt::format("{}: contenuto binario ({} byte)", s.indirizzo, dati.size()));
    }
    c.valido = true;
    return c;
}

EsitoInternet AggiornamentoInternet(archives::Archivio& archivio, const Scaricamento& s, Gioco gioco,
                                    const fs::path& copiaLocale, RispostaAllineamento risposta) {
    EsitoInternet e;
    e.scaricamento = ValutaScaricamento(s, gioco, copiaLocale);
    // The copy is replaced before any message, as the system does: a refused page stays on
    // disk until the next download.
    if (e.scaricamento.scriviCopiaLocale) {
        e.erroreCopia = ScriviCopiaLocale(copiaLocale, s.corpo);
        if (e.erroreCopia) {
            e.messaggio = MessaggioCopiaLocale(copiaLocale, e.erroreCopia);
            return e;
        }
    }
    if (e.scaricamento.esito != EsitoScaricamento::Pronto) {
        e.testoStato = e.scaricamento.stato;
        e.messaggio = e.scaricamento.messaggio;
        e.dettaglio = e.scaricamento.dettaglio;
        return e;
    }
    const std::string_view dati(reinterpret_cast<const char*>(s.corpo.data()), s.corpo.size());
    EsitoInternet d = AggiornamentoDaCopiaLocale(archivio, dati, gioco, copiaLocale, risposta);
    d.scaricamento = std::move(e.scaricamento);
    return d;
}

EsitoInternet AggiornamentoDaCopiaLocale(archives::Archivio& archivio, std::string_view dati, Gioco gioco,
                                         const fs::path& copiaLocale, RispostaAllineamento risposta) {
    EsitoInternet e;
    e.scaricamento.esito = EsitoScaricamento::Pronto;
    e.testoStato = testi::FineConnessione;
    e.controllo = ControllaAggiornamento(archivio, dati, gioco, copiaLocale.string());
    switch (e.controllo.stato) {
        case StatoAggiornamento::Pronto: break;
        case StatoAggiornamento::NienteDiNuovo:
            e.stato = StatoInternet::NienteDiNuovo;
            e.messaggio = MessaggioNienteDiNuovo();
            return e;
        default:
            e.messaggio = e.controllo.messaggio;
            e.dettaglio = e.controllo.dettaglio;
            return e;
    }
    if (risposta == RispostaAllineamento::DaChiedere) {
        e.stato = StatoInternet::Domanda;
        e.messaggio = DomandaAllineamento(gioco, e.controllo.ultimaData);
        return e;
    }
    if (risposta == RispostaAllineamento::No) {
        e.stato = StatoInternet::NonConfermato;
        return e;
    }
    e.aggiornamento = ApplicaAggiornamento(archivio, dati, gioco, copiaLocale.string());
    e.messaggio = e.aggiornamento.messaggio;
    if (!e.aggiornamento.riuscito) {
        e.dettaglio = e.aggiornamento.controllo.dettaglio;
        return e;
    }
    e.stato = StatoInternet::Aggiornato;
    return e;
}

std::string MessaggioErroreSuper(int numero, std::string_view testo, int passaggio, const fs::path& copiaLocale,
                                 std::uintmax_t dimensione) {
    return fmt::format(
        "Errore n. {} {} dopo il passaggio n. {} in routine agg. superenalotto da internet!\nNome file: {}\n"
        "Dimensioni file: {}",
        numero, testo, passaggio, copiaLocale.string(), dimensione);
}

}  // namespace gorgo::maintenance
