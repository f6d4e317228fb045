// The shapes of the main window: the list to the right of the other controls or below them, and the Tiny
// window, which leaves the bare controls of speech without title bar and menu. Owned by frmTroth; wires the
// mouse of its ground.
#pragma once

#include <cstdint>
#include <string>

#include "platform/Geometry.h"

namespace troth {

class MainWindow;
struct MouseEvent;
class Program;

class Layouts {
 public:
  Layouts(Program& program, MainWindow& window);

  // Places the list as MOptionsVertical is checked, sizes the window around it, and pushes it back onto the
  // screen. First called when the window loads, in the state in which its controls are declared.
  void ArrangeLayout();

  // Shrinks the window; it stays the same window, so its hotkeys go on working. Does nothing in the Tiny
  // window.
  void EnterTiny();
  // Leaves the Tiny window; does nothing in the normal one.
  void RestoreWindow();

  bool IsTiny() const { return TinySpeakTop != 0; }

 private:
  void PlaceList();
  void SizeAroundList();
  void PushIntoScreen();
  void ShowTitleBar(bool show);
  void ShowAll(bool visible);
  void Tiny_MouseDown(const MouseEvent& event);
  void Tiny_MouseMove(const MouseEvent& event);

  Program& program_;
  MainWindow& window_;
  // What lies between the list and the outer edges, and between the list and the lower edge of the client
  // area.
  Size margin_;
  int clientMargin_ = 0;
  // Tops of the normal window, kept while the Tiny window is on. A top of 0 means that it is off.
  std::int32_t TinySpeakTop = 0;
  std::int32_t NormalNextTop = 0;
  std::int32_t NormalWidth = 0;
  std::int32_t NormalHeight = 0;
  std::wstring title_;
};

}  // namespace troth
