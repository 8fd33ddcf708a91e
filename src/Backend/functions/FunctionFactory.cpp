#include "Backend/functions/FunctionFactory.h"

#include "Backend/core/xml/XmlElement.h"
#include "Backend/functions/Functions.h"

namespace Backend::FunctionManagement {

namespace {

// Creates a tag's function and passes it to use while its class is known; null if there is none.
template <class Use>
std::unique_ptr<Function> createAndUse(const std::string& xmlTag, MirelIF& mirel, Use use) {
    std::unique_ptr<Function> created;
    const auto createFor = [&]<class Class>(const FunctionRow<Class>& row) {
        if (xmlTag != row.xmlTag || std::is_same_v<Class, Functions::NoFunction>)
            return false;
        auto function = std::make_unique<Class>(mirel);
        use(*function);
        created = std::move(function);
        return true;
    };
    std::apply([&](const auto&... rows) { static_cast<void>((createFor(rows) || ...)); }, FUNCTION_LIST);
    return created;
}

}

std::unique_ptr<Function> createFunction(const XmlElement& element, MirelIF& mirel) {
    return createAndUse(element.getName(), mirel, [&element](auto& function) { function.readXml(element); });
}

std::unique_ptr<Function> createDefaultFunction(const std::string& xmlTag, MirelIF& mirel) {
    return createAndUse(xmlTag, mirel, [](auto&) {});
}

}
