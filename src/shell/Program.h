// One run of the program: everything that lives as long as the run, in one object made by app/ (or a test)
// and handed on by reference. Knows no window by name: each is a slot, found by its type.
#pragma once

#include <memory>
#include <string>
#include <typeindex>
#include <unordered_map>
#include <utility>

#include "platform/Form.h"
#include "platform/Platform.h"
#include "script/IndexEntries.h"
#include "script/WeddingScript.h"

namespace troth {

class Program {
 public:
  explicit Program(Platform& runsOn) : platform(runsOn) {}
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  Platform& platform;

  // The live script; exists also while no script is loaded.
  WeddingScript ScriptNow;
  // Paragraphs of the live script.
  IndexEntries ScriptIndexEntries;
  // The list is complete and its click may build a sentence.
  bool WindowReady = false;
  // Delay in ms of the row for which the sentence was last built.
  int RowDelay = 0;
  // Asks the slow senders of the book writer to stop.
  bool BookStop = false;

  // The window, made and loaded if it is not there. `with` goes to its constructor behind the program.
  template <class Window, class... With>
  Window& Open(With&&... with) {
    std::unique_ptr<Form>& slot = windows_[typeid(Window)];
    if (!slot) {
      slot = std::make_unique<Window>(*this, std::forward<With>(with)...);
      slot->WhenGone([this] { windows_.erase(typeid(Window)); });
      slot->Load();
    }
    return static_cast<Window&>(*slot);
  }

  // The window if it is loaded, otherwise null.
  template <class Window>
  Window* Opened() {
    const auto slot = windows_.find(typeid(Window));
    return slot == windows_.end() ? nullptr : static_cast<Window*>(slot->second.get());
  }

 private:
  std::unordered_map<std::type_index, std::unique_ptr<Form>> windows_;
};

}  // namespace troth
