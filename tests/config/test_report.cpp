#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "config/cp1252.h"
#include "config/report_testo.h"
#include "support/attesi.h"
#include "support/cartelle.h"

using namespace gorgo::config;
using gorgo::test::ConfrontaConAtteso;
using gorgo::test::TestoRighe;
namespace fs = std::filesystem;

namespace {

std::string B(int n) { return std::string(static_cast<std::size_t>(n), ' '); }

// ---------------------------------------------------------------- code page

TEST(Cp1252, OgniCarattereHaIlSuoByteOppureUnPuntoInterrogativo) {
    // Over all of Unicode: a character either comes back from its byte, or has none and is "?".
    int conByte = 0;
    for (char32_t c = 0; c <= 0x10FFFF; ++c) {
        if (c >= 0xD800 && c <= 0xDFFF) continue;
        const std::u32string uno(1, c);
        const auto utf8 = CodiciInUtf8(uno);
        ASSERT_EQ(Utf8InCodici(utf8), uno) << std::hex << static_cast<unsigned>(c);
        const auto byte = Utf8InCp1252(utf8);
        ASSERT_EQ(byte.size(), 1u);
        if (Utf8InCodici(Cp1252InUtf8(byte)) == uno)
            ++conByte;
        else
            ASSERT_EQ(byte, "?") << std::hex << static_cast<unsigned>(c);
    }
    EXPECT_EQ(conByte, 256);
}

TEST(Cp1252, OgniByteTornaUguale) {
    // 0x80..0x9F by their glyphs, the five holes left out; the rest is Latin-1.
    std::string fila;
    for (int b = 0; b < 256; ++b) {
        const std::string byte(1, static_cast<char>(b));
        const auto utf8 = Cp1252InUtf8(byte);
        EXPECT_EQ(Utf8InCp1252(utf8), byte) << b;
        if (b < 0x80 || b >= 0xA0) {
            EXPECT_EQ(Utf8InCodici(utf8), std::u32string(1, char32_t(b))) << b;
        } else if (b != 0x81 && b != 0x8D && b != 0x8F && b != 0x90 && b != 0x9D) {
            fila += utf8;
        }
    }
    EXPECT_EQ(fila, "€‚ƒ„…†‡ˆ‰Š‹ŒŽ‘’“”•–—˜™š›œžŸ");
}

TEST(Cp1252, CaratteriNotiEInputRotto) {
    EXPECT_EQ(Utf8InCp1252("è°à€’"), "\xE8\xB0\xE0\x80\x92");
    EXPECT_EQ(Cp1252InUtf8("\xE8\xB0\x80"), "è°€");
    EXPECT_EQ(Utf8InCp1252("Ω\xC2\x80🙂"), "???");  // no byte for these
    // Invalid UTF-8: one "?" a bad byte, the rest read on.
    EXPECT_EQ(Utf8InCp1252("a\xE8z"), "a?z");
    EXPECT_EQ(Utf8InCp1252("\xE2\x82"), "??");            // cut short
    EXPECT_EQ(Utf8InCp1252("\xC0\xAF"), "??");            // overlong
    EXPECT_EQ(Utf8InCp1252("\xED\xA0\x80"), "???");       // surrogate
    EXPECT_EQ(Utf8InCp1252("\xF4\x90\x80\x80"), "????");  // past U+10FFFF
    EXPECT_EQ(Utf8InCp1252(std::string("a\0b", 3)), std::string("a\0b", 3));
    EXPECT_EQ(NumeroCaratteri("°à\xFF"), 3u);

    std::mt19937 gen(7);
    for (int i = 0; i < 2000; ++i) {
        std::string rumore(static_cast<std::size_t>(gen() % 12), '\0');
        for (auto& c : rumore) c = static_cast<char>(gen());
        EXPECT_EQ(Utf8InCp1252(rumore).size(), NumeroCaratteri(rumore));
    }
}

// ---------------------------------------------------------------- lines

const Tabella kCopertura{"Dettaglio copertura", "*-----------*---------------------°----*---*",
                         "| Data spia | Descrizione algor.  | Pr.| C.|"};

TEST(ReportTesto, TabellaConValoreCheSconfina) {
    ASSERT_EQ(kCopertura.larghezza(), 44);  // "°" is one cell
    ReportTesto r;
    r.apriTabella(kCopertura);
    r.riga(
        r.rigaTabella().metti(2, "05/01/2021").metti(15, "Pos.1 + Pos.2").mettiDestra(39, "12").mettiDestra(43, "3"));
    // The description overruns the next cells, and the values placed after it are written over it.
    r.riga(r.rigaTabella()
               .metti(2, "05/01/2021")
               .metti(15, "Ambo 12-34 ris. 45 (fuori 90)")
               .mettiDestra(39, "7")
               .mettiDestra(43, "2"));
    r.chiudiTabella();
    EXPECT_TRUE(ConfrontaConAtteso(TestoRighe(r.righe()), "config/attesi/tabella_che_sconfina.txt"));
    EXPECT_EQ(NumeroCaratteri(r.righe()[4].testo), 44u);
}

TEST(ReportTesto, RigaPerColonne) {
    // Places count characters: "°" and "à" take one cell each.
    EXPECT_EQ(RigaReport(10).metti(1, "°C").mettiDestra(10, "città").testo(), "°C   città");
    // Values that do not overlap land the same in any order.
    EXPECT_EQ(RigaReport(12).mettiDestra(12, "  99").metti(1, "Bari  ").metti(6, " 1").testo(), "Bari  1   99");
    EXPECT_EQ(RigaReport(12).metti(6, " 1").metti(1, "Bari  ").mettiDestra(12, "  99").testo(), "Bari  1   99");
    // Right-aligned text longer than the room on the left starts at column 1; what is placed
    // later overwrites it, blanks included, and a value past the width grows the row.
    EXPECT_EQ(RigaReport(6).mettiDestra(3, "123456").metti(5, "x").testo(), "1234x6");
    EXPECT_EQ(RigaReport(6).metti(1, "123456").metti(3, " ").testo(), "12 456");
    EXPECT_EQ(RigaReport(4).metti(3, "abcd").testo(), "  abcd");
    // A value that ends where the next begins, as placed, is left alone.
    EXPECT_EQ(RigaReport(4).metti(1, "ab").metti(3, "cd").testo(), "abcd");
    EXPECT_EQ(RigaReport(7).mettiCentrato(2, 6, "è").testo(), "   è   ");
    EXPECT_EQ(RigaReport(0).testo(), "");
    EXPECT_EQ(RigaReport(3).metti(0, "a").metti(3, "").testo(), "a  ");
}

TEST(ReportTesto, BloccoDeiParametri) {
    ReportTesto r;
    r.titolo()
        .parametro("Intervallo di ricerca", "dal 01/01/2020 al 31/12/2020")
        .parametro("Ruota/e di ricerca condizione", "BA CA ")
        .parametro("Spia", "Solo indice mensile")
        .parametro("Indice mensile", "tutti")
        .rigaVuota();
    EXPECT_TRUE(ConfrontaConAtteso(TestoRighe(r.righe()), "config/attesi/blocco_parametri.txt"));
    // A label too long for its field is overwritten by ":" at column 31.
    EXPECT_EQ(RigaParametro(std::string(31, 'x'), "v"), std::string(30, 'x') + ": v");
}

TEST(ReportTesto, IntestazioneDiPagina) {
    const auto righe = IntestazionePagina("Algoritmi rintracciati", "Città", 3);
    const std::vector<RigaTesto> attese = {
        {"", false},
        {B(29) + "Algoritmi rintracciati", true},
        {"", true},
        {B(37) + "Città", true},
        {B(64) + "Pag.   3", true},
        {"", true},
    };
    EXPECT_EQ(righe, attese);

    const std::string lungo(85, 'L');
    EXPECT_EQ(IntestazionePagina(lungo, std::string(81, 'M'), 12345)[1].testo, lungo);
    EXPECT_EQ(IntestazionePagina(lungo, std::string(81, 'M'), 12345)[3].testo, std::string(81, 'M'));
    EXPECT_EQ(IntestazionePagina("", "", 12345)[4].testo, B(64) + "Pag.12345");
    EXPECT_EQ(Centrato(std::string(79, 'a')), std::string(79, 'a'));
    EXPECT_EQ(Centrato(std::string(78, 'a')), std::string(1, ' ').append(78, 'a'));
}

TEST(ReportTesto, NuovaPaginaEGrassetto) {
    ReportTesto r;
    r.riga("a", true).nuovaPagina().aggiungi(IntestazionePagina("T", "U", 2)).riga("b").nuovaPagina();
    ASSERT_EQ(r.righe().size(), 8u);
    EXPECT_TRUE(r.righe()[0].grassetto);
    EXPECT_FALSE(r.righe()[0].nuovaPagina);
    EXPECT_TRUE(r.righe()[1].nuovaPagina);  // the header opens the page
    for (std::size_t i = 2; i < 8; ++i) EXPECT_FALSE(r.righe()[i].nuovaPagina) << i;
    EXPECT_EQ(r.righe()[7].testo, "b");
    // Closing with no table open adds nothing.
    ReportTesto vuoto;
    EXPECT_TRUE(vuoto.chiudiTabella().vuoto());
}

// ---------------------------------------------------------------- files

class ReportSuFile : public ::testing::Test {
protected:
    static std::string Leggi(const fs::path& p) { return gorgo::test::LeggiFile(p); }
    static void Metti(const fs::path& p, const std::string& dati) { std::ofstream(p, std::ios::binary) << dati; }
    std::vector<fs::path> Contenuto() const {
        std::vector<fs::path> v;
        for (const auto& e : fs::directory_iterator(cartella_)) v.push_back(e.path().filename());
        return v;
    }

