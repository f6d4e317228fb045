#include "bench/Bench.h"

#include <malloc.h>

#include <algorithm>
#include <fstream>
#include <random>
#include <system_error>

namespace troth {

bool DiskFiles::Exists(const std::wstring& path) const {
  std::error_code ignored;
  return std::filesystem::is_regular_file(path, ignored);
}

std::optional<std::string> DiskFiles::Read(const std::wstring& path) const {
  std::ifstream file(std::filesystem::path(path), std::ios::binary | std::ios::ate);
  if (!file) return std::nullopt;
  std::string bytes(static_cast<std::size_t>(file.tellg()), '\0');
  file.seekg(0);
  if (!file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()))) return std::nullopt;
  return bytes;
}

BenchDesktop::BenchDesktop()
    : platform{.forms = desktop_.forms,
               .windows = desktop_.windows,
               .keyboard = desktop_.keyboard,
               .time = desktop_.time,
               .files = disk_,
               .settings = desktop_.settings,
               .shell = desktop_.shell,
               .dialogs = desktop_.dialogs,
               .text = desktop_.text,
               .process = desktop_.process,
               .graphics = desktop_.graphics} {
  mallopt(M_MMAP_THRESHOLD, 1 << 30);
  mallopt(M_TRIM_THRESHOLD, 1 << 30);
}

ScriptFile::ScriptFile(std::int32_t rows, const std::function<std::string(std::int32_t)>& line)
    : path_(std::filesystem::temp_directory_path() /
            ("troth_bench_" + std::to_string(std::random_device{}()) + ".txt")) {
  std::ofstream file(path_, std::ios::binary);
  for (std::int32_t row = 1; row <= rows; ++row) file << line(row) << "\r\n";
}

ScriptFile::~ScriptFile() {
  std::error_code ignored;
  std::filesystem::remove(path_, ignored);
}

double Median(std::vector<double> samples) {
  const auto middle = samples.begin() + static_cast<std::ptrdiff_t>(samples.size() / 2);
  std::nth_element(samples.begin(), middle, samples.end());
  return *middle;
}

}  // namespace troth
