#include "tools/console.h"

// Terminals show UTF-8 as it is.
unsigned UseUtf8Console() { return 0; }

void RestoreConsole(unsigned) {}
