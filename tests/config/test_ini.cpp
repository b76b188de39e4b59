#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <optional>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include <fmt/format.h>

#include "config/impostazioni.h"
#include "config/ini.h"
#include "support/cartelle.h"

namespace fs = std::filesystem;
using namespace gorgo::config;

namespace {

using gorgo::test::CartellaTemporanea;

std::size_t QuantiFile(const fs::path& cartella) {
    return static_cast<std::size_t>(std::distance(fs::directory_iterator(cartella), fs::directory_iterator()));
}

using gorgo::test::LeggiFile;

void ScriviByte(const fs::path& p, std::string_view byte) {
    std::ofstream out(p, std::ios::binary | std::ios::trunc);
    out.write(byte.data(), static_cast<std::streamsize>(byte.size()));
}

struct FileIniTest : ::testing::Test {
    CartellaTemporanea cartella;
    fs::path file = cartella / "Gorgo.ini";
    FileIni ini{file.string()};
};

}  // namespace

TEST_F(FileIniTest, LaScritturaTocca_SoloLaRigaDellaChiave) {
    const std::string originale =
        "orfano=prima di ogni sezione\n"
        "; commento iniziale\n"
        "[Settings]\n"
        "ColoreForm = 12566463\n"
        "  riga senza uguale \xc3\xa8\n"
        "Ruota=YNNNNNNNNNN\n"
        "; chiusura Settings\n"
        "\n"
        "[Sconosciuta]\n"
        "Chiave=valore qualsiasi\n"
        "[Forms]\n"
        "GorgoLeft=1200";  // no final line break
    ScriviByte(file, originale);

    EXPECT_TRUE(ScriviImpostazione(ini, "settings", "RUOTA", "NYNNNNNNNNN"));
    EXPECT_TRUE(ScriviImpostazione(ini, "Settings", "InizioRicerca", "5"));
    EXPECT_TRUE(ScriviImpostazione(ini, "Forms", "GorgoTop", "300"));
    EXPECT_TRUE(ScriviImpostazione(ini, "Options", "Url", "http://esempio/"));

    EXPECT_EQ(LeggiFile(file),
              "orfano=prima di ogni sezione\n"
              "; commento iniziale\n"
              "[Settings]\n"
              "ColoreForm = 12566463\n"
              "  riga senza uguale \xc3\xa8\n"
              "Ruota=NYNNNNNNNNN\n"
              "InizioRicerca=5\n"
              "; chiusura Settings\n"
              "\n"
              "[Sconosciuta]\n"
              "Chiave=valore qualsiasi\n"
              "[Forms]\n"
              "GorgoLeft=1200\n"
              "GorgoTop=300\n"
              "\n"
              "[Options]\n"
              "Url=http://esempio/\n");
    EXPECT_EQ(QuantiFile(cartella.percorso()), 1u) << "temporary file left behind";

    // Writing what is already there leaves the file as it is.
    const std::string prima = LeggiFile(file);
    EXPECT_TRUE(ScriviImpostazione(ini, "Forms", "gorgotop", "300"));
    EXPECT_EQ(LeggiFile(file), prima);
}

TEST_F(FileIniTest, LetturaComeIlLettoreDiProfili) {
    ScriviByte(file,
               "Key1=fuori da ogni sezione\n"
               "[settings]\n"
               " KEY1 =  valore con spazi  \n"
               "Quoted=\"  tra virgolette  \"\n"
               "Mezza=\"aperta\n"
               "Vuota=\n"
               "SoloSpazi=    \n"
               ";Commentata=x\n"
               "Senza uguale\n"
               "Doppia=prima\n"
               "Doppia=seconda\n"
               "[ SETTINGS ]\n"
               "Solo=nella seconda\n"
               "[Altra]\n"
               "Key1=altra\n");
    ini.SetApplicationKey("  Settings ");
    EXPECT_EQ(ini.ApplicationKey(), "Settings");
    EXPECT_EQ(ini.GetValue("key1", "d"), "valore con spazi");
    EXPECT_EQ(ini.GetValue("Quoted", "d"), "tra virgolette");
    EXPECT_EQ(ini.GetValue("Mezza", "d"), "\"aperta");
    EXPECT_EQ(ini.GetValue("Vuota", "d"), "") << "a present empty key does not take the default";
    EXPECT_EQ(ini.GetValue("SoloSpazi", "d"), "");
    EXPECT_EQ(ini.GetValue("Commentata", "d"), "d");
    EXPECT_EQ(ini.GetValue("Senza uguale", "d"), "d");
    EXPECT_EQ(ini.GetValue("Doppia", "d"), "prima");
    EXPECT_EQ(ini.GetValue("Solo", "d"), "d") << "only the first section of a name is looked at";
    EXPECT_EQ(ini.GetValue("Assente", "  predefinito  "), "predefinito");
    EXPECT_EQ(LeggiImpostazione(ini, "ALTRA", "key1", "d"), "altra");
    EXPECT_EQ(ini.ApplicationKey(), "Settings");

    // Writes go to the first section of the name too.
    ASSERT_TRUE(ini.SetValue("Solo", "ora nella prima"));
    EXPECT_EQ(ini.GetValue("Solo", "d"), "ora nella prima");
}

