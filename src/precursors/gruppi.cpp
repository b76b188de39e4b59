#include "precursors/gruppi.h"

#include <tbb/enumerable_thread_specific.h>
#include <tbb/parallel_for.h>

#include <algorithm>
#include <atomic>
#include <map>
#include <mutex>
#include <tuple>

#include <fmt/format.h>

#include "archives/record.h"
#include "config/formato.h"

namespace gorgo::precursors {

namespace {

using archives::Icona;

std::string Destra(long long v, int larghezza) { return config::AllineaDestra(std::to_string(v), larghezza); }

// The ticked elements numbered in one row, with the draws' matches found through the
// numbers: an element of one number matches when it is drawn, a longer one when at least
// PresenzeMinime of its numbers are.
struct Elementi {
    std::vector<uint32_t> base;  // per ticked group, its first id
    std::vector<uint32_t> gruppo, indice;
    std::array<std::vector<uint32_t>, 91> perNumero;
    std::vector<uint8_t> soglia;  // numbers needed
    size_t size() const { return gruppo.size(); }

    Elementi(const ParametriGruppi& p, const std::vector<GruppoFormazioni>& lib) {
        for (int g : p.Gruppi) {
            base.push_back(static_cast<uint32_t>(gruppo.size()));
            const auto& el = lib[static_cast<size_t>(g)].Elementi;
            for (size_t k = 0; k < el.size(); ++k) {
                const uint32_t id = static_cast<uint32_t>(gruppo.size());
                gruppo.push_back(static_cast<uint32_t>(g));
                indice.push_back(static_cast<uint32_t>(k));
                soglia.push_back(static_cast<uint8_t>(el[k].size() == 1 ? 1 : std::min(p.PresenzeMinime, 255)));
                for (int n : el[k])
                    if (n >= 1 && n <= 90) perNumero[static_cast<size_t>(n)].push_back(id);
            }
        }
    }

