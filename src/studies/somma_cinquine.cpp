#include "studies/somma_cinquine.h"

#include <fmt/format.h>

#include <algorithm>
#include <map>
#include <unordered_map>

#include "config/formato.h"
#include "studies/righe.h"

namespace gorgo::studies {

namespace {

std::string Linea(const std::array<int, 5>& n) {
    return fmt::format("{:02} {:02} {:02} {:02} {:02}", n[0], n[1], n[2], n[3], n[4]);
}

std::array<int, 5> Spostata(const std::array<int, 5>& c, int s) {
    std::array<int, 5> r{};
    for (size_t k = 0; k < 5; ++k) r[k] = Sposta(c[k], s);
    return r;
}

bool Valida(const std::array<int, 5>& c) {
    return std::all_of(c.begin(), c.end(), [](int v) { return v >= 1 && v <= 90; });
}

std::string Numeri(const int* n, int quanti) {
    std::string t;
    for (int k = 0; k < quanti; ++k) t += (k ? "-" : "") + config::Formato(n[k], "@@");
    return t;
}

}  // namespace

int Sposta(int v, int s) { return v + s > 90 ? v + s - 90 : v + s; }

EsitoCinquine CinquineSpostate(const std::array<int, 5>& c) {
    EsitoCinquine e;
    if (!Valida(c)) {
        e.errore = {std::string(MessaggioNumeriErrati), "Errore", archives::Icona::Esclamazione};
        return e;
    }
    for (int s = 1; s <= 90; ++s) e.righe.push_back(Linea(Spostata(c, s)));
    return e;
}

EsitoCinquine CinquineSomma(const archives::RecordEstrazione& r, int somma) {
    EsitoCinquine e;
    if (somma > 90) {
        e.errore = {std::string(MessaggioSommaErrata), "Errore", archives::Icona::Esclamazione};
        return e;
    }
    const int da = somma < 1 ? 1 : somma, a = somma < 1 ? 90 : somma;
    for (int s = da; s <= a; ++s)
        for (int w = 1; w <= archives::NumeroRuote; ++w) {
            const std::array<int, 5> c = {r.Numero(w, 1), r.Numero(w, 2), r.Numero(w, 3), r.Numero(w, 4),
                                          r.Numero(w, 5)};
            if (Valida(c)) e.righe.push_back(Linea(Spostata(c, s)));
        }
    return e;
}

std::vector<std::string> Convergenze(const std::vector<std::string>& righe) {
    // Ambi and terni in tables by their sorted numbers; quaterne and cinquine by a key of
    // 7 bits a number.
    std::vector<uint16_t> ambi(91 * 91), terni(91 * 91 * 91);
    std::unordered_map<uint32_t, int> quaterne, cinquine;
    std::vector<uint32_t> ambiVisti, terniVisti;
    for (const std::string& riga : righe) {
        if (riga.size() != 14) continue;
        std::array<int, 5> n{};
        for (size_t k = 0; k < 5; ++k) n[k] = std::atoi(riga.c_str() + 3 * k);
        std::sort(n.begin(), n.end());
        for (size_t a = 0; a < 5; ++a)
            for (size_t b = a + 1; b < 5; ++b) {
                const uint32_t ka = static_cast<uint32_t>(n[a] * 91 + n[b]);
                if (ambi[ka]++ == 0) ambiVisti.push_back(ka);
                for (size_t c = b + 1; c < 5; ++c) {
                    const uint32_t kt = ka * 91 + static_cast<uint32_t>(n[c]);
                    if (terni[kt]++ == 0) terniVisti.push_back(kt);
                }
            }
        uint32_t kc = 0;
        for (int v : n) kc = kc << 7 | static_cast<uint32_t>(v);
        ++cinquine[kc];
        for (size_t fuori = 0; fuori < 5; ++fuori) {
            uint32_t kq = 0;
            for (size_t k = 0; k < 5; ++k)
                if (k != fuori) kq = kq << 7 | static_cast<uint32_t>(n[k]);
            ++quaterne[kq];
        }
    }
    std::vector<std::string> out;
    // Formations counted at least twice, the count down, then the numbers up.
    const auto scrivi = [&](std::vector<std::pair<int, std::vector<int>>> v, const char* nome, const char* coda) {
        std::sort(v.begin(), v.end(), [](const auto& a, const auto& b) {
            return a.first != b.first ? a.first > b.first : a.second < b.second;
        });
        for (const auto& [conta, numeri] : v)
            out.push_back(fmt::format("{} {} : {} {}", nome, Numeri(numeri.data(), static_cast<int>(numeri.size())),
                                      conta, coda));
    };
    std::vector<std::pair<int, std::vector<int>>> v;
    for (uint32_t k : ambiVisti)
        if (ambi[k] >= 2) v.push_back({ambi[k], {static_cast<int>(k / 91), static_cast<int>(k % 91)}});
    scrivi(std::move(v), "Ambo", "presenze");
    v.clear();
    for (uint32_t k : terniVisti)
        if (terni[k] >= 2)
            v.push_back(
                {terni[k], {static_cast<int>(k / 8281), static_cast<int>(k / 91 % 91), static_cast<int>(k % 91)}});
    scrivi(std::move(v), "Terno", "presenze");
    const auto decodifica = [](uint32_t k, int quanti) {
        std::vector<int> n(static_cast<size_t>(quanti));
        for (int i = quanti - 1; i >= 0; --i, k >>= 7) n[static_cast<size_t>(i)] = static_cast<int>(k & 127);
        return n;
    };
    v.clear();
    for (const auto& [k, c] : quaterne)
        if (c >= 2) v.push_back({c, decodifica(k, 4)});
    scrivi(std::move(v), "Quat.", "pres.");
    v.clear();
    for (const auto& [k, c] : cinquine)
        if (c >= 2) v.push_back({c, decodifica(k, 5)});
    scrivi(std::move(v), "Cin.", "pres.");
    if (out.empty()) out.emplace_back(NessunaConvergenza);
    return out;
}

std::string CodaTitolo(int somma, int ruota) {
    if (ruota > 0) return " ruota di " + NomeRuota(ruota) + " (+1 <--> +90)";
    return somma < 1 ? " (somma 1 <-->90)" : fmt::format(" (somma {})", somma);
}

config::ReportTesto ReportUtility(std::string_view titolo, std::string_view data, std::string_view coda,
                                  const std::vector<std::string>& righe) {
    config::ReportTesto rep;
    rep.riga(fmt::format("{}estr. del {}{}", titolo, data, coda)).rigaVuota();
    for (const std::string& r : righe) rep.riga(r);
    return rep;
}

}  // namespace gorgo::studies
