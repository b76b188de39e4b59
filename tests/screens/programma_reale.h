#pragma once
// The program started on a copy of the real archives, as the screen tests of the procedures
// drive it: messages are collected and answered, prints can go to a PDF in the test folder.

#include <gtest/gtest.h>

#include <QApplication>
#include <QLockFile>
#include <QPrinter>
#include <QProcess>
#include <filesystem>
#include <memory>
#include <vector>

#include "app/avvio.h"
#include "app/frm_main.h"
#include "screens/common/messaggi.h"
#include "screens/common/stampa.h"
#include "support/archivi_reali.h"
#include "support/cartelle.h"

namespace gorgo::screens {

// A control by its objectName; a missing one fails the test where it is asked for.
template <typename T>
T* Trova(QObject* w, const QString& nome) {
    T* c = w->findChild<T*>(nome);
    EXPECT_NE(c, nullptr) << nome.toStdString();
    return c;
}

// A visible top-level window by its objectName.
inline QWidget* Finestra(const QString& nome) {
    for (QWidget* w : QApplication::topLevelWidgets())
        if (w->objectName() == nome && w->isVisible()) return w;
    return nullptr;
}

// GORGO_CATTURE=DIR keeps a picture of a window for a look by eye.
inline void Cattura(QWidget* w, const QString& nome) {
    const QByteArray d = qgetenv("GORGO_CATTURE");
    if (!d.isEmpty()) w->grab().save(QString::fromUtf8(d) + "/" + nome + ".png");
}

// The text of a printed PDF, laid out as on paper.
inline QString TestoPdf(const std::filesystem::path& pdf) {
    QProcess p;
    p.start("pdftotext", {"-layout", QString::fromStdString(pdf.string()), "-"});
    EXPECT_TRUE(p.waitForFinished(20000));
    return QString::fromUtf8(p.readAllStandardOutput());
}

class ProgrammaReale : public ::testing::Test {
protected:
    // How every question is answered.
    virtual QMessageBox::StandardButton Risposta() const { return QMessageBox::Ok; }

    void SetUp() override {
        auto reale = test::CartellaReale();
        if (!reale) GTEST_SKIP() << "archivi reali assenti";
        test::CopiaArchiviReali(*reale, c_.percorso());
        prima_ = ImpostaGestoreMessaggi([this](const archives::Messaggio& m, QMessageBox::StandardButtons) {
            messaggi_.push_back(m);
            return Risposta();
        });
        principale_ = AvviaProgramma(c_.percorso(), blocco_);
        ASSERT_NE(principale_, nullptr);
        principale_->show();
    }
    void TearDown() override {
        principale_.reset();
        blocco_.reset();
        ImpostaGestoreMessaggi(prima_);
        ApriDialogoStampa = DialogoStampaPredefinito();
        ScegliFileReport = SceltaFileReportPredefinita();
    }
    // The next print goes to this PDF in the test folder.
    std::filesystem::path StampaSuPdf(const char* nome) {
        const auto pdf = c_ / nome;
        ApriDialogoStampa = [pdf](QWidget*, QPrinter& stampante) {
            stampante.setOutputFormat(QPrinter::PdfFormat);
            stampante.setOutputFileName(QString::fromStdString(pdf.string()));
            return true;
        };
        return pdf;
    }

    test::CartellaTemporanea c_;
    std::unique_ptr<QLockFile> blocco_;
    std::unique_ptr<FrmMain> principale_;
    std::vector<archives::Messaggio> messaggi_;
    GestoreMessaggi prima_;
};

}  // namespace gorgo::screens
