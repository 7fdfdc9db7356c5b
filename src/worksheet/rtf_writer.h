#pragma once

#include <string>

namespace brindlepage {

class RichText;

// The document as a rich text file (RTF 1.9), pictures included. What ReadRtf makes of it is the
// same document, and writing that gives the same bytes.
std::string WriteRtf(const RichText& document);

}  // namespace brindlepage
