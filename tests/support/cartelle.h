#pragma once
// Temporary program folders for the tests, filled by the demo generator or copied from
// the real archives.

#include <filesystem>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "archives/demo.h"

namespace gorgo::test {

// A fresh folder below the system's temporary folder, removed with its contents.
class CartellaTemporanea {
public:
    CartellaTemporanea();
    ~CartellaTemporanea();
    CartellaTemporanea(const CartellaTemporanea&) = delete;
    CartellaTemporanea& operator=(const CartellaTemporanea&) = delete;
    const std::filesystem::path& percorso() const { return percorso_; }
    std::filesystem::path operator/(std::string_view nome) const { return percorso_ / nome; }

private:
    std::filesystem::path percorso_;
};

// A program folder holding the demo archives made with these parameters.
void CreaArchivioDemo(const std::filesystem::path& cartella, const archives::ParametriDemo& parametri = {});
// A writable copy of the real Archivi/ (the caller has checked they exist).
void CopiaArchiviReali(const std::filesystem::path& reale, const std::filesystem::path& cartella);

std::string LeggiFile(const std::filesystem::path& percorso);

// The bytes of a zip made as the public archive is: the entries with their names, deflated;
// a name ending in "/" is a folder. Built in `cartella`, which is left as it was.
std::string CreaZip(const std::filesystem::path& cartella,
                    const std::vector<std::pair<std::string, std::string>>& voci);

}  // namespace gorgo::test
