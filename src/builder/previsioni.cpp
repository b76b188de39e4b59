// The forecasts of the selected algorithms, with the statistics of their numbers.

#include "builder/previsioni.h"

#include <fmt/format.h>
#include <algorithm>

#include "builder/report.h"
#include "builder/statistiche.h"
#include "builder/verifica_interna.h"
#include "config/formato.h"

namespace gorgo::builder {

using interno::Avviso;
using interno::Prepara;
using interno::Preparazione;
using interno::Valore;
using interno::Verifica;

std::string TitoloPrevisioni(const ParametriRicerca& p) {
    std::string t =
        "Calcolo previsioni degli algoritmi selezionati: " + std::string(NomeTipoRicerca(p.tipoRicerca, p.tipoSpia));
    if (p.tipoRicerca == TipoRicerca::Codici) t += p.sorte == 3 ? " (terni)" : " (ambi)";
    return t;
}

namespace {

std::string Quattro(int32_t x) { return fmt::format("{:>4}", x); }

std::string IndiceConvenienza(int32_t frequenza, int32_t estrazioni, int32_t ritardo) {
    if (estrazioni <= 0) return "N.D.";
    return config::Formato(static_cast<double>(frequenza) / estrazioni * ritardo, "0.00");
}

}  // namespace

EsitoPrevisioni CalcolaPrevisioni(const ParametriRicerca& p, const ContestoRicerca& contesto,
                                  const std::vector<RigaAlgoritmo>& righe) {
    EsitoPrevisioni e;
    if (righe.empty()) return e;
    const Preparazione prep = Prepara(p, contesto);
    if (!prep.v.errore.vuoto()) {
        e.errore = prep.v.errore;
        return e;
    }
    const bool terno = p.tipoRicerca == TipoRicerca::TerzineTerno;
    const bool nonDisponibile = terno || (p.tipoRicerca == TipoRicerca::Codici && p.sorte == 3);
    StatisticheGioco st;
    if (!terno) st = StatisticheRuoteGioco(*contesto.storia, prep.v.ruoteGioco, prep.v.primo);

    for (const RigaAlgoritmo& riga : righe) {
        if (!riga.selezionata) continue;
        if (!e.aperta) {
            e.aperta = true;
            e.titolo = TitoloPrevisioni(p);
        }
        const EsitoVerifica v =
            Verifica(prep, riga.descrizione, riga.chiave, riga.testoSpia, false, p.colpiDaGiocare, false);
        if (!v.errore.vuoto()) continue;  // a fault of one row does not stop the others
        RigaPrevisione r;
        r.descrizione = riga.descrizione;
        r.previsione = v.lblCapo;
        std::vector<int> x;
        if (!v.lblCapo.empty()) {
            std::string_view t = v.lblCapo;
            for (size_t inizio = 0;;) {
                const size_t meno = t.find('-', inizio);
                x.push_back(Valore(t.substr(inizio, meno == std::string_view::npos ? t.npos : meno - inizio)));
                if (meno == std::string_view::npos) break;
                inizio = meno + 1;
            }
        }
        const bool fuori = std::any_of(x.begin(), x.end(), [](int a) { return a < 0 || a > 90; });
        if (nonDisponibile || fuori) {
            r.ritardo = r.ritardoMax = r.frequenza = "N.D.";
            r.conIndice = !nonDisponibile;
            if (r.conIndice) r.indiceConvenienza = "N.D.";
        } else if (x.size() == 1) {
            const auto a = static_cast<size_t>(x[0]);
            r.ritardo = Quattro(st.ritardo[a]);
            r.ritardoMax = Quattro(st.ritardoMax[a]);
            r.frequenza = Quattro(st.frequenza[a]);
            r.indiceConvenienza = IndiceConvenienza(st.frequenza[a], st.estrazioni, st.ritardo[a]);
        } else if (x.size() == 2) {
            r.ritardo = Quattro(st.Ritardo2(x[0], x[1]));
            r.ritardoMax = Quattro(st.RitardoMax2(x[0], x[1]));
            r.frequenza = Quattro(st.Frequenza2(x[0], x[1]));
            r.indiceConvenienza = IndiceConvenienza(st.Frequenza2(x[0], x[1]), st.estrazioni, st.Ritardo2(x[0], x[1]));
        } else if (x.size() == 3) {
            int32_t ritardo = 0, ritardoMax = 10000, somma = 0;
            bool primo = true;
            for (auto [a, b] : {std::pair{x[0], x[1]}, std::pair{x[0], x[2]}, std::pair{x[1], x[2]}}) {
                ritardo = primo ? st.Ritardo2(a, b) : std::min(ritardo, st.Ritardo2(a, b));
                primo = false;
                ritardoMax = std::min(ritardoMax, st.RitardoMax2(a, b));
                somma += st.Frequenza2(a, b);
            }
            r.ritardo = Quattro(ritardo);
            r.ritardoMax = ritardoMax < 10000 ? Quattro(ritardoMax) : std::string("   -");
            r.frequenza = Quattro(somma);
            r.indiceConvenienza = somma == 0 ? std::string("N.D.") : IndiceConvenienza(somma, st.estrazioni, ritardo);
        }
        e.righe.push_back(std::move(r));
    }
    if (!e.aperta) e.errore = Avviso(NessunAlgoritmoSelezionato, TitoloErrore);
    return e;
}

}  // namespace gorgo::builder
