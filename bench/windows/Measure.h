// What all figures of the desktop have in common: a clock, the median of many turns, the line that is
// printed, and a program started and found again by its window.
#pragma once

#include <windows.h>

#include <cstddef>
#include <string>
#include <vector>

#include "platform/win32/Win32.h"

namespace troth::bench {

double NowMs();
double Median(std::vector<double> samples);

// "name: measured unit (limit)". A missed limit is said aloud and fails nothing: the machine may be busy.
struct Limit {
  bool atMost;
  double value;
};
void Report(const std::string& name, double measured, const std::string& unit, Limit limit);

std::wstring ProgramPath(const std::wstring& executable);

// Settings of the programs to be started, as the registry has them. Forgetting takes a whole section.
void StoreSetting(const wchar_t* section, const wchar_t* key, const std::wstring& value);
void ForgetSettings(const wchar_t* section);

// A program from its start to the end of the scope.
class Started {
 public:
  explicit Started(const std::wstring& path);
  ~Started();
  Started(const Started&) = delete;
  Started& operator=(const Started&) = delete;

  // Returns as soon as the main window of the program is visible.
  void WaitUntilShown() const;
  // Returns when it waits for input for the first time: all that belongs to the start is done.
  void WaitUntilIdle() const;
  // Closes the window as the user does and returns when the process has ended, or by force after a while.
  void Close() const;
  // User and kernel time that its threads have spent so far.
  double ProcessorMs() const;

 private:
  Unique<HANDLE, CloseHandle> process_;
  DWORD id_ = 0;
};

// The figures, one function a file.
void MeasureAuthoring();
void MeasureBars();
void MeasureBrowser();
void MeasureCapture();
void MeasureHotkey();
void MeasureList();
void MeasurePosting();
void MeasureProgram();
void MeasureShip();

}  // namespace troth::bench
