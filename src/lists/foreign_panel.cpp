#include "lists/foreign_panel.h"

namespace brindlepage {

namespace {

constexpr int kFirstLetter = 191;
constexpr int kLastLetter = 255;
constexpr int kPage = 8;

}  // namespace

ForeignPanel::ForeignPanel(Form& form)
    : Frame1(form, "Frame1", "Foreign Language Characters"),
      LScroll(form, "LScroll", kFirstLetter, kLastLetter, kFirstLetter),
      CharLabel(form, "CharLabel", "A"),
      FLButton(form, "FLButton", {{0, "Add to word"}, {1, "Add to definition"}}) {
  LScroll.LargeChange = kPage;
  LScroll.Change = [this] { ShowLetter(); };
  CharLabel.FontSize = 26;
  CharLabel.Alignment = 2;
}

Arrangement ForeignPanel::Arranged() {
  return Framed(Frame1, Column(Row(Wide(3, CharLabel), Fill(LScroll)),
                               Row(FLButton(0), FLButton(1), Spring())));
}

void ForeignPanel::ShowLetter() {
  CharLabel.Caption = std::string(1, static_cast<char>(LScroll.Value()));
}

}  // namespace brindlepage
