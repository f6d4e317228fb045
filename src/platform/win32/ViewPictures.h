// The small pictures in front of folders and documents, drawn for the DPI of the form: sharp at any scale.
#pragma once

#include <windows.h>
// The system's lists of pictures need windows.h before them.
#include <commctrl.h>

#include "platform/win32/Win32.h"

namespace troth {

using UniqueImageList = Unique<HIMAGELIST, ImageList_Destroy>;

// Numbers within the list of pictures.
inline constexpr int kClosedFolder = 0;
inline constexpr int kOpenFolder = 1;
inline constexpr int kDocument = 2;

UniqueImageList DrawViewPictures(UINT dpi);

}  // namespace troth
