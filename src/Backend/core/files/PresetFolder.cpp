#include "Backend/core/files/PresetFolder.h"

#include "Backend/core/installation/MirelUtils.h"
#include "Backend/core/trace/FileTrace.h"
#include "Backend/core/xml/FileNames.h"
#include "Backend/core/xml/ListElement.h"
#include "Backend/core/xml/XmlDocument.h"
#include "Backend/core/xml/XmlWriting.h"
#include "Platform/Files.h"

#include <algorithm>
#include <sstream>

namespace Backend {

namespace Files = Platform::Files;

std::string PresetFolder::getPath() const {
    return Files::join(MirelUtils::getMirelAppDataDir(), m_folderName);
}

std::vector<std::string> PresetFolder::getNames() const {
    std::vector<std::string> names;
    for (const Preset& preset : m_presets)
        names.push_back(preset.name);
    return names;
}

std::string PresetFolder::getPresetPath(const std::string& name) const {
    return Files::join(getPath(), name + EXTENSION);
}

bool PresetFolder::load(const std::string& name, const std::function<void(const XmlElement&)>& read) const {
    const std::string path = getPresetPath(name);
    if (!isUsableFileName(name) || !Files::size(path))
        return false;
    const XmlDocument document(path, true);
    read(document.getRootElement());
    return true;
}

bool PresetFolder::write(const std::string& name, const std::string& text) const {
    if (!isUsableFileName(name))
        return false;
    Files::createFolders(getPath());
    const bool isWritten = Files::replace(getPresetPath(name), Files::withSystemLineEnds(text));
    if (!isWritten)
        traceFile(getPresetPath(name), "can't be written");
    return isWritten;
}

void PresetFolder::save(const std::string& name, const std::function<void(std::ostream&)>& write) {
    std::ostringstream text;
    text << getXmlHeader() << "\n\n";
    write(text);
    if (!this->write(name, text.str()))
        return;
    if (find(name) == m_presets.end())
        m_presets.push_back({name});
    ListElement saved;
    readAttributes(XmlDocument(getPresetPath(name), true).getRootElement(), saved);
    find(name)->merge = saved.merge;
    sort();
}

void PresetFolder::renamePreset(const std::string& oldName, const std::string& newName) {
    const auto preset = find(oldName);
    if (preset == m_presets.end() || !isUsableFileName(newName))
        return;
    // The list shows the new name even if a file of that name was in the way.
    Files::move(getPresetPath(oldName), getPresetPath(newName));
    if (find(newName) == m_presets.end())
        preset->name = newName;
    else if (newName != oldName)
        m_presets.erase(preset);
    sort();
}

void PresetFolder::deletePreset(const std::string& name) {
    const auto preset = find(name);
    if (preset == m_presets.end())
        return;
    Files::remove(getPresetPath(name));
    m_presets.erase(preset);
}

std::vector<PresetFolder::Preset>::iterator PresetFolder::find(const std::string& name) {
    return std::find_if(m_presets.begin(), m_presets.end(),
                        [&name](const Preset& preset) { return preset.name == name; });
}

void PresetFolder::sort() {
    std::sort(m_presets.begin(), m_presets.end(),
              [](const Preset& left, const Preset& right) { return left.name < right.name; });
}

}
