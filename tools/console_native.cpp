#include "tools/console.h"

// Terminals show UTF-8 as it is.
ConsoleText::ConsoleText() = default;

ConsoleText::~ConsoleText() = default;
