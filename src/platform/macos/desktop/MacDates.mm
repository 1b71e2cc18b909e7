#include "platform/macos/desktop/MacDates.h"

#import <Foundation/Foundation.h>

#include "platform/macos/Retained.h"
#include "platform/macos/Strings.h"

namespace quorvel::macos {

Date MacDates::now() const
{
    return {[NSDate timeIntervalSinceReferenceDate]};
}

std::string MacDates::mediumText(const Date& date) const
{
    @autoreleasepool {
        const auto formatter = Retained<NSDateFormatter*>::adopt([[NSDateFormatter alloc] init]);
        [formatter.get() setDateStyle:NSDateFormatterMediumStyle];
        [formatter.get() setTimeStyle:NSDateFormatterNoStyle];
        return utf8(
            [formatter.get() stringFromDate:[NSDate dateWithTimeIntervalSinceReferenceDate:date.secondsSince2001]]);
    }
}

} // namespace quorvel::macos
