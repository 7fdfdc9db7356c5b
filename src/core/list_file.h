#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "toolkit/numbers.h"

// The vocabulary list file: any number of named lists of words with their meanings, in
// Windows-1252, a value a line, each line ended by carriage return and line feed.
//
//     Planets          name of the first list
//     Mars             a word
//     The red planet   its meaning
//     <New List>       stands between two lists
//     Animals          name of the second list, and so on
//
// Lines are taken whole and compared exactly: nothing is quoted, trimmed or checked. A line that
// reads "<New List>" is a separator wherever it stands; the first line that equals a list's name
// is taken for the list. "No Lists" as the first line is how a file without lists looks.
//
// `path` is a file's name as the program writes it (toolkit/files.h), whose faults all of these
// throw. Reading past the last line throws RunTimeError 62, so does a name that the file lacks.
// Counters and indices have 16 bits: what they can't hold throws 6. Nothing is written then.
namespace brindlepage::list_file {

inline constexpr std::string_view kNewList = "<New List>";
inline constexpr std::string_view kNoLists = "No Lists";

using Lines = std::vector<std::string>;

// The meaning of words[i] is meanings[i].
struct WordPairs {
  Lines words;
  Lines meanings;
};

// The names in file order. Line 1 counts as a name, whatever it holds, and so does each line
// behind a separator.
Lines FillListNames(std::string_view path);

// How many pairs the list has: -1 if its name is the separator itself.
Integer CountListWords(std::string_view path, std::string_view name);

// The `count` pairs behind the list's name, without a look at separators; none if negative.
WordPairs LoadListWords(std::string_view path, std::string_view name, Integer count);

// All pairs of the list and, in `count`, their number as CountListWords gives it. A list whose
// name is the separator throws RunTimeError 5, as it has no last pair to take back.
WordPairs LoadListForEdit(std::string_view path, std::string_view name, Integer& count);

// True if the first line tells that the file holds no list: it is empty or "No Lists".
bool ReadFirstLine(std::string_view path);

// Every line of the file. Throws 6 if there are more than 32,767.
Lines LoadWholeFile(std::string_view path);

// Removes the list's lines and the separator in front of it; behind the first list of a file the
// separator stays. Entries past the end read as "", so the search for a name that isn't there
// runs until its counter overflows (RunTimeError 6), and only the empty name is found there.
void RemoveListLines(Lines& data, std::string_view name);

// Removes empty lines and separators from the top.
void StripLeadingLines(Lines& data);

// Appends `temp_list` to the file: the separator if other lists stand there, the name, the pairs.
void SaveNewList(std::string_view path, const Lines& temp_list);

// Takes the list `current_name` out of the file and puts the list `caption` with these pairs at
// its end. A word without a meaning gets an empty one.
void SaveEditedList(std::string_view path, std::string_view current_name, std::string_view caption,
                    const Lines& words, const Lines& meanings);

// Removes the list from `data`, which holds all lines of the file, and writes the file.
void DeleteListLines(std::string_view path, Lines& data, std::string_view name);

}  // namespace brindlepage::list_file
