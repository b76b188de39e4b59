#include <gtest/gtest.h>

#include <functional>

#include "archives/demo.h"
#include "archives/regole.h"
#include "builder/indice_mensile.h"
#include "builder/parametri.h"
#include "builder/terzine.h"

namespace gorgo::builder {
namespace {

const archives::StoriaLotto& Demo() {
    static const archives::StoriaLotto storia(
        archives::GeneraStoriaDemo(archives::ParametriDemo{4242, archives::Data{30, 12, 2025}}));
    return storia;
}

archives::StoriaLotto StoriaDi(const std::vector<archives::Data>& date) {
    std::vector<archives::RecordEstrazione> v(date.size());
    for (size_t i = 0; i < date.size(); ++i) v[i].impostaData(date[i]);
    return archives::StoriaLotto(std::move(v));
}

const std::string Insufficienti = "Data finale minore della data iniziale oppure n. di estrazioni insufficienti!";

// Against a plain recount: the ordinal counts the draws of the same calendar month up to this
// one, and a draw is the last of its month when the next one is of another month.
TEST(ParametriIndiceMensile, RicontoSuStoriaDemo) {
    const archives::StoriaLotto& s = Demo();
    const auto im = CalcolaIndiciMensili(s, "NNYNYNY");
    const int32_t n = s.NumeroEstrazioni();
    ASSERT_EQ(im.indice.size(), static_cast<size_t>(n) + 1);
    auto mese = [&](int32_t i) { return s[i].data().anno * 12 + s[i].data().mese; };
    for (int32_t i = 1; i <= n; ++i) {
        int conta = 0;
        for (int32_t j = i; j >= 1 && mese(j) == mese(i); --j) ++conta;
        ASSERT_EQ(im.indice[static_cast<size_t>(i)], conta) << i;
        if (i < n) {
            ASSERT_EQ(im.ultimo[static_cast<size_t>(i)], mese(i + 1) != mese(i)) << i;
        }
    }
}

TEST(ParametriIndiceMensile, CambioDiMeseEUltimaEstrazione) {
    // Sat 27/12, Tue 30/12, Thu 01/01, Sat 03/01.
    const auto im =
        CalcolaIndiciMensili(StoriaDi({{27, 12, 2025}, {30, 12, 2025}, {1, 1, 2026}, {3, 1, 2026}}), "NNYNYNY");
    EXPECT_EQ(im.indice, (std::vector<uint8_t>{0, 1, 2, 1, 2}));
    EXPECT_EQ(im.ultimo, (std::vector<bool>{false, false, true, false, false}));
    // The same month of the next year is another month.
    EXPECT_TRUE(CalcolaIndiciMensili(StoriaDi({{10, 3, 1943}, {10, 3, 1944}}), "NNYNYNY").ultimo[1]);

    // The last draw: "U" when the next draw day falls in another month.
    const std::vector<std::tuple<archives::Data, std::string, bool>> casi{
        {{30, 12, 2025}, "NNYNYNY", true},   // Tuesday: next Thursday is 01/01
        {{30, 12, 2025}, "  Y Y Y", true},   // the default form of the setting
        {{27, 12, 2025}, "NNYNYNY", false},  // Saturday: next Tuesday is 30/12
        {{29, 12, 2025}, "NNNNNNN", true},   // no day set: Saturday alone, 03/01
        {{26, 12, 2025}, "", false},         // no day set: Saturday 27/12
        {{25, 1, 2026}, "YNNNNNN", true},    // Sunday alone, a week on: 01/02
    };
    for (const auto& [ultima, giorni, u] : casi)
        EXPECT_EQ(CalcolaIndiciMensili(StoriaDi({ultima}), giorni).ultimo[1], u) << ultima.testo() << giorni;
}

TEST(ParametriPeriodo, DatePredefinite) {
    EXPECT_EQ(DataAPredefinita(Demo()), Demo()[Demo().NumeroEstrazioni()].dataTesto());
    EXPECT_EQ(DataDaPredefinita(StoriaDi({{1, 1, 2000}, {30, 12, 2025}})), "30/12/2015");
    EXPECT_EQ(DataDaPredefinita(StoriaDi({{1, 1, 2000}, {29, 2, 2024}})), "28/02/2014");
    EXPECT_EQ(DataDaPredefinita(StoriaDi({{1, 1, 1940}, {10, 5, 1950}})), "04/01/1947");
    EXPECT_EQ(DataDaPredefinita(StoriaDi({{1, 1, 1940}, {5, 1, 1957}})), "05/01/1947");
}

// All eight steps fail at once; each fix uncovers the next step's message.
TEST(ParametriValidazione, OrdineDeiPassi) {
    const archives::StoriaLotto& s = Demo();
    ParametriRicerca p;
    p.tipoSpia = TipoSpia::Differenza;
    p.posizioneDeterminata = true;
    p.posizioniSpia = {};
    p.posizioniValide = {};
    p.colpi = 0;
    p.perData = 1;
    p.dataDa = "non una data";  // not read by hits
    p.dataA = s.DataEstrazione(5);
    p.controllaUltime = false;
    p.ruoteRicerca = {};
    p.valoreSpia = 0;
    p.sortiteDaCercare = 0;
    const std::vector<std::tuple<std::string, std::string, std::function<void(ParametriRicerca&)>>> passi{
        {"Scegliere almeno una posizione estrattiva !", "", [](auto& q) { q.posizioniSpia[3] = true; }},
        {"Scegliere almeno una posizione validità algoritmo !", "", [](auto& q) { q.posizioniValide[1] = true; }},
        {"Inserire il n. di colpi di gioco !", "txtColpi", [](auto& q) { q.colpi = 9; }},
        {Insufficienti, "", [](auto& q) { q.controllaUltime = true; }},
        {"Scegliere almeno una ruota di ricerca !", "", [](auto& q) { q.ruoteRicerca[4] = true; }},
        {"Inserire la differenza spia !", "cboNumero", [](auto& q) { q.valoreSpia = 90; }},
        {"Inserire il n. di sortite da ricercare!", "cboSortite", [](auto& q) { q.sortiteDaCercare = 10; }},
        {"Differenza non permessa.", "cboNumero", [](auto& q) { q.valoreSpia = 89; }},
    };
    for (const auto& [messaggio, focus, correggi] : passi) {
        const auto r = ValidaRicerca(p, s);
        EXPECT_EQ(r.errore.testo, messaggio);
        EXPECT_EQ(r.focus, focus);
        correggi(p);
    }
    const auto r = ValidaRicerca(p, s);
    ASSERT_TRUE(r.errore.vuoto()) << r.errore.testo;
    EXPECT_EQ(r.primo, 1);
    EXPECT_EQ(r.ultimo, 5);
    EXPECT_EQ(r.testoPosizioni, "");
    EXPECT_EQ(r.descrizione, "Sortite della differenza 89 sulle ruote di ricerca nel periodo considerato: ");

    // Values no control can give.
    for (auto guasta : std::vector<std::function<void(ParametriRicerca&)>>{
             [](auto& q) { q.indiceMese = 23; }, [](auto& q) { q.sorte = 4; },
             [](auto& q) { q.tipoRicerca = static_cast<TipoRicerca>(7); }, [](auto& q) { q.perData = 2; }}) {
        ParametriRicerca q = p;
        guasta(q);
        EXPECT_EQ(ValidaRicerca(q, s).errore.testo, "Parametri di ricerca non validi !");
    }
}

// The codes without their triples are refused before every other step, whatever the spy, with
// the load's own message when it gave one; a caller that judges no file is not refused.
TEST(ParametriValidazione, CodiciSenzaTerzine) {
    const archives::StoriaLotto& s = Demo();
    ParametriRicerca p;
    p.tipoRicerca = TipoRicerca::Codici;
    p.colpi = 0;  // a later step that fails too
    EsitoTerzine mancante;
    for (TipoSpia spia : {TipoSpia::Numero, TipoSpia::Ambo}) {
        p.tipoSpia = spia;
        const auto r = ValidaRicerca(p, s, &mancante, "/x/Terzine.txt");
        EXPECT_EQ(r.errore.testo, "Codici non disponibili: manca il file delle terzine ridotte /x/Terzine.txt");
        EXPECT_EQ(r.errore.titolo, "Errore");
        EXPECT_EQ(r.errore.icona, archives::Icona::Esclamazione);
    }
    p.tipoSpia = TipoSpia::Numero;
    EsitoTerzine guasto;
    guasto.messaggio = {" File terzine non valido!", "", archives::Icona::Stop};
    EXPECT_EQ(ValidaRicerca(p, s, &guasto, "t.txt").errore.testo, " File terzine non valido!");
    // A file read whole with no triple in it stands as a load, and the codes have nothing.
    EsitoTerzine vuoto;
    vuoto.caricato = true;
    vuoto.messaggio = {"0 terzine caricate!\"", "", archives::Icona::Informazione};
    EXPECT_EQ(ValidaRicerca(p, s, &vuoto, "/x/Terzine.txt").errore.testo,
              "Codici non disponibili: nessuna terzina nel file delle terzine ridotte /x/Terzine.txt");
    EXPECT_EQ(ValidaRicerca(p, s).errore.testo, "Inserire il n. di colpi di gioco !");
    EsitoTerzine buono;
    buono.valido = true;
    EXPECT_EQ(ValidaRicerca(p, s, &buono, "t.txt").errore.testo, "Inserire il n. di colpi di gioco !");
    p.tipoRicerca = TipoRicerca::TerzineTerno;
    EXPECT_EQ(ValidaRicerca(p, s, &mancante, "t.txt").errore.testo, "Inserire il n. di colpi di gioco !");
}

TEST(ParametriValidazione, PeriodoDateEUltimeEstrazioni) {
    const archives::StoriaLotto& s = Demo();
    // Days with no draw, after draws i and j: DataDa moves forward, DataA back.
    int32_t i = 2000, j = 3000;
    while (s.giorni(i + 1) - s.giorni(i) < 2) ++i;
    while (s.giorni(j + 1) - s.giorni(j) < 2) ++j;
    ParametriRicerca p;
    p.dataDa = archives::Data::daGiorni(s.giorni(i) + 1).testo();
    p.dataA = archives::Data::daGiorni(s.giorni(j) + 1).testo();
    auto r = ValidaRicerca(p, s);
    ASSERT_TRUE(r.errore.vuoto()) << r.errore.testo;
    EXPECT_EQ(std::tuple(r.primo, r.ultimo, r.ultimoPeriodo), std::tuple(i + 1, j, j));

    // Without ControllaUltime the period ends Colpi draws earlier; onto its first draw still stands.
    p.controllaUltime = false;
    p.colpi = 12;
    p.dataDa = s.DataEstrazione(j - 12);
    r = ValidaRicerca(p, s);
    EXPECT_EQ(std::tuple(r.primo, r.ultimo, r.ultimoPeriodo), std::tuple(j - 12, j - 12, j));
    p.colpi = 13;
    EXPECT_EQ(ValidaRicerca(p, s).errore.testo, Insufficienti);
    // A period upside down is refused with the check on too.
    p = {};
    p.dataDa = s.DataEstrazione(100);
    p.dataA = s.DataEstrazione(50);
    EXPECT_EQ(ValidaRicerca(p, s).errore.testo, Insufficienti);

    // Empty dates are the defaults; by hits the period starts at draw 1.
    p = {};
    r = ValidaRicerca(p, s);
    EXPECT_EQ(r.primo, archives::ControllaData(DataDaPredefinita(s), s, false).IndiceTrovato);
    EXPECT_EQ(r.ultimo, s.NumeroEstrazioni());
    p.perData = 1;
    EXPECT_EQ(ValidaRicerca(p, s).primo, 1);

    // A refused date brings the date check's own message.
    p = {};
    p.dataA = "01/01/2030";
    EXPECT_EQ(ValidaRicerca(p, s).errore.testo,
              archives::MessaggioDataSuperiore(s.DataEstrazione(s.NumeroEstrazioni())));
    p.dataA = "";
    p.dataDa = "01/01/1850";
    EXPECT_EQ(ValidaRicerca(p, s).errore.testo, archives::MessaggioDataInferiore(s.DataEstrazione(1)));
    EXPECT_FALSE(ValidaRicerca(ParametriRicerca{}, archives::StoriaLotto{}).errore.vuoto());
}

TEST(ParametriValidazione, RuoteDiRicercaEDiGioco) {
    const std::vector<std::tuple<std::vector<int>, int, std::vector<int>>> casi{
        {{0, 11}, 11, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}},
        {{0}, 10, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}},
        {{0, 3}, 10, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}},
        {{3, 11}, 2, {3, 11}},
    };
    for (const auto& [caselle, numero, ruote] : casi) {
        ParametriRicerca p;
        p.ruoteRicerca = p.ruoteGioco = {};
        for (int w : caselle) p.ruoteRicerca[static_cast<size_t>(w)] = p.ruoteGioco[static_cast<size_t>(w)] = true;
        std::array<bool, 12> attese{};
        for (int w : ruote) attese[static_cast<size_t>(w)] = true;
        const auto r = ValidaRicerca(p, Demo());
        EXPECT_EQ(r.numeroRuoteRicerca, numero);
        EXPECT_EQ(r.ruoteRicerca, attese);
        EXPECT_EQ(r.ruoteGioco, attese);
    }
}

