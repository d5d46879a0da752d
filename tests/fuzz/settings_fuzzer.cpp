// Any "Settings.ini": every limit that its readers promise.
#include <cstring>

#include "dialogs/catalogue.h"
#include "dialogs/dialog.h"
#include "document/load_screen_doc.h"
#include "fuzz/fuzz_target.h"
#include "settings/ini_class.h"
#include "support/file_content.h"
#include "support/temp_folder.h"

namespace {

constexpr int kLongestBuffer = 300;

const TempFolder& Folder() {
  static const TempFolder folder;
  return folder;
}

// The value as a buffer of exactly n + 1 bytes gets it, zeros cut off. An overrun is the
// sanitizer's find.
std::string ValueOf(const IniClass& settings, const char* section, const char* key, int n) {
  const std::vector<char> before(static_cast<size_t>(n) + 1, '\x55');
  std::vector<char> buffer = before;
  Require(settings.GetString(section, key, buffer.data(), n), "a listed key has a value");
  const std::string value = buffer.data();
  Require(value.size() <= static_cast<size_t>(n), "a value ends in its buffer");
  Require(std::count(buffer.begin(), buffer.end(), '\0') ==
              static_cast<ptrdiff_t>(buffer.size() - value.size()),
          "zeros fill the buffer");
  return value;
}

void CheckKey(const IniClass& settings, const char* section, const char* key) {
  Require(std::strlen(key) >= 1 && std::strlen(key) <= IniClass::kLongestKey, "length of a key");
  const std::string value = ValueOf(settings, section, key, kLongestBuffer);
  Require(!value.empty() && value.find_first_of("=;\n") == std::string::npos, "form of a value");
  for (const int n : {0, 1, 2, 7}) {
    Require(ValueOf(settings, section, key, n) == value.substr(0, static_cast<size_t>(n)),
            "a small buffer gets the value's start");
  }
  char untouched = 'x';
  Require(!settings.GetString(section, key, &untouched, -1) && untouched == 'x', "no room");
  // Without a number, the value is 0 and not what a missing key would be.
  Require(settings.GetInt(section, key, 1) == settings.GetInt(section, key, 2), "the number");
  Require(settings.GetBool(section, key, true) == settings.GetBool(section, key, false), "yes");
}

void CheckCatalogue(const char* section) {
  char before[MAX_PATH] = "";
  GetCurrentDirectoryA(MAX_PATH, before);
  for (const LeadingSpaces spaces : {LeadingSpaces::kKeep, LeadingSpaces::kSkip}) {
    const auto entries = ReadCatalogue(nullptr, section, spaces);
    Require(entries.has_value(), "a section is a catalogue");
    for (const CatalogueEntry& entry : *entries) {
      Require(!entry.text.empty() && !entry.fileName.empty(), "entries have both pieces");
      Require((entry.text + entry.fileName).find(',') == std::string::npos, "no comma is left");
      Require(TemplatePath(doc.appDir, entry.fileName.c_str()).size() < MAX_PATH, "paths fit");
    }
  }
  SetCurrentDirectoryA(before);
}

}  // namespace

std::vector<std::string> FuzzSeeds() {
  std::vector<std::string> seeds = {
      "; Pictures\r\n[SymbolsList]\r\n1=Star, sym_star.png\r\n2=Tank,,sym_tank.png,more\r\n"
      "[CameosList]\r\n 3 = Yes ,  cam.png ; comment\r\na=b=c\r\n=x\r\ny=\r\n[ Other=1 ]\r\n",
      "[General]\nWidth=800\nHuge=99999999999999999999\nSigned=-12x\nShow=YES\nHide=true\n"};
  seeds.push_back("[" + std::string(70, 's') + "]\n" + std::string(70, 'k') + "=" +
                  std::string(4200, 'v'));
  return seeds;
}

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string folder = Folder().Path("");
  std::copy(folder.begin(), folder.end() + 1, doc.appDir);
  const std::string path = Folder().Path("Settings.ini");
  // Some file systems wait for the disk when a file is replaced.
  std::remove(path.c_str());
  WriteContent(path, std::string(reinterpret_cast<const char*>(data), size));
  IniClass settings(path.c_str());
  Require(settings.Load(), "the file is read");
  for (int i = 0; i < settings.GetSectionCount(); ++i) {
    const char* section = settings.GetSectionName(i);
    Require(std::strlen(section) <= IniClass::kLongestSectionName, "length of a section's name");
    Require(settings.SectionExists(section), "a listed section exists");
    const int count = settings.GetKeyCount(section);
    for (int k = 0; k < count; ++k) CheckKey(settings, section, settings.GetKeyName(section, k));
    Require(!settings.GetKeyName(section, -1) && !settings.GetKeyName(section, count), "the ends");
    CheckCatalogue(section);
  }
  Require(!settings.GetSectionName(settings.GetSectionCount()), "the last section");
  return 0;
}
