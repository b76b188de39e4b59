#include "archives/percorso.h"

#include <cstdlib>
#include <system_error>

namespace gorgo::archives {

namespace fs = std::filesystem;

fs::path TrovaPercorsoProgramma(const AmbientePercorso& a) {
    auto pulito = [](const fs::path& p) {
        std::error_code ec;
        fs::path r = fs::weakly_canonical(p, ec);
        return ec ? p : r;
    };
    if (a.cartella && !a.cartella->empty()) return pulito(*a.cartella);
    if (a.gorgoHome && !a.gorgoHome->empty()) return pulito(*a.gorgoHome);
    std::error_code ec;
    if (!a.cartellaEseguibile.empty() && fs::is_directory(a.cartellaEseguibile / "Archivi", ec))
        return pulito(a.cartellaEseguibile);
    return pulito(fs::path(a.home.value_or(".")) / "Gorgo");
}

AmbientePercorso AmbienteCorrente(std::optional<fs::path> cartella) {
    AmbientePercorso a;
    a.cartella = std::move(cartella);
    if (const char* s = std::getenv("GORGO_HOME")) a.gorgoHome = s;
    if (const char* s = std::getenv("HOME")) a.home = s;
    std::error_code ec;
    const fs::path exe = fs::read_symlink("/proc/self/exe", ec);
    if (!ec) a.cartellaEseguibile = exe.parent_path();
    return a;
}

}  // namespace gorgo::archives
