// What the reader of rich text files refuses, and that a refusal changes nothing.
#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "expect_fault.h"
#include "tests/rtf_tools.h"

namespace brindlepage {
namespace {

using namespace std::string_literals;
using rtf_tools::File;
using rtf_tools::RunsOf;
using rtf_tools::Sheet;
using rtf_tools::TextOf;

std::string Repeated(std::string_view text, int times) {
  std::string all;
  all.reserve(text.size() * static_cast<std::size_t>(times));
  for (int i = 0; i < times; ++i) all += text;
  return all;
}

void ExpectRefused(std::string_view bytes) {
  Sheet sheet;
  sheet.SelBold(true);
  sheet.SelText("what stood here\n");
  sheet.SelAlignment(Alignment::Centre);
  sheet.SelStart(3);
  const std::string before = RunsOf(sheet);
  EXPECT_FAULT(321, ReadRtf(bytes, sheet));
  EXPECT_EQ(RunsOf(sheet), before);
  EXPECT_EQ(sheet.SelStart(), 3);
}

TEST(RtfRefusals, WhatIsNoRichTextIsRefused) {
  ExpectRefused("");
  ExpectRefused("lava");
  ExpectRefused("{");
  ExpectRefused("{}");
  ExpectRefused("{\\rtfx1 lava}");
  ExpectRefused("{\\b\\rtf1 lava}");
  ExpectRefused("\\rtf1 lava");
  ExpectRefused("{\\urtf1 lava}");
  ExpectRefused("PK\x03\x04");
}

TEST(RtfRefusals, WhatStandsBehindTheFileIsLeftOut) {
  EXPECT_EQ(TextOf(Sheet("{\\rtf1 lava}\r\n\0"s)), "lava");
  EXPECT_EQ(TextOf(Sheet("{\\rtf1 lava}}{\\bin9")), "lava");
}

// One of everything.
std::string RichFile() {
  return File(
      "{\\stylesheet{\\s1\\qc\\b Heading;}{\\*\\cs5\\i Strong;}}{\\info{\\title T}}"
      "\\pard\\plain\\s1\\fs29\\fstwips285 Volc\\'e1n \\u-10179?\\u-8704?\\par\n"
      "\\pard\\intbl a\\cell b\\cell\\row\\pard{\\field{\\*\\fldinst x}{\\fldrslt y}}\\~\\emdash"
      "{\\*\\shppict{\\pict\\pngblip\\picwgoal30\\pichgoal30\n89504E47\n}}"
      "{\\nonshppict{\\pict\\wmetafile8 0100}}{\\pict\\jpegblip\\bin4 }{\\}}"
      "{\\upr{c}{\\*\\ud{\\u945?}}}\\par");
}

TEST(RtfRefusals, AFileThatIsCutAnywhereIsRefused) {
  const std::string file = RichFile();
  EXPECT_EQ(TextOf(Sheet(file)), "Volcán \U0001F600\na\tb\ny\u00A0—\uFFFC\uFFFCα");
  for (std::size_t length = 0; length < file.size(); ++length) {
    SCOPED_TRACE(length);
    ExpectRefused(std::string_view(file).substr(0, length));
  }
}

TEST(RtfRefusals, AThousandGroupsNestAndOneMoreIsRefused) {
  const auto nested = [](int depth) {
    return "{\\rtf1 " + Repeated("{", depth - 1) + "lava" + Repeated("}", depth);
  };
  EXPECT_EQ(TextOf(Sheet(nested(1000))), "lava");
  ExpectRefused(nested(1001));
  ExpectRefused("{\\rtf1 " + Repeated("{", 3'000'000));
}

TEST(RtfRefusals, DataThatAreNotThereAreRefused) {
  ExpectRefused("{\\rtf1{\\pict\\pngblip\\bin100 abc}}");
  ExpectRefused("{\\rtf1{\\pict\\pngblip\\bin2147483647 abc}}");
  ExpectRefused("{\\rtf1{\\*\\unknown\\bin9 abc}}");
}

TEST(RtfRefusals, ADocumentTooTallForItsViewIsRefused) {
  const auto lines = [](int count, std::string_view looks) {
    return File(std::string(looks) + Repeated("\\par", count));
  };
  EXPECT_EQ(Sheet(lines(650'000, "\\fs20 ")).Length(), 649'999);
  ExpectRefused(lines(750'000, "\\fs20 "));
  ExpectRefused(lines(20'000, "\\fs3276 "));
  ExpectRefused(File("\\fs3276 " + std::string(300'000, 'x')));
  ExpectRefused(File(Repeated("{\\pict\\pngblip\\picwgoal10000\\pichgoal100000 00}", 2000)));
}

TEST(RtfRefusals, NumbersWithoutSenseCostNothing) {
  EXPECT_EQ(TextOf(Sheet("{\\rtf1{\\fonttbl{\\f2147483647 A;}{\\f-5 B;}}"
                         "{\\colortbl\\red2147483647;}{\\stylesheet{\\s2147483647\\b x;}}"
                         "\\uc2147483647\\f-5\\cf2147483647\\s2147483647\\deff-9 lava}")),
            "lava");
}

}  // namespace
}  // namespace brindlepage
