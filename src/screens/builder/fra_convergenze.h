#pragma once
// The frames of frmCostruttore that work on its result rows: the convergences
// (fraConvergenze), the lunghetta (fraLunghette) and the capogioco panel (FrameAbbinamenti).
// They float over the builder and read its rows through a source the builder gives them.

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTreeWidget>
#include <functional>
#include <vector>

#include "builder/capogioco.h"
#include "builder/convergenze.h"
#include "builder/indice_mensile.h"
#include "builder/ricerca.h"
#include "screens/common/sessione.h"

namespace gorgo::screens {

// What the frames read of the builder when a button is pressed.
struct DatiCostruttore {
    builder::ParametriRicerca parametri;  // of the rows shown, with the current colpi
    builder::ContestoRicerca contesto;
    std::vector<builder::RigaAlgoritmo> righe;  // in the order of the list, with their checks
};
using FonteCostruttore = std::function<DatiCostruttore()>;

class FraConvergenze : public QGroupBox {
    Q_OBJECT
public:
    FraConvergenze(QWidget* parent, FonteCostruttore fonte);
    // cmdConvergenze.
    void Calcola();

signals:
    // The convergences were told: the builder clears its replay.
    void convergenzeMostrate();

private:
    FonteCostruttore fonte_;
    QTreeWidget* lvConvergenze_ = nullptr;
};

class FraLunghette : public QGroupBox {
    Q_OBJECT
public:
    FraLunghette(QWidget* parent, FonteCostruttore fonte);
    // cmdVai.
    void Elabora();
    void Svuota();
    const std::vector<int>& Numeri() const { return numeri_; }

signals:
    // Length or best wheel changed: the builder's caption goes back to "Risultati ottenuti".
    void sceltaCambiata();

private:
    FonteCostruttore fonte_;
    QComboBox* cboNumeriLunga_ = nullptr;
    QCheckBox* chkRuotaMigliore_ = nullptr;
    QTreeWidget* ListViewAlgoLunghetta_ = nullptr;
    QLineEdit* txtLunghetta_ = nullptr;
    QLineEdit* txtRuotaMigliore_ = nullptr;
    std::vector<int> numeri_;
};

class FrameAbbinamenti : public QGroupBox {
    Q_OBJECT
public:
    FrameAbbinamenti(QWidget* parent, Sessione& sessione, const archives::StoriaLotto& storia,
                     const builder::IndiciMensili& indici, FonteCostruttore fonte,
                     std::function<std::vector<int>()> lunghetta);
    // The algorithm last clicked; the date starts at `dataA` when the panel has none.
    void ImpostaAlgoritmo(const std::string& descrizione, const std::string& chiave, const std::string& dataA);
    // The search lists were emptied: the panel lets its algorithm go.
    void Svuota();
    // cmdNumAbbinati.
    void CalcolaAbbinati();

private:
    void Ricalcola(int32_t indice);
    void Sposta(bool avanti);
    void SuFile();
    void NumeriDaGiocare();

    Sessione& sessione_;
    const archives::StoriaLotto& storia_;
    const builder::IndiciMensili& indici_;
    FonteCostruttore fonte_;
    std::function<std::vector<int>()> lunghetta_;
    std::string chiave_, descrizione_;
    builder::Capogioco capo_;
    builder::Capogioco capoAbbinati_;  // the capogioco the list was computed for
    builder::EsitoAbbinamenti abbinati_;
    builder::ParametriRicerca parametriAbbinati_;
    QLineEdit* txtAlgoritmoCapogioco_ = nullptr;
    QLabel* lblTag_ = nullptr;
    QLineEdit* txtDataAbbinamenti_ = nullptr;
    QLabel* lblCapoAbbinamenti_ = nullptr;
    QComboBox* cboNumAbbinati_ = nullptr;
    QCheckBox* chkSincronizza_ = nullptr;
    QListWidget* lstNumeriAbbinati_ = nullptr;
};

}  // namespace gorgo::screens
