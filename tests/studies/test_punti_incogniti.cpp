// The unknown points: the chain on its worked values, and the historic check and the summary
// of all wheels against their literal transcription on random archives and the real one.

#include <gtest/gtest.h>

#include <fmt/format.h>
#include <random>

#include "archives/archivio.h"
#include "studies/punti_incogniti.h"
#include "studies/punti_incogniti_letterale.h"
#include "support/archivi_reali.h"
#include "support/casuali.h"

namespace gorgo::studies {
namespace {

std::vector<std::vector<std::string>> Testi(const std::vector<Riga>& righe) {
    std::vector<std::vector<std::string>> t;
    for (const Riga& r : righe) t.push_back(r.testi());
    return t;
}

void Confronta(const archives::StoriaLotto& s, const ParametriVerifica& p, const std::string& tag,
               const std::string& dove) {
    const EsitoStorica e = VerificaStorica(s, p, false, tag);
    const test::StoricaLetterale l = test::VerificaStoricaLetterale(s, p, false, tag);
    ASSERT_TRUE(e.errore.vuoto()) << dove;
    ASSERT_EQ(std::tie(e.Giocate, e.Vincenti, e.InGioco, e.SommaColpi),
              std::tie(l.Giocate, l.Vincenti, l.InGioco, l.SommaColpi))
        << dove;
    ASSERT_EQ(e.descrizione, l.descrizione) << dove;
    ASSERT_EQ(e.tag, l.tag) << dove;
    ASSERT_EQ(Testi(e.righe), l.righe) << dove;
    const EsitoRiepilogo r = RiepilogoRuote(s, p, tag);
    const test::RiepilogoLetterale rl = test::RiepilogoRuoteLetterale(s, p, tag);
    ASSERT_EQ(r.tag, rl.tag) << dove;
    for (size_t w = 0; w < 11; ++w) {
        ASSERT_EQ(r.righe[w].celle[1].testo, rl.descrizioni[w]) << dove << " ruota " << w + 1;
        ASSERT_EQ(r.righe[w].colore == colori::Rosso, rl.rosso[w]) << dove << " ruota " << w + 1;
    }
}

TEST(PuntiIncogniti, LaCatenaDeiValoriDiEsempio) {
    const SerieIncognita a = CalcolaSerie({40, 11, 56, 55, 78});
    EXPECT_EQ(a, (SerieIncognita{21, 33, 61, 76, 4, 56, 60, 50}));
    // The second example's listed series (18, 50, 60, 38, 60, point 20) is the record read one
    // place early: the steps give the point 18 and the series 50, 60, 38, 60, 20, whose sum
    // fuori 90 is the 48 sought; the listed one would sum to 46 and empty the record.
    const SerieIncognita b = CalcolaSerie({42, 4, 32, 20, 58});
    EXPECT_EQ(b, (SerieIncognita{18, 50, 60, 38, 60, 20, 66, 48}));
    EXPECT_EQ(SommaIgnotaPreCalcolo(90), 90);
    EXPECT_EQ(CalcolaSerie({0, 0, 0, 0, 0}), SerieIncognita{});
    // The chain is linear modulo 90: the check of the sum never empties a real cinquina.
    std::mt19937 g(8);
    for (int k = 0; k < 20000; ++k) {
        std::array<int, 5> e{};
        for (int& v : e) v = 1 + static_cast<int>(g() % 90);
        const SerieIncognita s = CalcolaSerie(e);
        ASSERT_EQ(s[7], SommaIgnotaPreCalcolo(e[0]));
        for (int v : s) ASSERT_TRUE(v >= 1 && v <= 90);
    }
}

TEST(PuntiIncogniti, VerificaStoricaComeLaLetterale) {
    std::mt19937 g(16);
    for (int caso = 0; caso < 40; ++caso) {
        test::OpzioniStoria o;
        o.anni = 1 + static_cast<int>(g() % 2);
        const archives::StoriaLotto s = test::StoriaCasuale(g, o);
        ParametriVerifica p;
        const int32_t n = s.NumeroEstrazioni();
        p.Ruota = 1 + static_cast<int>(g() % 11);
        p.Al = n - static_cast<int32_t>(g() % 30);
        p.Dal = std::max<int32_t>(1, p.Al - static_cast<int32_t>(g() % 200));
        p.Sorte = 1 + static_cast<int>(g() % 4);
        p.Colpi = g() % 4 == 0 ? 1 : 1 + static_cast<int>(g() % 40);
        p.SoloPrima = g() % 2 == 0;
        const std::string tag = g() % 3 == 0 ? "050,0" : "";
        Confronta(
            s, p, tag,
            fmt::format("caso {} ruota {} sorte {} colpi {} solo {}", caso, p.Ruota, p.Sorte, p.Colpi, p.SoloPrima));
        if (HasFatalFailure()) return;
    }
}

TEST(PuntiIncogniti, LimitiDellaVerifica) {
    std::mt19937 g(3);
    const archives::StoriaLotto s = test::StoriaCasuale(g);
    const int32_t n = s.NumeroEstrazioni();
    ParametriVerifica p;
    p.Ruota = 2;
    p.Colpi = 0;
    p.Dal = 1;
    p.Al = n;
    EXPECT_EQ(VerificaStorica(s, p).errore.testo, MessaggioColpi);
    EXPECT_EQ(VerificaColpi(s, n - 5, 2, 1000).errore.testo, MessaggioColpi);
    p.Colpi = 10;
    p.Dal = n;
    p.Al = n - 1;
    EXPECT_EQ(VerificaStorica(s, p).errore.titolo, "Errore");
    // The last draw is never a start draw; the one before is in gioco after one colpo.
    p.Dal = n - 1;
    p.Al = n;
    p.Sorte = 3;
    while (s[n - 1].Numero(p.Ruota, 1) == 0) ++p.Ruota;
    EsitoStorica e = VerificaStorica(s, p);
    ASSERT_EQ(e.Giocate, 1);
    if (e.Vincenti == 0) {
        EXPECT_EQ(e.InGioco, 1);
        EXPECT_EQ(e.righe.front().celle[5].testo, " In ");
        EXPECT_EQ(e.righe.front().celle[7].testo, "-9");
    }
    // With no win on the ambo of the sums every wheel is the best, with 0.
    p.Dal = p.Al = n - 1;
    p.Sorte = 4;
    p.Colpi = 1;
    e = VerificaStorica(s, p);
    if (e.Vincenti == 0) {
        int migliori = 0;
        for (const Riga& r : e.righe) migliori += r.celle.size() > 3 && r.celle[3].testo == "Ruota migliore";
        EXPECT_EQ(migliori, 11);
        EXPECT_EQ(e.descrizione, "Vincenti in 1 colpo: 0 su 1");
    }
}

TEST(PuntiIncogniti, RuotaNonEstrattaNonEGiocata) {
    std::mt19937 g(5);
    test::OpzioniStoria o;
    o.ruote[4] = false;  // Genova never drawn
    const archives::StoriaLotto s = test::StoriaCasuale(g, o);
    ParametriVerifica p;
    p.Ruota = 4;
    p.Dal = 1;
    p.Al = s.NumeroEstrazioni();
    const EsitoStorica e = VerificaStorica(s, p, false, "033,3");
    EXPECT_EQ(e.Giocate, 0);
    EXPECT_EQ(e.descrizione, "Giocate vincenti entro 10 colpi: nessuna giocata.");
    EXPECT_EQ(e.tag, "033,3");  // the tag stays as it was
    EXPECT_TRUE(VerificaColpi(s, 10, 4, 10).righe.empty());
    // In the summary the undrawn wheel carries the tag of the wheel before it.
    const EsitoRiepilogo r = RiepilogoRuote(s, p);
    EXPECT_EQ(r.percentuale[4], r.percentuale[3]);
}

TEST(PuntiIncogniti, ColpiDiUnaSerieConNumeroRipetuto) {
    // 42 4 32 20 58 gives 60 twice: it counts once, so at most four numbers can hit.
    std::vector<archives::RecordEstrazione> rec(3);
    const int prima[5] = {42, 4, 32, 20, 58}, dopo[5] = {50, 60, 38, 20, 66};
    for (int k = 0; k < 5; ++k) {
        rec[0].Ruota[0][k] = static_cast<uint8_t>(prima[k]);
        rec[1].Ruota[0][k] = static_cast<uint8_t>(dopo[k]);
    }
    for (size_t i = 0; i < rec.size(); ++i) rec[i].impostaData({static_cast<int>(i) + 2, 1, 2020});
    const archives::StoriaLotto s(rec);
    const EsitoColpi e = VerificaColpi(s, 1, 1, 5);
    ASSERT_EQ(e.righe.size(), 3u);
    const auto t = e.righe[0].testi();
    // 50 60 38 20 are the four distinct points, and 66 is the sum of the extracts.
    EXPECT_EQ(t[6], "4");
    EXPECT_EQ(t[7], "6");
    EXPECT_EQ(t[8], "4");
    EXPECT_EQ(t[9], "1");
    EXPECT_EQ(t[10], "");
    EXPECT_EQ(e.righe[0].celle[5].colore, colori::Verde);
    EXPECT_EQ(e.righe[0].celle[1].colore, colori::Rosso);
    EXPECT_EQ(e.righe[2].testi()[0], "Totali");
}

TEST(PuntiIncogniti, ArchivioRealeComeLaLetterale) {
    GORGO_RICHIEDI_ARCHIVI_REALI(reale);
    const archives::Archivio a = archives::Archivio::Apri(reale);
    const auto s = a.Storia();
    const int32_t n = s->NumeroEstrazioni();
    ParametriVerifica p;
    p.Dal = s->CercaIndice({1, 1, 1946}, false)->IndiceTrovato;
    p.Al = n;
    p.Sorte = 2;
    p.Colpi = 10;
    p.SoloPrima = false;
    Confronta(*s, p, "", "U1");
    // On paper every page after the first opens with the table's heading, 75 lines at most.
    const EsitoStorica e = VerificaStorica(*s, p);
    const auto righe = ReportStorica(*s, p, e, true).righe();
    int pagine = 0, suPagina = 0;
    for (size_t k = 0; k < righe.size(); ++k) {
        if (righe[k].nuovaPagina) {
            ++pagine;
            EXPECT_LE(suPagina, 75);
            suPagina = 0;
            EXPECT_EQ(righe[k + 1].testo.substr(0, 12), "|   Data   |");
        }
        ++suPagina;
    }
    EXPECT_GT(pagine, 10);
    EXPECT_EQ(ReportStorica(*s, p, e).righe().size(), e.righe.size() + 6);
    p.Sorte = 4;
    p.Ruota = 11;
    p.Dal = n - 2000;
    Confronta(*s, p, "", "somme");
    p.Sorte = 1;
    p.SoloPrima = true;
    p.Colpi = 3;
    Confronta(*s, p, "", "ambate");
}

}  // namespace
}  // namespace gorgo::studies
