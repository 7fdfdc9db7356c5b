#include "desktop/control_views.h"

#include <QGroupBox>
#include <QProgressBar>
#include <QShortcut>
#include <QSignalBlocker>
#include <QSlider>

#include "desktop/clicks.h"
#include "desktop/icons.h"
#include "desktop/picture_view.h"
#include "desktop/rich_text_view.h"
#include "desktop/style.h"
#include "desktop/text.h"
#include "desktop/tool_strip.h"

namespace brindlepage {

namespace {

class FrameView : public ViewOf<Frame> {
 public:
  FrameView(Frame& frame, const ViewSetting& setting)
      : ViewOf(setting.loop, frame, new QGroupBox(setting.parent)) {}

 protected:
  void SyncState() override {
    group().setTitle(PlainCaption(box().Caption()));
    SetStyleProperty(group(), "plain", box().Caption().empty());
  }

 private:
  QGroupBox& group() const { return static_cast<QGroupBox&>(*widget()); }
};

class ImageControlView : public ViewOf<Image> {
 public:
  ImageControlView(Image& image, const ViewSetting& setting)
      : ViewOf(setting.loop, image, new PictureView(NamedIcon(image.icon), setting.parent)) {
    new Clicks(
        widget(), [this] { Act([](Image& i) { i.UserClick(); }); },
        // Quick clicks are clicks, where a double click means nothing else.
        [this] { Act([](Image& i) { i.DblClick ? i.UserDoubleClick() : i.UserClick(); }); });
    if (image.Click) widget()->setCursor(Qt::PointingHandCursor);
    if (image.key == Key::PageUp) Click(Qt::Key_PageUp, setting.page);
    if (image.key == Key::PageDown) Click(Qt::Key_PageDown, setting.page);
  }

 protected:
  void SyncState() override { static_cast<PictureView*>(widget())->Show(box().Picture); }

 private:
  // The key clicks the image, whatever has the focus.
  void Click(Qt::Key key, QWidget* page) {
    auto* shortcut =
        new QShortcut(QKeySequence(key), page, nullptr, nullptr, Qt::WidgetWithChildrenShortcut);
    connect(shortcut, &QShortcut::activated, this,
            [this] { Act([](Image& i) { i.UserClick(); }); });
  }
};

class ScrollBarView : public ViewOf<HScrollBar> {
 public:
  ScrollBarView(HScrollBar& bar, const ViewSetting& setting)
      : ViewOf(setting.loop, bar, new QSlider(Qt::Horizontal, setting.parent)) {
    slider().setMinimumSize(160, 24);
    connect(&slider(), &QSlider::valueChanged, this,
            [this](int value) { Act([value](HScrollBar& b) { b.Move(value); }); });
  }

 protected:
  void SyncState() override {
    const QSignalBlocker quiet(slider());
    slider().setRange(box().Min, box().Max);
    slider().setSingleStep(box().SmallChange);
    slider().setPageStep(box().LargeChange);
    slider().setValue(box().Value);
  }

 private:
  QSlider& slider() const { return static_cast<QSlider&>(*widget()); }
};

class ProgressBarView : public ViewOf<ProgressBar> {
 public:
  ProgressBarView(ProgressBar& bar, const ViewSetting& setting)
      : ViewOf(setting.loop, bar, new QProgressBar(setting.parent)) {
    progress().setTextVisible(false);
  }

 protected:
  void SyncState() override {
    progress().setRange(0, qMax(1, box().Max()));
    progress().setValue(qBound(0, box().Value(), progress().maximum()));
  }

 private:
  QProgressBar& progress() const { return static_cast<QProgressBar&>(*widget()); }
};

class RichTextBoxView : public ViewOf<RichTextBox> {
 public:
  RichTextBoxView(RichTextBox& rich, const ViewSetting& setting)
      : ViewOf(setting.loop, rich, new RichTextView(rich, setting.loop.runtime(), setting.parent)) {
  }

  void Detach() override {
    if (control() != nullptr) view().Leave();
    ControlView::Detach();
  }
  void FillHidden() override { view().Mirror(); }

 protected:
  void SyncState() override {}

 private:
  RichTextView& view() const { return static_cast<RichTextView&>(*widget()); }
};

// A control that has no face of its own.
class EmptyView : public ControlView {
 public:
  EmptyView(Control& control, const ViewSetting& setting)
      : ControlView(setting.loop, control, new QWidget(setting.parent)) {}

 protected:
  void SyncState() override {}
};

template <class ControlType>
std::unique_ptr<ControlView> TryMake(Control& control, const ViewSetting& setting) {
  auto* known = dynamic_cast<ControlType*>(&control);
  return known != nullptr ? MakeView(*known, setting) : nullptr;
}

}  // namespace

std::unique_ptr<ControlView> MakeView(Frame& frame, const ViewSetting& setting) {
  return std::make_unique<FrameView>(frame, setting);
}

std::unique_ptr<ControlView> MakeView(Image& image, const ViewSetting& setting) {
  return std::make_unique<ImageControlView>(image, setting);
}

std::unique_ptr<ControlView> MakeView(HScrollBar& bar, const ViewSetting& setting) {
  return std::make_unique<ScrollBarView>(bar, setting);
}

std::unique_ptr<ControlView> MakeView(Toolbar& toolbar, const ViewSetting& setting) {
  return std::make_unique<ToolStripView>(toolbar, setting);
}

std::unique_ptr<ControlView> MakeView(ProgressBar& bar, const ViewSetting& setting) {
  return std::make_unique<ProgressBarView>(bar, setting);
}

std::unique_ptr<ControlView> MakeView(RichTextBox& rich, const ViewSetting& setting) {
  return std::make_unique<RichTextBoxView>(rich, setting);
}

std::unique_ptr<ControlView> MakeControlView(Control& control, const ViewSetting& setting) {
  using Maker = std::unique_ptr<ControlView> (*)(Control&, const ViewSetting&);
  // A kind stands in front of the kind that it is a kind of.
  static constexpr Maker kMakers[] = {
      TryMake<Label>,       TryMake<CommandButton>, TryMake<CheckBox>,     TryMake<OptionButton>,
      TryMake<ComboBox>,    TryMake<TextBox>,       TryMake<DriveListBox>, TryMake<ListBox>,
      TryMake<Frame>,       TryMake<Image>,         TryMake<HScrollBar>,   TryMake<Toolbar>,
      TryMake<ProgressBar>, TryMake<RichTextBox>,
  };
  for (const Maker make : kMakers) {
    if (auto view = make(control, setting)) return view;
  }
  return std::make_unique<EmptyView>(control, setting);
}

}  // namespace brindlepage
