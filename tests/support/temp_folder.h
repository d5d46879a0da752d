#pragma once

#include <filesystem>
#include <random>
#include <string>
#include <system_error>

// A fresh folder among the system's temporary files; removed with all it holds.
class TempFolder {
 public:
  TempFolder() {
    do {
      folder_ = std::filesystem::temp_directory_path() /
                ("corvanta" + std::to_string(std::random_device()()));
    } while (!std::filesystem::create_directory(folder_));
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
