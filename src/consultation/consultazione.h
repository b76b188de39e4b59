#pragma once
// The consultation cursor: the state of the reading desk (current draw, wheel, view, period,
// the three finds, the family in force), its moves, and the refresh that gives the grid as
// data in its fixed order.

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "archives/regole.h"
#include "archives/storia.h"
#include "consultation/famiglie.h"
#include "consultation/griglia.h"
#include "consultation/uscite.h"

namespace gorgo::consultation {

enum class Vista : int { Normale = 0, Ritardi = 1, Frequenze = 2 };

enum class TipoPeriodo : int { Ultime = 0, UltimoAnno = 1, InizioAnno = 2, Cicli = 3 };

// The colours of the six targets of the sums and distances to find.
extern const std::array<CoppiaColori, 6> ColoriObiettivi;

// A find of sums or distances: up to six targets (0: none) and their tallies.
struct Ricerca {
    bool attiva = false;
    std::array<int, 6> obiettivi{};
    std::array<int32_t, 6> totali{};
};

// The month index of every draw: place in its month from 1, and the last draw of each month.
struct IndiciMese {
    std::vector<int16_t> indice;  // by progressive index, entry 0 unused
    std::vector<bool> ultima;
};
IndiciMese CalcolaIndiciMese(const archives::StoriaLotto& storia);

class Consultazione {
public:
    explicit Consultazione(archives::StoriaCondivisa storia);

    const archives::StoriaLotto& storia() const { return *storia_; }
    int32_t NumeroEstrazioni() const { return storia_->NumeroEstrazioni(); }

    // State, set by the controls. The moves keep IndiceCorrente within 1..NumeroEstrazioni.
    int32_t IndiceCorrente = 0;
    int RuotaCorrente = 0;  // 0: all wheels
    int32_t Salto = 10;
    Vista TipoVisualizzazione = Vista::Normale;
    bool Ordinate = false;  // chkOrdin

    TipoPeriodo Periodo = TipoPeriodo::Ultime;
    int32_t UltimeEstrazioni = 10;       // txtNumeroEstrazioni
    int32_t Cicli = 1;                   // txtCicli
    bool NonConsiderareAttuale = false;  // chkConsideraAttuale

    ParametriAnalisi Analisi;

    bool TrovaNumeri = false;
    std::array<bool, 91> NumeriDaTrovare{};
    std::array<int32_t, 91> ContaNumeri{};
    Ricerca TrovaSomme;
    bool SommeFuori90 = false;  // chkTrovaF90
    Ricerca TrovaDistanze;

    void Precedente() { VaiA(IndiceCorrente - 1); }
    void Successiva() { VaiA(IndiceCorrente + 1); }
    void IndietroVeloce() { VaiA(IndiceCorrente - Salto); }
    void AvantiVeloce() { VaiA(IndiceCorrente + Salto); }
    void VaiA(int32_t indice);
    // The date of a picker: on success the cursor moves to the draw found; on a refusal the
    // message comes back and nothing moves.
    archives::RisultatoData VaiAData(std::string_view data);

    // Change of view: views 1 and 2 clear the three finds.
    void ImpostaVista(Vista v);
    // cmdOk of the numbers panel: takes the ticked numbers and clears their tallies.
    void ImpostaNumeriDaTrovare(const std::array<bool, 91>& numeri);

    // The frequency period at the current draw: PeriodoInizio, PeriodoFine; nothing when it
    // cannot be formed.
    struct PeriodoFrequenze {
        int32_t inizio = 0;
        int32_t fine = 0;
        double SortitaMedia = 0;
    };
    std::optional<PeriodoFrequenze> CalcolaPeriodo() const;

    // The refresh, in its order: labels, grid, view, family, finds (whose tallies rise).
    const Griglia& Aggiorna();
    const Griglia& griglia() const { return griglia_; }
    // The numbers of the current draw, wheel by wheel, for the sums and distances table.
    const archives::RecordEstrazione& EstrazioneCorrente() const { return (*storia_)[IndiceCorrente]; }

    const IndiciMese& indiciMese() const { return mese_; }
    const TabelleUscite& uscite() const { return uscite_; }

private:
    void RiempiGriglia();
    void MostraRitardi();
    void MostraFrequenze(const PeriodoFrequenze& p);
    void MarcaEstremi(const std::array<int32_t, NumeroCelle>& valori, bool grandeRosso);
    void EseguiAnalisi();
    void TrovaNumeriNellaGriglia();
    void TrovaCoppie(Ricerca& r, bool somma);
    int32_t BaseRiga(int riga) const;  // the draw of a row of the grid
    int RuotaRiga(int riga) const;

    archives::StoriaCondivisa storia_;
    IndiciMese mese_;
    TabelleUscite uscite_;
    Griglia griglia_;
};

}  // namespace gorgo::consultation
