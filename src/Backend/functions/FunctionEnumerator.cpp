#include "Backend/functions/FunctionEnumerator.h"

#include "Backend/functions/FunctionList.h"

namespace Backend::FunctionManagement {

void FunctionEnumerator::enumerate() {
    const auto add = [this](const auto& row) {
        if (row.displayName)
            addFunction({row.displayName, row.xmlTag});
    };
    std::apply([&](const auto&... rows) { (add(rows), ...); }, FUNCTION_LIST);
}

}
