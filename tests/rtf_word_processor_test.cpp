// Our files in a real word processor, and its files in our reader.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <regex>
#include <string>
#include <string_view>
#include <vector>

#include "quiz/quiz_sheet.h"
#include "temp_folder.h"
#include "tests/rtf_tools.h"
#include "worksheet/compose.h"

namespace brindlepage {
namespace {

using namespace std::string_literals;
using rtf_tools::RunsOf;
using rtf_tools::Sheet;
using rtf_tools::TextOf;

constexpr char kRule[] =
    "__________________________________________________________________________________________";
static_assert(sizeof kRule == 91);

// A red bitmap of 20 by 10 dots, two blues and a green, as a file.
std::string Bitmap() {
  const auto four = [](int number) {
    return std::string{static_cast<char>(number), static_cast<char>(number >> 8), 0, 0};
  };
  std::string dots;
  for (int i = 0; i < 20 * 10; ++i) dots += i % 20 < 10 ? "\x00\x00\xFF"s : "\xFF\x00\x00"s;
  return "BM" + four(54 + 600) + four(0) + four(54) + four(40) + four(20) + four(10) +
         "\x01\0\x18\0"s + four(0) + four(600) + four(0) + four(0) + four(0) + four(0) + dots;
}

// A grey dot.
const std::string kGif =
    "GIF89a\x01\0\x01\0\x80\0\0\x7F\x7F\x7F\xFF\xFF\xFF,\0\0\0\0\x01\0\x01\0\0\x02\x02\x44\x01\0;"s;

void ComposeSheet(RichText& sheet) {
  sheet.SelFontName(compose::kTimes);
  sheet.SelFontSize(10);
  sheet.SelAlignment(Alignment::Centre);
  compose::WriteNameDateLine(sheet, compose::NameLine::Wide);
  compose::WriteTitleBlock(sheet, "Volcanoes & ca\xF1ons {\\}");
  sheet.SelFontSize(12);
  sheet.SelBold(false);
  sheet.SelAlignment(Alignment::Left);
  sheet.SelColor(0x0000FF);
  sheet.SelItalic(true);
  sheet.SelUnicode(
      U"What is lava? \u201C\u03BB\u03AC\u03B2\u03B1\u201D \U0001D11E \u2014 \u20AC\n");
  sheet.SelItalic(false);
  sheet.SelColor(0);
  sheet.SelFontName("Courier New");
  sheet.SelFontSize(10);
  sheet.SelText(std::string(kRule) + "\n");
  sheet.SelFontName(compose::kCourrier);
  sheet.SelText(std::string(kRule) + "\n");
  sheet.SelFontSize(14.25);
  sheet.SelText("a\tb\tc\n");
  sheet.InsertPicture(
      std::make_shared<const RichPicture>(RichPicture{"bmp", Bitmap(), 3000, 1500}));
  sheet.SelText("beside\n");
  sheet.InsertPicture(std::make_shared<const RichPicture>(RichPicture{"gif", kGif, 600, 600}));
  sheet.SelText("\n\n");
  sheet.SelAlignment(Alignment::Right);
  sheet.SelText("right\n\n");
}

class WordProcessor : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_EQ(Shell("command -v soffice"), 0)
        << "LibreOffice Writer is needed: install libreoffice-writer-nogui";
    ASSERT_EQ(Shell("command -v pdftotext"), 0) << "install poppler-utils";
  }

  static int Shell(const std::string& command) {
    return std::system((command + " >shell.log 2>&1").c_str());
  }

  // Converts a file of the folder; the result is in the folder `to`.
  void Convert(const std::string& file, const std::string& to, const std::string& filter) {
    const std::string profile = "file://" + folder_.Path().string() + "/profile";
    const int status =
        Shell("timeout 300 soffice -env:UserInstallation='" + profile +
              "' --headless --convert-to '" + filter + "' --outdir " + to + " " + file);
    ASSERT_EQ(status, 0) << folder_.Read("shell.log");
  }

