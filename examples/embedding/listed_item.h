#pragma once

#include <QString>

#include <utility>

/// A base that this host adds to every item: the item's name in the list.
///
/// LabelPort does not use it. Items may have any number of additional bases if those of the
/// contract remain unchanged.
class ListedItem
{
public:
    explicit ListedItem(QString kind)
        : m_kind(std::move(kind))
    {}
    virtual ~ListedItem() = default;

    [[nodiscard]] QString kind() const { return m_kind; }

private:
    QString m_kind;
};
