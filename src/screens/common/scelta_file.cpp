#include "screens/common/scelta_file.h"

#include <QFileDialog>

#include "screens/common/stampa.h"

namespace gorgo::screens {

namespace {

QString ConDialogo(QWidget* parent, ModoSceltaFile modo, const QString& titolo, const QString& filtro,
                   const QString& cartella) {
    // The first filter is the one selected, as on the host.
    const QString qt = FiltroQt(filtro);
    QString primo = qt.section(QStringLiteral(";;"), 0, 0);
    return modo == ModoSceltaFile::Apri ? QFileDialog::getOpenFileName(parent, titolo, cartella, qt, &primo)
                                        : QFileDialog::getSaveFileName(parent, titolo, cartella, qt, &primo);
}

}  // namespace

SceltaFileManutenzione ScegliFileManutenzione = ConDialogo;
SceltaFileManutenzione SceltaFileManutenzionePredefinita() { return ConDialogo; }

}  // namespace gorgo::screens
