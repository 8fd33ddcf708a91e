#pragma once

#include "Backend/midi/Zone.h"

#include <memory>
#include <ostream>
#include <string>

namespace Backend::FunctionManagement {

class FunctionVisitor;

// One thing that a key or a button does. Its owner decides whether it happens on press or on release.
class Function {
public:
    virtual ~Function() = default;

    // Whether the other one is of the same class with equal parameters.
    virtual bool operator==(const Function& other) const = 0;

    [[nodiscard]] virtual std::unique_ptr<Function> clone() const = 0;

    // [backend] Executes it. Does nothing if something it needs is missing.
    virtual void execute() = 0;

    // The name of its element.
    virtual const std::string& getXmlTag() const = 0;

    virtual void accept(FunctionVisitor& visitor) = 0;

    // Writes its element on a line of its own, indented by this many tabs.
    virtual void writeXml(std::ostream& stream, int indent) const = 0;

    // The zone and note that it plays; no notes if it plays none.
    virtual Zones::Zone getZoneRange() const;

    // The id of its line of help among the program's strings; 0 for none.
    virtual int getHelpId() const { return 0; }

protected:
    Function() = default;
    Function(const Function&) = default;
    Function& operator=(const Function&) = default;
};

}
