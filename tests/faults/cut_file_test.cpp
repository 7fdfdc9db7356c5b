// Files that end after any of their bytes: read as far as they go, or refused as told. The ranges
// of bytes below are counted by hand; a line that is cut needs no end.

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

#include "tests/bitmaps.h"
#include "tests/faults/played_program.h"

namespace brindlepage {
namespace {

const std::string kPastEnd = "error 62 \"Input past end of file\"\nend\n";
const std::string kNoPicture = "error 481 \"Invalid picture\"\nend\n";

// The bytes as a program that reads by lines writes them again.
std::string AsLines(const std::string& bytes) {
  std::string lines;
  std::string line;
  for (const char byte : bytes) {
    if (byte == '\n') lines += std::exchange(line, "") + "\r\n";
    if (byte != '\n' && byte != '\r') line += byte;
  }
  return line.empty() ? lines : lines + line + "\r\n";
}

// A file of the program's folder, and a teacher who meets it cut.
class CutFile : public testing::Test {
 protected:
  // What is told and left when the first so many bytes are there.
  using Expect = std::function<void(std::size_t size)>;

  CutFile(std::string file, std::string bytes) : file_(std::move(file)), bytes_(std::move(bytes)) {
    files_[file_] = bytes_;
  }

  // Walks to the brink with the whole file, cuts it to each size and does the deed.
  void CutAtEveryByte(const Lines& way, const Lines& deed, const Expect& expect) {
    for (std::size_t size = 0; size <= bytes_.size(); ++size) {
      SCOPED_TRACE(file_ + " of " + std::to_string(size) + " bytes");
      program_ = std::make_unique<PlayedProgram>(files_);
      program_->Play(way);
      program_->folder().Write(file_, Cut(size));
      left_ = program_->Files();
      told_ = program_->Play(deed);
      expect(size);
      EXPECT_EQ(Difference(left_, program_->Files()), "");
      if (HasFailure()) return;
      program_.reset();
    }
  }
  void ExpectTold(const std::string& told) const { EXPECT_EQ(told_, told); }
  std::string Cut(std::size_t size) const { return bytes_.substr(0, size); }
  // From now on the file is to hold that.
  void ExpectLeft(const std::string& bytes) { left_[file_] = bytes; }
  std::string Get(const std::string& what) { return program_->Play({"get " + what}); }

  std::string file_;
  std::string bytes_;
  Snapshot files_ = SmallFolder();
  std::unique_ptr<PlayedProgram> program_;
  std::string told_;  // what the deed printed
  Snapshot left_;     // what the folder is to hold behind it
};

// --- Settings

class CutSettings : public CutFile {
 protected:
  // Lines begin at 0, 3, 6 and 13.
  CutSettings() : CutFile("brindlepage.dat", "a\r\nb\r\n+++++\r\nlistpath\r\n") {}
  const std::string kUpToLine4 = "a\r\nb\r\n*****\r\n";
};

TEST_F(CutSettings, AtTheStart) {
  CutAtEveryByte({}, {"start"}, [this](std::size_t size) {
    if (size <= 6) return ExpectTold(kPastEnd);
    EXPECT_EQ(told_, "");
    const bool word_processor = size < 11;  // what is left of the pluses is taken for one
    EXPECT_EQ(Get("QuickWordEnabled"), word_processor ? "true\n" : "false\n");
    EXPECT_EQ(Get("QuickWordPath"),
              word_processor ? "\"" + std::string(size - 6, '+') + "\"\n" : "\"\"\n");
    if (size < 21) {
      const std::string folder = size > 13 ? Cut(size).substr(13) : "";
      EXPECT_EQ(Get("ListFilePath"), "\"" + folder + "TheLists.dat\"\n");
    } else {
      EXPECT_EQ(Get("ListFilePath"), "\"FOLDER\\\\TheLists.dat\"\n");
    }
    if (!word_processor) {
      ExpectLeft(size <= 13 ? kUpToLine4 : kUpToLine4 + AsLines(Cut(size).substr(13)));
    }
  });
}

TEST_F(CutSettings, WhereAnotherListFileIsLinkedTo) {
  CutAtEveryByte({"start", "click Title.Toolbar1 \"Opts\""},
                 {"click ProgramOptions.Command3", "type ChangeList.Text1 \"school\\\\\"",
                  "click ChangeList.Command1"},
                 [this](std::size_t size) {
                   EXPECT_EQ(told_,
                             "beep\nmessage \"Success!\" \"A list file was found here. Do you want "
                             "to make it the default Vocabulary List file?\" yes-no -> yes\n"
                             "message \"\" \"The directory you have chosen is invalid.\" ok -> "
                             "ok\n");
                   // There is no line 4 to change.
                   if (size <= 13) return;
                   ExpectLeft("a\r\nb\r\n+++++\r\nschool\\\r\n");
                 });
}

TEST_F(CutSettings, WhereTheWordProcessorIsSet) {
  CutAtEveryByte(
      {"start", "click Title.Toolbar1 \"Opts\""},
      {"click ProgramOptions.Command5", "click QuickWordOption.Command1"},
      [this](std::size_t size) {
        // There is no line 3 to change.
        if (size <= 6) {
          return ExpectTold("error 5 \"Invalid procedure call or argument\"\nend\n");
        }
        EXPECT_EQ(told_,
                  "message \"Restart\" \"You must now restart Brindlepage for the change to take "
                  "effect.\" ok -> ok\nend\n");
        ExpectLeft(AsLines(Cut(size)));
      });
}

// --- The list file

class CutLists : public CutFile {
 protected:
  // Lines begin at 0, 6, 12, 17, 29, 34 and 40.
  CutLists()
      : CutFile("TheLists.dat", "Fire\r\nlava\r\nhot\r\n<New List>\r\nSea\r\nwave\r\nroll\r\n") {}

