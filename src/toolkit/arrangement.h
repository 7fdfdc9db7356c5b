#pragma once

#include <utility>
#include <vector>

#include "toolkit/controls.h"

namespace brindlepage {

// How a screen's controls stand: a small tree that any window system can lay out.
//
//   Arrange(Column(Label7, Text1, Spring(), Row(Spring(), Command2, Command1)));
//
// Controls that stand in no arrangement are not shown.
struct Arrangement {
  enum class Kind { Column, Row, Grid, Framed, Control, Gap, Spring };

  Arrangement(Control& shown) : kind(Kind::Control), control(&shown) {}  // NOLINT: stands for it
  explicit Arrangement(Kind k) : kind(k) {}

  Kind kind;
  Control* control = nullptr;  // of Control and Framed
  int columns = 0;             // of Grid
  int weight = 0;              // its share of the room that is left over; 0: no more than it needs
  int width = 0;               // of Control: characters that should fit; 0: what its text needs
  std::vector<Arrangement> parts;
};

namespace arrangement_detail {
inline Arrangement Group(Arrangement::Kind kind, std::initializer_list<Arrangement> parts) {
  Arrangement group(kind);
  group.parts = parts;
  return group;
}
}  // namespace arrangement_detail

template <class... Parts>
Arrangement Column(Parts&&... parts) {
  return arrangement_detail::Group(Arrangement::Kind::Column, {Arrangement(parts)...});
}

template <class... Parts>
Arrangement Row(Parts&&... parts) {
  return arrangement_detail::Group(Arrangement::Kind::Row, {Arrangement(parts)...});
}

// Cells of equal width, row by row.
template <class... Parts>
Arrangement Grid(int columns, Parts&&... parts) {
  auto grid = arrangement_detail::Group(Arrangement::Kind::Grid, {Arrangement(parts)...});
  grid.columns = columns;
  return grid;
}

inline Arrangement Framed(Frame& frame, Arrangement inside) {
  auto framed = arrangement_detail::Group(Arrangement::Kind::Framed, {std::move(inside)});
  framed.control = &frame;
  return framed;
}

inline Arrangement Gap() { return Arrangement(Arrangement::Kind::Gap); }

// Takes up the room that is left over.
inline Arrangement Spring() {
  Arrangement spring(Arrangement::Kind::Spring);
  spring.weight = 1;
  return spring;
}

// The part takes a share of the room that is left over.
inline Arrangement Fill(Arrangement part, int weight = 1) {
  part.weight = weight;
  return part;
}

// The control has room for that many characters.
inline Arrangement Wide(int characters, Control& control) {
  Arrangement part(control);
  part.width = characters;
  return part;
}

}  // namespace brindlepage
