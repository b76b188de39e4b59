// Printed reports hold the same lines as the file reports, page by page with their
// headers; the file side asks before it touches an existing file.

#include <gtest/gtest.h>
#include <QApplication>
#include <QFontInfo>
#include <QMessageBox>
#include <QProcess>
#include <QRegularExpression>
#include <QTimer>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <string>
#include <vector>

#include "config/cp1252.h"
#include "config/ini.h"
#include "config/report_testo.h"
#include "screens/common/sessione.h"
#include "screens/common/stampa.h"
#include "support/cartelle.h"

namespace {

namespace fs = std::filesystem;
using gorgo::config::RigaTesto;
namespace gc = gorgo::config;
namespace gs = gorgo::screens;

QString Q(const fs::path& p) { return QString::fromStdString(p.string()); }

std::string Comando(const QString& programma, const QStringList& argomenti) {
    QProcess p;
    p.start(programma, argomenti);
    if (!p.waitForFinished(60000) || p.exitCode() != 0) return {};
    return p.readAllStandardOutput().toStdString();
}

std::vector<std::string> Righe(const std::string& testo) {
    std::vector<std::string> righe;
    std::string corrente;
    for (char c : testo) {
        if (c == '\n') {
            righe.push_back(corrente);
            corrente.clear();
        } else if (c != '\r') {
            corrente += c;
        }
    }
    if (!corrente.empty()) righe.push_back(corrente);
    return righe;
}

std::string SenzaCoda(std::string s) {
    while (!s.empty() && (s.back() == ' ' || s.back() == '\f')) s.pop_back();
    return s;
}

// The pages of a PDF as pdftotext lays them out, one string a page. The layout mode
// guesses the blanks from the gaps, so it is read here for the characters, not the columns.
std::vector<std::string> PagineDelPdf(const fs::path& pdf) {
    const std::string testo = Comando("pdftotext", {"-layout", "-enc", "UTF-8", Q(pdf), "-"});
    std::vector<std::string> pagine(1);
    for (char c : testo) {
        if (c == '\f')
            pagine.emplace_back();
        else
            pagine.back() += c;
    }
    if (pagine.back().find_first_not_of(" \n") == std::string::npos) pagine.pop_back();
    return pagine;
}

// The pages of a PDF rebuilt by character cells: each word that pdftotext finds is put
// back at the column its position gives (left edge of the text and the width of one cell).
// With a fixed-pitch font this is the printed line exactly, blanks included.
std::vector<std::vector<std::string>> PagineACelle(const fs::path& pdf) {
    const QString xml = QString::fromStdString(Comando("pdftotext", {"-bbox", "-enc", "UTF-8", Q(pdf), "-"}));
    static const QRegularExpression parola(
        "<word xMin=\"([0-9.]+)\" yMin=\"([0-9.]+)\" xMax=\"([0-9.]+)\" yMax=\"[0-9.]+\">([^<]*)</word>");
    struct Parola {
        double x, y, fine;
        QString testo;
    };
    std::vector<std::vector<Parola>> pagine;
    for (const QString& pagina : xml.split("<page ").mid(1)) {
        pagine.emplace_back();
        for (auto m = parola.globalMatch(pagina); m.hasNext();) {
            const auto p = m.next();
            QString t = p.captured(4);
            t.replace("&lt;", "<")
                .replace("&gt;", ">")
                .replace("&quot;", "\"")
                .replace("&apos;", "'")
                .replace("&amp;", "&");
            pagine.back().push_back({p.captured(1).toDouble(), p.captured(2).toDouble(), p.captured(3).toDouble(), t});
        }
    }
    double sinistra = 1e9;
    std::vector<double> celle;
    for (const auto& pagina : pagine)
        for (const auto& p : pagina) {
            sinistra = std::min(sinistra, p.x);
            bool ascii = true;
            for (QChar c : p.testo) ascii = ascii && c.unicode() < 128;
            if (ascii && p.testo.size() >= 3) celle.push_back((p.fine - p.x) / p.testo.size());
        }
    if (celle.empty()) return {};
    std::nth_element(celle.begin(), celle.begin() + celle.size() / 2, celle.end());
    const double cella = celle[celle.size() / 2];

    std::vector<std::vector<std::string>> risultato;
    for (auto& pagina : pagine) {
        std::stable_sort(pagina.begin(), pagina.end(), [](const Parola& a, const Parola& b) {
            return std::lround(a.y * 100) != std::lround(b.y * 100) ? a.y < b.y : a.x < b.x;
        });
        risultato.emplace_back();
        long rigaY = -1;
        QString riga;
        auto chiudi = [&] {
            if (rigaY >= 0) risultato.back().push_back(riga.toStdString());
            riga.clear();
        };
        for (const auto& p : pagina) {
            const long y = std::lround(p.y * 100);
            if (y != rigaY) {
                chiudi();
                rigaY = y;
            }
            const auto colonna = static_cast<qsizetype>(std::lround((p.x - sinistra) / cella));
            if (riga.size() < colonna) riga += QString(colonna - riga.size(), ' ');
            riga += p.testo;
        }
        chiudi();
    }
    return risultato;
}

// The width of a character cell, the height of the text and the right end of the widest
// line, in points, over the whole PDF.
struct Geometria {
    double cella = 0, altezza = 0, destra = 0;
};

Geometria GeometriaDelPdf(const fs::path& pdf) {
    const QString xml = QString::fromStdString(Comando("pdftotext", {"-bbox", "-enc", "UTF-8", Q(pdf), "-"}));
    static const QRegularExpression parola(
        "<word xMin=\"([0-9.]+)\" yMin=\"([0-9.]+)\" xMax=\"([0-9.]+)\" "
        "yMax=\"([0-9.]+)\">([a-zA-Z0-9|*-]{3,})</word>");
    Geometria g;
    for (auto m = parola.globalMatch(xml); m.hasNext();) {
        const auto p = m.next();
        const double x = p.captured(1).toDouble(), fine = p.captured(3).toDouble();
        g.cella = std::max(g.cella, (fine - x) / p.captured(5).size());
        g.altezza = std::max(g.altezza, p.captured(4).toDouble() - p.captured(2).toDouble());
        g.destra = std::max(g.destra, fine);
    }
    return g;
}

std::string SenzaSpazi(const std::string& s) {
    std::string r;
    for (char c : s)
        if (c != ' ') r += c;
    return r;
}

int NumeroPagine(const fs::path& pdf) {
    for (const auto& r : Righe(Comando("pdfinfo", {Q(pdf)})))
        if (r.rfind("Pages:", 0) == 0) return std::stoi(r.substr(6));
    return -1;
}

// The lines of a file report as the user reads them: Windows-1252, CRLF.
std::vector<std::string> RigheDelFile(const fs::path& file) {
    return Righe(gc::Cp1252InUtf8(gorgo::test::LeggiFile(file)));
}

// Every non-blank line, in order, among the lines of the text; the index of the first one missing, or -1.
int PrimaRigaMancante(const std::vector<std::string>& attese, const std::vector<std::string>& testo) {
    std::size_t cursore = 0;
    for (std::size_t i = 0; i < attese.size(); ++i) {
        const std::string cercata = SenzaCoda(attese[i]);
        if (cercata.empty()) continue;
        while (cursore < testo.size() && SenzaCoda(testo[cursore]) != cercata) ++cursore;
        if (cursore == testo.size()) return static_cast<int>(i);
        ++cursore;
    }
    return -1;
}

// About 150 lines: header block, bold lines, a boxed table with "°" and "à", a page mark,
// a line wider than 80 columns.
gc::ReportTesto ReportDiProva() {
    gc::ReportTesto r;
    r.titolo();
    r.parametro("Intervallo di ricerca", "dal 07/01/1871 al 31/12/2020");
    r.parametro("Ruota/e di gioco", "BA CA FI GE");
    r.parametro("Colpi di gioco", "12");
    r.rigaVuota();
    r.riga("Algoritmi trovati per la spia 90° con città di gioco", true);
    r.apriTabella({"Tabella degli algoritmi (più frequenti)", "*-----------*---------------------°----*---*",
                   "| Data spia | Descrizione algor.  | Pr.| C.|"});
    for (int i = 1; i <= 120; ++i) {
        auto riga = r.rigaTabella();
        riga.metti(1, "|").metti(
            3, QString("%1/03/19%2").arg(i % 28 + 1, 2, 10, QChar('0')).arg(i % 90 + 10).toStdString());
        riga.metti(13, "|").metti(15, "1° estratto + " + std::to_string(i) + (i % 7 == 0 ? " (già)" : ""));
        riga.metti(37, "|")
            .mettiDestra(40, std::to_string(i % 13))
            .metti(41, "|")
            .mettiDestra(43, std::to_string(i % 9));
        riga.metti(44, "|");
        r.riga(riga);
        if (i % 25 == 0) r.riga("Totale parziale " + std::to_string(i), true);
        if (i == 100)
            r.chiudiTabella().nuovaPagina().apriTabella({"Seguito della tabella",
                                                         "*-----------*---------------------°----*---*",
                                                         "| Data spia | Descrizione algor.  | Pr.| C.|"});
    }
    r.chiudiTabella();
    r.rigaVuota();
    r.riga(std::string("Riga larga: ") + std::string(50, '=') + " colonne oltre la ottantesima: fine riga", false);
    r.riga("Fine del report", true);
    return r;
}

gs::OpzioniStampa OpzioniDiProva() {
    gs::OpzioniStampa o;
    o.titolo1 = QStringLiteral("Gorgo 2 - Report di prova");
    o.titolo2 = QStringLiteral("Ruote BA CA FI GE");
    o.righePerPagina = 40;
    return o;
}

// The number of pages the report must take by its own count of rows and marks.
int PagineAttese(const std::vector<RigaTesto>& righe, int perPagina) {
    int pagine = 0, sullaPagina = 0;
    for (const auto& r : righe) {
        if (pagine == 0 || sullaPagina == perPagina || (r.nuovaPagina && sullaPagina > 0)) {
            ++pagine;
            sullaPagina = 0;
        }
        ++sullaPagina;
    }
    return pagine;
}

class Stampa : public ::testing::Test {
protected:
    void TearDown() override {
        gs::ScegliFileReport = gs::SceltaFileReportPredefinita();
        gs::ChiediReport = gs::DomandaReportPredefinita();
    }

