#pragma once

#include <QPushButton>

namespace brindlepage {

// A button of the menu: a card with a drawing and a caption of up to two lines.
class LargeButton : public QPushButton {
 public:
  explicit LargeButton(QWidget* parent);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void enterEvent(QEnterEvent* event) override;
  void leaveEvent(QEvent* event) override;
};

}  // namespace brindlepage
