#pragma once

#include "desktop/paper_view.h"
#include "desktop/rich_text_mirror.h"
#include "toolkit/runtime.h"
#include "worksheet/rich_text_box.h"

class QMimeData;
class QPrinter;
class QTextDocumentFragment;

namespace brindlepage {

class RichTextFindBar;

// The face of a rich text box: a sheet on which a teacher types, selects, copies and pastes,
// undoes, zooms and finds.
//
// A RichTextMirror keeps what is shown and the box alike. The positions of what is shown are those
// of the box, but for characters beyond U+FFFF, which Qt counts double.
class RichTextView : public PaperView {
  Q_OBJECT

 public:
  // The box must outlive the view, or the view be told to Leave() it.
  RichTextView(RichTextBox& box, Runtime& runtime, QWidget* parent = nullptr);
  ~RichTextView() override;

  // Follows the box no more and takes no more edits; what is shown stays.
  void Leave();
  // Shows at once what a handler that still runs has done to the box.
  void Mirror() { mirror_.ShowBox(); }

  // What the keys and the context menu do.
  void Undo();
  void Redo();
  void Cut();
  void Copy();
  void Paste();
  void Delete();
  void SelectAll();
  void OpenFindBar();
  void FindNext(bool backward = false) { FindFrom(Caret(), backward); }

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool focusNextPrevChild(bool next) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void changeEvent(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  class Sheet;

  // The teacher's commands.
  using Command = void (RichTextView::*)();
  static Command CommandOf(const QKeyEvent& event);
  bool TypeText(QKeyEvent* event);
  void GoThroughChanges(void (QTextDocument::*step)());
  void FindForward() { FindNext(false); }
  void FindBackward() { FindNext(true); }
  void ZoomIn() { Zoom(Zoom() + 10); }
  void ZoomOut() { Zoom(Zoom() - 10); }
  void ZoomToTrueSize() { Zoom(100); }
  void ToggleBold();
  void ToggleItalic();
  void ToggleUnderline();
  void LeaveForward() { PaperView::focusNextPrevChild(true); }
  void LeaveBackward() { PaperView::focusNextPrevChild(false); }
  // Null without a selection.
  QMimeData* CopyOfSelection(const QTextDocumentFragment& shown) const;
  void OfferSelection();
  void DragSelection();
  void Insert(const QMimeData& mime);
  void Drop(const QMimeData& mime, const QPointF& point, bool own, bool move);
  void MovePage(bool up, bool select);
  void MoveCaret(const QTextCursor& cursor);
  void FindFrom(QTextCursor from, bool backward);
  void MakeFindBar();
  void CloseFindBar();

  int PositionAt(const QPointF& point) const;  // of the box
  void PlaceFindBar();

  Sheet* sheet_;
  RichTextMirror mirror_;
  RichTextFindBar* find_bar_ = nullptr;  // made when it is first opened
  bool moving_caret_ = false;            // the sheet's is ahead of the box's until it is taken over
};

// Prints `length` characters from `start`, or with a length of 0 or less the whole document: the
// column in the middle of the paper, its lines as on screen, three quarters of an inch free at
// the top and bottom, and a question of a few lines on one page. Paper that is too narrow gets the
// column smaller. Throws RunTimeError "Device I/O error" if the printer can't be used, and "Disk
// full" if the file that it writes isn't whole.
void PrintRichText(const RichTextBox& box, int start, int length, QPrinter& printer);

}  // namespace brindlepage
