#include "cli/contesto.h"

#include <fmt/format.h>
#include <unistd.h>

#include <algorithm>
#include <iostream>
#include <utility>
#include <vector>

#include "archives/percorso.h"
#include "maintenance/aggiornamento.h"

namespace gorgo::cli {

std::filesystem::path Contesto::PercorsoProgramma() const {
    std::optional<std::filesystem::path> c;
    if (!cartella.empty()) c = cartella;
    return archives::TrovaPercorsoProgramma(archives::AmbienteCorrente(c));
}

archives::Archivio Contesto::ApriArchivi() const {
    const std::filesystem::path programma = PercorsoProgramma();
    archives::Archivio a = archives::Archivio::Apri(programma, archives::ModoApertura::Lettura);
    if (archives::Messaggio m = archives::ControllaPresenzaArchivi(a); !m.vuoto()) throw Rifiuto{m};
    archives::Messaggio m = archives::VerificaIntegrita(a);
    if (m.vuoto()) return a;
    // An interrupted write leaves the files out of step; a whole archive is never written
    // here, so a read-only folder still serves the readers.
    if (::access(a.CartellaArchivi().c_str(), W_OK) == 0) {
        try {
            const maintenance::EsitoRiparazione r = maintenance::RiparaCartellaArchivi(a.CartellaArchivi());
            if (r.riparato()) {
                std::cerr << r.descrizione << "\n";
                a = archives::Archivio::Apri(programma, archives::ModoApertura::Lettura);
                m = archives::VerificaIntegrita(a);
                if (m.vuoto()) return a;
            }
            throw Rifiuto{m};
        } catch (const archives::ErroreArchivio&) {
            // Not writable after all: say how to repair, below.
        }
    }
    if (maintenance::RiparaCartellaArchivi(a.CartellaArchivi(), true).riparato())
        m.testo += fmt::format("\nPer ripararlo: gorgo-cli --cartella {} ripara, oppure aprire il programma.",
                               programma.string());
    throw Rifiuto{m};
}

namespace {
// Filled during static initialisation: a function-local table is ready whatever the order of
// the files.
std::vector<std::pair<int, AggiungiComandi>>& Gruppi() {
    static std::vector<std::pair<int, AggiungiComandi>> gruppi;
    return gruppi;
}
}  // namespace

GruppoComandi::GruppoComandi(int ordine, AggiungiComandi aggiungi) { Gruppi().emplace_back(ordine, aggiungi); }

void AggiungiTuttiIComandi(CLI::App& app, Contesto& ctx) {
    auto gruppi = Gruppi();
    std::stable_sort(gruppi.begin(), gruppi.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
    for (const auto& [ordine, aggiungi] : gruppi) aggiungi(app, ctx);
}

void StampaJson(const nlohmann::json& j) { std::cout << j.dump() << "\n"; }

}  // namespace gorgo::cli
