#include "toolkit/timer.h"

#include "core/program.h"
#include "tests/teacher.h"

namespace brindlepage {
namespace {

class Clock : public ProgramForm {
 public:
  explicit Clock(Program& owner) : ProgramForm(owner, Screen::Title, "Clock", "Clock") {}
  Timer Fast{*this, "Fast", 100, true};
  Timer Slow{*this, "Slow", 250, false};
};

class TimerTest : public ::testing::Test {
 protected:
  TimerTest() {
    program.Dispatch([this] { program.forms().Show(Screen::Title); });
    clock = program.forms().Find<Clock>(Screen::Title);
    clock->Fast.Tick = [this] { log.push_back("fast " + std::to_string(platform.clock)); };
    clock->Slow.Tick = [this] { log.push_back("slow " + std::to_string(platform.clock)); };
  }
  void Pass(int milliseconds) {
    const Milliseconds end = platform.clock + milliseconds;
    while (program.timers().NextDue() && *program.timers().NextDue() <= end) {
      platform.clock = *program.timers().NextDue();
      program.FireTimers();
    }
    platform.clock = end;
  }

  std::vector<std::string> log;
  NotingPlatform platform;
  SeededRandom random{1};
  Program program{platform, random, [this](Screen) { return std::make_unique<Clock>(program); }};
  Clock* clock = nullptr;
};

using Log = std::vector<std::string>;

TEST_F(TimerTest, ATimerThatIsOnFromTheStartTicksAfterEachInterval) {
  Pass(250);
  EXPECT_EQ(log, (Log{"fast 100", "fast 200"}));
}

TEST_F(TimerTest, AnIntervalCountsFromWhenTheTimerWasEnabled) {
  Pass(50);
  program.Dispatch([&] { clock->Slow.Enabled = true; });
  Pass(260);
  EXPECT_EQ(log, (Log{"fast 100", "fast 200", "fast 300", "slow 300"}));
}

TEST_F(TimerTest, ANewIntervalCountsFromWhenItWasSet) {
  clock->Fast.Tick = [this] {
    log.push_back(std::to_string(platform.clock));
    clock->Fast.Interval = 30;
  };
  Pass(165);
  EXPECT_EQ(log, (Log{"100", "130", "160"}));
}

TEST_F(TimerTest, ADisabledTimerIsStill) {
  program.Dispatch([&] { clock->Fast.Enabled = false; });
  Pass(1000);
  EXPECT_EQ(log, Log{});
}

TEST_F(TimerTest, TimersGoOnWhileABoxIsOpen) {
  platform.while_box_is_open = [this] { Pass(100); };
  program.Dispatch([&] { program.MsgBox("text", "title"); });
  EXPECT_EQ(log, (Log{"fast 100"}));
}

TEST_F(TimerTest, ATimerThatFellBehindTicksOnceAndNotForEachMissedInterval) {
  platform.clock = 1000;
  program.FireTimers();
  program.FireTimers();
  EXPECT_EQ(log, (Log{"fast 1000"}));
  EXPECT_EQ(program.timers().NextDue(), 1100);
}

}  // namespace
}  // namespace brindlepage
