// A desktop as the conformance suite sees it: the platform that the program gets, a person who acts on it,
// and eyes for what is really shown. The suite is compiled once for the headless desktop and once for real
// windows, and MakeDesktopUnderTest is defined once per binary. Nothing here decides what is right.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Platform.h"
#include "platform/services/DialogService.h"

namespace troth {

class Canvas;
class CheckBox;
class CommandButton;
class Control;
class DropDownList;
class Form;
class Label;
class ListBox;
class ListView;
class MenuItem;
class OptionButton;
class PictureBox;
class StatusBar;
class TabStrip;
class TextBox;
class TreeView;

// The application name under which the suite keeps settings; what it wrote is gone after each test.
inline constexpr wchar_t kConformanceApplication[] = L"TrothlineConformance";

class DesktopUnderTest {
 public:
  using Act = std::function<void()>;

  virtual ~DesktopUnderTest() = default;
  virtual Platform& platform() = 0;

  // --- What a person does. Each returns when the program has dealt with it. What a person could not do,
  // such as clicking a disabled button, throws. ---
  virtual void Click(CommandButton& button) = 0;
  virtual void Click(CheckBox& box) = 0;
  // Puts the caret behind the text.
  virtual void Click(TextBox& box) = 0;
  virtual void Click(PictureBox& box) = 0;
  virtual void Click(OptionButton& button) = 0;
  virtual void Click(Label& label) = 0;
  virtual void RightClick(Control& control) = 0;
  // On the form's own ground, near its lower right corner.
  virtual void Click(Form& form) = 0;
  virtual void DoubleClick(Form& form) = 0;
  // Chooses the item of the next popup menu, counted from the top, with the keyboard; -1 closes it.
  virtual void NextPopup(int item) = 0;
  virtual void Click(Canvas& canvas) = 0;
  virtual void Select(DropDownList& list, int index) = 0;
  virtual void Select(TabStrip& tabs, int index) = 0;
  virtual void Select(ListBox& list, int index) = 0;
  virtual void ClickTick(ListBox& list, int index) = 0;
  virtual void DoubleClick(ListBox& list, int index) = 0;
  virtual void Click(TreeView& tree, int node) = 0;
  // -1 is the ground below the entries.
  virtual void Click(ListView& list, int index) = 0;
  virtual void RightClick(ListView& list, int index) = 0;
  virtual void DoubleClick(ListView& list, int index) = 0;
  // Types over the text that is being edited and presses Enter; nothing presses Esc.
  virtual void EndLabelEdit(ListView& list, std::optional<std::wstring> text) = 0;
  // Does nothing where the item is grey or hidden.
  virtual void Choose(MenuItem& item) = 0;
  virtual void CloseWindow(Form& form) = 0;
  // A virtual key code and a sum of the shift bits; Type takes printable characters.
  virtual void Press(int keyCode, int shift = 0) = 0;
  virtual void Type(std::wstring_view text) = 0;
  // Whatever window has the keyboard. `modifiers` is a sum of the kHotkey bits.
  virtual void PressHotkey(int keyCode, int modifiers) = 0;

  // --- Time. ---
  // Serves timers, messages and later acts meanwhile.
  virtual void LetTimePass(int ms) = 0;
  // Comes while the program waits for messages, in whatever loop.
  virtual void Later(int ms, Act act) = 0;
  // Runs once the form is shown modally. Several acts for one form run one after the other.
  virtual void WhenModal(Form& form, Act act) = 0;
  // The next message box is answered so, after `whileUp` has run.
  virtual void NextBox(BoxAnswer answer, Act whileUp = {}) = 0;
  // The same for the next question for a text; nothing is Cancel.
  virtual void NextQuestion(std::optional<std::wstring> answer, Act whileUp = {}) = 0;

