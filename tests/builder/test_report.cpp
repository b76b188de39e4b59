// The list of algorithms in its two forms: the printed boxed table and the
// file's labelled lines.

#include <gtest/gtest.h>

#include "archives/demo.h"
#include "builder/chiavi.h"
#include "builder/report.h"
#include "support/attesi.h"

namespace gorgo::builder {
namespace {

RigaAlgoritmo Riga(std::string descrizione, int sortite, int presenze, int quantita, std::string spia) {
    RigaAlgoritmo r;
    r.descrizione = std::move(descrizione);
    r.sortite = sortite;
    r.presenze = presenze;
    r.quantita = quantita;
    r.testoSpia = std::move(spia);
    return r;
}

struct ListaDiProva {
    archives::StoriaLotto storia{archives::GeneraStoriaDemo(archives::ParametriDemo{3, archives::Data{30, 12, 2025}})};
    ParametriRicerca p;
    EsitoRicerca esito;

    ListaDiProva() {
        p.valoreSpia = 27;
        p.indiceMese = 22;
        p.colpi = 9;
        p.dataDa = "02/01/2025";
        p.dataA = "30/12/2025";
        // A cell and a constant, two cells, and an Ambi description wider than its cell: it runs
        // into the next cell, where the count is written over it.
        esito.righe.push_back(Riga(DescrizioneAmbata(Cella(1, 3), Operazione::Piu, 0, 12, false), 61, 40, 52, "27"));
        esito.righe.push_back(
            Riga(DescrizioneAmbata(Cella(2, 1), Operazione::Per, Cella(7, 4), 0, false), 61, 9, 10, "27"));
        esito.righe.push_back(
            Riga(DescrizioneAmbi(Cella(5, 2), Operazione::Meno, 45, Cella(1, 1), Operazione::Per, 3, false), 61, 5, 5,
                 "27"));
    }
};

TEST(ReportAlgoritmi, StampaTabellaIncorniciata) {
    const ListaDiProva l;
    const config::ReportTesto r = StampaAlgoritmiRighe(l.p, l.esito, l.storia);
    EXPECT_TRUE(test::ConfrontaConAtteso(test::TestoRighe(r.righe()), "builder/attesi/algoritmi_stampa.txt"));
    // The header block opens it, as in every report of the builder.
    EXPECT_EQ(r.righe().front().testo, "Gorgo 2 - Ideato da Sergio Tordelli");
}

// The head of the spy column is its first three letters and a point; an ambo spy's value is
// written whole, and a code row has its presences alone.
TEST(ReportAlgoritmi, StampaTestaDellaSpiaECodici) {
    ListaDiProva l;
    const std::array<std::pair<TipoSpia, std::string>, 4> teste = {{{TipoSpia::Numero, "| Num. |"},
                                                                    {TipoSpia::Somma, "| Som. |"},
                                                                    {TipoSpia::Differenza, "| Dif. |"},
                                                                    {TipoSpia::Ambo, "| Amb. |"}}};
    for (const auto& [tipo, coda] : teste) {
        l.p.tipoSpia = tipo;
        l.p.amboSpia = {12, 34};
        const config::ReportTesto r = StampaAlgoritmiRighe(l.p, l.esito, l.storia);
        const auto& righe = r.righe();
        const auto testa = std::find_if(righe.begin(), righe.end(),
                                        [](const config::RigaTesto& x) { return x.testo.starts_with("| Descr"); });
        ASSERT_NE(testa, righe.end());
        EXPECT_EQ(testa->testo,
                  "| Descrizione algoritmo              | Sortite | Presenze/quantità | % presenza " + coda);
    }
    l.p.tipoSpia = TipoSpia::Ambo;
    l.p.tipoRicerca = TipoRicerca::Ambate;
    l.esito.righe = {Riga("1' su Bari      + 10", 8, 3, 4, "12-34")};
    RigaAlgoritmo codice = Riga(DescrizioneCodice(Cella(3, 2), Operazione::Meno, 17, {4, 40, 85}), 120, 14, 0, "12-34");
    codice.conQuantita = false;
    l.esito.righe.push_back(codice);
    const config::ReportTesto r = StampaAlgoritmiRighe(l.p, l.esito, l.storia);
    const auto& righe = r.righe();
    ASSERT_GE(righe.size(), 3u);
    // Values at columns 2, 41, 50, 72 and 83, in a row of the heading's width.
    EXPECT_EQ(righe[righe.size() - 3].testo,
              " 1' su Bari      + 10                      8         3 /     4          37,5 %    12-34 ");
    EXPECT_EQ(righe[righe.size() - 2].testo,
              " 2' su Firenze    - 4, -40, -85 (t.17)   120        14                  11,7 %    12-34 ");
    EXPECT_EQ(righe.back().testo,
              "*------------------------------------*---------*-------------------*------------*----*");
}

// The file form stays one labelled line a row.
TEST(ReportAlgoritmi, FileUnaRigaPerAlgoritmo) {
    const ListaDiProva l;
    const config::ReportTesto r = ReportAlgoritmi(l.p, l.esito, l.storia);
    ASSERT_EQ(r.righe().size(), 10u + l.esito.righe.size());
    EXPECT_EQ(r.righe()[10].testo,
              "Algoritmo: 3' su Bari       + 12, Sort.:   61, Pres./quantità:    40 /    52, % presenza:  65,6 %, "
              "Numero: 27");
}

}  // namespace
}  // namespace gorgo::builder
