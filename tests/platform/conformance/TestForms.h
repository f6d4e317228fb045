// The windows of the conformance suite: one with a control of each kind and one to be shown modally. They
// write down what they hear; a test takes the lines and compares.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "platform/Platform.h"
#include "platform/forms/CheckBox.h"
#include "platform/forms/CommandButton.h"
#include "platform/forms/Form.h"
#include "platform/forms/Label.h"
#include "platform/forms/ListBox.h"
#include "platform/forms/MenuItem.h"
#include "platform/forms/TextBox.h"
#include "platform/forms/Timer.h"
#include "platform/services/TimeService.h"
#include "tests/platform/conformance/DesktopUnderTest.h"

namespace troth {

inline constexpr int kBackspace = 8;
inline constexpr int kTab = 9;
inline constexpr int kEnter = 13;
inline constexpr int kEscape = 27;
inline constexpr int kSpace = 32;
inline constexpr int kEnd = 35;
inline constexpr int kHome = 36;
inline constexpr int kUp = 38;
inline constexpr int kDown = 40;

using Lines = std::vector<std::string>;

// ASCII text, for lines that are compared and printed.
inline std::string Narrow(std::wstring_view text) {
  std::string narrow;
  for (const wchar_t c : text) narrow += static_cast<char>(c);
  return narrow;
}

class TestForm : public Form {
 public:
  TestForm(Platform& platform, std::wstring name)
      : Form(platform.forms, {.name = name, .caption = name, .clientSize = {6000, 4800}}) {}

  std::function<void()> whenLoading;
  std::function<void(bool& cancel)> whenAsked;
  std::function<void()> whenUnloading;
  int activations = 0;

  void Write(std::string line) { heard_.push_back(std::move(line)); }
  // A handler that only writes its line.
  std::function<void()> Writer(std::string line) {
    return [this, line] { Write(line); };
  }
  // What was written since the last time.
  Lines TakeHeard() { return std::exchange(heard_, {}); }

  void WatchFocus() {
    for (Control* control : Controls()) {
      control->OnGotFocus = Writer("+" + Narrow(control->Name()));
      control->OnLostFocus = Writer("-" + Narrow(control->Name()));
    }
  }

 private:
  void Form_Load() override {
    Write("load");
    if (whenLoading) whenLoading();
  }
  void Form_Activate() override { ++activations; }
  void Form_QueryUnload(bool& cancel, CloseReason reason) override {
    Write(reason == CloseReason::User ? "query by user" : "query by program");
    if (whenAsked) whenAsked(cancel);
  }
  void Form_Unload() override {
    Write("unload");
    if (whenUnloading) whenUnloading();
  }

  Lines heard_;
};

// One of each kind. Tab stops in order: txtName, txtFixed, chkLoud, cmdGo, cmdStop, lstPlain, lstTicks.
class DeskForm final : public TestForm {
 public:
  explicit DeskForm(Platform& platform) : TestForm(platform, L"frmDesk") {}

  Label lblName{*this, {.name = L"lblName", .caption = L"&Name", .bounds = {120, 120, 900, 255}}};
  TextBox txtName{*this, {.name = L"txtName", .bounds = {1200, 120, 1800, 330}}};
  TextBox txtFixed{
      *this, {.name = L"txtFixed", .text = L"fixed", .bounds = {3120, 120, 1200, 330}, .readOnly = true}};
  TextBox txtOff{*this,
                 {.name = L"txtOff", .text = L"off", .bounds = {4440, 120, 1200, 330}, .enabled = false}};
  CheckBox chkLoud{*this, {.name = L"chkLoud", .caption = L"&Loud", .bounds = {120, 600, 1200, 330}}};
  CommandButton cmdGo{
      *this, {.name = L"cmdGo", .caption = L"&Go", .bounds = {1440, 600, 1200, 375}, .isDefault = true}};
  CommandButton cmdStop{
      *this, {.name = L"cmdStop", .caption = L"Sto&p", .bounds = {2760, 600, 1200, 375}, .isCancel = true}};
  CommandButton cmdGhost{
      *this, {.name = L"cmdGhost", .caption = L"G&host", .bounds = {4080, 600, 1200, 375}, .visible = false}};
  ListBox lstPlain{*this, {.name = L"lstPlain", .bounds = {120, 1200, 2700, 3000}}};
  ListBox lstTicks{*this, {.name = L"lstTicks", .bounds = {3000, 1200, 2700, 3000}, .hasTicks = true}};
  Timer tmrBeat{*this, {.name = L"tmrBeat", .intervalMs = 100}};

  MenuItem MFile{*this, {.name = L"MFile", .caption = L"&File"}};
  MenuItem MFileOpen{MFile, {.name = L"MFileOpen", .caption = L"&Open"}};
  MenuItem MFileSecret{MFile, {.name = L"MFileSecret", .caption = L"&Secret", .visible = false}};
  MenuItem MFileLine{MFile, {.name = L"MFileLine", .caption = L"-"}};
  MenuItem MFileExit{MFile, {.name = L"MFileExit", .caption = L"E&xit"}};
  MenuItem MOptions{*this, {.name = L"MOptions", .caption = L"&Options"}};
  MenuItem MOptionsAuto{MOptions, {.name = L"MOptionsAuto", .caption = L"&Auto", .checked = true}};
  MenuItem MOptionsOff{MOptions, {.name = L"MOptionsOff", .caption = L"&Grey", .enabled = false}};
};

class DialogForm final : public TestForm {
 public:
  explicit DialogForm(Platform& platform, std::wstring name = L"frmDialog")
      : TestForm(platform, name),
        txtAnswer(*this, {.name = name + L".txtAnswer", .bounds = {120, 120, 1800, 330}}),
        cmdOk(
            *this,
            {.name = name + L".cmdOk", .caption = L"OK", .bounds = {120, 600, 1200, 375}, .isDefault = true}),
        cmdMore(*this, {.name = name + L".cmdMore", .caption = L"More", .bounds = {1440, 600, 1200, 375}}) {
    cmdOk.OnClick = [this] { Unload(); };
  }

  TextBox txtAnswer;
  CommandButton cmdOk;
  CommandButton cmdMore;
};

// A list of so many entries "entry 0", "entry 1", ...
inline std::vector<ListEntry> Entries(int count) {
  std::vector<ListEntry> entries;
  for (int i = 0; i < count; ++i) entries.push_back({.text = L"entry " + std::to_wstring(i)});
  return entries;
}

class ConformanceTest : public testing::Test {
 protected:
  // Serves what showing or changing a window brings along.
  void Settle() { desktop->LetTimePass(0); }
  void Show(Form& form, Form* owner = nullptr) {
    form.Show(owner);
    Settle();
  }

  std::unique_ptr<DesktopUnderTest> desktop = MakeDesktopUnderTest();
  Platform& platform = desktop->platform();
};

}  // namespace troth
