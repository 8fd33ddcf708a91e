#pragma once

#include "Backend/core/MirelIF.h"
#include "Backend/core/xml/ElementWriter.h"
#include "Backend/functions/Function.h"
#include "Backend/functions/FunctionList.h"
#include "Backend/functions/FunctionSettingsTypes.h"
#include "Backend/functions/FunctionVisitor.h"

#include <tuple>
#include <typeinfo>

namespace Backend::FunctionManagement {

// What all function classes share. The class Self has a row in FUNCTION_LIST and lists its parameters in attributes(),
// a tuple of Attribute.
template <class Self, class Kind>
class FunctionOfKind : public Function, public Kind {
public:
    explicit FunctionOfKind(MirelIF& mirel) : m_mirel(&mirel) {}

    static std::tuple<> attributes() { return {}; }

    // Reads the parameters from the function's element.
    void readXml(const XmlElement& element) { readAttributes(element, self()); }

    void writeXml(std::ostream& stream, int indent) const override {
        writeEmptyElement(stream, indent, getXmlTag(), self());
    }

    bool operator==(const Function& other) const override {
        if (this == &other)
            return true;
        return typeid(*this) == typeid(other) && haveEqualAttributes(self(), static_cast<const Self&>(other));
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

    MirelIF* m_mirel;  // Never null.
};

// The same for kinds whose members have a visitor, which is all except NoFunction's.
template <class Self, class Kind>
class ConcreteFunction : public FunctionOfKind<Self, Kind> {
public:
    using FunctionOfKind<Self, Kind>::FunctionOfKind;

    using FunctionOfKind<Self, Kind>::accept;
    void accept(typename Kind::Visitor& visitor) override { visitor.visit(static_cast<Self&>(*this)); }
};

}
