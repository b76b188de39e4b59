// The capogioco panel: its draw, its moves and its abbinamenti.

#include "builder/capogioco.h"

#include <fmt/format.h>
#include <algorithm>

#include "builder/chiavi.h"
#include "builder/report.h"
#include "builder/verifica_interna.h"
#include "config/formato.h"

namespace gorgo::builder {

using interno::Avviso;

bool PassaIndicePannello(int indiceMese, const IndiciMensili& indici, int32_t i) {
    const auto k = static_cast<size_t>(i);
    if (k >= indici.indice.size()) return false;
    if (indiceMese == 0) return indici.ultimo[k];
    if (indiceMese >= 1 && indiceMese <= 16) return indici.indice[k] == indiceMese;
    return indiceMese == 17;
}

Capogioco RicalcolaCapogioco(const archives::StoriaLotto& s, const IndiciMensili& indici, int indiceMese,
                             std::string_view chiave, int32_t i) {
    Capogioco c;
    i = std::min(i, s.NumeroEstrazioni());
    while (i >= PrimaEstrazionePannello && !PassaIndicePannello(indiceMese, indici, i)) --i;
    if (i < PrimaEstrazionePannello) return c;
    c.indice = i;
    c.data = s.DataEstrazione(i);
    if (chiave.empty()) return c;
    const NumeriCalcolati n = CalcolaTermine(chiave, s[i]);
    if (!n.errore.vuoto())
        c.errore = n.errore;
    else
        c.numero = n.numeri.front();
    return c;
}

int32_t EstrazionePrecedente(int32_t i) { return i > 18 ? i - 1 : i; }

int32_t EstrazioneSuccessiva(const archives::StoriaLotto& s, const IndiciMensili& indici, int indiceMese,
                             bool sincronizza, int32_t i) {
    const int32_t n = s.NumeroEstrazioni();
    if (i >= n) return i;
    ++i;
    if (sincronizza)
        while (i < n && !PassaIndicePannello(indiceMese, indici, i)) ++i;
    return i;
}

namespace {

// The spy condition of the search on one wheel's five numbers.
bool SpiaSuRuota(const ParametriRicerca& p, const uint8_t* x, int spia, int spia2, const std::array<bool, 6>& pos) {
    if (p.tipoSpia != TipoSpia::Ambo && p.modoSpia == ModoSpia::SoloIndiceMensile) return true;
    switch (p.tipoSpia) {
        case TipoSpia::Numero:
            for (int i = 0; i < 5; ++i)
                if (x[i] == spia && pos[static_cast<size_t>(i + 1)]) return true;
            return false;
        case TipoSpia::Somma:
        case TipoSpia::Differenza:
            for (int i = 0; i < 4; ++i)
                for (int j = i + 1; j < 5; ++j)
                    if ((p.tipoSpia == TipoSpia::Somma ? OperaPiu(x[i], x[j]) : OperaMeno(x[i], x[j])) == spia)
                        return true;
            return false;
        case TipoSpia::Ambo: {
            bool a = false, b = false;
            int quante = 0;
            for (int i = 0; i < 5; ++i) {
                if (!pos[static_cast<size_t>(i + 1)]) continue;
                a = a || x[i] == spia;
                b = b || x[i] == spia2;
                quante += x[i] == spia || x[i] == spia2;
            }
            return a && b && quante == 2;
        }
    }
    return false;
}

}  // namespace

EsitoAbbinamenti CalcolaAbbinamenti(const ParametriRicerca& p, const ContestoRicerca& ctx, std::string_view chiave,
                                    int32_t indice, int capogioco, int quanti) {
    EsitoAbbinamenti e;
    if (p.colpi < 1) {
        e.errore = Avviso(ColpiMancanti);
        e.focus = "txtColpi";
        return e;
    }
    const archives::StoriaLotto& s = *ctx.storia;
    const int32_t n = s.NumeroEstrazioni();
    e.ultimo = std::min(indice, n);
    if (chiave.size() < 13) {
        e.errore = Avviso(AbbinamentiSenzaCapogioco);
        return e;
    }
    const size_t attesa = p.tipoSpia == TipoSpia::Numero ? 18 : p.tipoSpia == TipoSpia::Ambo ? 21 : 13;
    if (chiave.size() != attesa) {
        e.errore = Avviso(CapogiocoMancante);
        return e;
    }
    const int spia = interno::Valore(chiave.substr(10, 2));
    const int spia2 = p.tipoSpia == TipoSpia::Ambo ? interno::Valore(chiave.substr(18, 2)) : 0;
    std::array<bool, 6> posizioni{false, true, true, true, true, true};
    if (p.tipoSpia == TipoSpia::Numero || p.tipoSpia == TipoSpia::Ambo)
        for (size_t k = 0; k < 5; ++k) posizioni[k + 1] = chiave[12 + k] == '1';
    if (spia == 0 && p.tipoSpia != TipoSpia::Ambo) {
        e.errore = Avviso(AbbinatiImpossibili);
        return e;
    }
    // A bad key is told once: its faults do not depend on the draw.
    if (const NumeriCalcolati prova = CalcolaTermine(chiave, s[std::max<int32_t>(1, e.ultimo)]);
        !prova.errore.vuoto()) {
        e.errore = prova.errore;
        return e;
    }

    const std::array<bool, 12> ricerca = RuoteScelte(p.ruoteRicerca), gioco = RuoteScelte(p.ruoteGioco);
    const config::Restrizioni& re = ctx.restrizioni;
    const bool giorni = re.Giorno || re.Mese || re.Periodo;
    e.conteggi.assign(91, 0);
    for (int32_t i = e.ultimo; i >= PrimaEstrazioneAbbinamenti && e.casi < CasiAbbinamenti; --i) {
        const archives::RecordEstrazione& caso = s[i];
        if (giorni && !config::EstrazioneAmmessa(re, caso.dataCifre(), caso.GiornoSettimana)) continue;
        if (ctx.indiciMensili == nullptr || !PassaIndicePannello(p.indiceMese, *ctx.indiciMensili, i)) continue;
        for (int w = 1; w <= archives::NumeroRuote && e.casi < CasiAbbinamenti; ++w) {
            if (!ricerca[static_cast<size_t>(w)] || !SpiaSuRuota(p, caso.Ruota[w - 1], spia, spia2, posizioni))
                continue;
            ++e.casi;
            const int c = CalcolaTermine(chiave, caso).numeri.front();
            for (int g = 1; g <= archives::NumeroRuote; ++g) {
                if (!gioco[static_cast<size_t>(g)]) continue;
                for (int32_t j = i + 1; j <= std::min<int32_t>(i + p.colpi, n); ++j) {
                    const uint8_t* x = s[j].Ruota[g - 1];
                    if (std::find(x, x + 5, c) == x + 5) continue;
                    ++e.vincite;
                    for (int k = 0; k < 5; ++k)
                        if (x[k] <= 90) e.massimo = std::max(e.massimo, ++e.conteggi[x[k]]);
                }
            }
        }
    }
    // Highest count first; ties to the lower number.
    for (int volte = e.massimo; volte >= 1 && static_cast<int>(e.righe.size()) < quanti; --volte)
        for (int x = 1; x <= 90 && static_cast<int>(e.righe.size()) < quanti; ++x) {
            if (x == capogioco || e.conteggi[static_cast<size_t>(x)] != volte) continue;
            const std::string perc = config::Formato(volte * 100.0 / e.vincite, "##0.0");
            e.righe.push_back({x, volte, fmt::format("{:>5}%  n. {:>4}", perc, x)});
        }
    return e;
}

config::ReportTesto ReportAbbinamenti(const ParametriRicerca& p, const archives::StoriaLotto& storia,
                                      std::string_view descrizione, const std::string& data, int capogioco,
                                      const EsitoAbbinamenti& esito) {
    config::ReportTesto r = IntestazioneCostruttore(p, storia);
    r.riga("Algoritmo capogioco : " + std::string(descrizione));
    r.riga(fmt::format("Capogioco al {} : {:>2}", data, capogioco));
    r.riga(fmt::format("Numeri abbinati (casi esaminati: {}) :", esito.casi));
    for (const RigaAbbinamento& x : esito.righe) r.riga(x.testo);
    return r;
}

namespace {

std::string RuoteDiGioco(const std::array<bool, 12>& r) {
    if (r[0]) return r[11] ? "Tutte + NZ" : "Tutte";
    std::string s;
    for (int w = 1; w <= archives::NumeroRuote; ++w)
        if (r[static_cast<size_t>(w)]) s += interno::Tronca(archives::NomiRuota[static_cast<size_t>(w)]) + " ";
    return s;
}

std::string Numeri(const std::vector<int>& x) {
    std::string t;
    for (int n : x) t += (t.empty() ? "" : " - ") + fmt::format("{:>2}", n);
    return t;
}

}  // namespace

NumeriDaGiocare ComponiNumeriDaGiocare(const std::array<bool, 12>& ruoteGioco, const std::string& data, int capogioco,
                                       const std::vector<int>& lunghetta, const EsitoAbbinamenti& abbinamenti) {
    NumeriDaGiocare d;
    d.ruote = RuoteDiGioco(ruoteGioco);
    d.data = data;
    d.capogioco = capogioco > 0 ? fmt::format("{:>2}", capogioco) : std::string();
    std::vector<int> algoritmi, dalCapo, entrambi;
    for (int n : lunghetta)
        if (n != capogioco) algoritmi.push_back(n);
    for (const RigaAbbinamento& r : abbinamenti.righe) dalCapo.push_back(r.numero);
    for (int n : algoritmi)
        if (std::find(dalCapo.begin(), dalCapo.end(), n) != dalCapo.end()) entrambi.push_back(n);
    d.abbinamentiAlgoritmi = Numeri(algoritmi);
    d.abbinamentiCapogioco = Numeri(dalCapo);
    if (!entrambi.empty()) d.multiSegnalazione = "Segnalati da entrambi : " + Numeri(entrambi);
    d.righe = {"Numeri da giocare su : " + d.ruote + " dopo il " + data, "Capogioco : " + d.capogioco,
               "Abbinamenti ricavati da algoritmi  : " + d.abbinamentiAlgoritmi,
               "Abbinamenti ricavati dal capogioco : " + d.abbinamentiCapogioco};
    return d;
}

}  // namespace gorgo::builder
