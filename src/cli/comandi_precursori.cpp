// precursori and formazioni: the inverse wake of precursors on the three games, with the
// parameters of its screen, and the check of typed formations.

#include <fmt/format.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>

#include "archives/regole.h"
#include "cli/contesto.h"
#include "cli/opzioni_comuni.h"
#include "cli/parametri_ricerca.h"
#include "config/impostazioni.h"
#include "config/report_testo.h"
#include "precursors/analisi.h"
#include "precursors/formazioni.h"
#include "precursors/gruppi.h"

namespace gorgo::cli {

namespace {

using namespace precursors;

struct ArgomentiPrecursori {
    std::string gioco = "lotto";
    std::string ruota;
    std::string da, a, verifica;
    std::string precedenti = "6", precursori = "5", successivi = "6";
    std::string sorte = "ambate", ordina = "percentuale";
    std::string numeri;
    std::string formazioni;
    bool verificaDoppie = false;
    bool terzine = false;
    std::string presenzeMinime = "2", minimoNumeri = "2";
    bool conferma = false;
    OpzioniReport report;
};

// "1,2,5-9": the numbers to consider.
std::array<bool, 91> LeggiNumeri(const std::string& testo) {
    std::array<bool, 91> n{};
    std::stringstream ss(testo);
    std::string parte;
    auto numero = [&](const std::string& t) {
        const std::optional<int> v = LeggiCasella(t, 2);
        if (!v || *v < 1 || *v > 90)
            throw Rifiuta("--numeri: numeri da 1 a 90 separati da virgole, con intervalli come 5-9.");
        return *v;
    };
    while (std::getline(ss, parte, ',')) {
        const size_t t = parte.find('-');
        const int da = numero(parte.substr(0, t));
        const int a = t == std::string::npos ? da : numero(parte.substr(t + 1));
        for (int x = da; x <= a; ++x) n[static_cast<size_t>(x)] = true;
    }
    return n;
}

// The date of a draw moved back by whole years ("15 years before").
std::string AnniPrima(const std::string& data, int anni) {
    const std::optional<archives::Data> d = archives::Data::daTesto(data);
    if (!d) return data;
    return archives::Data::componi(d->anno - anni, d->mese, d->giorno).testo();
}

struct Preparato {
    ParametriPrecursori p;
    std::optional<FonteEstrazioni> fonte;
    Formazioni formazioni;
    bool conFormazioni = false;
};

// Saruni: the period in years back from the end, instead of the start date.
struct ArgomentiSaruni {
    ArgomentiPrecursori base;
    std::string anni;
    std::string posizioni;
    bool coppie = false, adiacenti = false;
    std::string previsione, anniPrevisione = "15";
};

Preparato Prepara(const Contesto& ctx, const ArgomentiPrecursori& a, const archives::Archivio& archivio,
                  const std::string* anni = nullptr) {
    Preparato r;
    const config::FileIni ini(ctx.FileImpostazioni().string());
    const auto storia = archivio.Storia();
    const Gioco gioco = a.gioco == "superenalotto" ? Gioco::SuperEnalotto
                        : a.gioco == "10elotto"    ? Gioco::DieciELotto
                                                   : Gioco::Lotto;
    int ruota = 1;
    if (!a.ruota.empty()) {
        if (gioco != Gioco::Lotto) throw Rifiuta("--ruota vale solo per il Lotto.");
        ruota = LeggiRuota(a.ruota);
    } else {
        const auto c = config::CaricaRuote(config::LeggiImpostazione(
            ini, config::sezioni::Settings, "Ruota", config::Predefinito(config::sezioni::Settings, "Ruota")));
        for (int w = 1; w <= archives::NumeroRuote; ++w)
            if (c[static_cast<size_t>(w)]) {
                ruota = w;
                break;
            }
    }
    ParametriPrecursori& p = r.p;
    // The boxes take digits only, as many as they hold; anything else reads as empty.
    p.Precedenti = LeggiCasella(a.precedenti, 2).value_or(0);
    p.NumPrecursori = LeggiCasella(a.precursori, 1).value_or(0);
    p.Successivi = LeggiCasella(a.successivi, 2).value_or(0);
    p.PresenzeMinime = LeggiCasella(a.presenzeMinime, 2).value_or(0);
    p.MinimoNumeri = LeggiCasella(a.minimoNumeri, 1).value_or(0);
    p.sorte = a.sorte == "ambi" ? Sorte::Ambi : Sorte::Ambate;
    p.PerPercentuale = a.ordina != "presenze";
    p.TerzineIntegrali = a.terzine;
    if (!a.numeri.empty())
        p.Considerato = LeggiNumeri(a.numeri);
    else {
        const std::string s =
            config::LeggiImpostazione(ini, config::sezioni::Restrizioni, "NumeriTordelli", std::string(90, '1'));
        for (size_t x = 1; x <= 90; ++x) p.Considerato[x] = x > s.size() || s[x - 1] != '0';
    }
    r.conFormazioni = a.terzine || !a.formazioni.empty();
    if (r.conFormazioni && p.sorte == Sorte::Ambi)
        throw Rifiuta("Le formazioni si analizzano solo come ambate (--sorte ambate).");
    if (!a.formazioni.empty() && !a.terzine) {
        std::string testo = a.formazioni;
        if (std::filesystem::is_regular_file(a.formazioni)) {
            std::ifstream in(a.formazioni, std::ios::binary);
            testo.assign(std::istreambuf_iterator<char>(in), {});
        }
        EsitoValidazione v = ValidaFormazioni(testo, a.verificaDoppie);
        if (!v.errore.vuoto()) throw Rifiuto{v.errore};
        r.formazioni = std::move(v.formazioni);
    }

    // Dates: the period by default ends Successivi draws before the last, and starts 15 years
    // earlier; the verification ends at the end of the saved search range (Lotto) or the last draw.
    const int32_t N = gioco == Gioco::SuperEnalotto ? archivio.NumeroEstrazioniSuper() : archivio.NumeroEstrazioni();
    const int32_t verificaPredefinita =
        gioco == Gioco::SuperEnalotto ? N : config::LeggiIndiciRicerca(ini, N).IndiceFine;
    const std::string aPredefinita = archivio.DataEstrazione(
        N - (p.Successivi > 0 ? p.Successivi : 6), gioco == Gioco::SuperEnalotto ? archives::ArchivioSuper : 1);
    auto risolvi = [&](const std::string& testo, bool precedente) {
        const archives::RisultatoData d = gioco == Gioco::SuperEnalotto
                                              ? archives::ControllaDataSuper(testo, archivio, precedente)
                                              : archives::ControllaData(testo, *storia, precedente);
        if (d.ErroreData) throw Rifiuto{d.messaggio};
        return d.IndiceTrovato;
    };
    std::string da = a.da.empty() ? AnniPrima(aPredefinita, 15) : a.da;
    if (anni && !anni->empty()) {
        const int n = LeggiCasella(*anni, 2).value_or(0);
        if (n == 0) throw Rifiuta("Inserire il n. di anni desiderato");
        da = AnniPrima(a.a.empty() ? aPredefinita : a.a, n);
    }
    p.Inizio = risolvi(da, false);
    p.Fine = risolvi(a.a.empty() ? aPredefinita : a.a, true);
    p.IndiceVerifica = a.verifica.empty() ? verificaPredefinita : risolvi(a.verifica, true);
    switch (gioco) {
        case Gioco::Lotto: r.fonte = FonteEstrazioni::Lotto(*storia, ruota); break;
        case Gioco::SuperEnalotto: r.fonte = FonteEstrazioni::SuperEnalotto(archivio.LeggiTuttiSuper()); break;
        case Gioco::DieciELotto: r.fonte = FonteEstrazioni::DieciELotto(*storia); break;
    }
    return r;
}

const char* NomeColore(Colore c) { return c == Colore::Verde ? "verde" : c == Colore::Marrone ? "marrone" : ""; }

void Mostra(const Contesto& ctx, const ArgomentiPrecursori& a, const Preparato& pr, const EsitoPrecursori& e);

void Precursori(const Contesto& ctx, const ArgomentiPrecursori& a) {
    const archives::Archivio archivio = ctx.ApriArchivi();
    const Preparato pr = Prepara(ctx, a, archivio);
    a.report.Controlla(false);
    Mostra(ctx, a, pr,
           pr.conFormazioni ? AnalisiFormazioni(pr.p, *pr.fonte, pr.formazioni, a.conferma)
                            : AnalisiPrecursori(pr.p, *pr.fonte));
}

void Saruni(const Contesto& ctx, const ArgomentiSaruni& s) {
    const archives::Archivio archivio = ctx.ApriArchivi();
    const Preparato pr = Prepara(ctx, s.base, archivio, &s.anni);
    if (!s.previsione.empty()) {
        // The forecast panel: the sought number or pair, the years back from the end.
        const size_t t = s.previsione.find('-');
        const std::optional<int> x = LeggiCasella(s.previsione.substr(0, t), 2);
        const std::optional<int> y =
            t == std::string::npos ? std::optional<int>(0) : LeggiCasella(s.previsione.substr(t + 1), 2);
        const int anni = LeggiCasella(s.anniPrevisione, 2).value_or(0);
        int32_t inizio = 1;
        if (anni > 0) {
            const archives::RisultatoData d =
                archives::ControllaData(AnniPrima(archivio.DataEstrazione(pr.p.Fine), anni), *archivio.Storia(), false);
            if (d.ErroreData) throw Rifiuto{d.messaggio};
            inizio = d.IndiceTrovato;
        }
        const EsitoPrevisione e = PrevisioneSaruni(*pr.fonte, inizio, pr.p.Fine, anni, x.value_or(0), y.value_or(-1));
        if (!e.errore.vuoto()) throw Rifiuto{e.errore};
        if (!e.avviso.vuoto() && !ctx.json) std::cerr << e.avviso.testo << "\n";
        if (ctx.json) {
            nlohmann::json righe = nlohmann::json::array();
            for (const RigaCompagno& r : e.righe) righe.push_back({{"numero", r.numero}, {"testo", r.testo}});
            StampaJson({{"descrizione", e.descrizione}, {"avviso", e.avviso.testo}, {"righe", righe}});
            return;
        }
        std::cout << e.descrizione << ": " << s.previsione << ", dal " << pr.fonte->DataEstrazione(e.inizio) << " al "
                  << pr.fonte->DataEstrazione(pr.p.Fine) << "\n\nNum Rit.sto Rit.att Rapp. %\n";
        for (const RigaCompagno& r : e.righe)
            std::cout << fmt::format("{:>3} {:>7} {:>7} {:>7}\n", r.testo[0], r.testo[1], r.testo[2], r.testo[3]);
        return;
    }
    s.base.report.Controlla(false);
    ParametriSaruni ps;
    ps.base = pr.p;
    if (!s.posizioni.empty()) {
        ps.PosizioneDeterminata = true;
        ps.Posizioni = {};
        for (char c : s.posizioni) {
            if (c < '1' || c > '5') throw Rifiuta("--posizioni: posizioni da 1 a 5, per esempio 135.");
            ps.Posizioni[static_cast<size_t>(c - '0')] = true;
        }
    }
    ps.Tipo = s.coppie ? TipoPrecursori::Ambi : TipoPrecursori::Numeri;
    ps.AmbiAdiacenti = s.adiacenti;
    Mostra(ctx, s.base, pr, AnalisiSaruni(ps, *pr.fonte));
}

void Mostra(const Contesto& ctx, const ArgomentiPrecursori& a, const Preparato& pr, const EsitoPrecursori& e) {
    if (!e.avviso.vuoto() && !ctx.json) std::cerr << e.avviso.testo << "\n";
    if (!e.domanda.vuoto())
        throw Rifiuto{{e.domanda.testo + "\n(rispondere con --conferma)", e.domanda.titolo, e.domanda.icona}};
    if (!e.errore.vuoto()) throw Rifiuto{e.errore};

    if (!a.report.file.empty()) {
        if (e.lista.empty() || e.presenti.empty()) {
            std::cerr << config::NullaDaEsportare << "\n";
            return;
        }
        const std::vector<std::string> righe = ReportPrecursori(e, *pr.fonte);
        if (archives::Messaggio m = config::ScriviReportSuFile(a.report.file, righe, a.report.Modo()); !m.vuoto())
            throw Rifiuto{m, ErroreInterno};
        if (!ctx.json) {
            std::cout << fmt::format("{} righe scritte in {}\n", e.lista.size(), a.report.file);
            return;
        }
    }
    if (ctx.json) {
        nlohmann::json lista = nlohmann::json::array(), presenti = nlohmann::json::array();
        for (const RigaPrecursori& r : e.lista)
            lista.push_back(
                {{"voce", r.voce}, {"presenze", r.presenze}, {"precursori", r.precursori}, {"testo", r.testo}});
        for (const RigaPresenti& r : e.presenti)
            presenti.push_back({{"voce", r.voce}, {"testo", r.testo}, {"colore", NomeColore(r.colore)}});
        StampaJson({{"descrizione_statistica", e.descrizioneStatistica},
                    {"descrizione_verifica", e.descrizioneVerifica},
                    {"avviso", e.avviso.testo},
                    {"lista", lista},
                    {"presenti", presenti}});
        return;
    }
    // The first column is as wide as the longest formation.
    size_t prima = 10;
    for (const RigaPrecursori& r : e.lista) prima = std::max(prima, r.testo[0].size());
    prima += 2;
    std::cout << e.descrizioneStatistica << "\n\n";
    const auto riga = [&](const std::array<std::string, 4>& x) {
        return fmt::format("{:<{}}{:>9}  {:<44}{}\n", x[0], prima, x[1], x[2], x[3]);
    };
    std::cout << riga(e.titoli);
    for (const RigaPrecursori& r : e.lista) std::cout << riga(r.testo);
    std::cout << "\n" << e.descrizioneVerifica << "\n\n";
    const auto rigaPresenti = [&](const std::array<std::string, 6>& x) {
        return fmt::format("{:<{}}{:<40}{:>8}{:>8}{:>7}{:>8}\n", x[0], prima, x[1], x[2], x[3], x[4], x[5]);
    };
    std::cout << rigaPresenti(e.titoliPresenti);
    for (const RigaPresenti& r : e.presenti) std::cout << rigaPresenti(r.testo);
}

// The formation file: the one given, else the setting FileFormazioni, else Formazioni.txt
// beside the program.
std::string FileLibreria(const Contesto& ctx, std::string file) {
    if (file.empty()) {
        const config::FileIni ini(ctx.FileImpostazioni().string());
        file = config::LeggiImpostazione(ini, config::sezioni::Options, "FileFormazioni", "");
        if (file.empty()) file = (ctx.PercorsoProgramma() / "Formazioni.txt").string();
    }
    return file;
}

std::string LeggiLibreria(const std::string& file) {
    if (!std::filesystem::is_regular_file(file))
        throw Rifiuta("Manca il file formazioni numeriche " + file +
                          " (predefinito: l'impostazione Options FileFormazioni, o Formazioni.txt nella cartella del "
                          "programma).",
                      ErroreInterno);
    std::ifstream in(file, std::ios::binary);
    return std::string((std::istreambuf_iterator<char>(in)), {});
}

// formazioni --libreria: the groups of the formation file after the three built-in ones.
void ElencaLibreria(const Contesto& ctx, std::string file) {
    file = FileLibreria(ctx, file);
    const std::string testo = LeggiLibreria(file);
    const EsitoLibreria l = CaricaLibreria(testo);
    if (ctx.json) {
        nlohmann::json gruppi = nlohmann::json::array();
        for (size_t i = 0; i < l.gruppi.size(); ++i)
            gruppi.push_back({{"nome", l.gruppi[i].Nome},
                              {"numero", i + 1},
                              {"elementi", l.gruppi[i].Elementi.size()},
                              {"dimensione", l.gruppi[i].dimensione},
                              {"campione", l.gruppi[i].campione}});
        StampaJson({{"file", file}, {"gruppi", gruppi}, {"messaggio", l.errore.testo}});
    } else {
        std::cout << fmt::format("{:<40}{:>5}{:>9}{:>10}\n", "Formazione numerica", "N.", "elementi", "");
        for (size_t i = 0; i < l.gruppi.size(); ++i) {
            const auto t = l.gruppi[i].testo(static_cast<int>(i + 1));
            std::cout << fmt::format("{:<40}{}  {}  {}   {}\n", t[0], t[1], t[2], t[3], l.gruppi[i].campione);
        }
    }
    if (!l.errore.vuoto()) throw Rifiuto{l.errore};
}

// formazioni: the validation of typed formations, with its summary, and their saving.
void ControllaFormazioni(const Contesto& ctx, const std::string& sorgente, bool doppie, const std::string& salva,
                         bool sovrascrivi) {
    std::string testo = sorgente;
    if (std::filesystem::is_regular_file(sorgente)) {
        std::ifstream in(sorgente, std::ios::binary);
        testo.assign(std::istreambuf_iterator<char>(in), {});
    }
    const EsitoValidazione v = ValidaFormazioni(testo, doppie);
    if (!v.errore.vuoto()) throw Rifiuto{v.errore};
    if (!salva.empty()) {
        const archives::Messaggio m = config::ScriviReportSuFile(
            salva, v.righe, sovrascrivi ? config::ModoScrittura::Sovrascrivi : config::ModoScrittura::Nuovo);
        if (!m.vuoto())
            throw Rifiuto{m, std::filesystem::exists(salva) && !sovrascrivi ? InputRifiutato : ErroreInterno};
    }
    if (ctx.json) {
        StampaJson({{"formazioni", v.righe},
                    {"scartate", v.scartate},
                    {"doppie", v.doppie},
                    {"riepilogo", v.riepilogo.testo}});
        return;
    }
    std::cout << v.riepilogo.testo;
    if (!salva.empty()) std::cout << "\nMemorizzazione effettuata! (" << salva << ")\n";
}

// formazioni --salva-gruppo / --elimina-gruppo: the named groups of the formation file.
void ModificaLibreria(const Contesto& ctx, const std::string& file, const std::string& salva,
                      const std::string& elimina, const std::string& sorgente, bool doppie, bool conferma) {
    const std::string percorso = FileLibreria(ctx, file);
    const std::string attuale =
        !salva.empty() && !std::filesystem::exists(percorso) ? std::string() : LeggiLibreria(percorso);
    EsitoFileGruppi e;
    if (!salva.empty()) {
        std::string testo = sorgente;
        if (std::filesystem::is_regular_file(sorgente)) {
            std::ifstream in(sorgente, std::ios::binary);
            testo.assign(std::istreambuf_iterator<char>(in), {});
        }
        EsitoValidazione v;
        if (!testo.empty()) v = ValidaFormazioni(testo, doppie);
        if (!v.errore.vuoto()) throw Rifiuto{v.errore};
        e = SalvaGruppo(attuale, salva, v.formazioni, conferma);
    } else {
        e = EliminaGruppo(attuale, elimina, conferma);
    }
    if (!e.domanda.vuoto())
        throw Rifiuto{{e.domanda.testo + "\n(rispondere con --conferma)", e.domanda.titolo, e.domanda.icona}};
    if (!e.errore.vuoto()) throw Rifiuto{e.errore};
    {
        std::ofstream out(percorso, std::ios::binary | std::ios::trunc);
        out << e.testo;
        if (!out) throw Rifiuta("Impossibile scrivere il file " + percorso, ErroreInterno);
    }
    if (ctx.json)
        StampaJson({{"file", percorso}, {"messaggio", e.esito.testo}});
    else
        std::cout << e.esito.testo << " (" << percorso << ")\n";
}

struct ArgomentiGruppi {
    ArgomentiPrecursori base;
    std::string risultati = "1", elementi, gruppi, file;
};

// precursori-gruppi: the elements of the chosen groups that precede an ambata or an ambo.
void PrecursoriGruppi(const Contesto& ctx, const ArgomentiGruppi& a) {
    const archives::Archivio archivio = ctx.ApriArchivi();
    const Preparato pr = Prepara(ctx, a.base, archivio);
    const std::string file = FileLibreria(ctx, a.file);
    EsitoLibreria l;
    if (a.file.empty() && !std::filesystem::is_regular_file(file))
        l.gruppi = GruppiPredefiniti();
    else
        l = CaricaLibreria(LeggiLibreria(file));
    if (!l.errore.vuoto()) throw Rifiuto{l.errore};
    ParametriGruppi p;
    p.Inizio = pr.p.Inizio;
    p.Fine = pr.p.Fine;
    p.IndiceVerifica = pr.p.IndiceVerifica;
    p.Precedenti = pr.p.Precedenti;
    p.Successivi = pr.p.Successivi;
    p.PresenzeMinime = pr.p.PresenzeMinime;
    p.sorte = pr.p.sorte;
    p.Considerato = pr.p.Considerato;
    const std::optional<int> risultati = LeggiCasella(a.risultati, 2);
    if (!risultati || *risultati < 1 || *risultati > MassimoRisultati)
        throw Rifiuta("--risultati: da 1 a 10 migliori risultati per ogni ambata/ambo.");
    p.Risultati = *risultati;
    // The groups ticked by size (cmdAggiorna) and by name.
    if (!a.elementi.empty()) {
        const std::optional<int> n = LeggiCasella(a.elementi, 2);
        if (!n || *n < 1) throw Rifiuta("--elementi: il numero di numeri delle formazioni, da 1 a 20.");
        for (size_t g = 0; g < l.gruppi.size(); ++g)
            if (l.gruppi[g].dimensione == *n) p.Gruppi.push_back(static_cast<int>(g));
    }
    std::stringstream nomi(a.gruppi);
    for (std::string nome; std::getline(nomi, nome, ',');) {
        size_t g = 0;
        while (g < l.gruppi.size() && l.gruppi[g].Nome != nome) ++g;
        if (g == l.gruppi.size()) throw Rifiuta("Formazione numerica sconosciuta: " + nome);
        if (std::find(p.Gruppi.begin(), p.Gruppi.end(), static_cast<int>(g)) == p.Gruppi.end())
            p.Gruppi.push_back(static_cast<int>(g));
    }
    std::sort(p.Gruppi.begin(), p.Gruppi.end());
    a.base.report.Controlla(false);
    const EsitoGruppi e = AnalisiGruppi(p, *pr.fonte, l.gruppi);
    if (!e.avviso.vuoto() && !ctx.json) std::cerr << e.avviso.testo << "\n";
    if (!e.errore.vuoto()) throw Rifiuto{e.errore};
    if (!a.base.report.file.empty()) {
        const std::vector<std::string> righe = ReportGruppi(e, *pr.fonte, p.Successivi);
        if (archives::Messaggio m = config::ScriviReportSuFile(a.base.report.file, righe, a.base.report.Modo());
            !m.vuoto())
            throw Rifiuto{m, ErroreInterno};
        if (!ctx.json) {
            std::cout << fmt::format("{} righe scritte in {}\n", e.lista.size(), a.base.report.file);
            return;
        }
    }
    if (ctx.json) {
        nlohmann::json lista = nlohmann::json::array(), formazioni = nlohmann::json::array(),
                       presenti = nlohmann::json::array();
        auto riga = [&](const RigaGruppi& r) {
            return nlohmann::json{
                {"voce", r.voce},
                {"presenze", r.presenze},
                {"formazione", l.gruppi[static_cast<size_t>(r.gruppo)].Nome},
                {"elemento", l.gruppi[static_cast<size_t>(r.gruppo)].Elementi[static_cast<size_t>(r.elemento)]},
                {"ricorrenze", r.ricorrenze},
                {"presenze_elemento", r.presenzeElemento},
                {"testo", r.testo}};
        };
        for (const RigaGruppi& r : e.lista) lista.push_back(riga(r));
        for (const RigaGruppi& r : e.presenti) presenti.push_back(riga(r));
        for (const RigaFormazionePresente& r : e.formazioni)
            formazioni.push_back({{"formazione", r.testo[1]}, {"presenze", r.conta}, {"testo", r.testo}});
        StampaJson({{"descrizione_statistica", e.descrizioneStatistica},
                    {"descrizione_verifica", e.descrizioneVerifica},
                    {"avviso", e.avviso.testo},
                    {"lista", lista},
                    {"formazioni", formazioni},
                    {"presenti", presenti}});
        return;
    }
    size_t nome = 20, elemento = 10;
    for (const RigaGruppi& r : e.lista) {
        nome = std::max(nome, r.testo[2].size());
        elemento = std::max(elemento, r.testo[3].size());
    }
    const auto riga = [&](const std::array<std::string, 6>& x) {
        return fmt::format("{:<7}{:>8}  {:<{}}  {:<{}}{:>11}{:>12}\n", x[0], x[1], x[2], nome, x[3], elemento, x[4],
                           x[5]);
    };
    std::cout << e.descrizioneStatistica << "\n\n" << riga(e.titoli);
    for (const RigaGruppi& r : e.lista) std::cout << riga(r.testo);
    std::cout << "\n" << e.descrizioneVerifica << "\n\nFormazioni numeriche attualmente presenti\n";
    for (const RigaFormazionePresente& r : e.formazioni)
        std::cout << fmt::format("{:>8}  {:<{}}  {:<{}}  {}\n", r.testo[0], r.testo[1], nome, r.testo[2], elemento,
                                 r.testo[3]);
    std::cout << "\nPrecursori attualmente presenti\n" << riga(e.titoli);
    for (const RigaGruppi& r : e.presenti) std::cout << riga(r.testo);
}

}  // namespace

void AggiungiComandiPrecursori(CLI::App& app, Contesto& ctx) {
    auto a = std::make_shared<ArgomentiPrecursori>();
    auto* c = app.add_subcommand("precursori",
                                 "La scia inversa dei precursori: ambate, ambi o formazioni e i precursori presenti");
    c->add_option("--gioco", a->gioco, "lotto (predefinito), superenalotto, 10elotto")
        ->check(CLI::IsMember({"lotto", "superenalotto", "10elotto"}));
    c->add_option("--ruota", a->ruota, "Lotto: la ruota, BA..NZ (predefinito: impostazione Ruota)");
    c->add_option("--da", a->da, "Inizio del periodo GG/MM/AAAA (predefinito: 15 anni prima della fine)");
    c->add_option("--a", a->a, "Fine del periodo (predefinito: l'ultima estrazione meno i colpi successivi)");
    c->add_option("--verifica", a->verifica, "Ultima estrazione della verifica (predefinito: fine ricerca salvata)");
    c->add_option("--precedenti", a->precedenti, "Colpi precedenti, da 1 a 99 (predefinito 6)");
    c->add_option("--precursori", a->precursori, "Precursori da tenere, da 1 a 9 (predefinito 5)");
    c->add_option("--successivi", a->successivi, "Colpi successivi della verifica, da 1 a 99 (predefinito 6)");
    c->add_option("--sorte", a->sorte, "ambate (predefinito) o ambi")->check(CLI::IsMember({"ambate", "ambi"}));
    c->add_option("--ordina", a->ordina, "percentuale (predefinito) o presenze")
        ->check(CLI::IsMember({"percentuale", "presenze"}));
    c->add_option("--numeri", a->numeri, "Numeri da considerare, come 1,2,5-9 (predefinito: impostazione)");
    c->add_option("--formazioni", a->formazioni, "Formazioni numeriche: un file o il testo, come \"1.2.3;4 5\"");
    c->add_flag("--verifica-doppie", a->verificaDoppie, "Scarta le formazioni doppie");
    c->add_flag("--terzine-integrali", a->terzine, "Analisi di tutte le 117.480 terzine");
    c->add_option("--presenze-minime", a->presenzeMinime, "Formazioni: presenze minime nel periodo (predefinito 2)");
    c->add_option("--minimo-numeri", a->minimoNumeri,
                  "Formazioni: minimo di numeri presenti, da 1 a 5 (predefinito 2)");
    c->add_flag("--conferma", a->conferma, "Risponde sì alla domanda sulle formazioni troppo corte");
    a->report.Aggiungi(c, "Scrive la lista dei precursori in un file di testo");
    c->callback([&ctx, a] { Precursori(ctx, *a); });

    auto s = std::make_shared<ArgomentiSaruni>();
    auto* cs = app.add_subcommand("precursori-saruni",
                                  "Precursori Saruni (Lotto): periodo in anni, posizioni, ambi come precursori, "
                                  "previsione dei numeri in ritardo con un'ambata o un ambo");
    cs->add_option("--ruota", s->base.ruota, "La ruota, BA..NZ (predefinito: impostazione Ruota)");
    cs->add_option("--da", s->base.da, "Inizio del periodo GG/MM/AAAA (predefinito: 15 anni prima della fine)");
    cs->add_option("--anni", s->anni, "Il periodo in anni prima della fine, invece di --da");
    cs->add_option("--a", s->base.a, "Fine del periodo (predefinito: l'ultima estrazione meno i colpi successivi)");
    cs->add_option("--verifica", s->base.verifica, "Ultima estrazione della verifica");
    cs->add_option("--precedenti", s->base.precedenti, "Colpi precedenti, da 1 a 99 (predefinito 6)");
    cs->add_option("--precursori", s->base.precursori, "Precursori da tenere, da 1 a 9 (predefinito 5)");
    cs->add_option("--successivi", s->base.successivi, "Colpi successivi della verifica (predefinito 6)");
    cs->add_option("--sorte", s->base.sorte, "ambate (predefinito) o ambi")->check(CLI::IsMember({"ambate", "ambi"}));
    cs->add_option("--ordina", s->base.ordina, "percentuale (predefinito) o presenze")
        ->check(CLI::IsMember({"percentuale", "presenze"}));
    cs->add_option("--numeri", s->base.numeri, "Numeri da considerare, come 1,2,5-9");
    cs->add_option("--posizioni", s->posizioni,
                   "Solo queste posizioni nelle estrazioni precedenti, come 135 (predefinito: tutte)");
    cs->add_flag("--precursori-ambi", s->coppie, "Precursori formati da AMBI invece che da numeri");
    cs->add_flag("--ambi-adiacenti", s->adiacenti, "Solo ambi adiacenti o uniti");
    cs->add_option("--previsione", s->previsione, "Previsione per un'ambata (27) o un ambo (12-34)");
    cs->add_option("--anni-previsione", s->anniPrevisione, "Anni della previsione (predefinito 15)");
    s->base.report.Aggiungi(cs, "Scrive la lista dei precursori in un file di testo");
    cs->callback([&ctx, s] { Saruni(ctx, *s); });

    auto gr = std::make_shared<ArgomentiGruppi>();
    auto* cg = app.add_subcommand("precursori-gruppi",
                                  "La scia inversa dei precursori (formazioni numeriche): gli elementi dei gruppi "
                                  "del file formazioni che precedono un'ambata o un ambo");
    cg->add_option("--ruota", gr->base.ruota, "La ruota, BA..NZ (predefinito: impostazione Ruota)");
    cg->add_option("--da", gr->base.da, "Inizio del periodo GG/MM/AAAA (predefinito: 15 anni prima della fine)");
    cg->add_option("--a", gr->base.a, "Fine del periodo (predefinito: l'ultima estrazione meno i colpi successivi)");
    cg->add_option("--verifica", gr->base.verifica, "Ultima estrazione della verifica");
    cg->add_option("--precedenti", gr->base.precedenti, "Colpi precedenti, da 1 a 99 (predefinito 6)");
    cg->add_option("--successivi", gr->base.successivi, "Colpi successivi della verifica (predefinito 6)");
    cg->add_option("--presenze-minime", gr->base.presenzeMinime, "Ricorrenze minime, da 1 a 99 (predefinito 2)");
    cg->add_option("--risultati", gr->risultati, "Migliori risultati per ogni ambata/ambo, da 1 a 10 (predefinito 1)");
    cg->add_option("--sorte", gr->base.sorte, "ambate (predefinito) o ambi")->check(CLI::IsMember({"ambate", "ambi"}));
    cg->add_option("--numeri", gr->base.numeri, "Numeri da considerare, come 1,2,5-9 (predefinito: impostazione)");
    cg->add_option("--elementi", gr->elementi, "Seleziona i gruppi di formazioni composte da N numeri");
    cg->add_option("--gruppi", gr->gruppi, "Seleziona i gruppi per nome, separati da virgole");
    cg->add_option("--file", gr->file,
                   "Il file formazioni numeriche (predefinito: impostazione FileFormazioni o Formazioni.txt)");
    gr->base.report.Aggiungi(cg, "Scrive il report delle formazioni numeriche in un file di testo");
    cg->callback([&ctx, gr] { PrecursoriGruppi(ctx, *gr); });

    struct ArgomentiFormazioni {
        std::string sorgente, salva, file, salvaGruppo, eliminaGruppo;
        bool doppie = false, sovrascrivi = false, libreria = false, conferma = false;
    };
    auto f = std::make_shared<ArgomentiFormazioni>();
    auto* fc = app.add_subcommand("formazioni", "Valida formazioni numeriche (file o testo) e le salva");
    fc->add_option("formazioni", f->sorgente, "Un file o il testo delle formazioni (con --libreria: il file)");
    fc->add_flag("--libreria", f->libreria,
                 "Elenca i gruppi del file formazioni numeriche (predefinito: impostazione FileFormazioni o "
                 "Formazioni.txt)");
    fc->add_flag("--verifica-doppie", f->doppie, "Scarta le formazioni doppie");
    fc->add_option("--salva", f->salva, "Salva le formazioni validate, una per riga (Formazioni.txt)");
    fc->add_flag("--sovrascrivi", f->sovrascrivi, "Se il file esiste, lo sostituisce");
    fc->add_option("--file", f->file,
                   "Il file formazioni numeriche dei gruppi (predefinito: impostazione FileFormazioni o "
                   "Formazioni.txt)");
    fc->add_option("--salva-gruppo", f->salvaGruppo, "Salva le formazioni validate come gruppo con questo nome");
    fc->add_option("--elimina-gruppo", f->eliminaGruppo, "Elimina il gruppo con questo nome dal file");
    fc->add_flag("--conferma", f->conferma, "Risponde sì alla domanda (gruppo esistente, eliminazione)");
    fc->callback([&ctx, f] {
        if (f->libreria) return ElencaLibreria(ctx, f->file.empty() ? f->sorgente : f->file);
        if (!f->salvaGruppo.empty() || !f->eliminaGruppo.empty())
            return ModificaLibreria(ctx, f->file, f->salvaGruppo, f->eliminaGruppo, f->sorgente, f->doppie,
                                    f->conferma);
        if (f->sorgente.empty()) throw Rifiuta("Nessuna formazione da validare! Indicare un file o il testo.");
        ControllaFormazioni(ctx, f->sorgente, f->doppie, f->salva, f->sovrascrivi);
    });
}

const GruppoComandi registrazione{80, AggiungiComandiPrecursori};

}  // namespace gorgo::cli
