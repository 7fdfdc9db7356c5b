#include "core/list_file.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "tests/expect_fault.h"
#include "tests/list_file_folder.h"
#include "tests/temp_folder.h"

namespace brindlepage::list_file {
namespace {

using namespace std::string_literals;

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

}  // namespace
}  // namespace brindlepage::list_file
