#pragma once
// Window places are kept in twips (1,440 to the inch), converted by the real dpi of the
// screen the window is on.

#include <QScreen>
#include <QWidget>

namespace gorgo::config {
class FileIni;
}

namespace gorgo::screens {

inline double TwipsPerPixel(const QScreen* s) {
    const double dpi = s ? s->logicalDotsPerInch() : 96.0;
    return 1440.0 / (dpi > 0 ? dpi : 96.0);
}
inline int PixelDaTwips(long long twips, const QScreen* s) { return static_cast<int>(twips / TwipsPerPixel(s)); }
inline long long TwipsDaPixel(int pixel, const QScreen* s) {
    return static_cast<long long>(pixel * TwipsPerPixel(s) + 0.5);
}

// Reads left/top (twips) from section Forms of the settings and places the window there, or
// in the centre when the place would be off every screen, is not a number, or was never saved
// for a window whose default is the centre (the main window).
void RipristinaPosizione(QWidget* finestra, const config::FileIni& ini, const char* chiaveLeft, const char* chiaveTop);
// Writes the place back, unless the window is minimised.
void SalvaPosizione(QWidget* finestra, config::FileIni& ini, const char* chiaveLeft, const char* chiaveTop);
// Centre of the screen the window is on.
void Centra(QWidget* finestra);

}  // namespace gorgo::screens
