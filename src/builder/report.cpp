#include "builder/report.h"

#include <fmt/format.h>
#include <array>

namespace gorgo::builder {

namespace {

std::string Ruote(const std::array<bool, 12>& r) {
    if (r[0]) return r[11] ? "Tutte + NZ" : "Tutte";
    std::string s;
    for (int w = 1; w <= archives::NumeroRuote; ++w)
        if (r[static_cast<size_t>(w)]) {
            std::string_view nome = archives::NomiRuota[static_cast<size_t>(w)];
            s += std::string(nome.substr(0, nome.find_last_not_of(' ') + 1)) + " ";
        }
    return s;
}

std::string Posizioni(const std::array<bool, 6>& p) {
    std::string s;
    for (int i = 1; i <= 5; ++i)
        if (p[static_cast<size_t>(i)]) s += fmt::format("{}' ", i);
    return s;
}

std::string TestoSpiaReport(const ParametriRicerca& p) {
    static constexpr std::string_view kOpzioni[] = {"Numero spia", "Somma spia", "Differenza spia", "Ambo spia"};
    std::string s(kOpzioni[static_cast<int>(p.tipoSpia)]);
    if (p.tipoSpia == TipoSpia::Ambo)
        s += p.tuttiGliAmbi ? " tutti gli ambi"
                            : fmt::format(" {}-{}", std::min(p.amboSpia[0], p.amboSpia[1]),
                                          std::max(p.amboSpia[0], p.amboSpia[1]));
    else
        s += p.modoSpia == ModoSpia::Tutti ? std::string(" tutti i valori") : fmt::format(" {}", p.valoreSpia);
    const bool perPosizione = p.tipoSpia == TipoSpia::Numero || p.tipoSpia == TipoSpia::Ambo;
    s += perPosizione && p.posizioneDeterminata ? " in posizione " + Posizioni(p.posizioniSpia)
                                                : std::string(" in qualsiasi posizione");
    return s;
}

}  // namespace

std::string_view TestaColonnaSpia(TipoSpia tipo) {
    static constexpr std::string_view kTeste[] = {"Numero", "Somma", "Differ.", "Ambo"};
    return kTeste[static_cast<int>(tipo)];
}

std::string_view NomeTipoRicerca(TipoRicerca tipo, TipoSpia spia) {
    if (spia == TipoSpia::Ambo) return tipo == TipoRicerca::Ambi ? "Ambi (posiz. q.e.)" : "Ambate";
    static constexpr std::string_view kTipi[] = {"Ambate", "Ambi", "Terzine x ambo", "Terzine x terno",
                                                 "Codici Tordelli"};
    return kTipi[static_cast<int>(tipo)];
}

config::ReportTesto IntestazioneCostruttore(const ParametriRicerca& p, const archives::StoriaLotto& storia) {
    const RicercaValidata v = ValidaRicerca(p, storia);
    config::ReportTesto r;
    r.titolo();
    r.parametro("Intervallo di ricerca", p.perData == 1 ? fmt::format("ultime {} sortite", p.sortiteDaCercare)
                                                        : fmt::format("dal {} al {}", storia.DataEstrazione(v.primo),
                                                                      storia.DataEstrazione(v.ultimoPeriodo)));
    r.parametro("Ruota/e di ricerca condizione", Ruote(p.ruoteRicerca));
    r.parametro("Ruota/e di gioco", Ruote(p.ruoteGioco));
    std::string tipo(NomeTipoRicerca(p.tipoRicerca, p.tipoSpia));
    const bool limitate = p.posizioniValide != std::array<bool, 6>{false, true, true, true, true, true};
    if (p.tipoRicerca == TipoRicerca::Ambate && limitate) tipo += " in " + Posizioni(p.posizioniValide) + "posizione";
    r.parametro("Tipo di gioco", tipo);
    if (p.modoSpia == ModoSpia::SoloIndiceMensile)
        r.riga(config::RigaParametro("Spia", "Solo indice mensile"));
    else
        r.parametro("Spia", TestoSpiaReport(p));
    r.parametro("Colpi di gioco", fmt::format("{}", p.colpi));
    r.parametro("Indice mensile", p.indiceMese == 22  ? std::string("tutti")
                                  : p.indiceMese == 0 ? std::string("Ultima")
                                                      : fmt::format("{}", p.indiceMese));
    r.rigaVuota();
    return r;
}

config::ReportTesto ReportAlgoritmi(const ParametriRicerca& p, const EsitoRicerca& esito,
                                    const archives::StoriaLotto& storia) {
    config::ReportTesto r = IntestazioneCostruttore(p, storia);
    const std::string_view testa = TestaColonnaSpia(p.tipoSpia);
    for (const RigaAlgoritmo& riga : esito.righe)
        r.riga(fmt::format("Algoritmo: {}, Sort.: {}, Pres./quantità: {}, % presenza: {}, {}: {}", riga.descrizione,
                           riga.testoSortite(), riga.testoPresenze(), riga.testoPercentuale(), testa, riga.testoSpia));
    return r;
}

namespace {

std::string SenzaBlanchi(std::string_view t) {
    const auto a = t.find_first_not_of(' ');
    if (a == std::string_view::npos) return {};
    return std::string(t.substr(a, t.find_last_not_of(' ') - a + 1));
}

// "Num.", "Som.", "Dif.", "Amb.": the first three letters of the spy head and a point.
std::string TestaBreve(TipoSpia tipo) { return std::string(TestaColonnaSpia(tipo).substr(0, 3)) + "."; }

config::Tabella TabellaAlgoritmi(TipoSpia tipo) {
    return {
        "", "*------------------------------------*---------*-------------------*------------*----*",
        "| Descrizione algoritmo              | Sortite | Presenze/quantità | % presenza | " + TestaBreve(tipo) + " |"};
}

config::Tabella TabellaVerifica(TipoSpia tipo) {
    return {"", "*------------*-------*----*------*--------*--------*------------*-----------*-------*------*",
            "| Data spia  | Ruota | " + TestaBreve(tipo) +
                " | Pos. | Ind.m. | Ind.a. | Previsione | Data sor. | Ruota | C.po |"};
}

config::Tabella TabellaPrevisioni(const std::string& titolo, bool stampa) {
    return {titolo, "*--------------------------------------°------------*-------*-------*-------*-------*",
            std::string("| Descrizione algoritmo                | Previsione |  Rit. | R.Max | Freq. |") +
                (stampa ? " I.C.  |" : "  I.C. |")};
}

config::ReportTesto Previsioni(const ParametriRicerca& p, const EsitoPrevisioni& e, const archives::StoriaLotto& storia,
                               bool stampa) {
    config::ReportTesto r = IntestazioneCostruttore(p, storia);
    r.apriTabella(TabellaPrevisioni(e.titolo, stampa));
    for (const RigaPrevisione& x : e.righe) {
        config::RigaReport riga = r.rigaTabella();
        riga.metti(3, x.descrizione).metti(42, x.previsione);
        riga.mettiDestra(59, x.ritardo).mettiDestra(67, x.ritardoMax).mettiDestra(75, x.frequenza);
        if (x.conIndice) riga.mettiDestra(83, x.indiceConvenienza);
        r.riga(riga);
    }
    return r.chiudiTabella();
}

}  // namespace

config::ReportTesto StampaAlgoritmiRighe(const ParametriRicerca& p, const EsitoRicerca& esito,
                                         const archives::StoriaLotto& storia) {
    config::ReportTesto r = IntestazioneCostruttore(p, storia);
    r.apriTabella(TabellaAlgoritmi(p.tipoSpia));
    for (const RigaAlgoritmo& x : esito.righe) {
        config::RigaReport riga = r.rigaTabella();
        riga.metti(2, x.descrizione).metti(41, x.testoSortite()).metti(50, x.testoPresenze());
        riga.metti(72, x.testoPercentuale()).metti(83, x.testoSpia);
        r.riga(riga);
    }
    return r.chiudiTabella();
}

config::ReportTesto StampaVerificaRighe(const ParametriRicerca& p, const EsitoVerifica& v, std::string_view,
                                        const archives::StoriaLotto& storia) {
    config::ReportTesto r = IntestazioneCostruttore(p, storia);
    r.apriTabella(TabellaVerifica(p.tipoSpia));
    static constexpr std::array<std::pair<size_t, int>, 10> kColonne = {
        {{0, 3}, {1, 17}, {2, 24}, {3, 30}, {4, 38}, {5, 47}, {7, 56}, {8, 67}, {9, 80}, {10, 88}}};
    for (const RigaVerifica& x : v.righe) {
        config::RigaReport riga = r.rigaTabella();
        for (const auto& [c, colonna] : kColonne) riga.metti(colonna, x.colonne[c]);
        r.riga(riga);
    }
    return r.chiudiTabella();
}

config::ReportTesto ReportVerifica(const ParametriRicerca& p, const EsitoVerifica& v, std::string_view descrizione,
                                   const archives::StoriaLotto& storia) {
    config::ReportTesto r = IntestazioneCostruttore(p, storia);
    r.riga(std::string(descrizione));
    const std::string_view testa = TestaColonnaSpia(p.tipoSpia);
    for (const RigaVerifica& x : v.righe) {
        const auto& c = x.colonne;
        r.riga(fmt::format(
            "Data spia: {}, R.: {}, {}: {}, Pos.: {}, Ind.m.: {}, Ind.a.: {}, Prev.: {}, "
            "Data sor.: {}, R.: {}, C.po.: {}",
            c[0], SenzaBlanchi(c[1]), testa, c[2], c[3], c[4], c[5], c[7], c[8], SenzaBlanchi(c[9]), c[10]));
    }
    return r;
}

config::ReportTesto ReportRiepilogo(const EsitoRiepilogo& e) {
    config::ReportTesto r;
    for (const std::string& t : e.testa) r.riga(t);
    for (const std::string& t : e.righe) r.riga(t);
    return r;
}

config::ReportTesto StampaPrevisioniRighe(const ParametriRicerca& p, const EsitoPrevisioni& e,
                                          const archives::StoriaLotto& storia) {
    return Previsioni(p, e, storia, true);
}

config::ReportTesto ReportPrevisioni(const ParametriRicerca& p, const EsitoPrevisioni& e,
                                     const archives::StoriaLotto& storia) {
    return Previsioni(p, e, storia, false);
}

std::string DescrizioneListaSortite(size_t quante) { return fmt::format(" Dettaglio delle {} sortite", quante); }

std::array<std::string, 7> ColonneListaSortite(const CasoSpia& c) {
    return {c.data, c.nomeRuota, c.testoSpia, c.testoPosizione, c.testoIndiceMese, c.testoIndiceAnnuale, c.testoIndice};
}

}  // namespace gorgo::builder
