#pragma once
// ApplicaStile: the colours of the settings by kind of control, the default button, the
// standard tool tips by control name. Every window calls it when it opens.

#include <QColor>
#include <QWidget>

namespace gorgo::config {
class FileIni;
}

namespace gorgo::screens {

// A colour of the settings: decimal, red in the low byte.
QColor ColoreDaImpostazione(long long valore);
long long ImpostazioneDaColore(const QColor& c);

void ApplicaStile(QWidget* finestra, const config::FileIni& ini);

}  // namespace gorgo::screens
