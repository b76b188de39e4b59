// Import of the public text archives: byte-identical records against the real update file
// and the real archive, the round trip through EsportaTesto, faulty lines named by number,
// the zip as players download it, SuperEnalotto lists in their common layouts.

#include <gtest/gtest.h>

#include <fmt/format.h>
#include <algorithm>
#include <fstream>
#include <sstream>

#include "archives/archivio.h"
#include "copia_reale.h"
#include "maintenance/aggiornamento.h"
#include "maintenance/importazione.h"
#include "support/archivi_reali.h"
#include "support/cartelle.h"

namespace gorgo::maintenance {
namespace {

namespace fs = std::filesystem;
using test::CartellaTemporanea;
using test::CreaZip;
using test::LeggiFile;

// An empty program folder with its Archivi/ and the three files, as the command line makes it.
archives::Archivio CartellaVuota(const fs::path& cartella) {
    fs::create_directories(cartella / "Archivi");
    return archives::Archivio::Apri(cartella, archives::ModoApertura::Scrittura);
}

std::vector<std::string> Linee(const std::string& testo) {
    std::vector<std::string> v;
    std::istringstream s(testo);
    for (std::string l; std::getline(s, l);) v.push_back(l);
    return v;
}

std::string Unisci(const std::vector<std::string>& v, const char* fine = "\n") {
    std::string s;
    for (const auto& l : v) s += l + fine;
    return s;
}

class Importazione : public test::CopiaReale {
protected:
    void SetUp() override {
        Prepara("storico-2026.txt");
        if (IsSkipped() || HasFatalFailure()) return;
        storico_ = LeggiFile(aggiornamenti_ / "storico-2026.txt");
        aggiornamento_ = LeggiFile(aggiornamenti_ / "AggiornamentoPz.bin");
    }

