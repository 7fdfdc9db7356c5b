#pragma once

#include "core/screen.h"
#include "core/shared_state.h"
#include "toolkit/form.h"
#include "toolkit/runtime.h"

namespace brindlepage {

// The running program: the runtime and the variables that every screen shares.
class Program : public Runtime {
 public:
  using Runtime::Runtime;

  SharedState shared;
};

// What the program's screens have in common: the shared variables within reach, the step to
// the next screen, and the load's first lines.
class ProgramForm : public Form {
 public:
  ProgramForm(Program& program, Screen id, std::string name, std::string caption,
              FormKind kind = FormKind::Screen)
      : Form(program, id, std::move(name), std::move(caption), kind),
        program_(program),
        shared(program.shared) {}

 protected:
  Program& program() const { return program_; }
  Forms& forms() const { return program_.forms(); }

  // Shows the next screen, whose load runs at once, then unloads this one.
  void StepTo(Screen next);
  // The other way round: unloads this screen, then shows the next.
  void LeaveFor(Screen next);
  void Unload() { forms().Unload(id()); }
  // Loads the picture that stands behind every screen but the menu and the small boxes.
  void LoadBackground();

 private:
  Program& program_;

 protected:
  SharedState& shared;
};

}  // namespace brindlepage
