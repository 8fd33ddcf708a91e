#include "Gui/Rules/places/HelpHover.h"

namespace Gui {

bool HelpHover::enter(int id) {
    if (m_showingAbout || id == m_currentId)
        return false;
    m_currentId = id;
    return true;
}

bool HelpHover::enterText() {
    if (m_showingAbout)
        return false;
    m_currentId = OWN_TEXT_ID;
    return true;
}

}
