#include "tools/settings_check.h"

#include <algorithm>
#include <map>
#include <utility>

#include "files/text_file.h"
#include "settings/ini_class.h"
#include "tools/text_check.h"

namespace {

constexpr const char* kFile = "Settings.ini";

// Walks the lines as the editor's reader does and says what it makes of them other than meant.
class LineCheck {
 public:
  explicit LineCheck(Findings& findings) : findings_(findings) {}

  void CheckLines(std::string_view text);
  // After the last line.
  void CheckSections() const;

 private:
  using Places = std::map<std::string, int32_t, std::less<>>;
  struct Section {
    explicit Section(LeadingSpaces beforeFile) : spaces(beforeFile) {}

    LeadingSpaces spaces;
    bool found = false;
    int32_t entries = 0;
    Places keys, texts;  // the line of each
  };

  void CheckLine(std::string_view text);
  void OpenSection(std::string_view name);
  void CheckIgnored(std::string_view text);
  void CheckKey(std::string_view key);
  void CheckValue(std::string_view value);
  // Notes the line of a name; warns or fails of one that has a line already.
  bool IsNew(Places& places, std::string_view name, std::string& where) const;
  void Error(const std::string& reason) const { findings_.Error(kFile, Here() + reason); }
  void Warn(const std::string& reason) const { findings_.Warn(kFile, Here() + reason); }
  std::string Here() const { return "line " + std::to_string(line_) + " "; }

  Findings& findings_;
  int32_t line_ = 0;
  bool inSection_ = false;
  Section* catalogue_ = nullptr;  // that of the line, null in other sections
  std::map<std::string, Section, std::less<>> catalogues_ = {
      {"SymbolsList", Section(LeadingSpaces::kKeep)},
      {"CameosList", Section(LeadingSpaces::kSkip)}};
};

void LineCheck::CheckLines(std::string_view text) {
  while (!text.empty()) {
    ++line_;
    const std::string_view whole = text.substr(0, text.find('\n'));
    text.remove_prefix(std::min(text.size(), whole.size() + 1));
    if (whole.size() >= IniClass::kLongestPiece) {
      Error("is longer than " + std::to_string(IniClass::kLongestPiece - 1) +
            " bytes: what follows counts as another line");
    }
    CheckLine(whole.substr(0, std::min(whole.find('\0'), IniClass::kLongestPiece)));
  }
}

void LineCheck::CheckLine(std::string_view text) {
  const IniLine line = ParseIniLine(text);
  if (line.IsHeader()) OpenSection(SectionName(line.text));
  if (!line.IsKeyLine()) {
    if (!line.IsHeader() && !line.text.empty()) CheckIgnored(line.text);
    return;
  }
  if (!inSection_) Warn("stands before the first section and is ignored");
  if (!catalogue_) return;
  ++catalogue_->entries;
  CheckKey(line.text.substr(0, line.equals));
  CheckValue(line.text.substr(line.equals + 1));
}

void LineCheck::OpenSection(std::string_view name) {
  inSection_ = true;
  if (name.size() > IniClass::kLongestSectionName) {
    Warn("names a section with more than " + std::to_string(IniClass::kLongestSectionName) +
         " bytes: the rest is cut off");
  }
  const auto known = catalogues_.find(name);
  catalogue_ = known == catalogues_.end() ? nullptr : &known->second;
  if (!catalogue_ || !std::exchange(catalogue_->found, true)) return;
  Error("opens [" + std::string(name) + "] again: the editor reads the first one only");
  catalogue_ = nullptr;
}

void LineCheck::CheckIgnored(std::string_view text) {
  const auto count = std::count(text.begin(), text.end(), '=');
  const char* const why = count == 0   ? "has no '='"
                          : count == 1 ? "has nothing on one side of its '='"
                                       : "has more than one '='";
  (catalogue_ && count > 0) ? Error(std::string(why) + ": the editor ignores it")
                            : Warn(std::string(why) + ": the editor ignores it");
}

bool LineCheck::IsNew(Places& places, std::string_view name, std::string& where) const {
  const auto [place, isNew] = places.try_emplace(std::string(name), line_);
  where = "of line " + std::to_string(place->second);
  return isNew;
}

void LineCheck::CheckKey(std::string_view key) {
  if (key.size() > IniClass::kLongestKey) {
    Warn("has a key of more than " + std::to_string(IniClass::kLongestKey) +
         " bytes: the rest is cut off");
    key = key.substr(0, IniClass::kLongestKey);
  }
  if (key.ends_with(' ')) Warn("has a space before its '=', which belongs to the key");
  std::string where;
  if (!IsNew(catalogue_->keys, key, where)) {
    Error("has the key " + where + ": the editor lists that entry again instead of this one");
  }
}

void LineCheck::CheckValue(std::string_view value) {
  if (value.size() > kLongestCatalogueValue) {
    Error("has more than " + std::to_string(kLongestCatalogueValue) +
          " bytes behind its '=': the rest is cut off");
  }
  if (value.starts_with(' ')) Warn("has a space behind its '=', which belongs to the text");
  const auto entry = SplitCatalogueEntry(value, catalogue_->spaces);
  if (!entry) return Error("names no text and file with a comma between: the editor leaves it out");
  if (std::count(value.begin(), value.end(), ',') > 1) Warn("has more than one comma");
  std::string where;
  if (!IsNew(catalogue_->texts, entry->text, where)) {
    Warn("has the text " + where + ": the list shows it twice");
  }
}

void LineCheck::CheckSections() const {
  for (const auto& [name, section] : catalogues_) {
    if (!section.found) {
      findings_.Error(kFile, "has no section [" + name + "]");
    } else if (section.entries == 0) {
      findings_.Warn(kFile, "has no entries in [" + name + "]");
    }
  }
}

}  // namespace

Catalogues CheckSettings(const std::string& folder, Findings& findings) {
  const std::string path = folder + kFile;
  Catalogues catalogues;
  std::string text;
  if (!ReadBytes(path, text)) {
    findings.Error(kFile, "cannot be found or read");
    return catalogues;
  }
  if (!CheckEncoding(kFile, text, findings)) return catalogues;
  TranslateTextMode(text);
  LineCheck lines(findings);
  lines.CheckLines(text);
  lines.CheckSections();
  ReadCatalogue(path.c_str(), "SymbolsList", LeadingSpaces::kKeep, catalogues.symbols);
  ReadCatalogue(path.c_str(), "CameosList", LeadingSpaces::kSkip, catalogues.cameos);
  return catalogues;
}
