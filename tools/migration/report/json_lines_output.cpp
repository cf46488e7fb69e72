#include "migration/report/report_lines.h"
#include "migration/report/report_output.h"
#include "migration/report/totals.h"
#include "workbench/pictures/atomic_save.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

namespace migration {

namespace {

using namespace Qt::StringLiterals;

class JsonLinesOutput final : public ReportOutput
{
public:
    explicit JsonLinesOutput(const QString& fileName)
        : m_file(fileName)
    {
        if (m_file.open(QIODevice::WriteOnly)) {
            write({{u"format"_s, QLatin1String(ReportFormat)}, {u"version"_s, ReportVersion}});
        }
    }

    // A date would be the page's matter: JSON is the same for the same files.
    void setNote(const QString& note) override { Q_UNUSED(note) }
    void add(const FileReport& report) override;
    [[nodiscard]] QString finish() override;

private:
    void write(const QJsonObject& line);

    QSaveFile m_file;
    Totals m_totals;
};

void JsonLinesOutput::write(const QJsonObject& line)
{
    m_file.write(QJsonDocument(line).toJson(QJsonDocument::Compact) + '\n');
}

void JsonLinesOutput::add(const FileReport& report)
{
    if (m_file.isOpen()) {
        write(toJson(report));
        m_totals.add(report);
    }
}

QString JsonLinesOutput::finish()
{
    if (!m_file.isOpen()) {
        return cannotWrite(m_file.fileName(), m_file.errorString());
    }
    write({{u"totals"_s, toJson(m_totals)}});
    return workbench::commitComplete(m_file) ? QString()
                                             : cannotWrite(m_file.fileName(), m_file.errorString());
}

} // namespace

std::unique_ptr<ReportOutput> makeJsonLinesOutput(const QString& fileName)
{
    return std::make_unique<JsonLinesOutput>(fileName);
}

} // namespace migration
