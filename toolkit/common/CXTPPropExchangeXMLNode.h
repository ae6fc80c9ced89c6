/// @file
/// Property exchange with an XML document.
#pragma once

#include "CXTPPropExchange.h"

namespace pugi {
struct xml_node_struct;
}

/// Sections are elements, properties their attributes; sections that an enumerator goes through are elements of the
/// same name. The document lives as long as any section of it. Texts come back unit by unit, also those that are not
/// valid UTF-16.
/// @ingroup toolkit_common
class KY_TOOLKIT_API CXTPPropExchangeXMLNode : public CXTPPropExchange {
public:
    /// The outermost section.
    /// @param bLoading     whether it reads or writes
    /// @param pDocument    whose document is read or written on; null: an empty one of its own. Not kept.
    /// @param lpszSection  the document's element
    CXTPPropExchangeXMLNode(BOOL bLoading, CXTPPropExchangeXMLNode* pDocument, LPCTSTR lpszSection);
    ~CXTPPropExchangeXMLNode() override;

    /// Storing makes the document's element, loading finds it. FALSE when the document has another one, or none to read
    /// from, or memory runs out. Before it, nothing is exchanged.
    BOOL OnBeforeExchange() override;

    /// Takes the text in place of the document; to be followed by `OnBeforeExchange`. Sections that were had from the
    /// former document keep it. FALSE leaves everything as it was: the text is not well-formed, or it has more levels
    /// than any object needs.
    BOOL LoadFromString(LPCTSTR strXML);
    /// The whole document.
    CString GetXML() const;

    CXTPPropExchange* GetSection(LPCTSTR lpszSection) override;
    CXTPPropExchangeEnumerator* GetEnumerator(LPCTSTR lpszSection) override;
    void EmptySection(LPCTSTR lpszSection) override;
    BOOL ExchangeProp(LPCTSTR pszPropName, VARTYPE vtProp, void* pvProp, const void* pvDefault = nullptr) override;

private:
    struct Document;
    class Enumerator;

    CXTPPropExchangeXMLNode(BOOL bLoading, std::shared_ptr<Document> document, pugi::xml_node_struct* node);
    BOOL StoreProp(LPCTSTR pszPropName, VARTYPE vtProp, const void* pvProp, const void* pvDefault);
    BOOL LoadProp(LPCTSTR pszPropName, VARTYPE vtProp, void* pvProp) const;

    std::shared_ptr<Document> m_document;
    pugi::xml_node_struct* m_node = nullptr; // null: a section that is not there
    CString m_strSection;                    // the document's element; empty for other sections
};
