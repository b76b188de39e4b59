#pragma once
// Start-up (Sub Main): the single instance, the settings, the archives and their check,
// the restrictions, then the main window.

#include <QLockFile>
#include <filesystem>
#include <memory>

#include "app/frm_main.h"
#include "archives/messaggio.h"

namespace gorgo::screens {

inline constexpr const char* MessaggioIstanzaUnica = "Non è possible avviare più di una istanza del programma !";

// The lock of one running instance for a program folder; null when it cannot be taken, and
// then `messaggio` (if given) says why: the system's message when another instance holds it,
// or a clear one naming the folder when the lock file cannot be created. A lock left by a
// run that crashed does not count.
std::unique_ptr<QLockFile> BloccaIstanza(const std::filesystem::path& percorsoProgramma,
                                         archives::Messaggio* messaggio = nullptr);
// The same on a given lock file.
std::unique_ptr<QLockFile> BloccaFile(const QString& file, archives::Messaggio* messaggio = nullptr);

// Runs the start-up on a program folder: the main window it gives owns the settings and
// the archives for the run. On a refusal the message has been shown and the result is
// null: the program ends.
std::unique_ptr<FrmMain> AvviaProgramma(const std::filesystem::path& percorsoProgramma,
                                        std::unique_ptr<QLockFile>& blocco);

}  // namespace gorgo::screens
