// Property exchange with an XML document.
#include "CXTPPropExchangeXMLNode.h"

#include "PropertyText.h"

#include <pugixml.hpp>

#include <cstdint>
#include <cstring>
#include <limits>
#include <new>
#include <optional>
#include <string_view>

struct CXTPPropExchangeXMLNode::Document {
    pugi::xml_document xml;
};

namespace {

/// Trees of records are not deeper; reading takes stack for each level.
constexpr int MostLevels = 512;

/// Texts are attributes, where every character counts.
constexpr unsigned ParseFlags = pugi::parse_escapes;

bool HasTooManyLevels(const pugi::xml_document& xml) {
    int level = 0;
    for (pugi::xml_node node = xml.first_child(); node;) {
        if (level > MostLevels)
            return true;
        if (node.first_child()) {
            node = node.first_child();
            ++level;
            continue;
        }
        while (node && !node.next_sibling()) {
            node = node.parent();
            --level;
        }
        node = node.next_sibling();
    }
    return false;
}

pugi::xml_node OrBadAlloc(pugi::xml_node node) {
    if (!node)
        throw std::bad_alloc();
    return node;
}

template <class T>
const T& As(const void* value) {
    return *static_cast<const T*>(value);
}

/// NaN is told from other numbers, and one zero from the other.
bool IsSame(double a, double b) { return std::memcmp(&a, &b, sizeof(a)) == 0; }

bool IsDefault(VARTYPE type, const void* value, const void* fallback) {
    switch (type) {
    case VT_BSTR: {
        const CString &a = As<CString>(value), &b = As<CString>(fallback);
        return std::wstring_view(a.GetString(), a.GetLength()) == std::wstring_view(b.GetString(), b.GetLength());
    }
    case VT_UI4:
        return As<DWORD>(value) == As<DWORD>(fallback);
    case VT_I4:
        return As<int>(value) == As<int>(fallback);
    case VT_BOOL:
        return !As<BOOL>(value) == !As<BOOL>(fallback);
    case VT_R4:
        return IsSame(As<float>(value), As<float>(fallback));
    case VT_R8:
        return IsSame(As<double>(value), As<double>(fallback));
    default:
        return false;
    }
}

bool Write(pugi::xml_attribute attribute, VARTYPE type, const void* value) {
    using propertytext::NumberText;
    switch (type) {
    case VT_BSTR:
        return attribute.set_value(As<CString>(value).GetString());
    case VT_UI4:
        return attribute.set_value(NumberText(std::int64_t{As<DWORD>(value)}).c_str());
    case VT_I4:
        return attribute.set_value(NumberText(std::int64_t{As<int>(value)}).c_str());
    case VT_BOOL:
        return attribute.set_value(As<BOOL>(value) ? L"1" : L"0");
    case VT_R4:
        return attribute.set_value(NumberText(double{As<float>(value)}).c_str());
    default:
        return attribute.set_value(NumberText(As<double>(value)).c_str());
    }
}

template <class T>
bool ReadWithin(std::wstring_view text, void* value) {
    const std::optional<std::int64_t> number = propertytext::ReadInteger(text);
    if (!number || *number < std::numeric_limits<T>::min() || *number > std::numeric_limits<T>::max())
        return false;
    *static_cast<T*>(value) = static_cast<T>(*number);
    return true;
}

template <class T>
bool ReadNumber(std::wstring_view text, void* value) {
    const std::optional<double> number = propertytext::ReadNumber(text);
    if (number)
        *static_cast<T*>(value) = static_cast<T>(*number);
    return number.has_value();
}

bool Read(std::wstring_view text, VARTYPE type, void* value) {
    switch (type) {
    case VT_BSTR:
        static_cast<CString*>(value)->SetString(text.data(), static_cast<int>(text.size()));
        return true;
    case VT_UI4:
        return ReadWithin<DWORD>(text, value);
    case VT_I4:
        return ReadWithin<int>(text, value);
    case VT_BOOL:
        if (text != L"0" && text != L"1")
            return false;
        *static_cast<BOOL*>(value) = text == L"1";
        return true;
    case VT_R4:
        return ReadNumber<float>(text, value);
    default:
        return ReadNumber<double>(text, value);
    }
}

void TakeDefault(VARTYPE type, void* value, const void* fallback) {
    switch (type) {
    case VT_BSTR:
        *static_cast<CString*>(value) = As<CString>(fallback);
        break;
    case VT_R8:
        *static_cast<double*>(value) = As<double>(fallback);
        break;
    default: // four bytes each
        std::memcpy(value, fallback, sizeof(DWORD));
    }
}

bool IsExchanged(VARTYPE type) {
    return type == VT_BSTR || type == VT_UI4 || type == VT_I4 || type == VT_BOOL || type == VT_R4 || type == VT_R8;
}

} // namespace

// --- Sections --------------------------------------------------------------------------------------------------------

/// Loading goes from element to element; storing counts what is still to be made.
class CXTPPropExchangeXMLNode::Enumerator : public CXTPPropExchangeEnumerator {
public:
    Enumerator(BOOL bLoading, std::shared_ptr<Document> document, pugi::xml_node parent, LPCTSTR lpszSection)
        : m_bLoading(bLoading), m_document(std::move(document)), m_parent(parent), m_strSection(lpszSection) {}

    POSITION GetPosition(DWORD dwCount) override {
        if (m_bLoading)
            return AsPosition(m_parent.child(m_strSection));
        return m_parent ? reinterpret_cast<POSITION>(std::uintptr_t{dwCount}) : nullptr;
    }

