#include "screens/common/twips.h"

#include <fmt/format.h>
#include <QGuiApplication>
#include <QVariant>
#include <algorithm>
#include <cmath>
#include <optional>

#include "config/impostazioni.h"
#include "config/ini.h"

namespace gorgo::screens {

namespace {

// A place in twips, or nothing when the window is to be centred: no place saved for a
// window whose default is the centre, or a value that is not a number.
std::optional<long long> LeggiTwips(const config::FileIni& ini, const char* chiave) {
    const config::VoceImpostazione* voce = config::CercaImpostazione(config::sezioni::Forms, chiave);
    const bool centrato = voce && voce->tipo == config::TipoPredefinito::Centrato;
    const std::string predefinito = centrato ? std::string() : std::string(voce ? voce->predefinito : "1000");
    const auto d = config::NumeroPosizione(config::LeggiImpostazione(ini, config::sezioni::Forms, chiave, predefinito));
    if (!d || *d <= -1e7 || *d >= 1e7) return std::nullopt;
    return std::llround(*d);
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
    const auto left = LeggiTwips(ini, chiaveLeft), top = LeggiTwips(ini, chiaveTop);
    if (!left || !top) {
        Centra(f);
        return;
    }
    const QPoint p(PixelDaTwips(*left, s), PixelDaTwips(*top, s));
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