  // The same into PDF, with the fonts that the program's package installs beside it.
  void ConvertWithOurFonts(const std::string& file, const std::string& to) {
    folder_.Write("fonts.conf",
                  "<?xml version=\"1.0\"?><fontconfig><include>/etc/fonts/fonts.conf</include>"
                  "<include>" FONT_ALIAS "</include></fontconfig>");
    setenv("FONTCONFIG_FILE", (folder_.Path() / "fonts.conf").c_str(), 1);
    Convert(file, to, "pdf");
    unsetenv("FONTCONFIG_FILE");
  }

  std::string Output(const std::string& command) {
    EXPECT_EQ(std::system((command + " >output.txt 2>&1").c_str()), 0) << command;
    return folder_.Read("output.txt");
  }

  TempFolder folder_;
};

std::string WithoutPictures(std::string text) {
  const std::string picture = "\uFFFC";
  for (auto at = text.find(picture); at != text.npos; at = text.find(picture)) {
    text.erase(at, picture.size());
  }
  return text;
}

std::size_t Count(const std::string& text, const std::string& what) {
  const std::regex pattern(what);
  return static_cast<std::size_t>(
      std::distance(std::sregex_iterator(text.begin(), text.end(), pattern), {}));
}

TEST_F(WordProcessor, ReadsOurFileAsItIs) {
  Sheet sheet;
  ComposeSheet(sheet);
  folder_.Write("sheet.rtf", WriteRtf(sheet));

  ASSERT_NO_FATAL_FAILURE(Convert("sheet.rtf", "text", "txt:Text (encoded):UTF8,LF"));
  std::string text = folder_.Read("text/sheet.txt");
  if (text.starts_with("\uFEFF")) text.erase(0, 3);
  EXPECT_EQ(text, WithoutPictures(TextOf(sheet)) + "\n");

  ASSERT_NO_FATAL_FAILURE(Convert("sheet.rtf", "page", "pdf"));
  const std::string page = Output("pdftotext -layout -enc UTF-8 page/sheet.pdf -");
  const auto first = page.find(kRule);
  ASSERT_NE(first, page.npos) << page;
  EXPECT_NE(page.find(kRule, first + 1), page.npos) << page;
  EXPECT_EQ(Count(page, "_{50,}"), 2U) << page;

  const std::string paper = Output("pdfinfo page/sheet.pdf");
  EXPECT_NE(paper.find("612 x 792 pts (letter)"), paper.npos) << paper;
  EXPECT_EQ(Count(paper, "Pages: +1\n"), 1U) << paper;
  const std::string pictures = Output("pdfimages -list page/sheet.pdf");
  EXPECT_EQ(Count(pictures, "[0-9] image "), 2U) << pictures;
  const std::string fonts = Output("pdffonts page/sheet.pdf");
  EXPECT_GE(Count(fonts, "LiberationMono|CourierNew"), 1U) << fonts;
  EXPECT_GE(Count(fonts, "LiberationSerif|TimesNewRoman"), 1U) << fonts;
}

TEST_F(WordProcessor, ShowsTheMisspeltFontInAFixedPitch) {
  Sheet sheet;
  sheet.SelFontName(compose::kCourrier);
  sheet.SelFontSize(10);
  sheet.SelText(kRule);
  folder_.Write("rule.rtf", WriteRtf(sheet));
  ASSERT_NO_FATAL_FAILURE(ConvertWithOurFonts("rule.rtf", "page"));
  const std::string fonts = Output("pdffonts page/rule.pdf");
  EXPECT_EQ(Count(fonts, "LiberationMono|CourierNew"), 1U) << fonts;
  EXPECT_EQ(Count(fonts, "yes"), 3U) << fonts;  // one font in all: embedded, a part, in Unicode
}

