#pragma once
// Rows of like check boxes (chkDay_1..7, chkMese_1..12) shared by the settings dialogs.

#include <QCheckBox>
#include <QGridLayout>
#include <QStringList>
#include <span>

namespace gorgo::screens {

// "Domenica".."Sabato" and "Gennaio".."Dicembre", as the boxes show them.
const QStringList& NomiGiorniCaselle();
const QStringList& NomiMesiCaselle();

// One box a name, objectName prefisso + "_" + index from 1, `perRiga` to a row; the boxes
// go to caselle[1..n].
QGridLayout* CreaCaselle(QWidget* parent, const QString& prefisso, const QStringList& nomi, int perRiga,
                         std::span<QCheckBox*> caselle);

}  // namespace gorgo::screens
