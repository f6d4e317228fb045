// Where a tool window comes up for which no place is stored.
#pragma once

namespace troth {

class Form;
struct Platform;

// Moves `tool` so that it covers nothing of `main`, as far as the screen allows: to its right if it is taller
// than wide, otherwise below it.
void GoBeside(const Platform& platform, Form& tool, const Form& main);

}  // namespace troth
