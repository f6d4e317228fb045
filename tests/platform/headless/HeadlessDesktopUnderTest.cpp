// The headless desktop under the conformance suite: acts go to its scripted user, looks to its forms.
#include <algorithm>

#include "platform/forms/CheckBox.h"
#include "platform/forms/CommandButton.h"
#include "platform/forms/DropDownList.h"
#include "platform/forms/Label.h"
#include "platform/forms/ListBox.h"
#include "platform/forms/ListView.h"
#include "platform/forms/MenuItem.h"
#include "platform/forms/OptionButton.h"
#include "platform/forms/PictureBox.h"
#include "platform/forms/StatusBar.h"
#include "platform/forms/TabStrip.h"
#include "platform/forms/TextBox.h"
#include "platform/forms/TreeView.h"
#include "platform/headless/HeadlessCanvas.h"
#include "platform/headless/HeadlessDesktop.h"
#include "tests/platform/conformance/DesktopUnderTest.h"

namespace troth {

namespace {

class HeadlessDesktopUnderTest final : public DesktopUnderTest {
 public:
  Platform& platform() override { return desktop_.platform; }

  void Click(CommandButton& button) override { desktop_.user.Click(button); }
  void Click(CheckBox& box) override { desktop_.user.Click(box); }
  void Click(TextBox& box) override { desktop_.user.Click(box); }
  void Click(PictureBox& box) override { desktop_.user.Click(box); }
  void Click(OptionButton& button) override { desktop_.user.Click(button); }
  void Click(Label& label) override { desktop_.user.Click(label); }
  void RightClick(Control& control) override { desktop_.user.RightClick(control); }
  void Click(Form& form) override { desktop_.user.Click(form); }
  void DoubleClick(Form& form) override { desktop_.user.DoubleClick(form); }
  void NextPopup(int item) override {
    desktop_.forms.WhenPopup([item](MenuItem& menu) {
      if (item >= 0) menu.Children().at(static_cast<std::size_t>(item))->UserChose();
    });
  }
  void Click(Canvas& canvas) override { desktop_.user.Click(canvas); }
  void Select(DropDownList& list, int index) override { desktop_.user.Select(list, index); }
  void Select(TabStrip& tabs, int index) override { desktop_.user.Select(tabs, index); }
  void Select(ListBox& list, int index) override { desktop_.user.Select(list, index); }
  void ClickTick(ListBox& list, int index) override { desktop_.user.ClickTick(list, index); }
  void DoubleClick(ListBox& list, int index) override { desktop_.user.DoubleClick(list, index); }
  void Click(TreeView& tree, int node) override { desktop_.user.Click(tree, node); }
  void Click(ListView& list, int index) override { desktop_.user.Click(list, index); }
  void RightClick(ListView& list, int index) override { desktop_.user.RightClick(list, index); }
  void DoubleClick(ListView& list, int index) override { desktop_.user.DoubleClick(list, index); }
  void EndLabelEdit(ListView& list, std::optional<std::wstring> text) override {
    desktop_.user.EndLabelEdit(list, std::move(text));
  }
  void Choose(MenuItem& item) override { desktop_.user.Choose(item); }
  void CloseWindow(Form& form) override { desktop_.user.CloseWindow(form); }
  void Press(int keyCode, int shift) override { desktop_.user.Press(keyCode, shift); }
  void Type(std::wstring_view text) override { desktop_.user.Type(text); }
  void PressHotkey(int keyCode, int modifiers) override { desktop_.user.PressHotkey(keyCode, modifiers); }

  void LetTimePass(int ms) override { desktop_.time.Advance(ms); }
  void Later(int ms, Act act) override { desktop_.time.After(ms, std::move(act)); }
  void WhenModal(Form& form, Act act) override { desktop_.forms.WhenModal(form.Name(), std::move(act)); }
  void NextBox(BoxAnswer answer, Act whileUp) override {
    desktop_.dialogs.Answer(answer);
    desktop_.dialogs.WhileNextBox(std::move(whileUp));
  }
  void NextQuestion(std::optional<std::wstring> answer, Act whileUp) override {
    desktop_.dialogs.AnswerText(std::move(answer));
    desktop_.dialogs.WhileNextBox(std::move(whileUp));
  }

