#include "platform/macos/desktop/MacUserDefaults.h"

#include <map>
#include <string>
#include <utility>

#import <Foundation/Foundation.h>

#include "base/Signal.h"
#include "base/WeakGuard.h"
#include "platform/MainQueue.h"
#include "platform/macos/Retained.h"
#include "platform/macos/Strings.h"
#include "platform/macos/desktop/PropertyLists.h"

// Hears of changes of single keys, on whichever thread.
@interface QuorvelDefaultsObserver : NSObject {
@public
    std::function<void(std::string key)> changed;
}
@end

@implementation QuorvelDefaultsObserver

- (void)observeValueForKeyPath:(NSString*)key ofObject:(id)object change:(NSDictionary*)change context:(void*)context
{
    changed(quorvel::macos::utf8(key));
}

@end

namespace quorvel::macos {

namespace {

std::optional<PropertyValue> stored(NSUserDefaults* defaults, std::string_view key)
{
    @autoreleasepool {
        return propertyValue([defaults objectForKey:nsString(key)]);
    }
}

} // namespace

// The keys that were asked for, with the values that this program knows of them; whatever else is found there was
// written by somebody else. The system tells of single keys only, and of own changes, too.
class MacUserDefaults::Watch {
public:
    explicit Watch(MainQueue& mainQueue)
        : observer(Retained<QuorvelDefaultsObserver*>::adopt([[QuorvelDefaultsObserver alloc] init]))
    {
        observer.get()->changed = [&mainQueue, check = weakly.guard([this](const std::string& key) {
            check(key);
        })](const std::string& key) { mainQueue.async([check, key]() mutable { check(key); }); };
    }
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;

    ~Watch()
    {
        @autoreleasepool {
            for (const auto& [key, value] : known) {
                [defaults.get() removeObserver:observer.get() forKeyPath:nsString(key)];
            }
        }
    }

    void add(std::string_view key, const std::optional<PropertyValue>& value)
    {
        @autoreleasepool {
            if (known.emplace(key, value).second) {
                [defaults.get() addObserver:observer.get() forKeyPath:nsString(key) options:0 context:nullptr];
            }
        }
    }

    void isOwn(std::string_view key, std::optional<PropertyValue> value)
    {
        if (const auto entry = known.find(key); entry != known.end()) {
            entry->second = std::move(value);
        }
    }

    const Retained<NSUserDefaults*> defaults = Retained<NSUserDefaults*>::retain([NSUserDefaults standardUserDefaults]);
    Signal<std::string> foreignChange;

private:
    void check(const std::string& key)
    {
        auto value = stored(defaults.get(), key);
        auto& last = known.find(key)->second;
        if (value != last) {
            last = std::move(value);
            foreignChange.emit(key);
        }
    }

    std::map<std::string, std::optional<PropertyValue>, std::less<>> known;
    Retained<QuorvelDefaultsObserver*> observer;
    WeakGuard weakly;
};

MacUserDefaults::MacUserDefaults(MainQueue& mainQueue) : watch(std::make_unique<Watch>(mainQueue)) {}

MacUserDefaults::~MacUserDefaults() = default;

std::optional<PropertyValue> MacUserDefaults::object(std::string_view key) const
{
    auto value = stored(watch->defaults.get(), key);
    watch->add(key, value);
    return value;
}

void MacUserDefaults::setObject(std::string_view key, PropertyValue value)
{
    @autoreleasepool {
        watch->isOwn(key, value);
        [watch->defaults.get() setObject:propertyListObject(value) forKey:nsString(key)];
    }
}

void MacUserDefaults::removeObject(std::string_view key)
{
    @autoreleasepool {
        watch->isOwn(key, std::nullopt);
        [watch->defaults.get() removeObjectForKey:nsString(key)];
    }
}

Subscription MacUserDefaults::observeForeignChanges(std::function<void()> changed)
{
    return observeForeignKeys([changed = std::move(changed)](const std::string&) { changed(); });
}

Subscription MacUserDefaults::observeForeignKeys(std::function<void(const std::string& key)> changed)
{
    return watch->foreignChange.observe(std::move(changed));
}

} // namespace quorvel::macos
