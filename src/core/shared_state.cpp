#include "core/shared_state.h"

#include <type_traits>

namespace brindlepage {

namespace {

template <class T>
Value ToValue(const T& variable) {
  if constexpr (std::is_same_v<T, bool> || std::is_same_v<T, std::string>) {
    return Value(variable);
  } else if constexpr (std::is_floating_point_v<T>) {
    return Value(double{variable});
  } else {
    return Value(static_cast<long long>(variable));
  }
}

}  // namespace

std::optional<Value> SharedState::Find(std::string_view name, std::optional<int> index) const {
#define VARIABLE(Name) \
  if (name == #Name) return index ? std::nullopt : std::optional<Value>(ToValue(Name))
#define ARRAY(Name) \
  if (name == #Name) return index ? std::optional<Value>(ToValue(Name(*index))) : std::nullopt
  VARIABLE(ActivityKind);
  VARIABLE(CurrentListName);
  VARIABLE(QuizKind);
  VARIABLE(WordBankKind);
  VARIABLE(EasyPuzzle);
  VARIABLE(AnswerKeyWanted);
  VARIABLE(WorksheetTitle);
  VARIABLE(ReturnTag);
  VARIABLE(PictureReturn);
  VARIABLE(SavedWorksheetName);
  VARIABLE(ScrambleClues);
  VARIABLE(PuzzleAcross);
  VARIABLE(PuzzleDown);
  VARIABLE(ListWordCount);
  ARRAY(ListWords);
  ARRAY(ListMeanings);
  ARRAY(WordMarks);
  VARIABLE(MarkedCount);
  ARRAY(CrossMarks);
  ARRAY(AnswerTable);
  VARIABLE(ListFilePath);
  VARIABLE(ProgramDir);
  VARIABLE(QuickWordEnabled);
  VARIABLE(QuickWordPath);
  VARIABLE(RiddleText);
  VARIABLE(RiddleAnswer);
  ARRAY(CodedRiddles);
  ARRAY(CodedAnswers);
  VARIABLE(CodedRiddleCount);
  VARIABLE(CodedRiddleHint);
  VARIABLE(CrossSize);
  VARIABLE(BestPuzzle);
  VARIABLE(OrphansFlag);
  VARIABLE(RemakeRequest);
  VARIABLE(CaptureRequest);
  VARIABLE(AutoRows);
  VARIABLE(AutoCols);
  VARIABLE(NewListName);
  VARIABLE(WorkWord);
  VARIABLE(WorkMeaning);
  VARIABLE(ListDisplayName);
  VARIABLE(WordEdited);
  VARIABLE(WordDeleted);
  VARIABLE(WordAdded);
  VARIABLE(SelectedRow);
#undef VARIABLE
#undef ARRAY
  return std::nullopt;
}

}  // namespace brindlepage
