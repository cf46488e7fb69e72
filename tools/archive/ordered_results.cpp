#include "archive/ordered_results.h"

#include <utility>

namespace archive {

void OrderedResults::add(qsizetype index, FileResult result, qint64 size)
{
    m_waitingBytes += size;
    m_waiting.emplace(index, Waiting{std::move(result), size});
}

void OrderedResults::skip(qsizetype index)
{
    m_waiting.emplace(index, Waiting{});
}

std::optional<OrderedResults::Finished> OrderedResults::takeNext()
{
    while (!m_waiting.empty() && m_waiting.begin()->first == m_next) {
        auto entry = m_waiting.extract(m_waiting.begin());
        m_waitingBytes -= entry.mapped().size;
        ++m_next;
        if (entry.mapped().result) {
            return Finished{entry.key(), std::move(*entry.mapped().result)};
        }
    }
    return std::nullopt;
}

std::optional<OrderedResults::Finished> OrderedResults::takeAny()
{
    if (!m_waiting.empty()) {
        m_next = m_waiting.begin()->first;
    }
    std::optional<Finished> taken = takeNext();
    return taken || m_waiting.empty() ? std::move(taken) : takeAny();
}

} // namespace archive
