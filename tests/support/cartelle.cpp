#include "support/cartelle.h"

#include <unistd.h>
#include <zip.h>
#include <atomic>
#include <fstream>
#include <random>
#include <sstream>

#include <gtest/gtest.h>

namespace gorgo::test {

namespace fs = std::filesystem;

CartellaTemporanea::CartellaTemporanea() {
    static std::atomic<int> contatore{0};
    std::random_device rd;
    percorso_ = fs::temp_directory_path() / ("gorgo-test-" + std::to_string(::getpid()) + "-" +
                                             std::to_string(contatore++) + "-" + std::to_string(rd()));
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

std::string CreaZip(const fs::path& cartella, const std::vector<std::pair<std::string, std::string>>& voci) {
    const fs::path p = cartella / "prova-creata.zip";
    int errore = 0;
    zip_t* z = zip_open(p.c_str(), ZIP_CREATE | ZIP_TRUNCATE, &errore);
    EXPECT_NE(z, nullptr);
    if (!z) return {};
    for (const auto& [nome, contenuto] : voci) {
        if (nome.back() == '/') {
            zip_dir_add(z, nome.c_str(), 0);
            continue;
        }
        zip_source_t* s = zip_source_buffer(z, contenuto.data(), contenuto.size(), 0);
        EXPECT_GE(zip_file_add(z, nome.c_str(), s, 0), 0);
    }
    EXPECT_EQ(zip_close(z), 0);
    std::string dati = LeggiFile(p);
    fs::remove(p);
    return dati;
}

}  // namespace gorgo::test
