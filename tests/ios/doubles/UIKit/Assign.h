// Setters of retained properties.
#pragma once

#import <Foundation/Foundation.h>

namespace brimsound::doubles {

/// Puts a new value in place of a former one.
template <typename Object> void assignRetained(Object*& place, Object* object)
{
    Object* const former = place;
    place = [object retain];
    [former release];
}

template <typename Object> void assignCopied(Object*& place, Object* object)
{
    Object* const former = place;
    place = [object copy];
    [former release];
}

} // namespace brimsound::doubles
