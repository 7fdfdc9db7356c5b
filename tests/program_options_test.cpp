#include "lists/program_options.h"

#include "lists/change_list.h"
#include "lists/quick_word_option.h"
#include "tests/list_screens.h"
#include "toolkit/code_page.h"

namespace brindlepage {
namespace {

const std::string kLists = AsFile({"Planets", "Mars", "red"});

class ProgramOptionsTest : public ListKeeper {
 protected:
  ProgramOptionsTest() { UseFile({"Planets", "Mars", "red"}); }
  void UseSettings(const std::vector<std::string>& lines) {
    folder.Write("brindlepage.dat", AsFile(lines));
  }
  std::string Settings() { return folder.Read("brindlepage.dat"); }
  std::string Here() { return files::WorkingDirectory(); }
  bool Exists(const char* name) { return std::filesystem::exists(name); }
};

// --- Backup and restore.

using BackupTest = ProgramOptionsTest;

TEST_F(BackupTest, TheScreenLeadsToTheOtherOptionsAndBack) {
  Open("Opts");
  auto& form = On<ProgramOptions>(Screen::ProgramOptions);
  EXPECT_EQ(form.Caption(), "Program Options");
  EXPECT_NE(form.Image1.Picture(), nullptr);
  EXPECT_EQ(form.Picture(), nullptr);
  Click(form.Command5);
  EXPECT_TRUE(Active(Screen::QuickWordOption));
  EXPECT_TRUE(Loaded(Screen::ProgramOptions));
  Do([&] { program.forms().Close(On<QuickWordOption>(Screen::QuickWordOption)); });
  EXPECT_TRUE(Active(Screen::ProgramOptions));
  Click(form.Command2);
  EXPECT_TRUE(Active(Screen::Title));
  EXPECT_FALSE(Loaded(Screen::ProgramOptions));
  Open("Opts");
  Click(Screen::ProgramOptions, "Command3");
  EXPECT_TRUE(Active(Screen::ChangeList));
  EXPECT_FALSE(Loaded(Screen::ProgramOptions));
}

TEST_F(BackupTest, ABackupStandsBesideTheListFile) {
  folder.Write("TheLists.bak", "an earlier one\r\n");
  Open("Opts");
  Click(Screen::ProgramOptions, "Command6");
  EXPECT_EQ(
      TakeLog(),
      (Log{"Backup|Make a backup copy of your default Vocabulary List?",
           "Backup Complete|Backup successful. TheLists.dat has been saved as TheLists.bak"}));
  EXPECT_EQ(folder.Read("TheLists.bak"), kLists);
  EXPECT_EQ(File(), kLists);
  EXPECT_TRUE(Active(Screen::Title));
  EXPECT_FALSE(Loaded(Screen::ProgramOptions));
}

TEST_F(BackupTest, NoBeepsAndDoesNothingElse) {
  folder.Write("TheLists.bak", "an earlier one\r\n");
  Open("Opts");
  platform.answers = {BoxAnswer::No, BoxAnswer::No};
  Click(Screen::ProgramOptions, "Command6");
  EXPECT_EQ(TakeLog(), (Log{"Backup|Make a backup copy of your default Vocabulary List?", "beep"}));
  Click(Screen::ProgramOptions, "Command1");
  EXPECT_EQ(TakeLog(), (Log{"Restore|Restore backup copy of Vocabulary List?", "beep"}));
  EXPECT_TRUE(Active(Screen::ProgramOptions));
  EXPECT_EQ(folder.Read("TheLists.bak"), "an earlier one\r\n");
  EXPECT_EQ(File(), kLists);
}

TEST_F(BackupTest, AMissingListFileEndsTheProgram) {
  Open("Opts");
  std::filesystem::remove("TheLists.dat");
  Click(Screen::ProgramOptions, "Command6");
  ExpectFatal("53 File not found");
  EXPECT_FALSE(Exists("TheLists.bak"));
}

TEST_F(BackupTest, AFullDiskEndsTheProgram) {
  std::filesystem::create_symlink("/dev/full", "TheLists.bak");
  Open("Opts");
  Click(Screen::ProgramOptions, "Command6");
  ExpectFatal("61 Disk full");
  EXPECT_EQ(File(), kLists);
}

TEST_F(BackupTest, AFolderInTheBackupsPlaceEndsTheProgram) {
  std::filesystem::create_directory("TheLists.bak");
  Open("Opts");
  Click(Screen::ProgramOptions, "Command6");
  ExpectFatal("75 Path/File access error");
}

TEST_F(BackupTest, ABackupThatMayBeReadOnlyEndsTheProgramAndStays) {
  folder.Write("TheLists.bak", "an earlier one\r\n");
  Open("Opts");
  WithReadOnly("TheLists.bak", [this] { Click(Screen::ProgramOptions, "Command6"); });
  ExpectFatal("75 Path/File access error");
  EXPECT_EQ(folder.Read("TheLists.bak"), "an earlier one\r\n");
}

TEST_F(BackupTest, AListFileThatMayBeReadOnlyIsToldAsAMissingBackup) {
  folder.Write("TheLists.bak", "Rocks\r\n");
  Open("Opts");
  WithReadOnly("TheLists.dat", [this] { Click(Screen::ProgramOptions, "Command1"); });
  EXPECT_EQ(TakeLog().back(), "Error|No Backup file can be found");
  EXPECT_TRUE(Active(Screen::ProgramOptions));
  EXPECT_EQ(File(), kLists);
}

TEST_F(BackupTest, RestoringBringsTheBackupBack) {
  folder.Write("TheLists.bak", AsFile({"Rocks", "flint", "\xE9, \"x\" "}));
  Open("Opts");
  Click(Screen::ProgramOptions, "Command1");
  EXPECT_EQ(TakeLog(), (Log{"Restore|Restore backup copy of Vocabulary List?",
                            "Restore Complete|Restore successful."}));
  EXPECT_EQ(File(), AsFile({"Rocks", "flint", "\xE9, \"x\" "}));
  EXPECT_TRUE(Active(Screen::Title));
  EXPECT_FALSE(Loaded(Screen::ProgramOptions));
}

TEST_F(BackupTest, WithoutABackupTheListFileIsLeftAlone) {
  Open("Opts");
  Click(Screen::ProgramOptions, "Command1");
  EXPECT_EQ(TakeLog(), (Log{"Restore|Restore backup copy of Vocabulary List?",
                            "Error|No Backup file can be found"}));
  EXPECT_EQ(File(), kLists);
  EXPECT_TRUE(Active(Screen::ProgramOptions));
}

TEST_F(BackupTest, ACutBackupComesBackAsFarAsItGoes) {
  folder.Write("TheLists.bak", "Rocks\r\nflint\r\nhar");
  Open("Opts");
  Click(Screen::ProgramOptions, "Command1");
  EXPECT_EQ(File(), "Rocks\r\nflint\r\nhar\r\n");
  EXPECT_EQ(TakeLog().back(), "Restore Complete|Restore successful.");
}

TEST_F(BackupTest, AnEmptyBackupEmptiesTheListFile) {
  folder.Write("TheLists.bak", "");
  Open("Opts");
  Click(Screen::ProgramOptions, "Command1");
  EXPECT_EQ(File(), "");
  Open("Edit");
  ExpectFatal("62 Input past end of file");
}

TEST_F(BackupTest, AFullDiskDuringTheRestoreIsToldAsAMissingBackup) {
  folder.Write("TheLists.bak", kLists);
  Open("Opts");
  std::filesystem::remove("TheLists.dat");
  std::filesystem::create_symlink("/dev/full", "TheLists.dat");
  Click(Screen::ProgramOptions, "Command1");
  EXPECT_EQ(TakeLog().back(), "Error|No Backup file can be found");
  EXPECT_TRUE(Active(Screen::ProgramOptions));
  EXPECT_FALSE(program.Ended());
}

TEST_F(BackupTest, BackupAndRestoreFollowAListFileInAnotherFolder) {
  std::filesystem::create_directory("own");
  folder.Write("own/TheLists.dat", AsFile({"Rocks"}));
  UseSettings({"a", "b", "*****", Here() + "\\own\\"});
  Open("Opts");
  Click(Screen::ProgramOptions, "Command6");
  EXPECT_EQ(folder.Read("own/TheLists.bak"), "Rocks\r\n");
  EXPECT_FALSE(Exists("TheLists.bak"));
  EXPECT_EQ(TakeLog().back(),
            "Backup Complete|Backup successful. TheLists.dat has been saved as TheLists.bak");
  folder.Write("own/TheLists.dat", "");
  Open("Opts");
  Click(Screen::ProgramOptions, "Command1");
  EXPECT_EQ(folder.Read("own/TheLists.dat"), "Rocks\r\n");
  EXPECT_EQ(File(), kLists);
}

TEST_F(BackupTest, ClosingTheFrameEndsTheProgram) {
  Open("Opts");
  Do([&] { program.forms().Close(On<ProgramOptions>(Screen::ProgramOptions)); });
  EXPECT_TRUE(program.Ended());
  EXPECT_EQ(program.Status(), 0);
}

// --- A list file in another folder.

class ChangeListTest : public ProgramOptionsTest {
 protected:
  ChangeListTest() {
    std::filesystem::create_directory("own");
    folder.Write("own/thelists.DAT", AsFile({"Rocks"}));
    std::filesystem::create_directory("bare");
    folder.Write("bare/Lists.dat", "x");
  }
  ChangeList& Form() { return On<ChangeList>(Screen::ChangeList); }
  void Begin() {
    Open("Opts");
    Click(Screen::ProgramOptions, "Command3");
  }
  void Take(const std::string& text) {
    Type(Form().Text1, code_page::ToUnicode(text));
    Click(Form().Command1);
  }
};

TEST_F(ChangeListTest, ShowsTheProgramFolderForTheFreshSetting) {
  for (const char* line : {"listpath", "LISTPATH", "ListPath"}) {
    BrindlepageProgram other(platform, random);
    UseSettings({"a", "b", "*****", "listpath"});
    other.Start();
    UseSettings({"a", "b", "*****", line});
    other.Dispatch([&] { other.forms().Show(Screen::ChangeList); });
    auto& form = *other.forms().Find<ChangeList>(Screen::ChangeList);
    EXPECT_EQ(form.Text1.Text(), Here()) << line;
    EXPECT_EQ(form.Data.Rows(), (Rows{"a", "b", "*****", line}));
  }
}

TEST_F(ChangeListTest, ShowsTheFolderOfTheSetting) {
  UseSettings({"a", "b", "*****", Here() + "\\own\\", "more"});
  Begin();
  EXPECT_EQ(Form().Caption(), "Change List File");
  EXPECT_EQ(Form().Text1.Text(), Here() + "\\own\\");
  EXPECT_EQ(Form().Label1.Caption(),
            "Type the directory path for the file you want to use. For example: C:\\Wordlantern\\");
  EXPECT_EQ(Form().Label2.Caption(),
            "WARNING: Entering a directory that does not exist or does not contain a list file "
            "(\"TheLists.dat\") will result in program errors.");
}

TEST_F(ChangeListTest, AMissingFolderIsInvalid) {
  Begin();
  for (const std::string& text : {Here() + "\\nowhere\\", std::string("a:*?"), std::string()}) {
    Take(text);
    EXPECT_EQ(TakeLog(), Log{"|The directory you have chosen is invalid."}) << text;
    EXPECT_TRUE(Active(Screen::ChangeList));
  }
  EXPECT_EQ(Settings(), AsFile({"a", "b", "*****", "listpath"}));
}

TEST_F(ChangeListTest, AFolderWithoutAListFileIsRefused) {
  Begin();
  Take(Here() + "\\bare\\");
  EXPECT_EQ(TakeLog(), (Log{"beep",
                            "Nope...|A valid List File was not found at this location. Please "
                            "check the path carefully and try again."}));
  EXPECT_TRUE(Active(Screen::ChangeList));
  EXPECT_EQ(Settings(), AsFile({"a", "b", "*****", "listpath"}));
}

TEST_F(ChangeListTest, NoToTheQuestionStays) {
  Begin();
  platform.answers = {BoxAnswer::No};
  Take(Here() + "\\own\\");
  EXPECT_EQ(TakeLog(), (Log{"beep",
                            "Success!|A list file was found here. Do you want to make it the "
                            "default Vocabulary List file?"}));
  EXPECT_TRUE(Active(Screen::ChangeList));
  EXPECT_EQ(Settings(), AsFile({"a", "b", "*****", "listpath"}));
}

TEST_F(ChangeListTest, AFoundListFileIsStoredAndStillCalledInvalid) {
  UseSettings({"a", "b", "word.exe", "listpath", "more"});
  Begin();
  Take(Here() + "\\own\\");
  EXPECT_EQ(TakeLog(), (Log{"beep",
                            "Success!|A list file was found here. Do you want to make it the "
                            "default Vocabulary List file?",
                            "|The directory you have chosen is invalid."}));
  EXPECT_TRUE(Active(Screen::ChangeList));
  EXPECT_EQ(Settings(), AsFile({"a", "b", "word.exe", Here() + "\\own\\", "more"}));
  // The menu takes it up at its next load, not before.
  EXPECT_EQ(program.shared.ListFilePath, Here() + "\\TheLists.dat");
  Do([&] { program.forms().Show(Screen::Title); });
  EXPECT_EQ(program.shared.ListFilePath, Here() + "\\own\\TheLists.dat");
}

TEST_F(ChangeListTest, WithoutItsSeparatorTheFolderIsStoredAsTyped) {
  Begin();
  Take(Here() + "/own");
  EXPECT_EQ(Settings(), AsFile({"a", "b", "*****", Here() + "/own"}));
}

TEST_F(ChangeListTest, CancelEndsTheProgram) {
  Begin();
  Click(Form().Command2);
  ExpectFatal("424 Object required");
  EXPECT_EQ(Settings(), AsFile({"a", "b", "*****", "listpath"}));
}

TEST_F(ChangeListTest, EscapeDoesNotEndTheProgram) {
  Begin();
  Press(Form().Text1, Key::Escape);
  EXPECT_TRUE(Active(Screen::ChangeList));
}

TEST_F(ChangeListTest, ClosingTheFrameEndsTheProgramWithoutAnError) {
  Begin();
  Do([&] { program.forms().Close(Form()); });
  EXPECT_TRUE(program.Ended());
  EXPECT_EQ(program.Status(), 0);
}

TEST_F(ChangeListTest, SettingsOfThreeLinesAreNotLengthened) {
  UseSettings({"a", "b", "*****"});
  Start();
  Do([&] { program.forms().Show(Screen::ChangeList); });
  EXPECT_EQ(Form().Text1.Text(), "");
  Take(Here() + "\\own\\");
  EXPECT_EQ(TakeLog().back(), "|The directory you have chosen is invalid.");
  EXPECT_EQ(Settings(), AsFile({"a", "b", "*****"}));
}

TEST_F(ChangeListTest, SettingsThatMayBeReadOnlyAreToldAsAnInvalidFolderToo) {
  Begin();
  Type(Form().Text1, code_page::ToUnicode(Here() + "\\own\\"));
  WithReadOnly("brindlepage.dat", [this] { Click(Form().Command1); });
  EXPECT_EQ(TakeLog().back(), "|The directory you have chosen is invalid.");
  EXPECT_FALSE(program.Ended());
  EXPECT_EQ(Settings(), AsFile({"a", "b", "*****", "listpath"}));
}

TEST_F(ChangeListTest, AFullDiskIsToldAsAnInvalidFolderToo) {
  Begin();
  {
    const FullDisk full(4);
    Take(Here() + "\\own\\");
  }
  EXPECT_EQ(TakeLog().back(), "|The directory you have chosen is invalid.");
  EXPECT_FALSE(program.Ended());
  EXPECT_EQ(Settings(), "a\r\nb");
}

// --- The word processor.

class QuickWordOptionTest : public ProgramOptionsTest {
 protected:
  QuickWordOption& Form() { return On<QuickWordOption>(Screen::QuickWordOption); }
  void Begin() {
    Open("Opts");
    Click(Screen::ProgramOptions, "Command5");
  }
  void Choose(std::optional<std::string> file) {
    platform.on_open_dialog = [file] { return file; };
  }
};

const char kEnter[] = "Find the program|Enter the path of your word processor program.";
const char kDialog[] = "Find Word processor|Programs (*.exe)|*.exe|c:\\";
const char kRestart[] = "Restart|You must now restart Brindlepage for the change to take effect.";

TEST_F(QuickWordOptionTest, WithNoWordProcessorTheBoxIsUnchecked) {
  Begin();
  EXPECT_EQ(Form().Caption(), "Quick Word Option");
  EXPECT_EQ(Form().Label1.Caption(), "Enable Quick Word Option");
  EXPECT_FALSE(Form().Checks1.Value);
  EXPECT_EQ(TakeLog(), Log{});
}

TEST_F(QuickWordOptionTest, WithAWordProcessorSetDoneKeepsItAndEndsTheProgram) {
  UseSettings({"a", "b", "c:\\word.exe", "listpath", "more"});
  Begin();
  EXPECT_TRUE(Form().Checks1.Value);
  Click(Form().Command1);
  EXPECT_EQ(TakeLog(), Log{kRestart});
  EXPECT_TRUE(program.Ended());
  EXPECT_EQ(program.Status(), 0);
  EXPECT_EQ(Settings(), AsFile({"a", "b", "c:\\word.exe", "listpath", "more"}));
}

TEST_F(QuickWordOptionTest, UncheckingAndDoneForgetsTheWordProcessor) {
  UseSettings({"a", "b", "c:\\word.exe", "listpath"});
  Begin();
  Click(Form().Label1);
  EXPECT_FALSE(Form().Checks1.Value);
  Click(Form().Command1);
  EXPECT_EQ(TakeLog(), Log{kRestart});
  EXPECT_EQ(Settings(), AsFile({"a", "b", "*****", "listpath"}));
}

TEST_F(QuickWordOptionTest, CheckingAsksForTheProgramAndCancelUnchecks) {
  Begin();
  Click(Form().Checks1);
  EXPECT_EQ(TakeLog(), (Log{kEnter, kDialog}));
  EXPECT_FALSE(Form().Checks1.Value);
}

TEST_F(QuickWordOptionTest, AFaultOfTheDialogUnchecks) {
  Begin();
  platform.on_open_dialog = []() -> std::optional<std::string> {
    throw RunTimeError(Fault::PathNotFound);
  };
  Click(Form().Checks1);
  EXPECT_FALSE(Form().Checks1.Value);
  EXPECT_FALSE(program.Ended());
}

TEST_F(QuickWordOptionTest, AFoundProgramIsStoredAsTheDialogGivesIt) {
  Begin();
  Choose("C:\\Program Files\\Write \xE9.exe");
  Click(Form().Label1);
  EXPECT_TRUE(Form().Checks1.Value);
  TakeLog();
  Click(Form().Command1);
  EXPECT_EQ(TakeLog(),
            (Log{"Enable QuickWord option?|Do you want to set C:\\Program Files\\Write \xE9.exe as "
                 "your default word processor for Brindlepage?",
                 "Success!|Change Successful. You must now restart Brindlepage for the change to "
                 "take effect."}));
  EXPECT_TRUE(program.Ended());
  EXPECT_EQ(Settings(), AsFile({"a", "b", "C:\\Program Files\\Write \xE9.exe", "listpath"}));
}

TEST_F(QuickWordOptionTest, NoToTheQuestionBeepsAndStays) {
  Begin();
  Choose("c:\\word.exe");
  Click(Form().Checks1);
  TakeLog();
  platform.answers = {BoxAnswer::No};
  Click(Form().Command1);
  EXPECT_EQ(TakeLog(), (Log{"Enable QuickWord option?|Do you want to set c:\\word.exe as your "
                            "default word processor for Brindlepage?",
                            "beep"}));
  EXPECT_TRUE(Active(Screen::QuickWordOption));
  EXPECT_EQ(Settings(), AsFile({"a", "b", "*****", "listpath"}));
}

TEST_F(QuickWordOptionTest, ACancelledDialogKeepsTheProgramFoundBefore) {
  Begin();
  Choose("c:\\word.exe");
  Click(Form().Checks1);
  Click(Form().Checks1);
  EXPECT_FALSE(Form().Checks1.Value);
  Choose(std::nullopt);
  Click(Form().Checks1);
  EXPECT_TRUE(Form().Checks1.Value);
}

TEST_F(QuickWordOptionTest, FoundAndUncheckedAgainNoneIsStored) {
  Begin();
  Choose("c:\\word.exe");
  Click(Form().Checks1);
  Click(Form().Checks1);
  TakeLog();
  Click(Form().Command1);
  EXPECT_EQ(TakeLog(), Log{kRestart});
  EXPECT_EQ(Settings(), AsFile({"a", "b", "*****", "listpath"}));
}

TEST_F(QuickWordOptionTest, SettingsThatMayBeReadOnlyEndTheProgram) {
  Begin();
  WithReadOnly("brindlepage.dat", [this] { Click(Form().Command1); });
  ExpectFatal("75 Path/File access error");
  EXPECT_EQ(Settings(), AsFile({"a", "b", "*****", "listpath"}));
}

TEST_F(QuickWordOptionTest, AFullDiskEndsTheProgram) {
  Begin();
  {
    const FullDisk full(3);
    Click(Form().Command1);
  }
  ExpectFatal("61 Disk full");
  EXPECT_EQ(Settings(), "a\r\n");
}

TEST_F(QuickWordOptionTest, ClosingItsFrameLeadsBackToTheOptions) {
  Begin();
  Do([&] { program.forms().Close(Form()); });
  EXPECT_TRUE(Active(Screen::ProgramOptions));
  EXPECT_FALSE(program.Ended());
}

}  // namespace
}  // namespace brindlepage
