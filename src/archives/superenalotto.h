#pragma once
// Unpacked SuperEnalotto draws.

#include <array>
#include <cstdint>
#include <string>

#include "archives/record.h"

namespace gorgo::archives {

class Archivio;

// Result codes of LeggiEstrazioneSuper.
enum EsitoSuper : int {
    SuperIncompleta = 0,  // a zero among the six: the reading stopped there
    SuperSoloSei = 1,
    SuperConJolly = 2,
    SuperConSuperStar = 3,
    SuperConJollySuperStar = 4,
};

struct EstrazioneSuper {
    int esito = SuperIncompleta;
    std::string numeroAnno;  // the number in the year, as text
    std::string data;        // ten characters
    // Six numbers, then Jolly and SuperStar; after a zero among the six the rest stays 0.
    std::array<int, 8> numeri{};
};

EstrazioneSuper LeggiEstrazioneSuper(const RecordSuperEnalotto& record);
EstrazioneSuper LeggiEstrazioneSuper(const Archivio& archivio, int32_t indice);

}  // namespace gorgo::archives
