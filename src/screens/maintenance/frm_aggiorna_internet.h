#pragma once
// frmAggiornaInternet and frmAggiornaSuperInternet: the update file fetched with one HTTP GET
// from Url, sieved, kept as a local copy, then applied as a file update after a question.
// frmScaricaStorico: the public archive fetched from UrlStorico and its new draws imported.

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QWidget>
#include <filesystem>
#include <string>

#include "maintenance/aggiornamento.h"
#include "maintenance/internet.h"
#include "screens/common/sessione.h"

namespace gorgo::archives {
class Archivio;
}

namespace gorgo::network {
class Scaricatore;
}

namespace gorgo::screens {

class FrmAggiornaInternetBase : public QWidget {
    Q_OBJECT
public:
    maintenance::Gioco gioco() const { return gioco_; }
    network::Scaricatore* scaricatore() const { return scaricatore_; }

    // cmdScarica, cmdApri, cmdAggiorna, cmdAnnulla.
    void Scarica();
    void Apri();
    void Aggiorna();
    void Annulla();

signals:
    // The archive has taken new draws: the main window shows its last ones.
    void archivioAggiornato();

protected:
    FrmAggiornaInternetBase(Sessione& sessione, archives::Archivio& archivio, maintenance::Gioco gioco,
                            const char* nome, const QString& titolo, QWidget* parent);
    void closeEvent(QCloseEvent* e) override;

private:
    void Stato(int stato, int codice, const QString& testo);
    void FineScaricamento();
    void MostraUltima();
    void ImpostaStato(const std::string& testo, const std::string& dettaglio = {});
    // Shows what the update's engine returned from the date checks on; asks its question and
    // calls it again with the answer through `ancora`.
    template <typename Ancora>
    void Prosegui(maintenance::EsitoInternet e, Ancora ancora);
    std::filesystem::path CopiaLocale() const;

    Sessione& sessione_;
    archives::Archivio& archivio_;
    maintenance::Gioco gioco_;
    network::Scaricatore* scaricatore_;
    QLabel* lblStatus_;
    QLabel* lblNumero_;
    QLabel* lblAnno_;
    QLabel* lblUltima_;
    QPushButton* cmdScarica_;
    QPushButton* cmdApri_;
    QPushButton* cmdAggiorna_;
    QPushButton* cmdAnnulla_;
    QPushButton* cmdEsci_;
    // Set by the client's error state, as the system keeps it.
    bool errore_ = false;
};

class FrmAggiornaInternet : public FrmAggiornaInternetBase {
    Q_OBJECT
public:
    FrmAggiornaInternet(Sessione& sessione, archives::Archivio& archivio, QWidget* parent = nullptr);
};

class FrmAggiornaSuperInternet : public FrmAggiornaInternetBase {
    Q_OBJECT
public:
    FrmAggiornaSuperInternet(Sessione& sessione, archives::Archivio& archivio, QWidget* parent = nullptr);
};

class FrmScaricaStorico : public QWidget {
    Q_OBJECT
public:
    FrmScaricaStorico(Sessione& sessione, archives::Archivio& archivio, QWidget* parent = nullptr);
    network::Scaricatore* scaricatore() const { return scaricatore_; }

    void Scarica();
    void Annulla();

signals:
    void archivioAggiornato();

protected:
    void closeEvent(QCloseEvent* e) override;

private:
    void FineScaricamento();

    Sessione& sessione_;
    archives::Archivio& archivio_;
    network::Scaricatore* scaricatore_;
    QLineEdit* txtUrlStorico_;
    QLabel* lblStatus_;
    QPushButton* cmdScarica_;
    QPushButton* cmdAnnulla_;
    QPushButton* cmdEsci_;
};

}  // namespace gorgo::screens
