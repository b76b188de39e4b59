#pragma once
// Locating the real archives beside the checkout, for the tests that use them.

#include <gtest/gtest.h>

#include <filesystem>
#include <optional>

namespace gorgo::test {

// The program folder holding the real Archivi/ ($GORGO_SHARED/dati when the variable is
// set, else ../shared/dati beside the source tree), or nothing when absent.
std::optional<std::filesystem::path> CartellaReale();

// CI=true: the real archives must be there, so their absence fails the run instead of
// quietly skipping the tests that would have read them.
bool ArchiviRealiObbligatori();

}  // namespace gorgo::test

// Fails (with CI=true) or skips the current test because the real archives are absent.
// Returns from the enclosing function: in a helper, the caller checks HasFatalFailure()
// and IsSkipped().
#define GORGO_ARCHIVI_REALI_ASSENTI()                                                              \
    do {                                                                                           \
        if (::gorgo::test::ArchiviRealiObbligatori())                                              \
            GTEST_FAIL() << "archivi reali assenti ($GORGO_SHARED/dati/Archivi o ../shared/dati) " \
                            "e CI=true: i test sugli archivi reali non si possono saltare";        \
        GTEST_SKIP() << "archivi reali assenti ($GORGO_SHARED/dati/Archivi)";                      \
    } while (false)

// Binds `var` to the real program folder, or fails/skips as above when it is absent.
#define GORGO_RICHIEDI_ARCHIVI_REALI(var)            \
    auto var##_opt = ::gorgo::test::CartellaReale(); \
    if (!var##_opt) GORGO_ARCHIVI_REALI_ASSENTI();   \
    const std::filesystem::path var = *var##_opt