    gorgo::test::CartellaTemporanea cartella_;
    gc::FileIni ini_;
    gs::Sessione sessione_{ini_, cartella_.percorso()};
};

TEST_F(Stampa, IlPdfHaLeRigheDelFileInOrdine) {
    const auto report = ReportDiProva();
    ASSERT_GE(report.righe().size(), 140u);
    const fs::path txt = cartella_ / "report.txt", pdf = cartella_ / "report.pdf";
    ASSERT_TRUE(gc::ScriviReportSuFile(txt, report, gc::ModoScrittura::Nuovo).vuoto());
    ASSERT_TRUE(gs::StampaReportPdf(Q(pdf), report.righe(), OpzioniDiProva()));
    const auto righeFile = RigheDelFile(txt);
    ASSERT_EQ(righeFile.size(), report.righe().size());

    // The characters of every line, in order, as the layout mode reads them.
    std::vector<std::string> fileSenzaSpazi, pdfSenzaSpazi;
    for (const auto& r : righeFile) fileSenzaSpazi.push_back(SenzaSpazi(r));
    for (const auto& pagina : PagineDelPdf(pdf))
        for (const auto& r : Righe(pagina)) pdfSenzaSpazi.push_back(SenzaSpazi(r));
    int mancante = PrimaRigaMancante(fileSenzaSpazi, pdfSenzaSpazi);
    EXPECT_EQ(mancante, -1) << "riga non stampata: \"" << (mancante >= 0 ? righeFile[mancante] : "") << "\"";

    // The same lines by character cells: every blank in its column.
    std::vector<std::string> aCelle;
    for (const auto& pagina : PagineACelle(pdf)) aCelle.insert(aCelle.end(), pagina.begin(), pagina.end());
    mancante = PrimaRigaMancante(righeFile, aCelle);
    EXPECT_EQ(mancante, -1) << "riga non stampata per colonne: \"" << (mancante >= 0 ? righeFile[mancante] : "")
                            << "\"";
}

TEST_F(Stampa, OgniPaginaHaLaSuaIntestazione) {
    const auto report = ReportDiProva();
    const auto opzioni = OpzioniDiProva();
    const fs::path pdf = cartella_ / "report.pdf";
    ASSERT_TRUE(gs::StampaReportPdf(Q(pdf), report.righe(), opzioni));

    const auto pagine = PagineACelle(pdf);
    const auto testi = PagineDelPdf(pdf);
    ASSERT_GE(pagine.size(), 2u);
    ASSERT_EQ(testi.size(), pagine.size());
    for (std::size_t n = 0; n < pagine.size(); ++n) {
        const auto intestazione = gc::IntestazionePagina(opzioni.titolo1.toStdString(), opzioni.titolo2.toStdString(),
                                                         static_cast<int>(n + 1));
        ASSERT_GE(pagine[n].size(), 3u);
        // Title 1 and 2 centred, "Pag." at column 65: the first three lines of the page.
        EXPECT_EQ(pagine[n][0], intestazione[1].testo) << "pagina " << n + 1;
        EXPECT_EQ(pagine[n][1], intestazione[3].testo) << "pagina " << n + 1;
        EXPECT_EQ(pagine[n][2], intestazione[4].testo) << "pagina " << n + 1;
        EXPECT_EQ(pagine[n][2].find("Pag."), 64u);
        char pag[32];
        std::snprintf(pag, sizeof pag, "Pag.%4zu", n + 1);
        EXPECT_NE(testi[n].find(pag), std::string::npos) << "pagina " << n + 1;
    }
    EXPECT_NE(testi[0].find("Pag.   1"), std::string::npos);
    EXPECT_NE(testi[1].find("Pag.   2"), std::string::npos);
}

TEST_F(Stampa, LePagineSeguonoIlConteggioDelReport) {
    const auto report = ReportDiProva();
    auto opzioni = OpzioniDiProva();
    const fs::path pdf = cartella_ / "report.pdf";
    ASSERT_TRUE(gs::StampaReportPdf(Q(pdf), report.righe(), opzioni));
    const int attese = PagineAttese(report.righe(), opzioni.righePerPagina);
    EXPECT_EQ(NumeroPagine(pdf), attese);

    // Each page begins with the row the report's count puts there.
    {
        const auto celle = PagineACelle(pdf);
        ASSERT_EQ(static_cast<int>(celle.size()), attese);
        std::vector<std::string> primeRighe;
        int sullaPagina = 0;
        bool nuova = true;
        for (const auto& r : report.righe()) {
            if (sullaPagina == opzioni.righePerPagina || (r.nuovaPagina && sullaPagina > 0)) {
                sullaPagina = 0;
                nuova = true;
            }
            ++sullaPagina;
            if (nuova && !r.testo.empty()) {
                primeRighe.push_back(r.testo);
                nuova = false;
            }
        }
        ASSERT_EQ(primeRighe.size(), celle.size());
        for (std::size_t n = 0; n < celle.size(); ++n) {
            ASSERT_GE(celle[n].size(), 4u);
            EXPECT_EQ(celle[n][3], SenzaCoda(primeRighe[n])) << "pagina " << n + 1;
        }
    }

    // The row marked for a new page is the first row under the header of its page.
    const auto pagine = PagineDelPdf(pdf);
    ASSERT_EQ(static_cast<int>(pagine.size()), attese);
    bool trovata = false;
    for (const auto& pagina : pagine) {
        if (pagina.find("Seguito della tabella") == std::string::npos) continue;
        trovata = true;
        std::vector<std::string> piene;
        for (const auto& r : Righe(pagina))
            if (r.find_first_not_of(' ') != std::string::npos) piene.push_back(r);
        ASSERT_GE(piene.size(), 4u);
        EXPECT_NE(piene[3].find("Seguito della tabella"), std::string::npos) << piene[3];
    }
    EXPECT_TRUE(trovata);

    // Fewer rows a page, more pages.
    opzioni.righePerPagina = 20;
    ASSERT_TRUE(gs::StampaReportPdf(Q(pdf), report.righe(), opzioni));
    EXPECT_EQ(NumeroPagine(pdf), PagineAttese(report.righe(), 20));
}

TEST_F(Stampa, LeRigheInGrassettoUsanoIlGrassetto) {
    const fs::path pdf = cartella_ / "report.pdf";
    const std::vector<RigaTesto> normali = {{"riga normale"}, {"altra riga"}};
    ASSERT_TRUE(gs::StampaReportPdf(Q(pdf), normali, {}));
    const std::string senza = Comando("pdffonts", {Q(pdf)});
    const std::vector<RigaTesto> grassette = {{"riga normale"}, {"riga in grassetto", true}};
    ASSERT_TRUE(gs::StampaReportPdf(Q(pdf), grassette, {}));
    const std::string con = Comando("pdffonts", {Q(pdf)});
    EXPECT_EQ(senza.find("Bold"), std::string::npos) << senza;
    EXPECT_NE(con.find("Bold"), std::string::npos) << con;
}

TEST_F(Stampa, UnaRigaPiuLargaDellaPaginaNonVieneTagliata) {
    const fs::path pdf = cartella_ / "largo.pdf";
    std::string larga;
    for (int i = 1; i <= 22; ++i) larga += "colonna" + std::string(i < 10 ? "0" : "") + std::to_string(i) + " ";
    larga += "FINE";  // 224 columns: past what 6 points hold on A4
    std::string regola(132, '-');
    regola.front() = regola.back() = '|';
    const std::vector<RigaTesto> righe = {{"Inizio"}, {larga}, {regola}};
    ASSERT_TRUE(gs::StampaReportPdf(Q(pdf), righe, {}));
    EXPECT_EQ(NumeroPagine(pdf), 1);
    const auto pagine = PagineACelle(pdf);
    ASSERT_EQ(pagine.size(), 1u);
    EXPECT_EQ(pagine[0], (std::vector<std::string>{"Inizio", larga, regola}));
    // Every character lies inside the page.
    const QString xml = QString::fromStdString(Comando("pdftotext", {"-bbox", Q(pdf), "-"}));
    static const QRegularExpression fine("xMax=\"([0-9.]+)\"");
    for (auto m = fine.globalMatch(xml); m.hasNext();) EXPECT_LE(m.next().captured(1).toDouble(), 595.0);
}

TEST_F(Stampa, UnReportLargoRimpicciolisceIlFontSenzaDeformarlo) {
    // A4 with 15 mm margins: 510 points of text; at 10 points a cell is 6 points, 85 columns.
    const std::vector<RigaTesto> stretto = {{std::string(80, 'x')}};
    const std::vector<RigaTesto> largo = {{std::string(120, 'x')}};
    const fs::path a = cartella_ / "stretto.pdf", b = cartella_ / "largo.pdf";
    ASSERT_TRUE(gs::StampaReportPdf(Q(a), stretto, {}));
    ASSERT_TRUE(gs::StampaReportPdf(Q(b), largo, {}));
    const Geometria g10 = GeometriaDelPdf(a), gr = GeometriaDelPdf(b);
    ASSERT_GT(g10.cella, 0);
    ASSERT_GT(gr.cella, 0);
    EXPECT_NEAR(g10.cella, 6.0, 0.3);  // the size asked for, as it is
    // Smaller, and fitting the page...
    EXPECT_LT(gr.cella, g10.cella * 0.75);
    EXPECT_LE(gr.destra, 595.0 - 42.0);
    EXPECT_GE(120 * gr.cella, 510.0 * 0.9) << "reduced far more than needed";
    // ...by size, not by squeezing: the cells keep their proportion to the height of the text.
    EXPECT_NEAR(gr.cella / gr.altezza, g10.cella / g10.altezza, 0.03 * g10.cella / g10.altezza);
}

TEST_F(Stampa, ImpaginazioneDelleRighe) {
    gs::OpzioniStampa o;
    o.righePerPagina = 3;
    std::vector<RigaTesto> righe;
    for (char c = '1'; c <= '7'; ++c) righe.push_back({std::string{'r', c}});
    righe[3].nuovaPagina = true;  // "r4" starts a page where a page starts anyway: no empty page
    righe[4].nuovaPagina = true;  // "r5" after one row: a page of its own
    const auto pagine = gs::ImpaginaReport(righe, o);
    ASSERT_EQ(pagine.size(), 3u);
    EXPECT_EQ(pagine[0].size(), 3u);
    ASSERT_EQ(pagine[1].size(), 1u);
    EXPECT_EQ(pagine[1][0].testo, "r4");
    ASSERT_EQ(pagine[2].size(), 3u);
    EXPECT_EQ(pagine[2][0].testo, "r5");
    // No count: only the marks break pages.
    o.righePerPagina = 0;
    righe[3].nuovaPagina = false;
    EXPECT_EQ(gs::ImpaginaReport(righe, o).size(), 2u);
}

TEST_F(Stampa, ImpaginazioneConIntestazioneECapienza) {
    gs::OpzioniStampa o;
    o.titolo1 = QStringLiteral("Titolo");
    o.righePerPagina = 10;
    std::vector<RigaTesto> righe(25, RigaTesto{"x"});
    // A sheet that holds 10 lines: 6 of header, 4 rows.
    const auto pagine = gs::ImpaginaReport(righe, o, 10);
    ASSERT_EQ(pagine.size(), 7u);
    EXPECT_EQ(pagine[0].size(), 10u);
    EXPECT_NE(pagine[6][4].testo.find("Pag.   7"), std::string::npos);
    EXPECT_EQ(pagine[6].size(), 6u + 1u);

    // No rows: the header alone with a title, nothing without.
    EXPECT_EQ(gs::ImpaginaReport({}, o).size(), 1u);
    EXPECT_TRUE(gs::ImpaginaReport({}, gs::OpzioniStampa{}).empty());
    EXPECT_FALSE(gs::StampaReportPdf(Q(cartella_ / "vuoto.pdf"), {}, gs::OpzioniStampa{}));
    EXPECT_FALSE(fs::exists(cartella_ / "vuoto.pdf"));
}

TEST_F(Stampa, IlFontMancanteDiventaUnFontAPassoFisso) {
    const QFont mancante = gs::FontReport(QStringLiteral("Carattere Che Non Esiste Xyz"), 9);
    EXPECT_TRUE(QFontInfo(mancante).fixedPitch()) << mancante.family().toStdString();
    EXPECT_DOUBLE_EQ(mancante.pointSizeF(), 9.0);
    const QFont corriere = gs::FontReport(QStringLiteral("Courier New"), 10);
    EXPECT_TRUE(QFontInfo(corriere).fixedPitch()) << corriere.family().toStdString();
    EXPECT_DOUBLE_EQ(corriere.pointSizeF(), 10.0);
}

TEST_F(Stampa, IlPdfNonLasciaFileAMeta) {
    const std::vector<RigaTesto> righe = {{"una riga"}};
    EXPECT_FALSE(gs::StampaReportPdf(Q(cartella_ / "manca" / "r.pdf"), righe, {}));
    EXPECT_FALSE(fs::exists(cartella_ / "manca"));

    const fs::path pdf = cartella_ / "r.pdf";
    {
        std::ofstream f(pdf);
        f << "vecchio";
    }
    ASSERT_TRUE(gs::StampaReportPdf(Q(pdf), righe, {}));
    EXPECT_EQ(gorgo::test::LeggiFile(pdf).substr(0, 5), "%PDF-");
    for (const auto& e : fs::directory_iterator(cartella_.percorso()))
        EXPECT_EQ(e.path().filename(), "r.pdf") << "file temporaneo rimasto: " << e.path();
}

TEST_F(Stampa, FiltriDelDialogo) {
    EXPECT_EQ(gs::FiltroQt("File di testo (*.Txt)|*.Txt"), "File di testo (*.Txt)");
    EXPECT_EQ(gs::FiltroQt("File di testo|*.txt|Tutti i file|*.*"), "File di testo (*.txt);;Tutti i file (*.*)");
    EXPECT_EQ(gs::FiltroQt("File di testo (*.Txt)"), "File di testo (*.Txt)");
}

// ---------------------------------------------------------------- file

struct Dialogo {
    int chiamate = 0;
    QString titolo, proposto, filtro;
    QString risposta;
};

struct Domanda {
    int chiamate = 0;
    std::string testo, titolo;
    QMessageBox::StandardButtons pulsanti;
    QMessageBox::StandardButton predefinito = QMessageBox::NoButton;
    QMessageBox::StandardButton risposta = QMessageBox::No;
};

class StampaSuFile : public Stampa {
protected:
    void SetUp() override {
        gs::ScegliFileReport = [this](QWidget*, const QString& titolo, const QString& proposto, const QString& filtro) {
            ++dialogo_.chiamate;
            dialogo_.titolo = titolo;
            dialogo_.proposto = proposto;
            dialogo_.filtro = filtro;
            return dialogo_.risposta;
        };
        gs::ChiediReport = [this](QWidget*, const gorgo::archives::Messaggio& m, QMessageBox::StandardButtons pulsanti,
                                  QMessageBox::StandardButton predefinito) {
            ++domanda_.chiamate;
            domanda_.testo = m.testo;
            domanda_.titolo = m.titolo;
            domanda_.pulsanti = pulsanti;
            domanda_.predefinito = predefinito;
            return domanda_.risposta;
        };
    }

