#include "screens/common/stampa.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QPainter>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QRegularExpression>
#include <QTemporaryFile>
#include <algorithm>
#include <cmath>
#include <filesystem>

#include "screens/common/messaggi.h"

namespace gorgo::screens {

namespace {

constexpr double PuntiMinimi = 6.0;

QString DaUtf8(std::string_view s) { return QString::fromUtf8(s.data(), static_cast<qsizetype>(s.size())); }

std::filesystem::path Percorso(const QString& file) {
    return std::filesystem::path(QFile::encodeName(file).toStdString());
}

QString SalvaConDialogo(QWidget* parent, const QString& titolo, const QString& proposto, const QString& filtro) {
    // The question on an existing file is ours (append or overwrite), not the dialog's.
    return QFileDialog::getSaveFileName(parent, titolo, proposto, filtro, nullptr, QFileDialog::DontConfirmOverwrite);
}

// The folder of the last report saved in this run; the program folder before the first.
QString CartellaProposta(const Sessione& sessione) {
    if (!sessione.UltimaCartellaReport.isEmpty() && QFileInfo(sessione.UltimaCartellaReport).isDir())
        return sessione.UltimaCartellaReport;
    const auto& programma = sessione.PercorsoProgramma;
    if (!programma.empty()) return QString::fromStdString(programma.string());
    return QCoreApplication::applicationDirPath();
}

// ".Txt" of "File di testo (*.Txt)": the extension a name without one takes.
QString EstensioneFiltro(const QString& filtro) {
    static const QRegularExpression modello(QStringLiteral("\\*(\\.[A-Za-z0-9]+)"));
    const auto m = modello.match(filtro);
    return m.hasMatch() ? m.captured(1) : QStringLiteral(".Txt");
}

QString RigaSenzaCodaBianca(const std::string& testo) {
    QString t = DaUtf8(testo);
    qsizetype fine = t.size();
    while (fine > 0 && t.at(fine - 1).isSpace()) --fine;
    t.truncate(fine);
    return t;
}

struct Misure {
    QFont normale, grassetto;
    double altezzaRiga = 0, ascesa = 0, larghezza = 0;
};

Misure Misura(const QFont& base, double punti, const std::vector<std::vector<config::RigaTesto>>& pagine,
              QPaintDevice* dispositivo) {
    Misure m;
    m.normale = base;
    m.normale.setPointSizeF(punti);
    m.grassetto = m.normale;
    m.grassetto.setBold(true);
    const QFontMetricsF fn(m.normale, dispositivo), fg(m.grassetto, dispositivo);
    m.altezzaRiga = fn.lineSpacing();
    m.ascesa = fn.ascent();
    for (const auto& pagina : pagine)
        for (const auto& r : pagina)
            if (!r.testo.empty())
                m.larghezza =
                    std::max(m.larghezza, (r.grassetto ? fg : fn).horizontalAdvance(RigaSenzaCodaBianca(r.testo)));
    return m;
}

std::size_t RigheMassime(const std::vector<std::vector<config::RigaTesto>>& pagine) {
    std::size_t n = 0;
    for (const auto& p : pagine) n = std::max(n, p.size());
    return n;
}

bool ConDialogoDiStampa(QWidget* parent, QPrinter& stampante) {
    QPrintDialog dialogo(&stampante, parent);
    dialogo.setObjectName(QStringLiteral("frmStampa"));
    return dialogo.exec() == QDialog::Accepted;
}

}  // namespace

SceltaFileReport SceltaFileReportPredefinita() { return SalvaConDialogo; }
DialogoStampa DialogoStampaPredefinito() { return ConDialogoDiStampa; }
DialogoStampa ApriDialogoStampa = ConDialogoDiStampa;
DomandaReport DomandaReportPredefinita() { return Chiedi; }

SceltaFileReport ScegliFileReport = SalvaConDialogo;
DomandaReport ChiediReport = Chiedi;

QString FiltroQt(const QString& filtro) {
    if (!filtro.contains(u'|')) return filtro;
    // Pairs of description and pattern, as the host's dialogs take them.
    const QStringList parti = filtro.split(u'|');
    QStringList voci;
    for (qsizetype i = 0; i < parti.size(); i += 2) {
        const QString descrizione = parti[i].trimmed();
        const QString modello = i + 1 < parti.size() ? parti[i + 1].trimmed() : QString();
        if (modello.isEmpty() || descrizione.contains(u'('))
            voci << descrizione;
        else
            voci << descrizione + QStringLiteral(" (") + QString(modello).replace(u';', u' ') + u')';
    }
    return voci.join(QStringLiteral(";;"));
}

QFont FontReport(const QString& famiglia, double punti) {
    QFont f(famiglia.isEmpty() ? QStringLiteral("Courier New") : famiglia);
    f.setPointSizeF(punti > 0 ? punti : 10);
    if (QFontDatabase::hasFamily(f.family())) return f;
    // Reports are laid out by character cells: a proportional stand-in would break the columns.
    if (QFontInfo(f).fixedPitch()) return f;
    QFont fisso = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    fisso.setPointSizeF(f.pointSizeF());
    if (QFontInfo(fisso).fixedPitch()) return fisso;
    // Some systems name as their fixed font one that does not say it is: take a family that does.
    QStringList candidati = {QStringLiteral("Liberation Mono"), QStringLiteral("DejaVu Sans Mono"),
                             QStringLiteral("Nimbus Mono PS"), QStringLiteral("Courier")};
    candidati += QFontDatabase::families();
    for (const QString& famigliaFissa : candidati) {
        if (!QFontDatabase::hasFamily(famigliaFissa) || !QFontDatabase::isFixedPitch(famigliaFissa)) continue;
        QFont g(famigliaFissa);
        g.setPointSizeF(f.pointSizeF());
        if (QFontInfo(g).fixedPitch()) return g;
    }
    return fisso;
}

std::vector<std::vector<config::RigaTesto>> ImpaginaReport(std::span<const config::RigaTesto> righe,
                                                           const OpzioniStampa& opzioni, int capienza) {
    const bool conTitolo = !opzioni.titolo1.isEmpty() || !opzioni.titolo2.isEmpty();
    const std::string t1 = opzioni.titolo1.toStdString(), t2 = opzioni.titolo2.toStdString();
    const int righeTestata = conTitolo ? static_cast<int>(config::IntestazionePagina(t1, t2, 1).size()) : 0;

    int limite = opzioni.righePerPagina > 0 ? opzioni.righePerPagina : 0;
    if (capienza > 0) {
        const int spazio = std::max(1, capienza - righeTestata);
        limite = limite > 0 ? std::min(limite, spazio) : spazio;
    }

    std::vector<std::vector<config::RigaTesto>> pagine;
    int righeSullaPagina = 0;
    auto apriPagina = [&] {
        pagine.emplace_back();
        if (conTitolo) pagine.back() = config::IntestazionePagina(t1, t2, static_cast<int>(pagine.size()));
        righeSullaPagina = 0;
    };
    if (righe.empty()) {
        if (conTitolo) apriPagina();
        return pagine;
    }
    for (const auto& r : righe) {
        const bool piena = limite > 0 && righeSullaPagina >= limite;
        if (pagine.empty() || piena || (r.nuovaPagina && righeSullaPagina > 0)) apriPagina();
        pagine.back().push_back(r);
        ++righeSullaPagina;
    }
    return pagine;
}

bool DisegnaReport(QPrinter& stampante, std::span<const config::RigaTesto> righe, const OpzioniStampa& opzioni) {
    const auto logiche = ImpaginaReport(righe, opzioni);
    if (logiche.empty()) return false;

    QPainter pittore;
    if (!pittore.begin(&stampante)) return false;
    const QSizeF spazio = stampante.pageRect(QPrinter::DevicePixel).size();
    const QFont base = FontReport(opzioni.font, opzioni.punti);
    const double richiesti = base.pointSizeF();
    const double minimi = std::min(PuntiMinimi, richiesti);
    const auto righeMassime = static_cast<double>(RigheMassime(logiche));

    // A report wider than the page, or with more rows on a page than fit, is not cut: the
    // font gets smaller until the widest line and the report's own count of rows fit, but
    // never below 6 points; past that the lines are condensed sideways and the rows that
    // still do not fit go on to a further page.
    double punti = richiesti;
    Misure m = Misura(base, punti, logiche, pittore.device());
    while (punti > minimi && (m.larghezza > spazio.width() || m.altezzaRiga * righeMassime > spazio.height())) {
        const double fattore = std::min(spazio.width() / std::max(m.larghezza, 1.0),
                                        spazio.height() / std::max(m.altezzaRiga * righeMassime, 1.0));
        punti = std::max(minimi, std::min(punti - 0.5, std::floor(punti * fattore * 2.0) / 2.0));
        m = Misura(base, punti, logiche, pittore.device());
    }
    const double condensa = m.larghezza > spazio.width() ? spazio.width() / m.larghezza : 1.0;
    const int capienza = static_cast<int>(std::floor(spazio.height() / m.altezzaRiga));
    const auto pagine = ImpaginaReport(righe, opzioni, capienza);

    for (std::size_t n = 0; n < pagine.size(); ++n) {
        if (n > 0 && !stampante.newPage()) {
            pittore.end();
            return false;
        }
        double y = 0;
        for (const auto& r : pagine[n]) {
            if (!r.testo.empty()) {
                pittore.setFont(r.grassetto ? m.grassetto : m.normale);
                pittore.save();
                pittore.translate(0, y + m.ascesa);
                if (condensa < 1.0) pittore.scale(condensa, 1.0);
                pittore.drawText(QPointF(0, 0), RigaSenzaCodaBianca(r.testo));
                pittore.restore();
            }
            y += m.altezzaRiga;
        }
    }
    return pittore.end();
}

bool StampaReport(QWidget* parent, std::span<const config::RigaTesto> righe, const OpzioniStampa& opzioni,
                  DestinazioneStampa destinazione) {
    if (ImpaginaReport(righe, opzioni).empty()) return false;
    QPrinter stampante(QPrinter::HighResolution);
    stampante.setDocName(opzioni.titolo1.isEmpty() ? QStringLiteral("Gorgo 2") : opzioni.titolo1);

    if (destinazione == DestinazioneStampa::Anteprima) {
        QPrintPreviewDialog anteprima(&stampante, parent);
        anteprima.setObjectName(QStringLiteral("frmAnteprima"));
        QObject::connect(&anteprima, &QPrintPreviewDialog::paintRequested,
                         [&](QPrinter* p) { DisegnaReport(*p, righe, opzioni); });
        return anteprima.exec() == QDialog::Accepted;
    }

    if (!(ApriDialogoStampa ? ApriDialogoStampa : DialogoStampa(ConDialogoDiStampa))(parent, stampante)) return false;
    if (!DisegnaReport(stampante, righe, opzioni)) {
        MostraMessaggio(parent, {"Impossibile stampare: la stampante non risponde.", "Errore", archives::Icona::Stop});
        return false;
    }
    return true;
}

bool StampaReportPdf(const QString& file, std::span<const config::RigaTesto> righe, const OpzioniStampa& opzioni) {
    if (file.isEmpty() || ImpaginaReport(righe, opzioni).empty()) return false;
    const QFileInfo destinazione(file);
    // The pages go to a file of their own beside the target, which a rename puts in place
    // whole: a failed print leaves no half PDF and the old file as it was.
    QTemporaryFile temporaneo(destinazione.absolutePath() + QStringLiteral("/.") + destinazione.fileName() +
                              QStringLiteral(".XXXXXX"));
    if (!temporaneo.open()) return false;
    temporaneo.close();

    QPrinter stampante(QPrinter::HighResolution);
    stampante.setOutputFormat(QPrinter::PdfFormat);
    stampante.setOutputFileName(temporaneo.fileName());
    stampante.setPageSize(QPageSize(QPageSize::A4));
    stampante.setPageMargins(QMarginsF(15, 15, 15, 15), QPageLayout::Millimeter);
    stampante.setDocName(opzioni.titolo1.isEmpty() ? QStringLiteral("Gorgo 2") : opzioni.titolo1);
    if (!DisegnaReport(stampante, righe, opzioni)) return false;
    if (QFileInfo(temporaneo.fileName()).size() == 0) return false;

    std::error_code ec;
    std::filesystem::rename(Percorso(temporaneo.fileName()), Percorso(destinazione.absoluteFilePath()), ec);
    if (ec) return false;
    temporaneo.setAutoRemove(false);
    return true;
}

bool SalvaReportSuFile(QWidget* parent, Sessione& sessione, std::span<const config::RigaTesto> righe,
                       const QString& nomeProposto, DomandaFile domanda, const QString& filtro) {
    if (righe.empty()) return false;
    const QString estensione = EstensioneFiltro(filtro);
    QString nome = nomeProposto;
    if (!nome.isEmpty() && QFileInfo(nome).suffix().isEmpty()) nome += estensione;
    const QString cartella = CartellaProposta(sessione);
    const QString proposto = nome.isEmpty() ? cartella : QDir(cartella).filePath(nome);

    QString scelto = ScegliFileReport
                         ? ScegliFileReport(parent, DaUtf8(config::TitoloSalvaRisultati), proposto, FiltroQt(filtro))
                         : QString();
    if (scelto.isEmpty()) return false;
    if (QFileInfo(scelto).suffix().isEmpty() && !scelto.endsWith(u'.')) scelto += estensione;
    const QFileInfo info(scelto);
    sessione.UltimaCartellaReport = info.absolutePath();

    auto modo = config::ModoScrittura::Nuovo;
    if (info.exists()) {
        const std::string mostrato = QDir::toNativeSeparators(scelto).toStdString();
        auto chiedi = ChiediReport ? ChiediReport : DomandaReport(Chiedi);
        if (domanda == DomandaFile::InCalce) {
            const auto r = chiedi(parent, config::DomandaInCalce(mostrato),
                                  QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::No);
            if (r == QMessageBox::Yes)
                modo = config::ModoScrittura::Accoda;
            else if (r == QMessageBox::No)
                modo = config::ModoScrittura::Sovrascrivi;
            else
                return false;
        } else {
            const auto r = chiedi(parent, config::DomandaSovrascrivi(mostrato), QMessageBox::Yes | QMessageBox::No,
                                  QMessageBox::No);
            if (r != QMessageBox::Yes) return false;
            modo = config::ModoScrittura::Sovrascrivi;
        }
    }

    const archives::Messaggio esito = config::ScriviReportSuFile(Percorso(info.absoluteFilePath()), righe, modo);
    if (!esito.vuoto()) {
        MostraMessaggio(parent, esito);
        return false;
    }
    return true;
}

}  // namespace gorgo::screens
