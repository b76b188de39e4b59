#include "maintenance/inserimento.h"

#include <fmt/format.h>
#include <algorithm>

#include "archives/regole.h"

namespace gorgo::maintenance {

namespace {

bool Cifra(char c) { return c >= '0' && c <= '9'; }

// Whole number of a box of the date, digits only; nothing for anything else.
std::optional<int> Intero(std::string_view t) {
    if (t.empty() || t.size() > 4) return std::nullopt;
    int n = 0;
    for (char c : t) {
        if (!Cifra(c)) return std::nullopt;
        n = n * 10 + (c - '0');
    }
    return n;
}

// Characters, not bytes: the paste box holds UTF-8.
int NumeroCaratteri(std::string_view s) {
    int n = 0;
    for (unsigned char c : s)
        if ((c & 0xC0) != 0x80) ++n;
    return n;
}

archives::Messaggio Domanda(std::string_view testo) {
    return {std::string(testo), std::string(TitoloConferma), archives::Icona::Domanda};
}

archives::Messaggio Avviso(std::string testo) { return {std::move(testo), "", archives::Icona::Esclamazione}; }

}  // namespace

// --------------------------------------------------------------- the number boxes

bool SoloCifre(int codiceTasto) { return codiceTasto < 32 || (codiceTasto >= '0' && codiceTasto <= '9'); }

int ValoreCasella(std::string_view testo) {
    size_t i = 0;
    while (i < testo.size() && testo[i] == ' ') ++i;
    int n = 0;
    for (; i < testo.size() && Cifra(testo[i]); ++i) {
        n = n * 10 + (testo[i] - '0');
        if (n > 999) n = 999;  // any value above 90 is as wrong as another
    }
    return n;
}

archives::Messaggio ControllaCasella(std::string_view testo) {
    if (ValoreCasella(testo) > 90) return Avviso(std::string(TestoNumeroFuoriLimiti));
    return {};
}

std::string SuggerimentoCasella(int indice) {
    return fmt::format("{}' estratto ruota di {}", PosizioneCasella(indice),
                       archives::NomiRuota[static_cast<size_t>(RuotaCasella(indice))]);
}

// --------------------------------------------------------------- the paste decoder

std::vector<std::string> NumeriNelTesto(std::string_view testo, int massimo) {
    std::vector<std::string> numeri;
    std::string corrente;
    for (char c : testo) {
        if (static_cast<int>(numeri.size()) >= massimo) return numeri;
        if (Cifra(c)) {
            corrente += c;
        } else if (!corrente.empty()) {
            numeri.push_back(std::move(corrente));
            corrente.clear();
        }
    }
    if (!corrente.empty() && static_cast<int>(numeri.size()) < massimo) numeri.push_back(std::move(corrente));
    return numeri;
}

EsitoDecodifica DecodificaTesto(std::string_view testo, std::span<std::string> caselle) {
    EsitoDecodifica e;
    if (NumeroCaratteri(testo) < LunghezzaMinimaIncolla) return e;
    e.eseguita = true;
    const auto numeri = NumeriNelTesto(testo, static_cast<int>(caselle.size()));
    e.numeriLetti = static_cast<int>(numeri.size());
    for (size_t i = 0; i < numeri.size(); ++i) {
        caselle[i] = numeri[i];
        const int v = ValoreCasella(numeri[i]);
        if (v < 1 || v > 90) {
            caselle[i].clear();
            e.casellaErrata = static_cast<int>(i) + 1;
            e.errore = {std::string(TestoValoriIncongruenti), "Errore", archives::Icona::Stop};
            return e;
        }
        ++e.caselleRiempite;
    }
    return e;
}

// --------------------------------------------------------------- the proposed date

std::array<bool, 8> GiorniDiEstrazione(std::string_view lettere) {
    std::array<bool, 8> giorni{};
    bool almenoUno = false;
    for (size_t g = 1; g <= 7; ++g) {
        giorni[g] = g <= lettere.size() && lettere[g - 1] == 'Y';
        almenoUno = almenoUno || giorni[g];
    }
    if (!almenoUno) giorni[7] = true;
    return giorni;
}

archives::Data DataProposta(const archives::Data& ultimaEstrazione, std::string_view giorniEstrazione) {
    const auto giorni = GiorniDiEstrazione(giorniEstrazione);
    int32_t g = ultimaEstrazione.giorni() + 1;
    while (!giorni[static_cast<size_t>(archives::Data::daGiorni(g).giornoSettimana())]) ++g;
    return archives::Data::daGiorni(g);
}

// --------------------------------------------------------------- the engine

Inserimento::Inserimento(archives::Archivio& archivio, GiocoInserimento gioco)
    : archivio_(archivio),
      gioco_(gioco),
      caselle_(gioco == GiocoInserimento::Lotto ? CaselleLotto : CaselleSuper),
      aperte_(caselle_.size(), false) {
    indiceCorrente_ = Totale();
    if (indiceCorrente_ > 0) {
        ultimoAnno_ = gioco_ == GiocoInserimento::Lotto && archivio_.NumeroAnni() > 0
                          ? archivio_.LeggiAnno(archivio_.NumeroAnni()).anno()
                          : DataRecord(indiceCorrente_).anno;
        Mostra(indiceCorrente_);
    }
}

int32_t Inserimento::Totale() const {
    return gioco_ == GiocoInserimento::Lotto ? archivio_.NumeroEstrazioni() : archivio_.NumeroEstrazioniSuper();
}

int32_t Inserimento::TotaleEstrazioni() const { return Totale(); }

archives::Data Inserimento::DataRecord(int32_t indice) const {
    return gioco_ == GiocoInserimento::Lotto ? archivio_.LeggiEstrazione(indice).data()
                                             : archivio_.LeggiRecordSuper(indice).data();
}

int Inserimento::NumeroAnnoRecord(int32_t indice) const {
    return gioco_ == GiocoInserimento::Lotto ? archivio_.LeggiEstrazione(indice).NumeroAnno
                                             : archivio_.LeggiRecordSuper(indice).NumeroAnno;
}

Inserimento::Vicini Inserimento::DateVicine(int32_t indice) const {
    Vicini v;
    if (indice > 1) v.precedente = DataRecord(indice - 1);
    if (indice < Totale()) v.successiva = DataRecord(indice + 1);
    return v;
}

ControlliAttivi Inserimento::Controlli() const {
    ControlliAttivi c;
    switch (modo_) {
        case ModoInserimento::Consulta: c.cmdNuova = c.cmdCorreggi = c.Slider1 = true; break;
        case ModoInserimento::Nuova: c.cmdMemorizza = c.cmdInserisci = c.cmdCancella = c.testo = true; break;
        case ModoInserimento::Correzione: c.cmdMemorizza = c.date = true; break;
    }
    return c;
}

std::optional<archives::Data> Inserimento::DataCaselle() const {
    const auto g = Intero(giorno_), m = Intero(mese_), a = Intero(anno_);
    if (!g || !m || !a || *a < 1) return std::nullopt;
    const archives::Data d{*g, *m, *a};
    if (!d.valida()) return std::nullopt;
    return d;
}

std::string Inserimento::NomeGiornoEstrazione() const {
    if (mese_.empty() || anno_.empty()) return {};
    const auto d = DataCaselle();
    return d ? std::string(archives::NomeGiorno(d->giornoSettimana())) : std::string();
}

std::string Inserimento::TestoAnnoEstrazione() const {
    return annoEtichetta_ > 0 ? fmt::format("{} / ", annoEtichetta_) : std::string();
}

void Inserimento::MettiData(const archives::Data& d) {
    giorno_ = fmt::format("{:02}", d.giorno);
    mese_ = fmt::format("{:02}", d.mese);
    anno_ = fmt::format("{:04}", d.anno);
    giornoNuovo_ = d.giornoSettimana();
}

void Inserimento::Apri(bool aperte, int fino) {
    for (int i = 0; i < fino && i < NumeroCaselle(); ++i) aperte_[static_cast<size_t>(i)] = aperte;
}

void Inserimento::Mostra(int32_t indice) {
    if (indice < 1 || indice > Totale()) return;
    indiceCorrente_ = indice;
    if (gioco_ == GiocoInserimento::Lotto) {
        const archives::RecordEstrazione r = archivio_.LeggiEstrazione(indice);
        for (int i = 1; i <= CaselleLotto; ++i)
            caselle_[static_cast<size_t>(i - 1)] = std::to_string(r.Numero(RuotaCasella(i), PosizioneCasella(i)));
        numeroAnno_ = r.NumeroAnno;
        giorno_ = std::string(r.dataCifre().substr(0, 2));
        mese_ = std::string(r.dataCifre().substr(2, 2));
        anno_ = std::string(r.dataCifre().substr(4, 4));
        giornoNuovo_ = r.giornoSettimana();
    } else {
        const archives::RecordSuperEnalotto r = archivio_.LeggiRecordSuper(indice);
        for (int i = 0; i < 6; ++i) caselle_[static_cast<size_t>(i)] = std::to_string(r.Sestina[i]);
        caselle_[6] = std::to_string(r.Jolly);
        caselle_[7] = std::to_string(r.SuperStar);
        numeroAnno_ = r.NumeroAnno;
        giorno_ = std::string(r.dataCifre().substr(0, 2));
        mese_ = std::string(r.dataCifre().substr(2, 2));
        anno_ = std::string(r.dataCifre().substr(4, 4));
        giornoNuovo_ = r.GiornoSettimana - '0';
    }
    annoEtichetta_ = Intero(anno_).value_or(0);
}

archives::Messaggio Inserimento::Nuova(std::string_view giorniEstrazione) {
    const int32_t n = Totale();
    if (n < 1) return Avviso("L'archivio non contiene estrazioni: manca l'ultima estrazione da cui proporre la data.");
    // Every box is emptied, so none shows a number of the draw browsed before; Nazionale
    // opens only when the archive has reached it.
    for (auto& c : caselle_) c.clear();
    Apri(false, NumeroCaselle());
    if (gioco_ == GiocoInserimento::Lotto)
        Apri(true, n >= SogliaNazionale ? CaselleLotto : CaselleLotto - 5);
    else
        Apri(true, CaselleSuper);
    testo_.clear();
    modo_ = ModoInserimento::Nuova;
    indiceCorrente_ = n;
    // The year index may have grown since the screen opened.
    ultimoAnno_ = gioco_ == GiocoInserimento::Lotto && archivio_.NumeroAnni() > 0
                      ? archivio_.LeggiAnno(archivio_.NumeroAnni()).anno()
                      : DataRecord(n).anno;
    const archives::Data ultima = DataRecord(n);
    const archives::Data proposta = DataProposta(ultima, giorniEstrazione);
    MettiData(proposta);
    numeroAnno_ = proposta.anno == ultima.anno ? NumeroAnnoRecord(n) + 1 : 1;
    annoEtichetta_ = proposta.anno;
    return {};
}

archives::Messaggio Inserimento::ImpostaDataNuova(const archives::Data& data) {
    if (modo_ != ModoInserimento::Nuova) return {};
    const int32_t n = Totale();
    const archives::Data ultima = DataRecord(n);
    if (!data.valida()) return Avviso(std::string(archives::MessaggioDataErrata));
    if (data <= ultima)
        return Avviso(
            fmt::format("La data di una nuova estrazione deve seguire quella dell'ultima estrazione "
                        "in archivio ({}) !",
                        ultima.testo()));
    MettiData(data);
    numeroAnno_ = data.anno == ultima.anno ? NumeroAnnoRecord(n) + 1 : 1;
    annoEtichetta_ = data.anno;
    return {};
}

void Inserimento::AggiornaNumeroAnnoNuova() {
    const auto d = DataCaselle();
    if (!d) return;
    numeroAnno_ = d->anno != ultimoAnno_ ? 1 : NumeroAnnoRecord(Totale()) + 1;
    annoEtichetta_ = d->anno;
}

void Inserimento::Correggi() {
    if (modo_ != ModoInserimento::Consulta || indiceCorrente_ < 1 || indiceCorrente_ > Totale()) return;
    Apri(false, NumeroCaselle());
    if (gioco_ == GiocoInserimento::Lotto)
        Apri(true, indiceCorrente_ > SogliaNazionale ? CaselleLotto : CaselleLotto - 5);
    else
        Apri(true, CaselleSuper);
    modo_ = ModoInserimento::Correzione;
}

void Inserimento::Precedente() {
    switch (modo_) {
        case ModoInserimento::Consulta:
            if (indiceCorrente_ > 1) Mostra(indiceCorrente_ - 1);
            return;
        case ModoInserimento::Nuova: {
            const auto d = DataCaselle();
            if (!d) return;
            const archives::Data giorno = archives::Data::daGiorni(d->giorni() - 1);
            if (giorno <= DataRecord(Totale())) return;
            MettiData(giorno);
            AggiornaNumeroAnnoNuova();
            return;
        }
        case ModoInserimento::Correzione: {
            const auto d = DataCaselle();
            if (!d) return;
            const archives::Data giorno = archives::Data::daGiorni(d->giorni() - 1);
            const Vicini v = DateVicine(indiceCorrente_);
            if (v.precedente && giorno <= *v.precedente) return;
            MettiData(giorno);
            return;
        }
    }
}

void Inserimento::Successiva() {
    switch (modo_) {
        case ModoInserimento::Consulta:
            if (indiceCorrente_ < Totale()) Mostra(indiceCorrente_ + 1);
            return;
        case ModoInserimento::Nuova: {
            const auto d = DataCaselle();
            if (!d) return;
            MettiData(archives::Data::daGiorni(d->giorni() + 1));
            AggiornaNumeroAnnoNuova();
            return;
        }
        case ModoInserimento::Correzione: {
            const auto d = DataCaselle();
            if (!d) return;
            const archives::Data giorno = archives::Data::daGiorni(d->giorni() + 1);
            const Vicini v = DateVicine(indiceCorrente_);
            if (v.successiva && giorno >= *v.successiva) return;
            MettiData(giorno);
            return;
        }
    }
}

EsitoDecodifica Inserimento::Inserisci() { return DecodificaTesto(testo_, caselle_); }

void Inserimento::Cancella() {
    for (auto& c : caselle_) c.clear();
    testo_.clear();
}

int Inserimento::CaselleInGioco() const {
    if (gioco_ == GiocoInserimento::SuperEnalotto) return CaselleSuper;
    return indiceCorrente_ < SogliaNazionale ? CaselleLotto - 5 : CaselleLotto;
}

EsitoMemorizzazione Inserimento::Rifiuto(archives::Messaggio m, int casella) const {
    EsitoMemorizzazione e;
    e.stato = StatoMemorizzazione::Rifiutata;
    e.messaggio = std::move(m);
    e.casella = casella;
    return e;
}

EsitoMemorizzazione Inserimento::Memorizza(const RisposteInserimento& risposte) {
    if (modo_ == ModoInserimento::Consulta) return Rifiuto({});
    const bool nuova = modo_ == ModoInserimento::Nuova;
    const bool lotto = gioco_ == GiocoInserimento::Lotto;
    if (!nuova && (indiceCorrente_ < 1 || indiceCorrente_ > Totale())) return Rifiuto({});
    const int inGioco = CaselleInGioco();
    auto mancanti = [&] {
        int n = 0;
        for (int i = 1; i <= inGioco; ++i) n += ValoreCasella(Casella(i)) == 0;
        return n;
    };
    int vuote = mancanti();

    // Straight after a paste the boxes are still empty: decode first, on the first pass only.
    if (vuote == inGioco && !risposte.numeriMancanti && !risposte.numeriUguali) {
        const EsitoDecodifica d = Inserisci();
        if (!d.errore.vuoto()) return Rifiuto(d.errore, d.casellaErrata);
        vuote = mancanti();
    }
    // A value the box check refused may still stand when the button is pressed.
    for (int i = 1; i <= inGioco; ++i)
        if (ValoreCasella(Casella(i)) > 90) return Rifiuto(Avviso(std::string(TestoNumeroFuoriLimiti)), i);

    if (vuote > 0 && !risposte.numeriMancanti) {
        EsitoMemorizzazione e;
        e.stato = StatoMemorizzazione::Domanda;
        e.domanda = DomandaInserimento::NumeriMancanti;
        e.messaggio = Domanda(vuote == 1 ? TestoMancaUnNumero : TestoMancanoNumeri);
        return e;
    }
    bool uguali = false;
    auto confronta = [&](int da, int quante) {
        for (int a = da; a < da + quante; ++a)
            for (int b = a + 1; b < da + quante; ++b)
                uguali = uguali || ValoreCasella(Casella(a)) == ValoreCasella(Casella(b));
    };
    if (lotto)
        for (int w = 0; w < inGioco / 5; ++w) confronta(w * 5 + 1, 5);
    else
        confronta(1, 6);
    if (uguali && !risposte.numeriUguali) {
        EsitoMemorizzazione e;
        e.stato = StatoMemorizzazione::Domanda;
        e.domanda = DomandaInserimento::NumeriUguali;
        e.messaggio = Domanda(lotto ? TestoUgualiSuRuota : TestoUgualiSuper);
        return e;
    }

    // The date: a new draw follows the last one stored (another window may have appended
    // since the date was proposed); a correction stays between its neighbours and in its year,
    // so that the year numbers and the year index stay true.
    const auto data = DataCaselle();
    if (!data) return Rifiuto(Avviso(std::string(archives::MessaggioDataErrata)));
    const int32_t totale = Totale();
    int numeroAnno = numeroAnno_;
    if (nuova) {
        if (totale >= 1) {
            const archives::Data ultima = DataRecord(totale);
            if (*data <= ultima)
                return Rifiuto(
                    Avviso(fmt::format("La data di una nuova estrazione deve seguire quella dell'ultima "
                                       "estrazione in archivio ({}) !",
                                       ultima.testo())));
            numeroAnno = data->anno == ultima.anno ? NumeroAnnoRecord(totale) + 1 : 1;
        } else {
            numeroAnno = 1;
        }
        if (numeroAnno > 255)
            return Rifiuto(Avviso(
                fmt::format("L'anno {} ha già 255 estrazioni: l'archivio non ne può contenere altre.", data->anno)));
    } else {
        const Vicini v = DateVicine(indiceCorrente_);
        if ((v.precedente && *data <= *v.precedente) || (v.successiva && *data >= *v.successiva))
            return Rifiuto(Avviso(fmt::format(
                "La data deve restare tra quella dell'estrazione precedente ({}) e quella della successiva ({}) !",
                v.precedente ? v.precedente->testo() : std::string("-"),
                v.successiva ? v.successiva->testo() : std::string("-"))));
        const archives::Data memorizzata = DataRecord(indiceCorrente_);
        if (data->anno != memorizzata.anno)
            return Rifiuto(
                Avviso(fmt::format("La data corretta deve restare nell'anno {}: il numero dell'estrazione "
                                   "nell'anno e l'indice degli anni ne dipendono.",
                                   memorizzata.anno)));
    }
    // Both weekday digits follow the date, as every reader of the archive expects.
    const int giorno = data->giornoSettimana();
    if (giorno < 1 || giorno > 7)
        return Rifiuto({std::string(TestoErroreGiornoSettimana), "", archives::Icona::Esclamazione});
    auto byte = [&](int i) { return static_cast<uint8_t>(ValoreCasella(Casella(i))); };

    EsitoMemorizzazione e;
    e.stato = StatoMemorizzazione::Memorizzata;
    e.nuova = nuova;
    e.indice = nuova ? totale + 1 : indiceCorrente_;
    if (lotto) {
        archives::RecordEstrazione r =
            nuova ? archives::RecordEstrazione{} : archivio_.LeggiEstrazione(indiceCorrente_);
        for (int w = 1; w <= archives::NumeroRuote; ++w)
            for (int p = 1; p <= 5; ++p) {
                const int i = (w - 1) * 5 + p;
                r.Ruota[w - 1][p - 1] = i <= inGioco ? byte(i) : 0;
            }
        r.impostaData(*data);
        r.NumeroAnno = static_cast<uint8_t>(numeroAnno);
        if (nuova) {
            archivio_.AggiungiEstrazione(r);
            e.annoAggiunto = r.NumeroAnno == 1;
        } else {
            archivio_.CorreggiEstrazione(indiceCorrente_, r);
        }
    } else {
        archives::RecordSuperEnalotto r =
            nuova ? archives::RecordSuperEnalotto{} : archivio_.LeggiRecordSuper(indiceCorrente_);
        for (int i = 0; i < 6; ++i) r.Sestina[i] = byte(i + 1);
        r.Jolly = byte(7);
        r.SuperStar = byte(8);
        r.impostaData(*data);
        r.NumeroAnno = static_cast<uint8_t>(numeroAnno);
        if (nuova)
            archivio_.AggiungiEstrazioneSuper(r);
        else
            archivio_.CorreggiEstrazioneSuper(indiceCorrente_, r);
    }

    modo_ = ModoInserimento::Consulta;
    Apri(false, NumeroCaselle());
    testo_.clear();
    Mostra(e.indice);
    return e;
}

bool Inserimento::ChiedeSalvataggio() const {
    if (modo_ == ModoInserimento::Consulta) return false;
    return std::any_of(caselle_.begin(), caselle_.end(), [](const std::string& c) { return !c.empty(); });
}

archives::Messaggio Inserimento::DomandaSalvataggio() {
    return {std::string(TestoSalvareDati), std::string(TitoloInputEstrazioni), archives::Icona::Domanda};
}

}  // namespace gorgo::maintenance
