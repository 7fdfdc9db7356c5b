#include "toolkit/runtime.h"

#include <new>

namespace brindlepage {

Runtime::Runtime(Platform& platform, RandomSource& random, Forms::Factory factory)
    : platform_(platform), random_(&random), forms_(*this, std::move(factory)) {}

void Runtime::Dispatch(const std::function<void()>& handler) {
  if (ended_) return;
  struct Depth {
    explicit Depth(int& d) : depth(d) { ++depth; }
    ~Depth() { --depth; }
    int& depth;
  };
  {
    Depth deeper(depth_);
    try {
      handler();
    } catch (const ProgramEnd&) {
      ended_ = true;
    } catch (const RunTimeError& error) {
      Fail(error.fault());
    } catch (const std::bad_alloc&) {
      Fail(Fault::OutOfStack);
    }
  }
  if (depth_ > 0) return;
  forms_.BuryUnloaded();
  timers_.Arm(platform_.Now());
  if (!forms_.AnyShown() && !timers_.NextDue()) ended_ = true;
}

void Runtime::FireTimers() {
  timers_.Arm(platform_.Now());
  const Milliseconds now = platform_.Now();
  while (!ended_) {
    Timer* due = timers_.TakeDue(now);
    if (due == nullptr) break;
    Dispatch([due] { due->Tick(); });
  }
}

void Runtime::End() { throw ProgramEnd(); }

BoxAnswer Runtime::MsgBox(std::string_view text, std::string_view title, BoxButtons buttons) {
  const BoxAnswer answer = platform_.MessageBox(text, title, buttons);
  GoOnUnlessEnded();
  return answer;
}

std::optional<std::string> Runtime::InputBox(std::string_view prompt, std::string_view title,
                                             std::string_view default_text) {
  auto answer = platform_.InputBox(prompt, title, default_text);
  GoOnUnlessEnded();
  return answer;
}

std::optional<PrintChoice> Runtime::PrintDialog(unsigned flags) {
  auto answer = platform_.PrintDialog(flags);
  GoOnUnlessEnded();
  return answer;
}

std::optional<std::string> Runtime::OpenDialog(std::string_view title, std::string_view filter,
                                               std::string_view folder) {
  auto answer = platform_.OpenDialog(title, filter, folder);
  GoOnUnlessEnded();
  return answer;
}

void Runtime::GoOnUnlessEnded() const {
  if (ended_) throw ProgramEnd();
}

void Runtime::Fail(Fault fault) {
  ended_ = true;
  status_ = 1;
  platform_.FatalError(static_cast<int>(fault), FaultText(fault));
}

}  // namespace brindlepage