TEST(ParametriValidazione, AmboSpia) {
    const archives::StoriaLotto& s = Demo();
    ParametriRicerca p;
    p.tipoSpia = TipoSpia::Ambo;
    p.amboSpia = {34, 12};
    auto r = ValidaRicerca(p, s);
    EXPECT_EQ(r.amboSpia, (std::array<int, 2>{12, 34}));
    EXPECT_EQ(r.descrizione, "Sortite dell'ambo 12-34 sulle ruote di ricerca nel periodo considerato: ");
    EXPECT_EQ(r.testoPosizioni, "11111");

    p.posizioneDeterminata = true;
    p.posizioniSpia = {false, false, true, false, true, false};
    EXPECT_EQ(ValidaRicerca(p, s).testoPosizioni, "01010");
    p.posizioniSpia[4] = false;
    EXPECT_EQ(ValidaRicerca(p, s).errore.testo, "Scegliere almeno due posizioni estrattive !");
    p.posizioneDeterminata = false;

    for (const auto& ambo : std::vector<std::array<int, 2>>{{5, 5}, {0, 5}, {12, 91}}) {
        p.amboSpia = ambo;
        p.tipoRicerca = TipoRicerca::Ambate;
        EXPECT_EQ(ValidaRicerca(p, s).errore.testo, "Inserire correttamente l'ambo spia !");
        p.tipoRicerca = TipoRicerca::Ambi;
        EXPECT_EQ(ValidaRicerca(p, s).errore.testo, "Ambo errato!");
    }
    // All the pairs: no pair to check, no description of one value.
    p.tuttiGliAmbi = true;
    r = ValidaRicerca(p, s);
    EXPECT_TRUE(r.errore.vuoto() && r.descrizione.empty()) << r.errore.testo;
}

