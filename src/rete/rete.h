#pragma once
// The program's HTTP client (Qt Network), outside the core: the Internet update and the
// download of the public archive use it, from the command line and from the desktop.
