#include "walk/walk_random.h"

#include <utility>

#include "walk/script.h"

namespace brindlepage::walk {

namespace {

// The draws that a script gives, in its order.
class GivenDraws : public DrawByDraw {
 public:
  explicit GivenDraws(std::vector<float> draws) : draws_(std::move(draws)) {}

  float Draw() override {
    if (next_ == draws_.size()) throw ScriptError("the draws are used up");
    return draws_[next_++];
  }
  void Reseed() override {}

 private:
  std::vector<float> draws_;
  std::size_t next_ = 0;
};

}  // namespace

WalkRandom::WalkRandom(std::int64_t draw_limit)
    : source_(std::make_unique<ClockRandom>()), draw_limit_(draw_limit) {}

void WalkRandom::Seed(std::uint64_t seed) { source_ = std::make_unique<SeededRandom>(seed); }

void WalkRandom::GiveDraws(std::vector<float> draws) {
  source_ = std::make_unique<GivenDraws>(std::move(draws));
}

float WalkRandom::Draw() {
  if (drawn_by_command_ == draw_limit_) throw NotResponding();
  const float draw = source_->NextRandom();
  ++drawn_by_command_;
  ++draws_;
  return draw;
}

void WalkRandom::Reseed() {
  source_->Reseed();
  ++reseeds_;
}

}  // namespace brindlepage::walk
