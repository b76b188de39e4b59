#include "screens/common/frm_help.h"

#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QListWidget>
#include <QPushButton>
#include <QTextBrowser>
#include <QUrl>
#include <QVBoxLayout>

#include "config/ini.h"
#include "screens/common/messaggi.h"
#include "screens/common/stampa.h"
#include "screens/common/stile.h"

namespace gorgo::screens {

namespace {

QPushButton* Pulsante(QWidget* finestra, const char* nome, const QString& testo) {
    auto* b = new QPushButton(testo, finestra);
    b->setObjectName(QString::fromLatin1(nome));
    return b;
}

}  // namespace

FrmHelp::FrmHelp(Sessione& sessione, QWidget* parent) : QWidget(parent, Qt::Window), sessione_(sessione) {
    setObjectName("frmHelp");
    setAttribute(Qt::WA_DeleteOnClose);
    resize(620, 460);

    // The list fills the window and follows it when it is resized.
    auto* principale = new QVBoxLayout(this);
    lstHelp_ = new QListWidget(this);
    lstHelp_->setObjectName("lstHelp");
    principale->addWidget(lstHelp_, 1);

    auto* pulsanti = new QHBoxLayout;
    auto* cmdStampaRisultati = Pulsante(this, "cmdStampaRisultati", QStringLiteral("Stampa"));
    auto* cmdPrintToFile = Pulsante(this, "cmdPrintToFile", QStringLiteral("Salva su file"));
    auto* command1 = Pulsante(this, "Command1", QStringLiteral("Chiudi"));
    pulsanti->addWidget(cmdStampaRisultati);
    pulsanti->addWidget(cmdPrintToFile);
    pulsanti->addStretch();
    pulsanti->addWidget(command1);
    principale->addLayout(pulsanti);

    connect(cmdStampaRisultati, &QPushButton::clicked, this, &FrmHelp::Stampa);
    connect(cmdPrintToFile, &QPushButton::clicked, this, &FrmHelp::SuFile);
    connect(command1, &QPushButton::clicked, this, &QWidget::close);
    ApplicaStile(this, sessione_.ini);
}

void FrmHelp::Mostra(const QString& titolo, const QStringList& righe) {
    setWindowTitle(titolo);
    lstHelp_->clear();
    lstHelp_->addItems(righe);
}

QStringList FrmHelp::Righe() const {
    QStringList righe;
    for (int i = 0; i < lstHelp_->count(); ++i) righe << lstHelp_->item(i)->text();
    return righe;
}

std::vector<config::RigaTesto> FrmHelp::Report() const {
    std::vector<config::RigaTesto> report;
    for (const QString& r : Righe()) report.push_back({r.toStdString()});
    return report;
}

void FrmHelp::Stampa() {
    const auto report = Report();
    if (report.empty()) {
        MostraMessaggio(this, {std::string(config::NullaDaStampare), "", archives::Icona::Esclamazione});
        return;
    }
    OpzioniStampa opzioni;
    opzioni.font = QStringLiteral("Arial");
    opzioni.punti = 10;
    opzioni.righePerPagina = 0;  // plain text: a page holds what fits
    StampaReport(this, report, opzioni);
}

void FrmHelp::SuFile() {
    const auto report = Report();
    if (report.empty()) {
        MostraMessaggio(this, {std::string(config::NullaDaStampare), "", archives::Icona::Esclamazione});
        return;
    }
    SalvaReportSuFile(this, sessione_, report, QStringLiteral("Help.txt"), DomandaFile::Sovrascrivi);
}

FrmAiuto::FrmAiuto(const config::FileIni& ini, QWidget* parent) : QWidget(parent, Qt::Window) {
    setObjectName("frmAiuto");
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(QStringLiteral("Aiuto"));
    resize(640, 520);

    auto* principale = new QVBoxLayout(this);
    txtAiuto_ = new QTextBrowser(this);
    txtAiuto_->setObjectName("txtAiuto");
    txtAiuto_->setOpenExternalLinks(true);
    principale->addWidget(txtAiuto_, 1);

    auto* pulsanti = new QHBoxLayout;
    auto* cmdIndice = Pulsante(this, "cmdIndice", QStringLiteral("Indice"));
    auto* cmdIndietro = Pulsante(this, "cmdIndietro", QStringLiteral("Indietro"));
    auto* cmdEsci = Pulsante(this, "cmdEsci", QStringLiteral("Chiudi"));
    cmdIndietro->setEnabled(false);
    pulsanti->addWidget(cmdIndice);
    pulsanti->addWidget(cmdIndietro);
    pulsanti->addStretch();
    pulsanti->addWidget(cmdEsci);
    principale->addLayout(pulsanti);

    connect(cmdIndice, &QPushButton::clicked, this, [this] {
        const QFileInfo indice(QFileInfo(txtAiuto_->source().toLocalFile()).dir(), QStringLiteral("indice.html"));
        if (indice.exists()) txtAiuto_->setSource(QUrl::fromLocalFile(indice.absoluteFilePath()));
    });
    connect(cmdIndietro, &QPushButton::clicked, txtAiuto_, &QTextBrowser::backward);
    connect(txtAiuto_, &QTextBrowser::backwardAvailable, cmdIndietro, &QPushButton::setEnabled);
    connect(txtAiuto_, &QTextBrowser::sourceChanged, this, [this] {
        const QString titolo = txtAiuto_->documentTitle();
        setWindowTitle(titolo.isEmpty() ? QStringLiteral("Aiuto") : QStringLiteral("Aiuto - ") + titolo);
    });
    connect(cmdEsci, &QPushButton::clicked, this, &QWidget::close);
    ApplicaStile(this, ini);
}

void FrmAiuto::MostraArgomento(const QString& file) {
    txtAiuto_->setSource(QUrl::fromLocalFile(QFileInfo(file).absoluteFilePath()));
}

}  // namespace gorgo::screens
