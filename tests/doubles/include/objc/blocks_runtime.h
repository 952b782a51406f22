// The runtime of blocks, which GCC's runtime lacks. GNUstep's headers include it by this name.
#pragma once

#include <Block.h>
