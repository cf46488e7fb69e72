#pragma once

#include <QIODevice>
#include <QSizeF>

namespace workbench {

/// Forwards a document of QPdfWriter to a file and sets the exact size of its pages:
/// QPdfWriter rounds it to whole points. Its page size must be that size, rounded up.
class TrueSizePdf final : public QIODevice
{
public:
    /// @param file not owned, must be open for writing
    /// @param page size in points
    TrueSizePdf(QIODevice& file, const QSizeF& page);

    [[nodiscard]] bool isSequential() const override { return true; }

protected:
    qint64 readData(char* data, qint64 size) override;
    qint64 writeData(const char* data, qint64 size) override;

private:
    QIODevice& m_file;
    QSizeF m_page;
};

} // namespace workbench
