#include <random>

#include "lists/add_word.h"
#include "lists/create_list.h"
#include "lists/delete_list.h"
#include "lists/edit_choose_list.h"
#include "lists/edit_list.h"
#include "lists/edit_word.h"
#include "lists/make_new_list.h"
#include "tests/list_screens.h"
#include "toolkit/code_page.h"

namespace brindlepage {
namespace {

// What the list file should hold, told as lists instead of lines.
struct Model {
  struct List {
    std::string name;
    std::vector<std::pair<std::string, std::string>> pairs;
  };

  std::vector<List> lists;
  bool separator_first = false;  // the first list was deleted, and nothing saved since

  std::string File() const {
    if (lists.empty()) return "No Lists\r\n";
    std::string bytes;
    for (std::size_t i = 0; i < lists.size(); ++i) {
      if (i > 0 || separator_first) bytes += "<New List>\r\n";
      bytes += lists[i].name + "\r\n";
      for (const auto& [word, meaning] : lists[i].pairs) {
        bytes += word + "\r\n" + meaning + "\r\n";
      }
    }
    return bytes;
  }

  // The lists that a screen offers: behind a separator at the top the first is not seen.
  std::vector<std::string> Offered() const {
    std::vector<std::string> names;
    for (std::size_t i = separator_first ? 1 : 0; i < lists.size(); ++i) {
      names.push_back(lists[i].name);
    }
    return names;
  }
  List Take(const std::string& name) {
    const auto place = std::find_if(lists.begin(), lists.end(),
                                    [&](const List& list) { return list.name == name; });
    List taken = *place;
    lists.erase(place);
    return taken;
  }
  void Append(List list) {
    lists.push_back(std::move(list));
    separator_first = false;
  }
  void Delete(const std::string& name) {
    if (lists.front().name == name) separator_first = true;
    Take(name);
    if (lists.empty()) separator_first = false;
  }
};

class ListEditingTest : public ListKeeper {
 protected:
  std::size_t Below(std::size_t n) { return dice_() % n; }
  bool Chance(int percent) { return Below(100) < static_cast<std::size_t>(percent); }

  std::string RandomText() {
    static constexpr std::string_view kLetters = "abc ,\"\t<>\xE9\xFF\x80";
    std::string text;
    for (std::size_t length = 1 + Below(6); length > 0; --length) {
      const char letter = kLetters[Below(kLetters.size())];
      text += letter == '\t' ? '-' : letter;
    }
    return text;
  }
  void Fill(TextBox& box, const std::string& text) { Type(box, code_page::ToUnicode(text)); }

  // --- What a teacher does, on the screens and on the model.

  void RandomDeed() {
    const std::size_t deed = Below(5);
    if (deed == 0) return MakeList();
    if (deed == 1) return DeleteSome();
    if (deed == 2) return BackUpAndRestore();
    EditAList();
  }

  void MakeList() {
    Model::List made{"list " + std::to_string(++names_), {}};
    Open("Create");
    Fill(On<CreateList>(Screen::CreateList).NewName, made.name);
    Click(Screen::CreateList, "Command2");
    auto& editor = On<MakeNewList>(Screen::MakeNewList);
    const auto add = [&](const std::pair<std::string, std::string>& pair) {
      Fill(editor.TheWord, pair.first);
      Fill(editor.TheMeaning, pair.second);
      Press(editor.TheMeaning, Key::Enter);
      made.pairs.push_back(pair);
    };
    for (std::size_t count = Below(5); count > 0; --count) add({RandomText(), RandomText()});
    // The first list of a file takes its rows for others'.
    if (!model_.lists.empty() && !made.pairs.empty() && Chance(40)) {
      const auto row = static_cast<std::ptrdiff_t>(Below(made.pairs.size()));
      Select(editor.WordList1, static_cast<int>(row));
      const auto pair = made.pairs[static_cast<std::size_t>(row)];
      made.pairs.erase(made.pairs.begin() + row);
      if (Chance(50)) {
        ClickTool(Screen::MakeNewList, "Delete Word");
      } else {
        ClickTool(Screen::MakeNewList, "Edit Word");
        EXPECT_EQ(editor.TheWord.Text(), pair.first);
        add({RandomText(), pair.second});
      }
    }
    const bool drop = Chance(15);
    if (drop) platform.answers = {BoxAnswer::No};
    ClickTool(Screen::MakeNewList, drop ? "Quit" : "Save and Quit");
    if (!drop) model_.Append(std::move(made));
  }

