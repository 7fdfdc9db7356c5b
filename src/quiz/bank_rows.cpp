#include "quiz/bank_rows.h"

#include "worksheet/compose.h"

namespace brindlepage {

namespace {

constexpr int kFirstColumn = 1;
constexpr int kColumnWidth = 25;
constexpr int kLastColumn = 90;

}  // namespace

int PickBankWord(const Bank& bank, int range, RandomSource& random) {
  random.Reseed();
  int entry;
  do {
    entry = random.DrawIndex(range);
  } while (bank(entry).empty());
  return entry;
}

BankRows::BankRows(RichText& box) : box_(box) { StartBankRow(); }

void BankRows::StartBankRow() {
  column_ = kFirstColumn;
  row_start_ = box_.SelStart();
  compose::AppendRun(box_, std::string(kLineWidth, ' '));
  box_.SelStart(row_start_);
}

void BankRows::PutBankWord(std::string_view text) {
  box_.SelStart(row_start_ + column_);
  compose::AppendRun(box_, text);
  column_ += kColumnWidth;
  if (column_ <= kLastColumn) return;
  compose::AppendRun(box_, compose::kLineFeed);
  StartBankRow();
}

void BankRows::Close() {
  if (column_ > kFirstColumn) compose::AppendRun(box_, compose::kLineFeed);
}

void WriteBankHeader(RichText& box, std::string_view text) {
  compose::CaretToEnd(box);
  box.SelUnderline(true);
  box.SelBold(true);
  compose::AppendRun(box, text);
  compose::AppendRun(box, std::string(kLineWidth - text.size(), '_'));
  box.SelUnderline(false);
  box.SelBold(false);
  compose::AppendRun(box, compose::kLineFeed);
}

void WriteRule(RichText& box) {
  box.SelBold(true);
  box.SelUnderline(true);
  compose::AppendRun(box, std::string(kLineWidth, '_') + compose::kLineFeed);
}

void UseBankFont(RichText& box, bool bold) {
  box.SelFontName(compose::kCourrier);
  box.SelFontSize(10);
  box.SelUnderline(false);
  box.SelBold(bold);
}

void UseBodyFont(RichText& box) {
  box.SelUnderline(false);
  box.SelBold(false);
  box.SelFontName(compose::kTimes);
  box.SelFontSize(12);
}

}  // namespace brindlepage
