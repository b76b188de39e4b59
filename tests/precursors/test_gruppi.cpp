// The search of the formation groups against its literal twin on random archives and on the
// real one, and the group library's saving and deleting.

#include <gtest/gtest.h>

#include <fmt/format.h>
#include <nlohmann/json.hpp>
#include <numeric>
#include <random>

#include "archives/archivio.h"
#include "precursors/gruppi.h"
#include "precursors/gruppi_letterale.h"
#include "support/archivi_reali.h"
#include "support/cartelle.h"
#include "support/casuali.h"
#include "support/cli.h"

namespace gorgo::precursors {
namespace {

void Confronta(const EsitoGruppi& v, const EsitoGruppi& l, const std::string& dove) {
    ASSERT_EQ(v.errore.testo, l.errore.testo) << dove;
    ASSERT_EQ(v.focus, l.focus) << dove;
    ASSERT_EQ(v.avviso.testo, l.avviso.testo) << dove;
    ASSERT_EQ(v.inizio, l.inizio) << dove;
    ASSERT_EQ(v.descrizioneStatistica, l.descrizioneStatistica) << dove;
    ASSERT_EQ(v.descrizioneVerifica, l.descrizioneVerifica) << dove;
    ASSERT_EQ(v.titoli, l.titoli) << dove;
    auto uguali = [&](const std::vector<RigaGruppi>& a, const std::vector<RigaGruppi>& b, const char* lista) {
        ASSERT_EQ(a.size(), b.size()) << dove << " " << lista;
        for (size_t i = 0; i < a.size(); ++i)
            ASSERT_EQ(std::tie(a[i].voce, a[i].chiave, a[i].presenze, a[i].gruppo, a[i].elemento, a[i].ricorrenze,
                               a[i].presenzeElemento, a[i].testo),
                      std::tie(b[i].voce, b[i].chiave, b[i].presenze, b[i].gruppo, b[i].elemento, b[i].ricorrenze,
                               b[i].presenzeElemento, b[i].testo))
                << dove << " " << lista << " riga " << i;
    };
    uguali(v.lista, l.lista, "lista");
    uguali(v.presenti, l.presenti, "presenti");
    ASSERT_EQ(v.formazioni.size(), l.formazioni.size()) << dove;
    for (size_t i = 0; i < v.formazioni.size(); ++i)
        ASSERT_EQ(
            std::tie(v.formazioni[i].gruppo, v.formazioni[i].elemento, v.formazioni[i].conta, v.formazioni[i].testo),
            std::tie(l.formazioni[i].gruppo, l.formazioni[i].elemento, l.formazioni[i].conta, l.formazioni[i].testo))
            << dove << " formazione " << i;
}

// The built-in groups and a few of the file's kind: elements of one to five numbers of a
// narrow range, now and then of mixed sizes in one group.
std::vector<GruppoFormazioni> LibreriaCasuale(std::mt19937& g) {
    std::string testo;
    for (int gruppo = 0; gruppo < 3; ++gruppo) {
        testo += fmt::format("[Gruppo {}]\n", gruppo + 1);
        const int dimensione = static_cast<int>(1 + g() % 4);
        for (int k = 0; k < 30; ++k) {
            std::vector<int> n(30);
            std::iota(n.begin(), n.end(), 1);
            std::shuffle(n.begin(), n.end(), g);
            n.resize(static_cast<size_t>(g() % 6 == 0 ? 1 + g() % 5 : dimensione));
            for (size_t x = 0; x < n.size(); ++x) testo += fmt::format("{}{:02}", x ? "." : "", n[x]);
            testo += "\n";
        }
    }
    EsitoLibreria e = CaricaLibreria(testo);
    EXPECT_TRUE(e.errore.vuoto()) << e.errore.testo;
    return std::move(e.gruppi);
}

TEST(DifferenzialeGruppi, ArchiviCasuali) {
    int conRighe = 0, conPresenti = 0;
    for (uint32_t seme = 1; seme <= 16; ++seme) {
        std::mt19937 g(seme);
        const archives::StoriaLotto storia = test::StoriaCasuale(g, {.anni = 1, .ultimoAnno = 2010});
        const auto lib = LibreriaCasuale(g);
        const int32_t n = storia.NumeroEstrazioni();
        auto tra = [&](int a, int b) { return std::uniform_int_distribution<int>(a, b)(g); };
        for (int caso = 0; caso < 3; ++caso) {
            const int ruota = tra(1, 11);
            ParametriGruppi p;
            p.Fine = tra(n / 2, n);
            p.Inizio = std::max(1, p.Fine - tra(0, 60));
            p.IndiceVerifica = std::min(n, p.Fine + tra(0, 8));
            p.Precedenti = tra(1, 12) == 1 ? tra(0, 100) : tra(1, 8);
            p.Successivi = tra(1, 12) == 1 ? tra(0, 100) : tra(1, 8);
            p.PresenzeMinime = tra(1, 12) == 1 ? tra(0, 100) : tra(1, 3);
            p.Risultati = tra(1, 10);
            p.sorte = tra(0, 2) == 0 ? Sorte::Ambi : Sorte::Ambate;
            if (tra(0, 1))
                for (int x = 1; x <= 90; ++x) p.Considerato[static_cast<size_t>(x)] = tra(0, 3) != 0;
            // Ferrani, the pairs (only with few sought items) and the file's groups.
            for (int gr : {0, 3, 4, 5})
                if (tra(0, 2) != 0) p.Gruppi.push_back(gr);
            if (p.sorte == Sorte::Ambate && tra(0, 3) == 0)
                p.Gruppi.insert(p.Gruppi.begin() + (p.Gruppi.empty() || p.Gruppi[0] != 0 ? 0 : 1), 1);
            const FonteEstrazioni fonte = FonteEstrazioni::Lotto(storia, ruota);
            const std::string dove =
                fmt::format("seme {} caso {} ruota {} da {} a {} ver {} prec {} succ {} min {} ris {} ambi {}", seme,
                            caso, ruota, p.Inizio, p.Fine, p.IndiceVerifica, p.Precedenti, p.Successivi,
                            p.PresenzeMinime, p.Risultati, p.sorte == Sorte::Ambi);
            const EsitoGruppi e = AnalisiGruppi(p, fonte, lib);
            Confronta(e, test::AnalisiGruppiLetterale(p, storia, ruota, lib), dove);
            if (HasFatalFailure()) return;
            conRighe += !e.lista.empty();
            conPresenti += !e.presenti.empty();
        }
    }
    EXPECT_GT(conRighe, 15);
    EXPECT_GT(conPresenti, 10);
}

TEST(DifferenzialeGruppi, TerzineIntegraliEPeso) {
    // The large group keeps the elements at half the best count; an element of one number
    // counts alone whatever PresenzeMinime.
    std::mt19937 g(9);
    const archives::StoriaLotto storia = test::StoriaCasuale(g, {.anni = 1, .ultimoAnno = 2010});
    const auto lib = GruppiPredefiniti();
    for (int minime : {1, 2, 3}) {
        ParametriGruppi p;
        p.Fine = storia.NumeroEstrazioni() - 6;
        p.Inizio = p.Fine - 40;
        p.IndiceVerifica = storia.NumeroEstrazioni();
        p.PresenzeMinime = minime;
        p.Risultati = 10;
        p.Considerato.fill(false);
        for (int x : {1, 2, 5, 7, 13}) p.Considerato[static_cast<size_t>(x)] = true;
        p.Gruppi = {0, 2};
        const FonteEstrazioni fonte = FonteEstrazioni::Lotto(storia, 1);
        const EsitoGruppi e = AnalisiGruppi(p, fonte, lib);
        Confronta(e, test::AnalisiGruppiLetterale(p, storia, 1, lib), fmt::format("minime {}", minime));
        ASSERT_FALSE(e.lista.empty());
        if (minime == 3) {
            // A triple needs all three numbers in one draw: the numbers alone lead.
            for (const RigaGruppi& r : e.lista) EXPECT_GE(r.ricorrenze, 1);
        }
    }
}

TEST(Gruppi, RifiutiEInterruzione) {
    std::mt19937 g(3);
    const archives::StoriaLotto storia = test::StoriaCasuale(g, {.anni = 1, .ultimoAnno = 2010});
    const auto lib = GruppiPredefiniti();
    const FonteEstrazioni fonte = FonteEstrazioni::Lotto(storia, 1);
    ParametriGruppi p;
    p.Inizio = 1;
    p.Fine = p.IndiceVerifica = storia.NumeroEstrazioni();
    p.PresenzeMinime = 0;
    p.Gruppi = {0};
    EXPECT_EQ(AnalisiGruppi(p, fonte, lib).errore.testo, "E' necessario considerare minimo una presaenza!");
    p.PresenzeMinime = 2;
    p.Gruppi.clear();
    EXPECT_EQ(AnalisiGruppi(p, fonte, lib).focus, "lstGruppi");
    p.Gruppi = {0};
    std::stop_source stop;
    stop.request_stop();
    const EsitoGruppi e = AnalisiGruppi(p, fonte, lib, {stop.get_token(), {}});
    EXPECT_TRUE(e.interrotta);
    EXPECT_TRUE(e.lista.empty());
}

TEST(DifferenzialeGruppi, ArchivioReale) {
    GORGO_RICHIEDI_ARCHIVI_REALI(cartella);
    const archives::Archivio archivio = archives::Archivio::Apri(cartella);
    const auto storia = archivio.Storia();
    const int32_t n = storia->NumeroEstrazioni();
    std::vector<GruppoFormazioni> lib = GruppiPredefiniti();
    const EsitoLibreria file = CaricaLibreria(
        "[Cadenze]\n10.20.30.40.50.60.70.80.90\n1.11.21.31.41.51.61.71.81\n"
        "[Gemelli]\n11.22\n33.44\n55.66\n77.88\n");
    ASSERT_TRUE(file.errore.vuoto());
    lib = file.gruppi;
    for (int caso = 0; caso < 3; ++caso) {
        const int ruota = caso == 2 ? 11 : 1;
        ParametriGruppi p;
        p.Fine = caso == 2 ? archives::PrimaEstrazioneNazionale + 100 : n - 6;
        p.Inizio = caso == 2 ? archives::PrimaEstrazioneNazionale - 50 : p.Fine - (caso == 0 ? 1500 : 300);
        p.IndiceVerifica = caso == 2 ? p.Fine + 6 : n;
        p.sorte = caso == 1 ? Sorte::Ambi : Sorte::Ambate;
        p.Risultati = 3;
        p.Gruppi = caso == 1 ? std::vector<int>{0, 3, 4} : std::vector<int>{0, 1, 3, 4};
        const FonteEstrazioni fonte = FonteEstrazioni::Lotto(*storia, ruota);
        const EsitoGruppi e = AnalisiGruppi(p, fonte, lib);
        Confronta(e, test::AnalisiGruppiLetterale(p, *storia, ruota, lib), fmt::format("reale {}", caso));
        if (HasFatalFailure()) return;
        EXPECT_FALSE(e.lista.empty());
    }
}

}  // namespace
}  // namespace gorgo::precursors

