#pragma once
// The rows of the study utilities as their lists show them: the texts of the visible columns
// with the colour and weight of each cell, a hidden key, and the typed values behind them for
// the command line.

#include <cstdint>
#include <functional>
#include <stop_token>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace gorgo::studies {

// Colours as the settings hold them: 24 bits, red in the low byte; 0 is the list's own colour.
namespace colori {
inline constexpr uint32_t Nessuno = 0xFFFFFFFF;
inline constexpr uint32_t BluScuro = 0x800000;
inline constexpr uint32_t Blu = 0xFF0000;
inline constexpr uint32_t RossoScuro = 0x000080;
inline constexpr uint32_t Rosso = 0x0000FF;
inline constexpr uint32_t Verde = 0x008000;
inline constexpr uint32_t VerdeScuro = 0x006400;
}  // namespace colori

struct Cella {
    std::string testo;
    uint32_t colore = colori::Nessuno;  // Nessuno: the row's colour
    bool grassetto = false;             // bold even when the row is not
    bool operator==(const Cella&) const = default;
};

struct Riga {
    std::vector<Cella> celle;
    uint32_t colore = colori::Nessuno;
    bool grassetto = false;
    std::string chiave;  // hidden sort key, empty when the list has none
    // Names are literals: a row keeps only a view of them.
    std::vector<std::pair<std::string_view, double>> valori;

    Riga& testo(std::string t, uint32_t colore = colori::Nessuno, bool grassetto = false) {
        celle.push_back({std::move(t), colore, grassetto});
        return *this;
    }
    Riga& valore(std::string_view nome, double v) {
        valori.emplace_back(nome, v);
        return *this;
    }
    std::vector<std::string> testi() const {
        std::vector<std::string> t;
        for (const Cella& c : celle) t.push_back(c.testo);
        return t;
    }
    bool operator==(const Riga&) const = default;
};

// What a long run is given: a stop and a progress callback (from any thread, never two at once).
struct Avanzamento {
    std::stop_token stop;
    std::function<void(const std::string& testo, int valore, int massimo)> progresso;
};

// A wheel's name without the blanks that pad it to ten characters.
std::string NomeRuota(int ruota);

}  // namespace gorgo::studies
