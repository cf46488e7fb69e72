#pragma once

#include "orvanta/elements.h"
#include "tests/orvanta/printing.h"

#include <QString>

#include <ostream>

/// Helpers for tests of single elements.
namespace element_support {

/// Owns the document of an element.
class ParsedElement
{
public:
    /// Parses XML text; the root element is the one under test.
    explicit ParsedElement(const char* xml) { (void)m_document.parse(QByteArray(xml)); }
    [[nodiscard]] orvanta::Element element() const { return m_document.documentElement(); }

private:
    xmllimits::ElementTree m_document;
};

/// A host that has Arial and Courier New.
inline bool knowsFamily(QString family)
{
    return family == QLatin1String("Arial") || family == QLatin1String("Courier New");
}

} // namespace element_support
