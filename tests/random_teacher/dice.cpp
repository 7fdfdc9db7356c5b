#include "tests/random_teacher/dice.h"

namespace brindlepage {

std::string Dice::Text() {
  static const std::vector<std::string> kTexts = {"lava",
                                                  "ash",
                                                  "a",
                                                  "",
                                                  " ",
                                                  "Mount Etna",
                                                  "caf\u00e9",
                                                  "\u03a9",
                                                  "*****",
                                                  "*",
                                                  "12",
                                                  "x-ray",
                                                  "hot rock",
                                                  "a\"b",
                                                  "c:\\d",
                                                  "what?",
                                                  "<New List>",
                                                  "No Lists",
                                                  "antidisestablishment",
                                                  "Volcanoes",
                                                  "Geometry",
                                                  "The Middle Ages",
                                                  "Solar System",
                                                  "tab\there"};
  if (OneIn(3)) {
    std::string word;
    for (int length = 1 + Below(20); length > 0; --length) {
      word += static_cast<char>('a' + Below(26));
    }
    return word;
  }
  return AnyOf(kTexts);
}

std::string Dice::ListName() {
  static const std::vector<std::string> kNames = {
      "Solar System", "Geometry", "Capital Cities of Europe",
      "Music Room",   "Colours",  "Empty",
      "Volcanoes",    "Planets",  "No Lists",
      "<New List>"};
  return AnyOf(kNames);
}

std::string Dice::Link() {
  static const std::vector<std::string> kLinks = {"class\\", ".\\",          "class\\",  ".\\",
                                                  "class",   "worksheets\\", "missing\\"};
  return AnyOf(kLinks);
}

}  // namespace brindlepage
