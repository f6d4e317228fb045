// Real windows under the conformance suite: acts are real input, looks ask the windows themselves and never
// the portable objects.
#include "platform/win32/Win32Desktop.h"

#include <windows.h>
// The system's controls need windows.h before them.
#include <commctrl.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <stdexcept>

#include "platform/forms/Canvas.h"
#include "platform/forms/CheckBox.h"
#include "platform/forms/CommandButton.h"
#include "platform/forms/DropDownList.h"
#include "platform/forms/Form.h"
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
#include "tests/desktop/conformance/ForeignWindow.h"
#include "tests/desktop/conformance/RealInput.h"
#include "tests/desktop/conformance/RealSchedule.h"
#include "tests/desktop/conformance/RealWindows.h"
#include "tests/desktop/conformance/Watchdog.h"

namespace troth {

namespace {

class Win32DesktopUnderTest final : public DesktopUnderTest {
 public:
  Win32DesktopUnderTest() { ForgetSettings(); }
  ~Win32DesktopUnderTest() override {
    for (const int id : heldHotkeys_) UnregisterHotKey(nullptr, id);
    ForgetSettings();
    std::error_code ignored;
    for (const std::wstring& path : readOnly_) SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
    std::filesystem::remove_all(folder_, ignored);
  }

  Platform& platform() override { return desktop_.platform; }

  void Click(CommandButton& button) override { ClickMiddle(WindowOf(button)); }
  void Click(CheckBox& box) override { ClickMiddle(WindowOf(box)); }
  void Click(TextBox& box) override {
    const HWND window = WindowOf(box);
    const RECT client = ClientOf(window);
    input_.Click(window, {client.right - 3, client.bottom / 2});
  }
  void Click(PictureBox& box) override { ClickMiddle(WindowOf(box)); }
  void Click(OptionButton& button) override { ClickMiddle(WindowOf(button)); }
  void Click(Label& label) override { ClickMiddle(WindowOf(label)); }
  void RightClick(Control& control) override {
    const HWND window = WindowOf(control);
    input_.RightClick(window, MiddleOf(window));
  }
  void Click(Form& form) override { input_.Click(WindowOf(form), CornerOf(WindowOf(form))); }
  void DoubleClick(Form& form) override { input_.DoubleClick(WindowOf(form), CornerOf(WindowOf(form))); }
  void NextPopup(int item) override {
    std::vector<int> keys(static_cast<std::size_t>(item + 1), VK_DOWN);
    keys.push_back(item < 0 ? VK_ESCAPE : VK_RETURN);
    schedule_.Later(200, [this, keys = std::move(keys)] { input_.PressInMenu(keys); });
  }
  void Click(Canvas& canvas) override { ClickMiddle(WindowOf(canvas)); }
  // The dropped list is a window of its own, which must not be activated.
  void Select(DropDownList& list, int index) override {
    const HWND window = WindowOf(list);
    ClickMiddle(window);
    COMBOBOXINFO parts{};
    parts.cbSize = sizeof parts;
    GetComboBoxInfo(window, &parts);
    RECT row;
    SendMessageW(parts.hwndList, LB_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&row));
    const LPARAM place = MAKELPARAM(row.left + 4, (row.top + row.bottom) / 2);
    PostMessageW(parts.hwndList, WM_LBUTTONDOWN, MK_LBUTTON, place);
    PostMessageW(parts.hwndList, WM_LBUTTONUP, 0, place);
    input_.Settle();
  }
  void Select(TabStrip& tabs, int index) override {
    const HWND window = WindowOf(tabs);
    RECT tab;
    TabCtrl_GetItemRect(window, index, &tab);
    input_.Click(window, {(tab.left + tab.right) / 2, (tab.top + tab.bottom) / 2});
  }
  void Select(ListBox& list, int index) override { input_.Click(WindowOf(list), LabelOf(list, index)); }
  void ClickTick(ListBox& list, int index) override { input_.Click(WindowOf(list), TickOf(list, index)); }
  void DoubleClick(ListBox& list, int index) override {
    input_.DoubleClick(WindowOf(list), LabelOf(list, index));
  }
  void Click(TreeView& tree, int node) override {
    const HWND window = WindowOf(tree);
    const HTREEITEM item = ItemsOf(window).at(static_cast<std::size_t>(node)).item;
    TreeView_EnsureVisible(window, item);
    RECT label;
    TreeView_GetItemRect(window, item, &label, TRUE);
    input_.Click(window, {label.left + 4, (label.top + label.bottom) / 2});
  }
  void Click(ListView& list, int index) override { input_.Click(WindowOf(list), PlaceOn(list, index)); }
  void RightClick(ListView& list, int index) override {
    input_.RightClick(WindowOf(list), PlaceOn(list, index));
  }
  void DoubleClick(ListView& list, int index) override {
    input_.DoubleClick(WindowOf(list), PlaceOn(list, index));
  }
  // The text that stands in the editor is selected.
  void EndLabelEdit(ListView& list, std::optional<std::wstring> text) override {
    if (!ListView_GetEditControl(WindowOf(list))) throw std::runtime_error("no text is being edited");
    if (text) input_.Type(*text);
    input_.Press(text ? VK_RETURN : VK_ESCAPE, 0);
  }
  void Choose(MenuItem& item) override {
    const MenuPlace place = PlaceOf(item);
    if (!place.menu || !place.reachable) return;
    if (!IsWindowEnabled(place.form)) throw std::runtime_error("the menu is behind a modal window");
    std::wstring text;
    PostMessageW(place.form, WM_COMMAND, InfoAt(place.menu, place.position, text).wID, 0);
    input_.Settle();
  }
  void CloseWindow(Form& form) override {
    const HWND window = WindowOf(form);
    if (!IsWindowVisible(window) || !IsWindowEnabled(window))
      throw std::runtime_error("the window is hidden or behind a modal one");
    PostMessageW(window, WM_SYSCOMMAND, SC_CLOSE, 0);
    input_.Settle();
  }
  void Press(int keyCode, int shift) override { input_.Press(keyCode, shift); }
  void Type(std::wstring_view text) override { input_.Type(text); }
  void PressHotkey(int keyCode, int modifiers) override {
    input_.Press(keyCode, (modifiers & kHotkeyAlt ? kAltDown : 0) +
                              (modifiers & kHotkeyControl ? kControlDown : 0) +
                              (modifiers & kHotkeyShift ? kShiftDown : 0));
  }

