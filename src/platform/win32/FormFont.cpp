#include "platform/win32/FormFont.h"

#include <algorithm>

namespace troth {

namespace {

// Text smaller than this cannot be read; a caption that does not fit then has to be clipped.
constexpr int kSmallestTwips = 9 * 15;

SIZE SizeOn(HDC surface, const std::wstring& caption) {
  RECT text{};
  DrawTextW(surface, caption.c_str(), -1, &text, DT_CALCRECT | DT_SINGLELINE);
  return {text.right, text.bottom};
}

bool Fits(HDC surface, const CaptionBox& caption) {
  const SIZE text = SizeOn(surface, caption.text);
  return text.cx <= caption.width && text.cy <= caption.height;
}

}  // namespace

SIZE CaptionSize(HDC surface, HFONT font, const std::wstring& text) {
  const HGDIOBJ before = SelectObject(surface, font);
  const SIZE size = SizeOn(surface, text);
  SelectObject(surface, before);
  return size;
}

UniqueFont DeriveFont(HFONT font, bool bold, int percent) {
  LOGFONTW face{};
  GetObjectW(font, sizeof face, &face);
  face.lfHeight = MulDiv(face.lfHeight, percent, 100);
  if (bold) face.lfWeight = FW_BOLD;
  return UniqueFont(CreateFontIndirectW(&face));
}

UniqueFont ChooseFormFont(HDC surface, UINT dpi, const std::vector<CaptionBox>& captions) {
  NONCLIENTMETRICSW metrics{};
  metrics.cbSize = sizeof metrics;
  SystemParametersInfoForDpi(SPI_GETNONCLIENTMETRICS, metrics.cbSize, &metrics, 0, dpi);
  LOGFONTW wanted = metrics.lfMessageFont;
  UniqueFont font;
  for (int height = std::abs(wanted.lfHeight);; --height) {
    wanted.lfHeight = -height;
    font.reset(CreateFontIndirectW(&wanted));
    const HGDIOBJ before = SelectObject(surface, font.get());
    const bool allFit = std::all_of(captions.begin(), captions.end(), [&](const CaptionBox& caption) {
      return caption.text.empty() || Fits(surface, caption);
    });
    SelectObject(surface, before);
    if (allFit || height <= ToPixels(kSmallestTwips, dpi)) break;
  }
  return font;
}

}  // namespace troth
