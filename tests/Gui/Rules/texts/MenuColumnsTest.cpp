#include "Gui/Rules/texts/MenuColumns.h"

#include <gtest/gtest.h>

#include <vector>

namespace Gui {
namespace {

std::vector<std::size_t> columnsOf(std::size_t items, int rowsPerColumn) {
    std::vector<std::size_t> columns;
    for (std::size_t index = 0; index < items; ++index)
        if (opensMenuColumn(index, rowsPerColumn, false))
            columns.push_back(index);
    return columns;
}

TEST(MenuColumns, OpenEverySoManyRows) {
    EXPECT_EQ(columnsOf(50, 15), (std::vector<std::size_t>{15, 30, 45}));
    EXPECT_EQ(columnsOf(15, 15), std::vector<std::size_t>{});
    EXPECT_EQ(columnsOf(16, 15), std::vector<std::size_t>{15});
    EXPECT_EQ(columnsOf(3, 1), (std::vector<std::size_t>{1, 2}));
}

TEST(MenuColumns, OpenWhereItemsAskIfRowsAreNotLimited) {
    EXPECT_EQ(columnsOf(50, 0), std::vector<std::size_t>{});
    EXPECT_TRUE(opensMenuColumn(3, 0, true));
    EXPECT_FALSE(opensMenuColumn(3, 15, true));
    EXPECT_TRUE(opensMenuColumn(15, 15, false));
}

}
}
