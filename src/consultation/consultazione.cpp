#include "consultation/consultazione.h"

#include <fmt/format.h>

#include <algorithm>
#include <limits>

#include "archives/record.h"
#include "config/formato.h"

namespace gorgo::consultation {

const std::array<CoppiaColori, 6> ColoriObiettivi{{{Nero, Giallo},
                                                   {0x0000C0, Giallo},
                                                   {0xFF0000, Giallo},
                                                   {0x008000, Giallo},
                                                   {Giallo, Giallo},
                                                   {0xC0C0FF, 0xC0C0FF}}};

IndiciMese CalcolaIndiciMese(const archives::StoriaLotto& storia) {
    const int32_t n = storia.NumeroEstrazioni();
    IndiciMese m;
    m.indice.assign(static_cast<size_t>(n) + 1, 0);
    m.ultima.assign(static_cast<size_t>(n) + 1, false);
    int16_t conta = 0;
    int mesePrima = n > 0 ? storia[1].data().mese : 0;
    // Only the month is compared, not the year, as the desk always did.
    for (int32_t i = 1; i <= n; ++i) {
        const int mese = storia[i].data().mese;
        if (mese == mesePrima) {
            ++conta;
        } else {
            conta = 1;
            m.ultima[static_cast<size_t>(i) - 1] = true;
        }
        m.indice[static_cast<size_t>(i)] = conta;
        mesePrima = mese;
    }
    return m;
}

Consultazione::Consultazione(archives::StoriaCondivisa storia)
    : storia_(std::move(storia)), mese_(CalcolaIndiciMese(*storia_)), uscite_(*storia_) {
    IndiceCorrente = storia_->NumeroEstrazioni();
}

void Consultazione::VaiA(int32_t indice) {
    IndiceCorrente = std::clamp(indice, std::min(1, NumeroEstrazioni()), NumeroEstrazioni());
}

archives::RisultatoData Consultazione::VaiAData(std::string_view data) {
    archives::RisultatoData r = archives::ControllaData(data, *storia_, false);
    if (!r.ErroreData && r.IndiceTrovato >= 1) VaiA(r.IndiceTrovato);
    return r;
}

void Consultazione::ImpostaVista(Vista v) {
    TipoVisualizzazione = v;
    if (v != Vista::Normale) {
        TrovaNumeri = false;
        TrovaSomme.attiva = false;
        TrovaDistanze.attiva = false;
    }
}

void Consultazione::ImpostaNumeriDaTrovare(const std::array<bool, 91>& numeri) {
    NumeriDaTrovare = numeri;
    ContaNumeri.fill(0);
    TrovaNumeri = std::any_of(numeri.begin() + 1, numeri.end(), [](bool b) { return b; });
}

int32_t Consultazione::BaseRiga(int riga) const {
    return RuotaCorrente == 0 ? IndiceCorrente : griglia_.indiciRighe[static_cast<size_t>(riga)];
}

int Consultazione::RuotaRiga(int riga) const { return RuotaCorrente == 0 ? riga + 1 : RuotaCorrente; }

namespace {

// The tool tips of the all-wheels view, made once: a held arrow key refreshes many times a second.
const std::array<std::string, NumeroCelle>& Suggerimenti() {
    static const auto t = [] {
        std::array<std::string, NumeroCelle> a;
        for (int w = 1; w <= archives::NumeroRuote; ++w)
            for (int p = 1; p <= 5; ++p)
                a[static_cast<size_t>((w - 1) * 5 + p - 1)] = fmt::format("{}' estratto ruota di {}", p, NomeRuota(w));
        return a;
    }();
    return t;
}

}  // namespace

void Consultazione::RiempiGriglia() {
    Griglia& g = griglia_;
    g.celle = {};
    g.righeDate = {};
    g.indiciRighe = {};
    g.report.clear();
    g.mostraAnalisi = false;
    g.messaggio.clear();
    const auto riempiRiga = [&](int riga, const archives::RecordEstrazione& r, int ruota) {
        std::array<int, 5> numeri{};
        for (int p = 1; p <= 5; ++p) numeri[static_cast<size_t>(p) - 1] = r.Numero(ruota, p);
        if (Ordinate) std::sort(numeri.begin(), numeri.end());
        for (int p = 0; p < 5; ++p) {
            Cella& c = g.celle[static_cast<size_t>(riga * 5 + p)];
            c.numero = numeri[static_cast<size_t>(p)];
            c.testo = c.numero == 0 ? std::string() : std::to_string(c.numero);
        }
    };
    if (RuotaCorrente == 0) {
        const auto& r = (*storia_)[IndiceCorrente];
        for (int w = 1; w <= archives::NumeroRuote; ++w) {
            riempiRiga(w - 1, r, w);
            for (int p = 1; p <= 5; ++p)
                g.celle[static_cast<size_t>((w - 1) * 5 + p - 1)].suggerimento =
                    Suggerimenti()[static_cast<size_t>((w - 1) * 5 + p - 1)];
        }
    } else {
        // The rows never run before draw 1: below draw 10 the current draw is not the last row.
        const int32_t ultima = IndiceCorrente < 10 ? std::min<int32_t>(10, NumeroEstrazioni()) : IndiceCorrente;
        for (int riga = 0; riga < 10; ++riga) {
            const int32_t i = ultima - 9 + riga;
            if (i < 1) continue;
            g.indiciRighe[static_cast<size_t>(riga)] = i;
            g.righeDate[static_cast<size_t>(riga)] = (*storia_)[i].dataTesto();
            riempiRiga(riga, (*storia_)[i], RuotaCorrente);
        }
    }
}

const Griglia& Consultazione::Aggiorna() {
    Griglia& g = griglia_;
    const int32_t n = NumeroEstrazioni();
    if (n < 1) return g;
    VaiA(IndiceCorrente);
    const bool ultimaDelMese = IndiceCorrente < n && mese_.ultima[static_cast<size_t>(IndiceCorrente)];
    g.indiceMese = ultimaDelMese ? "U" : std::to_string(mese_.indice[static_cast<size_t>(IndiceCorrente)]);
    RiempiGriglia();
    const auto& r = (*storia_)[IndiceCorrente];
    g.indice = IndiceCorrente;
    g.data = r.dataTesto();
    g.numeroAnno = std::to_string(r.NumeroAnno);
    g.anno = fmt::format("{} / ", r.data().anno);
    g.giorno = std::string(archives::NomeGiorno(r.giornoSettimana()));
    g.totale = std::to_string(IndiceCorrente);

    if (TipoVisualizzazione == Vista::Ritardi) {
        MostraRitardi();
    } else if (TipoVisualizzazione == Vista::Frequenze) {
        if (const auto p = CalcolaPeriodo()) {
            g.sortitaMedia = "Sortita media: " + config::Formato(p->SortitaMedia, "##0.0");
            MostraFrequenze(*p);
        }
    } else {
        if (Analisi.famiglia != NessunaFamiglia) EseguiAnalisi();
        if (TrovaNumeri) TrovaNumeriNellaGriglia();
        if (TrovaSomme.attiva) TrovaCoppie(TrovaSomme, true);
        if (TrovaDistanze.attiva) TrovaCoppie(TrovaDistanze, false);
    }
    return g;
}

void Consultazione::MarcaEstremi(const std::array<int32_t, NumeroCelle>& valori, bool /*grandeRosso*/) {
    int32_t massimo = std::numeric_limits<int32_t>::min(), minimo = std::numeric_limits<int32_t>::max();
    for (size_t k = 0; k < valori.size(); ++k) {
        if (griglia_.celle[k].numero == 0) continue;
        massimo = std::max(massimo, valori[k]);
        minimo = std::min(minimo, valori[k]);
    }
    for (size_t k = 0; k < valori.size(); ++k) {
        Cella& c = griglia_.celle[k];
        if (c.numero == 0) continue;
        c.testo = std::to_string(valori[k]);
        if (valori[k] == massimo)
            c.Dipingi({Rosso, Giallo});
        else if (valori[k] == minimo)
            c.Dipingi({Blu, Giallo});
    }
}

void Consultazione::MostraRitardi() {
    std::array<int32_t, NumeroCelle> valori{};
    const int righe = RuotaCorrente == 0 ? archives::NumeroRuote : 10;
    for (int riga = 0; riga < righe; ++riga) {
        const int32_t base = BaseRiga(riga) - 1;
        const int ruota = RuotaRiga(riga);
        for (int p = 0; p < 5; ++p) {
            const size_t k = static_cast<size_t>(riga * 5 + p);
            if (griglia_.celle[k].numero != 0) valori[k] = uscite_.Ritardo(ruota, griglia_.celle[k].numero, base);
        }
    }
    MarcaEstremi(valori, true);
}

void Consultazione::MostraFrequenze(const PeriodoFrequenze& periodo) {
    std::array<int32_t, NumeroCelle> valori{};
    const int righe = RuotaCorrente == 0 ? archives::NumeroRuote : 10;
    const int32_t lunghezza = periodo.fine - periodo.inizio;
    for (int riga = 0; riga < righe; ++riga) {
        int32_t da = periodo.inizio, a = periodo.fine;
        if (RuotaCorrente != 0) {
            // The period moves with each row; with the current draw counted it covers one more.
            const int32_t d = griglia_.indiciRighe[static_cast<size_t>(riga)];
            da = d - lunghezza - 1;
            a = NonConsiderareAttuale ? d - 1 : d;
        }
        const int ruota = RuotaRiga(riga);
        for (int p = 0; p < 5; ++p) {
            const size_t k = static_cast<size_t>(riga * 5 + p);
            if (griglia_.celle[k].numero != 0) valori[k] = uscite_.Frequenza(ruota, griglia_.celle[k].numero, da, a);
        }
    }
    MarcaEstremi(valori, true);
}

std::optional<Consultazione::PeriodoFrequenze> Consultazione::CalcolaPeriodo() const {
    PeriodoFrequenze p;
    p.fine = NonConsiderareAttuale ? IndiceCorrente - 1 : IndiceCorrente;
    const archives::Data data = (*storia_)[IndiceCorrente].data();
    switch (Periodo) {
        case TipoPeriodo::Ultime:
            if (UltimeEstrazioni <= 0) return std::nullopt;
            p.inizio = p.fine - UltimeEstrazioni + 1;
            break;
        case TipoPeriodo::Cicli:
            if (Cicli <= 0) return std::nullopt;
            p.inizio = p.fine - 18 * Cicli + 1;
            break;
        case TipoPeriodo::UltimoAnno:
        case TipoPeriodo::InizioAnno: {
            archives::Data da;
            if (Periodo == TipoPeriodo::UltimoAnno) {
                // One year back on the calendar: 29 February falls on the 28th.
                da = {std::min(data.giorno, archives::GiorniNelMese(data.mese, data.anno - 1)), data.mese,
                      data.anno - 1};
            } else {
                if (p.fine < 1) return std::nullopt;
                da = {1, 1, (*storia_)[p.fine].data().anno};
            }
            const auto r = storia_->CercaIndice(da, false);
            if (!r || r->IndiceTrovato < 1) return std::nullopt;
            p.inizio = r->IndiceTrovato;
            break;
        }
    }
    if (p.inizio < 1 || p.fine < 1) return std::nullopt;
    p.SortitaMedia = static_cast<double>(p.fine - p.inizio + 1) / 18.0;
    return p;
}

void Consultazione::EseguiAnalisi() {
    const bool tutte = RuotaCorrente == 0;
    if (!tutte && SoloTutteLeRuote(Analisi.famiglia)) return;
    ContestoAnalisi c;
    c.tutteLeRuote = tutte;
    for (int riga = 0; riga < 11; ++riga)
        c.nomiRighe[static_cast<size_t>(riga)] =
            tutte ? NomeRuota(riga + 1) : (riga < 10 ? griglia_.righeDate[static_cast<size_t>(riga)] : std::string());
    if (tutte && IndiceCorrente > 1) {
        const auto& prima = (*storia_)[IndiceCorrente - 1];
        for (int w = 1; w <= archives::NumeroRuote; ++w)
            for (int p = 1; p <= 5; ++p) c.precedente[prima.Numero(w, p)] = true;
        c.precedente[0] = false;
    }
    if (Analisi.famiglia == FamUltimoRitardo && tutte)
        for (int w = 1; w <= archives::NumeroRuote; ++w)
            for (int p = 0; p < 5; ++p) {
                const size_t k = static_cast<size_t>((w - 1) * 5 + p);
                if (griglia_.celle[k].numero != 0)
                    c.ritardi[k] = uscite_.Ritardo(w, griglia_.celle[k].numero, IndiceCorrente - 1);
            }
    ApplicaAnalisi(griglia_, Analisi, c);
}

void Consultazione::TrovaNumeriNellaGriglia() {
    for (Cella& c : griglia_.celle) {
        if (c.numero == 0 || !NumeriDaTrovare[static_cast<size_t>(c.numero)]) continue;
        c.Dipingi({Nero, Giallo});
        ++ContaNumeri[static_cast<size_t>(c.numero)];
    }
}

void Consultazione::TrovaCoppie(Ricerca& ricerca, bool somma) {
    const int righe = RuotaCorrente == 0 ? archives::NumeroRuote : 10;
    for (int riga = 0; riga < righe; ++riga)
        for (size_t t = 0; t < ricerca.obiettivi.size(); ++t) {
            const int obiettivo = ricerca.obiettivi[t];
            if (obiettivo <= 0) continue;
            for (int p = 0; p < 5; ++p)
                for (int q = p + 1; q < 5; ++q) {
                    Cella& a = griglia_.celle[static_cast<size_t>(riga * 5 + p)];
                    Cella& b = griglia_.celle[static_cast<size_t>(riga * 5 + q)];
                    if (a.numero == 0 || b.numero == 0) continue;
                    int valore = somma ? a.numero + b.numero : std::abs(a.numero - b.numero);
                    if (somma && SommeFuori90 && valore > 90) valore -= 90;
                    if (valore != obiettivo) continue;
                    a.Dipingi(ColoriObiettivi[t]);
                    b.Dipingi(ColoriObiettivi[t]);
                    ++ricerca.totali[t];
                }
        }
}

}  // namespace gorgo::consultation
