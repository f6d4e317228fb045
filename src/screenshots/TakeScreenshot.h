// The screen capture as a whole: menu item, hotkey and directive call this. Writes one numbered file a
// capture, in a folder of this run.
#pragma once

namespace troth {

class MainWindow;
class Program;

namespace modScript {

// Takes half a second at least. Other handlers run inside the call, and a preview may hold it up until the
// user closes it. A picture that cannot be written is passed over in silence, and its number is used up.
void TakeScreenshot(Program& program, MainWindow& main);

}  // namespace modScript
}  // namespace troth
