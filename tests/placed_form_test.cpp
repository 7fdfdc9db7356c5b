#include "toolkit/placed_form.h"

#include "tests/teacher.h"

namespace brindlepage {
namespace {

class BoxesForm : public Form {
 public:
  explicit BoxesForm(Runtime& own_runtime) : Form(own_runtime, Screen{1}, "BoxesForm", "Boxes") {
    PlaceControls();
  }
  Label Heading{*this, "Heading", "Boxes"};
  ControlArray<Label> Box{*this, "Box", 0, 1};

  void Put(int index, const Area& place) {
    Box(index).BorderStyle = 1;
    Box(index).Left = place.left;
    Box(index).Top = place.top;
    Box(index).Width = place.width;
    Box(index).Height = place.height;
  }
};

class PlacedForm : public testing::Test {
 protected:
  NotingPlatform platform;
  SeededRandom random{1};
  Runtime runtime{platform, random, [](Screen) { return std::unique_ptr<Form>(); }};
  BoxesForm form{runtime};
};

TEST_F(PlacedForm, ThePictureShowsTheVisibleBoxesAndAMargin) {
  form.Put(0, {10, 100, 400, 300});
  form.Put(1, {5000, 5000, 400, 300});
  form.Box(1).Visible = false;
  EXPECT_EQ(PictureArea(form), (Area{-90, 0, 600, 500}));
  form.Box(1).Visible = true;
  EXPECT_EQ(PictureArea(form), (Area{-90, 0, 5590, 5400}));
}

TEST_F(PlacedForm, WithoutABoxThePictureShowsTheWholeForm) {
  EXPECT_EQ(PictureArea(form), (Area{0, 0, 12000, 9000}));
}

TEST_F(PlacedForm, OnPaperAPictureFitsTheColumnAndThePage) {
  EXPECT_EQ(SizeOnPaper({0, 0, 10800, 12960}), (Size{10800, 12960}));
  EXPECT_EQ(SizeOnPaper({0, 0, 300, 400}), (Size{300, 400}));
  EXPECT_EQ(SizeOnPaper({0, 0, 21600, 10000}), (Size{10800, 5000}));
  EXPECT_EQ(SizeOnPaper({0, 0, 10000, 25920}), (Size{5000, 12960}));
}

TEST_F(PlacedForm, LettersGrowWithBoxesThatAreLargerThanUsual) {
  form.Put(0, {0, 0, 315, 315});
  form.Box(0).FontSize = 6;
  EXPECT_EQ(TextHeight(form.Box(0)), 120);
  form.Put(0, {0, 0, 630, 800});
  EXPECT_EQ(TextHeight(form.Box(0)), 240);
  form.Put(0, {0, 0, 200, 200});
  EXPECT_EQ(TextHeight(form.Box(0)), 120);
  form.Box(0).FontSize = 0;
  EXPECT_EQ(TextHeight(form.Box(0)), 200) << "ten points where none is told";
}

// The sketch is a PNG file: its size, and the colours of its dots.
TEST_F(PlacedForm, TheSketchShowsTheBoxesOnTheBackgroundColour) {
  form.Put(0, {0, 0, 600, 600});
  form.Box(1).Visible = false;
  form.BackColor = 0x0000FF;  // red
  const FormPicture sketch = walk::SketchOf(form);
  EXPECT_EQ(sketch.width, 800);
  EXPECT_EQ(sketch.height, 800);
  const std::string& png = sketch.bytes;
  ASSERT_EQ(PictureFormat(png), "png");
  // 800 twips are 13 dots each way: the header, the palette, then rows behind a zero each.
  EXPECT_EQ(png.substr(16, 8), std::string("\0\0\0\x0D\0\0\0\x0D", 8));
  EXPECT_NE(png.find(std::string("PLTE\xFF\0\0\xFF\xFF\xFF\0\0\0", 13)), std::string::npos);
  const std::size_t rows = png.find("IDAT") + 4 + 2 + 5;
  const auto dot = [&](std::size_t x, std::size_t y) { return png[rows + y * 14 + 1 + x]; };
  EXPECT_EQ(dot(0, 0), 0);
  EXPECT_EQ(dot(1, 1), 2);
  EXPECT_EQ(dot(2, 2), 1);
  EXPECT_EQ(dot(10, 10), 2);
  EXPECT_EQ(dot(11, 11), 0);
  EXPECT_EQ(png.substr(png.size() - 12), std::string("\0\0\0\0IEND\xAE\x42\x60\x82", 12));
}

}  // namespace
}  // namespace brindlepage
