#pragma once

#include <cstdint>

#if defined(__SSE2__)
#include <xmmintrin.h>
#endif

namespace brimsound::audio {

/// While such an object exists, subnormal numbers count as zero on this thread. The state of filters decays
/// to such numbers in silence, and a processor may need a hundred times as long for each. The destructor
/// restores the thread's mode. Does nothing on processors other than x86-64 and AArch64.
class FlushDenormals {
public:
    FlushDenormals()
        : _control(control())
    {
        setControl(_control | flushing);
    }
    ~FlushDenormals() { setControl(_control); }

    FlushDenormals(const FlushDenormals&) = delete;
    FlushDenormals& operator=(const FlushDenormals&) = delete;

private:
#if defined(__SSE2__)
    using Control = std::uint32_t;
    // MXCSR: flush to zero, denormals are zero.
    static constexpr Control flushing = 0x8040;
    static Control control()
    {
        return _mm_getcsr();
    }
    static void setControl(Control control)
    {
        _mm_setcsr(control);
    }
#elif defined(__aarch64__)
    using Control = std::uint64_t;
    // FPCR: flush to zero, for operands and results.
    static constexpr Control flushing = 1U << 24;
    static Control control()
    {
        Control control = 0;
        asm volatile("mrs %0, fpcr" : "=r"(control));
        return control;
    }
    static void setControl(Control control)
    {
        asm volatile("msr fpcr, %0" : : "r"(control) : "memory");
    }
#else
    using Control = std::uint32_t;
    static constexpr Control flushing = 0;
    static Control control()
    {
        return 0;
    }
    static void setControl(Control) { }
#endif

    Control _control;
};

} // namespace brimsound::audio
