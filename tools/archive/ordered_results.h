#pragma once

#include "archive/messages.h"

#include <QtGlobal>

#include <map>
#include <optional>

namespace archive {

/// Bytes of results that may wait for the result of an earlier file. When it is reached,
/// no further file is started until that result has arrived.
inline constexpr qint64 MaximumWaitingBytes = 64LL * 1024 * 1024;

/// Sorts results, which arrive when workers finish, by the order of their files.
class OrderedResults
{
public:
    /// A result and the index of its input.
    struct Finished
    {
        qsizetype index = 0;
        FileResult result;
    };

    /// @param size about how many bytes the result takes
    void add(qsizetype index, FileResult result, qint64 size);
    /// An index without a result: it is skipped.
    void skip(qsizetype index);
    /// The next result in order, if it is complete.
    [[nodiscard]] std::optional<Finished> takeNext();
    /// The first result that has arrived, even if earlier ones are missing.
    [[nodiscard]] std::optional<Finished> takeAny();

    [[nodiscard]] bool isFull() const { return m_waitingBytes >= MaximumWaitingBytes; }
    /// Index of the next result in order.
    [[nodiscard]] qsizetype next() const { return m_next; }

private:
    struct Waiting
    {
        std::optional<FileResult> result;
        qint64 size = 0;
    };

    std::map<qsizetype, Waiting> m_waiting;
    qint64 m_waitingBytes = 0;
    qsizetype m_next = 0;
};

} // namespace archive
