#include "screens/common/browser.h"

#include <QDesktopServices>
#include <QUrl>

namespace gorgo::screens {

bool ApriBrowser(QString indirizzo) {
    if (!indirizzo.startsWith(QLatin1String("http"))) indirizzo.prepend(QLatin1String("http://"));
    return QDesktopServices::openUrl(QUrl(indirizzo, QUrl::TolerantMode));
}

bool Email(QString indirizzo) {
    if (!indirizzo.startsWith(QLatin1String("mailto:"), Qt::CaseInsensitive))
        indirizzo.prepend(QLatin1String("mailto:"));
    return QDesktopServices::openUrl(QUrl(indirizzo, QUrl::TolerantMode));
}

}  // namespace gorgo::screens
