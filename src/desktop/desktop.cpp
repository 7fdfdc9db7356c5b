#include "desktop/desktop.h"

#include <QApplication>

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

int Desktop::Run() {
  Start();
  if (program_.Ended()) return program_.Status();
  // Not quit(), which asks the windows, and these leave it to the program.
  QObject::connect(&loop_, &Loop::Ended, &loop_, [] { QCoreApplication::exit(); });
  QApplication::exec();
  return program_.Status();
}

void Desktop::StillWaiting() {
  if (!platform_.AskToWait()) program_.End();
}

}  // namespace brindlepage
