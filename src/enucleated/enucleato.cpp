#include "enucleated/enucleato.h"

#include <fmt/format.h>
#include <algorithm>
#include <cstdlib>

#include "archives/record.h"
#include "enucleated/ambi_matematici.h"

namespace gorgo::enucleated {

const std::array<std::array<int, 2>, 10> PosizioniAmbi = {
    {{1, 2}, {1, 3}, {1, 4}, {1, 5}, {2, 3}, {2, 4}, {2, 5}, {3, 4}, {3, 5}, {4, 5}}};
const std::array<std::array<int, 3>, 10> PosizioniTerni = {
    {{1, 2, 3}, {1, 2, 4}, {1, 2, 5}, {1, 3, 4}, {1, 3, 5}, {1, 4, 5}, {2, 3, 4}, {2, 3, 5}, {2, 4, 5}, {3, 4, 5}}};

std::string MatriceEnucleato::Testo(int ruota, int posizione) const {
    const int n = numeri[static_cast<size_t>(ruota)][static_cast<size_t>(posizione - 1)];
    return n < 1 ? std::string("--") : fmt::format("{:>2}", n);
}

MatriceEnucleato MostraEstrazioneEnucleato(const archives::StoriaLotto& storia, int32_t indice, bool soloMatematici) {
    MatriceEnucleato m;
    m.indice = indice;
    m.data = storia.DataEstrazione(indice);
    const archives::RecordEstrazione& r = storia[indice];
    for (int w = 1; w <= archives::NumeroRuote; ++w) {
        auto& riga = m.numeri[static_cast<size_t>(w)];
        for (int p = 1; p <= 5; ++p) riga[static_cast<size_t>(p - 1)] = r.Numero(w, p);
        if (!soloMatematici) continue;
        // Any two of the five, in either order, is a lookup in both orders.
        for (int i = 0; i < 5; ++i)
            for (int j = i + 1; j < 5; ++j)
                if (EMatematico(riga[static_cast<size_t>(i)], riga[static_cast<size_t>(j)]))
                    m.evidenziato[static_cast<size_t>(w)][static_cast<size_t>(i)] =
                        m.evidenziato[static_cast<size_t>(w)][static_cast<size_t>(j)] = true;
    }
    return m;
}

int RitardoPrima(const archives::StoriaLotto& storia, int ruota, int32_t indice, int numero) {
    int ritardo = 0;
    const int32_t limite = std::max<int32_t>(1, archives::PrimaEstrazioneRuota[static_cast<size_t>(ruota)]);
    for (int32_t j = indice - 1; j >= limite; --j) {
        const uint8_t* e = storia[j].Ruota[ruota - 1];
        if (numero >= 1 && (e[0] == numero || e[1] == numero || e[2] == numero || e[3] == numero || e[4] == numero))
            return ritardo;
        if (e[4] > 0) ++ritardo;
    }
    return ritardo;
}

namespace {

// The delays of the five places of a wheel in one backward walk, stopping when each is found.
std::array<int, 5> RitardiRuota(const archives::StoriaLotto& storia, int ruota, int32_t indice,
                                const std::array<int, 5>& numeri) {
    std::array<int, 5> ritardi;
    ritardi.fill(-1);
    std::array<bool, 5> trovato{};
    // Numbers 0 ("--") are never found: their delay is the whole walk.
    int mancano = static_cast<int>(std::count_if(numeri.begin(), numeri.end(), [](int n) { return n >= 1; }));
    for (size_t k = 0; k < 5; ++k) trovato[k] = numeri[k] < 1;
    const bool finoInFondo = mancano < 5;
    int conteggio = 0;
    const int32_t limite = std::max<int32_t>(1, archives::PrimaEstrazioneRuota[static_cast<size_t>(ruota)]);
    for (int32_t j = indice - 1; j >= limite && (mancano > 0 || finoInFondo); --j) {
        const uint8_t* e = storia[j].Ruota[ruota - 1];
        for (size_t k = 0; k < 5; ++k) {
            if (trovato[k]) continue;
            for (int q = 0; q < 5; ++q)
                if (e[q] == numeri[k]) {
                    trovato[k] = true;
                    ritardi[k] = conteggio;
                    --mancano;
                    break;
                }
        }
        if (e[4] > 0) ++conteggio;
    }
    for (size_t k = 0; k < 5; ++k)
        if (numeri[k] < 1 || ritardi[k] < 0) ritardi[k] = conteggio;
    return ritardi;
}

std::string Descrizione(int ruota, const std::vector<int>& numeri) {
    std::string d = fmt::format("{}   ", SiglaRuota(ruota));
    // An empty place reads "--", as its label.
    for (size_t i = 0; i < numeri.size(); ++i)
        d += fmt::format("{}{}", i ? "-" : "", numeri[i] < 1 ? std::string("--") : fmt::format("{:>2}", numeri[i]));
    return d;
}

}  // namespace

std::string_view ListaEnucleato::TitoloDescrizione() const {
    return tipo_ == TipoAnalisi::Ambi ? "Descrizione ambo " : "Descrizione terno";
}

void ListaEnucleato::Aggiungi(const archives::StoriaLotto& storia, const MatriceEnucleato& matrice, int32_t indiceA,
                              std::string_view dataA, const std::array<bool, 12>& ruote) {
    std::array<int, 12> minimo, massimo;
    minimo.fill(1000);
    massimo.fill(0);
    int chiave = 0;
    for (int w = 1; w <= archives::NumeroRuote; ++w) {
        if (!ruote[static_cast<size_t>(w)]) continue;
        ++chiave;
        RigaEnucleato sep;
        for (std::string* c : {&sep.descrizione, &sep.prog, &sep.data, &sep.ruota}) c->assign(1, ' ');
        sep.somma = "     ";
        sep.chiave = fmt::format("{:>7}", chiave);
        righe_.push_back(sep);

        const auto& numeri = matrice.numeri[static_cast<size_t>(w)];
        const std::array<int, 5> ritardi = RitardiRuota(storia, w, indiceA, numeri);
        for (int k = 0; k < 10; ++k) {
            RigaEnucleato r;
            if (tipo_ == TipoAnalisi::Ambi)
                for (int p : PosizioniAmbi[static_cast<size_t>(k)])
                    r.numeri.push_back(numeri[static_cast<size_t>(p - 1)]),
                        r.ritardi.push_back(ritardi[static_cast<size_t>(p - 1)]);
            else
                for (int p : PosizioniTerni[static_cast<size_t>(k)])
                    r.numeri.push_back(numeri[static_cast<size_t>(p - 1)]),
                        r.ritardi.push_back(ritardi[static_cast<size_t>(p - 1)]);
            r.descrizione = Descrizione(w, r.numeri);
            r.prog = fmt::format("{:>2}", k + 1);
            r.data = std::string(dataA);
            for (int d : r.ritardi) r.sommaRitardi += d;
            r.numeroRuota = w;
            r.somma = fmt::format("{:>5}", r.sommaRitardi);
            r.chiave = fmt::format("{:>7}", chiave);
            r.ruota = fmt::format("{:02}", w);
            righe_.push_back(std::move(r));
        }
    }
    // The limits over the whole list, old rows included.
    for (const RigaEnucleato& r : righe_) {
        if (r.separatore()) continue;
        auto w = static_cast<size_t>(r.numeroRuota);
        if (r.sommaRitardi <= minimo[w]) minimo[w] = r.sommaRitardi;
        if (r.sommaRitardi >= massimo[w]) massimo[w] = r.sommaRitardi;
    }
    int minimoAssoluto = 1000, massimoAssoluto = 0;
    for (int w = 1; w <= archives::NumeroRuote; ++w) {
        minimoAssoluto = std::min(minimoAssoluto, minimo[static_cast<size_t>(w)]);
        massimoAssoluto = std::max(massimoAssoluto, massimo[static_cast<size_t>(w)]);
    }
    // Notes are only written: a row whose sum no longer matches keeps its old note.
    for (RigaEnucleato& r : righe_) {
        if (r.separatore()) continue;
        auto w = static_cast<size_t>(r.numeroRuota);
        if (r.sommaRitardi == minimo[w]) r.nota = NotaMinRuota;
        if (r.sommaRitardi == massimo[w]) r.nota = NotaMaxRuota;
    }
    for (RigaEnucleato& r : righe_) {
        if (r.separatore()) continue;
        if (r.sommaRitardi == minimoAssoluto)
            r.nota = NotaMinAssoluto;
        else if (r.sommaRitardi == massimoAssoluto)
            r.nota = NotaMaxAssoluto;
    }
}

EsitoPeriodo RicercaEnucleato(const archives::StoriaLotto& storia, const MatriceEnucleato& matrice, std::string_view da,
                              std::string_view a, const std::array<bool, 12>& ruote, ListaEnucleato& lista) {
    EsitoPeriodo e = ControllaPeriodo(storia, da, a);
    if (!e.valido()) return e;
    lista.Aggiungi(storia, matrice, e.periodo.fine, e.periodo.dataA, ruote);
    return e;
}

namespace {

std::string RigaRuote(const std::array<bool, 12>& ruote) {
    std::string s = "Ruote   : ";
    for (int w = 1; w <= archives::NumeroRuote; ++w)
        if (ruote[static_cast<size_t>(w)]) s += fmt::format("{} ", SiglaRuota(w));
    return s;
}

}  // namespace

std::vector<std::string> ReportEnucleatoFile(const ListaEnucleato& lista, std::string_view dataEstrazione,
                                             const std::array<bool, 12>& ruote) {
    std::vector<std::string> righe;
    if (lista.vuota()) return righe;
    righe.push_back("");
    righe.push_back(fmt::format("Ambo enucleato - Verifica estrazione del {}", dataEstrazione));
    righe.push_back(RigaRuote(ruote));
    righe.push_back("");
    const std::string_view tipo = lista.tipo() == TipoAnalisi::Ambi ? "Ambo : " : "Terno : ";
    bool prima = true;
    for (const RigaEnucleato& r : lista.righe()) {
        if (r.separatore()) {
            if (!prima) righe.push_back("");
        } else {
            righe.push_back(
                fmt::format("{}{}, Data : {}, Somma rit.: {}  {}", tipo, r.descrizione, r.data, r.somma, r.nota));
        }
        prima = false;
    }
    return righe;
}

config::ReportTesto ReportEnucleatoStampa(const ListaEnucleato& lista, std::string_view dataEstrazione,
                                          const std::array<bool, 12>& ruote, std::string_view dataDa,
                                          std::string_view dataA) {
    config::ReportTesto rep;
    if (lista.vuota()) return rep;
    constexpr int righePerPagina = 45;
    const std::string cornice = "*-------------*-------*----------*------------*--------------------------*";
    const std::string intestazione = lista.tipo() == TipoAnalisi::Ambi
                                         ? "| Descr. ambo | Prog. |   Data   | Somma rit. | Note                     |"
                                         : "| Descr.terno | Prog. |   Data   | Somma rit. | Note                     |";
    auto testata = [&] {
        rep.riga(fmt::format("  Ambo enucleato - Verifica estrazione del {}", dataEstrazione), true);
        rep.riga("  " + RigaRuote(ruote));
        rep.riga(fmt::format("  Periodo : dal {} al {}", dataDa, dataA));
        rep.rigaVuota();
        rep.riga("  " + cornice);
        rep.riga("  " + intestazione);
        rep.riga("  " + cornice);
    };
    testata();
    int n = 0;
    for (const RigaEnucleato& r : lista.righe()) {
        if (n == righePerPagina) {
            rep.nuovaPagina();
            testata();
            n = 0;
        }
        config::RigaReport riga(80);
        riga.metti(3, r.descrizione).metti(17, r.prog).metti(24, r.data).metti(37, r.somma).metti(49, r.nota);
        rep.riga(riga);
        ++n;
    }
    rep.riga("  " + cornice);
    return rep;
}

std::string NomeFileEnucleato(std::string_view dataEstrazione) {
    std::string d(dataEstrazione);
    d.erase(std::remove(d.begin(), d.end(), '/'), d.end());
    return "Ambo_Enucleato_" + d + ".txt";
}

}  // namespace gorgo::enucleated
