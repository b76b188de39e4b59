// Update files on copies of the real archives: the real update, every refusal, the export and
// its round trip, the crash repair, and byte-flipped files that must never corrupt the archive.

#include <gtest/gtest.h>

#include <cstring>
#include <fstream>
#include <random>

#include "archives/archivio.h"
#include "copia_reale.h"
#include "maintenance/aggiornamento.h"
#include "support/archivi_reali.h"
#include "support/cartelle.h"

namespace gorgo::maintenance {
namespace {

namespace fs = std::filesystem;
using test::CartellaTemporanea;
using test::LeggiFile;

void Scrivi(const fs::path& p, std::string_view s) {
    std::ofstream f(p, std::ios::binary | std::ios::trunc);
    f.write(s.data(), static_cast<std::streamsize>(s.size()));
}

void Accoda(const fs::path& p, std::string_view s) {
    std::ofstream f(p, std::ios::binary | std::ios::app);
    f.write(s.data(), static_cast<std::streamsize>(s.size()));
}

// A writable copy of the real 2025 archive and the real update file beside it.
class AggiornamentoReale : public test::CopiaReale {
protected:
    void SetUp() override {
        Prepara("AggiornamentoPz.bin");
        if (IsSkipped() || HasFatalFailure()) return;
        fileReale_ = aggiornamenti_ / "AggiornamentoPz.bin";
        aggiornamento_ = LeggiFile(fileReale_);
    }
    std::string Record(int i) const { return aggiornamento_.substr(static_cast<size_t>(i) * 66, 66); }
    std::string Records(int da, int a) const {
        return aggiornamento_.substr(static_cast<size_t>(da) * 66, static_cast<size_t>(a - da) * 66);
    }

