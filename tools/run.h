#pragma once

#include <span>
#include <string>

#include "tools/output.h"

// Carries out a command line of corvanta-sprite, given without the program's name. What it prints
// is added to `output`; the result is the process's exit code.
ExitCode RunSprite(std::span<const std::string> arguments, Output& output);
