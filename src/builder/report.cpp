#include "builder/report.h"

#include <fmt/format.h>

namespace gorgo::builder {

namespace {

std::string Ruote(const std::array<bool, 12>& r) {
    if (r[0]) return r[11] ? "Tutte + NZ" : "Tutte";
    std::string s;
    for (int w = 1; w <= NumeroRuote; ++w)
        if (r[static_cast<size_t>(w)]) {
            std::string_view nome = NomiRuota[static_cast<size_t>(w)];
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
        s += p.tuttiGliAmbi ? " tutti gli ambi" : fmt::format(" {}-{}", std::min(p.amboSpia[0], p.amboSpia[1]),
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

config::ReportTesto IntestazioneCostruttore(const ParametriRicerca& p, const StoriaLotto& storia) {
    const RicercaValidata v = ValidaRicerca(p, storia);
    config::ReportTesto r;
    r.titolo();
    r.parametro("Intervallo di ricerca",
                p.perData == 1 ? fmt::format("ultime {} sortite", p.sortiteDaCercare)
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
    r.parametro("Indice mensile",
                p.indiceMese == 22 ? std::string("tutti") : p.indiceMese == 0 ? std::string("Ultima") : fmt::format("{}", p.indiceMese));
    r.rigaVuota();
    return r;
}

config::ReportTesto ReportAlgoritmi(const ParametriRicerca& p, const EsitoRicerca& esito, const StoriaLotto& storia) {
    config::ReportTesto r = IntestazioneCostruttore(p, storia);
    const std::string_view testa = TestaColonnaSpia(p.tipoSpia);
    for (const RigaAlgoritmo& riga : esito.righe)
        r.riga(fmt::format("Algoritmo: {}, Sort.: {}, Pres./quantità: {}, % presenza: {}, {}: {}", riga.descrizione,
                           riga.testoSortite(), riga.testoPresenze(), riga.testoPercentuale(), testa, riga.testoSpia));
    return r;
}

}  // namespace gorgo::builder