    fs::path fileReale_;
    std::string aggiornamento_;
};

TEST_F(AggiornamentoReale, IlFileRealePortaLArchivioAl21Agosto2026) {
    ASSERT_EQ(aggiornamento_.size(), 135u * 66);
    archives::Archivio a = Apri();
    ASSERT_EQ(a.NumeroEstrazioni(), 10779);

    const ControlloAggiornamento c = ControllaAggiornamento(a, aggiornamento_, Gioco::Lotto, fileReale_.string());
    EXPECT_EQ(c.stato, StatoAggiornamento::Pronto);
    EXPECT_EQ(c.record, 135);
    EXPECT_EQ(c.primaData, "30/12/2025");
    EXPECT_EQ(c.ultimaData, "21/08/2026");
    EXPECT_EQ(c.ultimaArchivio, "30/12/2025");
    EXPECT_EQ(c.primaNuova, 1);
    EXPECT_EQ(c.nuove, 134);

    const EsitoAggiornamento e = ApplicaFileAggiornamento(a, fileReale_, Gioco::Lotto);
    ASSERT_TRUE(e.riuscito) << e.messaggio.testo << " " << e.controllo.dettaglio;
    EXPECT_EQ(e.messaggio.testo, "Aggiornamento archivi al 21/08/2026 effettuato");
    EXPECT_EQ(e.messaggio.titolo, "Aggiornamento archivi");
    EXPECT_EQ(e.messaggio.icona, archives::Icona::Informazione);
    EXPECT_EQ(e.aggiunte, 134);
    EXPECT_EQ(e.anniAggiunti, 1);
    EXPECT_EQ(e.ultimaData, "21/08/2026");
    EXPECT_EQ(e.ultimoNumeroAnno, 134);

    // The archive object follows the files.
    EXPECT_EQ(a.NumeroEstrazioni(), 10913);
    EXPECT_EQ(a.DataEstrazione(a.NumeroEstrazioni()), "21/08/2026");
    EXPECT_EQ(a.NumeroAnni(), 156);
    const archives::RecordAnno ultimoAnno = a.LeggiAnno(a.NumeroAnni());
    EXPECT_EQ(std::string(ultimoAnno.Anno, 4), "2026");
    EXPECT_EQ(std::string(ultimoAnno.PrimaEstrazione, 7), "10780  ");
    EXPECT_EQ(ultimoAnno.FineRiga, 13);
    EXPECT_TRUE(archives::VerificaIntegrita(a).vuoto()) << archives::VerificaIntegrita(a).testo;

    // Old records untouched, new ones the raw bytes of the file, anni.ind one record more.
    const std::string dopo = LeggiFile(archivi() / "Estrazioni.ind");
    ASSERT_EQ(dopo.size(), 10913u * 66);
    EXPECT_EQ(dopo.substr(0, estrazioni_.size()), estrazioni_);
    EXPECT_EQ(dopo.substr(estrazioni_.size()), Records(1, 135));
    EXPECT_EQ(LeggiFile(archivi() / "anni.ind"), anni_ + "202610780  \r");
    EXPECT_EQ(LeggiFile(archivi() / "SuperEnalotto.ind"), super_);

    // A fresh opening agrees.
    const archives::Archivio b = archives::Archivio::Apri(cartella());
    EXPECT_EQ(b.NumeroEstrazioni(), 10913);
    EXPECT_EQ(b.CercaIndice(archives::Data{2, 1, 2026}, false)->IndiceTrovato, 10780);

    // Again: nothing new, nothing written.
    const std::string estrazioniDopo = dopo, anniDopo = LeggiFile(archivi() / "anni.ind");
    const EsitoAggiornamento di_nuovo = ApplicaAggiornamento(a, aggiornamento_, Gioco::Lotto, "x");
    EXPECT_TRUE(di_nuovo.riuscito);
    EXPECT_EQ(di_nuovo.controllo.stato, StatoAggiornamento::NienteDiNuovo);
    EXPECT_EQ(di_nuovo.aggiunte, 0);
    EXPECT_EQ(di_nuovo.messaggio.testo, "Per il momento non ci sono aggiornamenti utili");
    EXPECT_EQ(LeggiFile(archivi() / "Estrazioni.ind"), estrazioniDopo);
    EXPECT_EQ(LeggiFile(archivi() / "anni.ind"), anniDopo);
}

TEST_F(AggiornamentoReale, UnFileDi65O67ByteECorrotto) {
    archives::Archivio a = Apri();
    for (size_t n : {size_t{65}, size_t{67}, size_t{0}, size_t{66 * 3 + 1}}) {
        const fs::path p = tmp_ / ("agg" + std::to_string(n) + ".bin");
        Scrivi(p, aggiornamento_.substr(0, n));
        const ControlloAggiornamento c = ControllaFileAggiornamento(a, p, Gioco::Lotto);
        EXPECT_EQ(c.stato, StatoAggiornamento::Corrotto) << n;
        EXPECT_EQ(c.messaggio.testo, p.string() + " corrotto o mancante !");
        EXPECT_EQ(c.messaggio.titolo, "Errore");
        EXPECT_EQ(c.messaggio.icona, archives::Icona::Stop);
        const EsitoAggiornamento e = ApplicaFileAggiornamento(a, p, Gioco::Lotto);
        EXPECT_FALSE(e.riuscito);
        EXPECT_EQ(e.messaggio.testo, p.string() + " corrotto o mancante !");
    }
    // A missing file has the same message.
    const fs::path manca = tmp_ / "manca.bin";
    EXPECT_EQ(ApplicaFileAggiornamento(a, manca, Gioco::Lotto).messaggio.testo,
              manca.string() + " corrotto o mancante !");
    AttesoIntatto();
}

TEST_F(AggiornamentoReale, UnFileCheNonSiSovrapponeERifiutato) {
    archives::Archivio a = Apri();
    // From 02/01/2026: the day after... the archive's last draw is 30/12/2025, and the file
    // must hold at least that draw.
    const std::string lacuna = Records(1, 135);
    const ControlloAggiornamento c = ControllaAggiornamento(a, lacuna, Gioco::Lotto, "lacuna.bin");
    EXPECT_EQ(c.stato, StatoAggiornamento::Discontinuo);
    EXPECT_EQ(c.messaggio.testo, "Discontinuità di memorizzazione - Aggiornamento impossibile");
    EXPECT_EQ(c.messaggio.titolo, "Aggiornamento archivi");
    EXPECT_EQ(c.messaggio.icona, archives::Icona::Stop);
    EXPECT_EQ(c.ultimaData, "21/08/2026");
    const EsitoAggiornamento e = ApplicaAggiornamento(a, lacuna, Gioco::Lotto, "lacuna.bin");
    EXPECT_FALSE(e.riuscito);
    EXPECT_EQ(e.aggiunte, 0);
    EXPECT_EQ(e.messaggio.testo, c.messaggio.testo);
    AttesoIntatto();
}

TEST_F(AggiornamentoReale, UnFileCheFinisceAllUltimaEstrazioneNonAggiungeNulla) {
    archives::Archivio a = Apri();
    // Only the overlapping draw; then an old stretch of the archive itself.
    for (const std::string& dati : {Record(0), estrazioni_.substr(9000 * 66, 500 * 66), estrazioni_}) {
        const ControlloAggiornamento c = ControllaAggiornamento(a, dati, Gioco::Lotto, "f.bin");
        EXPECT_EQ(c.stato, StatoAggiornamento::NienteDiNuovo);
        EXPECT_TRUE(c.messaggio.vuoto());  // the screen of files says nothing, cmdAggiorna stays off
        EXPECT_EQ(c.nuove, 0);
        const EsitoAggiornamento e = ApplicaAggiornamento(a, dati, Gioco::Lotto, "f.bin");
        EXPECT_TRUE(e.riuscito);
        EXPECT_EQ(e.aggiunte, 0);
        EXPECT_EQ(e.messaggio.testo, "Per il momento non ci sono aggiornamenti utili");
    }
    EXPECT_EQ(ControllaAggiornamento(a, Record(0), Gioco::Lotto, "f.bin").ultimaData, "30/12/2025");
    AttesoIntatto();
}

TEST_F(AggiornamentoReale, UnaSovrapposizioneQualsiasiAggiungeSoloLeNuove) {
    archives::Archivio a = Apri();
    // The last 300 draws of the archive followed by the new ones.
    const std::string dati = estrazioni_.substr(estrazioni_.size() - 300 * 66) + Records(1, 135);
    const EsitoAggiornamento e = ApplicaAggiornamento(a, dati, Gioco::Lotto, "f.bin");
    ASSERT_TRUE(e.riuscito) << e.controllo.dettaglio;
    EXPECT_EQ(e.controllo.primaNuova, 300);
    EXPECT_EQ(e.aggiunte, 134);
    EXPECT_EQ(LeggiFile(archivi() / "Estrazioni.ind"), estrazioni_ + Records(1, 135));
}

// Damaged records that the length and the two end dates do not reveal.
TEST_F(AggiornamentoReale, RecordCheGuasterebberoLArchivioRendonoIlFileCorrotto) {
    archives::Archivio a = Apri();
    struct Caso {
        const char* nome;
        size_t offset;
        char valore;
    };
    const Caso casi[] = {
        {"data di un record intermedio non valida", 40 * 66 + 3, 'x'},
        {"data fuori ordine", 40 * 66 + 9, '1'},                 // 2026 -> 2016
        {"NumeroAnno 1 a metà anno", 40 * 66 + 2, 1},            // a second 2026 in anni.ind
        {"NumeroAnno del primo del 2026 non 1", 1 * 66 + 2, 7},  // 2026 left out of anni.ind
        {"NumeroAnno saltato", 60 * 66 + 2, 100},
        {"giorno della settimana", 50 * 66, '1'},
        {"copia del giorno della settimana", 50 * 66 + 1, '1'},
        {"numero oltre 90", 70 * 66 + 30, 91},
        {"numero 255", 134 * 66 + 65, static_cast<char>(255)},
    };
    for (const Caso& k : casi) {
        std::string dati = aggiornamento_;
        dati[k.offset] = k.valore;
        const ControlloAggiornamento c = ControllaAggiornamento(a, dati, Gioco::Lotto, "f.bin");
        EXPECT_EQ(c.stato, StatoAggiornamento::Corrotto) << k.nome;
        EXPECT_EQ(c.messaggio.testo, "f.bin corrotto o mancante !") << k.nome;
        EXPECT_FALSE(c.dettaglio.empty()) << k.nome;
        EXPECT_FALSE(ApplicaAggiornamento(a, dati, Gioco::Lotto, "f.bin").riuscito) << k.nome;
    }
    // The first and last dates, as the system checks them.
    std::string dati = aggiornamento_;
    dati[134 * 66 + 5] = '3';  // 21/08 -> 21/38
    EXPECT_NE(ControllaAggiornamento(a, dati, Gioco::Lotto, "f.bin").dettaglio.find("ultimo"), std::string::npos);
    dati = aggiornamento_;
    dati[3] = '4';  // 40/12/2025
    EXPECT_NE(ControllaAggiornamento(a, dati, Gioco::Lotto, "f.bin").dettaglio.find("primo"), std::string::npos);
    // A changed draw of the overlap is not compared with the archive (the system's rule).
    dati = aggiornamento_;
    dati[20] = 1;
    EXPECT_EQ(ControllaAggiornamento(a, dati, Gioco::Lotto, "f.bin").stato, StatoAggiornamento::Pronto);
    AttesoIntatto();
}

TEST_F(AggiornamentoReale, UnArchivioVuotoNonSiAggiorna) {
    Scrivi(archivi() / "Estrazioni.ind", "");
    Scrivi(archivi() / "anni.ind", "");
    archives::Archivio a = Apri();
    const EsitoAggiornamento e = ApplicaAggiornamento(a, aggiornamento_, Gioco::Lotto, "f.bin");
    EXPECT_FALSE(e.riuscito);
    EXPECT_EQ(e.controllo.stato, StatoAggiornamento::ArchivioVuoto);
    EXPECT_EQ(fs::file_size(archivi() / "Estrazioni.ind"), 0u);
}

TEST_F(AggiornamentoReale, SuperEnalottoARecordDa20Byte) {
    // The last 40 draws as an update file, on an archive that lacks the last 15.
    const std::string file = super_.substr(super_.size() - 40 * 20);
    Scrivi(archivi() / "SuperEnalotto.ind", super_.substr(0, super_.size() - 15 * 20));
    archives::Archivio a = Apri();
    const int32_t prima = a.NumeroEstrazioniSuper();
    const EsitoAggiornamento e = ApplicaAggiornamento(a, file, Gioco::SuperEnalotto, "s.bin");
    ASSERT_TRUE(e.riuscito) << e.messaggio.testo << " " << e.controllo.dettaglio;
    EXPECT_EQ(e.aggiunte, 15);
    EXPECT_EQ(a.NumeroEstrazioniSuper(), prima + 15);
    EXPECT_EQ(e.messaggio.testo, "Aggiornamento archivi Superenalotto al " +
                                     a.DataEstrazione(a.NumeroEstrazioniSuper(), archives::ArchivioSuper) +
                                     " effettuato");
    EXPECT_EQ(LeggiFile(archivi() / "SuperEnalotto.ind"), super_);
    EXPECT_EQ(LeggiFile(archivi() / "Estrazioni.ind"), estrazioni_);
    EXPECT_EQ(LeggiFile(archivi() / "anni.ind"), anni_);

    // 19 and 21 bytes; a Lotto file read as SuperEnalotto; a spare byte set.
    for (size_t n : {size_t{19}, size_t{21}}) {
        const auto c = ControllaAggiornamento(a, file.substr(0, n), Gioco::SuperEnalotto, "s.bin");
        EXPECT_EQ(c.messaggio.testo, "s.bin corrotto o mancante !");
    }
    EXPECT_EQ(ControllaAggiornamento(a, aggiornamento_.substr(0, 660), Gioco::SuperEnalotto, "s.bin").stato,
              StatoAggiornamento::Corrotto);
    // A draw after the last, whole but for its spare byte.
    archives::RecordSuperEnalotto ultima = a.LeggiRecordSuper(a.NumeroEstrazioniSuper()), nuova = ultima;
    ASSERT_EQ(ultima.dataTesto(), "07/04/2026");
    nuova.impostaData(archives::Data{9, 4, 2026});
    nuova.NumeroAnno = static_cast<uint8_t>(ultima.NumeroAnno + 1);
    auto file2 = [&] {
        std::string s(reinterpret_cast<const char*>(&ultima), 20);
        return s.append(reinterpret_cast<const char*>(&nuova), 20);
    };
    EXPECT_EQ(ControllaAggiornamento(a, file2(), Gioco::SuperEnalotto, "s.bin").stato, StatoAggiornamento::Pronto);
    nuova.Riserva = 1;
    EXPECT_EQ(ControllaAggiornamento(a, file2(), Gioco::SuperEnalotto, "s.bin").stato, StatoAggiornamento::Corrotto);
    nuova.Riserva = 0;
    nuova.Sestina[2] = 91;
    EXPECT_EQ(ControllaAggiornamento(a, file2(), Gioco::SuperEnalotto, "s.bin").stato, StatoAggiornamento::Corrotto);
    nuova.Sestina[2] = 33;
    nuova.NumeroAnno = 1;
    EXPECT_EQ(ControllaAggiornamento(a, file2(), Gioco::SuperEnalotto, "s.bin").stato, StatoAggiornamento::Corrotto);
    EXPECT_EQ(ControllaAggiornamento(a, super_.substr(super_.size() - 20), Gioco::SuperEnalotto, "s.bin").stato,
              StatoAggiornamento::NienteDiNuovo);
    EXPECT_EQ(LeggiFile(archivi() / "SuperEnalotto.ind"), super_);
}

// The program dies after the draws and before anni.ind: the next opening puts it right.
TEST_F(AggiornamentoReale, UnaCadutaTraLeEstrazioniEAnniSiRiparaAllaRiapertura) {
    Accoda(archivi() / "Estrazioni.ind", Records(1, 135));
    {
        const archives::Archivio a = archives::Archivio::Apri(cartella());
        EXPECT_FALSE(archives::VerificaIntegrita(a).vuoto());
    }
    archives::Archivio a = Apri();
    const EsitoRiparazione r = RiparaArchivio(a);
    EXPECT_TRUE(r.riparato());
    EXPECT_EQ(r.anniAggiunti, 1);
    EXPECT_FALSE(r.descrizione.empty());
    EXPECT_TRUE(archives::VerificaIntegrita(a).vuoto()) << archives::VerificaIntegrita(a).testo;
    EXPECT_EQ(LeggiFile(archivi() / "anni.ind"), anni_ + "202610780  \r");
    EXPECT_EQ(a.NumeroAnni(), 156);
    // Nothing more to do the second time; the update then finds nothing new.
    EXPECT_FALSE(RiparaArchivio(a).riparato());
    EXPECT_EQ(ApplicaAggiornamento(a, aggiornamento_, Gioco::Lotto, "f").aggiunte, 0);
}

TEST_F(AggiornamentoReale, UnaCadutaAMetaRecordLasciaLeEstrazioniIntereERipara) {
    // Two whole new draws and half of the third; then the same on the SuperEnalotto file.
    Accoda(archivi() / "Estrazioni.ind", Records(1, 3) + Record(3).substr(0, 33));
    Accoda(archivi() / "SuperEnalotto.ind", std::string(7, '\0'));
    Accoda(archivi() / "anni.ind", "2026");
    const EsitoRiparazione r = RiparaCartellaArchivi(archivi());
    EXPECT_EQ(r.byteTroncatiEstrazioni, 33u);
    EXPECT_EQ(r.byteTroncatiSuper, 7u);
    EXPECT_EQ(r.byteTroncatiAnni, 4u);
    EXPECT_EQ(r.anniAggiunti, 1);
    archives::Archivio a = Apri();
    EXPECT_EQ(a.NumeroEstrazioni(), 10781);
    EXPECT_TRUE(archives::VerificaIntegrita(a).vuoto()) << archives::VerificaIntegrita(a).testo;
    // The update completes the rest.
    const EsitoAggiornamento e = ApplicaAggiornamento(a, aggiornamento_, Gioco::Lotto, "f");
    EXPECT_EQ(e.aggiunte, 132);
    EXPECT_EQ(e.anniAggiunti, 0);
    EXPECT_EQ(LeggiFile(archivi() / "Estrazioni.ind"), estrazioni_ + Records(1, 135));
    EXPECT_EQ(LeggiFile(archivi() / "anni.ind"), anni_ + "202610780  \r");
}

TEST_F(AggiornamentoReale, AnniOltreLeEstrazioniVengonoTolti) {
    Accoda(archivi() / "anni.ind", "202610780  \r");
    archives::Archivio a = Apri();
    EXPECT_FALSE(archives::VerificaIntegrita(a).vuoto());
    const EsitoRiparazione r = RiparaArchivio(a);
    EXPECT_EQ(r.byteTroncatiAnni, 12u);
    EXPECT_EQ(r.anniAggiunti, 0);
    AttesoIntatto();
}

TEST_F(AggiornamentoReale, UnArchivioInteroNonSiTocca) {
    archives::Archivio a = Apri();
    const EsitoRiparazione r = RiparaArchivio(a);
    EXPECT_FALSE(r.riparato());
    EXPECT_TRUE(r.descrizione.empty());
    AttesoIntatto();
    // Only the tail is rebuilt: an index wrong in the middle is left to the integrity check.
    std::string anni = anni_;
    anni[12 * 50 + 5] = '9';
    Scrivi(archivi() / "anni.ind", anni);
    EXPECT_FALSE(RiparaCartellaArchivi(archivi()).riparato());
    EXPECT_EQ(LeggiFile(archivi() / "anni.ind"), anni);
}

TEST_F(AggiornamentoReale, UnRecordParzialeInCodaVieneSovrascrittoDallAggiornamento) {
    Accoda(archivi() / "Estrazioni.ind", std::string(20, 'z'));
    archives::Archivio a = Apri();
    EXPECT_EQ(a.NumeroEstrazioni(), 10779);
    const EsitoAggiornamento e = ApplicaAggiornamento(a, aggiornamento_, Gioco::Lotto, "f");
    ASSERT_TRUE(e.riuscito);
    EXPECT_EQ(LeggiFile(archivi() / "Estrazioni.ind"), estrazioni_ + Records(1, 135));
    EXPECT_TRUE(archives::VerificaIntegrita(a).vuoto());
}

// The invariants of the draws after `da` that the integrity check does not look at: weekday
// digits, NumeroAnno counting within the year, numbers within 0..90.
std::string DifettoEstensione(const archives::Archivio& a, int32_t da) {
    for (int32_t i = da + 1; i <= a.NumeroEstrazioni(); ++i) {
        const archives::RecordEstrazione p = a.LeggiEstrazione(i - 1), r = a.LeggiEstrazione(i);
        const char giorno = static_cast<char>('0' + r.data().giornoSettimana());
        if (r.GiornoSettimana != giorno || r.GiornoSettimanaCopia != giorno) return "giorno " + std::to_string(i);
        const int atteso = p.data().anno == r.data().anno ? p.NumeroAnno + 1 : 1;
        if (r.NumeroAnno != atteso) return "NumeroAnno " + std::to_string(i);
        for (int w = 1; w <= 11; ++w)
            for (int k = 1; k <= 5; ++k)
                if (r.Numero(w, k) > 90) return "numero " + std::to_string(i);
    }
    return {};
}

// 1,000 update files with random damage: each either changes nothing or appends exactly the
// new draws of the file it was given, and the archive stays whole.
TEST_F(AggiornamentoReale, MilleFileGuastiNonCorrompononoLArchivio) {
    archives::Archivio a = Apri();
    std::mt19937_64 caso(20260821);
    int accettati = 0, rifiutati = 0;
    for (int prova = 0; prova < 1000; ++prova) {
        std::string dati = aggiornamento_;
        const int guasti = 1 + static_cast<int>(caso() % 4);
        for (int g = 0; g < guasti; ++g) {
            // Half of the damage on the 11 bytes of weekday, NumeroAnno and date of a record.
            const size_t record = caso() % 135;
            const size_t pos = record * 66 + (caso() % 2 ? caso() % 11 : caso() % 66);
            if (caso() % 2)
                dati[pos] = static_cast<char>(dati[pos] ^ (1u << (caso() % 8)));  // one bit
            else
                dati[pos] = static_cast<char>(caso() % 256);  // any byte
        }
        switch (caso() % 10) {  // now and then a length damaged too
            case 0: dati.resize(dati.size() - 1 - caso() % 100); break;
            case 1: dati.append(1 + caso() % 100, static_cast<char>(caso() % 256)); break;
            case 2: dati = dati.substr((caso() % 135) * 66); break;
            default: break;
        }
        const EsitoAggiornamento e = ApplicaAggiornamento(a, dati, Gioco::Lotto, "guasto.bin");
        const std::string estrazioni = LeggiFile(archivi() / "Estrazioni.ind");
        const std::string anni = LeggiFile(archivi() / "anni.ind");
        ASSERT_TRUE(archives::VerificaIntegrita(a).vuoto())
            << "prova " << prova << ": " << archives::VerificaIntegrita(a).testo;
        ASSERT_EQ(estrazioni.substr(0, estrazioni_.size()), estrazioni_) << "prova " << prova;
        ASSERT_EQ(anni.substr(0, anni_.size()), anni_) << "prova " << prova;
        if (e.aggiunte == 0) {
            ASSERT_EQ(estrazioni.size(), estrazioni_.size()) << "prova " << prova;
            ASSERT_EQ(anni.size(), anni_.size()) << "prova " << prova;
            ++rifiutati;
            continue;
        }
        ++accettati;
        // A valid extension: exactly the file's draws after the archive's last, as they were.
        ASSERT_EQ(estrazioni.substr(estrazioni_.size()), dati.substr(static_cast<size_t>(e.controllo.primaNuova) * 66))
            << "prova " << prova;
        ASSERT_EQ(a.NumeroEstrazioni(), 10779 + e.aggiunte);
        ASSERT_EQ(DifettoEstensione(a, 10779), "") << "prova " << prova;
        // Back to the copy for the next file.
        std::filesystem::resize_file(archivi() / "Estrazioni.ind", estrazioni_.size());
        std::filesystem::resize_file(archivi() / "anni.ind", anni_.size());
        a = Apri();
    }
    EXPECT_GT(accettati, 25);
    EXPECT_GT(rifiutati, 500);
    AttesoIntatto();
}

class Esportazione : public AggiornamentoReale {};

TEST_F(Esportazione, DalProgressivo7773AllaFine) {
    archives::Archivio a = Apri();
    const fs::path file = tmp_ / "esporta.bin";
    Scrivi(file, std::string(2000000, 'x'));  // an export replaces what was there
    const EsitoEsportazione e = EsportaAggiornamento(a, file);
    ASSERT_TRUE(e.riuscito);
    EXPECT_EQ(e.esportate, 10779 - 7772);
    EXPECT_EQ(e.primaData, a.DataEstrazione(7773));
    EXPECT_EQ(e.ultimaData, "30/12/2025");
    EXPECT_EQ(e.messaggio.testo, "Esportazione archivio " + file.string() + " al 30/12/2025 effettuata");
    EXPECT_EQ(e.messaggio.titolo, "Esportazione archivi");
    EXPECT_EQ(e.messaggio.icona, archives::Icona::Informazione);
    EXPECT_EQ(LeggiFile(file), estrazioni_.substr(7772 * 66));
    // No temporary file left beside it.
    int file_in_cartella = 0;
    for ([[maybe_unused]] const auto& f : fs::directory_iterator(tmp_.percorso())) ++file_in_cartella;
    EXPECT_EQ(file_in_cartella, 2);  // gorgo/ and esporta.bin
    AttesoIntatto();
}

TEST_F(Esportazione, UnArchivioPiuCortoDi7773ScriveUnFileVuoto) {
    CartellaTemporanea demo;
    test::CreaArchivioDemo(demo.percorso(),
                           archives::ParametriDemo{1871, archives::Data{31, 12, 1920}, archives::Data{3, 1, 2009}});
    const archives::Archivio a = archives::Archivio::Apri(demo.percorso());
    ASSERT_LT(a.NumeroEstrazioni(), 7773);
    const fs::path file = demo / "vuoto.bin";
    const EsitoEsportazione e = EsportaAggiornamento(a, file);
    EXPECT_TRUE(e.riuscito);
    EXPECT_EQ(e.esportate, 0);
    EXPECT_EQ(e.messaggio.testo, "Esportazione archivio " + file.string() + " al  effettuata");
    EXPECT_TRUE(fs::exists(file));
    EXPECT_EQ(fs::file_size(file), 0u);
}

TEST_F(Esportazione, EsportazioneEReimportazioneSonoLoStessoArchivio) {
    // Update the copy, export it from the overlapping draw: the export is the update file.
    archives::Archivio a = Apri();
    ASSERT_TRUE(ApplicaAggiornamento(a, aggiornamento_, Gioco::Lotto, "f").riuscito);
    const fs::path file = tmp_ / "giro.alb";
    const EsitoEsportazione e = EsportaAggiornamento(a, file, 10779);
    EXPECT_EQ(e.esportate, 135);
    EXPECT_EQ(LeggiFile(file), aggiornamento_);

    // Applied to another copy of the 2025 archive it gives the same files.
    CartellaTemporanea altra;
    test::CopiaArchiviReali(reale_, altra.percorso());
    archives::Archivio b = archives::Archivio::Apri(altra.percorso(), archives::ModoApertura::Scrittura);
    EXPECT_EQ(ApplicaFileAggiornamento(b, file, Gioco::Lotto).aggiunte, 134);
    EXPECT_EQ(LeggiFile(altra / "Archivi/Estrazioni.ind"), LeggiFile(archivi() / "Estrazioni.ind"));
    EXPECT_EQ(LeggiFile(altra / "Archivi/anni.ind"), LeggiFile(archivi() / "anni.ind"));

    // The whole archive exported from 1 rebuilds nothing new but passes every check.
    const fs::path tutto = tmp_ / "tutto.bin";
    EsportaAggiornamento(a, tutto, 0);
    EXPECT_EQ(LeggiFile(tutto), LeggiFile(archivi() / "Estrazioni.ind"));
    EXPECT_EQ(ControllaFileAggiornamento(b, tutto, Gioco::Lotto).stato, StatoAggiornamento::NienteDiNuovo);
}

TEST_F(Esportazione, UnaCartellaCheNonEsisteDaErroreENonLasciaNulla) {
    const archives::Archivio a = archives::Archivio::Apri(cartella());
    EXPECT_THROW(EsportaAggiornamento(a, tmp_ / "manca" / "x.bin"), archives::ErroreArchivio);
    EXPECT_FALSE(fs::exists(tmp_ / "manca"));
}

TEST_F(Esportazione, NonSostituisceIFileDellArchivio) {
    const archives::Archivio a = archives::Archivio::Apri(cartella());
    for (const char* nome : {"Estrazioni.ind", "anni.ind", "SuperEnalotto.ind"}) {
        // Also by another spelling of the same path.
        const fs::path file = cartella() / "Archivi" / ".." / "Archivi" / nome;
        const EsitoEsportazione e = EsportaAggiornamento(a, file);
        EXPECT_FALSE(e.riuscito);
        EXPECT_EQ(e.messaggio.testo,
                  "Il file " + file.string() + " è un archivio del programma: scegliere un altro nome.");
    }
    EXPECT_FALSE(FileDellArchivio(a, tmp_ / "altro.bin"));
    AttesoIntatto();
}

}  // namespace
}  // namespace gorgo::maintenance
