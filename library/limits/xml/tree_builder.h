#pragma once

#include "limits/xml/element_tree.h"

#include <QXmlStreamReader>

namespace xmlbounds {

/// Fills a tree from a document. What is taken and what is left out is what QDomDocument
/// takes and leaves out: it stands on the same stream reader, so faults are the same as well.
class TreeBuilder
{
public:
    explicit TreeBuilder(ElementTree& tree)
        : m_tree(tree)
    {}

    /// @return nothing on success, else the reader's message and place
    [[nodiscard]] std::optional<ParseFailure> build(const QByteArray& bytes);

private:
    [[nodiscard]] const char* take(const QXmlStreamReader& reader);
    [[nodiscard]] const char* takeDoctype();
    void takeStart(const QXmlStreamReader& reader);
    void takeEnd();
    void takeText(const QXmlStreamReader& reader);
    void takeOther();
    [[nodiscard]] quint32 nameIndex(QStringView name);
    [[nodiscard]] ElementTree::Span store(QStringView characters);

    ElementTree& m_tree;
    QHash<QStringView, quint32> m_nameIndexes; // views of the tree's names
    std::vector<quint32> m_open;               // the elements around the present place
    bool m_hasDoctype = false;
};

} // namespace xmlbounds
