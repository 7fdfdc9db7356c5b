#pragma once

#include <ostream>
#include <string>
#include <string_view>

#include "toolkit/forms.h"
#include "toolkit/lists.h"
#include "toolkit/property.h"
#include "worksheet/rich_text.h"

// What a walk prints, in the forms that scripts and tests rely on.
namespace brindlepage::walk {

// Writes a line at once, so that it can be read before the next command is given.
void Say(std::ostream& out, std::string_view line);

// A text in double quotes, with `\"`, `\\`, `\n` and `\t` inside, and `\xHH` for other control
// characters. A carriage return before a line feed belongs to the line end and isn't shown.
std::string Quoted(std::string_view utf8);
// The same for a text in Windows-1252.
std::string QuotedBytes(std::string_view bytes);

// A whole number without a decimal point: 10, 9.75.
std::string PrintedNumber(double number);
// A text quoted, a truth as `true` or `false`.
std::string Printed(const Value& value);

// "Title.Command1(3)"
std::string PrintedName(const Control& control);

// A line for each row: `row 0 [x] "lava" *`.
void PrintRows(std::ostream& out, const ListBox& list);
void PrintRows(std::ostream& out, const ComboBox& combo);

// A line for each paragraph, and under it one for each run and picture.
void PrintRuns(std::ostream& out, const RichText& document);

// A line for each loaded form.
void PrintForms(std::ostream& out, const Forms& forms);

}  // namespace brindlepage::walk
