#include "enucleated/periodo.h"

#include "archives/record.h"
#include "archives/regole.h"

namespace gorgo::enucleated {

EsitoPeriodo ControllaPeriodo(const archives::StoriaLotto& storia, std::string_view da, std::string_view a) {
    EsitoPeriodo e;
    const archives::RisultatoData d = archives::ControllaData(da, storia, false);
    if (d.ErroreData) {
        e.errore = d.messaggio;
        return e;
    }
    const archives::RisultatoData f = archives::ControllaData(a, storia, true);
    if (f.ErroreData) {
        e.errore = f.messaggio;
        return e;
    }
    e.periodo = {d.IndiceTrovato, f.IndiceTrovato, d.DataTrovata, f.DataTrovata};
    return e;
}

std::string_view SiglaRuota(int ruota) { return archives::SigleRuota[static_cast<size_t>(ruota)]; }

std::string NomeRuota(int ruota) {
    std::string n(archives::NomiRuota[static_cast<size_t>(ruota)]);
    n.erase(n.find_last_not_of(' ') + 1);
    return n;
}

}  // namespace gorgo::enucleated
