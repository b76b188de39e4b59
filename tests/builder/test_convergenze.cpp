// Convergences, lunghetta and abbinamenti against their literal transcriptions on random and
// real archives; the cases a player meets (one number forecast twice, an ambo written both
// ways, "Tutti" in the panel); the reports of the capogioco panel.

#include <gtest/gtest.h>

#include <fmt/format.h>
#include <random>

#include "archives/archivio.h"
#include "builder/capogioco.h"
#include "builder/chiavi.h"
#include "builder/convergenze.h"
#include "builder/indice_mensile.h"
#include "builder/report.h"
#include "builder/ricerca.h"
#include "builder/verifica.h"
#include "config/impostazioni.h"
#include "convergenze_letterale.h"
#include "support/archivi_reali.h"
#include "support/attesi.h"
#include "support/casuali.h"

namespace gorgo::builder {
namespace {

std::string Descrivi(const ParametriRicerca& p) {
    return fmt::format("tipo {} spia {} modo {} da {} a {} perData {}/{} mese {} colpi {} max {}",
                       static_cast<int>(p.tipoRicerca), static_cast<int>(p.tipoSpia), static_cast<int>(p.modoSpia),
                       p.dataDa, p.dataA, p.perData, p.sortiteDaCercare, p.indiceMese, p.colpi, p.colpiDaGiocare);
}

using Lista = std::vector<std::array<std::string, 2>>;
Lista ComeLista(const std::vector<RigaConvergenza>& righe) {
    Lista l;
    for (const RigaConvergenza& r : righe) l.push_back({r.descrizione, r.previsione});
    return l;
}

void ConfrontaConvergenze(const ParametriRicerca& p, const ContestoRicerca& ctx, const std::vector<RigaAlgoritmo>& r,
                          int& rilevate) {
    const EsitoConvergenze e = CalcolaConvergenze(p, ctx, r);
    const letterale::Convergenze l = letterale::CalcolaConvergenze(p, ctx, r);
    ASSERT_EQ(e.messaggio.testo, l.messaggio) << Descrivi(p);
    ASSERT_EQ(ComeLista(e.righe), l.lista) << Descrivi(p);
    rilevate += e.rilevate;
}

void ConfrontaLunghetta(const ParametriRicerca& p, const ContestoRicerca& ctx, const std::vector<RigaAlgoritmo>& r,
                        int n, bool migliore) {
    const EsitoLunghetta e = ElaboraLunghetta(p, ctx, r, {n, migliore});
    const letterale::Lunghetta l = letterale::ElaboraLunghetta(p, ctx, r, n, migliore);
    const std::string dove = Descrivi(p) + fmt::format(" n {} migliore {}", n, migliore);
    ASSERT_EQ(e.errore.testo, l.errore) << dove;
    ASSERT_EQ(ComeLista(e.righe), l.lista) << dove;
    ASSERT_EQ(e.txtLunghetta, l.txtLunghetta) << dove;
    ASSERT_EQ(e.txtRuotaMigliore, l.txtRuotaMigliore) << dove;
    ASSERT_LE(static_cast<int>(e.numeri.size()), n) << dove;
}

void ConfrontaAbbinamenti(const ParametriRicerca& p, const ContestoRicerca& ctx, const std::string& chiave,
                          int32_t data, int quanti) {
    const Capogioco c = RicalcolaCapogioco(*ctx.storia, *ctx.indiciMensili, p.indiceMese, chiave, data);
    const int32_t indice = c.indice > 0 ? c.indice : data;
    const EsitoAbbinamenti e = CalcolaAbbinamenti(p, ctx, chiave, indice, c.numero, quanti);
    const letterale::Abbinamenti l = letterale::CalcolaAbbinamenti(p, ctx, chiave, indice, c.numero, quanti);
    const std::string dove = Descrivi(p) + fmt::format(" chiave {} data {} quanti {}", chiave, data, quanti);
    ASSERT_EQ(e.errore.testo, l.errore) << dove;
    std::vector<std::string> testi;
    for (const RigaAbbinamento& r : e.righe) {
        testi.push_back(r.testo);
        ASSERT_NE(r.numero, c.numero) << dove;  // the capogioco never enters the list
    }
    ASSERT_EQ(testi, l.lista) << dove;
    ASSERT_LE(e.casi, CasiAbbinamenti);
}

// ---------------------------------------------------------------- random archives

class ConvergenzeDifferenziale : public ::testing::TestWithParam<TipoRicerca> {};

TEST_P(ConvergenzeDifferenziale, RigheDellaRicerca) {
    const TipoRicerca tipo = GetParam();
    std::mt19937 g(9100 + static_cast<unsigned>(tipo));
    const bool pesante = tipo == TipoRicerca::Ambi || tipo == TipoRicerca::Codici;
    const int prove = pesante ? 4 : 16;
    int righeViste = 0, rilevate = 0;
    for (int prova = 0; prova < prove; ++prova) {
        const archives::StoriaLotto s = test::StoriaCasuale(g, {.anni = 2});
        const IndiciMensili im = CalcolaIndiciMensili(s, "NNYNYNY");
        const TerzineRidotte t = test::TerzineCasuali(g, 60);
        const ContestoRicerca ctx = test::ContestoCasuale(g, s, im, &t);
        ParametriRicerca p = test::ParametriCasuali(g, s, tipo, {15, {5, 205}, {5, 65}, false});
        if (pesante) {
            p.modoSpia = p.modoSpia == ModoSpia::Tutti ? ModoSpia::Fisso : p.modoSpia;
            p.dataDa = s.DataEstrazione(s.NumeroEstrazioni() - 40);
        }
        EsitoRicerca r = CercaAlgoritmi(p, ctx);
        if (!r.errore.vuoto() || r.righe.empty()) continue;
        if (r.righe.size() > 30) r.righe.resize(30);
        // Some rows twice under another name: two algorithms that agree.
        for (int k = 0, copie = static_cast<int>(g() % 4); k < copie; ++k) {
            RigaAlgoritmo copia = r.righe[g() % r.righe.size()];
            copia.descrizione += " (bis)";
            r.righe.insert(r.righe.begin() + static_cast<long>(g() % (r.righe.size() + 1)), copia);
        }
        for (RigaAlgoritmo& x : r.righe) x.selezionata = g() % 3 != 0;
        p.colpiDaGiocare = static_cast<int>(g() % 12);
        // Now and then replayed up to the archive's end, where cases still run.
        if (g() % 2 == 0) {
            p.dataA.clear();
            p.controllaUltime = true;
            p.colpiDaGiocare = p.colpi;
        }
        righeViste += static_cast<int>(r.righe.size());
        ConfrontaConvergenze(p, ctx, r.righe, rilevate);
        if (HasFatalFailure()) return;
        for (bool migliore : {false, true}) {
            ConfrontaLunghetta(p, ctx, r.righe, 1 + static_cast<int>(g() % 12), migliore);
            if (HasFatalFailure()) return;
        }
        if (tipo != TipoRicerca::Ambate) continue;
        for (int k = 0; k < 4; ++k) {
            ParametriRicerca q = p;
            q.indiceMese = static_cast<int>(g() % 23);
            const std::string& chiave = r.righe[g() % r.righe.size()].chiave;
            ConfrontaAbbinamenti(q, ctx, chiave, 100 + static_cast<int32_t>(g() % (s.NumeroEstrazioni() - 99)),
                                 1 + static_cast<int>(g() % 15));
            if (HasFatalFailure()) return;
        }
    }
    EXPECT_GT(righeViste, 0);
    if (tipo == TipoRicerca::Ambate) {
        EXPECT_GT(rilevate, 0);
    }
}

INSTANTIATE_TEST_SUITE_P(ConvergenzeTipi, ConvergenzeDifferenziale,
                         ::testing::Values(TipoRicerca::Ambate, TipoRicerca::Ambi, TipoRicerca::TerzineAmbo,
                                           TipoRicerca::TerzineTerno, TipoRicerca::Codici),
                         test::NomeTipoRicerca);

// Keys of every spy kind against parameters of every spy kind: the refusals of the panel.
TEST(AbbinamentiDifferenziale, ChiaviESpieCasuali) {
    std::mt19937 g(9200);
    const archives::StoriaLotto s = test::StoriaCasuale(g, {.anni = 3});
    const IndiciMensili im = CalcolaIndiciMensili(s, "NNYNYNY");
    for (int prova = 0; prova < 300; ++prova) {
        const ContestoRicerca ctx = test::ContestoCasuale(g, s, im, nullptr);
        ParametriRicerca p = test::ParametriCasuali(g, s, TipoRicerca::Ambate);
        p.indiceMese = static_cast<int>(g() % 23);
        p.colpi = static_cast<int>(g() % 12);
        CodaChiave coda;
        coda.spia = static_cast<int>(g() % 25);
        // Mostly the tail the spy of the parameters gives, now and then another one.
        const int forma = g() % 3 == 0 ? static_cast<int>(g() % 4) : static_cast<int>(p.tipoSpia);
        if (forma == 0) coda.posizioni = g() % 2 ? "11111" : fmt::format("{:05b}", 1 + g() % 31);
        if (forma == 3) {
            coda.ambo = true;
            coda.posizioni = "11111";
            coda.spia2 = coda.spia + 1 + static_cast<int>(g() % 10);
        }
        const int cella = 1 + static_cast<int>(g() % NumeroCelle);
        std::string chiave = g() % 3 == 0
                                 ? ChiaveAmbata(cella, Operazione::Per, 1 + static_cast<int>(g() % 55), 0, coda)
                                 : ChiaveAmbata(cella, Operazione::Meno, 0, static_cast<int>(g() % 90), coda);
        if (g() % 15 == 0) chiave.resize(g() % chiave.size());
        ConfrontaAbbinamenti(p, ctx, chiave, 90 + static_cast<int32_t>(g() % (s.NumeroEstrazioni() - 89)),
                             1 + static_cast<int>(g() % 15));
        if (HasFatalFailure()) return;
    }
}

// ---------------------------------------------------------------- edge cases on the demo history

// The last draw of the demo is the one case (the last hit of the spy): its window is empty, so
// every algorithm runs there, and forecasts are computed on that draw.
struct UltimoCaso {
    test::ContestoDemo demo;
    ParametriRicerca p;
    int32_t n = demo.storia.NumeroEstrazioni();

