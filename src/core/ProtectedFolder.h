// A program folder in which this user may not write, as where the program was installed for all users.
#pragma once

namespace troth {

class Program;

// Called where something could not be saved, after the message about that. If the reason is that nothing can
// be written to the program folder, says so once in the run.
void ExplainProtectedFolder(Program& program);

}  // namespace troth
