#include "toolkit/lists.h"

#include <algorithm>

#include "toolkit/code_page.h"
#include "toolkit/form.h"
#include "toolkit/platform.h"
#include "toolkit/runtime.h"

namespace brindlepage {

namespace {
const std::string kNoText;
}

ListBox::ListBox(Form& form, std::string name, ListStyle style)
    : Control(form, std::move(name)),
      ListIndex(*this, "ListIndex", -1, [this](int before) { Picked(before); }),
      style_(style) {}

void ListBox::AddItem(std::string text) {
  auto at = rows_.end();
  if (style_ == ListStyle::Sorted) {
    at = std::upper_bound(rows_.begin(), rows_.end(), text, [](const std::string& t, const Row& r) {
      return code_page::Compare(t, r.text) < 0;
    });
  }
  AddItem(std::move(text), static_cast<int>(at - rows_.begin()));
}

void ListBox::AddItem(std::string text, int at) {
  if (at < 0 || at > ListCount()) throw RunTimeError(Fault::InvalidCall);
  rows_.insert(rows_.begin() + at, Row{std::move(text)});
  if (ListIndex >= at) ListIndex.Put(ListIndex + 1);
  Changed();
}

void ListBox::AddItems(std::vector<std::string> texts) {
  for (std::string& text : texts) AddItem(std::move(text));
}

void ListBox::RemoveItem(int row) {
  At(row);
  rows_.erase(rows_.begin() + row);
  if (ListIndex == row) ListIndex.Put(-1);
  if (ListIndex > row) ListIndex.Put(ListIndex - 1);
  Changed();
}

void ListBox::Clear() {
  rows_.clear();
  ListIndex.Put(-1);
  Changed();
}

void ListBox::Fill(std::vector<std::string> rows) {
  Clear();
  for (std::string& row : rows) rows_.push_back(Row{std::move(row)});
}

const std::string& ListBox::List(int row) const {
  return Has(row) ? rows_[static_cast<std::size_t>(row)].text : kNoText;
}

void ListBox::List(int row, std::string text) {
  At(row).text = std::move(text);
  Changed();
}

std::vector<std::string> ListBox::Rows() const {
  std::vector<std::string> texts;
  texts.reserve(rows_.size());
  for (const Row& row : rows_) texts.push_back(row.text);
  return texts;
}

bool ListBox::Selected(int row) const {
  if (style_ != ListStyle::CheckBoxes) return Has(row) && row == ListIndex;
  return Has(row) && rows_[static_cast<std::size_t>(row)].checked;
}

void ListBox::Selected(int row, bool selected) {
  if (style_ != ListStyle::CheckBoxes) {
    At(row);
    if (selected != Selected(row)) ListIndex = selected ? row : -1;
    return;
  }
  At(row).checked = selected;
  Changed();
  Click();
}

std::optional<Value> ListBox::Find(std::string_view property) const {
  if (property == "ListCount") return Value(static_cast<long long>(ListCount()));
  if (property == "Text") return Value(Text());
  return Control::Find(property);
}

void ListBox::ClickRow(int row) {
  if (Has(row)) ListIndex.Put(row);
  Click();
}

void ListBox::ClickCheck(int row) {
  if (!Has(row)) return;
  ListIndex.Put(row);
  Selected(row, !Selected(row));
}

void ListBox::DoubleClickRow(int row) {
  ClickRow(row);
  UserDoubleClick();
}

void ListBox::Press(Key key) {
  constexpr int kPage = 10;
  int row = ListIndex;
  switch (key) {
    case Key::Up:
      row -= 1;
      break;
    case Key::Down:
      row += 1;
      break;
    case Key::PageUp:
      row -= kPage;
      break;
    case Key::PageDown:
      row += kPage;
      break;
    case Key::Home:
      row = 0;
      break;
    case Key::End:
      row = ListCount() - 1;
      break;
    case Key::Space:
      // With no row selected the keys are at the first.
      if (style_ == ListStyle::CheckBoxes) {
        ClickCheck(std::max(row, 0));
        KeyUp();
        return;
      }
      if (row >= 0) return;
      row = 0;
      break;
    default:
      return Control::Press(key);
  }
  MoveByKey(row);
}

void ListBox::MoveByKey(int row) {
  if (ListCount() == 0) return;
  ListIndex.Put(std::clamp(row, 0, ListCount() - 1));
  if (KeyUp) {
    KeyUp();
  } else {
    Click();
  }
}

ListBox::Row& ListBox::At(int row) {
  if (!Has(row)) throw RunTimeError(Fault::InvalidCall);
  return rows_[static_cast<std::size_t>(row)];
}

void ListBox::Picked(int before) {
  if (ListIndex < -1 || ListIndex >= ListCount()) {
    ListIndex.Put(before);
    throw RunTimeError(Fault::InvalidCall);
  }
  if (ListIndex != before && ListIndex >= 0) Click();
}

ComboBox::ComboBox(Form& form, std::string name)
    : Control(form, std::move(name)),
      ListIndex(*this, "ListIndex", -1,
                [this](int before) {
                  if (ListIndex < -1 || ListIndex >= ListCount()) {
                    ListIndex.Put(before);
                    throw RunTimeError(Fault::InvalidCall);
                  }
                  Text.Put(List(ListIndex));
                  if (ListIndex != before && ListIndex >= 0) Click();
                }),
      Text(*this, "Text", "", [this](const std::string&) { ListIndex.Put(Row(Text)); }) {}

void ComboBox::AddItem(std::string text) {
  rows_.push_back(std::move(text));
  Changed();
}

void ComboBox::Clear() {
  rows_.clear();
  ListIndex.Put(-1);
  Text.Put("");
  Changed();
}

const std::string& ComboBox::List(int row) const {
  return row >= 0 && row < ListCount() ? rows_[static_cast<std::size_t>(row)] : kNoText;
}

std::optional<Value> ComboBox::Find(std::string_view property) const {
  if (property == "ListCount") return Value(static_cast<long long>(ListCount()));
  return Control::Find(property);
}

void ComboBox::PickRow(int row) {
  if (row < 0 || row >= ListCount()) return;
  ListIndex.Put(row);
  Text.Put(List(row));
  Click();
}

void ComboBox::Type(std::u32string_view text) {
  std::string kept = code_page::KeepTypeable(text);
  if (kept.size() != text.size()) form().runtime().platform().Beep();
  Text = std::move(kept);
  Click();
}

void ComboBox::Press(Key key) {
  if (key == Key::Up) return PickRow(ListIndex - 1);
  if (key == Key::Down) return PickRow(ListIndex + 1);
  Control::Press(key);
}

int ComboBox::Row(const std::string& text) const {
  const auto row = std::find(rows_.begin(), rows_.end(), text);
  return row == rows_.end() ? -1 : static_cast<int>(row - rows_.begin());
}

}  // namespace brindlepage
