#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "tools/screens/photographer.h"

namespace brindlepage::screens {

// What a teacher, or the photographer, does next.
using Step = std::function<void(Photographer&)>;
using Walk = std::vector<Step>;

// Walks from the menu, each on a fresh stage.
std::vector<Walk> ScreenWalks();
std::vector<Walk> ManualWalks();

// Each acts on the control of that form by its name, and of an array by its index, as soon as it
// can act.
Step Click(std::string form, std::string name, int index = -1);
Step Tool(std::string form, std::string caption);
Step Select(std::string form, std::string name, int row);
Step SelectText(std::string form, std::string name, std::string text);
Step DoubleClickNothing(std::string form, std::string name);
Step Mark(std::string form, std::string name, std::vector<int> rows);
Step MarkRows(std::string form, std::string name, int first, int last);
Step Type(std::string form, std::string name, std::string text);
// In a rich text box, in front of that text.
Step CaretBefore(std::string form, std::string name, std::string text);
Step Slide(std::string form, std::string name, int value);
// A key on the form in front.
Step PressKey();
// Until it can act; nothing is done to it.
Step Await(std::string form, std::string name);

// Random numbers from there on.
Step Seed(std::uint64_t seed);

// Of the form in front; of that form as soon as it is in front.
Step Photo(QString name);
Step Photo(QString name, std::string form);
Step PhotoOfNextBox(QString name);
// The sheet of that form as it is printed, NAME-sheet, and its key, NAME-key, if it has one.
Step PhotoOfPages(QString name, std::string form);

// Puts "sun.bmp" into the program's folder.
Step DrawSun();

}  // namespace brindlepage::screens
