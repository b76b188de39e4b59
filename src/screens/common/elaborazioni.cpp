#include "screens/common/elaborazioni.h"

#include <QApplication>
#include <QCloseEvent>
#include <QPointer>
#include <QVBoxLayout>

#include "config/ini.h"
#include "screens/common/stile.h"

namespace gorgo::screens {

CMouse::CMouse() { QApplication::setOverrideCursor(Qt::WaitCursor); }
CMouse::~CMouse() { QApplication::restoreOverrideCursor(); }

FrmElaborazioni::FrmElaborazioni(Sessione& sessione, QWidget* parent) : QDialog(parent), sessione_(sessione) {
    setObjectName("frmElaborazioni");
    setWindowTitle(QStringLiteral("   Elaborazione in corso..."));
    auto* l = new QVBoxLayout(this);
    lblDescrizioneJob_ = new QLabel(this);
    lblDescrizioneJob_->setObjectName("lblDescrizioneJob");
    lblDescrizioneJob_->setMinimumWidth(320);
    prgAvanzamento_ = new QProgressBar(this);
    prgAvanzamento_->setObjectName("prgAvanzamento");
    cmdStop_ = new QPushButton(QStringLiteral("Stop"), this);
    cmdStop_->setObjectName("cmdStop");
    cmdStop_->setToolTip(QStringLiteral("Annulla la ricerca in corso"));
    l->addWidget(lblDescrizioneJob_);
    l->addWidget(prgAvanzamento_);
    l->addWidget(cmdStop_, 0, Qt::AlignHCenter);
    connect(cmdStop_, &QPushButton::clicked, this, &FrmElaborazioni::stopRichiesto);
    ApplicaStile(this, sessione_.ini);
}

void FrmElaborazioni::Descrivi(const QString& testo, int valore, int massimo) {
    lblDescrizioneJob_->setText(testo);
    prgAvanzamento_->setMaximum(std::max(massimo, 1));
    prgAvanzamento_->setValue(std::min(valore, std::max(massimo, 1)));
}

void FrmElaborazioni::closeEvent(QCloseEvent* e) {
    // Only the end of the job closes the window.
    if (sessione_.ElaborazioneInCorso)
        e->ignore();
    else
        QDialog::closeEvent(e);
}

void FrmElaborazioni::reject() {
    if (!sessione_.ElaborazioneInCorso) QDialog::reject();
}

Elaborazione* Elaborazione::Avvia(QWidget* parent, Sessione& sessione, const QString& descrizione, Lavoro lavoro,
                                  std::function<void(bool)> fine) {
    auto* e = new Elaborazione;
    e->finestra_ = new FrmElaborazioni(sessione, parent);
    e->finestra_->setAttribute(Qt::WA_DeleteOnClose);
    e->finestra_->Descrivi(descrizione, 0, 1);
    e->mouse_ = new CMouse;
    sessione.ElaborazioneInCorso = true;
    connect(e->finestra_, &FrmElaborazioni::stopRichiesto, e, &Elaborazione::Ferma);
    e->finestra_->show();

    QPointer<FrmElaborazioni> finestra = e->finestra_;
    const std::stop_token token = e->stop_.get_token();
    Sessione* stato = &sessione;  // outlives the job: the shell's, or the test's
    e->thread_ = std::thread([e, stato, finestra, token, lavoro = std::move(lavoro), fine = std::move(fine)]() mutable {
        Progresso progresso = [finestra](const std::string& testo, int valore, int massimo) {
            QMetaObject::invokeMethod(
                finestra,
                [finestra, t = QString::fromStdString(testo), valore, massimo] {
                    if (finestra) finestra->Descrivi(t, valore, massimo);
                },
                Qt::QueuedConnection);
        };
        lavoro(token, progresso);
        QMetaObject::invokeMethod(
            e,
            [e, stato, fine = std::move(fine)] {
                const bool fermato = e->stop_.stop_requested();
                stato->ElaborazioneInCorso = false;
                delete e->mouse_;
                e->mouse_ = nullptr;
                if (e->finestra_) e->finestra_->close();
                if (fine) fine(fermato);
                emit e->terminata(fermato);
                e->deleteLater();
            },
            Qt::QueuedConnection);
    });
    return e;
}

void Elaborazione::Ferma() { stop_.request_stop(); }

Elaborazione::~Elaborazione() {
    if (thread_.joinable()) thread_.join();
    delete mouse_;
}

}  // namespace gorgo::screens
