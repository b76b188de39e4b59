#include "precursors/formazioni.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <optional>
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

namespace {

GruppoFormazioni Gruppo(std::string nome, std::vector<std::vector<int>> elementi) {
    GruppoFormazioni g;
    g.Nome = std::move(nome);
    g.Elementi = std::move(elementi);
    return g;
}

void Completa(GruppoFormazioni& g, const std::vector<int>& el) {
    if (g.Elementi.size() == 1) {
        g.campione.clear();
        for (int n : el) {
            if (!g.campione.empty()) g.campione += '.';
            g.campione += fmt::format("{:>2}", n);
        }
    }
    g.dimensione = static_cast<int>(el.size());
}

// The value of a part as the host reads a number: its leading digits, 0 when there are none.
int ValoreParte(std::string_view t) {
    size_t i = 0;
    while (i < t.size() && t[i] == ' ') ++i;
    long v = 0;
    for (; i < t.size() && t[i] >= '0' && t[i] <= '9' && v < 1000; ++i) v = v * 10 + (t[i] - '0');
    return static_cast<int>(v);
}

}  // namespace

std::array<std::string, 4> GruppoFormazioni::testo(int indice) const {
    return {Nome, fmt::format("{:>5}", indice), fmt::format("{:>7}", Elementi.size()),
            fmt::format("{:>3}", dimensione)};
}

std::vector<GruppoFormazioni> GruppiPredefiniti() {
    std::vector<GruppoFormazioni> g;
    std::vector<std::vector<int>> uno, due;
    for (int a = 1; a <= 90; ++a) uno.push_back({a});
    for (int a = 1; a <= 89; ++a)
        for (int b = a + 1; b <= 90; ++b) due.push_back({a, b});
    g.push_back(Gruppo("Tabellone Ferrani", std::move(uno)));
    g.push_back(Gruppo("Ambi integrali", std::move(due)));
    g.push_back(Gruppo("Terzine integrali", TerzineIntegrali()));
    for (auto& x : g) {
        Completa(x, x.Elementi.front());
        x.campione.clear();
        for (int n : x.Elementi.front()) {
            if (!x.campione.empty()) x.campione += '.';
            x.campione += fmt::format("{:>2}", n);
        }
    }
    return g;
}

EsitoLibreria CaricaLibreria(std::string_view testo) {
    EsitoLibreria e;
    e.gruppi = GruppiPredefiniti();
    const size_t predefiniti = e.gruppi.size();
    auto senzaElementi = [&](const GruppoFormazioni& g) {
        e.errore = {"La formazione " + g.Nome + " non contiene elementi validi!", "Errore", archives::Icona::Stop};
        e.gruppi.pop_back();
        return e;
    };
    size_t da = 0;
    while (da <= testo.size()) {
        size_t fine = testo.find('\n', da);
        if (fine == std::string_view::npos) fine = testo.size();
        std::string riga(testo.substr(da, fine - da));
        da = fine + 1;
        if (!riga.empty() && riga.back() == '\r') riga.pop_back();
        if (riga.find('[') != std::string::npos) {
            if (e.gruppi.size() > predefiniti && e.gruppi.back().Elementi.empty())
                return senzaElementi(e.gruppi.back());
            std::string nome = riga.substr(1);
            nome = nome.substr(0, nome.find(']'));
            e.gruppi.push_back(Gruppo(nome, {}));
            continue;
        }
        GruppoFormazioni& g = e.gruppi.back();
        if (riga.empty()) {
            // Right after a header it leaves the group empty; later it is skipped.
            if (e.gruppi.size() > predefiniti && g.Elementi.empty() && da <= testo.size()) return senzaElementi(g);
            continue;
        }
        std::vector<int> el;
        std::array<bool, 91> visto{};
        bool errato = false;
        for (size_t p = 0;;) {
            const size_t punto = riga.find('.', p);
            const int v = ValoreParte(
                std::string_view(riga).substr(p, punto == std::string::npos ? std::string::npos : punto - p));
            if (v < 1 || v > 90 || visto[static_cast<size_t>(v)])
                errato = true;
            else
                visto[static_cast<size_t>(v)] = true;
            el.push_back(v);
            if (punto == std::string::npos) break;
            p = punto + 1;
        }
        if (errato) {
            e.errore = {"Attenzione: ci sono valori errati o uguali per la formazione numerica " + g.Nome +
                            " - Elemento n. " + std::to_string(g.Elementi.size() + 1),
                        "Errore", archives::Icona::Stop};
            return e;
        }
        g.Elementi.push_back(el);
        Completa(g, el);
    }
    if (e.gruppi.size() > predefiniti && e.gruppi.back().Elementi.empty()) return senzaElementi(e.gruppi.back());
    return e;
}

}  // namespace gorgo::precursors

