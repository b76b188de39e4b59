#pragma once
// gorgo-cli run as a child process, as a user runs it: exit code, stdout, stderr.

#include <string>
#include <vector>

namespace gorgo::test {

struct Esito {
    int codice = -1;
    std::string out, err;
};

// The binary is $GORGO_CLI (set by the test runner), else gorgo-cli on the PATH.
Esito Esegui(const std::vector<std::string>& argomenti);

}  // namespace gorgo::test
