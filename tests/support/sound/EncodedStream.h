#pragma once

#include <pipewire/pipewire.h>

#include <string>

namespace brimsound::tests {

/// A program's stream of encoded sound: AC-3 as on an S/PDIF cable, which only a device can decode, with the
/// node name "encoded". It may offer to decode the sound itself. It plays nothing.
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
