#pragma once
// What the windows of one run share, handed to each window that needs more than the settings:
// the settings file, the program folder and the state of the run (a long job under way, the
// window activated last, the folder of the last report saved). The shell owns it, with the
// archives, for the whole run and outlives every window; a test builds its own.

#include <QPointer>
#include <QString>
#include <QWidget>
#include <filesystem>
#include <utility>

namespace gorgo::config {
class FileIni;
}

namespace gorgo::screens {

struct Sessione {
    Sessione(config::FileIni& ini, std::filesystem::path percorsoProgramma)
        : ini(ini), PercorsoProgramma(std::move(percorsoProgramma)) {}

    config::FileIni& ini;
    // PercorsoProgramma: the folder of Gorgo.ini and Archivi/.
    std::filesystem::path PercorsoProgramma;
    // True while a long search runs: the main window and the computing window refuse to close.
    bool ElaborazioneInCorso = false;
    QPointer<QWidget> FormCorrente;
    // Reports are proposed in the folder of the last one saved in this run, else in the
    // program folder.
    QString UltimaCartellaReport;
};

// Where the files that ship with the program are: data/ beside the executable, else the
// source tree's data/ (running from a build folder).
std::filesystem::path CartellaDati();

}  // namespace gorgo::screens
