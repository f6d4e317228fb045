#include "tests/desktop/ForeignList.h"

#include <windows.h>
// The system's list needs windows.h before it.
#include <commctrl.h>

#include <stdexcept>

namespace troth::desktop {

namespace {

// A value in the memory of another process.
template <class Value>
class Remote {
 public:
  Remote(HANDLE process, const Value& value)
      : process_(process),
        place_(VirtualAllocEx(process, nullptr, sizeof(Value), MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE)) {
    if (!place_ || !WriteProcessMemory(process_, place_, &value, sizeof(Value), nullptr))
      throw std::runtime_error("no memory in the other process");
  }
  ~Remote() { VirtualFreeEx(process_, place_, 0, MEM_RELEASE); }
  Remote(const Remote&) = delete;
  Remote& operator=(const Remote&) = delete;

  LPARAM Place() const { return reinterpret_cast<LPARAM>(place_); }
  Value Read() const {
    Value value{};
    ReadProcessMemory(process_, place_, &value, sizeof(Value), nullptr);
    return value;
  }

 private:
  HANDLE process_;
  void* place_;
};

constexpr int kLongestText = 512;

struct TextOrder {
  LVITEMW item{};
  wchar_t text[kLongestText] = {};
};

}  // namespace

int ForeignList::Count() const { return static_cast<int>(Ask(list_, LVM_GETITEMCOUNT)); }

int ForeignList::Index() const {
  return static_cast<int>(Ask(list_, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED));
}

std::wstring ForeignList::Text(int row) const {
  const Remote<TextOrder> order(owner_, {});
  TextOrder filled;
  filled.item.cchTextMax = kLongestText;
  filled.item.pszText = reinterpret_cast<wchar_t*>(order.Place() + static_cast<LPARAM>(sizeof(LVITEMW)));
  WriteProcessMemory(owner_, reinterpret_cast<void*>(order.Place()), &filled, sizeof filled, nullptr);
  Ask(list_, LVM_GETITEMTEXTW, static_cast<WPARAM>(row), order.Place());
  return order.Read().text;
}

bool ForeignList::Ticked(int row) const {
  const LRESULT state = Ask(list_, LVM_GETITEMSTATE, static_cast<WPARAM>(row), LVIS_STATEIMAGEMASK);
  return state == INDEXTOSTATEIMAGEMASK(2);
}

void ForeignList::SetTicked(int row, bool ticked) const {
  LVITEMW change{};
  change.stateMask = LVIS_STATEIMAGEMASK;
  change.state = INDEXTOSTATEIMAGEMASK(ticked ? 2U : 1U);
  const Remote<LVITEMW> order(owner_, change);
  Ask(list_, LVM_SETITEMSTATE, static_cast<WPARAM>(row), order.Place());
}

std::wstring ForeignList::Rows() const {
  std::wstring rows;
  for (int row = 0; row < Count(); ++row) rows += (row == Index() ? L"*" : L"") + Text(row) + L';';
  return rows;
}

RECT ForeignList::Bounds(int row) const {
  Ask(list_, LVM_ENSUREVISIBLE, static_cast<WPARAM>(row), FALSE);
  RECT order{};
  order.left = LVIR_BOUNDS;
  const Remote<RECT> bounds(owner_, order);
  if (!Ask(list_, LVM_GETITEMRECT, static_cast<WPARAM>(row), bounds.Place()))
    throw std::runtime_error("the list has no such row");
  return bounds.Read();
}

POINT ForeignList::TickOf(int row) const {
  const RECT bounds = Bounds(row);
  for (LONG x = bounds.left; x < bounds.right; ++x) {
    LVHITTESTINFO question{};
    question.pt = {x, (bounds.top + bounds.bottom) / 2};
    const Remote<LVHITTESTINFO> hit(owner_, question);
    Ask(list_, LVM_HITTEST, 0, hit.Place());
    if (hit.Read().flags != LVHT_ONITEMSTATEICON) continue;
    POINT place{x + 4, question.pt.y};
    ClientToScreen(list_, &place);
    return place;
  }
  throw std::runtime_error("the row has no tick box");
}

POINT ForeignList::LabelOf(int row) const {
  const RECT bounds = Bounds(row);
  POINT place{bounds.left + 40, (bounds.top + bounds.bottom) / 2};
  ClientToScreen(list_, &place);
  return place;
}

}  // namespace troth::desktop
