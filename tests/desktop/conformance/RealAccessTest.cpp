// What other programs are told of our windows for people who do not see them, and what those people have
// chosen.
#include <windows.h>
// The system's accessibility needs windows.h and COM before it.
#include <ole2.h>
#include <oleacc.h>

#include <vector>

#include "platform/forms/DropDownList.h"
#include "platform/forms/PictureBox.h"
#include "platform/forms/TabStrip.h"
#include "platform/win32/Win32.h"
#include "platform/win32/Win32Desktop.h"
#include "tests/desktop/conformance/RealWindows.h"
#include "tests/platform/conformance/TestForms.h"

namespace troth {

namespace {

// The name by which a screen reader calls the window.
std::wstring SpokenName(HWND window) {
  const auto find =
      LateFunction<decltype(AccessibleObjectFromWindow)>(L"oleacc.dll", "AccessibleObjectFromWindow");
  IAccessible* object = nullptr;
  if (!find || FAILED(find(window, static_cast<DWORD>(OBJID_CLIENT), IID_IAccessible,
                           reinterpret_cast<void**>(&object))))
    return L"(none)";
  VARIANT self{};
  self.vt = VT_I4;
  self.lVal = CHILDID_SELF;
  BSTR text = nullptr;
  object->get_accName(self, &text);
  object->Release();
  const std::wstring name = text ? text : L"";
  SysFreeString(text);
  return name;
}

class RealAccess : public ConformanceTest {
 protected:
  struct Change {
    HWND window;
    LONG child;
    friend bool operator==(const Change&, const Change&) = default;
  };
  static std::vector<Change>& Changes() {
    static std::vector<Change> changes;
    return changes;
  }
  static void CALLBACK Note(HWINEVENTHOOK, DWORD, HWND window, LONG, LONG child, DWORD, DWORD) {
    Changes().push_back({window, child});
  }
};

TEST_F(RealAccess, EveryKindOfControlHasAName) {
  TestForm form(platform, L"frmNames");
  Label label{form, {.name = L"lblName", .caption = L"&Name", .bounds = {120, 120, 900, 255}}};
  TextBox labelled{form, {.name = L"txtLabelled", .bounds = {1200, 120, 1800, 330}}};
  TextBox alone{form, {.name = L"txtAlone", .bounds = {120, 600, 1800, 330}, .accessibleName = L"Sentence"}};
  TextBox lines{form,
                {.name = L"txtLines",
                 .bounds = {120, 1000, 1800, 900},
                 .isMultiLine = true,
                 .accessibleName = L"Text"}};
  CheckBox box{form, {.name = L"chkBox", .caption = L"&Yell", .bounds = {2400, 600, 1200, 330}}};
  ListBox list{form, {.name = L"lstRows", .bounds = {120, 2000, 1800, 900}, .accessibleName = L"Rows"}};
  Label colour{form, {.name = L"lblColour", .caption = L"Colo&r", .bounds = {2400, 2000, 900, 255}}};
  PictureBox field{form, {.name = L"picColour", .bounds = {3300, 2000, 600, 330}, .isForChoosing = true}};
  Show(form);
  const struct {
    const Control& control;
    const wchar_t* name;
  } cases[] = {{labelled, L"Name"}, {alone, L"Sentence"}, {lines, L"Text"},
               {box, L"Yell"},      {list, L"Rows"},      {field, L"Color"}};
  for (const auto& [control, name] : cases)
    EXPECT_EQ(SpokenName(WindowOf(control)), name) << Narrow(control.Name());
}

TEST_F(RealAccess, ATickIsAnnounced) {
  DeskForm form(platform);
  form.lstTicks.SetEntries(Entries(3));
  Show(form);
  const HWINEVENTHOOK hook = SetWinEventHook(EVENT_OBJECT_STATECHANGE, EVENT_OBJECT_STATECHANGE, nullptr,
                                             Note, GetCurrentProcessId(), 0, WINEVENT_OUTOFCONTEXT);
  Changes().clear();
  desktop->ClickTick(form.lstTicks, 2);
  desktop->LetTimePass(50);
  UnhookWinEvent(hook);
  EXPECT_EQ(Changes(), (std::vector<Change>{{WindowOf(form.lstTicks), 3}}));
}

TEST(RealText, LargerTextOfTheSystemMakesTheWholeFormLarger) {
  NONCLIENTMETRICSW usual{};
  usual.cbSize = sizeof usual;
  ASSERT_TRUE(SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof usual, &usual, 0));
  NONCLIENTMETRICSW larger = usual;
  larger.lfMessageFont.lfHeight = -18;
  const auto width = [] {
    Win32Desktop desktop;
    DialogForm form(desktop.platform);
    form.Load();
    RECT client;
    GetClientRect(WindowOf(form), &client);
    return client.right;
  };
  const auto before = width();
  SystemParametersInfoW(SPI_SETNONCLIENTMETRICS, sizeof larger, &larger, 0);
  const auto after = width();
  SystemParametersInfoW(SPI_SETNONCLIENTMETRICS, sizeof usual, &usual, 0);
  EXPECT_EQ(before, 400);
  EXPECT_EQ(after, 600);
}

}  // namespace

}  // namespace troth
