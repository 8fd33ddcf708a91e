#pragma once

#include "Backend/input/ButtonFunction.h"
#include "Backend/midi/Zone.h"

#include <memory>
#include <ostream>
#include <string>
#include <vector>

namespace Backend {
class ElementWriter;
class MirelIF;
class XmlElement;
}

// What pressing and releasing one button does: a list of functions that all run, in order. Copies are deep. Indices
// count from 0.
class ButtonConfiguration {
public:
    // The elements of an entry and of its two functions.
    static constexpr const char* FUNCTION_TAG = "Function";
    static constexpr const char* DOWN_TAG = "Down";
    static constexpr const char* UP_TAG = "Up";

    virtual ~ButtonConfiguration() = default;

    // Writes the button's element on its own lines, indented by this many tabs.
    virtual void writeXml(std::ostream& stream, int indent) const = 0;

    // The tag of a function; NoFunction's if there is none.
    std::string getDownFunctionTag(int index) const;
    std::string getUpFunctionTag(int index) const;

    // Puts a function, or null, into a slot. The index after the last adds an entry; one beyond that is ignored.
    void setDownFunction(std::unique_ptr<Backend::FunctionManagement::Function> function, int index);
    void setUpFunction(std::unique_ptr<Backend::FunctionManagement::Function> function, int index);

    int getFunctionCount() const { return static_cast<int>(m_functions.size()); }

    // False for an index without an entry; setting it then has no effect.
    bool getKeepSending(int index) const;
    void setKeepSending(int index, bool keepSending);

    // Whether pressing or releasing it does anything.
    bool hasFunction() const;

    const std::vector<ButtonFunction>& getFunctions() const { return m_functions; }

    // Adds the notes that the button plays to the ranges of their zones.
    void addZoneRanges(std::vector<Backend::Zones::Zone>& ranges) const;

protected:
    ButtonConfiguration() = default;
    ButtonConfiguration(const ButtonConfiguration&) = default;
    ButtonConfiguration& operator=(const ButtonConfiguration&) = default;
    ButtonConfiguration(ButtonConfiguration&&) = default;
    ButtonConfiguration& operator=(ButtonConfiguration&&) = default;

    // Appends the entries in a button's element.
    void readFunctions(const Backend::XmlElement& element, Backend::MirelIF& mirel);
    void writeFunctions(const Backend::ElementWriter& button) const;

    // Lists whose slots are all empty are equal.
    bool hasSameFunctions(const ButtonConfiguration& other) const;

private:
    using Slot = std::unique_ptr<Backend::FunctionManagement::Function> ButtonFunction::*;

    std::string getTag(int index, Slot slot) const;
    void setFunction(std::unique_ptr<Backend::FunctionManagement::Function> function, int index, Slot slot);
    bool isIndex(int index) const { return index >= 0 && index < getFunctionCount(); }

    std::vector<ButtonFunction> m_functions;
};
