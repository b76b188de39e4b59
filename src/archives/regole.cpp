#include "archives/regole.h"

#include <algorithm>
#include <system_error>

#include "archives/archivio.h"

namespace gorgo::archives {

const std::string_view MessaggioFormatoData =
    "Inserire la data nel formato GG/MM/AAAA !\n"
    "Se la data viene mostrata automaticamente con 2 sole cifre dell'anno,\n"
    "è necessario aprire Pannello di controllo/Impostazioni internazionali/Data \n"
    "e impostare la <data breve> nel formato <gg/MM/aaaa>";
const std::string_view MessaggioDataErrata = "Data errata !";

std::string MessaggioDataInferiore(std::string_view primaData) {
    return "La data non può essere inferiore alla data inizio gestione archivi (" + std::string(primaData) + ")";
}

std::string MessaggioDataSuperiore(std::string_view ultimaData) {
    return "La data non può essere superiore alla data ultima estrazione inserita (" + std::string(ultimaData) + ")";
}

bool DataAccettata(std::string_view testo) { return Data::daTesto(testo).has_value(); }

bool DataErrata(int giorno, int mese, int anno) {
    static constexpr int kMesiLunghi[] = {1, 3, 5, 7, 8, 10, 12};
    const bool lungo = std::find(std::begin(kMesiLunghi), std::end(kMesiLunghi), mese) != std::end(kMesiLunghi);
    const bool corto = mese == 4 || mese == 6 || mese == 9 || mese == 11;
    return (anno % 4 != 0 && mese == 2 && giorno >= 29) || (lungo && giorno >= 32) || (corto && giorno >= 31) ||
           (mese == 2 && giorno >= 30) || mese >= 13;
}

namespace {

RisultatoData Rifiuto(std::string testo) {
    RisultatoData r;
    r.ErroreData = true;
    r.messaggio = {std::move(testo), "", Icona::Esclamazione};
    return r;
}

// Steps shared by the checks: form, the month-and-day rule, limits; then the search.
template <typename Cerca>
RisultatoData Controlla(std::string_view testo, const Data& prima, std::string_view testoPrima, const Data& ultima,
                        std::string_view testoUltima, std::string_view testoPrimaArchiviata, Cerca cerca) {
    if (testo.size() != 10 || !DataAccettata(testo)) return Rifiuto(std::string(MessaggioFormatoData));
    const Data d = *Data::daTesto(testo);
    if (DataErrata(d.giorno, d.mese, d.anno)) return Rifiuto(std::string(MessaggioDataErrata));
    if (d < prima) return Rifiuto(MessaggioDataInferiore(testoPrima));
    if (ultima < d) return Rifiuto(MessaggioDataSuperiore(testoUltima));
    RisultatoData r;
    if (auto trovato = cerca(d)) {
        r.IndiceTrovato = trovato->IndiceTrovato;
        r.DataTrovata = trovato->DataTrovata;
    }
    // An archive that starts after the lower limit (SuperEnalotto from 2009) has nothing before
    // its first draw: that date is the limit the user has to respect.
    if (r.IndiceTrovato < 1) return Rifiuto(MessaggioDataInferiore(testoPrimaArchiviata));
    return r;
}

RisultatoData ArchivioVuoto() { return Rifiuto("L'archivio non contiene estrazioni: impossibile cercare la data."); }

}  // namespace

RisultatoData ControllaData(std::string_view testo, const Archivio& archivio, bool precedente) {
    const int32_t n = archivio.NumeroEstrazioni();
    if (n < 1) return ArchivioVuoto();
    const RecordEstrazione prima = archivio.LeggiEstrazione(1), ultima = archivio.LeggiEstrazione(n);
    return Controlla(testo, prima.data(), prima.dataTesto(), ultima.data(), ultima.dataTesto(), prima.dataTesto(),
                     [&](const Data& d) { return archivio.CercaIndice(d, precedente); });
}

RisultatoData ControllaData(std::string_view testo, const StoriaLotto& storia, bool precedente) {
    const int32_t n = storia.NumeroEstrazioni();
    if (n < 1) return ArchivioVuoto();
    return Controlla(testo, storia[1].data(), storia[1].dataTesto(), storia[n].data(), storia[n].dataTesto(),
                     storia[1].dataTesto(), [&](const Data& d) { return storia.CercaIndice(d, precedente); });
}

RisultatoData ControllaDataSuper(std::string_view testo, const Archivio& archivio, bool precedente) {
    const int32_t n = archivio.NumeroEstrazioniSuper();
    if (n < 1) return ArchivioVuoto();
    const RecordSuperEnalotto ultima = archivio.LeggiRecordSuper(n);
    const Data prima = *Data::daTesto(DataInizioSuper);
    // The walk starts at a fixed index; an archive that holds fewer draws is walked whole.
    const int32_t inizio = n >= PrimoIndiceRicercaSuper ? PrimoIndiceRicercaSuper : 1;
    return Controlla(testo, prima, DataInizioSuper, ultima.data(), ultima.dataTesto(),
                     archivio.LeggiRecordSuper(1).dataTesto(), [&](const Data& d) -> std::optional<RisultatoRicerca> {
                         const auto tutti = archivio.LeggiTuttiSuper();
                         for (int32_t i = inizio; i <= n; ++i) {
                             const int32_t trovato =
                                 PassoRicerca(tutti[static_cast<size_t>(i - 1)].data(), d, i, precedente);
                             if (trovato < 0) continue;
                             if (trovato < 1) return RisultatoRicerca{0, {}};
                             return RisultatoRicerca{trovato, tutti[static_cast<size_t>(trovato - 1)].dataTesto()};
                         }
                         return std::nullopt;
                     });
}

int CadenzaDi(int numero) { return ((numero % 100) + 100) % 10; }

int DecinaDi(int numero) { return numero / 10 + (numero % 10 != 0 ? 1 : 0); }

int Fuori90Somma(int n) { return n > 90 ? n - 90 : n; }

int Fuori90Prodotto(int n) {
    const int r = n % 90;
    return r == 0 ? 90 : r;
}

int Fuori90Catena(int n) {
    while (n > 90) n -= 90;
    while (n < 1) n += 90;
    return n;
}

bool EsisteFile(const std::filesystem::path& percorso) {
    std::error_code ec;
    return std::filesystem::is_regular_file(percorso, ec);
}

}  // namespace gorgo::archives
