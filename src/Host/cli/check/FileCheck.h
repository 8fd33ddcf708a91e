#pragma once

#include "Host/cli/check/Complaint.h"
#include "Host/cli/check/ElementFormat.h"
#include "Host/cli/check/PresetFiles.h"

#include <string>
#include <string_view>

namespace Platform {
struct XmlNode;
}

namespace Host::Cli {

// Looks a program, bank, preset or sequence file through for what the desk would ignore in it or replace by a default.
// The root element tells which file it is.
class FileCheck {
public:
    // The content and the presets must outlive this.
    FileCheck(std::string_view content, PresetFiles& presets) : m_content(content), m_presets(presets) {}

    // [any] Why the content is no file of the desk; empty if it is one. Then there may be complaints.
    std::string run();

    // In the order of lines.
    const Complaints& getComplaints() const { return m_complaints; }

    // What the tables of formats name: rules of one kind of element. An element is one of the file that is checked.
    void checkComputerInputPreset(const Platform::XmlNode& element);
    void checkControlPreset(const Platform::XmlNode& element);
    void checkLayerPreset(const Platform::XmlNode& element);
    void checkKeysOfProgram(const Platform::XmlNode& element);
    void checkRangeOfControl(const Platform::XmlNode& element);
    void checkSequenceSetting(const Platform::XmlNode& element);
    void checkSequence(const Platform::XmlNode& element);
    void checkFirstChildIsProgram(const Platform::XmlNode& element);
    void checkLinesOfBank(const Platform::XmlNode& element);

private:
    void complain(const Platform::XmlNode& element, const std::string& text);
    void checkElement(const Platform::XmlNode& element, const ElementFormat& format);
    void checkAttributes(const Platform::XmlNode& element, const ElementFormat& format);
    void checkMissing(const Platform::XmlNode& element, const ElementFormat& format);
    void checkChildren(const Platform::XmlNode& element, const ElementFormat& format);
    void checkPreset(const Platform::XmlNode& element, const char* kind, const char* folder, const char* extension);

    std::string_view m_content;
    PresetFiles& m_presets;
    Complaints m_complaints;
};

}
