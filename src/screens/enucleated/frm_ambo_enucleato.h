#pragma once
// frmAmboEnucleato: one draw as a matrix of 55 labels, the growing list of the delay sums of
// its pairs or triples, and the statistics that its satellites show. The tables of the last
// statistics run live here, read by the lists of pairs and triples.

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QTreeWidget>
#include <QWidget>
#include <array>
#include <functional>

#include "archives/storia.h"
#include "enucleated/enucleato.h"
#include "enucleated/statistica.h"
#include "screens/common/sessione.h"

namespace gorgo::archives {
class Archivio;
}

namespace gorgo::screens {

class FrmStatisticaGenerale;
class FrmStatisticaAmbiMatematici;

class FrmAmboEnucleato : public QWidget {
    Q_OBJECT
public:
    FrmAmboEnucleato(Sessione& sessione, const archives::Archivio& archivio, QWidget* parent = nullptr);
    ~FrmAmboEnucleato() override;

    void MostraEstrazioneEnucleato();
    void RicercaEnucleato();  // cmdCalcola
    // Erases the tables of the statistics and empties the lists that read them.
    void PulisciStatistiche();

    // The statistics of cmdStatistica (0 pairs, 1 triples) on the computing window's worker;
    // `fine` gets the rows, or nothing when stopped or refused (the tables stay as they were).
    void Statistica(int tipo, bool perPresenze, int presenze, int quante,
                    std::function<void(const enucleated::EsitoStatistica*)> fine);

    const archives::StoriaLotto& storia() const { return *storia_; }
    const archives::StoriaCondivisa& storiaCondivisa() const { return storia_; }
    const enucleated::StatisticheEnucleato& statistiche() const { return statistiche_; }
    int RuotaScelta() const;
    bool SoloMatematici() const;
    std::string DataDa() const;
    std::string DataA() const;
    bool InElaborazione() const { return elaborazione_; }
    Sessione& sessione() { return sessione_; }

signals:
    void statisticheCancellate();

protected:
    void closeEvent(QCloseEvent* e) override;

private:
    void CreaControlli();
    void Sposta(int verso);  // -1, +1, or 0 for the last draw
    void ClicRuota(int w);
    void MostraLista();
    void Stampa();
    void FileReport();
    void ApriStatisticaGenerale(int tipo);
    void ApriGruppo();
    std::array<bool, 12> RuoteScelte() const;

    Sessione& sessione_;
    archives::StoriaCondivisa storia_;
    enucleated::ListaEnucleato lista_;
    enucleated::MatriceEnucleato matrice_;
    enucleated::StatisticheEnucleato statistiche_;
    bool elaborazione_ = false;
    bool caricamento_ = false;

    std::array<QLabel*, 56> lblNumero_{};
    QDateEdit* DTPickerEstrazione_ = nullptr;
    QDateEdit* DTPickerDa_ = nullptr;
    QDateEdit* DTPickerA_ = nullptr;
    std::array<QCheckBox*, 12> chkRuota_{};
    QComboBox* cboTipoRicerca_ = nullptr;
    QCheckBox* chkMatematici_ = nullptr;
    QTreeWidget* ListView1_ = nullptr;
    QPointer<FrmStatisticaGenerale> statistica_;
    QPointer<FrmStatisticaAmbiMatematici> gruppo_;
};

}  // namespace gorgo::screens
