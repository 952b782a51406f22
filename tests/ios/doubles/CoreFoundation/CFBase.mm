#import <CoreFoundation/CoreFoundation.h>

// iOS 9.0.
double kCFCoreFoundationVersionNumber = 1240.1;
