// The services of the Windows backend, each a thin layer over the system's calls, without rules of the
// program.
#pragma once

#include "platform/services/ProcessService.h"
#include "platform/services/SettingsStore.h"
#include "platform/services/TextService.h"
#include "platform/services/TimeService.h"
#include "platform/services/WindowService.h"
#include "platform/win32/Win32.h"

namespace troth {

class Win32Loop;

class Win32Time final : public TimeService {
 public:
  explicit Win32Time(Win32Loop& loop) : loop_(loop) {}
  std::uint32_t TickCount() const override;
  LocalTime Now() const override;
  std::wstring LongDate(const LocalTime& time) const override;
  std::wstring DayName(int dayOfWeek) const override;
  std::wstring MonthName(int month) const override;
  void Sleep(int ms) override;
  void Pump(int waitMs) override;

 private:
  void SetFineResolution(bool isFine) override;

  Win32Loop& loop_;
};

class Win32Windows final : public WindowService {
 public:
  using WindowService::WindowService;
  WindowHandle Find(std::wstring_view className) override;
  bool Raise(WindowHandle window) override;
  bool HasKeyboard(WindowHandle window) override;
  void Restore(WindowHandle window) override;
  bool IsMinimised(WindowHandle window) override;
  void SetStacking(WindowHandle window, Stacking stacking) override;
  std::optional<PixelRect> OuterRect(WindowHandle window) override;
  std::optional<PixelRect> ClientRect(WindowHandle window) override;

 private:
  PostOutcome TryPost(WindowHandle window, unsigned char code) override;
};

// HKEY_CURRENT_USER\Software\Trothline\APPLICATION\SECTION, one text value a key.
class Win32Settings final : public SettingsStore {
 public:
  std::optional<std::wstring> Read(const std::wstring& application, const std::wstring& section,
                                   const std::wstring& key) const override;
  void Write(const std::wstring& application, const std::wstring& section, const std::wstring& key,
             const std::wstring& value) override;

 private:
  HKEY Open(const std::wstring& path) const;

  // The section that was read last stays open, since settings are read one after the other.
  mutable std::wstring openPath_;
  mutable UniqueKey open_;
};

class Win32Text final : public TextService {
 public:
  std::wstring Decode(std::string_view bytes) const override;
  std::string Encode(std::wstring_view text) const override;
};

class Win32Process final : public ProcessService {
 public:
  bool IsSecondInstance() override;
  std::uint32_t RandomSeed() override;
  [[noreturn]] void EndNow(int exitCode) override;
};

}  // namespace troth
