#include "shell/Layouts.h"

#include <algorithm>
#include <utility>

#include "core/MainWindow.h"
#include "core/Program.h"

namespace troth {

namespace {

constexpr int kHorizontalGap = 100;
constexpr Size kHorizontalList{5295, 2760};
constexpr int kVerticalListHeight = 4170;

// Sizes come back from the screen rounded to its pixels.
constexpr int kRoundingTwips = 30;

void MoveTop(Control& control, int top) {
  Rect bounds = control.Bounds();
  bounds.top = top;
  control.SetBounds(bounds);
}

int Below(const Control& control) { return control.Bounds().top + control.Bounds().height; }
int RightOf(const Control& control) { return control.Bounds().left + control.Bounds().width; }

}  // namespace

Layouts::Layouts(Program& program, MainWindow& window) : program_(program), window_(window) {
  window_.MOptionsVertical.OnClick = [this] {
    window_.MOptionsVertical.SetChecked(!window_.MOptionsVertical.Checked());
    ArrangeLayout();
  };
  window_.MOptionsTiny.OnClick = [this] { EnterTiny(); };
  window_.MResizeOriginal.OnClick = [this] { RestoreWindow(); };
  const auto down = [this](const MouseEvent& event) { Tiny_MouseDown(event); };
  window_.OnMouseDown = down;
  window_.OnMouseMove = [this](const MouseEvent& event) { Tiny_MouseMove(event); };
  window_.OnDoubleClick = [this] { RestoreWindow(); };
  for (Control* control : std::initializer_list<Control*>{
           &window_.chkYell, &window_.cmdSpeak, &window_.lblPrefix, &window_.txtNext, &window_.txtPrefix})
    control->OnMouseDown = down;
}

// The margins are noted once: noted each time, they would gather the roundings to pixels.
void Layouts::ArrangeLayout() {
  const ListBox& list = window_.lstWedding;
  if (margin_ == Size{}) {
    const Rect outer = window_.OuterBounds();
    margin_ = {outer.width - RightOf(list), outer.height - Below(list)};
    clientMargin_ = window_.ClientSize().height - Below(list);
  }
  PlaceList();
  SizeAroundList();
  PushIntoScreen();
}

void Layouts::PlaceList() {
  Rect label = window_.lblWedding.Bounds();
  Rect list = window_.lstWedding.Bounds();
  const Rect name = window_.txtGroom.Bounds();
  if (window_.MOptionsVertical.Checked()) {
    const Rect speak = window_.cmdSpeak.Bounds();
    list.left = name.left;
    list.width = name.width;
    list.height = kVerticalListHeight;
    label.top = speak.top + speak.height * 13 / 10;
  } else {
    list.left = name.left + name.width + kHorizontalGap;
    list.width = kHorizontalList.width;
    list.height = kHorizontalList.height;
    label.top = window_.lblGroom.Bounds().top;
  }
  label.left = list.left;
  list.top = label.top + label.height;
  window_.lblWedding.SetBounds(label);
  window_.lstWedding.SetBounds(list);
}

// The menu bar takes a second line in a narrow window, which is then missing below the list.
void Layouts::SizeAroundList() {
  const ListBox& list = window_.lstWedding;
  Size size{RightOf(list) + margin_.width, Below(list) + margin_.height};
  window_.SetOuterSize(size);
  const int missing = Below(list) + clientMargin_ - window_.ClientSize().height;
  if (missing <= kRoundingTwips) return;
  size.height += missing;
  window_.SetOuterSize(size);
}

void Layouts::PushIntoScreen() {
  const MonitorList monitors = program_.platform.forms.Monitors();
  const Size screen = ScreenSize(monitors);
  const Rect part = OnScreen(monitors, window_.OuterBounds());
  window_.MoveTo(
      {std::min(part.left, screen.width - part.width), std::min(part.top, screen.height - part.height)});
}

// The Tiny window keeps the frame of a dialog afterwards.
void Layouts::EnterTiny() {
  if (IsTiny()) return;
  window_.SetBorder(BorderStyle::FixedDialog);
  const Rect outer = window_.OuterBounds();
  NormalWidth = outer.width;
  NormalHeight = outer.height;
  TinySpeakTop = window_.cmdSpeak.Bounds().top;
  NormalNextTop = window_.txtNext.Bounds().top;
  ShowAll(false);
  for (Control* control : std::initializer_list<Control*>{
           &window_.cmdSpeak, &window_.txtNext, &window_.chkYell, &window_.lblPrefix, &window_.txtPrefix})
    control->SetVisible(true);
  const int top = window_.lblGroom.Bounds().top;
  MoveTop(window_.cmdSpeak, top);
  MoveTop(window_.chkYell, top);
  MoveTop(window_.lblPrefix, Below(window_.chkYell));
  MoveTop(window_.txtPrefix, Below(window_.chkYell));
  MoveTop(window_.txtNext, Below(window_.cmdSpeak) + window_.cmdSpeak.Bounds().left);
  ShowTitleBar(false);
  const int around = window_.txtNext.Bounds().left;
  window_.SetOuterSize({RightOf(window_.txtNext) + around, Below(window_.txtNext) + around});
}

void Layouts::RestoreWindow() {
  if (!IsTiny()) return;
  ShowTitleBar(true);
  ShowAll(true);
  window_.lblDebug.SetVisible(window_.tmrLearn.Enabled() || window_.tmrSpeak.Enabled());
  window_.MResize.SetVisible(false);
  MoveTop(window_.cmdSpeak, std::exchange(TinySpeakTop, 0));
  MoveTop(window_.chkYell, window_.cmdSpeak.Bounds().top);
  MoveTop(window_.lblPrefix, Below(window_.chkYell));
  MoveTop(window_.txtPrefix, Below(window_.chkYell));
  MoveTop(window_.txtNext, NormalNextTop);
  window_.lblTranslation.SetVisible(window_.MOptionsTranslate.Checked());
  window_.lblUnicode.SetVisible(!window_.MOptionsUnicode.Checked());
  window_.SetOuterSize({NormalWidth, NormalHeight});
}

// The menus of the bar; what is hidden within them stays so.
void Layouts::ShowAll(bool visible) {
  for (MenuItem* menu : window_.Menus()) menu->SetVisible(visible);
  for (Control* control : window_.Controls()) control->SetVisible(visible);
}

// The window has a system menu and a minimise button, but no maximise button.
void Layouts::ShowTitleBar(bool show) {
  constexpr std::uint32_t kAll = kStyleTitleBar | kStyleControlBox | kStyleMinimiseBox | kStyleMaximiseBox;
  const std::uint32_t bits = window_.StyleBits();
  if (show) {
    window_.SetCaption(std::move(title_));
    const std::uint32_t titleBar = window_.Caption().empty() ? 0 : kStyleTitleBar;
    window_.SetStyleBits(bits | kStyleControlBox | kStyleMinimiseBox | titleBar);
  } else {
    title_ = window_.Caption();
    window_.SetCaption(L"");
    window_.SetStyleBits(bits & ~kAll);
  }
}

void Layouts::Tiny_MouseDown(const MouseEvent& event) {
  if (IsTiny() && event.button == MouseButton::Right) window_.PopupMenu(window_.MResize);
}

void Layouts::Tiny_MouseMove(const MouseEvent& event) {
  if (IsTiny() && event.button == MouseButton::Left) window_.StartDrag();
}

}  // namespace troth
