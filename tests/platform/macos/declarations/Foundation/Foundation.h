// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <CoreFoundation/CoreFoundation.h>
#include <dispatch/dispatch.h>
#include <objc/NSObject.h>
#include <objc/objc.h>
#include <os/availability.h>

typedef double NSTimeInterval;

@protocol NSFastEnumeration
- (NSUInteger)countByEnumeratingWithState:(void *)state
                                  objects:(id __unsafe_unretained _Nullable[_Nonnull])buffer
                                    count:(NSUInteger)count;
@end

@interface NSString : NSObject
@property(readonly) const char *UTF8String;
@end

@interface NSNumber : NSObject
@property(readonly) unsigned int unsignedIntValue;
@end

@interface NSData : NSObject
+ (instancetype)dataWithBytes:(const void *)bytes length:(NSUInteger)length;
@end

@interface NSArray<ObjectType> : NSObject <NSFastEnumeration>
+ (instancetype)arrayWithObjects:(const ObjectType _Nonnull[_Nullable])objects count:(NSUInteger)count;
@end

@interface NSDictionary<KeyType, ObjectType> : NSObject
- (ObjectType)objectForKeyedSubscript:(KeyType)key;
@end

@interface NSError : NSObject
@property(readonly) NSInteger code;
@end

typedef CF_ENUM(NSUInteger, NSSearchPathDirectory) {
    NSApplicationSupportDirectory = 14,
};

typedef CF_ENUM(NSUInteger, NSSearchPathDomainMask) {
    NSUserDomainMask = 1,
};

extern "C" NSArray<NSString *> *NSSearchPathForDirectoriesInDomains(NSSearchPathDirectory directory,
                                                                    NSSearchPathDomainMask domainMask,
                                                                    BOOL expandTilde);
extern "C" NSString *NSHomeDirectory(void);

@interface NSHost : NSObject
+ (instancetype)currentHost;
@property(readonly, copy) NSString *localizedName;
@end

typedef struct
{
    NSInteger majorVersion;
    NSInteger minorVersion;
    NSInteger patchVersion;
} NSOperatingSystemVersion;

typedef CF_ENUM(NSInteger, NSProcessInfoThermalState) {
    NSProcessInfoThermalStateNominal,
    NSProcessInfoThermalStateFair,
    NSProcessInfoThermalStateSerious,
    NSProcessInfoThermalStateCritical,
};

@interface NSProcessInfo : NSObject
@property(class, readonly, strong) NSProcessInfo *processInfo;
@property(readonly) NSOperatingSystemVersion operatingSystemVersion API_AVAILABLE(macos(10.10));
@property(readonly) unsigned long long physicalMemory;
@property(readonly) NSTimeInterval systemUptime;
@property(readonly) NSProcessInfoThermalState thermalState API_AVAILABLE(macos(10.10.3));
@property(readonly, getter=isLowPowerModeEnabled) BOOL lowPowerModeEnabled API_AVAILABLE(macos(12.0));
@end

@interface NSJSONSerialization : NSObject
+ (id)JSONObjectWithData:(NSData *)data options:(NSUInteger)options error:(NSError **)error;
@end
