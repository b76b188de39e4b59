#pragma once
// A writable copy of the real 2025 archive with the bytes it had when copied, and the
// real update files beside it (../shared/aggiornamenti).

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "archives/archivio.h"
#include "support/archivi_reali.h"
#include "support/cartelle.h"

namespace gorgo::test {

class CopiaReale : public ::testing::Test {
protected:
    // Copies the archive, or skips the test when the real data or `fileAggiornamento` is absent
    // (fails it with CI=true when the archive is); the caller checks IsSkipped() and HasFatalFailure().
    void Prepara(const char* fileAggiornamento) {
        GORGO_RICHIEDI_ARCHIVI_REALI(reale);
        reale_ = reale;
        aggiornamenti_ = reale_.parent_path() / "aggiornamenti";
        if (!std::filesystem::exists(aggiornamenti_ / fileAggiornamento))
            GTEST_SKIP() << fileAggiornamento << " assente";
        CopiaArchiviReali(reale_, cartella());
        estrazioni_ = LeggiFile(archivi() / "Estrazioni.ind");
        anni_ = LeggiFile(archivi() / "anni.ind");
        super_ = LeggiFile(archivi() / "SuperEnalotto.ind");
    }
    std::filesystem::path cartella() const { return tmp_.percorso() / "gorgo"; }
    std::filesystem::path archivi() const { return cartella() / "Archivi"; }
    archives::Archivio Apri() const { return archives::Archivio::Apri(cartella(), archives::ModoApertura::Scrittura); }
    // Every byte of the three files as they were copied.
    void AttesoIntatto() const {
        EXPECT_EQ(LeggiFile(archivi() / "Estrazioni.ind"), estrazioni_);
        EXPECT_EQ(LeggiFile(archivi() / "anni.ind"), anni_);
        EXPECT_EQ(LeggiFile(archivi() / "SuperEnalotto.ind"), super_);
    }

    CartellaTemporanea tmp_;
    std::filesystem::path reale_, aggiornamenti_;
    std::string estrazioni_, anni_, super_;
};

}  // namespace gorgo::test