    std::string storico_, aggiornamento_;
};

TEST_F(Importazione, Storico2026DaGliStessiByteDelFileDiAggiornamento) {
    archives::Archivio a = Apri();
    const EsitoImportazione c = ControllaTesto(a, storico_, Gioco::Lotto);
    ASSERT_TRUE(c.riuscito) << c.messaggio.testo;
    EXPECT_EQ(c.estrazioni, 135);
    EXPECT_EQ(c.aggiunte, 134);
    AttesoIntatto();

    const EsitoImportazione e = ImportaTesto(a, storico_, Gioco::Lotto);
    ASSERT_TRUE(e.riuscito) << e.messaggio.testo;
    EXPECT_FALSE(e.creato);
    EXPECT_EQ(e.aggiunte, 134);
    EXPECT_EQ(e.anniAggiunti, 1);
    EXPECT_EQ(e.primaData, "30/12/2025");
    EXPECT_EQ(e.ultimaData, "21/08/2026");
    EXPECT_EQ(e.messaggio.testo, "Importazione archivio del Lotto al 21/08/2026 effettuata: 134 estrazioni aggiunte.");
    EXPECT_EQ(a.NumeroEstrazioni(), 10913);
    EXPECT_TRUE(archives::VerificaIntegrita(a).vuoto()) << archives::VerificaIntegrita(a).testo;
    // Record for record, the bytes of the update file (weekday digits and NumeroAnno included).
    EXPECT_EQ(LeggiFile(archivi() / "Estrazioni.ind"), estrazioni_ + aggiornamento_.substr(66));
    EXPECT_EQ(LeggiFile(archivi() / "anni.ind"), anni_ + "202610780  \r");

    // Again: nothing after the last draw.
    const EsitoImportazione di_nuovo = ImportaTesto(a, storico_, Gioco::Lotto);
    EXPECT_TRUE(di_nuovo.riuscito);
    EXPECT_EQ(di_nuovo.aggiunte, 0);
    EXPECT_EQ(di_nuovo.messaggio.testo, "Per il momento non ci sono aggiornamenti utili");
    EXPECT_EQ(a.NumeroEstrazioni(), 10913);
}

TEST_F(Importazione, EsportaTestoRiscriveStorico2026ByteAByte) {
    // The draws of storico-2026 in an archive of their own, written back.
    CartellaTemporanea vuota;
    archives::Archivio a = CartellaVuota(vuota.percorso());
    const EsitoImportazione e = ImportaTesto(a, storico_, Gioco::Lotto);
    ASSERT_TRUE(e.riuscito) << e.messaggio.testo;
    EXPECT_TRUE(e.creato);
    EXPECT_EQ(e.aggiunte, 135);
    EXPECT_EQ(e.anniAggiunti, 2);  // 2025 from its one draw, 2026
    EXPECT_EQ(e.messaggio.testo,
              "Archivio delle estrazioni del Lotto creato: 135 estrazioni dal 30/12/2025 al 21/08/2026.");
    EXPECT_TRUE(archives::VerificaIntegrita(a).vuoto()) << archives::VerificaIntegrita(a).testo;
    EXPECT_EQ(EsportaTesto(a), storico_);
    // In a whole archive updated by the file, the same lines from 30/12/2025.
    archives::Archivio b = Apri();
    ASSERT_TRUE(ApplicaAggiornamento(b, aggiornamento_, Gioco::Lotto, "f").riuscito);
    const std::string tutto = EsportaTesto(b);
    const size_t da = tutto.find("2025/12/30\tBA");
    ASSERT_NE(da, std::string::npos);
    EXPECT_EQ(tutto.substr(da), storico_);
}

TEST_F(Importazione, LArchivio2025EsportatoEReimportatoNellaCartellaVuotaEIdentico) {
    const archives::Archivio reale = Apri();
    const fs::path testo = tmp_ / "storico.txt";
    EsportaTesto(reale, testo);
    EXPECT_EQ(LeggiFile(testo).substr(0, 14), "1871/01/07\tFI\t");  // wheels before their first index left out
    CartellaTemporanea vuota;
    archives::Archivio a = CartellaVuota(vuota.percorso());
    const EsitoImportazione e = ImportaFile(a, testo, Gioco::Lotto);
    ASSERT_TRUE(e.riuscito) << e.messaggio.testo;
    EXPECT_EQ(e.aggiunte, 10779);
    EXPECT_EQ(e.anniAggiunti, 155);
    EXPECT_EQ(LeggiFile(vuota / "Archivi/Estrazioni.ind"), estrazioni_);
    EXPECT_EQ(LeggiFile(vuota / "Archivi/anni.ind"), anni_);
    EXPECT_EQ(fs::file_size(vuota / "Archivi/SuperEnalotto.ind"), 0u);

    // The same text as a zip, into another empty folder; and into the full archive: nothing new.
    CartellaTemporanea vuota2;
    archives::Archivio b = CartellaVuota(vuota2.percorso());
    const std::string zip = CreaZip(tmp_.percorso(), {{"storico.txt", LeggiFile(testo)}});
    ASSERT_TRUE(SembraZip(zip));
    const EsitoImportazione z = ImportaDati(b, zip, Gioco::Lotto);
    ASSERT_TRUE(z.riuscito) << z.messaggio.testo;
    EXPECT_EQ(LeggiFile(vuota2 / "Archivi/Estrazioni.ind"), estrazioni_);
    EXPECT_EQ(ImportaDati(a, zip, Gioco::Lotto).aggiunte, 0);
}

TEST_F(Importazione, LoZipComeLoScaricanoIGiocatori) {
    struct Caso {
        const char* nome;
        std::vector<std::pair<std::string, std::string>> voci;
    };
    const Caso casi[] = {
        {"un solo testo", {{"storico.txt", storico_}}},
        {"una cartella e un leggimi", {{"dati/", ""}, {"LEGGIMI.md", "leggimi"}, {"dati/storico.TXT", storico_}}},
        {"due testi: il primo", {{"storico.txt", storico_}, {"altro.txt", "x"}}},
        {"nessun testo: il primo file", {{"storico.dat", storico_}}},
    };
    for (const Caso& k : casi) {
        CartellaTemporanea c;
        test::CopiaArchiviReali(reale_, c.percorso());
        archives::Archivio a = archives::Archivio::Apri(c.percorso(), archives::ModoApertura::Scrittura);
        const std::string zip = CreaZip(tmp_.percorso(), k.voci);
        std::string errore;
        const auto testo = EstraiTestoZip(zip, &errore);
        ASSERT_TRUE(testo) << k.nome << ": " << errore;
        EXPECT_EQ(*testo, storico_) << k.nome;
        const EsitoImportazione e = ImportaDati(a, zip, Gioco::Lotto);
        EXPECT_TRUE(e.riuscito) << k.nome << ": " << e.messaggio.testo;
        EXPECT_EQ(e.aggiunte, 134) << k.nome;
        EXPECT_EQ(LeggiFile(c / "Archivi/Estrazioni.ind"), estrazioni_ + aggiornamento_.substr(66)) << k.nome;
    }
}

TEST_F(Importazione, UnoZipGuastoOVuotoERifiutatoSenzaScrivere) {
    archives::Archivio a = Apri();
    const std::string zip = CreaZip(tmp_.percorso(), {{"storico.txt", storico_}});
    // Damage inside the compressed data: the CRC or the inflater catches it.
    std::string guasto = zip;
    for (size_t i = 60; i < 400; i += 37) guasto[i] = static_cast<char>(guasto[i] ^ 0x5A);
    std::string errore;
    EXPECT_FALSE(EstraiTestoZip(guasto, &errore));
    EXPECT_FALSE(errore.empty());
    EXPECT_FALSE(ImportaDati(a, guasto, Gioco::Lotto).riuscito);
    // Cut short; empty zip; no zip at all.
    EXPECT_FALSE(ImportaDati(a, zip.substr(0, zip.size() / 2), Gioco::Lotto).riuscito);
    const std::string vuoto = CreaZip(tmp_.percorso(), {{"solo/", ""}});
    const EsitoImportazione e = ImportaDati(a, vuoto, Gioco::Lotto);
    EXPECT_FALSE(e.riuscito);
    EXPECT_EQ(e.messaggio.testo, "L'archivio zip non contiene alcun file.");
    EXPECT_FALSE(ImportaZip(a, storico_, Gioco::Lotto).riuscito);  // a text is no zip
    EXPECT_THROW(EsportaTesto(a, archivi() / "anni.ind"), archives::ErroreArchivio);
    EXPECT_EQ(EstraiTestoZip("PK\3\4 non proprio", &errore), std::nullopt);
    EXPECT_EQ(errore, "Il file non è un archivio zip valido.");
    AttesoIntatto();
}

// Every faulty line is named by its number, and nothing is written.
TEST_F(Importazione, UnaRigaErrataNeDiceIlNumero) {
    archives::Archivio a = Apri();
    const std::vector<std::string> linee = Linee(storico_);
    struct Caso {
        int riga;  // 1-based line to replace (or to insert before with `inserisci`)
        std::string testo;
        std::string atteso;  // a part of the message
        bool inserisci = false;
    };
    const Caso casi[] = {
        {30, "2026/01/03\tBA\t33\t13\t81\t4", "Riga 30: formato non riconosciuto"},
        {30, "2026/02/30\tBA\t33\t13\t81\t4\t8", "Riga 30: data non valida \"2026/02/30\""},
        {30, "03-01-2026x\tBA\t33\t13\t81\t4\t8", "Riga 30: data non valida"},
        {30, "2026/01/03\tXX\t33\t13\t81\t4\t8", "Riga 30: ruota sconosciuta \"XX\""},
        {30, "2026/01/03\tBA\t33\t13\t91\t4\t8", "Riga 30: il numero 91 è fuori dall'intervallo da 1 a 90."},
        {30, "2026/01/03\tBA\t33\t0\t81\t4\t8", "Riga 30: il numero 0 è fuori"},
        {30, "2026/01/03\tBA\t33\t1a\t81\t4\t8", "Riga 30: \"1a\" non è un numero."},
        {30, "2026/01/03\tBA\t33\t13\t33\t4\t8", "Riga 30: il numero 33 è ripetuto sulla ruota di Bari."},
        {31, "2026/01/03\tBA\t1\t2\t3\t4\t5", "Riga 31: la ruota di Bari del 03/01/2026 compare già alla riga 23.",
         true},
        {40, "2026/01/02\tRN\t1\t2\t3\t4\t5", "Riga 40: la data 02/01/2026 non è in ordine con quella della riga 39",
         true},
        {100, "2025/12/30\tBA\t1\t2\t3\t4\t5", "Riga 100: la data 30/12/2025 non è in ordine", true},
    };
    for (const Caso& k : casi) {
        std::vector<std::string> v = linee;
        if (k.inserisci)
            v.insert(v.begin() + (k.riga - 1), k.testo);
        else
            v[static_cast<size_t>(k.riga - 1)] = k.testo;
        const EsitoImportazione e = ImportaTesto(a, Unisci(v), Gioco::Lotto);
        EXPECT_FALSE(e.riuscito) << k.testo;
        EXPECT_EQ(e.riga, k.riga) << e.messaggio.testo;
        EXPECT_NE(e.messaggio.testo.find(k.atteso), std::string::npos) << e.messaggio.testo;
        EXPECT_EQ(e.messaggio.titolo, "Errore");
        EXPECT_EQ(e.aggiunte, 0);
    }
    // The last line broken: the whole file still refused.
    std::vector<std::string> v = linee;
    v.back() = "2026/08/21\tRN\t51\t89\t82\t70";
    const EsitoImportazione e = ImportaTesto(a, Unisci(v), Gioco::Lotto);
    EXPECT_EQ(e.riga, 1485);
    EXPECT_FALSE(ImportaTesto(a, "", Gioco::Lotto).riuscito);
    EXPECT_EQ(ImportaTesto(a, "\n\n", Gioco::Lotto).messaggio.testo, "Il file non contiene estrazioni.");
    AttesoIntatto();
}

TEST_F(Importazione, LaContinuitaEQuellaDeiFileDiAggiornamento) {
    archives::Archivio a = Apri();
    // From 02/01/2026: a gap after 30/12/2025.
    const std::vector<std::string> linee = Linee(storico_);
    const std::string lacuna = Unisci(std::vector<std::string>(linee.begin() + 11, linee.end()));
    const EsitoImportazione e = ImportaTesto(a, lacuna, Gioco::Lotto);
    EXPECT_FALSE(e.riuscito);
    EXPECT_EQ(e.messaggio.testo, "Discontinuità di memorizzazione - Aggiornamento impossibile");
    EXPECT_NE(e.dettaglio.find("02/01/2026"), std::string::npos);
    // Only the overlapping draw: nothing new.
    const std::string solo = Unisci(std::vector<std::string>(linee.begin(), linee.begin() + 11));
    const EsitoImportazione n = ImportaTesto(a, solo, Gioco::Lotto);
    EXPECT_TRUE(n.riuscito);
    EXPECT_EQ(n.aggiunte, 0);
    AttesoIntatto();
}

TEST_F(Importazione, FineRigaWindowsBomOrdineDiscendenteERuoteMancanti) {
    // CRLF, a byte order mark, newest first: the same records.
    std::vector<std::string> linee = Linee(storico_);
    std::stable_sort(linee.begin(), linee.end(),
                     [](const std::string& x, const std::string& y) { return x.substr(0, 10) > y.substr(0, 10); });
    {
        archives::Archivio a = Apri();
        const EsitoImportazione e = ImportaTesto(a, "\xEF\xBB\xBF" + Unisci(linee, "\r\n"), Gioco::Lotto);
        ASSERT_TRUE(e.riuscito) << e.messaggio.testo;
        EXPECT_EQ(LeggiFile(archivi() / "Estrazioni.ind"), estrazioni_ + aggiornamento_.substr(66));
    }
    // A wheel left out is five zero bytes; RO and NZ are read as Roma and Nazionale.
    CartellaTemporanea vuota;
    archives::Archivio b = CartellaVuota(vuota.percorso());
    const EsitoImportazione e = ImportaTesto(b,
                                             "2026/01/02 RO 1 2 3 4 5\n"
                                             "2026/01/02 NZ 6 7 8 9 10\n"
                                             "2026/01/03;BA;11;12;13;14;15\n",
                                             Gioco::Lotto);
    ASSERT_TRUE(e.riuscito) << e.messaggio.testo;
    const archives::RecordEstrazione r = b.LeggiEstrazione(1);
    EXPECT_EQ(r.dataTesto(), "02/01/2026");
    EXPECT_EQ(r.GiornoSettimana, '6');  // a Friday
    EXPECT_EQ(r.GiornoSettimanaCopia, '6');
    EXPECT_EQ(r.NumeroAnno, 1);
    EXPECT_EQ(r.Numero(8, 1), 1);
    EXPECT_EQ(r.Numero(11, 5), 10);
    for (int w = 1; w <= 10; ++w) {
        if (w == 8) continue;
        for (int p = 1; p <= 5; ++p) EXPECT_EQ(r.Numero(w, p), 0);
    }
    EXPECT_EQ(b.LeggiEstrazione(2).NumeroAnno, 2);
    EXPECT_EQ(b.NumeroAnni(), 1);
    EXPECT_EQ(EsportaTesto(b),
              "2026/01/02\tRM\t1\t2\t3\t4\t5\n2026/01/02\tRN\t6\t7\t8\t9\t10\n2026/01/03\tBA\t11\t12\t13\t14\t15\n");
}

TEST_F(Importazione, UnArchivioAnniSenzaEstrazioniNonSiCostruisce) {
    CartellaTemporanea vuota;
    archives::Archivio a = CartellaVuota(vuota.percorso());
    {
        std::ofstream f(vuota / "Archivi/anni.ind", std::ios::binary);
        f << "20251      \r";
    }
    a = archives::Archivio::Apri(vuota.percorso(), archives::ModoApertura::Scrittura);
    const EsitoImportazione e = ImportaTesto(a, storico_, Gioco::Lotto);
    EXPECT_FALSE(e.riuscito);
    EXPECT_EQ(fs::file_size(vuota / "Archivi/Estrazioni.ind"), 0u);
    // The repair drops the year that points past the draws; then the import builds.
    EXPECT_TRUE(RiparaArchivio(a).riparato());
    EXPECT_TRUE(ImportaTesto(a, storico_, Gioco::Lotto).riuscito);
    EXPECT_TRUE(archives::VerificaIntegrita(a).vuoto());
}

// SuperEnalotto lists written from the real archive in the layouts players exchange.
std::string ListaSuper(const std::vector<archives::RecordSuperEnalotto>& v, const std::string& formato,
                       bool discendente) {
    std::vector<std::string> righe;
    for (const auto& r : v) {
        const archives::Data d = r.data();
        std::string data = formato == "gg"  ? d.testo()
                           : formato == "-" ? fmt::format("{:04}-{:02}-{:02}", d.anno, d.mese, d.giorno)
                                            : fmt::format("{:04}/{:02}/{:02}", d.anno, d.mese, d.giorno);
        const std::string sep = formato == "-" ? ";" : "\t";
        std::string riga = data;
        for (int n : r.Sestina) riga.append(sep).append(std::to_string(n));
        riga.append(sep).append(std::to_string(r.Jolly)).append(sep);
        if (r.SuperStar) riga.append(std::to_string(r.SuperStar));
        righe.push_back(riga);
    }
    if (discendente) std::reverse(righe.begin(), righe.end());
    return Unisci(righe);
}

TEST_F(Importazione, SuperEnalottoNeiFormatiComuni) {
    const archives::Archivio reale = archives::Archivio::Apri(cartella());
    const auto tutte = reale.LeggiTuttiSuper();
    ASSERT_EQ(tutte.size(), 2823u);

    // The whole list into an empty folder: the same bytes, NumeroAnno and weekdays included.
    for (const auto& [formato, discendente] : {std::pair{"/", false}, std::pair{"gg", true}, std::pair{"-", true}}) {
        CartellaTemporanea vuota;
        archives::Archivio a = CartellaVuota(vuota.percorso());
        std::string lista = ListaSuper(tutte, formato, discendente);
        if (std::string(formato) == "-") lista = "Data;N1;N2;N3;N4;N5;N6;Jolly;SuperStar\n" + lista;
        const EsitoImportazione e = ImportaTesto(a, lista, Gioco::SuperEnalotto);
        ASSERT_TRUE(e.riuscito) << formato << ": " << e.messaggio.testo;
        EXPECT_TRUE(e.creato);
        EXPECT_EQ(e.aggiunte, 2823);
        EXPECT_EQ(LeggiFile(vuota / "Archivi/SuperEnalotto.ind"), super_) << formato;
        EXPECT_EQ(fs::file_size(vuota / "Archivi/Estrazioni.ind"), 0u);
    }

    // The last 30 into an archive that lacks the last 12.
    {
        std::ofstream f(archivi() / "SuperEnalotto.ind", std::ios::binary | std::ios::trunc);
        f.write(super_.data(), static_cast<std::streamsize>(super_.size() - 12 * 20));
    }
    archives::Archivio a = Apri();
    const std::vector<archives::RecordSuperEnalotto> coda(tutte.end() - 30, tutte.end());
    const EsitoImportazione e = ImportaTesto(a, ListaSuper(coda, "gg", true), Gioco::SuperEnalotto);
    ASSERT_TRUE(e.riuscito) << e.messaggio.testo;
    EXPECT_EQ(e.aggiunte, 12);
    EXPECT_EQ(LeggiFile(archivi() / "SuperEnalotto.ind"), super_);
    EXPECT_EQ(LeggiFile(archivi() / "Estrazioni.ind"), estrazioni_);
}

TEST_F(Importazione, SuperEnalottoRigheErrate) {
    CartellaTemporanea vuota;
    archives::Archivio a = CartellaVuota(vuota.percorso());
    const std::string buone = "Data\tnumeri\n2026/04/02\t1\t2\t3\t4\t5\t6\t7\t8\n2026/04/04\t11\t12\t13\t14\t15\t16\n";
    const std::pair<std::string, std::string> casi[] = {
        {"2026/04/07\t1\t2\t3\t4\t5\n", "Riga 4: formato non riconosciuto"},
        {"2026/04/07\t1\t2\t3\t4\t5\t0\n", "Riga 4: il numero 0 è fuori"},
        {"2026/04/07\t1\t2\t3\t4\t5\t5\n", "Riga 4: il numero 5 è ripetuto nella sestina."},
        {"2026/04/07\t1\t2\t3\t4\t5\t6\t91\n", "Riga 4: il numero 91 è fuori"},
        {"07/04/26\t1\t2\t3\t4\t5\t6\n", "Riga 4: data non valida \"07/04/26\""},
        {"2026/04/04\t1\t2\t3\t4\t5\t6\n", "Riga 4: l'estrazione del 04/04/2026 compare già alla riga 3."},
        {"2026/04/03\t1\t2\t3\t4\t5\t6\n", "Riga 4: la data 03/04/2026 non è in ordine"},
    };
    for (const auto& [riga, atteso] : casi) {
        const EsitoImportazione e =
            ImportaTesto(a, buone + riga + "2026/04/09\t1\t2\t3\t4\t5\t6\n", Gioco::SuperEnalotto);
        EXPECT_FALSE(e.riuscito) << riga;
        EXPECT_EQ(e.riga, 4) << e.messaggio.testo;
        EXPECT_NE(e.messaggio.testo.find(atteso), std::string::npos) << e.messaggio.testo;
    }
    EXPECT_EQ(fs::file_size(vuota / "Archivi/SuperEnalotto.ind"), 0u);
    // A contest number before the date, Jolly and SuperStar missing or empty.
    const EsitoImportazione e = ImportaTesto(
        a, "1;2026/04/02;1;2;3;4;5;6;7;8\n2;04/04/2026;11;12;13;14;15;16;;9\n3;2026-04-07;21;22;23;24;25;26\n",
        Gioco::SuperEnalotto);
    ASSERT_TRUE(e.riuscito) << e.messaggio.testo;
    const archives::RecordSuperEnalotto r2 = a.LeggiRecordSuper(2), r3 = a.LeggiRecordSuper(3);
    EXPECT_EQ(r2.Jolly, 0);
    EXPECT_EQ(r2.SuperStar, 9);
    EXPECT_EQ(r3.NumeroAnno, 3);
    EXPECT_EQ(r3.dataTesto(), "07/04/2026");
    EXPECT_EQ(r3.GiornoSettimana, '3');
    EXPECT_EQ(r3.Jolly + r3.SuperStar + r3.Riserva, 0);
}

TEST(ImportazioneCodici, RuoteECodiciPubblici) {
    const char* codici[] = {"BA", "CA", "FI", "GE", "MI", "NA", "PA", "RM", "TO", "VE", "RN"};
    for (int w = 1; w <= 11; ++w) {
        EXPECT_EQ(CodicePubblico(w), codici[w - 1]);
        EXPECT_EQ(RuotaDaCodice(codici[w - 1]), w);
    }
    EXPECT_EQ(RuotaDaCodice("ro"), 8);
    EXPECT_EQ(RuotaDaCodice("NZ"), 11);
    EXPECT_EQ(RuotaDaCodice("TU"), 0);
    EXPECT_EQ(CodicePubblico(0), "");
    EXPECT_EQ(CodicePubblico(12), "");
}

TEST(ImportazioneCodici, OltreDuecentocinquantacinqueEstrazioniInUnAnno) {
    std::string testo, fino255;
    archives::Data d{1, 1, 2030};
    for (int i = 0; i < 256; ++i, d = archives::Data::daGiorni(d.giorni() + 1)) {
        if (i == 255) fino255 = testo;
        testo += fmt::format("{:04}/{:02}/{:02}\tBA\t1\t2\t3\t4\t5\n", d.anno, d.mese, d.giorno);
    }
    const TestoLetto t = LeggiTesto(testo, Gioco::Lotto);
    EXPECT_FALSE(t.esito.riuscito);
    EXPECT_EQ(t.esito.riga, 256);
    const TestoLetto buono = LeggiTesto(fino255, Gioco::Lotto);
    ASSERT_EQ(buono.lotto.size(), 255u);
    EXPECT_EQ(buono.lotto.back().NumeroAnno, 255);
}

}  // namespace
}  // namespace gorgo::maintenance
