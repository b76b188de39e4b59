#include "cli/contesto.h"

#include <algorithm>
#include <iostream>
#include <utility>
#include <vector>

#include "archives/percorso.h"

namespace gorgo::cli {

std::filesystem::path Contesto::PercorsoProgramma() const {
    std::optional<std::filesystem::path> c;
    if (!cartella.empty()) c = cartella;
    return archives::TrovaPercorsoProgramma(archives::AmbienteCorrente(c));
}

archives::Archivio Contesto::ApriArchivi() const {
    archives::Archivio a = archives::Archivio::Apri(PercorsoProgramma(), archives::ModoApertura::Lettura);
    if (archives::Messaggio m = archives::ControllaPresenzaArchivi(a); !m.vuoto()) throw Rifiuto{m};
    if (archives::Messaggio m = archives::VerificaIntegrita(a); !m.vuoto()) throw Rifiuto{m};
    return a;
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
