#include "shell/StartUp.h"

#include "shell/Program.h"
#include "shell/frmTroth.h"

namespace troth {

void RunProgram(Program& program) {
  program.Open<frmTroth>().Show();
  program.platform.forms.RunUntilLastFormIsGone();
}

}  // namespace troth
