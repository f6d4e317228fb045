// The font of a form: the system's message font, made as much smaller as the captions of the form need to fit
// into the places that the form gives them.
#pragma once

#include <string>
#include <vector>

#include "platform/forms/Control.h"
#include "platform/win32/Win32.h"

namespace troth {

// A caption and the space for it in pixels, without what the control draws beside the text.
struct CaptionBox {
  std::wstring text;
  int width = 0;
  int height = 0;
};

// The same face, bolder or of another size.
UniqueFont DeriveFont(HFONT font, bool bold, int percent);

// A font of a control's own.
UniqueFont CreateControlFont(const ControlFont& font, UINT dpi);

// The largest size at which all captions fit, up to that of the system's messages on the monitor. Any surface
// of the screen will do to measure on.
UniqueFont ChooseFormFont(HDC surface, UINT monitorDpi, UINT layoutDpi,
                          const std::vector<CaptionBox>& captions);

// How much the user has enlarged the text of the system, in percent of its usual size.
int TextSizePercent();

}  // namespace troth