  void LetTimePass(int ms) override {
    const std::uint32_t start = desktop_.platform.time.TickCount();
    input_.Settle();
    for (;;) {
      const auto passed = static_cast<int>(desktop_.platform.time.TickCount() - start);
      if (passed >= ms) return;
      desktop_.platform.time.Pump(std::min(ms - passed, 10));
    }
  }
  void Later(int ms, Act act) override { schedule_.Later(ms, std::move(act)); }
  void WhenModal(Form& form, Act act) override { schedule_.WhenModal(form, std::move(act)); }
  void NextBox(BoxAnswer answer, Act whileUp) override { schedule_.NextBox(answer, std::move(whileUp)); }
  // The preset is selected: what is typed takes its place.
  void NextQuestion(std::optional<std::wstring> answer, Act whileUp) override {
    schedule_.NextQuestion([this, answer = std::move(answer), whileUp = std::move(whileUp)] {
      if (whileUp) whileUp();
      if (!answer) return input_.Press(VK_ESCAPE, 0);
      input_.Press(VK_BACK, 0);
      input_.Type(*answer);
      input_.Press(VK_RETURN, 0);
    });
  }

  std::wstring ShownText(const TextBox& box) override { return TextOf(WindowOf(box)); }
  std::wstring ShownCaption(const Control& control) override { return TextOf(WindowOf(control)); }
  std::wstring ShownCaption(const Form& form) override { return TextOf(WindowOf(form)); }
  bool ShownVisible(const Form& form) override {
    const HWND window = FindWindowOf(form);
    return window && IsWindowVisible(window);
  }
  bool ShownVisible(const Control& control) override { return IsWindowVisible(WindowOf(control)); }
  bool ShownEnabled(const Control& control) override { return IsWindowEnabled(WindowOf(control)); }
  bool ShownTick(const CheckBox& box) override {
    return SendMessageW(WindowOf(box), BM_GETCHECK, 0, 0) == BST_CHECKED;
  }
  bool ShownTick(const OptionButton& button) override {
    return SendMessageW(WindowOf(button), BM_GETCHECK, 0, 0) == BST_CHECKED;
  }
  bool ShownTick(const ListBox& list, int index) override {
    return ListView_GetCheckState(WindowOf(list), static_cast<UINT>(index)) == 1;
  }
  int ShownCount(const ListBox& list) override { return ListView_GetItemCount(WindowOf(list)); }
  int ShownIndex(const ListBox& list) override {
    return ListView_GetNextItem(WindowOf(list), -1, LVNI_SELECTED);
  }
  std::wstring ShownEntryText(const ListBox& list, int index) override {
    return EntryText(WindowOf(list), index);
  }

