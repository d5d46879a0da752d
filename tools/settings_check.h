#pragma once

#include <string>
#include <vector>

#include "settings/catalogue.h"
#include "tools/findings.h"

// The catalogues of a package as the editor reads them.
struct Catalogues {
  std::vector<CatalogueEntry> symbols, cameos;
};

// Finds what is wrong with "Settings.ini" in a folder, which ends in a backslash, but for the
// pictures that it names.
Catalogues CheckSettings(const std::string& folder, Findings& findings);
