#pragma once

#include <objc/objc.h>

typedef struct objc_method* Method;
typedef struct objc_ivar* Ivar;
typedef uintptr_t objc_AssociationPolicy;

enum : objc_AssociationPolicy {
    OBJC_ASSOCIATION_ASSIGN = 0,
    OBJC_ASSOCIATION_RETAIN_NONATOMIC = 1,
    OBJC_ASSOCIATION_COPY_NONATOMIC = 3,
    OBJC_ASSOCIATION_RETAIN = 01401,
    OBJC_ASSOCIATION_COPY = 01403,
};

extern "C" {
id objc_getClass(const char* name);
Class objc_lookUpClass(const char* name);
Class object_getClass(id);
Class object_setClass(id, Class);
const char* object_getClassName(id);

const char* class_getName(Class);
Class class_getSuperclass(Class);
BOOL class_respondsToSelector(Class, SEL);
IMP class_getMethodImplementation(Class, SEL);
Method class_getInstanceMethod(Class, SEL);
Method class_getClassMethod(Class, SEL);
Method* class_copyMethodList(Class, unsigned int* count);
BOOL class_addMethod(Class, SEL, IMP, const char* types);
IMP class_replaceMethod(Class, SEL, IMP, const char* types);

SEL method_getName(Method);
IMP method_getImplementation(Method);
const char* method_getTypeEncoding(Method);
unsigned int method_getNumberOfArguments(Method);

void objc_setAssociatedObject(id object, const void* key, id value, objc_AssociationPolicy);
id objc_getAssociatedObject(id object, const void* key);
}
