#include "crossword/cross_word_fill.h"

namespace brindlepage {

CrossWordFill::CrossWordFill(Program& owner)
    : GridForm(owner, Screen::CrossWordFill, "CrossWordFill") {
  Width = 10800;
  Height = 7200;
  ClueBox.Text("");
  ClueBox2.Text("");
  for (Image* picture : {&Picture1, &Picture2}) {
    picture->Width = Width;
    picture->Height = Height;
  }
}

}  // namespace brindlepage
