// Manual entry: the paste decoder, the number boxes, the proposed date and its moves, and
// the store with its questions on copies of demo archives (year index in step, nothing
// written before the input is whole).

#include <gtest/gtest.h>

#include <fmt/format.h>

#include "archives/archivio.h"
#include "archives/demo.h"
#include "archives/regole.h"
#include "maintenance/inserimento.h"
#include "support/cartelle.h"

namespace gorgo::maintenance {
namespace {

// The engine; the suite takes its name.
using Motore = gorgo::maintenance::Inserimento;

namespace fs = std::filesystem;
using test::CartellaTemporanea;
using test::LeggiFile;

std::vector<std::string> Vuote(int n) { return std::vector<std::string>(static_cast<size_t>(n)); }

// 55 distinct numbers in wheel order, joined by a mix of separators.
std::string Testo55(int primo = 1) {
    const char* separatori[] = {" ", "\t", "-", ", ", "\r\n", " | ", ";"};
    std::string t;
    for (int i = 0; i < 55; ++i) {
        if (i > 0) t += separatori[i % 7];
        t += std::to_string((primo - 1 + i) % 90 + 1);
    }
    return t;
}

// Every byte of the three archives.
std::string Archivi(const fs::path& cartella) {
    return LeggiFile(cartella / "Archivi/Estrazioni.ind") + "|" + LeggiFile(cartella / "Archivi/anni.ind") + "|" +
           LeggiFile(cartella / "Archivi/SuperEnalotto.ind");
}

// A program folder whose Lotto archive is the demo history cut at `quante` draws.
void ArchivioTroncato(const fs::path& cartella, size_t quante) {
    auto storia = archives::GeneraStoriaDemo();
    storia.resize(quante);
    archives::ScriviArchivi(cartella, storia, archives::IndiceAnni(storia), archives::GeneraSuperDemo());
}

void Riempi(Motore& ins, int da, int a) {
    for (int i = da; i <= a; ++i) ins.ImpostaCasella(i, std::to_string((i - 1) % 90 + 1));
}

// Every test of the suite may use a copy of the demo archives, made on first use.
class Inserimento : public ::testing::Test {
protected:
    archives::Archivio Apri() {
        if (!pronta_) test::CreaArchivioDemo(c_.percorso());
        pronta_ = true;
        return archives::Archivio::Apri(c_.percorso(), archives::ModoApertura::Scrittura);
    }
    CartellaTemporanea c_;
    bool pronta_ = false;
};

// ---------------------------------------------------------------- the decoder

// The decoder on texts of every shape: what it fills, where it stops, what it leaves alone.
TEST_F(Inserimento, DecodificaDelTesto) {
    using Caselle = std::vector<std::pair<size_t, std::string>>;
    struct Caso {
        std::string testo;
        Caselle prima, dopo;  // boxes set before; boxes expected after ("" for blank)
        bool eseguita = true;
        int riempite = -1, letti = -1;  // -1: not looked at
        int errata = 0;
        int caselle = 55;
    };
    std::vector<Caso> casi = {
        // Nine characters: not decoded, boxes untouched; ten are enough.
        {"1 2 3 4 5", {{0, "12"}}, {{0, "12"}, {1, ""}}, false},
        {"1 2 3 4 56", {}, {{4, "56"}}, true, 5},
        // Characters, not bytes: four dashes of three bytes each do not make ten.
        {"1\u20132\u20133\u20134", {}, {{0, ""}}, false},
        {"1\u20132\u20133\u20134\u20135\u20136", {}, {{5, "6"}}},
        // The decoder knows no dates: 10/02 become the first two numbers, 2024 stops it.
        {"10/02/2024 Bari 12 34 56 78 90", {}, {{0, "10"}, {1, "02"}}, true, -1, -1, 3},
        // The 56th number is out of range but never read.
        {Testo55() + " 999 12", {}, {{54, "55"}}, true, -1, 55},
        // With fewer numbers the later boxes keep what they held; a number at the very end counts.
        {"Estratti: 5, 6, 7, 8, 9, 10, 11", {{7, "88"}}, {{6, "11"}, {7, "88"}}, true, 7},
        // The SuperEnalotto twin stops after eight numbers.
        {"1 2 3 4 5 6 7 8 0 0 0", {}, {{7, "8"}}, true, -1, 8, 0, 8},
        // Leading zeros stay as typed.
        {"007 010 090 1 2 3", {}, {{0, "007"}, {2, "090"}}},
    };
    // A value out of 1..90 clears its box and stops there; the boxes before stay filled.
    for (const char* fuori : {"0", "91", "00", "99999999999999999999999"})
        casi.push_back({fmt::format("11 22 33 {} 44 55 66", fuori),
                        {{3, "vecchio"}, {10, "77"}},
                        {{0, "11"}, {2, "33"}, {3, ""}, {4, ""}, {10, "77"}},
                        true,
                        3,
                        -1,
                        4});
    // 55 numbers with a mix of separators.
    Caso tutti{Testo55(), {}, {}, true, 55};
    for (size_t i = 0; i < 55; ++i) tutti.dopo.emplace_back(i, std::to_string(i + 1));
    casi.push_back(tutti);

    for (const Caso& c : casi) {
        SCOPED_TRACE(c.testo);
        auto caselle = Vuote(c.caselle);
        for (const auto& [i, v] : c.prima) caselle[i] = v;
        const EsitoDecodifica e = DecodificaTesto(c.testo, caselle);
        EXPECT_EQ(e.eseguita, c.eseguita);
        EXPECT_TRUE(c.riempite < 0 || e.caselleRiempite == c.riempite) << e.caselleRiempite;
        EXPECT_TRUE(c.letti < 0 || e.numeriLetti == c.letti) << e.numeriLetti;
        EXPECT_EQ(e.casellaErrata, c.errata);
        if (c.errata) {
            EXPECT_EQ(e.errore.testo, TestoValoriIncongruenti);
            EXPECT_EQ(e.errore.titolo, "Errore");
            EXPECT_EQ(e.errore.icona, archives::Icona::Stop);
        } else {
            EXPECT_TRUE(e.errore.vuoto());
        }
        for (const auto& [i, v] : c.dopo) EXPECT_EQ(caselle[i], v) << "casella " << i;
    }
    EXPECT_EQ(ValoreCasella("090"), 90);
    EXPECT_TRUE(NumeriNelTesto("abc def ghi jkl", 55).empty());
}

// ---------------------------------------------------------------- the boxes

TEST_F(Inserimento, CaselleNumeriche) {
    for (int c : {int{'0'}, int{'9'}, 8, 22}) EXPECT_TRUE(SoloCifre(c)) << c;  // digits, backspace, ctrl-V
    for (int c : {'a', ' ', '-'}) EXPECT_FALSE(SoloCifre(c)) << c;
    for (auto [testo, valore] : {std::pair{"", 0}, {"12abc", 12}, {" 7", 7}}) EXPECT_EQ(ValoreCasella(testo), valore);
    EXPECT_GT(ValoreCasella("123456789012345"), 90);
    for (const char* buona : {"", "0", "90"}) EXPECT_TRUE(ControllaCasella(buona).vuoto()) << buona;
    const archives::Messaggio m = ControllaCasella("91");
    EXPECT_EQ(m.testo, "inserisci un numero tra 1 e 90 !");
    EXPECT_EQ(m.icona, archives::Icona::Esclamazione);
    EXPECT_EQ(SuggerimentoCasella(1), "1' estratto ruota di Bari      ");
    EXPECT_EQ(SuggerimentoCasella(13), "3' estratto ruota di Firenze   ");
    EXPECT_EQ(SuggerimentoCasella(55), "5' estratto ruota di Nazionale ");
}

// ---------------------------------------------------------------- the proposed date

TEST_F(Inserimento, DataPropostaPerGiorniEstrazione) {
    // Saturday 30/12/2023 with Tuesday, Thursday and Saturday: Tuesday 02/01/2024.
    EXPECT_EQ(DataProposta({30, 12, 2023}, "NNYNYNY"), (archives::Data{2, 1, 2024}));
    EXPECT_EQ(DataProposta({2, 1, 2024}, "NNYNYNY"), (archives::Data{4, 1, 2024}));
    EXPECT_EQ(DataProposta({4, 1, 2024}, "NNYNYNY"), (archives::Data{6, 1, 2024}));
    // Four days a week (Friday added).
    EXPECT_EQ(DataProposta({4, 1, 2024}, "NNYNYYY"), (archives::Data{5, 1, 2024}));
    // No day ticked: the next Saturday, also from a Saturday.
    EXPECT_EQ(DataProposta({28, 12, 2023}, "NNNNNNN"), (archives::Data{30, 12, 2023}));
    EXPECT_EQ(DataProposta({30, 12, 2023}, "NNNNNNN"), (archives::Data{6, 1, 2024}));
    EXPECT_EQ(DataProposta({30, 12, 2023}, ""), (archives::Data{6, 1, 2024}));
    // Sunday only; a 29 February on the way.
    EXPECT_EQ(DataProposta({26, 2, 2024}, "YNNNNNN"), (archives::Data{3, 3, 2024}));
    EXPECT_EQ(DataProposta({28, 2, 2024}, "NNNNYNN"), (archives::Data{29, 2, 2024}));
    const auto g = GiorniDiEstrazione("NNY");
    EXPECT_TRUE(g[3]);
    EXPECT_FALSE(g[7]);
    EXPECT_TRUE(GiorniDiEstrazione("nnnnnnn")[7]);  // only "Y" counts
}

// ---------------------------------------------------------------- the engine on an archive

TEST_F(Inserimento, ConsultaEModi) {
    archives::Archivio a = Apri();
    Motore ins(a, GiocoInserimento::Lotto);
    const int32_t n = a.NumeroEstrazioni();
    EXPECT_EQ(ins.modo(), ModoInserimento::Consulta);
    EXPECT_EQ(ins.IndiceCorrente(), n);
    EXPECT_EQ(ins.Giorno() + "/" + ins.Mese() + "/" + ins.Anno(), "30/12/2025");
    EXPECT_EQ(ins.NomeGiornoEstrazione(), "martedì");
    EXPECT_EQ(ins.TestoAnnoEstrazione(), "2025 / ");
    ControlliAttivi c = ins.Controlli();
    EXPECT_TRUE(c.cmdNuova && c.cmdCorreggi && c.Slider1);
    EXPECT_FALSE(c.cmdMemorizza || c.cmdInserisci || c.cmdCancella || c.date || c.testo);
    for (int i = 1; i <= 55; ++i) EXPECT_FALSE(ins.CasellaAperta(i));
    ins.Successiva();  // no draw after the last
    EXPECT_EQ(ins.IndiceCorrente(), n);
    ins.Mostra(1);
    ins.Precedente();
    EXPECT_EQ(ins.IndiceCorrente(), 1);
    // Wheels not yet drawn show 0.
    EXPECT_EQ(ins.Casella(6), "0");
    EXPECT_EQ(ins.Casella(55), "0");
    ins.Successiva();
    EXPECT_EQ(ins.IndiceCorrente(), 2);
    EXPECT_FALSE(ins.ChiedeSalvataggio());

    ins.Mostra(n);
    ASSERT_TRUE(ins.Nuova("NNYNYNY").vuoto());
    c = ins.Controlli();
    EXPECT_TRUE(c.cmdMemorizza && c.cmdInserisci && c.cmdCancella && c.testo);
    EXPECT_FALSE(c.cmdNuova || c.cmdCorreggi || c.Slider1 || c.date);
    for (int i = 1; i <= 55; ++i) {
        EXPECT_TRUE(ins.CasellaAperta(i)) << i;
        EXPECT_EQ(ins.Casella(i), "");
    }
    EXPECT_FALSE(ins.ChiedeSalvataggio());
    ins.ImpostaCasella(12, "4");
    EXPECT_TRUE(ins.ChiedeSalvataggio());
    const archives::Messaggio d = Motore::DomandaSalvataggio();
    EXPECT_EQ(d.testo, "Salvare i dati prima di chiudere?");
    EXPECT_EQ(d.titolo, "Input estrazioni");
    ins.ImpostaTestoIncolla("qualcosa");
    ins.Cancella();
    EXPECT_EQ(ins.Casella(12), "");
    EXPECT_EQ(ins.TestoIncolla(), "");
}

TEST_F(Inserimento, NuovaDataPropostaEMossePerGiorno) {
    archives::Archivio a = Apri();
    const int32_t n = a.NumeroEstrazioni();
    const int numeroUltima = a.LeggiEstrazione(n).NumeroAnno;
    Motore ins(a, GiocoInserimento::Lotto);
    // Last draw Tuesday 30/12/2025: Thursday 01/01/2026 is proposed, the first of its year.
    ASSERT_TRUE(ins.Nuova("NNYNYNY").vuoto());
    EXPECT_EQ(ins.IndiceCorrente(), n);
    EXPECT_EQ(ins.Giorno() + "/" + ins.Mese() + "/" + ins.Anno(), "01/01/2026");
    EXPECT_EQ(ins.NumeroAnno(), 1);
    EXPECT_EQ(ins.TestoAnnoEstrazione(), "2026 / ");
    EXPECT_EQ(ins.NomeGiornoEstrazione(), "giovedì");
    EXPECT_EQ(ins.GiornoNuovo(), 5);
    // Back into the last draw's year: its count goes on.
    ins.Precedente();
    EXPECT_EQ(ins.Giorno() + "/" + ins.Mese() + "/" + ins.Anno(), "31/12/2025");
    EXPECT_EQ(ins.NumeroAnno(), numeroUltima + 1);
    EXPECT_EQ(ins.TestoAnnoEstrazione(), "2025 / ");
    EXPECT_EQ(ins.GiornoNuovo(), 4);
    // Never back to the last stored draw's date.
    ins.Precedente();
    EXPECT_EQ(ins.Giorno(), "31");
    ins.Successiva();
    ins.Successiva();
    EXPECT_EQ(ins.Giorno() + "/" + ins.Mese() + "/" + ins.Anno(), "02/01/2026");
    EXPECT_EQ(ins.NumeroAnno(), 1);
    // Typing in the weekday boxes: no month or year, no name.
    ins.ImpostaMese("");
    EXPECT_EQ(ins.NomeGiornoEstrazione(), "");
}

TEST_F(Inserimento, NuovaEstrazioneDiUnAnnoNuovoAggiungeLAnno) {
    const int32_t anniPrima = Apri().NumeroAnni();
    archives::Archivio a = Apri();
    const int32_t n = a.NumeroEstrazioni();
    Motore ins(a, GiocoInserimento::Lotto);
    ASSERT_TRUE(ins.Nuova("NNYNYNY").vuoto());
    ins.ImpostaTestoIncolla(Testo55());
    // Stored straight after the paste: the store decodes first.
    const EsitoMemorizzazione e = ins.Memorizza();
    ASSERT_EQ(e.stato, StatoMemorizzazione::Memorizzata) << e.messaggio.testo;
    EXPECT_TRUE(e.nuova);
    EXPECT_TRUE(e.annoAggiunto);
    EXPECT_EQ(e.indice, n + 1);
    EXPECT_EQ(a.NumeroEstrazioni(), n + 1);
    EXPECT_EQ(a.NumeroAnni(), anniPrima + 1);
    const archives::RecordAnno anno = a.LeggiAnno(a.NumeroAnni());
    EXPECT_EQ(anno.anno(), 2026);
    EXPECT_EQ(anno.primaEstrazione(), n + 1);
    const archives::RecordEstrazione r = a.LeggiEstrazione(n + 1);
    EXPECT_EQ(r.dataTesto(), "01/01/2026");
    EXPECT_EQ(r.NumeroAnno, 1);
    EXPECT_EQ(r.GiornoSettimana, '5');
    EXPECT_EQ(r.GiornoSettimanaCopia, '5');
    EXPECT_EQ(r.Numero(1, 1), 1);
    EXPECT_EQ(r.Numero(11, 5), 55);
    // Back to browse on the draw stored.
    EXPECT_EQ(ins.modo(), ModoInserimento::Consulta);
    EXPECT_EQ(ins.IndiceCorrente(), n + 1);
    EXPECT_EQ(ins.TotaleEstrazioni(), n + 1);
    EXPECT_EQ(ins.TestoIncolla(), "");
    EXPECT_TRUE(archives::VerificaIntegrita(a).vuoto());

    // The second draw of the year adds no year.
    ASSERT_TRUE(ins.Nuova("NNYNYNY").vuoto());
    EXPECT_EQ(ins.Giorno() + "/" + ins.Mese() + "/" + ins.Anno(), "03/01/2026");
    EXPECT_EQ(ins.NumeroAnno(), 2);
    ins.ImpostaTestoIncolla(Testo55(30));
    const EsitoMemorizzazione f = ins.Memorizza();
    ASSERT_EQ(f.stato, StatoMemorizzazione::Memorizzata) << f.messaggio.testo;
    EXPECT_FALSE(f.annoAggiunto);
    EXPECT_EQ(a.NumeroAnni(), anniPrima + 1);
    EXPECT_EQ(a.LeggiEstrazione(n + 2).NumeroAnno, 2);
    EXPECT_TRUE(archives::VerificaIntegrita(a).vuoto());
    // A fresh opening sees the same.
    EXPECT_EQ(Apri().NumeroEstrazioni(), n + 2);
}

TEST_F(Inserimento, CorrezioneLasciaAnniInd) {
    archives::Archivio a = Apri();
    const std::string anni = LeggiFile(c_ / "Archivi/anni.ind");
    const int32_t n = a.NumeroEstrazioni();
    // The first draw of 2025: its correction adds no year.
    const int32_t indice = a.CercaIndice({1, 1, 2025}, false)->IndiceTrovato;
    ASSERT_EQ(a.LeggiEstrazione(indice).NumeroAnno, 1);
    const archives::RecordEstrazione prima = a.LeggiEstrazione(indice);
    Motore ins(a, GiocoInserimento::Lotto);
    ins.Mostra(indice);
    ins.Correggi();
    EXPECT_EQ(ins.modo(), ModoInserimento::Correzione);
    const ControlliAttivi c = ins.Controlli();
    EXPECT_TRUE(c.cmdMemorizza && c.date);
    EXPECT_FALSE(c.cmdNuova || c.cmdCorreggi || c.cmdInserisci || c.cmdCancella || c.Slider1 || c.testo);
    EXPECT_TRUE(ins.CasellaAperta(55));
    EXPECT_TRUE(ins.ChiedeSalvataggio());  // the boxes hold the stored draw
    ins.ImpostaCasella(1, prima.Numero(1, 1) == 90 ? "89" : "90");
    ins.ImpostaCasella(2, prima.Numero(1, 2) == 1 ? "2" : "1");
    const EsitoMemorizzazione e = ins.Memorizza();
    ASSERT_EQ(e.stato, StatoMemorizzazione::Memorizzata) << e.messaggio.testo;
    EXPECT_FALSE(e.nuova);
    EXPECT_FALSE(e.annoAggiunto);
    EXPECT_EQ(a.NumeroEstrazioni(), n);
    EXPECT_EQ(LeggiFile(c_ / "Archivi/anni.ind"), anni);
    const archives::RecordEstrazione dopo = a.LeggiEstrazione(indice);
    EXPECT_EQ(dopo.Numero(1, 1), prima.Numero(1, 1) == 90 ? 89 : 90);
    EXPECT_EQ(dopo.NumeroAnno, 1);
    EXPECT_EQ(dopo.dataTesto(), prima.dataTesto());
    EXPECT_EQ(0, std::memcmp(dopo.Ruota[2], prima.Ruota[2], 45));
    EXPECT_TRUE(archives::VerificaIntegrita(a).vuoto());
}

TEST_F(Inserimento, CorrezioneDataTraIVicini) {
    archives::Archivio a = Apri();
    const int32_t n = a.NumeroEstrazioni();
    const int32_t indice = n - 2;
    const archives::Data precedente = a.LeggiEstrazione(indice - 1).data(),
                         successiva = a.LeggiEstrazione(indice + 1).data();
    Motore ins(a, GiocoInserimento::Lotto);
    ins.Mostra(indice);
    ins.Correggi();
    for (int i = 0; i < 10; ++i) ins.Successiva();
    EXPECT_EQ(*ins.DataCaselle(), archives::Data::daGiorni(successiva.giorni() - 1));
    for (int i = 0; i < 10; ++i) ins.Precedente();
    EXPECT_EQ(*ins.DataCaselle(), archives::Data::daGiorni(precedente.giorni() + 1));
    const EsitoMemorizzazione e = ins.Memorizza();
    ASSERT_EQ(e.stato, StatoMemorizzazione::Memorizzata) << e.messaggio.testo;
    const archives::RecordEstrazione r = a.LeggiEstrazione(indice);
    EXPECT_EQ(r.data(), archives::Data::daGiorni(precedente.giorni() + 1));
    // Both weekday digits follow the new date.
    EXPECT_EQ(r.giornoSettimana(), r.data().giornoSettimana());
    EXPECT_EQ(r.GiornoSettimanaCopia, r.GiornoSettimana);

    // Typed dates that would break the order or the year are refused, nothing written.
    const std::string prima = Archivi(c_.percorso());
    ins.Mostra(indice);
    ins.Correggi();
    ins.ImpostaGiorno(fmt::format("{:02}", successiva.giorno));
    ins.ImpostaMese(fmt::format("{:02}", successiva.mese));
    ins.ImpostaAnno(fmt::format("{}", successiva.anno));
    EsitoMemorizzazione f = ins.Memorizza();
    EXPECT_EQ(f.stato, StatoMemorizzazione::Rifiutata);
    EXPECT_NE(f.messaggio.testo.find("tra quella dell'estrazione precedente"), std::string::npos);
    ins.ImpostaGiorno("31");
    ins.ImpostaMese("02");
    f = ins.Memorizza();
    EXPECT_EQ(f.messaggio.testo, "Data errata !");
    EXPECT_EQ(ins.modo(), ModoInserimento::Correzione);
    EXPECT_EQ(Archivi(c_.percorso()), prima);

    // The first draw of 2024 (Tuesday 02/01) may move back to 31/12/2023, the day after its
    // predecessor, but it may not be stored in the year before.
    const int32_t primaAnno = a.CercaIndice({1, 1, 2024}, false)->IndiceTrovato;
    ASSERT_EQ(a.LeggiEstrazione(primaAnno).dataTesto(), "02/01/2024");
    ASSERT_EQ(a.LeggiEstrazione(primaAnno - 1).dataTesto(), "30/12/2023");
    ins.Mostra(primaAnno);
    ins.Correggi();
    for (int i = 0; i < 5; ++i) ins.Precedente();
    EXPECT_EQ(*ins.DataCaselle(), (archives::Data{31, 12, 2023}));
    f = ins.Memorizza();
    EXPECT_EQ(f.stato, StatoMemorizzazione::Rifiutata);
    EXPECT_NE(f.messaggio.testo.find("deve restare nell'anno 2024"), std::string::npos) << f.messaggio.testo;
    EXPECT_EQ(Archivi(c_.percorso()), prima);
}

TEST_F(Inserimento, LeDomandeDellaMemorizzazione) {
    archives::Archivio a = Apri();
    const std::string prima = Archivi(c_.percorso());
    Motore ins(a, GiocoInserimento::Lotto);
    ASSERT_TRUE(ins.Nuova("NNYNYNY").vuoto());
    Riempi(ins, 1, 55);
    ins.ImpostaCasella(17, "");
    // One missing.
    EsitoMemorizzazione e = ins.Memorizza();
    EXPECT_EQ(e.stato, StatoMemorizzazione::Domanda);
    EXPECT_EQ(e.domanda, DomandaInserimento::NumeriMancanti);
    EXPECT_EQ(e.messaggio.testo, "Manca 1 numero. Memorizzi ugualmente ?");
    EXPECT_EQ(e.messaggio.titolo, "Conferma");
    EXPECT_EQ(e.messaggio.icona, archives::Icona::Domanda);
    // More missing; "0" counts as missing.
    ins.ImpostaCasella(18, "0");
    e = ins.Memorizza();
    EXPECT_EQ(e.messaggio.testo, "Mancano alcuni numeri. Memorizzi ugualmente ?");
    // Yes to that; two blanks on one wheel are equal numbers, and a question of their own.
    e = ins.Memorizza({.numeriMancanti = true});
    EXPECT_EQ(e.stato, StatoMemorizzazione::Domanda);
    EXPECT_EQ(e.domanda, DomandaInserimento::NumeriUguali);
    EXPECT_EQ(e.messaggio.testo, "Ci sono numeri uguali su stessa ruota. Memorizzi ugualmente ? ");
    // Nothing written while questions are open (a No is just not calling again).
    EXPECT_EQ(Archivi(c_.percorso()), prima);
    EXPECT_EQ(ins.modo(), ModoInserimento::Nuova);

    // Equal numbers on one wheel with nothing missing.
    Riempi(ins, 1, 55);
    ins.ImpostaCasella(24, ins.Casella(21));
    e = ins.Memorizza();
    EXPECT_EQ(e.domanda, DomandaInserimento::NumeriUguali);
    // The same number on two wheels is no question.
    Riempi(ins, 1, 55);
    ins.ImpostaCasella(6, ins.Casella(1));
    ins.ImpostaCasella(17, "");
    ins.ImpostaCasella(18, "");
    e = ins.Memorizza({.numeriMancanti = true});
    EXPECT_EQ(e.domanda, DomandaInserimento::NumeriUguali);  // the two blanks of wheel 4
    e = ins.Memorizza({.numeriMancanti = true, .numeriUguali = true});
    ASSERT_EQ(e.stato, StatoMemorizzazione::Memorizzata);
    const archives::RecordEstrazione r = a.LeggiEstrazione(e.indice);
    EXPECT_EQ(r.Numero(4, 2), 0);
    EXPECT_EQ(r.Numero(4, 3), 0);
    EXPECT_EQ(r.Numero(2, 1), r.Numero(1, 1));
    EXPECT_TRUE(archives::VerificaIntegrita(a).vuoto());
}

TEST_F(Inserimento, InputErratoNonScriveNulla) {
    archives::Archivio a = Apri();
    const std::string prima = Archivi(c_.percorso());
    Motore ins(a, GiocoInserimento::Lotto);
    // Browse: nothing to store.
    EXPECT_EQ(ins.Memorizza().stato, StatoMemorizzazione::Rifiutata);
    ASSERT_TRUE(ins.Nuova("NNYNYNY").vuoto());
    // A paste that fails to decode stops the store with the decoder's message.
    ins.ImpostaTestoIncolla("12 34 56 91 22 33 44 55 66 77");
    EsitoMemorizzazione e = ins.Memorizza();
    EXPECT_EQ(e.stato, StatoMemorizzazione::Rifiutata);
    EXPECT_EQ(e.messaggio.testo, TestoValoriIncongruenti);
    EXPECT_EQ(e.casella, 4);
    EXPECT_EQ(ins.Casella(3), "56");
    // A box above 90 that was never left is refused, pointing at the box.
    Riempi(ins, 1, 55);
    ins.ImpostaCasella(33, "123");
    e = ins.Memorizza({.numeriMancanti = true, .numeriUguali = true});
    EXPECT_EQ(e.stato, StatoMemorizzazione::Rifiutata);
    EXPECT_EQ(e.messaggio.testo, "inserisci un numero tra 1 e 90 !");
    EXPECT_EQ(e.casella, 33);
    EXPECT_EQ(ins.modo(), ModoInserimento::Nuova);
    EXPECT_EQ(Archivi(c_.percorso()), prima);
}

TEST_F(Inserimento, ArchivioCresciutoNelFrattempo) {
    archives::Archivio a = Apri();
    Motore primo(a, GiocoInserimento::Lotto), secondo(a, GiocoInserimento::Lotto);
    ASSERT_TRUE(primo.Nuova("NNYNYNY").vuoto());
    ASSERT_TRUE(secondo.Nuova("NNYNYNY").vuoto());
    secondo.ImpostaTestoIncolla(Testo55());
    ASSERT_EQ(secondo.Memorizza().stato, StatoMemorizzazione::Memorizzata);
    // The first screen proposed the same date: it no longer follows the last draw.
    const std::string prima = Archivi(c_.percorso());
    primo.ImpostaTestoIncolla(Testo55(3));
    const EsitoMemorizzazione e = primo.Memorizza();
    EXPECT_EQ(e.stato, StatoMemorizzazione::Rifiutata);
    EXPECT_NE(e.messaggio.testo.find("(01/01/2026)"), std::string::npos) << e.messaggio.testo;
    EXPECT_EQ(Archivi(c_.percorso()), prima);
    // A later day goes in after it, second of its year.
    primo.Successiva();
    const EsitoMemorizzazione f = primo.Memorizza();
    ASSERT_EQ(f.stato, StatoMemorizzazione::Memorizzata) << f.messaggio.testo;
    EXPECT_EQ(a.LeggiEstrazione(f.indice).NumeroAnno, 2);
    EXPECT_TRUE(archives::VerificaIntegrita(a).vuoto());
}

TEST_F(Inserimento, SuperEnalotto) {
    archives::Archivio a = Apri();
    const std::string lotto = LeggiFile(c_ / "Archivi/Estrazioni.ind") + LeggiFile(c_ / "Archivi/anni.ind");
    const int32_t n = a.NumeroEstrazioniSuper();
    const archives::RecordSuperEnalotto ultima = a.LeggiRecordSuper(n);
    Motore ins(a, GiocoInserimento::SuperEnalotto);
    EXPECT_EQ(ins.NumeroCaselle(), 8);
    EXPECT_EQ(ins.IndiceCorrente(), n);
    ASSERT_TRUE(ins.Nuova("NNYNYNY").vuoto());
    const archives::Data proposta = DataProposta(ultima.data(), "NNYNYNY");
    EXPECT_EQ(*ins.DataCaselle(), proposta);
    EXPECT_EQ(ins.NumeroAnno(), proposta.anno == ultima.data().anno ? ultima.NumeroAnno + 1 : 1);
    for (int i = 1; i <= 8; ++i) EXPECT_TRUE(ins.CasellaAperta(i));
    // Equal numbers among the six: its own question; the Jolly may repeat one.
    ins.ImpostaTestoIncolla("5 17 23 5 61 88 jolly 17 superstar 3 extra 99");
    EsitoMemorizzazione e = ins.Memorizza();
    EXPECT_EQ(e.stato, StatoMemorizzazione::Domanda);
    EXPECT_EQ(e.messaggio.testo, "Ci sono numeri uguali. Memorizzi ugualmente ? ");
    ins.ImpostaCasella(4, "44");
    e = ins.Memorizza();
    ASSERT_EQ(e.stato, StatoMemorizzazione::Memorizzata) << e.messaggio.testo;
    EXPECT_EQ(a.NumeroEstrazioniSuper(), n + 1);
    const archives::RecordSuperEnalotto r = a.LeggiRecordSuper(n + 1);
    EXPECT_EQ(r.data(), proposta);
    EXPECT_EQ(r.Sestina[3], 44);
    EXPECT_EQ(r.Jolly, 17);
    EXPECT_EQ(r.SuperStar, 3);
    EXPECT_EQ(r.Riserva, 0);
    EXPECT_EQ(r.GiornoSettimana - '0', proposta.giornoSettimana());
    // The Lotto files are not touched.
    EXPECT_EQ(LeggiFile(c_ / "Archivi/Estrazioni.ind") + LeggiFile(c_ / "Archivi/anni.ind"), lotto);
    // One missing among eight (SuperStar).
    ASSERT_TRUE(ins.Nuova("NNYNYNY").vuoto());
    ins.ImpostaTestoIncolla("1 2 3 4 5 6 7");
    e = ins.Memorizza();
    EXPECT_EQ(e.messaggio.testo, "Manca 1 numero. Memorizzi ugualmente ?");
    e = ins.Memorizza({.numeriMancanti = true});
    ASSERT_EQ(e.stato, StatoMemorizzazione::Memorizzata);
    EXPECT_EQ(a.LeggiRecordSuper(n + 2).SuperStar, 0);
}

// The limits of Nazionale: 50 boxes below 7440 draws, 55 from 7440; the store's count
// follows the index, also in the correction of draw 7440.
TEST_F(Inserimento, CaselleDellaNazionale) {
    for (const size_t quante : {size_t{7439}, size_t{7440}}) {
        CartellaTemporanea c;
        ArchivioTroncato(c.percorso(), quante);
        archives::Archivio a = archives::Archivio::Apri(c.percorso(), archives::ModoApertura::Scrittura);
        Motore ins(a, GiocoInserimento::Lotto);
        ASSERT_TRUE(ins.Nuova("NNYNYNY").vuoto());
        EXPECT_TRUE(ins.CasellaAperta(50));
        EXPECT_EQ(ins.CasellaAperta(51), quante == 7440) << quante;
        Riempi(ins, 1, 50);
        const EsitoMemorizzazione e = ins.Memorizza();
        if (quante == 7439) {
            ASSERT_EQ(e.stato, StatoMemorizzazione::Memorizzata) << e.messaggio.testo;
            EXPECT_EQ(a.LeggiEstrazione(7440).Numero(11, 1), 0);
        } else {
            EXPECT_EQ(e.messaggio.testo, "Mancano alcuni numeri. Memorizzi ugualmente ?");
        }
    }
    CartellaTemporanea c;
    ArchivioTroncato(c.percorso(), 7440);
    archives::Archivio a = archives::Archivio::Apri(c.percorso(), archives::ModoApertura::Scrittura);
    Motore ins(a, GiocoInserimento::Lotto);
    ins.Mostra(7440);
    ins.Correggi();
    EXPECT_FALSE(ins.CasellaAperta(51));  // opened above 7440 only
    const EsitoMemorizzazione e = ins.Memorizza();
    EXPECT_EQ(e.messaggio.testo, "Mancano alcuni numeri. Memorizzi ugualmente ?");
    ins.Mostra(7439);
    ins.Correggi();
    EXPECT_EQ(ins.Memorizza().stato, StatoMemorizzazione::Memorizzata);
}

TEST_F(Inserimento, ArchivioVuotoNessunaProposta) {
    CartellaTemporanea c;
    fs::create_directories(c / "Archivi");
    archives::Archivio a = archives::Archivio::Apri(c.percorso(), archives::ModoApertura::Scrittura);
    Motore ins(a, GiocoInserimento::Lotto);
    EXPECT_EQ(ins.IndiceCorrente(), 0);
    EXPECT_FALSE(ins.Nuova("NNYNYNY").vuoto());
    EXPECT_EQ(ins.modo(), ModoInserimento::Consulta);
    ins.Precedente();
    ins.Successiva();
    ins.Correggi();
    EXPECT_EQ(ins.Memorizza().stato, StatoMemorizzazione::Rifiutata);
    EXPECT_EQ(a.NumeroEstrazioni(), 0);
}

}  // namespace
}  // namespace gorgo::maintenance
