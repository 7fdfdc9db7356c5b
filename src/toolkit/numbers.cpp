#include "toolkit/numbers.h"

namespace brindlepage {

std::string DisplayForm(int number) {
  std::string digits = std::to_string(number);
  return number < 0 ? digits : ' ' + digits;
}

}  // namespace brindlepage
