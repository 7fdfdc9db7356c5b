#include "toolkit/picture.h"

#include "toolkit/files.h"
#include "toolkit/run_time_error.h"

namespace brindlepage {

std::string PictureFormat(std::string_view bytes) {
  using namespace std::string_view_literals;
  struct Signature {
    std::size_t offset;
    std::string_view bytes;
    const char* format;
  };
  static constexpr Signature kSignatures[] = {
      {0, "\xFF\xD8\xFF"sv, "jpg"}, {0, "\x89PNG\r\n\x1A\n"sv, "png"},
      {0, "BM"sv, "bmp"},           {0, "GIF87a"sv, "gif"},
      {0, "GIF89a"sv, "gif"},       {0, "\0\0\1\0"sv, "ico"},
      {0, "\0\0\2\0"sv, "cur"},     {0, "\xD7\xCD\xC6\x9A"sv, "wmf"},
      {0, "\1\0\x09\0"sv, "wmf"},   {40, " EMF"sv, "emf"},
      {0, "\x28\0\0\0"sv, "dib"},
  };
  for (const Signature& signature : kSignatures) {
    if (bytes.size() >= signature.offset + signature.bytes.size() &&
        bytes.substr(signature.offset, signature.bytes.size()) == signature.bytes) {
      return signature.format;
    }
  }
  return "";
}

PicturePtr LoadPicture(std::string_view name) {
  auto picture = std::make_shared<Picture>();
  picture->file_name = name;
  picture->bytes = files::ReadBytes(name);
  picture->format = PictureFormat(picture->bytes);
  if (picture->format.empty()) throw RunTimeError(Fault::InvalidPicture);
  return picture;
}

}  // namespace brindlepage