  std::wstring ShownText(const TextBox& box) override { return Loaded(box).Text(); }
  std::wstring ShownCaption(const Control& control) override {
    const auto* label = dynamic_cast<const Label*>(&Loaded(control));
    return label ? label->Caption() : std::wstring(control.CaptionText());
  }
  std::wstring ShownCaption(const Form& form) override { return form.Caption(); }
  bool ShownVisible(const Form& form) override {
    const HeadlessForm* peer = desktop_.forms.Find(form);
    return peer && peer->Shown();
  }
  bool ShownVisible(const Control& control) override { return Loaded(control).IsShown(); }
  bool ShownEnabled(const Control& control) override { return Loaded(control).IsUsable(); }
  bool ShownTick(const CheckBox& box) override { return Loaded(box).Ticked(); }
  bool ShownTick(const OptionButton& button) override { return Loaded(button).Selected(); }
  bool ShownTick(const ListBox& list, int index) override { return Loaded(list).Ticked(index); }
  int ShownCount(const ListBox& list) override { return Loaded(list).Count(); }
  int ShownIndex(const ListBox& list) override { return Loaded(list).Index(); }
  std::wstring ShownEntryText(const ListBox& list, int index) override { return Loaded(list).Text(index); }
  int ShownIndex(const DropDownList& list) override { return Loaded(list).Index(); }
  std::vector<std::wstring> ShownEntries(const DropDownList& list) override { return Loaded(list).Entries(); }
  int ShownIndex(const TabStrip& tabs) override { return Loaded(tabs).Index(); }
  std::vector<std::wstring> ShownNodes(const TreeView& tree) override {
    std::vector<std::wstring> nodes;
    for (int node = 0; node < Loaded(tree).Count(); ++node) {
      std::wstring blanks;
      for (int above = tree.Node(node).parent; above >= 0; above = tree.Node(above).parent) blanks += L' ';
      nodes.push_back(blanks + tree.Node(node).text);
    }
    return nodes;
  }
  std::wstring ShownNode(const TreeView& tree) override {
    return Loaded(tree).Selected() < 0 ? L"" : tree.Node(tree.Selected()).text;
  }
  std::vector<std::wstring> ShownEntries(const ListView& list) override {
    std::vector<std::wstring> entries;
    for (int index = 0; index < Loaded(list).Count(); ++index) entries.push_back(list.Entry(index).text);
    return entries;
  }
  int ShownIndex(const ListView& list) override { return Loaded(list).Index(); }
  std::wstring ShownToolTip(const ListView& list, int index) override {
    return index < 0 ? Loaded(list).ToolTip() : Loaded(list).Entry(index).toolTip;
  }
  std::wstring ShownText(const StatusBar& bar) override { return Loaded(bar).Text(); }
  std::wstring ShownToolTip(const Control& control) override { return Loaded(control).ToolTip(); }

  Color ShownColor(const Canvas& canvas, double x, double y) override {
    return HeadlessCanvas::Of(Loaded(canvas)).ColorAt({x, y});
  }

  MenuState ShownMenu(const MenuItem& item) override {
    if (!item.Visible()) return {};
    return {.visible = true, .enabled = item.Enabled(), .checked = item.Checked()};
  }
  std::vector<std::wstring> ShownMenuTexts(const MenuItem& menu) override {
    std::vector<std::wstring> texts;
    for (const MenuItem* item : menu.Children())
      if (item->Visible()) texts.push_back(item->Caption());
    return texts;
  }
  const std::vector<Box>& BoxesSeen() override {
    boxes_.clear();
    for (const MessageBoxRequest& box : desktop_.dialogs.Shown()) boxes_.push_back({box.title, box.text});
    return boxes_;
  }

  bool HasKeyboard(const Control& control) override { return desktop_.user.Focused() == &control; }
  bool IsActive(const Form& form) override {
    const HeadlessForm* peer = desktop_.forms.Find(form);
    return peer && desktop_.forms.Active() == peer;
  }
  bool TakesInput(const Form& form) override {
    const HeadlessForm* peer = desktop_.forms.Find(form);
    return peer && !desktop_.forms.Blocked(*peer);
  }
  bool IsAbove(const Form& upper, const Form& lower) override {
    const auto& stack = desktop_.forms.StackingOrder();
    const auto place = [&](const Form& form) {
      return std::find(stack.begin(), stack.end(), desktop_.forms.Find(form));
    };
    return place(upper) < place(lower) && place(lower) != stack.end();
  }

  int OpenForeignWindow(const std::wstring& className) override {
    foreign_.push_back(&desktop_.windows.Open(className));
    return static_cast<int>(foreign_.size()) - 1;
  }
  void CloseForeignWindow(int window) override { Foreign(window).alive = false; }
  std::vector<Heard> HeardBy(int window) override {
    std::vector<Heard> heard;
    for (const HeardCharacter& character : Foreign(window).heard) heard.push_back({character.code, 1});
    return heard;
  }
  bool WasRaised(int window) override {
    const auto& lines = desktop_.journal.Lines();
    const std::string line = "raise " + HeadlessJournal::Readable(Foreign(window).className);
    return std::find(lines.begin(), lines.end(), line) != lines.end();
  }

  void MinimiseForeignWindow(int window) override { Foreign(window).minimised = true; }
  bool IsForeignTopMost(int window) override { return Foreign(window).stacking == Stacking::TopMost; }

  void HoldHotkey(int keyCode, int modifiers) override { desktop_.forms.HoldHotkey(modifiers, keyCode); }

  std::wstring PutFile(const std::wstring& name, const std::string& bytes) override {
    desktop_.files.Put(desktop_.files.ProgramFolder() + L'\\' + name, bytes);
    return desktop_.files.ProgramFolder() + L'\\' + name;
  }
  std::wstring PutFolder(const std::wstring& name) override {
    desktop_.files.PutFolder(desktop_.files.ProgramFolder() + L'\\' + name);
    return desktop_.files.ProgramFolder() + L'\\' + name;
  }
  void MakeReadOnly(const std::wstring& path) override { desktop_.files.RefuseWriting(path); }

 private:
  // What is shown of a control is the control itself, as long as it is shown at all.
  template <class AnyControl>
  const AnyControl& Loaded(const AnyControl& control) {
    if (!control.Peer()) throw HeadlessFailure("not loaded: " + HeadlessJournal::Readable(control.Name()));
    return control;
  }
  HeadlessWindow& Foreign(int window) { return *foreign_.at(static_cast<std::size_t>(window)); }

  HeadlessDesktop desktop_;
  std::vector<HeadlessWindow*> foreign_;
  std::vector<Box> boxes_;
};

}  // namespace

std::unique_ptr<DesktopUnderTest> MakeDesktopUnderTest() {
  return std::make_unique<HeadlessDesktopUnderTest>();
}

}  // namespace troth
