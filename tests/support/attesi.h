#pragma once
// Golden files: a text the program makes compared with the expected copy kept under
// tests/ (e.g. tests/builder/attesi/riepilogo.txt), byte for byte. With
// GORGO_AGGIORNA_ATTESI=1 the copy is rewritten from the text instead, so a deliberate
// change of layout is one run: GORGO_AGGIORNA_ATTESI=1 ctest, then review the diff.

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "config/report_testo.h"

namespace gorgo::test {

// `percorso` is relative to tests/. On a mismatch the message shows the differing lines,
// with carriage returns and bytes outside ASCII made visible.
::testing::AssertionResult ConfrontaConAtteso(std::string_view testo, std::string_view percorso);

// The lines of a report as a text, each ended by "\n", a line that opens a page led by a
// form feed (the file form with CRLF and Windows-1252 is the writer's, tested on its own).
std::string TestoRighe(const std::vector<config::RigaTesto>& righe);
std::string TestoRighe(const std::vector<std::string>& righe);

}  // namespace gorgo::test
