#include "migration/losses/searched_objects.h"

#include "migration/losses/compared_text.h"

#include <algorithm>
#include <cmath>

namespace migration {

namespace {

bool isSearched(const CountedObject& object)
{
    return object.lost == LossKind::HeaderOrFooter || object.lost == LossKind::NestedObject;
}

// Points: a drawing is larger than its shape by the width of the pen.
constexpr double SizeTolerance = 6.0;

bool isNear(const QSizeF& a, const QSizeF& b)
{
    return !b.isEmpty() && std::abs(a.width() - b.width()) < SizeTolerance &&
           std::abs(a.height() - b.height()) < SizeTolerance;
}

// Repair draws other objects as symbols.
bool isPicture(const ItemFacts& item)
{
    return item.hasContent && item.objectClass == ObjectClass::Picture;
}

} // namespace

SearchedObjects::SearchedObjects(const Census& document)
    : m_document(document)
{
    for (qsizetype index = 0; index < document.objects.size(); ++index) {
        const CountedObject& object = document.objects.at(index);
        if (isSearched(object) && object.appearance >= 0) {
            m_missing.append(index);
        }
    }
}

void SearchedObjects::addPage(const LabelFacts& label)
{
    m_pictures += std::count_if(label.items.begin(), label.items.end(), isPicture);
    QString shown;
    for (const ItemFacts& item : m_missing.isEmpty() ? QList<ItemFacts>() : label.items) {
        shown += squeezed(item.text);
    }
    m_missing.removeIf([&](qsizetype index) {
        const qsizetype appearance = m_document.objects.at(index).appearance;
        return isOn(label, m_document.appearances.at(appearance), shown);
    });
}

// An object without text is known by its size: its place depends on the text around it.
bool SearchedObjects::isOn(const LabelFacts& label, const Appearance& appearance,
                           const QString& shown)
{
    const QString text = squeezed(appearance.text);
    return text.isEmpty()
               ? std::any_of(label.items.begin(), label.items.end(),
                             [&appearance](const ItemFacts& item) {
                                 return item.hasContent &&
                                        isNear(item.outline.boundingRect().size(), appearance.size);
                             })
               : isIn(text, shown);
}

// Vector drawings become symbols, and embedded objects any items.
qint64 SearchedObjects::pictures() const
{
    return std::count_if(m_document.objects.begin(), m_document.objects.end(),
                         [](const CountedObject& object) {
                             return object.objectClass == ObjectClass::Picture &&
                                    object.lost != LossKind::EmbeddedObject;
                         }) -
           m_document.drawings;
}

qint64 SearchedObjects::missingPictures(qint64 unreadable) const
{
    return std::max<qint64>(0, pictures() - m_pictures - unreadable);
}

// A nested box is shown if its text is.
bool SearchedObjects::isShown(qsizetype index, bool hasAllPictures) const
{
    const CountedObject& object = m_document.objects.at(index);
    if (!isSearched(object) || object.appearance < 0) {
        return false;
    }
    if (object.objectClass == ObjectClass::Picture) {
        return hasAllPictures;
    }
    const qsizetype next = index + 1;
    const bool isBox = object.objectClass == ObjectClass::Shape &&
                       next < m_document.objects.size() &&
                       m_document.objects.at(next).lost == object.lost;
    return isBox ? isShown(next, hasAllPictures) : !m_missing.contains(index);
}

Census SearchedObjects::withoutShown(qint64 unreadable) const
{
    const bool hasAllPictures = missingPictures(unreadable) == 0;
    Census census = m_document;
    census.objects.clear();
    for (qsizetype index = 0; index < m_document.objects.size(); ++index) {
        if (!isShown(index, hasAllPictures)) {
            census.objects.append(m_document.objects.at(index));
        }
    }
    return census;
}

} // namespace migration
