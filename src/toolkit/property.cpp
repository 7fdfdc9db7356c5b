#include "toolkit/property.h"

namespace brindlepage {

AnyProperty::AnyProperty(PropertyOwner& owner, const char* name) : owner_(owner), name_(name) {
  owner.properties_.push_back(this);
}

std::optional<Value> PropertyOwner::Find(std::string_view property) const {
  for (const AnyProperty* candidate : properties_) {
    if (candidate->Name() == property) return candidate->Ask();
  }
  return std::nullopt;
}

}  // namespace brindlepage
