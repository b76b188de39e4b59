#pragma once
// Small helpers shared by the windows of the enucleated pair.

#include <QDate>
#include <QHeaderView>
#include <QString>
#include <QStringList>
#include <QTreeWidget>
#include <span>
#include <string>
#include <vector>

#include "config/report_testo.h"

namespace gorgo::screens::enucleato {

inline QString Q(std::string_view s) { return QString::fromUtf8(s.data(), static_cast<qsizetype>(s.size())); }
inline QDate DataQt(const std::string& t) { return QDate::fromString(QString::fromStdString(t), "dd/MM/yyyy"); }
inline std::string Testo(const QDate& d) { return d.toString("dd/MM/yyyy").toStdString(); }

// A result list: its titles, sortable by a click on a head, fixed-pitch like the reports.
inline QTreeWidget* NuovaLista(QWidget* parent, const char* nome, const QStringList& titoli) {
    auto* l = new QTreeWidget(parent);
    l->setObjectName(nome);
    l->setHeaderLabels(titoli);
    l->setRootIsDecorated(false);
    l->setUniformRowHeights(true);
    l->setAllColumnsShowFocus(true);
    l->setSortingEnabled(false);
    l->header()->setSectionsClickable(true);
    l->setToolTip(QStringLiteral("Lista risultati"));
    QFont f(QStringLiteral("Courier New"));
    f.setStyleHint(QFont::Monospace);
    l->setFont(f);
    return l;
}

// Fills a list in the engine's order: no column sorts it until a head is clicked.
template <typename Riempi>
void RiempiLista(QTreeWidget* l, Riempi riempi) {
    l->setSortingEnabled(false);
    l->clear();
    l->header()->setSortIndicator(-1, Qt::AscendingOrder);
    riempi();
    l->setSortingEnabled(true);
}

inline std::vector<config::RigaTesto> RigheTesto(const std::vector<std::string>& righe) {
    std::vector<config::RigaTesto> r;
    for (const std::string& s : righe) r.push_back({s});
    return r;
}

template <size_t N>
QStringList Colonne(const std::array<std::string, N>& t) {
    QStringList l;
    for (const std::string& s : t) l << QString::fromStdString(s);
    return l;
}

}  // namespace gorgo::screens::enucleato
