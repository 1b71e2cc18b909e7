#import <Foundation/Foundation.h>

#include "macos/fakes/FakeDesktop.h"

using quorvel::fakes::complain;
using quorvel::fakes::FakeDesktop;

// An observer, not retained, and the key that it watches.
@interface QuorvelObservation : NSObject {
@public
    id observer;
    NSString* key;
}
@end

@implementation QuorvelObservation

- (void)dealloc
{
    [key release];
    [super dealloc];
}

@end

@implementation NSUserDefaults

+ (NSUserDefaults*)standardUserDefaults
{
    auto& kept = FakeDesktop::current().userDefaults;
    if (!kept) {
        kept =
            std::shared_ptr<void>([[NSUserDefaults alloc] init], [](void* each) { [static_cast<id>(each) release]; });
    }
    return static_cast<NSUserDefaults*>(kept.get());
}

- (id)init
{
    self = [super init];
    values = [[NSMutableDictionary alloc] init];
    observations = [[NSMutableArray alloc] init];
    return self;
}

- (void)dealloc
{
    if ([observations count] > 0) {
        complain("Somebody still observes the defaults");
    }
    [values release];
    [observations release];
    [super dealloc];
}

- (id)objectForKey:(NSString*)key
{
    return [values objectForKey:key];
}

- (void)setObject:(id)object forKey:(NSString*)key
{
    if (![NSPropertyListSerialization propertyList:object isValidForFormat:NSPropertyListBinaryFormat_v1_0]) {
        complain("What is no property list cannot be kept in the defaults");
    }
    [values setObject:object forKey:key];
    [self tell:key];
}

- (void)removeObjectForKey:(NSString*)key
{
    [values removeObjectForKey:key];
    [self tell:key];
}

- (void)tell:(NSString*)key
{
    for (QuorvelObservation* each in [[observations copy] autorelease]) {
        if ([each->key isEqual:key]) {
            [each->observer observeValueForKeyPath:key ofObject:self change:@{} context:nullptr];
        }
    }
}

- (void)addObserver:(NSObject*)observer
         forKeyPath:(NSString*)key
            options:(NSKeyValueObservingOptions)options
            context:(void*)context
{
    QuorvelObservation* const observation = [[QuorvelObservation alloc] init];
    observation->observer = observer;
    observation->key = [key copy];
    [observations addObject:observation];
    [observation release];
}

- (void)removeObserver:(NSObject*)observer forKeyPath:(NSString*)key
{
    for (QuorvelObservation* each in [[observations copy] autorelease]) {
        if (each->observer == observer && [each->key isEqual:key]) {
            [observations removeObject:each];
        }
    }
}

@end
