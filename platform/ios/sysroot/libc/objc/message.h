// Sending messages from C++. The functions are cast to the type of the called method.
#pragma once

#include <objc/objc.h>

struct objc_super {
    id receiver;
    Class super_class;
};

extern "C" {
void objc_msgSend(void);
void objc_msgSendSuper(void);
}
