#pragma once
// The design shared by the SuperEnalotto and 10eLotto consultations: ten draws, one row a
// draw, walked with the moves of the Lotto desk and marked with the families of these games.

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QSlider>
#include <QWidget>
#include <array>
#include <memory>
#include <vector>

#include "config/report_testo.h"
#include "consultation/dieci_estrazioni.h"
#include "screens/common/sessione.h"

namespace gorgo::screens {

class FrmDieciEstrazioni : public QWidget {
    Q_OBJECT
public:
    consultation::ConsultazioneDieci& cursore() { return *cursore_; }
    void Aggiorna();
    const consultation::ElencoDieci& elenco() const { return elenco_; }
    std::vector<config::RigaTesto> RigheStampa() const;

protected:
    FrmDieciEstrazioni(Sessione& sessione, std::unique_ptr<consultation::ConsultazioneDieci> cursore, const char* nome,
                       const QString& titolo, QWidget* parent);
    void closeEvent(QCloseEvent* e) override;
    void keyPressEvent(QKeyEvent* e) override;

private:
    void ScegliFamiglia(int codice);
    void Muovi(void (consultation::ConsultazioneDieci::*mossa)());

    Sessione& sessione_;
    std::unique_ptr<consultation::ConsultazioneDieci> cursore_;
    consultation::ElencoDieci elenco_;
    bool inAggiornamento_ = false;
    std::array<QLabel*, 10> txtNumeroEstrazione_{}, lblData_{};
    std::array<std::vector<QLabel*>, 10> numeri_{};
    std::array<QLabel*, 10> jolly_{}, superstar_{};
    std::array<QPushButton*, 10> cmdNumero_{};
    QLabel* lblDescrFamiglia_ = nullptr;
    QSlider* Slider1_ = nullptr;
    QComboBox* cboSalto_ = nullptr;
};

}  // namespace gorgo::screens
