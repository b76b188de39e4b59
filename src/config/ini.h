#pragma once
// The settings file Gorgo.ini: sections of key=value lines, read and written key by key
// with the semantics of the Windows profile functions. Nothing is cached, so what one
// window saves the next one sees.

#include <span>
#include <string>
#include <string_view>
#include <utility>

namespace gorgo::config {

// One key and its value, for writing several keys of a section in one go.
using CoppiaChiaveValore = std::pair<std::string_view, std::string_view>;

class FileIni {
public:
    FileIni() = default;
    explicit FileIni(std::string_view fileName) { SetFileName(fileName); }

    const std::string& FileName() const { return fileName_; }
    void SetFileName(std::string_view fileName);
    // The section on which GetValue and SetValue act.
    const std::string& ApplicationKey() const { return applicationKey_; }
    void SetApplicationKey(std::string_view sezione);

    // The value of a key of ApplicationKey: cut at 1000 characters, blanks trimmed, control
    // characters dropped. A key present with an empty value gives the empty text.
    std::string GetValue(std::string_view chiave, std::string_view predefinito) const;
    // False when the file could not be written; the file is then left as it was.
    bool SetValue(std::string_view chiave, std::string_view valore);

    // The same on a section named directly, leaving ApplicationKey alone.
    std::string Leggi(std::string_view sezione, std::string_view chiave, std::string_view predefinito) const;
    bool Scrivi(std::string_view sezione, std::string_view chiave, std::string_view valore);
    // Several keys of one section in a single rewrite of the file: all or none.
    bool Scrivi(std::string_view sezione, std::span<const CoppiaChiaveValore> valori);

private:
    std::string fileName_;
    std::string applicationKey_;
};

// Section and key names compare as the profile functions do: ASCII letters without case.
bool UgualiSenzaMaiuscole(std::string_view a, std::string_view b);

std::string LeggiImpostazione(const FileIni& ini, std::string_view sezione, std::string_view chiave,
                              std::string_view predefinito);
bool ScriviImpostazione(FileIni& ini, std::string_view sezione, std::string_view chiave, std::string_view valore);

}  // namespace gorgo::config
