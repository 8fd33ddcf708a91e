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

// Searches a program, bank, preset or sequence file for what the desk would ignore or replace by a default. The root
// element shows which kind of file it is.
class FileCheck {
public:
    // The content and the presets must outlive this.
    FileCheck(std::string_view content, PresetFiles& presets) : m_content(content), m_presets(presets) {}

    // [any] Why the content is not one of the desk's files; empty if it is, and then there may be complaints.
    std::string run();

    // In line order.
    const Complaints& getComplaints() const { return m_complaints; }

    // Rules for one kind of element each, named in the tables of formats. The element must come from the file being
    // checked.
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