    UltimoCaso() {
        p.valoreSpia = demo.storia[n].Numero(1, 1);
        p.perData = 1;
        p.sortiteDaCercare = 1;
        p.indiceMese = 22;
    }
    CodaChiave Coda() const { return CodaChiave{p.valoreSpia, "11111", '1'}; }
    int Valore(int cella) const { return demo.storia[n].Numero(RuotaDiCella(cella), PosizioneDiCella(cella)); }
    // An Ambata on `cella` whose forecast in the last draw is `numero`.
    RigaAlgoritmo Ambata(int cella, int numero) const {
        const int k = ((numero - Valore(cella)) % 90 + 90) % 90;
        RigaAlgoritmo r;
        r.chiave = ChiaveAmbata(cella, Operazione::Piu, 0, k, Coda());
        r.descrizione = DescrizioneAmbata(cella, Operazione::Piu, 0, k, false);
        r.testoSpia = fmt::format("{:>2}", p.valoreSpia);
        r.selezionata = true;
        return r;
    }
    RigaAlgoritmo Ambi(int cellaB, int x, int cellaA, int y) const {
        const int k1 = ((x - Valore(cellaB)) % 90 + 90) % 90, k2 = ((y - Valore(cellaA)) % 90 + 90) % 90;
        RigaAlgoritmo r;
        r.chiave = ChiaveAmbi(cellaB, Operazione::Piu, k1, cellaA, Operazione::Piu, k2, Coda());
        r.descrizione = DescrizioneAmbi(cellaB, Operazione::Piu, k1, cellaA, Operazione::Piu, k2, false);
        r.testoSpia = fmt::format("{:>2}", p.valoreSpia);
        r.selezionata = true;
        return r;
    }
    RigaAlgoritmo Terzina(int c1, int c2, int c3) const {
        RigaAlgoritmo r;
        r.chiave = ChiaveTerzina(c1, c2, c3, Coda());
        r.descrizione = DescrizioneTerzina(c1, c2, c3);
        r.testoSpia = fmt::format("{:>2}", p.valoreSpia);
        r.selezionata = true;
        return r;
    }
};

TEST(Convergenze, NumeroPrevistoDueVolte) {
    UltimoCaso u;
    std::vector<RigaAlgoritmo> righe = {u.Ambata(Cella(2, 1), 27), u.Ambata(Cella(3, 4), 45),
                                        u.Ambata(Cella(5, 2), 27)};
    EsitoConvergenze e = CalcolaConvergenze(u.p, u.demo.contesto, righe);
    ASSERT_EQ(e.righe.size(), 3u);
    EXPECT_EQ(e.righe[1].previsione, "45");
    EXPECT_TRUE(e.rilevate);
    EXPECT_EQ(e.messaggio.testo, "N. 27 previsto 2 volte");
    EXPECT_EQ(e.messaggio.icona, archives::Icona::Informazione);

    // Unchecked rows do not count; one forecast each is no convergence.
    righe[2].selezionata = false;
    e = CalcolaConvergenze(u.p, u.demo.contesto, righe);
    EXPECT_EQ(e.messaggio.testo, NessunaConvergenza);
    for (auto& r : righe) r.selezionata = false;
    e = CalcolaConvergenze(u.p, u.demo.contesto, righe);
    EXPECT_EQ(e.messaggio.testo, "Nessun  algoritmo selezionato!");
    EXPECT_FALSE(e.frame);

    // Four numbers twice each: the list is long, the verb plural.
    righe.clear();
    for (int x : {5, 27, 45, 80})
        for (int c : {Cella(2, 1), Cella(4, 3)}) righe.push_back(u.Ambata(c, x));
    e = CalcolaConvergenze(u.p, u.demo.contesto, righe);
    EXPECT_EQ(e.messaggio.testo, "N.  5 e 27 e 45 e 80 previsti 2 volte");
}

TEST(Convergenze, AmboNeiDueVersiETerzineConUnaCoppia) {
    UltimoCaso u;
    u.p.tipoRicerca = TipoRicerca::Ambi;
    const std::vector<RigaAlgoritmo> ambi = {u.Ambi(Cella(2, 1), 12, Cella(6, 3), 45),
                                             u.Ambi(Cella(9, 2), 45, Cella(4, 4), 12)};
    const EsitoConvergenze e = CalcolaConvergenze(u.p, u.demo.contesto, ambi);
    EXPECT_EQ(e.righe[0].previsione, "12-45");
    EXPECT_EQ(e.righe[1].previsione, "45-12");
    EXPECT_EQ(e.messaggio.testo, "Ambo/i 12-45 previsto 2 volte");

    // Three terzine sharing the numbers of cells 1 and 2 of Bari, no terzina twice.
    u.p.tipoRicerca = TipoRicerca::TerzineAmbo;
    const std::vector<RigaAlgoritmo> terzine = {u.Terzina(1, 2, 13), u.Terzina(1, 2, 24), u.Terzina(1, 2, 37)};
    const EsitoConvergenze t = CalcolaConvergenze(u.p, u.demo.contesto, terzine);
    const int a = std::min(u.Valore(1), u.Valore(2)), b = std::max(u.Valore(1), u.Valore(2));
    EXPECT_EQ(t.messaggio.testo, fmt::format("Ambo/i {:>2}-{:>2} previsto 3 volte", a, b));
    EXPECT_TRUE(t.terzine.empty());

    // The same terzina twice gives its line too.
    const EsitoConvergenze d =
        CalcolaConvergenze(u.p, u.demo.contesto, {u.Terzina(1, 2, 13), u.Terzina(1, 2, 13), u.Terzina(3, 4, 5)});
    ASSERT_EQ(d.blocchi.size(), 2u);
    EXPECT_EQ(d.blocchi[1].substr(0, 10), "Terzina/e ");
}

TEST(Convergenze, NessunaPrevisioneInCorso) {
    UltimoCaso u;
    u.p.colpiDaGiocare = 0;  // the last case has all its 9 colpi left: more than 0
    const EsitoConvergenze e = CalcolaConvergenze(u.p, u.demo.contesto, {u.Ambata(Cella(2, 1), 27)});
    EXPECT_TRUE(e.righe.empty());
    EXPECT_EQ(e.messaggio.testo, NessunAlgoritmoInCorso);
    EXPECT_TRUE(e.frame);
}

TEST(Lunghetta, RecenteELeRigheUscite) {
    UltimoCaso u;
    const archives::StoriaLotto& s = u.demo.storia;
    // Bari alone: a number of the last draw scores 0, one never seen in six draws 50.
    const std::vector<int> r = TabellaRecente(s, RuoteScelte(u.p.ruoteGioco), 1, u.n, false);
    EXPECT_EQ(r[static_cast<size_t>(s[u.n].Numero(1, 3))], 0);
    for (int n = 1; n <= 90; ++n) {
        bool visto = false;
        for (int k = 0; k <= 5; ++k)
            for (int q = 1; q <= 5; ++q) visto = visto || s[u.n - k].Numero(1, q) == n;
        if (!visto) {
            EXPECT_EQ(r[static_cast<size_t>(n)], RecenteNonVisto) << n;
        }
    }

    // A forecast of the last draw's Bari never counts; with fewer numbers than asked the
    // lunghetta is shorter.
    int lontano = 1;
    while (r[static_cast<size_t>(lontano)] != RecenteNonVisto) ++lontano;
    const std::vector<RigaAlgoritmo> righe = {u.Ambata(Cella(1, 2), s[u.n].Numero(1, 4)),
                                              u.Ambata(Cella(3, 1), lontano)};
    const EsitoLunghetta e = ElaboraLunghetta(u.p, u.demo.contesto, righe, {5, false});
    ASSERT_EQ(e.righe.size(), 1u);
    EXPECT_EQ(e.righe[0].descrizione, righe[1].descrizione);
    EXPECT_EQ(e.txtLunghetta, std::to_string(lontano));

    // The best wheel: only one played, it is that one.
    const EsitoLunghetta m = ElaboraLunghetta(u.p, u.demo.contesto, righe, {5, true});
    EXPECT_EQ(m.righe.size(), 2u);
    EXPECT_EQ(m.txtRuotaMigliore, "Bari");
    EXPECT_EQ(ElaboraLunghetta(u.p, u.demo.contesto, {}, {5, true}).errore.testo, RicercaNecessaria);
}

TEST(Abbinamenti, PannelloIndiceEMosse) {
    test::ContestoDemo demo;
    const archives::StoriaLotto& s = demo.storia;
    const int32_t n = s.NumeroEstrazioni();
    const std::string chiave = ChiaveAmbata(Cella(1, 1), Operazione::Piu, 0, 10, CodaChiave{27, "11111", '1'});
    // "Tutti" (22) and 18..21: no draw passes; 17: every draw.
    for (int indice : {18, 22}) EXPECT_EQ(RicalcolaCapogioco(s, demo.indici, indice, chiave, n).indice, 0);
    const Capogioco tutte = RicalcolaCapogioco(s, demo.indici, 17, chiave, n);
    EXPECT_EQ(tutte.indice, n);
    EXPECT_EQ(tutte.numero, OperaPiu(s[n].Numero(1, 1), 10));
    // "Ultima": back to the last draw of a month; forward with Sincronizza to the next one.
    const Capogioco u = RicalcolaCapogioco(s, demo.indici, 0, chiave, n - 20);
    ASSERT_GT(u.indice, 0);
    EXPECT_TRUE(demo.indici.ultimo[static_cast<size_t>(u.indice)]);
    const int32_t avanti = EstrazioneSuccessiva(s, demo.indici, 0, true, u.indice);
    EXPECT_TRUE(demo.indici.ultimo[static_cast<size_t>(avanti)]);
    EXPECT_GT(avanti, u.indice + 5);
    // Without it the move is one draw, and the recompute walks back to the same draw.
    EXPECT_EQ(EstrazioneSuccessiva(s, demo.indici, 0, false, u.indice), u.indice + 1);
    EXPECT_EQ(RicalcolaCapogioco(s, demo.indici, 0, chiave, u.indice + 1).indice, u.indice);
    EXPECT_EQ(EstrazionePrecedente(19), 18);
    EXPECT_EQ(EstrazionePrecedente(18), 18);

    ParametriRicerca p;
    p.valoreSpia = 27;
    p.indiceMese = 22;
    EsitoAbbinamenti e = CalcolaAbbinamenti(p, demo.contesto, chiave, n, 0, 12);
    EXPECT_TRUE(e.errore.vuoto());
    EXPECT_EQ(e.casi, 0);
    EXPECT_TRUE(e.righe.empty());
    p.indiceMese = 17;
    p.ruoteRicerca[0] = true;
    p.ruoteGioco[0] = true;
    e = CalcolaAbbinamenti(p, demo.contesto, chiave, n, tutte.numero, 15);
    EXPECT_EQ(e.casi, CasiAbbinamenti);
    ASSERT_EQ(e.righe.size(), 15u);
    for (size_t k = 1; k < e.righe.size(); ++k) {
        // Highest count first, ties to the lower number.
        const RigaAbbinamento &a = e.righe[k - 1], &b = e.righe[k];
        EXPECT_TRUE(a.conteggio > b.conteggio || (a.conteggio == b.conteggio && a.numero < b.numero));
    }
    // The refusals, in their order.
    p.colpi = 0;
    EXPECT_EQ(CalcolaAbbinamenti(p, demo.contesto, chiave, n, 0, 12).errore.testo, ColpiMancanti);
    p.colpi = 9;
    EXPECT_EQ(CalcolaAbbinamenti(p, demo.contesto, "123456", n, 0, 12).errore.testo, AbbinamentiSenzaCapogioco);
    p.tipoSpia = TipoSpia::Somma;
    EXPECT_EQ(CalcolaAbbinamenti(p, demo.contesto, chiave, n, 0, 12).errore.testo, CapogiocoMancante);
    p.tipoSpia = TipoSpia::Numero;
    EXPECT_EQ(CalcolaAbbinamenti(p, demo.contesto, ChiaveAmbata(1, Operazione::Piu, 0, 1, CodaChiave{0, "11111", '1'}),
                                 n, 0, 12)
                  .errore.testo,
              AbbinatiImpossibili);
}

TEST(Abbinamenti, ReportSuFile) {
    test::ContestoDemo demo;
    const archives::StoriaLotto& s = demo.storia;
    ParametriRicerca p;
    p.valoreSpia = 27;
    p.indiceMese = 17;
    p.ruoteRicerca[0] = true;
    p.ruoteGioco[0] = true;
    p.dataDa = "02/01/2025";
    p.dataA = "30/12/2025";
    const std::string chiave = ChiaveAmbata(Cella(1, 1), Operazione::Piu, 0, 10, CodaChiave{27, "11111", '1'});
    const std::string descrizione = DescrizioneAmbata(Cella(1, 1), Operazione::Piu, 0, 10, false);
    const Capogioco c = RicalcolaCapogioco(s, demo.indici, p.indiceMese, chiave, s.NumeroEstrazioni());
    const EsitoAbbinamenti e = CalcolaAbbinamenti(p, demo.contesto, chiave, c.indice, c.numero, 12);
    EXPECT_TRUE(
        test::ConfrontaConAtteso(test::TestoRighe(ReportAbbinamenti(p, s, descrizione, c.data, c.numero, e).righe()),
                                 "builder/attesi/abbinamenti_file.txt"));
    const NumeriDaGiocare d =
        ComponiNumeriDaGiocare(p.ruoteGioco, c.data, c.numero, {c.numero, e.righe[0].numero, 88}, e);
    EXPECT_TRUE(test::ConfrontaConAtteso(test::TestoRighe(d.righe), "builder/attesi/numeri_gorgo.txt"));
    EXPECT_EQ(d.multiSegnalazione, fmt::format("Segnalati da entrambi : {:>2}", e.righe[0].numero));
}

// ---------------------------------------------------------------- the real archive

TEST(ConvergenzeReali, SpiaVentisetteSuTutte) {
    GORGO_RICHIEDI_ARCHIVI_REALI(reale);
    const archives::Archivio a = archives::Archivio::Apri(reale);
    const auto s = a.Storia();
    const IndiciMensili im = CalcolaIndiciMensili(*s, "NNYNYNY");
    ContestoRicerca ctx{s.get(), {}, &im, nullptr};
    ctx.restrizioni.GiornoAmmesso.fill(true);
    ctx.restrizioni.MeseAmmesso.fill(true);
    ctx.restrizioni.PeriodoAmmesso.fill(true);
    ParametriRicerca p;
    p.valoreSpia = 27;
    p.indiceMese = 22;
    p.ruoteRicerca[0] = true;
    p.ruoteGioco[0] = true;
    // The last 120 hits: the literal replays list every case, and stay quick so.
    p.perData = 1;
    p.sortiteDaCercare = 120;
    const EsitoRicerca r = CercaAlgoritmi(p, ctx, {}, true);
    ASSERT_TRUE(r.errore.vuoto());
    ASSERT_FALSE(r.righe.empty());
    int rilevate = 0;
    for (int colpiMax : {3, 9}) {
        p.colpiDaGiocare = colpiMax;
        ConfrontaConvergenze(p, ctx, r.righe, rilevate);
        if (HasFatalFailure()) return;
    }
    std::vector<RigaAlgoritmo> righe = r.righe;
    for (size_t k = 0; k < righe.size(); ++k) righe[k].selezionata = k % 4 == 0;
    for (bool migliore : {false, true})
        for (int n : {3, 30}) {
            ConfrontaLunghetta(p, ctx, righe, n, migliore);
            if (HasFatalFailure()) return;
        }
    for (int indice : {0, 3, 17}) {
        p.indiceMese = indice;
        for (size_t k = 0; k < 4; ++k) {
            ConfrontaAbbinamenti(p, ctx, r.righe[k].chiave, s->NumeroEstrazioni(), 12);
            ConfrontaAbbinamenti(p, ctx, r.righe[k].chiave, 160, 15);
            if (HasFatalFailure()) return;
        }
    }
}

}  // namespace
}  // namespace gorgo::builder
