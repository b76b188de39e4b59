#include "network/scaricatore.h"

#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkProxyFactory>
#include <QNetworkReply>
#include <QNetworkRequest>

namespace gorgo::network {

namespace stati = maintenance::stati;

QString TestoErroreRete(int codiceErrore) {
    switch (static_cast<QNetworkReply::NetworkError>(codiceErrore)) {
        case QNetworkReply::ConnectionRefusedError: return QStringLiteral("connessione rifiutata dal server");
        case QNetworkReply::RemoteHostClosedError:
            return QStringLiteral("connessione chiusa dal server prima della fine del file");
        case QNetworkReply::HostNotFoundError: return QStringLiteral("server non trovato");
        case QNetworkReply::TimeoutError:
        case QNetworkReply::OperationCanceledError: return QStringLiteral("tempo scaduto senza risposta dal server");
        case QNetworkReply::SslHandshakeFailedError: return QStringLiteral("connessione sicura (SSL) non riuscita");
        case QNetworkReply::TemporaryNetworkFailureError:
        case QNetworkReply::NetworkSessionFailedError: return QStringLiteral("rete non disponibile");
        case QNetworkReply::ProxyConnectionRefusedError:
        case QNetworkReply::ProxyConnectionClosedError:
        case QNetworkReply::ProxyNotFoundError:
        case QNetworkReply::ProxyTimeoutError: return QStringLiteral("server proxy non raggiungibile");
        case QNetworkReply::ProxyAuthenticationRequiredError:
            return QStringLiteral("il server proxy richiede l'autenticazione");
        case QNetworkReply::TooManyRedirectsError: return QStringLiteral("troppi reindirizzamenti");
        case QNetworkReply::InsecureRedirectError:
            return QStringLiteral("reindirizzamento da https a http non consentito");
        case QNetworkReply::ProtocolUnknownError: return QStringLiteral("indirizzo non http");
        default: return QStringLiteral("errore di rete n. %1").arg(codiceErrore);
    }
}

maintenance::Scaricamento RisultatoScaricamento::PerIlNucleo() const {
    maintenance::Scaricamento s;
    s.corpo = {reinterpret_cast<const uint8_t*>(corpo.constData()), static_cast<std::size_t>(corpo.size())};
    s.indirizzo = indirizzo.toStdString();
    s.statoHttp = statoHttp;
    s.testoHttp = testoHttp.toStdString();
    s.completo = completo;
    s.annullato = annullato;
    s.erroreRete = errore.toStdString();
    return s;
}

Scaricatore::Scaricatore(QObject* parent) : QObject(parent), rete_(new QNetworkAccessManager(this)) {
    // The program has no proxy settings of its own: the host's serve.
    QNetworkProxyFactory::setUseSystemConfiguration(true);
}

Scaricatore::~Scaricatore() {
    if (risposta_) {
        risposta_->disconnect(this);
        risposta_->abort();
    }
}

void Scaricatore::Stato(int stato, int codice, const QString& testo) { emit statoCambiato(stato, codice, testo); }

void Scaricatore::Avvia(const QString& indirizzo) {
    if (risposta_) {
        // A new request replaces the old one without announcing its end.
        risposta_->disconnect(this);
        risposta_->abort();
        risposta_->deleteLater();
        risposta_.clear();
    }
    risultato_ = {};
    risultato_.indirizzo = indirizzo;
    annullando_ = troppoGrande_ = ricevendo_ = false;

    const QUrl url(indirizzo, QUrl::StrictMode);
    QNetworkRequest richiesta(url);
    richiesta.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::NoLessSafeRedirectPolicy);
    richiesta.setMaximumRedirectsAllowed(10);
    richiesta.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
    // A caching proxy must not hand back yesterday's update.
    richiesta.setRawHeader("Cache-Control", "no-cache");
    richiesta.setHeader(QNetworkRequest::UserAgentHeader, QStringLiteral("Gorgo/2"));
    richiesta.setTransferTimeout(tempoMassimo_);

    Stato(stati::RicercaIP);
    QNetworkReply* r = rete_->get(richiesta);
    risposta_ = r;
    connect(r, &QNetworkReply::socketStartedConnecting, this, [this] {
        Stato(stati::IPTrovato);
        Stato(stati::Connessione);
    });
    connect(r, &QNetworkReply::requestSent, this, [this] { Stato(stati::Connesso); });
    connect(r, &QNetworkReply::metaDataChanged, this, [this, r] {
        // A redirect brings headers too; the file starts with the final answer.
        const int codice = r->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
        if (!ricevendo_ && (codice < 300 || codice >= 400)) {
            ricevendo_ = true;
            Stato(stati::Scaricamento);
        }
    });
    connect(r, &QNetworkReply::downloadProgress, this, [this, r](qint64 ricevuti, qint64) {
        if (ricevuti > limite_ && !troppoGrande_) {
            troppoGrande_ = true;
            r->abort();
        }
    });
    connect(r, &QNetworkReply::finished, this, &Scaricatore::Fine);
}

