#pragma once

namespace Gui {

// What the help screen should do when the pointer moves over something. It remembers what is shown, so that moving
// within a control costs nothing, and does nothing while information about the product is shown.
class HelpHover {
public:
    // Stands for text that is not in the table.
    static constexpr int OWN_TEXT_ID = 5498;

    // [gui] The pointer is over something with this help. True if its text should be shown now.
    bool enter(int id);

    // [gui] The pointer is over something without help: the shown text stays, and is loaded again at the next enter.
    void enterNothing() { m_currentId = NOTHING; }

    // [gui] The pointer is over something that brings its own text. True if that should be shown.
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
