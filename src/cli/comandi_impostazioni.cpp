// restrizioni, impostazione.

#include "cli/contesto.h"
#include "cli/restrizioni_info.h"

namespace gorgo::cli {

std::vector<std::string> RigheRestrizioni(const std::filesystem::path&) { return {"Nessuna"}; }

void AggiungiComandiImpostazioni(CLI::App&, Contesto&) {}

}  // namespace gorgo::cli
