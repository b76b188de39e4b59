#include "app/avvio.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>

#include "app/programma.h"
#include "archives/demo.h"
#include "config/impostazioni.h"
#include "config/restrizioni.h"
#include "maintenance/aggiornamento.h"
#include "screens/common/messaggi.h"

namespace gorgo::screens {

std::unique_ptr<QLockFile> BloccaFile(const QString& file, archives::Messaggio* messaggio) {
    auto blocco = std::make_unique<QLockFile>(file);
    // A lock whose process is gone is stale at once; a live one never is.
    blocco->setStaleLockTime(0);
    if (blocco->tryLock(0)) return blocco;
    if (messaggio) {
        const QFileInfo info(file);
        const QString cartella = QDir::toNativeSeparators(info.absolutePath());
        QString causa;
        if (blocco->error() == QLockFile::LockFailedError && (!info.exists() || info.isFile()))
            *messaggio = {MessaggioIstanzaUnica, "", archives::Icona::Esclamazione};
        else if (blocco->error() == QLockFile::LockFailedError)
            causa = QStringLiteral("%1 esiste già e non è un file.").arg(QDir::toNativeSeparators(file));
        else if (!QFileInfo(info.absolutePath()).isDir())
            causa = QStringLiteral("la cartella non esiste o non è una cartella.");
        else
            causa = QStringLiteral("cartella in sola lettura o non accessibile.");
        if (!causa.isEmpty())
            *messaggio = {
                QStringLiteral("Impossibile creare il file di blocco in %1: %2").arg(cartella, causa).toStdString(),
                "Errore", archives::Icona::Stop};
    }
    return nullptr;
}

std::unique_ptr<QLockFile> BloccaIstanza(const std::filesystem::path& percorso, archives::Messaggio* messaggio) {
    // The lock stands in the program folder; a folder that is not there yet gets one in the
    // temporary folder, named after it.
    QString file;
    if (std::filesystem::is_directory(percorso))
        file = QString::fromStdString((percorso / "Gorgo.lock").string());
    else
        file = QDir::temp().filePath(
            QStringLiteral("gorgo-%1.lock")
                .arg(QString::fromLatin1(
                    QCryptographicHash::hash(QByteArray::fromStdString(percorso.string()), QCryptographicHash::Sha1)
                        .toHex()
                        .left(16))));
    return BloccaFile(file, messaggio);
}

std::unique_ptr<FrmMain> AvviaProgramma(const std::filesystem::path& percorso, std::unique_ptr<QLockFile>& blocco) {
    auto programma = std::make_unique<Programma>(percorso);

    archives::Messaggio perche;
    blocco = BloccaIstanza(percorso, &perche);
    if (!blocco) {
        MostraMessaggio(nullptr, perche);
        return nullptr;
    }
    try {
        // A run cut short while writing leaves the files out of step: bring them back first.
        if (std::filesystem::is_directory(percorso / "Archivi")) {
            const maintenance::EsitoRiparazione r = maintenance::RiparaCartellaArchivi(percorso / "Archivi");
            if (r.riparato()) MostraMessaggio(nullptr, {r.descrizione, "Gorgo 2", archives::Icona::Informazione});
        }
        programma->archivio =
            std::make_unique<archives::Archivio>(archives::Archivio::Apri(percorso, archives::ModoApertura::Scrittura));
    } catch (const archives::ErroreArchivio& e) {
        MostraMessaggio(nullptr, {e.what(), "Errore", archives::Icona::Stop});
        return nullptr;
    }
    if (archives::Messaggio m = archives::ControllaPresenzaArchivi(*programma->archivio); !m.vuoto()) {
        MostraMessaggio(nullptr, m);
        return nullptr;
    }
    programma->demo = archives::CartellaDemo(percorso);
    // Read at start-up and kept as a key only.
    (void)config::LeggiBooleano(programma->ini, config::sezioni::Settings, "Minimizza", false);
    return std::make_unique<FrmMain>(std::move(programma));
}

}  // namespace gorgo::screens
