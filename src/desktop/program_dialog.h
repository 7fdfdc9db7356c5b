#pragma once

#include <QFileDialog>
#include <string_view>

// The program asks for another program by the ending ".exe" and begins at "c:\\". On a system
// where neither means anything, programs are the files that may be run.
namespace brindlepage {

// True of a filter for programs, on such a system.
bool AsksForPrograms(std::string_view filter);

// The dialog begins in the system's folder of programs and shows folders and programs alone.
void OfferPrograms(QFileDialog& dialog);

}  // namespace brindlepage
