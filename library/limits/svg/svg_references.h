#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include <vector>

/// The reference graph of an SVG document (use, url(#id)).
namespace svglimits {

/// Records the elements of a document and their references, and counts what they draw: a few
/// lines of nested references can draw billions of elements.
class SvgReferences
{
public:
    /// Adds an element inside the one that is open.
    void beginElement(const QString& id, const QStringList& targets);
    void endElement();

    /// Whether everything drawn is within the limits, and no element draws itself.
    [[nodiscard]] bool isWithinLimits() const;

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

} // namespace svglimits
