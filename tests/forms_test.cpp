#include "toolkit/forms.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "core/program.h"
#include "tests/teacher.h"

namespace brindlepage {
namespace {

constexpr Screen kFirst = Screen::Title;
constexpr Screen kSecond = Screen::ChooseList;
constexpr Screen kThird = Screen::PickWords;

// A form whose events are written down, and do what the test says.
class Page : public ProgramForm {
 public:
  Page(Program& owner, Screen screen, std::vector<std::string>& log)
      : ProgramForm(owner, screen, "Page" + std::to_string(static_cast<int>(screen)), "A page"),
        log_(log) {
    Go.Click = [this] {
      if (on_click) on_click();
    };
  }
  ~Page() override { log_.push_back(Name() + " destroyed"); }

  CommandButton Go{*this, "Go", "Go"};
  Timer Timer1{*this, "Timer1", 10, false};
  std::function<void()> on_click;
  std::optional<Screen> leads_to;

  std::optional<Screen> Successor() const override { return leads_to; }

  using ProgramForm::StepTo;
  using ProgramForm::Unload;

  static inline std::function<void(Page&)> on_load;
  static inline std::function<void(Page&)> on_activate;
  static inline std::function<void(Page&)> on_deactivate;

 private:
  void Load() override {
    log_.push_back(Name() + " load");
    if (on_load) on_load(*this);
  }
  void Activate() override {
    log_.push_back(Name() + " activate");
    if (on_activate) on_activate(*this);
  }
  void Deactivate() override {
    log_.push_back(Name() + " deactivate");
    if (on_deactivate) on_deactivate(*this);
  }
  void Resize() override { log_.push_back(Name() + " resize"); }
  void Closing() override { log_.push_back(Name() + " closing"); }

  std::vector<std::string>& log_;
};

class FormsTest : public ::testing::Test {
 protected:
  ~FormsTest() override {
    Page::on_load = nullptr;
    Page::on_activate = nullptr;
    Page::on_deactivate = nullptr;
  }
  Page& At(Screen screen) { return *program.forms().Find<Page>(screen); }
  void Show(Screen screen) {
    program.Dispatch([&] { program.forms().Show(screen); });
  }
  std::vector<std::string> TakeLog() { return std::exchange(log, {}); }

