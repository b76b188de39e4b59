#pragma once
// The fixed records of the archive files. Every field is a byte, so the structs have
// exactly the on-disk layout and are read and written as raw bytes.

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "archives/data.h"

namespace gorgo::archives {

constexpr int NumeroRuote = 11;
constexpr int RuotaNazionale = 11;
constexpr int32_t PrimaEstrazioneNazionale = 7441;
constexpr std::string_view DataInizioNazionale = "04/05/2005";
constexpr std::string_view PrimaDataArchivio = "07/01/1871";

// Index 0 stands for all wheels on screens; it has no place in the record.
extern const std::array<std::string_view, 12> NomiRuota;
extern const std::array<std::string_view, 12> SigleRuota;
// First index of each wheel (1..11) for the delay statistics; Nazionale 7341 here
// while everything else uses PrimaEstrazioneNazionale (7441).
extern const std::array<int32_t, 12> PrimaEstrazioneRuota;

struct RecordEstrazione {
    char GiornoSettimana = '0';
    char GiornoSettimanaCopia = '0';
    uint8_t NumeroAnno = 0;
    char Data[8] = {'0', '0', '0', '0', '0', '0', '0', '0'};
    uint8_t Ruota[NumeroRuote][5] = {};

    // ruota 1..11, posizione 1..5.
    uint8_t Numero(int ruota, int posizione) const { return Ruota[ruota - 1][posizione - 1]; }
    std::string_view dataCifre() const { return {Data, 8}; }
    // Characters 1-2, 3-4, 5-8 joined by "/", no check on the stored text.
    std::string dataTesto() const;
    // The stored date; day, month or year 0 where the digits are not digits.
    gorgo::archives::Data data() const;
    int giornoSettimana() const { return GiornoSettimana - '0'; }
    void impostaData(const gorgo::archives::Data& d);  // date, weekday and its copy
};
static_assert(sizeof(RecordEstrazione) == 66);

struct RecordAnno {
    char Anno[4] = {'0', '0', '0', '0'};
    char PrimaEstrazione[7] = {' ', ' ', ' ', ' ', ' ', ' ', ' '};
    char FineRiga = 13;

    static RecordAnno Crea(int anno, int32_t primaEstrazione);
    // -1 where the field holds no number.
    int anno() const;
    int32_t primaEstrazione() const;
};
static_assert(sizeof(RecordAnno) == 12);

struct RecordSuperEnalotto {
    uint8_t NumeroAnno = 0;
    char Data[8] = {'0', '0', '0', '0', '0', '0', '0', '0'};
    uint8_t Sestina[6] = {};
    uint8_t Jolly = 0;
    uint8_t SuperStar = 0;
    char GiornoSettimana = '0';
    char GiornoSettimanaCopia = '0';
    uint8_t Riserva = 0;  // never written by the system

    std::string_view dataCifre() const { return {Data, 8}; }
    std::string dataTesto() const;
    gorgo::archives::Data data() const;
    void impostaData(const gorgo::archives::Data& d);
};
static_assert(sizeof(RecordSuperEnalotto) == 20);

// Draws and years of the archive, read by the file-length rule.
constexpr int LunghezzaRecordEstrazione = 66;
constexpr int LunghezzaRecordAnno = 12;
constexpr int LunghezzaRecordSuper = 20;

}  // namespace gorgo::archives
