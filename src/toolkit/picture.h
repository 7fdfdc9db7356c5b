#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace brindlepage {

// A picture as it stands in its file; the window system decodes it.
struct Picture {
  std::string file_name;  // as the program named it
  std::string format;     // "jpg", "png", "bmp", "dib", "gif", "ico", "cur", "wmf", "emf"
  std::string bytes;
};
using PicturePtr = std::shared_ptr<const Picture>;

// A photograph of a form, as it lies on the clipboard.
struct FormPicture {
  std::string format;  // "png"
  std::string bytes;   // the picture's file
  int width = 0;       // twips, on paper
  int height = 0;
};

// Reads a picture file. Throws RunTimeError 53 if it is missing, 481 "Invalid picture" if its
// first bytes are those of no known kind of picture, and what files::ReadBytes throws.
PicturePtr LoadPicture(std::string_view name);

// The kind of picture that the bytes begin like, or "" if they begin like none.
std::string PictureFormat(std::string_view bytes);

}  // namespace brindlepage
