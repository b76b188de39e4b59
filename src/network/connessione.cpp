#include "network/connessione.h"

#include <QNetworkInformation>

namespace gorgo::network {

bool StatoConnessione::Connesso() {
    // Loaded once; a platform without a backend answers nothing and counts as connected.
    static const bool caricato = QNetworkInformation::loadBackendByFeatures(QNetworkInformation::Feature::Reachability);
    const QNetworkInformation* info = caricato ? QNetworkInformation::instance() : nullptr;
    return !info || info->reachability() != QNetworkInformation::Reachability::Disconnected;
}

bool StatoConnessione::ImpostaInLinea(bool inLinea) {
    // Qt Network keeps no off-line switch: going on-line always succeeds, off-line cannot.
    return inLinea;
}

namespace {
std::unique_ptr<StatoConnessione>& Attuale() {
    static std::unique_ptr<StatoConnessione> stato = std::make_unique<StatoConnessione>();
    return stato;
}
}  // namespace

StatoConnessione& Connessione() { return *Attuale(); }

std::unique_ptr<StatoConnessione> ImpostaConnessione(std::unique_ptr<StatoConnessione> stato) {
    std::swap(Attuale(), stato);
    return stato;
}

bool VaiInLineaSeServe() { return Connessione().Connesso() || Connessione().ImpostaInLinea(true); }

}  // namespace gorgo::network
