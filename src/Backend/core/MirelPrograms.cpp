// Programs and banks of the desk.
#include "Backend/core/GuiPost.h"
#include "Backend/core/Mirel.h"
#include "Backend/core/WindowMessages.h"
#include "Backend/core/files/BankFile.h"
#include "Backend/core/trace/FileTrace.h"
#include "Backend/core/version2/Version2Import.h"
#include "Backend/core/xml/ElementWriter.h"
#include "Backend/core/xml/Text.h"
#include "Backend/core/xml/XmlDocument.h"
#include "Backend/core/xml/XmlElement.h"
#include "Backend/functions/values/SelectType.h"
#include "Platform/Files.h"

#include <sstream>

namespace Backend {

using namespace WindowMessages;
namespace Files = Platform::Files;

namespace {

constexpr std::string_view PROGRAM_FILE_END = ".prg";

// The program with an ordinal among the children of a file's root, or a missing element.
XmlElement findProgram(const XmlElement& root, int ordinal) {
    for (auto child = root.begin(); child != root.end(); child.next())
        if (child.getName() == BankFile::PROGRAM_TAG && ordinal-- == 0)
            return child;
    return XmlElement();
}

}

void Mirel::loadProgram(const std::string& path) {
    loadProgramFromFile(path, m_currentProgram.getIndex());
}

void Mirel::changeProgramFromBank(int index) {
    loadProgramFromFile(m_currentBank.getPath(), index);
}

void Mirel::loadProgramFromFile(const std::string& path, int index) {
    beginLoad(index);
    if (!path.empty()) {
        const XmlDocument document(path, true);
        const XmlElement program = findProgram(document.getRootElement(), path.ends_with(PROGRAM_FILE_END) ? 0 : index);
        if (!program.getName().empty())
            m_currentProgram = importProgramFromXml(program, index);
    }
    endLoad();
}

void Mirel::loadProgramFromXml(const std::string& xml, int index) {
    beginLoad(index);
    if (!Text::trim(xml).empty()) {
        const XmlDocument document(xml, false);
        const XmlElement root = document.getRootElement();
        if (const auto first = root.begin(); first != root.end() && first.getName() == BankFile::PROGRAM_TAG)
            m_currentProgram = importProgramFromXml(first, index);
    }
    endLoad();
}

void Mirel::beginLoad(int index) {
    m_midiEngine.sendReset();
    postToGui(*this, RESET_MIREL);
    m_currentProgram = Program("", index, Program::DEFAULT_TEMPO, Program::NO_TEMPO_SOURCE);
}

void Mirel::endLoad() {
    auto& engine = m_midiEngine.getMessageManager();
    engine.postSetTempo(m_currentProgram.getTempo());
    engine.postSetTempoSource(Text::lowByte(m_currentProgram.getTempoSource()));
    postToGui(*this, PROGRAM_CHANGED, m_currentProgram);
}

Program Mirel::importProgramFromXml(const XmlElement& element, int index) {
    bool hasKeys = false;
    bool hasControls = false;
    bool hasLayers = false;
    bool hasZones = false;
    for (auto child = element.begin(); child != element.end(); child.next()) {
        const std::string name = child.getName();
        if (name == ComputerInput::KeyConfigurationMap::TAG) {
            m_computerInput.readXml(child);
            hasKeys = true;
        } else if (name == Controls::ControlMap::TAG) {
            m_controls.readXml(child);
            hasControls = true;
        } else if (name == Layers::LayerList::TAG) {
            m_layers.readXml(child);
            hasLayers = true;
        } else if (name == Zones::ZoneMap::TAG) {
            m_zones.readXml(child);
            hasZones = true;
        }
    }
    if (!hasKeys)
        m_computerInput.clear();
    if (!hasControls)
        m_controls.clear();
    if (!hasLayers)
        m_layers.clear();
    if (!hasZones)
        m_zones.clear();
    return Program(element, index);
}

std::string Mirel::writeProgram() const {
    std::ostringstream stream;
    {
        const ElementWriter program(stream, 0, BankFile::PROGRAM_TAG, m_currentProgram);
        const int indent = program.getInnerIndent();
        m_computerInput.writeXml(stream, indent, {}, false);
        m_controls.writeXml(stream, indent, {});
        m_layers.writeXml(stream, indent, {});
        m_zones.writeXml(stream, indent);
    }
    return stream.str();
}

void Mirel::getProgramXml(std::string& xml) {
    xml = BankFile::wrapProgram(BankFile::PROGRAM_TEXT_TAG, writeProgram());
}

void Mirel::loadBank(const std::string& path) {
    if (path.empty())
        return;
    m_currentBank = Bank(path, BankFile::readProgramNames(path));
    postToGui(*this, BANK_CHANGED, m_currentBank);
    changeProgramFromBank(m_currentProgram.getIndex());
}

void Mirel::setDefaultBank(const std::string& path) {
    m_registrySettings.setDefaultBank(path);
    postToGui(*this, DEFAULT_BANK_CHANGED, path);
    loadBank(path);
}

void Mirel::changeProgram(const SelectType& type) {
    std::int64_t index = type.getValue();
    if (type.getMode() == SelectType::UP)
        index = std::int64_t{m_currentProgram.getIndex()} + 1;
    else if (type.getMode() == SelectType::DOWN)
        index = std::int64_t{m_currentProgram.getIndex()} - 1;
    if (index >= 0 && index < static_cast<std::int64_t>(m_currentBank.getProgramNames().size()))
        changeProgramFromBank(static_cast<int>(index));
}

void Mirel::changeProgramName(const std::string& name) {
    m_currentProgram.setName(name);
    postToGui(*this, PROGRAM_NAME_CHANGED, m_currentProgram);
}

void Mirel::saveToProgram(const std::string& path, HWND notify) {
    const std::string target(Text::trim(path));
    const std::string text = BankFile::wrapProgram(BankFile::PROGRAM_FILE_TAG, writeProgram());
    if (target.empty())
        return;
    if (Files::replace(target, Files::withSystemLineEnds(text)))
        postToWindow(notify, SAVE_TO_PROGRAM_DONE);
    else
        traceFile(target, "can't be written");
}

void Mirel::saveToCurrentBank(int index, HWND notify) {
    saveToBankFile(m_currentBank.getPath(), index, notify);
}

void Mirel::saveToBank(const std::string& path, HWND notify) {
    saveToBankFile(path, m_currentProgram.getIndex(), notify);
}

void Mirel::saveToBankFile(const std::string& target, int index, HWND notify) {
    if (index < 0 || m_currentBank.getPath().empty())
        return;
    const std::string program = writeProgram();
    const auto source = BankFile::readBank(m_currentBank.getPath(), program);
    if (!source)
        return;
    // A program that would make the bank unreadable, for instance by its size, is not saved, since all others would be
    // lost.
    const std::string bank = BankFile::replaceProgram(*source, index, program);
    const bool isReplacement = index < static_cast<int>(m_currentBank.getProgramNames().size());
    const bool isLossless = isReplacement ? BankFile::remainsReadable(*source, bank) : bank.size() <= Files::MAX_SIZE;
    if (!isLossless)
        traceFile(target, "is not written, as it could not be read again");
    else if (!Files::replace(target, bank))
        traceFile(target, "can't be written");
    loadBank(target);
    postToWindow(notify, SAVE_TO_BANK_DONE);
}

void Mirel::changeBankSize(int size, HWND notify) {
    const int count = static_cast<int>(m_currentBank.getProgramNames().size());
    if (size == count || size <= 0)
        return;
    if (size <= m_currentProgram.getIndex())
        changeProgramFromBank(size - 1);
    const std::string path = m_currentBank.getPath();
    const auto bank = BankFile::readBank(path, "");
    if (!bank)
        return;
    const auto resized = BankFile::resize(*bank, count, size);
    if (!resized || !BankFile::remainsReadable(*bank, *resized))
        traceFile(path, "is not written, as it could not be read again");
    else if (!Files::replace(path, *resized))
        traceFile(path, "can't be written");
    loadBank(path);
    postToWindow(notify, CHANGE_BANK_SIZE_DONE);
}

void Mirel::importVersion2Bank(const std::string& from, const std::string& to, HWND notify) {
    if (!from.empty() && !to.empty())
        Version2Import(*this, m_sequencePresets).importBank(from, to);
    loadBank(to);
    postToWindow(notify, IMPORT_VERSION_2_BANK_DONE);
}

void Mirel::importVersion2Program(const std::string& from, const std::string& to, HWND notify) {
    if (!from.empty() && !to.empty())
        Version2Import(*this, m_sequencePresets).importProgram(from, to);
    loadProgram(to);
    postToWindow(notify, IMPORT_VERSION_2_PROGRAM_DONE);
}

void Mirel::importVersion2Preset(const std::string& from, const std::string& to, HWND notify) {
    if (!from.empty() && !to.empty())
        Version2Import(*this, m_sequencePresets).importPreset(from, to);
    postToWindow(notify, IMPORT_VERSION_2_PRESET_DONE);
}

}
