#import <CoreFoundation/CoreFoundation.h>

// The version of iOS 9.0.
double kCFCoreFoundationVersionNumber = 1240.1;
