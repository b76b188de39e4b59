#include "archives/demo.h"

#include <fmt/format.h>
#include <fstream>
#include <system_error>

#include "archives/archivio.h"

namespace gorgo::archives {

namespace fs = std::filesystem;

namespace {

// splitmix64: fixed output on every platform, unlike the standard distributions.
class Generatore {
public:
    explicit Generatore(uint64_t seme) : stato_(seme) {}
    uint64_t prossimo() {
        uint64_t z = (stato_ += 0x9E3779B97F4A7C15ull);
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ull;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EBull;
        return z ^ (z >> 31);
    }
    int numero(int massimo) {  // 1..massimo, unbiased
        const uint64_t limite = UINT64_MAX - UINT64_MAX % static_cast<uint64_t>(massimo);
        uint64_t x;
        do x = prossimo();
        while (x >= limite);
        return static_cast<int>(x % static_cast<uint64_t>(massimo)) + 1;
    }

private:
    uint64_t stato_;
};

// Weekdays (1 = Sunday) with a draw, by era.
bool GiornoDiEstrazione(const Data& d) {
    const int g = d.giornoSettimana();
    if (d < Data{1, 1, 1997}) return g == 7;
    if (d < Data{4, 5, 2005}) return g == 4 || g == 7;
    if (d == Data{4, 5, 2005}) return true;
    if (d < Data{1, 7, 2023}) return g == 3 || g == 5 || g == 7;
    return g == 3 || g == 5 || g == 6 || g == 7;
}

template <typename Record>
void ImpostaNumeroAnno(std::vector<Record>& v, Record& r) {
    const bool nuovoAnno = v.empty() || v.back().data().anno != r.data().anno;
    r.NumeroAnno = nuovoAnno ? 1 : static_cast<uint8_t>(v.back().NumeroAnno + 1);
}

template <typename T>
void ScriviFile(const fs::path& percorso, std::span<const T> record) {
    const fs::path tmp = percorso.string() + ".tmp";
    {
        std::ofstream f(tmp, std::ios::binary | std::ios::trunc);
        f.write(reinterpret_cast<const char*>(record.data()), static_cast<std::streamsize>(record.size_bytes()));
        f.flush();
        if (!f) throw ErroreArchivio(fmt::format("Impossibile scrivere il file {}", tmp.string()));
    }
    fs::rename(tmp, percorso);
}

}  // namespace

std::vector<RecordEstrazione> GeneraStoriaDemo(const ParametriDemo& p) {
    Generatore gen(p.seme);
    std::vector<RecordEstrazione> v;
    v.reserve(12000);
    const int32_t fine = p.fine.giorni();
    for (int32_t g = Data{7, 1, 1871}.giorni(); g <= fine; ++g) {
        const Data d = Data::daGiorni(g);
        if (!GiornoDiEstrazione(d)) continue;
        RecordEstrazione r;
        r.impostaData(d);
        ImpostaNumeroAnno(v, r);
        const int32_t indice = static_cast<int32_t>(v.size()) + 1;
        for (int ruota = 1; ruota <= NumeroRuote; ++ruota) {
            const int32_t prima = ruota == RuotaNazionale ? PrimaEstrazioneNazionale : PrimaEstrazioneRuota[ruota];
            if (indice < prima) continue;
            bool usato[91] = {};
            for (int pos = 0; pos < 5; ++pos) {
                int n;
                do n = gen.numero(90);
                while (usato[n]);
                usato[n] = true;
                r.Ruota[ruota - 1][pos] = static_cast<uint8_t>(n);
            }
        }
        v.push_back(r);
    }
    return v;
}

std::vector<RecordSuperEnalotto> GeneraSuperDemo(const ParametriDemo& p) {
    Generatore gen(p.seme ^ 0x5E5E5E5Eull);
    std::vector<RecordSuperEnalotto> v;
    for (int32_t g = p.inizioSuper.giorni(); g <= p.fine.giorni(); ++g) {
        const Data d = Data::daGiorni(g);
        const int gs = d.giornoSettimana();
        if (gs != 3 && gs != 5 && gs != 7) continue;
        RecordSuperEnalotto r;
        r.impostaData(d);
        ImpostaNumeroAnno(v, r);
        bool usato[91] = {};
        int scelti = 0;
        while (scelti < 7) {
            const int n = gen.numero(90);
            if (usato[n]) continue;
            usato[n] = true;
            if (scelti++ == 6) r.Jolly = static_cast<uint8_t>(n);
        }
        usato[r.Jolly] = false;
        int k = 0;
        for (int n = 1; n <= 90; ++n)  // six numbers in ascending order, as the public lists give them
            if (usato[n]) r.Sestina[k++] = static_cast<uint8_t>(n);
        r.SuperStar = static_cast<uint8_t>(gen.numero(90));
        v.push_back(r);
    }
    return v;
}

std::vector<RecordAnno> IndiceAnni(std::span<const RecordEstrazione> estrazioni) {
    std::vector<RecordAnno> anni;
    int annoCorrente = -1;
    for (size_t i = 0; i < estrazioni.size(); ++i) {
        const int anno = estrazioni[i].data().anno;
        if (anno != annoCorrente) {
            anni.push_back(RecordAnno::Crea(anno, static_cast<int32_t>(i + 1)));
            annoCorrente = anno;
        }
    }
    return anni;
}

void ScriviArchivi(const fs::path& cartella, std::span<const RecordEstrazione> estrazioni,
                   std::span<const RecordAnno> anni, std::span<const RecordSuperEnalotto> super) {
    const fs::path archivi = cartella / "Archivi";
    fs::create_directories(archivi);
    ScriviFile(archivi / "SuperEnalotto.ind", super);
    ScriviFile(archivi / "anni.ind", anni);
    ScriviFile(archivi / "Estrazioni.ind", estrazioni);
}

Messaggio CreaCartellaDemo(const fs::path& cartella, const ParametriDemo& p) {
    std::error_code ec;
    const fs::path estrazioni = cartella / "Archivi" / "Estrazioni.ind";
    if (fs::exists(estrazioni, ec) && fs::file_size(estrazioni, ec) > 0)
        return {fmt::format("La cartella {} contiene già un archivio delle estrazioni: "
                            "l'archivio dimostrativo non viene creato.",
                            cartella.string()),
                "Errore", Icona::Stop};
    try {
        const auto storia = GeneraStoriaDemo(p);
        const auto anni = IndiceAnni(storia);
        const auto super = GeneraSuperDemo(p);
        ScriviArchivi(cartella, storia, anni, super);
        std::ofstream f(cartella / FileDemo);
        f << "Questa cartella contiene un archivio DIMOSTRATIVO: le estrazioni sono sintetiche,\n"
             "generate dal programma, e non sono quelle reali del Lotto e del SuperEnalotto.\n"
             "Per lavorare sulle estrazioni reali indicare una cartella con i propri archivi\n"
             "(opzione --cartella) oppure importare l'archivio storico.\n"
             "\n"
             "La ricerca \"Codici Tordelli\" del costruttore usa le terzine ridotte: un file di\n"
             "testo che non fa parte del programma. Chi lo ha lo copia in questa cartella con il\n"
             "nome Terzine.txt,\n"
             "oppure lo sceglie quando il costruttore lo chiede (il file scelto viene ricordato\n"
             "nell'impostazione FileTerzine della sezione Options). Se ne può anche preparare uno\n"
             "con un editor di testo: una terzina per riga, tre numeri da 1 a 90 di due cifre\n"
             "separati da uno spazio (per esempio \"01 30 60\"), 1002 righe. Un numero 0 rende il\n"
             "file non valido; un numero di righe diverso da 1002 viene segnalato, e il file si usa.\n"
             "Per controllarlo: gorgo-cli terzine FILE. Senza il file tutte le altre ricerche\n"
             "funzionano.\n";
    } catch (const std::exception& e) {
        return {fmt::format("Impossibile creare l'archivio dimostrativo in {} : {}", cartella.string(), e.what()),
                "Errore", Icona::Stop};
    }
    return {};
}

bool CartellaDemo(const fs::path& cartella) {
    std::error_code ec;
    return fs::exists(cartella / FileDemo, ec);
}

}  // namespace gorgo::archives
