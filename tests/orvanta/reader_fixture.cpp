#include "tests/orvanta/reader_fixture.h"

#include <QFile>

using namespace Qt::Literals::StringLiterals;

ReaderFixture::ReaderFixture()
    : reader(std::make_unique<LegacyOrvanta>(host.canvas(), host.datasources()))
{
    host.behavior().symbolSize = QSizeF(10, 10);
    host.behavior().conversion = recorder::Behavior::Conversion::OfAnything;
    host.canvas()->setCanvasBackgroundColor(QColor(0x10, 0x20, 0x30));
    host.canvas()->setCanvasDefaultPenColor(QColor(0x40, 0x50, 0x60));
    host.forgetCalls();
}

ReaderFixture::~ReaderFixture()
{
    reader.reset();
    EXPECT_EQ(host.livingItems(), host.itemCount())
        << "an item that was not imported must be deleted";
}

void ReaderFixture::readControls(const QByteArray& objects)
{
    QDomDocument document;
    ASSERT_TRUE(document.setContent("<controls>" + objects + "</controls>"));
    reader->readControls(document.documentElement());
}

bool ReaderFixture::import(const QByteArray& fileBytes)
{
    QFile file(filePath());
    EXPECT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(fileBytes);
    file.close();
    return reader->importLabelFromFile(filePath());
}

QStringList ReaderFixture::takeCalls()
{
    const QStringList calls = host.calls();
    host.forgetCalls();
    return calls;
}

QString ReaderFixture::logText() const
{
    QStringList messages;
    for (const CapturedLog::Record& record : log.records()) {
        EXPECT_EQ(record.level, Logger::Debug);
        EXPECT_EQ(record.source, u"legacy_orvanta"_s);
        messages.append(record.message);
    }
    return messages.join(QLatin1Char('\n'));
}