namespace gorgo::precursors {
namespace {

TEST(Formazioni, SalvaEdEliminaGruppi) {
    const std::string file = "[Cadenze]\r\n10.20.30\r\n1.11.21\r\n[Gemelli]\r\n11.22\r\n";
    // A new group goes at the end and reads back; an existing one asks first, then is replaced in place.
    EsitoFileGruppi s = SalvaGruppo(file, "Mie", {{3, 7, 45}, {9, 12}});
    ASSERT_TRUE(s.errore.vuoto());
    EXPECT_EQ(s.esito.testo, "Memorizzazione effettuata!");
    EsitoLibreria l = CaricaLibreria(s.testo);
    ASSERT_TRUE(l.errore.vuoto()) << l.errore.testo;
    ASSERT_EQ(l.gruppi.size(), 6u);
    EXPECT_EQ(l.gruppi[5].Nome, "Mie");
    EXPECT_EQ(l.gruppi[5].Elementi, (std::vector<std::vector<int>>{{3, 7, 45}, {9, 12}}));
    s = SalvaGruppo(s.testo, "Cadenze", {{5}});
    EXPECT_EQ(s.domanda.testo, "La formazione numerica Cadenze è già esistente. Sovrascrivi ?");
    EXPECT_TRUE(s.testo.empty());
    s = SalvaGruppo(SalvaGruppo(file, "Mie", {{1, 2}}).testo, "Cadenze", {{5}}, true);
    l = CaricaLibreria(s.testo);
    ASSERT_EQ(l.gruppi.size(), 6u);
    EXPECT_EQ(l.gruppi[3].Nome, "Cadenze");
    EXPECT_EQ(l.gruppi[3].Elementi, (std::vector<std::vector<int>>{{5}}));
    EXPECT_EQ(l.gruppi[4].Elementi, (std::vector<std::vector<int>>{{11, 22}}));
    // Deleting asks, then leaves the others as they were.
    EsitoFileGruppi d = EliminaGruppo(s.testo, "Cadenze");
    EXPECT_EQ(d.domanda.testo, "Eliminare la formazione numerica Cadenze dal file ?");
    d = EliminaGruppo(s.testo, "Cadenze", true);
    EXPECT_EQ(d.testo, "[Gemelli]\r\n11.22\r\n[Mie]\r\n01.02\r\n");
    EXPECT_EQ(EliminaGruppo(d.testo, "Cadenze", true).errore.testo,
              "La formazione numerica Cadenze non esiste nel file!");
    // Refusals write nothing.
    EXPECT_EQ(SalvaGruppo(file, "Mie", {}).errore.testo, "E' necessario prima validare le formazioni inserite!");
    EXPECT_FALSE(SalvaGruppo(file, "a]b", {{1}}).errore.vuoto());
    EXPECT_FALSE(SalvaGruppo(file, "Ambi integrali", {{1}}).errore.vuoto());
}

}  // namespace
}  // namespace gorgo::precursors