  // The name that the second list has left of its own.
  std::string SecondName(std::size_t size) const {
    return bytes_.substr(29, std::min<std::size_t>(size, 32) - 29);
  }
  std::string FirstName(std::size_t size) const { return Cut(std::min<std::size_t>(size, 4)); }
  static bool EndsOnSeparator(std::size_t size) { return size >= 27 && size <= 29; }

  // As the names of the lists are read.
  void ExpectNames(std::size_t size, const std::string& list) {
    if (size == 0 || EndsOnSeparator(size)) return ExpectTold(kPastEnd);
    EXPECT_EQ(told_, "");
    std::string rows = "row 0 \"" + FirstName(size) + "\"\n";
    if (size > 29) rows += "row 1 \"" + SecondName(size) + "\"\n";
    EXPECT_EQ(program_->Play({"rows " + list}), rows);
  }
  // How many words a reader finds who takes a pair behind the other; -1 if it meets the end.
  static int WordsOfFirst(std::size_t size) {
    if (size < 4) return -1;    // no such name
    if (size <= 6) return 0;    // the name alone
    if (size <= 12) return -1;  // a word without its meaning
    if (size <= 17) return 1;
    if (size <= 29) return -1;  // the separator, cut or not, is a word without its meaning
    return 1;
  }
  static int WordsOfSecond(std::size_t size) {
    if (size < 32) return -1;
    if (size <= 34) return 0;
    if (size <= 40) return -1;
    return 1;
  }
};

TEST_F(CutLists, WhereAListIsChosen) {
  CutAtEveryByte({"start"}, {"click Title.Command1(4)"},
                 [this](std::size_t size) { ExpectNames(size, "ChooseList.TheLists"); });
}

TEST_F(CutLists, WhereAListIsChosenForAnEdit) {
  CutAtEveryByte({"start"}, {"click Title.Toolbar1 \"Edit\""},
                 [this](std::size_t size) { ExpectNames(size, "EditChooseList.TheLists"); });
}

TEST_F(CutLists, WhereTheWordsAreCounted) {
  for (const bool first : {true, false}) {
    const std::string name = first ? "\"Fire\"" : "\"Sea\"";
    CutAtEveryByte({"start", "click Title.Command1(4)", "select ChooseList.TheLists " + name},
                   {"click ChooseList.Command1"}, [&](std::size_t size) {
                     const int count = first ? WordsOfFirst(size) : WordsOfSecond(size);
                     if (count < 0) return ExpectTold(kPastEnd);
                     EXPECT_EQ(told_, "");
                     EXPECT_EQ(Get("ListWordCount"), std::to_string(count) + "\n");
                   });
  }
}

TEST_F(CutLists, WhereTheWordsAreChosen) {
  CutAtEveryByte({"start", "click Title.Command1(4)", "select ChooseList.TheLists \"Fire\"",
                  "click ChooseList.Command1"},
                 {"click QuizOptions5.Command1"}, [this](std::size_t size) {
                   // One pair was counted, and no more is read.
                   if (size <= 12) return ExpectTold(kPastEnd);
                   EXPECT_EQ(told_, "");
                   EXPECT_EQ(Get("ListWords(1)"), "\"lava\"\n");
                   const std::string meaning =
                       bytes_.substr(12, std::min<std::size_t>(size, 15) - 12);
                   EXPECT_EQ(Get("ListMeanings(1)"), "\"" + meaning + "\"\n");
                 });
}

TEST_F(CutLists, WhereAListIsEdited) {
  CutAtEveryByte(
      {"start", "click Title.Toolbar1 \"Edit\"", "select EditChooseList.TheLists \"Fire\""},
      {"click EditChooseList.Command1"}, [this](std::size_t size) {
        const int count = WordsOfFirst(size);
        if (count < 0) return ExpectTold(kPastEnd);
        EXPECT_EQ(told_, "");
        EXPECT_EQ(program_->Play({"rows EditList.WordList"}), count == 1 ? "row 0 \"lava\"\n" : "");
      });
}

TEST_F(CutLists, WhereAnEditedListIsSaved) {
  CutAtEveryByte(
      {"start", "click Title.Toolbar1 \"Edit\"", "select EditChooseList.TheLists \"Fire\"",
       "click EditChooseList.Command1"},
      {"click EditList.Toolbar1 \"Save and Quit\""}, [this](std::size_t size) {
        const std::string asked =
            "message \"Save and quit?\" \"Save changes to list?\" yes-no-cancel -> yes\n";
        // The list is looked for past the end.
        if (size < 4) {
          return ExpectTold(asked + "error 6 \"Overflow\"\nend\n");
        }
        EXPECT_EQ(told_, asked);
        const std::string list = "Fire\r\nlava\r\nhot\r\n";
        ExpectLeft(size <= 29 ? list : AsLines(Cut(size).substr(29)) + "<New List>\r\n" + list);
      });
}

TEST_F(CutLists, WhereANewListIsNamed) {
  CutAtEveryByte({"start", "click Title.Toolbar1 \"Create\"", "type CreateList.NewName \"Sun\""},
                 {"click CreateList.Command2"}, [this](std::size_t size) {
                   EXPECT_EQ(told_, size == 0 ? kPastEnd : "");
                   if (size == 0) return;
                   EXPECT_EQ(program_->Play({"rows MakeNewList.TempList"}),
                             "row 0 \"<New List>\"\nrow 1 \"Sun\"\n");
                 });
}

TEST_F(CutLists, WhereANewListIsSaved) {
  CutAtEveryByte(
      {"start", "click Title.Toolbar1 \"Create\"", "type CreateList.NewName \"Sun\"",
       "click CreateList.Command2", "type MakeNewList.TheWord \"ray\"",
       "type MakeNewList.TheMeaning \"it shines\""},
      {"click MakeNewList.Toolbar1 \"Save and Quit\""}, [this](std::size_t size) {
        EXPECT_EQ(told_,
                  "beep\nmessage \"Confirm Save\" \"Are you sure you want to save this list?\" "
                  "yes-no -> yes\n");
        const std::string list = "Sun\r\nray\r\nit shines\r\n";
        ExpectLeft(size == 0 ? list : AsLines(Cut(size)) + "<New List>\r\n" + list);
      });
}

TEST_F(CutLists, WhereTheFirstListIsDeleted) {
  CutAtEveryByte({"start"}, {"click Title.Toolbar1 \"Delete\""}, [this](std::size_t size) {
    ExpectNames(size, "DeleteList.TheLists");
    if (told_ == kPastEnd) return;
    EXPECT_EQ(program_->Play({"select DeleteList.TheLists 0", "click DeleteList.Command1",
                              "click DeleteList.Yes"}),
              "beep\n");
    ExpectLeft(size <= 29 ? "No Lists\r\n" : AsLines(Cut(size).substr(17)));
  });
}

TEST_F(CutLists, WhereABackupIsMade) {
  CutAtEveryByte({"start", "click Title.Toolbar1 \"Opts\""}, {"click ProgramOptions.Command6"},
                 [this](std::size_t size) { left_["TheLists.bak"] = AsLines(Cut(size)); });
}

TEST_F(CutLists, InTheBackupThatIsRestored) {
  file_ = "TheLists.bak";
  files_[file_] = bytes_;
  CutAtEveryByte({"start", "click Title.Toolbar1 \"Opts\""}, {"click ProgramOptions.Command1"},
                 [this](std::size_t size) { left_["TheLists.dat"] = AsLines(Cut(size)); });
}

// --- Riddles

class CutRiddles : public CutFile {
 protected:
  // Lines begin at 0, 6, 10 and 16.
  CutRiddles() : CutFile("Riddles.dat", "Who?\r\nMe\r\nWhy?\r\nSo\r\n") {}

