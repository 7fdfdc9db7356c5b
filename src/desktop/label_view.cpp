#include <QLabel>

#include "desktop/clicks.h"
#include "desktop/control_views.h"
#include "desktop/text.h"

namespace brindlepage {

namespace {

constexpr int kNoColour = 0xFFFFFF;  // the design's, which the style sheet decides

QColor ToColour(int blue_green_red) {
  return {blue_green_red & 0xFF, (blue_green_red >> 8) & 0xFF, (blue_green_red >> 16) & 0xFF};
}

class LabelView : public ViewOf<Label> {
 public:
  LabelView(Label& label, const ViewSetting& setting)
      : ViewOf(setting.loop, label, new QLabel(setting.parent)),
        caption_(setting.letters),
        partner_(setting.partner) {
    text().setTextFormat(partner_ ? Qt::AutoText : Qt::PlainText);
    text().setWordWrap(setting.wraps);
    static constexpr const char* kLooks[] = {"body", "heading", "note", "warning"};
    text().setProperty("look", kLooks[static_cast<int>(label.look)]);
    if (partner_ != nullptr) text().setBuddy(partner_);
    if (label.Click) {
      text().setCursor(Qt::PointingHandCursor);
      // One that stands for nothing else can be reached by the keys.
      if (partner_ == nullptr && label.Index() < 0) {
        text().setProperty("look", "link");
        text().setFocusPolicy(Qt::TabFocus);
      }
      const auto click = [this] {
        if (partner_ != nullptr) partner_->setFocus(Qt::MouseFocusReason);
        Act([](Label& l) { l.UserClick(); });
      };
      new Clicks(&text(), click, click);
    } else if (label.DblClick) {
      new Clicks(
          &text(), [] {}, [this] { Act([](Label& l) { l.UserDoubleClick(); }); });
    }
  }

 protected:
  void SyncState() override {
    if (partner_ != nullptr) {
      // Blanks in front once made room for the mark, which stands beside the label now.
      const std::string& caption = box().Caption;
      const auto first = caption.find_first_not_of(' ');
      text().setText(caption_.Of(first == std::string::npos ? "" : caption.substr(first)));
      partner_->setAccessibleName(ToQString(caption));
    } else {
      text().setText(ToQString(box().Caption));
    }
    static constexpr Qt::Alignment kSides[] = {Qt::AlignLeft, Qt::AlignRight, Qt::AlignHCenter};
    const int side = qBound(0, box().Alignment(), 2);
    text().setAlignment(kSides[side] | Qt::AlignVCenter);
    if (box().BackColor != kNoColour) {
      text().setAutoFillBackground(true);
      QPalette colours = text().palette();
      colours.setColor(QPalette::Window, ToColour(box().BackColor));
      text().setPalette(colours);
    }
    SyncFont();
  }

 private:
  QLabel& text() const { return static_cast<QLabel&>(*widget()); }

  void SyncFont() {
    if (box().FontName().empty() && box().FontSize <= 0) return;
    QString rule;
    if (!box().FontName().empty()) {
      rule += QString("font-family: \"%1\";").arg(ToQString(box().FontName).remove('"'));
    }
    if (box().FontSize > 0) rule += QString("font-size: %1pt;").arg(box().FontSize());
    if (text().styleSheet() != rule) text().setStyleSheet(rule);
  }

  LetteredCaption caption_;
  QWidget* partner_;
};

}  // namespace

std::unique_ptr<ControlView> MakeView(Label& label, const ViewSetting& setting) {
  return std::make_unique<LabelView>(label, setting);
}

}  // namespace brindlepage
