#include "tests/support/FunctionRows.h"

#include "Backend/core/xml/XmlDocument.h"
#include "Backend/functions/FunctionFactory.h"
#include "Backend/functions/NoFunction.h"
#include "tests/support/DataTable.h"

#include <sstream>

namespace TestSupport {

using namespace Backend::FunctionManagement;

namespace {

std::string element(const std::string& tag, const std::string& attributes) {
    return "<" + tag + (attributes.empty() ? "" : " ") + attributes + "/>";
}

}

std::vector<FunctionRow> readFunctionRows() {
    std::vector<FunctionRow> rows;
    for (const auto& cells : readTable("functions.txt"))
        rows.push_back({cells.at(0), cells.at(1), cells.at(2), cells.at(3), std::stoi(cells.at(4)), cells.at(5),
                        element(cells.at(2), cells.at(6)), element(cells.at(2), cells.at(7)),
                        element(cells.at(2), cells.at(8))});
    return rows;
}

std::string write(const Function& function) {
    std::ostringstream stream;
    function.writeXml(stream, 0);
    std::string line = stream.str();
    if (line.ends_with('\n'))
        line.pop_back();
    return line;
}

std::unique_ptr<Function> readFunction(const std::string& xml, Backend::MirelIF& mirel) {
    return createFunction(Backend::XmlDocument(xml, false).getRootElement(), mirel);
}

std::unique_ptr<Function> makeFunction(const FunctionRow& row, Backend::MirelIF& mirel) {
    if (row.className == "NoFunction")
        return std::make_unique<Functions::NoFunction>(mirel);
    return createDefaultFunction(row.xmlTag, mirel);
}

}
