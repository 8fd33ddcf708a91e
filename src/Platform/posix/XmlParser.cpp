#include "Platform/xml/XmlParser.h"

#include "Platform/xml/XmlTreeBuilder.h"

#include <libxml/SAX2.h>
#include <libxml/parser.h>
#include <libxml/parserInternals.h>

#include <new>

namespace Platform {

namespace {

// The state of the callbacks. No exception may pass through the parser, so they record here that memory ran out.
struct Progress {
    XmlTreeBuilder builder;
    bool outOfMemory = false;

    template <class Step>
    void run(Step step) {
        if (outOfMemory)
            return;
        try {
            step(builder);
        } catch (const std::bad_alloc&) {
            outOfMemory = true;
        }
    }
};

Progress& progress(void* context) {
    return *static_cast<Progress*>(context);
}

std::string_view view(const xmlChar* text) {
    return reinterpret_cast<const char*>(text);
}

std::string_view view(const xmlChar* text, int length) {
    return {reinterpret_cast<const char*>(text), static_cast<std::size_t>(length)};
}

void startElement(void* context, const xmlChar* name, const xmlChar** attributes) {
    progress(context).run([&](XmlTreeBuilder& builder) {
        builder.startElement(view(name));
        for (; attributes && attributes[0]; attributes += 2)
            builder.addAttribute(view(attributes[0]), attributes[1] ? view(attributes[1]) : std::string_view());
    });
}

void endElement(void* context, const xmlChar*) {
    progress(context).run([](XmlTreeBuilder& builder) { builder.endElement(); });
}

void text(void* context, const xmlChar* characters, int length) {
    progress(context).run([&](XmlTreeBuilder& builder) { builder.addText(view(characters, length)); });
}

void cData(void* context, const xmlChar* characters, int length) {
    progress(context).run([&](XmlTreeBuilder& builder) { builder.addCData(view(characters, length)); });
}

void comment(void* context, const xmlChar*) {
    progress(context).run([](XmlTreeBuilder& builder) { builder.addOther(); });
}

void instruction(void* context, const xmlChar*, const xmlChar*) {
    progress(context).run([](XmlTreeBuilder& builder) { builder.addOther(); });
}

void ignoreMessage(void*, const char*, ...) {}

// No namespace callbacks: names stay as they are written.
xmlSAXHandler handler() {
    xmlSAXHandler result = {};
    result.startElement = startElement;
    result.endElement = endElement;
    result.characters = text;
    result.ignorableWhitespace = text;
    result.cdataBlock = cData;
    result.comment = comment;
    result.processingInstruction = instruction;
    result.warning = ignoreMessage;
    result.error = ignoreMessage;
    result.fatalError = ignoreMessage;
    result.initialized = 1;
    return result;
}

struct FreeContext {
    void operator()(xmlParserCtxt* context) const { xmlFreeParserCtxt(context); }
};

void prepareParser() {
    static const bool done = [] {
        xmlInitParser();
        return true;
    }();
    static_cast<void>(done);
}

}

std::unique_ptr<XmlNode> parseXml(const std::string& text) {
    prepareParser();
    const std::unique_ptr<xmlParserCtxt, FreeContext> context(
        xmlCreateMemoryParserCtxt(text.data(), static_cast<int>(text.size())));
    if (!context)
        return nullptr;
    Progress state;
    *context->sax = handler();
    context->userData = &state;
    // Without a DOCTYPE there are only the predefined entities; unless they are substituted, "&amp;" would stay as it
    // is.
    xmlCtxtUseOptions(context.get(), XML_PARSE_NONET | XML_PARSE_NOENT | XML_PARSE_HUGE);
    const bool parsed = xmlParseDocument(context.get()) == 0 && context->wellFormed == 1;
    context->userData = nullptr;
    return parsed && !state.outOfMemory ? state.builder.takeRoot() : nullptr;
}

void enterXmlThread() {
    prepareParser();
}

void leaveXmlThread() {}

}
