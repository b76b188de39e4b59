#pragma once
// One archive file on its own descriptor, for the archive and for the maintenance writers
// alike: positioned reads and writes of whole blocks, an explicit flush, and one way back
// after a failed write that never leaves a partial record behind.

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>

namespace gorgo::archives {

// An input/output failure on an archive file; the text is Italian and names the file.
class ErroreArchivio : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

class FileRecord {
public:
    // Opens with the flags of open(2). With `assenteVuoto` an absent file is no error: it
    // reads as empty and refuses writes. Throws ErroreArchivio.
    FileRecord(std::filesystem::path percorso, int flags, bool assenteVuoto = false);
    ~FileRecord();
    FileRecord(const FileRecord&) = delete;
    FileRecord& operator=(const FileRecord&) = delete;

    const std::filesystem::path& percorso() const { return percorso_; }
    uint64_t lunghezza() const;

    // Exactly `n` bytes at `offset`; reading past the end is an error.
    void leggi(uint64_t offset, void* dest, size_t n) const;
    // Up to `n` bytes at `offset`: fewer at the end of the file.
    std::string leggi(uint64_t offset, size_t n) const;

    // Writes without flushing; sincronizza() makes the data durable.
    void scrivi(uint64_t offset, const void* src, size_t n);
    void scrivi(uint64_t offset, std::string_view dati) { scrivi(offset, dati.data(), dati.size()); }
    void sincronizza();
    // Cuts the file to `lunghezza` bytes and flushes.
    void tronca(uint64_t lunghezza);

    // After a failed write: cuts the file back to the last whole record within the length it
    // had before (a partial trailing record that was there goes too, as the repair would take
    // it), so a half-written record never stays. Never throws: it runs while the write's own
    // error is on its way.
    void ripristina(uint64_t lunghezzaPrima, uint64_t lunghezzaRecord) noexcept;

private:
    [[noreturn]] void Errore(const char* azione) const;

    std::filesystem::path percorso_;
    int fd_ = -1;
};

}  // namespace gorgo::archives