  int ShownIndex(const DropDownList& list) override {
    return static_cast<int>(SendMessageW(WindowOf(list), CB_GETCURSEL, 0, 0));
  }
  std::vector<std::wstring> ShownEntries(const DropDownList& list) override {
    const HWND window = WindowOf(list);
    std::vector<std::wstring> entries(static_cast<std::size_t>(SendMessageW(window, CB_GETCOUNT, 0, 0)));
    for (std::size_t i = 0; i < entries.size(); ++i) {
      wchar_t text[256] = {};
      SendMessageW(window, CB_GETLBTEXT, i, reinterpret_cast<LPARAM>(text));
      entries[i] = text;
    }
    return entries;
  }
  int ShownIndex(const TabStrip& tabs) override { return TabCtrl_GetCurSel(WindowOf(tabs)); }
  std::vector<std::wstring> ShownNodes(const TreeView& tree) override {
    std::vector<std::wstring> nodes;
    for (const ShownItem& item : ItemsOf(WindowOf(tree))) nodes.push_back(item.text);
    return nodes;
  }
  std::wstring ShownNode(const TreeView& tree) override {
    const HWND window = WindowOf(tree);
    const HTREEITEM selected = TreeView_GetSelection(window);
    return selected ? TextOfItem(window, selected) : L"";
  }
  std::vector<std::wstring> ShownEntries(const ListView& list) override {
    const HWND window = WindowOf(list);
    std::vector<std::wstring> entries;
    for (int index = 0; index < ListView_GetItemCount(window); ++index)
      entries.push_back(EntryText(window, index));
    return entries;
  }
  int ShownIndex(const ListView& list) override {
    return ListView_GetNextItem(WindowOf(list), -1, LVNI_SELECTED);
  }
  std::wstring ShownToolTip(const ListView& list, int index) override {
    const POINT place = PlaceOn(list, index);
    SendMessageW(WindowOf(list), WM_MOUSEMOVE, 0, MAKELPARAM(place.x, place.y));
    return ToolTipOf(WindowOf(list));
  }
  std::wstring ShownText(const StatusBar& bar) override {
    wchar_t text[512] = {};
    SendMessageW(WindowOf(bar), SB_GETTEXTW, 0, reinterpret_cast<LPARAM>(text));
    return text;
  }
  std::wstring ShownToolTip(const Control& control) override { return ToolTipOf(WindowOf(control)); }

  Color ShownColor(const Canvas& canvas, double x, double y) override {
    const HWND window = WindowOf(canvas);
    const RECT client = ClientOf(window);
    const CanvasScale& scale = canvas.Scale();
    const HDC surface = GetDC(window);
    const Color color = GetPixel(surface, static_cast<int>((x - scale.left) / scale.Width() * client.right),
                                 static_cast<int>((y - scale.top) / scale.Height() * client.bottom));
    ReleaseDC(window, surface);
    return color;
  }