namespace gorgo::precursors {

namespace {

std::vector<std::string> Righe(std::string_view testo) {
    std::vector<std::string> r;
    size_t da = 0;
    while (da < testo.size()) {
        size_t fine = testo.find('\n', da);
        if (fine == std::string_view::npos) fine = testo.size();
        std::string riga(testo.substr(da, fine - da));
        if (!riga.empty() && riga.back() == '\r') riga.pop_back();
        r.push_back(std::move(riga));
        da = fine + 1;
    }
    return r;
}

// The group's name on a header line, as the loader reads it; nullopt for an element line.
std::optional<std::string> NomeIntestazione(const std::string& riga) {
    if (riga.find('[') == std::string::npos) return std::nullopt;
    std::string nome = riga.substr(1);
    return nome.substr(0, nome.find(']'));
}

// The lines [da, a) of the group `nome`; da == a when it is not there.
std::pair<size_t, size_t> Posizione(const std::vector<std::string>& righe, std::string_view nome) {
    for (size_t i = 0; i < righe.size(); ++i)
        if (NomeIntestazione(righe[i]) == nome) {
            size_t a = i + 1;
            while (a < righe.size() && !NomeIntestazione(righe[a])) ++a;
            return {i, a};
        }
    return {0, 0};
}

std::string Unisci(const std::vector<std::string>& righe) {
    std::string t;
    for (const std::string& r : righe) t += r + "\r\n";
    return t;
}

}  // namespace

EsitoFileGruppi SalvaGruppo(std::string_view testoFile, std::string_view nome, const Formazioni& elementi,
                            bool confermato) {
    EsitoFileGruppi e;
    if (elementi.empty()) {
        e.errore = {"E' necessario prima validare le formazioni inserite!", "Precursori",
                    archives::Icona::Esclamazione};
        return e;
    }
    const std::string n(nome);
    if (n.empty() || n.find_first_of("[]\r\n") != std::string::npos || n.find_first_not_of(' ') == std::string::npos) {
        e.errore = {"Inserire un nome valido per la formazione numerica!", "Errore", archives::Icona::Esclamazione};
        return e;
    }
    for (const GruppoFormazioni& g : GruppiPredefiniti())
        if (g.Nome == n) {
            e.errore = {"La formazione numerica " + n + " è predefinita e non può essere sostituita!", "Errore",
                        archives::Icona::Esclamazione};
            return e;
        }
    std::vector<std::string> righe = Righe(testoFile);
    const auto [da, a] = Posizione(righe, n);
    if (da != a && !confermato) {
        e.domanda = {"La formazione numerica " + n + " è già esistente. Sovrascrivi ?", "Conferma",
                     archives::Icona::Domanda};
        return e;
    }
    std::vector<std::string> gruppo{"[" + n + "]"};
    for (const auto& el : elementi) {
        std::string t;
        for (int x : el) t += fmt::format("{}{:02}", t.empty() ? "" : ".", x);
        gruppo.push_back(t);
    }
    if (da != a) {
        righe.erase(righe.begin() + static_cast<std::ptrdiff_t>(da), righe.begin() + static_cast<std::ptrdiff_t>(a));
        righe.insert(righe.begin() + static_cast<std::ptrdiff_t>(da), gruppo.begin(), gruppo.end());
    } else {
        while (!righe.empty() && righe.back().empty()) righe.pop_back();
        righe.insert(righe.end(), gruppo.begin(), gruppo.end());
    }
    e.testo = Unisci(righe);
    e.esito = {"Memorizzazione effettuata!", "Formazioni salvate su file", archives::Icona::Informazione};
    return e;
}

EsitoFileGruppi EliminaGruppo(std::string_view testoFile, std::string_view nome, bool confermato) {
    EsitoFileGruppi e;
    const std::string n(nome);
    std::vector<std::string> righe = Righe(testoFile);
    const auto [da, a] = Posizione(righe, n);
    if (da == a) {
        e.errore = {"La formazione numerica " + n + " non esiste nel file!", "Errore", archives::Icona::Esclamazione};
        return e;
    }
    if (!confermato) {
        e.domanda = {"Eliminare la formazione numerica " + n + " dal file ?", "Conferma", archives::Icona::Domanda};
        return e;
    }
    righe.erase(righe.begin() + static_cast<std::ptrdiff_t>(da), righe.begin() + static_cast<std::ptrdiff_t>(a));
    e.testo = Unisci(righe);
    e.esito = {"Eliminazione effettuata!", "Formazioni numeriche", archives::Icona::Informazione};
    return e;
}

}  // namespace gorgo::precursors