TEST_F(FileIniTest, ValoreTagliatoA1000CaratteriEPulito) {
    std::string lungo(1200, 'a');
    std::string accentato;
    for (int i = 0; i < 1200; ++i) accentato += "\xc3\xa8";  // è, two bytes each
    ASSERT_TRUE(ScriviImpostazione(ini, "S", "Lungo", lungo));
    ASSERT_TRUE(ScriviImpostazione(ini, "S", "Accentato", accentato));
    EXPECT_EQ(LeggiImpostazione(ini, "S", "Lungo", ""), std::string(1000, 'a'));
    EXPECT_EQ(LeggiImpostazione(ini, "S", "Accentato", ""), accentato.substr(0, 2000))
        << "the cut counts characters, not bytes";
    EXPECT_EQ(LeggiImpostazione(ini, "S", "Assente", lungo), std::string(1000, 'a'));

    // Blanks are trimmed before the control characters go: a blank inside stays.
    ScriviByte(file, "[S]\nTab=ab\tcd\x01\nCoda=valore\x1f\nMisto=\x02 x \x03\n");
    EXPECT_EQ(LeggiImpostazione(ini, "S", "Tab", ""), "abcd");
    EXPECT_EQ(LeggiImpostazione(ini, "S", "Coda", ""), "valore");
    EXPECT_EQ(LeggiImpostazione(ini, "S", "Misto", ""), " x ");
}

TEST_F(FileIniTest, FileAssenteDaIPredefinitiEVieneCreatoAllaPrimaScrittura) {
    EXPECT_FALSE(fs::exists(file));
    EXPECT_EQ(LeggiImpostazione(ini, "Settings", "Ruota", "YNNNNNNNNNN"), "YNNNNNNNNNN");
    EXPECT_FALSE(fs::exists(file)) << "reading must not create the file";
    ASSERT_TRUE(ScriviImpostazione(ini, "Settings", "Ruota", "NNYNNNNNNNN"));
    EXPECT_EQ(LeggiFile(file), "[Settings]\nRuota=NNYNNNNNNNN\n");
    ASSERT_TRUE(ScriviImpostazione(ini, "Settings", "Vuota", ""));
    EXPECT_EQ(LeggiFile(file), "[Settings]\nRuota=NNYNNNNNNNN\nVuota=\n");
    EXPECT_EQ(LeggiImpostazione(ini, "Settings", "Vuota", "d"), "");
    EXPECT_EQ(QuantiFile(cartella.percorso()), 1u);

    // A folder that is not there is not made: the write fails and leaves nothing.
    FileIni altrove((cartella / "manca" / "Gorgo.ini").string());
    EXPECT_FALSE(ScriviImpostazione(altrove, "Settings", "Ruota", "x"));
    EXPECT_FALSE(fs::exists(cartella / "manca"));
    FileIni senzaNome;
    EXPECT_FALSE(ScriviImpostazione(senzaNome, "Settings", "Ruota", "x"));
}

