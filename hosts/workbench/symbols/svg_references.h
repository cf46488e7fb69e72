#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include <vector>

/// Who draws whom in an SVG document.
namespace workbench::symbols {

/// Notes the elements of a document and their references, and tells how much drawing they
/// come to: a few lines of nested references can stand for billions of elements.
class SvgReferences
{
public:
    /// An element begins inside the one that is open.
    void beginElement(const QString& id, const QStringList& targets);
    void endElement();

    /// Whether everything that is drawn stays within the limits, and nothing draws itself.
    [[nodiscard]] bool isBounded() const;

private:
    struct Node
    {
        std::vector<int> children;
        QStringList targets;
    };

    std::vector<Node> m_nodes;
    std::vector<int> m_open;
    QHash<QString, int> m_byId;

    friend class SvgDrawingExtent;
};

} // namespace workbench::symbols
