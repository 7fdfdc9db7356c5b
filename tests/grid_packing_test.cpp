#include "crossword/grid_packing.h"

#include "crossword/new_cross1.h"
#include "tests/teacher.h"

namespace brindlepage {
namespace {

constexpr Size kScreen = {15360, 11520};  // 1024 by 768 pixels

class GridPacking : public testing::Test {
 protected:
  void Use(int column, int row) { grid.SquareAt(column, row).Visible = true; }

  NotingPlatform platform;
  SeededRandom random{1};
  BrindlepageProgram program{platform, random};
  NewCross1 grid{program};
};

TEST_F(GridPacking, PlainSquaresFillTheScreenWithAllColumnsAndRows) {
  // 11,470 / 29 = 395.5; 15,260 / 38 - 10 = 391.6.
  EXPECT_EQ(PlainSquareSize(kScreen), (Size{391, 395}));
  // 800 by 600: 8,950 / 29 = 308.6; 11,900 / 38 - 10 = 303.2.
  EXPECT_EQ(PlainSquareSize({12000, 9000}), (Size{303, 308}));
}

TEST_F(GridPacking, EmptyColumnsOnTheLeftAndRowsAtTheTopAreTakenOut) {
  Use(5, 4);
  Use(6, 3);
  PackGrid(grid, {100, 200});
  EXPECT_EQ(grid.SquareAt(6, 3).Top, 100);
  EXPECT_EQ(grid.SquareAt(5, 4).Top, 310);
  EXPECT_EQ(grid.SquareAt(5, 4).Left, 10);
  EXPECT_EQ(grid.SquareAt(6, 3).Left, 120);
  EXPECT_EQ(grid.SquareAt(37, 29).Left, 10 + 32 * 110);
  // Hidden squares keep their place under the screen's edge; all columns left of the first one
  // in use stand on it.
  EXPECT_EQ(grid.SquareAt(1, 1).Left, 10);
  EXPECT_EQ(grid.SquareAt(5, 1).Left, 10);
  EXPECT_EQ(grid.SquareAt(1, 1).Top, 10);
  EXPECT_EQ(grid.SquareAt(1, 2).Top, 220);
  EXPECT_EQ(grid.Square(1073).Width, 100);
}

TEST_F(GridPacking, AGridOfOrphansInTheFirstCellIsPackedToo) {
  Use(1, 1);
  PackGrid(grid, {391, 395});
  EXPECT_EQ(grid.SquareAt(1, 1).Left, 10);
  EXPECT_EQ(grid.SquareAt(1, 1).Top, 100);
  EXPECT_EQ(grid.SquareAt(2, 1).Left, 411);
}

TEST_F(GridPacking, AnEmptyGridIsLeftWhereItIs) {
  PackGrid(grid, {391, 395});
  EXPECT_EQ(grid.SquareAt(37, 29).Left, 10);
  EXPECT_EQ(grid.LastVisibleSquare(), 0);
  EXPECT_EQ(AutoSquareSize(kScreen, MeasureGrid(grid)), (Size{15230, 11440}));
}

TEST_F(GridPacking, AutosizeCountsFromTheFirstColumnAndRowAndNotFromThePackedCorner) {
  Use(30, 25);
  const AutoSize used = MeasureGrid(grid);
  EXPECT_EQ(used.cols, 31);
  EXPECT_EQ(used.rows, 25);
  // 11,470 / 25 - 30 = 428.8; 15,260 / 31 - 30 = 462.3.
  EXPECT_EQ(AutoSquareSize(kScreen, used), (Size{462, 428}));
}

TEST_F(GridPacking, FewRowsAndManyColumnsCountAsManyRows) {
  Use(34, 15);
  const AutoSize used = MeasureGrid(grid);
  EXPECT_EQ(used.cols, 35);
  EXPECT_EQ(used.rows, 35);
  // 11,470 / 35 - 30 = 297.7; 15,260 / 35 - 30 = 406.
  EXPECT_EQ(AutoSquareSize(kScreen, used), (Size{406, 297}));
}

TEST_F(GridPacking, FewColumnsAndManyRowsCountAsAQuarterMoreColumns) {
  Use(11, 29);
  const AutoSize used = MeasureGrid(grid);
  EXPECT_EQ(used.cols, 36.25);
  EXPECT_EQ(used.rows, 29);
  // 11,470 / 29 - 30 = 365.5; 15,260 / 36.25 - 30 = 390.97.
  EXPECT_EQ(AutoSquareSize(kScreen, used), (Size{390, 365}));
}

TEST_F(GridPacking, AtThreeQuartersTheShorterSideStays) {
  Use(14, 20);  // 15 to 20
  AutoSize used = MeasureGrid(grid);
  EXPECT_EQ(used.cols, 15);
  EXPECT_EQ(used.rows, 20);
  Use(19, 15);  // 20 to 20
  Use(23, 18);  // 24 to 20
  used = MeasureGrid(grid);
  EXPECT_EQ(used.cols, 24);
  EXPECT_EQ(used.rows, 20);
}

}  // namespace
}  // namespace brindlepage
