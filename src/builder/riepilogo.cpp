// The recap of a verified algorithm: its figures and the head block of its report.

#include "builder/riepilogo.h"

#include <fmt/format.h>
#include <algorithm>

#include "builder/chiavi.h"
#include "builder/verifica_interna.h"
#include "config/formato.h"

namespace gorgo::builder {

using interno::Avviso;
using interno::Tronca;

FigureRiepilogo FigureTecnica(const std::vector<RigaVerifica>& righe, int32_t fine, int colpi) {
    FigureRiepilogo f;
    f.rilevati = static_cast<int>(righe.size());
    for (const RigaVerifica& r : righe)
        if (r.vincita) {
            ++f.favorevoli;
            f.sommaColpi += r.colpo;
        }
    for (auto it = righe.rbegin(); it != righe.rend() && fine - it->indiceSpia < colpi; ++it) {
        ++f.inGioco;
        if (it->vincita) ++f.sfaldati;
    }
    const int d = f.rilevati - f.inGioco - f.favorevoli;
    if (d < 0) f.sfaldati = -d;
    f.negativi = std::max(d, 0);
    return f;
}

namespace {

std::string Ruote(const std::array<bool, 12>& caselle) {
    if (caselle[0]) return caselle[11] ? " Tutte + NZ" : " Tutte";
    std::string t;
    for (int w = 1; w <= archives::NumeroRuote; ++w)
        if (caselle[static_cast<size_t>(w)]) {
            t += ' ';
            t += Tronca(archives::NomiRuota[static_cast<size_t>(w)]);
        }
    return t;
}

std::string_view RigaSorte(const ParametriRicerca& p) {
    switch (p.tipoRicerca) {
        case TipoRicerca::Ambate: return " Ambate          : ";
        case TipoRicerca::Ambi: return " Ambi secchi     : ";
        case TipoRicerca::TerzineAmbo: return " Ambi in terzina : ";
        case TipoRicerca::TerzineTerno: return " Terni secchi    : ";
        case TipoRicerca::Codici: return p.sorte == 3 ? " Terni           : " : " Ambi in terzina : ";
    }
    return {};
}

std::string Percentuale(int parte, int tutto) { return config::Formato(parte * 100.0 / tutto, "##0.0"); }

}  // namespace

EsitoRiepilogo RiepilogoTecnica(const ParametriRicerca& p, const ContestoRicerca& contesto,
                                const EsitoVerifica& verifica, std::string_view descrizione, std::string_view chiave) {
    EsitoRiepilogo e;
    if (p.colpi < 1) {
        e.errore = Avviso(ColpiMancanti);
        return e;
    }
    const archives::StoriaLotto& s = *contesto.storia;
    const RicercaValidata v = ValidaRicerca(p, s);
    if (!v.errore.vuoto()) {
        e.errore = v.errore;
        return e;
    }
    const FigureRiepilogo f = FigureTecnica(verifica.righe, v.ultimoPeriodo, p.colpi);
    e.figure = f;

    // The head.
    auto& t = e.testa;
    t.push_back("Gorgo 2");
    const bool soloIndice = p.tipoSpia != TipoSpia::Ambo && p.modoSpia == ModoSpia::SoloIndiceMensile;
    if (p.perData == 1) {
        static constexpr std::string_view kDescrivi[] = {"sortite del numero spia", "sortite della somma spia",
                                                         "sortite della differenza spia", "sortite dell'ambo spia"};
        t.push_back(fmt::format(
            "Ultime {} {}", p.sortiteDaCercare,
            soloIndice ? std::string_view("occorrenze dell'indice mensile") : kDescrivi[static_cast<int>(p.tipoSpia)]));
    } else {
        t.push_back("Data inizio ricerca " + s.DataEstrazione(v.primo));
        t.push_back("Data fine ricerca " + s.DataEstrazione(v.ultimoPeriodo));
    }
    t.push_back("Condizione di gioco:");
    const std::optional<CodaChiave> coda = LeggiCoda(chiave);
    std::string spia;
    switch (p.tipoSpia) {
        case TipoSpia::Numero: spia = "Sortita del n. "; break;
        case TipoSpia::Somma: spia = "Sortita della somma "; break;
        case TipoSpia::Differenza: spia = "Sortita della differenza "; break;
        case TipoSpia::Ambo: spia = "Sortita dell'ambo "; break;
    }
    if (coda) spia += coda->ambo ? fmt::format("{}-{}", coda->spia, coda->spia2) : fmt::format("{}", coda->spia);
    if (!coda || coda->posizioni.empty() || coda->posizioni == "11111") {
        spia += " in qualsiasi posizione";
    } else {
        spia += " in posizione";
        for (size_t k = 0; k < coda->posizioni.size(); ++k)
            if (coda->posizioni[k] == '1') spia += fmt::format("{:>2}", k + 1);
    }
    t.push_back(spia);
    const config::Restrizioni& re = contesto.restrizioni;
    if (re.Giorno) {
        std::string giorni = "Solo nelle estrazioni del ";
        static constexpr std::pair<int, std::string_view> kGiorni[] = {
            {3, " martedì"}, {4, " mercoledì"}, {5, " giovedì"}, {7, " sabato"}};
        for (const auto& [g, nome] : kGiorni)
            if (re.GiornoAmmesso[static_cast<size_t>(g)]) giorni += nome;
        t.push_back(giorni);
    }
    t.push_back("Ruota/e di ricerca condizione " + Ruote(p.ruoteRicerca));
    t.push_back(" su ");
    t.push_back("Ruota/e di gioco " + Ruote(p.ruoteGioco));
    t.push_back(fmt::format("Colpi di gioco {}", p.colpi));
    if (p.indiceMese == 22)
        t.push_back("Tutti gli indici mensili");
    else
        t.push_back("Indice mensile " + (p.indiceMese == 0 ? std::string("Ultima") : std::to_string(p.indiceMese)) +
                    " del mese");
    std::string algoritmo(descrizione);
    const bool tutteValide =
        std::all_of(p.posizioniValide.begin() + 1, p.posizioniValide.end(), [](bool b) { return b; });
    if (p.tipoRicerca == TipoRicerca::Ambate && !tutteValide) {
        algoritmo += " in posizione ";
        for (int k = 1; k <= 5; ++k)
            if (p.posizioniValide[static_cast<size_t>(k)]) algoritmo += fmt::format("{:>2}", k);
    }
    t.push_back(algoritmo);
    if (verifica.capoInCorso())
        t.push_back((p.tipoRicerca == TipoRicerca::Ambate ? " numero calcolato al " : " numeri calcolati al ") +
                    verifica.lblDataPrevisione + " : " + verifica.lblCapo);
    else
        t.push_back(" nessuna previsione in corso");

    // The figures.
    auto& r = e.righe;
    const auto cinque = [](auto x) { return fmt::format("{:>5}", x); };
    r.push_back(" Casi rilevati   : " + cinque(f.rilevati));
    std::string riga = " Casi favorevoli : " + cinque(f.favorevoli);
    if (f.rilevati > 0) riga += " (" + Percentuale(f.favorevoli, f.rilevati) + " %)";
    r.push_back(riga);
    riga = " Casi negativi   : " + cinque(f.negativi);
    if (f.rilevati > 0) riga += " (" + Percentuale(f.negativi, f.rilevati) + " %)";
    r.push_back(riga);
    riga = " Casi in gioco   : " + cinque(f.inGioco);
    if (f.sfaldati > 0) riga += fmt::format(" ({} già sfaldato/i)", f.sfaldati);
    r.push_back(riga);
    r.push_back(std::string(RigaSorte(p)) + cinque(f.favorevoli));
    // No hit: no mean wait, and no failure.
    riga = " Attesa media    : ";
    if (f.favorevoli > 0)
        riga += config::AllineaDestra(config::Formato(static_cast<double>(f.sommaColpi) / f.favorevoli, "#0.0"), 5) +
                " colpi";
    r.push_back(riga);
    return e;
}

}  // namespace gorgo::builder
