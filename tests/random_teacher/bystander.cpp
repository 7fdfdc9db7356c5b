#include "tests/random_teacher/bystander.h"

#include <algorithm>
#include <sstream>

#include "tests/file_bytes.h"
#include "toolkit/controls.h"
#include "toolkit/lists.h"

namespace brindlepage {

namespace {

namespace fs = std::filesystem;

template <class Kind>
Kind& The(const Form& form, const char* name) {
  return dynamic_cast<Kind&>(*form.FindControl(name));
}

const std::string& TextIn(const Form& form, const char* box) {
  return The<TextBox>(form, box).Text;
}

// A few lines from where the two begin to differ.
std::string Difference(const std::string& held, const std::string& wanted) {
  constexpr int kLines = 8;
  const auto first = std::mismatch(held.begin(), held.end(), wanted.begin(), wanted.end()).first;
  const auto at = std::size_t(first - held.begin());
  const auto line = at == 0 ? std::string::npos : held.rfind('\n', at - 1);
  const std::size_t start = line == std::string::npos ? 0 : line + 1;
  const auto lines_of = [start](const std::string& bytes) {
    std::istringstream text(bytes.substr(std::min(start, bytes.size())));
    std::string lines;
    std::string one;
    for (int i = 0; i < kLines && std::getline(text, one); ++i) lines += "    " + one + "\n";
    return lines;
  };
  return "  it holds\n" + lines_of(held) + "  it should hold\n" + lines_of(wanted);
}

}  // namespace

Bystander::Bystander(fs::path folder) : folder_(std::move(folder)) {
  for (const fs::path& path : {folder_ / "TheLists.dat", folder_ / "class" / "TheLists.dat"}) {
    if (const auto bytes = FileBytes(path)) files_.emplace(path, *bytes);
  }
}

void Bystander::ProgramStarts() {
  program_ = nullptr;
  watched_.clear();
  made_.reset();
  edited_.reset();
  selected_row_ = 0;
  link_in_use_ = link_;
}

void Bystander::Look(Program& program) {
  program_ = &program;
  for (const auto& form : program.forms().Loaded()) {
    if (watched_[form.get()].expired()) Watch(*form);
  }
  TakeUpChanges();
  if (const Form* maker = Loaded("MakeNewList"); maker != nullptr && taken_back_) {
    CheckBoxes(*maker, *taken_back_);
  }
  taken_back_.reset();
  if (Loaded("MakeNewList") == nullptr) made_.reset();
  if (Loaded("EditList") == nullptr) edited_.reset();
  // An editor left open behind another screen looks for the list that was chosen there.
  const Form* active = program.forms().Active();
  const bool elsewhere = active != nullptr && active->kind() == FormKind::Screen;
  if (edited_ && elsewhere && active->Name() != "EditList") {
    edited_->name = program.shared.CurrentListName;
  }
}

void Bystander::Answered(std::string_view title, BoxAnswer answer) {
  if (program_ == nullptr) return;
  // The last word before the program ends, when the settings have been written.
  if (InFront("QuickWordOption") != nullptr && answer == BoxAnswer::Ok &&
      (title == "Success!" || title == "Restart")) {
    link_ = link_of_option_;
  }
  if (answer != BoxAnswer::Yes) return;
  if (const Form* maker = InFront("MakeNewList"); maker != nullptr && made_) {
    if (title == "Confirm Delete") RemovePair(The<ListBox>(*maker, "WordList1").ListIndex);
    if (title == "Confirm Save" || title == "Save?") SaveMade();
  }
  if (InFront("EditList") != nullptr && edited_) {
    if (title == "Confirm Delete") DeleteRow();
    if (title == "Save and quit?") SaveEdited();
  }
  if (title == "Backup") BackUp();
  if (title == "Restore") Restore();
  if (const Form* link = InFront("ChangeList"); link != nullptr && title == "Success!") {
    link_ = TextIn(*link, "Text1");
    ++noted_["links"];
  }
}

std::string Bystander::Compare() const {
  if (!misshown_.empty()) return misshown_;
  for (const fs::path& folder : {folder_, folder_ / "class"}) {
    for (const char* name : {"TheLists.dat", "TheLists.bak"}) {
      const fs::path path = folder / name;
      const std::string shown = path.lexically_relative(folder_).string();
      const auto bytes = FileBytes(path);
      const auto known = files_.find(path);
      if (bytes && known == files_.end()) return shown + " should not be there";
      if (!bytes && known != files_.end()) return shown + " is not there";
      if (!bytes || *bytes == known->second.Bytes()) continue;
      return shown + " is not as it should be:\n" + Difference(*bytes, known->second.Bytes());
    }
  }
  return "";
}

// Has `note` called in front of what the form does.
template <class Note, class... Args>
void Bystander::Before(Event<Args...>& event, Note note) {
  event = [note, then = event, ear = ear_](Args... args) {
    note(args...);
    then(args...);
  };
}

void Bystander::Watch(Form& form) {
  ear_ = std::make_shared<int>();
  watched_[&form] = ear_;
  WatchChoices(form);
  WatchMaker(form);
  WatchEditor(form);
  WatchBoxes(form);
  ear_.reset();
}

// The screens on which a list is named or chosen, and the menu.
void Bystander::WatchChoices(Form& form) {
  if (form.Name() == "Title") {
    link_in_use_ = link_;
    Before(The<Control>(form, "Command2").Click, [] {});
  }
  // What it writes of the list file's folder is what it read when it came up.
  if (form.Name() == "QuickWordOption") {
    link_of_option_ = link_;
    Before(The<Control>(form, "Command1").Click, [] {});
  }
  if (form.Name() == "CreateList") {
    const auto named = [this, &form] { BeginList(TextIn(form, "NewName")); };
    Before(The<TextBox>(form, "NewName").Enter, named);
    Before(The<Control>(form, "Command2").Click, named);
  }
  if (form.Name() == "EditChooseList") {
    auto& lists = The<ListBox>(form, "TheLists");
    const auto chosen = [this, &lists] {
      if (lists.ListIndex >= 0) BeginEdit(lists.Text());
    };
    Before(lists.DblClick, chosen);
    Before(The<Control>(form, "Command1").Click, chosen);
  }
  if (form.Name() == "DeleteList") {
    // What the file held when the screen came up is all that it knows.
    const auto known = std::make_shared<ListFileModel>(*ListFile());
    Before(The<Control>(form, "Yes").Click, [this, &form, known] {
      if (!known->Delete(The<ListBox>(form, "TheLists").Text())) return;
      *ListFile() = *known;
      ++noted_["lists deleted"];
    });
  }
}

void Bystander::WatchMaker(Form& form) {
  if (form.Name() != "MakeNewList") return;
  auto& words = The<ListBox>(form, "WordList1");
  const auto add = [this, &form] { AddPair(form); };
  const auto take_back = [this, &words] { TakeBackPair(words.ListIndex); };
  Before(The<TextBox>(form, "TheWord").Enter, add);
  Before(The<TextBox>(form, "TheMeaning").Enter, add);
  Before(words.DblClick, take_back);
  Before(The<Toolbar>(form, "Toolbar1").ButtonClick, [=](ToolbarButton& button) {
    const std::string& caption = button.Caption;
    if (caption == "Add Word" || caption == "Save and Quit" || caption == "Quit") add();
    if (caption == "Edit Word") take_back();
  });
}

void Bystander::WatchEditor(Form& form) {
  if (form.Name() != "EditList") return;
  auto& words = The<ListBox>(form, "WordList");
  const auto select = [this, &words] { selected_row_ = words.ListIndex; };
  Before(words.Click, select);
  Before(words.KeyUp, select);
  Before(The<Toolbar>(form, "Toolbar1").ButtonClick, [this](ToolbarButton& button) {
    TakeUpChanges();
    if (button.Caption() == "Rename List" && edited_) edited_->name = edited_->caption;
  });
}

// The small boxes on top of the list editors.
void Bystander::WatchBoxes(Form& form) {
  if (form.Name() == "AddWord") {
    const auto add = [this, &form] {
      const auto& word = TextIn(form, "Text1");
      const auto& meaning = TextIn(form, "Text2");
      if (edited_ && !word.empty() && !meaning.empty()) {
        edited_->coming.push_back({std::nullopt, word, meaning});
        ++noted_["words added"];
      }
    };
    Before(The<TextBox>(form, "Text1").Enter, add);
    Before(The<TextBox>(form, "Text2").Enter, add);
    Before(The<Control>(form, "Command1").Click, add);
  }
  if (form.Name() == "EditWord") {
    // The two lists may have different rows selected.
    const auto pair_at = [this](const char* list) {
      const auto row = std::size_t(The<ListBox>(*Loaded("EditList"), list).ListIndex());
      const bool there = edited_ && row < edited_->pairs.size();
      return there ? edited_->pairs[row] : std::pair<std::string, std::string>();
    };
    CheckBoxes(form, {pair_at("WordList").first, pair_at("DefList").second});
    Before(The<Control>(form, "Command1").Click, [this, &form] {
      if (!edited_) return;
      edited_->coming.push_back(
          {selected_row_, TextIn(form, "TheWord"), TextIn(form, "TheMeaning")});
      ++noted_["words changed"];
    });
  }
  if (form.Name() == "ChangeListName") {
    Before(The<Control>(form, "Command1").Click,
           [this, &form] { Rename(TextIn(form, "TheName")); });
    // With the Enter key the caption stays.
    Before(The<TextBox>(form, "TheName").Enter, [this, &form] {
      if (edited_) edited_->name = TextIn(form, "TheName");
    });
  }
}

void Bystander::BeginList(const std::string& name) {
  if (name.empty() || ListFile() == nullptr || made_) return;
  made_.emplace();
  if (!ListFile()->HoldsNoList()) made_->push_back("<New List>");
  made_->push_back(name);
}

void Bystander::AddPair(Form& maker) {
  const auto& word = TextIn(maker, "TheWord");
  const auto& meaning = TextIn(maker, "TheMeaning");
  if (made_ && !word.empty() && !meaning.empty()) {
    made_->insert(made_->end(), {word, meaning});
    ++noted_["words of new lists"];
  }
}

// Two lines go, those of the row in a file that held lists; in the first list of a file they are
// one off, and behind the last line the program fails.
void Bystander::RemovePair(int row) {
  const std::size_t at = std::size_t(std::max(row, 0)) * 2 + 2;
  if (!made_ || row < 0 || at + 2 > made_->size()) return;
  made_->erase(made_->begin() + std::ptrdiff_t(at), made_->begin() + std::ptrdiff_t(at) + 2);
  ++noted_["words taken back"];
}

void Bystander::TakeBackPair(int row) {
  const std::size_t at = std::size_t(std::max(row, 0)) * 2 + 2;
  if (made_ && row >= 0 && at + 2 <= made_->size()) {
    taken_back_ = std::pair{(*made_)[at], (*made_)[at + 1]};
  }
  RemovePair(row);
}

void Bystander::BeginEdit(const std::string& name) {
  if (edited_) edited_->name = name;
  if (edited_ || ListFile() == nullptr) return;
  if (auto pairs = ListFile()->PairsOf(name)) {
    edited_ = Edited{name, name, name, std::move(*pairs), {}};
  }
}

// The row that was selected last, be one selected now or not.
void Bystander::DeleteRow() {
  auto& pairs = edited_->pairs;
  if (selected_row_ < 0 || std::size_t(selected_row_) >= pairs.size()) return;
  pairs.erase(pairs.begin() + selected_row_);
  ++noted_["words deleted"];
}

void Bystander::Rename(const std::string& name) {
  ++noted_["renames"];
  const bool for_maker = program_->shared.ReturnTag == "create";
  if (made_ && for_maker && made_->size() > 1) (*made_)[1] = name;
  if (edited_) {
    edited_->name = name;
    edited_->next_caption = name;
  }
}

void Bystander::TakeUpChanges() {
  if (!edited_ || InFront("EditList") == nullptr) return;
  edited_->caption = edited_->next_caption;
  for (const Edited::Change& change : edited_->coming) {
    auto& pairs = edited_->pairs;
    const std::pair pair{change.word, change.meaning};
    if (!change.row) {
      pairs.push_back(pair);
    } else if (*change.row >= 0 && std::size_t(*change.row) < pairs.size()) {
      pairs[std::size_t(*change.row)] = pair;
    }
  }
  edited_->coming.clear();
}

void Bystander::SaveMade() {
  ListFile()->Append(*made_);
  ++noted_["lists made"];
}

void Bystander::SaveEdited() {
  if (ListFile()->Replace(edited_->name, edited_->caption, edited_->pairs)) {
    ++noted_["lists edited"];
  }
}

void Bystander::CheckBoxes(const Form& form, const std::pair<std::string, std::string>& pair) {
  const auto shown = std::pair{TextIn(form, "TheWord"), TextIn(form, "TheMeaning")};
  if (shown == pair) return;
  misshown_ = form.Name() + " shows " + shown.first + "|" + shown.second + " and should show " +
              pair.first + "|" + pair.second;
}

void Bystander::BackUp() {
  if (ListFile() == nullptr) return;
  const ListFileModel file = *ListFile();
  files_.insert_or_assign(BackupOf(ListPath()), file);
  ++noted_["backups"];
}

void Bystander::Restore() {
  const auto backup = files_.find(BackupOf(ListPath()));
  if (backup == files_.end()) return;
  const ListFileModel kept = backup->second;
  files_.insert_or_assign(ListPath(), kept);
  ++noted_["restores"];
}

ListFileModel* Bystander::ListFile() {
  const auto file = files_.find(ListPath());
  return file == files_.end() ? nullptr : &file->second;
}

// The file's name stands right behind the folder as it was typed.
fs::path Bystander::ListPath() const {
  if (link_in_use_ == "listpath") return folder_ / "TheLists.dat";
  std::string path = link_in_use_ + "TheLists.dat";
  std::replace(path.begin(), path.end(), '\\', '/');
  return (folder_ / path).lexically_normal();
}

fs::path Bystander::BackupOf(fs::path path) { return path.replace_extension("bak"); }

const Form* Bystander::Loaded(std::string_view name) const {
  for (const auto& form : program_->forms().Loaded()) {
    if (form->Name() == name) return form.get();
  }
  return nullptr;
}

const Form* Bystander::InFront(std::string_view name) const {
  const Form* active = program_->forms().Active();
  return active != nullptr && active->Name() == name ? active : nullptr;
}

}  // namespace brindlepage
