// What the native benchmarks share: a script file on the disk, a platform that reads it, and a watch. Run by
// hand; no limit is enforced.
#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/Platform.h"
#include "platform/headless/HeadlessDesktop.h"

namespace troth {

// Files of the host, by their own paths.
class DiskFiles final : public HeadlessFiles {
 public:
  bool Exists(const std::wstring& path) const override;
  std::optional<std::string> Read(const std::wstring& path) const override;
};

// The headless desktop over files of the host. Made first in `main`: memory once taken is kept from then on,
// or either side of a comparison would pay at times for getting it from the kernel again.
class BenchDesktop {
 public:
  BenchDesktop();

 private:
  HeadlessDesktop desktop_;
  DiskFiles disk_;

 public:
  Platform platform;
};

// A script of so many rows in the folder for temporary files, gone at the end of its scope.
class ScriptFile {
 public:
  // `line` gives the text of each row, from 1.
  ScriptFile(std::int32_t rows, const std::function<std::string(std::int32_t)>& line);
  ~ScriptFile();
  ScriptFile(const ScriptFile&) = delete;
  ScriptFile& operator=(const ScriptFile&) = delete;

  std::wstring Path() const { return path_.wstring(); }

 private:
  std::filesystem::path path_;
};

class Watch {
 public:
  double ElapsedMs() const {
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start_).count();
  }

 private:
  std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
};

double Median(std::vector<double> samples);

}  // namespace troth
