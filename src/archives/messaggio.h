#pragma once
// A message the system shows to the user. Engines return it as data; the
// screens show it in a message box, the command line prints it on stderr.

#include <string>

namespace gorgo::archives {

enum class Icona { Nessuna, Informazione, Esclamazione, Domanda, Stop };

struct Messaggio {
    std::string testo;
    std::string titolo;  // empty: the program's own title
    Icona icona = Icona::Nessuna;

    bool vuoto() const { return testo.empty(); }
};

}  // namespace gorgo::archives
