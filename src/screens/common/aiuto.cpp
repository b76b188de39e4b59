#include "screens/common/aiuto.h"

#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>

#include "config/cp1252.h"
#include "screens/common/frm_help.h"

namespace gorgo::screens {

namespace {

QString InCartella(const std::filesystem::path& cartella, const QString& nome) {
    if (cartella.empty()) return {};
    return QString::fromStdString(cartella.string()) + u'/' + nome;
}

// One window of each kind, as the screens have one: a second call reuses the open one.
template <typename Finestra, typename Risorsa>
Finestra* Unica(Risorsa& risorsa) {
    for (QWidget* w : QApplication::topLevelWidgets())
        if (auto* finestra = qobject_cast<Finestra*>(w)) return finestra;
    return new Finestra(risorsa);
}

void Porta(QWidget* finestra) {
    finestra->show();
    finestra->raise();
    finestra->activateWindow();
}

}  // namespace

QString FileArgomentoAiuto(int contesto) {
    const QString file = InCartella(CartellaDati() / "help", QString::number(contesto) + QStringLiteral(".html"));
    return contesto > 0 && QFileInfo(file).isFile() ? file : QString();
}

QString FileAiutoUtility(const std::filesystem::path& percorsoProgramma) {
    const QString nome = QStringLiteral("HelpUtility.txt");
    for (const QString& file : {InCartella(percorsoProgramma, nome), InCartella(CartellaDati(), nome)})
        if (!file.isEmpty() && QFileInfo(file).isFile()) return file;
    return {};
}

QString DecodificaTestoAiuto(const QByteArray& dati) {
    // Stateless: a sequence cut at the end is an error, not a wait for more bytes.
    QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString testo = utf8.decode(dati);
    if (!utf8.hasError()) return testo;
    // Files written on the hosts of the system are in their single-byte Western code page.
    const std::string convertito = config::Cp1252InUtf8(std::string_view(dati.constData(), dati.size()));
    return QString::fromUtf8(convertito.data(), static_cast<qsizetype>(convertito.size()));
}

std::optional<QStringList> SezioneAiuto(const QString& testo, const QString& sezione) {
    if (sezione.isEmpty()) return std::nullopt;
    QStringList righe = testo.split(u'\n');
    // A final line break closes the last line; it does not open an empty one.
    if (!righe.isEmpty() && righe.last().isEmpty()) righe.removeLast();
    qsizetype i = 0;
    for (; i < righe.size(); ++i) {
        if (righe[i].endsWith(u'\r')) righe[i].chop(1);
        if (righe[i].contains(sezione, Qt::CaseInsensitive)) break;
    }
    if (i == righe.size()) return std::nullopt;
    QStringList sezioneTrovata;
    for (++i; i < righe.size(); ++i) {
        QString riga = righe[i];
        if (riga.endsWith(u'\r')) riga.chop(1);
        if (riga.startsWith(u'[')) break;
        sezioneTrovata << riga;
    }
    return sezioneTrovata;
}

void HelpContext(QWidget* parent, const config::FileIni& ini, int contesto) {
    Q_UNUSED(parent);
    const QString file = FileArgomentoAiuto(contesto);
    if (file.isEmpty()) return;
    FrmAiuto* finestra = Unica<FrmAiuto>(ini);
    finestra->MostraArgomento(file);
    Porta(finestra);
}

void MostraAiuto(QWidget* parent, Sessione& sessione, const QString& sezione) {
    Q_UNUSED(parent);
    const QString file = FileAiutoUtility(sessione.PercorsoProgramma);
    if (file.isEmpty()) return;
    QFile f(file);
    if (!f.open(QIODevice::ReadOnly)) return;
    const auto righe = SezioneAiuto(DecodificaTestoAiuto(f.readAll()), sezione);
    f.close();
    if (!righe) return;

    QString titolo = sezione;
    titolo.remove(u'[').remove(u']');
    FrmHelp* finestra = Unica<FrmHelp>(sessione);
    finestra->Mostra(titolo + u' ', *righe);
    Porta(finestra);
}

}  // namespace gorgo::screens
