// The options of a builder search and the parameter record they make.

#include "cli/parametri_ricerca.h"

#include <fmt/format.h>
#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <map>

#include "config/impostazioni.h"

namespace gorgo::cli {

namespace {

// "tutte", "tutte+nz" or wheel codes (BA,CA,...,NZ, also RM for Roma), as the screen's boxes.
std::array<bool, 12> LeggiRuote(const std::string& testo, const char* opzione) {
    std::array<bool, 12> r{};
    std::string t;
    for (char c : testo) t += static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    if (t == "TUTTE") return {true, false, false, false, false, false, false, false, false, false, false, false};
    if (t == "TUTTE+NZ") return {true, false, false, false, false, false, false, false, false, false, false, true};
    size_t inizio = 0;
    while (inizio <= t.size()) {
        const size_t fine = std::min(t.find(',', inizio), t.size());
        const std::string sigla = t.substr(inizio, fine - inizio);
        bool trovata = false;
        for (int w = 1; w <= archives::NumeroRuote; ++w)
            if (sigla == archives::SigleRuota[static_cast<size_t>(w)] || (w == 8 && sigla == "RM"))
                r[static_cast<size_t>(w)] = trovata = true;
        if (!trovata)
            throw Rifiuta(
                fmt::format("{}: ruota \"{}\" sconosciuta. Indicare tutte, tutte+nz oppure le sigle "
                            "BA,CA,FI,GE,MI,NA,PA,RO,TO,VE,NZ separate da virgole.",
                            opzione, sigla));
        inizio = fine + 1;
    }
    return r;
}

std::array<bool, 6> LeggiPosizioni(const std::string& testo, const char* opzione) {
    std::array<bool, 6> p{};
    for (char c : testo) {
        if (c < '1' || c > '5') throw Rifiuta(fmt::format("{}: posizioni da 1 a 5, per esempio 135.", opzione));
        p[static_cast<size_t>(c - '0')] = true;
    }
    return p;
}

}  // namespace

void AggiungiOpzioniRicerca(CLI::App* c, ArgomentiRicerca& a) {
    c->add_option("--spia", a.spia, "Tipo di spia")->check(CLI::IsMember({"numero", "somma", "differenza", "ambo"}));
    c->add_option("--modo", a.modo, "fisso, tutti (tutti i numeri/somme/differenze), indice (solo indice mensile)")
        ->check(CLI::IsMember({"fisso", "tutti", "indice"}));
    c->add_option("--valore", a.valore, "Numero, somma o differenza spia, da 1 a 90 (predefinito 1)")
        ->type_name("NUMERO");
    c->add_option("--ambo", a.ambo, "Ambo spia, come 12-34");
    c->add_flag("--tutti-gli-ambi", a.tuttiGliAmbi, "Con l'ambo spia: tutti gli ambi");
    c->add_option("--posizioni", a.posizioni, "Posizione determinata della spia, come 135 (predefinito: tutte)");
    c->add_option("--da", a.da, "Inizio del periodo GG/MM/AAAA (predefinito: dieci anni prima dell'ultima)");
    c->add_option("--a", a.a, "Fine del periodo GG/MM/AAAA (predefinito: l'ultima estrazione)");
    c->add_option("--ultime", a.ultime, "Le ultime n sortite della spia (da 1 a 90) invece del periodo")
        ->type_name("NUMERO");
    c->add_option("--indice-mese", a.indiceMese, "U (ultima del mese, predefinito), 1..21 oppure tutti");
    c->add_option("--ruote-ricerca", a.ruoteRicerca,
                  "tutte, tutte+nz o sigle BA,CA,...,NZ (predefinito: impostazioni)");
    c->add_option("--ruote-gioco", a.ruoteGioco, "Come --ruote-ricerca");
    c->add_option("--colpi", a.colpi, "Colpi di gioco, al massimo tre cifre (predefinito 9)")->type_name("NUMERO");
    c->add_flag("--senza-ultime", a.senzaUltime,
                "Non usare come spia le ultime estrazioni del periodo (\"Controlla le ultime 9 estraz.\" spento)");
    c->add_option("--tipo", a.tipo, "ambate (predefinito), ambi, terzine-ambo, terzine-terno, codici")
        ->check(CLI::IsMember({"ambate", "ambi", "terzine-ambo", "terzine-terno", "codici"}));
    c->add_flag("--solo-posizione", a.soloPosizione, "Solo posizione sul q.e.");
    c->add_option("--posizioni-valide", a.posizioniValide, "Validità dell'ambata, come 12345");
    c->add_option("--sorte", a.sorte, "Codici: 2 (ambi) o 3 (terni)")->check(CLI::IsMember({2, 3}));
    c->add_option("--operazioni", a.operazioni, "Codici: operazioni fra +, - e x (predefinito +-x)");
    c->add_option("--terzine", a.terzine,
                  "File delle terzine ridotte (predefinito: impostazione FileTerzine o Terzine.txt)");
}

std::optional<int> LeggiCasella(const std::string& testo, size_t cifre) {
    if (testo.empty() || testo.size() > cifre) return std::nullopt;
    for (char c : testo)
        if (c < '0' || c > '9') return std::nullopt;
    return std::stoi(testo);
}

builder::ParametriRicerca ParametriDaArgomenti(const ArgomentiRicerca& a, const config::FileIni& ini) {
    using namespace builder;
    ParametriRicerca p;
    const std::map<std::string, TipoSpia> spie = {{"numero", TipoSpia::Numero},
                                                  {"somma", TipoSpia::Somma},
                                                  {"differenza", TipoSpia::Differenza},
                                                  {"ambo", TipoSpia::Ambo}};
    const std::map<std::string, ModoSpia> modi = {
        {"fisso", ModoSpia::Fisso}, {"tutti", ModoSpia::Tutti}, {"indice", ModoSpia::SoloIndiceMensile}};
    const std::map<std::string, TipoRicerca> tipi = {{"ambate", TipoRicerca::Ambate},
                                                     {"ambi", TipoRicerca::Ambi},
                                                     {"terzine-ambo", TipoRicerca::TerzineAmbo},
                                                     {"terzine-terno", TipoRicerca::TerzineTerno},
                                                     {"codici", TipoRicerca::Codici}};
    p.tipoSpia = spie.at(a.spia.empty() ? "numero" : a.spia);
    p.modoSpia = modi.at(a.modo);
    p.tipoRicerca = tipi.at(a.tipo.empty() ? "ambate" : a.tipo);
    // The list of kinds for an ambo spy holds only these two.
    if (p.tipoSpia == TipoSpia::Ambo && p.tipoRicerca != TipoRicerca::Ambate && p.tipoRicerca != TipoRicerca::Ambi)
        throw Rifiuta("Con l'ambo spia il tipo di ricerca è ambate oppure ambi.");
    // cboNumero lists 1 to 90: anything else is no value, as an empty box.
    if (!a.valore.empty()) {
        const std::optional<int> v = LeggiCasella(a.valore, 2);
        p.valoreSpia = v && *v <= 90 ? *v : 0;
    }
    if (!a.ambo.empty()) {
        // Two boxes of at most two digits each.
        const size_t trattino = a.ambo.find('-');
        const std::optional<int> x = LeggiCasella(a.ambo.substr(0, trattino), 2);
        const std::optional<int> y =
            trattino == std::string::npos ? std::nullopt : LeggiCasella(a.ambo.substr(trattino + 1), 2);
        if (!x || !y) throw Rifiuta("--ambo: indicare i due numeri come 12-34.");
        p.amboSpia = {*x, *y};
    }
    p.tuttiGliAmbi = a.tuttiGliAmbi;
    if (!a.posizioni.empty()) {
        p.posizioneDeterminata = true;
        p.posizioniSpia = LeggiPosizioni(a.posizioni, "--posizioni");
    }
    if (!a.ultime.empty()) {
        // cboSortite lists 1 to 90; the search refuses what is below 1.
        const std::optional<int> n = LeggiCasella(a.ultime, 2);
        p.perData = 1;
        p.sortiteDaCercare = n && *n <= 90 ? *n : 0;
    }
    p.dataDa = a.da;
    p.dataA = a.a;
    if (a.indiceMese == "U" || a.indiceMese == "u")
        p.indiceMese = 0;
    else if (a.indiceMese == "tutti" || a.indiceMese == "22")
        p.indiceMese = 22;
    else {
        char* fine = nullptr;
        const long n = std::strtol(a.indiceMese.c_str(), &fine, 10);
        if (*fine || n < 1 || n > 21) throw Rifiuta("--indice-mese: U, un numero da 1 a 21 oppure tutti.");
        p.indiceMese = static_cast<int>(n);
    }
    // Wheels default to the screen's settings.
    const auto& S = config::sezioni::Settings;
    auto daImpostazione = [&](const char* chiave) {
        const config::CaselleRuote c =
            config::CaricaRuoteConNz(config::LeggiImpostazione(ini, S, chiave, config::Predefinito(S, chiave)));
        return std::array<bool, 12>(c);
    };
    // Given empty, a set of wheels is no wheel at all.
    auto ruote = [&](const std::optional<std::string>& testo, const char* chiave, const char* opzione) {
        if (!testo) return daImpostazione(chiave);
        if (testo->empty()) return std::array<bool, 12>{};
        return LeggiRuote(*testo, opzione);
    };
    p.ruoteRicerca = ruote(a.ruoteRicerca, "RuoteConNz", "--ruote-ricerca");
    p.ruoteGioco = ruote(a.ruoteGioco, "RuoteConNzGioco", "--ruote-gioco");
    // txtColpi takes three digits; what it cannot hold counts as empty.
    p.colpi = LeggiCasella(a.colpi, 3).value_or(0);
    p.controllaUltime = !a.senzaUltime;
    p.soloPosizione = a.soloPosizione;
    p.posizioniValide = LeggiPosizioni(a.posizioniValide, "--posizioni-valide");
    p.sorte = a.sorte;
    p.operazioni = {a.operazioni.find('+') != std::string::npos, a.operazioni.find('-') != std::string::npos,
                    a.operazioni.find('x') != std::string::npos};
    return p;
}

archives::Messaggio SpiegaTerzine(const builder::EsitoTerzine& t, const std::string& file,
                                  archives::Messaggio messaggio) {
    if (t.nonValido)
        messaggio.testo =
            fmt::format("File terzine non valido! {}, riga {}: ogni riga dà tre numeri da 1 a 90 (\"NN NN NN\").", file,
                        t.rigaNonValida);
    else if (t.fileMancante)
        messaggio.testo += ". Indicarlo con --terzine FILE oppure con l'impostazione Options FileTerzine.";
    return messaggio;
}

builder::ContestoCostruttore PreparaContesto(const archives::Archivio& archivio, const config::FileIni& ini,
                                             const ArgomentiRicerca& a, const builder::ParametriRicerca& p) {
    builder::ContestoCostruttore cc =
        builder::PreparaCostruttore(archivio.Storia(), ini, archivio.PercorsoProgramma(),
                                    a.terzine.empty() ? std::nullopt : std::optional(a.terzine));
    if (const builder::RicercaValidata v = builder::ValidaRicerca(p, *cc.storia, &cc.terzine, cc.fileTerzine);
        !v.errore.vuoto()) {
        if (p.tipoRicerca == builder::TipoRicerca::Codici && !cc.terzine.valido)
            throw Rifiuto{SpiegaTerzine(cc.terzine, cc.fileTerzine, v.errore)};
        throw Rifiuto{v.errore};
    }
    // A count other than 1002 only tells, as the screen does, and the codes run.
    if (p.tipoRicerca == builder::TipoRicerca::Codici && !cc.terzine.messaggio.vuoto())
        std::cerr << cc.terzine.messaggio.testo << "\n";
    // The search has no word for a search without play wheels (it would find nothing); a
    // command line can ask for one, so it gets a refusal in the same words.
    if (builder::ContaRuoteScelte(p.ruoteGioco) == 0) throw Rifiuta("Scegliere almeno una ruota di gioco !");
    return cc;
}

}  // namespace gorgo::cli
