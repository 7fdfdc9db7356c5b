#include "worksheet/add_pic.h"

#include "tests/bitmaps.h"
#include "tests/teacher.h"

namespace brindlepage {
namespace {

using Log = std::vector<std::string>;

const char kCannotAdd[] =
    "Error:|This control uses Active X to add clipart to your worksheet. It appears that Active X "
    "is not properly installed on your computer. You have several other options. You can <copy and "
    "paste> clipart onto the worksheet, you can save the worksheet to open in another application, "
    "or you can use the <QuickWord> feature to open the worksheet directly in your word processor.";

class Sheet : public WorksheetForm {
 public:
  Sheet(Program& owner, const WorksheetDesign& design) : WorksheetForm(owner, design) {}

 private:
  void Load() override {
    QuizBox.Text("Mars");
    QuizBox.SelStart(2);
  }
};

class CrosswordScreen : public ProgramForm {
 public:
  CrosswordScreen(Program& owner, Screen screen, std::vector<Screen>& order)
      : ProgramForm(owner, screen, "crossword", ""), order_(order) {}
  Image CrossImage{*this, "CrossImage"};

 private:
  void Load() override { order_.push_back(id()); }
  std::vector<Screen>& order_;
};

// The picture browser in a folder of pictures, with worksheets and crossword screens of our own.
class AddPicTest : public Teacher {
 protected:
  AddPicTest() {
    std::filesystem::create_directory("art");
    folder.Write("art/apple.bmp", BitmapFile(40, 20));
    folder.Write("art/bell.GIF", "GIF89a...");
    folder.Write("art/cat.jpg", "\xFF\xD8\xFF...");
    folder.Write("art/notes.txt", "no picture");
    for (const char* other : {"d.wmf", "e.emf", "f.ico", "g.cur", "h.dib", "i.png"}) {
      folder.Write(std::string("art/") + other, "?");
    }
    shared.ProgramDir = files::WorkingDirectory();
  }

  std::unique_ptr<Form> MakeScreen(Screen id) {
    switch (id) {
      case Screen::AddPic:
        return MakeForm(id, desk);
      case Screen::CrossWordFill:
      case Screen::CrossWord:
      case Screen::NewCross1:
        return std::make_unique<CrosswordScreen>(desk, id, crossword_order);
      default:
        return std::make_unique<Sheet>(desk, WorksheetDesign{.id = id, .name = "Sheet"});
    }
  }
  void Open(bool from_worksheet, Screen sheet = Screen::Scramble, const char* tag = "scramble") {
    desk.Dispatch([&] { desk.forms().Show(from_worksheet ? sheet : Screen::CrossWord); });
    crossword_order.clear();
    shared.PictureReturn = from_worksheet;
    shared.ReturnTag = tag;
    desk.Dispatch([&] { desk.forms().Show(Screen::AddPic); });
    ASSERT_NE(Browser(), nullptr);
    EXPECT_EQ(desk.forms().Active(), Browser());
  }
  void OpenArt(bool from_worksheet) {
    Open(from_worksheet);
    Act([&] { Browser()->Dir1.Move(shared.ProgramDir + "\\art"); });
  }
  AddPic* Browser() { return desk.forms().Find<AddPic>(Screen::AddPic); }
  template <class Deed>
  void Act(Deed deed) {
    desk.Dispatch([&] { deed(); });
  }
  void Pick(const char* file) {
    for (int row = 0; row < Browser()->File1.ListCount(); ++row) {
      if (Browser()->File1.List(row) != file) continue;
      return Act([&] { Browser()->File1.ClickRow(row); });
    }
    FAIL() << file << " is not listed";
  }
  void Add() {
    Act([&] { Browser()->Command1.UserClick(); });
  }
  std::vector<std::string> Listed() {
    std::vector<std::string> files;
    for (int i = 0; i < Browser()->File1.ListCount(); ++i)
      files.push_back(Browser()->File1.List(i));
    return files;
  }
  RichTextBox& Document(Screen sheet = Screen::Scramble) {
    return desk.forms().Find<WorksheetForm>(sheet)->QuizBox;
  }
  PicturePtr Background(Screen screen) {
    auto* form = desk.forms().Find<CrosswordScreen>(screen);
    return form == nullptr ? nullptr : form->CrossImage.Picture();
  }

