#include "core/list_file.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <random>
#include <string>
#include <vector>

#include "tests/expect_fault.h"
#include "tests/temp_folder.h"

namespace brindlepage::list_file {
namespace {

using namespace std::string_literals;

constexpr const char* kFile = "TheLists.dat";

// The bytes of a file with these lines.
std::string FileOf(const Lines& lines) {
  std::string bytes;
  for (const std::string& line : lines) bytes += line + "\r\n";
  return bytes;
}

// A folder with a list file in it.
class Folder {
 public:
  explicit Folder(const Lines& lines) { Put(FileOf(lines)); }
  explicit Folder(const std::string& bytes) { Put(bytes); }
  Folder() = default;

  void Put(const std::string& bytes) { folder_.Write(kFile, bytes); }
  std::string Bytes() const { return folder_.Read(kFile); }

 private:
  TempFolder folder_;
};

const Lines kThreeLists = {"Planets", "Mars",       "red",     "Venus",      "bright",  "Saturn",
                           "ringed",  "<New List>", "Animals", "cat",        "purrs",   "dog",
                           "barks",   "cow",        "moos",    "<New List>", "Colours", "red",
                           "hot",     "blue",       "cold",    "green",      "calm"};

Lines Pairs(std::size_t count) {
  Lines lines;
  for (std::size_t i = 0; i < count; ++i) {
    lines.push_back("w" + std::to_string(i));
    lines.push_back("m" + std::to_string(i));
  }
  return lines;
}

Lines Joined(Lines first, const Lines& second) {
  first.insert(first.end(), second.begin(), second.end());
  return first;
}

// --- Reading ------------------------------------------------------------------------------

TEST(ListFile, NamesStandInFileOrder) {
  Folder folder(Lines{"Zoo", "a", "b", "<New List>", "Art", "<New List>", "Zoo"});
  EXPECT_EQ(FillListNames(kFile), (Lines{"Zoo", "Art", "Zoo"}));
}

TEST(ListFile, FirstLineIsANameWhateverItHolds) {
  Folder folder(Lines{"No Lists"});
  EXPECT_EQ(FillListNames(kFile), Lines{"No Lists"});
  folder.Put("\r\n");
  EXPECT_EQ(FillListNames(kFile), Lines{""});
}

TEST(ListFile, ThreeWordsCountThreeAnywhereInTheFile) {
  Folder folder(kThreeLists);
  EXPECT_EQ(CountListWords(kFile, "Planets"), 3);
  EXPECT_EQ(CountListWords(kFile, "Animals"), 3);
  EXPECT_EQ(CountListWords(kFile, "Colours"), 3);
}

TEST(ListFile, ListWithoutPairsCountsNoneAnywhereInTheFile) {
  Folder folder(Lines{"First", "<New List>", "Middle", "<New List>", "Last"});
  EXPECT_EQ(CountListWords(kFile, "First"), 0);
  EXPECT_EQ(CountListWords(kFile, "Middle"), 0);
  EXPECT_EQ(CountListWords(kFile, "Last"), 0);
}

TEST(ListFile, NoListsCountsNoWords) {
  Folder folder(Lines{"No Lists"});
  EXPECT_EQ(CountListWords(kFile, "No Lists"), 0);
  EXPECT_TRUE(LoadListWords(kFile, "No Lists", 0).words.empty());
}

TEST(ListFile, LoadsAsManyPairsAsTold) {
  Folder folder(kThreeLists);
  WordPairs pairs = LoadListWords(kFile, "Animals", 3);
  EXPECT_EQ(pairs.words, (Lines{"cat", "dog", "cow"}));
  EXPECT_EQ(pairs.meanings, (Lines{"purrs", "barks", "moos"}));

  pairs = LoadListWords(kFile, "Animals", 2);
  EXPECT_EQ(pairs.words, (Lines{"cat", "dog"}));
  EXPECT_EQ(pairs.meanings, (Lines{"purrs", "barks"}));
}

TEST(ListFile, LoadingDoesNotLookForTheSeparator) {
  Folder folder(kThreeLists);
  WordPairs pairs = LoadListWords(kFile, "Animals", 5);
  EXPECT_EQ(pairs.words, (Lines{"cat", "dog", "cow", "<New List>", "red"}));
  EXPECT_EQ(pairs.meanings, (Lines{"purrs", "barks", "moos", "Colours", "hot"}));
}

TEST(ListFile, LoadsForEditWhatItCounts) {
  Folder folder(kThreeLists);
  Integer count;
  WordPairs pairs = LoadListForEdit(kFile, "Animals", count);
  EXPECT_EQ(count, 3);
  EXPECT_EQ(pairs.words, (Lines{"cat", "dog", "cow"}));
  EXPECT_EQ(pairs.meanings, (Lines{"purrs", "barks", "moos"}));

  pairs = LoadListForEdit(kFile, "Colours", count);
  EXPECT_EQ(count, 3);
  EXPECT_EQ(pairs.words, (Lines{"red", "blue", "green"}));
  EXPECT_EQ(pairs.meanings, (Lines{"hot", "cold", "calm"}));
}

TEST(ListFile, LoadsAnEmptyListForEdit) {
  Folder folder(Lines{"First", "<New List>", "Last"});
  for (const char* name : {"First", "Last"}) {
    Integer count = 7;
    WordPairs pairs = LoadListForEdit(kFile, name, count);
    EXPECT_EQ(count, 0);
    EXPECT_TRUE(pairs.words.empty());
    EXPECT_TRUE(pairs.meanings.empty());
  }
}

TEST(ListFile, FirstLineTellsWhetherThereAreLists) {
  Folder folder(Lines{"No Lists"});
  EXPECT_TRUE(ReadFirstLine(kFile));
  folder.Put("\r\nPlanets\r\n");
  EXPECT_TRUE(ReadFirstLine(kFile));
  for (const char* first : {"Planets", "no lists", "No Lists ", "<New List>", " "}) {
    folder.Put(FileOf({first}));
    EXPECT_FALSE(ReadFirstLine(kFile)) << first;
  }
}

TEST(ListFile, WholeFileIsEveryLine) {
  Folder folder(kThreeLists);
  EXPECT_EQ(LoadWholeFile(kFile), kThreeLists);
  folder.Put("");
  EXPECT_EQ(LoadWholeFile(kFile), Lines{});
}

TEST(ListFile, LinesAreComparedExactly) {
  Folder folder(Lines{"Planets", "<new list>", "<New List> ", " <New List>", "x"});
  EXPECT_EQ(FillListNames(kFile), Lines{"Planets"});
  EXPECT_EQ(CountListWords(kFile, "Planets"), 2);
  EXPECT_FAULT(62, CountListWords(kFile, "planets"));
  EXPECT_FAULT(62, CountListWords(kFile, "Planets "));
  EXPECT_FAULT(62, CountListWords(kFile, "Planet"));
}

// --- Words that look like names and separators --------------------------------------------

TEST(ListFile, MeaningSpelledLikeALaterListsNameEndsTheSearchEarly) {
  Folder folder(
      Lines{"Sky", "body", "Planets", "star", "sun", "<New List>", "Planets", "Mars", "red"});
  EXPECT_EQ(CountListWords(kFile, "Planets"), 1);
  WordPairs pairs = LoadListWords(kFile, "Planets", 1);
  EXPECT_EQ(pairs.words, Lines{"star"});
  EXPECT_EQ(pairs.meanings, Lines{"sun"});
}

TEST(ListFile, WordSpelledLikeALaterListsNameSwapsWordsAndMeanings) {
  Folder folder(
      Lines{"Sky", "Planets", "wanderers", "star", "sun", "<New List>", "Planets", "Mars", "red"});
  // "wanderers" with "star", then "sun" with the separator, which so goes unseen, then "Planets"
  // with "Mars", then "red" with nothing.
  EXPECT_FAULT(62, CountListWords(kFile, "Planets"));
  WordPairs pairs = LoadListWords(kFile, "Planets", 2);
  EXPECT_EQ(pairs.words, (Lines{"wanderers", "sun"}));
  EXPECT_EQ(pairs.meanings, (Lines{"star", "<New List>"}));
}

TEST(ListFile, WordSpelledLikeItsOwnListIsFoundOnlyBehindTheName) {
  Folder folder(Lines{"Planets", "Planets", "wanderers"});
  EXPECT_EQ(CountListWords(kFile, "Planets"), 1);
  EXPECT_EQ(LoadListWords(kFile, "Planets", 1).words, Lines{"Planets"});
}

TEST(ListFile, RemovingBeginsAtTheWordSpelledLikeTheName) {
  Lines data = {"Sky", "star", "Planets", "moon", "round", "<New List>", "Planets", "Mars", "red"};
  RemoveListLines(data, "Planets");
  EXPECT_EQ(data, (Lines{"Sky", "<New List>", "Planets", "Mars", "red"}));
}

TEST(ListFile, WordSpelledLikeTheSeparatorCutsItsList) {
  Folder folder(Lines{"Planets", "Mars", "red", "<New List>", "odd", "Venus", "bright"});
  EXPECT_EQ(FillListNames(kFile), (Lines{"Planets", "odd"}));
  EXPECT_EQ(CountListWords(kFile, "Planets"), 1);
  EXPECT_EQ(CountListWords(kFile, "odd"), 1);
  Lines data = LoadWholeFile(kFile);
  RemoveListLines(data, "Planets");
  EXPECT_EQ(data, (Lines{"<New List>", "odd", "Venus", "bright"}));
}

TEST(ListFile, MeaningSpelledLikeTheSeparatorCutsItForTheNamesAlone) {
  Folder folder(Lines{"Planets", "Mars", "<New List>", "Venus", "bright"});
  EXPECT_EQ(FillListNames(kFile), (Lines{"Planets", "Venus"}));
  EXPECT_EQ(CountListWords(kFile, "Planets"), 2);
}

TEST(ListFile, FirstOfTwoListsOfOneNameIsReached) {
  Folder folder(Lines{"Twin", "one", "1", "<New List>", "Twin", "two", "2", "three", "3"});
  EXPECT_EQ(CountListWords(kFile, "Twin"), 1);
  EXPECT_EQ(LoadListWords(kFile, "Twin", 1).words, Lines{"one"});
}

TEST(ListFile, EditingTheFirstOfTwoListsOfOneNameBringsUpTheOther) {
  Folder folder(Lines{"Twin", "one", "1", "<New List>", "Twin", "two", "2"});
  SaveEditedList(kFile, "Twin", "Twin", {"one"}, {"1"});
  EXPECT_EQ(folder.Bytes(), FileOf({"Twin", "two", "2", "<New List>", "Twin", "one", "1"}));
  Integer count;
  EXPECT_EQ(LoadListForEdit(kFile, "Twin", count).words, Lines{"two"});
}

// --- Saving -------------------------------------------------------------------------------

TEST(ListFile, NewListLandsAtTheEnd) {
  Folder folder(Lines{"Planets", "Mars", "red"});
  SaveNewList(kFile, {"<New List>", "Animals", "cat", "purrs"});
  EXPECT_EQ(folder.Bytes(), "Planets\r\nMars\r\nred\r\n<New List>\r\nAnimals\r\ncat\r\npurrs\r\n");
}

TEST(ListFile, NewListTakesThePlaceOfNoLists) {
  Folder folder(Lines{"No Lists"});
  SaveNewList(kFile, {"Animals", "cat", "purrs"});
  EXPECT_EQ(folder.Bytes(), "Animals\r\ncat\r\npurrs\r\n");
}

TEST(ListFile, NewListTakesThePlaceOfAnEmptyFirstLine) {
  Folder folder("\r\n"s);
  SaveNewList(kFile, {"Animals", "cat", "purrs"});
  EXPECT_EQ(folder.Bytes(), "Animals\r\ncat\r\npurrs\r\n");
}

TEST(ListFile, NewListNamedNoListsInAFileWithoutListsLosesItsName) {
  Folder folder("\r\n"s);
  SaveNewList(kFile, {"No Lists", "cat", "purrs"});
  EXPECT_EQ(folder.Bytes(), "cat\r\npurrs\r\n");
}

TEST(ListFile, NewListWithoutWordsIsItsNameAlone) {
  Folder folder(Lines{"Planets", "Mars", "red"});
  SaveNewList(kFile, {"<New List>", "Animals"});
  EXPECT_EQ(folder.Bytes(), "Planets\r\nMars\r\nred\r\n<New List>\r\nAnimals\r\n");
}

TEST(ListFile, NewListRepairsALeadingSeparator) {
  Folder folder(Lines{"<New List>", "Animals", "cat", "purrs"});
  SaveNewList(kFile, {"<New List>", "Planets"});
  EXPECT_EQ(folder.Bytes(), FileOf({"Animals", "cat", "purrs", "<New List>", "Planets"}));
}

TEST(ListFile, EditedListMovesToTheEndEvenUnchanged) {
  Folder folder(kThreeLists);
  SaveEditedList(kFile, "Animals", "Animals", {"cat", "dog", "cow"}, {"purrs", "barks", "moos"});
  EXPECT_EQ(folder.Bytes(),
            FileOf({"Planets", "Mars", "red",   "Venus", "bright", "Saturn", "ringed", "<New List>",
                    "Colours", "red",  "hot",   "blue",  "cold",   "green",  "calm",   "<New List>",
                    "Animals", "cat",  "purrs", "dog",   "barks",  "cow",    "moos"}));
}

TEST(ListFile, EditedFirstListLeavesNoLeadingSeparator) {
  Folder folder(Lines{"A", "a", "1", "<New List>", "B", "b", "2"});
  SaveEditedList(kFile, "A", "A", {"a", "aa"}, {"1", "11"});
  EXPECT_EQ(folder.Bytes(), FileOf({"B", "b", "2", "<New List>", "A", "a", "1", "aa", "11"}));
}

TEST(ListFile, EditedOnlyListStaysAtTheTop) {
  Folder folder(Lines{"A", "a", "1"});
  SaveEditedList(kFile, "A", "A", {}, {});
  EXPECT_EQ(folder.Bytes(), "A\r\n");
}

TEST(ListFile, EditedListTakesTheCaptionForItsName) {
  Folder folder(Lines{"A", "a", "1", "<New List>", "B"});
  SaveEditedList(kFile, "A", "C", {"a"}, {"1"});
  EXPECT_EQ(folder.Bytes(), FileOf({"B", "<New List>", "C", "a", "1"}));
}

TEST(ListFile, RenamedListIsNotFoundAndTheFileStaysAsItWas) {
  Folder folder(kThreeLists);
  EXPECT_FAULT(6, SaveEditedList(kFile, "Pets", "Pets", {"cat"}, {"purrs"}));
  EXPECT_EQ(folder.Bytes(), FileOf(kThreeLists));
}

TEST(ListFile, ListRenamedLikeAnotherReplacesThatOne) {
  Folder folder(kThreeLists);
  SaveEditedList(kFile, "Colours", "Colours", {"cat"}, {"purrs"});
  EXPECT_EQ(folder.Bytes(), FileOf({"Planets", "Mars", "red", "Venus", "bright", "Saturn", "ringed",
                                    "<New List>", "Animals", "cat", "purrs", "dog", "barks", "cow",
                                    "moos", "<New List>", "Colours", "cat", "purrs"}));
}

TEST(ListFile, WordWithoutAMeaningIsSavedWithAnEmptyOne) {
  Folder folder(Lines{"A"});
  SaveEditedList(kFile, "A", "A", {"a", "b"}, {"1"});
  EXPECT_EQ(folder.Bytes(), "A\r\na\r\n1\r\nb\r\n\r\n");
}

TEST(ListFile, EveryByteOfAWordComesBack) {
  Folder folder(Lines{"Other"});
  std::string any;
  for (int code = 0; code < 256; ++code) {
    if (code != '\r' && code != '\n') any += static_cast<char>(code);
  }
  Lines words = {"a, b", "\"quoted\"", "trailing  ", " leading", "", any};
  Lines meanings = {"1,2", "say \"x\"", "\t", "  ", "caf\xE9", any};
  SaveNewList(kFile, {"<New List>", "Odd", words[0], meanings[0]});
  SaveEditedList(kFile, "Odd", "Odd", words, meanings);
  Integer count;
  WordPairs pairs = LoadListForEdit(kFile, "Odd", count);
  EXPECT_EQ(count, 6);
  EXPECT_EQ(pairs.words, words);
  EXPECT_EQ(pairs.meanings, meanings);

  std::string before = folder.Bytes();
  SaveEditedList(kFile, "Odd", "Odd", pairs.words, pairs.meanings);
  EXPECT_EQ(folder.Bytes(), before);
}

// --- Deleting -----------------------------------------------------------------------------

TEST(ListFile, DeletingTheOnlyListLeavesTheOneLineNoLists) {
  Folder folder(Lines{"Planets", "Mars", "red"});
  Lines data = LoadWholeFile(kFile);
  DeleteListLines(kFile, data, "Planets");
  EXPECT_EQ(folder.Bytes(), "No Lists\r\n");
  EXPECT_EQ(data, Lines{"No Lists"});

  EXPECT_TRUE(ReadFirstLine(kFile));
  SaveNewList(kFile, {"Animals", "cat", "purrs"});
  EXPECT_EQ(folder.Bytes(), "Animals\r\ncat\r\npurrs\r\n");
}

TEST(ListFile, DeletingNoListsWritesItBack) {
  Folder folder(Lines{"No Lists"});
  Lines data = LoadWholeFile(kFile);
  DeleteListLines(kFile, data, "No Lists");
  EXPECT_EQ(folder.Bytes(), "No Lists\r\n");
}

TEST(ListFile, DeletingTheFirstListLeavesItsSeparatorAtTheTop) {
  Folder folder(Lines{"Planets", "Mars", "red", "<New List>", "Animals", "cat", "purrs"});
  Lines data = LoadWholeFile(kFile);
  DeleteListLines(kFile, data, "Planets");
  EXPECT_EQ(folder.Bytes(), FileOf({"<New List>", "Animals", "cat", "purrs"}));
  // The separator counts as a name now, and the list behind it is not offered.
  EXPECT_EQ(FillListNames(kFile), Lines{"<New List>"});
  EXPECT_EQ(CountListWords(kFile, "<New List>"), -1);
  EXPECT_TRUE(LoadListWords(kFile, "<New List>", -1).words.empty());
  EXPECT_EQ(CountListWords(kFile, "Animals"), 1);
}

TEST(ListFile, PseudoListHasNoLastPairToTakeBack) {
  Folder folder(Lines{"<New List>", "Animals", "cat", "purrs"});
  Integer count;
  EXPECT_FAULT(5, LoadListForEdit(kFile, "<New List>", count));
}

TEST(ListFile, DeletingThePseudoListChangesNothing) {
  Lines lines = {"<New List>", "Animals", "cat", "purrs"};
  Folder folder(lines);
  Lines data = LoadWholeFile(kFile);
  DeleteListLines(kFile, data, "<New List>");
  EXPECT_EQ(folder.Bytes(), FileOf(lines));
}

TEST(ListFile, SavingAnEditedListRepairsTheLeadingSeparator) {
  Folder folder(Lines{"<New List>", "A", "a", "1", "<New List>", "B"});
  SaveEditedList(kFile, "B", "B", {}, {});
  EXPECT_EQ(folder.Bytes(), FileOf({"A", "a", "1", "<New List>", "B"}));
}

TEST(ListFile, DeletingTheLastOfSeveralTakesItsSeparatorToo) {
  Folder folder(Lines{"Planets", "Mars", "red", "<New List>", "Animals", "cat", "purrs"});
  Lines data = LoadWholeFile(kFile);
  DeleteListLines(kFile, data, "Animals");
  EXPECT_EQ(folder.Bytes(), FileOf({"Planets", "Mars", "red"}));
}

TEST(ListFile, DeletingOneBetweenTwoLeavesOneSeparator) {
  Folder folder(Lines{"A", "a", "1", "<New List>", "B", "b", "2", "<New List>", "C", "c", "3"});
  Lines data = LoadWholeFile(kFile);
  DeleteListLines(kFile, data, "B");
  EXPECT_EQ(folder.Bytes(), FileOf({"A", "a", "1", "<New List>", "C", "c", "3"}));
}

TEST(ListFile, SeveralListsAreDeletedInOneVisit) {
  Folder folder(Lines{"A", "a", "1", "<New List>", "B", "<New List>", "C", "c", "3"});
  Lines data = LoadWholeFile(kFile);
  DeleteListLines(kFile, data, "A");
  EXPECT_EQ(folder.Bytes(), FileOf({"<New List>", "B", "<New List>", "C", "c", "3"}));
  DeleteListLines(kFile, data, "C");
  EXPECT_EQ(folder.Bytes(), FileOf({"<New List>", "B"}));
  // "B" goes, and with it the separator in front of it.
  DeleteListLines(kFile, data, "B");
  EXPECT_EQ(folder.Bytes(), FileOf({"No Lists"}));
}

TEST(ListFile, DeletingTheFirstOfTwoListsOfOneName) {
  Folder folder(Lines{"Twin", "one", "1", "<New List>", "Twin", "two", "2"});
  Lines data = LoadWholeFile(kFile);
  DeleteListLines(kFile, data, "Twin");
  EXPECT_EQ(folder.Bytes(), FileOf({"<New List>", "Twin", "two", "2"}));
}

TEST(ListFile, DeletingAUnknownListOverflowsAndWritesNothing) {
  Folder folder(kThreeLists);
  Lines data = LoadWholeFile(kFile);
  EXPECT_FAULT(6, DeleteListLines(kFile, data, "Pets"));
  EXPECT_EQ(data, kThreeLists);
  EXPECT_EQ(folder.Bytes(), FileOf(kThreeLists));
}

TEST(ListFile, EmptyFirstEntryBecomesNoListsAfterADeletion) {
  Folder folder(Lines{"", "x", "y", "<New List>", "A", "a", "1"});
  Lines data = LoadWholeFile(kFile);
  DeleteListLines(kFile, data, "A");
  EXPECT_EQ(folder.Bytes(), FileOf({"No Lists", "x", "y"}));
}

TEST(RemoveListLines, EmptyNameIsFoundPastTheEnd) {
  Lines data = {"A", "a", "1"};
  RemoveListLines(data, "");
  EXPECT_EQ(data, (Lines{"A", "a"}));  // nothing stands at the end, but an entry before it does
  Lines nothing;
  RemoveListLines(nothing, "");
  EXPECT_EQ(nothing, Lines{});
}

TEST(RemoveListLines, EmptyNameIsFoundAtAnEmptyLine) {
  Lines data = {"A", "a", "", "b", "", "<New List>", "B"};
  RemoveListLines(data, "");
  EXPECT_EQ(data, (Lines{"A", "<New List>", "B"}));
}

TEST(RemoveListLines, UnknownNameOverflowsInAnyData) {
  Lines nothing;
  EXPECT_FAULT(6, RemoveListLines(nothing, "A"));
  Lines full(32767, "x");
  EXPECT_FAULT(6, RemoveListLines(full, "A"));
  EXPECT_EQ(full.size(), 32767u);
}

TEST(RemoveListLines, ReachesTheLastEntryThatCanBeCounted) {
  Lines data(32766, "x");
  data.push_back("A");
  RemoveListLines(data, "A");
  EXPECT_EQ(data.size(), 32765u);  // the name, and the entry before it
  // Past the end of a full list stands entry 32,767, which the counter still holds.
  Lines full(32767, "x");
  RemoveListLines(full, "");
  EXPECT_EQ(full.size(), 32766u);
}

TEST(StripLeadingLines, TakesEmptyLinesAndSeparatorsFromTheTopAlone) {
  Lines data = {"", "<New List>", "", "A", "", "<New List>", "B"};
  StripLeadingLines(data);
  EXPECT_EQ(data, (Lines{"A", "", "<New List>", "B"}));
  StripLeadingLines(data);
  EXPECT_EQ(data, (Lines{"A", "", "<New List>", "B"}));
}

TEST(StripLeadingLines, EndsWhenNothingIsLeft) {
  Lines nothing;
  StripLeadingLines(nothing);
  EXPECT_EQ(nothing, Lines{});
  Lines only_such = {"", "<New List>", ""};
  StripLeadingLines(only_such);
  EXPECT_EQ(only_such, Lines{});
}

// --- Limits -------------------------------------------------------------------------------

TEST(ListFileLimits, WholeFileHasAtMost32767Lines) {
  Folder folder(Lines(32767, "x"));
  EXPECT_EQ(LoadWholeFile(kFile).size(), 32767u);
  folder.Put(FileOf(Lines(32768, "x")));
  EXPECT_FAULT(6, LoadWholeFile(kFile));
}

TEST(ListFileLimits, LongerFileCanBeReadButNotRewritten) {
  // A name, 16,384 pairs: 32,769 lines.
  Lines lines = Joined({"Long"}, Pairs(16384));
  Folder folder(lines);
  EXPECT_EQ(FillListNames(kFile), Lines{"Long"});
  EXPECT_EQ(CountListWords(kFile, "Long"), 16384);
  EXPECT_EQ(LoadListWords(kFile, "Long", 16384).words.back(), "w16383");
  Integer count;
  EXPECT_EQ(LoadListForEdit(kFile, "Long", count).meanings.back(), "m16383");
  EXPECT_EQ(count, 16384);

  EXPECT_FAULT(6, SaveNewList(kFile, {"<New List>", "A"}));
  EXPECT_FAULT(6, SaveEditedList(kFile, "Long", "Long", {"a"}, {"1"}));
  EXPECT_EQ(folder.Bytes(), FileOf(lines));
}

TEST(ListFileLimits, RewrittenFileMayHave32767LinesAndNoMore) {
  Lines lines = Joined({"Long"}, Pairs(16381));  // 32,763 lines
  Folder folder(lines);
  SaveNewList(kFile, {"<New List>", "A", "a", "1"});
  EXPECT_EQ(LoadWholeFile(kFile).size(), 32767u);
  std::string full = folder.Bytes();

  EXPECT_FAULT(6, SaveNewList(kFile, {"<New List>"}));
  EXPECT_FAULT(6, SaveEditedList(kFile, "A", "A", {"a", "b"}, {"1", "2"}));
  EXPECT_EQ(folder.Bytes(), full);
  SaveEditedList(kFile, "A", "A", {"b"}, {"2"});
  EXPECT_EQ(folder.Bytes(), FileOf(Joined(lines, {"<New List>", "A", "b", "2"})));
}

TEST(ListFileLimits, CountOverflowsBehind32767Words) {
  Lines lines = Joined({"Long"}, Pairs(32767));
  Folder folder(lines);
  Integer count;
  EXPECT_EQ(CountListWords(kFile, "Long"), 32767);
  EXPECT_EQ(LoadListForEdit(kFile, "Long", count).words.size(), 32767u);
  EXPECT_EQ(LoadListWords(kFile, "Long", 32767).words.size(), 32767u);

  folder.Put(FileOf(Joined({"Long"}, Pairs(32768))));
  EXPECT_FAULT(6, CountListWords(kFile, "Long"));
  EXPECT_FAULT(6, LoadListForEdit(kFile, "Long", count));

  // The separator is counted before it is counted back.
  folder.Put(FileOf(Joined(lines, {"<New List>", "Next"})));
  EXPECT_FAULT(6, CountListWords(kFile, "Long"));
}

TEST(ListFileLimits, ListOfMoreThan300WordsIsMadeAndEdited) {
  Folder folder(Lines{"No Lists"});
  SaveNewList(kFile, Joined({"Long"}, Pairs(301)));
  Integer count;
  WordPairs pairs = LoadListForEdit(kFile, "Long", count);
  EXPECT_EQ(count, 301);
  SaveEditedList(kFile, "Long", "Long", pairs.words, pairs.meanings);
  EXPECT_EQ(folder.Bytes(), FileOf(Joined({"Long"}, Pairs(301))));
}

// --- Files that can't be read -------------------------------------------------------------

// Every reader and writer, each of which begins by reading the file.
void ExpectAllToFail(int number, const char* path) {
  Integer count;
  EXPECT_FAULT(number, FillListNames(path));
  EXPECT_FAULT(number, CountListWords(path, "A"));
  EXPECT_FAULT(number, LoadListWords(path, "A", 1));
  EXPECT_FAULT(number, LoadListForEdit(path, "A", count));
  EXPECT_FAULT(number, ReadFirstLine(path));
  EXPECT_FAULT(number, LoadWholeFile(path));
  EXPECT_FAULT(number, SaveNewList(path, {"A"}));
  EXPECT_FAULT(number, SaveEditedList(path, "A", "A", {}, {}));
}

TEST(ListFileFailure, MissingFile) {
  TempFolder folder;
  ExpectAllToFail(53, kFile);
  ExpectAllToFail(76, "none\\TheLists.dat");
  EXPECT_TRUE(std::filesystem::is_empty(folder.Path()));
}

TEST(ListFileFailure, FolderInPlaceOfTheFile) {
  TempFolder folder;
  std::filesystem::create_directory(kFile);
  ExpectAllToFail(75, kFile);
}

TEST(ListFileFailure, EmptyFileHasNoFirstLine) {
  Folder folder(""s);
  EXPECT_FAULT(62, FillListNames(kFile));
  EXPECT_FAULT(62, ReadFirstLine(kFile));
  EXPECT_FAULT(62, CountListWords(kFile, "A"));
  SaveNewList(kFile, {"<New List>", "A"});
  EXPECT_EQ(folder.Bytes(), "A\r\n");
}

TEST(ListFileFailure, FileThatEndsOnASeparator) {
  Folder folder(Lines{"A", "a", "1", "<New List>"});
  EXPECT_FAULT(62, FillListNames(kFile));
  EXPECT_FAULT(62, CountListWords(kFile, "A"));
  Integer count;
  EXPECT_FAULT(62, LoadListForEdit(kFile, "A", count));
}

TEST(ListFileFailure, WordWithoutAMeaningAtTheEndOfTheFile) {
  Folder folder(Lines{"A", "a", "1", "b"});
  Integer count;
  EXPECT_FAULT(62, CountListWords(kFile, "A"));
  EXPECT_FAULT(62, LoadListForEdit(kFile, "A", count));
  EXPECT_FAULT(62, LoadListWords(kFile, "A", 2));
  EXPECT_EQ(LoadListWords(kFile, "A", 1).words, Lines{"a"});
}

TEST(ListFileFailure, NameThatIsNotInTheFile) {
  Folder folder(kThreeLists);
  Integer count;
  EXPECT_FAULT(62, CountListWords(kFile, "Pets"));
  EXPECT_FAULT(62, LoadListWords(kFile, "Pets", 0));
  EXPECT_FAULT(62, LoadListForEdit(kFile, "Pets", count));
}

TEST(ListFileFailure, CountLargerThanTheFile) {
  Folder folder(kThreeLists);
  EXPECT_FAULT(62, LoadListWords(kFile, "Colours", 4));
}

TEST(ListFileFailure, FullDisk) {
  TempFolder folder;
  std::filesystem::create_symlink("/dev/full", kFile);
  Lines data = {"A", "<New List>", "B"};
  EXPECT_FAULT(61, DeleteListLines(kFile, data, "B"));
}

// --- Any file, beside a plain model of what each routine does, step by step ------------------

namespace model {

struct Fail {
  int number;
};

Lines Split(const std::string& bytes) {
  Lines lines;
  std::string line;
  bool open = false;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    if (bytes[i] == '\r' || bytes[i] == '\n') {
      if (bytes[i] == '\r' && i + 1 < bytes.size() && bytes[i + 1] == '\n') ++i;
      lines.push_back(line);
      line.clear();
      open = false;
    } else {
      line += bytes[i];
      open = true;
    }
  }
  if (open) lines.push_back(line);
  return lines;
}

class Input {
 public:
  explicit Input(const std::string& bytes) : lines_(Split(bytes)) {}
  bool Ended() const { return next_ == lines_.size(); }
  std::string Line() {
    if (Ended()) throw Fail{62};
    return lines_[next_++];
  }

