#pragma once

#include <QObject>
#include <QTextCursor>
#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include "desktop/rich_text_layout.h"
#include "desktop/rich_text_positions.h"
#include "toolkit/runtime.h"
#include "worksheet/rich_text_box.h"

class QGraphicsTextItem;

namespace brindlepage {

// Keeps a rich text box and the item that shows it alike, caret and selection included, from the
// first time on that ShowBox() is called.
//
// The box is the truth. Either side tells of a stretch that changed; the stretch is compared and
// only what differs is taken over, so that an echo finds nothing to do. What the teacher does
// enters the box by the runtime's dispatch. What a handler does to the box is shown when the
// handler is done, all of it in one step.
class RichTextMirror : public QObject, private RichTextObserver {
  Q_OBJECT

 public:
  // The sheet gets a document of the mirror's and must not outlive it. The box must outlive the
  // mirror, or the mirror be told to Leave() it.
  RichTextMirror(RichTextBox& box, QGraphicsTextItem& sheet, Runtime& runtime);
  ~RichTextMirror() override;

  // Follows the box no more; what is shown stays.
  void Leave();

  RichTextBox* box() const { return box_; }  // null once left
  RichTextLayout& layout() { return layout_; }
  const RichTextLayout& layout() const { return layout_; }
  const RichTextPositions& positions() const { return positions_; }

  // Shows the box for the first time, or at once what a handler that still runs has done to it.
  void ShowBox() { Show(Extent::All); }
  // Like ShowBox(), but of a new document the top is enough; it has the caret. Before anything is
  // done with the sheet, ShowBox() must show the rest.
  void ShowTop() { Show(Extent::Top); }
  bool HasRest() const { return rest_.has_value(); }
  // Takes the sheet's caret and selection over into the box.
  void TakeCaret();
  // A deed of the teacher's on the box, which can be undone.
  void Do(const std::function<void(RichText&)>& deed);

 signals:
  // A new document is shown, or the caret went to the start.
  void StartShown();

 private:
  struct Cell {
    char32_t character;
    std::uint32_t format;
  };
  using Cells = std::vector<Cell>;
  // A stretch that may differ between box and sheet: what lies before and behind does not.
  struct Difference {
    int before;
    int behind;
  };

  enum class Extent { Top, All };

  // From the box to the sheet.
  void Replaced(int position, int removed, int inserted) override;
  void Reformatted(int position, int count) override;
  void ParagraphsAligned(int position, int count) override;
  void CaretMoved() override;
  void Note(int position, int end);
  void ShowBoxSoon();
  void Show(Extent extent);
  void LoadWhole(Extent extent);
  void LoadRest();
  int TopEnd() const;
  int CaretEnd() const;
  void ShowStretch(int start, int box_end, int sheet_end);
  void ShowCaret();
  void ShowCaretFormat();

  // From the sheet to the box.
  void TakeEdit(int qt_position, int removed, int added);
  void TakeStretch(int start, int box_end, int sheet_end);

  Cells BoxCells(int start, int end) const;
  Cells SheetCells(int qt_start, int qt_end) const;
  int SheetLength() const;
  QTextCursor Select(int start, int end);

  RichTextBox* box_;  // null once left
  QGraphicsTextItem& sheet_;
  Runtime& runtime_;
  RichTextLayout layout_;
  RichTextPositions positions_;

  std::optional<Difference> difference_;
  std::optional<int> rest_;  // where in the box what isn't shown yet begins
  bool begun_ = false;
  bool whole_ = true;  // the box has a new document
  bool show_soon_ = false;
  bool showing_ = false;
  bool taking_ = false;
};

}  // namespace brindlepage
