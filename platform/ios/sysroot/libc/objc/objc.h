// The Objective-C types that are built into the compiler.
#pragma once

#include <stddef.h>
#include <stdint.h>

typedef struct objc_class* Class;
typedef struct objc_object {
    Class isa;
} * id;
typedef struct objc_selector* SEL;
typedef void (*IMP)(void);
typedef bool BOOL;

#define YES ((BOOL)1)
#define NO ((BOOL)0)
#define nil nullptr
#define Nil nullptr

extern "C" {
const char* sel_getName(SEL);
SEL sel_registerName(const char*);
}
