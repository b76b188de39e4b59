#include "enucleated/statistica.h"

#include <fmt/format.h>
#include <algorithm>
#include <numeric>

#include "archives/record.h"
#include "config/formato.h"
#include "enucleated/ambi_matematici.h"
#include "enucleated/enucleato.h"

namespace gorgo::enucleated {

namespace {

inline size_t IndiceAmbo(int a, int b) {
    if (a > b) std::swap(a, b);
    return static_cast<size_t>((a - 1) * 90 + (b - 1));
}

inline size_t IndiceTerno(int a, int b, int c) {
    if (a > b) std::swap(a, b);
    if (b > c) std::swap(b, c);
    if (a > b) std::swap(a, b);
    return static_cast<size_t>((a - 1) * 8100 + (b - 1) * 90 + (c - 1));
}

// A table of unordered items: the draw count at which each delay was last 0, the largest
// delay at a hit, the hits.
struct Tavola {
    std::vector<int32_t> azzerato, massimo, frequenza;
    void Dimensiona(size_t n) {
        azzerato.assign(n, 0);
        massimo.assign(n, 0);
        frequenza.assign(n, 0);
    }
    bool vuota() const { return azzerato.empty(); }
    // A hit at draw `tick`: the largest delay and the frequency, before the delay goes to 0.
    void Sortita(size_t i, int32_t tick) {
        const int32_t ritardo = tick - azzerato[i];
        if (ritardo > massimo[i]) massimo[i] = ritardo;
        ++frequenza[i];
    }
};

// Whether a triple is counted when only the mathematical pairs are: when it holds one.
bool TernoMatematico(int a, int b, int c) { return EMatematico(a, b) || EMatematico(a, c) || EMatematico(b, c); }

}  // namespace

struct StatisticheEnucleato::Stato {
    bool valide = false;
    int ruota = 0;
    TipoAnalisi tipo = TipoAnalisi::Ambi;
    Periodo periodo;
    int estrazioniValide = 0;
    std::array<int, 91> ritardoNumero{};
    int32_t tick = 0;  // draws that moved the pair or triple tables
    Tavola ambi, terni;
    std::vector<RigaStatistica> righe;
};

StatisticheEnucleato::StatisticheEnucleato() : s_(std::make_unique<Stato>()) {}
StatisticheEnucleato::~StatisticheEnucleato() = default;
StatisticheEnucleato::StatisticheEnucleato(StatisticheEnucleato&&) noexcept = default;
StatisticheEnucleato& StatisticheEnucleato::operator=(StatisticheEnucleato&&) noexcept = default;

void StatisticheEnucleato::PulisciStatistiche() { s_ = std::make_unique<Stato>(); }
bool StatisticheEnucleato::valide() const { return s_->valide; }
int StatisticheEnucleato::ruota() const { return s_->ruota; }
TipoAnalisi StatisticheEnucleato::tipo() const { return s_->tipo; }
const Periodo& StatisticheEnucleato::periodo() const { return s_->periodo; }
const std::vector<RigaStatistica>& StatisticheEnucleato::righe() const { return s_->righe; }
int StatisticheEnucleato::EstrazioniValide() const { return s_->estrazioniValide; }
int StatisticheEnucleato::RitardoNumero(int n) const {
    return n >= 1 && n <= 90 ? s_->ritardoNumero[static_cast<size_t>(n)] : 0;
}

namespace {
bool Fuori(int n) { return n < 1 || n > 90; }
}  // namespace

int StatisticheEnucleato::RitardoAmbo(int a, int b) const {
    if (s_->ambi.vuota() || Fuori(a) || Fuori(b) || a == b) return 0;
    return s_->tick - s_->ambi.azzerato[IndiceAmbo(a, b)];
}
int StatisticheEnucleato::RitardoMaxAmbo(int a, int b) const {
    if (s_->ambi.vuota() || Fuori(a) || Fuori(b) || a == b) return 0;
    return s_->ambi.massimo[IndiceAmbo(a, b)];
}
int StatisticheEnucleato::FrequenzaAmbo(int a, int b) const {
    if (s_->ambi.vuota() || Fuori(a) || Fuori(b) || a == b) return 0;
    return s_->ambi.frequenza[IndiceAmbo(a, b)];
}
int StatisticheEnucleato::RitardoTerno(int a, int b, int c) const {
    if (s_->terni.vuota() || Fuori(a) || Fuori(b) || Fuori(c) || a == b || a == c || b == c) return 0;
    return s_->tick - s_->terni.azzerato[IndiceTerno(a, b, c)];
}
int StatisticheEnucleato::RitardoMaxTerno(int a, int b, int c) const {
    if (s_->terni.vuota() || Fuori(a) || Fuori(b) || Fuori(c) || a == b || a == c || b == c) return 0;
    return s_->terni.massimo[IndiceTerno(a, b, c)];
}
int StatisticheEnucleato::FrequenzaTerno(int a, int b, int c) const {
    if (s_->terni.vuota() || Fuori(a) || Fuori(b) || Fuori(c) || a == b || a == c || b == c) return 0;
    return s_->terni.frequenza[IndiceTerno(a, b, c)];
}

EsitoStatistica StatisticheEnucleato::Calcola(const archives::StoriaLotto& storia, std::string_view da,
                                              std::string_view a, const ParametriStatistica& p,
                                              const Avanzamento& avanzamento) {
    const EsitoPeriodo ep = ControllaPeriodo(storia, da, a);
    if (!ep.valido()) {
        EsitoStatistica e;
        e.errore = ep.errore;
        return e;
    }
    return Calcola(storia, ep.periodo, p, avanzamento);
}

EsitoStatistica StatisticheEnucleato::Calcola(const archives::StoriaLotto& storia, const Periodo& periodo,
                                              const ParametriStatistica& p, const Avanzamento& avanzamento) {
    EsitoStatistica esito;
    esito.periodo = periodo;
    const int w = p.ruota;
    esito.lblRuota = NomeRuota(w);
    const bool terni = p.tipo == TipoAnalisi::Terni;
    const int riscaldamento = terni ? RiscaldamentoTerni : RiscaldamentoAmbi;
    const int sommaMassima = terni ? SommaMassimaTerni : SommaMassimaAmbi;
    const int32_t prima = archives::PrimaEstrazioneRuota[static_cast<size_t>(w)];

    auto n = std::make_unique<Stato>();
    n->ruota = w;
    n->tipo = p.tipo;
    n->periodo = periodo;
    Tavola& tavola = terni ? n->terni : n->ambi;
    tavola.Dimensiona(terni ? size_t{90} * 90 * 90 : size_t{90} * 90);
    auto& rn = n->ritardoNumero;

    std::vector<int> frequenzaSomma(static_cast<size_t>(sommaMassima) + 1, 0);
    std::vector<int> ritardoSomma(frequenzaSomma.size(), 0), ritardoMaxSomma(frequenzaSomma.size(), 0);
    std::vector<int32_t> dataRitardoMax(frequenzaSomma.size(), 0);
    std::vector<int> contate;
    int frequenzaMassima = 0;

    int contati = 0;
    if (prima + riscaldamento < periodo.inizio) {
        for (int32_t j = periodo.inizio - riscaldamento; j < periodo.inizio; ++j) {
            for (int x = 1; x <= 90; ++x) ++rn[static_cast<size_t>(x)];
            const uint8_t* e = storia[j].Ruota[w - 1];
            for (int k = 0; k < 5; ++k)
                if (e[k] >= 1) rn[e[k]] = 0;
        }
        contati = riscaldamento;
    }

    const int32_t totale = std::max<int32_t>(1, periodo.fine - periodo.inizio + 1);
    for (int32_t j = periodo.inizio; j <= periodo.fine; ++j) {
        if (((j - periodo.inizio) & 255) == 0) {
            if (avanzamento.stop.stop_requested()) {
                esito.interrotta = true;
                return esito;
            }
            if (avanzamento.progresso)
                avanzamento.progresso(esito.lblRuota, static_cast<int>(j - periodo.inizio), static_cast<int>(totale));
        }
        if (j <= prima) continue;
        const uint8_t* e = storia[j].Ruota[w - 1];
        if (e[0] == 0) continue;
        ++n->estrazioniValide;
        std::array<int, 5> q{e[0], e[1], e[2], e[3], e[4]};
        if (p.soloMatematici) std::sort(q.begin(), q.end());
        const bool inRiscaldamento = contati < riscaldamento;
        ++contati;
        contate.clear();
        auto contaSomma = [&](int s) {
            if (s > sommaMassima) return;  // beyond the table: not kept
            auto i = static_cast<size_t>(s);
            const int f = ++frequenzaSomma[i];
            frequenzaMassima = std::max(frequenzaMassima, f);
            if (ritardoSomma[i] >= ritardoMaxSomma[i]) {
                ritardoMaxSomma[i] = ritardoSomma[i];
                dataRitardoMax[i] = j;
            }
            contate.push_back(s);
        };
        if (!terni) {
            for (const auto& pp : PosizioniAmbi) {
                const int a = q[static_cast<size_t>(pp[0] - 1)], b = q[static_cast<size_t>(pp[1] - 1)];
                if (a == 0 || b == 0) continue;
                if (!inRiscaldamento) {
                    if (p.soloMatematici && !EMatematico(a, b)) continue;
                    contaSomma(rn[static_cast<size_t>(a)] + rn[static_cast<size_t>(b)]);
                }
                tavola.Sortita(IndiceAmbo(a, b), n->tick);
            }
            ++n->tick;
            for (const auto& pp : PosizioniAmbi) {
                const int a = q[static_cast<size_t>(pp[0] - 1)], b = q[static_cast<size_t>(pp[1] - 1)];
                if (a != 0 && b != 0) tavola.azzerato[IndiceAmbo(a, b)] = n->tick;
            }
        } else {
            for (const auto& pt : PosizioniTerni) {
                const int a = q[static_cast<size_t>(pt[0] - 1)], b = q[static_cast<size_t>(pt[1] - 1)],
                          c = q[static_cast<size_t>(pt[2] - 1)];
                if (a == 0 || b == 0 || c == 0) continue;
                if (!inRiscaldamento) {
                    if (p.soloMatematici && !TernoMatematico(a, b, c)) continue;
                    contaSomma(rn[static_cast<size_t>(a)] + rn[static_cast<size_t>(b)] + rn[static_cast<size_t>(c)]);
                }
                tavola.Sortita(IndiceTerno(a, b, c), n->tick);
            }
            ++n->tick;
            for (const auto& pt : PosizioniTerni) {
                const int a = q[static_cast<size_t>(pt[0] - 1)], b = q[static_cast<size_t>(pt[1] - 1)],
                          c = q[static_cast<size_t>(pt[2] - 1)];
                if (a != 0 && b != 0 && c != 0) tavola.azzerato[IndiceTerno(a, b, c)] = n->tick;
            }
        }
        if (!inRiscaldamento) {
            for (int& r : ritardoSomma) ++r;
            for (int s : contate) ritardoSomma[static_cast<size_t>(s)] = 0;
        }
        for (int x = 1; x <= 90; ++x) ++rn[static_cast<size_t>(x)];
        for (int x : q)
            if (x >= 1) rn[static_cast<size_t>(x)] = 0;
    }

    // Rows.
    std::vector<int> scelte;
    if (p.perPresenze) {
        for (int s = 0; s <= SommaMassimaRighe; ++s)
            if (frequenzaSomma[static_cast<size_t>(s)] >= p.presenze) scelte.push_back(s);
    } else {
        for (int f = frequenzaMassima; f >= 1; --f) {
            for (int s = 0; s <= SommaMassimaRighe; ++s)
                if (frequenzaSomma[static_cast<size_t>(s)] == f) scelte.push_back(s);
            if (static_cast<int>(scelte.size()) >= p.quante) break;
        }
    }
    const int larghezza = terni ? 6 : 5;
    int chiave = 0;
    for (int s : scelte) {
        const auto i = static_cast<size_t>(s);
        RigaStatistica r;
        r.ruota = w;
        r.somma = s;
        r.frequenza = frequenzaSomma[i];
        r.ritardo = ritardoSomma[i];
        r.ritardoMax = ritardoMaxSomma[i];
        if (dataRitardoMax[i] > 0) r.dataRitardoMax = storia.DataEstrazione(dataRitardoMax[i]);
        std::string media;
        if (r.frequenza >= 1 && !p.soloMatematici)
            media = config::AllineaDestra(
                config::Formato(static_cast<double>(n->estrazioniValide) / r.frequenza, "##0.0"), larghezza);
        r.testo = {esito.lblRuota,
                   fmt::format("{:>4}", s),
                   fmt::format("{:>{}}", r.frequenza, larghezza),
                   fmt::format("{:>{}}", r.ritardo, larghezza),
                   fmt::format("{:>{}}", r.ritardoMax, larghezza) +
                       (r.dataRitardoMax.empty() ? std::string() : "   il " + r.dataRitardoMax),
                   media,
                   fmt::format("{:06}", ++chiave),
                   fmt::format("{:02}", w)};
        n->righe.push_back(std::move(r));
    }
    n->valide = true;
    esito.righe = n->righe;
    s_ = std::move(n);
    return esito;
}

namespace {

std::string TestoIC(double ic) { return config::Formato(ic, "#0.000"); }

void OrdinaPerIC(std::vector<RigaCoppia>& righe) {
    std::stable_sort(righe.begin(), righe.end(), [](const RigaCoppia& x, const RigaCoppia& y) { return x.ic > y.ic; });
}

}  // namespace

ListaCoppie StatisticheEnucleato::Coppie(int ruota, int somma, bool soloMatematici) const {
    ListaCoppie l;
    l.descrizione = fmt::format("Coppie su {} con rit.{} al {}", SiglaRuota(ruota), somma, s_->periodo.dataA);
    if (s_->valide && s_->ruota == ruota && !s_->ambi.vuota()) {
        auto aggiungi = [&](int a, int b) {
            const int da = RitardoNumero(a), db = RitardoNumero(b);
            if (da + db != somma) return;
            RigaCoppia r;
            r.numeri = {a, b};
            r.ritardi = {da, db};
            r.ritardoAttuale = RitardoAmbo(a, b);
            r.ritardoMax = RitardoMaxAmbo(a, b);
            r.frequenza = FrequenzaAmbo(a, b);
            r.ic = s_->estrazioniValide > 0 ? static_cast<double>(r.frequenza) / s_->estrazioniValide * r.ritardoAttuale
                                            : 0.0;
            r.testo = {fmt::format("{:>2} - {:>2}", a, b),     fmt::format("{:>4} ({:>3}+{:>3})", somma, da, db),
                       fmt::format("{:>5}", r.ritardoAttuale), fmt::format("{:>5}", r.ritardoMax),
                       fmt::format("{:>5}", r.frequenza),      TestoIC(r.ic)};
            l.righe.push_back(std::move(r));
        };
        if (soloMatematici)
            for (const AmboMatematico& m : AmbiMatematici()) aggiungi(m.a, m.b);
        else
            for (int a = 1; a <= 89; ++a)
                for (int b = a + 1; b <= 90; ++b) aggiungi(a, b);
    }
    OrdinaPerIC(l.righe);
    l.totale = fmt::format("{} coppie in lista", l.righe.size());
    return l;
}

ListaCoppie StatisticheEnucleato::Terzine(int ruota, int somma, bool soloMatematici) const {
    ListaCoppie l;
    l.descrizione = fmt::format("Terzine su {} con rit.{} al {}", SiglaRuota(ruota), somma, s_->periodo.dataA);
    if (s_->valide && s_->ruota == ruota && !s_->terni.vuota()) {
        for (int a = 1; a <= 88; ++a)
            for (int b = a + 1; b <= 89; ++b) {
                const int dab = RitardoNumero(a) + RitardoNumero(b);
                if (dab > somma) continue;
                for (int c = b + 1; c <= 90; ++c) {
                    if (dab + RitardoNumero(c) != somma) continue;
                    if (soloMatematici && !TernoMatematico(a, b, c)) continue;
                    RigaCoppia r;
                    r.numeri = {a, b, c};
                    r.ritardi = {RitardoNumero(a), RitardoNumero(b), RitardoNumero(c)};
                    r.ritardoAttuale = RitardoTerno(a, b, c);
                    r.ritardoMax = RitardoMaxTerno(a, b, c);
                    r.frequenza = FrequenzaTerno(a, b, c);
                    r.ic = s_->estrazioniValide > 0
                               ? static_cast<double>(r.frequenza) / s_->estrazioniValide * r.ritardoAttuale
                               : 0.0;
                    r.testo = {
                        fmt::format("{:>2} - {:>2} - {:>2}", a, b, c),
                        fmt::format("{:>4} ({:>3}+{:>3}+{:>3})", somma, r.ritardi[0], r.ritardi[1], r.ritardi[2]),
                        fmt::format("{:>5}", r.ritardoAttuale),
                        fmt::format("{:>5}", r.ritardoMax),
                        fmt::format("{:>5}", r.frequenza),
                        TestoIC(r.ic)};
                    l.righe.push_back(std::move(r));
                }
            }
    }
    OrdinaPerIC(l.righe);
    l.totale = fmt::format("{} terzine in lista", l.righe.size());
    return l;
}

EsitoDettaglio DettaglioRitardi(const archives::StoriaLotto& storia, const Periodo& periodo, int w, int somma,
                                bool soloMatematici) {
    EsitoDettaglio d;
    d.periodo = periodo;
    if (somma < 0) return d;
    const int32_t prima = archives::PrimaEstrazioneRuota[static_cast<size_t>(w)];
    std::array<int, 91> rn{};
    int contati = 0;
    if (prima + RiscaldamentoAmbi < periodo.inizio) {
        for (int32_t j = periodo.inizio - RiscaldamentoAmbi; j < periodo.inizio; ++j) {
            for (int x = 1; x <= 90; ++x) ++rn[static_cast<size_t>(x)];
            const uint8_t* e = storia[j].Ruota[w - 1];
            for (int k = 0; k < 5; ++k)
                if (e[k] >= 1) rn[e[k]] = 0;
        }
        contati = RiscaldamentoAmbi;
    }
    const auto n = static_cast<size_t>(somma) + 1;
    // Pairs of delays by their lower delay d1 (d2 = somma - d1); delay values 0..somma.
    std::vector<int> presCoppia(n, 0), attCoppia(n, 0), maxCoppia(n, 0);
    std::vector<int> presRit(n, 0), attRit(n, 0), maxRit(n, 0);
    std::vector<char> coppiaColpita(n), ritColpito(n);
    int dopoRiscaldamento = 0;
    for (int32_t j = periodo.inizio; j <= periodo.fine; ++j) {
        if (j <= prima) continue;
        const uint8_t* e = storia[j].Ruota[w - 1];
        if (e[0] == 0) continue;
        std::array<int, 5> q{e[0], e[1], e[2], e[3], e[4]};
        if (soloMatematici) std::sort(q.begin(), q.end());
        const bool inRiscaldamento = contati < RiscaldamentoAmbi;
        ++contati;
        if (!inRiscaldamento) {
            ++dopoRiscaldamento;
            std::fill(coppiaColpita.begin(), coppiaColpita.end(), 0);
            std::fill(ritColpito.begin(), ritColpito.end(), 0);
            for (const auto& pp : PosizioniAmbi) {
                const int a = q[static_cast<size_t>(pp[0] - 1)], b = q[static_cast<size_t>(pp[1] - 1)];
                if (a == 0 || b == 0) continue;
                if (soloMatematici && !EMatematico(a, b)) continue;
                int d1 = rn[static_cast<size_t>(a)], d2 = rn[static_cast<size_t>(b)];
                if (d1 + d2 != somma) continue;
                if (d1 > d2) std::swap(d1, d2);
                ++presCoppia[static_cast<size_t>(d1)];
                coppiaColpita[static_cast<size_t>(d1)] = 1;
                ++presRit[static_cast<size_t>(d1)];
                ritColpito[static_cast<size_t>(d1)] = 1;
                if (d2 != d1) {
                    ++presRit[static_cast<size_t>(d2)];
                    ritColpito[static_cast<size_t>(d2)] = 1;
                }
            }
            for (size_t d1 = 0; d1 * 2 <= static_cast<size_t>(somma); ++d1) {
                if (!coppiaColpita[d1]) {
                    ++attCoppia[d1];
                } else {
                    maxCoppia[d1] = std::max(maxCoppia[d1], attCoppia[d1]);
                    attCoppia[d1] = 0;
                }
            }
            for (size_t v = 0; v < n; ++v) {
                if (!ritColpito[v]) {
                    ++attRit[v];
                } else {
                    maxRit[v] = std::max(maxRit[v], attRit[v]);
                    attRit[v] = 0;
                }
            }
        }
        for (int x = 1; x <= 90; ++x) ++rn[static_cast<size_t>(x)];
        for (int x : q)
            if (x >= 1) rn[static_cast<size_t>(x)] = 0;
    }
    d.presenzeTotali = std::accumulate(presCoppia.begin(), presCoppia.end(), 0);
    for (size_t v = 0; v < n; ++v) {
        if (presRit[v] == 0) continue;
        RigaRitardo r{{fmt::format("{:>4}", v), fmt::format("{:>5}", presRit[v]), fmt::format("{:>5}", attRit[v]),
                       fmt::format("{:>5}", maxRit[v])},
                      static_cast<int>(v),
                      presRit[v],
                      attRit[v],
                      maxRit[v]};
        d.ritardi.push_back(std::move(r));
    }
    for (size_t d1 = 0; d1 * 2 <= static_cast<size_t>(somma); ++d1) {
        if (presCoppia[d1] == 0) continue;
        RigaCoppiaRitardi r;
        r.d1 = static_cast<int>(d1);
        r.d2 = somma - r.d1;
        r.presenze = presCoppia[d1];
        r.ritardoAttuale = attCoppia[d1];
        r.ritardoMax = maxCoppia[d1];
        r.ic = dopoRiscaldamento > 0 ? static_cast<double>(r.presenze) / dopoRiscaldamento * r.ritardoAttuale : 0.0;
        r.percentuale = d.presenzeTotali > 0 ? r.presenze * 100.0 / d.presenzeTotali : 0.0;
        std::vector<std::string> gioca;
        auto prova = [&](int a, int b) {
            const int da = rn[static_cast<size_t>(a)], db = rn[static_cast<size_t>(b)];
            if ((da == r.d1 && db == r.d2) || (da == r.d2 && db == r.d1)) gioca.push_back(fmt::format("{}-{}", a, b));
        };
        if (soloMatematici)
            for (const AmboMatematico& m : AmbiMatematici()) prova(m.a, m.b);
        else
            for (int a = 1; a <= 89; ++a)
                for (int b = a + 1; b <= 90; ++b) prova(a, b);
        for (size_t i = 0; i < gioca.size(); ++i) r.daGiocare += (i ? ", " : "") + gioca[i];
        r.testo = {fmt::format("{:>3} + {:>3}", r.d1, r.d2),
                   fmt::format("{:>5}", r.presenze),
                   fmt::format("{:>5}", r.ritardoAttuale),
                   fmt::format("{:>5}", r.ritardoMax),
                   config::AllineaDestra(config::Formato(r.ic, "##0.0"), 5),
                   config::AllineaDestra(config::Formato(r.percentuale, "##0.0"), 5)};
        d.coppie.push_back(std::move(r));
    }
    std::stable_sort(d.coppie.begin(), d.coppie.end(),
                     [](const RigaCoppiaRitardi& x, const RigaCoppiaRitardi& y) { return x.presenze > y.presenze; });
    return d;
}

}  // namespace gorgo::enucleated
