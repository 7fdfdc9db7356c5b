#include "walk/walk_arguments.h"

#include <gtest/gtest.h>

#include <sstream>

#include "tests/temp_folder.h"
#include "tests/walked_desk.h"

namespace brindlepage::walk {
namespace {

// --- The command line

TEST(WalkArguments, NamesFolderScreenLimitAndScript) {
  const Arguments none = ReadArguments({});
  EXPECT_FALSE(none.folder);
  EXPECT_FALSE(none.script);
  EXPECT_EQ(none.settings.screen.width, 15360);
  EXPECT_EQ(none.settings.screen.height, 11520);
  EXPECT_EQ(none.settings.draw_limit, 50'000'000);

  const Arguments all = ReadArguments(
      {"--folder", "some where", "--screen", "640x480", "--draw-limit", "12", "a.walk"});
  EXPECT_EQ(all.folder, "some where");
  EXPECT_EQ(all.settings.screen.width, 9600);
  EXPECT_EQ(all.settings.screen.height, 7200);
  EXPECT_EQ(all.settings.draw_limit, 12);
  EXPECT_EQ(all.script, "a.walk");
  EXPECT_FALSE(ReadArguments({"-"}).script);
}

TEST(WalkArguments, WhatIsNotAnArgumentIsRefusedWithTheUsage) {
  const std::vector<std::vector<std::string>> wrong = {{"--folder"},
                                                       {"--screen"},
                                                       {"--screen", "640"},
                                                       {"--screen", "0x5"},
                                                       {"--screen", "axb"},
                                                       {"--draw-limit"},
                                                       {"--draw-limit", "-1"},
                                                       {"--draw-limit", "many"},
                                                       {"--fast"},
                                                       {"a.walk", "b.walk"},
                                                       {"-x"}};
  for (const auto& arguments : wrong) {
    try {
      ReadArguments(arguments);
      ADD_FAILURE() << arguments.front();
    } catch (const UsageError& error) {
      EXPECT_NE(std::string(error.what()).find("\nusage: brindlepage-walk [--folder DIR]"),
                std::string::npos)
          << error.what();
    }
  }
}

TEST(Walk, TheScreenIsThatOfTheCommandLineAndTheFontsAreFixed) {
  std::ostringstream out;
  const WalkPlatform platform(out, ReadArguments({"--screen", "800x600"}).settings.screen);
  EXPECT_EQ(platform.ScreenSize().width, 12000);
  EXPECT_EQ(platform.ScreenSize().height, 9000);
  EXPECT_EQ(platform.ScreenFonts(),
            (std::vector<std::string>{"Arial", "Courier New", "Liberation Mono", "Times New Roman",
                                      "Verdana"}));
}

}  // namespace
}  // namespace brindlepage::walk
