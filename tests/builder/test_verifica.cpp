// The verification against its literal transcription on random archives, the edge cases of
// the replay and of the recap, the statistics of the play wheels, the forecasts and the
// reports of the verification.

#include <gtest/gtest.h>

#include <fmt/format.h>
#include <random>

#include "archives/archivio.h"
#include "archives/demo.h"
#include "builder/chiavi.h"
#include "builder/indice_mensile.h"
#include "builder/previsioni.h"
#include "builder/report.h"
#include "builder/ricerca.h"
#include "builder/riepilogo.h"
#include "builder/statistiche.h"
#include "builder/terzine.h"
#include "builder/verifica.h"
#include "config/formato.h"
#include "support/archivi_reali.h"
#include "support/attesi.h"
#include "support/casuali.h"
#include "verifica_letterale.h"

namespace gorgo::builder {
namespace {
// ---------------------------------------------------------------- random archives

using test::ParametriCasuali;
using test::RuoteCasuali;
using test::StoriaCasuale;
using test::TerzineCasuali;

// The verification of one key is cheap: long periods, "last n cases" with every value too.
const test::MisurePeriodo MisureVerifica{15, {5, 205}, {5, 205}, true};

// Column 4 of a row for these parameters: the fixed value, or one of all values.
std::string SpiaCasuale(std::mt19937& g, const ParametriRicerca& p) {
    if (p.tipoSpia != TipoSpia::Ambo && p.modoSpia == ModoSpia::SoloIndiceMensile) return "--";
    if (p.tipoSpia == TipoSpia::Ambo)
        return fmt::format("{}-{}", std::min(p.amboSpia[0], p.amboSpia[1]), std::max(p.amboSpia[0], p.amboSpia[1]));
    const int v = p.modoSpia == ModoSpia::Tutti ? 1 + static_cast<int>(g() % 20) : p.valoreSpia;
    return fmt::format("{:>2}", v);
}

// A key of the kind, with a tail as a search with these parameters would write it; now and
// then a key that must be refused.
std::string ChiaveCasuale(std::mt19937& g, const ParametriRicerca& p, const std::string& spia, int terzine) {
    CodaChiave coda;
    coda.spia = std::max(0, std::atoi(spia.c_str()));
    coda.posizioni = p.tipoSpia == TipoSpia::Numero || p.tipoSpia == TipoSpia::Ambo
                         ? (p.posizioneDeterminata ? std::string() : std::string("11111"))
                         : std::string();
    if (coda.posizioni.empty() && (p.tipoSpia == TipoSpia::Numero || p.tipoSpia == TipoSpia::Ambo))
        for (int k = 1; k <= 5; ++k) coda.posizioni += p.posizioniSpia[static_cast<size_t>(k)] ? '1' : '0';
    coda.posizioneTrovata = static_cast<char>('1' + g() % 5);
    if (p.tipoSpia == TipoSpia::Ambo) {
        coda.ambo = true;
        coda.spia2 = std::max(p.amboSpia[0], p.amboSpia[1]);
        coda.posizioneTrovata2 = '3';
    }
    const auto cella = [&] { return 1 + static_cast<int>(g() % NumeroCelle); };
    const auto op = [&] { return std::array{Operazione::Piu, Operazione::Meno, Operazione::Per}[g() % 3]; };
    switch (g() % 25) {
        case 0: return "";
        case 1: return "12345";
        case 2: return ChiaveAmbata(cella(), op(), 0, 5, coda);  // maybe of another kind
        default: break;
    }
    switch (p.tipoRicerca) {
        case TipoRicerca::Ambate:
            if (g() % 3 == 0) return ChiaveAmbata(cella(), op(), cella(), 0, coda);
            return ChiaveAmbata(cella(), op(), 0, static_cast<int>(g() % 46), coda);
        case TipoRicerca::Ambi:
            return ChiaveAmbi(cella(), op(), static_cast<int>(g() % 46), cella(), op(), static_cast<int>(g() % 46),
                              coda);
        case TipoRicerca::TerzineAmbo:
        case TipoRicerca::TerzineTerno: {
            std::array<int, 3> c{cella(), cella(), cella()};
            std::sort(c.begin(), c.end());
            return ChiaveTerzina(c[0], c[1], c[2], coda);
        }
        case TipoRicerca::Codici:
            return ChiaveCodice(cella(), 1 + static_cast<int>(g() % static_cast<unsigned>(terzine)), op(), coda);
    }
    return {};
}

std::string Descrivi(const ParametriRicerca& p, const std::string& chiave, const std::string& spia) {
    return fmt::format(
        "tipo {} spia {} modo {} '{}' chiave '{}' pos {} da {} a {} perData {}/{} mese {} colpi {} "
        "ultime {} sorte {} max {}",
        static_cast<int>(p.tipoRicerca), static_cast<int>(p.tipoSpia), static_cast<int>(p.modoSpia), spia, chiave,
        p.posizioneDeterminata, p.dataDa, p.dataA, p.perData, p.sortiteDaCercare, p.indiceMese, p.colpi,
        p.controllaUltime, p.sorte, p.colpiDaGiocare);
}

// Engine and transcription, in every mode, on one key.
void Confronta(const ParametriRicerca& p, const ContestoRicerca& ctx, const std::string& descrizione,
               const std::string& chiave, const std::string& spia, std::mt19937& g) {
    const std::string dove = Descrivi(p, chiave, spia);
    const EsitoVerifica e = VerificaAlgoritmo(p, ctx, descrizione, chiave, spia, false, p.colpiDaGiocare);
    const letterale::Verifica l =
        letterale::VerificaAlgoritmo(p, ctx, descrizione, chiave, spia, false, p.colpiDaGiocare, false);
    ASSERT_EQ(e.errore.testo, l.errore.testo) << dove;
    ASSERT_EQ(e.inCorso, l.inCorso) << dove;
    ASSERT_EQ(e.righe.size(), l.lista.size()) << dove;
    for (size_t k = 0; k < e.righe.size(); ++k) {
        const RigaVerifica& r = e.righe[k];
        for (size_t c = 0; c < 13; ++c) ASSERT_EQ(r.colonne[c], l.lista[k][c]) << dove << " riga " << k << " col " << c;
        ASSERT_EQ(r.chiave, l.lista[k][13]) << dove << " riga " << k;
        ASSERT_EQ(r.inCorso, l.rossa[k]) << dove << " riga " << k;
        // The raw fields say what the texts say.
        ASSERT_EQ(fmt::format("{:>5}", r.indiceSpia), r.colonne[11]);
        ASSERT_EQ(fmt::format("{:>5}", r.indiceEsito), r.colonne[12]);
        ASSERT_EQ(r.vincita, r.colonne[9] != "--");
        if (r.vincita) {
            ASSERT_EQ(fmt::format("{:>2}", r.colpo), r.colonne[10]);
        }
    }
    ASSERT_EQ(e.lblCapo, l.lblCapo) << dove;
    ASSERT_EQ(e.lblDataPrevisione, l.lblDataPrevisione) << dove;
    if (!e.righe.empty()) {
        ASSERT_EQ(e.coloreCapo, l.coloreCapo) << dove;
    }
    if (e.errore.vuoto()) {
        const int32_t fine = ValidaRicerca(p, *ctx.storia).ultimoPeriodo;
        const FigureRiepilogo a = FigureTecnica(e.righe, fine, p.colpi), b = letterale::Figure(l.lista, fine, p.colpi);
        ASSERT_EQ(std::tie(a.rilevati, a.favorevoli, a.negativi, a.inGioco, a.sfaldati, a.sommaColpi),
                  std::tie(b.rilevati, b.favorevoli, b.negativi, b.inGioco, b.sfaldati, b.sommaColpi))
            << dove;
    }

    // Silent, with and without the early end of a selection.
    const int colpiMax = static_cast<int>(g() % 14);
    for (bool selezione : {false, true}) {
        const EsitoVerifica s = VerificaAlgoritmo(p, ctx, descrizione, chiave, spia, true, colpiMax, selezione);
        const letterale::Verifica t =
            letterale::VerificaAlgoritmo(p, ctx, descrizione, chiave, spia, true, colpiMax, selezione);
        ASSERT_EQ(s.errore.testo, t.errore.testo) << dove;
        ASSERT_EQ(s.inCorso, t.inCorso) << dove << " selezione " << selezione << " max " << colpiMax;
        ASSERT_TRUE(s.righe.empty());
        if (!selezione) {
            ASSERT_EQ(s.inCorso, VerificaAlgoritmo(p, ctx, descrizione, chiave, spia, false, colpiMax).inCorso);
        }
    }
}

class VerificaDifferenziale : public ::testing::TestWithParam<TipoRicerca> {};

// Random keys of the kind on random archives and parameters.
TEST_P(VerificaDifferenziale, ChiaviCasuali) {
    const TipoRicerca tipo = GetParam();
    std::mt19937 g(7000 + static_cast<unsigned>(tipo));
    for (int archivio = 0; archivio < 3; ++archivio) {
        const archives::StoriaLotto s = StoriaCasuale(g);
        const IndiciMensili im = CalcolaIndiciMensili(s, g() % 2 ? "NNYNYNY" : "NNNNNNN");
        const TerzineRidotte t = TerzineCasuali(g, 120);
        for (int prova = 0; prova < 120; ++prova) {
            const ContestoRicerca ctx = test::ContestoCasuale(g, s, im, &t);
            const ParametriRicerca p = ParametriCasuali(g, s, tipo, MisureVerifica);
            const std::string spia = SpiaCasuale(g, p);
            const std::string chiave = ChiaveCasuale(g, p, spia, t.quante());
            Confronta(p, ctx, DescrizioneDaChiave(chiave, p, &t), chiave, spia, g);
            if (HasFatalFailure()) return;
        }
    }
}

// The rows a search gives, as the screen replays them, and the selection of running ones.
TEST_P(VerificaDifferenziale, RigheDellaRicerca) {
    const TipoRicerca tipo = GetParam();
    std::mt19937 g(8000 + static_cast<unsigned>(tipo));
    const int prove = tipo == TipoRicerca::Ambi || tipo == TipoRicerca::Codici ? 6 : 20;
    int righeViste = 0, inCorsoVisti = 0;
    for (int prova = 0; prova < prove; ++prova) {
        const archives::StoriaLotto s = StoriaCasuale(g, {.anni = 2});
        const IndiciMensili im = CalcolaIndiciMensili(s, "NNYNYNY");
        const TerzineRidotte t = TerzineCasuali(g, 60);
        const ContestoRicerca ctx = test::ContestoCasuale(g, s, im, &t);
        ParametriRicerca p = ParametriCasuali(g, s, tipo, MisureVerifica);
        // Heavy bodies on short periods.
        if (tipo == TipoRicerca::Ambi || tipo == TipoRicerca::Codici) {
            p.modoSpia = p.modoSpia == ModoSpia::Tutti ? ModoSpia::Fisso : p.modoSpia;
            p.dataDa = s.DataEstrazione(s.NumeroEstrazioni() - 40);
        }
        EsitoRicerca r = CercaAlgoritmi(p, ctx);
        if (!r.errore.vuoto()) continue;
        if (r.righe.size() > 40) r.righe.resize(40);
        for (const RigaAlgoritmo& riga : r.righe) {
            // The description the search wrote is the one its key gives back.
            ASSERT_EQ(DescrizioneDaChiave(riga.chiave, p, &t), riga.descrizione) << riga.chiave;
            Confronta(p, ctx, riga.descrizione, riga.chiave, riga.testoSpia, g);
            if (HasFatalFailure()) return;
            ++righeViste;
        }
        std::vector<RigaAlgoritmo> righe = r.righe;
        const std::vector<int> inCorso = SelezionaInCorso(p, ctx, righe);
        ASSERT_EQ(inCorso.size(), righe.size());
        for (size_t k = 0; k < righe.size(); ++k) {
            const letterale::Verifica l = letterale::VerificaAlgoritmo(
                p, ctx, righe[k].descrizione, righe[k].chiave, righe[k].testoSpia, true, p.colpiDaGiocare, true);
            ASSERT_EQ(inCorso[k], l.inCorso) << Descrivi(p, righe[k].chiave, righe[k].testoSpia);
            ASSERT_EQ(righe[k].selezionata, l.inCorso > 0);
            inCorsoVisti += l.inCorso > 0;
        }
    }
    EXPECT_GT(righeViste, 0);
    if (tipo == TipoRicerca::Ambate) {
        EXPECT_GT(inCorsoVisti, 0);
    }
}

INSTANTIATE_TEST_SUITE_P(VerificaTipi, VerificaDifferenziale,
                         ::testing::Values(TipoRicerca::Ambate, TipoRicerca::Ambi, TipoRicerca::TerzineAmbo,
                                           TipoRicerca::TerzineTerno, TipoRicerca::Codici),
                         test::NomeTipoRicerca);

// ---------------------------------------------------------------- edge cases on a made history

// The last 40 demo draws; Bari holds 1..5 everywhere unless a case sets it. The key plays the
// first number of Bari plus 10 on Bari, the spy is 27 on Bari.
struct Scenario {
    std::vector<archives::RecordEstrazione> record;
    archives::StoriaLotto storia;
    IndiciMensili indici;
    TerzineRidotte terzine;
    ContestoRicerca contesto;
    ParametriRicerca p;
    std::string chiave = ChiaveAmbata(Cella(1, 1), Operazione::Piu, 0, 10, CodaChiave{27, "11111", '2'});
    std::string descrizione = DescrizioneAmbata(Cella(1, 1), Operazione::Piu, 0, 10, false);