// Sixty questions leave thousands of blanks behind the last.
TEST_F(WordProcessor, ShowsTheChoicesOfAQuizInColumnsAndGivesItsLastBlanksNoPage) {
  SharedState shared;
  shared.QuizKind = kChooseWord;
  shared.WorksheetTitle = "Quiz";
  shared.ListWordCount = 60;
  shared.MarkedCount = 60;
  for (int word = 1; word <= 60; ++word) {
    shared.ListWords(word) = "word" + std::to_string(word);
    shared.ListMeanings(word) = "meaning " + std::to_string(word);
    shared.WordMarks(word) = 1;
  }
  SeededRandom random(1);
  Sheet sheet;
  Sheet key;
  ComposeQuiz(shared, random, sheet, key);
  folder_.Write("quiz.rtf", WriteRtf(sheet));
  const int end = static_cast<int>(sheet.PlainText().find_last_not_of(U' ')) + 1;
  ASSERT_GT(sheet.Length() - end, 6000);
  sheet.Replace(end, sheet.Length() - end, U"", sheet.DesignFormat());
  folder_.Write("short.rtf", WriteRtf(sheet));

  ASSERT_NO_FATAL_FAILURE(ConvertWithOurFonts("quiz.rtf short.rtf", "page"));
  const std::string words = Output("pdftotext -bbox page/quiz.pdf -");
  // In points: half an inch, then six to the character.
  for (const char* choice : {"A", "C"}) {
    EXPECT_EQ(Count(words, "xMin=\"96\\.[01][^>]*>" + std::string(choice) + "\\)<"), 60U) << choice;
  }
  for (const char* choice : {"B", "D"}) {
    EXPECT_EQ(Count(words, "xMin=\"276\\.[01][^>]*>" + std::string(choice) + "\\)<"), 60U)
        << choice;
  }
  const auto pages = [&](const std::string& file) {
    return Count(Output("pdftotext page/" + file + " -"), "\f");
  };
  EXPECT_EQ(pages("quiz.pdf"), pages("short.pdf"));
}

TEST_F(WordProcessor, WritesOurFileBackTheSame) {
  Sheet sheet;
  ComposeSheet(sheet);
  folder_.Write("sheet.rtf", WriteRtf(sheet));
  ASSERT_NO_FATAL_FAILURE(Convert("sheet.rtf", "back", "rtf"));
  const Sheet back(folder_.Read("back/sheet.rtf"));
  EXPECT_EQ(TextOf(back), TextOf(sheet));

  // Where half points show the size, all looks come back.
  for (int i = 0; i < sheet.Length(); ++i) {
    const CharFormat& ours = sheet.FormatAt(i);
    const CharFormat& theirs = back.FormatAt(i);
    const bool shown = sheet.CharacterAt(i) != U'\n';
    if (!shown || ours.picture) continue;
    SCOPED_TRACE(i);
    EXPECT_EQ(theirs.font, ours.font);
    EXPECT_EQ(theirs.size, (ours.size + 5) / 10 * 10);
    EXPECT_EQ(theirs.bold, ours.bold);
    EXPECT_EQ(theirs.italic, ours.italic);
    EXPECT_EQ(theirs.color, ours.color);
    if (HasFailure()) break;
  }
  for (int i = 0; i <= sheet.Length(); ++i) {
    EXPECT_EQ(back.AlignmentAt(i), sheet.AlignmentAt(i)) << i;
  }
}

// --- What a teacher writes there

constexpr char kFlatText[] = R"(<?xml version="1.0" encoding="UTF-8"?>
<office:document xmlns:office="urn:oasis:names:tc:opendocument:xmlns:office:1.0"
 xmlns:text="urn:oasis:names:tc:opendocument:xmlns:text:1.0"
 xmlns:table="urn:oasis:names:tc:opendocument:xmlns:table:1.0"
 xmlns:style="urn:oasis:names:tc:opendocument:xmlns:style:1.0"
 xmlns:draw="urn:oasis:names:tc:opendocument:xmlns:drawing:1.0"
 xmlns:svg="urn:oasis:names:tc:opendocument:xmlns:svg-compatible:1.0"
 xmlns:xlink="http://www.w3.org/1999/xlink"
 xmlns:fo="urn:oasis:names:tc:opendocument:xmlns:xsl-fo-compatible:1.0"
 office:version="1.2" office:mimetype="application/vnd.oasis.opendocument.text">
