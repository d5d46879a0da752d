#pragma once

#include <chrono>
#include <filesystem>
#include <string>
#include <system_error>

// A fresh folder among the system's temporary files; removed with all it holds.
class TempFolder {
 public:
  TempFolder() {
    namespace fs = std::filesystem;
    const auto start = std::chrono::system_clock::now().time_since_epoch().count();
    for (int i = 0;; ++i) {
      const std::string name = "corvanta" + std::to_string(start) + "-" + std::to_string(i);
      folder_ = fs::temp_directory_path() / name;
      if (fs::create_directory(folder_)) return;
    }
  }
  ~TempFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
  }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  // Path of a file in the folder, made or not. `name` may name folders, separated by '/' or '\'.
  std::string Path(const std::string& name) const {
    return folder_.string() + static_cast<char>(std::filesystem::path::preferred_separator) + name;
  }

  // The folder itself, without a separator at its end.
  std::string Path() const { return folder_.string(); }

 private:
  std::filesystem::path folder_;
};