    static ReportTesto Report(const std::string& spia) {
        ReportTesto r;
        r.titolo().parametro("Spia", spia).rigaVuota();
        r.apriTabella({"Algoritmo", "*-----°---*", "| Pr. | è |"});
        r.riga(RigaReport(11).metti(3, "12").mettiDestra(10, "°"));
        r.chiudiTabella();
        return r;
    }

    gorgo::test::CartellaTemporanea temporanea_;
    fs::path cartella_ = temporanea_.percorso();
};

TEST_F(ReportSuFile, NuovoScriveCp1252ConCrLf) {
    const auto p = cartella_ / "ReportAlgoritmi.Txt";
    EXPECT_TRUE(ScriviReportSuFile(p, Report("più"), ModoScrittura::Nuovo).vuoto());
    // The file's bytes: Windows-1252, CRLF.
    const std::string scritto = Leggi(p);
    EXPECT_TRUE(ConfrontaConAtteso(scritto, "config/attesi/report_nuovo.txt"));
    EXPECT_EQ(Contenuto(), std::vector<fs::path>{"ReportAlgoritmi.Txt"});

    // Refused when the file exists, which is left as it was.
    const auto m = ScriviReportSuFile(p, Report("altro"), ModoScrittura::Nuovo);
    EXPECT_EQ(m.testo, "Il file " + p.string() + " è già esistente.");
    EXPECT_EQ(m.titolo, "Errore");
    EXPECT_EQ(Leggi(p), scritto);
    EXPECT_EQ(Contenuto().size(), 1u);
}

TEST_F(ReportSuFile, AccodaMetteIlSecondoSottoIlPrimo) {
    const auto p = cartella_ / "r.txt";
    EXPECT_TRUE(ScriviReportSuFile(p, Report("1"), ModoScrittura::Accoda).vuoto());  // creates it
    EXPECT_TRUE(ScriviReportSuFile(p, Report("2"), ModoScrittura::Accoda).vuoto());
    EXPECT_TRUE(ConfrontaConAtteso(Leggi(p), "config/attesi/report_accodato.txt"));
}

TEST_F(ReportSuFile, SovrascriviSostituisceTuttoIlFile) {
    const auto p = cartella_ / "r.txt";
    Metti(p, std::string(5000, 'v'));
    fs::permissions(p, fs::perms::owner_read | fs::perms::owner_write);
    const std::vector<std::string> righe = {"Città", "", "fine"};
    EXPECT_TRUE(ScriviReportSuFile(p, std::span<const std::string>(righe), ModoScrittura::Sovrascrivi).vuoto());
    EXPECT_EQ(Leggi(p), "Citt\xE0\r\n\r\nfine\r\n");
    EXPECT_EQ(fs::status(p).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_EQ(Contenuto(), std::vector<fs::path>{"r.txt"});  // no temporary left

    // Through a link the file it names is replaced, and the link stays.
    fs::create_symlink(p, cartella_ / "link.txt");
    EXPECT_TRUE(ScriviReportSuFile(cartella_ / "link.txt", std::span<const std::string>(righe.data(), 1),
                                   ModoScrittura::Sovrascrivi)
                    .vuoto());
    EXPECT_TRUE(fs::is_symlink(cartella_ / "link.txt"));
    EXPECT_EQ(Leggi(p), "Citt\xE0\r\n");
}

TEST_F(ReportSuFile, ReportVuotoNonScriveNulla) {
    const auto p = cartella_ / "vuoto.txt";
    for (auto modo : {ModoScrittura::Nuovo, ModoScrittura::Accoda, ModoScrittura::Sovrascrivi})
        EXPECT_TRUE(ScriviReportSuFile(p, ReportTesto(), modo).vuoto());
    EXPECT_TRUE(Contenuto().empty());
    Metti(p, "vecchio");
    EXPECT_TRUE(ScriviReportSuFile(p, ReportTesto(), ModoScrittura::Sovrascrivi).vuoto());
    EXPECT_EQ(Leggi(p), "vecchio");
}

TEST_F(ReportSuFile, PercorsoNonScrivibile) {
    const auto p = cartella_ / "manca" / "r.txt";
    for (auto modo : {ModoScrittura::Nuovo, ModoScrittura::Accoda, ModoScrittura::Sovrascrivi}) {
        const auto m = ScriviReportSuFile(p, Report("x"), modo);
        EXPECT_EQ(m.testo, "Impossibile scrivere il file " + p.string() + ": la cartella non esiste.");
        EXPECT_EQ(m.titolo, "Errore");
    }
    EXPECT_TRUE(Contenuto().empty());

    // A folder in place of the file: refused, and nothing is left beside it.
    const auto d = cartella_ / "cartella.txt";
    fs::create_directory(d);
    for (auto modo : {ModoScrittura::Accoda, ModoScrittura::Sovrascrivi}) {
        const auto m = ScriviReportSuFile(d, Report("x"), modo);
        EXPECT_NE(m.testo.find("Impossibile scrivere il file " + d.string() + ": "), std::string::npos) << m.testo;
    }
    EXPECT_EQ(Contenuto(), std::vector<fs::path>{"cartella.txt"});
    EXPECT_TRUE(fs::is_empty(d));
}

TEST(ReportTesto, TestiDelleDomande) {
    const auto a = DomandaInCalce("C:\\r.Txt");
    EXPECT_EQ(a.testo, "Il file C:\\r.Txt è già esistente. Le informazioni vanno aggiunte in calce ?");
    EXPECT_EQ(a.titolo, "Conferma");
    EXPECT_EQ(a.icona, gorgo::archives::Icona::Domanda);
    const auto s = DomandaSovrascrivi("r.txt");
    EXPECT_EQ(s.testo, "Il file r.txt è già esistente. Sovrascrivi ?");
    EXPECT_EQ(s.titolo, "Conferma");
}

}  // namespace
