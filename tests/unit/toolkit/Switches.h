#pragma once

#include "toolkit/control/Switch.h"

namespace brimsound::tests {

/// A switch with this top left corner, in points.
inline toolkit::Ref<toolkit::Switch> switchAt(double x, double y)
{
    const auto toggle = toolkit::make<toolkit::Switch>();
    toggle->setFrame({ { x, y }, toggle->frame().size });
    return toggle;
}

} // namespace brimsound::tests
