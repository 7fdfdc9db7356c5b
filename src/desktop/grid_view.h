#pragma once

#include <QImage>
#include <QWidget>

#include "toolkit/form.h"
#include "toolkit/picture.h"

namespace brindlepage {

// The picture of a form that places its controls: PictureArea of it, drawn anew from its geometry
// at this resolution and as large on paper as SizeOnPaper says.
inline constexpr int kPictureDotsPerInch = 360;
FormPicture PictureOfPlacedForm(const Form& form);

// A form that places its controls itself, as a crossword's grid does: its boxes as large as fit,
// on its background, headings above. Drawn from the same geometry as the picture, not from
// widgets, as there are a thousand boxes.
class GridView : public QWidget {
 public:
  GridView(const Form& form, QWidget* parent);

  // The form goes: it is not looked at any more.
  void Detach() { form_ = nullptr; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  const Form* form_;
};

}  // namespace brindlepage
