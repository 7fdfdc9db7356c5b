#include "walk/print.h"

#include <charconv>
#include <cstdio>

#include "toolkit/code_page.h"
#include "toolkit/control.h"

namespace brindlepage::walk {

namespace {

std::string Hex(const char* format, unsigned number) {
  char digits[16];
  std::snprintf(digits, sizeof digits, format, number);
  return digits;
}

template <class List>
void PrintRow(std::ostream& out, const List& list, int row, const std::string& mark) {
  Say(out, "row " + std::to_string(row) + mark + ' ' + QuotedBytes(list.List(row)) +
               (row == list.ListIndex ? " *" : ""));
}

const char* AlignmentName(Alignment alignment) {
  switch (alignment) {
    case Alignment::Left:
      return "left";
    case Alignment::Right:
      return "right";
    case Alignment::Centre:
      return "centre";
  }
  return "";
}

std::string Style(const CharFormat& format) {
  return {format.bold ? 'b' : '-', format.italic ? 'i' : '-', format.underline ? 'u' : '-'};
}

std::string RedGreenBlue(std::uint32_t color) {
  return Hex("%06X", (color & 0xFF) << 16 | (color & 0xFF00) | (color >> 16 & 0xFF));
}

std::string PrintedPicture(const RichPicture& picture) {
  return "picture " + picture.format + ' ' + std::to_string(picture.width) + ' ' +
         std::to_string(picture.height);
}

std::string PrintedRun(const RichText::Run& run, std::u32string_view text) {
  constexpr double kTwentieths = 20;
  const CharFormat& format = *run.format;
  return "run " + QuotedBytes(format.font) + ' ' + PrintedNumber(format.size / kTwentieths) + ' ' +
         Style(format) + ' ' + RedGreenBlue(format.color) + ' ' +
         Quoted(code_page::UnicodeToUtf8(text));
}

}  // namespace

void Say(std::ostream& out, std::string_view line) { out << line << '\n' << std::flush; }

std::string Quoted(std::string_view utf8) {
  std::string quoted = "\"";
  for (std::size_t i = 0; i < utf8.size(); ++i) {
    const char c = utf8[i];
    const bool control = static_cast<unsigned char>(c) < 0x20 || c == 0x7F;
    if (c == '\r' && utf8.substr(i + 1, 1) == "\n") continue;
    if (c == '"' || c == '\\') {
      quoted += {'\\', c};
    } else if (c == '\n') {
      quoted += "\\n";
    } else if (c == '\t') {
      quoted += "\\t";
    } else if (control) {
      quoted += Hex("\\x%02X", static_cast<unsigned char>(c));
    } else {
      quoted.push_back(c);
    }
  }
  return quoted + '"';
}

std::string QuotedBytes(std::string_view bytes) { return Quoted(code_page::ToUtf8(bytes)); }

std::string PrintedNumber(double number) {
  char digits[32];
  const auto end = std::to_chars(digits, digits + sizeof digits, number).ptr;
  return std::string(digits, end);
}

std::string Printed(const Value& value) {
  if (const auto* truth = std::get_if<bool>(&value)) return *truth ? "true" : "false";
  if (const auto* whole = std::get_if<long long>(&value)) return std::to_string(*whole);
  if (const auto* number = std::get_if<double>(&value)) return PrintedNumber(*number);
  return QuotedBytes(std::get<std::string>(value));
}

std::string PrintedName(const Control& control) {
  std::string name = control.form().Name() + '.' + control.Name();
  if (control.Index() >= 0) name += '(' + std::to_string(control.Index()) + ')';
  return name;
}

void PrintRows(std::ostream& out, const ListBox& list) {
  for (int row = 0; row < list.ListCount(); ++row) {
    const bool checks = list.style() == ListStyle::CheckBoxes;
    PrintRow(out, list, row, !checks ? "" : list.Selected(row) ? " [x]" : " [ ]");
  }
}

void PrintRows(std::ostream& out, const ComboBox& combo) {
  for (int row = 0; row < combo.ListCount(); ++row) PrintRow(out, combo, row, "");
}

void PrintRuns(std::ostream& out, const RichText& document) {
  const std::u32string text = document.PlainText();
  for (const RichText::Paragraph& paragraph : document.Paragraphs()) {
    Say(out, std::string("paragraph ") + AlignmentName(paragraph.alignment));
    for (const RichText::Run& run : document.Runs(paragraph)) {
      const auto start = static_cast<std::size_t>(run.start);
      const auto length = static_cast<std::size_t>(run.length);
      Say(out, run.format->picture
                   ? PrintedPicture(*run.format->picture)
                   : PrintedRun(run, std::u32string_view(text).substr(start, length)));
    }
  }
}

void PrintForms(std::ostream& out, const Forms& forms) {
  for (const auto& form : forms.Loaded()) {
    Say(out, form->Name() + (form->Visible ? " shown" : " hidden") +
                 (form.get() == forms.Active() ? " active" : ""));
  }
}

}  // namespace brindlepage::walk
