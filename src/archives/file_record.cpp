#include "archives/file_record.h"

#include <fcntl.h>
#include <fmt/format.h>
#include <sys/stat.h>
#include <unistd.h>
#include <cerrno>
#include <cstring>

namespace gorgo::archives {

namespace fs = std::filesystem;

FileRecord::FileRecord(fs::path percorso, int flags, bool assenteVuoto) : percorso_(std::move(percorso)) {
    do {
        fd_ = ::open(percorso_.c_str(), flags | O_CLOEXEC, 0644);
    } while (fd_ < 0 && errno == EINTR);
    if (fd_ < 0 && !(assenteVuoto && errno == ENOENT)) Errore("aprire");
}

FileRecord::~FileRecord() {
    if (fd_ >= 0) ::close(fd_);
}

uint64_t FileRecord::lunghezza() const {
    if (fd_ < 0) return 0;
    struct stat st {};
    if (::fstat(fd_, &st) != 0) Errore("leggere la lunghezza di");
    return static_cast<uint64_t>(st.st_size);
}

void FileRecord::leggi(uint64_t offset, void* dest, size_t n) const {
    auto* p = static_cast<char*>(dest);
    while (n > 0) {
        const ssize_t r = fd_ < 0 ? 0 : ::pread(fd_, p, n, static_cast<off_t>(offset));
        if (r < 0 && errno == EINTR) continue;
        if (r < 0) Errore("leggere");
        if (r == 0) throw ErroreArchivio(fmt::format("Lettura oltre la fine del file {}", percorso_.string()));
        p += r;
        n -= static_cast<size_t>(r);
        offset += static_cast<uint64_t>(r);
    }
}

std::string FileRecord::leggi(uint64_t offset, size_t n) const {
    std::string s(n, '\0');
    size_t fatto = 0;
    while (fd_ >= 0 && fatto < n) {
        const ssize_t r = ::pread(fd_, s.data() + fatto, n - fatto, static_cast<off_t>(offset + fatto));
        if (r < 0 && errno == EINTR) continue;
        if (r < 0) Errore("leggere");
        if (r == 0) break;
        fatto += static_cast<size_t>(r);
    }
    s.resize(fatto);
    return s;
}

void FileRecord::scrivi(uint64_t offset, const void* src, size_t n) {
    if (fd_ < 0) throw ErroreArchivio(fmt::format("Il file {} è aperto in sola lettura", percorso_.string()));
    const auto* p = static_cast<const char*>(src);
    while (n > 0) {
        const ssize_t r = ::pwrite(fd_, p, n, static_cast<off_t>(offset));
        if (r < 0 && errno == EINTR) continue;
        if (r <= 0) Errore("scrivere");
        p += r;
        n -= static_cast<size_t>(r);
        offset += static_cast<uint64_t>(r);
    }
}

void FileRecord::sincronizza() {
    if (fd_ >= 0 && ::fdatasync(fd_) != 0) Errore("scrivere");
}

void FileRecord::tronca(uint64_t lunghezza) {
    if (fd_ < 0) throw ErroreArchivio(fmt::format("Il file {} è aperto in sola lettura", percorso_.string()));
    if (::ftruncate(fd_, static_cast<off_t>(lunghezza)) != 0) Errore("troncare");
    sincronizza();
}

void FileRecord::ripristina(uint64_t lunghezzaPrima, uint64_t lunghezzaRecord) noexcept {
    if (fd_ < 0 || lunghezzaRecord == 0) return;
    if (::ftruncate(fd_, static_cast<off_t>(lunghezzaPrima / lunghezzaRecord * lunghezzaRecord)) == 0) ::fdatasync(fd_);
}

void FileRecord::Errore(const char* azione) const {
    const int errore = errno;
    throw ErroreArchivio(
        fmt::format("Impossibile {} il file {} : {}", azione, percorso_.string(), std::strerror(errore)));
}

}  // namespace gorgo::archives
