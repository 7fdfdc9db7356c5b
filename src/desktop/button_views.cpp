#include <QCheckBox>
#include <QKeyEvent>
#include <QPushButton>
#include <QRadioButton>
#include <algorithm>
#include <vector>

#include "desktop/arranger.h"
#include "desktop/control_views.h"
#include "desktop/icons.h"
#include "desktop/large_button.h"
#include "desktop/style.h"

namespace brindlepage {

namespace {

class ButtonView : public ViewOf<CommandButton> {
 public:
  ButtonView(CommandButton& button, const ViewSetting& setting)
      : ViewOf(setting.loop, button, MakeButton(button, setting.parent)),
        caption_(setting.letters) {
    connect(&push(), &QPushButton::clicked, this,
            [this] { Act([](CommandButton& b) { b.UserClick(); }); });
  }

 protected:
  void SyncState() override {
    push().setText(caption_.Of(box().Caption));
    SetStyleProperty(push(), "main", box().Default());
  }

 private:
  QPushButton& push() const { return static_cast<QPushButton&>(*widget()); }

  static QPushButton* MakeButton(const CommandButton& button, QWidget* parent) {
    if (!button.icon.empty()) {
      auto* large = new LargeButton(parent);
      large->setIcon(NamedIcon(button.icon));
      return large;
    }
    auto* push = new QPushButton(parent);
    if (button.Caption().size() == 1) MakeSmall(*push, button.Caption()[0]);
    return push;
  }

  // A button of one letter is small, and B, I and U look like what they do.
  static void MakeSmall(QPushButton& push, char letter) {
    push.setProperty("small", true);
    QFont font = push.font();
    font.setBold(letter == 'B');
    font.setItalic(letter == 'I');
    font.setUnderline(letter == 'U');
    push.setFont(font);
  }

  LetteredCaption caption_;
};

// Shows a check box or an option button. Without a caption it takes no more room than its mark.
template <class Kind>
void SyncMark(QAbstractButton& mark, const Kind& box, LetteredCaption& caption) {
  constexpr int kMark = 24;  // pixels
  mark.setText(caption.Of(box.Caption));
  mark.setMaximumWidth(box.Caption().empty() ? kMark : QWIDGETSIZE_MAX);
  mark.setChecked(box.Value);
}

// A mark that the control turns, not the widget.
template <class Button>
class PassiveMark : public Button {
 public:
  using Button::Button;

 protected:
  void nextCheckState() override {}
};

class CheckBoxView : public ViewOf<CheckBox> {
 public:
  CheckBoxView(CheckBox& check, const ViewSetting& setting)
      : ViewOf(setting.loop, check, new PassiveMark<QCheckBox>(setting.parent)),
        caption_(setting.letters) {
    connect(&mark(), &QCheckBox::clicked, this,
            [this] { Act([](CheckBox& c) { c.UserClick(); }); });
  }

 protected:
  void SyncState() override { SyncMark(mark(), box(), caption_); }

 private:
  QCheckBox& mark() const { return static_cast<QCheckBox&>(*widget()); }

  LetteredCaption caption_;
};

// The option of a group that is on takes the Tab key; the arrow keys turn the next one on.
class OptionButtonView : public ViewOf<OptionButton> {
 public:
  OptionButtonView(OptionButton& option, const ViewSetting& setting)
      : ViewOf(setting.loop, option, new PassiveMark<QRadioButton>(setting.parent)),
        caption_(setting.letters) {
    mark().setAutoExclusive(false);
    mark().installEventFilter(this);
    connect(&mark(), &QRadioButton::clicked, this,
            [this] { Act([](OptionButton& o) { o.UserClick(); }); });
  }

  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() != QEvent::KeyPress) return false;
    switch (static_cast<QKeyEvent*>(event)->key()) {
      case Qt::Key_Up:
      case Qt::Key_Left:
        TurnOnNeighbour(-1);
        return true;
      case Qt::Key_Down:
      case Qt::Key_Right:
        TurnOnNeighbour(+1);
        return true;
      default:
        return false;
    }
  }

 protected:
  void SyncState() override {
    SyncMark(mark(), box(), caption_);
    mark().setFocusPolicy(box().Value ? Qt::StrongFocus : Qt::ClickFocus);
  }

 private:
  QRadioButton& mark() const { return static_cast<QRadioButton&>(*widget()); }

  // The group as it stands on screen, from top to bottom.
  void TurnOnNeighbour(int step) {
    if (control() == nullptr) return;
    std::vector<OptionButton*> group;
    ForEachControl(box().form().arrangement(), [&](Control& neighbour) {
      auto* option = dynamic_cast<OptionButton*>(&neighbour);
      if (option == nullptr || option->container() != box().container()) return;
      if (option->CanAct()) group.push_back(option);
    });
    const auto here = std::find(group.begin(), group.end(), &box());
    if (here == group.end()) return;
    const auto count = static_cast<std::ptrdiff_t>(group.size());
    const auto next = ((here - group.begin()) + step + count) % count;
    OptionButton& neighbour = *group[static_cast<std::size_t>(next)];
    loop().Act(neighbour, [&] {
      neighbour.UserClick();
      neighbour.SetFocus();
    });
  }

  LetteredCaption caption_;
};

}  // namespace

std::unique_ptr<ControlView> MakeView(CommandButton& button, const ViewSetting& setting) {
  return std::make_unique<ButtonView>(button, setting);
}

std::unique_ptr<ControlView> MakeView(CheckBox& check, const ViewSetting& setting) {
  return std::make_unique<CheckBoxView>(check, setting);
}

std::unique_ptr<ControlView> MakeView(OptionButton& option, const ViewSetting& setting) {
  return std::make_unique<OptionButtonView>(option, setting);
}

}  // namespace brindlepage
