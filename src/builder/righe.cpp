// Column texts of the result rows.

#include <fmt/format.h>

#include "builder/righe.h"
#include "config/formato.h"

namespace gorgo::builder {

std::string RigaAlgoritmo::testoSortite() const { return fmt::format("{:>4}", sortite); }

std::string RigaAlgoritmo::testoPresenze() const {
    return conQuantita ? fmt::format("{:>5} / {:>5}", presenze, quantita) : fmt::format("{:>5}", presenze);
}

std::string RigaAlgoritmo::testoPercentuale() const {
    if (sortite <= 0) return {};
    return config::AllineaDestra(config::Formato(presenze * 100.0 / sortite, "00.0"), 5) + " %";
}

}  // namespace gorgo::builder
