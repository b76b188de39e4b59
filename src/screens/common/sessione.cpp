#include "screens/common/sessione.h"

#include <QCoreApplication>

namespace gorgo::screens {

std::filesystem::path CartellaDati() {
    const std::filesystem::path accanto =
        std::filesystem::path(QCoreApplication::applicationDirPath().toStdString()) / "data";
    if (std::filesystem::exists(accanto / "HelpUtility.txt")) return accanto;
#ifdef GORGO_DATI_SORGENTE
    return GORGO_DATI_SORGENTE;
#else
    return accanto;
#endif
}

}  // namespace gorgo::screens
