#include "support/cartelle.h"

#include <atomic>
#include <fstream>
#include <random>
#include <sstream>
#include <unistd.h>

namespace gorgo::test {

namespace fs = std::filesystem;

CartellaTemporanea::CartellaTemporanea() {
    static std::atomic<int> contatore{0};
    std::random_device rd;
    percorso_ = fs::temp_directory_path() /
                ("gorgo-test-" + std::to_string(::getpid()) + "-" + std::to_string(contatore++) + "-" +
                 std::to_string(rd()));
    fs::create_directories(percorso_);
}

CartellaTemporanea::~CartellaTemporanea() {
    std::error_code ec;
    fs::remove_all(percorso_, ec);
}

void CreaArchivioDemo(const fs::path& cartella, const archives::ParametriDemo& parametri) {
    const auto storia = archives::GeneraStoriaDemo(parametri);
    archives::ScriviArchivi(cartella, storia, archives::IndiceAnni(storia), archives::GeneraSuperDemo(parametri));
}

void CopiaArchiviReali(const fs::path& reale, const fs::path& cartella) {
    fs::create_directories(cartella / "Archivi");
    for (const char* nome : {"Estrazioni.ind", "anni.ind", "SuperEnalotto.ind"}) {
        fs::copy_file(reale / "Archivi" / nome, cartella / "Archivi" / nome, fs::copy_options::overwrite_existing);
        fs::permissions(cartella / "Archivi" / nome, fs::perms::owner_read | fs::perms::owner_write);
    }
}

std::string LeggiFile(const fs::path& percorso) {
    std::ifstream f(percorso, std::ios::binary);
    std::ostringstream s;
    s << f.rdbuf();
    return s.str();
}

}  // namespace gorgo::test
