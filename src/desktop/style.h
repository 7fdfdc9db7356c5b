#pragma once

#include <QColor>

class QApplication;
class QVariant;
class QWidget;

namespace brindlepage {

// The program's colours.
namespace palette {
inline constexpr QColor kPaper{0xfa, 0xf6, 0xeb};
inline constexpr QColor kPaperShade{0xf1, 0xe7, 0xd6};
inline constexpr QColor kPale{0xe3, 0xd0, 0xb3};  // borders, hairlines
inline constexpr QColor kBrindle{0xb9, 0x8d, 0x5e};
inline constexpr QColor kInk{0x1f, 0x3a, 0x5f};      // text, main buttons
inline constexpr QColor kSoftInk{0x5f, 0x7e, 0xa3};  // icons, what is less important
inline constexpr QColor kMist{0xd6, 0xe0, 0xea};     // selection, quiet fill
inline constexpr QColor kAccent{0xd9, 0x60, 0x3b};
inline constexpr QColor kSheet{0xff, 0xff, 0xff};
inline constexpr QColor kFaded{0xa9, 0xac, 0xb0};  // what can't be used now
}  // namespace palette

// Gives the program its look: palette, style sheet, marks of check boxes and option buttons.
// The letters that work with Alt are underlined while Alt is held.
void ApplyStyle(QApplication& application);

// Styles the widget and all that stands on it, as showing it would.
void PolishAll(QWidget& widget);

// Sets a property that the style sheet looks at.
void SetStyleProperty(QWidget& widget, const char* name, const QVariant& value);

}  // namespace brindlepage
