#pragma once

#include "core/program.h"
#include "toolkit/file_lists.h"

namespace brindlepage {

// A picture browser. From a worksheet (PictureReturn) it puts a bitmap into the document of the
// form that ReturnTag names, at the caret; from the crossword any picture behind its grids.
class AddPic : public ProgramForm {
 public:
  explicit AddPic(Program& program);

  Label Label3{*this, "Label3", "Change Drive:"};
  DriveListBox Drive1{*this, "Drive1"};
  Label Label1{*this, "Label1", "File Location:"};
  DirListBox Dir1{*this, "Dir1"};
  Label Label2{*this, "Label2", "Pictures Available:"};
  FileListBox File1{*this, "File1", "*.jpg;*.bmp;*.wmf;*.gif;*.emf;*.ico;*.cur;*.dib"};
  Image Image1{*this, "Image1"};
  CommandButton Command1{*this, "Command1", "Add This Picture"};
  CommandButton Command2{*this, "Command2", "Cancel"};

 private:
  void Load() override;
  void ShowPreview();
  void AddPicture();
  void AddToWorksheet();
  void AddBehindCrossword();

  PicturePtr ChosenPicture();
};

}  // namespace brindlepage
