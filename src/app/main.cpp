// gorgo: the desktop workbench.

#include <QApplication>
#include <QCommandLineParser>

#include "app/avvio.h"
#include "archives/percorso.h"

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Gorgo 2"));
    QApplication::setApplicationVersion(QStringLiteral(GORGO_VERSIONE));

    QCommandLineParser opzioni;
    opzioni.setApplicationDescription(
        QStringLiteral("Gorgo 2 - Tris metodologie: banco di lavoro per Lotto, 10eLotto e SuperEnalotto"));
    opzioni.addHelpOption();
    const QCommandLineOption cartella(QStringLiteral("cartella"),
                                      QStringLiteral("Cartella del programma (contiene Gorgo.ini e Archivi/)."),
                                      QStringLiteral("DIR"));
    opzioni.addOption(cartella);
    opzioni.process(app);

    std::optional<std::filesystem::path> scelta;
    if (opzioni.isSet(cartella)) scelta = opzioni.value(cartella).toStdString();
    const std::filesystem::path percorso =
        gorgo::archives::TrovaPercorsoProgramma(gorgo::archives::AmbienteCorrente(scelta));

    std::unique_ptr<QLockFile> blocco;
    std::unique_ptr<gorgo::screens::FrmMain> principale = gorgo::screens::AvviaProgramma(percorso, blocco);
    if (!principale) return 1;
    principale->show();
    return app.exec();
}