TEST_F(FileIniTest, NomiEValoriCheRomperebberoIlFile) {
    ASSERT_TRUE(ScriviImpostazione(ini, "Settings", "A", "1"));
    const std::string prima = LeggiFile(file);
    for (std::string_view cattiva : {"a=b", "[Forms]", ";nota", "  ", "A\nB"})
        EXPECT_FALSE(ScriviImpostazione(ini, "Settings", cattiva, "x")) << cattiva;
    EXPECT_FALSE(ScriviImpostazione(ini, "Set]tings", "A", "x"));
    EXPECT_EQ(LeggiFile(file), prima);

    // Line breaks in a value are dropped, so it cannot smuggle in a section.
    ASSERT_TRUE(ScriviImpostazione(ini, "Settings", "B", "uno\r\n[Forms]\nGorgoLeft=7"));
    EXPECT_EQ(LeggiImpostazione(ini, "Settings", "B", ""), "uno[Forms]GorgoLeft=7");
    EXPECT_EQ(LeggiImpostazione(ini, "Forms", "GorgoLeft", "1000"), "1000");
    EXPECT_EQ(LeggiImpostazione(ini, "Settings", "A", ""), "1");

    // The several-key write is all or nothing.
    const std::string adesso = LeggiFile(file);
    const CoppiaChiaveValore valori[] = {{"C", "3"}, {"rotta=", "4"}};
    EXPECT_FALSE(ini.Scrivi("Settings", valori));
    EXPECT_EQ(LeggiFile(file), adesso);
}

TEST_F(FileIniTest, FileCrLfRestaCrLf) {
    ScriviByte(file, "[Settings]\r\nA=1\r\n; c\r\n");
    ASSERT_TRUE(ScriviImpostazione(ini, "Settings", "A", "2"));
    ASSERT_TRUE(ScriviImpostazione(ini, "Settings", "B", "3"));
    ASSERT_TRUE(ScriviImpostazione(ini, "Options", "C", "4"));
    EXPECT_EQ(LeggiFile(file), "[Settings]\r\nA=2\r\nB=3\r\n; c\r\n\r\n[Options]\r\nC=4\r\n");
    EXPECT_EQ(LeggiImpostazione(ini, "Settings", "A", ""), "2");

    // A UTF-8 mark at the start is neither part of the first header nor lost.
    ScriviByte(file, "\xEF\xBB\xBF[Settings]\r\nA=1\r\n");
    EXPECT_EQ(LeggiImpostazione(ini, "Settings", "A", ""), "1");
    ASSERT_TRUE(ScriviImpostazione(ini, "Settings", "A", "9"));
    EXPECT_EQ(LeggiFile(file), "\xEF\xBB\xBF[Settings]\r\nA=9\r\n");
}

TEST_F(FileIniTest, FileWindows1252LettoERiscrittoInUtf8) {
    ScriviByte(file,
               "[Options]\r\n"
               "FileTerzine=C:\\Gorgo\\Citt\xE0\\Terzine.txt\r\n"
               "; nota: perch\xE9 \x80 \x93x\x94\r\n");
    EXPECT_EQ(LeggiImpostazione(ini, "Options", "FileTerzine", ""), "C:\\Gorgo\\Citt\xC3\xA0\\Terzine.txt");
    ASSERT_TRUE(ScriviImpostazione(ini, "Options", "Url", "http://esempio/"));
    EXPECT_EQ(LeggiFile(file),
              "[Options]\r\n"
              "FileTerzine=C:\\Gorgo\\Citt\xC3\xA0\\Terzine.txt\r\n"
              "Url=http://esempio/\r\n"
              "; nota: perch\xC3\xA9 \xE2\x82\xAC \xE2\x80\x9Cx\xE2\x80\x9D\r\n");
}