  void ExpectRiddles(std::size_t size, const std::string& form) {
    const bool without_answer = (size > 0 && size <= 6) || (size > 10 && size <= 16);
    EXPECT_EQ(told_, without_answer ? kPastEnd : "");
    if (without_answer) return;
    const std::string answer =
        size == 0 ? "" : bytes_.substr(6, std::min<std::size_t>(size, 8) - 6);
    EXPECT_EQ(Get(form + ".RiddleBox.Text"), size == 0 ? "\"\"\n" : "\"Who?\"\n");
    EXPECT_EQ(Get(form + ".Punchbox.Text"), "\"" + answer + "\"\n");
    EXPECT_EQ(Get(form + ".RiddleList.ListCount"), size == 0 ? "0\n" : size <= 10 ? "1\n" : "2\n");
  }
};

TEST_F(CutRiddles, WhereOneIsChosen) {
  CutAtEveryByte({"start", "click Title.Command1(6)", "select ChooseList.TheLists \"Fire\""},
                 {"click ChooseList.Command1"},
                 [this](std::size_t size) { ExpectRiddles(size, "ChooseRiddle"); });
}

TEST_F(CutRiddles, WhereTheyAreCollected) {
  CutAtEveryByte({"start", "click Title.Command3"}, {"click JustForFun.Command2"},
                 [this](std::size_t size) { ExpectRiddles(size, "RiddleOption1"); });
}

// --- Worksheets

class CutWorksheet : public CutFile {
 protected:
  CutWorksheet() : CutFile("worksheets/Mars.rtf", SmallFolder().at("worksheets/Mars.rtf")) {}
};

TEST_F(CutWorksheet, IsRefusedWhole) {
  const std::size_t whole = bytes_.rfind('}') + 1;
  CutAtEveryByte({"start", "click Title.Command2", "select OpenWorksheet.File1 0"},
                 {"click OpenWorksheet.Command1"}, [this, whole](std::size_t size) {
                   if (size < whole) {
                     EXPECT_EQ(told_, "error 321 \"Invalid file format\"\nend\n");
                   } else {
                     EXPECT_EQ(told_, "");
                     EXPECT_EQ(program_->Play({"text QuizForm.QuizBox"}), "\"Mars is red.\"\n");
                   }
                 });
}

// --- Pictures

class CutPicture : public CutFile {
 protected:
  CutPicture() : CutFile("titleback.jpg", "\xFF\xD8\xFF\xE0...") {}

