#pragma once
// frmInputEstrazioni and its SuperEnalotto twin: browse the archive draw by draw, correct a
// stored draw or add a new one, typed or pasted. The engine holds the state and the rules;
// the window shows it and asks its questions.

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSlider>
#include <QWidget>
#include <memory>
#include <vector>

#include "maintenance/inserimento.h"
#include "screens/common/sessione.h"

class QGroupBox;
class QHBoxLayout;

namespace gorgo::screens {

class FrmInputEstrazioni : public QWidget {
    Q_OBJECT
public:
    FrmInputEstrazioni(Sessione& sessione, archives::Archivio& archivio, QWidget* parent = nullptr)
        : FrmInputEstrazioni(sessione, archivio, parent, maintenance::GiocoInserimento::Lotto) {}

    maintenance::Inserimento& Motore() { return *motore_; }
    // cmdMemorizza with its questions; true when the draw was written.
    bool Memorizza();

signals:
    // A draw was written: the main panel shows the last draws again.
    void estrazioneMemorizzata();

protected:
    FrmInputEstrazioni(Sessione& sessione, archives::Archivio& archivio, QWidget* parent,
                       maintenance::GiocoInserimento gioco);
    bool eventFilter(QObject* oggetto, QEvent* evento) override;
    void closeEvent(QCloseEvent* e) override;
    void changeEvent(QEvent* e) override;
    void showEvent(QShowEvent* e) override;

private:
    // The controls, frame by frame.
    void CreaControlli();
    QGroupBox* CreaFrameData();
    QHBoxLayout* CreaScorrimento();
    QGroupBox* CreaFrameNumeri();
    QGroupBox* CreaFrameTesto();
    QHBoxLayout* CreaComandi();
    void Collega();
    // The engine's state into the controls, with their change handlers silent.
    void MostraStato();
    void Nuova();
    void Correggi();
    void Inserisci();
    void ControllaUscita(QLineEdit* casella);

    Sessione& sessione_;
    std::unique_ptr<maintenance::Inserimento> motore_;
    bool InCaricamento_ = false;
    bool inControllo_ = false;
    bool centrata_ = false;
    std::vector<QLineEdit*> txtEstratto_;  // index 0 is box 1
    QLineEdit *txtGiorno_ = nullptr, *txtMese_ = nullptr, *txtAnno_ = nullptr;
    QLabel *lblGiornoEstraz_ = nullptr, *lblNumeroAnnoEstraz_ = nullptr, *lblAnnoEstrazione_ = nullptr,
           *lblTotaleEstrazioni_ = nullptr;
    QSlider* Slider1_ = nullptr;
    QPushButton *cmdPrecedente_ = nullptr, *cmdSuccessiva_ = nullptr, *cmdNuova_ = nullptr, *cmdMemorizza_ = nullptr,
                *cmdCorreggi_ = nullptr, *cmdEsci_ = nullptr, *cmdAiuto_ = nullptr, *cmdInserisci_ = nullptr,
                *cmdCancella_ = nullptr;
    QPlainTextEdit* Text1_ = nullptr;
};

class FrmInputEstrazioniSuperEnalotto : public FrmInputEstrazioni {
    Q_OBJECT
public:
    FrmInputEstrazioniSuperEnalotto(Sessione& sessione, archives::Archivio& archivio, QWidget* parent = nullptr)
        : FrmInputEstrazioni(sessione, archivio, parent, maintenance::GiocoInserimento::SuperEnalotto) {}
};

}  // namespace gorgo::screens
