#include "archives/archivio.h"

#include <fcntl.h>
#include <fmt/format.h>
#include <algorithm>

#include "archives/file_record.h"

namespace gorgo::archives {

namespace fs = std::filesystem;

Archivio::Archivio(Archivio&&) noexcept = default;
Archivio& Archivio::operator=(Archivio&&) noexcept = default;
Archivio::~Archivio() = default;

Archivio Archivio::Apri(const fs::path& percorsoProgramma, ModoApertura modo) {
    Archivio a;
    a.percorso_ = percorsoProgramma;
    const fs::path cartella = a.CartellaArchivi();
    // Never create a whole folder tree for a mistyped program folder.
    if (modo == ModoApertura::Scrittura && !fs::is_directory(cartella)) modo = ModoApertura::Lettura;
    // Reading never creates a file and takes an absent one as empty; writing creates it empty.
    const int flags = modo == ModoApertura::Scrittura ? O_RDWR | O_CREAT : O_RDONLY;
    const bool assenteVuoto = modo == ModoApertura::Lettura;
    a.estrazioni_ = std::make_unique<FileRecord>(cartella / "Estrazioni.ind", flags, assenteVuoto);
    a.anni_ = std::make_unique<FileRecord>(cartella / "anni.ind", flags, assenteVuoto);
    a.super_ = std::make_unique<FileRecord>(cartella / "SuperEnalotto.ind", flags, assenteVuoto);
    a.RileggiLunghezze();
    return a;
}

void Archivio::RileggiLunghezze() {
    numeroEstrazioni_ = static_cast<int32_t>(estrazioni_->lunghezza() / LunghezzaRecordEstrazione);
    numeroAnni_ = static_cast<int32_t>(anni_->lunghezza() / LunghezzaRecordAnno);
    numeroEstrazioniSuper_ = static_cast<int32_t>(super_->lunghezza() / LunghezzaRecordSuper);
}

uint64_t Archivio::LunghezzaEstrazioni() const { return estrazioni_->lunghezza(); }
uint64_t Archivio::LunghezzaAnni() const { return anni_->lunghezza(); }
uint64_t Archivio::LunghezzaSuper() const { return super_->lunghezza(); }

RecordEstrazione Archivio::LeggiEstrazione(int32_t indice) const {
    ++recordLetti_;
    RecordEstrazione r;
    estrazioni_->leggi(static_cast<uint64_t>(indice - 1) * LunghezzaRecordEstrazione, &r, sizeof r);
    return r;
}

std::vector<RecordEstrazione> Archivio::LeggiEstrazioni(int32_t primo, int32_t ultimo) const {
    std::vector<RecordEstrazione> v;
    if (ultimo < primo) return v;
    recordLetti_ += static_cast<uint64_t>(ultimo - primo + 1);
    v.resize(static_cast<size_t>(ultimo - primo + 1));
    estrazioni_->leggi(static_cast<uint64_t>(primo - 1) * LunghezzaRecordEstrazione, v.data(),
                       v.size() * sizeof(RecordEstrazione));
    return v;
}

RecordAnno Archivio::LeggiAnno(int32_t n) const {
    RecordAnno r;
    anni_->leggi(static_cast<uint64_t>(n - 1) * LunghezzaRecordAnno, &r, sizeof r);
    return r;
}

template <typename Record>
std::vector<Record> LeggiTutto(const FileRecord& file, int32_t quanti) {
    std::vector<Record> v(static_cast<size_t>(quanti));
    if (!v.empty()) file.leggi(0, v.data(), v.size() * sizeof(Record));
    return v;
}

std::vector<RecordAnno> Archivio::LeggiAnni() const { return LeggiTutto<RecordAnno>(*anni_, numeroAnni_); }

RecordSuperEnalotto Archivio::LeggiRecordSuper(int32_t indice) const {
    RecordSuperEnalotto r;
    super_->leggi(static_cast<uint64_t>(indice - 1) * LunghezzaRecordSuper, &r, sizeof r);
    return r;
}

std::vector<RecordSuperEnalotto> Archivio::LeggiTuttiSuper() const {
    return LeggiTutto<RecordSuperEnalotto>(*super_, numeroEstrazioniSuper_);
}

std::string Archivio::DataEstrazione(int32_t indice, int archivio) const {
    const int32_t n = archivio == ArchivioSuper ? numeroEstrazioniSuper_ : numeroEstrazioni_;
    if (n < 1) return {};
    indice = std::clamp<int32_t>(indice, 1, n);
    return archivio == ArchivioSuper ? LeggiRecordSuper(indice).dataTesto() : LeggiEstrazione(indice).dataTesto();
}

std::optional<RisultatoRicerca> Archivio::CercaIndice(const Data& data, bool precedente) const {
    // Start at the first draw of the date's year, or at 1 when the year is not indexed; the
    // first read covers that year and the first draw after it, where any date of the year ends.
    int32_t inizio = 1, fineAnno = numeroEstrazioni_;
    const auto anni = LeggiAnni();
    for (size_t k = 0; k < anni.size(); ++k) {
        if (anni[k].anno() == data.anno) {
            inizio = std::max<int32_t>(1, anni[k].primaEstrazione());
            if (k + 1 < anni.size() && anni[k + 1].primaEstrazione() >= inizio)
                fineAnno = anni[k + 1].primaEstrazione();
            break;
        }
    }
    constexpr int32_t kBlocco = 256;  // only an index out of step with the draws walks further
    for (int32_t da = inizio; da <= numeroEstrazioni_;) {
        const int32_t a = std::min(numeroEstrazioni_, da == inizio ? std::max(fineAnno, da) : da + kBlocco - 1);
        const auto blocco = LeggiEstrazioni(da, a);
        for (size_t i = 0; i < blocco.size(); ++i) {
            const int32_t indice = da + static_cast<int32_t>(i);
            const int32_t trovato = PassoRicerca(blocco[i].data(), data, indice, precedente);
            if (trovato < 0) continue;
            if (trovato < 1) return RisultatoRicerca{0, {}};
            const std::string dt = trovato == indice ? blocco[i].dataTesto()
                                   : i > 0           ? blocco[i - 1].dataTesto()
                                                     : LeggiEstrazione(trovato).dataTesto();
            return RisultatoRicerca{trovato, dt};
        }
        da = a + 1;
    }
    return std::nullopt;
}

StoriaCondivisa Archivio::Storia() const {
    if (!storia_ || storia_->NumeroEstrazioni() != numeroEstrazioni_)
        storia_ = std::make_shared<const StoriaLotto>(LeggiEstrazioni(1, numeroEstrazioni_));
    return storia_;
}

void Archivio::AggiungiEstrazione(const RecordEstrazione& record) {
    const uint64_t lunghezzaE = estrazioni_->lunghezza(), lunghezzaA = anni_->lunghezza();
    storia_.reset();
    try {
        estrazioni_->scrivi(static_cast<uint64_t>(numeroEstrazioni_) * LunghezzaRecordEstrazione, &record,
                            sizeof record);
        estrazioni_->sincronizza();
        if (record.NumeroAnno == 1) {
            const RecordAnno anno = RecordAnno::Crea(record.data().anno, numeroEstrazioni_ + 1);
            anni_->scrivi(lunghezzaA / LunghezzaRecordAnno * LunghezzaRecordAnno, &anno, sizeof anno);
            anni_->sincronizza();
        }
    } catch (...) {
        // Keep the draws and the year index in step: take the new draw back.
        anni_->ripristina(lunghezzaA, LunghezzaRecordAnno);
        estrazioni_->ripristina(lunghezzaE, LunghezzaRecordEstrazione);
        RileggiLunghezze();
        throw;
    }
    RileggiLunghezze();
}

void Archivio::CorreggiEstrazione(int32_t indice, const RecordEstrazione& record) {
    estrazioni_->scrivi(static_cast<uint64_t>(indice - 1) * LunghezzaRecordEstrazione, &record, sizeof record);
    estrazioni_->sincronizza();
    storia_.reset();
    RileggiLunghezze();
}

void Archivio::AggiungiEstrazioneSuper(const RecordSuperEnalotto& record) {
    const uint64_t lunghezza = super_->lunghezza();
    try {
        super_->scrivi(static_cast<uint64_t>(numeroEstrazioniSuper_) * LunghezzaRecordSuper, &record, sizeof record);
        super_->sincronizza();
    } catch (...) {
        super_->ripristina(lunghezza, LunghezzaRecordSuper);
        RileggiLunghezze();
        throw;
    }
    RileggiLunghezze();
}

void Archivio::CorreggiEstrazioneSuper(int32_t indice, const RecordSuperEnalotto& record) {
    super_->scrivi(static_cast<uint64_t>(indice - 1) * LunghezzaRecordSuper, &record, sizeof record);
    super_->sincronizza();
    RileggiLunghezze();
}

Messaggio ControllaPresenzaArchivi(const Archivio& archivio) {
    const bool estrazioni = archivio.LunghezzaEstrazioni() == 0;
    const bool anni = archivio.LunghezzaAnni() == 0;
    const bool super = archivio.LunghezzaSuper() == 0;
    if (!estrazioni && !anni && !super) return {};
    std::string testo = "Archivi ";
    if (estrazioni) testo += "Estrazioni.ind ";
    if (anni) testo += " Anni.ind ";
    if (super) testo += " SuperEnalotto.ind ";
    // The tail names SuperEnalotto.ind whichever file failed: the message has always read so.
    testo += " mancanti! " + (archivio.CartellaArchivi() / "SuperEnalotto.ind").string();
    return {testo, "Errore", Icona::Stop};
}

Messaggio VerificaIntegrita(const Archivio& archivio) {
    auto errore = [](std::string testo) { return Messaggio{std::move(testo), "Errore", Icona::Stop}; };
    const fs::path cartella = archivio.CartellaArchivi();
    if (const uint64_t l = archivio.LunghezzaEstrazioni(); l % LunghezzaRecordEstrazione != 0)
        return errore(
            fmt::format("Il file {} è danneggiato: la sua lunghezza ({} byte) non è un multiplo di {}; "
                        "l'ultima estrazione è incompleta.",
                        (cartella / "Estrazioni.ind").string(), l, LunghezzaRecordEstrazione));
    if (const uint64_t l = archivio.LunghezzaAnni(); l % LunghezzaRecordAnno != 0)
        return errore(fmt::format("Il file {} è danneggiato: la sua lunghezza ({} byte) non è un multiplo di {}.",
                                  (cartella / "anni.ind").string(), l, LunghezzaRecordAnno));
    if (const uint64_t l = archivio.LunghezzaSuper(); l % LunghezzaRecordSuper != 0)
        return errore(
            fmt::format("Il file {} è danneggiato: la sua lunghezza ({} byte) non è un multiplo di {}; "
                        "l'ultima estrazione è incompleta.",
                        (cartella / "SuperEnalotto.ind").string(), l, LunghezzaRecordSuper));

    const auto storia = archivio.Storia();
    const auto anni = archivio.LeggiAnni();
    const std::string nomeAnni = (cartella / "anni.ind").string();
    // Draws: valid dates in strictly ascending order, year counts in step.
    int annoAtteso = 0;
    size_t prossimoAnno = 0;
    for (int32_t i = 1; i <= storia->NumeroEstrazioni(); ++i) {
        const RecordEstrazione& r = (*storia)[i];
        const Data d = r.data();
        if (!d.valida())
            return errore(fmt::format("L'estrazione n. {} dell'archivio ha una data non valida ({}).", i,
                                      std::string(r.dataCifre())));
        if (i > 1 && storia->giorni(i) <= storia->giorni(i - 1))
            return errore(
                fmt::format("L'estrazione n. {} del {} non segue la precedente del {}: "
                            "l'archivio non è in ordine di data.",
                            i, r.dataTesto(), (*storia)[i - 1].dataTesto()));
        if (d.anno != annoAtteso) {
            annoAtteso = d.anno;
            if (prossimoAnno >= anni.size() || anni[prossimoAnno].anno() != d.anno ||
                anni[prossimoAnno].primaEstrazione() != i)
                return errore(
                    fmt::format("Il file {} non corrisponde alle estrazioni: manca o è errato "
                                "l'anno {} (prima estrazione n. {}).",
                                nomeAnni, d.anno, i));
            ++prossimoAnno;
        }
    }
    if (prossimoAnno != anni.size())
        return errore(
            fmt::format("Il file {} non corrisponde alle estrazioni: contiene {} anni, "
                        "le estrazioni ne coprono {}.",
                        nomeAnni, anni.size(), prossimoAnno));
    return {};
}

}  // namespace gorgo::archives
