#pragma once
// frmColori, "Colori": the three colours of the windows. The swatches change freely; only
// cmdOk writes the settings and restyles the open windows.

#include <QColor>
#include <QDialog>
#include <array>
#include <functional>

#include "screens/common/sessione.h"

class QLabel;
class QPushButton;

namespace gorgo::archives {
class Archivio;
}

namespace gorgo::screens {

class FrmColori : public QDialog {
    Q_OBJECT
public:
    // The archive, when there is one, only for the diagnostic double click on a label.
    FrmColori(Sessione& sessione, const archives::Archivio* archivio, QWidget* parent = nullptr);

    // The colour a swatch shows: 0 form, 1 labels, 2 lists.
    QColor Colore(int indice) const { return colori_.at(static_cast<std::size_t>(indice)); }

    // The colour dialog, from the present colour; an invalid colour means cancelled. Tests
    // put their own choice here.
    std::function<QColor(QWidget* parent, const QColor& iniziale)> sceltaColore;

signals:
    void coloriCambiati();

protected:
    bool eventFilter(QObject* oggetto, QEvent* evento) override;

private:
    void ImpostaColore(std::size_t indice, const QColor& c);
    void Conferma();

    Sessione& sessione_;
    const archives::Archivio* archivio_;
    std::array<QColor, 3> colori_;
    std::array<QPushButton*, 3> cmdColore_{};
    std::array<QLabel*, 3> lblColore_{};
};

}  // namespace gorgo::screens
