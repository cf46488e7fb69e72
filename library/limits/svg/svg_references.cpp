#include "limits/svg/svg_references.h"

#include "limits/svg/svg_limits.h"

#include <algorithm>

namespace svglimits {

namespace {

struct Extent
{
    enum class State { Unknown, Running, Known };
    State state = State::Unknown;
    /// Elements drawn.
    qint64 elements = 0;
    /// Nesting depth, references included.
    int height = 0;
};

constexpr qint64 TooMany = DrawnElements + 1;
constexpr int TooDeep = 4 * Depth;

} // namespace

/// Follows the references; computes the extent of each element once.
class SvgDrawingExtent
{
public:
    explicit SvgDrawingExtent(const SvgReferences& references)
        : m_references(references)
        , m_extents(references.m_nodes.size())
    {}

    [[nodiscard]] bool isWithinLimits()
    {
        const Extent document = of(0, 0);
        return document.elements < TooMany && document.height < TooDeep;
    }

private:
    [[nodiscard]] Extent of(int node, int depth)
    {
        Extent& known = m_extents[static_cast<std::size_t>(node)];
        if (known.state == Extent::State::Known) {
            return known;
        }
        if (known.state == Extent::State::Running || depth >= TooDeep) {
            return {Extent::State::Known, TooMany, TooDeep};
        }
        known.state = Extent::State::Running;
        known = sum(m_references.m_nodes[static_cast<std::size_t>(node)], depth);
        return known;
    }

    [[nodiscard]] Extent sum(const SvgReferences::Node& node, int depth)
    {
        Extent total{Extent::State::Known, 1, 0};
        const auto add = [&](int other) {
            const Extent part = of(other, depth + 1);
            total.elements = std::min(TooMany, total.elements + part.elements);
            total.height = std::max(total.height, std::min(TooDeep, part.height + 1));
        };
        for (const int child : node.children) {
            add(child);
        }
        for (const QString& target : node.targets) {
            const auto found = m_references.m_byId.constFind(target);
            if (found != m_references.m_byId.constEnd()) {
                add(*found);
            }
        }
        return total;
    }

    const SvgReferences& m_references;
    std::vector<Extent> m_extents;
};

void SvgReferences::beginElement(const QString& id, const QStringList& targets)
{
    const int node = static_cast<int>(m_nodes.size());
    m_nodes.push_back({{}, targets});
    if (!m_open.empty()) {
        m_nodes[static_cast<std::size_t>(m_open.back())].children.push_back(node);
    }
    if (!id.isEmpty()) {
        m_byId.insert(id, node);
    }
    m_open.push_back(node);
}

void SvgReferences::endElement()
{
    m_open.pop_back();
}

bool SvgReferences::isWithinLimits() const
{
    return m_nodes.empty() || SvgDrawingExtent(*this).isWithinLimits();
}

} // namespace svglimits
