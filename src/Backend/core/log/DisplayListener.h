#pragma once

namespace Backend::Display {

// Shows the log.
class DisplayListener {
public:
    virtual ~DisplayListener() = default;

    // [display] Adds text to the end of what is shown, or shows other text in its place.
    virtual void append(const char* text) = 0;
    virtual void setText(const char* text) = 0;
};

}
