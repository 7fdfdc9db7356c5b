#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "toolkit/random_source.h"

namespace brindlepage::walk {

// One command made more draws than it may: the program would stop responding.
struct NotResponding {};

// The random numbers of a walk: the program's own generator until the script gives a seed or the
// very draws. It counts what is asked of it, from the start of the walk.
class WalkRandom : public DrawByDraw {
 public:
  // `draw_limit`: how many draws one command may make.
  explicit WalkRandom(std::int64_t draw_limit);

  // From here on reseeding has no effect but is counted.
  void Seed(std::uint64_t seed);
  void GiveDraws(std::vector<float> draws);

  void BeginCommand() { drawn_by_command_ = 0; }
  std::int64_t Draws() const { return draws_; }
  std::int64_t Reseeds() const { return reseeds_; }

  void Reseed() override;

 private:
  // Throws NotResponding at the limit, and ScriptError when the given draws are used up.
  float Draw() override;

  std::unique_ptr<RandomSource> source_;
  std::int64_t draw_limit_;
  std::int64_t drawn_by_command_ = 0;
  std::int64_t draws_ = 0;
  std::int64_t reseeds_ = 0;
};

}  // namespace brindlepage::walk
