// Reports of the coverage and of the automatic search, printed and on file, on the demo
// history: boxed tables with the values under their heads, and the labelled lines.

#include <gtest/gtest.h>

#include "archives/demo.h"
#include "builder/indice_mensile.h"
#include "builder/report_copertura.h"
#include "support/attesi.h"

namespace gorgo::builder {
namespace {

struct Demo {
    archives::StoriaLotto storia{archives::GeneraStoriaDemo(archives::ParametriDemo{3, archives::Data{30, 12, 2025}})};
    IndiciMensili im = CalcolaIndiciMensili(storia, "NNYNYNY");
    ContestoRicerca ctx{&storia, {}, &im, nullptr};
    ParametriRicerca p;

    Demo() {
        ctx.restrizioni.GiornoAmmesso.fill(true);
        ctx.restrizioni.MeseAmmesso.fill(true);
        ctx.restrizioni.PeriodoAmmesso.fill(true);
        p.valoreSpia = 27;
        p.indiceMese = 22;
        p.dataDa = "02/06/2025";
        p.dataA = "30/12/2025";
        p.ruoteRicerca = {false, true, false, false, false, false, true, false, false, false, false, false};
        p.ruoteGioco = p.ruoteRicerca;
    }
};

TEST(ReportCopertura, TreAmbateStampaEFile) {
    const Demo d;
    EsitoRicerca e = CercaAlgoritmi(d.p, d.ctx, {}, true);
    ASSERT_GT(e.righe.size(), 12u);
    e.righe.resize(12);
    const EsitoCopertura c = CalcolaCopertura(d.p, d.ctx, e.casi, e.righe, TipoCopertura::TreAmbate);
    ASSERT_FALSE(c.righe.empty());
    EXPECT_TRUE(test::ConfrontaConAtteso(test::TestoRighe(StampaCoperturaRighe(d.p, c, d.storia).righe()),
                                         "builder/attesi/copertura_stampa.txt"));
    EXPECT_TRUE(test::ConfrontaConAtteso(test::TestoRighe(ReportCopertura(d.p, c, d.storia).righe()),
                                         "builder/attesi/copertura_file.txt"));
}

TEST(ReportAutomatica, StampaEFile) {
    const Demo d;
    const EsitoAutomatica a = RicercaAutomatica(d.p, d.ctx, 1, 2);
    ASSERT_FALSE(a.righe.empty());
    EXPECT_TRUE(test::ConfrontaConAtteso(test::TestoRighe(StampaAutomaticaRighe(d.p, a, d.storia).righe()),
                                         "builder/attesi/automatica_stampa.txt"));
    EXPECT_TRUE(test::ConfrontaConAtteso(test::TestoRighe(ReportAutomatica(d.p, a, d.storia).righe()),
                                         "builder/attesi/automatica_file.txt"));
}

}  // namespace
}  // namespace gorgo::builder
