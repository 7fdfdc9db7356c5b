#include "desktop/desktop.h"

namespace brindlepage {

Desktop::Desktop()
    : windows_(std::make_unique<Windows>(loop_)),
      platform_(loop_, *windows_),
      random_(Loop::Now, [this] { StillWaiting(); }),
      program_(platform_, random_) {
  loop_.Attach(program_);
  QObject::connect(&loop_, &Loop::HandlerBegins, &loop_, [this] { random_.BeginHandler(); });
}

// The windows go before the forms that they show.
Desktop::~Desktop() { windows_.reset(); }

void Desktop::Start() {
  program_.Start();
  windows_->Flush();
  loop_.TakeStock();
}

void Desktop::StillWaiting() {
  if (!platform_.AskToWait()) program_.End();
}

}  // namespace brindlepage
