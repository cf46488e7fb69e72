#pragma once

#include "tests/orvanta/printing.h"

#include <QDomDocument>
#include <QString>

#include <ostream>

/// What tests of single elements need.
namespace element_support {

/// Keeps the document that an element belongs to.
class ParsedElement
{
public:
    /// Parses XML text; the root element is what the test is about.
    explicit ParsedElement(const char* xml) { m_document.setContent(QByteArray(xml)); }
    [[nodiscard]] QDomElement element() const { return m_document.documentElement(); }

private:
    QDomDocument m_document;
};

/// A host that knows Arial and Courier New.
inline bool knowsFamily(QString family)
{
    return family == QLatin1String("Arial") || family == QLatin1String("Courier New");
}

} // namespace element_support
