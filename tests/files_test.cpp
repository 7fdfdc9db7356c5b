#include "toolkit/files.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <fstream>
#include <string>
#include <thread>
#include <vector>

#include "tests/expect_fault.h"
#include "tests/ordinary_teacher.h"
#include "tests/temp_folder.h"
#include "toolkit/code_page.h"

namespace brindlepage::files {
namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;

Names LinesOf(const TempFolder& folder, std::string_view bytes) {
  folder.Write("lines.dat", bytes);
  return ReadAllLines("lines.dat");
}

TEST(FileName, BackslashAndSlashBothSeparate) {
  EXPECT_EQ(NativePath("worksheets\\a\\b.rtf"), fs::path("worksheets/a/b.rtf"));
  EXPECT_EQ(NativePath("worksheets/b.rtf"), fs::path("worksheets/b.rtf"));
  EXPECT_EQ(NativePath("\\lists\\b.dat"), fs::path("/lists/b.dat"));
}

TEST(FileName, KeepsItsAccents) {
  EXPECT_EQ(NativePath("caf\xE9 \x80.rtf"), fs::path(u8"café €.rtf"));
}

TEST(FileName, EmptyOrBlankIsRefused) {
  EXPECT_FAULT(52, NativePath(""));
  EXPECT_FAULT(52, NativePath(" "));
  EXPECT_FAULT(52, NativePath("   "));
  EXPECT_FAULT(52, ReadAllLines(""));
  EXPECT_FAULT(52, WriteAllLines(" ", {}));
}

TEST(FileName, CharactersThatTheDesktopRefusesAreRefused) {
  TempFolder folder;
  for (char refused : std::string_view("*?\"<>|:\t\n\r\x01\x1F\0", 13)) {
    std::string name = std::string("ab") + refused + "c.rtf";
    EXPECT_FAULT(52, NativePath(name));
    EXPECT_FAULT(52, WriteBytes("worksheets\\" + name, "x"));
    EXPECT_FAULT(52, ReadBytes(name));
    EXPECT_FAULT(52, MakeFolder(name));
    EXPECT_FAULT(52, FolderExists(name));
    EXPECT_FAULT(52, NativePath(WorkingDirectory() + "\\" + name));
  }
  EXPECT_TRUE(fs::is_empty(folder.Path()));
}

TEST(FileName, ColonIsAllowedBehindADriveLetterAlone) {
  EXPECT_EQ(NativePath("C:\\lists\\a.dat"), fs::path("C:/lists/a.dat"));
  EXPECT_EQ(NativePath("z:a.dat"), fs::path("z:a.dat"));
  EXPECT_FAULT(52, NativePath("1:\\a.dat"));
  EXPECT_FAULT(52, NativePath("C::\\a.dat"));
  EXPECT_FAULT(52, NativePath("C:\\a:b.dat"));
  EXPECT_FAULT(52, NativePath("\\C:\\a.dat"));
}

TEST(FileName, CaseTellsNoFilesApart) {
  TempFolder folder;
  fs::create_directory(folder.Path() / u8"\u00C9t\u00E9");
  folder.Write(folder.Path() / u8"\u00C9t\u00E9" / "Riddles.dat", "x");
  EXPECT_EQ(ReadBytes("\xE9T\xC9\\RIDDLES.dat"), "x");
  WriteBytes("\xE9t\xE9\\riddles.DAT", "y");
  EXPECT_EQ(FilesIn("\xC9t\xE9", "*.*"), Names{"Riddles.dat"});
  EXPECT_EQ(ReadBytes(WorkingDirectory() + "\\\xE9t\xE9\\riddles.dat"), "y");
  EXPECT_TRUE(FolderExists("\xC9T\xC9"));
  EXPECT_FAULT(75, MakeFolder("\xC9T\xC9"));
  EXPECT_FAULT(53, ReadBytes("\xC9t\xE9\\riddle.dat"));
}

TEST(FileName, AFileOfTheVeryNameComesBeforeOneOfAnotherCase) {
  TempFolder folder;
  folder.Write("riddles.dat", "small");
  folder.Write("Riddles.dat", "large");
  EXPECT_EQ(ReadBytes("riddles.dat"), "small");
  EXPECT_EQ(ReadBytes("Riddles.dat"), "large");
  EXPECT_EQ(ReadBytes("RIDDLES.DAT"), "large");
}

TEST(FileName, ANewFileKeepsTheCaseThatItIsGiven) {
  TempFolder folder;
  WriteBytes("Volcanoes.rtf", "x");
  EXPECT_EQ(FilesIn(".", "*.rtf"), Names{"Volcanoes.rtf"});
}

TEST(FileName, TooLongIsRefused) {
  TempFolder folder;
  std::string name(300, 'a');
  EXPECT_FAULT(52, ReadBytes(name));
  EXPECT_FAULT(52, WriteBytes(name, "x"));
}

TEST(WorkingDirectory, IsTheMachinesOwnPath) {
  TempFolder folder;
  EXPECT_EQ(WorkingDirectory(), folder.Path().string());
}

TEST(WorkingDirectory, NamesBelowItAreFilesInIt) {
  TempFolder folder;
  WriteBytes(WorkingDirectory() + "\\TheLists.dat", "a");
  WriteBytes(WorkingDirectory() + "/brindlepage.dat", "b");
  EXPECT_EQ(folder.Read("TheLists.dat"), "a");
  EXPECT_EQ(folder.Read("brindlepage.dat"), "b");
  EXPECT_EQ(NativePath(WorkingDirectory()), folder.Path());
  EXPECT_TRUE(FolderExists(WorkingDirectory()));
}

TEST(WorkingDirectory, MayHoldAnyCharacter) {
  TempFolder folder;
  fs::path odd = folder.Path() / u8"what? 2:1 * \\ 日本 é";
  fs::create_directory(odd);
  fs::current_path(odd);
  std::string shown = WorkingDirectory();
  EXPECT_EQ(shown, folder.Path().string() + "/what? 2:1 * \\ ?? \xE9");
  WriteAllLines(shown + "\\list.dat", {"one"});
  EXPECT_EQ(folder.Read(odd / "list.dat"), "one\r\n");
  MakeFolder(shown + "\\worksheets");
  EXPECT_EQ(SubFolders(shown), Names{"worksheets"});
  EXPECT_EQ(FilesIn(shown, "*.dat"), Names{"list.dat"});
}

TEST(WorkingDirectory, AFolderThatOnlyBeginsLikeItIsAnother) {
  TempFolder folder;
  fs::create_directory(folder.Path() / "lists");
  fs::create_directory(folder.Path() / "lists2");
  folder.Write("lists2/a.dat", "two");
  fs::current_path(folder.Path() / "lists");
  EXPECT_EQ(ReadBytes(WorkingDirectory() + "2\\a.dat"), "two");
}

TEST(WorkingDirectory, RootHasNoTrailingSeparator) {
  TempFolder folder;
  fs::current_path("/");
  EXPECT_EQ(WorkingDirectory(), "");
  EXPECT_EQ(NativePath(WorkingDirectory() + "\\TheLists.dat"), fs::path("/TheLists.dat"));
  EXPECT_FAULT(52, NativePath(""));
}

TEST(WorkingDirectory, RemovedOneIsNotFound) {
  TempFolder folder;
  fs::create_directory("gone");
  fs::current_path("gone");
  fs::remove(folder.Path() / "gone");
  EXPECT_FAULT(76, WorkingDirectory());
  EXPECT_FAULT(76, ReadBytes("a.dat"));
}

TEST(ReadLines, EachKindOfLineEndEndsALine) {
  TempFolder folder;
  EXPECT_EQ(LinesOf(folder, "a\r\nb\r\n"), (Names{"a", "b"}));
  EXPECT_EQ(LinesOf(folder, "a\nb\n"), (Names{"a", "b"}));
  EXPECT_EQ(LinesOf(folder, "a\rb\r"), (Names{"a", "b"}));
  EXPECT_EQ(LinesOf(folder, "a\rb\nc\r\nd"), (Names{"a", "b", "c", "d"}));
}

TEST(ReadLines, LastLineNeedsNoEnd) {
  TempFolder folder;
  EXPECT_EQ(LinesOf(folder, "a\r\nb"), (Names{"a", "b"}));
  EXPECT_EQ(LinesOf(folder, "a\r\nb\r"), (Names{"a", "b"}));
  EXPECT_EQ(LinesOf(folder, "a"), Names{"a"});
}

TEST(ReadLines, EmptyLinesAreLines) {
  TempFolder folder;
  EXPECT_EQ(LinesOf(folder, ""), Names{});
  EXPECT_EQ(LinesOf(folder, "\r\n"), Names{""});
  EXPECT_EQ(LinesOf(folder, "\r\n\r\na"), (Names{"", "", "a"}));
  EXPECT_EQ(LinesOf(folder, "\n\r"), (Names{"", ""}));
  EXPECT_EQ(LinesOf(folder, "\r\r\n\n"), (Names{"", "", ""}));
}

TEST(ReadLines, AnyOtherByteIsPartOfTheLine) {
  TempFolder folder;
  std::string all;
  for (int code = 0; code < 256; ++code) {
    if (code != '\r' && code != '\n') all += static_cast<char>(code);
  }
  EXPECT_EQ(LinesOf(folder, all + "\r\n" + all), (Names{all, all}));
}

TEST(ReadLines, ReadingPastTheEndFails) {
  TempFolder folder;
  folder.Write("a.dat", "one\r\n");
  LineReader reader("a.dat");
  EXPECT_FALSE(reader.AtEnd());
  EXPECT_EQ(reader.ReadLine(), "one");
  EXPECT_TRUE(reader.AtEnd());
  EXPECT_FAULT(62, reader.ReadLine());
  EXPECT_FAULT(62, reader.ReadLine());

  folder.Write("empty.dat", "");
  LineReader nothing("empty.dat");
  EXPECT_TRUE(nothing.AtEnd());
  EXPECT_FAULT(62, nothing.ReadLine());
}

TEST(ReadLines, AFileOfLineEndsAloneIsReadInOnePass) {
  TempFolder folder;
  std::string returns(1000000, '\r');
  std::string feeds(1000000, '\n');
  EXPECT_EQ(LinesOf(folder, returns).size(), 1000000u);
  EXPECT_EQ(LinesOf(folder, feeds).size(), 1000000u);
}

TEST(WriteLines, EachLineEndsWithReturnAndFeed) {
  TempFolder folder;
  WriteAllLines("a.dat", {"one", "", "a, \"b\" ", "caf\xE9"});
  EXPECT_EQ(folder.Read("a.dat"), "one\r\n\r\na, \"b\" \r\ncaf\xE9\r\n");
}

TEST(WriteLines, EmptiesTheFileFirst) {
  TempFolder folder;
  folder.Write("a.dat", "a long old text");
  WriteAllLines("a.dat", {"new"});
  EXPECT_EQ(folder.Read("a.dat"), "new\r\n");
  WriteAllLines("a.dat", {});
  EXPECT_EQ(folder.Read("a.dat"), "");
}

TEST(Bytes, ComeBackAsTheyWere) {
  TempFolder folder;
  std::string all;
  for (int i = 0; i < 100000; ++i) all += static_cast<char>(i * 7);
  WriteBytes("a.bmp", all);
  EXPECT_EQ(folder.Read("a.bmp"), all);
  EXPECT_EQ(ReadBytes("a.bmp"), all);
  WriteBytes("a.bmp", "");
  EXPECT_EQ(ReadBytes("a.bmp"), "");
}

TEST(Bytes, FilesAroundTheFirstGuessOfTheirSize) {
  TempFolder folder;
  for (std::size_t size : {4094u, 4095u, 4096u, 4097u, 8191u, 8192u, 8193u}) {
    std::string bytes(size, 'x');
    folder.Write("a.bmp", bytes);
    EXPECT_EQ(ReadBytes("a.bmp"), bytes) << size;
  }
}

TEST(Bytes, WhatTellsNoSizeIsReadToItsEnd) {
  TempFolder folder;
  ASSERT_EQ(mkfifo("pipe.dat", 0600), 0);
  std::string sent(100001, 'x');
  std::thread sender([&sent] {
    std::ofstream pipe("pipe.dat", std::ios::binary);
    pipe << sent;
  });
  std::string received = ReadBytes("pipe.dat");
  sender.join();
  EXPECT_EQ(received, sent);
}

TEST(FileFault, MissingFile) {
  TempFolder folder;
  EXPECT_FAULT(53, ReadBytes("none.dat"));
  EXPECT_FAULT(53, ReadAllLines("none.dat"));
  EXPECT_FAULT(53, LineReader("none.dat"));
  EXPECT_FAULT(53, ReadBytes(WorkingDirectory() + "\\none.dat"));
}

TEST(FileFault, MissingFolderOnTheWay) {
  TempFolder folder;
  EXPECT_FAULT(76, ReadBytes("none\\a.dat"));
  EXPECT_FAULT(76, WriteBytes("none\\a.dat", "x"));
  EXPECT_FAULT(76, ReadBytes("C:\\none\\a.dat"));
}

TEST(FileFault, FileOnTheWay) {
  TempFolder folder;
  folder.Write("a.dat", "x");
  EXPECT_FAULT(76, ReadBytes("a.dat\\b.dat"));
  EXPECT_FAULT(76, WriteBytes("a.dat\\b.dat", "x"));
}

TEST(FileFault, FolderInPlaceOfAFile) {
  TempFolder folder;
  fs::create_directory("sub");
  EXPECT_FAULT(75, ReadBytes("sub"));
  EXPECT_FAULT(75, WriteBytes("sub", "x"));
  EXPECT_FAULT(75, ReadAllLines("sub\\"));
  EXPECT_FAULT(75, WriteAllLines("sub\\", {}));
  EXPECT_FAULT(75, ReadBytes(WorkingDirectory()));
}

TEST(FileFault, ClosedFile) {
  TempFolder folder;
  fs::permissions(folder.Path(), fs::perms{0755});
  folder.Write("a.dat", "x");
  fs::permissions("a.dat", fs::perms::none);
  OrdinaryTeacher teacher;
  EXPECT_FAULT(70, ReadBytes("a.dat"));
}

TEST(FileFault, FileThatMayBeReadOnly) {
  TempFolder folder;
  fs::permissions(folder.Path(), fs::perms{0755});
  folder.Write("a.dat", "x");
  fs::permissions("a.dat", fs::perms{0444});
  OrdinaryTeacher teacher;
  EXPECT_EQ(ReadBytes("a.dat"), "x");
  EXPECT_FAULT(75, WriteBytes("a.dat", "y"));
  EXPECT_EQ(folder.Read("a.dat"), "x");
}

TEST(FileFault, FolderThatMayNotBeChanged) {
  TempFolder folder;
  fs::permissions(folder.Path(), fs::perms{0555});
  {
    OrdinaryTeacher teacher;
    EXPECT_FAULT(70, WriteBytes("a.dat", "x"));
    EXPECT_FAULT(70, MakeFolder("worksheets"));
  }
  fs::permissions(folder.Path(), fs::perms{0755});
  EXPECT_TRUE(fs::is_empty(folder.Path()));
}

TEST(FileFault, FullDisk) {
  TempFolder folder;
  fs::create_symlink("/dev/full", "full.dat");
  // A short text fails only when the file is closed, a long one when it is written.
  EXPECT_FAULT(61, WriteAllLines("full.dat", {"x"}));
  EXPECT_FAULT(61, WriteBytes("full.dat", std::string(1000000, 'x')));
}

TEST(FileFault, BrokenDevice) {
  TempFolder folder;
  // The first page of a process is never there, and reading it fails.
  fs::create_symlink("/proc/self/mem", "broken.dat");
  EXPECT_FAULT(57, ReadBytes("broken.dat"));
}

TEST(FileFault, LinkThatLeadsToItself) {
  TempFolder folder;
  fs::create_symlink("loop.dat", "loop.dat");
  EXPECT_FAULT(57, ReadBytes("loop.dat"));
  EXPECT_FAULT(57, WriteBytes("loop.dat", "x"));
}

TEST(Folders, ExistOrDoNot) {
  TempFolder folder;
  fs::create_directory("sub");
  folder.Write("a.dat", "x");
  EXPECT_TRUE(FolderExists("sub"));
  EXPECT_TRUE(FolderExists("sub\\"));
  EXPECT_FALSE(FolderExists("a.dat"));
  EXPECT_FALSE(FolderExists("none"));
  EXPECT_FALSE(FolderExists("none\\sub"));
}

TEST(Folders, AreMade) {
  TempFolder folder;
  MakeFolder("worksheets");
  EXPECT_TRUE(fs::is_directory(folder.Path() / "worksheets"));
  MakeFolder(WorkingDirectory() + "\\worksheets\\old");
  EXPECT_TRUE(fs::is_directory(folder.Path() / "worksheets" / "old"));
}

TEST(Folders, AreNotMadeWhereSomethingStands) {
  TempFolder folder;
  MakeFolder("worksheets");
  EXPECT_FAULT(75, MakeFolder("worksheets"));
  folder.Write("a.dat", "x");
  EXPECT_FAULT(75, MakeFolder("a.dat"));
  EXPECT_EQ(folder.Read("a.dat"), "x");
  fs::create_symlink("nowhere", "link");
  EXPECT_FAULT(75, MakeFolder("link"));
}

TEST(Folders, AreNotMadeBelowAMissingOne) {
  TempFolder folder;
  EXPECT_FAULT(76, MakeFolder("none\\worksheets"));
  folder.Write("a.dat", "x");
  EXPECT_FAULT(76, MakeFolder("a.dat\\worksheets"));
}

TEST(FolderContents, SubFoldersInSortedOrder) {
  TempFolder folder;
  for (const char8_t* name : {u8"zoo", u8"Élan", u8"apple", u8"Banana", u8"eel"}) {
    fs::create_directory(name);
  }
  folder.Write("file.rtf", "x");
  EXPECT_EQ(SubFolders(WorkingDirectory()), (Names{"apple", "Banana", "eel", "\xC9lan", "zoo"}));
  EXPECT_EQ(SubFolders("zoo"), Names{});
}

TEST(FolderContents, FilesThatMatchAPattern) {
  TempFolder folder;
  for (const char* name : {"b.rtf", "A.RTF", "c.bmp", "d.rtf.txt", "rtf", "e.rtfx", "x.y.rtf"}) {
    folder.Write(name, "");
  }
  fs::create_directory("folder.rtf");
  EXPECT_EQ(FilesIn(".", "*.rtf"), (Names{"A.RTF", "b.rtf", "x.y.rtf"}));
  EXPECT_EQ(FilesIn(".", "*.rtf;*.BMP"), (Names{"A.RTF", "b.rtf", "c.bmp", "x.y.rtf"}));
  EXPECT_EQ(FilesIn(".", "*.rtf; *.bmp"), (Names{"A.RTF", "b.rtf", "c.bmp", "x.y.rtf"}));
  EXPECT_EQ(FilesIn(".", "?.rtf"), (Names{"A.RTF", "b.rtf"}));
  EXPECT_EQ(FilesIn(".", "*.rtf*t"), Names{"d.rtf.txt"});
  EXPECT_EQ(FilesIn(".", "rtf"), Names{"rtf"});
  EXPECT_EQ(FilesIn(".", "*.*").size(), 7u);
  EXPECT_EQ(FilesIn(".", "*").size(), 7u);
  EXPECT_EQ(FilesIn(".", ""), Names{});
  EXPECT_EQ(FilesIn(".", ";"), Names{});
  EXPECT_EQ(FilesIn(".", "*.gif"), Names{});
}

TEST(FolderContents, PatternOfManyStarsIsDoneAtOnce) {
  TempFolder folder;
  folder.Write(std::string(200, 'a'), "");
  std::string pattern;
  for (int i = 0; i < 60; ++i) pattern += "*a";
  EXPECT_EQ(FilesIn(".", pattern + "*b"), Names{});
  EXPECT_EQ(FilesIn(".", pattern).size(), 1u);
}

TEST(FolderContents, NamesThatTheProgramCouldNotOpenAreLeftOut) {
  TempFolder folder;
  for (const char8_t* name : {u8"日本.rtf", u8"10:30.rtf", u8"why?.rtf", u8"a\\b.rtf", u8".rtf",
                              u8".hidden.rtf", u8"plain.rtf", u8"café.rtf"}) {
    folder.Write(name, "x");
  }
  folder.Write("\xFF.rtf", "x");  // not UTF-8
  fs::create_directory(u8"日本");
  fs::create_directory(".config");
  fs::create_symlink("nowhere.rtf", "dangling.rtf");
  Names shown = FilesIn(".", "*.rtf");
  EXPECT_EQ(shown, (Names{"caf\xE9.rtf", "plain.rtf"}));
  for (const std::string& name : shown) EXPECT_EQ(ReadBytes(name), "x");
  EXPECT_EQ(SubFolders("."), Names{});
}

TEST(FolderContents, OfAMissingFolder) {
  TempFolder folder;
  folder.Write("a.dat", "x");
  EXPECT_FAULT(76, SubFolders("none"));
  EXPECT_FAULT(76, FilesIn("none", "*.*"));
  EXPECT_FAULT(76, SubFolders("a.dat"));
}

TEST(FolderContents, OfAClosedFolder) {
  TempFolder folder;
  fs::permissions(folder.Path(), fs::perms{0755});
  fs::create_directory("closed");
  fs::permissions("closed", fs::perms::none);
  {
    OrdinaryTeacher teacher;
    EXPECT_FAULT(70, SubFolders("closed"));
    EXPECT_FAULT(70, FilesIn("closed", "*.*"));
  }
  fs::permissions("closed", fs::perms{0755});
}

}  // namespace
}  // namespace brindlepage::files
