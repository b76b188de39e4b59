#pragma once
// The browser and the mail program of the desktop, for an address.

#include <QString>

namespace gorgo::screens {

// Opens the address in the browser ("http://" in front when it does not start with "http").
// False when the desktop could not open it.
bool ApriBrowser(QString indirizzo);
// Opens a new mail to the address ("mailto:" in front when missing).
bool Email(QString indirizzo);

}  // namespace gorgo::screens
