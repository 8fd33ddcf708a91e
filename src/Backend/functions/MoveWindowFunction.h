#pragma once

#include "Backend/functions/ConcreteFunction.h"

namespace Backend::FunctionManagement::Functions {

// Moves the desk's window, in pixels.
class MoveWindowFunction final : public ConcreteFunction<MoveWindowFunction, MoveWindowSettingsType> {
public:
    using ConcreteFunction::ConcreteFunction;

    static auto attributes() {
        return std::tuple{
            Attribute{"x", &MoveWindowFunction::m_x},
            Attribute{"y", &MoveWindowFunction::m_y},
        };
    }

    void execute() override { mirel().moveWindow(m_x, m_y); }

    RelativeFixedValue getX() const override { return m_x; }
    void setX(const RelativeFixedValue& x) override { m_x = x; }
    RelativeFixedValue getY() const override { return m_y; }
    void setY(const RelativeFixedValue& y) override { m_y = y; }

private:
    RelativeFixedValue m_x;
    RelativeFixedValue m_y;
};

}
