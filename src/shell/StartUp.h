// How a run begins: opens the first window and stays until the last one has gone.
#pragma once

namespace troth {

class Program;

void RunProgram(Program& program);

}  // namespace troth
