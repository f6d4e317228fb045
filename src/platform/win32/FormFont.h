// The font of a form: the system's message font, made as much smaller as the captions of the form need to fit
// into the places that the form gives them.
#pragma once

#include <string>
#include <vector>

#include "platform/win32/Win32.h"

namespace troth {

// A caption and the room for it in pixels, without what the control draws beside the text.
struct CaptionBox {
  std::wstring text;
  int width = 0;
  int height = 0;
};

// The size in pixels of a caption on one line; its "&" takes no room. Any surface of the screen will do to
// measure on, also here and below.
SIZE CaptionSize(HDC surface, HFONT font, const std::wstring& text);

// The same face, bolder or of another size.
UniqueFont DeriveFont(HFONT font, bool bold, int percent);

UniqueFont ChooseFormFont(HDC surface, UINT dpi, const std::vector<CaptionBox>& captions);

}  // namespace troth
