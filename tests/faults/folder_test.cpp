// Folders that are at fault, and what is left on the screen behind a fault that the program
// handles.

#include <gtest/gtest.h>

#include "tests/faults/steps.h"
#include "tests/faults/troubles.h"
#include "tests/ordinary_teacher.h"

namespace brindlepage {
namespace {

namespace fs = std::filesystem;

std::string Error(const char* what) { return "error " + std::string(what) + "\nend\n"; }

const std::string kPermissionDenied = Error("70 \"Permission denied\"");
const std::string kPathFileAccess = Error("75 \"Path/File access error\"");
const std::string kPathNotFound = Error("76 \"Path not found\"");
const Lines kOptions = {"start", "click Title.Toolbar1 \"Opts\""};

// --- The program's folder is gone

// The lists of folders and files that a screen shows come before its own files.
std::string ToldWithoutFolder(const Step& step) {
  const std::string told = Told(step, 76);
  if (told.find("Some required files") != std::string::npos) return kPathNotFound;
  const auto invalid = told.find("message \"\" \"The directory");
  return invalid == std::string::npos ? told : told.substr(invalid);
}

class WithoutItsFolder : public testing::TestWithParam<Step> {};

TEST_P(WithoutItsFolder, EveryStepEndsOrTellsItsOwnMessage) {
  const Step& step = GetParam();
  PlayedProgram program(FolderFor(step));
  program.Play(step.way);
  fs::remove_all(program.folder().Path());
  EXPECT_EQ(program.Play({step.deed}), ToldWithoutFolder(step));
  EXPECT_FALSE(fs::exists(program.folder().Path()));
}

std::string CaseName(const testing::TestParamInfo<Step>& info) {
  return NameOf(info.param) + "_" + std::to_string(info.index);
}

INSTANTIATE_TEST_SUITE_P(Read, WithoutItsFolder, testing::ValuesIn(ReadingSteps()), CaseName);
INSTANTIATE_TEST_SUITE_P(Background, WithoutItsFolder, testing::ValuesIn(ScreensWithBackground()),
                         CaseName);
INSTANTIATE_TEST_SUITE_P(Written, WithoutItsFolder, testing::ValuesIn(WritingSteps()), CaseName);

// --- The folder of the worksheets

class WorksheetsFolder : public testing::Test {
 protected:
  WorksheetsFolder() { fs::remove_all("worksheets"); }

  // Does it as an ordinary teacher and expects the folder to be as it was.
  std::string PlayUnchanged(const Lines& lines) {
    const Snapshot before = program.Files();
    std::string told;
    {
      OrdinaryTeacher teacher;
      told = program.Play(lines);
    }
    EXPECT_EQ(Difference(before, program.Files()), "");
    return told;
  }