// Random files of sections, keys, comments and garbage against a plain map, through many writes.
TEST_F(FileIniTest, ScrittureCasualiControUnaMappa) {
    std::mt19937 rng(20240607);
    const auto caso = [&](int n) { return static_cast<int>(rng() % static_cast<unsigned>(n)); };
    const auto casoMaiuscole = [&](std::string s) {
        for (char& c : s)
            if (caso(2)) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
        return s;
    };
    const std::vector<std::string> valoriPossibili = {
        "1",     "YNNNNNNNNNN",    "http://x/y/",  "con spazio dentro", "citt\xC3\xA0",
        "a=b=c", "; non commento", "[non sezione]"};

    for (int giro = 0; giro < 20; ++giro) {
        std::map<std::pair<std::string, std::string>, std::string> modello;
        std::vector<std::string> altre;  // comments and garbage, in file order
        std::string testo;
        std::vector<int> sezioni = {0, 1, 2, 3};
        std::shuffle(sezioni.begin(), sezioni.end(), rng);
        for (int s : sezioni) {
            testo += fmt::format("[{}]\n", casoMaiuscole(fmt::format("sez{}", s)));
            std::vector<int> chiavi = {0, 1, 2, 3, 4, 5};
            std::shuffle(chiavi.begin(), chiavi.end(), rng);
            chiavi.resize(static_cast<std::size_t>(caso(6)));
            for (int k : chiavi) {
                if (caso(3) == 0) {
                    const std::string altra = caso(2) ? fmt::format("; nota {}", caso(100)) : "### rumore ###";
                    altre.push_back(altra);
                    testo += altra + "\n";
                }
                const std::string v = valoriPossibili[static_cast<std::size_t>(caso(8))];
                testo += fmt::format("{} = {}\n", casoMaiuscole(fmt::format("chiave{}", k)), v);
                modello[{fmt::format("sez{}", s), fmt::format("chiave{}", k)}] = v;
            }
        }
        ScriviByte(file, testo);

        for (int op = 0; op < 40; ++op) {
            const std::string s = fmt::format("sez{}", caso(6));
            const std::string k = fmt::format("chiave{}", caso(8));
            const std::string v = valoriPossibili[static_cast<std::size_t>(caso(8))] + std::to_string(op);
            ASSERT_TRUE(ScriviImpostazione(ini, casoMaiuscole(s), casoMaiuscole(k), v));
            modello[{s, k}] = v;
        }

        for (int s = 0; s < 6; ++s)
            for (int k = 0; k < 8; ++k) {
                const auto chiave = std::make_pair(fmt::format("sez{}", s), fmt::format("chiave{}", k));
                const auto it = modello.find(chiave);
                EXPECT_EQ(LeggiImpostazione(ini, chiave.first, chiave.second, "<assente>"),
                          it == modello.end() ? "<assente>" : it->second)
                    << chiave.first << "/" << chiave.second << " giro " << giro;
            }

        std::vector<std::string> rimaste;
        std::istringstream righe(LeggiFile(file));
        for (std::string r; std::getline(righe, r);)
            if (r.starts_with(";") || r.starts_with("###")) rimaste.push_back(r);
        EXPECT_EQ(rimaste, altre) << "comments and garbage must survive in their order";
    }
}

TEST(Impostazioni, PredefinitiEPosizioni) {
    EXPECT_EQ(Predefinito("settings", "FINERICERCA", 10779), "10779");
    EXPECT_EQ(Predefinito("Forms", "MainLeft", 0, 4560), "4560");
    EXPECT_EQ(Predefinito("Restrizioni", "NumeriTordelli"), std::string(90, '1'));
    EXPECT_EQ(Predefinito("Options", "Ruota"), "") << "the section counts";

    // No key twice, every screen's place is a key of Forms, and the Lotto precursor screens
    // remember one place between them.
    for (const VoceImpostazione& v : TabellaImpostazioni())
        EXPECT_EQ(CercaImpostazione(v.sezione, v.chiave), &v) << v.chiave;
    for (std::string_view schermo : {"frmOpzioni", "frmCostruttore", "frmAnalisi", "frmPrecursoriSaruni",
                                     "frmPrecursoriTordelli10eLotto", "frm10Estrazioni10eLotto"}) {
        const auto chiavi = PosizioneFinestra(schermo);
        ASSERT_TRUE(chiavi) << schermo;
        EXPECT_EQ(Predefinito("Forms", chiavi->left), "1000") << schermo;
        EXPECT_EQ(Predefinito("Forms", chiavi->top), "1000") << schermo;
    }
    EXPECT_EQ(PosizioneFinestra("frmPrecursoriSaruni")->left, PosizioneFinestra("frmPrecursoriTordelli")->left);
    EXPECT_EQ(PosizioneFinestra("frmPrecursoriTordelliGruppi")->top, "PrecursoriTop");
}

TEST_F(FileIniTest, BooleaniEIndiciDiRicerca) {
    for (std::string_view vero : {"True", "vero", "y", "-1", " 7 "}) EXPECT_EQ(TestoBooleano(vero), true) << vero;
    for (std::string_view falso : {"FALSE", "Falso", "N", "0"}) EXPECT_EQ(TestoBooleano(falso), false) << falso;
    for (std::string_view altro : {"", "si", "1x"}) EXPECT_FALSE(TestoBooleano(altro)) << altro;
    ASSERT_TRUE(ScriviImpostazione(ini, "Settings", "Minimizza", "forse"));
    EXPECT_TRUE(LeggiBooleano(ini, "Settings", "Minimizza", true));

    // Unset, padded, unreadable and out of range: the archive's bounds stand in.
    const auto indici = LeggiIndiciRicerca(ini, 10779);
    EXPECT_EQ(std::pair(indici.IndiceInizio, indici.IndiceFine), std::pair(1, 10779));
    for (auto [inizio, fine, attesi] : {std::tuple{" 3914 ", "dieci", std::pair(3914, 10779)},
                                        std::tuple{"-5", "99999999999", std::pair(1, 10779)}}) {
        ASSERT_TRUE(ScriviImpostazione(ini, "Settings", "InizioRicerca", inizio));
        ASSERT_TRUE(ScriviImpostazione(ini, "Settings", "FineRicerca", fine));
        const auto i = LeggiIndiciRicerca(ini, 10779);
        EXPECT_EQ(std::pair(i.IndiceInizio, i.IndiceFine), attesi) << inizio << " " << fine;
    }
}

