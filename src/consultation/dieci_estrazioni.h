#pragma once
// Ten consecutive draws of SuperEnalotto or 10eLotto, one row a draw, walked with the moves of
// the Lotto desk and marked with the families of these games. One design, two sources of draws.

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "archives/record.h"
#include "archives/storia.h"
#include "consultation/griglia.h"

namespace gorgo::consultation {

enum class Gioco { SuperEnalotto, DieciELotto };

// Codes of the choices of these screens.
enum CodiceDieci : int {
    DieciDecinaNaturale = 1,
    DieciCadenza = 2,
    DieciFigura = 3,
    DieciGemelli = 7,
    DieciRadicali = 9,
    DieciSortitiPrecedente = 10,
    DieciNonSortitiPrecedente = 11,
    DieciPari = 12,
    DieciDispari = 13,
};

struct RigaDieci {
    int32_t indice = 0;  // 0: no draw in this row (before draw 1)
    std::string data;
    std::vector<int> numeri;  // six, or twenty in ascending order; empty when none can be formed
    std::vector<bool> marcati;
    int jolly = 0, superstar = 0;  // SuperEnalotto only; 0 for none
};

struct ElencoDieci {
    std::array<RigaDieci, 10> righe{};  // row 0 the oldest
    std::string descrizione = "Nessuna selezione";
    std::vector<std::string> messaggi;  // "Estrazione da 20 numeri impossibile : " index
};

class ConsultazioneDieci {
public:
    // The draws of SuperEnalotto, by progressive index from 1.
    ConsultazioneDieci(std::vector<archives::RecordSuperEnalotto> super);
    // The 10eLotto draws, derived from the Lotto draws of the history.
    ConsultazioneDieci(archives::StoriaCondivisa storia);

    Gioco gioco() const { return gioco_; }
    int32_t NumeroEstrazioni() const { return numeroEstrazioni_; }

    int32_t IndiceCorrente = 0;
    int32_t Salto = 10;
    int FamigliaScelta = 0;
    int NumeroFamiglia = -1;  // the digit; -1 while a family waits for it

    void VaiA(int32_t indice);
    void Precedente() { VaiA(IndiceCorrente - 1); }
    void Successiva() { VaiA(IndiceCorrente + 1); }
    void IndietroVeloce() { VaiA(IndiceCorrente - Salto); }
    void AvantiVeloce() { VaiA(IndiceCorrente + Salto); }

    // Rows, labels, family: the refresh in its order.
    ElencoDieci Aggiorna() const;
    // The print: title, "In evidenza" and the family, the heading, the rows.
    std::vector<std::string> Report(const ElencoDieci& e) const;
    std::string TitoloReport() const;

    static std::string DescrizioneFamiglia(int codice);
    static std::vector<int> CifreAmmesse(int codice);

private:
    RigaDieci LeggiRiga(int32_t indice, std::vector<std::string>& messaggi) const;

    Gioco gioco_;
    int32_t numeroEstrazioni_ = 0;
    std::vector<archives::RecordSuperEnalotto> super_;
    archives::StoriaCondivisa storia_;
};

}  // namespace gorgo::consultation
