#pragma once
// The host's connection state before going to the Internet: is it connected, and if not,
// go on-line. Qt has no off-line mode of its own, so "on-line" means the network layer is
// asked to work; the state is injectable so that tests never touch the real network.

#include <memory>

namespace gorgo::network {

inline constexpr const char* MessaggioOffLine = "Errore richiamando la modalità off-line";

class StatoConnessione {
public:
    virtual ~StatoConnessione() = default;
    // VerifyConnection: true unless the host says it is disconnected ("unknown" counts as
    // connected, as on a system with no reachability backend).
    virtual bool Connesso();
    // OnOffLine: switches to on-line or off-line; false on failure.
    virtual bool ImpostaInLinea(bool inLinea);
};

// The state the program uses; replaced by the tests. Returns the previous one.
StatoConnessione& Connessione();
std::unique_ptr<StatoConnessione> ImpostaConnessione(std::unique_ptr<StatoConnessione> stato);

// Before a transfer: when the host is not connected, goes on-line. False when that failed:
// the caller shows MessaggioOffLine and does not go on.
bool VaiInLineaSeServe();

}  // namespace gorgo::network
