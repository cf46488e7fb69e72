#include "migration/report/report_output.h"

#include "migration/report/html_card.h"
#include "migration/report/html_page.h"
#include "migration/report/totals.h"
#include "workbench/rendering/whole_file.h"

#include <QFileInfo>
#include <QSaveFile>
#include <QTemporaryFile>

namespace migration {

namespace {

constexpr qint64 Chunk = 1024 * 1024;

// The totals stand at the top and are known at the end, so the cards wait in a file.
class HtmlOutput final : public ReportOutput
{
public:
    explicit HtmlOutput(const QString& fileName)
        : m_fileName(fileName)
        , m_cards(QFileInfo(fileName).absolutePath() + QStringLiteral("/.labelport-report-XXXXXX"))
    {
        m_isOpen = m_cards.open();
    }

    void setNote(const QString& note) override { m_note = note; }
    void add(const FileReport& report) override;
    [[nodiscard]] QString finish() override;

private:
    [[nodiscard]] bool copyCards(QSaveFile& page);

    QString m_fileName;
    QString m_note;
    QTemporaryFile m_cards;
    Totals m_totals;
    bool m_isOpen = false;
};

void HtmlOutput::add(const FileReport& report)
{
    m_totals.add(report);
    if (m_isOpen) {
        m_cards.write(htmlCard(report, m_totals.files).toUtf8());
    }
}

bool HtmlOutput::copyCards(QSaveFile& page)
{
    if (!m_cards.flush() || !m_cards.seek(0)) {
        return false;
    }
    for (QByteArray chunk = m_cards.read(Chunk); !chunk.isEmpty(); chunk = m_cards.read(Chunk)) {
        if (page.write(chunk) != chunk.size()) {
            return false;
        }
    }
    return m_cards.error() == QFileDevice::NoError;
}

QString HtmlOutput::finish()
{
    QSaveFile page(m_fileName);
    if (!m_isOpen) {
        return cannotWrite(m_fileName, m_cards.errorString());
    }
    if (!page.open(QIODevice::WriteOnly)) {
        return cannotWrite(m_fileName, page.errorString());
    }
    page.write(htmlPageHead(m_totals, m_note));
    if (!copyCards(page)) {
        page.cancelWriting();
        return cannotWrite(m_fileName, m_cards.errorString());
    }
    page.write(htmlPageTail());
    return workbench::commitWhole(page) ? QString() : cannotWrite(m_fileName, page.errorString());
}

} // namespace

std::unique_ptr<ReportOutput> makeHtmlOutput(const QString& fileName)
{
    return std::make_unique<HtmlOutput>(fileName);
}

} // namespace migration
