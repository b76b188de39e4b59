#include "support/archivi_reali.h"

#include <cstdlib>
#include <vector>

namespace gorgo::test {

std::optional<std::filesystem::path> CartellaReale() {
    namespace fs = std::filesystem;
    std::vector<fs::path> candidati;
    if (const char* s = std::getenv("GORGO_SHARED")) candidati.emplace_back(fs::path(s) / "dati");
    candidati.emplace_back(fs::path(GORGO_SOURCE_DIR) / ".." / "shared" / "dati");
    for (const auto& c : candidati)
        if (fs::exists(c / "Archivi" / "Estrazioni.ind")) return fs::weakly_canonical(c);
    return std::nullopt;
}

}  // namespace gorgo::test
