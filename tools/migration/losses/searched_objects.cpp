#include "migration/losses/searched_objects.h"

#include "migration/losses/compared_text.h"

#include <algorithm>

namespace migration {

namespace {

bool isSearched(const CountedObject& object)
{
    return object.lost == LossKind::HeaderOrFooter || object.lost == LossKind::NestedObject;
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
        const QString text = squeezed(m_document.appearances.at(appearance).text);
        return !text.isEmpty() && isIn(text, shown);
    });
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

// A nested box is shown if its text is.
bool SearchedObjects::isShown(qsizetype index, bool hasAllPictures) const
{
    const CountedObject& object = m_document.objects.at(index);
    if (!isSearched(object) || object.appearance < 0) {
        return false;
    }
    const bool isNested = object.lost == LossKind::NestedObject;
    if (isNested && object.objectClass == ObjectClass::Picture) {
        return hasAllPictures;
    }
    const qsizetype next = index + 1;
    const bool isBox = isNested && object.objectClass == ObjectClass::Shape &&
                       next < m_document.objects.size() &&
                       m_document.objects.at(next).lost == LossKind::NestedObject &&
                       m_document.objects.at(next).objectClass == ObjectClass::Text;
    return isBox ? isShown(next, hasAllPictures) : !m_missing.contains(index);
}

Census SearchedObjects::withoutShown(qint64 unreadable) const
{
    const bool hasAllPictures = m_pictures + unreadable >= pictures();
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
