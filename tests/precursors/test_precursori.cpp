// The rules of the procedures on small hand-made archives, where the expected rows can be
// worked out by hand, and the parser of typed formations.

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "archives/archivio.h"
#include "precursors/analisi.h"
#include "precursors/formazioni.h"
#include "support/archivi_reali.h"
#include "support/cli.h"

namespace gorgo::precursors {
namespace {

// Wheel Bari of each draw as given (an empty list leaves the wheel empty); other wheels empty.
archives::StoriaLotto Storia(const std::vector<std::vector<int>>& bari) {
    std::vector<archives::RecordEstrazione> r(bari.size());
    archives::Data d{2, 1, 2001};
    for (size_t i = 0; i < bari.size(); ++i) {
        r[i].impostaData(d);
        r[i].NumeroAnno = static_cast<uint8_t>(i + 1);
        d = archives::Data::daGiorni(d.giorni() + 2);
        for (size_t k = 0; k < bari[i].size(); ++k) r[i].Ruota[0][k] = static_cast<uint8_t>(bari[i][k]);
    }
    return archives::StoriaLotto(std::move(r));
}

ParametriPrecursori Periodo(int32_t da, int32_t a, int32_t verifica, int precedenti = 1) {
    ParametriPrecursori p;
    p.Inizio = da;
    p.Fine = a;
    p.IndiceVerifica = verifica;
    p.Precedenti = precedenti;
    p.Successivi = 1;
    return p;
}

const RigaPrecursori* Riga(const EsitoPrecursori& e, const std::string& voce) {
    for (const auto& r : e.lista)
        if (r.voce == voce) return &r;
    return nullptr;
}

TEST(Precursori, PrimaEstrazioneERuotaVuotaNelCammino) {
    // 7 hits draws 1, 3 and 5. Draw 1 has nothing before it; draw 4 is empty and uses up the
    // one step back of the hit at 5, so only draw 2 gives precursors.
    const auto s = Storia(
        {{7, 1, 2, 3, 4}, {10, 11, 12, 13, 14}, {7, 20, 21, 22, 23}, {}, {7, 30, 31, 32, 33}, {50, 51, 52, 53, 54}});
    const EsitoPrecursori e = AnalisiPrecursori(Periodo(1, 5, 6), FonteEstrazioni::Lotto(s, 1));
    const RigaPrecursori* r = Riga(e, "7");
    ASSERT_NE(r, nullptr);
    EXPECT_EQ(r->presenze, 3);
    // Five precursors with one hit each, the higher number first: 5 / 3 / 5.
    EXPECT_EQ(r->precursori, (std::vector<int>{14, 13, 12, 11, 10}));
    EXPECT_EQ(r->testo[2], " 14 - 13 - 12 - 11 - 10 ");
    EXPECT_EQ(r->testo[3], " 33,33%");
    // One presenza makes no row.
    EXPECT_EQ(Riga(e, "1"), nullptr);
    EXPECT_EQ(e.descrizioneStatistica, "Rilevazione precursori dal 02/01/2001 al 10/01/2001 nei 1 colpi precedenti");
}

TEST(Precursori, NoveePrecursoriEPareggiAlTaglio) {
    // 9 hits twice, each time after 1..5 and 6..10: counts tie at 2 for 1..5 (seen before both)
    // and 1 for 6, 7, 8, 10 and 44; with nine kept the cut falls inside the count 1, higher first.
    const auto s =
        Storia({{1, 2, 3, 4, 5}, {9, 40, 41, 42, 43}, {1, 2, 3, 4, 5}, {6, 7, 8, 10, 44}, {9, 45, 46, 47, 48}});
    ParametriPrecursori p = Periodo(1, 5, 5, 2);
    p.NumPrecursori = 9;
    const EsitoPrecursori e = AnalisiPrecursori(p, FonteEstrazioni::Lotto(s, 1));
    const RigaPrecursori* r = Riga(e, "9");
    ASSERT_NE(r, nullptr);
    EXPECT_EQ(r->precursori, (std::vector<int>{5, 4, 3, 2, 1, 44, 10, 8, 7}));
}

TEST(Precursori, AmboConCinqueESeiPresenzeEColonnaStretta) {
    // 1-2 comes out six times, 3-4 five times; 61 and 62 stand before every hit, 60 before
    // all but the first, 81 before the first only; all four are drawn in the verification.
    std::vector<std::vector<int>> d = {{70, 61, 62, 80, 81}};
    for (int k = 0; k < 6; ++k) {
        d.push_back(k < 5 ? std::vector<int>{1, 2, 3, 4, 5} : std::vector<int>{1, 2, 30, 31, 32});
        d.push_back({60, 61, 62, 40 + k, 50 + k});
    }
    d.back() = {60, 61, 62, 81, 84};  // the verification draw
    const auto s = Storia(d);
    ParametriPrecursori p = Periodo(1, static_cast<int32_t>(d.size()) - 1, static_cast<int32_t>(d.size()));
    p.sorte = Sorte::Ambi;
    p.NumPrecursori = 4;
    const EsitoPrecursori e = AnalisiPrecursori(p, FonteEstrazioni::Lotto(s, 1));
    EXPECT_EQ(Riga(e, "3 - 4"), nullptr);
    const RigaPrecursori* r = Riga(e, "1 - 2");
    ASSERT_NE(r, nullptr);
    EXPECT_EQ(r->presenze, 6);
    ASSERT_FALSE(e.presenti.empty());
    const RigaPresenti& x = e.presenti.front();
    EXPECT_EQ(x.voce, "1 - 2");
    EXPECT_EQ(x.testo[0], "   1 -  2");
    // The sixth column reads only the first present precursor: 62, six hits of six.
    EXPECT_EQ(r->precursori, (std::vector<int>{62, 61, 60, 81}));
    EXPECT_EQ(x.testo[1], "  4 (62-61-60-81)");
    EXPECT_EQ(x.testo[5], "100,0%");
}

TEST(Formazioni, AllargamentoDaQuattroEFormazioniCorte) {
    // Precursors 1..5 before every hit of every formation; the verification draw holds 1..4.
    std::vector<std::vector<int>> d;
    for (int k = 0; k < 4; ++k) {
        d.push_back({1, 2, 3, 4, 5});
        d.push_back({20 + k, 30 + k, 40 + k, 50 + k, 60 + k});
    }
    d.push_back({1, 2, 3, 4, 89});
    const auto s = Storia(d);
    ParametriPrecursori p = Periodo(1, 8, 9);
    p.MinimoNumeri = 2;
    p.PresenzeMinime = 1;
    const FonteEstrazioni f = FonteEstrazioni::Lotto(s, 1);
    // Formations of two numbers out of the hit draws: all share the counts 4 of 1..4 at the top.
    const Formazioni fz = {{20, 30}, {21, 31}, {22, 32}, {23, 33}, {7}};
    const EsitoPrecursori q = AnalisiFormazioni(p, f, fz);
    EXPECT_EQ(q.domanda.testo, "Attenzione! Non verranno considerati\nAmbate \n\nConfermi ?");
    const EsitoPrecursori e = AnalisiFormazioni(p, f, fz, true);
    ASSERT_TRUE(e.errore.vuoto()) << e.errore.testo;
    EXPECT_EQ(e.lista.size(), 4u);
    ASSERT_EQ(e.presenti.size(), 4u);
    EXPECT_EQ(e.presenti[0].voce, "23.33");  // equal counts: the later formation first
    EXPECT_EQ(e.presenti[0].testo[1], " 4 -  3 -  2 -  1");
    EXPECT_EQ(e.titoliPresenti[5], "I.C.");
}

TEST(Formazioni, ValidazioneDelTestoIncollato) {
    EsitoValidazione v = ValidaFormazioni("7-12,45;3\r\n07 012\r\na1\r\n0\r\n\r\n", false);
    ASSERT_TRUE(v.errore.vuoto()) << v.errore.testo;
    EXPECT_EQ(v.righe, (std::vector<std::string>{"3.7.12.45", "7.12"}));
    EXPECT_EQ(v.scartate, 1);
    EXPECT_EQ(v.riepilogo.testo,
              "Sono stati processati: \n\n1  Ambi\n1  Quartine\n\nTotale 2 formazioni\n\nSono state scartate 1 "
              "righe non valide\n");
    EXPECT_EQ(ValidaFormazioni("1 2\n5.5", false).errore.testo, "Numeri ripetuti nella riga 2");
    EXPECT_EQ(ValidaFormazioni("91", false).errore.testo, "Numero errato nella riga 1");
    EXPECT_EQ(ValidaFormazioni("1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20 21", false).errore.testo,
              "Numero elementi troppo elevato (oltre ventina) nella riga 1");
    EXPECT_EQ(ValidaFormazioni("", false).errore.testo, "Nessuna formazione da validare!");
    EXPECT_EQ(ValidaFormazioni("x", false).errore.testo, "Nessuna formazione valida!");
    v = ValidaFormazioni("1 2\n2 1\n1 2", true);
    EXPECT_EQ(v.righe.size(), 1u);
    EXPECT_EQ(v.doppie, 2);
    EXPECT_EQ(ValidaFormazioni("1 2\n2 1\n1 2", false).righe.size(), 3u);
    std::string molte;
    for (int i = 0; i <= MassimoFormazioni; ++i) molte += "1\n";
    EXPECT_EQ(ValidaFormazioni(molte, false).errore.testo, "Numero di formazioni troppo elevato (Max 32.000) !");
    molte.resize(molte.size() - 2);
    EXPECT_TRUE(ValidaFormazioni(molte, false).errore.vuoto());
}

TEST(Saruni, PrevisioneDeiCompagniInRitardo) {
    // 7 comes out in draws 1, 3 and 6: 8 with it in 1 and 3 (gap of one draw, then four since),
    // 9 with it in 1 only (then five draws), 10 never with it.
    const auto s = Storia({{7, 8, 9, 1, 2},
                           {10, 11, 12, 13, 14},
                           {7, 8, 20, 21, 22},
                           {30, 31, 32, 33, 34},
                           {40, 41, 42, 43, 44},
                           {7, 50, 51, 52, 53}});
    const EsitoPrevisione e = PrevisioneSaruni(FonteEstrazioni::Lotto(s, 1), 1, 6, 15, 7, 0);
    ASSERT_TRUE(e.errore.vuoto());
    EXPECT_EQ(e.descrizione, "Ambata selezionata");
    auto riga = [&](int n) {
        for (const auto& r : e.righe)
            if (r.numero == n) return r.testo;
        return std::array<std::string, 4>{};
    };
    EXPECT_EQ(riga(8), (std::array<std::string, 4>{" 8", "   1", "   3", "  3,00"}));
    EXPECT_EQ(riga(9), (std::array<std::string, 4>{" 9", "  --", "   5", "    --"}));
    // Ranked by the ratio (the delay alone for 9, 2 and 1, the higher first), never-seen
    // numbers last, the lowest at the bottom.
    std::vector<int> primi;
    for (size_t i = 0; i < 5; ++i) primi.push_back(e.righe[i].numero);
    EXPECT_EQ(primi, (std::vector<int>{9, 2, 1, 8, 22}));
    EXPECT_EQ(e.righe.back().numero, 3);
    EXPECT_EQ(e.righe.size(), 89u);
    EXPECT_EQ(PrevisioneSaruni(FonteEstrazioni::Lotto(s, 1), 1, 6, 0, 7, 0).errore.testo,
              "Inserire il n. di anni desiderato");
    EXPECT_EQ(PrevisioneSaruni(FonteEstrazioni::Lotto(s, 1), 1, 6, 15, 91, 0).focus, "txtNum_0");
}

TEST(Formazioni, FileDeiGruppi) {
    EsitoLibreria l = CaricaLibreria("[Gemelli]\r\n01.02\r\n\r\n03.04\r\n[Cadenze 1]\r\n1.11.21.31\r\n");
    ASSERT_TRUE(l.errore.vuoto()) << l.errore.testo;
    ASSERT_EQ(l.gruppi.size(), 5u);
    EXPECT_EQ(l.gruppi[2].testo(3), (std::array<std::string, 4>{"Terzine integrali", "    3", " 117480", "  3"}));
    EXPECT_EQ(l.gruppi[3].Elementi, (std::vector<std::vector<int>>{{1, 2}, {3, 4}}));
    EXPECT_EQ(l.gruppi[4].campione, " 1.11.21.31");
    // Elements before any header go to the last group open, the built-in triples.
    EXPECT_EQ(CaricaLibreria("5.6.7\n").gruppi[2].Elementi.size(), 117481u);
    EXPECT_EQ(CaricaLibreria("[Vuota]\n\n1.2\n").errore.testo, "La formazione Vuota non contiene elementi validi!");
    EXPECT_EQ(CaricaLibreria("[A]\n1.2\n[B]\n").errore.testo, "La formazione B non contiene elementi validi!");
    l = CaricaLibreria("[Doppi]\n1.2\n3.3\n");
    EXPECT_EQ(l.errore.testo,
              "Attenzione: ci sono valori errati o uguali per la formazione numerica Doppi - Elemento n. 2");
    EXPECT_EQ(CaricaLibreria("[F]\n1.91\n").errore.icona, archives::Icona::Stop);
}

TEST(Precursori, RifiutiNellOrdineDelloSchermo) {
    const auto s = Storia({{1, 2, 3, 4, 5}});
    const FonteEstrazioni f = FonteEstrazioni::Lotto(s, 1);
    ParametriPrecursori p = Periodo(1, 1, 1);
    p.Precedenti = 0;
    p.NumPrecursori = 10;
    EXPECT_EQ(AnalisiPrecursori(p, f).focus, "txtPrecedenti");
    p.Precedenti = 6;
    EXPECT_EQ(AnalisiPrecursori(p, f).errore.testo, "Inserire il numero di precursori!");
    p.NumPrecursori = 9;
    p.Successivi = 0;
    EXPECT_EQ(AnalisiPrecursori(p, f).focus, "txtSuccessivi");
    p.Successivi = 1;
    p.MinimoNumeri = 6;
    EXPECT_EQ(AnalisiFormazioni(p, f, {{1, 2}}).focus, "txtNumeriInFormazione");
    EXPECT_EQ(AnalisiFormazioni(p, f, {}).errore.testo, "Nessuna formazione inserita e validata!");
}

TEST(Precursori, RigaDiComandoSullArchivioReale) {
    GORGO_RICHIEDI_ARCHIVI_REALI(cartella);
    const std::string c = cartella.string();
    test::Esito e = test::Esegui({"--cartella", c, "--json", "precursori", "--ruota", "NZ", "--da", "01/01/2004", "--a",
                                  "01/06/2005", "--verifica", "30/06/2005", "--sorte", "ambi"});
    ASSERT_EQ(e.codice, 0) << e.err;
    const auto j = nlohmann::json::parse(e.out);
    EXPECT_EQ(j["avviso"], AvvisoNazionale());
    EXPECT_EQ(j["descrizione_verifica"].get<std::string>().substr(0, 33), "Verifica presenze precursori dal ");
    ASSERT_TRUE(j["lista"].is_array());
    for (const auto& r : j["lista"]) EXPECT_EQ(r["testo"].size(), 4u);
    e = test::Esegui({"--cartella", c, "precursori", "--gioco", "superenalotto", "--precursori", "0"});
    EXPECT_EQ(e.codice, 2);
    EXPECT_NE(e.err.find("Inserire il numero di precursori!"), std::string::npos);
    e = test::Esegui({"--cartella", c, "precursori", "--da", "31/02/2020"});
    EXPECT_EQ(e.codice, 2);
    // The personalised command with no option is the classic one.
    EXPECT_EQ(test::Esegui({"--cartella", c, "precursori-saruni"}).out,
              test::Esegui({"--cartella", c, "precursori"}).out);
    EXPECT_EQ(test::Esegui(
                  {"--cartella", c, "precursori-saruni", "--posizioni", "13", "--precursori-ambi", "--ambi-adiacenti"})
                  .codice,
              2);
    e = test::Esegui({"--cartella", c, "--json", "precursori", "--gioco", "10elotto"});
    ASSERT_EQ(e.codice, 0) << e.err;
    EXPECT_FALSE(nlohmann::json::parse(e.out)["presenti"].empty());
}

}  // namespace
}  // namespace gorgo::precursors
