#pragma once

namespace Gui {

// What the help screen has to do when the pointer comes to something. It remembers what it shows, so that moving within
// a control costs nothing, and keeps still while it tells about the product.
class HelpHover {
public:
    // Of text that is not one of the table's.
    static constexpr int OWN_TEXT_ID = 5498;

    // [gui] The pointer is over something with this help. True if its text is to be shown now.
    bool enter(int id);

    // [gui] The pointer is over something without help: what shows stays, and is loaded anew at the next enter.
    void enterNothing() { m_currentId = NOTHING; }

    // [gui] The pointer is over something that brings its own text. True if that is to be shown.
    bool enterText();

    void setShowingAbout(bool showing) { m_showingAbout = showing; }

    // Whether this help has a text in the table.
    static bool hasText(int id) { return id > 0; }

private:
    static constexpr int NOTHING = -1;

    bool m_showingAbout = false;
    int m_currentId = NOTHING;
};

}