namespace gorgo::precursors {
namespace {

TEST(Gruppi, RigaDiComandoSullArchivioReale) {
    GORGO_RICHIEDI_ARCHIVI_REALI(cartella);
    const std::string c = cartella.string();
    const test::CartellaTemporanea t;
    const std::string file = (t / "Formazioni.txt").string();
    // A group saved, refused a second time without the answer, then searched with the built-in ones.
    test::Esito e =
        test::Esegui({"--cartella", c, "formazioni", "10.20.30\n1.11.21", "--salva-gruppo", "Cadenze", "--file", file});
    ASSERT_EQ(e.codice, 0) << e.err;
    e = test::Esegui({"--cartella", c, "formazioni", "5", "--salva-gruppo", "Cadenze", "--file", file});
    EXPECT_EQ(e.codice, 2);
    EXPECT_NE(e.err.find("Sovrascrivi ?"), std::string::npos);
    EXPECT_EQ(test::LeggiFile(file), "[Cadenze]\r\n10.20.30\r\n01.11.21\r\n");
    e = test::Esegui({"--cartella", c, "--json", "precursori-gruppi", "--ruota", "BA", "--gruppi",
                      "Tabellone Ferrani,Cadenze", "--risultati", "3", "--file", file});
    ASSERT_EQ(e.codice, 0) << e.err;
    const auto j = nlohmann::json::parse(e.out);
    ASSERT_EQ(j["lista"].size(), 270u);
    EXPECT_EQ(j["lista"][0]["testo"].size(), 6u);
    EXPECT_FALSE(j["formazioni"].empty());
    e = test::Esegui({"--cartella", c, "precursori-gruppi", "--ruota", "BA", "--elementi", "7", "--file", file});
    EXPECT_EQ(e.codice, 2);
    EXPECT_NE(e.err.find("E' necessario selezionare almeno una formazione numerica"), std::string::npos);
    e = test::Esegui({"--cartella", c, "formazioni", "--elimina-gruppo", "Cadenze", "--file", file, "--conferma"});
    ASSERT_EQ(e.codice, 0) << e.err;
    EXPECT_EQ(test::LeggiFile(file), "");
}

}  // namespace
}  // namespace gorgo::precursors
