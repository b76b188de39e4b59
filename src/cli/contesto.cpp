#include "cli/contesto.h"

#include <iostream>

#include "archives/percorso.h"

namespace gorgo::cli {

std::filesystem::path Contesto::PercorsoProgramma() const {
    std::optional<std::filesystem::path> c;
    if (!cartella.empty()) c = cartella;
    return TrovaPercorsoProgramma(AmbienteCorrente(c));
}

Archivio Contesto::ApriArchivi() const {
    Archivio a = Archivio::Apri(PercorsoProgramma(), ModoApertura::Lettura);
    if (Messaggio m = ControllaPresenzaArchivi(a); !m.vuoto()) throw Rifiuto{m};
    if (Messaggio m = VerificaIntegrita(a); !m.vuoto()) throw Rifiuto{m};
    return a;
}

void StampaJson(const nlohmann::json& j) { std::cout << j.dump() << "\n"; }

}  // namespace gorgo::cli
