#pragma once

#include <QDomElement>
#include <QLatin1String>
#include <QString>

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace orvanta {

/// Whether the host can show a font family.
using FamilyCheck = bool (*)(QString family);

/// One child element that a record is filled from.
template <typename Record>
struct Field
{
    QLatin1String tag;
    void (*take)(const QDomElement& child, FamilyCheck isKnownFamily, Record& record);
};

/// Fills a record from the children of an element, in document order. Names are
/// case-sensitive, children that the table does not name are ignored, and a repeated
/// child is taken again.
template <typename Record, std::size_t Count>
void readFields(const QDomElement& parent, const Field<Record> (&fields)[Count],
                FamilyCheck isKnownFamily, Record& record)
{
    for (QDomElement child = parent.firstChildElement(); !child.isNull();
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
