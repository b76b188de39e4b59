// The rules of the enucleated pair on small hand-made histories: extraction order, empty
// wheels, delays counted from a later date, notes across runs, warm-up, ties at the limit
// of the rows, the lists by sum, the delay detail and the group of the mathematical pairs.

#include <gtest/gtest.h>

#include <random>
#include <set>

#include "archives/record.h"
#include "enucleated/ambi_matematici.h"
#include "enucleated/enucleato.h"
#include "enucleated/gruppo.h"
#include "enucleated/statistica.h"
#include "support/casuali.h"

namespace gorgo::enucleated {
namespace {

constexpr int FI = 3;  // a wheel drawn from the first draw of the archive
constexpr int MI = 5;

// Draws on consecutive days from 01/01/2000; each gives FI's five numbers (the others get
// 1..5 on MI and nothing elsewhere unless told).
archives::StoriaLotto Storia(const std::vector<std::array<int, 5>>& fi,
                             const std::vector<std::array<int, 5>>& mi = {}) {
    std::vector<archives::RecordEstrazione> v;
    for (size_t i = 0; i < fi.size(); ++i) {
        archives::RecordEstrazione r;
        r.impostaData(archives::Data::daGiorni(archives::Data{1, 1, 2000}.giorni() + static_cast<int32_t>(i)));
        r.NumeroAnno = static_cast<uint8_t>(i + 1);
        for (int p = 0; p < 5; ++p) {
            r.Ruota[FI - 1][p] = static_cast<uint8_t>(fi[i][static_cast<size_t>(p)]);
            r.Ruota[MI - 1][p] = static_cast<uint8_t>(i < mi.size() ? mi[i][static_cast<size_t>(p)] : p + 1);
        }
        v.push_back(r);
    }
    return archives::StoriaLotto(std::move(v));
}

std::array<bool, 12> Ruota(int w) {
    std::array<bool, 12> r{};
    r[static_cast<size_t>(w)] = true;
    return r;
}

TEST(AmbiMatematici, NovantaNellOrdineFisso) {
    const auto& t = AmbiMatematici();
    std::set<std::pair<int, int>> visti;
    for (const AmboMatematico& m : t) {
        EXPECT_LT(m.a, m.b);
        visti.insert({m.a, m.b});
        EXPECT_TRUE(EMatematico(m.b, m.a));
    }
    EXPECT_EQ(visti.size(), 90u);
    EXPECT_EQ(std::make_pair(t[0].a, t[0].b), std::make_pair(1, 18));
    EXPECT_EQ(std::make_pair(t[9].a, t[9].b), std::make_pair(10, 29));
    EXPECT_EQ(std::make_pair(t[78].a, t[78].b), std::make_pair(79, 80));
    EXPECT_EQ(std::make_pair(t[79].a, t[79].b), std::make_pair(9, 80));
    EXPECT_EQ(std::make_pair(t[87].a, t[87].b), std::make_pair(1, 88));
    EXPECT_EQ(std::make_pair(t[89].a, t[89].b), std::make_pair(89, 90));
    EXPECT_FALSE(EMatematico(0, 19));
    EXPECT_FALSE(EMatematico(1, 2));
}

// Draw 1..9 lead to draw 10, FI 12 7 30 40 50; draw 9 has an empty FI and does not count.
archives::StoriaLotto StoriaOrdine() {
    return Storia({{12, 1, 2, 3, 4},
                   {60, 61, 62, 63, 64},
                   {60, 61, 62, 63, 64},
                   {7, 61, 62, 63, 64},
                   {60, 61, 62, 63, 64},
                   {60, 61, 62, 63, 64},
                   {60, 61, 62, 63, 64},
                   {60, 61, 62, 63, 64},
                   {0, 0, 0, 0, 0},
                   {12, 7, 30, 40, 50},
                   {12, 60, 61, 62, 63}});
}

TEST(ListaEnucleato, OrdineDiEstrazioneRuotaVuotaERitardiDaUnaDataPosteriore) {
    const archives::StoriaLotto s = StoriaOrdine();
    ListaEnucleato lista;
    const MatriceEnucleato m = MostraEstrazioneEnucleato(s, 10, false);
    ASSERT_TRUE(RicercaEnucleato(s, m, "01/01/2000", s.DataEstrazione(10), Ruota(FI), lista).valido());
    ASSERT_EQ(lista.righe().size(), 11u);
    EXPECT_TRUE(lista.righe()[0].separatore());
    EXPECT_EQ(lista.righe()[0].chiave, "      1");
    const RigaEnucleato& r = lista.righe()[1];
    EXPECT_EQ(r.descrizione, "FI   12- 7");
    EXPECT_EQ(r.prog, " 1");
    // 12 last in draw 1: draws 8..2 count, 9 is empty. 7 last in draw 4: draws 8..5.
    EXPECT_EQ(r.ritardi, (std::vector<int>{7, 4}));
    EXPECT_EQ(r.somma, "   11");
    EXPECT_EQ(lista.righe()[10].descrizione, "FI   40-50");

    // From a later date the numbers stay the shown draw's, the delays move: 12 came out in 11.
    ListaEnucleato dopo;
    ASSERT_TRUE(RicercaEnucleato(s, m, "01/01/2000", s.DataEstrazione(11), Ruota(FI), dopo).valido());
    EXPECT_EQ(dopo.righe()[1].descrizione, "FI   12- 7");
    EXPECT_EQ(dopo.righe()[1].ritardi, (std::vector<int>{0, 0}));

    // The empty wheel: every place reads "--", every delay is all the draws walked (8 of 8).
    const MatriceEnucleato vuota = MostraEstrazioneEnucleato(s, 9, false);
    EXPECT_EQ(vuota.Testo(FI, 1), "--");
    ListaEnucleato l3;
    l3.ImpostaTipo(TipoAnalisi::Terni);
    ASSERT_TRUE(RicercaEnucleato(s, vuota, "01/01/2000", s.DataEstrazione(9), Ruota(FI), l3).valido());
    EXPECT_EQ(l3.righe()[1].descrizione, "FI   --------");
    for (size_t i = 1; i < l3.righe().size(); ++i) {
        EXPECT_EQ(l3.righe()[i].ritardi, (std::vector<int>{8, 8, 8}));
        // All ten equal: the wheel's maximum, then the absolute minimum over it.
        EXPECT_EQ(l3.righe()[i].nota, NotaMinAssoluto);
    }

    // A refused date leaves the list as it was.
    EXPECT_FALSE(RicercaEnucleato(s, m, "31/02/2000", s.DataEstrazione(10), Ruota(FI), lista).valido());
    EXPECT_EQ(lista.righe().size(), 11u);
}

TEST(ListaEnucleato, LeNoteSiScrivonoSoltanto) {
    const archives::StoriaLotto s = StoriaOrdine();
    ListaEnucleato lista;
    ASSERT_TRUE(RicercaEnucleato(s, MostraEstrazioneEnucleato(s, 10, false), "01/01/2000", s.DataEstrazione(10),
                                 Ruota(FI), lista)
                    .valido());
    std::vector<std::string> prima;
    for (const RigaEnucleato& r : lista.righe()) prima.push_back(r.nota);
    // A second run on MI (numbers 1..5 every draw: all delays 0) brings the absolute minimum down.
    ASSERT_TRUE(RicercaEnucleato(s, MostraEstrazioneEnucleato(s, 10, false), "01/01/2000", s.DataEstrazione(10),
                                 Ruota(MI), lista)
                    .valido());
    ASSERT_EQ(lista.righe().size(), 22u);
    EXPECT_EQ(lista.righe()[11].chiave, "      1");  // the key starts again with each run
    for (size_t i = 12; i < 22; ++i) {
        EXPECT_EQ(lista.righe()[i].nota, NotaMinAssoluto);
    }
    int minimo = 1000, massimo = 0;
    for (size_t i = 1; i < 11; ++i) {
        minimo = std::min(minimo, lista.righe()[i].sommaRitardi);
        massimo = std::max(massimo, lista.righe()[i].sommaRitardi);
    }
    for (size_t i = 1; i < 11; ++i) {
        const RigaEnucleato& r = lista.righe()[i];
        if (r.sommaRitardi == massimo)
            EXPECT_EQ(r.nota, NotaMaxAssoluto);
        else if (r.sommaRitardi == minimo)
            EXPECT_EQ(r.nota, NotaMinRuota);  // was the absolute minimum: now only the wheel's
        else
            EXPECT_EQ(r.nota, prima[i]);
    }
    // Another draw on FI: rows of the first FI group that were its limits keep their notes.
    const MatriceEnucleato altra = MostraEstrazioneEnucleato(s, 11, false);
    ASSERT_TRUE(RicercaEnucleato(s, altra, "01/01/2000", s.DataEstrazione(11), Ruota(FI), lista).valido());
    for (size_t i = 1; i < 11; ++i)
        if (lista.righe()[i].sommaRitardi == massimo) {
            EXPECT_FALSE(lista.righe()[i].nota.empty());
        }
}

ParametriStatistica Coppie(int ruota) {
    ParametriStatistica p;
    p.ruota = ruota;
    p.perPresenze = true;
    p.presenze = 0;
    return p;
}

// A short history of full wheels, no holes.
const archives::StoriaLotto& StoriaPiena() {
    static const archives::StoriaLotto s = [] {
        std::mt19937 g(77);
        test::OpzioniStoria o;
        o.ruotaVuota = 0;
        o.numeroZero = 0;
        return test::StoriaCasuale(g, o);
    }();
    return s;
}

TEST(StatisticaSomme, IlRiscaldamentoNonContaSomme) {
    const archives::StoriaLotto& s = StoriaPiena();
    const Periodo tutto{1, s.NumeroEstrazioni(), s.DataEstrazione(1), s.DataEstrazione(s.NumeroEstrazioni())};
    for (bool matematici : {false, true}) {
        StatisticheEnucleato st;
        ParametriStatistica p = Coppie(MI);
        p.soloMatematici = matematici;
        const EsitoStatistica e = st.Calcola(s, tutto, p);
        // The first draw is the wheel's first and is skipped; the next 150 only warm up.
        EXPECT_EQ(st.EstrazioniValide(), s.NumeroEstrazioni() - 1);
        int somme = 0;
        for (const RigaStatistica& r : e.righe) {
            somme += r.frequenza;
            if (matematici) {
                EXPECT_EQ(r.testo[5], "");
            }
        }
        ASSERT_EQ(e.righe.size(), 351u);
        if (!matematici) {
            EXPECT_EQ(somme, 10 * (st.EstrazioniValide() - RiscaldamentoAmbi));
        }
        if (matematici) {
            EXPECT_LT(somme, 10 * (st.EstrazioniValide() - RiscaldamentoAmbi));
        }
        // The lists of the mathematical pairs hold none but the 90.
        for (int somma = 0; somma < 60; ++somma)
            for (const RigaCoppia& c : st.Coppie(MI, somma, true).righe)
                EXPECT_TRUE(EMatematico(c.numeri[0], c.numeri[1]));
    }
}

TEST(StatisticaSomme, PariMeritoAlLimiteEntranoTutti) {
    const archives::StoriaLotto& s = StoriaPiena();
    const Periodo p{300, s.NumeroEstrazioni(), s.DataEstrazione(300), s.DataEstrazione(s.NumeroEstrazioni())};
    StatisticheEnucleato st;
    const EsitoStatistica tutte = st.Calcola(s, p, Coppie(MI));
    for (int quante : {1, 5, 15, 40}) {
        ParametriStatistica q = Coppie(MI);
        q.perPresenze = false;
        q.quante = quante;
        const EsitoStatistica e = st.Calcola(s, p, q);
        ASSERT_FALSE(e.righe.empty());
        const int limite = e.righe.back().frequenza;
        int sopra = 0, almeno = 0;
        for (const RigaStatistica& r : tutte.righe) {
            if (r.frequenza > limite) ++sopra;
            if (r.frequenza >= limite && r.frequenza > 0) ++almeno;
        }
        EXPECT_LT(sopra, quante);
        EXPECT_EQ(static_cast<int>(e.righe.size()), almeno) << quante;
        EXPECT_GE(static_cast<int>(e.righe.size()), std::min(quante, almeno));
        // Most frequent first, sums ascending within a frequency.
        for (size_t i = 1; i < e.righe.size(); ++i)
            EXPECT_TRUE(e.righe[i - 1].frequenza > e.righe[i].frequenza ||
                        (e.righe[i - 1].frequenza == e.righe[i].frequenza && e.righe[i - 1].somma < e.righe[i].somma));
    }
}

TEST(StatisticaSomme, ListeDettaglioEInterruzione) {
    const archives::StoriaLotto& s = StoriaPiena();
    const Periodo p{1, s.NumeroEstrazioni(), s.DataEstrazione(1), s.DataEstrazione(s.NumeroEstrazioni())};
    StatisticheEnucleato st;
    const EsitoStatistica e = st.Calcola(s, p, Coppie(FI));
    const ListaCoppie nessuna = st.Coppie(FI, 349, false);
    EXPECT_TRUE(nessuna.righe.empty());
    EXPECT_EQ(nessuna.totale, "0 coppie in lista");
    EXPECT_TRUE(st.Coppie(MI, 10, false).righe.empty());  // tables of another wheel
    for (int somma : {5, 12, 20, 33}) {
        const ListaCoppie l = st.Coppie(FI, somma, false);
        for (const RigaCoppia& c : l.righe) {
            EXPECT_EQ(c.ritardi[0] + c.ritardi[1], somma);
            if (c.frequenza == 0) {
                EXPECT_EQ(c.testo[5], "0,000");
            }
        }
        // The detail's presences are the sum's frequency; the pairs to play show its delays now.
        const EsitoDettaglio d = DettaglioRitardi(s, p, FI, somma, false);
        EXPECT_EQ(d.presenzeTotali, e.righe[static_cast<size_t>(somma)].frequenza) << somma;
        std::set<std::string> daLista;
        for (const RigaCoppia& c : l.righe)
            daLista.insert(std::to_string(c.numeri[0]) + "-" + std::to_string(c.numeri[1]));
        for (const RigaCoppiaRitardi& c : d.coppie) {
            EXPECT_EQ(c.d1 + c.d2, somma);
            size_t inizio = 0;
            while (!c.daGiocare.empty() && inizio < c.daGiocare.size()) {
                const size_t fine = std::min(c.daGiocare.find(", ", inizio), c.daGiocare.size());
                EXPECT_TRUE(daLista.count(c.daGiocare.substr(inizio, fine - inizio))) << c.daGiocare;
                inizio = fine + 2;
            }
        }
    }
    // A stopped run leaves the tables and rows of the last one.
    std::stop_source fermo;
    fermo.request_stop();
    const EsitoStatistica f = st.Calcola(s, p, Coppie(MI), Avanzamento{fermo.get_token(), {}});
    EXPECT_TRUE(f.interrotta);
    EXPECT_EQ(st.ruota(), FI);
    EXPECT_EQ(st.righe().size(), e.righe.size());
    st.PulisciStatistiche();
    EXPECT_FALSE(st.valide());
    EXPECT_TRUE(st.Coppie(FI, 12, false).righe.empty());
}

TEST(GruppoAmbiMatematici, DueAmbiInUnaEstrazioneEUnaRuotaSenzaGruppo) {
    // FI: group out in draws 2 (two pairs: 1-18, 2-17) and 5; MI never (1..5 every draw).
    const archives::StoriaLotto s = Storia({{30, 31, 32, 33, 34},
                                            {1, 18, 2, 17, 50},
                                            {30, 31, 32, 33, 34},
                                            {30, 31, 32, 33, 34},
                                            {40, 59, 31, 32, 33},
                                            {30, 31, 32, 33, 34}});
    const Periodo p{1, 6, s.DataEstrazione(1), s.DataEstrazione(6)};
    const EsitoGruppo e = StatisticaGruppo(s, p, false, FI);
    ASSERT_EQ(e.riepilogo.size(), 1u);
    EXPECT_EQ(e.riepilogo[0], "FI  -->  Freq.: 3 - Rit.: 1 - Rit.stor.: 2 - I.C.: 0,50");
    ASSERT_EQ(e.righe.size(), 2u);  // returns after 1 and after 2 draws
    const EsitoGruppo nessuno = StatisticaGruppo(s, p, false, MI);
    EXPECT_TRUE(nessuno.righe.empty());
    EXPECT_EQ(nessuno.riepilogo[0], "MI  -->  Freq.: 0 - Rit.: 6 - Rit.stor.: 0 - I.C.: n.d.");
    const EsitoGruppo tutte = StatisticaGruppo(s, p, true, 0);
    ASSERT_EQ(tutte.riepilogo.size(), 12u);
    EXPECT_EQ(tutte.riepilogo.back().substr(0, 19), " TUTTE -->  Freq.: ");
    std::stop_source fermo;
    fermo.request_stop();
    const EsitoGruppo fermato = StatisticaGruppo(s, p, true, 0, Avanzamento{fermo.get_token(), {}});
    EXPECT_TRUE(fermato.interrotta);
    EXPECT_TRUE(fermato.riepilogo.empty() && fermato.righe.empty());
}

}  // namespace
}  // namespace gorgo::enucleated
