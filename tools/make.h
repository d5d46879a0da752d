#pragma once

#include "tools/arguments.h"
#include "tools/output.h"

// make PICTURE OUT.shp OUT.pal [--colors N | --palette FILE.pal] [--any-size]
ExitCode Make(const Arguments& arguments, Output& output);
