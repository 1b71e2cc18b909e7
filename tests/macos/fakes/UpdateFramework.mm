#include "platform/macos/desktop/UpdateFramework.h"

#include "macos/fakes/FakeDesktop.h"

using quorvel::fakes::complain;
using quorvel::fakes::FakeDesktop;

@implementation SPUUpdater

- (BOOL)automaticallyChecksForUpdates
{
    return FakeDesktop::current().desktop.updater.checksAutomatically ? YES : NO;
}

- (void)setAutomaticallyChecksForUpdates:(BOOL)automatically
{
    FakeDesktop::current().desktop.updater.checksAutomatically = automatically != NO;
}

@end

@implementation SPUStandardUpdaterController

- (instancetype)initWithStartingUpdater:(BOOL)startUpdater
                        updaterDelegate:(id)updaterDelegate
                     userDriverDelegate:(id)userDriverDelegate
{
    if (!startUpdater || updaterDelegate != nil || userDriverDelegate != nil) {
        complain("The updater is to be started at once, and without delegates");
    }
    return [self init];
}

- (SPUUpdater*)updater
{
    return [[[SPUUpdater alloc] init] autorelease];
}

- (void)checkForUpdates:(id)sender
{
    FakeDesktop::current().desktop.journal.record("UpdaterController.checkForUpdates()");
}

@end
