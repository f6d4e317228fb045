// What the version record of the executable says of the program. Read by the resource compiler as well, hence
// macros and nothing else.
#pragma once

#define TROTH_MAJOR 3
#define TROTH_MINOR 1
#define TROTH_REVISION 0
#define TROTH_COMMENTS                                                                                   \
  "Trothline speaks for you, but you stand for what it says. It comes without any warranty; its makers " \
  "answer neither for vows forgotten nor for what the rules of the game make of it."
