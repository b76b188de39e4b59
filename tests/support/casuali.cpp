#include "support/casuali.h"

#include <algorithm>

#include "archives/demo.h"

namespace gorgo::test {

using builder::ModoSpia;
using builder::TipoRicerca;
using builder::TipoSpia;

namespace {

int Da1A(std::mt19937& g, int massimo) { return 1 + static_cast<int>(g() % static_cast<unsigned>(massimo)); }

}  // namespace

std::vector<archives::RecordEstrazione> EstrazioniCasuali(std::mt19937& g, const OpzioniStoria& o) {
    archives::ParametriDemo pd;
    pd.seme = g();
    pd.fine = archives::Data{31, 12, o.ultimoAnno};
    const auto tutte = archives::GeneraStoriaDemo(pd);
    const int primoAnno = o.ultimoAnno - o.anni + 1;
    const auto inizio =
        std::find_if(tutte.begin(), tutte.end(), [&](const auto& r) { return r.data().anno >= primoAnno; });
    std::vector<archives::RecordEstrazione> v(inizio, tutte.end());
    for (size_t i = 0; i < v.size(); ++i) {
        auto& r = v[i];
        for (int w = 1; w <= archives::NumeroRuote; ++w) {
            uint8_t* ruota = r.Ruota[w - 1];
            const bool vuota = !o.ruote[static_cast<size_t>(w)] ||
                               (w == archives::RuotaNazionale && static_cast<int32_t>(i + 1) < o.primaNazionale) ||
                               (o.ruotaVuota && g() % static_cast<unsigned>(o.ruotaVuota) == 0);
            if (vuota) {
                std::fill(ruota, ruota + 5, uint8_t{0});
                continue;
            }
            if (!o.strette[static_cast<size_t>(w)]) continue;
            bool usato[91] = {};
            for (int p = 0; p < 5; ++p) {
                int n;
                do n = Da1A(g, o.numeriStretti);
                while (usato[n]);
                usato[n] = true;
                ruota[p] = static_cast<uint8_t>(n);
            }
        }
        if (o.numeroZero && g() % static_cast<unsigned>(o.numeroZero) == 0) r.Ruota[g() % 11][g() % 5] = 0;
    }
    return v;
}

archives::StoriaLotto StoriaCasuale(std::mt19937& g, const OpzioniStoria& o) {
    return archives::StoriaLotto(EstrazioniCasuali(g, o));
}

std::array<bool, 12> RuoteCasuali(std::mt19937& g) {
    std::array<bool, 12> r{};
    if (g() % 3 == 0) {
        r[0] = true;
        r[11] = g() % 2;
        return r;
    }
    bool una = false;
    for (int w = 1; w <= 11; ++w) una |= r[static_cast<size_t>(w)] = g() % 3 == 0;
    if (!una) r[1 + g() % 11] = true;
    return r;
}

builder::TerzineRidotte TerzineCasuali(std::mt19937& g, int quante) {
    builder::TerzineRidotte t;
    const auto numero = [&] { return g() % 3 ? Da1A(g, 20) : Da1A(g, 90); };
    for (int i = 0; i < quante; ++i) {
        const int a = numero(), b = numero(), c = numero();
        t.terzine.push_back({a, b, c});
    }
    return t;
}

builder::ParametriRicerca ParametriCasuali(std::mt19937& g, const archives::StoriaLotto& s, TipoRicerca tipo,
                                           const MisurePeriodo& misure) {
    builder::ParametriRicerca p;
    p.tipoRicerca = tipo;
    p.tipoSpia = static_cast<TipoSpia>(g() % 4);
    if (p.tipoSpia == TipoSpia::Ambo && tipo != TipoRicerca::Ambate && tipo != TipoRicerca::Ambi)
        p.tipoSpia = TipoSpia::Numero;
    const bool pesante = tipo == TipoRicerca::Ambi || tipo == TipoRicerca::Codici;
    const int modo = static_cast<int>(g() % 6);
    p.modoSpia = modo < 3 ? ModoSpia::Fisso : modo < 5 ? ModoSpia::Tutti : ModoSpia::SoloIndiceMensile;
    if (p.tipoSpia == TipoSpia::Ambo) p.modoSpia = ModoSpia::Fisso;
    p.valoreSpia = Da1A(g, 20);
    if (p.tipoSpia == TipoSpia::Ambo) {
        p.amboSpia = {Da1A(g, 20), Da1A(g, 20)};
        if (p.amboSpia[0] == p.amboSpia[1]) p.amboSpia[1] = p.amboSpia[0] % 20 + 1;
        p.tuttiGliAmbi = !pesante && g() % 4 == 0;
    }
    if (g() % 3 == 0) {
        p.posizioneDeterminata = true;
        for (int i = 1; i <= 5; ++i) p.posizioniSpia[static_cast<size_t>(i)] = g() % 2;
        p.posizioniSpia[1 + g() % 5] = true;
        p.posizioniSpia[1 + g() % 5] = true;
    }
    const bool tutti = p.modoSpia == ModoSpia::Tutti || p.tuttiGliAmbi;
    const MisurePeriodo::Intervallo periodo = tutti ? misure.tuttiIValori : misure.unValore;
    const int32_t n = s.NumeroEstrazioni();
    const int32_t a = n - static_cast<int32_t>(g() % static_cast<unsigned>(misure.fine));
    const int32_t da = std::max<int32_t>(
        1, a - periodo.minimo - static_cast<int32_t>(g() % static_cast<unsigned>(periodo.massimo - periodo.minimo)));
    if (g() % 5 == 0 && (!tutti || misure.perDataTutti)) {
        p.perData = 1;
        p.sortiteDaCercare = Da1A(g, 15);
    }
    p.dataDa = s.DataEstrazione(da);
    p.dataA = s.DataEstrazione(a);
    const int indice = static_cast<int>(g() % 4);
    p.indiceMese = indice == 0 ? 0 : indice == 1 ? Da1A(g, 5) : 22;
    p.ruoteRicerca = RuoteCasuali(g);
    p.ruoteGioco = RuoteCasuali(g);
    // Long spans too: with many play wheels the counts of a pair pass what a byte holds.
    p.colpi = g() % 4 == 0 ? 15 + static_cast<int>(g() % 29) : Da1A(g, 12);
    p.controllaUltime = g() % 3 != 0;
    p.soloPosizione = g() % 4 == 0;
    if (g() % 3 == 0) {
        for (int i = 1; i <= 5; ++i) p.posizioniValide[static_cast<size_t>(i)] = g() % 2;
        p.posizioniValide[1 + g() % 5] = true;
    }
    p.sorte = g() % 2 ? 2 : 3;
    for (auto&& o : p.operazioni) o = g() % 3 != 0;
    p.colpiDaGiocare = static_cast<int>(g() % 14);
    return p;
}

builder::ContestoRicerca ContestoCasuale(std::mt19937& g, const archives::StoriaLotto& s,
                                         const builder::IndiciMensili& im, const builder::TerzineRidotte* t) {
    builder::ContestoRicerca ctx{&s, {}, &im, t};
    ctx.restrizioni.GiornoAmmesso.fill(true);
    ctx.restrizioni.MeseAmmesso.fill(true);
    ctx.restrizioni.PeriodoAmmesso.fill(true);
    ctx.restrizioni.NumeroAmmesso.fill(true);
    if (g() % 4 == 0) {
        ctx.restrizioni.Giorno = true;
        ctx.restrizioni.GiornoAmmesso[1 + g() % 7] = false;
        ctx.restrizioni.GiornoAmmesso[1 + g() % 7] = false;
    }
    return ctx;
}

ContestoDemo::ContestoDemo()
    : storia(archives::GeneraStoriaDemo(archives::ParametriDemo{3, archives::Data{30, 12, 2025}})),
      indici(builder::CalcolaIndiciMensili(storia, "NNYNYNY")),
      contesto{&storia, {}, &indici, &terzine} {
    std::mt19937 g(99);
    terzine = TerzineCasuali(g, 300);
    contesto.restrizioni.GiornoAmmesso.fill(true);
    contesto.restrizioni.MeseAmmesso.fill(true);
    contesto.restrizioni.PeriodoAmmesso.fill(true);
}

std::string NomeTipoRicerca(const ::testing::TestParamInfo<TipoRicerca>& info) {
    constexpr const char* nomi[] = {"Ambate", "Ambi", "TerzineAmbo", "TerzineTerno", "Codici"};
    return nomi[static_cast<int>(info.param)];
}

}  // namespace gorgo::test
