#include "worksheet/rich_text_box.h"

#include "toolkit/code_page.h"
#include "toolkit/files.h"
#include "worksheet/rtf_reader.h"
#include "worksheet/rtf_writer.h"

namespace brindlepage {

RichTextBox::RichTextBox(Form& form, std::string name, std::string design_font,
                         double design_points)
    : Control(form, std::move(name)), RichText(std::move(design_font), design_points) {
  RichText::Text(kDesignText);
  Observe(this);
}

RichTextBox::~RichTextBox() { StopObserving(this); }

void RichTextBox::SaveFile(std::string_view path) const {
  files::WriteBytes(path, WriteRtf(*this));
}

void RichTextBox::LoadFile(std::string_view path) { ReadRtf(files::ReadBytes(path), *this); }

void RichTextBox::Paste(const FormPicture& picture) {
  InsertPicture(std::make_shared<RichPicture>(
      RichPicture{picture.format, picture.bytes, picture.width, picture.height}));
}

std::optional<brindlepage::Value> RichTextBox::Find(std::string_view property) const {
  using brindlepage::Value;
  const auto selected = [](const auto& value) -> std::optional<Value> {
    return value ? std::optional<Value>(Value(*value)) : std::optional<Value>(Value("mixed"));
  };
  if (property == "Text") return Value(code_page::FromUnicode(PlainText()));
  if (property == "SelStart") return Value(static_cast<long long>(SelStart()));
  if (property == "SelLength") return Value(static_cast<long long>(SelLength()));
  if (property == "SelFontName") return selected(SelFontName());
  if (property == "SelFontSize") return selected(SelFontSize());
  if (property == "SelBold") return selected(SelBold());
  if (property == "SelItalic") return selected(SelItalic());
  if (property == "SelUnderline") return selected(SelUnderline());
  if (property == "SelColor") {
    const auto color = SelColor();
    return color ? Value(static_cast<long long>(*color)) : Value("mixed");
  }
  if (property == "SelAlignment") {
    const auto alignment = SelAlignment();
    return alignment ? Value(static_cast<long long>(*alignment)) : Value("mixed");
  }
  return Control::Find(property);
}

}  // namespace brindlepage
