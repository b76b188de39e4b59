#include "consultation/griglia.h"

#include <fmt/format.h>

#include "archives/record.h"

namespace gorgo::consultation {

const std::array<CoppiaColori, 13> ColoriGruppi{{{Nero, Giallo},
                                                 {0x0000FF, Giallo},
                                                 {0xFF0000, Giallo},
                                                 {Giallo, 0x0000FF},
                                                 {0x00FF00, Nero},
                                                 {0x000080, Bianco},
                                                 {0x404040, Bianco},
                                                 {Bianco, Nero},
                                                 {0x800080, Giallo},
                                                 {0x0080FF, 0xFF0000},
                                                 {0xC0C0FF, Nero},
                                                 {0x80FFFF, Nero},
                                                 {0x008080, Nero}}};

std::string Esadecimale(Colore c) {
    return fmt::format("#{:02x}{:02x}{:02x}", c & 0xFF, (c >> 8) & 0xFF, (c >> 16) & 0xFF);
}

std::string NomeRuota(int ruota) {
    std::string_view n = archives::NomiRuota[static_cast<size_t>(ruota)];
    while (!n.empty() && n.back() == ' ') n.remove_suffix(1);
    return std::string(n);
}

}  // namespace gorgo::consultation
