#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

#include <optional>

namespace migration {

/// Longest entry of a report, in bytes: what a worker may say about one file.
inline constexpr qint64 kMaximumEntry = 64LL * 1024 * 1024;
/// Bytes that the tree of an entry may take: one of as many data sources as a label may have
/// stays below.
inline constexpr qint64 kMaximumEntryTree = 512LL * 1024 * 1024;

/// Goes through the files of a JSON report one by one, without reading it whole.
///
/// Any JSON of the format will do, however it is laid out; what stands outside the list of
/// files is only looked at for the format's name and version.
class ReportReader
{
public:
    explicit ReportReader(const QString& fileName);

    /// Why the file is no report, in a sentence for a person; empty when it seems to be one.
    [[nodiscard]] const QString& error() const { return m_error; }

    /// Where an entry of the list of files stands.
    struct Entry
    {
        qint64 offset = 0;
        qint64 size = 0; ///< bytes
    };
    /// The next entry; nothing at the end of the list or after an error.
    [[nodiscard]] std::optional<Entry> next();
    /// The bytes of an entry; none when it cannot be read or is larger than any. Opens the
    /// file anew, so that of a thousand reports no more than one is open.
    [[nodiscard]] static QByteArray bytesOf(const QString& fileName, const Entry& entry);

private:
    [[nodiscard]] std::optional<char> take();
    [[nodiscard]] std::optional<char> takeAfterSpace();
    [[nodiscard]] bool skipValue(char first);
    [[nodiscard]] bool skipString();
    [[nodiscard]] std::optional<QByteArray> takeString();
    void findFiles();
    void startAt(qint64 offset);
    void fail(const QString& why);

    QFile m_file;
    QByteArray m_buffer;
    qsizetype m_at = 0;
    qint64 m_bufferStart = 0;
    bool m_inFiles = false;
    QString m_error;
};

} // namespace migration
