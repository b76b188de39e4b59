// The fast engine against the literal search: random archives and parameter sets of every
// body and spy, and the real archive over short periods. Same cases, same rows, same order.

#include <gtest/gtest.h>

#include <fmt/format.h>
#include <random>

#include "archives/archivio.h"
#include "archives/demo.h"
#include "builder/indice_mensile.h"
#include "builder/ricerca.h"
#include "builder/terzine.h"
#include "ricerca_letterale.h"
#include "support/archivi_reali.h"
#include "support/casuali.h"

namespace gorgo::builder {
namespace {

using test::MisurePeriodo;
using test::ParametriCasuali;
using test::StoriaCasuale;
using test::TerzineCasuali;

void Confronta(const EsitoRicerca& veloce, const EsitoRicerca& letterale, const std::string& dove) {
    ASSERT_EQ(veloce.errore.testo, letterale.errore.testo) << dove;
    ASSERT_EQ(veloce.sortite, letterale.sortite) << dove;
    ASSERT_EQ(veloce.previsioni, letterale.previsioni) << dove;
    ASSERT_EQ(veloce.colorePrevisioni, letterale.colorePrevisioni) << dove;
    ASSERT_EQ(veloce.casi.size(), letterale.casi.size()) << dove;
    for (size_t i = 0; i < veloce.casi.size(); ++i) {
        const CasoSpia &x = veloce.casi[i], &y = letterale.casi[i];
        ASSERT_EQ(std::tie(x.indice, x.data, x.nomeRuota, x.testoSpia, x.testoPosizione, x.testoIndiceMese,
                           x.testoIndiceAnnuale, x.testoIndice),
                  std::tie(y.indice, y.data, y.nomeRuota, y.testoSpia, y.testoPosizione, y.testoIndiceMese,
                           y.testoIndiceAnnuale, y.testoIndice))
            << dove << " caso " << i;
    }
    ASSERT_EQ(veloce.righe.size(), letterale.righe.size()) << dove;
    for (size_t i = 0; i < veloce.righe.size(); ++i) {
        const RigaAlgoritmo &x = veloce.righe[i], &y = letterale.righe[i];
        ASSERT_EQ(std::tie(x.descrizione, x.chiave, x.sortite, x.presenze, x.quantita, x.conQuantita, x.testoSpia,
                           x.selezionata),
                  std::tie(y.descrizione, y.chiave, y.sortite, y.presenze, y.quantita, y.conQuantita, y.testoSpia,
                           y.selezionata))
            << dove << " riga " << i;
    }
}

std::string Descrivi(const ParametriRicerca& p) {
    return fmt::format(
        "tipo {} spia {} modo {} valore {} ambo {}-{} tutti {} pos {} da {} a {} perData {}/{} mese {} "
        "colpi {} ultime {} solo {} sorte {}",
        static_cast<int>(p.tipoRicerca), static_cast<int>(p.tipoSpia), static_cast<int>(p.modoSpia), p.valoreSpia,
        p.amboSpia[0], p.amboSpia[1], p.tuttiGliAmbi, p.posizioneDeterminata, p.dataDa, p.dataA, p.perData,
        p.sortiteDaCercare, p.indiceMese, p.colpi, p.controllaUltime, p.soloPosizione, p.sorte);
}

class Differenziale : public ::testing::TestWithParam<TipoRicerca> {};

TEST_P(Differenziale, ArchiviCasuali) {
    const TipoRicerca tipo = GetParam();
    std::mt19937 g(1000 + static_cast<unsigned>(tipo));
    const bool pesante = tipo == TipoRicerca::Ambi || tipo == TipoRicerca::Codici;
    const int prove = tipo == TipoRicerca::Ambi ? 6 : tipo == TipoRicerca::Codici ? 10 : 40;
    // Short periods for the heavy bodies and for every value (or every pair) at once: the
    // cost goes with the cases, and with every value each draw brings a score of them.
    const MisurePeriodo misure =
        pesante ? MisurePeriodo{20, {5, 30}, {0, 1}, false} : MisurePeriodo{20, {5, 305}, {3, 30}, false};
    int tuttiVisti = 0;
    for (int archivio = 0; archivio < 2; ++archivio) {
        const archives::StoriaLotto s = StoriaCasuale(g);
        const IndiciMensili im = CalcolaIndiciMensili(s, g() % 2 ? "NNYNYNY" : "NNNNNNN");
        const TerzineRidotte t = TerzineCasuali(g, 200);
        for (int prova = 0; prova < prove; ++prova) {
            const ContestoRicerca ctx = test::ContestoCasuale(g, s, im, &t);
            ParametriRicerca p = ParametriCasuali(g, s, tipo, misure);
            // A heavy body runs once for each value found: one narrow search wheel keeps them
            // few yet each seen more than once (a row needs two hits), over a few draws whose
            // windows close before the archive's end. The literal pairs try every value
            // anyway, so they do it once a test.
            if (pesante && p.modoSpia == ModoSpia::Tutti) {
                p.ruoteRicerca.fill(false);
                p.ruoteRicerca[1 + 3 * (g() % 4)] = true;
                if (tipo == TipoRicerca::Ambi && tuttiVisti++) p.modoSpia = ModoSpia::Fisso;
                const int32_t a = s.NumeroEstrazioni() - 30 - static_cast<int32_t>(g() % 20);
                p.dataA = s.DataEstrazione(a);
                p.dataDa = s.DataEstrazione(a - 2 - static_cast<int32_t>(g() % 2));
                p.perData = 0;
                p.sorte = 2;
                p.colpi = std::max(p.colpi, 9);
            }
            const bool seleziona = g() % 2;
            Confronta(CercaAlgoritmi(p, ctx, {}, seleziona), CercaAlgoritmiLetterale(p, ctx, seleziona), Descrivi(p));
            if (HasFatalFailure()) return;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Corpi, Differenziale,
                         ::testing::Values(TipoRicerca::Ambate, TipoRicerca::Ambi, TipoRicerca::TerzineAmbo,
                                           TipoRicerca::TerzineTerno, TipoRicerca::Codici),
                         test::NomeTipoRicerca);

// Colpi x play wheels above 255: the engine keeps its pair counts wider.
TEST(DifferenzialeAmbi, ConteggiOltreIlByte) {
    std::mt19937 g(4242);
    const archives::StoriaLotto s = StoriaCasuale(g);
    const IndiciMensili im = CalcolaIndiciMensili(s, "NNYNYNY");
    ContestoRicerca ctx{&s, {}, &im, nullptr};
    ParametriRicerca p;
    p.tipoRicerca = TipoRicerca::Ambi;
    p.valoreSpia = 7;
    p.indiceMese = 22;
    p.colpi = 40;
    p.ruoteRicerca = {true, false, false, false, false, false, false, false, false, false, false, true};
    p.ruoteGioco = p.ruoteRicerca;
    p.dataA = s.DataEstrazione(s.NumeroEstrazioni() - 45);
    p.dataDa = s.DataEstrazione(s.NumeroEstrazioni() - 60);
    const EsitoRicerca e = CercaAlgoritmi(p, ctx);
    ASSERT_FALSE(e.righe.empty());
    Confronta(e, CercaAlgoritmiLetterale(p, ctx), Descrivi(p));
}

// The real history over short periods, with the screen's usual choices.
TEST(DifferenzialeReale, PeriodiBrevi) {
    GORGO_RICHIEDI_ARCHIVI_REALI(reale);
    const archives::Archivio a = archives::Archivio::Apri(reale);
    const auto s = a.Storia();
    const IndiciMensili im = CalcolaIndiciMensili(*s, "NNYNYNY");
    std::mt19937 g(27);
    const TerzineRidotte t = TerzineCasuali(g, 1002);
    ContestoRicerca ctx{s.get(), {}, &im, &t};
    ctx.restrizioni.GiornoAmmesso.fill(true);
    ctx.restrizioni.MeseAmmesso.fill(true);
    ctx.restrizioni.PeriodoAmmesso.fill(true);
    struct Caso {
        TipoRicerca tipo;
        const char* da;
        int indiceMese;
    };
    for (const Caso& c :
         {Caso{TipoRicerca::Ambate, "30/12/2015", 22}, Caso{TipoRicerca::Ambate, "01/01/1990", 0},
          Caso{TipoRicerca::TerzineAmbo, "30/12/2023", 22}, Caso{TipoRicerca::TerzineTerno, "30/12/2023", 22},
          Caso{TipoRicerca::Ambi, "01/07/2025", 22}, Caso{TipoRicerca::Codici, "01/09/2025", 22}}) {
        ParametriRicerca p;
        p.tipoRicerca = c.tipo;
        p.valoreSpia = 27;
        p.dataDa = c.da;
        p.dataA = "30/12/2025";
        p.indiceMese = c.indiceMese;
        p.ruoteRicerca = {true, false, false, false, false, false, false, false, false, false, false, true};
        p.ruoteGioco = {true, false, false, false, false, false, false, false, false, false, false, false};
        Confronta(CercaAlgoritmi(p, ctx), CercaAlgoritmiLetterale(p, ctx), Descrivi(p));
    }
}

}  // namespace
}  // namespace gorgo::builder
