#include "Gui/Utils/widgets/RadioButton.h"

namespace Gui {

void RadioButton::onLeftButtonDown() {
    for (Button* other : m_group)
        other->setState(false);
    setState(true);
    report();
}

}
