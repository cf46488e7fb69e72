#include "migration/report/report_output.h"

#include "migration/report/html_card.h"
#include "migration/report/html_page.h"
#include "migration/report/totals.h"
#include "workbench/pictures/atomic_save.h"

#include <QFileInfo>
#include <QSaveFile>
#include <QTemporaryFile>

namespace migration {

namespace {

using namespace Qt::StringLiterals;

constexpr qint64 Chunk = 1024 * 1024;

// The totals are at the top and known at the end, so the cards are kept in a temporary file.
class HtmlOutput final : public ReportOutput
{
public:
    explicit HtmlOutput(const QString& fileName)
        : m_fileName(fileName)
        , m_cards(QFileInfo(fileName).absolutePath() + u"/.labelport-report-XXXXXX"_s)
    {
        m_folder = QFileInfo(fileName).absolutePath();
        m_isOpen = m_cards.open();
    }

    void setNote(const QString& note) override { m_note = note; }
    void add(const FileReport& report) override;
    [[nodiscard]] QString finish() override;

private:
    [[nodiscard]] bool copyCards(QSaveFile& page);

    QString m_fileName;
    QString m_note;
    QString m_folder;
    HtmlTemplate m_card{u"card.html"_s};
    QTemporaryFile m_cards;
    Totals m_totals;
    bool m_isOpen = false;
};

void HtmlOutput::add(const FileReport& report)
{
    m_totals.add(report);
    if (m_isOpen) {
        m_cards.write(m_card.filled(cardData(report, m_totals.files, m_folder)));
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
    page.write(HtmlTemplate(u"page_head.html"_s).filled(pageHeadData(m_totals, m_note)));
    if (!copyCards(page)) {
        page.cancelWriting();
        return cannotWrite(m_fileName, m_cards.errorString());
    }
    page.write(HtmlTemplate(u"page_tail.html"_s).filled(pageTailData()));
    return workbench::commitComplete(page) ? QString()
                                           : cannotWrite(m_fileName, page.errorString());
}

} // namespace

std::unique_ptr<ReportOutput> makeHtmlOutput(const QString& fileName)
{
    return std::make_unique<HtmlOutput>(fileName);
}

} // namespace migration