  MenuState ShownMenu(const MenuItem& item) override {
    const MenuPlace place = PlaceOf(item);
    if (!place.menu) return {};
    std::wstring text;
    const UINT state = InfoAt(place.menu, place.position, text).fState;
    return {.visible = true, .enabled = !(state & MFS_DISABLED), .checked = (state & MFS_CHECKED) != 0};
  }
  std::vector<std::wstring> ShownMenuTexts(const MenuItem& menu) override {
    const MenuPlace place = PlaceOf(menu);
    if (!place.menu) throw std::runtime_error("the menu is not shown");
    std::vector<std::wstring> texts;
    std::wstring text;
    const HMENU below = InfoAt(place.menu, place.position, text).hSubMenu;
    for (int position = 0; position < GetMenuItemCount(below); ++position) {
      const MENUITEMINFOW info = InfoAt(below, static_cast<UINT>(position), text);
      texts.push_back(info.fType & MFT_SEPARATOR ? L"-" : text);
    }
    return texts;
  }
  const std::vector<Box>& BoxesSeen() override { return schedule_.BoxesSeen(); }

  bool HasKeyboard(const Control& control) override { return GetFocus() == WindowOf(control); }
  bool IsActive(const Form& form) override {
    const HWND window = FindWindowOf(form);
    return window && GetActiveWindow() == window;
  }
  bool TakesInput(const Form& form) override { return IsWindowEnabled(WindowOf(form)); }
  bool IsAbove(const Form& upper, const Form& lower) override {
    const std::vector<HWND> order = StackingOrder();
    const auto place = [&](const Form& form) {
      return std::find(order.begin(), order.end(), WindowOf(form));
    };
    return place(upper) < place(lower);
  }

  int OpenForeignWindow(const std::wstring& className) override {
    foreign_.push_back(std::make_unique<ForeignWindow>(className));
    return static_cast<int>(foreign_.size()) - 1;
  }
  void CloseForeignWindow(int window) override { Foreign(window).Close(); }
  std::vector<Heard> HeardBy(int window) override { return Foreign(window).Heard(); }
  bool WasRaised(int window) override {
    const auto isForeign = [this] {
      return std::any_of(foreign_.begin(), foreign_.end(),
                         [](const auto& other) { return other->Window() == GetForegroundWindow(); });
    };
    input_.PumpUntil(isForeign, "some foreign window to come in front");
    return GetForegroundWindow() == Foreign(window).Window();
  }

  void MinimiseForeignWindow(int window) override {
    ShowWindow(Foreign(window).Window(), SW_MINIMIZE);
    input_.PumpUntil([&] { return IsIconic(Foreign(window).Window()) != 0; }, "a window to be minimised");
  }
  bool IsForeignTopMost(int window) override {
    return (GetWindowLongW(Foreign(window).Window(), GWL_EXSTYLE) & WS_EX_TOPMOST) != 0;
  }

  // The system asks only whether anybody holds it already.
  void HoldHotkey(int keyCode, int modifiers) override {
    heldHotkeys_.push_back(keyCode);
    RegisterHotKey(nullptr, keyCode, static_cast<UINT>(modifiers), static_cast<UINT>(keyCode));
  }

  std::wstring PutFile(const std::wstring& name, const std::string& bytes) override {
    std::filesystem::create_directories(folder_);
    std::ofstream(folder_ / name, std::ios::binary)
        .write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return (folder_ / name).wstring();
  }
  std::wstring PutFolder(const std::wstring& name) override {
    std::filesystem::create_directories(folder_ / name);
    return (folder_ / name).wstring();
  }
  void MakeReadOnly(const std::wstring& path) override {
    SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_READONLY);
    readOnly_.push_back(path);
  }

