// May be included several times, because NDEBUG may change.
#include "_types.h"

#undef assert

BEGIN_DECLS
__attribute__((noreturn)) void __assert_rtn(
    const char* function, const char* file, int line, const char* text);
END_DECLS

#ifdef NDEBUG
#define assert(condition) ((void)0)
#else
#define assert(condition) ((condition) ? (void)0 : __assert_rtn(__func__, __FILE__, __LINE__, #condition))
#endif
