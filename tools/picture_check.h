#pragma once

#include <string>
#include <vector>

#include "settings/catalogue.h"
#include "tools/findings.h"

// Finds what is wrong with the pictures of a package, whose folder ends in a backslash.
class PictureCheck {
 public:
  PictureCheck(const std::string& folder, Findings& findings)
      : folder_(folder), findings_(findings) {}

  // Those that the editor loads by names of its own.
  void CheckTemplates();
  // Those that the catalogues name; one that is named more than once is looked at once.
  void CheckSymbols(const std::vector<CatalogueEntry>& symbols);
  void CheckCameos(const std::vector<CatalogueEntry>& cameos);

  // How many pictures were looked at.
  int32_t Count() const { return count_; }

 private:
  class Picture;

  void CheckBoxes();
  void CheckMaps();
  void CheckOverlays();

  const std::string& folder_;
  Findings& findings_;
  int32_t count_ = 0;
};
