#pragma once

#include "Backend/core/MirelIF.h"
#include "Backend/functions/Attribute.h"
#include "Backend/functions/Function.h"
#include "Backend/functions/FunctionList.h"
#include "Backend/functions/FunctionSettingsTypes.h"
#include "Backend/functions/FunctionVisitor.h"

#include <tuple>
#include <typeinfo>

namespace Backend::FunctionManagement {

// What all function classes share. Self, the class, has a row in FUNCTION_LIST and tells its parameters by
// attributes(), a tuple of Attribute.
template <class Self, class Kind>
class FunctionOfKind : public Function, public Kind {
public:
    explicit FunctionOfKind(MirelIF& mirel) : m_mirel(&mirel) {}

    static std::tuple<> attributes() { return {}; }

    // Takes the parameters from the function's element.
    void readXml(const XmlElement& element) {
        forEachAttribute([&](const auto& attribute) { self().*attribute.member = readAttribute(element, attribute); });
    }

    void writeXml(std::ostream& stream, int indent) const override {
        stream << getIndentation(indent) << getStartTagBegin(getXmlTag());
        forEachAttribute([&](const auto& attribute) { writeAttribute(stream, attribute, self().*attribute.member); });
        stream << getEmptyTagEnd() << '\n';
    }

    bool operator==(const Function& other) const override {
        if (this == &other)
            return true;
        if (typeid(*this) != typeid(other))
            return false;
        const auto& same = static_cast<const Self&>(other);
        bool equal = true;
        forEachAttribute(
            [&](const auto& attribute) { equal = equal && self().*attribute.member == same.*attribute.member; });
        return equal;
    }

    std::unique_ptr<Function> clone() const override { return std::make_unique<Self>(self()); }

    const std::string& getXmlTag() const override {
        static const std::string tag = FUNCTION_ROW<Self>.xmlTag;
        return tag;
    }

    int getHelpId() const override { return FUNCTION_ROW<Self>.helpId; }

    using Kind::accept;
    void accept(FunctionVisitor& visitor) override { visitor.visit(self()); }
    void accept(FunctionSettingsTypeVisitor& visitor) override { visitor.visit(static_cast<Kind&>(*this)); }

protected:
    MirelIF& mirel() { return *m_mirel; }

private:
    Self& self() { return static_cast<Self&>(*this); }
    const Self& self() const { return static_cast<const Self&>(*this); }

    template <class Action>
    static void forEachAttribute(Action action) {
        std::apply([&](const auto&... attributes) { (action(attributes), ...); }, Self::attributes());
    }

    MirelIF* m_mirel;  // Never null.
};

// The same for kinds whose members have a visitor, which are all but that of NoFunction.
template <class Self, class Kind>
class ConcreteFunction : public FunctionOfKind<Self, Kind> {
public:
    using FunctionOfKind<Self, Kind>::FunctionOfKind;

    using FunctionOfKind<Self, Kind>::accept;
    void accept(typename Kind::Visitor& visitor) override { visitor.visit(static_cast<Self&>(*this)); }
};

}
