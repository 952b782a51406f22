// Each function is declared for double, float and long double.
#pragma once

#include "_types.h"

typedef float float_t;
typedef double double_t;

#define HUGE_VAL __builtin_huge_val()
#define HUGE_VALF __builtin_huge_valf()
#define HUGE_VALL __builtin_huge_vall()
#define INFINITY __builtin_inff()
#define NAN __builtin_nanf("")

#define FP_NAN 1
#define FP_INFINITE 2
#define FP_ZERO 3
#define FP_NORMAL 4
#define FP_SUBNORMAL 5

#define FP_ILOGB0 (-2147483647 - 1)
#define FP_ILOGBNAN (-2147483647 - 1)
#define MATH_ERRNO 1
#define MATH_ERREXCEPT 2
#define math_errhandling MATH_ERREXCEPT

#define fpclassify(x) __builtin_fpclassify(FP_NAN, FP_INFINITE, FP_NORMAL, FP_SUBNORMAL, FP_ZERO, x)
#define isfinite(x) __builtin_isfinite(x)
#define isinf(x) __builtin_isinf(x)
#define isnan(x) __builtin_isnan(x)
#define isnormal(x) __builtin_isnormal(x)
#define signbit(x) __builtin_signbit(x)
#define isgreater(x, y) __builtin_isgreater(x, y)
#define isgreaterequal(x, y) __builtin_isgreaterequal(x, y)
#define isless(x, y) __builtin_isless(x, y)
#define islessequal(x, y) __builtin_islessequal(x, y)
#define islessgreater(x, y) __builtin_islessgreater(x, y)
#define isunordered(x, y) __builtin_isunordered(x, y)

// Declares a function for its three types.
#define MATH_FUNCTION(result, name, suffix, ...) result name##suffix(__VA_ARGS__);
#define MATH_OF_ONE(name)                                                                                    \
    MATH_FUNCTION(double, name, , double)                                                                    \
    MATH_FUNCTION(float, name, f, float)                                                                     \
    MATH_FUNCTION(long double, name, l, long double)
#define MATH_OF_TWO(name)                                                                                    \
    MATH_FUNCTION(double, name, , double, double)                                                            \
    MATH_FUNCTION(float, name, f, float, float)                                                              \
    MATH_FUNCTION(long double, name, l, long double, long double)
#define MATH_TO(result, name)                                                                                \
    MATH_FUNCTION(result, name, , double)                                                                    \
    MATH_FUNCTION(result, name, f, float)                                                                    \
    MATH_FUNCTION(result, name, l, long double)
#define MATH_WITH(type, name)                                                                                \
    MATH_FUNCTION(double, name, , double, type)                                                              \
    MATH_FUNCTION(float, name, f, float, type)                                                               \
    MATH_FUNCTION(long double, name, l, long double, type)

BEGIN_DECLS
MATH_OF_ONE(acos)
MATH_OF_ONE(acosh)
MATH_OF_ONE(asin)
MATH_OF_ONE(asinh)
MATH_OF_ONE(atan)
MATH_OF_ONE(atanh)
MATH_OF_ONE(cbrt)
MATH_OF_ONE(ceil)
MATH_OF_ONE(cos)
MATH_OF_ONE(cosh)
MATH_OF_ONE(erf)
MATH_OF_ONE(erfc)
MATH_OF_ONE(exp)
MATH_OF_ONE(exp2)
MATH_OF_ONE(expm1)
MATH_OF_ONE(fabs)
MATH_OF_ONE(floor)
MATH_OF_ONE(lgamma)
MATH_OF_ONE(log)
MATH_OF_ONE(log10)
MATH_OF_ONE(log1p)
MATH_OF_ONE(log2)
MATH_OF_ONE(logb)
MATH_OF_ONE(nearbyint)
MATH_OF_ONE(rint)
MATH_OF_ONE(round)
MATH_OF_ONE(sin)
MATH_OF_ONE(sinh)
MATH_OF_ONE(sqrt)
MATH_OF_ONE(tan)
MATH_OF_ONE(tanh)
MATH_OF_ONE(tgamma)
MATH_OF_ONE(trunc)

MATH_OF_TWO(atan2)
MATH_OF_TWO(copysign)
MATH_OF_TWO(fdim)
MATH_OF_TWO(fmax)
MATH_OF_TWO(fmin)
MATH_OF_TWO(fmod)
MATH_OF_TWO(hypot)
MATH_OF_TWO(nextafter)
MATH_OF_TWO(pow)
MATH_OF_TWO(remainder)

MATH_TO(int, ilogb)
MATH_TO(long, lrint)
MATH_TO(long, lround)
MATH_TO(long long, llrint)
MATH_TO(long long, llround)

MATH_WITH(int, ldexp)
MATH_WITH(int, scalbn)
MATH_WITH(long, scalbln)
MATH_WITH(int*, frexp)
MATH_WITH(long double, nexttoward)

double modf(double, double*);
float modff(float, float*);
long double modfl(long double, long double*);
double fma(double, double, double);
float fmaf(float, float, float);
long double fmal(long double, long double, long double);
double remquo(double, double, int*);
float remquof(float, float, int*);
long double remquol(long double, long double, int*);
double nan(const char*);
float nanf(const char*);
long double nanl(const char*);
END_DECLS

#undef MATH_FUNCTION
#undef MATH_OF_ONE
#undef MATH_OF_TWO
#undef MATH_TO
#undef MATH_WITH
