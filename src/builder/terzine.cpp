// Loading of the TerzineRidotte from their text file.

#include <fstream>
#include <sstream>
#include <system_error>

#include "archives/regole.h"
#include "builder/terzine.h"

namespace gorgo::builder {

namespace {

// A two-character field read as a number: digits, blanks as padding; -1 when it holds
// anything else or no digit at all.
int CampoTerzina(std::string_view campo) {
    int v = 0;
    bool cifre = false;
    for (char ch : campo) {
        if (ch == ' ' || ch == '\t') continue;
        if (ch < '0' || ch > '9') return -1;
        v = v * 10 + (ch - '0');
        cifre = true;
    }
    return cifre ? v : -1;
}

// The widest terzina number a key can hold (four digits).
constexpr int MassimoTerzine = 9999;

EsitoTerzine NonValido(int riga) {
    EsitoTerzine r;
    r.messaggio = {" File terzine non valido!", "", archives::Icona::Esclamazione};
    r.nonValido = true;
    r.rigaNonValida = riga;
    return r;
}

}  // namespace

EsitoTerzine CaricaTerzine(const std::string& percorso) {
    EsitoTerzine esito;
    if (!archives::EsisteFile(percorso)) {
        esito.fileMancante = true;
        return esito;
    }
    std::ifstream in(percorso, std::ios::binary);
    std::stringstream buffer;
    buffer << in.rdbuf();
    if (!in) {
        esito.messaggio = {"Impossibile leggere il file terzine ridotte: " + percorso, "",
                           archives::Icona::Esclamazione};
        return esito;
    }
    const std::string testo = buffer.str();

    TerzineRidotte t;
    size_t inizio = 0;
    while (inizio < testo.size()) {
        size_t fine = testo.find('\n', inizio);
        const bool ultima = fine == std::string::npos;
        if (ultima) fine = testo.size();
        std::string_view riga(testo.data() + inizio, fine - inizio);
        inizio = fine + 1;
        if (!riga.empty() && riga.back() == '\r') riga.remove_suffix(1);
        // A line break after the last line leaves nothing behind it: that is no line.
        if (riga.empty() && inizio >= testo.size()) break;
        const int numeroRiga = t.quante() + 1;
        if (riga.size() < 5) return NonValido(numeroRiga);
        const std::array<int, 3> numeri{CampoTerzina(riga.substr(0, 2)), CampoTerzina(riga.substr(3, 2)),
                                        CampoTerzina(riga.substr(riga.size() - 2))};
        for (int n : numeri)
            if (n < 1 || n > 90) return NonValido(numeroRiga);
        if (t.quante() == MassimoTerzine) return NonValido(numeroRiga);
        t.terzine.push_back(numeri);
    }

    esito.terzine = std::move(t);
    esito.caricato = true;
    esito.valido = esito.terzine.disponibili();
    if (esito.terzine.quante() != NumeroTerzineAttese)
        esito.messaggio = {std::to_string(esito.terzine.quante()) + " terzine caricate!\"", "",
                           archives::Icona::Informazione};
    return esito;
}

}  // namespace gorgo::builder