  PlayedProgram program;
};

TEST_F(WorksheetsFolder, AFileInItsPlaceEndsTheStart) {
  program.folder().Write("worksheets", "no folder");
  EXPECT_EQ(PlayUnchanged({"start"}), kPathFileAccess);
}

TEST_F(WorksheetsFolder, ALinkToNothingInItsPlaceEndsTheStart) {
  fs::create_symlink("nothing", "worksheets");
  EXPECT_EQ(PlayUnchanged({"start"}), kPathFileAccess);
}

TEST_F(WorksheetsFolder, InAFolderThatMayNotBeChangedItEndsTheStart) {
  fs::permissions(".", fs::perms{0555});
  EXPECT_EQ(PlayUnchanged({"start"}), kPermissionDenied);
  fs::permissions(".", fs::perms{0755});
}

TEST_F(WorksheetsFolder, ALinkToAFolderServes) {
  fs::create_directory("elsewhere");
  fs::create_symlink("elsewhere", "worksheets");
  EXPECT_EQ(PlayUnchanged({"start"}), "");
  EXPECT_EQ(program.Play({"click Title.Command2"}),
            "message \"No files found!\" \"There are no saved worksheets to open.\" ok -> ok\n");
}

TEST_F(WorksheetsFolder, AClosedOneIsToldWhereItsFilesAreListed) {
  program.Play({"start"});
  fs::permissions("worksheets", fs::perms::none);
  EXPECT_EQ(PlayUnchanged({"click Title.Command2"}), kPermissionDenied);
  fs::permissions("worksheets", fs::perms::all);
}

TEST_F(WorksheetsFolder, AFileInItsPlaceIsToldWhereItsFilesAreListed) {
  program.Play({"start"});
  fs::remove("worksheets");
  program.folder().Write("worksheets", "no folder");
  EXPECT_EQ(PlayUnchanged({"click Title.Command2"}), kPathNotFound);
}

// --- A list file elsewhere

TEST(ListFolder, OneThatIsGoneIsNotFound) {
  Snapshot files = SmallFolder();
  files["brindlepage.dat"] = "a\r\nb\r\n*****\r\nschool\\\r\n";
  PlayedProgram program(files);
  EXPECT_EQ(program.Play({"start"}), "");
  fs::remove_all("school");
  const Snapshot before = program.Files();
  EXPECT_EQ(program.Play({"click Title.Command1(4)"}), kPathNotFound);
  EXPECT_EQ(Difference(before, program.Files()), "");
}

TEST(ListFolder, AClosedOneIsCalledInvalid) {
  PlayedProgram program;
  program.Play(kOptions +
               Lines{"click ProgramOptions.Command3", "type ChangeList.Text1 \"school\\\\\""});
  fs::permissions("school", fs::perms::none);
  const Snapshot before = [&] {
    fs::permissions("school", fs::perms::all);
    Snapshot files = program.Files();
    fs::permissions("school", fs::perms::none);
    return files;
  }();
  {
    OrdinaryTeacher teacher;
    EXPECT_EQ(program.Play({"click ChangeList.Command1"}),
              "message \"\" \"The directory you have chosen is invalid.\" ok -> ok\n");
  }
  fs::permissions("school", fs::perms::all);
  EXPECT_EQ(Difference(before, program.Files()), "");
}

// --- Folders of pictures

class PictureFolder : public testing::Test {
 protected:
  PictureFolder() {
    for (const Step& step : ReadingSteps()) {
      if (step.name == std::string("A look at a bitmap reads it")) program.Play(step.way);
    }
  }
  PlayedProgram program;
};

TEST_F(PictureFolder, AClosedOneEndsTheProgram) {
  fs::permissions("school", fs::perms::none);
  {
    OrdinaryTeacher teacher;
    EXPECT_EQ(program.Play({"folder AddPic.Dir1 \"school\""}), kPermissionDenied);
  }
  fs::permissions("school", fs::perms::all);
}

TEST_F(PictureFolder, OneThatHasVanishedEndsTheProgram) {
  fs::remove_all("school");
  EXPECT_EQ(program.Play({"folder AddPic.Dir1 \"school\""}), kPathNotFound);
}

// --- Behind a fault that is handled

const char kRestored[] =
    "message \"Restore\" \"Restore backup copy of Vocabulary List?\" yes-no -> yes\n"
    "message \"Restore Complete\" \"Restore successful.\" ok -> ok\n";
const char kNoBackup[] = "message \"Error\" \"No Backup file can be found\" ok -> ok\n";

TEST(Restore, AMenuThatCannotComeBackIsToldAsAMissingBackupAndTheOptionsStay) {
  PlayedProgram program;
  program.Play(kOptions);
  const std::string picture = program.folder().Read("titleback.jpg");
  fs::remove("titleback.jpg");
  EXPECT_EQ(program.Play({"click ProgramOptions.Command1"}), std::string(kRestored) + kNoBackup);
  EXPECT_EQ(program.folder().Read("TheLists.dat"), program.folder().Read("TheLists.bak"));
  EXPECT_EQ(program.Play({"forms"}), "ProgramOptions shown active\n");

  // The menu is loaded anew once it can be.
  program.folder().Write("titleback.jpg", picture);
  EXPECT_EQ(program.Play({"click ProgramOptions.Command2", "forms"}), "Title shown active\n");
}

TEST(Restore, AMenuThatStillCannotComeBackEndsTheProgram) {
  PlayedProgram program;
  program.Play(kOptions);
  fs::remove("titleback.jpg");
  program.Play({"click ProgramOptions.Command1"});
  EXPECT_EQ(program.Play({"click ProgramOptions.Command2"}), Error("53 \"File not found\""));
}

TEST(Restore, SettingsThatAreGoneEndTheProgramWithTheirMessage) {
  PlayedProgram program;
  program.Play(kOptions);
  fs::remove("brindlepage.dat");
  const std::string told = program.Play({"click ProgramOptions.Command1"});
  EXPECT_TRUE(told.starts_with(kRestored)) << told;
  EXPECT_NE(told.find("message \"Error!\" \"Some required files cannot be found"),
            std::string::npos)
      << told;
  EXPECT_TRUE(told.ends_with("\nend\n")) << told;
  EXPECT_EQ(told.find(kNoBackup), std::string::npos);
}

}  // namespace
}  // namespace brindlepage
