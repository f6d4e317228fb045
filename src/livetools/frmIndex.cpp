#include "livetools/frmIndex.h"

#include <algorithm>
#include <limits>

#include "core/MainWindow.h"
#include "core/Program.h"
#include "core/ScreenPlace.h"
#include "core/Settings.h"
#include "core/modMain.h"

namespace troth {

namespace {

// The place is kept in 16 bits; a window further out comes back at the edge of what they hold.
std::int16_t ToShort(int twips) {
  using Limits = std::numeric_limits<std::int16_t>;
  return static_cast<std::int16_t>(std::clamp<int>(twips, Limits::min(), Limits::max()));
}

}  // namespace

frmIndex::frmIndex(Program& program, MainWindow& main)
    : Form(program.platform.forms, {.name = L"frmIndex",
                                    .caption = L"Paragraph Index",
                                    .clientSize = {3600, 3885},
                                    .border = BorderStyle::FixedDialog,
                                    .helpContext = 3}),
      program_(program),
      main_(main) {
  lstIndex.OnDoubleClick = [this] { SelectIndex(); };
  cmdGoto.OnClick = [this] { SelectIndex(); };
  cdmHelp.OnClick = [this] { modMain::ShowHelp(program_, *this); };
  MoveTimer.OnTimer = [this] { MoveTimer_Timer(); };
}

void frmIndex::Restore() {
  const Platform& platform = program_.platform;
  const Point place =
      RestoreWithinScreen(platform, *this, settings::IndexXPosition, settings::IndexYPosition);
  program_.IndexX = ToShort(place.left);
  program_.IndexY = ToShort(place.top);
  program_.IndexVisible = ReadFlag(platform, settings::IndexVisible);
  if (program_.IndexVisible) Show(&main_);
}

void frmIndex::ComeToFront() {
  if (Visible()) SetStacking(program_.TopMostState);
}

void frmIndex::Open() {
  MoveTo({program_.IndexX, program_.IndexY});
  Show(&main_);
  ComeToFront();
  program_.IndexVisible = true;
}

void frmIndex::SetParagraphs(const std::vector<std::wstring>& titles, bool canGo) {
  std::vector<ListEntry> entries;
  entries.reserve(titles.size());
  for (const std::wstring& title : titles) entries.push_back({.text = title});
  lstIndex.SetEntries(std::move(entries));
  cmdGoto.SetEnabled(canGo);
}

void frmIndex::SelectIndex() {
  const int selected = lstIndex.Index();
  if (selected < 0) return;
  main_.lstWedding.SetIndex(program_.ScriptIndexEntries.Item(selected + 1).ListPointer());
}

void frmIndex::Form_QueryUnload(bool& cancel, CloseReason reason) {
  Hide();
  if (reason != CloseReason::User) return;
  cancel = true;
  program_.IndexVisible = false;
}

void frmIndex::MoveTimer_Timer() {
  if (!Visible() || IsMinimised()) return;
  const Rect outer = OuterBounds();
  program_.IndexX = ToShort(outer.left);
  program_.IndexY = ToShort(outer.top);
}

}  // namespace troth