  std::vector<Screen> crossword_order;
  Program desk{platform, random, [this](Screen id) { return MakeScreen(id); }};
  SharedState& shared = desk.shared;
};

TEST_F(AddPicTest, FromAWorksheetTheListShowsBitmapsOnly) {
  OpenArt(true);
  EXPECT_EQ(Listed(), (std::vector<std::string>{"apple.bmp"}));
  EXPECT_EQ(Browser()->File1.Pattern(), "*.bmp");
}

TEST_F(AddPicTest, FromTheCrosswordItShowsAllKindsOfTheDesign) {
  OpenArt(false);
  EXPECT_EQ(Listed(), (std::vector<std::string>{"apple.bmp", "bell.GIF", "cat.jpg", "d.wmf",
                                                "e.emf", "f.ico", "g.cur", "h.dib"}));
}

TEST_F(AddPicTest, ItBeginsInTheProgramsFolderUnderItsCaptions) {
  Open(false);
  EXPECT_EQ(Browser()->Caption(), "Add A Picture");
  EXPECT_EQ(Browser()->Label3.Caption(), "Change Drive:");
  EXPECT_EQ(Browser()->Label1.Caption(), "File Location:");
  EXPECT_EQ(Browser()->Label2.Caption(), "Pictures Available:");
  EXPECT_EQ(Browser()->Dir1.Path(), shared.ProgramDir);
  EXPECT_EQ(Listed(), (std::vector<std::string>{"brindlepagebackground.jpg", "titleback.jpg"}));
}

TEST_F(AddPicTest, AClickOnAFileShowsThePicture) {
  OpenArt(false);
  EXPECT_FALSE(Browser()->Image1.Visible);
  Pick("bell.GIF");
  EXPECT_TRUE(Browser()->Image1.Visible);
  ASSERT_NE(Browser()->Image1.Picture(), nullptr);
  EXPECT_EQ(Browser()->Image1.Picture()->file_name, shared.ProgramDir + "\\art\\bell.GIF");
}

TEST_F(AddPicTest, AnotherFolderHidesThePreviewAndListsItsFiles) {
  OpenArt(false);
  Pick("cat.jpg");
  Act([&] { Browser()->Dir1.OpenRow(0); });
  EXPECT_FALSE(Browser()->Image1.Visible);
  EXPECT_EQ(Browser()->File1.Path(), shared.ProgramDir);
}

TEST_F(AddPicTest, AnotherDriveHidesThePreviewAndMovesTheFolders) {
  OpenArt(false);
  Pick("cat.jpg");
  Act([&] { Browser()->Drive1.Move(shared.ProgramDir); });
  EXPECT_FALSE(Browser()->Image1.Visible);
  EXPECT_EQ(Browser()->Dir1.Path(), shared.ProgramDir);
  EXPECT_EQ(Browser()->File1.Path(), shared.ProgramDir);
}

TEST_F(AddPicTest, ADriveThatIsNotThereEndsTheProgram) {
  Open(false);
  Act([&] { Browser()->Drive1.Move("/no such drive"); });
  EXPECT_EQ(platform.log, Log{"error 76 Path not found"});
}

TEST_F(AddPicTest, ABrokenPictureInThePreviewEndsTheProgram) {
  OpenArt(false);
  Pick("f.ico");
  EXPECT_EQ(platform.log, Log{"error 481 Invalid picture"});
  EXPECT_EQ(desk.Status(), 1);
}

TEST_F(AddPicTest, APictureThatTheDesktopCannotDecodeIsBrokenToo) {
  OpenArt(false);
  platform.can_show = [](const Picture& picture) { return picture.format != "jpg"; };
  Pick("bell.GIF");
  EXPECT_FALSE(desk.Ended());
  Pick("cat.jpg");
  EXPECT_EQ(platform.log, Log{"error 481 Invalid picture"});
}

TEST_F(AddPicTest, APictureThatHasVanishedEndsTheProgramInThePreview) {
  OpenArt(false);
  std::filesystem::remove("art/cat.jpg");
  Pick("cat.jpg");
  EXPECT_EQ(platform.log, Log{"error 53 File not found"});
}

TEST_F(AddPicTest, ABitmapGoesIntoTheWorksheetAtTheCaretWhichEndsBehindIt) {
  OpenArt(true);
  Pick("apple.bmp");
  Add();
  EXPECT_EQ(platform.log, Log{});
  EXPECT_EQ(Browser(), nullptr);
  EXPECT_EQ(desk.forms().Active()->id(), Screen::Scramble);
  EXPECT_EQ(Document().PlainText(), U"Ma\uFFFCrs");
  EXPECT_EQ(Document().SelStart(), 3);
  const auto picture = Document().FormatAt(2).picture;
  ASSERT_NE(picture, nullptr);
  EXPECT_EQ(picture->format, "bmp");
  EXPECT_EQ(picture->bytes, BitmapFile(40, 20));
  EXPECT_EQ(picture->width, 600);
  EXPECT_EQ(picture->height, 300);
}

TEST_F(AddPicTest, InKeyViewThePictureGoesIntoTheHiddenWorksheet) {
  Open(true);
  auto& sheet = *desk.forms().Find<Sheet>(Screen::Scramble);
  Act([&] { sheet.Toolbar1.ButtonClick(*sheet.Toolbar1.FindCaption("Key")); });
  Act([&] { Browser()->Dir1.Move(shared.ProgramDir + "\\art"); });
  Pick("apple.bmp");
  Add();
  EXPECT_FALSE(sheet.QuizBox.Visible);
  EXPECT_EQ(sheet.QuizBox.Length(), 5);
  EXPECT_EQ(sheet.AnswerBox.Length(), 12);
}

struct TaggedForm {
  const char* tag;
  Screen form;
};
class ATag : public AddPicTest, public ::testing::WithParamInterface<TaggedForm> {};

TEST_P(ATag, NamesTheWorksheetThatTakesThePicture) {
  Open(true, GetParam().form, GetParam().tag);
  Act([&] { Browser()->Dir1.Move(shared.ProgramDir + "\\art"); });
  Pick("apple.bmp");
  Add();
  EXPECT_EQ(platform.log, Log{});
  EXPECT_EQ(Document(GetParam().form).PlainText(), U"Ma\uFFFCrs");
}

INSTANTIATE_TEST_SUITE_P(OfEachForm, ATag,
                         ::testing::Values(TaggedForm{"WordSearchForm", Screen::WordSearchForm},
                                           TaggedForm{"scramble", Screen::Scramble},
                                           TaggedForm{"riddleform", Screen::RiddleForm},
                                           TaggedForm{"codeform", Screen::CodeForm},
                                           TaggedForm{"quizform", Screen::QuizForm},
                                           TaggedForm{"crossform", Screen::CrosswordWorksheet},
                                           TaggedForm{"studyform", Screen::StudyGuideForm}));

TEST_F(AddPicTest, WithNoFileChosenItTellsThatNothingCanBeAdded) {
  OpenArt(true);
  Add();
  EXPECT_EQ(platform.log, Log{kCannotAdd});
  EXPECT_EQ(Browser(), nullptr);
  EXPECT_EQ(Document().PlainText(), U"Mars");
  EXPECT_FALSE(desk.Ended());
}

TEST_F(AddPicTest, ABrokenBitmapIsNotAdded) {
  folder.Write("art/broken.bmp", BitmapFile(4, 4));
  OpenArt(true);
  Pick("broken.bmp");
  folder.Write("art/broken.bmp", "BM");
  Add();
  EXPECT_EQ(platform.log, Log{kCannotAdd});
  EXPECT_EQ(Document().PlainText(), U"Mars");
}

TEST_F(AddPicTest, FromTheCrosswordThePictureStandsBehindItsScreensInTheirOrder) {
  OpenArt(false);
  Pick("cat.jpg");
  Add();
  EXPECT_EQ(platform.log, Log{});
  EXPECT_EQ(crossword_order, (std::vector<Screen>{Screen::CrossWordFill, Screen::NewCross1}))
      << "the grid was loaded already";
  for (const Screen screen : {Screen::CrossWordFill, Screen::CrossWord, Screen::NewCross1}) {
    ASSERT_NE(Background(screen), nullptr);
    EXPECT_EQ(Background(screen)->file_name, shared.ProgramDir + "\\art\\cat.jpg");
  }
  EXPECT_EQ(Browser(), nullptr);
}

TEST_F(AddPicTest, FromTheCrosswordWithNoFileChosenNothingIsLoaded) {
  OpenArt(false);
  Add();
  EXPECT_EQ(platform.log, Log{kCannotAdd});
  EXPECT_TRUE(crossword_order.empty());
  EXPECT_EQ(Background(Screen::CrossWord), nullptr);
}

TEST_F(AddPicTest, CancelLeavesEverythingAsItIs) {
  OpenArt(true);
  Pick("apple.bmp");
  Act([&] { Browser()->Command2.UserClick(); });
  EXPECT_EQ(Browser(), nullptr);
  EXPECT_EQ(Document().PlainText(), U"Mars");
  EXPECT_EQ(platform.log, Log{});
}

}  // namespace
}  // namespace brindlepage
