#include "screens/common/twips.h"

#include <fmt/format.h>
#include <QGuiApplication>
#include <QVariant>
#include <algorithm>

#include "config/impostazioni.h"
#include "config/ini.h"

namespace gorgo::screens {

namespace {

long long LeggiTwips(const config::FileIni& ini, const char* chiave, long long predefinito) {
    const std::string v =
        config::LeggiImpostazione(ini, config::sezioni::Forms, chiave, fmt::format("{}", predefinito));
    try {
        size_t fine = 0;
        const double d = std::stod(v, &fine);  // single-precision values as the host printed them
        return fine ? static_cast<long long>(d) : predefinito;
    } catch (...) {
        return predefinito;
    }
}

}  // namespace

void Centra(QWidget* f) {
    const QScreen* s = f->screen() ? f->screen() : QGuiApplication::primaryScreen();
    if (!s) return;
    const QRect a = s->availableGeometry();
    // A window larger than the screen keeps its corner (and title bar) on it.
    f->move(std::max(a.x(), a.x() + (a.width() - f->frameGeometry().width()) / 2),
            std::max(a.y(), a.y() + (a.height() - f->frameGeometry().height()) / 2));
}

void RipristinaPosizione(QWidget* f, const config::FileIni& ini, const char* chiaveLeft, const char* chiaveTop) {
    const QScreen* s = f->screen() ? f->screen() : QGuiApplication::primaryScreen();
    const long long left = LeggiTwips(ini, chiaveLeft, 1000), top = LeggiTwips(ini, chiaveTop, 1000);
    const QPoint p(PixelDaTwips(left, s), PixelDaTwips(top, s));
    // A place saved on a screen that is gone, or off every screen, falls back to the centre.
    for (const QScreen* schermo : QGuiApplication::screens()) {
        const QRect a = schermo->availableGeometry().adjusted(0, 0, -PixelDaTwips(1000, s), -PixelDaTwips(1000, s));
        if (a.contains(p)) {
            f->move(p);
            f->setProperty("posizioneLetta", p);
            return;
        }
    }
    Centra(f);
}

void SalvaPosizione(QWidget* f, config::FileIni& ini, const char* chiaveLeft, const char* chiaveTop) {
    // Only a real move is written, so closing an untouched window leaves the file as it was.
    if (f->isMinimized() || f->property("posizioneLetta").toPoint() == f->pos()) return;
    const QScreen* s = f->screen();
    const std::string left = fmt::format("{}", TwipsDaPixel(f->x(), s)),
                      top = fmt::format("{}", TwipsDaPixel(f->y(), s));
    const config::CoppiaChiaveValore valori[] = {{chiaveLeft, left}, {chiaveTop, top}};
    ini.Scrivi(config::sezioni::Forms, valori);
}

}  // namespace gorgo::screens
