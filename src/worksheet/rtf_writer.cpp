#include "worksheet/rtf_writer.h"

#include "toolkit/code_page.h"
#include "worksheet/rich_text.h"

namespace brindlepage {

std::string WriteRtf(const RichText& document) {
  std::string text = "{\\rtf1\\ansi ";
  for (char byte : code_page::FromUnicode(document.PlainText())) {
    if (byte == '\n') {
      text += "\\par\n";
      continue;
    }
    if (byte == '\\' || byte == '{' || byte == '}') text += '\\';
    text += byte;
  }
  return text + "}";
}

}  // namespace brindlepage
