// The headless backend for native tests and fuzzers: one object provides the platform for the program, a
// scripted user and a virtual clock for the test, and a journal of what the program did to the outside.
#pragma once

#include "platform/Platform.h"
#include "platform/headless/HeadlessFiles.h"
#include "platform/headless/HeadlessForms.h"
#include "platform/headless/HeadlessGraphics.h"
#include "platform/headless/HeadlessJournal.h"
#include "platform/headless/HeadlessServices.h"
#include "platform/headless/HeadlessTime.h"
#include "platform/headless/HeadlessUser.h"
#include "platform/headless/HeadlessWindows.h"

namespace troth {

class HeadlessDesktop {
 public:
  HeadlessJournal journal;
  HeadlessTime time{journal};
  HeadlessForms forms{time};
  HeadlessUser user{forms};
  HeadlessWindows windows{time, journal};
  HeadlessFiles files;
  HeadlessSettings settings;
  HeadlessShell shell{journal};
  HeadlessDialogs dialogs{journal};
  HeadlessKeyboard keyboard{journal};
  HeadlessText text;
  HeadlessProcess process{journal};
  HeadlessGraphics graphics{windows};

  Platform platform{.forms = forms,
                    .windows = windows,
                    .keyboard = keyboard,
                    .time = time,
                    .files = files,
                    .settings = settings,
                    .shell = shell,
                    .dialogs = dialogs,
                    .text = text,
                    .process = process,
                    .graphics = graphics};
};

}  // namespace troth
