#pragma once
// Printing of text reports (StampaReport): the print dialog, a preview, or a PDF file;
// fixed-pitch lines placed by character cells, bold lines, the page header with its
// number, new pages by the report's own count of rows.

#include <QFont>
#include <QMessageBox>
#include <QString>
#include <QWidget>
#include <functional>
#include <span>
#include <vector>

#include "config/report_testo.h"
#include "screens/common/sessione.h"

class QPrinter;

namespace gorgo::screens {

struct OpzioniStampa {
    QString font = QStringLiteral("Courier New");  // a fixed-pitch font stands in when absent
    int punti = 10;
    QString titolo1, titolo2;  // IntestazionePagina; no header when both are empty
    int righePerPagina = 60;   // rows of the report on one page, header excluded; 0: what fits
};

enum class DestinazioneStampa { Dialogo, Anteprima };

// Prints through the print dialog (or shows a preview). False when cancelled.
bool StampaReport(QWidget* parent, std::span<const config::RigaTesto> righe, const OpzioniStampa& opzioni,
                  DestinazioneStampa destinazione = DestinazioneStampa::Dialogo);
// Writes the printed pages as a PDF file, with no dialog. False on failure.
bool StampaReportPdf(const QString& file, std::span<const config::RigaTesto> righe, const OpzioniStampa& opzioni);

// The file side of a report: the save dialog ("Salva risultati su file") in the session's
// folder of the last report, the question when the file exists (append/overwrite or
// overwrite only), the write. False when nothing was written.
enum class DomandaFile { InCalce, Sovrascrivi };
bool SalvaReportSuFile(QWidget* parent, Sessione& sessione, std::span<const config::RigaTesto> righe,
                       const QString& nomeProposto, DomandaFile domanda,
                       const QString& filtro = QStringLiteral("File di testo (*.Txt)"));

// The save dialog and the question of SalvaReportSuFile, replaceable (tests answer them
// without a window). The dialog gets the title, the proposed path and a Qt filter, and
// gives the chosen path or an empty text on Cancel.
using SceltaFileReport =
    std::function<QString(QWidget* parent, const QString& titolo, const QString& proposto, const QString& filtro)>;
using DomandaReport = std::function<QMessageBox::StandardButton(QWidget* parent, const archives::Messaggio& domanda,
                                                                QMessageBox::StandardButtons pulsanti,
                                                                QMessageBox::StandardButton predefinito)>;
extern SceltaFileReport ScegliFileReport;
extern DomandaReport ChiediReport;
SceltaFileReport SceltaFileReportPredefinita();
DomandaReport DomandaReportPredefinita();

// The print dialog of StampaReport, replaceable: it gets the printer to set up and says
// whether to print. Tests point the printer at a PDF file and accept, without a window.
using DialogoStampa = std::function<bool(QWidget* parent, QPrinter& stampante)>;
extern DialogoStampa ApriDialogoStampa;
DialogoStampa DialogoStampaPredefinito();

// "File di testo (*.Txt)|*.Txt" (the pairs of the host's dialogs) or a Qt filter, as a Qt filter.
QString FiltroQt(const QString& filtro);

// The font of a report: the family at that size, or the system's fixed-pitch font at the
// same size when the family is missing and what stands in for it is not fixed-pitch.
QFont FontReport(const QString& famiglia, double punti);

// The pages of a report: each begins with the page header (when there is a title), then
// at most min(righePerPagina, capienza) rows; a row marked nuovaPagina opens a page unless
// it is the first of one. A report with no rows and a title is one page of header only.
// capienza <= 0 or righePerPagina <= 0: no limit of that kind.
std::vector<std::vector<config::RigaTesto>> ImpaginaReport(std::span<const config::RigaTesto> righe,
                                                           const OpzioniStampa& opzioni, int capienza = 0);

// Draws the report on a printer that is ready (dialog done, or PDF file set). False when
// there is nothing to print or the printer cannot be opened.
bool DisegnaReport(QPrinter& stampante, std::span<const config::RigaTesto> righe, const OpzioniStampa& opzioni);

}  // namespace gorgo::screens
