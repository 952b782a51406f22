// Twelve responses that presets of other programs ask for.
#pragma once

#include "presets/Target.h"

#include <array>

namespace brimsound::tests {

struct ExampleResponse {
    const char* name;
    presets::Response response;
};

inline std::array<ExampleResponse, 12> exampleResponses()
{
    using presets::Curve;
    using presets::Response;
    using Shape = presets::FilterShape;
    const Curve tilt { { 20, 5 }, { 20000, -5 } };
    // Corrections as they are made for headphones, invented for this table.
    const Response closedHeadphone {
        { { Shape::LowShelf, 105, 6.7, 0.7 }, { Shape::Peak, 150, -3.2, 0.6 }, { Shape::Peak, 480, 1.4, 1.2 },
            { Shape::Peak, 1969, 5.1, 2.37 }, { Shape::Peak, 3400, -4, 3.1 }, { Shape::Peak, 5600, 3.1, 4.5 },
            { Shape::Peak, 8800, 4, 2 }, { Shape::HighShelf, 10000, -3.5, 0.7 } },
        {}, true
    };
    const Response openHeadphone { { { Shape::LowShelf, 105, 4, 0.7 }, { Shape::Peak, 210, -2.2, 0.5 },
                                       { Shape::Peak, 1250, -1.8, 1.6 }, { Shape::Peak, 2800, 3.6, 1.3 },
                                       { Shape::Peak, 5900, -5.4, 3.5 },
                                       { Shape::HighShelf, 10000, 2.5, 0.7 } },
        {}, true };
    const Curve earphone { { 20, -1 }, { 60, -2.2 }, { 140, -5.5 }, { 300, -6.3 }, { 700, -4.4 },
        { 1200, -4.8 }, { 2200, -1.5 }, { 3100, -0.2 }, { 4500, -3.5 }, { 6200, -1.1 }, { 8000, -7.2 },
        { 11000, -3 }, { 16000, -8.5 }, { 20000, -12 } };
    return { {
        { "Treble shelf, 10 kHz, -5 dB", { { { Shape::HighShelf, 10000, -5, 0.7 } }, {}, true } },
        { "Bass shelf, 105 Hz, +6 dB", { { { Shape::LowShelf, 105, 6, 0.7 } }, {}, true } },
        { "Peak, 1.8 kHz, +6 dB, Q 2", { { { Shape::Peak, 1800, 6, 2 } }, {}, true } },
        { "Peak, 8 kHz, -8 dB, Q 3", { { { Shape::Peak, 8000, -8, 3 } }, {}, true } },
        { "Peak, 300 Hz, -6 dB, Q 0.5", { { { Shape::Peak, 300, -6, 0.5 } }, {}, true } },
        { "Falling tilt, 1 dB per octave", { {}, { tilt }, true } },
        { "Shelves at both ends",
            { { { Shape::LowShelf, 200, -6, 0.7 }, { Shape::HighShelf, 3000, 4, 0.7 } }, {}, true } },
        { "Ten octave bands",
            { { { Shape::Peak, 31, 4, 1.41 }, { Shape::Peak, 62, -2, 1.41 }, { Shape::Peak, 125, 3, 1.41 },
                  { Shape::Peak, 250, -5, 1.41 }, { Shape::Peak, 500, 2, 1.41 },
                  { Shape::Peak, 1000, 1, 1.41 }, { Shape::Peak, 2000, -3, 1.41 },
                  { Shape::Peak, 4000, 5, 1.41 }, { Shape::Peak, 8000, -4, 1.41 },
                  { Shape::Peak, 16000, 2, 1.41 } },
                {}, true } },
        { "High-pass, 80 Hz", { { { Shape::HighPass, 80, 0, 0.707 } }, {}, true } },
        { "Closed headphone", closedHeadphone },
        { "Open headphone", openHeadphone },
        { "Earphone, a curve of unknown level", { {}, { earphone }, false } },
    } };
}

} // namespace brimsound::tests
