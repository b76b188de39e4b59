#include "support/archivi_reali.h"

#include <cstdlib>
#include <string_view>

namespace gorgo::test {

std::optional<std::filesystem::path> CartellaReale() {
    namespace fs = std::filesystem;
    // An explicit $GORGO_SHARED is the only place looked at: a wrong one must not be
    // covered up by the copy beside the checkout.
    const char* condivisa = std::getenv("GORGO_SHARED");
    const fs::path c =
        condivisa && *condivisa ? fs::path(condivisa) / "dati" : fs::path(GORGO_SOURCE_DIR) / ".." / "shared" / "dati";
    if (fs::exists(c / "Archivi" / "Estrazioni.ind")) return fs::weakly_canonical(c);
    return std::nullopt;
}

bool ArchiviRealiObbligatori() {
    const char* ci = std::getenv("CI");
    return ci && std::string_view(ci) == "true";
}

}  // namespace gorgo::test
