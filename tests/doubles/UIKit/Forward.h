// Properties of a UIView that are those of the toolkit's view behind it.
//
// They are macros, because there are no templates of Objective-C methods. Each needs a function `native` that
// gives the toolkit's view for `self`.
#pragma once

#include "tests/doubles/UIKit/HostedView.h"

#define FORWARD_GETTER(Type, getter, nativeGetter)                                                           \
    -(Type)getter                                                                                            \
    {                                                                                                        \
        return static_cast<Type>(brimsound::doubles::toPlatform(native(self).nativeGetter()));               \
    }

#define FORWARD_PROPERTY(Type, getter, setter, nativeGetter, nativeSetter)                                   \
    FORWARD_GETTER(Type, getter, nativeGetter)                                                               \
    -(void)setter : (Type)value                                                                              \
    {                                                                                                        \
        native(self).nativeSetter(brimsound::doubles::toToolkit(value));                                     \
    }
