#pragma once
// One source of draws for the three games, so that the precursor procedures are written
// once: a Lotto wheel (five numbers), the SuperEnalotto (six) or the 10eLotto (twenty),
// unpacked once into a flat table by progressive index.

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "archives/record.h"
#include "archives/storia.h"

namespace gorgo::precursors {

enum class Gioco { Lotto, SuperEnalotto, DieciELotto };

class FonteEstrazioni {
public:
    // Lotto: the draws of one wheel (1..11).
    static FonteEstrazioni Lotto(const archives::StoriaLotto& storia, int ruota);
    // SuperEnalotto: the six numbers of each record, jolly and superstar left out.
    static FonteEstrazioni SuperEnalotto(std::span<const archives::RecordSuperEnalotto> record);
    // 10eLotto: the twenty numbers derived from the Lotto draw of each index.
    static FonteEstrazioni DieciELotto(const archives::StoriaLotto& storia);

    Gioco gioco() const { return gioco_; }
    int ruota() const { return ruota_; }
    // Numbers per draw: 5, 6 or 20.
    int quanti() const { return quanti_; }
    // The count of draws of the game's own archive (the end of delays and presences).
    int32_t NumeroEstrazioni() const { return numero_; }
    // A draw that holds nothing (an empty wheel, a failed read): no hit, yet a step back.
    // Indices outside 1..NumeroEstrazioni() read as empty.
    bool vuota(int32_t indice) const {
        return indice < 1 || indice > numero_ || vuote_[static_cast<size_t>(indice - 1)];
    }
    // The numbers as read, 0 where the read holds none; indice 1..NumeroEstrazioni().
    std::span<const uint8_t> numeri(int32_t indice) const {
        return {numeri_.data() + static_cast<size_t>(indice - 1) * static_cast<size_t>(quanti_),
                static_cast<size_t>(quanti_)};
    }
    // Clamped to 1..NumeroEstrazioni(), as DataEstrazione.
    std::string DataEstrazione(int32_t indice) const;

private:
    Gioco gioco_ = Gioco::Lotto;
    int ruota_ = 0;
    int quanti_ = 5;
    int32_t numero_ = 0;
    std::vector<uint8_t> numeri_;
    std::vector<uint8_t> vuote_;
    std::vector<std::string> date_;
};

}  // namespace gorgo::precursors
