#include "platform/win32/FormFont.h"

#include <algorithm>
#include <cmath>

namespace troth {

namespace {

// Text smaller than this cannot be read; a caption that does not fit then has to be clipped.
constexpr int kSmallestTwips = 9 * 15;

// Nine points, the size of the system's messages unless the user has changed it.
constexpr UINT kUsualDpi = 96;
constexpr int kUsualTextHeight = 12;

SIZE SizeOn(HDC surface, const std::wstring& caption) {
  RECT text{};
  DrawTextW(surface, caption.c_str(), -1, &text, DT_CALCRECT | DT_SINGLELINE);
  return {text.right, text.bottom};
}

LOGFONTW MessageFont(UINT dpi) {
  NONCLIENTMETRICSW metrics{};
  metrics.cbSize = sizeof metrics;
  SystemParametersInfoForDpi(SPI_GETNONCLIENTMETRICS, metrics.cbSize, &metrics, 0, dpi);
  return metrics.lfMessageFont;
}

bool Fits(HDC surface, const CaptionBox& caption) {
  const SIZE text = SizeOn(surface, caption.text);
  return text.cx <= caption.width && text.cy <= caption.height;
}

}  // namespace

int TextSizePercent() {
  return std::max(100, MulDiv(100, std::abs(MessageFont(kUsualDpi).lfHeight), kUsualTextHeight));
}

UniqueFont DeriveFont(HFONT font, bool bold, int percent) {
  LOGFONTW face{};
  GetObjectW(font, sizeof face, &face);
  face.lfHeight = MulDiv(face.lfHeight, percent, 100);
  if (bold) face.lfWeight = FW_BOLD;
  return UniqueFont(CreateFontIndirectW(&face));
}

UniqueFont CreateControlFont(const ControlFont& font, UINT dpi) {
  LOGFONTW face{};
  face.lfHeight = -static_cast<LONG>(std::lround(font.points * dpi / 72));
  face.lfWeight = font.bold ? FW_BOLD : FW_NORMAL;
  face.lfCharSet = DEFAULT_CHARSET;
  face.lfQuality = CLEARTYPE_QUALITY;
  font.face.copy(face.lfFaceName, LF_FACESIZE - 1);
  return UniqueFont(CreateFontIndirectW(&face));
}

UniqueFont ChooseFormFont(HDC surface, UINT monitorDpi, UINT layoutDpi,
                          const std::vector<CaptionBox>& captions) {
  LOGFONTW wanted = MessageFont(monitorDpi);
  UniqueFont font;
  for (int height = std::abs(wanted.lfHeight);; --height) {
    wanted.lfHeight = -height;
    font.reset(CreateFontIndirectW(&wanted));
    const HGDIOBJ before = SelectObject(surface, font.get());
    const bool allFit = std::all_of(captions.begin(), captions.end(), [&](const CaptionBox& caption) {
      return caption.text.empty() || Fits(surface, caption);
    });
    SelectObject(surface, before);
    if (allFit || height <= ToPixels(kSmallestTwips, layoutDpi)) break;
  }
  return font;
}

}  // namespace troth
