#pragma once
// The computing window (frmElaborazioni) and the running of a long job: on a worker
// thread with a stop token and a progress callback, the busy cursor held for its length,
// results delivered on the window's thread.

#include <QDialog>
#include <QLabel>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <functional>
#include <stop_token>
#include <thread>

#include "screens/common/sessione.h"

namespace gorgo::screens {

// The busy mouse pointer for the life of the object, put back on every way out.
class CMouse {
public:
    CMouse();
    ~CMouse();
    CMouse(const CMouse&) = delete;
    CMouse& operator=(const CMouse&) = delete;
};

class FrmElaborazioni : public QDialog {
    Q_OBJECT
public:
    explicit FrmElaborazioni(Sessione& sessione, QWidget* parent = nullptr);
    void Descrivi(const QString& testo, int valore, int massimo);

signals:
    void stopRichiesto();

protected:
    void closeEvent(QCloseEvent* e) override;
    void reject() override;

private:
    Sessione& sessione_;
    QLabel* lblDescrizioneJob_;
    QProgressBar* prgAvanzamento_;
    QPushButton* cmdStop_;
};

using Progresso = std::function<void(const std::string& testo, int valore, int massimo)>;
using Lavoro = std::function<void(std::stop_token, const Progresso&)>;

// Runs `lavoro` off the window's thread with frmElaborazioni open and the session's
// ElaborazioneInCorso set; `fine(fermato)` runs on the window's thread when it is over. The
// object deletes itself after `fine`.
class Elaborazione : public QObject {
    Q_OBJECT
public:
    static Elaborazione* Avvia(QWidget* parent, Sessione& sessione, const QString& descrizione, Lavoro lavoro,
                               std::function<void(bool fermato)> fine);
    void Ferma();
    FrmElaborazioni* finestra() const { return finestra_.data(); }
    ~Elaborazione() override;

signals:
    void terminata(bool fermato);

private:
    Elaborazione() = default;
    QPointer<FrmElaborazioni> finestra_;
    std::stop_source stop_;
    std::thread thread_;
    CMouse* mouse_ = nullptr;
};

}  // namespace gorgo::screens
