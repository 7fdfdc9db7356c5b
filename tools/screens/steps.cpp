#include "tools/screens/steps.h"

#include <QLineEdit>
#include <QPainter>
#include <cstdio>
#include <numeric>

#include "desktop/text.h"
#include "toolkit/controls.h"
#include "toolkit/lists.h"

namespace brindlepage::screens {

namespace {

Control* Find(Photographer& photographer, const std::string& form, const std::string& name,
              int index) {
  Form* loaded = photographer.stage().Find(form);
  return loaded == nullptr ? nullptr : loaded->FindControl(name, index);
}

// The control as soon as it can act.
template <class ControlType>
ControlType& AwaitControl(Photographer& photographer, const std::string& form,
                          const std::string& name, int index = -1) {
  ControlType* control = nullptr;
  photographer.Await(form + "." + name, [&] {
    control = dynamic_cast<ControlType*>(Find(photographer, form, name, index));
    return control != nullptr && control->CanAct();
  });
  return *control;
}

// Does something to a control, in the way that a teacher does it.
template <class ControlType, class Deed>
Step Act(std::string form, std::string name, Deed deed, int index = -1) {
  return [=](Photographer& photographer) {
    auto& control = AwaitControl<ControlType>(photographer, form, name, index);
    photographer.stage().loop().Act(control, [&] { deed(control); });
  };
}

int RowOf(const ListBox& list, const std::string& text) {
  for (int row = 0; row < list.ListCount(); ++row) {
    if (list.List(row) == text) return row;
  }
  std::fprintf(stderr, "no row \"%s\" in %s\n", text.c_str(), list.Name().c_str());
  std::exit(1);
}

}  // namespace

Step Click(std::string form, std::string name, int index) {
  return Act<Control>(
      form, name, [](Control& control) { control.UserClick(); }, index);
}

Step Tool(std::string form, std::string caption) {
  return Act<Toolbar>(form, "Toolbar1", [caption](Toolbar& toolbar) {
    toolbar.ButtonClick(*toolbar.FindCaption(caption));
  });
}

Step Select(std::string form, std::string name, int row) {
  return Act<ListBox>(form, name, [row](ListBox& list) { list.ClickRow(row); });
}

Step SelectText(std::string form, std::string name, std::string text) {
  return Act<ListBox>(form, name, [text](ListBox& list) { list.ClickRow(RowOf(list, text)); });
}

Step DoubleClickNothing(std::string form, std::string name) {
  return Act<ListBox>(form, name, [](ListBox& list) { list.DoubleClickRow(-1); });
}

Step Mark(std::string form, std::string name, std::vector<int> rows) {
  return Act<ListBox>(form, name, [rows](ListBox& list) {
    for (const int row : rows) list.ClickCheck(row);
  });
}

Step MarkRows(std::string form, std::string name, int first, int last) {
  std::vector<int> rows(static_cast<std::size_t>(last - first + 1));
  std::iota(rows.begin(), rows.end(), first);
  return Mark(std::move(form), std::move(name), std::move(rows));
}

Step Type(std::string form, std::string name, std::string text) {
  const Step type = Act<TextBox>(
      form, name, [text](TextBox& box) { box.Type(ToQString(text).toStdU32String()); });
  return [=](Photographer& photographer) {
    type(photographer);
    photographer.Settle();
    // The caret stands behind what was typed.
    Form& typed_on = *photographer.stage().Find(form);
    ControlView* view =
        photographer.stage().windows().Find(typed_on)->Find(*typed_on.FindControl(name));
    if (auto* line = qobject_cast<QLineEdit*>(view->widget())) line->end(false);
  };
}

Step CaretBefore(std::string form, std::string name, std::string text) {
  return Act<RichTextBox>(form, name, [text](RichTextBox& box) {
    const auto at = box.PlainText().find(ToQString(text).toStdU32String());
    if (at != std::u32string::npos) box.SelStart(static_cast<int>(at));
  });
}

Step Slide(std::string form, std::string name, int value) {
  return Act<HScrollBar>(form, name, [value](HScrollBar& bar) { bar.Value = value; });
}

Step PressKey() {
  return [](Photographer& photographer) {
    Form& form = *photographer.stage().Front();
    photographer.stage().loop().Act(form,
                                    [&] { photographer.stage().program().forms().Key(form); });
  };
}

Step Await(std::string form, std::string name) {
  return [=](Photographer& photographer) { AwaitControl<Control>(photographer, form, name); };
}

Step Seed(std::uint64_t seed) {
  return [=](Photographer& photographer) { photographer.stage().Seed(seed); };
}

Step Photo(QString name) {
  return [=](Photographer& photographer) { photographer.TakeFront(name); };
}

Step Photo(QString name, std::string form) {
  return [=](Photographer& photographer) {
    photographer.Await(form, [&] {
      const Form* front = photographer.stage().Front();
      return front != nullptr && front->Name() == form;
    });
    photographer.TakeFront(name);
  };
}

Step PhotoOfNextBox(QString name) {
  return [=](Photographer& photographer) { photographer.TakeNextBox(name); };
}

Step PhotoOfPages(QString name, std::string form) {
  const Step print = Tool(form, "Print");
  return [=](Photographer& photographer) {
    photographer.TakeNextSheet(name);
    print(photographer);
    photographer.TakeNextSheet({});
  };
}

Step DrawSun() {
  return [](Photographer&) {
    QImage sun(160, 160, QImage::Format_RGB32);
    sun.fill(Qt::white);
    QPainter painter(&sun);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(0xF0, 0x90, 0x20), 8));
    painter.translate(80, 80);
    for (int ray = 0; ray < 12; ++ray) {
      painter.drawLine(52, 0, 72, 0);
      painter.rotate(30);
    }
    painter.setBrush(QColor(0xFF, 0xD0, 0x40));
    painter.drawEllipse(QPoint(), 40, 40);
    painter.end();
    if (!sun.save("sun.bmp")) std::fprintf(stderr, "can't write sun.bmp\n");
  };
}

}  // namespace brindlepage::screens
