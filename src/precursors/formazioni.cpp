#include "precursors/formazioni.h"

#include <algorithm>
#include <array>
#include <unordered_set>

namespace gorgo::precursors {

namespace {
constexpr std::array<std::string_view, 21> Nomi = {
    "",         "Ambate",        "Ambi",       "Terzine",      "Quartine", "Cinquine",  "Sestine",       "Settine",
    "Ottine",   "Novine",        "Decine",     "Undicine",     "Dodicine", "Tredicine", "Quattordicine", "Quindicine",
    "Sedicine", "Diciassettine", "Diciottine", "Diciannovine", "Ventine"};
}

std::string_view NomeDimensione(int d) { return d >= 1 && d <= 20 ? Nomi[static_cast<size_t>(d)] : ""; }

EsitoValidazione ValidaFormazioni(std::string_view testo, bool verificaDoppie) {
    EsitoValidazione e;
    if (testo.empty()) {
        e.errore = {"Nessuna formazione da validare!", "Precursori", archives::Icona::Informazione};
        return e;
    }
    // Rows end at a carriage return; a bare line feed (text from this host) ends one as well.
    std::string t;
    for (size_t i = 0; i < testo.size(); ++i) {
        if (testo[i] == '\n' && (i == 0 || testo[i - 1] != '\r'))
            t += '\r';
        else
            t += testo[i];
    }
    t += '\r';
    std::string buffer;
    bool cattiva = false;
    int riga = 0;
    auto ferma = [&](std::string messaggio) {
        e.errore = {std::move(messaggio) + std::to_string(riga), "Precursori", archives::Icona::Esclamazione};
        return e;
    };
    for (char c : t) {
        if (c == '\n') continue;
        if (c == '\r') {
            ++riga;
            if (cattiva) {
                buffer.clear();
                ++e.scartate;
                cattiva = false;
                continue;
            }
            if (buffer.empty()) continue;
            while (buffer.size() > 1 && buffer.back() == '.') buffer.pop_back();
            std::vector<std::string> parti;
            for (size_t da = 0;;) {
                const size_t punto = buffer.find('.', da);
                parti.push_back(buffer.substr(da, punto - da));
                if (punto == std::string::npos) break;
                da = punto + 1;
            }
            buffer.clear();
            if (parti.size() > MassimoNumeriFormazione)
                return ferma("Numero elementi troppo elevato (oltre ventina) nella riga ");
            std::array<bool, 91> visto{};
            for (std::string& x : parti) {
                const long v = x.empty() || x.size() > 6 ? 0 : std::stol(x);
                if (v < 1 || v > 90) return ferma("Numero errato nella riga ");
                if (visto[static_cast<size_t>(v)]) return ferma("Numeri ripetuti nella riga ");
                visto[static_cast<size_t>(v)] = true;
                x = std::to_string(v);
            }
            std::sort(parti.begin(), parti.end(), [](const std::string& a, const std::string& b) {
                return a.size() != b.size() ? a.size() < b.size() : a < b;
            });
            std::string canonico;
            for (const std::string& x : parti) canonico += (canonico.empty() ? "" : ".") + x;
            e.righe.push_back(canonico);
            continue;
        }
        if (c == '-' || c == '.' || c == ',' || c == ' ' || c == ';' || c == ':') {
            if (!buffer.empty() && buffer.back() != '.') buffer += '.';
        } else if (c >= '0' && c <= '9') {
            if (c == '0' && (buffer.empty() || buffer.back() == '.')) continue;
            buffer += c;
        } else {
            cattiva = true;
        }
    }
    if (verificaDoppie) {
        std::unordered_set<std::string> viste;
        std::vector<std::string> depurate;
        for (std::string& r : e.righe)
            if (viste.insert(r).second)
                depurate.push_back(std::move(r));
            else
                ++e.doppie;
        e.righe = std::move(depurate);
    }
    if (e.righe.size() > static_cast<size_t>(MassimoFormazioni)) {
        e.errore = {"Numero di formazioni troppo elevato (Max 32.000) !", "Precursori", archives::Icona::Esclamazione};
        return e;
    }
    if (e.righe.empty()) {
        e.errore = {"Nessuna formazione valida!", "Precursori", archives::Icona::Esclamazione};
        return e;
    }
    std::array<int, 21> perDimensione{};
    for (const std::string& r : e.righe) {
        std::vector<int> numeri;
        for (size_t da = 0;;) {
            const size_t punto = r.find('.', da);
            numeri.push_back(std::stoi(r.substr(da, punto - da)));
            if (punto == std::string::npos) break;
            da = punto + 1;
        }
        ++perDimensione[numeri.size()];
        e.formazioni.push_back(std::move(numeri));
    }
    std::string s = "Sono stati processati: \n\n";
    for (int d = 1; d <= 20; ++d)
        if (perDimensione[static_cast<size_t>(d)] > 0)
            s += std::to_string(perDimensione[static_cast<size_t>(d)]) + "  " +
                 std::string(Nomi[static_cast<size_t>(d)]) + "\n";
    s += "\nTotale " + std::to_string(e.righe.size()) + " formazioni\n";
    if (e.scartate > 0) s += "\nSono state scartate " + std::to_string(e.scartate) + " righe non valide\n";
    if (e.doppie > 0) s += "\nSono state scartate " + std::to_string(e.doppie) + " formazioni doppie\n";
    e.riepilogo = {s, "Validazione formazioni", archives::Icona::Informazione};
    return e;
}

}  // namespace gorgo::precursors