  std::vector<std::string> log;
  NotingPlatform platform;
  SeededRandom random{1};
  Program program{platform, random,
                  [this](Screen id) { return std::make_unique<Page>(program, id, log); }};
};

using Log = std::vector<std::string>;

TEST_F(FormsTest, ShowingAFormLoadsItAtOnceAndMakesItActive) {
  Show(kFirst);
  EXPECT_EQ(log, (Log{"Page0 load", "Page0 activate"}));
  EXPECT_EQ(program.forms().Active(), &At(kFirst));
}

TEST_F(FormsTest, TheNextScreenLoadsWhileTheOldOneStillStands) {
  Show(kFirst);
  TakeLog();
  program.Dispatch([&] { At(kFirst).StepTo(kSecond); });
  EXPECT_EQ(log, (Log{"Page3 load", "Page0 deactivate", "Page3 activate", "Page0 destroyed"}));
}

TEST_F(FormsTest, AFormThatUnloadsItselfLivesUntilItsHandlerReturns) {
  Show(kFirst);
  TakeLog();
  Page& page = At(kFirst);
  page.on_click = [&] {
    program.forms().Show(kSecond);
    page.Unload();
    log.push_back("still there: " + page.Name());
  };
  program.Dispatch([&] { page.Go.UserClick(); });
  EXPECT_EQ(log.back(), "Page0 destroyed");
  EXPECT_EQ(*(log.end() - 2), "still there: Page0");
}

TEST_F(FormsTest, AFormUnloadedInANestedHandlerLivesUntilTheOutermostReturns) {
  Show(kFirst);
  Show(kSecond);
  TakeLog();
  platform.while_box_is_open = [&] {
    program.Dispatch([&] { At(kFirst).Unload(); });
    log.push_back("box closes");
  };
  program.Dispatch([&] { program.MsgBox("text", "title"); });
  EXPECT_EQ(log, (Log{"box closes", "Page0 destroyed"}));
}

TEST_F(FormsTest, AFormUnloadedInItsOwnLoadIsNotShown) {
  Show(kFirst);
  Page::on_load = [](Page& page) { page.Unload(); };
  TakeLog();
  Show(kSecond);
  EXPECT_EQ(log, (Log{"Page3 load", "Page3 destroyed"}));
  EXPECT_EQ(program.forms().Active(), &At(kFirst));
}

TEST_F(FormsTest, AFormThatShowsItselfInItsLoadComesUpWhenTheLoadIsDone) {
  Page::on_load = [this](Page& page) {
    program.forms().Show(page.id());
    EXPECT_FALSE(page.Visible);
  };
  program.Dispatch([&] { program.forms().Load(kFirst); });
  EXPECT_TRUE(At(kFirst).Visible);
  EXPECT_EQ(log, (Log{"Page0 load", "Page0 activate"}));
}

TEST_F(FormsTest, AFormThatShowsAndUnloadsItselfInItsLoadStaysAway) {
  Show(kFirst);
  Page::on_load = [this](Page& page) {
    program.forms().Show(page.id());
    page.Unload();
  };
  Show(kSecond);
  EXPECT_EQ(program.forms().Find(kSecond), nullptr);
}

TEST_F(FormsTest, HidingTheActiveFormActivatesTheOneShownLastBeforeIt) {
  Show(kFirst);
  Show(kSecond);
  Show(kThird);
  Show(kFirst);
  TakeLog();
  program.Dispatch([&] { program.forms().Hide(kFirst); });
  EXPECT_EQ(program.forms().Active(), &At(kThird));
  EXPECT_EQ(log, (Log{"Page5 activate"}));
}

TEST_F(FormsTest, ActivatingAFormTakesTheActivationFromTheOther) {
  Show(kFirst);
  Show(kSecond);
  TakeLog();
  program.Dispatch([&] { program.forms().Activate(At(kFirst)); });
  EXPECT_EQ(log, (Log{"Page3 deactivate", "Page0 activate"}));
}

TEST_F(FormsTest, AFormThatUnloadsOnLosingTheActivationLeavesTheOtherActive) {
  Page::on_deactivate = [](Page& page) {
    if (page.id() == kSecond) page.Unload();
  };
  Show(kFirst);
  Show(kSecond);
  program.Dispatch([&] { program.forms().Activate(At(kFirst)); });
  EXPECT_EQ(program.forms().Find(kSecond), nullptr);
  EXPECT_EQ(program.forms().Active(), &At(kFirst));
}

TEST_F(FormsTest, ClosingTheLastFrameEndsTheProgram) {
  Show(kFirst);
  program.Dispatch([&] { program.forms().Close(At(kFirst)); });
  EXPECT_TRUE(program.Ended());
  EXPECT_EQ(program.Status(), 0);
}

TEST_F(FormsTest, ClosingAFrameWhileAnotherFormIsShownDoesNotEndTheProgram) {
  Show(kFirst);
  Show(kSecond);
  program.Dispatch([&] { program.forms().Close(At(kSecond)); });
  EXPECT_FALSE(program.Ended());
  EXPECT_EQ(program.forms().Active(), &At(kFirst));
}

TEST_F(FormsTest, AHiddenFormWithARunningTimerKeepsTheProgramAlive) {
  Show(kFirst);
  program.Dispatch([&] {
    At(kFirst).Timer1.Enabled = true;
    program.forms().Hide(kFirst);
  });
  EXPECT_FALSE(program.Ended());
  program.Dispatch([&] { At(kFirst).Timer1.Enabled = false; });
  EXPECT_TRUE(program.Ended());
}

TEST_F(FormsTest, UnloadingAFormThatIsNotLoadedDoesNothing) {
  Show(kFirst);
  program.Dispatch([&] { program.forms().Unload(kSecond); });
  EXPECT_EQ(program.forms().Loaded().size(), 1u);
}

TEST_F(FormsTest, AFormThatIsMadeAheadIsTheOneThatIsLoaded) {
  Show(kFirst);
  EXPECT_EQ(program.forms().MakeAhead(), nullptr);  // it leads nowhere
  At(kFirst).leads_to = kSecond;
  TakeLog();
  Form* ahead = program.forms().MakeAhead();
  ASSERT_NE(ahead, nullptr);
  EXPECT_EQ(ahead->id(), kSecond);
  EXPECT_EQ(log, Log());
  EXPECT_EQ(program.forms().Find(kSecond), nullptr);
  EXPECT_EQ(program.forms().Loaded().size(), 1u);
  EXPECT_EQ(program.forms().MakeAhead(), nullptr);  // it is made

  Show(kSecond);
  EXPECT_EQ(program.forms().Find(kSecond), ahead);
  EXPECT_EQ(log, (Log{"Page3 load", "Page0 deactivate", "Page3 activate"}));
  program.Dispatch([&] { program.forms().Activate(At(kFirst)); });
  EXPECT_EQ(program.forms().MakeAhead(), nullptr);  // it is loaded
}

TEST_F(FormsTest, AFormThatWasMadeAheadGoesForAnother) {
  Show(kFirst);
  At(kFirst).leads_to = kSecond;
  program.forms().MakeAhead();
  At(kFirst).leads_to = kThird;
  TakeLog();
  platform.events.clear();
  Form* ahead = program.forms().MakeAhead();
  ASSERT_NE(ahead, nullptr);
  EXPECT_EQ(ahead->id(), kThird);
  EXPECT_EQ(log, (Log{"Page3 destroyed"}));
  EXPECT_EQ(platform.events, (Log{"unloaded Page3"}));
}

TEST_F(FormsTest, TheTimersOfAFormThatIsMadeAheadWaitForItsLoad) {
  Show(kFirst);
  At(kFirst).leads_to = kSecond;
  auto& ahead = dynamic_cast<Page&>(*program.forms().MakeAhead());
  int ticks = 0;
  ahead.Timer1.Tick = [&] { ++ticks; };
  ahead.Timer1.Enabled = true;
  const auto pass = [&](int milliseconds) {
    platform.clock += milliseconds;
    program.FireTimers();
  };
  pass(1);
  pass(100);
  EXPECT_EQ(ticks, 0);
  Show(kSecond);
  pass(9);
  EXPECT_EQ(ticks, 0);
  pass(1);
  EXPECT_EQ(ticks, 1);
}

TEST_F(FormsTest, AFormThatIsMadeAheadDoesNotKeepTheProgramAlive) {
  Show(kFirst);
  At(kFirst).leads_to = kSecond;
  dynamic_cast<Page&>(*program.forms().MakeAhead()).Timer1.Enabled = true;
  program.Dispatch([&] { At(kFirst).Unload(); });
  EXPECT_TRUE(program.Ended());
}

TEST_F(FormsTest, TheTimersOfAnUnloadedFormStop) {
  Show(kFirst);
  Show(kSecond);
  int ticks = 0;
  platform.while_box_is_open = [&] {
    program.Dispatch([&] { At(kFirst).Unload(); });
    platform.clock += 100;
    program.FireTimers();
  };
  program.Dispatch([&] {
    At(kFirst).Timer1.Tick = [&] { ++ticks; };
    At(kFirst).Timer1.Enabled = true;
  });
  program.Dispatch([&] { program.MsgBox("text", "title"); });
  EXPECT_EQ(ticks, 0);
}

TEST_F(FormsTest, MaximisingRaisesTheResizeEventWithTheScreensSize) {
  Show(kFirst);
  TakeLog();
  program.Dispatch([&] { At(kFirst).WindowState = kMaximised; });
  EXPECT_EQ(log, (Log{"Page0 resize"}));
  EXPECT_EQ(At(kFirst).Width, 15360);
  EXPECT_EQ(At(kFirst).Height, 11520);
}

TEST_F(FormsTest, EndingTheProgramRunsNothingElseOfTheHandler) {
  Show(kFirst);
  bool went_on = false;
  program.Dispatch([&] {
    program.End();
    went_on = true;
  });
  EXPECT_TRUE(program.Ended());
  EXPECT_FALSE(went_on);
}

TEST_F(FormsTest, EndingTheProgramBehindABoxUnwindsTheHandlerThatWaits) {
  Show(kFirst);
  bool went_on = false;
  platform.while_box_is_open = [&] { program.Dispatch([&] { program.End(); }); };
  program.Dispatch([&] {
    program.MsgBox("text", "title");
    went_on = true;
  });
  EXPECT_TRUE(program.Ended());
  EXPECT_FALSE(went_on);
}

TEST_F(FormsTest, ARunTimeErrorIsShownAndEndsTheProgramWithStatus1) {
  Show(kFirst);
  program.Dispatch([] { throw RunTimeError(Fault::Subscript); });
  EXPECT_EQ(platform.log, (Log{"error 9 Subscript out of range"}));
  EXPECT_TRUE(program.Ended());
  EXPECT_EQ(program.Status(), 1);
}

TEST_F(FormsTest, AFormWhoseLoadFailsIsNotThereAndCanBeLoadedAnew) {
  Show(kFirst);
  Page::on_load = [](Page& page) {
    page.Timer1.Enabled = true;
    throw RunTimeError(Fault::FileNotFound);
  };
  program.Dispatch([&] {
    try {
      program.forms().Show(kSecond);
      ADD_FAILURE() << "the fault did not come through";
    } catch (const RunTimeError&) {
    }
    EXPECT_EQ(program.forms().Find(kSecond), nullptr);
    EXPECT_EQ(program.forms().Active(), &At(kFirst));
  });
  EXPECT_FALSE(program.timers().NextDue());
  Page::on_load = nullptr;
  TakeLog();
  Show(kSecond);
  EXPECT_EQ(log, (Log{"Page3 load", "Page0 deactivate", "Page3 activate"}));
}

TEST_F(FormsTest, AFormIsUnloadedEvenIfTheOneThatComesToTheFrontFails) {
  Show(kFirst);
  Show(kSecond);
  Page::on_activate = [](Page&) { throw RunTimeError(Fault::InvalidCall); };
  platform.events.clear();
  program.Dispatch([&] {
    EXPECT_THROW(program.forms().Unload(kSecond), RunTimeError);
    EXPECT_EQ(program.forms().Find(kSecond), nullptr);
  });
  // The window system has heard of it before it is gone.
  EXPECT_EQ(std::count(platform.events.begin(), platform.events.end(), "unloaded Page3"), 1);
  EXPECT_EQ(log.back(), "Page3 destroyed");
}

TEST_F(FormsTest, AfterItsEndTheProgramRunsNoHandler) {
  Show(kFirst);
  program.Dispatch([&] { program.End(); });
  bool ran = false;
  program.Dispatch([&] { ran = true; });
  EXPECT_FALSE(ran);
}

}  // namespace
}  // namespace brindlepage
