#pragma once

#include <string>

#include "toolkit/control.h"
#include "worksheet/rich_text.h"

namespace brindlepage {

// The rich text box as a control: a document with its caret. Views watch the document itself.
class RichTextBox : public Control, public RichText, private RichTextObserver {
 public:
  // The text of a box that nothing has filled.
  static constexpr char kDesignText[] = "RichTextBox1";

  RichTextBox(Form& form, std::string name, std::string design_font, double design_points);
  ~RichTextBox() override;

  // Writes the document into a rich text file, and replaces it by one. Throw what files:: throws,
  // and RunTimeError 321 for a file that is no rich text.
  void SaveFile(std::string_view path) const;
  void LoadFile(std::string_view path);

  // The caret or the selection moved. Unset while a document is composed.
  Event<> SelChange;

  // At the caret, in place of the selection.
  void TypeCharacter(char character) override { SelText({&character, 1}); }
  void Paste(const FormPicture& picture) override;

  std::optional<brindlepage::Value> Find(std::string_view property) const override;

 private:
  void Replaced(int, int, int) override {}
  void Reformatted(int, int) override {}
  void ParagraphsAligned(int, int) override {}
  void CaretMoved() override { SelChange(); }
};

}  // namespace brindlepage