void Scaricatore::Annulla() {
    if (!risposta_) return;
    annullando_ = true;
    risposta_->abort();  // finished() follows, synchronously or from the event loop
}

void Scaricatore::Fine() {
    QNetworkReply* r = risposta_.data();
    if (!r) return;
    risposta_.clear();
    r->deleteLater();

    RisultatoScaricamento& e = risultato_;
    // An aborted reply is closed: there is nothing to read.
    e.corpo = r->isOpen() ? r->readAll() : QByteArray();
    e.indirizzoFinale = r->url().toString();
    e.statoHttp = r->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    e.testoHttp = r->attribute(QNetworkRequest::HttpReasonPhraseAttribute).toString();
    const QNetworkReply::NetworkError errore = r->error();
    const QString dove = e.indirizzo;

    if (annullando_) {
        e.annullato = true;
        e.corpo.clear();
        e.errore = QStringLiteral("Scaricamento da %1 annullato").arg(dove);
        emit terminato();
        return;
    }
    // Errors at the HTTP level (codes from 100 on, with a status) still bring a whole answer:
    // its body goes to the sieve. Codes below 100 are the connection's own.
    const bool erroreHttp = e.statoHttp >= 400 && (errore == QNetworkReply::NoError || errore >= 100);
    if (troppoGrande_) {
        e.errore =
            QStringLiteral("Scaricamento da %1 interrotto: la risposta supera %2 MB").arg(dove).arg(limite_ >> 20);
        e.codiceErrore = QNetworkReply::OperationCanceledError;
    } else if (errore != QNetworkReply::NoError && !erroreHttp) {
        e.codiceErrore = errore;
        e.scaduto = errore == QNetworkReply::OperationCanceledError || errore == QNetworkReply::TimeoutError;
        if (e.statoHttp != 0 && errore == QNetworkReply::RemoteHostClosedError) {
            const QVariant attesi = r->header(QNetworkRequest::ContentLengthHeader);
            e.errore =
                attesi.isValid()
                    ? QStringLiteral("Scaricamento da %1 interrotto: ricevuti %2 byte su %3")
                          .arg(dove)
                          .arg(e.corpo.size())
                          .arg(attesi.toLongLong())
                    : QStringLiteral("Scaricamento da %1 interrotto: ricevuti %2 byte").arg(dove).arg(e.corpo.size());
        } else {
            e.errore = QStringLiteral("Scaricamento da %1 non riuscito: %2").arg(dove, TestoErroreRete(errore));
        }
    } else {
        // A length announced and not met is a body cut short, whatever the socket said; a
        // compressed answer is measured before Qt inflates it, so it is not compared.
        const QVariant attesi = r->header(QNetworkRequest::ContentLengthHeader);
        if (attesi.isValid() && !r->hasRawHeader("Content-Encoding") && attesi.toLongLong() != e.corpo.size()) {
            e.codiceErrore = QNetworkReply::RemoteHostClosedError;
            e.errore = QStringLiteral("Scaricamento da %1 interrotto: ricevuti %2 byte su %3")
                           .arg(dove)
                           .arg(e.corpo.size())
                           .arg(attesi.toLongLong());
        } else {
            e.completo = true;
            if (erroreHttp)
                e.errore = QStringLiteral("%1: il server ha risposto HTTP %2 %3")
                               .arg(dove)
                               .arg(e.statoHttp)
                               .arg(e.testoHttp)
                               .trimmed();
        }
    }
    if (e.completo) {
        Stato(stati::Finito);
    } else {
        const int codice = e.statoHttp != 0 ? e.statoHttp : e.codiceErrore;
        Stato(stati::Errore, codice,
              e.statoHttp != 0 && e.testoHttp.size() ? e.testoHttp : TestoErroreRete(e.codiceErrore));
    }
    emit terminato();
}

RisultatoScaricamento Scaricatore::Scarica(const QString& indirizzo) {
    QEventLoop ciclo;
    const QMetaObject::Connection c = connect(this, &Scaricatore::terminato, &ciclo, &QEventLoop::quit);
    Avvia(indirizzo);
    if (InCorso()) ciclo.exec();
    disconnect(c);
    return risultato_;
}

}  // namespace gorgo::network
