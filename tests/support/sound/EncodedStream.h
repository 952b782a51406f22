// A program that plays encoded sound.
#pragma once

#include <pipewire/pipewire.h>

#include <string>

namespace brimsound::tests {

/// A stream for AC-3 as it goes over an S/PDIF cable, which only a device could decode, with the node name
/// "encoded". It may offer to decode it itself. It plays nothing.
class EncodedStream {
public:
    enum class Offers { EncodedAlone, RawToo };

    explicit EncodedStream(Offers);
    EncodedStream(const EncodedStream&) = delete;
    EncodedStream& operator=(const EncodedStream&) = delete;
    ~EncodedStream();

private:
    pw_thread_loop* _loop;
    pw_stream* _stream;
};

} // namespace brimsound::tests
