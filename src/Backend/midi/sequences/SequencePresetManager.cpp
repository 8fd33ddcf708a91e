#include "Backend/midi/sequences/SequencePresetManager.h"

#include "Backend/core/xml/FileNames.h"
#include "Backend/core/xml/XmlDocument.h"
#include "Backend/core/xml/XmlElement.h"
#include "Backend/core/xml/XmlWriting.h"
#include "Platform/Files.h"

#include <algorithm>

namespace Backend::SequenceManagement {

SequencePresetManager::SequencePresetManager(std::string folder) : m_folder(std::move(folder)) {
    for (const std::string& file : Platform::Files::list(m_folder, EXTENSION))
        m_names.push_back(file.substr(0, file.size() - std::string_view(EXTENSION).size()));
    std::sort(m_names.begin(), m_names.end());
}

std::string SequencePresetManager::filePath(const std::string& name) const {
    return Platform::Files::join(m_folder, name + EXTENSION);
}

bool SequencePresetManager::contains(const std::string& name) const {
    return std::binary_search(m_names.begin(), m_names.end(), name);
}

void SequencePresetManager::insertName(const std::string& name) {
    if (!contains(name))
        m_names.insert(std::upper_bound(m_names.begin(), m_names.end(), name), name);
}

void SequencePresetManager::removeName(const std::string& name) {
    std::erase(m_names, name);
}

Sequence SequencePresetManager::load(const std::string& name) const {
    if (m_folder.empty() || !isUsableFileName(name))
        return {};
    const XmlDocument document(filePath(name), true);
    const XmlElement root = document.getRootElement();
    return root.getName() == Sequence::TAG ? Sequence(root.getText()) : Sequence();
}

void SequencePresetManager::addSequencePreset(const std::string& name, const std::string& text) {
    if (!isUsableFileName(name))
        return;
    const std::string content = getXmlHeader() + "\n" + getStartTag(Sequence::TAG) + escape(Sequence(text).toString()) +
                                getEndTag(Sequence::TAG) + "\n";
    if (Platform::Files::createFolders(m_folder) &&
        Platform::Files::replace(filePath(name), Platform::Files::withSystemLineEnds(content)))
        insertName(name);
}

void SequencePresetManager::deleteSequencePreset(const std::string& name) {
    if (!contains(name))
        return;
    Platform::Files::remove(filePath(name));
    removeName(name);
}

void SequencePresetManager::editSequencePreset(const std::string& name, const std::string& newName) {
    if (!contains(name) || contains(newName) || !isUsableFileName(newName))
        return;
    if (!Platform::Files::move(filePath(name), filePath(newName)))
        return;
    removeName(name);
    insertName(newName);
}

}
