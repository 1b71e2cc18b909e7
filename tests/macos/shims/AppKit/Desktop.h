#pragma once

// The parts of AppKit that tell of the desktop; GNUstep has other ones or none. They act on the desktop in memory.

#import <AppKit/NSRunningApplication.h>
#import <Foundation/Foundation.h>

#define NSRunningApplication QuorvelRunningApplication
@interface QuorvelRunningApplication : NSObject {
    NSString* _localizedName;
    pid_t _processIdentifier;
    NSApplicationActivationPolicy _activationPolicy;
}

+ (instancetype)runningApplicationWithProcessIdentifier:(pid_t)process;

@property(nonatomic, copy) NSString* localizedName;
@property(nonatomic) pid_t processIdentifier;
@property(nonatomic) NSApplicationActivationPolicy activationPolicy;
@property(nonatomic, readonly, getter=isTerminated) BOOL terminated;

- (BOOL)activateWithOptions:(NSApplicationActivationOptions)options;

@end

@interface NSWorkspaceOpenConfiguration : NSObject {
    BOOL _createsNewApplicationInstance;
}

+ (instancetype)configuration;

@property(nonatomic) BOOL createsNewApplicationInstance;

@end

extern NSString* const NSWorkspaceDidActivateApplicationNotification;
extern NSString* const NSWorkspaceApplicationKey;

#define NSWorkspace QuorvelWorkspace
@interface QuorvelWorkspace : NSObject

+ (QuorvelWorkspace*)sharedWorkspace;

@property(nonatomic, readonly) NSRunningApplication* frontmostApplication;
@property(nonatomic, readonly) NSArray* runningApplications;
@property(nonatomic, readonly) NSNotificationCenter* notificationCenter;

- (BOOL)openURL:(NSURL*)url;
- (void)openApplicationAtURL:(NSURL*)url
               configuration:(NSWorkspaceOpenConfiguration*)configuration
           completionHandler:(void (^)(NSRunningApplication*, NSError*))completion;

@end

#define NSScreen QuorvelScreen
@interface QuorvelScreen : NSObject {
    NSRect _frame;
    NSRect _visibleFrame;
    NSDictionary* _deviceDescription;
}

+ (NSArray*)screens;
+ (QuorvelScreen*)mainScreen;

@property(nonatomic) NSRect frame;
@property(nonatomic) NSRect visibleFrame;
@property(nonatomic, copy) NSDictionary* deviceDescription;

@end
