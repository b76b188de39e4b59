#pragma once
// Series of like controls named as the system's control arrays (chkRuota_0..11, chkDay_1..7,
// txtEstratto_1..55): a row of them, or a block of rows, on a grid. Every screen builds its
// rows of boxes and buttons with CreaCaselle.

#include <QButtonGroup>
#include <QGridLayout>
#include <QRadioButton>
#include <QStringList>
#include <span>
#include <type_traits>

namespace gorgo::screens {

// "Domenica".."Sabato" and "Gennaio".."Dicembre", as the boxes show them.
const QStringList& NomiGiorniCaselle();
const QStringList& NomiMesiCaselle();

// Where a series goes on its grid: the first cell, and how many to a row (0: all on one row).
struct PostoCaselle {
    int riga = 0, colonna = 0, perRiga = 0;
};

// One control of the given kind (a check box, radio button, push button, text box, label...)
// for each text, objectName prefisso + "_" + index counted from `primo`, laid on `griglia`
// from `posto` on; controlli[k] takes the k-th. Radio buttons are exclusive among the
// series only, with their indexes as ids. Gives back `griglia`.
template <typename Controllo>
QGridLayout* CreaCaselle(QWidget* parent, QGridLayout* griglia, PostoCaselle posto, const QString& prefisso, int primo,
                         const QStringList& testi, std::span<Controllo*> controlli) {
    const int perRiga = posto.perRiga > 0 ? posto.perRiga : static_cast<int>(testi.size());
    constexpr bool radio = std::is_base_of_v<QRadioButton, Controllo>;
    [[maybe_unused]] QButtonGroup* esclusivi = radio ? new QButtonGroup(parent) : nullptr;
    for (int k = 0; k < testi.size(); ++k) {
        auto* c = new Controllo(testi[k], parent);
        c->setObjectName(QStringLiteral("%1_%2").arg(prefisso).arg(primo + k));
        if constexpr (radio) esclusivi->addButton(c, primo + k);
        griglia->addWidget(c, posto.riga + k / perRiga, posto.colonna + k % perRiga);
        controlli[static_cast<std::size_t>(k)] = c;
    }
    return griglia;
}

}  // namespace gorgo::screens
