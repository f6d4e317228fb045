#include "game/GameView.h"

#include <algorithm>
#include <array>
#include <string>

#include "game/Furniture.h"
#include "game/Moorland.h"

namespace troth::game {
namespace {

constexpr std::array<const wchar_t*, 6> kSerif{L"Georgia",      L"Palatino Linotype", L"P052",
                                               L"DejaVu Serif", L"Liberation Serif",  L"Times New Roman"};
constexpr std::array<const wchar_t*, 6> kHand{L"Palatino Linotype", L"P052",         L"Constantia",
                                              L"Georgia",           L"DejaVu Serif", L"Times New Roman"};
constexpr std::array<const wchar_t*, 4> kPlain{L"Segoe UI", L"DejaVu Sans", L"Liberation Sans", L"Tahoma"};

constexpr Colour kGold = 0xE3C383;
constexpr Colour kInk = 0x33221A;
constexpr Colour kFadedInk = 0x7A5637;

struct SpeechColours {
  Colour lead;   // who does it
  Colour words;  // what is said
};

SpeechColours ColoursOf(Speech kind) {
  switch (kind) {
    case Speech::Narration:
      return {0xA79FC2, 0xA79FC2};
    case Speech::Say:
      return {0xB4A88E, 0xF5ECD6};
    case Speech::Yell:
      return {0xC98B58, 0xFFBC75};
    case Speech::Emote:
      return {0xB8DFA4, 0xB8DFA4};
    case Speech::Whisper:
      return {0x8F86C6, 0xC3B8FA};
    case Speech::Party:
      return {0x5FA3C0, 0x97D6F2};
    case Speech::Bare:
      return {0xE6E2DC, 0xE6E2DC};
    case Speech::Gesture:
      return {0xE8BEDA, 0xE8BEDA};
  }
  return {};
}

// The number of characters at the start of a line that name the speaker.
std::size_t LeadLength(const ChatLine& line) {
  if (line.kind == Speech::Party) return line.text.find(' ');
  if (line.kind == Speech::Say || line.kind == Speech::Yell || line.kind == Speech::Whisper)
    return line.text.find('"');
  return 0;
}

std::wstring Counted(std::uint64_t number, const wchar_t* one, const wchar_t* many) {
  std::wstring text = std::to_wstring(number);
  for (std::size_t at = text.size(); at > 3;) text.insert(at -= 3, L",");
  return text + (number == 1 ? one : many);
}

class Clip {
 public:
  Clip(HDC device, const Box& box) : device_(device), saved_(SaveDC(device)) {
    IntersectClipRect(device, box.left, box.top, box.right, box.bottom);
  }
  ~Clip() { RestoreDC(device_, saved_); }
  Clip(const Clip&) = delete;
  Clip& operator=(const Clip&) = delete;

