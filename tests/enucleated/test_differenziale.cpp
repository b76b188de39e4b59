// The engine against the literal twin: random long histories (empty Nazionale before its
// start, empty wheels, missing numbers, narrow wheels full of repeats) with periods that
// begin inside the warm-up, and the real archive for every wheel.

#include <gtest/gtest.h>

#include <fmt/format.h>
#include <random>

#include "archives/archivio.h"
#include "enucleated/enucleato.h"
#include "enucleated/gruppo.h"
#include "enucleated/statistica.h"
#include "enucleato_letterale.h"
#include "support/archivi_reali.h"
#include "support/casuali.h"

namespace gorgo::enucleated {
namespace {

// About 8,100 draws from 1957: every wheel passes its first usable draw, and the Nazionale is
// empty from 7,342 to 7,440 as on the real archive.
const archives::StoriaLotto& StoriaLunga() {
    static const archives::StoriaLotto s = [] {
        std::mt19937 g(614);
        test::OpzioniStoria o;
        o.anni = 52;
        o.primaNazionale = archives::PrimaEstrazioneNazionale;
        return test::StoriaCasuale(g, o);
    }();
    return s;
}

Periodo PeriodoDi(const archives::StoriaLotto& s, int32_t inizio, int32_t fine) {
    return {inizio, fine, s.DataEstrazione(inizio), s.DataEstrazione(fine)};
}

void ConfrontaRighe(const std::vector<RigaStatistica>& x, const std::vector<RigaStatistica>& y,
                    const std::string& dove) {
    ASSERT_EQ(x.size(), y.size()) << dove;
    for (size_t i = 0; i < x.size(); ++i) {
        ASSERT_EQ(x[i].testo, y[i].testo) << dove << " riga " << i;
        ASSERT_EQ(std::tie(x[i].somma, x[i].frequenza, x[i].ritardo, x[i].ritardoMax, x[i].dataRitardoMax),
                  std::tie(y[i].somma, y[i].frequenza, y[i].ritardo, y[i].ritardoMax, y[i].dataRitardoMax))
            << dove << " riga " << i;
    }
}

void ConfrontaLista(const ListaCoppie& x, const ListaCoppie& y, const std::string& dove) {
    ASSERT_EQ(x.descrizione, y.descrizione) << dove;
    ASSERT_EQ(x.totale, y.totale) << dove;
    ASSERT_EQ(x.righe.size(), y.righe.size()) << dove;
    for (size_t i = 0; i < x.righe.size(); ++i) ASSERT_EQ(x.righe[i].testo, y.righe[i].testo) << dove << " riga " << i;
}

// Rows, every table entry, and the lists of the row sums and of a few others.
void ConfrontaStatistica(const archives::StoriaLotto& s, const Periodo& periodo, const ParametriStatistica& p,
                         bool tuttiITerni, const std::string& dove) {
    StatisticheEnucleato st;
    const EsitoStatistica e = st.Calcola(s, periodo, p);
    const test::EsitoStatisticaLetterale l = test::StatisticaLetterale(s, periodo, p);
    ConfrontaRighe(e.righe, l.righe, dove);
    const test::TabelleLetterali& t = *l.tabelle;
    ASSERT_EQ(st.EstrazioniValide(), t.EstrazioniValide) << dove;
    for (int a = 1; a <= 90; ++a) ASSERT_EQ(st.RitardoNumero(a), t.RitardoNumero[static_cast<size_t>(a)]) << dove;
    const bool terni = p.tipo == TipoAnalisi::Terni;
    if (!terni) {
        for (int a = 1; a <= 90; ++a)
            for (int b = 1; b <= 90; ++b) {
                if (a == b) continue;
                ASSERT_EQ(st.RitardoAmbo(a, b), t.ambo(t.RitardoAmbo, a, b)) << dove << " " << a << "-" << b;
                ASSERT_EQ(st.RitardoMaxAmbo(a, b), t.ambo(t.RitardoMaxAmbo, a, b)) << dove << " " << a << "-" << b;
                ASSERT_EQ(st.FrequenzaAmbo(a, b), t.ambo(t.FrequenzaAmbo, a, b)) << dove << " " << a << "-" << b;
            }
    } else if (tuttiITerni) {
        for (int a = 1; a <= 90; ++a)
            for (int b = a + 1; b <= 90; ++b)
                for (int c = b + 1; c <= 90; ++c) {
                    ASSERT_EQ(st.RitardoTerno(c, a, b), t.terno(t.RitardoTerno, a, b, c)) << dove;
                    ASSERT_EQ(st.RitardoMaxTerno(a, c, b), t.terno(t.RitardoMaxTerno, b, a, c)) << dove;
                    ASSERT_EQ(st.FrequenzaTerno(a, b, c), t.terno(t.FrequenzaTerno, c, b, a)) << dove;
                }
    }
    std::vector<int> somme{0, 1, 7, 20, 45};
    for (const RigaStatistica& r : e.righe) somme.push_back(r.somma);
    if (somme.size() > 12) somme.resize(12);
    for (int somma : somme) {
        const std::string q = fmt::format("{} somma {}", dove, somma);
        if (terni)
            ConfrontaLista(st.Terzine(p.ruota, somma, p.soloMatematici),
                           test::TerzineLetterali(t, somma, p.soloMatematici), q);
        else
            ConfrontaLista(st.Coppie(p.ruota, somma, p.soloMatematici),
                           test::CoppieLetterali(t, somma, p.soloMatematici), q);
        if (::testing::Test::HasFatalFailure()) return;
    }
}

ParametriStatistica ParametriCasuali(std::mt19937& g, int ruota, TipoAnalisi tipo) {
    ParametriStatistica p;
    p.ruota = ruota;
    p.tipo = tipo;
    p.soloMatematici = g() % 4 == 0;
    p.perPresenze = g() % 3 == 0;
    p.presenze = static_cast<int>(g() % 6);
    p.quante = 1 + static_cast<int>(g() % 30);
    return p;
}

// Where a random period starts: inside the wheel's warm-up, right after it, or anywhere.
int32_t InizioCasuale(std::mt19937& g, const archives::StoriaLotto& s, int ruota, int riscaldamento) {
    const int32_t prima = std::max<int32_t>(1, archives::PrimaEstrazioneRuota[static_cast<size_t>(ruota)]);
    switch (g() % 3) {
        case 0: return prima + static_cast<int32_t>(g() % static_cast<unsigned>(riscaldamento + 40));
        case 1: return prima + riscaldamento + static_cast<int32_t>(g() % 3);
        default: return 1 + static_cast<int32_t>(g() % static_cast<unsigned>(s.NumeroEstrazioni() - 10));
    }
}

TEST(DifferenzialeEnucleato, StatisticaCoppieSuStorieCasuali) {
    const archives::StoriaLotto& s = StoriaLunga();
    std::mt19937 g(1);
    for (int caso = 0; caso < 40; ++caso) {
        const int ruota = caso < 11 ? caso + 1 : 1 + static_cast<int>(g() % 11);
        const int32_t inizio = std::min(InizioCasuale(g, s, ruota, RiscaldamentoAmbi), s.NumeroEstrazioni());
        const int32_t fine = std::min(s.NumeroEstrazioni(), inizio + static_cast<int32_t>(g() % 1500));
        const ParametriStatistica p = ParametriCasuali(g, ruota, TipoAnalisi::Ambi);
        ConfrontaStatistica(
            s, PeriodoDi(s, inizio, fine), p, false,
            fmt::format("caso {} ruota {} {}..{} solo {}", caso, ruota, inizio, fine, p.soloMatematici));
        if (HasFatalFailure()) return;
    }
}

TEST(DifferenzialeEnucleato, StatisticaTerzineSuStorieCasuali) {
    const archives::StoriaLotto& s = StoriaLunga();
    std::mt19937 g(2);
    for (int caso = 0; caso < 5; ++caso) {
        const int ruota = std::array{1, 11, 5, 2, 8}[static_cast<size_t>(caso)];
        const int32_t inizio = std::min(InizioCasuale(g, s, ruota, RiscaldamentoTerni), s.NumeroEstrazioni());
        const int32_t fine = std::min(s.NumeroEstrazioni(), inizio + 100 + static_cast<int32_t>(g() % 200));
        const ParametriStatistica p = ParametriCasuali(g, ruota, TipoAnalisi::Terni);
        ConfrontaStatistica(
            s, PeriodoDi(s, inizio, fine), p, caso < 3,
            fmt::format("caso {} ruota {} {}..{} solo {}", caso, ruota, inizio, fine, p.soloMatematici));
        if (HasFatalFailure()) return;
    }
}

void ConfrontaListe(const std::vector<RigaEnucleato>& x, const std::vector<RigaEnucleato>& y, const std::string& dove) {
    ASSERT_EQ(x.size(), y.size()) << dove;
    for (size_t i = 0; i < x.size(); ++i)
        ASSERT_EQ(std::tie(x[i].descrizione, x[i].prog, x[i].data, x[i].somma, x[i].chiave, x[i].ruota, x[i].nota),
                  std::tie(y[i].descrizione, y[i].prog, y[i].data, y[i].somma, y[i].chiave, y[i].ruota, y[i].nota))
            << dove << " riga " << i;
}

// Several runs on one list: wheels, draws and the point of the delays all change.
void ConfrontaRicerche(const archives::StoriaLotto& s, std::mt19937& g, int corse, const std::string& dove) {
    ListaEnucleato lista;
    const auto tipo = g() % 2 ? TipoAnalisi::Terni : TipoAnalisi::Ambi;
    lista.ImpostaTipo(tipo);
    std::vector<RigaEnucleato> letterale;
    for (int c = 0; c < corse; ++c) {
        const int32_t mostrata = 1 + static_cast<int32_t>(g() % static_cast<unsigned>(s.NumeroEstrazioni()));
        const int32_t a =
            g() % 3 ? mostrata : std::min(s.NumeroEstrazioni(), mostrata + static_cast<int32_t>(g() % 20));
        const MatriceEnucleato m = MostraEstrazioneEnucleato(s, mostrata, false);
        std::array<bool, 12> ruote{};
        ruote[1 + g() % 11] = true;
        lista.Aggiungi(s, m, a, s.DataEstrazione(a), ruote);
        test::RicercaEnucleatoLetterale(s, m, a, s.DataEstrazione(a), ruote, tipo, letterale);
        ConfrontaListe(lista.righe(), letterale, fmt::format("{} corsa {} mostrata {} a {}", dove, c, mostrata, a));
        if (::testing::Test::HasFatalFailure()) return;
    }
}

TEST(DifferenzialeEnucleato, ListaDelleSommeSuStorieCasuali) {
    const archives::StoriaLotto& s = StoriaLunga();
    std::mt19937 g(3);
    for (int caso = 0; caso < 40; ++caso) {
        ConfrontaRicerche(s, g, 1 + static_cast<int>(g() % 4), fmt::format("caso {}", caso));
        if (HasFatalFailure()) return;
    }
}

TEST(DifferenzialeEnucleato, GruppoAmbiMatematiciSuStorieCasuali) {
    const archives::StoriaLotto& s = StoriaLunga();
    std::mt19937 g(4);
    for (int caso = 0; caso < 30; ++caso) {
        const int ruota = 1 + caso % 11;
        const int32_t inizio = 1 + static_cast<int32_t>(g() % static_cast<unsigned>(s.NumeroEstrazioni()));
        const int32_t fine = std::min(s.NumeroEstrazioni(),
                                      inizio + static_cast<int32_t>(g() % static_cast<unsigned>(s.NumeroEstrazioni())));
        const Periodo p = PeriodoDi(s, inizio, fine);
        const EsitoGruppo x = StatisticaGruppo(s, p, false, ruota), y = test::GruppoLetterale(s, p, ruota);
        ASSERT_EQ(x.riepilogo, y.riepilogo) << caso;
        ASSERT_EQ(x.righe.size(), y.righe.size()) << caso;
        for (size_t i = 0; i < x.righe.size(); ++i) ASSERT_EQ(x.righe[i].testo, y.righe[i].testo) << caso << " " << i;
    }
}

TEST(DifferenzialeEnucleato, ArchivioRealeOgniRuota) {
    GORGO_RICHIEDI_ARCHIVI_REALI(cartella);
    const archives::Archivio archivio = archives::Archivio::Apri(cartella);
    const archives::StoriaCondivisa storia = archivio.Storia();
    const archives::StoriaLotto& s = *storia;
    const int32_t ultima = s.NumeroEstrazioni();
    const EsitoPeriodo dal1946 = ControllaPeriodo(s, "01/01/1946", s.DataEstrazione(ultima));
    ASSERT_TRUE(dal1946.valido());
    std::mt19937 g(5);
    for (int ruota = 1; ruota <= archives::NumeroRuote; ++ruota) {
        const std::string dove = fmt::format("ruota {}", ruota);
        ParametriStatistica p;
        p.ruota = ruota;
        p.soloMatematici = ruota % 4 == 0;
        ConfrontaStatistica(s, dal1946.periodo, p, false, dove + " coppie dal 1946");
        if (HasFatalFailure()) return;
        // Triples over the last 250 draws; the Nazionale's also from inside its warm-up.
        p.tipo = TipoAnalisi::Terni;
        p.soloMatematici = false;
        const int32_t inizio = ruota == archives::RuotaNazionale ? archives::PrimaEstrazioneNazionale : ultima - 250;
        ConfrontaStatistica(s, PeriodoDi(s, inizio, std::min(ultima, inizio + 250)), p, ruota == 1, dove + " terzine");
        if (HasFatalFailure()) return;
        const EsitoGruppo x = StatisticaGruppo(s, PeriodoDi(s, 1, ultima), false, ruota),
                          y = test::GruppoLetterale(s, PeriodoDi(s, 1, ultima), ruota);
        ASSERT_EQ(x.riepilogo, y.riepilogo) << dove;
        ASSERT_EQ(x.righe.size(), y.righe.size()) << dove;
        for (size_t i = 0; i < x.righe.size(); ++i) ASSERT_EQ(x.righe[i].testo, y.righe[i].testo) << dove;
    }
    // The list of the sums on the last draws and on the early Nazionale ("--").
    ConfrontaRicerche(s, g, 6, "reale");
    ListaEnucleato lista;
    std::vector<RigaEnucleato> letterale;
    std::array<bool, 12> nz{};
    nz[11] = true;
    const MatriceEnucleato m = MostraEstrazioneEnucleato(s, 7000, false);
    lista.Aggiungi(s, m, 7000, s.DataEstrazione(7000), nz);
    test::RicercaEnucleatoLetterale(s, m, 7000, s.DataEstrazione(7000), nz, TipoAnalisi::Ambi, letterale);
    ConfrontaListe(lista.righe(), letterale, "nazionale vuota");
}

}  // namespace
}  // namespace gorgo::enucleated
