#include "game/Typeface.h"

#include <algorithm>
#include <vector>

namespace troth::game {
namespace {

COLORREF ToColorRef(Colour colour) {
  return RGB((colour >> 16) & 0xFFU, (colour >> 8) & 0xFFU, colour & 0xFFU);
}

int CALLBACK NoteFamily(const LOGFONTW*, const TEXTMETRICW*, DWORD, LPARAM found) {
  *reinterpret_cast<bool*>(found) = true;
  return 0;
}

bool IsInstalled(HDC device, const wchar_t* family) {
  LOGFONTW wanted{};
  wanted.lfCharSet = DEFAULT_CHARSET;
  lstrcpynW(wanted.lfFaceName, family, LF_FACESIZE);
  bool found = false;
  EnumFontFamiliesExW(device, &wanted, NoteFamily, reinterpret_cast<LPARAM>(&found), 0);
  return found;
}

}  // namespace

void Typeface::Choose(HDC device, const FaceChoice& choice) {
  const auto family = std::ranges::find_if(
      choice.families, [&](const wchar_t* candidate) { return IsInstalled(device, candidate); });
  const wchar_t* name = family == choice.families.end() ? L"" : *family;
  font_.reset(CreateFontW(-choice.height, 0, 0, 0, FW_NORMAL, choice.slanted, FALSE, FALSE, DEFAULT_CHARSET,
                          OUT_TT_PRECIS, CLIP_DEFAULT_PRECIS, CLEARTYPE_QUALITY, DEFAULT_PITCH | FF_ROMAN,
                          name));
  const HGDIOBJ before = SelectObject(device, font_.get());
  GetCharWidth32A(device, 0, 255, widths_.data());
  TEXTMETRICW metrics{};
  GetTextMetricsW(device, &metrics);
  lineHeight_ = std::max(1L, metrics.tmHeight + metrics.tmHeight / 8);
  SelectObject(device, before);
}

void Typeface::Draw(HDC device, std::string_view text, int x, int y, Colour colour) const {
  std::vector<INT> advances;
  advances.reserve(text.size());
  for (const char c : text) advances.push_back(widths_[static_cast<unsigned char>(c)]);
  const HGDIOBJ before = SelectObject(device, font_.get());
  SetBkMode(device, TRANSPARENT);
  SetTextColor(device, ToColorRef(colour));
  ExtTextOutA(device, x, y, 0, nullptr, text.data(), static_cast<UINT>(text.size()), advances.data());
  SelectObject(device, before);
}

void Typeface::DrawLabel(HDC device, std::wstring_view text, const Box& box, Colour colour,
                         UINT alignment) const {
  RECT bounds{box.left, box.top, box.right, box.bottom};
  const HGDIOBJ before = SelectObject(device, font_.get());
  SetBkMode(device, TRANSPARENT);
  SetTextColor(device, ToColorRef(colour));
  DrawTextW(device, text.data(), static_cast<int>(text.size()), &bounds,
            alignment | DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
  SelectObject(device, before);
}

void Surface::Resize(int width, int height) {
  width = std::max(width, 1);
  height = std::max(height, 1);
  if (width == width_ && height == height_) return;
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof(info.bmiHeader);
  info.bmiHeader.biWidth = width;
  info.bmiHeader.biHeight = -height;  // rows from top to bottom
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  info.bmiHeader.biCompression = BI_RGB;
  void* bits = nullptr;
  DeviceContext device(CreateCompatibleDC(nullptr));
  BitmapHandle bitmap(CreateDIBSection(device.get(), &info, DIB_RGB_COLORS, &bits, nullptr, 0));
  if (!bitmap) return;
  SelectObject(device.get(), bitmap.get());
  device_ = std::move(device);
  bitmap_ = std::move(bitmap);
  pixels_ = static_cast<Colour*>(bits);
  width_ = width;
  height_ = height;
}

}  // namespace troth::game
