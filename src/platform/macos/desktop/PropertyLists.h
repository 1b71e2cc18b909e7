#pragma once

#include <optional>

#import <Foundation/Foundation.h>

#include "platform/PropertyValue.h"

namespace quorvel::macos {

// Values of a property list as Foundation has them. A date is none of the port's values and gives nothing; within
// arrays and dictionaries it is left out.
std::optional<PropertyValue> propertyValue(id object);

// An object of the surrounding autorelease pool.
id propertyListObject(const PropertyValue& value);

} // namespace quorvel::macos
