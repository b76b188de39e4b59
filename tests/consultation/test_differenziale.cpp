// The delays and frequencies of the grid against the literal walk and count, on random
// histories (holes, empty wheels, a late Nazionale) and on the real archive.

#include <gtest/gtest.h>

#include <memory>
#include <random>

#include "archives/archivio.h"
#include "consultation/consultazione.h"
#include "consultation/consultazione_letterale.h"
#include "support/archivi_reali.h"
#include "support/casuali.h"

namespace gorgo::test {
namespace {

using namespace consultation;

void Confronta(Consultazione& c, const archives::StoriaLotto& s, const std::string& caso) {
    const Griglia& g = c.Aggiorna();
    const GrigliaLetterale l = VistaLetterale(s, c);
    if (!l.periodoValido) return;  // the grid keeps what it had: nothing to compare
    for (size_t k = 0; k < 55; ++k) {
        ASSERT_EQ(g.celle[k].testo, l.testi[k]) << caso << " cella " << k + 1;
        ASSERT_EQ(g.celle[k].sfondo, l.sfondi[k]) << caso << " cella " << k + 1;
    }
}

void ProvaCasi(const archives::StoriaCondivisa& storia, std::mt19937& gen, int casi) {
    Consultazione c(storia);
    const int32_t n = storia->NumeroEstrazioni();
    std::uniform_int_distribution<int32_t> indice(1, n);
    for (int caso = 0; caso < casi; ++caso) {
        c.IndiceCorrente = indice(gen);
        c.RuotaCorrente = static_cast<int>(gen() % 3 == 0 ? 1 + gen() % 11 : 0);
        c.Ordinate = gen() % 4 == 0;
        c.NonConsiderareAttuale = gen() % 2 == 0;
        c.Periodo = static_cast<TipoPeriodo>(gen() % 4);
        c.UltimeEstrazioni = static_cast<int32_t>(gen() % 400) - 5;
        c.Cicli = static_cast<int32_t>(gen() % 12);
        for (Vista v : {Vista::Ritardi, Vista::Frequenze}) {
            c.ImpostaVista(v);
            Confronta(c, *storia,
                      "indice " + std::to_string(c.IndiceCorrente) + " ruota " + std::to_string(c.RuotaCorrente) +
                          " vista " + std::to_string(static_cast<int>(v)) + " periodo " +
                          std::to_string(static_cast<int>(c.Periodo)));
            if (::testing::Test::HasFatalFailure()) return;
        }
    }
}

TEST(ConsultazioneDifferenziale, StorieCasuali) {
    for (unsigned seme = 1; seme <= 12; ++seme) {
        std::mt19937 gen(seme);
        OpzioniStoria o;
        o.anni = 2 + static_cast<int>(seme % 3);
        o.primaNazionale = seme % 2 ? 1 : 60;
        o.ruotaVuota = 7;
        o.numeroZero = 11;
        auto storia = std::make_shared<const archives::StoriaLotto>(StoriaCasuale(gen, o));
        ProvaCasi(storia, gen, 60);
        if (::testing::Test::HasFatalFailure()) return;
    }
}

TEST(ConsultazioneDifferenziale, ArchivioReale) {
    GORGO_RICHIEDI_ARCHIVI_REALI(cartella);
    const archives::Archivio a = archives::Archivio::Apri(cartella);
    std::mt19937 gen(15);
    ProvaCasi(a.Storia(), gen, 250);
}

// Every draw of the real archive in the delays view, all wheels: the table against the walk.
TEST(ConsultazioneDifferenziale, RitardiDiOgniEstrazioneReale) {
    GORGO_RICHIEDI_ARCHIVI_REALI(cartella);
    const archives::Archivio a = archives::Archivio::Apri(cartella);
    Consultazione c(a.Storia());
    c.ImpostaVista(Vista::Ritardi);
    for (int32_t i = 1; i <= c.NumeroEstrazioni(); i += 3) {
        c.IndiceCorrente = i;
        Confronta(c, *a.Storia(), "indice " + std::to_string(i));
        if (::testing::Test::HasFatalFailure()) return;
    }
}

}  // namespace
}  // namespace gorgo::test