  // The first bytes tell what it is; the rest is for the desktop to decode.
  void ExpectKnown(std::size_t size, std::size_t known) {
    EXPECT_EQ(told_, size < known ? kNoPicture : "");
  }
};

TEST_F(CutPicture, OfTheMenu) {
  CutAtEveryByte({}, {"start"}, [this](std::size_t size) { ExpectKnown(size, 3); });
}

TEST_F(CutPicture, BehindAScreen) {
  file_ = "brindlepagebackground.jpg";
  CutAtEveryByte({"start"}, {"click Title.Command1(4)"},
                 [this](std::size_t size) { ExpectKnown(size, 3); });
}

class CutBitmap : public CutFile {
 protected:
  // 54 bytes in front of its dots.
  CutBitmap() : CutFile("apple.bmp", BitmapFile(2, 2)) {}
  const Lines kToBrowser = {"start",
                            "click Title.Command1(4)",
                            "select ChooseList.TheLists \"Fire\"",
                            "click ChooseList.Command1",
                            "type QuizOptions5.Text1 \"Venus\"",
                            "click QuizOptions5.Command1",
                            "mark PickWords.TheWords 0 1",
                            "seed 1",
                            "click PickWords.Command2",
                            "click StudyGuideForm.Toolbar1 \"Clipart\""};
};

TEST_F(CutBitmap, IsLookedAt) {
  CutAtEveryByte(kToBrowser, {"select AddPic.File1 \"apple.bmp\""},
                 [this](std::size_t size) { EXPECT_EQ(told_, size < 2 ? kNoPicture : ""); });
}

TEST_F(CutBitmap, IsAddedAndSavedOrRefused) {
  const std::string runs_before = [this] {
    PlayedProgram program(files_);
    program.Play(kToBrowser);
    return program.Play({"runs StudyGuideForm.QuizBox"});
  }();
  CutAtEveryByte(
      kToBrowser + Lines{"select AddPic.File1 \"apple.bmp\""}, {"click AddPic.Command1"},
      [&](std::size_t size) {
        const bool has_dots = size > 54;
        EXPECT_EQ(told_.starts_with("message \"Error:\" "), !has_dots) << told_;
        const std::string runs = program_->Play({"runs StudyGuideForm.QuizBox"});
        if (!has_dots) {
          EXPECT_EQ(runs, runs_before);
          return;
        }
        EXPECT_NE(runs.find("\npicture bmp 30 30\n"), std::string::npos) << runs;

        // What is saved with it is opened again.
        program_->Play({"click StudyGuideForm.Toolbar1 \"Save\"", "click StudyGuideForm.Back",
                        "click Title.Command2", "select OpenWorksheet.File1 \"Venus.rtf\"",
                        "click OpenWorksheet.Command1"});
        EXPECT_EQ(program_->Play({"runs QuizForm.QuizBox"}), runs);
        left_ = program_->Files();
        EXPECT_EQ(left_.at(file_), Cut(size));
      });
}

}  // namespace
}  // namespace brindlepage