<office:styles>
 <style:style style:name="Heading" style:family="paragraph">
  <style:paragraph-properties fo:text-align="center"/>
  <style:text-properties fo:font-size="20pt" fo:font-weight="bold"
   fo:font-family="'Liberation Sans'"/>
 </style:style>
</office:styles>
<office:automatic-styles>
 <style:style style:name="T1" style:family="text">
  <style:text-properties fo:font-style="italic" fo:color="#ff0000"/>
 </style:style>
 <style:style style:name="P1" style:family="paragraph">
  <style:paragraph-properties fo:text-align="justify"/>
 </style:style>
</office:automatic-styles>
<office:body><office:text>
<text:p text:style-name="Heading">Mountains</text:p>
<text:p text:style-name="P1">Na&#239;ve <text:span text:style-name="T1">&#955;&#940;&#946;&#945;
</text:span>&#128512;<text:tab/>end<text:note text:note-class="footnote"><text:note-citation>1
</text:note-citation><text:note-body><text:p>a note</text:p></text:note-body></text:note></text:p>
<table:table><table:table-column table:number-columns-repeated="2"/>
<table:table-row><table:table-cell><text:p>one</text:p></table:table-cell>
<table:table-cell><text:p>two</text:p></table:table-cell></table:table-row>
<table:table-row><table:table-cell><text:p>three</text:p></table:table-cell>
<table:table-cell><text:p>four</text:p></table:table-cell></table:table-row></table:table>
<text:p>a <text:a xlink:href="http://example.com/">link</text:a></text:p>
<text:p><draw:frame text:anchor-type="as-char" svg:width="1in" svg:height="0.5in"><draw:image>
<office:binary-data>iVBORw0KGgoAAAANSUhEUgAAAAEAAAABCAYAAAAfFcSJAAAADUlEQVR42mP8z8BQDwAEhQGAhKmMIQAAAABJRU5ErkJggg==
</office:binary-data></draw:image></draw:frame></text:p>
</office:text></office:body></office:document>
)";

TEST_F(WordProcessor, WritesFilesThatWeRead) {
  folder_.Write("lesson.fodt", kFlatText);
  ASSERT_NO_FATAL_FAILURE(Convert("lesson.fodt", "lesson", "rtf"));
  const Sheet sheet(folder_.Read("lesson/lesson.rtf"));
  EXPECT_EQ(
      TextOf(sheet),
      "Mountains\nNa\u00EFve \u03BB\u03AC\u03B2\u03B1 \U0001F600\tend\none\ttwo\nthree\tfour\n"
      "a link\n\uFFFC");
  EXPECT_EQ(sheet.AlignmentAt(0), Alignment::Centre);
  EXPECT_EQ(sheet.FormatAt(0).font, "Liberation Sans");
  EXPECT_EQ(sheet.FormatAt(0).size, 400);
  EXPECT_TRUE(sheet.FormatAt(0).bold);
  EXPECT_EQ(sheet.AlignmentAt(10), Alignment::Left);
  EXPECT_FALSE(sheet.FormatAt(10).bold);
  EXPECT_TRUE(sheet.FormatAt(17).italic);
  EXPECT_EQ(sheet.FormatAt(17).color, 0x0000FFU);
  const RichPicture* const picture = sheet.FormatAt(sheet.Length() - 1).picture.get();
  ASSERT_TRUE(picture);
  EXPECT_EQ(picture->format, "png");
  EXPECT_NEAR(picture->width, 1440, 2);
  EXPECT_NEAR(picture->height, 720, 2);
}

}  // namespace
}  // namespace brindlepage
