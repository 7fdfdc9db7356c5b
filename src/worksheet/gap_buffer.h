#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <memory>
#include <new>
#include <type_traits>

namespace brindlepage {

// A sequence with its spare room where the last change was, so that a change there costs what it
// inserts, and a change elsewhere the way to it. Positions are from 0 to Size() and not checked.
template <class T>
class GapBuffer {
  static_assert(std::is_trivially_copyable_v<T>);

 public:
  int Size() const { return capacity_ - gap_size_; }

  T& operator[](int position) { return store_[Place(position)]; }
  const T& operator[](int position) const { return store_[Place(position)]; }

  // Makes room for `count` elements in front of `position` and gives the first of them. The
  // caller fills them all before it calls anything else.
  T* Insert(int position, int count) {
    if (count > gap_size_) Grow(count);
    MoveGap(position);
    T* const inserted = store_.get() + gap_start_;
    gap_start_ += count;
    gap_size_ -= count;
    return inserted;
  }

  void Remove(int position, int count) {
    // A gap inside the stretch or beside it swallows the stretch where it is.
    if (gap_start_ >= position && gap_start_ <= position + count) {
      gap_start_ = position;
    } else {
      MoveGap(position);
    }
    gap_size_ += count;
  }

 private:
  static constexpr int kSmallest = 64;

  int Place(int position) const { return position < gap_start_ ? position : position + gap_size_; }

  void MoveGap(int position) {
    T* const store = store_.get();
    if (position < gap_start_) {
      std::copy_backward(store + position, store + gap_start_, store + gap_start_ + gap_size_);
    } else if (position > gap_start_) {
      std::copy(store + gap_start_ + gap_size_, store + position + gap_size_, store + gap_start_);
    }
    gap_start_ = position;
  }

  // Doubles, so that many small insertions cost no more than one large one. A large store is
  // extended where it lies, as far as the system can, instead of being copied.
  void Grow(int count) {
    const int tail = capacity_ - gap_start_ - gap_size_;
    const int capacity = std::max(kSmallest, 2 * (Size() + count));
    void* const grown = std::realloc(store_.get(), static_cast<std::size_t>(capacity) * sizeof(T));
    if (!grown) throw std::bad_alloc();
    static_cast<void>(store_.release());
    store_.reset(static_cast<T*>(grown));
    T* const old_end = store_.get() + capacity_;
    std::copy_backward(old_end - tail, old_end, store_.get() + capacity);
    gap_size_ += capacity - capacity_;
    capacity_ = capacity;
  }

  struct Free {
    void operator()(T* store) const { std::free(store); }
  };

  std::unique_ptr<T[], Free> store_;
  int capacity_ = 0;
  int gap_start_ = 0;
  int gap_size_ = 0;
};

}  // namespace brindlepage
