#pragma once
// What the four study windows share: their result lists filled from the engines' rows, the
// date pickers on draws, and the two ways out of a report.

#include <QDate>
#include <QDateEdit>
#include <QString>
#include <QStringList>
#include <QTreeWidget>
#include <string_view>
#include <vector>

#include "config/report_testo.h"
#include "screens/common/sessione.h"
#include "screens/common/stampa.h"
#include "studies/righe.h"

namespace gorgo::screens {

inline QString Q(std::string_view s) { return QString::fromUtf8(s.data(), static_cast<qsizetype>(s.size())); }
inline QDate DataQt(const std::string& gg_mm_aaaa) { return QDate::fromString(Q(gg_mm_aaaa), "dd/MM/yyyy"); }
inline std::string TestoData(const QDateEdit* d) { return d->date().toString("dd/MM/yyyy").toStdString(); }

// A list of plain rows with these column heads; `ordinabile`: a click on a head sorts.
QTreeWidget* CreaListaStudi(QWidget* parent, const char* nome, const QStringList& intestazioni, bool ordinabile);
// Replaces the rows; the hidden key of each row in Qt::UserRole of column 0.
void RiempiListaStudi(QTreeWidget* lista, const std::vector<studies::Riga>& righe);
QDateEdit* CreaDataEstrazione(QWidget* parent, const char* nome);

// The report of a list: "Non c'è nulla da stampare!" (or "da esportare!") when it is empty.
void StampaStudio(QWidget* parent, const config::ReportTesto& r, bool vuoto, const OpzioniStampa& opzioni);
void SalvaStudio(QWidget* parent, Sessione& sessione, const config::ReportTesto& r, bool vuoto,
                 const QString& nomeProposto, DomandaFile domanda, const QString& filtro,
                 std::string_view vuotoMessaggio);

}  // namespace gorgo::screens
