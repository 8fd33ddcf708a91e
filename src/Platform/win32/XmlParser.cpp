#include "Platform/xml/XmlParser.h"

#include "Platform/win32/ComPointer.h"
#include "Platform/xml/XmlTreeBuilder.h"

#include <windows.h>

#include <msxml.h>
#include <objbase.h>
#include <oleauto.h>

#include <cstring>

namespace Platform {

namespace {

constexpr CLSID DOM_DOCUMENT = {0x2933BF90, 0x7B36, 0x11D2, {0xB2, 0x0E, 0x00, 0xC0, 0x4F, 0x98, 0x3E, 0x60}};
constexpr IID DOM_DOCUMENT_INTERFACE = {0x2933BF81, 0x7B36, 0x11D2, {0xB2, 0x0E, 0x00, 0xC0, 0x4F, 0x98, 0x3E, 0x60}};

// Initialises COM for one read on threads that haven't. A thread in another kind of apartment works too.
class ComScope {
public:
    ComScope() : m_result(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)) {}
    ~ComScope() {
        if (SUCCEEDED(m_result))
            CoUninitialize();
    }
    ComScope(const ComScope&) = delete;
    ComScope& operator=(const ComScope&) = delete;

private:
    HRESULT m_result;
};

class Variant {
public:
    Variant() { VariantInit(&m_value); }
    ~Variant() { VariantClear(&m_value); }
    Variant(const Variant&) = delete;
    Variant& operator=(const Variant&) = delete;

    VARIANT& get() { return m_value; }

private:
    VARIANT m_value;
};

std::string toUtf8(BSTR text) {
    const int length = static_cast<int>(SysStringLen(text));
    if (length == 0)
        return {};
    const int needed = WideCharToMultiByte(CP_UTF8, 0, text, length, nullptr, 0, nullptr, nullptr);
    std::string utf8(static_cast<std::size_t>(needed), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text, length, utf8.data(), needed, nullptr, nullptr);
    return utf8;
}

std::string nodeName(IXMLDOMNode& node) {
    BSTR name = nullptr;
    if (FAILED(node.get_nodeName(&name)))
        return {};
    std::string utf8 = toUtf8(name);
    SysFreeString(name);
    return utf8;
}

std::string nodeValue(IXMLDOMNode& node) {
    Variant value;
    if (FAILED(node.get_nodeValue(&value.get())) || value.get().vt != VT_BSTR)
        return {};
    return toUtf8(value.get().bstrVal);
}

// The whole file as an array of bytes, because a string would be taken for a URL.
bool fill(Variant& bytes, const std::string& text) {
    SAFEARRAY* array = SafeArrayCreateVector(VT_UI1, 0, static_cast<ULONG>(text.size()));
    if (!array)
        return false;
    bytes.get().vt = VT_ARRAY | VT_UI1;
    bytes.get().parray = array;
    void* data = nullptr;
    if (FAILED(SafeArrayAccessData(array, &data)))
        return false;
    std::memcpy(data, text.data(), text.size());
    return SUCCEEDED(SafeArrayUnaccessData(array));
}

ComPointer<IXMLDOMDocument> load(const std::string& text) {
    ComPointer<IXMLDOMDocument> document;
    const HRESULT created = CoCreateInstance(DOM_DOCUMENT, nullptr, CLSCTX_INPROC_SERVER, DOM_DOCUMENT_INTERFACE,
                                             reinterpret_cast<void**>(document.put()));
    Variant bytes;
    if (FAILED(created) || !fill(bytes, text))
        return {};
    document->put_async(VARIANT_FALSE);
    document->put_validateOnParse(VARIANT_FALSE);
    document->put_resolveExternals(VARIANT_FALSE);
    document->put_preserveWhiteSpace(VARIANT_TRUE);
    VARIANT_BOOL loaded = VARIANT_FALSE;
    if (document->load(bytes.get(), &loaded) != S_OK || loaded != VARIANT_TRUE)
        return {};
    return document;
}

void addAttributes(XmlTreeBuilder& builder, IXMLDOMNode& element) {
    ComPointer<IXMLDOMNamedNodeMap> attributes;
    if (FAILED(element.get_attributes(attributes.put())) || !attributes)
        return;
    long count = 0;
    attributes->get_length(&count);
    for (long i = 0; i < count; ++i) {
        ComPointer<IXMLDOMNode> attribute;
        if (SUCCEEDED(attributes->get_item(i, attribute.put())) && attribute)
            builder.addAttribute(nodeName(*attribute.get()), nodeValue(*attribute.get()));
    }
}

void addNode(XmlTreeBuilder& builder, IXMLDOMNode& node);

void addElement(XmlTreeBuilder& builder, IXMLDOMNode& element) {
    builder.startElement(nodeName(element));
    addAttributes(builder, element);
    ComPointer<IXMLDOMNode> child;
    element.get_firstChild(child.put());
    while (child) {
        addNode(builder, *child.get());
        ComPointer<IXMLDOMNode> next;
        child->get_nextSibling(next.put());
        child = std::move(next);
    }
    builder.endElement();
}

void addNode(XmlTreeBuilder& builder, IXMLDOMNode& node) {
    DOMNodeType type = NODE_INVALID;
    node.get_nodeType(&type);
    switch (type) {
        case NODE_ELEMENT: addElement(builder, node); break;
        case NODE_TEXT: builder.addText(nodeValue(node)); break;
        case NODE_CDATA_SECTION: builder.addCData(nodeValue(node)); break;
        default: builder.addOther(); break;
    }
}

}

std::unique_ptr<XmlNode> parseXml(const std::string& text) {
    const ComScope com;
    const ComPointer<IXMLDOMDocument> document = load(text);
    ComPointer<IXMLDOMElement> root;
    if (!document || document->get_documentElement(root.put()) != S_OK || !root)
        return nullptr;
    XmlTreeBuilder builder;
    addElement(builder, *root.get());
    return builder.takeRoot();
}

void enterXmlThread() {
    CoInitialize(nullptr);
}

void leaveXmlThread() {
    CoUninitialize();
}

}
