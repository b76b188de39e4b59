#pragma once
// Literal transcription of the two computed views of the consultation: the walk back for the
// delays and the plain count for the frequencies, draw by draw, with no table.

#include <array>
#include <cstdint>
#include <string>

#include "archives/storia.h"
#include "consultation/consultazione.h"

namespace gorgo::test {

struct GrigliaLetterale {
    std::array<std::string, 55> testi{};
    std::array<uint32_t, 55> sfondi{};
    bool periodoValido = true;
};

// The grid of the view at `c`'s state (index, wheel, view, period, sorted rows).
GrigliaLetterale VistaLetterale(const archives::StoriaLotto& storia, const consultation::Consultazione& c);

}  // namespace gorgo::test
