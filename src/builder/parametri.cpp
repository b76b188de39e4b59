// Defaults of the period and the validation of a search.

#include "builder/parametri.h"

#include <algorithm>

#include "archives/regole.h"

namespace gorgo::builder {

namespace {

constexpr std::string_view DataMinimaPredefinita = "04/01/1947";
constexpr std::string_view TuttePosizioni = "11111";

RicercaValidata Rifiuto(std::string testo, std::string focus = {}) {
    RicercaValidata r;
    r.errore = {std::move(testo), "", archives::Icona::Esclamazione};
    r.focus = std::move(focus);
    return r;
}

// Values no control of the screen can give: a caller outside the screen is told plainly.
bool ParametriPossibili(const ParametriRicerca& p) {
    const int tipoSpia = static_cast<int>(p.tipoSpia), modo = static_cast<int>(p.modoSpia),
              tipo = static_cast<int>(p.tipoRicerca);
    return tipoSpia >= 0 && tipoSpia <= 3 && modo >= 0 && modo <= 2 && tipo >= 0 && tipo <= 4 &&
           (p.perData == 0 || p.perData == 1) && p.indiceMese >= 0 && p.indiceMese <= 22 &&
           (p.sorte == 2 || p.sorte == 3);
}

}  // namespace

std::array<bool, 12> RuoteScelte(const std::array<bool, 12>& caselle) {
    std::array<bool, 12> r{};
    for (size_t w = 1; w <= 11; ++w) r[w] = caselle[w];
    if (caselle[0])
        for (size_t w = 1; w <= 10; ++w) r[w] = true;
    return r;
}

int ContaRuoteScelte(const std::array<bool, 12>& caselle) {
    if (caselle[0]) return caselle[11] ? 11 : 10;
    return static_cast<int>(std::count(caselle.begin() + 1, caselle.end(), true));
}

std::string DescrizioneSpia(TipoSpia tipo, ModoSpia modo, int indiceMese, int valore, int valore2) {
    if (tipo != TipoSpia::Ambo && modo == ModoSpia::SoloIndiceMensile) {
        if (indiceMese == 0) return "Occorrenze dell'indice mensile U : ";
        if (indiceMese == 22) return "Occorrenze totali : ";
        return "Occorrenze dell'indice mensile " + std::to_string(indiceMese) + " : ";
    }
    std::string t;
    switch (tipo) {
        case TipoSpia::Numero: t = "Sortite del numero " + std::to_string(valore); break;
        case TipoSpia::Somma: t = "Sortite della somma " + std::to_string(valore); break;
        case TipoSpia::Differenza: t = "Sortite della differenza " + std::to_string(valore); break;
        case TipoSpia::Ambo: t = "Sortite dell'ambo " + std::to_string(valore) + "-" + std::to_string(valore2); break;
    }
    return t + " sulle ruote di ricerca nel periodo considerato: ";
}

std::string DataAPredefinita(const archives::StoriaLotto& storia) {
    if (storia.vuota()) return {};
    return storia.DataEstrazione(storia.NumeroEstrazioni());
}

std::string DataDaPredefinita(const archives::StoriaLotto& storia) {
    if (storia.vuota()) return {};
    const archives::Data ultima = storia[storia.NumeroEstrazioni()].data();
    // 29 February ten years back falls on the 28th, as a date picker steps back.
    const int anno = ultima.anno - 10;
    const archives::Data dieci{std::min(ultima.giorno, archives::GiorniNelMese(ultima.mese, anno)), ultima.mese, anno};
    const archives::Data minima = *archives::Data::daTesto(DataMinimaPredefinita);
    return (minima > dieci ? minima : dieci).testo();
}

RicercaValidata ValidaRicerca(const ParametriRicerca& p, const archives::StoriaLotto& storia,
                              const EsitoTerzine* terzine, std::string_view fileTerzine) {
    if (!ParametriPossibili(p)) return Rifiuto("Parametri di ricerca non validi !");

    // The codes need the reduced triples, whatever the spy: a file that is missing or holds
    // none is named; a file that failed says it as its load did.
    if (p.tipoRicerca == TipoRicerca::Codici && terzine && !terzine->valido) {
        RicercaValidata r;
        auto nonDisponibili = [&](std::string_view perche) {
            return archives::Messaggio{"Codici non disponibili: " + std::string(perche) + std::string(fileTerzine),
                                       "Errore", archives::Icona::Esclamazione};
        };
        if (terzine->fileMancante || terzine->messaggio.vuoto())
            r.errore = nonDisponibili("manca il file delle terzine ridotte ");
        else if (terzine->caricato)
            r.errore = nonDisponibili("nessuna terzina nel file delle terzine ridotte ");
        else
            r.errore = terzine->messaggio;
        return r;
    }

    const bool ambo = p.tipoSpia == TipoSpia::Ambo;
    // The ambo spy has its own frame in place of optTipo: "Tutti gli ambi" is its only mode.
    const bool soloIndice = !ambo && p.modoSpia == ModoSpia::SoloIndiceMensile;
    const bool fisso = ambo ? !p.tuttiGliAmbi : p.modoSpia == ModoSpia::Fisso;

    // 1. Positions of the spy.
    std::array<bool, 6> posizioni{false, true, true, true, true, true};
    if (p.posizioneDeterminata) posizioni = p.posizioniSpia;
    const auto scelte = std::count(posizioni.begin() + 1, posizioni.end(), true);
    if (!ambo && p.posizioneDeterminata && scelte == 0) return Rifiuto("Scegliere almeno una posizione estrattiva !");
    if (ambo && scelte < 2) return Rifiuto("Scegliere almeno due posizioni estrattive !");

    // 2. Positions in which an ambata counts.
    if (p.tipoRicerca == TipoRicerca::Ambate &&
        std::none_of(p.posizioniValide.begin() + 1, p.posizioniValide.end(), [](bool b) { return b; }))
        return Rifiuto("Scegliere almeno una posizione validità algoritmo !");

    // 3. Colpi.
    if (p.colpi < 1) return Rifiuto("Inserire il n. di colpi di gioco !", "txtColpi");

    // 4. The period, its dates turned into draws; a refused date brings its own message.
    RicercaValidata r;
    if (p.perData == 0) {
        const archives::RisultatoData da =
            archives::ControllaData(p.dataDa.empty() ? DataDaPredefinita(storia) : p.dataDa, storia, false);
        if (da.ErroreData) {
            RicercaValidata e;
            e.errore = da.messaggio;
            return e;
        }
        r.primo = da.IndiceTrovato;
    } else {
        r.primo = 1;
    }
    const archives::RisultatoData a =
        archives::ControllaData(p.dataA.empty() ? DataAPredefinita(storia) : p.dataA, storia, true);
    if (a.ErroreData) {
        RicercaValidata e;
        e.errore = a.messaggio;
        return e;
    }
    r.ultimoPeriodo = a.IndiceTrovato;
    r.ultimo = p.controllaUltime ? r.ultimoPeriodo : r.ultimoPeriodo - p.colpi;
    if (r.ultimo < r.primo || r.ultimo < 1)
        return Rifiuto("Data finale minore della data iniziale oppure n. di estrazioni insufficienti!");

    // 5. Wheels.
    r.ruoteRicerca = RuoteScelte(p.ruoteRicerca);
    r.ruoteGioco = RuoteScelte(p.ruoteGioco);
    r.numeroRuoteRicerca = ContaRuoteScelte(p.ruoteRicerca);
    if (r.numeroRuoteRicerca == 0) return Rifiuto("Scegliere almeno una ruota di ricerca !");

    // 6. The spy itself, and the description of the search.
    r.amboSpia = p.amboSpia;
    if (fisso && !ambo && (p.valoreSpia < 1 || p.valoreSpia > 90)) {
        switch (p.tipoSpia) {
            case TipoSpia::Somma: return Rifiuto("Inserire la somma spia !", "cboNumero");
            case TipoSpia::Differenza: return Rifiuto("Inserire la differenza spia !", "cboNumero");
            default: return Rifiuto("Inserire il numero spia !", "cboNumero");
        }
    }
    if (fisso && ambo) {
        auto& [x, y] = r.amboSpia;
        if (x < 1 || x > 90 || y < 1 || y > 90 || x == y)
            return Rifiuto(p.tipoRicerca == TipoRicerca::Ambi ? "Ambo errato!"
                                                              : "Inserire correttamente l'ambo spia !");
        if (x > y) std::swap(x, y);
    }
    if (soloIndice)
        r.descrizione = DescrizioneSpia(p.tipoSpia, p.modoSpia, p.indiceMese, 1);
    else if (fisso)
        r.descrizione = ambo ? DescrizioneSpia(p.tipoSpia, p.modoSpia, p.indiceMese, r.amboSpia[0], r.amboSpia[1])
                             : DescrizioneSpia(p.tipoSpia, p.modoSpia, p.indiceMese, p.valoreSpia);

    // 7. Hits to look for.
    if (p.perData == 1 && p.sortiteDaCercare < 1)
        return Rifiuto("Inserire il n. di sortite da ricercare!", "cboSortite");

    // 8. A difference of 90 cannot come out of two different numbers.
    if (fisso && p.tipoSpia == TipoSpia::Differenza && p.valoreSpia == 90)
        return Rifiuto("Differenza non permessa.", "cboNumero");

    // Positions of the key's tail: none for sum and difference, all with the month index alone.
    if (p.tipoSpia == TipoSpia::Numero || ambo) {
        if (soloIndice || !p.posizioneDeterminata) {
            r.testoPosizioni = TuttePosizioni;
        } else {
            for (size_t i = 1; i <= 5; ++i) r.testoPosizioni += posizioni[i] ? '1' : '0';
        }
    }
    return r;
}

}  // namespace gorgo::builder