TEST(ParametriValidazione, SpiaDescrizioneEPosizioni) {
    const std::array<bool, 6> due5{false, false, true, false, false, true}, tutte{false, true, true, true, true, true};
    const std::string coda = " sulle ruote di ricerca nel periodo considerato: ";
    using M = ModoSpia;
    using T = TipoSpia;
    // Spy, mode, value, month index, determined positions: error, description, positions text.
    const std::vector<std::tuple<T, M, int, int, std::array<bool, 6>, std::string, std::string>> casi{
        {T::Numero, M::Fisso, 27, 0, due5, "Sortite del numero 27" + coda, "01001"},
        {T::Numero, M::Fisso, 90, 0, tutte, "Sortite del numero 90" + coda, "11111"},
        {T::Somma, M::Fisso, 90, 0, due5, "Sortite della somma 90" + coda, ""},
        {T::Numero, M::Tutti, 0, 0, due5, "", "01001"},
        {T::Differenza, M::Tutti, 90, 0, tutte, "", ""},
        {T::Numero, M::SoloIndiceMensile, 0, 0, due5, "Occorrenze dell'indice mensile U : ", "11111"},
        {T::Numero, M::SoloIndiceMensile, 0, 5, tutte, "Occorrenze dell'indice mensile 5 : ", "11111"},
        {T::Numero, M::SoloIndiceMensile, 0, 22, tutte, "Occorrenze totali : ", "11111"},
    };
    for (const auto& [tipo, modo, valore, indice, posizioni, descrizione, testo] : casi) {
        ParametriRicerca p;
        p.tipoSpia = tipo;
        p.modoSpia = modo;
        p.valoreSpia = valore;
        p.indiceMese = indice;
        p.posizioneDeterminata = true;
        p.posizioniSpia = posizioni;
        const auto r = ValidaRicerca(p, Demo());
        EXPECT_TRUE(r.errore.vuoto()) << r.errore.testo;
        EXPECT_EQ(r.descrizione, descrizione);
        EXPECT_EQ(r.testoPosizioni, testo) << descrizione;
    }
    for (const auto& [tipo, valore, messaggio] :
         std::vector<std::tuple<T, int, std::string>>{{T::Numero, 0, "Inserire il numero spia !"},
                                                      {T::Numero, 91, "Inserire il numero spia !"},
                                                      {T::Somma, -3, "Inserire la somma spia !"}}) {
        ParametriRicerca p;
        p.tipoSpia = tipo;
        p.valoreSpia = valore;
        const auto r = ValidaRicerca(p, Demo());
        EXPECT_EQ(std::pair(r.errore.testo, r.focus), std::pair(messaggio, std::string("cboNumero")));
    }
}

}  // namespace
}  // namespace gorgo::builder
