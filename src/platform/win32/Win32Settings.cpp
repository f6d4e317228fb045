#include "platform/win32/Win32.h"
#include "platform/win32/Win32Services.h"

namespace troth {

namespace {

constexpr std::size_t kUsualLength = 256;

// A name of the store becomes one level of the registry; so it cannot contain the separator of the levels.
std::wstring PathOf(const std::wstring& application, const std::wstring& section) {
  std::wstring path = L"Software\\Trothline\\";
  for (const wchar_t c : application) path += c == L'\\' ? L'/' : c;
  path += L'\\';
  for (const wchar_t c : section) path += c == L'\\' ? L'/' : c;
  return path;
}

}  // namespace

std::optional<std::wstring> Win32Settings::Read(const std::wstring& application, const std::wstring& section,
                                                const std::wstring& key) const {
  const std::wstring path = PathOf(application, section);
  // Most values are short: one call is enough for them.
  std::wstring value(kUsualLength, L'\0');
  for (;;) {
    const HKEY store = Open(path);
    if (!store) return std::nullopt;
    auto size = static_cast<DWORD>(value.size() * sizeof(wchar_t));
    const LSTATUS status =
        RegGetValueW(store, nullptr, key.c_str(), RRF_RT_REG_SZ, nullptr, value.data(), &size);
    if (status == ERROR_KEY_DELETED) {
      // The key was deleted; there may be a new one of the same name.
      open_.reset();
      continue;
    }
    if (status && status != ERROR_MORE_DATA) return std::nullopt;
    value.resize(size / sizeof(wchar_t));
    if (status) continue;
    if (!value.empty() && value.back() == L'\0') value.pop_back();
    return value;
  }
}

HKEY Win32Settings::Open(const std::wstring& path) const {
  if (open_ && path == openPath_) return open_.get();
  HKEY opened = nullptr;
  RegOpenKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, KEY_QUERY_VALUE, &opened);
  open_.reset(opened);
  openPath_ = path;
  return opened;
}

void Win32Settings::Write(const std::wstring& application, const std::wstring& section,
                          const std::wstring& key, const std::wstring& value) {
  HKEY opened = nullptr;
  if (RegCreateKeyExW(HKEY_CURRENT_USER, PathOf(application, section).c_str(), 0, nullptr, 0, KEY_SET_VALUE,
                      nullptr, &opened, nullptr))
    return;
  const UniqueKey store(opened);
  const auto size = static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t));
  RegSetValueExW(store.get(), key.c_str(), 0, REG_SZ, reinterpret_cast<const BYTE*>(value.c_str()), size);
}

}  // namespace troth
