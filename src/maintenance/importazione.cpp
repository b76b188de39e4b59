#include "maintenance/importazione.h"

#include <fmt/format.h>
#include <zip.h>
#include <algorithm>
#include <array>
#include <cctype>
#include <charconv>
#include <memory>

namespace gorgo::maintenance {

namespace fs = std::filesystem;

namespace {

constexpr std::array<std::string_view, 12> kCodici = {"",   "BA", "CA", "FI", "GE", "MI",
                                                      "NA", "PA", "RM", "TO", "VE", "RN"};

// A text larger than this, or a zip entry, is no archive of draws (the whole Lotto history
// in the public layout is about 3 MB).
constexpr uint64_t kMassimoTesto = 64u << 20;

archives::Messaggio Errore(std::string testo) { return {std::move(testo), "Errore", archives::Icona::Stop}; }

std::string_view Spoglia(std::string_view s) {
    while (!s.empty() && (s.front() == ' ' || s.front() == '\t' || s.front() == '\r')) s.remove_prefix(1);
    while (!s.empty() && (s.back() == ' ' || s.back() == '\t' || s.back() == '\r')) s.remove_suffix(1);
    return s;
}

// Fields of a line: on tabs or semicolons when it has any (empty fields kept, trailing ones
// dropped), else on runs of blanks.
std::vector<std::string_view> Campi(std::string_view riga) {
    std::vector<std::string_view> v;
    if (riga.find_first_of("\t;") != std::string_view::npos) {
        size_t inizio = 0;
        while (true) {
            const size_t fine = riga.find_first_of("\t;", inizio);
            v.push_back(Spoglia(riga.substr(inizio, fine == std::string_view::npos ? fine : fine - inizio)));
            if (fine == std::string_view::npos) break;
            inizio = fine + 1;
        }
        while (!v.empty() && v.back().empty()) v.pop_back();
    } else {
        size_t i = 0;
        while (i < riga.size()) {
            while (i < riga.size() && std::isspace(static_cast<unsigned char>(riga[i]))) ++i;
            const size_t inizio = i;
            while (i < riga.size() && !std::isspace(static_cast<unsigned char>(riga[i]))) ++i;
            if (i > inizio) v.push_back(riga.substr(inizio, i - inizio));
        }
    }
    return v;
}

std::optional<int> Intero(std::string_view s) {
    if (s.empty() || s.size() > 9) return std::nullopt;
    int n = 0;
    const auto [p, ec] = std::from_chars(s.data(), s.data() + s.size(), n);
    if (ec != std::errc{} || p != s.data() + s.size()) return std::nullopt;
    return n;
}

// YYYY/MM/DD, YYYY-MM-DD, DD/MM/YYYY (also with '-' or '.'), one or two digits for day and
// month; a real calendar date.
std::optional<archives::Data> LeggiData(std::string_view s) {
    const size_t a = s.find_first_of("/-.");
    if (a == std::string_view::npos) return std::nullopt;
    const char sep = s[a];
    const size_t b = s.find(sep, a + 1);
    if (b == std::string_view::npos || s.find(sep, b + 1) != std::string_view::npos) return std::nullopt;
    const std::string_view p1 = s.substr(0, a), p2 = s.substr(a + 1, b - a - 1), p3 = s.substr(b + 1);
    for (std::string_view p : {p1, p2, p3})
        if (p.empty() || !std::all_of(p.begin(), p.end(), [](char c) { return c >= '0' && c <= '9'; }))
            return std::nullopt;
    archives::Data d;
    if (p1.size() == 4 && p2.size() <= 2 && p3.size() <= 2)
        d = archives::Data{*Intero(p3), *Intero(p2), *Intero(p1)};
    else if (p3.size() == 4 && p1.size() <= 2 && p2.size() <= 2)
        d = archives::Data{*Intero(p1), *Intero(p2), *Intero(p3)};
    else
        return std::nullopt;
    if (!d.valida()) return std::nullopt;
    return d;
}

// A number of a draw; the message names the line.
std::optional<int> LeggiNumero(std::string_view campo, int riga, std::string& errore, int minimo = 1) {
    const auto n = Intero(campo);
    if (!n) {
        errore = fmt::format("Riga {}: \"{}\" non è un numero.", riga, campo);
        return std::nullopt;
    }
    if (*n < minimo || *n > 90) {
        errore = fmt::format("Riga {}: il numero {} è fuori dall'intervallo da 1 a 90.", riga, *n);
        return std::nullopt;
    }
    return n;
}

struct Riga {
    int numero;
    std::string_view testo;
};

// The lines of a text with their numbers from 1; blank lines are left out, a byte order
// mark at the start is dropped.
std::vector<Riga> Righe(std::string_view testo) {
    if (testo.substr(0, 3) == "\xEF\xBB\xBF") testo.remove_prefix(3);
    std::vector<Riga> v;
    int numero = 0;
    size_t i = 0;
    while (i < testo.size()) {
        size_t fine = testo.find_first_of("\r\n", i);
        if (fine == std::string_view::npos) fine = testo.size();
        ++numero;
        const std::string_view r = Spoglia(testo.substr(i, fine - i));
        if (!r.empty()) v.push_back({numero, r});
        i = fine;
        if (i < testo.size() && testo[i] == '\r') ++i;
        if (i < testo.size() && testo[i] == '\n') ++i;
    }
    return v;
}

// A draw of either game as read, with the line it starts at.
template <typename Record>
struct Letta {
    Record record;
    archives::Data data;
    int riga;
};

// The order of the draws: oldest or newest first, told by the first and last; any row against
// that order, or a date given twice, names its line. Leaves them oldest first.
template <typename Record>
std::string ControllaOrdine(std::vector<Letta<Record>>& v, const std::vector<int>& righeDate) {
    if (v.size() < 2) return {};
    const bool discendente = v.back().data < v.front().data;
    for (size_t i = 1; i < v.size(); ++i) {
        const archives::Data& prima = v[i - 1].data;
        const archives::Data& questa = v[i].data;
        if (prima == questa)
            return fmt::format("Riga {}: l'estrazione del {} compare già alla riga {}.", v[i].riga, questa.testo(),
                               righeDate[i - 1]);
        if ((questa < prima) != discendente)
            return fmt::format(
                "Riga {}: la data {} non è in ordine con quella della riga {} ({}): le righe devono "
                "seguire l'ordine delle date.",
                v[i].riga, questa.testo(), righeDate[i - 1], prima.testo());
    }
    if (discendente) std::reverse(v.begin(), v.end());
    return {};
}

// NumeroAnno by the invariant, continuing from a previous draw (none: the archive is empty).
template <typename Record>
std::string Numera(std::vector<Letta<Record>>& v, std::optional<archives::Data> dataPrima, int numeroAnnoPrima) {
    for (auto& l : v) {
        const int n = dataPrima && dataPrima->anno == l.data.anno ? numeroAnnoPrima + 1 : 1;
        if (n > 255)
            return fmt::format("Riga {}: l'anno {} avrebbe più di 255 estrazioni, che l'archivio non può contenere.",
                               l.riga, l.data.anno);
        l.record.NumeroAnno = static_cast<uint8_t>(n);
        dataPrima = l.data;
        numeroAnnoPrima = n;
    }
    return {};
}

struct Lettura {
    std::string errore;
    int rigaErrore = 0;
    std::vector<Letta<archives::RecordEstrazione>> lotto;
    std::vector<Letta<archives::RecordSuperEnalotto>> super;
};

int RigaDi(const std::string& errore) {
    if (errore.rfind("Riga ", 0) != 0) return 0;
    return Intero(std::string_view(errore).substr(5, errore.find(':') - 5)).value_or(0);
}

Lettura LeggiLotto(std::string_view testo) {
    Lettura l;
    auto& v = l.lotto;
    std::array<int, 12> rigaRuota{};  // the line of each wheel of the draw being read
    std::vector<int> righe;
    for (const Riga& r : Righe(testo)) {
        const auto campi = Campi(r.testo);
        if (campi.size() != 7) {
            l.errore = fmt::format(
                "Riga {}: formato non riconosciuto, attesi data, ruota e cinque numeri "
                "separati da tabulazioni (\"{}\").",
                r.numero, r.testo.substr(0, 60));
            return l;
        }
        const auto d = LeggiData(campi[0]);
        if (!d) {
            l.errore = fmt::format("Riga {}: data non valida \"{}\".", r.numero, campi[0]);
            return l;
        }
        const int ruota = RuotaDaCodice(campi[1]);
        if (ruota == 0) {
            l.errore = fmt::format("Riga {}: ruota sconosciuta \"{}\".", r.numero, campi[1]);
            return l;
        }
        std::array<uint8_t, 5> numeri{};
        for (size_t p = 0; p < 5; ++p) {
            const auto n = LeggiNumero(campi[2 + p], r.numero, l.errore);
            if (!n) return l;
            for (size_t q = 0; q < p; ++q)
                if (numeri[q] == *n) {
                    l.errore = fmt::format("Riga {}: il numero {} è ripetuto sulla ruota di {}.", r.numero, *n,
                                           Spoglia(archives::NomiRuota[static_cast<size_t>(ruota)]));
                    return l;
                }
            numeri[p] = static_cast<uint8_t>(*n);
        }
        if (v.empty() || !(v.back().data == *d)) {
            // A new draw; the order against the previous one is checked once all are read.
            Letta<archives::RecordEstrazione> nuova{archives::RecordEstrazione{}, *d, r.numero};
            nuova.record.impostaData(*d);
            v.push_back(nuova);
            righe.push_back(r.numero);
            rigaRuota.fill(0);
        }
        if (rigaRuota[static_cast<size_t>(ruota)] != 0) {
            l.errore = fmt::format("Riga {}: la ruota di {} del {} compare già alla riga {}.", r.numero,
                                   Spoglia(archives::NomiRuota[static_cast<size_t>(ruota)]), d->testo(),
                                   rigaRuota[static_cast<size_t>(ruota)]);
            return l;
        }
        rigaRuota[static_cast<size_t>(ruota)] = r.numero;
        righe.back() = r.numero;
        std::copy(numeri.begin(), numeri.end(), v.back().record.Ruota[ruota - 1]);
    }
    // A date met again after others: the first line of its second run is the one named.
    l.errore = ControllaOrdine(v, righe);
    return l;
}

Lettura LeggiSuper(std::string_view testo) {
    Lettura l;
    auto& v = l.super;
    std::vector<int> righe;
    bool prima = true;
    for (const Riga& r : Righe(testo)) {
        auto campi = Campi(r.testo);
        // An optional contest number before the date.
        if (campi.size() >= 2 && !LeggiData(campi[0]) && Intero(campi[0]) && LeggiData(campi[1]))
            campi.erase(campi.begin());
        const auto d = campi.empty() ? std::nullopt : LeggiData(campi[0]);
        if (!d && prima) {  // a heading line
            prima = false;
            continue;
        }
        prima = false;
        if (!d) {
            l.errore = fmt::format("Riga {}: data non valida \"{}\".", r.numero, campi.empty() ? "" : campi[0]);
            return l;
        }
        if (campi.size() < 7 || campi.size() > 9) {
            l.errore = fmt::format(
                "Riga {}: formato non riconosciuto, attesi data, sei numeri, Jolly e SuperStar "
                "separati da tabulazioni o punti e virgola (\"{}\").",
                r.numero, r.testo.substr(0, 60));
            return l;
        }
        Letta<archives::RecordSuperEnalotto> nuova{archives::RecordSuperEnalotto{}, *d, r.numero};
        nuova.record.impostaData(*d);
        for (size_t p = 0; p < 6; ++p) {
            const auto n = LeggiNumero(campi[1 + p], r.numero, l.errore);
            if (!n) return l;
            for (size_t q = 0; q < p; ++q)
                if (nuova.record.Sestina[q] == *n) {
                    l.errore = fmt::format("Riga {}: il numero {} è ripetuto nella sestina.", r.numero, *n);
                    return l;
                }
            nuova.record.Sestina[p] = static_cast<uint8_t>(*n);
        }
        // Jolly and SuperStar: empty or 0 where the draw had none.
        for (size_t k = 7; k < campi.size(); ++k) {
            if (campi[k].empty()) continue;
            const auto n = LeggiNumero(campi[k], r.numero, l.errore, 0);
            if (!n) return l;
            (k == 7 ? nuova.record.Jolly : nuova.record.SuperStar) = static_cast<uint8_t>(*n);
        }
        v.push_back(nuova);
        righe.push_back(r.numero);
    }
    l.errore = ControllaOrdine(v, righe);
    return l;
}

// The archive's last draw of the game, when there is one.
struct Ultima {
    archives::Data data;
    int numeroAnno;
    std::string testo;
};

std::optional<Ultima> UltimaEstrazione(const archives::Archivio& a, Gioco gioco) {
    if (gioco == Gioco::Lotto) {
        if (a.NumeroEstrazioni() < 1) return std::nullopt;
        const auto r = a.LeggiEstrazione(a.NumeroEstrazioni());
        return Ultima{r.data(), r.NumeroAnno, r.dataTesto()};
    }
    if (a.NumeroEstrazioniSuper() < 1) return std::nullopt;
    const auto r = a.LeggiRecordSuper(a.NumeroEstrazioniSuper());
    return Ultima{r.data(), r.NumeroAnno, r.dataTesto()};
}

// The whole preparation: read, check against the archive, keep the draws to append.
struct Preparazione {
    EsitoImportazione esito;
    std::vector<archives::RecordEstrazione> lotto;
    std::vector<archives::RecordSuperEnalotto> super;
};

template <typename Record>
void Prepara(Preparazione& p, std::vector<Letta<Record>>& lette, std::vector<Record>& uscita,
             const std::optional<Ultima>& ultima) {
    EsitoImportazione& e = p.esito;
    e.estrazioni = static_cast<int32_t>(lette.size());
    if (lette.empty()) {
        e.messaggio = Errore("Il file non contiene estrazioni.");
        return;
    }
    e.primaData = lette.front().data.testo();
    e.ultimaData = lette.back().data.testo();
    if (ultima) {
        e.ultimaArchivio = ultima->testo;
        if (ultima->data < lette.front().data) {
            e.messaggio = MessaggioDiscontinuita();
            e.dettaglio = fmt::format("il file inizia il {}, dopo l'ultima estrazione memorizzata del {}", e.primaData,
                                      ultima->testo);
            return;
        }
        std::erase_if(lette, [&](const Letta<Record>& l) { return !(ultima->data < l.data); });
    }
    const std::string errore = ultima ? Numera(lette, ultima->data, ultima->numeroAnno) : Numera(lette, {}, 0);
    if (!errore.empty()) {
        e.messaggio = Errore(errore);
        e.riga = RigaDi(errore);
        return;
    }
    for (const auto& l : lette) uscita.push_back(l.record);
    e.riuscito = true;
    e.creato = !ultima;
    e.aggiunte = static_cast<int32_t>(uscita.size());
    if (uscita.empty()) e.messaggio = MessaggioNienteDiNuovo();
}

Preparazione Prepara(const archives::Archivio& archivio, std::string_view testo, Gioco gioco) {
    Preparazione p;
    Lettura l = gioco == Gioco::Lotto ? LeggiLotto(testo) : LeggiSuper(testo);
    if (!l.errore.empty()) {
        p.esito.messaggio = Errore(l.errore);
        p.esito.riga = RigaDi(l.errore);
        return p;
    }
    if (gioco == Gioco::Lotto && archivio.NumeroEstrazioni() == 0 && archivio.NumeroAnni() > 0) {
        p.esito.messaggio = Errore(
            "Il file anni.ind contiene degli anni ma Estrazioni.ind è vuoto: "
            "importazione impossibile.");
        return p;
    }
    const auto ultima = UltimaEstrazione(archivio, gioco);
    if (gioco == Gioco::Lotto)
        Prepara(p, l.lotto, p.lotto, ultima);
    else
        Prepara(p, l.super, p.super, ultima);
    return p;
}

std::string Minuscolo(std::string_view s) {
    std::string r(s);
    for (char& c : r) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return r;
}

}  // namespace

int RuotaDaCodice(std::string_view codice) {
    std::string c(Spoglia(codice));
    for (char& ch : c) ch = static_cast<char>(std::toupper(static_cast<unsigned char>(ch)));
    if (c == "RO") return 8;
    if (c == "NZ") return 11;
    for (int w = 1; w <= archives::NumeroRuote; ++w)
        if (c == kCodici[static_cast<size_t>(w)]) return w;
    return 0;
}

std::string_view CodicePubblico(int ruota) {
    return ruota >= 1 && ruota <= archives::NumeroRuote ? kCodici[static_cast<size_t>(ruota)] : std::string_view{};
}

TestoLetto LeggiTesto(std::string_view testo, Gioco gioco) {
    TestoLetto t;
    Lettura l = gioco == Gioco::Lotto ? LeggiLotto(testo) : LeggiSuper(testo);
    std::string errore = l.errore;
    if (errore.empty()) errore = gioco == Gioco::Lotto ? Numera(l.lotto, {}, 0) : Numera(l.super, {}, 0);
    t.esito.estrazioni = static_cast<int32_t>(gioco == Gioco::Lotto ? l.lotto.size() : l.super.size());
    if (!errore.empty()) {
        t.esito.messaggio = Errore(errore);
        t.esito.riga = RigaDi(errore);
        return t;
    }
    for (const auto& x : l.lotto) t.lotto.push_back(x.record);
    for (const auto& x : l.super) t.super.push_back(x.record);
    t.esito.riuscito = true;
    return t;
}

EsitoImportazione ControllaTesto(const archives::Archivio& archivio, std::string_view testo, Gioco gioco) {
    return Prepara(archivio, testo, gioco).esito;
}

EsitoImportazione ImportaTesto(archives::Archivio& archivio, std::string_view testo, Gioco gioco) {
    Preparazione p = Prepara(archivio, testo, gioco);
    EsitoImportazione& e = p.esito;
    if (!e.riuscito || e.aggiunte == 0) return e;
    if (gioco == Gioco::Lotto)
        e.anniAggiunti = AccodaEstrazioni(archivio, p.lotto);
    else
        AccodaEstrazioniSuper(archivio, p.super);
    e.ultimaArchivio = gioco == Gioco::Lotto
                           ? archivio.DataEstrazione(archivio.NumeroEstrazioni())
                           : archivio.DataEstrazione(archivio.NumeroEstrazioniSuper(), archives::ArchivioSuper);
    const std::string_view nomeGioco = gioco == Gioco::Lotto ? "del Lotto" : "del SuperEnalotto";
    e.messaggio = {e.creato ? fmt::format("Archivio delle estrazioni {} creato: {} estrazioni dal {} al {}.", nomeGioco,
                                          e.aggiunte, e.primaData, e.ultimaData)
                            : fmt::format("Importazione archivio {} al {} effettuata: {} estrazioni aggiunte.",
                                          nomeGioco, e.ultimaArchivio, e.aggiunte),
                   std::string(TitoloImportazione), archives::Icona::Informazione};
    return e;
}

bool SembraZip(std::string_view dati) {
    return dati.substr(0, 4) == std::string_view("PK\3\4", 4) || dati.substr(0, 4) == std::string_view("PK\5\6", 4);
}

std::optional<std::string> EstraiTestoZip(std::string_view dati, std::string* errore) {
    auto rifiuta = [&](std::string testo) -> std::optional<std::string> {
        if (errore) *errore = std::move(testo);
        return std::nullopt;
    };
    zip_error_t ze;
    zip_error_init(&ze);
    zip_source_t* sorgente = zip_source_buffer_create(dati.data(), dati.size(), 0, &ze);
    if (!sorgente) {
        zip_error_fini(&ze);
        return rifiuta("Il file non è un archivio zip valido.");
    }
    zip_t* z = zip_open_from_source(sorgente, ZIP_RDONLY, &ze);
    zip_error_fini(&ze);
    if (!z) {
        zip_source_free(sorgente);
        return rifiuta("Il file non è un archivio zip valido.");
    }
    const std::unique_ptr<zip_t, decltype(&zip_discard)> chiudi(z, &zip_discard);

    const zip_int64_t voci = zip_get_num_entries(z, 0);
    zip_int64_t scelta = -1, primoFile = -1, testi = 0;
    for (zip_int64_t i = 0; i < voci; ++i) {
        const char* nome = zip_get_name(z, static_cast<zip_uint64_t>(i), 0);
        if (!nome) continue;
        const std::string n = Minuscolo(nome);
        if (n.empty() || n.back() == '/') continue;  // a folder
        if (primoFile < 0) primoFile = i;
        if (n.size() >= 4 && n.compare(n.size() - 4, 4, ".txt") == 0) {
            if (testi++ == 0) scelta = i;
        }
    }
    if (scelta < 0) scelta = primoFile;
    if (scelta < 0) return rifiuta("L'archivio zip non contiene alcun file.");

    const std::string nome = zip_get_name(z, static_cast<zip_uint64_t>(scelta), 0);
    zip_stat_t st;
    zip_stat_init(&st);
    if (zip_stat_index(z, static_cast<zip_uint64_t>(scelta), 0, &st) != 0 || !(st.valid & ZIP_STAT_SIZE))
        return rifiuta(fmt::format("Impossibile leggere {} dall'archivio zip.", nome));
    if (st.size > kMassimoTesto)
        return rifiuta(fmt::format("Il file {} dell'archivio zip è troppo grande ({} byte).", nome, st.size));
    zip_file_t* f = zip_fopen_index(z, static_cast<zip_uint64_t>(scelta), 0);
    if (!f)
        return rifiuta(
            fmt::format("Impossibile leggere {} dall'archivio zip (compressione o cifratura non supportata).", nome));
    std::string testo(static_cast<size_t>(st.size), '\0');
    zip_uint64_t letti = 0;
    while (letti < st.size) {
        const zip_int64_t r = zip_fread(f, testo.data() + letti, st.size - letti);
        if (r <= 0) break;
        letti += static_cast<zip_uint64_t>(r);
    }
    // The CRC is checked at the end of the entry: read one byte more to get there.
    char extra;
    const bool errato = letti != st.size || zip_fread(f, &extra, 1) != 0;
    zip_fclose(f);
    if (errato) return rifiuta(fmt::format("Il file {} nell'archivio zip è danneggiato.", nome));
    return testo;
}

EsitoImportazione ControllaDati(const archives::Archivio& archivio, std::string_view dati, Gioco gioco) {
    if (!SembraZip(dati)) return ControllaTesto(archivio, dati, gioco);
    std::string errore;
    const auto testo = EstraiTestoZip(dati, &errore);
    if (!testo) {
        EsitoImportazione e;
        e.messaggio = Errore(errore);
        return e;
    }
    return ControllaTesto(archivio, *testo, gioco);
}

EsitoImportazione ImportaDati(archives::Archivio& archivio, std::string_view dati, Gioco gioco) {
    return SembraZip(dati) ? ImportaZip(archivio, dati, gioco) : ImportaTesto(archivio, dati, gioco);
}

EsitoImportazione ImportaZip(archives::Archivio& archivio, std::string_view zip, Gioco gioco) {
    std::string errore;
    const auto testo = EstraiTestoZip(zip, &errore);
    if (!testo) {
        EsitoImportazione e;
        e.messaggio = Errore(errore);
        return e;
    }
    return ImportaTesto(archivio, *testo, gioco);
}

EsitoImportazione ImportaFile(archives::Archivio& archivio, const fs::path& file, Gioco gioco) {
    const auto dati = LeggiFileAggiornamento(file);
    if (!dati) {
        EsitoImportazione e;
        e.messaggio = ErrFile(file.string());
        return e;
    }
    return ImportaDati(archivio, *dati, gioco);
}

std::string EsportaTesto(const archives::Archivio& archivio) {
    std::string s;
    const int32_t n = archivio.NumeroEstrazioni();
    s.reserve(static_cast<size_t>(n) * 11 * 26);
    constexpr int32_t kBlocco = 4096;
    for (int32_t da = 1; da <= n; da += kBlocco) {
        for (const archives::RecordEstrazione& r : archivio.LeggiEstrazioni(da, std::min(n, da + kBlocco - 1))) {
            const archives::Data d = r.data();
            const std::string data = fmt::format("{:04}/{:02}/{:02}", d.anno, d.mese, d.giorno);
            for (int w = 1; w <= archives::NumeroRuote; ++w) {
                const uint8_t* c = r.Ruota[w - 1];
                if (!(c[0] | c[1] | c[2] | c[3] | c[4])) continue;
                fmt::format_to(std::back_inserter(s), "{}\t{}\t{}\t{}\t{}\t{}\t{}\n", data, CodicePubblico(w), c[0],
                               c[1], c[2], c[3], c[4]);
            }
        }
    }
    return s;
}

void EsportaTesto(const archives::Archivio& archivio, const fs::path& file) {
    if (FileDellArchivio(archivio, file))
        throw archives::ErroreArchivio(MessaggioFileDellArchivio(file.string()).testo);
    ScriviFileSostituendo(file, EsportaTesto(archivio));
}

}  // namespace gorgo::maintenance
