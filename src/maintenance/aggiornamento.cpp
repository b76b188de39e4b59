#include "maintenance/aggiornamento.h"

#include <fcntl.h>
#include <fmt/format.h>
#include <unistd.h>
#include <algorithm>
#include <cstring>
#include <fstream>
#include <vector>

namespace gorgo::maintenance {

namespace fs = std::filesystem;

namespace {

template <typename Record>
std::string_view Byte(const Record& r) {
    return {reinterpret_cast<const char*>(&r), sizeof r};
}

template <typename Record>
std::string_view Byte(std::span<const Record> v) {
    return {reinterpret_cast<const char*>(v.data()), v.size_bytes()};
}

// The date of a record of either kind, from its eight digits: nothing unless a real date.
std::optional<archives::Data> DataRecord(std::string_view record, Gioco gioco) {
    const auto d = archives::Data::daCifre(record.substr(gioco == Gioco::Lotto ? 3 : 1, 8));
    if (!d || !d->valida()) return std::nullopt;
    return d;
}

// What the archive's last draw gives the check: its date and NumeroAnno.
struct UltimaArchivio {
    archives::Data data;
    int numeroAnno = 0;
    std::string testo;
};

std::optional<UltimaArchivio> UltimaDellArchivio(const archives::Archivio& a, Gioco gioco) {
    if (gioco == Gioco::Lotto) {
        if (a.NumeroEstrazioni() < 1) return std::nullopt;
        const archives::RecordEstrazione r = a.LeggiEstrazione(a.NumeroEstrazioni());
        return UltimaArchivio{r.data(), r.NumeroAnno, r.dataTesto()};
    }
    if (a.NumeroEstrazioniSuper() < 1) return std::nullopt;
    const archives::RecordSuperEnalotto r = a.LeggiRecordSuper(a.NumeroEstrazioniSuper());
    return UltimaArchivio{r.data(), r.NumeroAnno, r.dataTesto()};
}

// A draw that would be appended: weekday, numbers, the spare byte, NumeroAnno after `prima`.
// Returns what is wrong, or nothing.
std::string DifettoRecord(std::string_view rec, Gioco gioco, const archives::Data& data,
                          const archives::Data& dataPrima, int numeroAnnoPrima) {
    const char giorno = static_cast<char>('0' + data.giornoSettimana());
    const auto u = [&](size_t i) { return static_cast<uint8_t>(rec[i]); };
    const bool lotto = gioco == Gioco::Lotto;
    const char g1 = rec[lotto ? 0 : 17], g2 = rec[lotto ? 1 : 18];
    if (g1 != giorno || g2 != giorno)
        return fmt::format("il giorno della settimana non corrisponde alla data (atteso {})", giorno);
    const size_t primo = lotto ? 11 : 9, ultimo = lotto ? 66 : 17;
    for (size_t i = primo; i < ultimo; ++i)
        if (u(i) > 90) return fmt::format("contiene il numero {}, fuori da 1-90", u(i));
    if (!lotto && u(19) != 0) return "il byte di riserva non è 0";
    const int atteso = data.anno != dataPrima.anno ? 1 : numeroAnnoPrima + 1;
    const int numeroAnno = u(lotto ? 2 : 0);
    if (numeroAnno != atteso) return fmt::format("ha il numero nell'anno {}, atteso {}", numeroAnno, atteso);
    return {};
}

}  // namespace

archives::Messaggio ErrFile(std::string_view percorso) {
    return {std::string(percorso) + " corrotto o mancante !", "Errore", archives::Icona::Stop};
}

archives::Messaggio MessaggioDiscontinuita() {
    return {std::string(TestoDiscontinuita), std::string(TitoloAggiornamento), archives::Icona::Stop};
}

archives::Messaggio MessaggioNienteDiNuovo() {
    return {std::string(TestoNienteDiNuovo), std::string(TitoloAggiornamento), archives::Icona::Informazione};
}

archives::Messaggio MessaggioAggiornamentoEffettuato(Gioco gioco, std::string_view ultimaData) {
    return {fmt::format("Aggiornamento archivi {}al {} effettuato", gioco == Gioco::Lotto ? "" : "Superenalotto ",
                        ultimaData),
            std::string(TitoloAggiornamento), archives::Icona::Informazione};
}

archives::Messaggio MessaggioEsportazioneEffettuata(std::string_view nomeFile, std::string_view ultimaData) {
    return {fmt::format("Esportazione archivio {} al {} effettuata", nomeFile, ultimaData),
            std::string(TitoloEsportazione), archives::Icona::Informazione};
}

ControlloAggiornamento ControllaAggiornamento(const archives::Archivio& archivio, std::string_view dati, Gioco gioco,
                                              std::string_view percorso) {
    ControlloAggiornamento c;
    const size_t R = static_cast<size_t>(LunghezzaRecord(gioco));
    auto corrotto = [&](std::string dettaglio) {
        c.stato = StatoAggiornamento::Corrotto;
        c.messaggio = ErrFile(percorso);
        c.dettaglio = std::move(dettaglio);
        c.nuove = 0;
        return c;
    };
    if (dati.empty()) return corrotto("il file è vuoto");
    if (dati.size() % R != 0)
        return corrotto(fmt::format("la lunghezza ({} byte) non è un multiplo di {}", dati.size(), R));
    c.record = static_cast<int32_t>(dati.size() / R);
    auto record = [&](int32_t i) { return dati.substr(static_cast<size_t>(i) * R, R); };
    auto testoData = [](const archives::Data& d) { return d.testo(); };

    // The last record first, then the first, as the system reads them.
    const auto ultima = DataRecord(record(c.record - 1), gioco);
    if (!ultima) return corrotto(fmt::format("la data dell'ultimo record (n. {}) non è valida", c.record));
    const auto prima = DataRecord(record(0), gioco);
    if (!prima) return corrotto("la data del primo record non è valida");
    c.primaData = testoData(*prima);
    c.ultimaData = testoData(*ultima);

    // The file is a run of records in ascending order of date.
    std::vector<archives::Data> date(static_cast<size_t>(c.record));
    for (int32_t i = 0; i < c.record; ++i) {
        const auto d = DataRecord(record(i), gioco);
        if (!d) return corrotto(fmt::format("la data del record n. {} non è valida", i + 1));
        if (i > 0 && !(date[static_cast<size_t>(i - 1)] < *d))
            return corrotto(fmt::format("il record n. {} del {} non segue il precedente del {}", i + 1, testoData(*d),
                                        testoData(date[static_cast<size_t>(i - 1)])));
        date[static_cast<size_t>(i)] = *d;
    }

    const auto ultimaArchivio = UltimaDellArchivio(archivio, gioco);
    if (!ultimaArchivio) {
        c.stato = StatoAggiornamento::ArchivioVuoto;
        c.messaggio = {gioco == Gioco::Lotto
                           ? "L'archivio delle estrazioni del Lotto è vuoto: aggiornamento impossibile"
                           : "L'archivio delle estrazioni del SuperEnalotto è vuoto: aggiornamento impossibile",
                       std::string(TitoloAggiornamento), archives::Icona::Stop};
        return c;
    }
    c.ultimaArchivio = ultimaArchivio->testo;
    if (ultimaArchivio->data < *prima) {
        c.stato = StatoAggiornamento::Discontinuo;
        c.messaggio = MessaggioDiscontinuita();
        c.dettaglio = fmt::format("il file inizia il {}, dopo l'ultima estrazione memorizzata del {}", c.primaData,
                                  c.ultimaArchivio);
        return c;
    }

    // The draws newer than the archive's last: a tail of the file.
    const auto primaNuova = std::upper_bound(date.begin(), date.end(), ultimaArchivio->data);
    c.primaNuova = static_cast<int32_t>(primaNuova - date.begin());
    c.nuove = c.record - c.primaNuova;
    archives::Data dataPrima = ultimaArchivio->data;
    int numeroAnnoPrima = ultimaArchivio->numeroAnno;
    for (int32_t i = c.primaNuova; i < c.record; ++i) {
        const std::string_view r = record(i);
        const archives::Data& d = date[static_cast<size_t>(i)];
        if (std::string difetto = DifettoRecord(r, gioco, d, dataPrima, numeroAnnoPrima); !difetto.empty())
            return corrotto(fmt::format("il record n. {} del {} {}", i + 1, testoData(d), difetto));
        dataPrima = d;
        numeroAnnoPrima = static_cast<uint8_t>(r[gioco == Gioco::Lotto ? 2 : 0]);
    }
    c.stato = c.nuove > 0 ? StatoAggiornamento::Pronto : StatoAggiornamento::NienteDiNuovo;
    return c;
}

EsitoAggiornamento ApplicaAggiornamento(archives::Archivio& archivio, std::string_view dati, Gioco gioco,
                                        std::string_view percorso) {
    EsitoAggiornamento e;
    e.controllo = ControllaAggiornamento(archivio, dati, gioco, percorso);
    const ControlloAggiornamento& c = e.controllo;
    if (c.stato == StatoAggiornamento::NienteDiNuovo) {
        e.riuscito = true;
        e.messaggio = MessaggioNienteDiNuovo();
    } else if (!c.pronto()) {
        e.messaggio = c.messaggio;
    } else {
        const size_t R = static_cast<size_t>(LunghezzaRecord(gioco));
        const std::string_view nuove = dati.substr(static_cast<size_t>(c.primaNuova) * R);
        if (gioco == Gioco::Lotto) {
            std::vector<archives::RecordEstrazione> v(static_cast<size_t>(c.nuove));
            std::memcpy(v.data(), nuove.data(), nuove.size());
            e.anniAggiunti = AccodaEstrazioni(archivio, v);
        } else {
            std::vector<archives::RecordSuperEnalotto> v(static_cast<size_t>(c.nuove));
            std::memcpy(v.data(), nuove.data(), nuove.size());
            AccodaEstrazioniSuper(archivio, v);
        }
        e.riuscito = true;
        e.aggiunte = c.nuove;
        e.messaggio = MessaggioAggiornamentoEffettuato(gioco, c.ultimaData);
    }
    if (const auto u = UltimaDellArchivio(archivio, gioco)) {
        e.ultimaData = u->testo;
        e.ultimoNumeroAnno = u->numeroAnno;
    }
    return e;
}

std::optional<std::string> LeggiFileAggiornamento(const fs::path& percorso) {
    std::error_code ec;
    if (!fs::is_regular_file(percorso, ec)) return std::nullopt;
    const auto dimensione = fs::file_size(percorso, ec);
    if (ec || dimensione > LunghezzaMassimaFile) return std::nullopt;
    std::ifstream f(percorso, std::ios::binary);
    if (!f) return std::nullopt;
    std::string s(static_cast<size_t>(dimensione), '\0');
    f.read(s.data(), static_cast<std::streamsize>(s.size()));
    s.resize(static_cast<size_t>(f.gcount()));
    if (f.bad()) return std::nullopt;
    return s;
}

ControlloAggiornamento ControllaFileAggiornamento(const archives::Archivio& archivio, const fs::path& percorso,
                                                  Gioco gioco) {
    const auto dati = LeggiFileAggiornamento(percorso);
    if (!dati) {
        ControlloAggiornamento c;
        c.messaggio = ErrFile(percorso.string());
        c.dettaglio = "il file non si può leggere";
        return c;
    }
    return ControllaAggiornamento(archivio, *dati, gioco, percorso.string());
}

EsitoAggiornamento ApplicaFileAggiornamento(archives::Archivio& archivio, const fs::path& percorso, Gioco gioco) {
    const auto dati = LeggiFileAggiornamento(percorso);
    if (!dati) {
        EsitoAggiornamento e;
        e.controllo = ControllaFileAggiornamento(archivio, percorso, gioco);
        e.messaggio = e.controllo.messaggio;
        return e;
    }
    return ApplicaAggiornamento(archivio, *dati, gioco, percorso.string());
}

int32_t AccodaEstrazioni(archives::Archivio& archivio, std::span<const archives::RecordEstrazione> nuove) {
    if (nuove.empty()) return 0;
    const fs::path cartella = archivio.CartellaArchivi();
    archives::FileRecord estrazioni(cartella / "Estrazioni.ind", O_RDWR);
    archives::FileRecord anni(cartella / "anni.ind", O_RDWR);

    // A partial trailing record is overwritten, as the system's append does.
    const uint64_t lunghezzaE = estrazioni.lunghezza(), lunghezzaA = anni.lunghezza();
    const uint64_t baseE = lunghezzaE / archives::LunghezzaRecordEstrazione * archives::LunghezzaRecordEstrazione;
    const uint64_t baseA = lunghezzaA / archives::LunghezzaRecordAnno * archives::LunghezzaRecordAnno;

    const int32_t primo = static_cast<int32_t>(baseE / archives::LunghezzaRecordEstrazione) + 1;
    std::vector<archives::RecordAnno> nuoviAnni;
    for (size_t i = 0; i < nuove.size(); ++i)
        if (nuove[i].NumeroAnno == 1)
            nuoviAnni.push_back(archives::RecordAnno::Crea(nuove[i].data().anno, primo + static_cast<int32_t>(i)));

    const uint64_t fineE = baseE + nuove.size_bytes();
    const uint64_t fineA = baseA + nuoviAnni.size() * sizeof(archives::RecordAnno);
    try {
        // Draws first: a crash before the years leaves an index behind, which the repair
        // at the next opening rebuilds from the draws.
        estrazioni.scrivi(baseE, Byte(nuove));
        estrazioni.sincronizza();
        if (estrazioni.lunghezza() != fineE)
            throw archives::ErroreArchivio("La lunghezza di Estrazioni.ind dopo la scrittura non è quella attesa");
        if (!nuoviAnni.empty()) {
            anni.scrivi(baseA, Byte(std::span<const archives::RecordAnno>(nuoviAnni)));
            anni.sincronizza();
            if (anni.lunghezza() != fineA)
                throw archives::ErroreArchivio("La lunghezza di anni.ind dopo la scrittura non è quella attesa");
        }
    } catch (...) {
        anni.ripristina(lunghezzaA, archives::LunghezzaRecordAnno);
        estrazioni.ripristina(lunghezzaE, archives::LunghezzaRecordEstrazione);
        archivio = archives::Archivio::Apri(archivio.PercorsoProgramma(), archives::ModoApertura::Scrittura);
        throw;
    }
    archivio = archives::Archivio::Apri(archivio.PercorsoProgramma(), archives::ModoApertura::Scrittura);
    return static_cast<int32_t>(nuoviAnni.size());
}

void AccodaEstrazioniSuper(archives::Archivio& archivio, std::span<const archives::RecordSuperEnalotto> nuove) {
    if (nuove.empty()) return;
    archives::FileRecord super(archivio.CartellaArchivi() / "SuperEnalotto.ind", O_RDWR);
    const uint64_t lunghezza = super.lunghezza();
    const uint64_t base = lunghezza / archives::LunghezzaRecordSuper * archives::LunghezzaRecordSuper;
    try {
        super.scrivi(base, Byte(nuove));
        super.sincronizza();
        if (super.lunghezza() != base + nuove.size_bytes())
            throw archives::ErroreArchivio("La lunghezza di SuperEnalotto.ind dopo la scrittura non è quella attesa");
    } catch (...) {
        super.ripristina(lunghezza, archives::LunghezzaRecordSuper);
        archivio = archives::Archivio::Apri(archivio.PercorsoProgramma(), archives::ModoApertura::Scrittura);
        throw;
    }
    archivio = archives::Archivio::Apri(archivio.PercorsoProgramma(), archives::ModoApertura::Scrittura);
}

void ScriviFileSostituendo(const fs::path& file, std::string_view contenuto) {
    const fs::path cartella = file.parent_path().empty() ? fs::path(".") : file.parent_path();
    const fs::path temporaneo =
        cartella / fmt::format(".{}.{}.tmp", file.filename().string(), static_cast<long>(::getpid()));
    try {
        {
            archives::FileRecord f(temporaneo, O_WRONLY | O_CREAT | O_TRUNC);
            f.scrivi(0, contenuto);
            f.sincronizza();
        }
        std::error_code ec;
        fs::rename(temporaneo, file, ec);
        if (ec)
            throw archives::ErroreArchivio(
                fmt::format("Impossibile scrivere il file {} : {}", file.string(), ec.message()));
    } catch (...) {
        std::error_code ec;
        fs::remove(temporaneo, ec);
        throw;
    }
}

bool FileDellArchivio(const archives::Archivio& archivio, const fs::path& file) {
    for (const char* nome : {"Estrazioni.ind", "anni.ind", "SuperEnalotto.ind"}) {
        std::error_code ec;
        if (fs::equivalent(archivio.CartellaArchivi() / nome, file, ec)) return true;
    }
    return false;
}

archives::Messaggio MessaggioFileDellArchivio(std::string_view file) {
    return {fmt::format("Il file {} è un archivio del programma: scegliere un altro nome.", file), "Errore",
            archives::Icona::Stop};
}

EsitoEsportazione EsportaAggiornamento(const archives::Archivio& archivio, const fs::path& file, int32_t primoIndice) {
    EsitoEsportazione e;
    if (FileDellArchivio(archivio, file)) {
        e.messaggio = MessaggioFileDellArchivio(file.string());
        return e;
    }
    primoIndice = std::max<int32_t>(1, primoIndice);
    const int32_t ultimo = archivio.NumeroEstrazioni();
    std::vector<archives::RecordEstrazione> v;
    if (primoIndice <= ultimo) v = archivio.LeggiEstrazioni(primoIndice, ultimo);
    ScriviFileSostituendo(file, Byte(std::span<const archives::RecordEstrazione>(v)));
    e.riuscito = true;
    e.esportate = static_cast<int32_t>(v.size());
    if (!v.empty()) {
        e.primaData = v.front().dataTesto();
        e.ultimaData = v.back().dataTesto();
    }
    e.messaggio = MessaggioEsportazioneEffettuata(file.string(), e.ultimaData);
    return e;
}

EsitoRiparazione RiparaCartellaArchivi(const fs::path& cartella, bool soloVerifica) {
    EsitoRiparazione r;
    std::error_code ec;
    if (!fs::is_directory(cartella, ec)) return r;
    const fs::path pE = cartella / "Estrazioni.ind", pA = cartella / "anni.ind", pS = cartella / "SuperEnalotto.ind";
    auto lunghezza = [](const fs::path& p) -> uint64_t {
        std::error_code e;
        const auto l = fs::file_size(p, e);
        return e ? 0 : static_cast<uint64_t>(l);
    };
    // Opened for writing only when something is to be done, so a whole archive on a
    // read-only medium passes.
    auto troncaCoda = [&](const fs::path& p, uint64_t dimensione) -> uint64_t {
        if (!fs::exists(p, ec)) return 0;
        const uint64_t l = lunghezza(p);
        if (l % dimensione == 0) return 0;
        if (soloVerifica) return l % dimensione;
        archives::FileRecord f(p, O_RDWR);
        f.tronca(l - l % dimensione);
        return l % dimensione;
    };
    r.byteTroncatiEstrazioni = troncaCoda(pE, archives::LunghezzaRecordEstrazione);
    r.byteTroncatiAnni = troncaCoda(pA, archives::LunghezzaRecordAnno);
    r.byteTroncatiSuper = troncaCoda(pS, archives::LunghezzaRecordSuper);

    if (fs::exists(pE, ec) && fs::exists(pA, ec)) {
        const int32_t n = static_cast<int32_t>(lunghezza(pE) / archives::LunghezzaRecordEstrazione);
        std::vector<archives::RecordAnno> anni(lunghezza(pA) / archives::LunghezzaRecordAnno);
        if (!anni.empty()) {
            const std::string b =
                archives::FileRecord(pA, O_RDONLY).leggi(0, anni.size() * sizeof(archives::RecordAnno));
            std::memcpy(anni.data(), b.data(), b.size());
        }
        // Years that point past the draws: the draws of an interrupted write were taken back.
        size_t validi = anni.size();
        while (validi > 0 && (anni[validi - 1].primaEstrazione() > n || anni[validi - 1].primaEstrazione() < 1))
            --validi;
        // Only the tail is ours to rebuild: from the last indexed year, when the index points
        // at a draw of that year (anything else is left to the integrity check).
        int32_t da = 1;
        int annoCorrente = 0;
        bool coerente = true;
        if (validi > 0) {
            da = anni[validi - 1].primaEstrazione();
            annoCorrente = anni[validi - 1].anno();
        }
        std::vector<archives::RecordAnno> aggiunti;
        if (n >= da) {
            archives::FileRecord f(pE, O_RDONLY);
            const std::string b = f.leggi(static_cast<uint64_t>(da - 1) * archives::LunghezzaRecordEstrazione,
                                          static_cast<size_t>(n - da + 1) * archives::LunghezzaRecordEstrazione);
            for (int32_t i = da; i <= n && coerente; ++i) {
                archives::RecordEstrazione rec;
                std::memcpy(&rec, b.data() + static_cast<size_t>(i - da) * sizeof rec, sizeof rec);
                const archives::Data d = rec.data();
                if (!d.valida()) break;
                if (i == da && validi > 0) {
                    coerente = d.anno == annoCorrente;
                } else if (d.anno > annoCorrente) {
                    aggiunti.push_back(archives::RecordAnno::Crea(d.anno, i));
                    annoCorrente = d.anno;
                } else if (d.anno < annoCorrente) {
                    break;  // out of order: not a crash, not ours to touch
                }
            }
        }
        if (!coerente) aggiunti.clear();
        if (validi < anni.size() || !aggiunti.empty()) {
            // The whole index is replaced in one rename: a crash during the repair leaves
            // either the old index or the new one, never a mix.
            r.byteTroncatiAnni += (anni.size() - validi) * sizeof(archives::RecordAnno);
            anni.resize(validi);
            anni.insert(anni.end(), aggiunti.begin(), aggiunti.end());
            if (!soloVerifica) ScriviFileSostituendo(pA, Byte(std::span<const archives::RecordAnno>(anni)));
            r.anniAggiunti = static_cast<int32_t>(aggiunti.size());
        }
    }

    std::vector<std::string> parti;
    if (r.byteTroncatiEstrazioni)
        parti.push_back(
            fmt::format("tolta un'estrazione incompleta in coda a Estrazioni.ind ({} byte)", r.byteTroncatiEstrazioni));
    if (r.byteTroncatiSuper)
        parti.push_back(
            fmt::format("tolta un'estrazione incompleta in coda a SuperEnalotto.ind ({} byte)", r.byteTroncatiSuper));
    if (r.byteTroncatiAnni) parti.push_back(fmt::format("tolti {} byte in coda ad anni.ind", r.byteTroncatiAnni));
    if (r.anniAggiunti == 1) parti.push_back("aggiunto 1 anno ad anni.ind");
    if (r.anniAggiunti > 1) parti.push_back(fmt::format("aggiunti {} anni ad anni.ind", r.anniAggiunti));
    if (!parti.empty()) {
        r.descrizione = "Archivio riparato dopo un'interruzione: ";
        for (size_t i = 0; i < parti.size(); ++i) r.descrizione += (i ? "; " : "") + parti[i];
        r.descrizione += ".";
    }
    return r;
}

EsitoRiparazione RiparaArchivio(archives::Archivio& archivio) {
    EsitoRiparazione r = RiparaCartellaArchivi(archivio.CartellaArchivi());
    if (r.riparato())
        archivio = archives::Archivio::Apri(archivio.PercorsoProgramma(), archives::ModoApertura::Scrittura);
    return r;
}

}  // namespace gorgo::maintenance
