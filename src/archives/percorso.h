#pragma once
// Where the program folder (PercorsoProgramma) is: the folder given on the command
// line, else $GORGO_HOME, else the executable's folder when it holds Archivi/, else ~/Gorgo.

#include <filesystem>
#include <optional>
#include <string>

namespace gorgo::archives {

struct AmbientePercorso {
    std::optional<std::filesystem::path> cartella;  // --cartella
    std::optional<std::string> gorgoHome;           // $GORGO_HOME
    std::filesystem::path cartellaEseguibile;
    std::optional<std::string> home;  // $HOME
};

std::filesystem::path TrovaPercorsoProgramma(const AmbientePercorso& ambiente);
// The values of this process (environment, /proc/self/exe).
AmbientePercorso AmbienteCorrente(std::optional<std::filesystem::path> cartella);

}  // namespace gorgo::archives
