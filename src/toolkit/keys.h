#pragma once

namespace brindlepage {

// The keys that mean something to a control of their own; all others only type.
enum class Key {
  Enter,
  Escape,
  Space,
  Tab,
  Up,
  Down,
  Left,
  Right,
  Home,
  End,
  PageUp,
  PageDown,
  Delete,
  Other,
};

}  // namespace brindlepage
