#include "Gui/Rules/values/ComboWheel.h"

#include <gtest/gtest.h>

namespace Gui {
namespace {

struct Case {
    std::vector<bool> enabled;
    int selected;
    bool down;
    int next;
};

TEST(ComboWheel, GoesToTheNextEnabledItemAndNotRound) {
    const Case cases[] = {
        {{}, -1, true, -1},
        {{}, -1, false, -1},
        {{true}, -1, true, 0},
        {{true}, -1, false, -1},
        {{true, true, true}, 0, true, 1},
        {{true, true, true}, 1, false, 0},
        {{true, true, true}, 2, true, -1},
        {{true, true, true}, 0, false, -1},
        {{true, false, true}, 0, true, 2},
        {{true, false, true}, 2, false, 0},
        {{true, false, false, true}, 3, false, 0},
        {{true, false, false}, 0, true, -1},
        {{false, true}, 1, false, -1},
        {{false, true}, -1, true, 1},
    };
    for (const Case& row : cases)
        EXPECT_EQ(nextEnabledItem(row.enabled, row.selected, row.down), row.next)
            << row.enabled.size() << " items, from " << row.selected << (row.down ? " down" : " up");
}

}
}
