#pragma once

#include "tools/arguments.h"
#include "tools/output.h"

// show FILE.shp FILE.pal OUT.png [--frame N]
ExitCode Show(const Arguments& arguments, Output& output);
