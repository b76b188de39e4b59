#pragma once
// The recap of a verified algorithm (RiepilogoTecnica): its figures and its head block.

#include <string>
#include <string_view>
#include <vector>

#include "builder/verifica.h"

namespace gorgo::builder {

struct FigureRiepilogo {
    int rilevati = 0, favorevoli = 0, negativi = 0, inGioco = 0, sfaldati = 0;
    long long sommaColpi = 0;
};

struct EsitoRiepilogo {
    archives::Messaggio errore;  // ColpiMancanti
    FigureRiepilogo figure;
    std::vector<std::string> testa;  // the head block of frmReportGorgo
    std::vector<std::string> righe;  // " Casi rilevati   : " ... " Attesa media    : "
};

// The figures alone, over the rows of a visible verification; `fine` is txtDataFine's index.
FigureRiepilogo FigureTecnica(const std::vector<RigaVerifica>& righe, int32_t fine, int colpi);

EsitoRiepilogo RiepilogoTecnica(const ParametriRicerca& parametri, const ContestoRicerca& contesto,
                                const EsitoVerifica& verifica, std::string_view descrizione, std::string_view chiave);

}  // namespace gorgo::builder
