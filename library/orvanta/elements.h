#pragma once

#include "limits/xml/element_tree.h"

#include <QLatin1String>
#include <QString>
#include <QStringList>

#include <algorithm>
#include <cstddef>
#include <iterator>

/// Reads the values and children of XML elements.
namespace orvanta {

using xmllimits::Element;

// Values cannot fail: old labels contain invalid numbers, which count as 0.

/// The text as a base-10 signed 32-bit number; 0 if it is not one. Blanks around the digits are
/// ignored.
[[nodiscard]] int readInteger(const Element& element);
/// The text as a number with a decimal point; 0 if it is not one or outside the range of double.
[[nodiscard]] double readDouble(const Element& element);
/// Whether the text is exactly "true". Old labels depend on "True" and "1" being false.
[[nodiscard]] bool readFlag(const Element& element);
/// The texts of all child elements, whatever their names, in document order. Includes empty texts,
/// because a list may have blank entries.
[[nodiscard]] QStringList readTexts(const Element& element);

/// Whether the host can show a font family.
using FamilyCheck = bool (*)(QString family);

/// A child element from which a part of a record is read.
template <typename Record>
struct Field
{
    QLatin1String tag;
    void (*take)(const Element& child, FamilyCheck isKnownFamily, Record& record);
};

/// Fills a record from the children of an element, in document order. Names are case-sensitive.
/// Children that are not in the table are ignored; a repeated child is read again.
template <typename Record, std::size_t Count>
void readFields(const Element& parent, const Field<Record> (&fields)[Count],
                FamilyCheck isKnownFamily, Record& record)
{
    for (Element child = parent.firstChildElement(); !child.isNull();
         child = child.nextSiblingElement()) {
        const QString tag = child.tagName();
        const auto* field =
            std::find_if(std::begin(fields), std::end(fields),
                         [&tag](const Field<Record>& known) { return tag == known.tag; });
        if (field != std::end(fields)) {
            field->take(child, isKnownFamily, record);
        }
    }
}

} // namespace orvanta
