#pragma once
// A deterministic synthetic history for trying the program without real archives, and
// the fixtures of the tests. It follows the calendar's shape (weekly from 07/01/1871,
// more draws a week in recent decades) and the first index of each wheel.

#include <cstdint>
#include <filesystem>
#include <span>
#include <vector>

#include "archives/data.h"
#include "archives/messaggio.h"
#include "archives/record.h"

namespace gorgo::archives {

struct ParametriDemo {
    uint64_t seme = 1871;
    Data fine{30, 12, 2025};
    Data inizioSuper{3, 1, 2009};
};

// Name of the file that marks a demo program folder.
constexpr const char* FileDemo = "LEGGIMI-DEMO.txt";

std::vector<RecordEstrazione> GeneraStoriaDemo(const ParametriDemo& parametri = {});
std::vector<RecordSuperEnalotto> GeneraSuperDemo(const ParametriDemo& parametri = {});
// The year index that goes with a list of draws in date order.
std::vector<RecordAnno> IndiceAnni(std::span<const RecordEstrazione> estrazioni);

// Writes a whole program folder (Archivi/ with the three files, and the demo marker).
// Refuses, writing nothing, when the folder already holds a Lotto archive.
Messaggio CreaCartellaDemo(const std::filesystem::path& cartella, const ParametriDemo& parametri = {});
// Writes the three archive files as given (each through a temporary file and a rename).
void ScriviArchivi(const std::filesystem::path& cartella, std::span<const RecordEstrazione> estrazioni,
                   std::span<const RecordAnno> anni, std::span<const RecordSuperEnalotto> super);

bool CartellaDemo(const std::filesystem::path& cartella);

}  // namespace gorgo::archives
