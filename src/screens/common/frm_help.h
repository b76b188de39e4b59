#pragma once
// The two help windows: frmHelp, one section of HelpUtility.txt as a list of lines that
// can be printed or saved, and frmAiuto, the HTML topics of the screens' help buttons.

#include <QStringList>
#include <QWidget>
#include <vector>

#include "config/report_testo.h"
#include "screens/common/sessione.h"

class QListWidget;
class QTextBrowser;

namespace gorgo::screens {

class FrmHelp : public QWidget {
    Q_OBJECT
public:
    explicit FrmHelp(Sessione& sessione, QWidget* parent = nullptr);

    // The caption, then the list emptied and filled with the lines.
    void Mostra(const QString& titolo, const QStringList& righe);
    QStringList Righe() const;

private:
    std::vector<config::RigaTesto> Report() const;
    void Stampa();
    void SuFile();

    Sessione& sessione_;
    QListWidget* lstHelp_;
};

class FrmAiuto : public QWidget {
    Q_OBJECT
public:
    explicit FrmAiuto(const config::FileIni& ini, QWidget* parent = nullptr);

    // Shows an HTML page; its links to the other topics open in the same window.
    void MostraArgomento(const QString& file);

private:
    QTextBrowser* txtAiuto_;
};

}  // namespace gorgo::screens