    CXTPPropExchange* GetNext(POSITION& pos) override {
        pugi::xml_node node;
        if (m_bLoading) {
            node = pugi::xml_node(reinterpret_cast<pugi::xml_node_struct*>(pos));
            pos = AsPosition(node.next_sibling(m_strSection));
        } else {
            ASSERT(pos);
            node = OrBadAlloc(m_parent.append_child(m_strSection));
            pos = reinterpret_cast<POSITION>(reinterpret_cast<std::uintptr_t>(pos) - 1);
        }
        return new CXTPPropExchangeXMLNode(m_bLoading, m_document, node.internal_object());
    }

private:
    static POSITION AsPosition(pugi::xml_node node) { return reinterpret_cast<POSITION>(node.internal_object()); }

    const BOOL m_bLoading;
    std::shared_ptr<Document> m_document;
    pugi::xml_node m_parent;
    CString m_strSection;
};

CXTPPropExchangeXMLNode::CXTPPropExchangeXMLNode(BOOL bLoading, CXTPPropExchangeXMLNode* pDocument, LPCTSTR lpszSection)
    : CXTPPropExchange(bLoading), m_document(pDocument ? pDocument->m_document : std::make_shared<Document>()),
      m_strSection(lpszSection) {}

CXTPPropExchangeXMLNode::CXTPPropExchangeXMLNode(BOOL bLoading, std::shared_ptr<Document> document,
                                                 pugi::xml_node_struct* node)
    : CXTPPropExchange(bLoading), m_document(std::move(document)), m_node(node) {}

CXTPPropExchangeXMLNode::~CXTPPropExchangeXMLNode() = default;

BOOL CXTPPropExchangeXMLNode::OnBeforeExchange() {
    pugi::xml_node element = m_document->xml.document_element();
    if (!element && IsStoring() && !m_strSection.IsEmpty())
        element = m_document->xml.append_child(m_strSection);
    if (!element || m_strSection != element.name())
        return FALSE;
    m_node = element.internal_object();
    return TRUE;
}

CXTPPropExchange* CXTPPropExchangeXMLNode::GetSection(LPCTSTR lpszSection) {
    const pugi::xml_node node(m_node);
    pugi::xml_node section = node.child(lpszSection);
    if (!section && IsStoring() && node)
        section = OrBadAlloc(pugi::xml_node(m_node).append_child(lpszSection));
    return new CXTPPropExchangeXMLNode(IsLoading(), m_document, section.internal_object());
}

CXTPPropExchangeEnumerator* CXTPPropExchangeXMLNode::GetEnumerator(LPCTSTR lpszSection) {
    return new Enumerator(IsLoading(), m_document, pugi::xml_node(m_node), lpszSection);
}

void CXTPPropExchangeXMLNode::EmptySection(LPCTSTR lpszSection) {
    ASSERT(IsStoring());
    pugi::xml_node node(m_node);
    while (node.remove_child(lpszSection)) {
    }
}

// --- Properties ------------------------------------------------------------------------------------------------------

BOOL CXTPPropExchangeXMLNode::ExchangeProp(LPCTSTR pszPropName, VARTYPE vtProp, void* pvProp, const void* pvDefault) {
    if (!IsExchanged(vtProp))
        return FALSE;
    if (IsStoring())
        return StoreProp(pszPropName, vtProp, pvProp, pvDefault);
    const BOOL bRead = LoadProp(pszPropName, vtProp, pvProp);
    if (!bRead && pvDefault)
        TakeDefault(vtProp, pvProp, pvDefault);
    return bRead;
}

BOOL CXTPPropExchangeXMLNode::StoreProp(LPCTSTR pszPropName, VARTYPE vtProp, const void* pvProp,
                                        const void* pvDefault) {
    pugi::xml_node node(m_node);
    if (!node)
        return FALSE;
    pugi::xml_attribute attribute = node.attribute(pszPropName);
    if (pvDefault && IsDefault(vtProp, pvProp, pvDefault)) {
        node.remove_attribute(attribute);
        return TRUE;
    }
    if (!attribute)
        attribute = node.append_attribute(pszPropName);
    if (!attribute || !Write(attribute, vtProp, pvProp))
        throw std::bad_alloc();
    return TRUE;
}

BOOL CXTPPropExchangeXMLNode::LoadProp(LPCTSTR pszPropName, VARTYPE vtProp, void* pvProp) const {
    const pugi::xml_attribute attribute = pugi::xml_node(m_node).attribute(pszPropName);
    return attribute && Read(attribute.value(), vtProp, pvProp);
}

// --- The document ----------------------------------------------------------------------------------------------------

BOOL CXTPPropExchangeXMLNode::LoadFromString(LPCTSTR strXML) {
    auto document = std::make_shared<Document>();
    const std::wstring_view text = strXML ? strXML : L"";
    const pugi::xml_parse_result result =
        document->xml.load_buffer(text.data(), text.size() * sizeof(wchar_t), ParseFlags, pugi::encoding_wchar);
    if (!result || HasTooManyLevels(document->xml))
        return FALSE;
    m_document = std::move(document);
    m_node = nullptr;
    return TRUE;
}

CString CXTPPropExchangeXMLNode::GetXML() const {
    struct Writer : pugi::xml_writer {
        CString text;
        void write(const void* data, size_t size) override {
            text.Append(static_cast<const wchar_t*>(data), static_cast<int>(size / sizeof(wchar_t)));
        }
    } writer;
    m_document->xml.save(writer, L"", pugi::format_raw | pugi::format_no_declaration, pugi::encoding_wchar);
    return writer.text;
}
