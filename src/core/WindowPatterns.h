// The two ways in which windows of the program stay in front of the game.
#pragma once

#include <utility>

#include "core/MainWindow.h"
#include "core/Program.h"

namespace troth {

// A modal dialog over the main window, which must not cover it: the main window is not topmost meanwhile.
template <class Dialog, class... With>
void ShowDialog(Program& program, MainWindow& main, With&&... with) {
  main.SetStacking(Stacking::NotTopMost);
  program.Make<Dialog>(std::forward<With>(with)...).ShowModal();
  main.SetStacking(program.TopMostState);
}

// A tool window that stays open, at the height in which the main window stands at this moment.
template <class Tool, class... With>
void ShowToolWindow(Program& program, Form* owner, With&&... with) {
  Tool& tool = program.Make<Tool>(std::forward<With>(with)...);
  tool.Show(owner);
  tool.SetStacking(program.TopMostState);
}

}  // namespace troth
