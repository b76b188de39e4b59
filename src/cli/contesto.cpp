#include "cli/contesto.h"

#include <iostream>

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

void StampaJson(const nlohmann::json& j) { std::cout << j.dump() << "\n"; }

}  // namespace gorgo::cli
