#pragma once

#include <string>
#include <vector>

#include "platform/win32.h"

// Ten pixels a press.
struct Move {
  const char* mode;
  WORD key;
  int presses;
};

struct Symbol {
  const char* key;
  int colourButton;
  POINT at;
};

// What the maker of a load screen has in mind.
struct Plan {
  std::string name, prefix;
  int sideButton, countButton;
  std::vector<const char*> cameos;
  const char* sample;
  POINT crop;      // where the preview of the crop dialog is clicked, in hundredths
  int dimmed;      // the colour slider that goes down
  WORD lightness;  // the key for that of lightness
  std::vector<Move> moves;
  std::vector<Symbol> symbols;

  int IconCount() const { return static_cast<int>(cameos.size()); }
};

// One for each side.
const std::vector<Plan>& LoadScreenPlans();
