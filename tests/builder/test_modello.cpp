#include <gtest/gtest.h>

#include <fstream>
#include <random>
#include <set>

#include "builder/chiavi.h"
#include "builder/modello.h"
#include "builder/terzine.h"
#include "support/cartelle.h"

namespace gorgo::builder {
namespace {

using V = std::vector<int>;
constexpr std::array<Operazione, 3> Tutte{Operazione::Piu, Operazione::Meno, Operazione::Per};
const CodaChiave CodaNumero{5, "11111", '3'};
const CodaChiave CodaSomma{27, "", ' '};
const CodaChiave CodaAmbo{12, "11000", '1', 34, '2', true};

void Poni(archives::RecordEstrazione& r, int cella, int valore) {
    r.Ruota[RuotaDiCella(cella) - 1][PosizioneDiCella(cella) - 1] = static_cast<uint8_t>(valore);
}
int Valore(const archives::RecordEstrazione& r, int cella) {
    return r.Numero(RuotaDiCella(cella), PosizioneDiCella(cella));
}

TEST(ModelloOperazioni, CasiLimiteETutteLeCoppie) {
    EXPECT_EQ(OperaPiu(90, 90), 90);
    EXPECT_EQ(OperaMeno(5, 5), 90);
    EXPECT_EQ(OperaMeno(3, 5), 88);
    EXPECT_EQ(OperaPer(9, 10), 90);
    EXPECT_EQ(OperaPer(45, 2), 90);
    // Every pair: the result lies in 1..90 and is the true result modulo 90.
    for (int a = 1; a <= 90; ++a)
        for (int b = 1; b <= 90; ++b) {
            const std::array<int, 3> vero{a + b, a - b, a * b};
            for (size_t i = 0; i < 3; ++i) {
                const int r = Opera(Tutte[i], a, b);
                ASSERT_TRUE(r >= 1 && r <= 90 && ((r - vero[i]) % 90 + 90) % 90 == 0) << a << ' ' << b << ' ' << i;
            }
        }
}

TEST(ModelloVertibili, RiferimentoEInvoluzione) {
    const std::vector<std::pair<int, int>> attesi{{1, 10},  {10, 1},  {12, 21}, {90, 9},  {9, 90}, {11, 19},
                                                  {19, 11}, {88, 89}, {89, 88}, {45, 54}, {80, 8}, {37, 73}};
    for (auto [n, v] : attesi) EXPECT_EQ(Vertibile(n), v) << n;
    for (int n = 1; n <= 90; ++n) {
        EXPECT_NE(Vertibile(n), n) << n;
        EXPECT_EQ(Vertibile(Vertibile(n)), n) << n;
    }
}

TEST(ModelloChiavi, LayoutLunghezzeENomi) {
    EXPECT_EQ(NomeCella(Cella(3, 3)), "3' su Firenze   ");
    EXPECT_EQ(NomeCella(55), "5' su Nazionale ");
    EXPECT_EQ(ChiaveAmbata(Cella(3, 2), Operazione::Piu, 0, 27, CodaNumero), "203+00027_05111113");
    EXPECT_EQ(ChiaveAmbata(Cella(11, 5), Operazione::Meno, Cella(1, 1), 0, CodaNumero), "511-10100_05111113");
    EXPECT_EQ(ChiaveAmbata(Cella(1, 1), Operazione::Piu, 0, 0, CodaSomma), "101+00000_27 ");
    EXPECT_EQ(ChiaveAmbi(Cella(2, 4), Operazione::Per, 7, Cella(9, 1), Operazione::Piu, 0, CodaNumero),
              "402x07109+00_05111113");
    EXPECT_EQ(ChiaveTerzina(1, 27, 55, CodaNumero), "012755_05111113");
    EXPECT_EQ(ChiaveCodice(12, 345, Operazione::Meno, CodaNumero), "120345-_05111113");
    EXPECT_EQ(ChiaveAmbata(Cella(3, 2), Operazione::Per, 0, 45, CodaAmbo), "203x00045_12110001342");
    // Lengths by kind: number spy, sum or difference spy (no positions), ambo spy.
    const std::vector<std::pair<CodaChiave, std::array<size_t, 4>>> casi{
        {CodaNumero, {18, 21, 15, 16}}, {CodaSomma, {13, 16, 10, 11}}, {CodaAmbo, {21, 24, 18, 19}}};
    for (const auto& [coda, l] : casi) {
        EXPECT_EQ(ChiaveAmbata(7, Operazione::Per, 44, 0, coda).size(), l[0]);
        EXPECT_EQ(ChiaveAmbi(7, Operazione::Piu, 3, 44, Operazione::Meno, 45, coda).size(), l[1]);
        EXPECT_EQ(ChiaveTerzina(7, 8, 9, coda).size(), l[2]);
        EXPECT_EQ(ChiaveCodice(7, 1002, Operazione::Per, coda).size(), l[3]);
    }
}

TEST(ModelloDescrizioni, FormeStampate) {
    EXPECT_EQ(DescrizioneAmbata(1, Operazione::Piu, 0, 27, false), "1' su Bari       + 27");
    EXPECT_EQ(DescrizioneAmbata(1, Operazione::Piu, 0, 0, false), "1' su Bari       +  0");
    EXPECT_EQ(DescrizioneAmbata(1, Operazione::Piu, 0, 0, true), "1' su Bari      ");
    EXPECT_EQ(DescrizioneAmbata(Cella(8, 2), Operazione::Per, Cella(10, 4), 0, false),
              "2' su Roma       x 4' su Venezia   ");
    EXPECT_EQ(DescrizioneAmbi(Cella(2, 1), Operazione::Piu, 5, Cella(6, 3), Operazione::Meno, 33, false),
              "1' su Cagliari   +  5 e 3' su Napoli     - 33");
    EXPECT_EQ(DescrizioneAmbi(Cella(2, 1), Operazione::Piu, 0, Cella(6, 3), Operazione::Piu, 0, true),
              "1' su Cagliari   e 3' su Napoli    ");
    EXPECT_EQ(DescrizioneTerzina(1, 2, 55), "1' su Bari       e 2' su Bari       e 5' su Nazionale ");
    EXPECT_EQ(DescrizioneCodice(Cella(4, 5), Operazione::Meno, 17, {12, 3, 45}),
              "5' su Genova     -12, - 3, -45 (t.17)");
}

// Build a key of every shape, read it back and compute it over random draws (some wheels
// empty): the fields and the numbers are those the key was made from.
TEST(ModelloChiavi, AndataERitornoSuEstrazioniCasuali) {
    std::mt19937 gen(20251230);
    std::uniform_int_distribution<int> cella(1, 55), k45(0, 45), op3(0, 2), numero(1, 90), terzina(1, 1002);
    TerzineRidotte terzine;
    for (int t = 1; t <= 1002; ++t) terzine.terzine.push_back({t % 90 + 1, (t * 7) % 90 + 1, (t * 13) % 90 + 1});
    const std::array<CodaChiave, 3> code{CodaNumero, CodaSomma, CodaAmbo};

    for (int giro = 0; giro < 2000; ++giro) {
        archives::RecordEstrazione e;
        for (int c = 1; c <= 55; ++c) Poni(e, c, RuotaDiCella(c) == giro % 15 ? 0 : numero(gen));
        const CodaChiave coda = code[static_cast<size_t>(giro % 3)];
        const Operazione op = Tutte[static_cast<size_t>(op3(gen))], op2 = Tutte[static_cast<size_t>(op3(gen))];
        const int c1 = cella(gen), c2 = cella(gen), c3 = cella(gen), k = k45(gen), k2 = k45(gen), t = terzina(gen);

        std::string ch = ChiaveAmbata(c1, op, 0, k, coda);
        EXPECT_EQ(NumeriAlgoritmo(ch, TipoRicerca::Ambate, e).numeri, V{Opera(op, Valore(e, c1), k)}) << ch;
        EXPECT_EQ(CalcolaTermine(ch, e).numeri, V{Opera(op, Valore(e, c1), k)}) << ch;
        auto letta = LeggiChiave(ch, TipoRicerca::Ambate);
        EXPECT_TRUE(letta.termini[0].cella == c1 && letta.termini[0].op == op && letta.termini[0].costante == k);
        ASSERT_TRUE(letta.coda);
        EXPECT_EQ(TestoCoda(*letta.coda), TestoCoda(coda));
        EXPECT_EQ(letta.coda->ambo, coda.ambo);

        ch = ChiaveAmbata(c1, op, c2, 0, coda);
        EXPECT_EQ(NumeriAlgoritmo(ch, TipoRicerca::Ambate, e).numeri, V{Opera(op, Valore(e, c1), Valore(e, c2))});
        EXPECT_EQ(LeggiChiave(ch, TipoRicerca::Ambate).termini[0].cella2, c2);

        ch = ChiaveAmbi(c2, op, k, c1, op2, k2, coda);
        const int x = Opera(op, Valore(e, c2), k), y = Opera(op2, Valore(e, c1), k2);
        EXPECT_EQ(NumeriAlgoritmo(ch, TipoRicerca::Ambi, e).numeri, (V{x, x == y ? Vertibile(x) : y})) << ch;
        EXPECT_EQ(CalcolaTermine(ch, e, true).numeri, V{x});
        EXPECT_EQ(CalcolaTermine(ch, e, false).numeri, V{y});
        letta = LeggiChiave(ch, TipoRicerca::Ambi);
        EXPECT_TRUE(letta.termini[1].cella == c1 && letta.termini[1].op == op2 && letta.termini[1].costante == k2);

        ch = ChiaveTerzina(c1, c2, c3, coda);
        EXPECT_EQ(CalcolaTerzina(ch, e).numeri, (V{Valore(e, c1), Valore(e, c2), Valore(e, c3)}));
        EXPECT_EQ(LeggiChiave(ch, TipoRicerca::TerzineTerno).celle, (std::array<int, 3>{c1, c2, c3}));

        ch = ChiaveCodice(c1, t, op, coda);
        const int v = Valore(e, c1);
        V attesi;
        for (int n : terzine.terzine[static_cast<size_t>(t)])
            attesi.push_back(op == Operazione::Per && (v == 45 || v == 90) ? v : Opera(op, v, n));
        EXPECT_EQ(NumeriAlgoritmo(ch, TipoRicerca::Codici, e, &terzine).numeri, attesi) << ch;
        EXPECT_EQ(LeggiChiave(ch, TipoRicerca::Codici).terzina, t);
    }
}

TEST(ModelloChiavi, CodaLetta) {
    auto c = LeggiCoda("120345-_01110003895");
    ASSERT_TRUE(c);
    EXPECT_TRUE(c->ambo && c->spia == 1 && c->posizioni == "11000" && c->posizioneTrovata == '3' && c->spia2 == 89 &&
                c->posizioneTrovata2 == '5');
    // No tail, a tail of another length, positions that are not flags, a spy not in digits.
    for (const char* k : {"203+00027", "203+00027_0511111", "203+00027_05121113", "203+00027_x5111113"})
        EXPECT_FALSE(LeggiCoda(k)) << k;
}

TEST(ModelloChiavi, GuastiNellOrdine) {
    const std::string capo = "Calcolo impossibile: capogioco mancante.",
                      posizione = "Calcolo impossibile: posizione non valida.",
                      ruota1 = "Calcolo impossibile: ruota 1 non valida.",
                      operazione = "Calcolo impossibile: operazione non valida.",
                      costante = "Calcolo impossibile: numero non valido (operazione).",
                      terzina = "Calcolo impossibile: terzina non valida.";
    const std::vector<std::tuple<std::string, TipoRicerca, std::string>> casi{
        {"", TipoRicerca::Ambate, capo},
        {"203+0002", TipoRicerca::Ambate, capo},
        {"012+00027_05111113", TipoRicerca::Ambate, posizione},  // position before wheel
        {"212+00027_05111113", TipoRicerca::Ambate, ruota1},
        {"200+00027_05111113", TipoRicerca::Ambate, ruota1},
        {"203/00099_05111113", TipoRicerca::Ambate, operazione},  // sign before constant
        {"203+61299_05111113", TipoRicerca::Ambate, "Calcolo impossibile: posizione 2 non valida."},
        {"203+31299_05111113", TipoRicerca::Ambate, "Calcolo impossibile: ruota 2 non valida."},
        {"203+00090_05111113", TipoRicerca::Ambate, costante},
        {"203+000 7_05111113", TipoRicerca::Ambate, costante},
        {"203+00212", TipoRicerca::Ambi, capo},  // the second rule is cut
        {"203+90109+00_05111113", TipoRicerca::Ambi, costante},
        {"203+00112+00_05111113", TipoRicerca::Ambi, ruota1},  // the second rule's own wheel
        {"203+00103*00_05111113", TipoRicerca::Ambi, operazione},
        {"012755_05", TipoRicerca::TerzineAmbo, capo},
        {"015655_05111113", TipoRicerca::TerzineTerno, posizione},
        {"120345-_0", TipoRicerca::Codici, capo},
        {"560345-_05111113", TipoRicerca::Codici, posizione},
        {"120000-_05111113", TipoRicerca::Codici, terzina},
        {"120345/_05111113", TipoRicerca::Codici, operazione},
        {"121003+_05111113", TipoRicerca::Codici, terzina},  // beyond the table
    };
    TerzineRidotte terzine;
    terzine.terzine.resize(1003, {1, 2, 3});
    const archives::RecordEstrazione e{};
    for (const auto& [chiave, tipo, messaggio] : casi) {
        const auto n = NumeriAlgoritmo(chiave, tipo, e, &terzine);
        EXPECT_EQ(n.errore.testo, messaggio) << '"' << chiave << '"';
        EXPECT_TRUE(n.numeri.empty()) << chiave;
    }
    // CalcolaTermine tells the two layouts apart by character 10.
    EXPECT_EQ(CalcolaTermine("203+00090_05111113", e).errore.testo, costante);
    EXPECT_EQ(CalcolaTermine("203+90109+00_05111113", e).errore.testo, costante);
    EXPECT_EQ(CalcolaTermine("203+00112+00_05111113", e, false).errore.testo, ruota1);
    // Without the table a code cannot be calculated; the key is checked first.
    EXPECT_EQ(NumeriAlgoritmo("120345-_05111113", TipoRicerca::Codici, e).errore.testo,
              "Calcolo impossibile: terzine ridotte non disponibili.");
    EXPECT_EQ(NumeriAlgoritmo("560345-_05111113", TipoRicerca::Codici, e).errore.testo, posizione);
}

TEST(ModelloNumeriUguali, AmbiTerzinaECodice) {
    archives::RecordEstrazione e{};
    for (auto [c, v] : std::vector<std::pair<int, int>>{{1, 45}, {6, 45}, {11, 40}, {16, 50}}) Poni(e, c, v);
    // One number from both rules, the same cell value or two rules meeting: 45 and 54.
    EXPECT_EQ(
        NumeriAlgoritmo(ChiaveAmbi(1, Operazione::Piu, 0, 6, Operazione::Piu, 0, CodaNumero), TipoRicerca::Ambi, e)
            .numeri,
        (V{45, 54}));
    EXPECT_EQ(
        NumeriAlgoritmo(ChiaveAmbi(11, Operazione::Piu, 5, 16, Operazione::Meno, 5, CodaNumero), TipoRicerca::Ambi, e)
            .numeri,
        (V{45, 54}));

    const std::vector<std::pair<V, V>> terzine{
        {{27, 27, 27}, {27, 72, 28}},                                // all equal: vertibile, then the number plus 1
        {{90, 90, 90}, {90, 9, 1}},   {{12, 30, 12}, {12, 30, 21}},  // x3 = x1 with no earlier change: vertibile
        {{5, 33, 33}, {5, 33, 39}},                                  // x3 = x2: vertibile of x2
        {{44, 44, 7}, {44, 49, 7}},   {{12, 12, 21}, {12, 21, 22}},  // after a change, a clash with x2 steps by one
    };
    for (const auto& [valori, attesi] : terzine) {
        Poni(e, 3, valori[0]);
        Poni(e, 17, valori[1]);
        Poni(e, 54, valori[2]);
        const std::string chiave = ChiaveTerzina(3, 17, 54, CodaNumero);
        EXPECT_EQ(CalcolaTerzina(chiave, e).numeri, valori);
        EXPECT_EQ(NumeriAlgoritmo(chiave, TipoRicerca::TerzineTerno, e).numeri, attesi) << valori[0];
    }

    TerzineRidotte t;
    t.terzine.push_back({2, 3, 10});
    for (auto [v, attesi] : std::vector<std::pair<int, V>>{{45, {45, 45, 45}}, {90, {90, 90, 90}}, {7, {14, 21, 70}}}) {
        Poni(e, 20, v);
        EXPECT_EQ(CalcolaCodice(ChiaveCodice(20, 1, Operazione::Per, CodaNumero), e, t).numeri, attesi);
    }
}

// ---- the file of the terzine ----

std::string Righe(int quante, const char* fine, int zeroAlla = 0) {
    std::string t;
    for (int i = 1; i <= quante; ++i) {
        char riga[16];
        std::snprintf(riga, sizeof riga, "%02d-%02d-%02d", i == zeroAlla ? 0 : i % 90 + 1, (i * 7) % 90 + 1,
                      (i * 11) % 89 + 2);
        t += riga;
        t += fine;
    }
    return t;
}

EsitoTerzine Carica(const test::CartellaTemporanea& dir, const std::string& testo) {
    std::ofstream(dir / "Terzine.txt", std::ios::binary) << testo;
    return CaricaTerzine((dir / "Terzine.txt").string());
}

TEST(ModelloTerzine, FileBuonoConteggioDiversoEMancante) {
    test::CartellaTemporanea dir;
    for (const char* fine : {"\n", "\r\n"}) {
        const auto r = Carica(dir, Righe(1002, fine) + fine);  // a final empty line too
        EXPECT_TRUE(r.valido && !r.fileMancante && r.messaggio.vuoto()) << r.messaggio.testo;
        ASSERT_EQ(r.terzine.quante(), 1002);
        EXPECT_EQ(r.terzine.terzine[1], (std::array<int, 3>{2, 8, 13}));
        EXPECT_EQ(r.terzine.terzine[1002], (std::array<int, 3>{13, 85, 77}));
    }
    // The third number is read from the last two characters, whatever stands between.
    EXPECT_EQ(Carica(dir, "01 02  ...  03").terzine.terzine.at(1), (std::array<int, 3>{1, 2, 3}));

    const auto corto = Carica(dir, Righe(1000, "\n"));
    EXPECT_TRUE(corto.valido);
    EXPECT_EQ(corto.terzine.quante(), 1000);
    EXPECT_EQ(corto.messaggio.testo, "1000 terzine caricate!\"");
    const auto vuoto = Carica(dir, "");
    EXPECT_FALSE(vuoto.valido);
    EXPECT_EQ(vuoto.messaggio.testo, "0 terzine caricate!\"");

    // A missing file has no text of its own: the screen asks for it, the command line names it.
    const auto m = CaricaTerzine((dir / "assente.txt").string());
    EXPECT_TRUE(m.fileMancante && !m.valido && !m.caricato && !m.nonValido);
    EXPECT_TRUE(m.messaggio.vuoto()) << m.messaggio.testo;
}

TEST(ModelloTerzine, FileNonValido) {
    test::CartellaTemporanea dir;
    for (const std::string& testo : {Righe(1002, "\n", 500),                   // a zero
                                     Righe(10, "\n") + "01-ab-03\n",           // not digits
                                     Righe(10, "\n") + "\n" + Righe(5, "\n"),  // an empty line within
                                     Righe(10, "\n") + "1-2\n",                // too short for three fields
                                     Righe(10, "\n") + "01-02-91\n"}) {
        const auto r = Carica(dir, testo);
        EXPECT_FALSE(r.valido || r.fileMancante || r.caricato || r.terzine.disponibili());
        EXPECT_TRUE(r.nonValido);
        EXPECT_EQ(r.messaggio.testo, " File terzine non valido!");
    }
    // The line that ends the load, for a message that can name it.
    EXPECT_EQ(Carica(dir, Righe(1002, "\n", 500)).rigaNonValida, 500);
    EXPECT_EQ(Carica(dir, Righe(10, "\n") + "01-02-91\n").rigaNonValida, 11);
}

}  // namespace
}  // namespace gorgo::builder
