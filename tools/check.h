#pragma once

#include "tools/arguments.h"
#include "tools/output.h"

// check FOLDER
ExitCode Check(const Arguments& arguments, Output& output);
