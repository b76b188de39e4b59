#pragma once
// What every procedure of the enucleated pair shares: the kind of analysis, the period of
// the two date pickers, the progress of a long run.

#include <cstdint>
#include <functional>
#include <stop_token>
#include <string>
#include <string_view>

#include "archives/messaggio.h"
#include "archives/storia.h"

namespace gorgo::enucleated {

// The items of cboTipoRicerca, by index.
enum class TipoAnalisi { Ambi = 0, Terni = 1 };

struct Periodo {
    int32_t inizio = 0, fine = 0;  // Inizio and Fine, progressive indices
    std::string dataDa, dataA;     // the dates found, to which the pickers are reset
};

struct EsitoPeriodo {
    archives::Messaggio errore;  // the date check's own message; the run ends quietly after it
    Periodo periodo;
    bool valido() const { return errore.vuoto(); }
};

// DTPickerDa is looked up forward, DTPickerA backward (the draw on or before the date).
EsitoPeriodo ControllaPeriodo(const archives::StoriaLotto& storia, std::string_view da, std::string_view a);

struct Avanzamento {
    std::stop_token stop;
    // Text of the progress box, value and maximum of its bar.
    std::function<void(const std::string& testo, int valore, int massimo)> progresso;
};

// Short and full wheel names without the padding of the archive's tables.
std::string_view SiglaRuota(int ruota);
std::string NomeRuota(int ruota);

}  // namespace gorgo::enucleated
