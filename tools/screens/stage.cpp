#include "tools/screens/stage.h"

#include <QDir>
#include <filesystem>

namespace brindlepage::screens {

namespace {

constexpr std::uint64_t kSeed = 7;

}  // namespace

void Stage::PrintingPlatform::Print(Control& box, int start, int length) {
  if (const auto* rich = dynamic_cast<RichTextBox*>(&box)) press_(*rich, start, length);
}

Stage::Stage(const QString& program_folder, Press press)
    : came_from_(QDir::currentPath()),
      windows_(std::make_unique<Windows>(loop_)),
      platform_(loop_, *windows_, std::move(press)),
      random_(kSeed),
      program_(platform_, random_) {
  std::filesystem::copy(program_folder.toStdString(), folder_.path().toStdString(),
                        std::filesystem::copy_options::recursive);
  QDir::setCurrent(folder_.path());
  loop_.Attach(program_);
  program_.Start();
  windows_->Flush();
  loop_.TakeStock();
}

// The windows go before the forms that they show.
Stage::~Stage() {
  windows_.reset();
  QDir::setCurrent(came_from_);
}

Form* Stage::Find(const std::string& form) {
  for (const auto& loaded : program_.forms().Loaded()) {
    if (loaded->Name() == form) return loaded.get();
  }
  return nullptr;
}

}  // namespace brindlepage::screens