  void EditAList() {
    const auto offered = model_.Offered();
    if (offered.empty()) return;
    const std::string name = offered[Below(offered.size())];
    Open("Edit");
    Select(On<EditChooseList>(Screen::EditChooseList).TheLists, name);
    Click(Screen::EditChooseList, "Command1");
    Model changed = model_;
    Model::List list = changed.Take(name);
    for (std::size_t count = Below(6); count > 0; --count) ChangeTheList(list);

    const bool drop = Chance(15);
    if (drop) platform.answers = {BoxAnswer::No};
    ClickTool(Screen::EditList, "Save and Quit");
    if (drop) return;
    changed.Append(std::move(list));
    model_ = std::move(changed);
  }

  void ChangeTheList(Model::List& list) {
    auto& editor = On<EditList>(Screen::EditList);
    const std::size_t deed = list.pairs.empty() ? 0 : Below(3);
    if (deed == 0) {
      const std::pair pair{RandomText(), RandomText()};
      ClickTool(Screen::EditList, "Add Word");
      Fill(On<AddWord>(Screen::AddWord).Text1, pair.first);
      Fill(On<AddWord>(Screen::AddWord).Text2, pair.second);
      Press(On<AddWord>(Screen::AddWord).Text2, Key::Enter);
      list.pairs.push_back(pair);
      return;
    }
    const std::size_t row = Below(list.pairs.size());
    Select(editor.WordList, static_cast<int>(row));
    if (deed == 1) {
      const std::pair pair{RandomText(), RandomText()};
      ClickTool(Screen::EditList, "Edit Word");
      Fill(On<EditWord>(Screen::EditWord).TheWord, pair.first);
      Fill(On<EditWord>(Screen::EditWord).TheMeaning, pair.second);
      Click(Screen::EditWord, "Command1");
      list.pairs[row] = pair;
    } else {
      ClickTool(Screen::EditList, "Delete Word");
      list.pairs.erase(list.pairs.begin() + static_cast<std::ptrdiff_t>(row));
    }
  }

  void DeleteSome() {
    Open("Delete");
    auto& form = On<DeleteList>(Screen::DeleteList);
    auto offered = model_.Offered();
    for (std::size_t count = Below(4); count > 0 && !offered.empty(); --count) {
      const std::size_t row = Below(offered.size());
      Select(form.TheLists, offered[row]);
      Click(form.Command1);
      const bool sure = Chance(80);
      Click(sure ? form.Yes : form.No);
      if (sure) {
        model_.Delete(offered[row]);
        offered.erase(offered.begin() + static_cast<std::ptrdiff_t>(row));
      }
      EXPECT_EQ(File(), model_.File());
    }
    Click(form.Command2);
  }

  void BackUpAndRestore() {
    Open("Opts");
    const bool back = backup_ && Chance(50);
    Click(Screen::ProgramOptions, back ? "Command1" : "Command6");
    if (back) {
      model_ = *backup_;
    } else {
      backup_ = model_;
    }
  }

  std::mt19937 dice_;
  int names_ = 0;
  Model model_;
  std::optional<Model> backup_;
};

TEST_F(ListEditingTest, AThousandRandomSequencesLeaveTheFileThatTheyShould) {
  // The screens' pictures would take most of the time.
  folder.Write("titleback.jpg", "\xFF\xD8\xFF");
  folder.Write("brindlepagebackground.jpg", "\xFF\xD8\xFF");
  Start();
  for (unsigned sequence = 0; sequence < 1000; ++sequence) {
    SCOPED_TRACE("sequence " + std::to_string(sequence));
    dice_.seed(sequence);
    backup_.reset();
    model_ = {{{"one", {{"a", "b"}, {"c", "d"}}}, {"two", {}}, {"three", {{"e", "f"}}}}, false};
    folder.Write("TheLists.dat", model_.File());
    for (int deed = 0; deed < 6; ++deed) {
      RandomDeed();
      ASSERT_TRUE(Active(Screen::Title));
      ASSERT_EQ(File(), model_.File());
    }
  }
}

}  // namespace
}  // namespace brindlepage
