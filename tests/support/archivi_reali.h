#pragma once
// Locating the real archives beside the checkout, for the tests that use them.

#include <filesystem>
#include <optional>

namespace gorgo::test {

// The program folder holding the real Archivi/ ($GORGO_SHARED/dati, else ../shared/dati
// from the source tree), or nothing when absent.
std::optional<std::filesystem::path> CartellaReale();

}  // namespace gorgo::test

// Skips the current test with a clear message when the real archives are absent.
#define GORGO_RICHIEDI_ARCHIVI_REALI(var)                                                     \
    auto var##_opt = ::gorgo::test::CartellaReale();                                          \
    if (!var##_opt) GTEST_SKIP() << "archivi reali assenti ($GORGO_SHARED/dati/Archivi)";  \
    const std::filesystem::path var = *var##_opt
