#pragma once

#include <string>
#include <vector>

#include "toolkit/control.h"

namespace brindlepage {

enum class ListStyle { Plain, Sorted, CheckBoxes };

// Rows of text. A sorted list keeps its rows in the order of code_page::Compare, equal rows in
// the order of adding. One row may be selected; with check boxes each row has a mark besides.
//
// Reading a row past the end, or row -1, gives an empty string and no error. Changing or removing
// one throws RunTimeError 5.
class ListBox : public Control {
 public:
  ListBox(Form& form, std::string name, ListStyle style = ListStyle::Plain);

  // -1 when no row is selected. Another row assigned raises Click, as a click on it does;
  // outside -1 to ListCount - 1: RunTimeError 5.
  Property<int> ListIndex;
  // A key that moved the selection or checked a row. Where no handler is set, Click is raised.
  Event<> KeyUp;

  void AddItem(std::string text);
  // Puts the row in front of row `at`, sorted or not.
  void AddItem(std::string text, int at);
  void AddItems(std::vector<std::string> texts);
  void RemoveItem(int row);
  void Clear();

  int ListCount() const { return static_cast<int>(rows_.size()); }
  const std::string& List(int row) const;
  void List(int row, std::string text);
  std::vector<std::string> Rows() const;
  // The selected row's text, or "".
  const std::string& Text() const { return List(ListIndex); }

  // With check boxes: the row's mark. Setting it raises Click. Otherwise: whether it is selected.
  bool Selected(int row) const;
  void Selected(int row, bool selected);

  ListStyle style() const { return style_; }
  std::optional<Value> Find(std::string_view property) const override;

  // Selects the row; Click is raised. A row outside the list is a click on its empty part.
  void ClickRow(int row);
  // Turns the mark of the row; the row is selected as well.
  void ClickCheck(int row);
  void DoubleClickRow(int row);
  // The arrows, Home, End and the page keys move the selection; Space turns the selected row's
  // mark, or selects. With no row selected Space acts on the first.
  void Press(Key key) override;
  // A key led the selection to this row, or to the end that is nearest to it.
  void MoveByKey(int row);

 protected:
  // What a list of files or folders does when it moved.
  void Fill(std::vector<std::string> rows);

 private:
  struct Row {
    std::string text;
    bool checked = false;
  };
  bool Has(int row) const { return row >= 0 && row < ListCount(); }
  Row& At(int row);
  void Picked(int before);

  ListStyle style_;
  std::vector<Row> rows_;
};

// A text that is typed or picked from a list.
class ComboBox : public Control {
 public:
  ComboBox(Form& form, std::string name);

  // Assigning shows that row's text; another row raises Click. -1 empties the text.
  Property<int> ListIndex;
  // Assigning selects the row of that text, if there is one, and raises nothing.
  Property<std::string> Text;

  void AddItem(std::string text);
  void Clear();
  int ListCount() const { return static_cast<int>(rows_.size()); }
  const std::string& List(int row) const;
  std::optional<Value> Find(std::string_view property) const override;

  // Picks a row; Click is raised.
  void PickRow(int row);
  // Types a text and confirms it; what no box of words takes is refused with a beep. A text of the
  // list is picked; any other raises Click as well, so that a size or font that the list lacks can
  // be asked for.
  void Type(std::u32string_view text);
  void Press(Key key) override;

 private:
  int Row(const std::string& text) const;

  std::vector<std::string> rows_;
};

}  // namespace brindlepage
