#include "migration/report/report_output.h"

#include "migration/report/report_format.h"
#include "migration/report/totals.h"
#include "workbench/rendering/whole_file.h"

#include <QJsonDocument>
#include <QSaveFile>

namespace migration {

namespace {

using namespace Qt::StringLiterals;

// One file a line: the report can be looked through with the tools for lines.
class JsonOutput final : public ReportOutput
{
public:
    explicit JsonOutput(const QString& fileName)
        : m_file(fileName)
    {
        if (m_file.open(QIODevice::WriteOnly)) {
            m_file.write("{\n\"format\": \"" + QByteArray(ReportFormat) + "\",\n\"version\": " +
                         QByteArray::number(ReportVersion) + ",\n\"files\": [");
        }
    }

    // A date would be the page's matter: JSON stays the same for the same files.
    void setNote(const QString& note) override { Q_UNUSED(note) }
    void add(const FileReport& report) override;
    [[nodiscard]] QString finish() override;

private:
    QSaveFile m_file;
    Totals m_totals;
};

void JsonOutput::add(const FileReport& report)
{
    if (!m_file.isOpen()) {
        return;
    }
    m_file.write(m_totals.files == 0 ? "\n" : ",\n");
    m_file.write(QJsonDocument(toJson(report)).toJson(QJsonDocument::Compact));
    m_totals.add(report);
}

QString JsonOutput::finish()
{
    if (!m_file.isOpen()) {
        return cannotWrite(m_file.fileName(), m_file.errorString());
    }
    m_file.write("\n],\n\"totals\": ");
    m_file.write(QJsonDocument(toJson(m_totals)).toJson(QJsonDocument::Compact));
    m_file.write("\n}\n");
    return workbench::commitWhole(m_file) ? QString()
                                          : cannotWrite(m_file.fileName(), m_file.errorString());
}

} // namespace

std::unique_ptr<ReportOutput> makeJsonOutput(const QString& fileName)
{
    return std::make_unique<JsonOutput>(fileName);
}

} // namespace migration