TEST(CaselleRuote, LettereECaselle) {
    // Every string of eleven letters survives load and rebuild.
    for (unsigned bit = 0; bit < (1u << 11); ++bit) {
        std::string lettere;
        for (int r = 0; r < 11; ++r) lettere += (bit >> r) & 1u ? 'Y' : 'N';
        const CaselleRuote c = CaricaRuoteConNz(lettere);
        EXPECT_EQ(LettereRuote(c), lettere);
        EXPECT_EQ(c[0], (bit & 0x3FFu) == 0x3FFu) << lettere;
        EXPECT_EQ(std::count(c.begin() + 1, c.begin() + 11, true), c[0] ? 0 : std::popcount(bit & 0x3FFu));
    }
    // Malformed texts: missing or other letters read as "N".
    EXPECT_EQ(CaricaRuoteConNz("yyyyyyyyyyy"), CaselleRuote{});
    EXPECT_EQ(LettereRuote(CaricaRuoteGioco("YxY")), "YNYNNNNNNNN");
    EXPECT_EQ(LettereRuote(CaricaRuote(std::string(200, 'Y'))), "YYYYYYYYYYY");
}

TEST(CaselleRuote, ClicSulleCaselle) {
    CaselleRuote c = CaricaRuoteConNz("NYNNNNNNNNY");  // Cagliari and Nazionale
    c[0] = true;
    EXPECT_EQ(SalvaRuoteConNz(c, 0), "YYYYYYYYYYY") << "box 0 clears 1..10, Nazionale stays free";
    EXPECT_FALSE(c[2]);
    c[11] = false;
    EXPECT_EQ(SalvaRuoteConNz(c, 11), "YYYYYYYYYYN");
    c[3] = true;
    EXPECT_EQ(SalvaRuoteGioco(c, 3), "NNYNNNNNNNN") << "a wheel clears box 0";
    c[3] = false;
    EXPECT_EQ(SalvaRuoteConNz(c, 3), "NNNNNNNNNNN");

    CaselleRuote una = CaricaRuote("YNNNNNNNNNN");
    EXPECT_EQ(SalvaRuote(una, 5), "NNNNYNNNNNN");
    EXPECT_EQ(std::count(una.begin(), una.end(), true), 1);
    EXPECT_EQ(SalvaRuote(una, -1), "NNNNYNNNNNN") << "an index outside the row changes nothing";
}

// Window places are single-precision numbers: the check before a write takes what the reader
// of places reads, and refuses what it would not.
TEST(Impostazioni, PosizioniConDecimali) {
    struct Caso {
        const char* valore;
        std::optional<double> letto;
    };
    const Caso casi[] = {
        {"1500", 1500},
        {"12.5", 12.5},
        {"12,5", 12.5},
        {" -300.25 ", -300.25},
        {"+7", 7},
        {"1.5E+03", 1500},
        {"9999999", 9999999},
        {"", std::nullopt},
        {"12abc", std::nullopt},
        {"1.2.3", std::nullopt},
        {"1,234.5", std::nullopt},
        {"abc", std::nullopt},
        {"nan", std::nullopt},
        {"inf", std::nullopt},
        {"- 5", std::nullopt},
        {"1e400", std::nullopt},
    };
    for (const Caso& c : casi) {
        SCOPED_TRACE(c.valore);
        EXPECT_EQ(NumeroPosizione(c.valore), c.letto);
        EXPECT_EQ(ControllaValoreImpostazione("Forms", "MainLeft", c.valore).vuoto(), c.letto.has_value());
    }
    EXPECT_FALSE(ControllaValoreImpostazione("Forms", "MainTop", "10000000").vuoto());
    EXPECT_FALSE(ControllaValoreImpostazione("Forms", "MainTop", "-1e7").vuoto());
}
