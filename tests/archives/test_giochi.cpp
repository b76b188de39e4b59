// SuperEnalotto reading and the 10eLotto derivation.

#include <gtest/gtest.h>

#include <random>

#include "archives/archivio.h"
#include "archives/dieci_e_lotto.h"
#include "archives/superenalotto.h"
#include "support/archivi_reali.h"
#include "support/cartelle.h"

namespace gorgo::archives {
namespace {

// The derivation written straight from its steps, as the oracle.
Risultato10eLotto DieciLetterale(const RecordEstrazione& r) {
    Risultato10eLotto e;
    bool flag[91] = {};
    for (int w = 1; w <= 10; ++w)
        for (int p = 1; p <= 2; ++p) {
            if (r.Numero(w, p) == 0) {
                e.esito = -1;
                return e;
            }
            flag[r.Numero(w, p)] = true;
        }
    int c = 0;
    for (;;) {
        c = c + 1;
        if (c > 30) {
            e.esito = -1;
            return e;
        }
        int conta = 0;
        for (int n = 1; n <= 90; ++n) conta += flag[n];
        if (conta >= 20) break;
        const int ruota = ((c - 1) % 10) + 1, pos = 3 + (c - 1) / 10;
        flag[r.Numero(ruota, pos)] = true;
    }
    int k = 0;
    for (int n = 1; n <= 90; ++n)
        if (flag[n]) e.numeri[static_cast<size_t>(k++)] = n;
    e.esito = c - 1;
    return e;
}

RecordEstrazione DieciRuotePiene() {
    RecordEstrazione r;
    int n = 1;
    for (int w = 0; w < 10; ++w)
        for (int p = 0; p < 5; ++p) r.Ruota[w][p] = static_cast<uint8_t>(n++);
    return r;
}

TEST(DieciELotto, CasiDiBase) {
    RecordEstrazione r = DieciRuotePiene();
    // Distinct first two positions: 20 numbers at once.
    for (int w = 0; w < 10; ++w) {
        r.Ruota[w][0] = static_cast<uint8_t>(w * 2 + 1);
        r.Ruota[w][1] = static_cast<uint8_t>(w * 2 + 2);
    }
    Risultato10eLotto e = Estrazione10eLotto(r);
    EXPECT_EQ(e.esito, 0);
    for (int i = 0; i < 20; ++i) EXPECT_EQ(e.numeri[static_cast<size_t>(i)], i + 1);
    // One repetition: the third of Bari fills the gap.
    r.Ruota[1][0] = 1;
    r.Ruota[0][2] = 77;
    e = Estrazione10eLotto(r);
    EXPECT_EQ(e.esito, 1);
    EXPECT_EQ(e.numeri[19], 77);
    // A third position that repeats costs one more.
    r.Ruota[0][2] = 5;
    r.Ruota[1][2] = 78;
    EXPECT_EQ(Estrazione10eLotto(r).esito, 2);
    // A zero in the first two positions of any of the ten wheels.
    r.Ruota[9][1] = 0;
    EXPECT_EQ(Estrazione10eLotto(r).esito, -1);
    EXPECT_TRUE(Estrazione10eLotto(r).manca);
    // Nazionale plays no part.
    RecordEstrazione s = DieciRuotePiene();
    for (int w = 0; w < 10; ++w) s.Ruota[w][0] = s.Ruota[w][1] = static_cast<uint8_t>(81 + w);
    EXPECT_EQ(Estrazione10eLotto(s).esito, 10);
    for (int w = 0; w < 10; ++w)
        for (int p = 0; p < 5; ++p) s.Ruota[w][p] = 1;
    EXPECT_EQ(Estrazione10eLotto(s).esito, -1);  // positions run out
    EXPECT_FALSE(Estrazione10eLotto(s).manca);
    StoriaLotto storia({DieciRuotePiene()});
    EXPECT_EQ(Estrazione10eLotto(storia, 0).esito, 0);
}

TEST(DieciELotto, CasualeControLetterale) {
    std::mt19937 g(7);
    for (int prova = 0; prova < 20000; ++prova) {
        RecordEstrazione r;
        const int spazio = 10 + static_cast<int>(g() % 81);  // small ranges force repetitions
        for (int w = 0; w < NumeroRuote; ++w)
            for (int p = 0; p < 5; ++p) r.Ruota[w][p] = static_cast<uint8_t>(1 + g() % static_cast<unsigned>(spazio));
        if (prova % 50 == 0) r.Ruota[g() % 10][g() % 2] = 0;
        const Risultato10eLotto a = Estrazione10eLotto(r), b = DieciLetterale(r);
        ASSERT_EQ(a.esito, b.esito);
        if (a.esito >= 0) {
            ASSERT_EQ(a.numeri, b.numeri);
        }
    }
}

TEST(DieciELotto, TuttaLaStoriaReale) {
    GORGO_RICHIEDI_ARCHIVI_REALI(reale);
    const auto storia = Archivio::Apri(reale).Storia();
    int derivabili = 0;
    for (int32_t i = 1; i <= storia->NumeroEstrazioni(); ++i) {
        const RecordEstrazione& r = (*storia)[i];
        const Risultato10eLotto e = Estrazione10eLotto(*storia, i);
        bool zero = false;
        for (int w = 1; w <= 10; ++w) zero = zero || r.Numero(w, 1) == 0 || r.Numero(w, 2) == 0;
        ASSERT_EQ(e.esito == -1, zero) << i;
        ASSERT_EQ(e.manca, zero) << i;
        if (zero) continue;
        ++derivabili;
        ASSERT_GE(e.esito, 0);
        ASSERT_LE(e.esito, 30);
        for (size_t k = 0; k < 20; ++k) {
            ASSERT_GE(e.numeri[k], 1);
            ASSERT_LE(e.numeri[k], 90);
            if (k) {
                ASSERT_LT(e.numeri[k - 1], e.numeri[k]) << i;
            }
        }
        const Risultato10eLotto l = DieciLetterale(r);
        ASSERT_EQ(l.esito, e.esito);
        ASSERT_EQ(l.numeri, e.numeri);
    }
    // Nothing before Cagliari and Genova; a few later draws lack a wheel too.
    EXPECT_GT(derivabili, 7000);
    EXPECT_EQ(Estrazione10eLotto(*storia, 3574).esito, -1);
}

TEST(SuperEnalotto, CodiciDiLettura) {
    RecordSuperEnalotto r;
    r.impostaData(Data{3, 1, 2009});
    r.NumeroAnno = 1;
    for (int i = 0; i < 6; ++i) r.Sestina[i] = static_cast<uint8_t>(10 * (i + 1));
    EXPECT_EQ(LeggiEstrazioneSuper(r).esito, SuperSoloSei);
    r.SuperStar = 9;
    EXPECT_EQ(LeggiEstrazioneSuper(r).esito, SuperConSuperStar);
    r.Jolly = 8;
    EstrazioneSuper e = LeggiEstrazioneSuper(r);
    EXPECT_EQ(e.esito, SuperConJollySuperStar);
    EXPECT_EQ(e.numeri, (std::array<int, 8>{10, 20, 30, 40, 50, 60, 8, 9}));
    EXPECT_EQ(e.data, "03/01/2009");
    EXPECT_EQ(e.numeroAnno, "1");
    r.SuperStar = 0;
    EXPECT_EQ(LeggiEstrazioneSuper(r).esito, SuperConJolly);
    r.Sestina[3] = 0;
    e = LeggiEstrazioneSuper(r);
    EXPECT_EQ(e.esito, SuperIncompleta);
    EXPECT_EQ(e.numeri, (std::array<int, 8>{10, 20, 30, 0, 0, 0, 0, 0}));
}

TEST(SuperEnalotto, ArchivioReale) {
    GORGO_RICHIEDI_ARCHIVI_REALI(reale);
    const Archivio a = Archivio::Apri(reale);
    const EstrazioneSuper ultima = LeggiEstrazioneSuper(a, a.NumeroEstrazioniSuper());
    EXPECT_EQ(ultima.data, "07/04/2026");
    EXPECT_EQ(ultima.esito, SuperConJollySuperStar);
    for (int32_t i = 1; i <= a.NumeroEstrazioniSuper(); ++i) {
        const EstrazioneSuper e = LeggiEstrazioneSuper(a, i);
        ASSERT_NE(e.esito, SuperIncompleta) << i;
        for (int k = 0; k < 8; ++k)
            ASSERT_TRUE(e.numeri[static_cast<size_t>(k)] >= 1 && e.numeri[static_cast<size_t>(k)] <= 90);
    }
}

}  // namespace
}  // namespace gorgo::archives
