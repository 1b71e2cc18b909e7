#pragma once

#import <Foundation/Foundation.h>

// As much of the update framework as Quorvel uses, declared here so that it also builds without the framework. The
// classes are looked up at run time.
@interface SPUUpdater : NSObject

@property(nonatomic) BOOL automaticallyChecksForUpdates;

@end

@interface SPUStandardUpdaterController : NSObject

- (instancetype)initWithStartingUpdater:(BOOL)startUpdater
                        updaterDelegate:(id)updaterDelegate
                     userDriverDelegate:(id)userDriverDelegate;

@property(nonatomic, readonly) SPUUpdater* updater;

- (void)checkForUpdates:(id)sender;

@end
