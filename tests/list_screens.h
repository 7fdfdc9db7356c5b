#pragma once

#include <sys/resource.h>

#include <csignal>

#include "core/list_file.h"
#include "tests/ordinary_teacher.h"
#include "tests/teacher.h"

namespace brindlepage {

// The lines as a file holds them.
inline std::string AsFile(const std::vector<std::string>& lines) {
  std::string bytes;
  for (const std::string& line : lines) bytes += line + "\r\n";
  return bytes;
}

// While it lives no file can grow beyond so many bytes, as if the disk were full; not for the
// system's administrator either, whom no file's permissions would stop.
class FullDisk {
 public:
  explicit FullDisk(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &before_);
    rlimit limit = before_;
    limit.rlim_cur = bytes;
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~FullDisk() {
    setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, handler_);
  }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;

 private:
  rlimit before_{};
  void (*handler_)(int);
};

// A teacher who keeps the lists.
class ListKeeper : public Teacher {
 protected:
  using Log = std::vector<std::string>;
  using Rows = std::vector<std::string>;

  void UseFile(const std::vector<std::string>& lines) {
    folder.Write("TheLists.dat", AsFile(lines));
  }
  std::string File() { return folder.Read("TheLists.dat"); }
  Log TakeLog() { return std::exchange(platform.log, {}); }

  // To a screen behind the menu's toolbar.
  void Open(const char* caption) {
    if (!Loaded(Screen::Title)) Start();
    ClickToolbar(Screen::Title, caption);
  }
  void Activate(Screen id) {
    Do([&] { program.forms().Activate(*program.forms().Find(id)); });
  }
  template <class Deed>
  void DoOn(Form& form, Deed deed) {
    Do([&] {
      program.forms().Activate(form);
      deed();
    });
  }
  void ClickTool(Screen id, const char* caption) {
    Activate(id);
    ClickToolbar(id, caption);
  }
  void Type(TextBox& box, std::u32string_view text) {
    DoOn(box.form(), [&] {
      box.SetFocus();
      box.Type(text);
    });
  }
  void Press(Control& control, Key key) {
    DoOn(control.form(), [&] { control.Press(key); });
  }
  void Select(ListBox& list, int row) {
    DoOn(list.form(), [&] { list.ClickRow(row); });
  }
  void Select(ListBox& list, const std::string& text) {
    const Rows rows = list.Rows();
    const auto row = std::find(rows.begin(), rows.end(), text);
    ASSERT_NE(row, rows.end()) << text;
    Select(list, static_cast<int>(row - rows.begin()));
  }
  void DoubleClick(ListBox& list, int row) {
    DoOn(list.form(), [&] { list.DoubleClickRow(row); });
  }
  std::string FocusOf(Screen id) {
    Control* focused = program.forms().Find(id)->Focused();
    return focused == nullptr ? "" : focused->Name();
  }
  // Does that to a file that may be read only.
  template <class Deed>
  void WithReadOnly(const char* name, Deed deed) {
    std::filesystem::permissions(folder.Path(), std::filesystem::perms{0755});
    std::filesystem::permissions(name, std::filesystem::perms{0444});
    const OrdinaryTeacher teacher;
    deed();
  }
  void ExpectFatal(const std::string& error) {
    ASSERT_FALSE(platform.log.empty());
    EXPECT_EQ(platform.log.back(), "error " + error);
    EXPECT_TRUE(program.Ended());
    EXPECT_EQ(program.Status(), 1);
  }
};

}  // namespace brindlepage