 private:
  HDC device_;
  int saved_;
};

}  // namespace

void GameView::Place(int width, int height, unsigned dpi, bool bookOpen) {
  layout_ = Arrange(width, height, dpi, bookOpen);
  sceneStale_ = true;
  scene_.Resize(width, height);
  frame_.Resize(width, height);
  if (layout_.scale == faceScale_) return;
  faceScale_ = layout_.scale;
  ChooseFaces();
}

void GameView::ChooseFaces() {
  const HDC device = frame_.device();
  chatFace_.Choose(device, {.families = kSerif, .height = layout_.Scaled(16)});
  chatSlanted_.Choose(device, {.families = kSerif, .height = layout_.Scaled(16), .slanted = true});
  bookFace_.Choose(device, {.families = kHand, .height = layout_.Scaled(17)});
  titleFace_.Choose(device, {.families = kHand, .height = layout_.Scaled(25)});
  smallFace_.Choose(device, {.families = kPlain, .height = layout_.Scaled(12)});
  rows_.Reset();
}

void GameView::Render(const Shown& shown) {
  if (sceneStale_) {
    const Pixmap scene = scene_.pixels();
    if (scene.width != moorlandWidth_ || scene.height != moorlandHeight_) {
      moorland_.resize(static_cast<std::size_t>(scene.width) * static_cast<std::size_t>(scene.height));
      moorlandWidth_ = scene.width;
      moorlandHeight_ = scene.height;
      PaintMoorland({moorland_.data(), scene.width, scene.height});
    }
    GdiFlush();
    std::ranges::copy(moorland_, scene.pixels);
    PaintFurniture(scene, layout_);
    sceneStale_ = false;
  }
  const Pixmap frame = frame_.pixels();
  BitBlt(frame_.device(), 0, 0, frame.width, frame.height, scene_.device(), 0, 0, SRCCOPY);
  caret_ = {};
  DrawBanner(shown);
  if (!layout_.chat.IsEmpty()) {
    DrawLog(shown.chat);
    DrawInput(shown);
  }
  if (!layout_.book.IsEmpty()) DrawBook(shown.book);
  DrawStatus(shown);
}

void GameView::Present(HDC window, bool withCaret) const {
  const Pixmap frame = frame_.pixels();
  BitBlt(window, 0, 0, frame.width, frame.height, frame_.device(), 0, 0, SRCCOPY);
  if (!withCaret || caret_.right <= caret_.left) return;
  SetDCBrushColor(window, RGB(caretColour_ >> 16 & 0xFFU, caretColour_ >> 8 & 0xFFU, caretColour_ & 0xFFU));
  FillRect(window, &caret_, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
}

void GameView::ScrollBook(int rows) {
  bookTop_ -= rows;
  followBookCursor_ = false;
}

int GameView::ChatPage() const { return std::max(1, layout_.log.Height() / chatFace_.lineHeight()); }

int GameView::BookPageRows() const { return std::max(1, layout_.writing.Height() / bookFace_.lineHeight()); }

void GameView::PutCaret(int x, int y, int height, Colour colour) {
  caret_ = {x, y, x + std::max(1, layout_.Scaled(2)), y + height};
  caretColour_ = colour;
}

void GameView::DrawBanner(const Shown& shown) const {
  if (layout_.chat.top < layout_.banner.bottom && !shown.bookOpen) return;
  const HDC device = frame_.device();
  Box name = layout_.banner;
  name.bottom = name.top + titleFace_.lineHeight();
  Box place = layout_.banner;
  place.top = name.bottom;
  place.bottom = place.top + smallFace_.lineHeight();
  titleFace_.DrawLabel(device, L"Officiant", name, 0xF6E6C0, DT_LEFT);
  smallFace_.DrawLabel(device, L"Cairn Chapel, on the Kestrel Moors", place, 0xC9BEDC, DT_LEFT);
}

void GameView::DrawLog(const ChatLog& chat) {
  const int indent = layout_.Scaled(18);
  const int width = std::max(layout_.log.Width(), indent + 1);
  const std::size_t added = rows_.Sync(chat, width, indent, {chatFace_.widths(), chatSlanted_.widths()});
  if (chatScroll_ > 0) chatScroll_ += static_cast<int>(added);  // what is being read stays in place

  const int total = static_cast<int>(rows_.rows().size());
  const int page = ChatPage();
  chatScroll_ = std::clamp(chatScroll_, 0, std::max(0, total - page));
  const int last = total - chatScroll_;
  const int first = std::max(0, last - page);
  const Clip clip(frame_.device(),
                  {layout_.log.left, layout_.log.top, layout_.chat.right, layout_.log.bottom});
  for (int i = first; i < last; ++i) {
    const ChatRows::Row& row = rows_.rows()[static_cast<std::size_t>(i)];
    const ChatLine& line = chat.lines()[static_cast<std::size_t>(row.line - chat.dropped())];
    DrawLogRow(line, row.part, layout_.log.bottom - (last - i) * chatFace_.lineHeight());
  }
  if (total > page) DrawScrollMark(page);
}

void GameView::DrawLogRow(const ChatLine& line, const TextRow& part, int y) const {
  const Typeface& face = IsSlanted(line.kind) ? chatSlanted_ : chatFace_;
  const SpeechColours colours = ColoursOf(line.kind);
  const std::string_view text = std::string_view(line.text).substr(part.begin, part.length);
  int x = layout_.log.left;
  if (part.begin > 0) {
    face.Draw(frame_.device(), text, x + layout_.Scaled(18), y, colours.words);
    return;
  }
  const std::string_view lead = text.substr(0, LeadLength(line));
  face.Draw(frame_.device(), lead, x, y, colours.lead);
  x += TextWidth(lead, face.widths());
  face.Draw(frame_.device(), text.substr(lead.size()), x, y, colours.words);
}

void GameView::DrawScrollMark(int rowsShown) const {
  const int total = static_cast<int>(rows_.rows().size());
  const int track = layout_.log.Height();
  const int length = std::max(layout_.Scaled(24), track * rowsShown / total);
  const int away = (track - length) * chatScroll_ / std::max(1, total - rowsShown);
  const int bottom = layout_.log.bottom - away;
  const int left = layout_.log.right + layout_.Scaled(6);
  GdiFlush();
  FillRoundBox(frame_.pixels(), {left, bottom - length, left + layout_.Scaled(4), bottom}, 2 * layout_.scale,
               {kGold, kGold, chatScroll_ > 0 ? 0.85F : 0.35F});
}

void GameView::DrawInput(const Shown& shown) {
  const HDC device = frame_.device();
  const EditBuffer& input = shown.chat.input();
  const Box text = layout_.input.Shrunk(layout_.Scaled(10));
  const int y = (layout_.input.top + layout_.input.bottom - chatFace_.lineHeight()) / 2;
  const Clip clip(device, {text.left, layout_.input.top, text.right, layout_.input.bottom});
  const GlyphWidths& widths = chatFace_.widths();
  if (input.text().empty()) {
    const wchar_t* hint = shown.bookOpen ? L"The quill is on the page; words go to the book."
                                         : L"Speak, and the moors will hear you ...";
    Box hintBox{text.left + layout_.Scaled(6), layout_.input.top, text.right, layout_.input.bottom};
    chatSlanted_.DrawLabel(device, hint, hintBox, 0x77708E, DT_LEFT);
  }
  // A line that is too long is scrolled so that the cursor stays visible.
  const int cursorX = TextWidth(std::string_view(input.text()).substr(0, input.cursor()), widths);
  const int scrolled = std::max(0, cursorX - (text.Width() - layout_.Scaled(4)));
  std::size_t from = 0;
  int x = text.left - scrolled;
  while (from < input.text().size()) {
    const int width = widths[static_cast<unsigned char>(input.text()[from])];
    if (x + width > text.left) break;
    x += width;
    ++from;
  }
  std::string_view visible = std::string_view(input.text()).substr(from);
  visible = visible.substr(0, static_cast<std::size_t>(std::max(0, text.Width())));  // a glyph has a pixel
  chatFace_.Draw(device, visible, x, y, 0xFFFFFF);
  if (!shown.bookOpen) PutCaret(text.left + cursorX - scrolled, y, chatFace_.lineHeight(), kGold);
}

void GameView::DrawBook(const BookPage& book) {
  DrawBookFrame(book);
  DrawBookText(book.writing());
}

void GameView::DrawBookFrame(const BookPage& book) const {
  const HDC device = frame_.device();
  const Box& writing = layout_.writing;
  Box head{writing.left, layout_.page.top + layout_.Scaled(10), writing.right,
           writing.top - layout_.Scaled(10)};
  if (head.right > layout_.ribbon.left) head.right = layout_.ribbon.left - layout_.Scaled(8);
  titleFace_.DrawLabel(device, L"The Book of Vows", head, 0x5A2A1C, DT_LEFT);

  Box foot{writing.left, writing.bottom + layout_.Scaled(10), writing.right,
           layout_.page.bottom - layout_.Scaled(8)};
  const std::wstring place =
      L"Line " + std::to_wstring(book.CursorLine()) + L" of " + std::to_wstring(book.LineCount());
  smallFace_.DrawLabel(device, place, foot, kFadedInk, DT_LEFT);
  const std::wstring count = Counted(book.writing().text().size(), L" character", L" characters");
  smallFace_.DrawLabel(device, count, foot, kFadedInk, DT_RIGHT);
}

void GameView::DrawBookText(const EditBuffer& writing) {
  const HDC device = frame_.device();
  const Box& box = layout_.writing;
  const int width = std::max(1, box.Width());
  const std::vector<TextRow> rows = WrapText(writing.text(), bookFace_.widths(), width, width);
  const auto past = std::ranges::upper_bound(rows, writing.cursor(), {}, &TextRow::begin);
  const int cursorRow = static_cast<int>(past - rows.begin()) - 1;
  const int page = BookPageRows();
  if (followBookCursor_) bookTop_ = std::clamp(bookTop_, cursorRow - page + 1, cursorRow);
  bookTop_ = std::clamp(bookTop_, 0, std::max(0, static_cast<int>(rows.size()) - page));

  const std::string_view text = writing.text();
  const int last = std::min(static_cast<int>(rows.size()), bookTop_ + page);
  for (int i = bookTop_; i < last; ++i) {
    const TextRow& row = rows[static_cast<std::size_t>(i)];
    const int y = box.top + (i - bookTop_) * bookFace_.lineHeight();
    bookFace_.Draw(device, text.substr(row.begin, row.length), box.left, y, kInk);
    if (i != cursorRow) continue;
    const int x = TextWidth(text.substr(row.begin, writing.cursor() - row.begin), bookFace_.widths());
    PutCaret(box.left + std::min(x, width), y, bookFace_.lineHeight(), 0x8E2836);
  }
}

void GameView::DrawStatus(const Shown& shown) const {
  const HDC device = frame_.device();
  Box box = layout_.status;
  box.left += layout_.Scaled(20);
  box.right -= layout_.Scaled(20);
  const std::wstring received = Counted(shown.received, L" character received", L" characters received");
  smallFace_.DrawLabel(device, received, box, 0x9D93B4, DT_RIGHT);
  box.right -= layout_.Scaled(155);
  const wchar_t* hint = shown.bookOpen ? L"F2 or Esc shuts the book  \u00B7  Enter breaks the line"
                                       : L"Enter speaks  \u00B7  F2 opens the book  \u00B7  "
                                         L"PgUp and PgDn look back";
  smallFace_.DrawLabel(device, hint, box, 0xCFC4A8, DT_LEFT);
  Box ribbon = layout_.ribbon;
  ribbon.top = layout_.Scaled(34);
  ribbon.bottom = layout_.Scaled(52);
  smallFace_.DrawLabel(device, shown.bookOpen ? L"Shut" : L"Book", ribbon, 0xFBE9C2, DT_CENTER);
  ribbon.top = ribbon.bottom - layout_.Scaled(2);
  ribbon.bottom = ribbon.top + layout_.Scaled(18);
  smallFace_.DrawLabel(device, L"F2", ribbon, 0xE0B98A, DT_CENTER);
}

}  // namespace troth::game
