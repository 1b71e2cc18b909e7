#pragma once

#include <string>
#include <string_view>

#include "platform/Accessibility.h"
#include "platform/PropertyValue.h"

namespace quorvel {

// Values as the journal writes them.
std::string journalText(const PropertyValue& value);
std::string journalText(const AxValue& value);
std::string journalText(const AxElementRef& element);

} // namespace quorvel