    const std::vector<RigaTesto> primo_ = {{"Gorgo 2 - Ideato da Sergio Tordelli"}, {""}, {"Città: 90°", true}};
    const std::vector<RigaTesto> secondo_ = {{"Seconda parte"}, {"ultima riga"}};
    Dialogo dialogo_;
    Domanda domanda_;
};

TEST_F(StampaSuFile, NuovoFileNelFolderDelProgramma) {
    const fs::path file = cartella_ / "Risultati.Txt";
    dialogo_.risposta = Q(file);
    EXPECT_TRUE(
        gs::SalvaReportSuFile(nullptr, sessione_, primo_, QStringLiteral("Risultati"), gs::DomandaFile::InCalce));
    EXPECT_EQ(dialogo_.chiamate, 1);
    EXPECT_EQ(dialogo_.titolo, "Salva risultati su file");
    EXPECT_EQ(dialogo_.proposto, Q(cartella_ / "Risultati.Txt"));
    EXPECT_EQ(dialogo_.filtro, "File di testo (*.Txt)");
    EXPECT_EQ(domanda_.chiamate, 0);
    EXPECT_EQ(gorgo::test::LeggiFile(file),
              gc::Utf8InCp1252("Gorgo 2 - Ideato da Sergio Tordelli\r\n\r\nCittà: 90°\r\n"));
}

TEST_F(StampaSuFile, InCalceConSi) {
    const fs::path file = cartella_ / "r.Txt";
    dialogo_.risposta = Q(file);
    ASSERT_TRUE(gs::SalvaReportSuFile(nullptr, sessione_, primo_, "r.Txt", gs::DomandaFile::InCalce));
    domanda_.risposta = QMessageBox::Yes;
    ASSERT_TRUE(gs::SalvaReportSuFile(nullptr, sessione_, secondo_, "r.Txt", gs::DomandaFile::InCalce));
    EXPECT_EQ(domanda_.chiamate, 1);
    EXPECT_EQ(domanda_.testo,
              "Il file " + file.string() + " è già esistente. Le informazioni vanno aggiunte in calce ?");
    EXPECT_EQ(domanda_.titolo, "Conferma");
    EXPECT_EQ(domanda_.pulsanti, QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
    EXPECT_EQ(domanda_.predefinito, QMessageBox::No);
    const auto righe = RigheDelFile(file);
    EXPECT_EQ(righe, (std::vector<std::string>{"Gorgo 2 - Ideato da Sergio Tordelli", "", "Città: 90°", "Seconda parte",
                                               "ultima riga"}));
}

TEST_F(StampaSuFile, InCalceConNoSovrascrive) {
    const fs::path file = cartella_ / "r.Txt";
    dialogo_.risposta = Q(file);
    ASSERT_TRUE(gs::SalvaReportSuFile(nullptr, sessione_, primo_, "r", gs::DomandaFile::InCalce));
    domanda_.risposta = QMessageBox::No;
    ASSERT_TRUE(gs::SalvaReportSuFile(nullptr, sessione_, secondo_, "r", gs::DomandaFile::InCalce));
    EXPECT_EQ(RigheDelFile(file), (std::vector<std::string>{"Seconda parte", "ultima riga"}));
}

TEST_F(StampaSuFile, InCalceConAnnullaLasciaIlFile) {
    const fs::path file = cartella_ / "r.Txt";
    dialogo_.risposta = Q(file);
    ASSERT_TRUE(gs::SalvaReportSuFile(nullptr, sessione_, primo_, "r", gs::DomandaFile::InCalce));
    const std::string prima = gorgo::test::LeggiFile(file);
    const auto tempo = fs::last_write_time(file);
    domanda_.risposta = QMessageBox::Cancel;
    EXPECT_FALSE(gs::SalvaReportSuFile(nullptr, sessione_, secondo_, "r", gs::DomandaFile::InCalce));
    EXPECT_EQ(gorgo::test::LeggiFile(file), prima);
    EXPECT_EQ(fs::last_write_time(file), tempo);
}

TEST_F(StampaSuFile, SovrascriviSiENo) {
    const fs::path file = cartella_ / "Help.txt";
    dialogo_.risposta = Q(file);
    ASSERT_TRUE(gs::SalvaReportSuFile(nullptr, sessione_, primo_, "Help.txt", gs::DomandaFile::Sovrascrivi));
    domanda_.risposta = QMessageBox::No;
    EXPECT_FALSE(gs::SalvaReportSuFile(nullptr, sessione_, secondo_, "Help.txt", gs::DomandaFile::Sovrascrivi));
    EXPECT_EQ(domanda_.testo, "Il file " + file.string() + " è già esistente. Sovrascrivi ?");
    EXPECT_EQ(domanda_.pulsanti, QMessageBox::Yes | QMessageBox::No);
    EXPECT_EQ(domanda_.predefinito, QMessageBox::No);
    EXPECT_EQ(RigheDelFile(file).size(), 3u);
    domanda_.risposta = QMessageBox::Yes;
    EXPECT_TRUE(gs::SalvaReportSuFile(nullptr, sessione_, secondo_, "Help.txt", gs::DomandaFile::Sovrascrivi));
    EXPECT_EQ(RigheDelFile(file), (std::vector<std::string>{"Seconda parte", "ultima riga"}));
}

TEST_F(StampaSuFile, AnnullaNelDialogoNonScriveNulla) {
    dialogo_.risposta.clear();
    EXPECT_FALSE(gs::SalvaReportSuFile(nullptr, sessione_, primo_, "r", gs::DomandaFile::InCalce));
    EXPECT_EQ(dialogo_.chiamate, 1);
    EXPECT_EQ(domanda_.chiamate, 0);
    EXPECT_TRUE(fs::is_empty(cartella_.percorso()));
}

TEST_F(StampaSuFile, ReportVuotoNienteDialogoNienteFile) {
    dialogo_.risposta = Q(cartella_ / "r.Txt");
    EXPECT_FALSE(gs::SalvaReportSuFile(nullptr, sessione_, {}, "r", gs::DomandaFile::InCalce));
    EXPECT_EQ(dialogo_.chiamate, 0);
    EXPECT_TRUE(fs::is_empty(cartella_.percorso()));
}

TEST_F(StampaSuFile, UltimaCartellaEEstensione) {
    const fs::path sotto = cartella_ / "sotto";
    fs::create_directories(sotto);
    dialogo_.risposta = Q(sotto / "scelto");  // no extension: the filter's one is added
    ASSERT_TRUE(gs::SalvaReportSuFile(nullptr, sessione_, primo_, "Primo", gs::DomandaFile::InCalce,
                                      QString::fromUtf8(gc::FiltroFileTestoMinuscolo.data())));
    EXPECT_EQ(dialogo_.proposto, Q(cartella_ / "Primo.txt"));
    EXPECT_EQ(dialogo_.filtro, "File di testo (*.txt)");
    EXPECT_TRUE(fs::exists(sotto / "scelto.txt"));
    // The next report is proposed in the folder chosen last.
    dialogo_.risposta.clear();
    gs::SalvaReportSuFile(nullptr, sessione_, primo_, "Secondo.Txt", gs::DomandaFile::InCalce);
    EXPECT_EQ(dialogo_.proposto, Q(sotto / "Secondo.Txt"));
}

TEST_F(StampaSuFile, UnErroreDiScritturaMostraIlMessaggio) {
    dialogo_.risposta = Q(cartella_ / "manca" / "r.Txt");
    QString testo, titolo;
    QTimer chiudi;
    chiudi.setInterval(10);
    QObject::connect(&chiudi, &QTimer::timeout, [&] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            testo = box->text();
            titolo = box->windowTitle();
            box->done(QMessageBox::Ok);
            chiudi.stop();
        }
    });
    chiudi.start();
    EXPECT_FALSE(gs::SalvaReportSuFile(nullptr, sessione_, primo_, "r", gs::DomandaFile::InCalce));
    EXPECT_TRUE(testo.startsWith("Impossibile scrivere il file")) << testo.toStdString();
    EXPECT_EQ(titolo, "Errore");
    EXPECT_FALSE(fs::exists(cartella_ / "manca"));
}

}  // namespace
