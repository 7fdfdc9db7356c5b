#include "worksheet/rtf_reader.h"

#include "toolkit/run_time_error.h"
#include "worksheet/rich_text.h"

namespace brindlepage {

void ReadRtf(std::string_view bytes, RichText& document) {
  constexpr std::string_view kStart = "{\\rtf1\\ansi ";
  if (!bytes.starts_with(kStart)) throw RunTimeError(Fault::InvalidFormat);
  std::string text;
  for (std::size_t i = kStart.size(); i < bytes.size() && bytes[i] != '}'; ++i) {
    if (bytes.substr(i, 5) == "\\par\n") {
      text += '\n';
      i += 4;
    } else {
      if (bytes[i] == '\\') ++i;
      text += bytes[i];
    }
  }
  document.Text(text);
}

}  // namespace brindlepage