    // The matched ids of draw i, ascending; `conta` is zero on entry and on exit.
    std::vector<uint32_t> Presenti(const FonteEstrazioni& f, int32_t i, std::vector<uint8_t>& conta) const {
        std::vector<uint32_t> toccati, r;
        if (f.vuota(i)) return r;
        for (uint8_t x : f.numeri(i))
            if (x >= 1 && x <= 90)
                for (uint32_t id : perNumero[x])
                    if (conta[id]++ == 0) toccati.push_back(id);
        for (uint32_t id : toccati) {
            if (conta[id] >= soglia[id]) r.push_back(id);
            conta[id] = 0;
        }
        std::sort(r.begin(), r.end());
        return r;
    }
};

bool Contiene(std::span<const uint8_t> numeri, int x) {
    return std::find(numeri.begin(), numeri.end(), static_cast<uint8_t>(x)) != numeri.end();
}

}  // namespace

std::string TestoElemento(const std::vector<int>& elemento) {
    std::string t;
    for (int n : elemento) {
        if (!t.empty()) t += '.';
        t += fmt::format("{:>2}", n);
    }
    return t;
}

EsitoGruppi AnalisiGruppi(const ParametriGruppi& p, const FonteEstrazioni& f, const std::vector<GruppoFormazioni>& lib,
                          const Avanzamento& av) {
    EsitoGruppi e;
    e.inizio = InizioDellaRuota(f, p.Inizio, e.avviso);
    auto rifiuta = [&](const char* testo, const char* focus) {
        e.errore = {testo, "Errore", Icona::Esclamazione};
        e.focus = focus;
        return e;
    };
    if (p.Precedenti < 1 || p.Precedenti > MassimoCasella)
        return rifiuta("Inserire il numero di estrazioni precedenti nelle quali cercare i precursori!",
                       "txtPrecedenti");
    if (p.Successivi < 1 || p.Successivi > MassimoCasella)
        return rifiuta("Inserire il numero di colpi successivi da analizzare!", "txtSuccessivi");
    if (p.PresenzeMinime < 1 || p.PresenzeMinime > MassimoCasella)
        return rifiuta("E' necessario considerare minimo una presaenza!", "txtPresenzeMinime");
    if (p.Gruppi.empty())
        return rifiuta("E' necessario selezionare almeno una formazione numerica da considerare!", "lstGruppi");
    const bool ambi = p.sorte == Sorte::Ambi;
    const int risultati = std::clamp(p.Risultati, 1, MassimoRisultati);
    e.titoli = {ambi ? " Ambo " : "Ambata", "Presenze", "Formazione numerica", "Elemento", "Ricorrenze", "% presenze"};

    const Elementi el(p, lib);
    const int32_t inizio = std::max(e.inizio, 1), fine = std::min(p.Fine, f.NumeroEstrazioni());
    // The matches of every draw a walk can reach, once, on all cores.
    const int32_t primo = std::max(1, inizio - p.Precedenti);
    std::vector<std::vector<uint32_t>> presenti(static_cast<size_t>(std::max(0, fine - primo + 1)));
    tbb::enumerable_thread_specific<std::vector<uint8_t>> conte([&] { return std::vector<uint8_t>(el.size()); });
    tbb::parallel_for(primo, fine + 1,
                      [&](int32_t j) { presenti[static_cast<size_t>(j - primo)] = el.Presenti(f, j, conte.local()); });
    if (av.stop.stop_requested()) {
        e.interrotta = true;
        return e;
    }

    // The sought items and their hits in the period.
    struct Voce {
        int a = 0, b = 0;
        std::vector<int32_t> colpi;
    };
    std::vector<Voce> voci;
    std::array<std::vector<int32_t>, 91> colpiNumero;
    for (int32_t i = inizio; i <= fine; ++i)
        if (!f.vuota(i))
            for (uint8_t x : f.numeri(i))
                if (x >= 1 && x <= 90) colpiNumero[x].push_back(i);
    if (!ambi) {
        for (int n = 1; n <= 90; ++n)
            if (p.Considerato[static_cast<size_t>(n)] && colpiNumero[static_cast<size_t>(n)].size() > 1)
                voci.push_back({n, 0, colpiNumero[static_cast<size_t>(n)]});
    } else {
        for (int a = 1; a <= 89; ++a)
            for (int b = a + 1; b <= 90; ++b) {
                if (!p.Considerato[static_cast<size_t>(a)] || !p.Considerato[static_cast<size_t>(b)]) continue;
                Voce v{a, b, {}};
                for (int32_t i : colpiNumero[static_cast<size_t>(a)])
                    if (Contiene(f.numeri(i), b)) v.colpi.push_back(i);
                if (v.colpi.size() > 1) voci.push_back(std::move(v));
            }
    }

    // Per sought item, on all cores: Ricorrenze (hits whose walk met the element) and
    // Presenze (draws of the walks holding it), then its best elements.
    using Chiave = std::tuple<int, int, int, int>;  // ricorrenze, presenze, element from 1, group from 1
    std::vector<std::vector<Chiave>> scelte(voci.size());
    struct Lavoro {
        std::vector<int32_t> ric, pres, visto;
        std::vector<uint32_t> toccati;
        std::vector<int> massimo;
        int32_t colpo = 0;
    };
    tbb::enumerable_thread_specific<Lavoro> lavori([&] {
        Lavoro l;
        l.ric.assign(el.size(), 0);
        l.pres.assign(el.size(), 0);
        l.visto.assign(el.size(), 0);
        l.massimo.assign(lib.size(), 0);
        return l;
    });
    std::atomic<int> fatti{0};
    std::mutex mutexProgresso;
    tbb::parallel_for(size_t{0}, voci.size(), [&](size_t v) {
        if (av.stop.stop_requested()) return;
        Lavoro& l = lavori.local();
        for (int32_t i : voci[v].colpi) {
            ++l.colpo;
            for (int32_t j = i - 1, passi = 0; passi < p.Precedenti && j >= 1; --j, ++passi)
                for (uint32_t id : presenti[static_cast<size_t>(j - primo)]) {
                    if (l.pres[id]++ == 0) l.toccati.push_back(id);
                    if (l.visto[id] != l.colpo) {
                        l.visto[id] = l.colpo;
                        ++l.ric[id];
                    }
                }
        }
        for (uint32_t id : l.toccati) {
            int& m = l.massimo[el.gruppo[id]];
            m = std::max(m, l.ric[id]);
        }
        std::vector<Chiave>& s = scelte[v];
        for (uint32_t id : l.toccati) {
            const uint32_t g = el.gruppo[id];
            const bool grande = lib[g].Elementi.size() >= SogliaGruppoGrande;
            if (grande ? l.ric[id] >= std::max(1, l.massimo[g] / 2) : l.ric[id] >= p.PresenzeMinime)
                s.emplace_back(l.ric[id], l.pres[id], static_cast<int>(el.indice[id]) + 1, static_cast<int>(g) + 1);
        }
        for (uint32_t id : l.toccati) {
            l.ric[id] = l.pres[id] = 0;
            l.massimo[el.gruppo[id]] = 0;
        }
        l.toccati.clear();
        const size_t k = std::min(s.size(), static_cast<size_t>(risultati));
        std::partial_sort(s.begin(), s.begin() + static_cast<std::ptrdiff_t>(k), s.end(), std::greater<>());
        s.resize(k);
        const int n = ++fatti;
        if (av.progresso && n % 25 == 0) {
            std::lock_guard lock(mutexProgresso);
            av.progresso(n, static_cast<int>(voci.size()));
        }
    });
    if (av.stop.stop_requested()) {
        e.interrotta = true;
        return e;
    }

    for (size_t v = 0; v < voci.size(); ++v) {
        const Voce& x = voci[v];
        const int presenze = static_cast<int>(x.colpi.size());
        for (const auto& [ric, pres, k, g] : scelte[v]) {
            RigaGruppi r;
            r.voce = ambi ? fmt::format("{:>2}-{:>2}", x.a, x.b) : fmt::format("{:>2}", x.a);
            r.chiave = ambi ? x.a * 100 + x.b : x.a;
            r.presenze = presenze;
            r.gruppo = g - 1;
            r.elemento = k - 1;
            r.ricorrenze = ric;
            r.presenzeElemento = pres;
            const GruppoFormazioni& gr = lib[static_cast<size_t>(g - 1)];
            r.testo = {
                r.voce,         Destra(presenze, 4),
                gr.Nome,        TestoElemento(gr.Elementi[static_cast<size_t>(k - 1)]),
                Destra(ric, 5), config::AllineaDestra(config::Formato(100.0 * ric / presenze, "#00.0"), 5) + " %"};
            e.lista.push_back(std::move(r));
        }
    }
    e.descrizioneStatistica = "Rilevazione precursori dal " + f.DataEstrazione(e.inizio) + " al " +
                              f.DataEstrazione(p.Fine) + " nei " + std::to_string(p.Precedenti) + " colpi precedenti";
    if (e.lista.empty()) {
        e.errore = {"Nessun risultato da visualizzare!", "Precursori", Icona::Informazione};
        return e;
    }

    // Verification: the draws of the span holding each element.
    const int32_t da = p.IndiceVerifica - (p.Successivi - 1);
    e.descrizioneVerifica = "Verifica presenze formazioni numeriche dal " + f.DataEstrazione(da) + " al " +
                            f.DataEstrazione(p.IndiceVerifica);
    std::vector<int32_t> conta(el.size());
    {
        std::vector<uint8_t> c(el.size());
        for (int32_t i = std::max(da, 1); i <= std::min(p.IndiceVerifica, f.NumeroEstrazioni()); ++i)
            for (uint32_t id : el.Presenti(f, i, c)) ++conta[id];
    }
    // The sought items that kept an element of the same group and the same numbers (a file
    // may repeat an element), each once, in the list's order.
    std::map<std::pair<uint32_t, std::string>, std::vector<size_t>> righeElemento;
    for (size_t r = 0; r < e.lista.size(); ++r) {
        auto& righe = righeElemento[{static_cast<uint32_t>(e.lista[r].gruppo), e.lista[r].testo[3]}];
        if (righe.empty() || e.lista[righe.back()].voce != e.lista[r].voce) righe.push_back(r);
    }
    for (uint32_t id = 0; id < el.size(); ++id) {
        if (conta[id] == 0) continue;
        RigaFormazionePresente r;
        r.gruppo = static_cast<int>(el.gruppo[id]);
        r.elemento = static_cast<int>(el.indice[id]);
        r.conta = conta[id];
        const GruppoFormazioni& gr = lib[el.gruppo[id]];
        std::string voci;
        const std::string testo = TestoElemento(gr.Elementi[el.indice[id]]);
        const auto righe = righeElemento.find({el.gruppo[id], testo});
        for (size_t riga : righe == righeElemento.end() ? std::vector<size_t>{} : righe->second) {
            if (!voci.empty()) voci += ", ";
            voci += e.lista[riga].voce + " (" + std::to_string(e.lista[riga].ricorrenze) + ")";
        }
        r.testo = {Destra(conta[id], 4), gr.Nome, testo, voci};
        e.formazioni.push_back(std::move(r));
    }
    for (size_t r = 0; r < e.lista.size(); ++r) {
        const RigaGruppi& x = e.lista[r];
        const size_t g = static_cast<size_t>(std::find(p.Gruppi.begin(), p.Gruppi.end(), x.gruppo) - p.Gruppi.begin());
        if (conta[el.base[g] + static_cast<uint32_t>(x.elemento)] > 0) e.presenti.push_back(x);
    }
    return e;
}

std::string NomeFileReportGruppi(const FonteEstrazioni& f) {
    return "SciaInversa_" + SecondaRigaReport(f).substr(9) + ".txt";
}

std::vector<std::string> ReportGruppi(const EsitoGruppi& e, const FonteEstrazioni& f, int successivi) {
    std::vector<std::string> r = {"",
                                  "",
                                  std::string(TitoloPrecursori),
                                  "Ricerca di formazioni numeriche",
                                  SecondaRigaReport(f),
                                  "",
                                  e.descrizioneVerifica,
                                  ""};
    for (const RigaFormazionePresente& x : e.formazioni)
        r.push_back(x.testo[1] + "..." + x.testo[2] + "--->" + " : " + std::to_string(x.conta) + " presenze su " +
                    std::to_string(successivi) + " (" + config::Formato(100.0 * x.conta / successivi, "#00.0") +
                    " %) : " + x.testo[3]);
    r.insert(r.end(), {"", "", e.descrizioneStatistica, ""});
    // Columns from 1, in a line wide enough for the longest name.
    const std::array<int, 6> col{2, 10, 20, 52, 86, 98};
    auto riga = [&](const std::array<std::string, 6>& t) {
        std::string s(110, ' ');
        for (size_t c = 0; c < 6; ++c) {
            const size_t da = static_cast<size_t>(col[c] - 1);
            if (s.size() < da + t[c].size()) s.resize(da + t[c].size(), ' ');
            s.replace(da, t[c].size(), t[c]);
        }
        s.erase(s.find_last_not_of(' ') + 1);
        return s;
    };
    r.push_back(riga(e.titoli));
    r.push_back("");
    for (const RigaGruppi& x : e.lista) r.push_back(riga(x.testo));
    return r;
}

}  // namespace gorgo::precursors
