// consulta, somme-distanze: the consultation desk and its table of sums and distances.

#include <fmt/format.h>
#include <unistd.h>

#include <algorithm>
#include <charconv>
#include <iostream>
#include <map>

#include "archives/regole.h"
#include "cli/contesto.h"
#include "cli/opzioni_comuni.h"
#include "config/formato.h"
#include "consultation/consultazione.h"
#include "consultation/dieci_estrazioni.h"
#include "consultation/somme_distanze.h"

namespace gorgo::cli {

namespace {

using namespace consultation;

struct ArgomentiConsulta {
    std::string indiceOData, ruota, vista = "numeri", periodo, famiglia, gioco;
    bool nonAttuale = false, ordinate = false, isotopi = false, f90 = false;
    int somma = 0, distanza = 0;
};

std::optional<int32_t> Intero(std::string_view testo) {
    int32_t v = 0;
    const auto [p, ec] = std::from_chars(testo.data(), testo.data() + testo.size(), v);
    if (ec != std::errc{} || p != testo.data() + testo.size()) return std::nullopt;
    return v;
}

const std::map<std::string, int>& NomiFamiglie() {
    static const std::map<std::string, int> m{
        {"decina", FamDecina},
        {"cadenza", FamCadenza},
        {"figura", FamFigura},
        {"quindicina", FamQuindicina},
        {"complementari", FamComplementari},
        {"simmetrici", FamSimmetrici},
        {"gemelli", FamGemelli},
        {"vertibili", FamVertibili},
        {"radicali", FamRadicali},
        {"ripetuti", FamNumeriRipetuti},
        {"ambi-ripetuti", FamAmbiRipetuti},
        {"usciti", FamUsciti},
        {"non-usciti", FamNonUsciti},
        {"usciti-scorsa", FamUscitiScorsa},
        {"non-usciti-scorsa", FamNonUscitiScorsa},
        {"1x2", FamUnoIcsDue},
        {"pari-dispari", FamPariDispari},
        {"uguali-isotopi", FamUgualiIsotopi},
        {"somme-uguali", FamSommeUguali},
        {"distanze-uguali", FamDistanzeUguali},
        {"ritardo", FamUltimoRitardo},
        {"terzine", FamTerzine},
    };
    return m;
}

const std::map<std::string, int>& NomiFamiglieDieci() {
    static const std::map<std::string, int> m{
        {"gemelli", DieciGemelli},
        {"radicali", DieciRadicali},
        {"decina", DieciDecinaNaturale},
        {"cadenza", DieciCadenza},
        {"figura", DieciFigura},
        {"pari", DieciPari},
        {"dispari", DieciDispari},
        {"sortiti", DieciSortitiPrecedente},
        {"non-sortiti", DieciNonSortitiPrecedente},
    };
    return m;
}

std::string ElencoNomi(const std::map<std::string, int>& m) {
    std::string s;
    for (const auto& [nome, codice] : m) s += (s.empty() ? "" : ", ") + nome;
    return s;
}

// NOME[:CIFRA] -> code and digit (or value, for "ritardo").
std::pair<int, int> LeggiFamiglia(const std::string& testo, const std::map<std::string, int>& nomi) {
    const size_t dp = testo.find(':');
    const std::string nome = testo.substr(0, dp);
    const auto it = nomi.find(nome);
    if (it == nomi.end())
        throw Rifiuta(fmt::format("Famiglia \"{}\" sconosciuta: scegliere tra {}.", nome, ElencoNomi(nomi)));
    int cifra = -1;
    if (dp != std::string::npos) {
        const auto v = Intero(std::string_view(testo).substr(dp + 1));
        if (!v || *v < 0) throw Rifiuta(fmt::format("\"{}\" non è una cifra valida.", testo.substr(dp + 1)));
        cifra = *v;
    }
    return {it->second, cifra};
}

void ControllaCifra(int codice, int cifra, const std::vector<int>& ammesse, const std::string& descrizione) {
    if (ammesse.empty()) return;
    if (cifra < 0)
        throw Rifiuta(fmt::format("La famiglia \"{}\" richiede una cifra (NOME:CIFRA), da {} a {}.", descrizione,
                                  ammesse.front(), ammesse.back()));
    if (std::find(ammesse.begin(), ammesse.end(), cifra) == ammesse.end())
        throw Rifiuta(fmt::format("Per la famiglia \"{}\" la cifra va da {} a {}.", descrizione, ammesse.front(),
                                  ammesse.back()));
    (void)codice;
}

bool SuTerminale() { return isatty(STDOUT_FILENO) != 0; }

// A marked cell: coloured on a terminal, between brackets elsewhere.
std::string MostraCella(const Cella& c, bool colori) {
    const std::string t = fmt::format("{:>3}", c.testo);
    const bool marcata = c.sfondo != SfondoNormale || c.colore != TestoNormale;
    if (!marcata) return " " + t + " ";
    if (colori) {
        const auto rgb = [](Colore k) { return fmt::format("{};{};{}", k & 0xFF, (k >> 8) & 0xFF, (k >> 16) & 0xFF); };
        return fmt::format("\x1b[48;2;{}m\x1b[38;2;{}m {} \x1b[0m", rgb(c.sfondo), rgb(c.colore), t);
    }
    return "[" + t + "]";
}

void ImpostaPeriodo(Consultazione& c, const std::string& testo) {
    if (testo.empty()) return;
    const size_t dp = testo.find(':');
    const std::string tipo = testo.substr(0, dp);
    const auto valore = [&]() -> int32_t {
        const auto v = dp == std::string::npos ? std::nullopt : Intero(std::string_view(testo).substr(dp + 1));
        if (!v) throw Rifiuta(fmt::format("Periodo \"{}\": indicare un numero dopo \":\".", testo));
        return *v;
    };
    if (tipo == "ultime") {
        c.Periodo = TipoPeriodo::Ultime;
        c.UltimeEstrazioni = valore();
    } else if (tipo == "cicli") {
        c.Periodo = TipoPeriodo::Cicli;
        c.Cicli = valore();
    } else if (tipo == "anno") {
        c.Periodo = TipoPeriodo::UltimoAnno;
    } else if (tipo == "inizio-anno") {
        c.Periodo = TipoPeriodo::InizioAnno;
    } else {
        throw Rifiuta(fmt::format("Periodo \"{}\" sconosciuto: ultime:N, anno, inizio-anno oppure cicli:N.", testo));
    }
}

void ConsultaLotto(const Contesto& ctx, const archives::Archivio& a, const ArgomentiConsulta& arg) {
    Consultazione c(a.Storia());
    c.IndiceCorrente = SembraData(arg.indiceOData)
                           ? IndiceDaData(archives::ControllaData(arg.indiceOData, c.storia(), false))
                           : LeggiIndice(arg.indiceOData, c.NumeroEstrazioni(), "del Lotto");
    if (!arg.ruota.empty()) {
        int w = 0;
        for (int k = 1; k <= archives::NumeroRuote; ++k)
            if (fmt::format("{}", archives::SigleRuota[static_cast<size_t>(k)]) == arg.ruota) w = k;
        if (w == 0)
            throw Rifiuta(
                fmt::format("Ruota \"{}\" sconosciuta: BA, CA, FI, GE, MI, NA, PA, RM, TO, VE, NZ.", arg.ruota));
        c.RuotaCorrente = w;
    }
    if (arg.vista == "ritardi")
        c.ImpostaVista(Vista::Ritardi);
    else if (arg.vista == "frequenze")
        c.ImpostaVista(Vista::Frequenze);
    else if (arg.vista != "numeri")
        throw Rifiuta(fmt::format("Vista \"{}\" sconosciuta: numeri, ritardi oppure frequenze.", arg.vista));
    ImpostaPeriodo(c, arg.periodo);
    c.NonConsiderareAttuale = arg.nonAttuale;
    c.Ordinate = arg.ordinate;
    ParametriAnalisi& p = c.Analisi;
    p.isotopiRipetuti = p.isotopiSomma = p.isotopiDistanza = arg.isotopi;
    p.f90Somma = arg.f90;
    if (!arg.famiglia.empty()) {
        const auto [codice, cifra] = LeggiFamiglia(arg.famiglia, NomiFamiglie());
        p.famiglia = codice;
        if (codice == FamUltimoRitardo) {
            if (cifra < 0) throw Rifiuta("La famiglia \"ritardo\" richiede il valore: ritardo:N.");
            p.ritardo = cifra;
        } else {
            ControllaCifra(codice, cifra, CifreAmmesse(codice), DescrizioneFamiglia(codice, p));
            p.cifra = cifra;
        }
        if (c.RuotaCorrente != 0 && SoloTutteLeRuote(codice))
            throw Rifiuta(fmt::format("\"{}\" si applica solo alla consultazione di tutte le ruote.",
                                      DescrizioneFamiglia(codice, p)));
    }
    if (arg.somma != 0) {
        if (arg.somma < 2 || arg.somma > 180) throw Rifiuta("inserisci un valore tra 2 e 180 !");
        p.famiglia = FamSomma;
        p.somma = arg.somma;
    }
    if (arg.distanza != 0) {
        if (arg.distanza < 1 || arg.distanza > 89) throw Rifiuta("inserisci un valore tra 1 e 89 !");
        p.famiglia = FamDistanza;
        p.distanza = arg.distanza;
    }
    const Griglia& g = c.Aggiorna();
    const bool tutte = c.RuotaCorrente == 0;
    if (ctx.json) {
        nlohmann::json celle = nlohmann::json::array(), date = nlohmann::json::array();
        for (const Cella& k : g.celle)
            celle.push_back({{"testo", k.testo}, {"sfondo", Esadecimale(k.sfondo)}, {"colore", Esadecimale(k.colore)}});
        if (!tutte)
            for (const auto& d : g.righeDate) date.push_back(d);
        StampaJson({{"indice", g.indice},
                    {"data", g.data},
                    {"indice_mese", g.indiceMese},
                    {"celle", celle},
                    {"righe_date", date},
                    {"sortita_media", g.sortitaMedia},
                    {"report", g.report}});
        return;
    }
    const bool colori = SuTerminale();
    if (tutte)
        std::cout << fmt::format("Estrazione n. {} del {} {}  (progressivo assoluto dal 1871: {}, I. mese: {})\n",
                                 g.numeroAnno, g.giorno, g.data, g.indice, g.indiceMese);
    else
        std::cout << fmt::format("{} Estrazioni  (fino all'estrazione n. {} del {}, progressivo {}, I. mese: {})\n",
                                 NomeRuota(c.RuotaCorrente), g.numeroAnno, g.data, g.indice, g.indiceMese);
    const char* vista[] = {"Numeri estratti", "Ritardi alla sortita", "Frequenze nel periodo"};
    std::cout << vista[static_cast<int>(c.TipoVisualizzazione)];
    if (c.TipoVisualizzazione == Vista::Frequenze) std::cout << "  " << g.sortitaMedia;
    if (p.famiglia != NessunaFamiglia) std::cout << "  -  " << DescrizioneFamiglia(p.famiglia, p);
    std::cout << "\n";
    const int righe = tutte ? archives::NumeroRuote : 10;
    for (int r = 0; r < righe; ++r) {
        std::string riga = config::AllineaSinistra(tutte ? NomeRuota(r + 1) : g.righeDate[static_cast<size_t>(r)], 11);
        for (int q = 0; q < 5; ++q) riga += MostraCella(g.celle[static_cast<size_t>(r * 5 + q)], colori);
        std::cout << riga << "\n";
    }
    if (!g.report.empty()) {
        std::cout << "\n";
        for (const auto& l : g.report) std::cout << l << "\n";
    }
}

void ConsultaAltroGioco(const Contesto& ctx, const archives::Archivio& a, const ArgomentiConsulta& arg) {
    const bool super = arg.gioco == "superenalotto";
    if (!super && arg.gioco != "10elotto")
        throw Rifiuta(fmt::format("Gioco \"{}\" sconosciuto: superenalotto oppure 10elotto.", arg.gioco));
    ConsultazioneDieci c = super ? ConsultazioneDieci(a.LeggiTuttiSuper()) : ConsultazioneDieci(a.Storia());
    if (SembraData(arg.indiceOData))
        c.IndiceCorrente = IndiceDaData(super ? archives::ControllaDataSuper(arg.indiceOData, a, false)
                                              : archives::ControllaData(arg.indiceOData, a, false));
    else
        c.IndiceCorrente =
            LeggiIndice(arg.indiceOData, c.NumeroEstrazioni(), super ? "del SuperEnalotto" : "del Lotto");
    if (!arg.famiglia.empty()) {
        const auto [codice, cifra] = LeggiFamiglia(arg.famiglia, NomiFamiglieDieci());
        if (super && (codice == DieciSortitiPrecedente || codice == DieciNonSortitiPrecedente))
            throw Rifiuta("Le analisi sull'estrazione precedente sono del solo 10eLotto.");
        ControllaCifra(codice, cifra, ConsultazioneDieci::CifreAmmesse(codice),
                       ConsultazioneDieci::DescrizioneFamiglia(codice));
        c.FamigliaScelta = codice;
        c.NumeroFamiglia = cifra;
    }
    const ElencoDieci e = c.Aggiorna();
    for (const auto& m : e.messaggi) std::cerr << m << "\n";
    if (ctx.json) {
        nlohmann::json righe = nlohmann::json::array();
        for (const RigaDieci& r : e.righe) {
            if (r.indice == 0) continue;
            nlohmann::json j{{"indice", r.indice}, {"data", r.data}, {"numeri", r.numeri}, {"marcati", r.marcati}};
            if (super) {
                j["jolly"] = r.jolly;
                j["superstar"] = r.superstar;
            }
            righe.push_back(j);
        }
        StampaJson({{"indice", c.IndiceCorrente}, {"famiglia", e.descrizione}, {"righe", righe}});
        return;
    }
    const bool colori = SuTerminale();
    std::cout << c.TitoloReport() << "\n";
    if (c.FamigliaScelta != 0) std::cout << "In evidenza " << e.descrizione << "\n";
    for (const RigaDieci& r : e.righe) {
        if (r.indice == 0) continue;
        std::string riga = fmt::format("{:>5}  {} ", r.indice, r.data);
        for (size_t k = 0; k < r.numeri.size(); ++k) {
            const std::string n = fmt::format("{:02}", r.numeri[k]);
            if (!r.marcati[k])
                riga += " " + n + " ";
            else
                riga += colori ? "\x1b[41;93m " + n + " \x1b[0m" : "[" + n + "]";
        }
        if (super && r.jolly) riga += fmt::format("  Jolly {:02}", r.jolly);
        if (super && r.superstar) riga += fmt::format("  SuperStar {:02}", r.superstar);
        std::cout << riga << "\n";
    }
}

void Consulta(const Contesto& ctx, const ArgomentiConsulta& arg) {
    const archives::Archivio a = ctx.ApriArchivi();
    if (arg.gioco.empty() || arg.gioco == "lotto")
        ConsultaLotto(ctx, a, arg);
    else
        ConsultaAltroGioco(ctx, a, arg);
}

void SommeDistanze(const Contesto& ctx, const std::string& argomento, bool righe, bool colonne) {
    const archives::Archivio a = ctx.ApriArchivi();
    const int32_t indice = SembraData(argomento) ? IndiceDaData(archives::ControllaData(argomento, a, false))
                                                 : LeggiIndice(argomento, a.NumeroEstrazioni(), "del Lotto");
    const TabellaSommeDistanze t = CalcolaSommeDistanze(a.LeggiEstrazione(indice), righe, colonne);
    if (ctx.json) {
        nlohmann::json ruote = nlohmann::json::array();
        for (int w = 1; w <= archives::NumeroRuote; ++w) {
            nlohmann::json celle = nlohmann::json::array();
            for (const auto& k : t.celle[static_cast<size_t>(w) - 1])
                celle.push_back({{"somma", k.TestoSomma()},
                                 {"distanza", k.TestoDistanza()},
                                 {"sfondo_somma", Esadecimale(k.coloreSomma.sfondo)},
                                 {"sfondo_distanza", Esadecimale(k.coloreDistanza.sfondo)}});
            ruote.push_back({{"ruota", NomeRuota(w)}, {"celle", celle}});
        }
        StampaJson({{"indice", indice}, {"data", t.data}, {"ruote", ruote}, {"report", ReportSommeDistanze(t)}});
        return;
    }
    std::cout << TitoloReportSommeDistanze(t) << "\n\n";
    for (const auto& l : ReportSommeDistanze(t)) std::cout << l << "\n";
}

}  // namespace

void AggiungiComandiConsultazione(CLI::App& app, Contesto& ctx) {
    auto a = std::make_shared<ArgomentiConsulta>();
    auto* consulta = app.add_subcommand("consulta", "Consulta un'estrazione: numeri, ritardi, frequenze, famiglie");
    consulta->add_option("indice_o_data", a->indiceOData, "Progressivo (da 1) oppure data GG/MM/AAAA")->required();
    consulta->add_option("--ruota", a->ruota, "Una ruota (BA..NZ): le ultime dieci estrazioni di quella ruota");
    consulta->add_option("--vista", a->vista, "numeri, ritardi (alla sortita) o frequenze (nel periodo)");
    consulta->add_option("--periodo", a->periodo, "Periodo delle frequenze: ultime:N, anno, inizio-anno, cicli:N");
    consulta->add_flag("--non-attuale", a->nonAttuale, "Non considerare l'estrazione attuale nelle frequenze");
    consulta->add_flag("--ordinate", a->ordinate, "Mostra ogni riga in ordine crescente");
    consulta->add_option("--famiglia", a->famiglia,
                         "Famiglia o analisi, NOME[:CIFRA]: " + ElencoNomi(NomiFamiglie()) +
                             " (ritardo:N); altri giochi: " + ElencoNomi(NomiFamiglieDieci()));
    consulta->add_option("--somma", a->somma, "Coppie con questa somma (2-180)");
    consulta->add_flag("--isotopi", a->isotopi, "Solo numeri isotopi (somma, distanza, ripetuti)");
    consulta->add_flag("--f90", a->f90, "Somma fuori 90");
    consulta->add_option("--distanza", a->distanza, "Coppie con questa distanza (1-89)");
    consulta->add_option("--gioco", a->gioco, "superenalotto o 10elotto: le dieci estrazioni fino a quella indicata");
    consulta->callback([&ctx, a] { Consulta(ctx, *a); });

    struct ArgomentiSomme {
        std::string indiceOData;
        bool righe = false, colonne = false;
    };
    auto s = std::make_shared<ArgomentiSomme>();
    auto* somme = app.add_subcommand("somme-distanze", "Somme e distanze delle coppie di posizioni di ogni ruota");
    somme->add_option("indice_o_data", s->indiceOData, "Progressivo (da 1) oppure data GG/MM/AAAA")->required();
    somme->add_flag("--righe", s->righe, "Evidenzia valori uguali nelle righe (--json)");
    somme->add_flag("--colonne", s->colonne, "Evidenzia valori uguali nelle colonne (--json)");
    somme->callback([&ctx, s] { SommeDistanze(ctx, s->indiceOData, s->righe, s->colonne); });
}

const GruppoComandi registrazione{100, AggiungiComandiConsultazione};

}  // namespace gorgo::cli
