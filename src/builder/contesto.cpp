#include "builder/contesto.h"

#include "config/impostazioni.h"

namespace gorgo::builder {

ContestoCostruttore PreparaCostruttore(archives::StoriaCondivisa storia, const config::FileIni& ini,
                                       const std::filesystem::path& percorsoProgramma,
                                       std::optional<std::string> fileTerzine) {
    ContestoCostruttore c;
    c.storia = std::move(storia);
    const std::string giorni =
        config::LeggiImpostazione(ini, config::sezioni::Options, "Giorni estrazione",
                                  config::Predefinito(config::sezioni::Options, "Giorni estrazione"));
    c.indici = CalcolaIndiciMensili(*c.storia, giorni);
    c.restrizioni = config::LeggiRestrizioni(ini);
    if (!fileTerzine || fileTerzine->empty()) {
        const std::string impostato = config::LeggiImpostazione(ini, config::sezioni::Options, "FileTerzine", "");
        fileTerzine = impostato.empty() ? (percorsoProgramma / "Terzine.txt").string() : impostato;
    }
    c.fileTerzine = *fileTerzine;
    c.terzine = CaricaTerzine(c.fileTerzine);
    return c;
}

}  // namespace gorgo::builder