 private:
  Lines lines_;
  std::size_t next_ = 0;
};

Lines Names(const std::string& bytes) {
  Input input(bytes);
  Lines names = {input.Line()};
  while (!input.Ended()) {
    if (input.Line() == "<New List>") names.push_back(input.Line());
  }
  return names;
}

int ForEdit(const std::string& bytes, const std::string& name, Lines& words, Lines& meanings) {
  Input input(bytes);
  std::string current = input.Line();
  while (current != name) current = input.Line();
  int n = 0;
  while (current != "<New List>" && !input.Ended()) {
    n = n + 1;
    current = input.Line();
    words.push_back(current);
    meanings.push_back(input.Line());
  }
  if (current == "<New List>") n = n - 1;
  return n;
}

Lines Words(const std::string& bytes, const std::string& name, int count) {
  Input input(bytes);
  while (input.Line() != name) {
  }
  Lines both;
  for (int i = 1; i <= 2 * count; ++i) both.push_back(input.Line());
  return both;
}

std::string Entry(const Lines& data, int i) {
  return i < static_cast<int>(data.size()) ? data[static_cast<std::size_t>(i)] : "";
}

void Remove(Lines& data, const std::string& name) {
  int i = 0;
  while (Entry(data, i) != name) {
    // Past the end there is nothing but "", up to the counter's overflow.
    if (i == static_cast<int>(data.size())) throw Fail{6};
    i = i + 1;
  }
  while (Entry(data, i) != "<New List>" && i != static_cast<int>(data.size())) {
    data.erase(data.begin() + i);
  }
  if (i > 0) data.erase(data.begin() + i - 1);
}

void Strip(Lines& data) {
  while (!data.empty() && (data[0] == "" || data[0] == "<New List>")) data.erase(data.begin());
}

std::string New(const std::string& bytes, const Lines& temp_list) {
  Lines data = Split(bytes);
  for (const std::string& line : temp_list) data.push_back(line);
  Strip(data);
  if (Entry(data, 0) == "No Lists") data.erase(data.begin());
  return FileOf(data);
}

std::string Edited(const std::string& bytes, const std::string& name) {
  Lines data = Split(bytes);
  Remove(data, name);
  for (const char* line : {"<New List>", "Caption", "w", "m"}) data.push_back(line);
  Strip(data);
  return FileOf(data);
}

std::string Deleted(const std::string& bytes, const std::string& name) {
  Lines data = Split(bytes);
  Remove(data, name);
  if (data.empty()) data.push_back("");
  if (data[0] == "") data[0] = "No Lists";
  return FileOf(data);
}

}  // namespace model

std::string Told(const Lines& lines) {
  std::string told = std::to_string(lines.size()) + " lines:";
  for (const std::string& line : lines) told += "[" + line + "]";
  return told;
}

// What a routine gave, or the error it ended with.
std::string Outcome(const std::function<std::string()>& routine) {
  try {
    return routine();
  } catch (const RunTimeError& error) {
    return "error " + std::to_string(error.Number());
  } catch (const model::Fail& error) {
    return "error " + std::to_string(error.number);
  }
}

void ExpectSameOutcome(const std::function<std::string()>& program,
                       const std::function<std::string()>& plain) {
  EXPECT_EQ(Outcome(program), Outcome(plain));
}

void CompareNameReaders(const std::string& bytes, const std::string& name) {
  auto count_words = [&] { return std::to_string(CountListWords(kFile, name)); };
  ExpectSameOutcome(count_words, [&] {
    Lines words, meanings;
    return std::to_string(model::ForEdit(bytes, name, words, meanings));
  });

  for (int count : {-1, 0, 1, 3}) {
    auto load = [&] {
      WordPairs pairs = LoadListWords(kFile, name, count);
      Lines both;
      for (std::size_t i = 0; i < pairs.words.size(); ++i) {
        both.push_back(pairs.words[i]);
        both.push_back(pairs.meanings.at(i));
      }
      return Told(both);
    };
    ExpectSameOutcome(load, [&] { return Told(model::Words(bytes, name, count)); });
  }

  auto load_for_edit = [&] {
    Integer count;
    WordPairs pairs = LoadListForEdit(kFile, name, count);
    return std::to_string(count) + Told(pairs.words) + Told(pairs.meanings);
  };
  ExpectSameOutcome(load_for_edit, [&] {
    Lines words, meanings;
    int count = model::ForEdit(bytes, name, words, meanings);
    if (count < 0) throw model::Fail{5};
    words.resize(static_cast<std::size_t>(count));
    meanings.resize(static_cast<std::size_t>(count));
    return std::to_string(count) + Told(words) + Told(meanings);
  });
}

// What a writer leaves in the file, and that it leaves the file alone when it fails.
void CompareWriter(Folder& folder, const std::string& bytes, const std::function<void()>& writer,
                   const std::function<std::string()>& plain) {
  std::string expected = Outcome(plain);
  std::string outcome = Outcome([&] {
    writer();
    return folder.Bytes();
  });
  EXPECT_EQ(outcome, expected);
  if (outcome.starts_with("error ")) {
    EXPECT_EQ(folder.Bytes(), bytes);
  } else {
    folder.Put(bytes);
  }
}

void CompareWithModel(Folder& folder, const std::string& bytes, const Lines& names) {
  folder.Put(bytes);
  ExpectSameOutcome([] { return Told(FillListNames(kFile)); },
                    [&] { return Told(model::Names(bytes)); });
  ExpectSameOutcome([] { return Told(LoadWholeFile(kFile)); },
                    [&] { return Told(model::Split(bytes)); });
  ExpectSameOutcome([] { return std::to_string(ReadFirstLine(kFile)); },
                    [&] {
                      std::string line = model::Input(bytes).Line();
                      return std::to_string(line == "" || line == "No Lists");
                    });

  const Lines temp_list = {"<New List>", "Fresh", "w", "m"};
  CompareWriter(
      folder, bytes, [&] { SaveNewList(kFile, temp_list); },
      [&] { return model::New(bytes, temp_list); });

  for (const std::string& name : names) {
    CompareNameReaders(bytes, name);
    CompareWriter(
        folder, bytes, [&] { SaveEditedList(kFile, name, "Caption", {"w"}, {"m"}); },
        [&] { return model::Edited(bytes, name); });
    CompareWriter(
        folder, bytes,
        [&] {
          Lines data = LoadWholeFile(kFile);
          DeleteListLines(kFile, data, name);
        },
        [&] { return model::Deleted(bytes, name); });
  }
}

TEST(AnyListFile, FilesOfLikelyLinesAreReadAndWrittenStepByStep) {
  const Lines texts = {"A", "B", "w", "<New List>", "<New List>", "No Lists", "", "two words"};
  const Lines ends = {"\r\n", "\r\n", "\r\n", "\n", "\r"};
  std::mt19937 random(1);
  Folder folder;
  for (int file = 0; file < 2000; ++file) {
    std::string bytes;
    for (std::size_t lines = random() % 14; lines > 0; --lines) {
      bytes += texts[random() % texts.size()];
      // One file in two has the ends of a well-formed file alone.
      bytes += ends[random() % (file % 2 == 0 ? 1 : ends.size())];
    }
    if (file % 3 == 0) bytes = bytes.substr(0, random() % (bytes.size() + 1));
    CompareWithModel(folder, bytes, {texts[random() % texts.size()]});
    ASSERT_FALSE(HasFailure()) << "file " << file << ":\n" << bytes;
  }
}

TEST(AnyListFile, FilesOfRandomBytesAreReadOrRefused) {
  std::mt19937 random(2);
  Folder folder;
  for (int file = 0; file < 100; ++file) {
    std::string bytes(random() % 3000, '\0');
    for (char& byte : bytes) byte = static_cast<char>(random());
    Lines lines = model::Split(bytes);
    Lines names = {"A"};
    if (!lines.empty()) names.push_back(lines[random() % lines.size()]);
    CompareWithModel(folder, bytes, names);
    ASSERT_FALSE(HasFailure()) << "file " << file;
  }
}

TEST(AnyListFile, FileCutAtAnyByteIsReadOrRefused) {
  std::string whole = FileOf({"Planets", "Mars", "red", "<New List>", "Animals", "<New List>",
                              "Twin", "cat", "purrs", "dog", ""});
  Folder folder;
  for (std::size_t length = 0; length <= whole.size(); ++length) {
    CompareWithModel(folder, whole.substr(0, length), {"Planets", "Animals", "Twin", "<New List>"});
    ASSERT_FALSE(HasFailure()) << "cut at " << length;
  }
}

TEST(AnyListFile, OneEndlessLineIsOneName) {
  std::string endless(10 << 20, 'x');
  Folder folder(endless);
  EXPECT_EQ(FillListNames(kFile), Lines{endless});
  EXPECT_EQ(CountListWords(kFile, endless), 0);
  EXPECT_FAULT(62, CountListWords(kFile, "A"));
  EXPECT_FALSE(ReadFirstLine(kFile));
  SaveNewList(kFile, {"<New List>", "A"});
  EXPECT_EQ(folder.Bytes(), endless + "\r\n<New List>\r\nA\r\n");
  SaveEditedList(kFile, endless, "B", {}, {});
  EXPECT_EQ(folder.Bytes(), "A\r\n<New List>\r\nB\r\n");
}

TEST(AnyListFile, FileWithoutLineEndsIsOneName) {
  Folder folder("Planets<New List>No Lists\x1A\0\t"s);
  EXPECT_EQ(FillListNames(kFile), Lines{"Planets<New List>No Lists\x1A\0\t"s});
}

TEST(AnyListFile, FileOfLineEndsAloneIsReadOrRefused) {
  Folder folder(std::string(100000, '\n'));
  EXPECT_EQ(FillListNames(kFile), Lines{""});
  EXPECT_TRUE(ReadFirstLine(kFile));
  EXPECT_FAULT(6, LoadWholeFile(kFile));
  EXPECT_FAULT(6, CountListWords(kFile, ""));
}

}  // namespace
}  // namespace brindlepage::list_file
