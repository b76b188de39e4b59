// The archive files: layouts, reading, date to index, writers, integrity.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <fstream>

#include "archives/archivio.h"
#include "support/archivi_reali.h"
#include "support/cartelle.h"

namespace gorgo::archives {
namespace {

namespace fs = std::filesystem;
using test::CartellaTemporanea;

// Literal date-to-index walk over a plain list, straight from the rule: equal -> that
// index; date earlier than the record -> that index, or the one before with precedente.
std::optional<int32_t> CercaLetterale(const std::vector<RecordEstrazione>& v, const Data& d, bool precedente) {
    for (size_t i = 0; i < v.size(); ++i) {
        const Data di = v[i].data();
        if (di == d) return static_cast<int32_t>(i + 1);
        if (d < di) return static_cast<int32_t>(precedente ? i : i + 1);
    }
    return std::nullopt;
}

TEST(Record, LayoutSuDisco) {
    RecordEstrazione r;
    r.impostaData(Data{7, 1, 1871});
    r.NumeroAnno = 1;
    r.Ruota[2][0] = 15;   // Firenze, first extract
    r.Ruota[10][4] = 90;  // Nazionale, fifth extract
    const auto* b = reinterpret_cast<const unsigned char*>(&r);
    EXPECT_EQ(std::string(reinterpret_cast<const char*>(b), 11), std::string("77\x01") + "07011871");
    EXPECT_EQ(b[11 + 2 * 5 + 0], 15);
    EXPECT_EQ(b[11 + 10 * 5 + 4], 90);
    EXPECT_EQ(r.Numero(3, 1), 15);
    EXPECT_EQ(r.dataTesto(), "07/01/1871");

    const RecordAnno a = RecordAnno::Crea(2026, 10780);
    EXPECT_EQ(std::string(reinterpret_cast<const char*>(&a), 12), "202610780  \r");
    EXPECT_EQ(a.anno(), 2026);
    EXPECT_EQ(a.primaEstrazione(), 10780);

    RecordSuperEnalotto s;
    s.impostaData(Data{7, 4, 2026});  // a Tuesday
    const auto* sb = reinterpret_cast<const unsigned char*>(&s);
    EXPECT_EQ(std::string(reinterpret_cast<const char*>(sb + 1), 8), "07042026");
    EXPECT_EQ(sb[17], '3');
    EXPECT_EQ(sb[18], '3');
    EXPECT_EQ(sb[19], 0);
}

class ArchivioDemo : public ::testing::Test {
protected:
    static void SetUpTestSuite() {
        cartella_ = new CartellaTemporanea;
        test::CreaArchivioDemo(cartella_->percorso());
    }
    static void TearDownTestSuite() { delete cartella_; }
    static CartellaTemporanea* cartella_;
};
CartellaTemporanea* ArchivioDemo::cartella_ = nullptr;

TEST_F(ArchivioDemo, FormaDelCalendarioERuote) {
    const Archivio a = Archivio::Apri(cartella_->percorso());
    ASSERT_GT(a.NumeroEstrazioni(), 8000);
    EXPECT_TRUE(ControllaPresenzaArchivi(a).vuoto());
    EXPECT_TRUE(VerificaIntegrita(a).vuoto()) << VerificaIntegrita(a).testo;
    const auto storia = a.Storia();
    EXPECT_EQ(a.DataEstrazione(1), "07/01/1871");
    EXPECT_EQ(a.DataEstrazione(a.NumeroEstrazioni()), "30/12/2025");
    // Each wheel is empty exactly below its first index.
    for (int w = 1; w <= NumeroRuote; ++w) {
        const int32_t prima = w == RuotaNazionale ? PrimaEstrazioneNazionale : PrimaEstrazioneRuota[w];
        for (int32_t i : {prima - 1, prima}) {
            if (i < 1) continue;
            const bool vuota = (*storia)[i].Numero(w, 1) == 0 && (*storia)[i].Numero(w, 5) == 0;
            EXPECT_EQ(vuota, i < prima) << "ruota " << w << " indice " << i;
        }
    }
    for (int32_t i = 1; i <= storia->NumeroEstrazioni(); ++i) {
        const RecordEstrazione& r = (*storia)[i];
        ASSERT_EQ(r.giornoSettimana(), r.data().giornoSettimana()) << i;
        ASSERT_EQ(r.GiornoSettimanaCopia, r.GiornoSettimana);
    }
}

TEST_F(ArchivioDemo, DataEstrazioneSiFermaAgliEstremi) {
    const Archivio a = Archivio::Apri(cartella_->percorso());
    EXPECT_EQ(a.DataEstrazione(0), a.DataEstrazione(1));
    EXPECT_EQ(a.DataEstrazione(-5), a.DataEstrazione(1));
    EXPECT_EQ(a.DataEstrazione(a.NumeroEstrazioni() + 100), a.DataEstrazione(a.NumeroEstrazioni()));
    EXPECT_EQ(a.DataEstrazione(0, ArchivioSuper), a.DataEstrazione(1, ArchivioSuper));
    EXPECT_EQ(a.DataEstrazione(1 << 30, ArchivioSuper), a.DataEstrazione(a.NumeroEstrazioniSuper(), ArchivioSuper));
    EXPECT_EQ(a.Storia()->DataEstrazione(-1), "07/01/1871");
}

// Every day from before the first draw to after the last, both ways, on the file walk,
// on the in-memory search and on the literal reference.
TEST_F(ArchivioDemo, CercaIndiceOgniGiorno) {
    const Archivio a = Archivio::Apri(cartella_->percorso());
    const auto storia = a.Storia();
    const std::vector<RecordEstrazione> v(storia->record().begin(), storia->record().end());
    const int32_t da = Data{1, 1, 1990}.giorni(), a_ = Data{2, 1, 2026}.giorni();
    for (int32_t g = da; g <= a_; ++g) {
        const Data d = Data::daGiorni(g);
        for (bool prec : {false, true}) {
            const auto atteso = CercaLetterale(v, d, prec);
            const auto file = a.CercaIndice(d, prec);
            const auto memoria = storia->CercaIndice(d, prec);
            ASSERT_EQ(file.has_value(), atteso.has_value()) << d.testo();
            ASSERT_EQ(memoria.has_value(), atteso.has_value()) << d.testo();
            if (!atteso) continue;
            ASSERT_EQ(file->IndiceTrovato, *atteso) << d.testo() << " prec " << prec;
            ASSERT_EQ(memoria->IndiceTrovato, *atteso) << d.testo() << " prec " << prec;
            ASSERT_EQ(file->DataTrovata, a.DataEstrazione(*atteso));
            ASSERT_EQ(memoria->DataTrovata, file->DataTrovata);
        }
    }
}

TEST_F(ArchivioDemo, InizioAnnoPrimaDellaPrimaEstrazione) {
    const Archivio a = Archivio::Apri(cartella_->percorso());
    for (const RecordAnno& y : a.LeggiAnni()) {
        if (y.anno() == 1871) continue;
        const Data capodanno{1, 1, y.anno()};
        if (a.LeggiEstrazione(y.primaEstrazione()).data() == capodanno) continue;
        const auto prec = a.CercaIndice(capodanno, true);
        const auto succ = a.CercaIndice(capodanno, false);
        ASSERT_TRUE(prec && succ);
        EXPECT_EQ(prec->IndiceTrovato, y.primaEstrazione() - 1) << y.anno();
        EXPECT_EQ(succ->IndiceTrovato, y.primaEstrazione()) << y.anno();
    }
}

// A year index that points at the wrong draw sends the walk to the wrong place; the
// integrity check is what catches it.
TEST(ArchivioScritture, AggiuntaCorrezioneEAnni) {
    CartellaTemporanea c;
    test::CreaArchivioDemo(c.percorso(), ParametriDemo{7, Data{30, 12, 1880}});
    Archivio a = Archivio::Apri(c.percorso(), ModoApertura::Scrittura);
    const int32_t n = a.NumeroEstrazioni();
    const int32_t anni = a.NumeroAnni();
    const std::string anniPrima = test::LeggiFile(c / "Archivi/anni.ind");

    RecordEstrazione nuova;
    nuova.impostaData(Data{3, 1, 1881});
    nuova.NumeroAnno = 1;
    nuova.Ruota[0][0] = 42;
    a.AggiungiEstrazione(nuova);
    EXPECT_EQ(a.NumeroEstrazioni(), n + 1);
    ASSERT_EQ(a.NumeroAnni(), anni + 1);
    EXPECT_EQ(a.LeggiAnno(anni + 1).anno(), 1881);
    EXPECT_EQ(a.LeggiAnno(anni + 1).primaEstrazione(), n + 1);
    EXPECT_EQ(test::LeggiFile(c / "Archivi/anni.ind").substr(0, anniPrima.size()), anniPrima);

    RecordEstrazione seconda = nuova;
    seconda.impostaData(Data{10, 1, 1881});
    seconda.NumeroAnno = 2;
    a.AggiungiEstrazione(seconda);
    EXPECT_EQ(a.NumeroEstrazioni(), n + 2);
    EXPECT_EQ(a.NumeroAnni(), anni + 1);
    EXPECT_TRUE(VerificaIntegrita(a).vuoto()) << VerificaIntegrita(a).testo;

    const std::string anniDopo = test::LeggiFile(c / "Archivi/anni.ind");
    RecordEstrazione corretta = a.LeggiEstrazione(5);
    corretta.Ruota[4][2] = 77;
    a.CorreggiEstrazione(5, corretta);
    EXPECT_EQ(a.LeggiEstrazione(5).Numero(5, 3), 77);
    EXPECT_EQ(a.NumeroEstrazioni(), n + 2);
    EXPECT_EQ(test::LeggiFile(c / "Archivi/anni.ind"), anniDopo);
    // The in-memory copy follows the writes.
    EXPECT_EQ((*a.Storia())[5].Numero(5, 3), 77);
    EXPECT_EQ(a.Storia()->NumeroEstrazioni(), n + 2);

    // Reopened, the files say the same.
    const Archivio b = Archivio::Apri(c.percorso());
    EXPECT_EQ(b.NumeroEstrazioni(), n + 2);
    EXPECT_EQ(b.LeggiEstrazione(n + 1).Numero(1, 1), 42);
}

TEST(ArchivioScritture, CodaParzialeSovrascrittaDallAggiunta) {
    CartellaTemporanea c;
    test::CreaArchivioDemo(c.percorso(), ParametriDemo{3, Data{30, 12, 1872}});
    const fs::path file = c / "Archivi/Estrazioni.ind";
    const auto lunghezza = fs::file_size(file);
    { std::ofstream(file, std::ios::app | std::ios::binary) << "garbage"; }
    Archivio a = Archivio::Apri(c.percorso(), ModoApertura::Scrittura);
    EXPECT_EQ(a.NumeroEstrazioni(), static_cast<int32_t>(lunghezza / 66));
    EXPECT_FALSE(VerificaIntegrita(a).vuoto());
    RecordEstrazione r;
    r.impostaData(Data{4, 1, 1873});
    r.NumeroAnno = 1;
    a.AggiungiEstrazione(r);
    EXPECT_EQ(fs::file_size(file), lunghezza + 66);
    EXPECT_TRUE(VerificaIntegrita(a).vuoto()) << VerificaIntegrita(a).testo;
}

TEST(ArchivioPresenza, MessaggioConLaSuaCoda) {
    CartellaTemporanea c;
    fs::create_directories(c / "Archivi");
    { std::ofstream(c / "Archivi/SuperEnalotto.ind", std::ios::binary) << std::string(20, '\0'); }
    const Archivio a = Archivio::Apri(c.percorso(), ModoApertura::Scrittura);
    const Messaggio m = ControllaPresenzaArchivi(a);
    EXPECT_EQ(m.testo, "Archivi Estrazioni.ind  Anni.ind  mancanti! " + (c / "Archivi/SuperEnalotto.ind").string());
    EXPECT_EQ(m.titolo, "Errore");
    EXPECT_EQ(m.icona, Icona::Stop);
    // Opening for writing created the absent files empty.
    EXPECT_TRUE(fs::exists(c / "Archivi/Estrazioni.ind"));
    EXPECT_EQ(fs::file_size(c / "Archivi/anni.ind"), 0u);
}

TEST(ArchivioPresenza, LetturaNonCreaNulla) {
    CartellaTemporanea c;
    const Archivio a = Archivio::Apri(c / "inesistente", ModoApertura::Scrittura);
    EXPECT_FALSE(ControllaPresenzaArchivi(a).vuoto());
    EXPECT_FALSE(fs::exists(c / "inesistente"));
    const Archivio b = Archivio::Apri(c.percorso());
    EXPECT_EQ(b.NumeroEstrazioni(), 0);
    EXPECT_TRUE(fs::is_empty(c.percorso()));
}

// Damaged files: each is named by the check, none is changed by opening and checking.
TEST(ArchivioIntegrita, DanniRiconosciuti) {
    // Each harm: a file's length changed by `variazione`, or `byte` written at `posizione`
    // (-1: at the end).
    const RecordAnno extra = RecordAnno::Crea(2100, 99999);
    struct Caso {
        const char* nome;
        const char* file;
        std::streamoff variazione, posizione;
        std::string byte;
        const char* attesa;
    };
    const Caso casi[] = {
        {"estrazioni tronche", "Estrazioni.ind", -1, 0, "", "non è un multiplo di 66"},
        {"anni tronchi", "anni.ind", -3, 0, "", "non è un multiplo di 12"},
        {"super tronco", "SuperEnalotto.ind", 7, 0, "", "non è un multiplo di 20"},
        {"anno mancante", "anni.ind", -12, 0, "", "manca o è errato l'anno"},
        {"prima estrazione errata", "anni.ind", 0, 12 + 4, "99     ", "manca o è errato l'anno 1872"},
        {"anno in più", "anni.ind", 0, -1, std::string(reinterpret_cast<const char*>(&extra), 12), "contiene"},
        {"date fuori ordine", "Estrazioni.ind", 0, 66 * 10 + 3, "01011871", "non è in ordine di data"},
        {"data illeggibile", "Estrazioni.ind", 0, 66 * 10 + 3, "3x021871", "data non valida"},
    };
    for (const Caso& caso : casi) {
        CartellaTemporanea c;
        test::CreaArchivioDemo(c.percorso(), ParametriDemo{5, Data{30, 12, 1875}});
        const fs::path file = c / "Archivi" / caso.file;
        if (caso.variazione) {
            fs::resize_file(file,
                            static_cast<uintmax_t>(static_cast<std::streamoff>(fs::file_size(file)) + caso.variazione));
        } else {
            std::fstream f(file, std::ios::in | std::ios::out | std::ios::binary);
            if (caso.posizione < 0)
                f.seekp(0, std::ios::end);
            else
                f.seekp(caso.posizione);
            f.write(caso.byte.data(), static_cast<std::streamsize>(caso.byte.size()));
        }
        const std::string prima =
            test::LeggiFile(c / "Archivi/Estrazioni.ind") + test::LeggiFile(c / "Archivi/anni.ind");
        const Archivio a = Archivio::Apri(c.percorso());
        const Messaggio m = VerificaIntegrita(a);
        EXPECT_NE(m.testo.find(caso.attesa), std::string::npos) << caso.nome << ": " << m.testo;
        EXPECT_EQ(test::LeggiFile(c / "Archivi/Estrazioni.ind") + test::LeggiFile(c / "Archivi/anni.ind"), prima);
    }
}

// The real history, read in place.
TEST(ArchivioReale, StoriaEIndiceAnni) {
    GORGO_RICHIEDI_ARCHIVI_REALI(reale);
    const Archivio a = Archivio::Apri(reale);
    ASSERT_EQ(a.NumeroEstrazioni(), 10779);
    EXPECT_EQ(a.DataEstrazione(1), "07/01/1871");
    EXPECT_EQ(a.DataEstrazione(10779), "30/12/2025");
    EXPECT_EQ(a.LeggiEstrazione(10779).NumeroAnno, 208);
    EXPECT_EQ(a.NumeroEstrazioniSuper(), 2823);
    EXPECT_TRUE(VerificaIntegrita(a).vuoto()) << VerificaIntegrita(a).testo;
    const auto storia = a.Storia();
    for (const RecordAnno& y : a.LeggiAnni()) {
        const RecordEstrazione& r = (*storia)[y.primaEstrazione()];
        ASSERT_EQ(r.NumeroAnno, 1) << y.anno();
        ASSERT_EQ(r.data().anno, y.anno());
        ASSERT_EQ(y.FineRiga, 13);
    }
    // Wheels appear at the indices the archive documents.
    EXPECT_EQ((*storia)[173].Numero(1, 1), 0);
    EXPECT_NE((*storia)[174].Numero(1, 1), 0);
    EXPECT_EQ((*storia)[3574].Numero(2, 1), 0);
    EXPECT_NE((*storia)[3575].Numero(4, 1), 0);
}

TEST(ArchivioReale, CercaIndiceDateEGiorniIntermedi) {
    GORGO_RICHIEDI_ARCHIVI_REALI(reale);
    const Archivio a = Archivio::Apri(reale);
    const auto storia = a.Storia();
    const auto anni = a.LeggiAnni();
    for (int32_t i = 1; i <= storia->NumeroEstrazioni(); ++i) {
        const Data d = (*storia)[i].data();
        for (bool prec : {false, true}) {
            const uint64_t letti = a.RecordLetti();
            const auto r = a.CercaIndice(d, prec);
            ASSERT_TRUE(r.has_value());
            ASSERT_EQ(r->IndiceTrovato, i) << d.testo();
            // No more than the date's year and the first draw after it.
            const auto anno =
                std::find_if(anni.begin(), anni.end(), [&](const RecordAnno& y) { return y.anno() == d.anno; });
            const int32_t fine = anno + 1 == anni.end() ? storia->NumeroEstrazioni() : (anno + 1)->primaEstrazione();
            ASSERT_LE(a.RecordLetti() - letti, static_cast<uint64_t>(fine - anno->primaEstrazione() + 1)) << d.testo();
        }
        if (i == storia->NumeroEstrazioni()) break;
        // Every day strictly between two draws: next draw by default, previous with precedente.
        for (int32_t g = storia->giorni(i) + 1; g < storia->giorni(i + 1); ++g) {
            const Data m = Data::daGiorni(g);
            const auto succ = a.CercaIndice(m, false);
            const auto prec = a.CercaIndice(m, true);
            ASSERT_TRUE(succ && prec);
            ASSERT_EQ(succ->IndiceTrovato, i + 1) << m.testo();
            ASSERT_EQ(prec->IndiceTrovato, i) << m.testo();
            ASSERT_EQ(storia->CercaIndice(m, false)->IndiceTrovato, i + 1);
            ASSERT_EQ(storia->CercaIndice(m, true)->IndiceTrovato, i);
        }
    }
}

TEST(ArchivioReale, ScrittureSuUnaCopia) {
    GORGO_RICHIEDI_ARCHIVI_REALI(reale);
    CartellaTemporanea c;
    test::CopiaArchiviReali(reale, c.percorso());
    Archivio a = Archivio::Apri(c.percorso(), ModoApertura::Scrittura);
    RecordEstrazione r = a.LeggiEstrazione(10779);
    r.impostaData(Data{2, 1, 2026});
    r.NumeroAnno = 1;
    a.AggiungiEstrazione(r);
    EXPECT_EQ(a.NumeroEstrazioni(), 10780);
    EXPECT_EQ(a.LeggiAnni().back().anno(), 2026);
    EXPECT_EQ(a.LeggiAnni().back().primaEstrazione(), 10780);
    auto cerca = a.CercaIndice(Data{1, 1, 2026}, false);
    ASSERT_TRUE(cerca);
    EXPECT_EQ(cerca->IndiceTrovato, 10780);
    RecordEstrazione corr = a.LeggiEstrazione(10780);
    corr.Ruota[0][0] = corr.Ruota[0][0] % 90 + 1;
    a.CorreggiEstrazione(10780, corr);
    EXPECT_TRUE(VerificaIntegrita(a).vuoto());
    // The original stays untouched.
    EXPECT_EQ(Archivio::Apri(reale).NumeroEstrazioni(), 10779);
}

}  // namespace
}  // namespace gorgo::archives
