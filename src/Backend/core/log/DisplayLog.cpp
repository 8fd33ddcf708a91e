#include "Backend/core/log/DisplayLog.h"

#include "Backend/core/log/DisplayListener.h"
#include "Backend/core/xml/Text.h"

namespace Backend::Display {

void DisplayLog::add(std::string_view text) {
    if (text.size() >= MAX_ADDITION)
        return;
    if (m_text.size() + text.size() >= CAPACITY)
        keepLastHalf();
    m_text += text;
}

void DisplayLog::keepLastHalf() {
    std::size_t cut = m_text.size() - m_text.size() / 2;
    while (cut < m_text.size() && Text::isInsideCharacter(m_text[cut]))
        ++cut;
    m_text.erase(0, cut);
    m_sentLength = m_text.size();
}

void DisplayLog::flush(DisplayListener& listener) {
    if (m_sentLength < m_text.size())
        listener.append(m_text.c_str() + m_sentLength);
    m_sentLength = m_text.size();
}

void DisplayLog::sendAll(DisplayListener& listener) {
    listener.setText(m_text.c_str());
    m_sentLength = m_text.size();
}

}
