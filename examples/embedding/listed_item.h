#pragma once

#include <QString>

#include <utility>

/// What this host adds to every item: the word that stands for it in the list.
///
/// LabelPort does not know of it. Items may have as many bases of their own as you like, as long
/// as those of the contract stay as they are.
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
