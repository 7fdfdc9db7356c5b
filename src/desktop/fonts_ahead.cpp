#include "desktop/fonts_ahead.h"

#include <future>

#ifdef BRINDLEPAGE_FONTCONFIG
#include <fontconfig/fontconfig.h>
#endif

namespace brindlepage {

namespace {

std::future<void>& TheReading() {
  static std::future<void> reading;
  return reading;
}

}  // namespace

void ReadFontsAhead() {
#ifdef BRINDLEPAGE_FONTCONFIG
  TheReading() = std::async(std::launch::async, [] { FcInit(); });
#endif
}

void AwaitFonts() {
  if (TheReading().valid()) TheReading().get();
}

}  // namespace brindlepage
