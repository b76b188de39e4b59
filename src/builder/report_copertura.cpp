#include "builder/report_copertura.h"

#include <fmt/format.h>

#include "builder/report.h"

namespace gorgo::builder {

namespace {

// Where the values of a boxed table go: two characters after each "|" of its head but the
// last, counted from 1 as RigaReport counts.
std::vector<int> Colonne(std::string_view testa) {
    std::vector<int> c;
    int i = 0;
    for (size_t k = 0; k < testa.size(); ++i) {
        const unsigned char ch = static_cast<unsigned char>(testa[k]);
        if (ch == '|') c.push_back(i + 3);
        k += ch < 0x80 ? 1 : ch < 0xE0 ? 2 : ch < 0xF0 ? 3 : 4;  // one column a character
    }
    if (!c.empty()) c.pop_back();
    return c;
}

std::string TestaBreve(TipoSpia tipo) { return std::string(TestaColonnaSpia(tipo).substr(0, 3)) + "."; }

bool PerAmbata(TipoCopertura t) { return static_cast<int>(t) <= static_cast<int>(TipoCopertura::TreAmbate); }

}  // namespace

config::ReportTesto StampaCoperturaRighe(const ParametriRicerca& p, const EsitoCopertura& e,
                                         const archives::StoriaLotto& storia) {
    config::ReportTesto r = IntestazioneCostruttore(p, storia);
    std::string regola, testa;
    if (PerAmbata(e.tipo)) {
        regola = "*-----------*---------------------°----*---*";
        testa = "| Data spia | Descrizione algor.  | Pr.| C.|";
        for (int g = 1; g < e.gruppiColonne; ++g) {
            regola += "---------------------°----*---*";
            testa += " Descrizione algor.  | Pr.| C.|";
        }
    } else {
        regola = "*------------*--------------------------------------°----------*-------*";
        testa = "| Data spia  | Descrizione algoritmo                | Prev.    | Colpo |";
    }
    const std::vector<int> col = Colonne(testa);
    r.apriTabella({e.titolo, regola, testa});
    for (const RigaCopertura& x : e.righe) {
        config::RigaReport riga = r.rigaTabella();
        riga.metti(col[0], x.data);
        for (int g = 0; g < e.gruppiColonne; ++g) {
            const ColonneCopertura& c = x.gruppi[static_cast<size_t>(g)];
            riga.metti(col[static_cast<size_t>(1 + 3 * g)], c.descrizione)
                .metti(col[static_cast<size_t>(2 + 3 * g)], c.previsione)
                .metti(col[static_cast<size_t>(3 + 3 * g)], c.colpo);
        }
        r.riga(riga);
    }
    r.chiudiTabella();
    r.rigaVuota();
    const std::string testaR = "| Descrizione algoritmo                   | Pres. |   %   | Previs. |";
    const std::vector<int> colR = Colonne(testaR);
    r.apriTabella({std::string(TitoloRiepilogoCopertura),
                   "*-----------------------------------------°-------*-------*---------*", testaR});
    for (const RiepilogoCopertura& x : e.riepilogo) {
        config::RigaReport riga = r.rigaTabella();
        riga.metti(colR[0], x.descrizione).metti(colR[1], x.testoSortite).metti(colR[2], x.testoPercentuale);
        riga.metti(colR[3], x.previsione);
        r.riga(riga);
    }
    r.chiudiTabella();
    r.rigaVuota();
    r.riga(e.totale);
    if (!e.attesaMedia.empty()) r.riga("Attesa media: " + e.attesaMedia);
    return r;
}

config::ReportTesto ReportCopertura(const ParametriRicerca& p, const EsitoCopertura& e,
                                    const archives::StoriaLotto& storia) {
    config::ReportTesto r = IntestazioneCostruttore(p, storia);
    r.riga(e.titolo);
    for (const RigaCopertura& x : e.righe) {
        std::string s = "Data spia: " + x.data;
        for (int g = 0; g < e.gruppiColonne; ++g) {
            const ColonneCopertura& c = x.gruppi[static_cast<size_t>(g)];
            s += fmt::format(", Algoritmo: {}, Prev.: {}, Colpo: {}", c.descrizione, c.previsione, c.colpo);
        }
        r.riga(s);
    }
    r.riga(std::string(TitoloRiepilogoCopertura));
    for (const RiepilogoCopertura& x : e.riepilogo)
        r.riga(fmt::format("Algoritmo: {}, Pres.: {}, %: {}, Previs.: {}", x.descrizione, x.testoSortite,
                           x.testoPercentuale, x.previsione));
    r.riga(e.totale);
    if (!e.attesaMedia.empty()) r.riga("Attesa media: " + e.attesaMedia);
    return r;
}

config::ReportTesto StampaAutomaticaRighe(const ParametriRicerca& p, const EsitoAutomatica& e,
                                          const archives::StoriaLotto& storia) {
    config::ReportTesto r = IntestazioneCostruttore(p, storia);
    const std::string testa = "| Descrizione algoritmo          | Sort. | Presenze/quantità | % pres. | " +
                              TestaBreve(p.tipoSpia) + " | ric. | ruote gioco    |";
    const std::vector<int> col = Colonne(testa);
    r.apriTabella(
        {std::string(TitoloMultiRuota),
         "*--------------------------------*-------*-------------------*---------*----*------*----------------*",
         testa});
    for (const RigaAutomatica& x : e.righe) {
        config::RigaReport riga = r.rigaTabella();
        riga.metti(col[0], x.riga.descrizione).metti(col[1], x.riga.testoSortite());
        riga.metti(col[2], x.riga.testoPresenze()).metti(col[3], x.riga.testoPercentuale());
        riga.metti(col[4], x.riga.testoSpia).metti(col[5], x.testoRicerca).metti(col[6], x.testoGioco);
        r.riga(riga);
    }
    return r.chiudiTabella();
}

config::ReportTesto ReportAutomatica(const ParametriRicerca& p, const EsitoAutomatica& e,
                                     const archives::StoriaLotto& storia) {
    config::ReportTesto r = IntestazioneCostruttore(p, storia);
    const std::string_view testa = TestaColonnaSpia(p.tipoSpia);
    for (const RigaAutomatica& x : e.righe)
        r.riga(
            fmt::format("Algoritmo: {}, Sort.: {}, Pres./quantità: {}, % presenza: {}, {}: {}, ric.: {}, "
                        "Ruote di gioco: {}",
                        x.riga.descrizione, x.riga.testoSortite(), x.riga.testoPresenze(), x.riga.testoPercentuale(),
                        testa, x.riga.testoSpia, x.testoRicerca, x.testoGioco));
    return r;
}

}  // namespace gorgo::builder
