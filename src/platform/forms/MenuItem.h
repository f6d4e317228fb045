// An entry of a form's menu: a top-level menu of the bar, an item in a menu, or a separator (caption "-").
// OnClick follows a choice by the user; setting the check mark from the program raises nothing.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/forms/ControlHost.h"

namespace troth {

// A key that chooses an item without its menu: Ctrl+X is {L'X', kControlDown}. No key code: no shortcut.
struct Shortcut {
  int keyCode = 0;
  int shift = 0;
  friend bool operator==(const Shortcut&, const Shortcut&) = default;
};

struct MenuItemOptions {
  std::wstring name;
  std::wstring caption;
  bool checked = false;
  bool enabled = true;
  bool visible = true;
  Shortcut shortcut = {};
};

class MenuItem final {
 public:
  // A top-level menu of the form's bar.
  MenuItem(ControlHost& host, MenuItemOptions options);
  // An item in the menu `parent`.
  MenuItem(MenuItem& parent, MenuItemOptions options);
  MenuItem(const MenuItem&) = delete;
  MenuItem& operator=(const MenuItem&) = delete;

  const std::wstring& Name() const { return name_; }
  const std::vector<MenuItem*>& Children() const { return children_; }
  const Shortcut& ShortcutKey() const { return shortcut_; }
  // The caption with the name of the shortcut after a tab character, as a menu shows it.
  std::wstring CaptionWithShortcut() const;
  bool IsSeparator() const { return caption_ == L"-"; }

  const std::wstring& Caption() const { return caption_; }
  void SetCaption(std::wstring caption);
  bool Checked() const { return checked_; }
  void SetChecked(bool checked);
  bool Enabled() const { return enabled_; }
  void SetEnabled(bool enabled);
  bool Visible() const { return visible_; }
  void SetVisible(bool visible);

  std::function<void()> OnClick;

  // --- Called by the form and the backend only. ---
  void UserChose();
  // Chooses the item below this one, or this one, that has the shortcut. False if there is none that can be
  // chosen.
  bool UserPressedShortcut(const Shortcut& shortcut);

 private:
  bool CanBeChosen() const;

  ControlHost& host_;
  MenuItem* parent_ = nullptr;
  std::wstring name_;
  std::wstring caption_;
  bool checked_;
  bool enabled_;
  bool visible_;
  Shortcut shortcut_;
  std::vector<MenuItem*> children_;
};

}  // namespace troth