 private:
  static RECT ClientOf(HWND window) {
    RECT client;
    GetClientRect(window, &client);
    return client;
  }
  static POINT MiddleOf(HWND window) {
    const RECT client = ClientOf(window);
    return {client.right / 2, client.bottom / 2};
  }
  static POINT CornerOf(HWND window) {
    const RECT client = ClientOf(window);
    return {client.right - 3, client.bottom - 3};
  }
  void ClickMiddle(HWND window) { input_.Click(window, MiddleOf(window)); }
  // The row is scrolled into view first, as a person would.
  static RECT RowOf(HWND list, int index, int part) {
    ListView_EnsureVisible(list, index, FALSE);
    RECT row;
    if (!ListView_GetItemRect(list, index, &row, part)) throw std::runtime_error("the list has no such row");
    return row;
  }
  static POINT LabelOf(const ListBox& list, int index) {
    const RECT label = RowOf(WindowOf(list), index, LVIR_LABEL);
    return {label.left + 4, (label.top + label.bottom) / 2};
  }
  static POINT TickOf(const ListBox& list, int index) {
    const HWND window = WindowOf(list);
    const RECT row = RowOf(window, index, LVIR_BOUNDS);
    LVHITTESTINFO hit{};
    for (hit.pt = {row.left, (row.top + row.bottom) / 2}; hit.pt.x < row.right; ++hit.pt.x)
      if (ListView_HitTest(window, &hit) == index && hit.flags == LVHT_ONITEMSTATEICON)
        return {hit.pt.x + 4, hit.pt.y};
    throw std::runtime_error("the row has no tick box");
  }
  static std::wstring EntryText(HWND list, int index) {
    wchar_t text[512] = {};
    LVITEMW item{};
    item.pszText = text;
    item.cchTextMax = 512;
    SendMessageW(list, LVM_GETITEMTEXTW, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&item));
    return item.pszText;
  }
  // On the entry, or on the ground below all entries.
  static POINT PlaceOn(const ListView& list, int index) {
    const HWND window = WindowOf(list);
    const RECT client = ClientOf(window);
    if (index < 0) return {client.right / 2, client.bottom - 3};
    const RECT label = RowOf(window, index, LVIR_LABEL);
    return {label.left + 4, (label.top + label.bottom) / 2};
  }
  struct ShownItem {
    HTREEITEM item;
    std::wstring text;  // after as many blanks as there are items above it
  };
  // Those that are visible or can be scrolled to.
  static std::vector<ShownItem> ItemsOf(HWND tree) {
    std::vector<ShownItem> items;
    for (HTREEITEM item = TreeView_GetRoot(tree); item; item = TreeView_GetNextVisible(tree, item)) {
      std::wstring blanks;
      for (HTREEITEM above = TreeView_GetParent(tree, item); above; above = TreeView_GetParent(tree, above))
        blanks += L' ';
      items.push_back({item, blanks + TextOfItem(tree, item)});
    }
    return items;
  }
  static std::wstring TextOfItem(HWND tree, HTREEITEM item) {
    wchar_t text[512] = {};
    TVITEMW request{};
    request.mask = TVIF_TEXT;
    request.hItem = item;
    request.pszText = text;
    request.cchTextMax = 512;
    SendMessageW(tree, TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&request));
    return request.pszText;
  }
  ForeignWindow& Foreign(int window) { return *foreign_.at(static_cast<std::size_t>(window)); }
  static void ForgetSettings() {
    const std::wstring store = L"Software\\Trothline\\";
    RegDeleteTreeW(HKEY_CURRENT_USER, (store + kConformanceApplication).c_str());
  }

  Watchdog watchdog_;
  Win32Desktop desktop_;
  RealInput input_{desktop_.platform.time};
  RealSchedule schedule_;
  std::vector<std::unique_ptr<ForeignWindow>> foreign_;
  std::vector<int> heldHotkeys_;
  std::vector<std::wstring> readOnly_;
  std::filesystem::path folder_ = std::filesystem::temp_directory_path() / L"TrothlineConformance";
};

}  // namespace

std::unique_ptr<DesktopUnderTest> MakeDesktopUnderTest() { return std::make_unique<Win32DesktopUnderTest>(); }

}  // namespace troth