  // --- What is really shown. ---
  virtual std::wstring ShownText(const TextBox& box) = 0;
  virtual std::wstring ShownCaption(const Control& control) = 0;
  virtual std::wstring ShownCaption(const Form& form) = 0;
  virtual bool ShownVisible(const Form& form) = 0;
  virtual bool ShownVisible(const Control& control) = 0;
  virtual bool ShownEnabled(const Control& control) = 0;
  virtual bool ShownTick(const CheckBox& box) = 0;
  virtual bool ShownTick(const OptionButton& button) = 0;
  virtual bool ShownTick(const ListBox& list, int index) = 0;
  virtual int ShownCount(const ListBox& list) = 0;
  // -1 while nothing is selected.
  virtual int ShownIndex(const ListBox& list) = 0;
  virtual std::wstring ShownEntryText(const ListBox& list, int index) = 0;
  virtual int ShownIndex(const DropDownList& list) = 0;
  virtual std::vector<std::wstring> ShownEntries(const DropDownList& list) = 0;
  virtual int ShownIndex(const TabStrip& tabs) = 0;
  // The texts of the nodes, in order, each after as many blanks as there are nodes above it.
  virtual std::vector<std::wstring> ShownNodes(const TreeView& tree) = 0;
  // The text of the selected node, or nothing.
  virtual std::wstring ShownNode(const TreeView& tree) = 0;
  virtual std::vector<std::wstring> ShownEntries(const ListView& list) = 0;
  virtual int ShownIndex(const ListView& list) = 0;
  // While the mouse rests on the entry; -1 is the ground.
  virtual std::wstring ShownToolTip(const ListView& list, int index) = 0;
  virtual std::wstring ShownText(const StatusBar& bar) = 0;
  // At a place of the canvas's scale.
  virtual Color ShownColor(const Canvas& canvas, double x, double y) = 0;
  // Empty where there is none.
  virtual std::wstring ShownToolTip(const Control& control) = 0;

  struct MenuState {
    bool visible = false;
    bool enabled = false;
    bool checked = false;
    friend bool operator==(const MenuState&, const MenuState&) = default;
  };
  virtual MenuState ShownMenu(const MenuItem& item) = 0;
  // The captions in a menu of the bar from top to bottom, "-" for a separator.
  virtual std::vector<std::wstring> ShownMenuTexts(const MenuItem& menu) = 0;

  struct Box {
    std::wstring title;
    std::wstring text;
  };
  virtual const std::vector<Box>& BoxesSeen() = 0;

  virtual bool HasKeyboard(const Control& control) = 0;
  virtual bool IsActive(const Form& form) = 0;
  // Whether the mouse and the keys reach the form, or a modal one keeps them away.
  virtual bool TakesInput(const Form& form) = 0;
  virtual bool IsAbove(const Form& upper, const Form& lower) = 0;

  // --- Windows of other programs. The number names the window from then on. ---
  struct Heard {
    unsigned code = 0;
    unsigned repeatCount = 0;
    friend bool operator==(const Heard&, const Heard&) = default;
  };
  virtual int OpenForeignWindow(const std::wstring& className) = 0;
  virtual void CloseForeignWindow(int window) = 0;
  // All character messages that were posted to it so far.
  virtual std::vector<Heard> HeardBy(int window) = 0;
  virtual bool WasRaised(int window) = 0;
  virtual void MinimiseForeignWindow(int window) = 0;
  virtual bool IsForeignTopMost(int window) = 0;
  // Somebody else holds the combination to the end of the test.
  virtual void HoldHotkey(int keyCode, int modifiers) = 0;

  // --- Files. Return the path as the program would write it. ---
  virtual std::wstring PutFile(const std::wstring& name, const std::string& bytes) = 0;
  virtual std::wstring PutFolder(const std::wstring& name) = 0;
  virtual void MakeReadOnly(const std::wstring& path) = 0;
};

std::unique_ptr<DesktopUnderTest> MakeDesktopUnderTest();

}  // namespace troth
