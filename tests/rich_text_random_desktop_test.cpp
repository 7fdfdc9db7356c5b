#include <gtest/gtest.h>

#include <QApplication>
#include <random>

#include "tests/open_sheet.h"

namespace brindlepage {
namespace {

// --- Random edits from both sides

class RandomEdits : public AnOpenSheet, public ::testing::WithParamInterface<unsigned> {
 protected:
  int Draw(int n) { return static_cast<int>(draws_() % static_cast<unsigned>(n)); }
  Alignment DrawAlignment() { return static_cast<Alignment>(Draw(3)); }
  CharFormat DrawFormat() {
    CharFormat format;
    const char* fonts[] = {"Courier New", "Courrier New", "Times New Roman"};
    format.font = fonts[Draw(3)];
    format.size = 20 * (8 + Draw(4));
    format.bold = Draw(2) == 0;
    format.underline = Draw(3) == 0;
    format.color = Draw(2) == 0 ? 0 : 0xFF0000;
    return format;
  }
  std::u32string DrawText() {
    const std::u32string letters = U"ab \n\u00E9\u0142\U0001F30B";
    std::u32string text;
    for (int i = Draw(6); i >= 0; --i) {
      text += letters[static_cast<std::size_t>(Draw(static_cast<int>(letters.size())))];
    }
    return text;
  }

  void ChangeTheBox() {
    const int position = Draw(box().Length() + 1);
    const int count = Draw(8);
    switch (Draw(8)) {
      case 0:
        return box().Replace(position, count, DrawText(), DrawFormat());
      case 1:
        return box().Reformat(position, count, DrawFormat());
      case 2:
        return box().Align(position, count, DrawAlignment());
      case 3:
        box().SelStart(position);
        return box().SelLength(count);
      case 4:
        return box().SelUnicode(DrawText());
      case 5:
        return box().InsertPicture(picture_);
      case 6:
        return box().SelBold(Draw(2) == 0);
      default:
        return box().Replace(position, count, {}, DrawFormat());
    }
  }

  void Teach() {
    const auto shift = Draw(3) == 0 ? Qt::ShiftModifier : Qt::NoModifier;
    switch (Draw(14)) {
      case 0:
        return Type("xy");
      case 1:
        return Key(Qt::Key_Return);
      case 2:
        return Key(Qt::Key_Backspace);
      case 3:
        return Key(Qt::Key_Delete);
      case 4:
        return Key(Qt::Key_Left, shift);
      case 5:
        return Key(Qt::Key_Down, shift);
      case 6:
        return Key(Qt::Key_Home, shift);
      case 7:
        return Key(Qt::Key_End, shift);
      case 8:
        return Key(Qt::Key_Z, Qt::ControlModifier);
      case 9:
        return Key(Qt::Key_Y, Qt::ControlModifier);
      case 10:
        return Key(Qt::Key_C, Qt::ControlModifier);
      case 11:
        return Key(Qt::Key_V, Qt::ControlModifier);
      case 12:
        return Key(Qt::Key_X, Qt::ControlModifier);
      default:
        return Key(Qt::Key_I, Qt::ControlModifier);
    }
  }

 private:
  std::mt19937 draws_{GetParam()};
  std::shared_ptr<const RichPicture> picture_ = RedPicture();
};

TEST_P(RandomEdits, LeaveBoxAndSheetEqual) {
  Compose([](RichTextBox& box) { box.SelText("one two\nthree\n\nfour"); });
  for (int i = 0; i < 300 && !HasFailure(); ++i) {
    SCOPED_TRACE(i);
    switch (Draw(4)) {
      case 0:
        ChangeTheBox();
        break;
      case 1:
        runtime.Dispatch([this] {
          for (int changes = Draw(4); changes >= 0; --changes) ChangeTheBox();
        });
        if (Draw(2) == 0) QApplication::processEvents();
        break;
      default:
        Teach();
    }
    if (Draw(3) == 0) ExpectBothEqual();
  }
  ExpectBothEqual();
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomEdits, ::testing::Range(1U, 13U));

}  // namespace
}  // namespace brindlepage
