#import <Foundation/Foundation.h>
#import <Foundation/NSDebug.h>
#include <gtest/gtest.h>

#include "macos/compat/Blocks.h"
#include "macos/compat/SettingsFolder.h"
#include "macos/fakes/FakeDesktop.h"

namespace {

using namespace quorvel::fakes;

// How many objects of the program's own classes and of the fakes' there are, without what lives as long as the process.
int livingObjects()
{
    int count = 0;
    for (const Class* each = GSDebugAllocationClassList(); each != nullptr && *each != Nil; ++each) {
        NSString* const name = NSStringFromClass(*each);
        if ([name hasPrefix:@"Quorvel"] && ![name isEqual:@"QuorvelWorkspace"]) {
            count += GSDebugAllocationCount(*each);
        }
    }
    return count;
}

// Gives each test an autorelease pool, and fails one that leaves objects or references behind, gives back too many or
// was complained about.
class Bookkeeper final : public testing::EmptyTestEventListener {
public:
    void OnTestStart(const testing::TestInfo&) override
    {
        pool = [[NSAutoreleasePool alloc] init];
        GSDebugAllocationActive(YES);
        objectsBefore = livingObjects();
        referencesBefore = ownedReferences();
    }

    void OnTestEnd(const testing::TestInfo&) override
    {
        [pool release];
        EXPECT_EQ(ownedReferences(), referencesBefore) << "References to Core Foundation objects are out of balance";
        @autoreleasepool {
            EXPECT_EQ(livingObjects(), objectsBefore) << "Objective-C objects were left behind or released too often";
        }
        for (const auto& mistake : takeComplaints()) {
            ADD_FAILURE() << mistake;
        }
    }

private:
    NSAutoreleasePool* pool = nil;
    long referencesBefore = 0;
    int objectsBefore = 0;
};

} // namespace

// What GNUstep and the libraries below it keep for the life of the process. Objects of ours that leak pass through them
// as well, so the bookkeeper counts those.
extern "C" const char* __lsan_default_suppressions()
{
    return "leak:libobjc.so\n"
           "leak:libgnustep-base.so\n"
           "leak:libgnustep-gui.so\n"
           "leak:libgnustep-cairo\n"
           "leak:libfontconfig.so\n";
}

extern "C" const char* __lsan_default_options()
{
    return "print_suppressions=0";
}

int main(int argumentCount, char** arguments)
{
    const SettingsFolder settingsFolder;
    makeBlocksObjects();
    testing::InitGoogleTest(&argumentCount, arguments);
    testing::UnitTest::GetInstance()->listeners().Append(std::make_unique<Bookkeeper>().release());
    return RUN_ALL_TESTS();
}
