#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

#include "toolkit/numbers.h"

namespace brindlepage {

// What a state says when it is asked for by name. Texts are in Windows-1252.
using Value = std::variant<bool, long long, double, std::string>;

class AnyProperty;

// A control or a form: a name, and states that answer to theirs.
class PropertyOwner {
 public:
  explicit PropertyOwner(std::string name) : name_(std::move(name)) {}
  PropertyOwner(const PropertyOwner&) = delete;
  PropertyOwner& operator=(const PropertyOwner&) = delete;
  virtual ~PropertyOwner() = default;

  const std::string& Name() const { return name_; }
  // The state of that name, or nothing if there is none.
  virtual std::optional<Value> Find(std::string_view property) const;

  // Tells whoever shows this object that it looks different now.
  virtual void Changed() {}

 private:
  friend class AnyProperty;

  std::string name_;
  std::vector<const AnyProperty*> properties_;
};

class AnyProperty {
 public:
  AnyProperty(PropertyOwner& owner, const char* name);
  AnyProperty(const AnyProperty&) = delete;
  AnyProperty& operator=(const AnyProperty&) = delete;

  const char* Name() const { return name_; }
  virtual std::optional<Value> Ask() const = 0;

 protected:
  ~AnyProperty() = default;
  PropertyOwner& owner_;

 private:
  const char* name_;
};

// A state that is assigned like a variable and tells the owner's view when its value changed.
//
//   Label1.Caption = "Total words marked: 0";
//
// A hook, if there is one, runs after every assignment with the value from before.
template <class T>
class Property final : public AnyProperty {
 public:
  using Hook = std::function<void(const T& before)>;

  Property(PropertyOwner& owner, const char* name, T value = T(), Hook hook = nullptr)
      : AnyProperty(owner, name), value_(std::move(value)), hook_(std::move(hook)) {}

  Property& operator=(T value) {
    T before = std::exchange(value_, std::move(value));
    if (!(before == value_)) owner_.Changed();
    if (hook_) hook_(before);
    return *this;
  }
  Property& operator=(const Property& other) { return *this = other.value_; }
  // Sets the value without running the hook, for the hook's owner alone.
  void Put(T value) {
    T before = std::exchange(value_, std::move(value));
    if (!(before == value_)) owner_.Changed();
  }

  operator const T&() const { return value_; }  // NOLINT: stands for its value
  const T& operator()() const { return value_; }

  std::optional<Value> Ask() const override {
    if constexpr (std::is_same_v<T, bool>) {
      return Value(value_);
    } else if constexpr (std::is_floating_point_v<T>) {
      return Value(static_cast<double>(value_));
    } else if constexpr (std::is_enum_v<T> || std::is_integral_v<T> || std::is_same_v<T, Integer>) {
      return Value(static_cast<long long>(value_));
    } else if constexpr (std::is_convertible_v<T, std::string>) {
      return Value(std::string(value_));
    } else {
      return std::nullopt;
    }
  }

 private:
  T value_;
  Hook hook_;
};

// What a form does when something happens to a control.
template <class... Args>
class Event {
 public:
  template <class Handler>
  Event& operator=(Handler handler) {
    handler_ = std::move(handler);
    return *this;
  }
  explicit operator bool() const { return static_cast<bool>(handler_); }
  void operator()(Args... args) const {
    if (!handler_) return;
    // A copy, since the handler may unload the form that holds it.
    auto handler = handler_;
    handler(std::forward<Args>(args)...);
  }

 private:
  std::function<void(Args...)> handler_;
};

}  // namespace brindlepage
