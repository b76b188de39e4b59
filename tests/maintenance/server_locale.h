#pragma once
// A tiny HTTP server for the tests of the downloads: it listens on 127.0.0.1 only, on a port
// of its own, serves canned answers by path from a thread of its own (so blocking clients and
// child processes can talk to it), and stops by itself after a bounded number of connections
// or a bounded time, whichever comes first.

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <map>
#include <mutex>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

namespace gorgo::test {

struct RispostaHttp {
    std::string dati;        // the bytes sent, status line and headers included
    bool trattieni = false;  // then keep the connection open until the client leaves
};

// A whole answer with its length.
inline RispostaHttp Risposta(int stato, const std::string& testo, const std::string& corpo,
                             const std::string& intestazioni = {}) {
    return {"HTTP/1.1 " + std::to_string(stato) + " " + testo + "\r\nContent-Length: " + std::to_string(corpo.size()) +
                "\r\nConnection: close\r\n" + intestazioni + "\r\n" + corpo,
            false};
}
// A 200 answer that announces the whole body and sends only its first `inviati` bytes.
inline RispostaHttp RispostaTroncata(const std::string& corpo, std::size_t inviati) {
    return {"HTTP/1.1 200 OK\r\nContent-Length: " + std::to_string(corpo.size()) + "\r\nConnection: close\r\n\r\n" +
                corpo.substr(0, inviati),
            false};
}
// A 200 answer that sends `inviati` bytes and then waits: for the cancel and the time-out.
inline RispostaHttp RispostaSospesa(const std::string& corpo, std::size_t inviati) {
    RispostaHttp r = RispostaTroncata(corpo, inviati);
    r.trattieni = true;
    return r;
}

// Only loopback traffic: no proxy of the environment may take the tests' requests elsewhere.
inline void SoloLoopback() {
    for (const char* v : {"http_proxy", "HTTP_PROXY", "https_proxy", "HTTPS_PROXY", "all_proxy", "ALL_PROXY"})
        ::unsetenv(v);
    ::setenv("no_proxy", "127.0.0.1,localhost", 1);
}

class ServerLocale {
public:
    explicit ServerLocale(int massimoConnessioni = 32, std::chrono::seconds durata = std::chrono::seconds(60))
        : massimo_(massimoConnessioni), scadenza_(std::chrono::steady_clock::now() + durata) {
        SoloLoopback();
        fd_ = ::socket(AF_INET, SOCK_STREAM, 0);
        if (fd_ < 0) throw std::runtime_error("socket");
        const int uno = 1;
        ::setsockopt(fd_, SOL_SOCKET, SO_REUSEADDR, &uno, sizeof uno);
        sockaddr_in a{};
        a.sin_family = AF_INET;
        a.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        a.sin_port = 0;
        if (::bind(fd_, reinterpret_cast<sockaddr*>(&a), sizeof a) != 0 || ::listen(fd_, 8) != 0) {
            ::close(fd_);
            throw std::runtime_error("bind 127.0.0.1");
        }
        socklen_t l = sizeof a;
        ::getsockname(fd_, reinterpret_cast<sockaddr*>(&a), &l);
        porta_ = ntohs(a.sin_port);
        thread_ = std::thread([this] { Servi(); });
    }
    ~ServerLocale() { Ferma(); }
    ServerLocale(const ServerLocale&) = delete;
    ServerLocale& operator=(const ServerLocale&) = delete;

    uint16_t porta() const { return porta_; }
    // "http://127.0.0.1:<porta>" followed by `percorso`.
    std::string Indirizzo(const std::string& percorso = "/") const {
        return "http://127.0.0.1:" + std::to_string(porta_) + percorso;
    }
    void Imposta(const std::string& percorso, RispostaHttp risposta) {
        std::lock_guard<std::mutex> g(m_);
        risposte_[percorso] = std::move(risposta);
    }
    int richieste() const { return richieste_; }
    std::vector<std::string> percorsi() const {
        std::lock_guard<std::mutex> g(m_);
        return percorsi_;
    }
    void Ferma() {
        fermo_ = true;
        if (thread_.joinable()) thread_.join();
        if (fd_ >= 0) ::close(fd_);
        fd_ = -1;
    }

private:
    bool Finito() const { return fermo_ || std::chrono::steady_clock::now() > scadenza_; }

    void Servi() {
        while (!Finito() && richieste_ < massimo_) {
            pollfd p{fd_, POLLIN, 0};
            if (::poll(&p, 1, 50) <= 0) continue;
            const int c = ::accept(fd_, nullptr, nullptr);
            if (c < 0) continue;
            ++richieste_;
            Rispondi(c);
            ::close(c);
        }
    }

    void Rispondi(int c) {
        std::string richiesta;
        char buf[4096];
        while (richiesta.find("\r\n\r\n") == std::string::npos && richiesta.size() < 65536 && !Finito()) {
            pollfd p{c, POLLIN, 0};
            if (::poll(&p, 1, 50) <= 0) continue;
            const ssize_t n = ::recv(c, buf, sizeof buf, 0);
            if (n <= 0) return;
            richiesta.append(buf, static_cast<std::size_t>(n));
        }
        // "GET /path HTTP/1.1"
        const auto a = richiesta.find(' ');
        const auto b = a == std::string::npos ? a : richiesta.find(' ', a + 1);
        const std::string percorso = b == std::string::npos ? "" : richiesta.substr(a + 1, b - a - 1);
        RispostaHttp r = Risposta(404, "Not Found", "Not Found");
        {
            std::lock_guard<std::mutex> g(m_);
            percorsi_.push_back(percorso);
            if (auto it = risposte_.find(percorso); it != risposte_.end()) r = it->second;
        }
        std::size_t inviati = 0;
        while (inviati < r.dati.size()) {
            const ssize_t n = ::send(c, r.dati.data() + inviati, r.dati.size() - inviati, MSG_NOSIGNAL);
            if (n <= 0) return;
            inviati += static_cast<std::size_t>(n);
        }
        if (!r.trattieni) {
            ::shutdown(c, SHUT_WR);
            // Let the client read everything before the socket goes.
            for (int i = 0; i < 40 && !Finito(); ++i) {
                pollfd p{c, POLLIN, 0};
                if (::poll(&p, 1, 50) > 0 && ::recv(c, buf, sizeof buf, 0) <= 0) break;
            }
            return;
        }
        while (!Finito()) {
            pollfd p{c, POLLIN, 0};
            if (::poll(&p, 1, 50) > 0 && ::recv(c, buf, sizeof buf, 0) <= 0) return;  // the client left
        }
    }

    int fd_ = -1;
    uint16_t porta_ = 0;
    const int massimo_;
    const std::chrono::steady_clock::time_point scadenza_;
    std::atomic<bool> fermo_{false};
    std::atomic<int> richieste_{0};
    mutable std::mutex m_;
    std::map<std::string, RispostaHttp> risposte_;
    std::vector<std::string> percorsi_;
    std::thread thread_;
};

}  // namespace gorgo::test
