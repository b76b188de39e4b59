#include "enucleated/gruppo.h"

#include <fmt/format.h>
#include <algorithm>

#include "archives/record.h"
#include "config/formato.h"
#include "enucleated/ambi_matematici.h"

namespace gorgo::enucleated {

namespace {

// The counters of one wheel, by delay value.
struct Contatori {
    std::vector<int> frequenza, ultimaVolta, massimo;
    int ritardo = 0, storico = 0, uscite = 0, estrazioni = 0;
};

Contatori Percorri(const archives::StoriaLotto& storia, const Periodo& periodo, int w) {
    Contatori c;
    const int32_t inizio = std::max(periodo.inizio, archives::PrimaEstrazioneRuota[static_cast<size_t>(w)]);
    const size_t n = static_cast<size_t>(std::max(0, periodo.fine - inizio + 1)) + 1;
    c.frequenza.assign(n, 0);
    c.ultimaVolta.assign(n, 0);
    c.massimo.assign(n, 0);
    for (int32_t j = inizio; j <= periodo.fine; ++j) {
        const uint8_t* e = storia[j].Ruota[w - 1];
        if (e[0] == 0) continue;
        ++c.estrazioni;
        int uscite = 0;
        for (int i = 0; i < 4; ++i)
            for (int k = i + 1; k < 5; ++k) uscite += EMatematico(e[i], e[k]);
        if (uscite > 0) {
            c.uscite += uscite;
            c.storico = std::max(c.storico, c.ritardo);
            const auto g = static_cast<size_t>(c.ritardo);
            ++c.frequenza[g];
            c.massimo[g] = std::max(c.massimo[g], c.estrazioni - c.ultimaVolta[g]);
            c.ultimaVolta[g] = c.estrazioni;
            c.ritardo = 0;
        } else {
            ++c.ritardo;
        }
    }
    return c;
}

std::string Riepilogo(std::string_view testa, int uscite, int ritardo, int storico, int estrazioni) {
    const std::string ic =
        uscite > 0
            ? config::AllineaDestra(config::Formato(ritardo / (static_cast<double>(estrazioni) / uscite), "##0.00"), 5)
            : std::string(ICNonDefinito);
    return fmt::format("{} -->  Freq.: {} - Rit.: {} - Rit.stor.: {} - I.C.:{}", testa, uscite, ritardo, storico, ic);
}

}  // namespace

EsitoGruppo StatisticaGruppo(const archives::StoriaLotto& storia, std::string_view da, std::string_view a, bool tutte,
                             int ruota) {
    const EsitoPeriodo ep = ControllaPeriodo(storia, da, a);
    if (!ep.valido()) {
        EsitoGruppo e;
        e.errore = ep.errore;
        return e;
    }
    return StatisticaGruppo(storia, ep.periodo, tutte, ruota);
}

EsitoGruppo StatisticaGruppo(const archives::StoriaLotto& storia, const Periodo& periodo, bool tutte, int ruota,
                             const Avanzamento& avanzamento) {
    EsitoGruppo e;
    e.periodo = periodo;
    std::vector<Contatori> ruote;
    for (int w = tutte ? 1 : ruota; w <= (tutte ? archives::NumeroRuote : ruota); ++w) {
        // A wheel is a few milliseconds: the stop and the progress are looked at between wheels.
        if (avanzamento.stop.stop_requested()) {
            EsitoGruppo fermo;
            fermo.periodo = periodo;
            fermo.interrotta = true;
            return fermo;
        }
        if (avanzamento.progresso) avanzamento.progresso(NomeRuota(w), tutte ? w - 1 : 0, tutte ? 11 : 1);
        ruote.push_back(Percorri(storia, periodo, w));
        const Contatori& c = ruote.back();
        e.riepilogo.push_back(
            Riepilogo(fmt::format("{} ", SiglaRuota(w)), c.uscite, c.ritardo, c.storico, c.estrazioni));
    }
    // All wheels together: hits and draws add up, the present delay is the least of the
    // wheels' (draws since the group came out anywhere), the historical one the largest.
    size_t lunghezza = 0;
    int uscite = 0, estrazioni = 0, ritardo = -1, storico = 0;
    for (const Contatori& c : ruote) {
        lunghezza = std::max(lunghezza, c.frequenza.size());
        uscite += c.uscite;
        estrazioni += c.estrazioni;
        if (c.estrazioni > 0) ritardo = ritardo < 0 ? c.ritardo : std::min(ritardo, c.ritardo);
        storico = std::max(storico, c.storico);
    }
    if (tutte) e.riepilogo.push_back(Riepilogo(" TUTTE", uscite, std::max(ritardo, 0), storico, estrazioni));

    for (size_t g = 0; g < lunghezza; ++g) {
        RigaGruppo r;
        r.ritardo = static_cast<int>(g);
        r.ritardoAttuale = -1;
        for (const Contatori& c : ruote) {
            if (g >= c.frequenza.size() || c.frequenza[g] == 0) continue;
            r.frequenza += c.frequenza[g];
            const int att = c.estrazioni - c.ultimaVolta[g];
            r.ritardoAttuale = r.ritardoAttuale < 0 ? att : std::min(r.ritardoAttuale, att);
            r.ritardoMax = std::max(r.ritardoMax, c.massimo[g]);
        }
        if (r.frequenza == 0) continue;
        r.ic = r.ritardoAttuale / (static_cast<double>(estrazioni) / r.frequenza);
        r.testo = {fmt::format("{:>5}", r.ritardo), fmt::format("{:>4}", r.frequenza),
                   fmt::format("{:>4}", r.ritardoAttuale), fmt::format("{:>4}", r.ritardoMax),
                   config::Formato(r.ic, "##0.00")};
        e.righe.push_back(std::move(r));
    }
    std::stable_sort(e.righe.begin(), e.righe.end(),
                     [](const RigaGruppo& x, const RigaGruppo& y) { return x.ic > y.ic; });
    return e;
}

std::vector<std::string> ReportGruppo(const EsitoGruppo& e) {
    std::vector<std::string> r;
    r.push_back(fmt::format("Ambi matematici - Periodo : dal {} al {}", e.periodo.dataDa, e.periodo.dataA));
    r.push_back("");
    for (const std::string& s : e.riepilogo) r.push_back(s);
    r.push_back("");
    r.push_back("Comportamento dei ritardi del gruppo dei 90 ambi matematici");
    const std::string cornice = "*------------*-----------*--------------*-------------*-------*";
    r.push_back(cornice);
    r.push_back("| Ritardo    | Frequenza | Ritardo att. | Ritardo max |  I.C. |");
    r.push_back(cornice);
    for (const RigaGruppo& g : e.righe)
        r.push_back(fmt::format("| {:<10} | {:>9} | {:>12} | {:>11} | {:>5} |", g.ritardo, g.frequenza,
                                g.ritardoAttuale, g.ritardoMax, g.testo[4]));
    r.push_back(cornice);
    return r;
}

std::string NomeFileGruppo(bool tutte, int ruota) {
    return fmt::format("Ambo_Enucleato_StatAmbiMatematici_{}.txt", tutte ? "Tutte" : NomeRuota(ruota));
}

}  // namespace gorgo::enucleated
