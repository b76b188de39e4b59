#include "consultation/dieci_estrazioni.h"

#include <fmt/format.h>

#include <algorithm>

#include "archives/dieci_e_lotto.h"
#include "archives/superenalotto.h"
#include "config/report_testo.h"
#include "consultation/famiglie.h"

namespace gorgo::consultation {

ConsultazioneDieci::ConsultazioneDieci(std::vector<archives::RecordSuperEnalotto> super)
    : gioco_(Gioco::SuperEnalotto), numeroEstrazioni_(static_cast<int32_t>(super.size())), super_(std::move(super)) {
    IndiceCorrente = numeroEstrazioni_;
}

ConsultazioneDieci::ConsultazioneDieci(archives::StoriaCondivisa storia)
    : gioco_(Gioco::DieciELotto), numeroEstrazioni_(storia->NumeroEstrazioni()), storia_(std::move(storia)) {
    IndiceCorrente = numeroEstrazioni_;
}

void ConsultazioneDieci::VaiA(int32_t indice) {
    IndiceCorrente = std::clamp(indice, std::min(1, numeroEstrazioni_), numeroEstrazioni_);
}

std::string ConsultazioneDieci::DescrizioneFamiglia(int codice) {
    switch (codice) {
        case DieciGemelli: return "Gemelli";
        case DieciRadicali: return "Ambi radicali";
        case DieciDecinaNaturale: return "Decina naturale";
        case DieciCadenza: return "Cadenza";
        case DieciFigura: return "Figura";
        case DieciPari: return "Numeri pari";
        case DieciDispari: return "Numeri dispari";
        case DieciSortitiPrecedente: return "Sortiti l'estrazione precedente";
        case DieciNonSortitiPrecedente: return "Non sortiti l'estrazione precedente";
        default: return "Nessuna selezione";
    }
}

std::vector<int> ConsultazioneDieci::CifreAmmesse(int codice) {
    const int da = codice == DieciFigura ? 1 : 0;
    if (codice != DieciDecinaNaturale && codice != DieciCadenza && codice != DieciFigura) return {};
    std::vector<int> v;
    for (int i = da; i <= 9; ++i) v.push_back(i);
    return v;
}

RigaDieci ConsultazioneDieci::LeggiRiga(int32_t indice, std::vector<std::string>& messaggi) const {
    RigaDieci r;
    r.indice = indice;
    if (gioco_ == Gioco::SuperEnalotto) {
        const archives::EstrazioneSuper e = archives::LeggiEstrazioneSuper(super_[static_cast<size_t>(indice) - 1]);
        r.data = e.data;
        for (int i = 0; i < 6 && e.numeri[static_cast<size_t>(i)] != 0; ++i)
            r.numeri.push_back(e.numeri[static_cast<size_t>(i)]);
        r.jolly = e.numeri[6];
        r.superstar = e.numeri[7];
    } else {
        const auto& rec = (*storia_)[indice];
        r.data = rec.dataTesto();
        const archives::Risultato10eLotto d = archives::Estrazione10eLotto(rec);
        if (d.esito >= 0)
            r.numeri.assign(d.numeri.begin(), d.numeri.end());
        else if (!d.manca)
            messaggi.push_back(fmt::format("Estrazione da 20 numeri impossibile : {}", indice));
    }
    r.marcati.assign(r.numeri.size(), false);
    return r;
}

ElencoDieci ConsultazioneDieci::Aggiorna() const {
    ElencoDieci e;
    if (numeroEstrazioni_ < 1) return e;
    const int32_t ultima = IndiceCorrente < 10 ? std::min<int32_t>(10, numeroEstrazioni_) : IndiceCorrente;
    for (int riga = 0; riga < 10; ++riga) {
        const int32_t i = ultima - 9 + riga;
        if (i >= 1) e.righe[static_cast<size_t>(riga)] = LeggiRiga(i, e.messaggi);
    }
    e.descrizione = DescrizioneFamiglia(FamigliaScelta);
    const bool conCifra = !CifreAmmesse(FamigliaScelta).empty();
    if (FamigliaScelta == 0 || (conCifra && NumeroFamiglia < 0)) return e;
    for (int riga = 0; riga < 10; ++riga) {
        RigaDieci& r = e.righe[static_cast<size_t>(riga)];
        const RigaDieci* prima = riga > 0 && e.righe[static_cast<size_t>(riga) - 1].indice != 0
                                     ? &e.righe[static_cast<size_t>(riga) - 1]
                                     : nullptr;
        for (size_t k = 0; k < r.numeri.size(); ++k) {
            const int v = r.numeri[k];
            bool si = false;
            switch (FamigliaScelta) {
                case DieciGemelli: si = v % 11 == 0; break;
                case DieciDecinaNaturale: si = v / 10 == NumeroFamiglia; break;
                case DieciCadenza: si = v % 10 == NumeroFamiglia; break;
                case DieciFigura: si = FiguraDi(v) == NumeroFamiglia; break;
                case DieciPari: si = v % 2 == 0; break;
                case DieciDispari: si = v % 2 == 1; break;
                case DieciSortitiPrecedente:
                case DieciNonSortitiPrecedente: {
                    // The first row has no row before it.
                    if (!prima || prima->numeri.empty()) break;
                    const bool c = std::find(prima->numeri.begin(), prima->numeri.end(), v) != prima->numeri.end();
                    si = FamigliaScelta == DieciSortitiPrecedente ? c : !c;
                    break;
                }
                case DieciRadicali: {
                    for (const auto& gruppo : TabellaRadicali) {
                        if (std::find(gruppo.begin(), gruppo.end(), v) == gruppo.end()) continue;
                        const auto n = std::count_if(r.numeri.begin(), r.numeri.end(), [&](int x) {
                            return std::find(gruppo.begin(), gruppo.end(), x) != gruppo.end();
                        });
                        si = n >= 2;
                    }
                    break;
                }
                default: break;
            }
            r.marcati[k] = si;
        }
    }
    return e;
}

std::string ConsultazioneDieci::TitoloReport() const {
    return gioco_ == Gioco::SuperEnalotto ? "Gorgo - Stampa estrazioni Superenalotto"
                                          : "Gorgo - Stampa estrazioni 10eLotto";
}

std::vector<std::string> ConsultazioneDieci::Report(const ElencoDieci& e) const {
    std::vector<std::string> out;
    if (FamigliaScelta != 0) {
        out.push_back("In evidenza " + e.descrizione);
        out.emplace_back();
    }
    out.push_back(gioco_ == Gioco::SuperEnalotto ? "  N.   Data         Sestina             Jolly     Superstar"
                                                 : "  N.   Data         Numeri estratti");
    const auto due = [](int n) { return n == 0 ? std::string("--") : fmt::format("{:02}", n); };
    for (const RigaDieci& r : e.righe) {
        if (r.indice == 0) continue;
        config::RigaReport riga(60);
        riga.mettiDestra(5, std::to_string(r.indice)).metti(8, r.data);
        std::string numeri;
        for (size_t k = 0; k < r.numeri.size(); ++k) {
            if (k) numeri += ' ';
            numeri += due(r.numeri[k]);
        }
        riga.metti(21, numeri);
        if (gioco_ == Gioco::SuperEnalotto) {
            if (r.jolly) riga.metti(41, due(r.jolly));
            if (r.superstar) riga.metti(51, due(r.superstar));
        }
        out.push_back(riga.testo());
    }
    return out;
}

}  // namespace gorgo::consultation
