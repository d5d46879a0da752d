#include "tools/check.h"

#include "platform/win32.h"
#include "tools/output_texts.h"
#include "tools/picture_check.h"
#include "tools/settings_check.h"
#include "tools/text_check.h"

namespace {

// The folder as the editor would have it: its full path, ending in a backslash. Empty for none.
std::string FullFolder(const std::string& folder) {
  const DWORD attributes = GetFileAttributesA(folder.c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES || !(attributes & FILE_ATTRIBUTE_DIRECTORY)) return {};
  char full[MAX_PATH] = {};
  const DWORD length = GetFullPathNameA(folder.c_str(), MAX_PATH, full, nullptr);
  if (length == 0 || length >= MAX_PATH) return {};
  std::string path = full;
  if (path.back() != '\\') path += '\\';
  return path;
}

void CheckReadme(const std::string& folder, Findings& findings) {
  constexpr const char* kReadme = "Templates\\readme.txt";
  std::string text;
  if (!ReadBytes(folder + kReadme, text) || text.empty()) {
    return findings.Warn(kReadme, "is missing or empty: the About box shows no text");
  }
  if (!IsUtf8(text)) findings.Warn(kReadme, "is not UTF-8: the About box shows other characters");
}

}  // namespace

ExitCode Check(const Arguments& arguments, Output& output) {
  const std::string& given = arguments.Files()[0];
  const std::string folder = FullFolder(given);
  if (folder.empty()) return output.Fail(given, "is no folder that can be read");
  Findings findings(output);
  const Catalogues catalogues = CheckSettings(folder, findings);
  PictureCheck pictures(folder, findings);
  pictures.CheckTemplates();
  pictures.CheckSymbols(catalogues.symbols);
  pictures.CheckCameos(catalogues.cameos);
  CheckReadme(folder, findings);
  if (arguments.Has("--verbose")) {
    output.out += given + ": " + Counted(pictures.Count(), "picture") + ", " +
                  Counted(findings.Errors(), "error") + ", " +
                  Counted(findings.Warnings(), "warning") + "\n";
  }
  return findings.Errors() > 0 ? kFound : kDone;
}
