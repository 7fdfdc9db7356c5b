#pragma once

#include <QThreadPool>
#include <future>
#include <memory>
#include <utility>

namespace brindlepage {

// Lets another thread do the work. The application waits for these threads before it goes.
template <class Work>
auto InOtherThread(Work work) -> std::future<decltype(work())> {
  const auto task = std::make_shared<std::packaged_task<decltype(work())()>>(std::move(work));
  auto result = task->get_future();
  QThreadPool::globalInstance()->start([task] { (*task)(); });
  return result;
}

}  // namespace brindlepage
