#pragma once
// The month index of every draw and the flag of the last draw of each month.

#include <cstdint>
#include <string_view>
#include <vector>

#include "archives/storia.h"

namespace gorgo::builder {

struct IndiciMensili {
    std::vector<uint8_t> indice;  // by progressive index (entry 0 unused): ordinal within its month
    std::vector<bool> ultimo;     // last draw of its month ("U")
};
// giorniEstrazione: seven characters from Sunday, "Y" for a draw day; none set = Saturday.
IndiciMensili CalcolaIndiciMensili(const archives::StoriaLotto& storia, std::string_view giorniEstrazione);

}  // namespace gorgo::builder
