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

namespace gorgo::builder {
namespace {

// A draw history with holes: some numbers repeat across wheels, some wheels are missing.
archives::StoriaLotto StoriaCasuale(std::mt19937& g, int anni) {
    archives::ParametriDemo pd;
    pd.seme = g();
    pd.fine = archives::Data{30, 12, 2005 + anni};
    auto record = archives::GeneraStoriaDemo(pd);
    // Keep the last few years only, renumbered from 1: short archives, quick oracles.
    const size_t tieni = std::min<size_t>(record.size(), static_cast<size_t>(anni) * 150);
    std::vector<archives::RecordEstrazione> v(record.end() - static_cast<long>(tieni), record.end());
    // Small number ranges on some wheels make spies, pairs and triples frequent.
    for (auto& r : v)
        for (int w = 0; w < 11; ++w) {
            if (g() % 40 == 0) {
                for (int p = 0; p < 5; ++p) r.Ruota[w][p] = 0;  // a wheel not drawn
                continue;
            }
            if (w % 3 == 0) {
                bool usato[91] = {};
                for (int p = 0; p < 5; ++p) {
                    int n;
                    do n = 1 + static_cast<int>(g() % 20);
                    while (usato[n]);
                    usato[n] = true;
                    r.Ruota[w][p] = static_cast<uint8_t>(n);
                }
            }
        }
    return archives::StoriaLotto(std::move(v));
}

TerzineRidotte TerzineCasuali(std::mt19937& g, int quante) {
    TerzineRidotte t;
    for (int i = 0; i < quante; ++i)
        t.terzine.push_back({1 + static_cast<int>(g() % 90), 1 + static_cast<int>(g() % 90), 1 + static_cast<int>(g() % 90)});
    return t;
}

std::array<bool, 12> RuoteCasuali(std::mt19937& g) {
    std::array<bool, 12> r{};
    if (g() % 3 == 0) {
        r[0] = true;
        r[11] = g() % 2;
        return r;
    }
    bool una = false;
    for (int w = 1; w <= 11; ++w) una |= r[static_cast<size_t>(w)] = g() % 3 == 0;
    if (!una) r[1 + g() % 11] = true;
    return r;
}

ParametriRicerca ParametriCasuali(std::mt19937& g, const archives::StoriaLotto& s, TipoRicerca tipo) {
    ParametriRicerca p;
    p.tipoRicerca = tipo;
    p.tipoSpia = static_cast<TipoSpia>(g() % 4);
    if (p.tipoSpia == TipoSpia::Ambo && tipo != TipoRicerca::Ambate && tipo != TipoRicerca::Ambi)
        p.tipoSpia = TipoSpia::Numero;
    const bool pesante = tipo == TipoRicerca::Ambi || tipo == TipoRicerca::Codici;
    const int modo = static_cast<int>(g() % 6);
    p.modoSpia = modo < 3 ? ModoSpia::Fisso : modo < 5 ? ModoSpia::Tutti : ModoSpia::SoloIndiceMensile;
    if (p.tipoSpia == TipoSpia::Ambo) p.modoSpia = ModoSpia::Fisso;
    p.valoreSpia = 1 + static_cast<int>(g() % 20);
    if (p.tipoSpia == TipoSpia::Ambo) {
        p.amboSpia = {1 + static_cast<int>(g() % 20), 1 + static_cast<int>(g() % 20)};
        if (p.amboSpia[0] == p.amboSpia[1]) p.amboSpia[1] = p.amboSpia[0] % 20 + 1;
        p.tuttiGliAmbi = !pesante && g() % 4 == 0;
    }
    if (g() % 3 == 0) {
        p.posizioneDeterminata = true;
        p.posizioniSpia = {false, true, true, true, true, true};
        for (int i = 1; i <= 5; ++i) p.posizioniSpia[static_cast<size_t>(i)] = g() % 2;
        p.posizioniSpia[1 + g() % 5] = true;
        p.posizioniSpia[1 + g() % 5] = true;
    }
    // Short periods for the heavy bodies and for every value at once.
    const bool tutti = p.modoSpia == ModoSpia::Tutti || p.tuttiGliAmbi;
    const int span = pesante ? (tutti ? 12 : 60) : (tutti ? 60 : 300);
    const int32_t n = s.NumeroEstrazioni();
    const int32_t a = n - static_cast<int32_t>(g() % 20);
    const int32_t da = std::max<int32_t>(1, a - 5 - static_cast<int32_t>(g() % static_cast<unsigned>(span)));
    if (g() % 5 == 0 && !tutti) {
        p.perData = 1;
        p.sortiteDaCercare = 1 + static_cast<int>(g() % 15);
    }
    p.dataDa = s.DataEstrazione(da);
    p.dataA = s.DataEstrazione(a);
    const int indice = static_cast<int>(g() % 4);
    p.indiceMese = indice == 0 ? 0 : indice == 1 ? 1 + static_cast<int>(g() % 5) : 22;
    p.ruoteRicerca = RuoteCasuali(g);
    p.ruoteGioco = RuoteCasuali(g);
    // Long spans too: counts of a pair then pass what a byte holds.
    p.colpi = g() % 4 == 0 ? 24 + static_cast<int>(g() % 20) : 1 + static_cast<int>(g() % 12);
    p.controllaUltime = g() % 3 != 0;
    p.soloPosizione = g() % 4 == 0;
    if (g() % 3 == 0) {
        for (int i = 1; i <= 5; ++i) p.posizioniValide[static_cast<size_t>(i)] = g() % 2;
        p.posizioniValide[1 + g() % 5] = true;
    }
    p.sorte = g() % 2 ? 2 : 3;
    for (auto&& o : p.operazioni) o = g() % 3 != 0;
    return p;
}

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
    return fmt::format("tipo {} spia {} modo {} valore {} ambo {}-{} tutti {} pos {} da {} a {} perData {}/{} mese {} "
                       "colpi {} ultime {} solo {} sorte {}",
                       static_cast<int>(p.tipoRicerca), static_cast<int>(p.tipoSpia), static_cast<int>(p.modoSpia),
                       p.valoreSpia, p.amboSpia[0], p.amboSpia[1], p.tuttiGliAmbi, p.posizioneDeterminata, p.dataDa,
                       p.dataA, p.perData, p.sortiteDaCercare, p.indiceMese, p.colpi, p.controllaUltime,
                       p.soloPosizione, p.sorte);
}

class Differenziale : public ::testing::TestWithParam<TipoRicerca> {};

TEST_P(Differenziale, ArchiviCasuali) {
    const TipoRicerca tipo = GetParam();
    std::mt19937 g(1000 + static_cast<unsigned>(tipo));
    const int prove = tipo == TipoRicerca::Ambi ? 6 : tipo == TipoRicerca::Codici ? 10 : 40;
    for (int archivio = 0; archivio < 2; ++archivio) {
        const archives::StoriaLotto s = StoriaCasuale(g, 3);
        const IndiciMensili im = CalcolaIndiciMensili(s, g() % 2 ? "NNYNYNY" : "NNNNNNN");
        const TerzineRidotte t = TerzineCasuali(g, 200);
        for (int prova = 0; prova < prove; ++prova) {
            ContestoRicerca ctx{&s, {}, &im, &t};
            ctx.restrizioni.GiornoAmmesso.fill(true);
            ctx.restrizioni.MeseAmmesso.fill(true);
            ctx.restrizioni.PeriodoAmmesso.fill(true);
            ctx.restrizioni.NumeroAmmesso.fill(true);
            if (g() % 4 == 0) {  // a weekday restriction
                ctx.restrizioni.Giorno = true;
                ctx.restrizioni.GiornoAmmesso[1 + g() % 7] = false;
                ctx.restrizioni.GiornoAmmesso[1 + g() % 7] = false;
            }
            const ParametriRicerca p = ParametriCasuali(g, s, tipo);
            const bool seleziona = g() % 2;
            Confronta(CercaAlgoritmi(p, ctx, {}, seleziona), CercaAlgoritmiLetterale(p, ctx, seleziona), Descrivi(p));
            if (HasFatalFailure()) return;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Corpi, Differenziale,
                         ::testing::Values(TipoRicerca::Ambate, TipoRicerca::Ambi, TipoRicerca::TerzineAmbo,
                                           TipoRicerca::TerzineTerno, TipoRicerca::Codici));

// Colpi x play wheels above 255: the engine keeps its pair counts wider.
TEST(DifferenzialeAmbi, ConteggiOltreIlByte) {
    std::mt19937 g(4242);
    const archives::StoriaLotto s = StoriaCasuale(g, 3);
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
    for (const Caso& c : {Caso{TipoRicerca::Ambate, "30/12/2015", 22}, Caso{TipoRicerca::Ambate, "01/01/1990", 0},
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
