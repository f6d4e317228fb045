// What the player sees: composes the painted scene and the texts into one picture and shows it. The window
// calls Render at most once a frame, and Present whenever parts of the window must be shown again.
#pragma once

#include <windows.h>

#include <cstdint>
#include <vector>

#include "game/BookPage.h"
#include "game/ChatLog.h"
#include "game/Layout.h"
#include "game/TextWrap.h"
#include "game/Typeface.h"

namespace troth::game {

struct Shown {
  const ChatLog& chat;
  const BookPage& book;
  bool bookOpen;
  std::uint64_t received;  // characters
};

class GameView {
 public:
  // Client size in pixels. Unchanged parts are kept; a new size paints the moors again (tens of ms).
  void Place(int width, int height, unsigned dpi, bool bookOpen);
  void Render(const Shown& shown);
  void Present(HDC window, bool withCaret) const;

  RECT CaretBounds() const { return caret_; }
  const Layout& layout() const { return layout_; }

  // Rows, upwards positive; Render keeps it within the text.
  void ScrollChat(int rows) { chatScroll_ += rows; }
  void ScrollBook(int rows);
  // The cursor of the book moved: scroll to it.
  void FollowBookCursor() { followBookCursor_ = true; }
  int ChatPage() const;
  int BookPageRows() const;

 private:
  void ChooseFaces();
  void DrawBanner(const Shown& shown) const;
  void DrawLog(const ChatLog& chat);
  void DrawLogRow(const ChatLine& line, const TextRow& part, int y) const;
  void DrawScrollMark(int rowsShown) const;
  void DrawInput(const Shown& shown);
  void DrawBook(const BookPage& book);
  void DrawBookText(const EditBuffer& writing);
  void DrawBookFrame(const BookPage& book) const;
  void DrawStatus(const Shown& shown) const;
  void PutCaret(int x, int y, int height, Colour colour);

  Layout layout_;
  float faceScale_ = 0;  // what the faces were chosen for
  bool sceneStale_ = true;
  std::vector<Colour> moorland_;
  int moorlandWidth_ = 0;
  int moorlandHeight_ = 0;
  Surface scene_;  // moors and furniture
  Surface frame_;  // the scene and the texts

  Typeface chatFace_;
  Typeface chatSlanted_;
  Typeface bookFace_;
  Typeface titleFace_;
  Typeface smallFace_;

  ChatRows rows_;
  int chatScroll_ = 0;  // rows below the window
  int bookTop_ = 0;     // rows above the page
  bool followBookCursor_ = true;
  RECT caret_{};
  Colour caretColour_ = 0;
};

}  // namespace troth::game
