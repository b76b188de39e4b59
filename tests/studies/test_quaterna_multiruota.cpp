// The quaterna companions, the multi-wheel search and the five-number sums against their
// literal transcriptions, on random archives and the real one; and the commands as a user runs them.

#include <gtest/gtest.h>

#include <fmt/format.h>
#include <algorithm>
#include <nlohmann/json.hpp>
#include <random>
#include <stop_token>

#include "archives/archivio.h"
#include "studies/multiruota.h"
#include "studies/multiruota_letterale.h"
#include "studies/numeri_simpatici.h"
#include "studies/numeri_simpatici_letterale.h"
#include "studies/somma_cinquine.h"
#include "support/archivi_reali.h"
#include "support/casuali.h"
#include "support/cli.h"

namespace gorgo::studies {
namespace {

ParametriSimultanea Simultanea(std::mt19937& g, const archives::StoriaLotto& s, int lunghezza) {
    ParametriSimultanea p;
    p.Al = s.NumeroEstrazioni() - static_cast<int32_t>(g() % 10);
    p.Dal = std::max<int32_t>(1, p.Al - lunghezza);
    p.RuoteScelte = test::RuoteCasuali(g);
    if (p.RuoteScelte[0])
        for (int w = 1; w <= 10; ++w) p.RuoteScelte[static_cast<size_t>(w)] = true;
    p.RuoteScelte[0] = false;
    if (g() % 3 == 0) {
        p.restrizioni.Giorno = true;
        p.restrizioni.GiornoAmmesso.fill(true);
        p.restrizioni.GiornoAmmesso[1 + g() % 7] = false;
    }
    return p;
}

TEST(Quaterna, StatisticaGeneraleComeLaLetterale) {
    std::mt19937 g(42);
    for (int caso = 0; caso < 3; ++caso) {
        const archives::StoriaLotto s = test::StoriaCasuale(g, {.anni = 1});
        const ParametriSimultanea p = Simultanea(g, s, 40 + static_cast<int>(g() % 60));
        const EsitoGenerale e = StatisticaGenerale(s, p);
        const EsitoGenerale l = test::StatisticaGeneraleLetterale(s, p);
        ASSERT_EQ(e.AmbiAnalizzati, 4005);
        ASSERT_EQ(e.analizzati, l.analizzati);
        ASSERT_EQ(e.righe.size(), l.righe.size()) << "caso " << caso;
        for (size_t k = 0; k < e.righe.size(); ++k)
            ASSERT_EQ(e.righe[k], l.righe[k]) << "caso " << caso << " riga " << k;
    }
}

TEST(Quaterna, RicercaSimultaneaEStatisticaConcordano) {
    // The companions at the greatest count of one ambo are the rows of the general statistics.
    std::mt19937 g(7);
    const archives::StoriaLotto s = test::StoriaCasuale(g);
    ParametriSimultanea p = Simultanea(g, s, 400);
    const EsitoGenerale gen = StatisticaGenerale(s, p);
    int confrontati = 0;
    for (size_t k = 0; k < gen.righe.size() && confrontati < 20; ++k) {
        if (gen.righe[k].celle[0].testo.empty()) continue;
        const std::string& ambo = gen.righe[k].celle[0].testo;
        p.Coppia = {std::stoi(ambo.substr(0, 2)), std::stoi(ambo.substr(3, 2))};
        const EsitoSimultanea e = RicercaSimultanea(s, p);
        size_t j = k;
        for (const Riga& r : e.righe) {
            if (r.celle[1].testo != gen.righe[k].celle[2].testo) continue;
            ASSERT_LT(j, gen.righe.size());
            for (size_t c = 0; c < r.celle.size(); ++c) ASSERT_EQ(r.celle[c].testo, gen.righe[j].celle[c + 1].testo);
            ++j;
        }
        ++confrontati;
    }
    EXPECT_GT(confrontati, 0);
}

TEST(Quaterna, ControlliEValoriLimite) {
    std::mt19937 g(1);
    const archives::StoriaLotto s = test::StoriaCasuale(g);
    ParametriSimultanea p;
    p.Dal = 10;
    p.Al = 50;
    p.RuoteScelte.fill(true);
    EXPECT_EQ(RicercaSimultanea(s, p).errore.testo, MessaggioDueNumeri);
    p.Coppia = {1, 2};
    p.Al = 5;
    EXPECT_EQ(RicercaSimultanea(s, p).errore.testo, MessaggioDateSimultanea);
    EXPECT_EQ(StatisticaGenerale(s, p).errore.testo, MessaggioDateSimultanea);
    // A tie goes to the wheel that comes last; with no hit the count is 0 and I.C. 0.
    EXPECT_EQ(RuotaMigliore({0, 3, 0, 3, 0, 0, 0, 0, 0, 0, 1, 0}), (std::pair<int, int>{3, 3}));
    EXPECT_EQ(RuotaMigliore({}), (std::pair<int, int>{11, 0}));
    EXPECT_EQ(IndiceConvenienza(5, 100, 0), 0.0);
    std::array<bool, 12> r{};
    for (int w = 1; w <= 10; ++w) r[static_cast<size_t>(w)] = true;
    EXPECT_EQ(TestoRuote(r), " Tutte");
    r[11] = true;
    EXPECT_EQ(TestoRuote(r), " Tutte + NZ");
    // A stop keeps the rows of the ambi done, in order.
    p.Al = s.NumeroEstrazioni();
    p.Dal = p.Al - 200;
    std::stop_source fermo;
    fermo.request_stop();
    const EsitoGenerale e = StatisticaGenerale(s, p, {fermo.get_token(), {}});
    EXPECT_TRUE(e.fermato);
    EXPECT_EQ(e.analizzati, "0 ambi analizzati su 4005");
    // Stopped after the ambi of 1: their rows, exactly the first rows of the whole run.
    std::stop_source dopo;
    const EsitoGenerale intero = StatisticaGenerale(s, p);
    const EsitoGenerale parte =
        StatisticaGenerale(s, p, {dopo.get_token(), [&](const std::string&, int, int) { dopo.request_stop(); }});
    EXPECT_TRUE(parte.fermato);
    EXPECT_EQ(parte.analizzati, "89 ambi analizzati su 4005");
    ASSERT_LT(parte.righe.size(), intero.righe.size());
    for (size_t k = 0; k < parte.righe.size(); ++k) ASSERT_EQ(parte.righe[k], intero.righe[k]);
    EXPECT_NE(intero.righe[parte.righe.size()].testi()[0].substr(0, 3), "01-");
}

TEST(Quaterna, ArchivioRealeComeLaLetterale) {
    GORGO_RICHIEDI_ARCHIVI_REALI(reale);
    const archives::Archivio a = archives::Archivio::Apri(reale);
    const auto s = a.Storia();
    ParametriSimultanea p;
    p.Al = s->NumeroEstrazioni();
    p.Dal = p.Al - 100;
    for (int w = 1; w <= 11; ++w) p.RuoteScelte[static_cast<size_t>(w)] = true;
    const EsitoGenerale e = StatisticaGenerale(*s, p);
    const EsitoGenerale l = test::StatisticaGeneraleLetterale(*s, p);
    ASSERT_EQ(e.righe.size(), l.righe.size());
    for (size_t k = 0; k < e.righe.size(); ++k) ASSERT_EQ(e.righe[k], l.righe[k]) << "riga " << k;
}

void ConfrontaMultiruota(const archives::StoriaLotto& s, const ParametriMultiruota& p, const std::string& dove) {
    const EsitoMultiruota e = RicercaMultiruota(s, p);
    const EsitoMultiruota l = test::RicercaMultiruotaLetterale(s, p);
    ASSERT_EQ(e.cicli, l.cicli) << dove;
    ASSERT_EQ(e.sortite, l.sortite) << dove;
    ASSERT_EQ(e.cicliRuota, l.cicliRuota) << dove;
    ASSERT_EQ(e.righe, l.righe) << dove;
    ASSERT_EQ(e.ruotaMigliore, l.ruotaMigliore) << dove;
}

TEST(Multiruota, ComeLaLetterale) {
    std::mt19937 g(11);
    for (int caso = 0; caso < 30; ++caso) {
        const archives::StoriaLotto s = test::StoriaCasuale(g, {.anni = 2});
        ParametriMultiruota p;
        p.Base = s.NumeroEstrazioni() - static_cast<int32_t>(g() % 20);
        p.RuotaRicerca = 1 + static_cast<int>(g() % 11);
        p.TipoRicerca = static_cast<TipoMultiruota>(g() % 4);
        p.Volte = 1 + static_cast<int>(g() % 25);
        p.Estrazioni = static_cast<int>(g() % 4 == 0 ? 0 : g() % 15);
        p.Classifica = static_cast<int>(g() % 2);
        ConfrontaMultiruota(s, p, fmt::format("caso {}", caso));
        if (HasFatalFailure()) return;
    }
}

TEST(Multiruota, CasiLimite) {
    std::mt19937 g(2);
    const archives::StoriaLotto s = test::StoriaCasuale(g);
    ParametriMultiruota p;
    p.Base = s.NumeroEstrazioni();
    p.Volte = 0;
    EXPECT_EQ(RicercaMultiruota(s, p).errore.testo, MessaggioVolte);
    EXPECT_EQ(NonSfaldati(s, p, p.Base).errore.testo, MessaggioVolte);
    // Estrazioni 0 at the last draw: its cycle reaches the end with no hit and does not count.
    p.Volte = 1;
    p.Estrazioni = 0;
    p.RuotaRicerca = 3;
    p.TipoRicerca = TipoMultiruota::Terni;
    const EsitoMultiruota e = RicercaMultiruota(s, p);
    for (size_t f = 0; f < e.formazioni.size(); ++f) {
        EXPECT_LE(e.cicli[f], 1);
        if (e.cicli[f] == 1) {
            int sortite = 0;
            for (int v : e.sortite[f]) sortite += v;
            EXPECT_GE(sortite, 1);
        }
    }
    // "Ambi in terzina" needs two of the three numbers, "Terni" all three.
    std::vector<archives::RecordEstrazione> rec(2);
    const int a[5] = {1, 2, 3, 4, 5}, b[5] = {1, 2, 40, 41, 42};
    for (int k = 0; k < 5; ++k)
        rec[0].Ruota[0][k] = static_cast<uint8_t>(a[k]), rec[1].Ruota[5][k] = static_cast<uint8_t>(b[k]);
    rec[0].impostaData({2, 1, 2020});
    rec[1].impostaData({3, 1, 2020});
    const archives::StoriaLotto due(rec);
    ParametriMultiruota q;
    q.Base = 1;
    q.TipoRicerca = TipoMultiruota::AmbiInTerzina;
    q.Volte = 1;
    EsitoMultiruota t = RicercaMultiruota(due, q);
    EXPECT_EQ(t.sortite[0][6], 1);  // 1-2-3 on Napoli by 1 and 2
    EXPECT_EQ(t.righe[0].celle[1].testo, "100,0% Napoli");
    q.TipoRicerca = TipoMultiruota::Terni;
    t = RicercaMultiruota(due, q);
    EXPECT_EQ(t.sortite[0][6], 0);
    EXPECT_EQ(t.righe[0].celle.size(), 11u);  // ten wheels, the eleventh falls off
    const EsitoDettaglio d = DettaglioFormazione(due, q, 0);
    ASSERT_EQ(d.righe.size(), 2u);
    EXPECT_EQ(d.righe[1].celle[0].testo, "N.D.");
}

TEST(Multiruota, ArchivioRealeComeLaLetterale) {
    GORGO_RICHIEDI_ARCHIVI_REALI(reale);
    const archives::Archivio a = archives::Archivio::Apri(reale);
    const auto s = a.Storia();
    ParametriMultiruota p;
    p.Base = s->NumeroEstrazioni();
    for (int tipo = 0; tipo < 4; ++tipo) {
        p.TipoRicerca = static_cast<TipoMultiruota>(tipo);
        p.Classifica = tipo % 2;
        ConfrontaMultiruota(*s, p, fmt::format("tipo {}", tipo));
    }
    p.Estrazioni = 0;
    p.TipoRicerca = TipoMultiruota::Ambi;
    ConfrontaMultiruota(*s, p, "estrazioni 0");
}

TEST(SommaCinquine, SpostamentiEConvergenze) {
    EXPECT_EQ(Sposta(90, 1), 1);
    EXPECT_EQ(CinquineSpostate({1, 2, 3, 4, 91}).errore.testo, MessaggioNumeriErrati);
    const EsitoCinquine c = CinquineSpostate({5, 10, 88, 90, 1});
    ASSERT_EQ(c.righe.size(), 90u);
    EXPECT_EQ(c.righe[0], "06 11 89 01 02");
    EXPECT_EQ(Convergenze({c.righe[0]}), std::vector<std::string>{std::string(NessunaConvergenza)});
    // 5-10 in one line and 10-5 in another are the same ambo.
    EXPECT_EQ(Convergenze({"05 10 20 30 40", "10 05 21 31 41"}).front(), "Ambo  5-10 : 2 presenze");
    archives::RecordEstrazione r;
    for (int w = 0; w < 11; ++w)
        for (int k = 0; k < 5; ++k) r.Ruota[w][k] = static_cast<uint8_t>(1 + (w * 7 + k * 13) % 90);
    EXPECT_EQ(CinquineSomma(r, 0).righe.size(), 990u);
    EXPECT_EQ(CinquineSomma(r, 91).errore.testo, MessaggioSommaErrata);
    r.Ruota[3][2] = 0;
    EXPECT_EQ(CinquineSomma(r, 4).righe.size(), 10u);
    std::mt19937 g(9);
    for (int caso = 0; caso < 20; ++caso) {
        std::vector<std::string> righe;
        const int quante = 1 + static_cast<int>(g() % 200);
        for (int k = 0; k < quante; ++k) {
            // Five different numbers, as a shift never repeats one.
            std::vector<int> n = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 89, 90};
            std::shuffle(n.begin(), n.end(), g);
            righe.push_back(fmt::format("{:02} {:02} {:02} {:02} {:02}", n[0], n[1], n[2], n[3], n[4]));
        }
        if (caso == 0) righe.push_back("bad line");
        ASSERT_EQ(Convergenze(righe), test::ConvergenzeLetterale(righe)) << "caso " << caso;
    }
}

TEST(SommaCinquine, ArchivioRealeComeLaLetterale) {
    GORGO_RICHIEDI_ARCHIVI_REALI(reale);
    const archives::Archivio a = archives::Archivio::Apri(reale);
    const auto s = a.Storia();
    const EsitoCinquine c = CinquineSomma((*s)[s->NumeroEstrazioni()], 0);
    EXPECT_EQ(c.righe.size(), 990u);
    EXPECT_EQ(Convergenze(c.righe), test::ConvergenzeLetterale(c.righe));
}

TEST(ComandiStudi, SulleCartelleReali) {
    GORGO_RICHIEDI_ARCHIVI_REALI(reale);
    const std::string cartella = reale.string();
    test::Esito e = test::Esegui({"--cartella", cartella, "--json", "punti-incogniti", "10779", "--ruota", "BA",
                                  "--storica", "--da", "01/12/2025", "--tutte-le-vincite"});
    ASSERT_EQ(e.codice, 0) << e.err;
    const auto j = nlohmann::json::parse(e.out);
    EXPECT_EQ(j["serie"]["punti"].size(), 5u);
    EXPECT_EQ(j["serie"]["somma_ignota"], j["somma_ignota_calcolo"]);
    EXPECT_TRUE(j.contains("giocate") && j.contains("in_gioco") && j.contains("somma_colpi"));
    EXPECT_EQ(j["righe"].back()["testo"][5], "Totali");
    e = test::Esegui({"--cartella", cartella, "punti-incogniti", "10779", "--colpi", "1000"});
    EXPECT_EQ(e.codice, 2);
    EXPECT_NE(e.err.find("Inserisci il n. di colpi"), std::string::npos);
    e = test::Esegui({"--cartella", cartella, "quaterna", "--ambo", "12-12"});
    EXPECT_EQ(e.codice, 2);
    e = test::Esegui({"--cartella", cartella, "quaterna", "--ruote", "tutte", "--da", "01/01/2025"});
    EXPECT_EQ(e.codice, 2);
    EXPECT_NE(e.err.find("E' necessario selezionare due numeri !"), std::string::npos);
    e = test::Esegui({"--cartella", cartella, "--json", "quaterna", "--ambo", "34-12", "--da", "01/01/2020"});
    ASSERT_EQ(e.codice, 0) << e.err;
    EXPECT_EQ(nlohmann::json::parse(e.out)["ambo"][0]["testo"][0], "12-34");
    e = test::Esegui({"--cartella", cartella, "somma-cinquine", "10779", "--costante", "91"});
    EXPECT_EQ(e.codice, 2);
    EXPECT_NE(e.err.find("Numero errato!"), std::string::npos);
    e = test::Esegui({"--cartella", cartella, "multiruota", "10779", "--volte", "0"});
    EXPECT_EQ(e.codice, 2);
    EXPECT_NE(e.err.find(MessaggioVolte), std::string::npos);
}

}  // namespace
}  // namespace gorgo::studies
