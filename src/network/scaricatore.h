#pragma once
// One HTTP GET with Qt Network: the states for lblStatus, cancel, the system proxy,
// redirects, a time-out, the body as bytes with the status of the answer, and what failed
// told in Italian. Asynchronous (signals) for the windows, blocking (a local event loop)
// for the command line; either way a QCoreApplication must exist.

#include <QByteArray>
#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QUrl>

#include "maintenance/internet.h"

class QNetworkAccessManager;
class QNetworkReply;

namespace gorgo::network {

struct RisultatoScaricamento {
    QByteArray corpo;
    QString indirizzo;        // as asked
    QString indirizzoFinale;  // after the redirects
    int statoHttp = 0;        // 0: no answer
    QString testoHttp;        // the reason phrase
    bool completo = false;    // an answer arrived whole (whatever its status)
    bool annullato = false;
    bool scaduto = false;  // no progress within the time-out
    int codiceErrore = 0;  // QNetworkReply::NetworkError of a failed connection, else 0
    // What failed, naming the address: no server, cut short, time-out, HTTP status. Empty
    // when a whole answer with status 2xx arrived.
    QString errore;

    bool riuscito() const { return completo && statoHttp >= 200 && statoHttp < 300; }
    // The same as plain data for the core; it points into `corpo`, so it lives no longer.
    maintenance::Scaricamento PerIlNucleo() const;
};

class Scaricatore : public QObject {
    Q_OBJECT
public:
    // Seconds without any progress after which the transfer is given up.
    static constexpr int TempoMassimoPredefinito = 30;
    // A larger answer is no file of ours.
    static constexpr qint64 LimitePredefinito = 64LL << 20;

    explicit Scaricatore(QObject* parent = nullptr);
    ~Scaricatore() override;

    void ImpostaTempoMassimo(int millisecondi) { tempoMassimo_ = millisecondi; }
    void ImpostaLimite(qint64 byte) { limite_ = byte; }

    // Starts a GET; any transfer in progress is cancelled first. The end comes as terminato().
    void Avvia(const QString& indirizzo);
    // Ends the transfer; terminato() follows with annullato set. Nothing when idle.
    void Annulla();
    bool InCorso() const { return !risposta_.isNull(); }
    const RisultatoScaricamento& Risultato() const { return risultato_; }

    // Blocking: starts and runs a local event loop until the end.
    RisultatoScaricamento Scarica(const QString& indirizzo);

signals:
    // A state of the client (maintenance::stati). For the error state, `codice` and `testo`
    // are the response code and text; empty for the others.
    void statoCambiato(int stato, int codice, const QString& testo);
    void terminato();

private:
    void Fine();
    void Stato(int stato, int codice = 0, const QString& testo = {});

    QNetworkAccessManager* rete_;
    QPointer<QNetworkReply> risposta_;
    RisultatoScaricamento risultato_;
    int tempoMassimo_ = TempoMassimoPredefinito * 1000;
    qint64 limite_ = LimitePredefinito;
    bool annullando_ = false;
    bool troppoGrande_ = false;
    bool ricevendo_ = false;
};

// The error state's response text for a failed connection, in Italian.
QString TestoErroreRete(int codiceErrore);

}  // namespace gorgo::network
