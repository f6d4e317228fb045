// What all tests on the headless desktop share: the desktop, its user, the settings and files of the program,
// and the journal of what the program did to the outside.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "platform/forms/KeyCodes.h"
#include "platform/forms/ListBox.h"
#include "platform/headless/HeadlessDesktop.h"

namespace troth {

using Lines = std::vector<std::string>;

inline std::string Readable(std::wstring_view text) { return HeadlessJournal::Readable(text); }

class HeadlessTest : public testing::Test {
 protected:
  HeadlessDesktop desktop;
  HeadlessUser& user = desktop.user;
  HeadlessFiles& files = desktop.files;

  // Settings of the program; those of the section "Options" need no section.
  void Store(const std::wstring& section, const std::wstring& key, const std::wstring& value) {
    desktop.settings.Put(L"Troth", section, key, value);
  }
  void Store(const std::wstring& key, const std::wstring& value) { Store(L"Options", key, value); }
  std::wstring Stored(const std::wstring& section, const std::wstring& key) const {
    return desktop.settings.Read(L"Troth", section, key).value_or(L"(nothing)");
  }
  std::wstring Stored(const std::wstring& key) const { return Stored(L"Options", key); }

  // The bytes of a file.
  std::string File(const std::wstring& path) const { return files.Read(path).value_or("(nothing)"); }

  // The entries of a list, each with a ";" after it and the selected one with a "*" before it.
  static std::string Shown(const ListBox& list) {
    std::string shown;
    for (int i = 0; i < list.Count(); ++i)
      shown += (i == list.Index() ? "*" : "") + Readable(list.Text(i)) + ";";
    return shown;
  }

  // What was done to the outside since the last time.
  Lines TakeStory() {
    Lines story = desktop.journal.Lines();
    desktop.journal.Clear();
    return story;
  }
};

}  // namespace troth
