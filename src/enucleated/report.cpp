#include "enucleated/report.h"

#include <fmt/format.h>

namespace gorgo::enucleated {

namespace {

constexpr int RighePerPagina = 45;

// A printed table: heading block repeated at the top of each page.
template <typename Testata, typename Righe>
void Impagina(config::ReportTesto& rep, Testata testata, const Righe& righe) {
    testata(true);
    int n = 0;
    for (const std::string& r : righe) {
        if (n == RighePerPagina) {
            rep.nuovaPagina();
            testata(false);
            n = 0;
        }
        rep.riga("  " + r);
        ++n;
    }
}

std::string Trim(std::string s) {
    s.erase(0, s.find_first_not_of(' ') == std::string::npos ? s.size() : s.find_first_not_of(' '));
    return s;
}

}  // namespace

std::vector<std::string> ReportStatisticaFile(const std::vector<RigaStatistica>& righe, int ruota,
                                              const Periodo& periodo) {
    std::vector<std::string> r;
    if (righe.empty()) return r;
    r.push_back("Ambo enucleato - Statistica generale");
    r.push_back("Ruota : " + NomeRuota(ruota));
    r.push_back(fmt::format("Periodo : dal {} al {}", periodo.dataDa, periodo.dataA));
    r.push_back("");
    for (const RigaStatistica& s : righe)
        r.push_back(fmt::format("Somma rit: {}, Freq.: {}, Rit: {}, Rit.max: {}, Freq. media: {}", s.testo[1],
                                s.testo[2], s.testo[3], s.testo[4], s.testo[5]));
    return r;
}

config::ReportTesto ReportStatisticaStampa(const std::vector<RigaStatistica>& righe, int ruota,
                                           const Periodo& periodo) {
    config::ReportTesto rep;
    if (righe.empty()) return rep;
    const std::string cornice = "*------------*------------*-------*---------*-------------------*-------------*";
    std::vector<std::string> corpo;
    for (const RigaStatistica& s : righe) {
        std::string max = Trim(s.testo[4]);
        corpo.push_back(fmt::format("| {:<10} | {:>10} | {:>5} | {:>7} | {:<17} | {:>11} |", s.testo[0],
                                    Trim(s.testo[1]), Trim(s.testo[2]), Trim(s.testo[3]), max, Trim(s.testo[5])));
    }
    corpo.push_back(cornice);
    Impagina(
        rep,
        [&](bool) {
            rep.riga("  Ambo enucleato - Statistica generale", true);
            rep.riga("  Ruota : " + NomeRuota(ruota));
            rep.riga(fmt::format("  Periodo : dal {} al {}", periodo.dataDa, periodo.dataA));
            rep.rigaVuota();
            rep.riga("  " + cornice);
            rep.riga("  | Ruota      | Somma rit. | Freq. | Ritardo | Rit. max il       | Freq. media |");
            rep.riga("  " + cornice);
        },
        corpo);
    return rep;
}

std::string NomeFileStatistica(int ruota) { return "Ambo_Enucleato_StatGenerale_" + NomeRuota(ruota) + ".txt"; }

namespace {

struct FormaCoppie {
    std::string cornice, intestazione;
    std::vector<std::string> corpo;
};

FormaCoppie TabellaCoppie(const ListaCoppie& lista, TipoAnalisi tipo) {
    FormaCoppie f;
    if (tipo == TipoAnalisi::Ambi) {
        f.cornice = "*------------*-------------*-------------*----------*-------*-------*";
        f.intestazione = "| Ambo       | Rit.interno | Rit.attuale | Rit. max | Freq. |  I.C. |";
        for (const RigaCoppia& r : lista.righe)
            f.corpo.push_back(fmt::format("| {:<10} | {:>11} | {:>11} | {:>8} | {:>5} | {:>5} |", r.testo[0],
                                          Trim(r.testo[1]), Trim(r.testo[2]), Trim(r.testo[3]), Trim(r.testo[4]),
                                          r.testo[5]));
    } else {
        f.cornice = "*-------------*------------------*-------------*----------*-------*-------*";
        f.intestazione = "| Terzina     | Rit.interno      | Rit.attuale | Rit. max | Freq. |  I.C. |";
        for (const RigaCoppia& r : lista.righe)
            f.corpo.push_back(fmt::format("| {:<11} | {:>16} | {:>11} | {:>8} | {:>5} | {:>5} |", r.testo[0],
                                          Trim(r.testo[1]), Trim(r.testo[2]), Trim(r.testo[3]), Trim(r.testo[4]),
                                          r.testo[5]));
    }
    f.corpo.push_back(f.cornice);
    return f;
}

}  // namespace

std::vector<std::string> ReportCoppieFile(const ListaCoppie& lista, TipoAnalisi tipo) {
    std::vector<std::string> r;
    if (lista.righe.empty()) return r;
    r.push_back(lista.descrizione);
    r.push_back("");
    if (tipo == TipoAnalisi::Ambi) {
        for (const RigaCoppia& c : lista.righe)
            r.push_back(fmt::format("{}: , Rit. interno: {}, Rit.att.: {}, Rit.max: : {}, Freq.: {}, I.C.: {}",
                                    c.testo[0], c.testo[1], c.testo[2], c.testo[3], c.testo[4], c.testo[5]));
    } else {
        const FormaCoppie f = TabellaCoppie(lista, tipo);
        r.push_back(f.cornice);
        r.push_back(f.intestazione);
        r.push_back(f.cornice);
        r.insert(r.end(), f.corpo.begin(), f.corpo.end());
    }
    return r;
}

config::ReportTesto ReportCoppieStampa(const ListaCoppie& lista, TipoAnalisi tipo) {
    config::ReportTesto rep;
    if (lista.righe.empty()) return rep;
    const FormaCoppie f = TabellaCoppie(lista, tipo);
    Impagina(
        rep,
        [&](bool) {
            rep.riga("  " + lista.descrizione, true);
            rep.rigaVuota();
            rep.riga("  " + f.cornice);
            rep.riga("  " + f.intestazione);
            rep.riga("  " + f.cornice);
        },
        f.corpo);
    return rep;
}

std::vector<std::string> ReportDettaglioFile(const EsitoDettaglio& d) {
    std::vector<std::string> r;
    if (d.coppie.empty() && d.ritardi.empty()) return r;
    for (const RigaCoppiaRitardi& c : d.coppie)
        r.push_back(
            fmt::format("Coppia: {}, Pres.: {}, Rit.att.: {}, Rit.max: {}, I.C.: {}, % pres.: {}, da giocare: {}",
                        c.testo[0], c.testo[1], c.testo[2], c.testo[3], c.testo[4], c.testo[5], c.daGiocare));
    r.push_back("");
    for (const RigaRitardo& v : d.ritardi)
        r.push_back(fmt::format("Presenze del ritardo {}: {}, Rit.att.: {}, Rit.max: {}", v.testo[0], v.testo[1],
                                v.testo[2], v.testo[3]));
    return r;
}

config::ReportTesto ReportDettaglioStampa(const EsitoDettaglio& d, int ruota, int somma) {
    config::ReportTesto rep;
    if (d.coppie.empty() && d.ritardi.empty()) return rep;
    const std::string titolo = fmt::format("Dettaglio della somma di ritardi {} su {}", somma, NomeRuota(ruota));
    const std::string c1 = "*------------*----------*----------*----------*------*---------*------------*";
    std::vector<std::string> corpo1;
    for (const RigaCoppiaRitardi& c : d.coppie)
        corpo1.push_back(fmt::format("| {:<10} | {:>8} | {:>8} | {:>8} | {:>4} | {:>7} | {:<10} |", c.testo[0],
                                     c.presenze, c.ritardoAttuale, c.ritardoMax, Trim(c.testo[4]), Trim(c.testo[5]),
                                     c.daGiocare));
    corpo1.push_back(c1);
    Impagina(
        rep,
        [&](bool prima) {
            rep.riga("  " + titolo, true);
            rep.rigaVuota();
            rep.riga("  " + c1);
            // The later pages' heading reads "Rit.att." as it always has.
            rep.riga(prima ? "  |   Coppia  | Presenze | Rit. att | Rit. max | I.C. | % pres. | Ambo gioc. |"
                           : "  |   Coppia  | Presenze | Rit.att. | Rit. max | I.C. | % pres. | Ambo gioc. |");
            rep.riga("  " + c1);
        },
        corpo1);
    const std::string c2 = "*-----------*----------*----------*----------*";
    std::vector<std::string> corpo2;
    for (const RigaRitardo& v : d.ritardi)
        corpo2.push_back(
            fmt::format("| {:>9} | {:>8} | {:>8} | {:>8} |", v.ritardo, v.presenze, v.ritardoAttuale, v.ritardoMax));
    corpo2.push_back(c2);
    rep.nuovaPagina();
    Impagina(
        rep,
        [&](bool) {
            rep.riga("  " + titolo, true);
            rep.rigaVuota();
            rep.riga("  " + c2);
            rep.riga("  |  Ritardo  | Presenze | Rit.att. | Rit. max |");
            rep.riga("  " + c2);
        },
        corpo2);
    return rep;
}

std::string NomeFileDettaglio(int ruota, int somma) {
    return fmt::format("Dettaglio somma ritardi {} su {}.txt", somma, NomeRuota(ruota));
}

}  // namespace gorgo::enucleated