    Scenario() {
        const auto tutte = archives::GeneraStoriaDemo(archives::ParametriDemo{5, archives::Data{30, 12, 2025}});
        record.assign(tutte.end() - 40, tutte.end());
        for (auto& r : record) Bari(r, {1, 2, 3, 4, 5});
        terzine.terzine.push_back({10, 20, 30});
        p.tipoRicerca = TipoRicerca::Ambate;
        p.valoreSpia = 27;
        p.indiceMese = 22;
        p.ruoteRicerca = {false, true, false, false, false, false, false, false, false, false, false, false};
        p.ruoteGioco = p.ruoteRicerca;
        p.colpi = 3;
        p.colpiDaGiocare = 9;
        Fatto();
    }
    static void Bari(archives::RecordEstrazione& r, std::array<int, 5> n) {
        for (int k = 0; k < 5; ++k) r.Ruota[0][k] = static_cast<uint8_t>(n[static_cast<size_t>(k)]);
    }
    // Bari of the draw `indietro` before the last.
    void Poni(int indietro, std::array<int, 5> n) {
        Bari(record[record.size() - 1 - static_cast<size_t>(indietro)], n);
    }
    void Fatto() {
        storia = archives::StoriaLotto(record);
        indici = CalcolaIndiciMensili(storia, "NNYNYNY");
        contesto = ContestoRicerca{&storia, {}, &indici, &terzine};
        p.dataDa = storia.DataEstrazione(1);
        p.dataA = storia.DataEstrazione(storia.NumeroEstrazioni());
    }
    int32_t N() const { return storia.NumeroEstrazioni(); }
    EsitoVerifica Verifica(int colpiMax = 9) const {
        return VerificaAlgoritmo(p, contesto, descrizione, chiave, "27", false, colpiMax);
    }
};

constexpr std::array<int, 5> Spia27{40, 27, 6, 7, 8};  // forecast 50

TEST(VerificaCasiLimite, FinestraVuotaAllaFineDellArchivio) {
    Scenario s;
    s.Poni(0, Spia27);
    s.Fatto();
    const EsitoVerifica e = s.Verifica();
    ASSERT_TRUE(e.errore.vuoto()) << e.errore.testo;
    ASSERT_EQ(e.righe.size(), 1u);
    const RigaVerifica& r = e.righe[0];
    // Running with all the colpi left ("3-"); the hit's index is the draw to come.
    EXPECT_EQ(r.colonne, (std::array<std::string, 13>{s.storia.DataEstrazione(s.N()), "Bari      ", "27", "2", " U",
                                                      "208", " ", "50", "IN CORSO", "--", "3-",
                                                      fmt::format("{:>5}", s.N()), fmt::format("{:>5}", s.N() + 1)}));
    EXPECT_EQ(r.chiave, "Nessuno");
    EXPECT_TRUE(r.inCorso);
    EXPECT_EQ(e.inCorso, 1);
    EXPECT_EQ(e.lblCapo, "50");
    EXPECT_EQ(e.coloreCapo, ColoreVerdeScuro);
    EXPECT_EQ(e.lblDataPrevisione, s.storia.DataEstrazione(s.N()));
    EXPECT_EQ(e.lblDescrizioneRisultatiOttenuti, s.descrizione + " : risultati ottenuti (pr. in corso)");
    // Three colpi left are more than two at most: running, but not counted.
    const EsitoVerifica due = s.Verifica(2);
    EXPECT_EQ(due.inCorso, 0);
    EXPECT_EQ(due.righe[0].colonne[8], "IN CORSO");
    EXPECT_EQ(due.coloreCapo, ColoreVerdeScuro);
    EXPECT_EQ(due.lblDescrizioneRisultatiOttenuti, s.descrizione + " : risultati ottenuti");
}

TEST(VerificaCasiLimite, FinestraPienaSenzaEsito) {
    Scenario s;
    s.Poni(5, Spia27);
    s.Fatto();
    const EsitoVerifica e = s.Verifica();
    ASSERT_EQ(e.righe.size(), 1u);
    const RigaVerifica& r = e.righe[0];
    EXPECT_EQ(r.colonne[8], "--");
    EXPECT_EQ(r.colonne[9], "--");
    EXPECT_EQ(r.colonne[10], "--");
    EXPECT_EQ(r.colonne[12], fmt::format("{:>5}", s.N() - 5 + 3 + 1));
    EXPECT_FALSE(r.inCorso);
    EXPECT_EQ(e.inCorso, 0);
    // The newest case, yet no running one: the forecast stands in dark red.
    EXPECT_EQ(e.lblCapo, "50");
    EXPECT_EQ(e.coloreCapo, ColoreRossoScuro);
    EXPECT_TRUE(e.lblDataPrevisione.empty());
}

TEST(VerificaCasiLimite, EsitoAlSecondoColpoDiUnaFinestraAperta) {
    Scenario s;
    s.p.colpi = 5;
    s.Poni(2, Spia27);
    s.Poni(0, {11, 50, 12, 13, 14});
    s.Fatto();
    const EsitoVerifica e = s.Verifica();
    ASSERT_EQ(e.righe.size(), 1u);
    const RigaVerifica& r = e.righe[0];
    EXPECT_EQ(r.colonne[8], s.storia.DataEstrazione(s.N()));
    EXPECT_EQ(r.colonne[9], std::string(archives::NomiRuota[1]));
    EXPECT_EQ(r.colonne[10], " 2");
    EXPECT_EQ(r.colonne[12], fmt::format("{:>5}", s.N()));
    EXPECT_EQ(r.chiave, s.descrizione);
    EXPECT_FALSE(r.inCorso);
    EXPECT_EQ(e.inCorso, 0);
    EXPECT_EQ(e.coloreCapo, ColoreRossoScuro);
}

TEST(VerificaCasiLimite, OgniEsitoDellaFinestraHaLaSuaRiga) {
    Scenario s;
    s.p.ruoteGioco[5] = true;  // Milano too, quiet but once
    for (auto& r : s.record)
        for (int k = 0; k < 5; ++k) r.Ruota[4][k] = static_cast<uint8_t>(60 + k);
    s.Poni(4, Spia27);
    s.Poni(3, {50, 1, 2, 3, 4});
    s.Poni(1, {2, 50, 3, 4, 5});
    s.record[s.record.size() - 2].Ruota[4][4] = 50;
    s.Fatto();
    const EsitoVerifica e = s.Verifica();
    ASSERT_EQ(e.righe.size(), 3u);
    EXPECT_EQ(e.righe[0].colonne[10], " 1");
    EXPECT_EQ(e.righe[1].colonne[10], " 3");
    EXPECT_EQ(e.righe[2].colonne[10], " 3");
    EXPECT_EQ(e.righe[1].ruotaEsito, 1);
    EXPECT_EQ(e.righe[2].ruotaEsito, 5);
    const FigureRiepilogo f = FigureTecnica(e.righe, s.N(), s.p.colpi);
    EXPECT_EQ(f.rilevati, 3);  // a case with three hits counts three times
    EXPECT_EQ(f.favorevoli, 3);
    EXPECT_EQ(f.sommaColpi, 7);
}

TEST(VerificaCasiLimite, CodiceSu45ContaUnaVolta) {
    Scenario s;
    s.p.tipoRicerca = TipoRicerca::Codici;
    s.chiave = ChiaveCodice(Cella(1, 1), 1, Operazione::Per, CodaChiave{27, "11111", '2'});
    ASSERT_EQ(s.chiave.size(), 16u);
    s.Poni(5, {45, 27, 6, 7, 8});
    s.Poni(4, {45, 60, 61, 62, 63});
    s.Fatto();
    EsitoVerifica e = s.Verifica();
    ASSERT_TRUE(e.errore.vuoto()) << e.errore.testo;
    ASSERT_EQ(e.righe.size(), 1u);
    EXPECT_EQ(e.righe[0].colonne[7], "45-45-45");
    EXPECT_EQ(e.righe[0].colonne[8], "--");  // one number of the wheel, once: no ambo
    // Another number: three products; two of them on the wheel make an ambo, not a terno.
    s.Poni(5, {3, 27, 6, 7, 8});
    s.Poni(4, {30, 60, 1, 62, 63});
    s.Fatto();
    e = s.Verifica();
    ASSERT_EQ(e.righe.size(), 1u);
    EXPECT_EQ(e.righe[0].colonne[7], "30-60-90");
    EXPECT_EQ(e.righe[0].colonne[10], " 1");
    s.p.sorte = 3;
    e = s.Verifica();
    ASSERT_EQ(e.righe.size(), 1u);
    EXPECT_EQ(e.righe[0].colonne[8], "--");
}

TEST(VerificaCasiLimite, ChiaviRifiutate) {
    Scenario s;
    s.Poni(0, Spia27);
    s.Fatto();
    for (const std::string k : {"", "1", "101+0001"}) {
        s.chiave = k;
        EXPECT_EQ(s.Verifica().errore.testo, "Calcolo impossibile: algoritmo mancante.") << k;
    }
    // A number spy needs the positions of the key: a key without them ends quietly.
    s.chiave = "101+00010";
    EsitoVerifica e = s.Verifica();
    EXPECT_TRUE(e.errore.vuoto());
    EXPECT_TRUE(e.righe.empty());
    // A code is exactly 16 long.
    s.p.tipoRicerca = TipoRicerca::Codici;
    s.chiave = ChiaveAmbata(Cella(1, 1), Operazione::Piu, 0, 10, CodaChiave{27, "11111", '2'});
    EXPECT_EQ(s.Verifica().errore.testo, "Calcolo impossibile: algoritmo mancante.");
    // A key of another kind: its own fault.
    s.p.tipoRicerca = TipoRicerca::TerzineAmbo;
    e = s.Verifica();
    EXPECT_EQ(e.errore.testo.rfind("Calcolo impossibile: ", 0), 0u) << e.errore.testo;
    EXPECT_NE(e.errore.testo, "Calcolo impossibile: algoritmo mancante.");
    // The period as the search refuses it.
    s.p.tipoRicerca = TipoRicerca::Ambate;
    s.p.colpi = 0;
    s.chiave = Scenario().chiave;
    EXPECT_EQ(s.Verifica().errore.testo, "Inserire il n. di colpi di gioco !");
}

TEST(VerificaCasiLimite, SelezioneDegliAlgoritmiInCorso) {
    Scenario s;
    s.Poni(1, Spia27);
    s.Poni(0, {51, 2, 3, 4, 5});
    s.Fatto();
    RigaAlgoritmo a, b;
    a.chiave = s.chiave;  // 50: running, two colpi left
    a.descrizione = s.descrizione;
    b.chiave = ChiaveAmbata(Cella(1, 1), Operazione::Piu, 0, 11, CodaChiave{27, "11111", '2'});  // 51: out at once
    b.descrizione = DescrizioneAmbata(Cella(1, 1), Operazione::Piu, 0, 11, false);
    a.testoSpia = b.testoSpia = "27";
    a.selezionata = b.selezionata = true;
    std::vector<RigaAlgoritmo> righe{a, b};
    EXPECT_EQ(SelezionaInCorso(s.p, s.contesto, righe), (std::vector<int>{1, 0}));
    EXPECT_TRUE(righe[0].selezionata);
    EXPECT_FALSE(righe[1].selezionata);
    s.p.colpiDaGiocare = 1;
    EXPECT_EQ(SelezionaInCorso(s.p, s.contesto, righe), (std::vector<int>{0, 0}));
    EXPECT_FALSE(righe[0].selezionata);
    const EsitoVerifica aperta = ApriAlgoritmo(s.p, s.contesto, righe[0]);
    EXPECT_EQ(aperta.inCorso, 0);
    EXPECT_EQ(aperta.righe.size(), 1u);
}

// ---------------------------------------------------------------- recap

TEST(RiepilogoTecnica, CifreERighe) {
    Scenario s;
    s.Poni(10, Spia27);
    s.Poni(8, {50, 11, 12, 13, 14});  // colpo 2
    s.Poni(6, Spia27);                // three draws without 50
    s.Poni(1, Spia27);
    s.Poni(0, {9, 50, 12, 13, 14});  // colpo 1, within the last colpi: already out
    s.Fatto();
    const EsitoVerifica v = s.Verifica();
    ASSERT_EQ(v.righe.size(), 3u);
    const EsitoRiepilogo r = RiepilogoTecnica(s.p, s.contesto, v, s.descrizione, s.chiave);
    ASSERT_TRUE(r.errore.vuoto());
    EXPECT_EQ(r.figure.rilevati, 3);
    EXPECT_EQ(r.figure.favorevoli, 2);
    EXPECT_EQ(r.figure.inGioco, 1);
    EXPECT_EQ(r.figure.sfaldati, 1);
    EXPECT_EQ(r.figure.negativi, 0);
    EXPECT_EQ(r.figure.sommaColpi, 3);
    // The head, then the figures; the report is the two one after the other.
    const std::string testo = test::TestoRighe(r.testa) + test::TestoRighe(r.righe);
    EXPECT_TRUE(test::ConfrontaConAtteso(testo, "builder/attesi/riepilogo.txt"));
    EXPECT_EQ(test::TestoRighe(ReportRiepilogo(r).righe()), testo);
}

TEST(RiepilogoTecnica, NessunFavorevoleNessunErrore) {
    Scenario s;
    s.Poni(0, Spia27);
    s.Fatto();
    const EsitoVerifica v = s.Verifica();
    const EsitoRiepilogo r = RiepilogoTecnica(s.p, s.contesto, v, s.descrizione, s.chiave);
    ASSERT_TRUE(r.errore.vuoto());
    EXPECT_EQ(r.figure.favorevoli, 0);
    EXPECT_EQ(r.figure.inGioco, 1);
    EXPECT_EQ(r.righe[1], " Casi favorevoli :     0 (0,0 %)");
    EXPECT_EQ(r.righe.back(), " Attesa media    : ");
    EXPECT_EQ(r.testa.back(), " numero calcolato al " + s.storia.DataEstrazione(s.N()) + " : 50");
}

TEST(RiepilogoTecnica, TestaConPosizioniGiorniEUltime) {
    Scenario s;
    s.p.posizioniValide = {false, true, false, true, false, false};
    s.p.perData = 1;
    s.p.sortiteDaCercare = 4;
    s.p.indiceMese = 0;
    s.p.ruoteGioco = {true, false, false, false, false, false, false, false, false, false, false, true};
    s.contesto.restrizioni.Giorno = true;
    s.contesto.restrizioni.GiornoAmmesso.fill(false);
    s.contesto.restrizioni.GiornoAmmesso[3] = s.contesto.restrizioni.GiornoAmmesso[7] = true;
    s.chiave = ChiaveAmbata(Cella(1, 1), Operazione::Piu, 0, 10, CodaChiave{27, "01010", '2'});
    const EsitoRiepilogo r = RiepilogoTecnica(s.p, s.contesto, EsitoVerifica{}, s.descrizione, s.chiave);
    ASSERT_TRUE(r.errore.vuoto());
    EXPECT_EQ(r.testa[1], "Ultime 4 sortite del numero spia");
    EXPECT_EQ(r.testa[3], "Sortita del n. 27 in posizione 2 4");
    EXPECT_EQ(r.testa[4], "Solo nelle estrazioni del  martedì sabato");
    EXPECT_EQ(r.testa[7], "Ruota/e di gioco  Tutte + NZ");
    EXPECT_EQ(r.testa[9], "Indice mensile Ultima del mese");
    EXPECT_EQ(r.testa[10], s.descrizione + " in posizione  1 3");
    // No rows: no percentages.
    EXPECT_EQ(r.righe[0], " Casi rilevati   :     0");
    EXPECT_EQ(r.righe[1], " Casi favorevoli :     0");
}

TEST(RiepilogoTecnica, ColpiMancanti) {
    Scenario s;
    s.p.colpi = 0;
    const EsitoRiepilogo r = RiepilogoTecnica(s.p, s.contesto, EsitoVerifica{}, s.descrizione, s.chiave);
    EXPECT_EQ(r.errore.testo, "Inserire il n. di colpi di gioco !");
    EXPECT_TRUE(r.testa.empty());
    EXPECT_TRUE(r.righe.empty());
}

TEST(RiepilogoTecnica, RighePerTipo) {
    Scenario s;
    const std::vector<std::pair<TipoRicerca, int>> tipi = {{TipoRicerca::Ambi, 2},
                                                           {TipoRicerca::TerzineAmbo, 2},
                                                           {TipoRicerca::TerzineTerno, 2},
                                                           {TipoRicerca::Codici, 2},
                                                           {TipoRicerca::Codici, 3}};
    const std::vector<std::string> attese = {" Ambi secchi     :     0", " Ambi in terzina :     0",
                                             " Terni secchi    :     0", " Ambi in terzina :     0",
                                             " Terni           :     0"};
    for (size_t k = 0; k < tipi.size(); ++k) {
        s.p.tipoRicerca = tipi[k].first;
        s.p.sorte = tipi[k].second;
        const EsitoRiepilogo r = RiepilogoTecnica(s.p, s.contesto, EsitoVerifica{}, "x", "010203_27111112");
        ASSERT_GE(r.righe.size(), 5u);
        EXPECT_EQ(r.righe[4], attese[k]);
        EXPECT_EQ(r.testa.back(), " nessuna previsione in corso");
    }
}

// ---------------------------------------------------------------- statistics

void ConfrontaStatistiche(const StatisticheGioco& a, const StatisticheGioco& b, const std::string& dove) {
    ASSERT_EQ(a.estrazioni, b.estrazioni) << dove;
    ASSERT_EQ(a.numeroEstrazioni, b.numeroEstrazioni) << dove;
    for (size_t n = 1; n <= 90; ++n)
        ASSERT_EQ(std::tie(a.frequenza[n], a.ritardo[n], a.ritardoMax[n], a.ultimaUscita[n]),
                  std::tie(b.frequenza[n], b.ritardo[n], b.ritardoMax[n], b.ultimaUscita[n]))
            << dove << " numero " << n;
    for (int x = 1; x <= 90; ++x)
        for (int y = 1; y <= 90; ++y)
            ASSERT_EQ(std::make_tuple(a.Frequenza2(x, y), a.Ritardo2(x, y), a.RitardoMax2(x, y), a.UltimaUscita2(x, y)),
                      std::make_tuple(b.Frequenza2(x, y), b.Ritardo2(x, y), b.RitardoMax2(x, y), b.UltimaUscita2(x, y)))
                << dove << " coppia " << x << "-" << y;
}

TEST(StatisticheRuoteGioco, LetteraleSullaStoriaDimostrativa) {
    const archives::StoriaLotto s(
        archives::GeneraStoriaDemo(archives::ParametriDemo{11, archives::Data{30, 12, 2025}}));
    ASSERT_GT(s.NumeroEstrazioni(), PrimaEstrazioneStatistiche);
    std::mt19937 g(5);
    for (int prova = 0; prova < 4; ++prova) {
        const std::array<bool, 12> ruote = RuoteScelte(RuoteCasuali(g));
        const int32_t primo = prova == 0 ? 1 : s.NumeroEstrazioni() - static_cast<int32_t>(g() % 3000);
        ConfrontaStatistiche(StatisticheRuoteGioco(s, ruote, primo), letterale::Statistiche(s, ruote, primo),
                             fmt::format("prova {} primo {}", prova, primo));
        if (HasFatalFailure()) return;
    }
}

// A number that never comes out is as late as the draws before the period; a pair that never
// comes out, as the draws of the period: the two rules differ and both stand.
TEST(StatisticheRuoteGioco, MaiUscitiNumeroECoppia) {
    auto record = archives::GeneraStoriaDemo(archives::ParametriDemo{12, archives::Data{30, 12, 2025}});
    for (size_t i = PrimaEstrazioneStatistiche - 1; i < record.size(); ++i)
        for (auto& x : record[i].Ruota[0])
            if (x == 90) x = 0;  // Bari never gives 90
    // What comes before the start counts for nothing.
    for (size_t i = 0; i < 100; ++i) record[i].Ruota[0][0] = 90;
    const archives::StoriaLotto s(std::move(record));
    std::array<bool, 12> bari{};
    bari[1] = true;
    const int32_t n = s.NumeroEstrazioni(), primo = n - 500;
    const StatisticheGioco st = StatisticheRuoteGioco(s, bari, primo);
    EXPECT_EQ(st.estrazioni, 501);
    EXPECT_EQ(st.frequenza[90], 0);
    EXPECT_EQ(st.ultimaUscita[90], 0);
    EXPECT_EQ(st.ritardo[90], n - 501);
    EXPECT_EQ(st.ritardoMax[90], 0);
    EXPECT_EQ(st.Ritardo2(1, 90), 501);
    EXPECT_EQ(st.Ritardo2(90, 1), 501);
    EXPECT_EQ(st.Frequenza2(1, 90), 0);
}

// Counted by hand on the real history: Bari, number 27 and the pair 27-45, since 1990.
TEST(StatisticheRuoteGioco, ConteggioDirettoSullArchivioReale) {
    GORGO_RICHIEDI_ARCHIVI_REALI(reale);
    const archives::Archivio a = archives::Archivio::Apri(reale);
    const auto s = a.Storia();
    std::array<bool, 12> ruote =
        RuoteScelte({true, false, false, false, false, false, false, false, false, false, false, true});
    const int32_t primo = s->CercaIndice(archives::Data{2, 1, 1990}, false)->IndiceTrovato;
    const StatisticheGioco st = StatisticheRuoteGioco(*s, ruote, primo);
    ConfrontaStatistiche(st, letterale::Statistiche(*s, ruote, primo), "reale");

    std::array<bool, 12> bari{};
    bari[1] = true;
    const StatisticheGioco b = StatisticheRuoteGioco(*s, bari, primo);
    int32_t freq = 0, ultima = 0, massimo = 0, freq2 = 0, ultima2 = 0;
    for (int32_t i = PrimaEstrazioneStatistiche; i <= s->NumeroEstrazioni(); ++i) {
        bool c27 = false, c45 = false;
        for (int p = 1; p <= 5; ++p) {
            c27 |= (*s)[i].Numero(1, p) == 27;
            c45 |= (*s)[i].Numero(1, p) == 45;
        }
        if (c27) {
            if (i >= primo) ++freq;
            massimo = ultima == 0 ? i - PrimaEstrazioneStatistiche : std::max(massimo, i - ultima - 1);
            ultima = i;
        }
        if (c27 && c45) {
            if (i >= primo) ++freq2;
            ultima2 = i;
        }
    }
    EXPECT_EQ(b.estrazioni, s->NumeroEstrazioni() - primo + 1);
    EXPECT_EQ(b.frequenza[27], freq);
    EXPECT_EQ(b.ultimaUscita[27], ultima);
    EXPECT_EQ(b.ritardo[27], s->NumeroEstrazioni() - ultima);
    EXPECT_EQ(b.ritardoMax[27], massimo);
    EXPECT_EQ(b.Frequenza2(27, 45), freq2);
    EXPECT_EQ(b.Frequenza2(45, 27), freq2);
    EXPECT_EQ(b.Ritardo2(45, 27), ultima2 ? s->NumeroEstrazioni() - ultima2 : b.estrazioni);
}

// ---------------------------------------------------------------- forecasts

struct Dimostrativa : test::ContestoDemo {
    ParametriRicerca Parametri(TipoRicerca tipo) const {
        ParametriRicerca p;
        p.tipoRicerca = tipo;
        p.valoreSpia = 27;
        p.indiceMese = 22;
        p.ruoteRicerca = {true, false, false, false, false, false, false, false, false, false, false, true};
        p.ruoteGioco = {false, true, true, false, false, false, false, false, false, false, false, false};
        p.dataDa = storia.DataEstrazione(storia.NumeroEstrazioni() - (tipo == TipoRicerca::Ambi ? 60 : 300));
        return p;
    }
};

std::vector<int> Numeri(const std::string& testo) {
    std::vector<int> v;
    size_t inizio = 0;
    for (;;) {
        const size_t meno = testo.find('-', inizio);
        v.push_back(std::atoi(testo.substr(inizio, meno - inizio).c_str()));
        if (meno == std::string::npos) return v;
        inizio = meno + 1;
    }
}

TEST(PrevisioniCalcolate, ColonneDalleStatistiche) {
    Dimostrativa d;
    for (TipoRicerca tipo : {TipoRicerca::Ambate, TipoRicerca::Ambi, TipoRicerca::TerzineAmbo, TipoRicerca::Codici}) {
        ParametriRicerca p = d.Parametri(tipo);
        EsitoRicerca r = CercaAlgoritmi(p, d.contesto);
        ASSERT_GE(r.righe.size(), 3u) << static_cast<int>(tipo);
        for (size_t k = 0; k < r.righe.size(); ++k) r.righe[k].selezionata = k % 2 == 0 && k < 8;
        const EsitoPrevisioni e = CalcolaPrevisioni(p, d.contesto, r.righe);
        ASSERT_TRUE(e.errore.vuoto());
        ASSERT_TRUE(e.aperta);
        EXPECT_EQ(e.titolo, "Calcolo previsioni degli algoritmi selezionati: " +
                                std::string(NomeTipoRicerca(tipo, TipoSpia::Numero)) +
                                (tipo == TipoRicerca::Codici ? " (ambi)" : ""));
        const RicercaValidata v = ValidaRicerca(p, d.storia);
        const StatisticheGioco st = letterale::Statistiche(d.storia, v.ruoteGioco, v.primo);
        size_t j = 0;
        for (size_t k = 0; k < r.righe.size(); ++k) {
            if (!r.righe[k].selezionata) continue;
            ASSERT_LT(j, e.righe.size());
            const RigaPrevisione& x = e.righe[j++];
            const EsitoVerifica a = ApriAlgoritmo(p, d.contesto, r.righe[k]);
            EXPECT_EQ(x.descrizione, r.righe[k].descrizione);
            EXPECT_EQ(x.previsione, a.lblCapo);
            const std::vector<int> n = Numeri(a.lblCapo);
            int32_t rit = 0, rmax = 0, freq = 0;
            if (n.size() == 1) {
                rit = st.ritardo[static_cast<size_t>(n[0])];
                rmax = st.ritardoMax[static_cast<size_t>(n[0])];
                freq = st.frequenza[static_cast<size_t>(n[0])];
            } else if (n.size() == 2) {
                rit = st.Ritardo2(n[0], n[1]);
                rmax = st.RitardoMax2(n[0], n[1]);
                freq = st.Frequenza2(n[0], n[1]);
            } else {
                ASSERT_EQ(n.size(), 3u);
                rit = std::min({st.Ritardo2(n[0], n[1]), st.Ritardo2(n[0], n[2]), st.Ritardo2(n[1], n[2])});
                rmax = std::min({st.RitardoMax2(n[0], n[1]), st.RitardoMax2(n[0], n[2]), st.RitardoMax2(n[1], n[2])});
                freq = st.Frequenza2(n[0], n[1]) + st.Frequenza2(n[0], n[2]) + st.Frequenza2(n[1], n[2]);
            }
            EXPECT_EQ(x.ritardo, fmt::format("{:>4}", rit));
            EXPECT_EQ(x.ritardoMax, fmt::format("{:>4}", rmax));
            EXPECT_EQ(x.frequenza, fmt::format("{:>4}", freq));
            if (n.size() == 3 && freq == 0)
                EXPECT_EQ(x.indiceConvenienza, "N.D.");
            else
                EXPECT_EQ(x.indiceConvenienza,
                          config::Formato(static_cast<double>(freq) / st.estrazioni * rit, "0.00"));
            EXPECT_NE(x.indiceConvenienza.find(','), std::string::npos);
            EXPECT_TRUE(x.conIndice);
        }
        EXPECT_EQ(j, e.righe.size());
    }
}

TEST(PrevisioniCalcolate, TerniNonDisponibili) {
    Dimostrativa d;
    const CodaChiave coda{27, "11111", '1'};
    for (auto [tipo, sorte] : {std::pair{TipoRicerca::TerzineTerno, 2}, std::pair{TipoRicerca::Codici, 3}}) {
        ParametriRicerca p = d.Parametri(tipo);
        p.sorte = sorte;
        RigaAlgoritmo r;
        r.chiave =
            tipo == TipoRicerca::Codici ? ChiaveCodice(3, 5, Operazione::Piu, coda) : ChiaveTerzina(1, 7, 13, coda);
        r.descrizione = DescrizioneDaChiave(r.chiave, p, &d.terzine);
        r.testoSpia = "27";
        r.selezionata = true;
        const EsitoPrevisioni e = CalcolaPrevisioni(p, d.contesto, {r, r});
        ASSERT_EQ(e.righe.size(), 2u);
        for (const RigaPrevisione& x : e.righe) {
            EXPECT_EQ(Numeri(x.previsione).size(), 3u) << x.previsione;
            EXPECT_EQ(x.ritardo, "N.D.");
            EXPECT_EQ(x.ritardoMax, "N.D.");
            EXPECT_EQ(x.frequenza, "N.D.");
            EXPECT_FALSE(x.conIndice);
            EXPECT_TRUE(x.indiceConvenienza.empty());
        }
        if (tipo == TipoRicerca::Codici) {
            EXPECT_EQ(e.titolo, "Calcolo previsioni degli algoritmi selezionati: Codici Tordelli (terni)");
        }
    }
}

TEST(PrevisioniCalcolate, NessunaSelezioneElistaVuota) {
    Dimostrativa d;
    ParametriRicerca p = d.Parametri(TipoRicerca::Ambate);
    EsitoRicerca r = CercaAlgoritmi(p, d.contesto, {}, false);
    ASSERT_FALSE(r.righe.empty());
    EsitoPrevisioni e = CalcolaPrevisioni(p, d.contesto, r.righe);
    EXPECT_EQ(e.errore.testo, "Nessun algoritmo selezionato!");
    EXPECT_EQ(e.errore.titolo, "Errore");
    EXPECT_FALSE(e.aperta);
    e = CalcolaPrevisioni(p, d.contesto, {});
    EXPECT_TRUE(e.errore.vuoto());
    EXPECT_FALSE(e.aperta);
    EXPECT_TRUE(e.righe.empty());
}

// ---------------------------------------------------------------- reports

TEST(VerificaReport, TabellaStampataERigheSuFile) {
    Scenario s;
    s.Poni(10, Spia27);
    s.Poni(8, {50, 11, 12, 13, 14});
    s.Poni(6, Spia27);
    s.Fatto();
    const EsitoVerifica v = s.Verifica();
    ASSERT_EQ(v.righe.size(), 2u);
    // The printed table (Bari, 27 in position 2, forecast 50 out at the second colpo, then
    // a case with no hit) and the file form, one line a case.
    EXPECT_TRUE(test::ConfrontaConAtteso(test::TestoRighe(StampaVerificaRighe(s.p, v, s.descrizione, s.storia).righe()),
                                         "builder/attesi/verifica_stampa.txt"));
    EXPECT_TRUE(test::ConfrontaConAtteso(test::TestoRighe(ReportVerifica(s.p, v, s.descrizione, s.storia).righe()),
                                         "builder/attesi/verifica_file.txt"));
}

TEST(VerificaReport, PrevisioniStampaEFile) {
    ParametriRicerca p;
    const archives::StoriaLotto storia(
        archives::GeneraStoriaDemo(archives::ParametriDemo{3, archives::Data{30, 12, 2025}}));
    EsitoPrevisioni e;
    e.titolo = TitoloPrevisioni(p);
    e.aperta = true;
    RigaPrevisione r;
    r.descrizione = "3' su Bari      + 12";
    r.previsione = "45";
    r.ritardo = "  12";
    r.ritardoMax = " 140";
    r.frequenza = "  61";
    r.indiceConvenienza = "0,21";
    e.righe.push_back(r);
    // The two differ only in the heading of the last column.
    EXPECT_TRUE(test::ConfrontaConAtteso(test::TestoRighe(StampaPrevisioniRighe(p, e, storia).righe()),
                                         "builder/attesi/previsioni_stampa.txt"));
    EXPECT_TRUE(test::ConfrontaConAtteso(test::TestoRighe(ReportPrevisioni(p, e, storia).righe()),
                                         "builder/attesi/previsioni_file.txt"));
}

TEST(VerificaReport, ListaDelleSortite) {
    EXPECT_EQ(DescrizioneListaSortite(12), " Dettaglio delle 12 sortite");
    const CasoSpia c{0, 0, 0, 0, 0, "30/12/2025", "Bari      ", "27", "3", " U", "208", "10779"};
    EXPECT_EQ(ColonneListaSortite(c),
              (std::array<std::string, 7>{"30/12/2025", "Bari      ", "27", "3", " U", "208", "10779"}));
}

}  // namespace
}  // namespace gorgo::builder
