#pragma once

namespace Backend::Display {

// Shows the log.
class DisplayListener {
public:
    virtual ~DisplayListener() = default;

    // [display] Appends text to what is shown, or replaces it.
    virtual void append(const char* text) = 0;
    virtual void setText(const char* text) = 0;
};

}
